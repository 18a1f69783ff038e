// SPDX-License-Identifier: MIT

#include "kitwindow.h"
#include "openedmenu.h"
#include "testcase.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

/*
 * What the menu of a toolbar shows, and what its program has to say about it.
 */
class tst_ToolBarMenu : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itHasAllThatCanBeDoneWithAToolBar();
    void theKeyOpensItForTheButtonWithTheFocus();
    void dockWidgetsAreInIt();
    void toolBarsWithoutATitleHaveOneInIt();
    void customToolBarsCannotBeReset();
    void aToolBarIsHidden();
    void anEntryIsRemoved_data();
    void anEntryIsRemoved();
    void anEntryThatMovedInBetweenStays();
    void whatTheUserHasRemovedStaysAway();
    void removingARequiredActionIsExplained();
    void aToolBarIsReset();
    void resettingOneLeavesTheOthers();
    void theDialogIsOpened();
    void contentIsTheDialogsWhileItIsOpen();
    void aFloatingToolBarHasIt();
    void withoutItAFloatingToolBarSeesAClickOnce();
    void aWidgetWithAMenuOfItsOwnKeepsIt();
    void otherPlacesOfTheWindowKeepTheirMenu();
    void anExcludedToolBarHasTheMenuOfQt();
    void aMenuOfTheProgramHasASubmenu();
    void aMenuOfTheProgramWithoutAnOwnerHasASubmenu();
    void theSubmenuHasTheToolBarsThatTheProgramCannotKnow();
    void theSubmenuHasNotWhatTheMenuHas();
    void aProgramThatMakesNoMenuHasNone();
    void aProgramWhoseMenuIsEmptyHasNone();
    void anotherPolicyIsRespected_data();
    void anotherPolicyIsRespected();
    void whatTheProgramDoesWithTheEventComesFirst_data();
    void whatTheProgramDoesWithTheEventComesFirst();
    void aMenuThatIsDeletedHasASubmenu();
    void aLaterMenuIsTheProgramsOwn();
    void aToolBarThatIsDeletedByThenHasNoMenu();
};

namespace {

using MakeMenu = std::function<QMenu *(QMainWindow *)>;

class Window : public QMainWindow
{
public:
    QMenu *createPopupMenu() override
    {
        return makeMenu ? makeMenu(this) : QMainWindow::createPopupMenu();
    }

    QMenu *menuOfQt() { return QMainWindow::createPopupMenu(); }

    MakeMenu makeMenu;
};

// Starts a program that makes the window's menu itself.
void startWithMenu(KitProgram *program, const MakeMenu &makeMenu)
{
    program->makeWindow = [makeMenu] {
        Window *const window = new Window;
        window->makeMenu = makeMenu;
        return window;
    };
    program->start();
}

QMenu *menuWithOneMore(QMainWindow *window)
{
    QMenu *const menu = static_cast<Window *>(window)->menuOfQt();
    menu->addAction("One more");
    return menu;
}

// Answers the event as a program does. Where it is installed decides what it is an answer for.
class Answer : public QObject
{
public:
    enum Kind { OwnMenu, OwnMenuThatIsDeleted, Nothing };

    Answer(QObject *parent, Kind kind)
        : QObject(parent)
        , m_kind(kind)
    {
        parent->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::ContextMenu)
            return QObject::eventFilter(watched, event);
        if (m_kind != Nothing) {
            QMenu *const menu = new QMenu(static_cast<QWidget *>(watched));
            menu->setAttribute(Qt::WA_DeleteOnClose, m_kind == OwnMenuThatIsDeleted);
            menu->addAction("Own");
            menu->popup(static_cast<QContextMenuEvent *>(event)->globalPos());
        }
        event->accept();
        return true;
    }

private:
    Kind m_kind;
};

// Counts the events that a widget gets for its menu.
class Counter : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ContextMenu)
            ++events;
        return false;
    }

    int events = 0;
};

const QStringList ForBoth = {"|",
                             "Icon size",
                             "Text position",
                             "Lock toolbars",
                             "|",
                             "Remove from toolbar",
                             "(Reset this toolbar)",
                             "|",
                             "Customize Toolbars…"};
