// SPDX-License-Identifier: MIT

#include "openeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QtTest>

/*
 * What people complain about most in programs with customizable toolbars. Each has a test with its
 * name, as a user meets it. Three are elsewhere: noDragAndDrop() in tst_actiondrag_window,
 * blurredIcons() in tst_readableviews_icons, and drags on Wayland in tools/wayland/drags.sh.
 */
class tst_RyToolBarKit_complaints : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void layoutLostByAnUpdate();
    void newButtonsThatNeverAppear();
    void pluginsButtonsVanish();
    void toolBarsBackInTheWrongPlace();
    void namelessThingsMixedUp();
    void languageChange();
    void countersAsNames();
    void damagedState();
    void crashAfterAPluginGoes();
    void separators();
    void thingsTwice();
    void namelessToolBars();
    void actionsWithoutIcons();
    void noSearch();
    void notUsableWithoutAMouse();
    void resetThatSurprises();
    void rawMnemonicsAndOddOrder();
};

namespace {

// The default window in its next release: "open" has another name, "save" has gone, and there are
// a new action on the toolbar "edit" and a new toolbar.
void buildNextRelease(QMainWindow *window)
{
    KitProgram::buildDefault(window);
    delete window->findChild<QAction *>("save");
    QAction *const open = window->findChild<QAction *>("open");
    open->setObjectName("openFile");
    window->findChild<RyToolBarKit *>()->setFormerNames(open, {"open"});
    QToolBar *const edit = window->findChild<QToolBar *>("edit");
    QAction *const find = addAction(window->menuBar()->addMenu("Search"), "find");
    edit->insertAction(window->findChild<QAction *>("copy"), find);
    window->addToolBar("New")->setObjectName("new");
}

// The actions, menu and toolbar of a plugin.
void loadPlugin(QMainWindow *window)
{
    QMenu *const menu = window->menuBar()->addMenu("Plugin");
    menu->setObjectName("pluginMenu");
    QToolBar *const toolBar = window->addToolBar("Plugin");
    toolBar->setObjectName("pluginBar");
    for (const char *name : {"check", "format"})
        toolBar->addAction(addAction(menu, name));
}

void buildWithPlugin(QMainWindow *window)
{
    KitProgram::buildDefault(window);
    loadPlugin(window);
}

// Toolbars and actions that have texts only, in the order of the texts.
KitProgram::Build nameless(const QStringList &texts)
{
    return [texts](QMainWindow *window) {
        QMenu *const menu = window->menuBar()->addMenu("Menu");
        for (const QString &text : texts)
            window->addToolBar("Bar " + text)->addAction(menu->addAction(text));
    };
}

QToolBar *withTitle(const KitProgram &program, const QString &title)
{
    const auto toolBars = program.window()->findChildren<QToolBar *>();
    for (QToolBar *toolBar : toolBars) {
        if (toolBar->windowTitle() == title)
            return toolBar;
    }
    return nullptr;
}

QStringList texts(const QToolBar *toolBar)
{
    QStringList texts;
    const auto actions = toolBar->actions();
    for (const QAction *action : actions)
        texts << (action->isSeparator() ? QString("|") : action->text());
    return texts;
}

// Adds an action that is not there yet to the toolbar with a title.
void addTo(KitProgram *program, const QString &title, const QString &text)
{
    program->apply([&](RyToolBarManager *manager) {
        QToolBar *const toolBar = withTitle(*program, title);
        QList<QAction *> content = manager->actions(toolBar);
        const auto actions = manager->actions();
        for (QAction *action : actions) {
            if (action->text() == text)
                content << action;
        }
        manager->setToolBar(toolBar, content);
    });
}

} // namespace

void tst_RyToolBarKit_complaints::layoutLostByAnUpdate()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste open save | cut");
    const QString mine = program.create("Mine", "open cut");
    program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("file"));
    program.start(buildNextRelease);
    QCOMPARE(program.content("edit"), QString("paste openFile | cut find"));
    QCOMPARE(program.content(mine), QString("openFile cut"));
    QCOMPARE(program.window()->toolBarArea(program.toolBar("file")), Qt::LeftToolBarArea);
    QVERIFY(!program.toolBar("new")->isHidden());
    // Also for who goes back to the release before.
    program.start();
    QCOMPARE(program.content("edit"), QString("paste open save | cut"));
}

void tst_RyToolBarKit_complaints::newButtonsThatNeverAppear()
{
    KitProgram program;
    program.start();
    program.edit("edit", "cut | copy paste");
    program.start(buildNextRelease);
    QCOMPARE(program.content("edit"), QString("cut | find copy paste"));
    program.edit("edit", "cut | copy paste");
    program.start(buildNextRelease);
    QCOMPARE(program.content("edit"), QString("cut | copy paste"));
}

void tst_RyToolBarKit_complaints::pluginsButtonsVanish()
{
    KitProgram program;
    program.start(buildWithPlugin);
    program.edit("edit", "cut format copy");
    program.edit("pluginBar", "format open");
    for (int run = 0; run < 3; ++run) {
        program.start();
        QCOMPARE(program.content("edit"), QString(run == 0 ? "cut copy" : "copy cut"));
        program.edit("edit", "copy cut");
    }
    program.start();
    loadPlugin(program.window()); // late
    letTheKitFollow();
    QCOMPARE(program.content("edit"), QString("copy cut format"));
    QCOMPARE(program.content("pluginBar"), QString("format open"));
}

