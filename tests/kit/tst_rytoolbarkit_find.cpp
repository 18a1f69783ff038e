// SPDX-License-Identifier: MIT

#include "kitwindow.h"
#include "testcase.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QSpinBox>
#include <QUrl>
#include <QWidgetAction>
#include <QtTest>

// A window as programs have it that export members to scripts.
class WindowWithProperties : public QMainWindow
{
    Q_OBJECT
    Q_PROPERTY(QAction *openAction MEMBER openAction)
    Q_PROPERTY(QToolBar *mainBar MEMBER mainBar)
    Q_PROPERTY(int count READ count)

public:
    int count()
    {
        ++reads;
        return 0;
    }

    QAction *openAction = nullptr;
    QToolBar *mainBar = nullptr;
    int reads = 0;
};

class tst_RyToolBarKit_find : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aKitWithoutAWindowPrintsAnErrorAndDoesNothing();
    void theSecondKitOfAWindowPrintsAnError();
    void theCustomizeActionIsThereFromTheBeginning();
    void nothingIsFoundBeforeTheWindowIsShown();
    void aKitMayBeAttachedToAWindowThatIsShown();
    void actionsAreInTheCategoriesOfTheirMenus();
    void toolBarsAreDefaultToolBarsWithTheirContent();
    void anActionInTwoMenusIsInTheFirstCategory();
    void entriesOfListsAreNotOffered_data();
    void entriesOfListsAreNotOffered();
    void invisibleActionsAreOfferedWhenTheyBecomeVisible();
    void handedOverActionsAreInTheirCategory();
    void excludedObjectsAreNotOffered();
    void excludedActionsStayOnTheirToolBar();
    void anActionAtTheAddressOfAnExcludedOneIsOffered();
    void mnemonicsAreInNoCategory_data();
    void mnemonicsAreInNoCategory();
    void namesAreFoundWithoutAnObjectName_data();
    void namesAreFoundWithoutAnObjectName();
    void propertiesOfTheWindowGiveNames();
    void iconsOfTheThemeGiveNames();
    void objectsOfTheProgramKeepTheirNames();
    void whatHasNoStableNameIsAProblem();
    void problemsArePrintedOnce();
    void actionsWithoutAnyTextStayAsTheyAre();
    void widgetsWithoutTextGetOne_data();
    void widgetsWithoutTextGetOne();
    void disabledWidgetsStayDisabled();
};

namespace {

QStringList offered(const KitProgram &program, const QString &category)
{
    QStringList texts;
    const auto actions = program.kit()->manager()->categoryActions(category);
    for (const QAction *action : actions)
        texts << action->text();
    return texts;
}

// The entries of the toolbar "bar" in the stored layout, after one more action was put on it.
QString storedEntries(KitProgram *program)
{
    const QString text = program->kit()->saveLayout();
    const int begin = text.indexOf("\"entries\":") + 10;
    return text.mid(begin, text.indexOf(']', begin) + 1 - begin);
}

} // namespace

void tst_RyToolBarKit_find::aKitWithoutAWindowPrintsAnErrorAndDoesNothing()
{
    RyToolBarKit kit(nullptr, true);
    QCOMPARE(takeWarnings(), QStringList("RyToolBarKit: there is no window"));
    QVERIFY(kit.customizeAction());
    kit.customizeAction()->trigger();
    QVERIFY(!kit.manager());
    QVERIFY(!kit.restoreNow());
    QVERIFY(!kit.restoreLayout("{}"));
    kit.addActions({kit.customizeAction(), nullptr}, "A");
    kit.setFormerNames(kit.customizeAction(), {"a"});
    kit.setExcluded(kit.customizeAction());
    kit.setRequired(kit.customizeAction());
    kit.setSettings(nullptr, "key");
    QCOMPARE(kit.problems(), QStringList());
    QVERIFY(kit.isDefault());
    kit.saveLayout();
}

void tst_RyToolBarKit_find::theSecondKitOfAWindowPrintsAnError()
{
    KitProgram program;
    program.start();
    RyToolBarKit second(program.window());
    QCOMPARE(takeWarnings(), QStringList("RyToolBarKit: the window has a kit already"));
    QVERIFY(!second.restoreNow());
    QVERIFY(!second.manager());
}

void tst_RyToolBarKit_find::theCustomizeActionIsThereFromTheBeginning()
{
    QMainWindow window;
    RyToolBarKit kit(&window);
    QCOMPARE(kit.customizeAction()->text(), QString::fromUtf8("Customize Toolbars…"));
    QCOMPARE(kit.customizeAction()->objectName(), QString("customizeToolBars"));
}