const QStringList OfQt = {"[x] File", "[x] Edit"};

QStringList without(QStringList texts, const QString &text)
{
    texts.removeAll(text);
    return texts;
}

QStringList textsFor(const KitProgram &program, const QString &toolBar, const QString &action)
{
    return OpenedMenu(program.toolBar(toolBar), program.action(action)).texts();
}

} // namespace

void tst_ToolBarMenu::itHasAllThatCanBeDoneWithAToolBar()
{
    KitProgram program;
    program.start();
    const OpenedMenu menu(program.toolBar("file"), program.action("open"));
    QCOMPARE(menu.texts(), OfQt + ForBoth);
    QCOMPARE(OpenedMenu::texts(menu.submenu("Icon size")),
             QStringList({"[x] As the program has it", "Small (16)", "Medium (22)", "Large (32)",
                          "Very large (48)"}));
    QCOMPARE(OpenedMenu::texts(menu.submenu("Text position")),
             QStringList({"[x] As the program has it", "Icons only", "Text only",
                          "Text beside icons", "Text under icons"}));
    for (const char *name : {"Icon size", "Text position"}) {
        const auto actions = menu.submenu(name)->actions();
        for (const QAction *action : actions)
            QVERIFY(action->isCheckable() && action->actionGroup()->isExclusive());
    }
}

void tst_ToolBarMenu::theKeyOpensItForTheButtonWithTheFocus()
{
    KitProgram program;
    program.start();
    OpenedMenu menu(program.toolBar("file"), program.action("open"), QContextMenuEvent::Keyboard);
    QCOMPARE(menu.texts(), OfQt + ForBoth);
    QVERIFY(menu.choose("Remove from toolbar"));
    QCOMPARE(program.content("file"), QString("new save"));
}

void tst_ToolBarMenu::dockWidgetsAreInIt()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->addDockWidget(Qt::LeftDockWidgetArea, new QDockWidget("Dock", window));
    });
    QCOMPARE(textsFor(program, "file", "open"), QStringList({"[x] Dock", "|"}) + OfQt + ForBoth);
}

void tst_ToolBarMenu::toolBarsWithoutATitleHaveOneInIt()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->addToolBar(QString())->addAction("x");
        window->findChild<QToolBar *>("edit")->setWindowTitle(QString());
    });
    QToolBar *const toolBar = program.toolBar("edit");
    const QStringList titled = {"[x] File", "[x] Edit", "[x] Toolbar 1"};
    QCOMPARE(textsFor(program, "file", "open").mid(0, 3), titled);
    QCOMPARE(toolBar->windowTitle(), QString());
    QCOMPARE(toolBar->toggleViewAction()->text(), QString());
    // The dialog has them too when it is opened from the menu.
    QVERIFY(chooseInMenu(toolBar, program.action("cut"), "Customize Toolbars…"));
    QCOMPARE(toolBar->windowTitle(), QString("Edit"));
    program.openDialog()->reject();
    QCOMPARE(toolBar->windowTitle(), QString());
    letTheKitFollow();
}

void tst_ToolBarMenu::customToolBarsCannotBeReset()
{
    KitProgram program;
    program.start();
    const QString mine = program.create("Mine", "paste");
    QCOMPARE(textsFor(program, mine, "paste"),
             OfQt + QStringList("[x] Mine") + without(ForBoth, "(Reset this toolbar)"));
    QCOMPARE(OpenedMenu(program.toolBar(mine), nullptr).texts().mid(3),
             ForBoth.mid(0, 4) + ForBoth.mid(7));
}

void tst_ToolBarMenu::aToolBarIsHidden()
{
    KitProgram program;
    program.start();
    QVERIFY(chooseInMenu(program.toolBar("edit"), program.action("cut"), "File"));
    QVERIFY(program.toolBar("file")->isHidden());
    program.start();
    QVERIFY(program.toolBar("file")->isHidden());
}

