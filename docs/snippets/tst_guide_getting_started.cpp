// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "nextmodal.h"
#include "testcase.h"
#include "texts.h"

//! [includes]
#include <RyCustomizedDialog>
#include <RyToolBarManager>
//! [includes]

#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

//! [window]
class Window : public QMainWindow
{
public:
    explicit Window(QSettings *settings);

    void customizeToolBars();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createActions();
    void createToolBars();
    void registerEverything();
    void restoreLayout();

    QSettings *m_settings;
    RyToolBarManager m_manager; // not a pointer, so that nobody has to delete it
    QAction *m_cut;
    QAction *m_copy;
    QAction *m_paste;
};

Window::Window(QSettings *settings)
    : m_settings(settings)
{
    createActions();
    createToolBars();
    registerEverything();
    restoreLayout(); // last, and before anybody calls show()
}
//! [window]

//! [create]
void Window::createActions()
{
    m_cut = new QAction(tr("Cut"), this);
    m_cut->setObjectName(QStringLiteral("edit_cut"));
    m_copy = new QAction(tr("Copy"), this);
    m_copy->setObjectName(QStringLiteral("edit_copy"));
    m_paste = new QAction(tr("Paste"), this);
    m_paste->setObjectName(QStringLiteral("edit_paste"));
}

void Window::createToolBars()
{
    QToolBar *const edit = addToolBar(tr("Edit"));
    edit->setObjectName(QStringLiteral("toolbar_edit"));
    edit->addAction(m_cut);
    edit->addSeparator();
    edit->addAction(m_copy);

    QMenu *const menu = menuBar()->addMenu(tr("Settings"));
    menu->addAction(tr("Customize Toolbars..."), this, &Window::customizeToolBars);
}
//! [create]

//! [register]
void Window::registerEverything()
{
    m_manager.setMainWindow(this);
    for (QAction *action : {m_cut, m_copy, m_paste})
        m_manager.addAction(action, tr("Edit"));
    const auto toolBars = findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolBar *toolBar : toolBars)
        m_manager.addDefaultToolBar(toolBar, tr("Other"));
}
//! [register]

//! [restore]
void Window::restoreLayout()
{
    m_manager.restoreState(m_settings->value(QStringLiteral("toolBars")).toByteArray(), 1);
    restoreState(m_settings->value(QStringLiteral("window")).toByteArray(), 1);
}
//! [restore]

//! [customize]
void Window::customizeToolBars()
{
    RyCustomizedDialog dialog({&m_manager, nullptr}, this);
    dialog.exec();
    m_settings->setValue(QStringLiteral("toolBars"), m_manager.saveState(1));
}

void Window::closeEvent(QCloseEvent *event)
{
    m_settings->setValue(QStringLiteral("window"), saveState(1));
    QMainWindow::closeEvent(event);
}
//! [customize]

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
};

void tst_guide_getting_started::whatTheUserMadeIsThereAtTheNextStart()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("window.ini"));
    {
        QSettings settings(file, QSettings::IniFormat);
        Window window(&settings);
        QCOMPARE(standingOn(toolBarTitled(window, QStringLiteral("Edit"))),
                 words("edit_cut | edit_copy"));
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
    window.menuBar()->actions().at(0)->menu()->actions().at(0)->trigger();
    QVERIFY(dialog.wasShown());
}

QTEST_MAIN(tst_guide_getting_started)
#include "tst_guide_getting_started.moc"