void tst_RyToolBarKit_complaints::toolBarsBackInTheWrongPlace()
{
    KitProgram program;
    program.start(buildWithPlugin);
    QMainWindow *const window = program.window();
    window->addToolBar(Qt::BottomToolBarArea, program.toolBar("edit"));
    window->addToolBar(Qt::BottomToolBarArea, program.toolBar("file"));
    window->addToolBarBreak(Qt::BottomToolBarArea);
    window->addToolBar(Qt::BottomToolBarArea, program.toolBar("pluginBar"));
    const QStringList places = program.places();
    QCOMPARE(places, QStringList({"bottom: edit, file / pluginBar"}));
    program.start(buildWithPlugin);
    QCOMPARE(program.places(), places);
    program.start(); // without the plugin
    program.start(buildWithPlugin);
    QCOMPARE(program.places(), places);
}

void tst_RyToolBarKit_complaints::namelessThingsMixedUp()
{
    KitProgram program;
    program.start(nameless({"Zoom", "Pan"}));
    addTo(&program, "Bar Zoom", "Pan");
    program.start(nameless({"Pan", "Zoom"}));
    QCOMPARE(texts(withTitle(program, "Bar Zoom")), QStringList({"Zoom", "Pan"}));
    QCOMPARE(texts(withTitle(program, "Bar Pan")), QStringList("Pan"));
}

void tst_RyToolBarKit_complaints::languageChange()
{
    const auto translated = [](const QStringList &words) {
        return [words](QMainWindow *window) {
            QMenu *const menu = window->menuBar()->addMenu(words.at(0));
            menu->setObjectName("tools");
            QMenu *const more = menu->addMenu(words.at(1));
            more->setObjectName("more"); // its action has no name of its own
            QToolBar *const toolBar = window->addToolBar(words.at(2));
            toolBar->setObjectName("bar");
            toolBar->addAction(addAction(menu, "run"));
            window->findChild<QAction *>("run")->setText(words.at(3));
        };
    };
    KitProgram program;
    program.start(translated({"Tools", "More", "Bar", "Run"}));
    addTo(&program, "Bar", "More");
    program.start(translated({"Extras", "Weitere", "Leiste", "Start"}));
    QCOMPARE(texts(program.toolBar("bar")), QStringList({"Start", "Weitere"}));
    QCOMPARE(program.kit()->problems(), QStringList());
}

void tst_RyToolBarKit_complaints::countersAsNames()
{
    KitProgram program;
    program.start(nameless({"B", "C"}));
    addTo(&program, "Bar B", "C");
    program.start(nameless({"A", "B", "C"})); // the first is new
    QCOMPARE(texts(withTitle(program, "Bar A")), QStringList("A"));
    QCOMPARE(texts(withTitle(program, "Bar B")), QStringList({"B", "C"}));
    QCOMPARE(texts(withTitle(program, "Bar C")), QStringList("C"));
}

void tst_RyToolBarKit_complaints::damagedState()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    const QString good = program.stored();
    for (const QString &damaged : {good.left(good.size() / 2),
                                   QString(good).replace("paste", "copy"), QString("nonsense")}) {
        program.store(damaged);
        program.start();
        QCOMPARE(program.content("edit"), QString("paste"));
    }
    QCOMPARE(program.refusals.size(), 3);
}

void tst_RyToolBarKit_complaints::crashAfterAPluginGoes()
{
    KitProgram program;
    program.start(buildWithPlugin);
    program.edit("edit", "cut check copy");
    RyCustomizedDialog *const dialog = program.openDialog();
    delete program.toolBar("pluginBar");
    delete program.window()->menuBar()->findChild<QMenu *>("pluginMenu");
    delete program.action("check");
    delete program.action("format");
    QTest::mouseClick(dialog->applyButton(), Qt::LeftButton);
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    letTheKitFollow();
    QCOMPARE(program.content("edit"), QString("cut copy"));
    program.start(buildWithPlugin);
    QCOMPARE(program.content("edit"), QString("cut check copy"));
}

void tst_RyToolBarKit_complaints::separators()
{
    KitProgram program;
    program.start();
    for (const char *content : {"| cut", "cut |", "cut | | copy", "|", "| | |", ""}) {
        program.edit("edit", content);
        QCOMPARE(program.content("edit"), QString(content));
        program.start();
        QCOMPARE(program.content("edit"), QString(content));
    }
}

void tst_RyToolBarKit_complaints::thingsTwice()
{
    KitProgram program;
    program.start();
    program.edit("edit", "upper cut | copy");
    // The next release has it there by default.
    const auto nextRelease = [](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->findChild<QToolBar *>("edit")->addAction(window->findChild<QAction *>("upper"));
    };
    program.start(nextRelease);
    QCOMPARE(program.content("edit"), QString("upper cut | copy"));
    const int toolBars = program.contents().size();
    program.create("Mine", "open");
    program.start(nextRelease);
    QCOMPARE(program.contents().size(), toolBars + 1);
    const auto rows = EditorViews(program.openDialog()).toolBarList;
    QCOMPARE(rows->count(), toolBars + 1);
}