void tst_ToolBarMenu::anEntryIsRemoved_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("content");
    QTest::newRow("first") << 0 << "| copy widget";
    QTest::newRow("separator") << 1 << "cut copy widget";
    QTest::newRow("in between") << 2 << "cut | widget";
    QTest::newRow("widget") << 3 << "cut | copy";
}

void tst_ToolBarMenu::anEntryIsRemoved()
{
    QFETCH(int, index);
    QFETCH(QString, content);
    const auto build = [](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QPushButton *const button = new QPushButton("Button");
        button->setContextMenuPolicy(Qt::NoContextMenu);
        window->findChild<QToolBar *>("edit")->addWidget(button)->setObjectName("widget");
    };
    KitProgram program;
    program.start(build);
    QToolBar *const toolBar = program.toolBar("edit");
    QVERIFY(chooseInMenu(toolBar, toolBar->actions().at(index), "Remove from toolbar"));
    QCOMPARE(program.content("edit"), content);
    QCOMPARE(program.content("file"), QString("new open save"));
    program.start(build);
    QCOMPARE(program.content("edit"), content);
}

void tst_ToolBarMenu::anEntryThatMovedInBetweenStays()
{
    KitProgram program;
    program.start();
    QToolBar *const toolBar = program.toolBar("file");
    OpenedMenu menu(toolBar, program.action("open"));
    QVERIFY(menu.entry("Remove from toolbar"));
    toolBar->removeAction(program.action("new"));
    letTheKitFollow();
    menu.choose("Remove from toolbar");
    QCOMPARE(program.content("file"), QString("open save"));
}

void tst_ToolBarMenu::whatTheUserHasRemovedStaysAway()
{
    KitProgram program;
    program.start();
    // Nothing else is to be stored: neither the start nor another toolbar that moves.
    QCloseEvent close;
    QCoreApplication::sendEvent(program.window(), &close);
    QVERIFY(chooseInMenu(program.toolBar("edit"), program.action("cut"), "Remove from toolbar"));
    addAction(program.window()->findChild<QMenu *>("special"), "late");
    letTheKitFollow();
    QCOMPARE(program.content("edit"), QString("| copy"));
    QTRY_VERIFY(program.stored().contains("\"entries\":[null,\"copy\"]"));
    QCOMPARE(program.layoutChanges, 1);
}

void tst_ToolBarMenu::removingARequiredActionIsExplained()
{
    KitProgram program;
    program.start();
    program.kit()->setRequired(program.action("open"));
    const auto toolTipOfRemove = [&](const QString &action) {
        const OpenedMenu menu(program.toolBar("file"), program.action(action));
        return menu.menu()->toolTipsVisible() ? menu.entry("Remove from toolbar")->toolTip()
                                              : QString();
    };
    QCOMPARE(toolTipOfRemove("open"), QString("If you remove it, it returns at the next start."));
    QCOMPARE(toolTipOfRemove("save"), QString());
}

void tst_ToolBarMenu::aToolBarIsReset()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste cut");
    QVERIFY(chooseInMenu(program.toolBar("edit"), nullptr, "Reset this toolbar"));
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    QVERIFY(program.kit()->isDefault());
    QTRY_VERIFY(!program.stored().contains("entries"));
    program.start();
    QCOMPARE(program.content("edit"), QString("cut | copy"));
}

void tst_ToolBarMenu::resettingOneLeavesTheOthers()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste cut");
    program.edit("file", "save");
    QVERIFY(!chooseInMenu(program.toolBar("edit"), nullptr, "Remove from toolbar"));
    QVERIFY(chooseInMenu(program.toolBar("edit"), nullptr, "Reset this toolbar"));
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: save"}));
    QVERIFY(!chooseInMenu(program.toolBar("edit"), nullptr, "Reset this toolbar"));
}

void tst_ToolBarMenu::theDialogIsOpened()
{
    KitProgram program;
    program.start();
    QVERIFY(chooseInMenu(program.toolBar("edit"), nullptr, "Customize Toolbars…"));
    QPointer<RyCustomizedDialog> dialog = program.window()->findChild<RyCustomizedDialog *>();
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    dialog->reject();
    letTheKitFollow();
    QVERIFY(!dialog);
}

