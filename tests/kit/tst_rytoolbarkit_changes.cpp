// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitwindow.h"
#include "testcase.h"

#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

class tst_RyToolBarKit_changes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void actionsThatComeLateAreOffered();
    void actionsThatComeLateGoWhereTheLayoutHasThem();
    void handedOverActionsGoWhereTheLayoutHasThem();
    void deletedActionsKeepTheirPlace();
    void deletedMenusAreForgotten();
    void anActionMayHaveTheAddressOfOneOfADeletedMenu();
    void toolBarsThatComeLateGetTheirLayout();
    void toolBarsMayBeDeleted();
    void toolBarsMayBeDeletedWithTheDialogOpen();
    void toolBarsMayBeDeletedJustBeforeOk();
    void toolBarsWithoutATitleMayBeDeletedWithTheDialogOpen();
    void excludedToolBarsStayWhenAnotherIsDeleted();
    void actionsThatComeWithTheDialogOpenAreNotLost();
    void actionsMayBeDeletedWithTheDialogOpen();
    void anActionThatTheProgramAddsToAToolBarStays();
    void anActionThatTheUserRemovedDoesNotComeBack();
    void anActionThatTheProgramTakesOffMayComeBack();
    void anActionThatTakesThePlaceOfAnotherHasItsName();
    void anActionThatTakesThePlaceOfAnotherOnAToolBarHasItsName();
    void anActionThatTakesThePlaceOfAnotherEverywhereHasItsName_data();
    void anActionThatTakesThePlaceOfAnotherEverywhereHasItsName();
    void anActionOfADeletedMenuGivesItsNameAway();
    void aHandedOverActionTakesTheNameOfOneThatIsOutOfItsMenu();
    void anActionThatIsStillUsedKeepsItsName_data();
    void anActionThatIsStillUsedKeepsItsName();
    void widgetsWithTheSameNameAreAllKept_data();
    void widgetsWithTheSameNameAreAllKept();
    void restoreDefaultsKnowsWhatTheProgramAdded();
    void restoreDefaultsThatWasCancelledIsForgotten();
    void theWindowMayBeDeletedAtAnyTime_data();
    void theWindowMayBeDeletedAtAnyTime();
    void theKitMayBeDeleted();
    void propertiesOfButtonsArePutBack_data();
    void propertiesOfButtonsArePutBack();
    void buttonsThatTheProgramLeavesAloneFollowTheToolBar();
    void aButtonOfTheProgramIsLeftAlone();
    void menusOfButtonsArePutBack();
    void widgetsStayOnTheirToolBar();
    void movesAreStoredTogether();
    void aMoveIsStoredWhenTheWindowCloses();
    void theDialogIsOpenedOnce();
    void theDialogIsOpenedAgainAsSoonAsItIsClosed();
    void applyStoresAndKeepsTheDialogOpen();
    void cancelChangesNothing();
    void aboutToCustomizeComesBeforeTheDialogIsShown();
    void requiredRowsSayWhatHappens();
    void toolBarsWithoutATitleHaveOneInTheDialog();
    void toolBarsWithoutATitleAreNumberedAsInTheWindow();
    void toolBarsOfTheUserCanBeMovedLikeThoseOfTheProgram();
};

namespace {

QToolButton *button(const KitProgram &program, const QString &toolBar, const QString &action)
{
    return qobject_cast<QToolButton *>(
        program.toolBar(toolBar)->widgetForAction(program.action(action)));
}

QMenu *menu(const KitProgram &program, const QString &title)
{
    const auto actions = program.window()->menuBar()->actions();
    for (const QAction *action : actions) {
        if (action->text() == title)
            return action->menu();
    }
    return nullptr;
}

} // namespace

void tst_RyToolBarKit_changes::actionsThatComeLateAreOffered()
{
    KitProgram program;
    program.start();
    QAction *const late = addAction(menu(program, "&File"), "late");
    QMenu *const menu = program.window()->menuBar()->addMenu("Tools");
    QAction *const tool = addAction(menu, "tool");
    letTheKitFollow();
    QCOMPARE(program.kit()->manager()->actionCategory(late), QString("File"));
    QCOMPARE(program.kit()->manager()->actionCategory(tool), QString("Tools"));
    program.window()->setMenuBar(new QMenuBar);
    addAction(program.window()->menuBar()->addMenu("New"), "other");
    letTheKitFollow();
    QCOMPARE(program.kit()->manager()->actionCategory(program.action("other")), QString("New"));
}