void tst_RyToolBarKit_find::nothingIsFoundBeforeTheWindowIsShown()
{
    QMainWindow window;
    RyToolBarKit kit(&window, false);
    kit.setSettings(nullptr, QString());
    addAction(window.menuBar()->addMenu("File"), "open");
    QVERIFY(!kit.manager());
    QCOMPARE(kit.problems(), QStringList());
    window.ensurePolished(); // as in the middle of QMainWindow::restoreState()
    QVERIFY(!kit.manager());
    window.show();
    QVERIFY(kit.manager());
    QCOMPARE(kit.manager()->categories(), QStringList("File"));
    QVERIFY(!kit.restoreNow());
}

void tst_RyToolBarKit_find::aKitMayBeAttachedToAWindowThatIsShown()
{
    QMainWindow window;
    addAction(window.menuBar()->addMenu("File"), "open");
    window.show();
    RyToolBarKit kit(&window, false);
    kit.setSettings(nullptr, QString());
    letTheKitFollow();
    QVERIFY(kit.manager());
    QCOMPARE(kit.manager()->categories(), QStringList("File"));
}

void tst_RyToolBarKit_find::actionsAreInTheCategoriesOfTheirMenus()
{
    KitProgram program;
    program.start();
    QCOMPARE(program.kit()->manager()->categories(),
             QStringList({"Edit", "Edit / Special", "File"}));
    QCOMPARE(offered(program, "File"), QStringList({"New", "Open", "Save"}));
    QCOMPARE(offered(program, "Edit"), QStringList({"Cut", "Copy", "Paste", "&Special"}));
    QCOMPARE(offered(program, "Edit / Special"), QStringList("Upper"));
}

void tst_RyToolBarKit_find::toolBarsAreDefaultToolBarsWithTheirContent()
{
    KitProgram program;
    program.start();
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    QCOMPARE(program.kit()->manager()->toolBars().size(), 2);
    for (const char *name : {"file", "edit"}) {
        QToolBar *const toolBar = program.toolBar(name);
        QVERIFY(program.kit()->manager()->isDefaultToolBar(toolBar));
        QCOMPARE(program.kit()->manager()->actions(toolBar).size(), 3);
    }
    QVERIFY(program.kit()->isDefault());
}

void tst_RyToolBarKit_find::anActionInTwoMenusIsInTheFirstCategory()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        QMenu *const first = window->menuBar()->addMenu("First");
        QMenu *const second = window->menuBar()->addMenu("Second");
        second->addAction(addAction(first, "both"));
        second->addAction(first->menuAction()); // a menu in itself must not loop either
        first->addAction(second->menuAction());
    });
    QCOMPARE(offered(program, "First").first(), QString("Both"));
    QVERIFY(!offered(program, "Second").contains("Both"));
}

void tst_RyToolBarKit_find::entriesOfListsAreNotOffered_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QString>("statusTip");
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<bool>("isOffered");

    const QVariant none;
    QTest::newRow("plain") << "Notes" << none << ""
                           << "" << true;
    QTest::newRow("path as text") << "/home/notes.txt" << none << ""
                                  << "" << false;
    QTest::newRow("path as data") << "notes.txt" << QVariant("/home/notes.txt") << ""
                                  << "" << false;
    QTest::newRow("URL as data") << "notes" << QVariant(QUrl("https://a.example/b")) << ""
                                 << "" << false;
    QTest::newRow("path as status tip") << "notes.txt" << none << "/home/notes.txt"
                                        << "" << false;
    QTest::newRow("digit as mnemonic") << "&1 notes.txt" << none << ""
                                       << "" << false;
    QTest::newRow("ends with &") << "Notes&" << none << ""
                                 << "" << true;
    QTest::newRow("only a digit") << "&1" << none << ""
                                  << "" << false;
    QTest::newRow("digit that is no mnemonic") << "&Mode 1" << none << ""
                                               << "" << true;
    QTest::newRow("no text") << "" << none << ""
                             << "" << false;
    QTest::newRow("with a name") << "/home/notes.txt" << none << ""
                                 << "recent" << true;
}

void tst_RyToolBarKit_find::entriesOfListsAreNotOffered()
{
    QFETCH(QString, text);
    QFETCH(QVariant, data);
    QFETCH(QString, statusTip);
    QFETCH(QString, objectName);
    QFETCH(bool, isOffered);

    KitProgram program;
    program.start([&](QMainWindow *window) {
        QAction *const action = window->menuBar()->addMenu("File")->addAction(text);
        action->setData(data);
        action->setStatusTip(statusTip);
        action->setObjectName(objectName);
    });
    QCOMPARE(offered(program, "File").size(), isOffered ? 1 : 0);
}