// A program may make the dialog modeless.
void tst_ToolBarMenu::contentIsTheDialogsWhileItIsOpen()
{
    KitProgram program;
    program.start();
    program.edit("file", "open");
    QDialog *const dialog = program.openDialog();
    QCOMPARE(textsFor(program, "file", "open"), OfQt + without(ForBoth, "Remove from toolbar"));
    dialog->reject();
    letTheKitFollow();
}

void tst_ToolBarMenu::withoutItAFloatingToolBarSeesAClickOnce()
{
    KitProgram program;
    program.start();
    program.kit()->setFeatures(program.kit()->features() & ~RyToolBarKit::ToolBarMenus);
    QToolBar *const toolBar = program.toolBar("file");
    toolBar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    toolBar->show();
    Counter counter;
    toolBar->installEventFilter(&counter);
    QCOMPARE(textsFor(program, "file", "open"), QStringList());
    QCOMPARE(counter.events, 1);
}

void tst_ToolBarMenu::aFloatingToolBarHasIt()
{
    KitProgram program;
    Counter counter;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->findChild<QToolBar *>("file")->installEventFilter(&counter);
    });
    QToolBar *const toolBar = program.toolBar("file");
    toolBar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    toolBar->show();
    QVERIFY(toolBar->isFloating());
    QCOMPARE(textsFor(program, "file", "open"), OfQt + ForBoth);
    QCOMPARE(counter.events, 1);
    {
        const Answer answer(toolBar, Answer::Nothing);
        QCOMPARE(textsFor(program, "file", "open"), QStringList());
    }
    toolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    QCOMPARE(textsFor(program, "file", "open"), QStringList());
    int requests = 0;
    connect(toolBar, &QWidget::customContextMenuRequested, [&] { ++requests; });
    toolBar->setContextMenuPolicy(Qt::CustomContextMenu);
    QCOMPARE(textsFor(program, "file", "open"), QStringList());
    QCOMPARE(requests, 1);
    toolBar->setContextMenuPolicy(Qt::DefaultContextMenu);
    toolBar->toggleViewAction()->setVisible(false);
    program.toolBar("edit")->toggleViewAction()->setVisible(false);
    QCOMPARE(textsFor(program, "file", "open"), QStringList());
}

void tst_ToolBarMenu::aWidgetWithAMenuOfItsOwnKeepsIt()
{
    KitProgram program;
    QAction *line = nullptr;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        line = window->findChild<QToolBar *>("file")->addWidget(new QLineEdit);
    });
    const QStringList texts = OpenedMenu(program.toolBar("file"), line).texts();
    QVERIFY(texts.size() > 4);
    QVERIFY(!texts.contains("Icon size"));
}

void tst_ToolBarMenu::otherPlacesOfTheWindowKeepTheirMenu()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QDockWidget *const dock = new QDockWidget("Dock", window);
        dock->setWidget(new QToolBar(dock));
        window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    });
    QDockWidget *const dock = program.window()->findChild<QDockWidget *>();
    const QPoint title(3, 3);
    QContextMenuEvent event(QContextMenuEvent::Mouse, title, dock->mapToGlobal(title));
    QCoreApplication::sendEvent(dock, &event);
    QMenu *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QCOMPARE(OpenedMenu::texts(menu), QStringList({"[x] Dock", "|"}) + OfQt);
    menu->close();
    letTheKitFollow();
}

void tst_ToolBarMenu::anExcludedToolBarHasTheMenuOfQt()
{
    KitProgram program;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.kit()->setExcluded(window->findChild<QToolBar *>("file"));
    });
    QCOMPARE(textsFor(program, "file", "open"), OfQt);
    QCOMPARE(textsFor(program, "edit", "cut"), OfQt + ForBoth);
}