void tst_RyToolBarKit_changes::actionsThatComeLateGoWhereTheLayoutHasThem()
{
    KitProgram program;
    const auto load = [&] { return addAction(menu(program, "&File"), "plugin"); };
    program.start();
    load();
    letTheKitFollow();
    program.edit("edit", "cut | plugin copy");
    program.start();
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    load();
    letTheKitFollow();
    QCOMPARE(program.content("edit"), QString("cut | plugin copy"));
}

void tst_RyToolBarKit_changes::handedOverActionsGoWhereTheLayoutHasThem()
{
    KitProgram program;
    const auto load = [&] {
        program.kit()->addActions({addAction(program.window(), "plugin")}, "Plugin");
    };
    program.start();
    load();
    program.create("Mine", "plugin open");
    program.start();
    QCOMPARE(program.content("_Custom_Toolbar_1"), QString("open"));
    load();
    QCOMPARE(program.content("_Custom_Toolbar_1"), QString("plugin open"));
}

void tst_RyToolBarKit_changes::deletedActionsKeepTheirPlace()
{
    KitProgram program;
    program.start();
    program.edit("edit", "cut open | copy");
    delete program.action("open");
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    program.edit("edit", "paste cut | copy");
    addAction(menu(program, "&File"), "open");
    letTheKitFollow();
    QCOMPARE(program.content("edit"), QString("paste cut open | copy"));
    QCOMPARE(program.content("file"), QString("new open save"));
}

void tst_RyToolBarKit_changes::deletedMenusAreForgotten()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QMenu *const tools = window->menuBar()->addMenu("Tools");
        addAction(tools, "tool")->setParent(tools);
    });
    program.create("Mine", "tool open");
    delete menu(program, "Tools");
    letTheKitFollow();
    QCOMPARE(program.content("_Custom_Toolbar_1"), QString("open"));
    QVERIFY(!program.kit()->manager()->hasCategory("Tools"));
}

void tst_RyToolBarKit_changes::anActionMayHaveTheAddressOfOneOfADeletedMenu()
{
    alignas(QAction) char storage[sizeof(QAction)];
    KitProgram program;
    program.start();
    QAction *const action = new (storage) QAction("Tool", nullptr);
    QMenu *const tools = program.window()->menuBar()->addMenu("Tools");
    tools->addAction(action);
    letTheKitFollow();
    QVERIFY(program.kit()->manager()->actions().contains(action));
    delete tools;
    letTheKitFollow();
    action->~QAction();
    QAction *const other = new (storage) QAction("Other", nullptr);
    menu(program, "&File")->addAction(other);
    letTheKitFollow();
    QVERIFY(program.kit()->manager()->actions().contains(other));
    other->~QAction();
}

void tst_RyToolBarKit_changes::toolBarsThatComeLateGetTheirLayout()
{
    KitProgram program;
    const auto load = [&] {
        QToolBar *const bar = new QToolBar("Plugin");
        bar->setObjectName("plugin");
        bar->addAction(program.action("open"));
        program.window()->addToolBar(bar);
        letTheKitFollow();
    };
    program.start();
    load();
    program.edit("plugin", "copy | open");
    program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("plugin"));
    program.start();
    load();
    QCOMPARE(program.content("plugin"), QString("copy | open"));
    QCOMPARE(program.places(), QStringList({"left: plugin", "top: file, edit"}));
}

void tst_RyToolBarKit_changes::toolBarsMayBeDeleted()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    program.create("Mine", "open copy");
    delete program.toolBar("edit");
    QVERIFY(!program.kit()->manager());
    delete program.action("new");
    letTheKitFollow();
    QVERIFY(program.kit()->manager());
    QCOMPARE(program.contents(), QStringList({"_Custom_Toolbar_1: open copy", "file: save"}));
    QCOMPARE(program.kit()->manager()->toolBars().size(), 2);
    const auto defaults = program.kit()->manager()->defaultToolBars();
    QCOMPARE(defaults.value(program.toolBar("file")),
             QList<QAction *>({program.action("open"), program.action("save")}));
    program.restoreDefaults();
    QCOMPARE(program.contents(), QStringList("file: open save"));
}