void tst_RyToolBarKit_complaints::namelessToolBars()
{
    KitProgram program;
    program.start(nameless({"Zoom", "Pan"}));
    addTo(&program, "Bar Pan", "Zoom");
    program.window()->addToolBar(Qt::RightToolBarArea, withTitle(program, "Bar Pan"));
    program.start(nameless({"Zoom", "Pan"}));
    QCOMPARE(texts(withTitle(program, "Bar Pan")), QStringList({"Pan", "Zoom"}));
    QCOMPARE(program.window()->toolBarArea(withTitle(program, "Bar Pan")), Qt::RightToolBarArea);
    QCOMPARE(program.window()->toolBarArea(withTitle(program, "Bar Zoom")), Qt::TopToolBarArea);
    QVERIFY(!program.kit()->problems().isEmpty()); // so that the developer gives them names
}

void tst_RyToolBarKit_complaints::actionsWithoutIcons()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste cut");
    const QToolBar *const toolBar = program.toolBar("edit");
    const auto *const button =
        qobject_cast<QToolButton *>(toolBar->widgetForAction(program.action("paste")));
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonIconOnly);
    const QSize withText = button->sizeHint();
    button->defaultAction()->setText(QString());
    QVERIFY2(withText.width() > button->sizeHint().width(), "it shows its text");
}

void tst_RyToolBarKit_complaints::noSearch()
{
    OpenedDialog opened([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->findChild<QAction *>("copy")->setText("Kopi&éren");
    });
    opened.views->toolBarList->setCurrentItem(itemNamed(opened.views->toolBarList, "File"));
    QLineEdit *const line = opened.dialog->findChild<QLineEdit *>("actionSearch");
    QTest::keyClicks(line, "KOPIER");
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(opened.dialog->isVisible());
    QTest::mouseClick(opened.dialog->okButton(), Qt::LeftButton);
    QCOMPARE(opened.program.content("file"), QString("new copy open save"));
}

void tst_RyToolBarKit_complaints::notUsableWithoutAMouse()
{
    const OpenedDialog opened;
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    };
    QTest::keyClicks(QApplication::focusWidget(), "paste");
    opened.views->toolBarList->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Insert);
    QTest::keyClicks(QApplication::focusWidget(), "Mine");
    press(Qt::Key_Return);
    opened.views->actionTree->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Insert);
    opened.views->currentToolBarList->setFocus(Qt::TabFocusReason);
    QCOMPARE(opened.views->currentRows(), QStringList("Paste"));
    press(Qt::Key_X, Qt::ControlModifier);
    opened.views->toolBarList->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(opened.views->currentRows().contains("Paste"));
    QTest::keyClick(opened.dialog, Qt::Key_Return);
    QVERIFY(opened.program.content("edit").contains("paste"));
    QVERIFY(withTitle(opened.program, "Mine"));
}

void tst_RyToolBarKit_complaints::resetThatSurprises()
{
    OpenedDialog opened;
    opened.dialog->reject();
    opened.program.edit("edit", "paste");
    opened.program.create("Mine", "open");
    const QStringList contents = opened.program.contents();
    opened.open();
    QTest::mouseClick(opened.dialog->RestoreDefaultButton(), Qt::LeftButton);
    const QString text = opened.box("restoreDefaultsQuestion")->informativeText();
    for (const char *said : {"Edit: add Cut", "Edit: remove Paste", "Mine: delete"})
        QVERIFY2(text.contains(said), qPrintable(text));
    opened.answer("restoreDefaultsQuestion", QMessageBox::Cancel);
    QTest::mouseClick(opened.dialog->okButton(), Qt::LeftButton);
    QCOMPARE(opened.program.contents(), contents);
    opened.program.restoreDefaults();
    opened.program.kit()->undoAction()->trigger();
    QCOMPARE(opened.program.contents(), contents);
}

void tst_RyToolBarKit_complaints::rawMnemonicsAndOddOrder()
{
    const OpenedDialog opened([](QMainWindow *window) {
        for (const char *title : {"&Zoom", "&File"}) {
            QMenu *const menu = window->menuBar()->addMenu(title);
            for (const char *text : {"Save &As", "&New", "e&xport"})
                menu->addAction(text);
        }
        window->addToolBar("Bar");
    });
    QStringList shown;
    const auto *const delegate =
        qobject_cast<QStyledItemDelegate *>(opened.views->actionTree->itemDelegate());
    const QStringList items = itemsOf(opened.views->actionTree);
    for (const QString &item : items)
        shown << delegate->displayText(item, QLocale());
    QCOMPARE(shown.mid(1),
             QStringList({"Zoom", "  export", "  New", "  Save As", "File", "  export", "  New",
                          "  Save As"}));
}

QTEST_MAIN(tst_RyToolBarKit_complaints)
#include "tst_rytoolbarkit_complaints.moc"