void tst_ToolBarMenu::aMenuOfTheProgramHasASubmenu()
{
    KitProgram program;
    startWithMenu(&program, menuWithOneMore);
    OpenedMenu menu(program.toolBar("file"), program.action("open"));
    QCOMPARE(menu.texts(), OfQt + QStringList({"One more", "|", "Toolbars"}));
    QCOMPARE(OpenedMenu::texts(menu.submenu("Toolbars")), ForBoth.mid(1));
    QVERIFY(menu.choose("Remove from toolbar"));
    QCOMPARE(program.content("file"), QString("new save"));
}

void tst_ToolBarMenu::aMenuOfTheProgramWithoutAnOwnerHasASubmenu()
{
    KitProgram program;
    startWithMenu(&program, [](QMainWindow *) {
        QMenu *const menu = new QMenu;
        menu->addAction("Own");
        menu->sizeHint(); // Qt polishes it before it is complete
        menu->addAction("Second");
        return menu;
    });
    QCOMPARE(textsFor(program, "file", "open"), QStringList({"Own", "Second", "|", "Toolbars"}));
}

void tst_ToolBarMenu::theSubmenuHasTheToolBarsThatTheProgramCannotKnow()
{
    KitProgram program;
    startWithMenu(&program, [](QMainWindow *window) {
        QMenu *const menu = new QMenu(window);
        menu->addAction(window->findChild<QToolBar *>("edit")->toggleViewAction());
        return menu;
    });
    for (const char *title : {"B", "A"})
        program.create(title, "paste");
    program.window()->resize(800, 300);
    const OpenedMenu menu(program.toolBar("file"), program.action("open"));
    QCOMPARE(menu.texts(), QStringList({"[x] Edit", "|", "Toolbars"}));
    QCOMPARE(OpenedMenu::texts(menu.submenu("Toolbars")),
             QStringList({"[x] B", "[x] A"}) + ForBoth);
}

void tst_ToolBarMenu::theSubmenuHasNotWhatTheMenuHas()
{
    KitProgram program;
    startWithMenu(&program, [&](QMainWindow *window) {
        QMenu *const menu = static_cast<Window *>(window)->menuOfQt();
        menu->addAction(program.kit()->customizeAction());
        return menu;
    });
    program.create("Mine", "paste");
    const OpenedMenu menu(program.toolBar("file"), program.action("open"));
    QCOMPARE(menu.texts(),
             OfQt + QStringList({"[x] Mine", "Customize Toolbars…", "|", "Toolbars"}));
    QCOMPARE(OpenedMenu::texts(menu.submenu("Toolbars")), ForBoth.mid(1, 6));
}

void tst_ToolBarMenu::aProgramThatMakesNoMenuHasNone()
{
    KitProgram program;
    startWithMenu(&program, [](QMainWindow *) { return static_cast<QMenu *>(nullptr); });
    QCOMPARE(textsFor(program, "file", "open"), QStringList());
    program.toolBar("file")->setWindowFlags(Qt::Tool);
    program.toolBar("file")->show();
    QCOMPARE(textsFor(program, "file", "open"), QStringList());
}

void tst_ToolBarMenu::aProgramWhoseMenuIsEmptyHasNone()
{
    KitProgram program;
    program.start();
    for (const char *name : {"file", "edit"})
        program.toolBar(name)->toggleViewAction()->setVisible(false);
    QCOMPARE(textsFor(program, "file", "open"), QStringList());
}

void tst_ToolBarMenu::anotherPolicyIsRespected_data()
{
    QTest::addColumn<bool>("ofWindow");
    QTest::addColumn<Qt::ContextMenuPolicy>("policy");
    QTest::addColumn<QStringList>("texts");
    for (const bool ofWindow : {false, true}) {
        const QByteArray where = ofWindow ? ", window" : ", toolbar";
        QTest::newRow("prevent" + where) << ofWindow << Qt::PreventContextMenu << QStringList();
        QTest::newRow("custom" + where) << ofWindow << Qt::CustomContextMenu << QStringList();
        QTest::newRow("none" + where)
            << ofWindow << Qt::NoContextMenu << (ofWindow ? QStringList() : OfQt);
    }
}