void tst_RyToolBarKit_find::invisibleActionsAreOfferedWhenTheyBecomeVisible()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        addAction(window->menuBar()->addMenu("File"), "late")->setVisible(false);
    });
    QCOMPARE(offered(program, "File"), QStringList());
    program.action("late")->setVisible(true);
    letTheKitFollow();
    QCOMPARE(offered(program, "File"), QStringList("Late"));
    program.action("late")->setVisible(false);
    letTheKitFollow();
    QCOMPARE(offered(program, "File"), QStringList("Late"));
}

void tst_RyToolBarKit_find::handedOverActionsAreInTheirCategory()
{
    KitProgram program;
    program.start([&](QMainWindow *window) {
        QAction *const early = addAction(window, "early");
        QAction *const inMenu = addAction(window->menuBar()->addMenu("File"), "menu");
        program.kit()->addActions({early, nullptr, early, inMenu}, "Mine");
    });
    QCOMPARE(offered(program, "Mine"), QStringList({"Early", "Menu"}));
    QCOMPARE(offered(program, "File"), QStringList());
    program.kit()->addActions({addAction(program.window(), "late")}, "Mine");
    QCOMPARE(offered(program, "Mine"), QStringList({"Early", "Menu", "Late"}));
}

void tst_RyToolBarKit_find::excludedObjectsAreNotOffered()
{
    KitProgram program;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.kit()->setExcluded(program.action("paste"));
        program.kit()->setExcluded(program.window()->findChild<QMenu *>("special"));
        program.kit()->setExcluded(program.toolBar("edit"));
        program.kit()->setExcluded(nullptr);
    });
    QCOMPARE(program.kit()->manager()->categories(), QStringList({"Edit", "File"}));
    QCOMPARE(offered(program, "Edit"), QStringList({"Cut", "Copy"}));
    QCOMPARE(program.kit()->manager()->toolBars(), QList<QToolBar *>({program.toolBar("file")}));
    QCOMPARE(program.content("edit"), QString("cut | copy"));
}

void tst_RyToolBarKit_find::excludedActionsStayOnTheirToolBar()
{
    KitProgram program;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.kit()->setExcluded(program.action("open"));
    });
    QCOMPARE(program.content("file"), QString("new open save"));
    QCOMPARE(offered(program, "File"), QStringList({"New", "Save"}));
    QCOMPARE(program.kit()->manager()->categories(),
             QStringList({"Edit", "Edit / Special", "File"}));
    program.edit("file", "save open");
    QCOMPARE(program.content("file"), QString("save open"));
}

void tst_RyToolBarKit_find::anActionAtTheAddressOfAnExcludedOneIsOffered()
{
    KitProgram program;
    std::aligned_storage<sizeof(QAction), alignof(QAction)>::type memory;
    program.start();
    const auto create = [&] {
        QAction *const action = new (&memory) QAction("Text", nullptr);
        program.window()->menuBar()->actions().constFirst()->menu()->addAction(action);
        return action;
    };
    QAction *action = create();
    program.kit()->setExcluded(action);
    letTheKitFollow();
    QVERIFY(!program.kit()->manager()->actions().contains(action));
    action->~QAction();
    action = create();
    letTheKitFollow();
    QVERIFY(program.kit()->manager()->actions().contains(action));
    action->~QAction();
}

void tst_RyToolBarKit_find::mnemonicsAreInNoCategory_data()
{
    QTest::addColumn<QString>("category");
    QTest::newRow("&File") << "File";
    QTest::newRow("Fi&le") << "File";
    QTest::newRow("File (&F)") << "File";
    QTest::newRow("File(&F)...") << "File...";
    QTest::newRow("File(&F)") << "File";
    QTest::newRow("File (F)") << "File (F)";
    QTest::newRow("File (&Fi)") << "File (Fi)";
    QTest::newRow("Cut && Paste") << "Cut & Paste";
    QTest::newRow("File&") << "File";
    QTest::newRow(" File ") << "File";
}

void tst_RyToolBarKit_find::mnemonicsAreInNoCategory()
{
    QFETCH(QString, category);
    KitProgram program;
    program.start([](QMainWindow *window) {
        addAction(window->menuBar()->addMenu(QTest::currentDataTag()), "open");
    });
    QCOMPARE(program.kit()->manager()->categories(), QStringList(category));
}