void tst_RyToolBarKit_changes::toolBarsMayBeDeletedWithTheDialogOpen()
{
    KitProgram program;
    program.start();
    const QPointer<RyCustomizedDialog> dialog = program.openDialog();
    delete program.toolBar("edit");
    letTheKitFollow();
    QVERIFY(!dialog || !dialog->isVisible());
    RyCustomizedDialog *const again = program.openDialog();
    QVERIFY(again);
    QCOMPARE(EditorViews(again).toolBarList->count(), 1);
    QTest::mouseClick(again->okButton(), Qt::LeftButton);
    QCOMPARE(program.contents(), QStringList("file: new open save"));
}

void tst_RyToolBarKit_changes::toolBarsMayBeDeletedJustBeforeOk()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    RyCustomizedDialog *const dialog = program.openDialog();
    delete program.toolBar("edit");
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    letTheKitFollow();
    QCOMPARE(program.contents(), QStringList("file: save"));
}

void tst_RyToolBarKit_changes::toolBarsWithoutATitleMayBeDeletedWithTheDialogOpen()
{
    KitProgram program;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        for (const char *name : {"first", "second"})
            window->addToolBar("")->setObjectName(name);
    });
    RyCustomizedDialog *const dialog = program.openDialog();
    delete program.toolBar("first");
    dialog->reject();
    QCOMPARE(program.toolBar("second")->windowTitle(), QString());
}

void tst_RyToolBarKit_changes::excludedToolBarsStayWhenAnotherIsDeleted()
{
    KitProgram program;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.kit()->setExcluded(program.toolBar("edit"));
        addAction(window->addToolBar("Other"), "other");
    });
    program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("edit"));
    delete program.toolBar("file");
    letTheKitFollow();
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    QVERIFY(!program.kit()->manager()->toolBars().contains(program.toolBar("edit")));
    program.start();
    QCOMPARE(program.places(), QStringList("top: file, edit"));
}

void tst_RyToolBarKit_changes::actionsThatComeWithTheDialogOpenAreNotLost()
{
    KitProgram program;
    const auto load = [&] {
        addAction(menu(program, "&File"), "plugin");
        letTheKitFollow();
    };
    program.start();
    load();
    program.edit("edit", "cut plugin copy");
    program.start();
    RyCustomizedDialog *const dialog = program.openDialog();
    load();
    QCOMPARE(program.content("edit"), QString("cut plugin copy"));
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    letTheKitFollow();
    QCOMPARE(program.content("edit"), QString("cut plugin copy"));
    program.edit("edit", "cut copy");
    QCOMPARE(program.content("edit"), QString("cut copy"));
}

void tst_RyToolBarKit_changes::actionsMayBeDeletedWithTheDialogOpen()
{
    KitProgram program;
    program.start();
    RyCustomizedDialog *const dialog = program.openDialog();
    delete program.action("open");
    delete program.action("cut");
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    QCOMPARE(program.contents(), QStringList({"edit: | copy", "file: new save"}));
}

void tst_RyToolBarKit_changes::anActionThatTheProgramAddsToAToolBarStays()
{
    KitProgram program;
    program.start();
    program.edit("edit", "copy | cut");
    program.toolBar("edit")->addAction(program.action("upper"));
    program.toolBar("file")->insertAction(program.action("open"),
                                          addAction(program.window(), "extra"));
    letTheKitFollow();
    QCOMPARE(program.content("file"), QString("new extra open save"));
    QVERIFY(program.content("edit").contains("upper"));
    QCOMPARE(program.kit()->manager()->actions(program.toolBar("file")).size(), 4);
    program.edit("file", "extra new");
    QCOMPARE(program.content("file"), QString("extra new"));
}

