// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "testcase.h"
#include "texts.h"

//! [include]
#include <RyToolBarKit>
//! [include]
#include <RyCustomizedDialog>
#include <RyToolBarManager>

#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolBar>
#include <QtTest>

namespace {

QAction *addNamed(QWidget *widget, const QString &name)
{
    QAction *const action = new QAction(name.left(1).toUpper() + name.mid(1), widget->window());
    action->setObjectName(name);
    widget->addAction(action);
    return action;
}

// A menu "Edit" and a toolbar with its actions, and a menu "Debug".
class Window : public QMainWindow
{
public:
    Window()
    {
        setObjectName(QStringLiteral("window"));
        settingsMenu = menuBar()->addMenu(QStringLiteral("Settings"));
        //! [lines]
        RyToolBarKit *const kit = new RyToolBarKit(this);
        settingsMenu->addAction(kit->customizeAction());
        //! [lines]
        attached = kit;
        QMenu *const edit = menuBar()->addMenu(QStringLiteral("Edit"));
        bar = addToolBar(QStringLiteral("Edit"));
        bar->setObjectName(QStringLiteral("edit"));
        const QStringList names = words("cut copy paste");
        for (const QString &name : names)
            bar->addAction(addNamed(edit, name));
        debugMenu = menuBar()->addMenu(QStringLiteral("Debug"));
        addNamed(debugMenu, QStringLiteral("crash"));
    }

    QAction *action(const char *name) const { return findChild<QAction *>(QLatin1String(name)); }

    QMenu *settingsMenu;
    QMenu *debugMenu;
    QToolBar *bar;
    RyToolBarKit *attached;
};

void offerMoreAndLess(RyToolBarKit *kit, QMenu *debugMenu, QAction *zoom, QAction *quit)
{
    //! [offer]
    kit->addActions({zoom}, QObject::tr("View")); // is in no menu
    kit->setExcluded(debugMenu); // is not for users
    kit->setRequired(quit); // is back at the next start
    //! [offer]
}

void rename(RyToolBarKit *kit, QAction *copyAction)
{
    //! [rename]
    copyAction->setObjectName(QStringLiteral("edit_copy"));
    kit->setFormerNames(copyAction, {QStringLiteral("copy"), QStringLiteral("copyText")});
    //! [rename]
}

void addReset(RyToolBarKit *kit, QMenu *settingsMenu)
{
    //! [reset]
    QAction *const reset = settingsMenu->addAction(QObject::tr("Reset Toolbars"));
    reset->setObjectName(QStringLiteral("resetToolBars"));
    QObject::connect(reset, &QAction::triggered, kit, [kit] { kit->restoreLayout(QByteArray()); });
    //! [reset]
}

void showRefusals(RyToolBarKit *kit, QLabel *statusLabel)
{
    //! [refused]
    QObject::connect(kit, &RyToolBarKit::layoutRefused, statusLabel, [=](const QString &reason) {
        qWarning("Toolbars: %s", qPrintable(reason)); // in English
        statusLabel->setText(QObject::tr("Your toolbars could not be restored."));
    });
    //! [refused]
}

void changeDialog(RyToolBarKit *kit)
{
    //! [dialog]
    QObject::connect(kit, &RyToolBarKit::aboutToCustomize, kit, [](RyCustomizedDialog *dialog) {
        dialog->setWindowTitle(QObject::tr("Customize Toolbars"));
    });
    //! [dialog]
}

void keepElsewhere(RyToolBarKit *kit, const QByteArray &kept, QByteArray *keeper)
{
    //! [storage]
    kit->setSettings(nullptr, QString()); // an empty key: the kit stores nothing
    QObject::connect(kit, &RyToolBarKit::layoutChanged, kit, [=] { *keeper = kit->saveLayout(); });
    if (!kept.isEmpty())
        kit->restoreLayout(kept); // when the window has its menus and toolbars
    //! [storage]
}

//! [move]
// For users of the releases without a kit. Call it when the window has its menus and toolbars.
void takeOver(RyToolBarKit *kit, QSettings *settings)
{
    // The bytes of the manager are below this key, where the kit will keep its layout.
    kit->setSettings(settings, QStringLiteral("layout/toolBars"));
    kit->restoreNow();
    const QString oldKey = QStringLiteral("layout/window"); // the bytes of the window
    const QByteArray places = settings->value(oldKey).toByteArray();
    if (!places.isEmpty() && kit->restoreLayout(places))
        settings->remove(oldKey);
}
//! [move]

// What a user does: removes the first entry of the toolbar "Edit".
void removeFirst(Window *window)
{
    window->attached->customizeAction()->trigger();
    RyCustomizedDialog *const dialog = window->findChild<RyCustomizedDialog *>();
    QVERIFY(dialog);
    const EditorViews views(dialog);
    views.doubleClick(views.currentToolBarList, 0);
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(dialog, QEvent::DeferredDelete);
}

} // namespace

class tst_guide_three_lines : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void threeLinesAreEnough();
    void aTestFindsMissingNames();
    void someAreOfferedAndSomeAreNot();
    void aRenamedActionIsFound();
    void resetBringsTheDefaultsBack();
    void refusalsAreShown();
    void theDialogCanBeChanged();
    void aLayoutCanBeKeptElsewhere();
    void oldBytesAreTakenOver();