void tst_RyToolBarKit_find::namesAreFoundWithoutAnObjectName_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::newRow("objectName") << "objectName"
                                << "[\"own\",\"other\"]";
    QTest::newRow("menu") << "menu"
                          << "[\"menuOfIt\",\"other\"]";
    QTest::newRow("widget") << "widget"
                            << "[\"widgetOfIt\",\"other\"]";
    QTest::newRow("class of a widget") << "class"
                                       << "[\"widget:QSpinBox\",\"other\"]";
    QTest::newRow("dock widget") << "dock"
                                 << "[\"dock/toggleViewAction\",\"other\"]";
    QTest::newRow("property") << "property"
                              << "[\"memberOfIt\",\"other\"]";
    QTest::newRow("text") << "text"
                          << "[\"text:Text\",\"other\"]";
}

void tst_RyToolBarKit_find::namesAreFoundWithoutAnObjectName()
{
    QFETCH(QString, kind);
    QFETCH(QString, name);
    KitProgram program;
    program.start([&](QMainWindow *window) {
        QToolBar *const bar = window->addToolBar("Bar");
        bar->setObjectName("bar");
        if (kind == "objectName") {
            bar->addAction("Own")->setObjectName("own");
        } else if (kind == "menu") {
            QMenu *const menu = new QMenu("Menu", window);
            menu->setObjectName("menuOfIt");
            bar->addAction(menu->menuAction());
        } else if (kind == "widget") {
            QSpinBox *const box = new QSpinBox;
            box->setObjectName("widgetOfIt");
            bar->addWidget(box);
        } else if (kind == "class") {
            bar->addWidget(new QSpinBox);
        } else if (kind == "dock") {
            QDockWidget *const dock = new QDockWidget("Dock", window);
            dock->setObjectName("dock");
            bar->addAction(dock->toggleViewAction());
        } else if (kind == "property") {
            window->setProperty("memberOfIt", QVariant::fromValue<QObject *>(bar->addAction("A")));
        } else {
            bar->addAction("Te&xt");
        }
        program.kit()->addActions({addAction(window, "other")}, "Mine");
    });
    QToolBar *const bar = program.toolBar("bar");
    program.kit()->manager()->setToolBar(
        bar, program.kit()->manager()->actions(bar) << program.action("other"));
    QCOMPARE(storedEntries(&program), name);
    QCOMPARE(program.kit()->problems().size(), kind == "text" ? 1 : 0);
}

void tst_RyToolBarKit_find::propertiesOfTheWindowGiveNames()
{
    WindowWithProperties window;
    window.setObjectName("main");
    window.mainBar = window.addToolBar("Bar");
    window.openAction = window.mainBar->addAction("Open");
    QAction *const other = window.mainBar->addAction("Other");
    RyToolBarKit kit(&window, false);
    kit.setSettings(nullptr, QString());
    kit.restoreNow();
    kit.manager()->setToolBar(window.mainBar, {other, window.openAction});
    const QString layout = kit.saveLayout();
    QVERIFY2(layout.contains(R"("mainBar":{"entries":["text:Other","openAction"])"),
             qPrintable(layout));
    QCOMPARE(window.reads, 0);
}

void tst_RyToolBarKit_find::iconsOfTheThemeGiveNames()
{
    QTemporaryDir theme;
    QVERIFY(QDir(theme.path()).mkpath("test/16x16"));
    QFile index(theme.filePath("test/index.theme"));
    QVERIFY(index.open(QIODevice::WriteOnly));
    index.write("[Icon Theme]\nName=test\nDirectories=16x16\n[16x16]\nSize=16\n");
    index.close();
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    QVERIFY(pixmap.save(theme.filePath("test/16x16/document-open.png")));
    const QStringList paths = QIcon::themeSearchPaths();
    const QString name = QIcon::themeName();
    QIcon::setThemeSearchPaths({theme.path()});
    QIcon::setThemeName("test");

    KitProgram program;
    program.start([](QMainWindow *window) {
        QToolBar *const bar = window->addToolBar("Bar");
        bar->setObjectName("bar");
        bar->addAction(QIcon::fromTheme("document-open"), "Open");
        addAction(bar, "other");
    });
    QToolBar *const bar = program.toolBar("bar");
    program.kit()->manager()->setToolBar(bar, {bar->actions().constFirst()});
    QCOMPARE(storedEntries(&program), QString("[\"icon:document-open\"]"));
    QIcon::setThemeSearchPaths(paths);
    QIcon::setThemeName(name);
}

