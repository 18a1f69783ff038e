// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "nextmodal.h"
#include "testcase.h"
#include "texts.h"

#include <RyCustomizedDialog>
#include <RyToolBarManager>

#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QTemporaryDir>
#include <QToolButton>
#include <QWidgetAction>
#include <QtTest>

namespace {

//! [window]
class Window : public QMainWindow
{
public:
    explicit Window(QSettings *settings)
        : m_settings(settings)
    {
        // 1. Create everything, each with a name.
        QMenu *const menu = menuBar()->addMenu(tr("Edit"));
        menu->addAction(tr("Cut"))->setObjectName(QStringLiteral("edit_cut"));
        menu->addAction(tr("Copy"))->setObjectName(QStringLiteral("edit_copy"));
        menu->addAction(tr("Paste"))->setObjectName(QStringLiteral("edit_paste"));
        QToolBar *const toolBar = addToolBar(tr("Edit"));
        toolBar->setObjectName(QStringLiteral("toolbar_edit"));
        toolBar->addAction(menu->actions().at(0));
        toolBar->addAction(menu->actions().at(1));

        // 2. Register everything that users may place, and the toolbars.
        m_manager.setMainWindow(this);
        for (QAction *action : menu->actions())
            m_manager.addAction(action, tr("Edit"));
        m_manager.addDefaultToolBar(toolBar, tr("Edit"));
        menu->addAction(tr("Customize Toolbars..."), this, &Window::customizeToolBars);

        // 3. Restore what is on the toolbars, then where they are. Then the window may be shown.
        m_manager.restoreState(m_settings->value(QStringLiteral("toolBars")).toByteArray(), 1);
        restoreState(m_settings->value(QStringLiteral("window")).toByteArray(), 1);
    }

    void customizeToolBars()
    {
        // 4. Open the dialog, and save no matter what it returns.
        RyCustomizedDialog dialog({&m_manager, nullptr}, this);
        dialog.exec();
        m_settings->setValue(QStringLiteral("toolBars"), m_manager.saveState(1));
    }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        m_settings->setValue(QStringLiteral("window"), saveState(1));
        QMainWindow::closeEvent(event);
    }

private:
    QSettings *m_settings;
    RyToolBarManager m_manager; // a value, so nobody has to delete it
};
//! [window]

class ZoomAction : public QWidgetAction
{
public:
    using QWidgetAction::QWidgetAction;

protected:
    QWidget *createWidget(QWidget *parent) override
    {
        QSlider *const slider = new QSlider(Qt::Horizontal, parent);
        connect(slider, &QSlider::valueChanged, this, &QAction::setData);
        return slider;
    }
};

QToolBar *toolBarTitled(const QMainWindow &window, const QString &title)
{
    const auto toolBars = window.findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolBar *toolBar : toolBars) {
        if (toolBar->windowTitle() == title)
            return toolBar;
    }
    return nullptr;
}

} // namespace

class tst_guide_getting_started : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatTheUserMadeIsThereAtTheNextStart();
    void theMenuOpensTheDialog();
    void aWidgetStandsOnEachToolBar();
    void aDefaultWidgetStandsOnOneToolBar();
    void aMenuStandsOnEachToolBar();
};

void tst_guide_getting_started::whatTheUserMadeIsThereAtTheNextStart()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("window.ini"));
    {
        QSettings settings(file, QSettings::IniFormat);
        Window window(&settings);
        QCOMPARE(standingOn(toolBarTitled(window, QStringLiteral("Edit"))),
                 words("edit_cut edit_copy"));
        window.show();
        const NextModal dialog([](QWidget *shown) {
            const EditorViews editor(shown);
            editor.click(editor.newButton);
            editor.typeName(QStringLiteral("Mine"));
            editor.doubleClick(editor.actionTree, QStringLiteral("Paste"));
            QTest::keyClick(shown, Qt::Key_Return);
        });
        window.customizeToolBars();
        QVERIFY(dialog.wasShown());
        QToolBar *const mine = toolBarTitled(window, QStringLiteral("Mine"));
        QTRY_VERIFY(mine->isVisible());
        window.addToolBar(Qt::LeftToolBarArea, mine);
        window.close();
    }
    QSettings settings(file, QSettings::IniFormat);
    Window window(&settings);
    QToolBar *const mine = toolBarTitled(window, QStringLiteral("Mine"));
    QVERIFY(mine);
    QCOMPARE(standingOn(mine), words("edit_paste"));
    QCOMPARE(window.toolBarArea(mine), Qt::LeftToolBarArea);
}