void tst_RyToolBarKit_changes::anActionThatTheUserRemovedDoesNotComeBack()
{
    KitProgram program;
    const auto load = [&] {
        program.toolBar("file")->addAction(addAction(program.window(), "extra"));
        letTheKitFollow();
    };
    program.start();
    load();
    program.edit("file", "new open");
    program.start();
    load();
    QCOMPARE(program.content("file"), QString("new open"));
}

void tst_RyToolBarKit_changes::anActionThatTheProgramTakesOffMayComeBack()
{
    KitProgram program;
    program.start();
    program.edit("file", "save open | new");
    QAction *const open = program.action("open");
    program.toolBar("file")->removeAction(open);
    letTheKitFollow();
    program.edit("file", "save | cut new");
    program.toolBar("file")->addAction(open);
    letTheKitFollow();
    QCOMPARE(program.content("file"), QString("save open | cut new"));
}

// Each document of a program may have its own actions, which the window's menus show by turns.
void tst_RyToolBarKit_changes::anActionThatTakesThePlaceOfAnotherHasItsName()
{
    KitProgram program;
    QAction first("Next", nullptr);
    QAction second("Next", nullptr);
    program.start();
    menu(program, "&File")->addAction(&first);
    letTheKitFollow();
    RyToolBarManager *const manager = program.kit()->manager();
    const QString mine = program.create("Mine", "open");
    manager->setToolBar(program.toolBar(mine), {&first, program.action("open")});
    const QByteArray layout = program.kit()->saveLayout();

    QAction *before = &first;
    QAction *now = &second;
    for (int i = 0; i < 4; ++i) {
        menu(program, "&File")->removeAction(before);
        menu(program, "&File")->addAction(now);
        letTheKitFollow();
        QCOMPARE(program.toolBar(mine)->actions(), QList<QAction *>({now, program.action("open")}));
        QVERIFY(manager->actions().contains(now));
        QVERIFY(!manager->actions().contains(before));
        QCOMPARE(QString(program.kit()->saveLayout()), QString(layout));
        std::swap(before, now);
    }
}

void tst_RyToolBarKit_changes::anActionThatTakesThePlaceOfAnotherOnAToolBarHasItsName()
{
    KitProgram program;
    QAction first("Next", nullptr);
    QAction second("Next", nullptr);
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QToolBar *const bar = window->addToolBar("Document");
        bar->setObjectName("document");
        bar->addAction(&first);
    });
    program.edit("edit", "cut copy");
    const QByteArray layout = program.kit()->saveLayout();
    program.toolBar("document")->removeAction(&first);
    program.toolBar("document")->addAction(&second);
    letTheKitFollow();
    QCOMPARE(program.toolBar("document")->actions(), QList<QAction *>({&second}));
    QVERIFY(!program.kit()->manager()->actions().contains(&first));
    QCOMPARE(QString(program.kit()->saveLayout()), QString(layout));
}

void tst_RyToolBarKit_changes::anActionThatTakesThePlaceOfAnotherEverywhereHasItsName_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("expected");
    QTest::newRow("as shipped") << ""
                                << "cut | copy Next";
    QTest::newRow("customized") << "Next cut"
                                << "Next cut";
    QTest::newRow("removed by the user") << "paste cut"
                                         << "paste cut";
}

void tst_RyToolBarKit_changes::anActionThatTakesThePlaceOfAnotherEverywhereHasItsName()
{
    QFETCH(QString, content);
    QFETCH(QString, expected);
    KitProgram program;
    QAction first("Next", nullptr);
    QAction second("Next", nullptr);
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->menuBar()->actions().constFirst()->menu()->addAction(&first);
        window->findChild<QToolBar *>("edit")->addAction(&first);
    });
    if (!content.isEmpty()) {
        QList<QAction *> actions = program.actionsOf(content);
        std::replace(actions.begin(), actions.end(), static_cast<QAction *>(nullptr), &first);
        program.apply([&](RyToolBarManager *manager) {
            manager->setToolBar(program.toolBar("edit"), actions);
        });
    }
    const QByteArray layout = program.kit()->saveLayout();
    for (QWidget *widget : QList<QWidget *>({menu(program, "&File"), program.toolBar("edit")})) {
        widget->removeAction(&first);
        widget->addAction(&second);
    }
    letTheKitFollow();
    QCOMPARE(program.content("edit"), expected);
    QVERIFY(!program.kit()->manager()->actions().contains(&first));
    QCOMPARE(QString(program.kit()->saveLayout()), QString(layout));
}