void tst_RyToolBarKit_find::objectsOfTheProgramKeepTheirNames()
{
    KitProgram program;
    QPointer<QAction> action;
    program.start([&](QMainWindow *window) {
        QToolBar *const bar = window->addToolBar("Bar");
        action = bar->addAction("Text");
    });
    QCOMPARE(action->objectName(), QString());
    QCOMPARE(program.window()->findChildren<QToolBar *>().first()->objectName(), QString());
    program.kit()->restoreLayout(QByteArray());
    QCOMPARE(action->objectName(), QString());
}

void tst_RyToolBarKit_find::whatHasNoStableNameIsAProblem()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        QMenu *const menu = window->menuBar()->addMenu("File");
        menu->addAction("&Nameless");
        addAction(menu, "twice");
        addAction(menu, "twice");
        window->addToolBar("Bar");
    });
    const QString noName = "has no name that is the same in every language: give it an objectName";
    QCOMPARE(
        program.kit()->problems(),
        QStringList({"QToolBar \"Bar\" " + noName, "QAction \"Nameless\" " + noName,
                     "QAction \"Twice\" has the name \"twice\", but something else has it too: "
                     "give each an objectName of its own"}));
}

void tst_RyToolBarKit_find::problemsArePrintedOnce()
{
    QMainWindow window;
    window.menuBar()->addMenu("File")->addAction("Nameless");
    RyToolBarKit kit(&window, true);
    window.show();
    const QStringList problems = kit.problems();
    QCOMPARE(problems.size(), 2); // the window has no name either
    QCOMPARE(takeWarnings(),
             QStringList({"RyToolBarKit: " + problems.at(0), "RyToolBarKit: " + problems.at(1)}));
    QToolBar *const bar = window.addToolBar("Bar");
    bar->setObjectName("bar");
    letTheKitFollow();
    delete bar;
    letTheKitFollow();
    QVERIFY(kit.manager());
    QCOMPARE(takeWarnings(), QStringList());
}

void tst_RyToolBarKit_find::actionsWithoutAnyTextStayAsTheyAre()
{
    KitProgram program;
    QAction *action = nullptr;
    QAction *described = nullptr;
    program.start([&](QMainWindow *window) {
        QToolBar *const bar = window->addToolBar("Bar");
        action = bar->addAction(QString());
        action->setObjectName("silent");
        described = bar->addAction(QString());
        described->setToolTip("Described");
    });
    QCOMPARE(action->text(), QString());
    QCOMPARE(described->text(), QString("Described"));
    QVERIFY(program.kit()->manager()->actions().contains(action));
}

void tst_RyToolBarKit_find::widgetsWithoutTextGetOne_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("windowTitle") << "Size";
    QTest::newRow("accessibleName") << "Size";
    QTest::newRow("placeholderText") << "Size";
    QTest::newRow("toolTip") << "Size";
    QTest::newRow("statusTip") << "Size";
    QTest::newRow("text") << "Size";
    QTest::newRow("objectName") << "Font Size Box2";
    QTest::newRow("nothing") << "QLineEdit";
}

void tst_RyToolBarKit_find::widgetsWithoutTextGetOne()
{
    QFETCH(QString, text);
    const QByteArray property = QTest::currentDataTag();
    QAction *action = nullptr;
    QAction *own = nullptr;
    QAction *space = nullptr;
    KitProgram program;
    program.start([&](QMainWindow *window) {
        QToolBar *const bar = window->addToolBar("Bar");
        QWidget *const widget = new QLineEdit;
        if (property == "objectName")
            widget->setObjectName("fontSize_box2");
        else
            widget->setProperty(property, text);
        action = bar->addWidget(widget);
        own = bar->addWidget(new QLineEdit);
        own->setText("Own");
        space = bar->addWidget(new QWidget);
    });
    QCOMPARE(action->text(), text);
    QCOMPARE(own->text(), QString("Own"));
    QCOMPARE(space->text(), QString("Space"));
}

void tst_RyToolBarKit_find::disabledWidgetsStayDisabled()
{
    KitProgram program;
    QSpinBox *const box = new QSpinBox;
    program.start([&](QMainWindow *window) {
        window->addToolBar("Bar")->addWidget(box);
        box->setEnabled(false);
    });
    QVERIFY(!box->isEnabled());
}

QTEST_MAIN(tst_RyToolBarKit_find)
#include "tst_rytoolbarkit_find.moc"