protected:
    void prepare() override;

private:
    QScopedPointer<QTemporaryDir> m_folder;
};

void tst_guide_three_lines::initTestCase()
{
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QCoreApplication::setOrganizationName(QStringLiteral("Tests"));
}

void tst_guide_three_lines::prepare()
{
    m_folder.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
}

void tst_guide_three_lines::threeLinesAreEnough()
{
    for (const char *expected : {"cut copy paste", "copy paste"}) {
        Window window;
        window.show();
        QCOMPARE(standingOn(window.bar), words(expected));
        removeFirst(&window);
        window.close();
    }
}

void tst_guide_three_lines::aTestFindsMissingNames()
{
    //! [test]
    Window window;
    RyToolBarKit *const kit = window.findChild<RyToolBarKit *>();
    kit->restoreNow();
    QCOMPARE(kit->problems(), QStringList());
    //! [test]
    QVERIFY(QSettings().allKeys().isEmpty());
}

void tst_guide_three_lines::someAreOfferedAndSomeAreNot()
{
    {
        Window window;
        window.show();
        removeFirst(&window);
    }
    Window window;
    QAction zoom(QStringLiteral("Zoom"), nullptr);
    zoom.setObjectName(QStringLiteral("zoom"));
    offerMoreAndLess(window.attached, window.debugMenu, &zoom, window.action("cut"));
    window.show();
    QCOMPARE(window.attached->manager()->categories(), words("Edit Settings View"));
    QCOMPARE(standingOn(window.bar), words("cut copy paste"));
}

void tst_guide_three_lines::aRenamedActionIsFound()
{
    {
        Window window;
        window.show();
        removeFirst(&window);
    }
    Window window;
    rename(window.attached, window.action("copy"));
    window.show();
    QCOMPARE(standingOn(window.bar), words("edit_copy paste"));
}

void tst_guide_three_lines::resetBringsTheDefaultsBack()
{
    Window window;
    addReset(window.attached, window.settingsMenu);
    window.show();
    removeFirst(&window);
    window.settingsMenu->actions().last()->trigger();
    QCOMPARE(standingOn(window.bar), words("cut copy paste"));
    QVERIFY(window.attached->isDefault());
}

void tst_guide_three_lines::refusalsAreShown()
{
    QSettings().setValue(QStringLiteral("toolBars/window"), QStringLiteral("nonsense"));
    Window window;
    QLabel label;
    showRefusals(window.attached, &label);
    window.show();
    QCOMPARE(takeWarnings(),
             QStringList(QStringLiteral("Toolbars: the value is not a layout of toolbars")));
    QCOMPARE(label.text(), QStringLiteral("Your toolbars could not be restored."));
    QCOMPARE(standingOn(window.bar), words("cut copy paste"));
}

void tst_guide_three_lines::theDialogCanBeChanged()
{
    Window window;
    changeDialog(window.attached);
    window.show();
    window.attached->customizeAction()->trigger();
    RyCustomizedDialog *const dialog = window.findChild<RyCustomizedDialog *>();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Customize Toolbars"));
}

void tst_guide_three_lines::aLayoutCanBeKeptElsewhere()
{
    QByteArray kept;
    {
        Window window;
        keepElsewhere(window.attached, kept, &kept);
        window.show();
        removeFirst(&window);
    }
    QVERIFY(!kept.isEmpty());
    QVERIFY(QSettings().allKeys().isEmpty());
    Window window;
    keepElsewhere(window.attached, kept, &kept);
    window.show();
    QCOMPARE(standingOn(window.bar), words("copy paste"));
}

void tst_guide_three_lines::oldBytesAreTakenOver()
{
    QSettings settings;
    {
        Window old; // as it was without a kit
        delete old.attached;
        RyToolBarManager manager;
        manager.setMainWindow(&old);
        for (QAction *action : old.bar->actions())
            manager.addAction(action, QStringLiteral("Edit"));
        manager.addDefaultToolBar(old.bar, QStringLiteral("Edit"));
        manager.setToolBar(old.bar, {old.action("paste")});
        QToolBar *const mine = manager.createToolBar(QStringLiteral("Mine"));
        manager.setToolBar(mine, {old.action("copy")});
        old.show();
        old.addToolBar(Qt::LeftToolBarArea, mine);
        QCoreApplication::processEvents();
        settings.setValue(QStringLiteral("layout/toolBars"), manager.saveState(3));
        settings.setValue(QStringLiteral("layout/window"), old.saveState(3));
    }
    for (int start = 1; start <= 2; ++start) {
        Window window;
        takeOver(window.attached, &settings);
        window.show();
        QCOMPARE(standingOn(window.bar), words("paste"));
        QToolBar *const mine = window.findChild<QToolBar *>(QStringLiteral("_Custom_Toolbar_1"));
        QVERIFY(mine);
        QCOMPARE(mine->windowTitle(), QStringLiteral("Mine"));
        QCOMPARE(standingOn(mine), words("copy"));
        QCOMPARE(window.toolBarArea(mine), Qt::LeftToolBarArea);
        QVERIFY(mine->isVisible());
        QVERIFY(!settings.contains(QStringLiteral("layout/window")));
    }
}

QTEST_MAIN(tst_guide_three_lines)
#include "tst_guide_three_lines.moc"