void tst_RyToolBarKit_changes::anActionOfADeletedMenuGivesItsNameAway()
{
    KitProgram program;
    QAction first("Next", nullptr);
    QAction second("Next", nullptr);
    program.start();
    QMenu *const document = menu(program, "&File")->addMenu("Document");
    document->addAction(&first);
    letTheKitFollow();
    QVERIFY(program.kit()->manager()->actions().contains(&first));
    delete document;
    menu(program, "&File")->addAction(&second);
    letTheKitFollow();
    QVERIFY(!program.kit()->manager()->actions().contains(&first));
    QVERIFY(program.kit()->manager()->actions().contains(&second));
}

void tst_RyToolBarKit_changes::aHandedOverActionTakesTheNameOfOneThatIsOutOfItsMenu()
{
    KitProgram program;
    QAction first("Next", nullptr);
    QAction second("Next", nullptr);
    program.start();
    menu(program, "&File")->addAction(&first);
    letTheKitFollow();
    menu(program, "&File")->removeAction(&first);
    program.kit()->addActions({&second}, "Document");
    QVERIFY(!program.kit()->manager()->actions().contains(&first));
    QVERIFY(program.kit()->manager()->actions().contains(&second));
}

void tst_RyToolBarKit_changes::anActionThatIsStillUsedKeepsItsName_data()
{
    QTest::addColumn<QString>("where");
    for (const char *where : {"menu", "invisible", "handed over", "toolbar", "removed by the user"})
        QTest::newRow(where) << where;
}

void tst_RyToolBarKit_changes::anActionThatIsStillUsedKeepsItsName()
{
    QFETCH(QString, where);
    KitProgram program;
    QAction first("Next", nullptr);
    QAction second("Next", nullptr);
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        if (where == "menu" || where == "invisible")
            window->menuBar()->actions().constFirst()->menu()->addAction(&first);
        else if (where == "handed over")
            program.kit()->addActions({&first}, "Handed over");
        else
            window->findChild<QToolBar *>("edit")->addAction(&first);
    });
    if (where == "invisible")
        first.setVisible(false);
    if (where == "removed by the user")
        program.edit("edit", "cut");
    menu(program, "&Edit")->addAction(&second);
    letTheKitFollow();
    QVERIFY(program.kit()->manager()->actions().contains(&first));
    QVERIFY(program.kit()->manager()->actions().contains(&second));
}

void tst_RyToolBarKit_changes::widgetsWithTheSameNameAreAllKept_data()
{
    QTest::addColumn<bool>("late");
    QTest::newRow("from the beginning") << false;
    QTest::newRow("late") << true;
}

void tst_RyToolBarKit_changes::widgetsWithTheSameNameAreAllKept()
{
    QFETCH(bool, late);
    KitProgram program;
    const auto addLines = [](QMainWindow *window) {
        QToolBar *const toolBar = window->findChild<QToolBar *>("edit");
        toolBar->addWidget(new QLineEdit);
        toolBar->addWidget(new QLineEdit);
    };
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        if (!late)
            addLines(window);
    });
    program.window()->resize(1000, 500);
    if (late)
        addLines(program.window());
    letTheKitFollow();
    QCOMPARE(program.content("edit"), QString("cut | copy QLineEdit QLineEdit"));
    for (QLineEdit *line : program.toolBar("edit")->findChildren<QLineEdit *>())
        QTRY_VERIFY(line->isVisible());
}

void tst_RyToolBarKit_changes::restoreDefaultsKnowsWhatTheProgramAdded()
{
    KitProgram program;
    program.start();
    program.toolBar("file")->addAction(addAction(program.window(), "extra"));
    letTheKitFollow();
    program.edit("file", "cut");
    program.restoreDefaults();
    QCOMPARE(program.content("file"), QString("new open save extra"));
    QVERIFY(program.kit()->isDefault());
    program.edit("file", "new open save"); // what the manager takes for the default
    QCOMPARE(program.content("file"), QString("new open save"));
}