void tst_guide_getting_started::theMenuOpensTheDialog()
{
    QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("window.ini")), QSettings::IniFormat);
    Window window(&settings);
    const NextModal dialog([](QWidget *shown) { shown->close(); });
    window.menuBar()->actions().at(0)->menu()->actions().last()->trigger();
    QVERIFY(dialog.wasShown());
}

void tst_guide_getting_started::aWidgetStandsOnEachToolBar()
{
    QMainWindow window;
    RyToolBarManager manager;
    manager.setMainWindow(&window);
    ZoomAction zoom(&window);
    zoom.setObjectName(QStringLiteral("view_zoom"));
    manager.addAction(&zoom, QStringLiteral("View"));
    QToolBar *const first = manager.createToolBar(QStringLiteral("First"));
    QToolBar *const second = manager.createToolBar(QStringLiteral("Second"));
    manager.setToolBar(first, {&zoom});
    manager.setToolBar(second, {&zoom});
    const QByteArray state = manager.saveState(1);
    for (int time = 0; time < 2; ++time) {
        QTRY_COMPARE(first->findChildren<QSlider *>().size(), 1); // Qt deletes old ones later
        QTRY_COMPARE(second->findChildren<QSlider *>().size(), 1); // Qt deletes old ones later
        manager.setToolBar(first, {});
        manager.setToolBar(second, {});
        QVERIFY(manager.restoreState(state, 1));
    }
    second->findChild<QSlider *>()->setValue(30);
    QCOMPARE(zoom.data().toInt(), 30);
}

void tst_guide_getting_started::aDefaultWidgetStandsOnOneToolBar()
{
    QMainWindow window;
    RyToolBarManager manager;
    manager.setMainWindow(&window);
    QWidgetAction action(&window);
    action.setObjectName(QStringLiteral("view_zoom"));
    action.setDefaultWidget(new QSlider);
    manager.addAction(&action, QStringLiteral("View"));
    QToolBar *const first = manager.createToolBar(QStringLiteral("First"));
    QToolBar *const second = manager.createToolBar(QStringLiteral("Second"));
    manager.setToolBar(first, {&action});
    manager.setToolBar(second, {&action});
    QCOMPARE(window.findChildren<QSlider *>().size(), 1);
    QCOMPARE(manager.actions(first), manager.actions(second));
    // On one of them it is a button without a text.
    const bool isButton[] = {
        qobject_cast<QToolButton *>(first->widgetForAction(&action)) != nullptr,
        qobject_cast<QToolButton *>(second->widgetForAction(&action)) != nullptr};
    QVERIFY(isButton[0] != isButton[1]);
}

void tst_guide_getting_started::aMenuStandsOnEachToolBar()
{
    QMainWindow window;
    RyToolBarManager manager;
    manager.setMainWindow(&window);
    QMenu menu;
    QAction action(QStringLiteral("Background"), &window);
    action.setMenu(&menu);
    manager.addAction(&action, QStringLiteral("View"));
    for (const char *title : {"First", "Second"}) {
        QToolBar *const toolBar = manager.createToolBar(QLatin1String(title));
        manager.setToolBar(toolBar, {&action});
        const auto *const button = qobject_cast<QToolButton *>(toolBar->widgetForAction(&action));
        QVERIFY(button);
        QCOMPARE(button->defaultAction()->menu(), &menu);
        QCOMPARE(button->popupMode(), QToolButton::MenuButtonPopup);
    }
}

QTEST_MAIN(tst_guide_getting_started)
#include "tst_guide_getting_started.moc"