void tst_ToolBarMenu::anotherPolicyIsRespected()
{
    QFETCH(bool, ofWindow);
    QFETCH(Qt::ContextMenuPolicy, policy);
    QFETCH(QStringList, texts);
    KitProgram program;
    program.start();
    QWidget *const widget = ofWindow ? static_cast<QWidget *>(program.window())
                                     : static_cast<QWidget *>(program.toolBar("file"));
    widget->setContextMenuPolicy(policy);
    int requests = 0;
    connect(widget, &QWidget::customContextMenuRequested, [&] { ++requests; });
    QCOMPARE(textsFor(program, "file", "open"), texts);
    QCOMPARE(requests, policy == Qt::CustomContextMenu ? 1 : 0);
}

void tst_ToolBarMenu::whatTheProgramDoesWithTheEventComesFirst_data()
{
    QTest::addColumn<QString>("watched");
    QTest::addColumn<bool>("later");
    QTest::addColumn<int>("kind");
    for (const char *watched : {"button", "file", "main"}) {
        for (const bool later : {false, true}) {
            for (const Answer::Kind kind : {Answer::OwnMenu, Answer::Nothing}) {
                QTest::addRow("%s, %s, %s", watched, later ? "later" : "earlier",
                              kind == Answer::OwnMenu ? "own menu" : "nothing")
                    << watched << later << int(kind);
            }
        }
    }
}

// An event filter stands for an override too: both come before the window shows its menu.
void tst_ToolBarMenu::whatTheProgramDoesWithTheEventComesFirst()
{
    QFETCH(QString, watched);
    QFETCH(bool, later);
    QFETCH(int, kind);
    KitProgram program;
    const auto answer = [&](QMainWindow *window) {
        QToolBar *const toolBar = window->findChild<QToolBar *>("file");
        QWidget *const widget = watched == "main" ? static_cast<QWidget *>(window)
            : watched == "file"                   ? toolBar
                                : toolBar->widgetForAction(window->findChild<QAction *>("open"));
        new Answer(widget, Answer::Kind(kind));
    };
    program.makeWindow = [&] {
        QMainWindow *const window = new QMainWindow;
        if (!later && watched == "main")
            new Answer(window, Answer::Kind(kind));
        return window;
    };
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        if (!later && watched != "main")
            answer(window);
    });
    if (later)
        answer(program.window());
    QCOMPARE(textsFor(program, "file", "open"),
             kind == Answer::OwnMenu ? QStringList("Own") : QStringList());
}

void tst_ToolBarMenu::aMenuThatIsDeletedHasASubmenu()
{
    KitProgram program;
    program.makeWindow = [] {
        QMainWindow *const window = new QMainWindow;
        new Answer(window, Answer::OwnMenuThatIsDeleted);
        return window;
    };
    program.start();
    QCOMPARE(textsFor(program, "file", "open"), QStringList({"Own", "|", "Toolbars"}));
}

void tst_ToolBarMenu::aLaterMenuIsTheProgramsOwn()
{
    KitProgram program;
    startWithMenu(&program, [](QMainWindow *) { return static_cast<QMenu *>(nullptr); });
    QCOMPARE(textsFor(program, "file", "open"), QStringList());
    letTheKitFollow();
    QMenu *const menu = new QMenu(program.window());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction("Own");
    menu->popup(QPoint());
    QCOMPARE(OpenedMenu::texts(menu), QStringList("Own"));
    menu->close();
    letTheKitFollow();
}

void tst_ToolBarMenu::aToolBarThatIsDeletedByThenHasNoMenu()
{
    KitProgram program;
    startWithMenu(&program, [](QMainWindow *window) {
        delete window->findChild<QToolBar *>("file");
        return static_cast<Window *>(window)->menuOfQt();
    });
    QToolBar *const toolBar = program.toolBar("file");
    const QPoint position = toolBar->geometry().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                            program.window()->mapToGlobal(position));
    QCoreApplication::sendEvent(program.window(), &event);
    QMenu *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QCOMPARE(OpenedMenu::texts(menu), QStringList("[x] Edit"));
    menu->close();
    letTheKitFollow();
}

QTEST_MAIN(tst_ToolBarMenu)
#include "tst_toolbarmenu.moc"