void tst_RyToolBarKit_changes::restoreDefaultsThatWasCancelledIsForgotten()
{
    KitProgram program;
    program.start();
    program.toolBar("file")->addAction(addAction(program.window(), "extra"));
    letTheKitFollow();
    program.edit("file", "new open save");
    RyCustomizedDialog *const dialog = program.openDialog();
    QTest::mouseClick(dialog->RestoreDefaultButton(), Qt::LeftButton);
    dialog->reject();
    QTest::mouseClick(program.openDialog()->okButton(), Qt::LeftButton);
    QCOMPARE(program.content("file"), QString("new open save"));
}

void tst_RyToolBarKit_changes::theWindowMayBeDeletedAtAnyTime_data()
{
    QTest::addColumn<int>("when");
    QTest::newRow("before it is polished") << 0;
    QTest::newRow("while it is shown") << 1;
    QTest::newRow("with the dialog open") << 2;
    QTest::newRow("after a toolbar was deleted") << 3;
    QTest::newRow("after something has changed") << 4;
}

void tst_RyToolBarKit_changes::theWindowMayBeDeletedAtAnyTime()
{
    QFETCH(int, when);
    KitProgram program;
    QMainWindow *const window = new QMainWindow;
    RyToolBarKit *const kit = new RyToolBarKit(window, false);
    kit->setSettings(program.settings.get(), "key");
    KitProgram::buildDefault(window);
    if (when > 0)
        window->show();
    if (when == 2)
        kit->customizeAction()->trigger();
    if (when == 3)
        delete window->findChild<QToolBar *>("edit");
    if (when == 4)
        addAction(window->findChild<QToolBar *>("edit"), "late");
    delete window;
    letTheKitFollow();
}

void tst_RyToolBarKit_changes::theKitMayBeDeleted()
{
    KitProgram program;
    program.start();
    program.create("Mine", "open");
    program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("file"));
    delete program.kit();
    QVERIFY(program.stored().contains("\"left\""));
    QCOMPARE(program.contents(),
             QStringList({"_Custom_Toolbar_1: open", "edit: cut | copy", "file: new open save"}));
    delete program.action("open");
    delete program.toolBar("edit");
    letTheKitFollow();
}

void tst_RyToolBarKit_changes::propertiesOfButtonsArePutBack_data()
{
    QTest::addColumn<QVariant>("value");
    const auto add = [](const char *property, const QVariant &value) {
        QTest::newRow(property) << value;
    };
    add("accessibleDescription", "Opens a file");
    add("accessibleName", "Opener");
    add("arrowType", Qt::DownArrow);
    add("autoRaise", false);
    add("contextMenuPolicy", Qt::PreventContextMenu);
    add("focusPolicy", Qt::TabFocus);
    add("iconSize", QSize(7, 7));
    add("maximumSize", QSize(90, 90));
    add("minimumSize", QSize(60, 10));
    add("mine", 7);
    add("objectName", "openButton");
    add("popupMode", QToolButton::InstantPopup);
    add("sizePolicy", QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed));
    add("styleSheet", "color: red");
    add("toolButtonStyle", Qt::ToolButtonTextBesideIcon);
}

void tst_RyToolBarKit_changes::propertiesOfButtonsArePutBack()
{
    QFETCH(QVariant, value);
    const char *const property = QTest::currentDataTag();
    KitProgram program;
    program.start();
    QVERIFY(button(program, "file", "open")->property(property) != value);
    button(program, "file", "open")->setProperty(property, value);
    value = button(program, "file", "open")->property(property);
    const QVariant usual = button(program, "file", "save")->property(property);
    for (const char *content : {"save open", "open | save", "save", "save open"}) {
        program.edit("file", content);
        if (!program.content("file").contains("open"))
            continue;
        QCOMPARE(button(program, "file", "open")->property(property), value);
        QCOMPARE(button(program, "file", "save")->property(property), usual);
    }
}

void tst_RyToolBarKit_changes::buttonsThatTheProgramLeavesAloneFollowTheToolBar()
{
    KitProgram program;
    program.start();
    button(program, "file", "open")->setPopupMode(QToolButton::InstantPopup);
    program.edit("file", "new");
    program.toolBar("file")->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    program.toolBar("file")->setIconSize(QSize(11, 11));
    program.edit("file", "save open");
    for (const char *action : {"save", "open"}) {
        QCOMPARE(button(program, "file", action)->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
        QCOMPARE(button(program, "file", action)->iconSize(), QSize(11, 11));
    }
}

void tst_RyToolBarKit_changes::aButtonOfTheProgramIsLeftAlone()
{
    KitProgram program;
    QToolButton *own = nullptr;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        own = new QToolButton;
        window->findChild<QToolBar *>("edit")->addWidget(own)->setObjectName("own");
    });
    program.edit("edit", "cut");
    own->setPopupMode(QToolButton::InstantPopup);
    program.edit("edit", "cut own");
    QCOMPARE(button(program, "edit", "own"), own);
    QCOMPARE(own->popupMode(), QToolButton::InstantPopup);
}

void tst_RyToolBarKit_changes::menusOfButtonsArePutBack()
{
    KitProgram program;
    program.start();
    QMenu *const menu = new QMenu(program.window());
    button(program, "file", "open")->setMenu(menu);
    program.edit("file", "open new");
    QCOMPARE(button(program, "file", "open")->menu(), menu);
}

void tst_RyToolBarKit_changes::widgetsStayOnTheirToolBar()
{
    KitProgram program;
    QLineEdit *const line = new QLineEdit;
    QAction *find = nullptr;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        find = program.toolBar("edit")->addWidget(line);
        find->setObjectName("find");
    });
    program.edit("edit", "find cut");
    QCOMPARE(program.toolBar("edit")->widgetForAction(find), line);
    program.edit("file", "open find");
    QCOMPARE(program.content("file"), QString("open"));
    QCOMPARE(program.content("edit"), QString("find cut"));
    QCOMPARE(program.toolBar("edit")->widgetForAction(find), line);
    QVERIFY(line->isVisible());
}

void tst_RyToolBarKit_changes::movesAreStoredTogether()
{
    KitProgram program;
    program.start();
    for (int i = 0; i < 5; ++i) {
        program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("file"));
        program.window()->addToolBar(Qt::BottomToolBarArea, program.toolBar("file"));
        QCoreApplication::processEvents();
    }
    QCOMPARE(program.stored(), QString());
    QTRY_COMPARE(program.layoutChanges, 1);
    QVERIFY(program.stored().contains("\"bottom\":[[\"file\"]]"));
}

void tst_RyToolBarKit_changes::aMoveIsStoredWhenTheWindowCloses()
{
    KitProgram program;
    program.start();
    program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("file"));
    program.window()->close();
    QVERIFY(program.stored().contains("\"left\":[[\"file\"]]"));
}

void tst_RyToolBarKit_changes::theDialogIsOpenedOnce()
{
    KitProgram program;
    program.start();
    RyCustomizedDialog *const dialog = program.openDialog();
    QVERIFY(dialog);
    QCOMPARE(program.openDialog(), dialog);
    QCOMPARE(program.window()->findChildren<RyCustomizedDialog *>().size(), 1);
}

void tst_RyToolBarKit_changes::theDialogIsOpenedAgainAsSoonAsItIsClosed()
{
    KitProgram program;
    program.start();
    QTest::mouseClick(program.openDialog()->okButton(), Qt::LeftButton);
    QVERIFY(program.openDialog());
}

void tst_RyToolBarKit_changes::applyStoresAndKeepsTheDialogOpen()
{
    KitProgram program;
    program.start();
    RyCustomizedDialog *const dialog = program.openDialog();
    QTest::mouseClick(EditorViews(dialog).newButton, Qt::LeftButton);
    QTest::mouseClick(dialog->applyButton(), Qt::LeftButton);
    QVERIFY(dialog->isVisible());
    QCOMPARE(program.customizations, 1);
    QCOMPARE(program.layoutChanges, 1);
    QVERIFY(program.stored().contains("_Custom_Toolbar_1"));
}

void tst_RyToolBarKit_changes::cancelChangesNothing()
{
    KitProgram program;
    program.start();
    const QPointer<RyCustomizedDialog> dialog = program.openDialog();
    QTest::mouseClick(EditorViews(dialog).newButton, Qt::LeftButton);
    dialog->reject();
    letTheKitFollow();
    QVERIFY(!dialog);
    QCOMPARE(program.customizations, 0);
    QCOMPARE(program.stored(), QString());
}

void tst_RyToolBarKit_changes::aboutToCustomizeComesBeforeTheDialogIsShown()
{
    KitProgram program;
    program.start();
    RyCustomizedDialog *given = nullptr;
    bool wasVisible = true;
    QObject::connect(program.kit(), &RyToolBarKit::aboutToCustomize,
                     [&](RyCustomizedDialog *dialog) {
                         given = dialog;
                         wasVisible = dialog->isVisible();
                     });
    RyCustomizedDialog *const dialog = program.openDialog();
    QCOMPARE(dialog, given);
    QVERIFY(given && !wasVisible);
}

void tst_RyToolBarKit_changes::requiredRowsSayWhatHappens()
{
    KitProgram program;
    program.start();
    program.kit()->setRequired(program.action("open"));
    RyCustomizedDialog *const dialog = program.openDialog();
    const EditorViews views(dialog);
    views.click(views.toolBarList, "File");
    QStringList tips;
    for (int row = 0; row < views.currentToolBarList->count(); ++row)
        tips << views.currentToolBarList->item(row)->toolTip();
    QCOMPARE(tips, QStringList({"", "If you remove it, it returns at the next start.", ""}));
}

void tst_RyToolBarKit_changes::toolBarsWithoutATitleHaveOneInTheDialog()
{
    KitProgram program;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        for (const char *name : {"graphBar", ""}) {
            QToolBar *const toolBar = window->addToolBar("");
            toolBar->setObjectName(name);
            toolBar->toggleViewAction()->setText("&Own");
        }
    });
    RyCustomizedDialog *const dialog = program.openDialog();
    QStringList rows;
    const QListWidget *const list = EditorViews(dialog).toolBarList;
    for (int row = 0; row < list->count(); ++row)
        rows << list->item(row)->text();
    QCOMPARE(rows, QStringList({"Edit", "File", "Graph Bar", "Toolbar 1"}));
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    QCOMPARE(program.toolBar("graphBar")->windowTitle(), QString());
    QCOMPARE(program.toolBar("graphBar")->toggleViewAction()->text(), QString("&Own"));
    QVERIFY(program.kit()->isDefault());
}

void tst_RyToolBarKit_changes::toolBarsWithoutATitleAreNumberedAsInTheWindow()
{
    // In an order that is not that of the addresses.
    QList<QToolBar *> toolBars;
    for (int i = 0; i < 5; ++i)
        toolBars << new QToolBar;
    std::sort(toolBars.begin(), toolBars.end(), std::greater<QToolBar *>());
    KitProgram program;
    program.start([&](QMainWindow *window) {
        for (QToolBar *toolBar : toolBars)
            window->addToolBar(toolBar);
    });
    program.openDialog();
    for (int i = 0; i < toolBars.size(); ++i)
        QCOMPARE(toolBars.at(i)->windowTitle(), QString("Toolbar %1").arg(i + 1));
}

void tst_RyToolBarKit_changes::toolBarsOfTheUserCanBeMovedLikeThoseOfTheProgram()
{
    for (const bool isMovable : {true, false}) {
        KitProgram program;
        program.start([&](QMainWindow *window) {
            KitProgram::buildDefault(window);
            program.toolBar("file")->setMovable(isMovable);
            program.toolBar("edit")->setMovable(isMovable);
        });
        program.create("Mine", "open");
        QCOMPARE(program.toolBar("_Custom_Toolbar_1")->isMovable(), isMovable);
        QCOMPARE(program.toolBar("file")->isMovable(), isMovable);
    }
}

QTEST_MAIN(tst_RyToolBarKit_changes)
#include "tst_rytoolbarkit_changes.moc"
