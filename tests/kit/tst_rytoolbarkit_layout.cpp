// SPDX-License-Identifier: MIT

#include "kitwindow.h"
#include "testcase.h"

#include <QDockWidget>
#include <QMenuBar>
#include <QtTest>

class tst_RyToolBarKit_layout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsStoredWithoutAChange();
    void theContentReturnsAtTheNextStart();
    void customToolBarsReturnAtTheNextStart();
    void removedToolBarsStayAway();
    void aNewToolBarHasNothingOfARemovedOne();
    void restoreDefaultsIsStoredToo();
    void placesReturnAtTheNextStart();
    void anAreaThatIsEmptyAgainLeavesNoTrace();
    void floatingToolBarsReturnAtTheNextStart_data();
    void floatingToolBarsReturnAtTheNextStart();
    void floatingToolBarsReturnToTheirLine();
    void aLayoutOfTheProgramIsNotOurs();
    void aProgramMayRestoreTabifiedDocksBeforeItIsShown();
    void whatTheUserHidesStaysHidden();
    void whatTheProgramHidesIsNotKept();
    void theProgramWinsIfItStartsDifferently();
    void aNewDefaultActionAppearsBesideItsNeighbour();
    void aRemovedDefaultActionStaysAway();
    void aToolBarAsShippedFollowsTheProgram();
    void formerNamesAreFollowed();
    void formerNamesOfToolBarsAreFollowed();
    void formerNamesOfFloatingToolBarsAreFollowed();
    void formerNamesMayComeLate();
    void formerNamesReplaceThoseOfAnEarlierCall();
    void theLaterPlaceOfARenamedToolBarHolds();
    void namesOfAnotherReleaseKeepTheirPlace();
    void toolBarsOfAnotherReleaseKeepTheirLayout();
    void aRequiredActionReturnsAtTheNextStart();
    void aRequiredActionReturnsToTheFirstByName();
    void damagedValuesLeaveTheSecondCopy();
    void valuesOfOtherTypesAreRefused();
    void refusedValuesAreKeptUntilTheUserChangesSomething();
    void bytesOfAManagerAreTakenOver();
    void bytesOfAWindowAreTakenOver();
    void bytesOfAnUnchangedWindowAreTheDefault();
    void bytesOfAWindowLeaveTheContents();
    void restoreLayoutReplacesEverything();
    void restoreLayoutBringsVisibilityBack();
    void restoreLayoutWorksAfterAToolBarWasDeleted();
    void restoreLayoutBeforeTheWindowIsShownIsStored();
    void restoreLayoutRefusesOtherBytes();
    void restoreNowRestoresInTheConstructor();
    void anEmptyKeyStoresNothing();
    void theKeyHasTheNameOfTheWindow();
    void windowsWithTheSameKeyFollow();
    void windowsThatDifferFollowToo();
    void aRequiredActionDoesNotReturnInAnotherWindow();
    void windowsWithOtherKeysDoNot();
};

namespace {

void buildWithout(QMainWindow *window, const QString &name)
{
    KitProgram::buildDefault(window);
    delete window->findChild<QAction *>(name);
}

// As QMainWindow::saveState() would write it with 1,000 toolbars of long names.
QByteArray largeStateOfAWindow()
{
    const qint32 topArea = 2;
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << qint32(255) << qint32(1) << quint8(0xfc) << qint32(1) << topArea << qint32(1000);
    for (int i = 0; i < 1000; ++i)
        stream << QString::number(i).rightJustified(60, 'x') << quint8(1) << quint64(0)
               << quint64(0);
    return state;
}

} // namespace

void tst_RyToolBarKit_layout::nothingIsStoredWithoutAChange()
{
    KitProgram program;
    program.start();
    QVERIFY(program.kit()->isDefault());
    QTest::mouseClick(program.openDialog()->okButton(), Qt::LeftButton);
    program.end();
    QCOMPARE(program.stored(), QString());
    QCOMPARE(program.layoutChanges, 0);
    QCOMPARE(program.customizations, 1);
}

void tst_RyToolBarKit_layout::theContentReturnsAtTheNextStart()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste | upper cut | new");
    QCOMPARE(program.content("edit"), QString("paste | upper cut | new"));
    QCOMPARE(program.layoutChanges, 1);
    QVERIFY(!program.kit()->isDefault());
    QVERIFY(!program.stored().isEmpty());
    program.start();
    QCOMPARE(program.contents(),
             QStringList({"edit: paste | upper cut | new", "file: new open save"}));
    QVERIFY(!program.kit()->isDefault());
}

void tst_RyToolBarKit_layout::customToolBarsReturnAtTheNextStart()
{
    KitProgram program;
    program.start();
    program.create("Mine", "open | copy");
    program.create("", "");
    program.start();
    QCOMPARE(program.contents(),
             QStringList({"_Custom_Toolbar_1: open | copy",
                          "_Custom_Toolbar_2: ", "edit: cut | copy", "file: new open save"}));
    QCOMPARE(program.toolBar("_Custom_Toolbar_1")->windowTitle(), QString("Mine"));
    QVERIFY(program.toolBar("_Custom_Toolbar_1")->isVisible());
    QVERIFY(!program.kit()->manager()->isDefaultToolBar(program.toolBar("_Custom_Toolbar_1")));
}

void tst_RyToolBarKit_layout::removedToolBarsStayAway()
{
    KitProgram program;
    program.start();
    program.create("One", "open");
    program.create("Two", "copy");
    program.remove("_Custom_Toolbar_1");
    program.start();
    QCOMPARE(program.contents(),
             QStringList({"_Custom_Toolbar_2: copy", "edit: cut | copy", "file: new open save"}));
    program.remove("_Custom_Toolbar_2");
    QVERIFY(program.kit()->isDefault());
}

// The manager gives the name of the removed one again.
void tst_RyToolBarKit_layout::aNewToolBarHasNothingOfARemovedOne()
{
    KitProgram program;
    program.start();
    const QString mine = program.create("Mine", "open");
    program.toolBar(mine)->toggleViewAction()->trigger();
    program.apply([&](RyToolBarManager *manager) {
        manager->deleteToolBar(program.toolBar(mine));
        QCOMPARE(manager->createToolBar("Other")->objectName(), mine);
    });
    QVERIFY(!program.toolBar(mine)->isHidden());
    program.start();
    QVERIFY(!program.toolBar(mine)->isHidden());
}

void tst_RyToolBarKit_layout::restoreDefaultsIsStoredToo()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    program.create("Mine", "open");
    program.restoreDefaults();
    QVERIFY(program.kit()->isDefault());
    program.start();
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
}

void tst_RyToolBarKit_layout::placesReturnAtTheNextStart()
{
    KitProgram program;
    program.start();
    program.create("Mine", "open");
    QMainWindow *const window = program.window();
    window->addToolBar(Qt::LeftToolBarArea, program.toolBar("file"));
    window->addToolBarBreak();
    window->addToolBar(program.toolBar("edit"));
    const QStringList places = {"left: file", "top: _Custom_Toolbar_1 / edit"};
    QCOMPARE(program.places(), places);
    program.start();
    QCOMPARE(program.places(), places);
    program.start();
    QCOMPARE(program.places(), places);
    QCOMPARE(program.layoutChanges, 2);
}

void tst_RyToolBarKit_layout::anAreaThatIsEmptyAgainLeavesNoTrace()
{
    KitProgram program;
    program.start();
    program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("file"));
    program.kit()->saveLayout();
    program.window()->addToolBar(Qt::TopToolBarArea, program.toolBar("file"));
    const QString layout = program.kit()->saveLayout();
    QVERIFY(!layout.contains("left"));
    QCOMPARE(QString(program.kit()->saveLayout()), layout);
}

void tst_RyToolBarKit_layout::floatingToolBarsReturnAtTheNextStart_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("polished");
    QTest::newRow("of the program") << "edit" << false;
    QTest::newRow("of the user") << "_Custom_Toolbar_1" << false;
    QTest::newRow("of the program, polished early") << "edit" << true;
    QTest::newRow("of the user, polished early") << "_Custom_Toolbar_1" << true;
}

void tst_RyToolBarKit_layout::floatingToolBarsReturnAtTheNextStart()
{
    QFETCH(QString, name);
    QFETCH(bool, polished);
    KitProgram program;
    const auto build = [polished](QMainWindow *window) {
        KitProgram::buildDefault(window);
        if (polished)
            window->ensurePolished();
    };
    program.start(build);
    program.create("Mine", "open");
    QToolBar *const toolBar = program.toolBar(name);
    toolBar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    toolBar->move(120, 80);
    toolBar->show();
    program.start(build);
    QVERIFY(program.toolBar(name)->isFloating());
    QCOMPARE(program.toolBar(name)->pos(), QPoint(120, 80));
    QVERIFY(program.toolBar(name)->isVisible());
    QVERIFY(!program.toolBar("file")->isFloating());
}

void tst_RyToolBarKit_layout::floatingToolBarsReturnToTheirLine()
{
    KitProgram program;
    program.start();
    program.toolBar("file")->setWindowFlags(Qt::Tool);
    program.toolBar("file")->show();
    program.toolBar("edit")->setWindowFlags(Qt::Tool);
    program.toolBar("edit")->hide();
    QVERIFY(!program.kit()->isDefault());
    QVERIFY(program.kit()->restoreLayout(QByteArray()));
    QVERIFY(program.kit()->isDefault());
    QVERIFY(!program.toolBar("file")->isFloating());
    QVERIFY(program.toolBar("file")->isVisible());
    QVERIFY(!program.toolBar("edit")->isFloating());
    QVERIFY(!program.toolBar("edit")->isVisible());
    QCOMPARE(program.places(), QStringList("top: file, edit"));
}

void tst_RyToolBarKit_layout::aLayoutOfTheProgramIsNotOurs()
{
    QByteArray state;
    KitProgram program;
    program.start();
    program.create("Mine", "open");
    program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("file"));
    state = program.window()->saveState();
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->restoreState(state);
    });
    QCOMPARE(program.places(), QStringList({"left: file", "top: edit, _Custom_Toolbar_1"}));
    QVERIFY(program.toolBar("_Custom_Toolbar_1")->isVisible());
}

// With them, QMainWindow::restoreState() polishes the window.
void tst_RyToolBarKit_layout::aProgramMayRestoreTabifiedDocksBeforeItIsShown()
{
    QByteArray state;
    const auto build = [&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QDockWidget *last = nullptr;
        for (const char *name : {"first", "second"}) {
            QDockWidget *const dock = new QDockWidget(name, window);
            dock->setObjectName(name);
            dock->setWidget(new QWidget);
            window->addDockWidget(Qt::RightDockWidgetArea, dock);
            if (last)
                window->tabifyDockWidget(last, dock);
            last = dock;
        }
        window->restoreState(state);
    };
    KitProgram program;
    program.start(build);
    program.create("Mine", "open");
    const QByteArray layout = program.kit()->saveLayout();
    const QStringList places = program.places();
    QCOMPARE(places, QStringList("top: file, edit, _Custom_Toolbar_1"));
    for (int i = 0; i < 3; ++i) {
        state = program.window()->saveState();
        program.start(build);
        letTheKitFollow();
        QCOMPARE(program.places(), places);
        QCOMPARE(QString(program.kit()->saveLayout()), QString(layout));
    }
}

void tst_RyToolBarKit_layout::whatTheUserHidesStaysHidden()
{
    KitProgram program;
    program.start();
    program.create("Mine", "open");
    program.toolBar("edit")->toggleViewAction()->trigger();
    program.toolBar("_Custom_Toolbar_1")->toggleViewAction()->trigger();
    program.start();
    QVERIFY(!program.toolBar("edit")->isVisible());
    QVERIFY(!program.toolBar("_Custom_Toolbar_1")->isVisible());
    QVERIFY(program.toolBar("file")->isVisible());
    program.toolBar("edit")->toggleViewAction()->trigger();
    program.start();
    QVERIFY(program.toolBar("edit")->isVisible());
    QVERIFY(!program.toolBar("_Custom_Toolbar_1")->isVisible());
}

void tst_RyToolBarKit_layout::whatTheProgramHidesIsNotKept()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    program.toolBar("file")->hide(); // as for full screen
    program.start();
    QVERIFY(program.toolBar("file")->isVisible());
}

void tst_RyToolBarKit_layout::theProgramWinsIfItStartsDifferently()
{
    const auto buildHidden = [](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->findChild<QToolBar *>("edit")->hide();
    };
    KitProgram program;
    program.start(buildHidden);
    program.toolBar("edit")->toggleViewAction()->trigger();
    program.start(buildHidden);
    QVERIFY(program.toolBar("edit")->isVisible());
    QVERIFY(!program.kit()->isDefault());
    program.start();
    QVERIFY(program.toolBar("edit")->isVisible());
    QVERIFY(program.kit()->isDefault());
    program.start(buildHidden);
    QVERIFY(program.toolBar("edit")->isVisible());
    program.toolBar("edit")->toggleViewAction()->trigger();
    program.start();
    program.toolBar("edit")->toggleViewAction()->trigger();
    program.start(buildHidden); // as a program does that keeps this itself
    QVERIFY(!program.toolBar("edit")->isVisible());
}

void tst_RyToolBarKit_layout::aNewDefaultActionAppearsBesideItsNeighbour()
{
    KitProgram program;
    program.start([](QMainWindow *window) { buildWithout(window, "open"); });
    program.edit("file", "cut | new copy save");
    const QString stored = program.stored();
    program.start();
    QCOMPARE(program.content("file"), QString("cut | new open copy save"));
    program.end();
    QCOMPARE(program.stored(), stored);
    program.start();
    program.edit("file", "cut | new copy save");
    program.start();
    QCOMPARE(program.content("file"), QString("cut | new copy save"));
}

void tst_RyToolBarKit_layout::aRemovedDefaultActionStaysAway()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    program.start([](QMainWindow *window) { buildWithout(window, "open"); });
    program.edit("file", "save cut"); // this release does not have "open" and must not forget it
    program.start();
    QCOMPARE(program.content("file"), QString("save cut"));
}

void tst_RyToolBarKit_layout::aToolBarAsShippedFollowsTheProgram()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QToolBar *const bar = window->findChild<QToolBar *>("file");
        const auto actions = bar->actions();
        bar->clear();
        bar->addActions({actions.at(2), actions.at(0)});
    });
    QCOMPARE(program.content("file"), QString("save new"));
}

void tst_RyToolBarKit_layout::formerNamesAreFollowed()
{
    KitProgram program;
    program.start();
    program.edit("file", "paste open");
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QAction *const action = program.action("open");
        action->setObjectName("openFile");
        program.kit()->setFormerNames(action, {"load", "open"});
        program.kit()->setFormerNames(nullptr, {"new"});
        program.kit()->setFormerNames(program.action("new"), {"paste"}); // still a name
    });
    QCOMPARE(program.content("file"), QString("paste openFile"));
}

void tst_RyToolBarKit_layout::formerNamesOfToolBarsAreFollowed()
{
    KitProgram program;
    program.start();
    program.edit("file", "paste open");
    program.window()->addToolBar(Qt::BottomToolBarArea, program.toolBar("file"));
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QToolBar *const toolBar = program.toolBar("file");
        toolBar->setObjectName("fileBar");
        program.kit()->setFormerNames(toolBar, {"file"});
    });
    QCOMPARE(program.content("fileBar"), QString("paste open"));
    QCOMPARE(program.places(), QStringList({"bottom: fileBar", "top: edit"}));
}

void tst_RyToolBarKit_layout::formerNamesOfFloatingToolBarsAreFollowed()
{
    KitProgram program;
    program.start();
    program.toolBar("file")->setWindowFlags(Qt::Tool);
    program.toolBar("file")->move(120, 80);
    program.toolBar("file")->show();
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.toolBar("file")->setObjectName("fileBar");
        program.kit()->setFormerNames(program.toolBar("fileBar"), {"file"});
    });
    QVERIFY(program.toolBar("fileBar")->isFloating());
    QCOMPARE(program.toolBar("fileBar")->pos(), QPoint(120, 80));
}

void tst_RyToolBarKit_layout::formerNamesMayComeLate()
{
    KitProgram program;
    program.start();
    program.edit("edit", "open cut");
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.action("open")->setObjectName("openFile");
    });
    QCOMPARE(program.content("edit"), QString("cut"));
    program.kit()->setFormerNames(program.action("openFile"), {"open"});
    QCOMPARE(program.content("edit"), QString("openFile cut"));
}

void tst_RyToolBarKit_layout::formerNamesReplaceThoseOfAnEarlierCall()
{
    KitProgram program;
    program.start();
    program.edit("edit", "open cut");
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.action("open")->setObjectName("openFile");
        program.kit()->setFormerNames(program.action("openFile"), {"open", "load"});
        program.kit()->setFormerNames(program.action("openFile"), {"load"});
    });
    QCOMPARE(program.content("edit"), QString("cut"));
}

// When a user goes back to an earlier release, the layout has both names.
void tst_RyToolBarKit_layout::theLaterPlaceOfARenamedToolBarHolds()
{
    KitProgram program;
    const auto buildRenamed = [&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QToolBar *const toolBar = program.toolBar("file");
        toolBar->setObjectName("fileBar");
        program.kit()->setFormerNames(toolBar, {"file"});
    };
    program.start(buildRenamed);
    program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("fileBar"));
    program.start();
    program.window()->addToolBar(Qt::BottomToolBarArea, program.toolBar("file"));
    program.start(buildRenamed);
    QCOMPARE(program.places(), QStringList({"bottom: fileBar", "top: edit"}));
}

void tst_RyToolBarKit_layout::namesOfAnotherReleaseKeepTheirPlace()
{
    const auto build = [](QMainWindow *window) {
        for (const char *name : {"open", "save"})
            delete window->findChild<QAction *>(name);
    };
    KitProgram program;
    program.start();
    program.edit("edit", "cut open | save copy");
    const auto buildOther = [&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        build(window);
    };
    for (int run = 0; run < 3; ++run) {
        program.start(buildOther);
        QCOMPARE(program.content("edit"), QString("cut | copy"));
    }
    program.edit("edit", "paste cut | copy");
    program.start(buildOther);
    program.start();
    QCOMPARE(program.content("edit"), QString("paste cut open | save copy"));
}

void tst_RyToolBarKit_layout::toolBarsOfAnotherReleaseKeepTheirLayout()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    program.window()->insertToolBar(program.toolBar("file"), program.toolBar("edit"));
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        delete window->findChild<QToolBar *>("edit");
    });
    program.edit("file", "save");
    program.create("Mine", "copy");
    program.start();
    QCOMPARE(program.contents(),
             QStringList({"_Custom_Toolbar_1: copy", "edit: paste", "file: save"}));
    QCOMPARE(program.places(), QStringList("top: edit, file, _Custom_Toolbar_1"));
}

void tst_RyToolBarKit_layout::aRequiredActionReturnsAtTheNextStart()
{
    const auto build = [](KitProgram *program) {
        program->kit()->setRequired(program->action("open"));
        program->kit()->setRequired(program->action("paste")); // on no default toolbar
        program->kit()->setRequired(nullptr);
    };
    KitProgram program;
    const auto buildRequired = [&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        build(&program);
    };
    program.start(buildRequired);
    program.edit("file", "new save");
    QCOMPARE(program.content("file"), QString("new save"));
    const QString stored = program.stored();
    program.start(buildRequired);
    QCOMPARE(program.content("file"), QString("new open save"));
    program.end();
    QCOMPARE(program.stored(), stored);
    program.start(buildRequired);
    program.edit("file", "new save");
    program.edit("edit", "open");
    program.start(buildRequired);
    QCOMPARE(program.content("file"), QString("new save"));
}

void tst_RyToolBarKit_layout::aRequiredActionReturnsToTheFirstByName()
{
    const QStringList names = {"4", "2", "7", "1", "6", "3", "5", "0", "8"};
    KitProgram program;
    const auto build = [&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        delete program.toolBar("file");
        for (const QString &name : names) {
            QToolBar *const toolBar = window->addToolBar(name);
            toolBar->setObjectName(name);
            toolBar->addAction(program.action("open"));
        }
        program.kit()->setRequired(program.action("open"));
    };
    program.start(build);
    program.apply([&](RyToolBarManager *manager) {
        for (const QString &name : names)
            manager->setToolBar(program.toolBar(name), {});
    });
    program.start(build);
    QCOMPARE(program.contents().filter("open"), QStringList("0: open"));
}

void tst_RyToolBarKit_layout::damagedValuesLeaveTheSecondCopy()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    program.end();
    const QString good = program.stored();
    QString damaged = good;
    damaged.replace("paste", "pasta");
    program.store(damaged);
    program.start();
    QCOMPARE(program.refusals, QStringList("the layout is damaged: its checksum is wrong"));
    QCOMPARE(program.content("edit"), QString("paste"));
    program.end();
    QCOMPARE(program.stored(), damaged);
}

void tst_RyToolBarKit_layout::valuesOfOtherTypesAreRefused()
{
    KitProgram program;
    program.settings->setValue("toolBars", QStringList({"a", "b"}));
    program.start();
    QCOMPARE(program.refusals, QStringList("the value is not a layout of toolbars"));
}

void tst_RyToolBarKit_layout::refusedValuesAreKeptUntilTheUserChangesSomething()
{
    KitProgram program;
    program.store("something else");
    program.start();
    QCOMPARE(program.refusals, QStringList("the value is not a layout of toolbars"));
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    program.end();
    QCOMPARE(program.stored(), QString("something else"));
    program.start();
    program.edit("edit", "paste");
    QVERIFY(program.stored().contains("paste"));
    program.start();
    QCOMPARE(program.refusals.size(), 2);
    QCOMPARE(program.content("edit"), QString("paste"));
}

void tst_RyToolBarKit_layout::bytesOfAManagerAreTakenOver()
{
    QByteArray bytes;
    {
        KitProgram program;
        program.start();
        program.edit("edit", "paste | new");
        program.create("Mine", "open | save");
        bytes = program.kit()->manager()->saveState(3);
    }
    for (const bool inSettings : {false, true}) {
        KitProgram program;
        if (inSettings)
            program.settings->setValue("toolBars", bytes);
        program.start([](QMainWindow *window) { buildWithout(window, "new"); });
        if (!inSettings)
            QVERIFY(program.kit()->restoreLayout(bytes));
        QCOMPARE(program.content("edit"), QString("paste |"));
        QCOMPARE(program.content("_Custom_Toolbar_1"), QString("open | save"));
        QCOMPARE(program.toolBar("_Custom_Toolbar_1")->windowTitle(), QString("Mine"));
        program.edit("file", "cut");
        program.start();
        QCOMPARE(program.content("edit"), QString("paste | new"));
    }
}

void tst_RyToolBarKit_layout::bytesOfAWindowAreTakenOver()
{
    KitProgram program;
    program.start();
    program.window()->addToolBar(Qt::RightToolBarArea, program.toolBar("file"));
    program.window()->addToolBar(Qt::RightToolBarArea, program.toolBar("edit"));
    program.toolBar("edit")->hide();
    const QByteArray bytes = program.window()->saveState(5);
    KitProgram later;
    later.start();
    QVERIFY(later.kit()->restoreLayout(bytes));
    QCOMPARE(later.places(), QStringList("right: file, edit"));
    QVERIFY(!later.toolBar("edit")->isVisible());
    QVERIFY(later.toolBar("file")->isVisible());
    later.start();
    QCOMPARE(later.places(), QStringList("right: file, edit"));
    for (int size = 0; size < bytes.size(); ++size)
        QVERIFY2(size == 0 || !later.kit()->restoreLayout(bytes.left(size)),
                 QByteArray::number(size).constData());
}

void tst_RyToolBarKit_layout::bytesOfAnUnchangedWindowAreTheDefault()
{
    KitProgram program;
    program.start();
    QVERIFY(program.kit()->restoreLayout(program.window()->saveState()));
    QVERIFY(program.kit()->isDefault());
}

void tst_RyToolBarKit_layout::bytesOfAWindowLeaveTheContents()
{
    KitProgram program;
    program.start();
    const QByteArray bytes = program.window()->saveState();
    program.kit()->manager()->setToolBar(program.toolBar("file"), {program.action("save")});
    QVERIFY(program.kit()->restoreLayout(bytes));
    QCOMPARE(program.content("file"), QString("save"));
}

void tst_RyToolBarKit_layout::restoreLayoutReplacesEverything()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    program.create("Mine", "open");
    const QByteArray layout = program.kit()->saveLayout();
    QVERIFY(program.kit()->restoreLayout(QByteArray()));
    QVERIFY(program.kit()->isDefault());
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    program.create("Other", "copy");
    program.create("Third", "copy");
    QVERIFY(program.kit()->restoreLayout(layout));
    QCOMPARE(program.contents(),
             QStringList({"_Custom_Toolbar_1: open", "edit: paste", "file: new open save"}));
    QCOMPARE(program.toolBar("_Custom_Toolbar_1")->windowTitle(), QString("Mine"));
    QCOMPARE(program.kit()->saveLayout(), layout);
    QCOMPARE(program.stored(), QString(layout));
}

void tst_RyToolBarKit_layout::restoreLayoutBringsVisibilityBack()
{
    KitProgram program;
    program.start();
    program.create("Mine", "open");
    const QByteArray shown = program.kit()->saveLayout();
    program.toolBar("edit")->toggleViewAction()->trigger();
    program.toolBar("_Custom_Toolbar_1")->toggleViewAction()->trigger();
    const QByteArray hidden = program.kit()->saveLayout();
    QVERIFY(program.kit()->restoreLayout(shown));
    QVERIFY(program.toolBar("edit")->isVisible());
    QVERIFY(program.toolBar("_Custom_Toolbar_1")->isVisible());
    QCOMPARE(program.kit()->saveLayout(), shown);
    QVERIFY(program.kit()->restoreLayout(hidden));
    QVERIFY(!program.toolBar("edit")->isVisible());
    QVERIFY(!program.toolBar("_Custom_Toolbar_1")->isVisible());
    QVERIFY(program.kit()->restoreLayout(QByteArray()));
    QVERIFY(program.toolBar("edit")->isVisible());
}

void tst_RyToolBarKit_layout::restoreLayoutWorksAfterAToolBarWasDeleted()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    const QByteArray layout = program.kit()->saveLayout();
    program.edit("file", "open");
    delete program.toolBar("edit");
    QVERIFY(program.kit()->restoreLayout(layout));
    QCOMPARE(program.contents(), QStringList("file: save"));
}

void tst_RyToolBarKit_layout::restoreLayoutBeforeTheWindowIsShownIsStored()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QVERIFY(program.kit()->restoreLayout(QByteArray()));
    });
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    program.start();
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    QVERIFY(program.kit()->isDefault());
}

void tst_RyToolBarKit_layout::restoreLayoutRefusesOtherBytes()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    const QByteArray layout = program.kit()->saveLayout();
    QByteArray state = program.kit()->manager()->saveState(1);
    state.chop(1);
    const QList<QByteArray> values = {
        "x", "{}", QByteArray(4, '\0'), state, layout.left(50), largeStateOfAWindow()};
    for (const QByteArray &value : values) {
        QVERIFY(!program.kit()->restoreLayout(value));
        QCOMPARE(program.kit()->saveLayout(), layout);
    }
    QCOMPARE(program.refusals.size(), values.size());
}

void tst_RyToolBarKit_layout::restoreNowRestoresInTheConstructor()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QVERIFY(program.kit()->restoreNow());
        QCOMPARE(program.content("edit"), QString("paste"));
        QVERIFY(!program.kit()->restoreNow());
    });
    QCOMPARE(program.content("edit"), QString("paste"));
    program.end();
    program.settings->clear();
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QVERIFY(!program.kit()->restoreNow());
    });
}

void tst_RyToolBarKit_layout::anEmptyKeyStoresNothing()
{
    KitProgram program;
    const auto build = [&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.kit()->setSettings(program.settings.get(), QString());
    };
    program.start(build);
    program.edit("edit", "paste");
    QCOMPARE(program.settings->allKeys(), QStringList());
    const QByteArray layout = program.kit()->saveLayout();
    program.start(build);
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    QVERIFY(program.kit()->restoreLayout(layout));
    QCOMPARE(program.content("edit"), QString("paste"));
}

void tst_RyToolBarKit_layout::theKeyHasTheNameOfTheWindow()
{
    QTemporaryDir folder;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QCoreApplication::setOrganizationName("Tests");
    for (const char *name : {"editor", ""}) {
        QMainWindow window;
        window.setObjectName(name);
        RyToolBarKit kit(&window, false);
        KitProgram::buildDefault(&window);
        kit.restoreNow();
        QCOMPARE(kit.problems().size(), *name ? 0 : 1);
        kit.manager()->setToolBar(window.findChild<QToolBar *>("edit"), {});
        window.close();
    }
    QStringList keys = QSettings().allKeys();
    keys.sort();
    QCOMPARE(keys,
             QStringList({"toolBars/QMainWindow", "toolBars/QMainWindow.format1",
                          "toolBars/QMainWindow.steps", "toolBars/editor",
                          "toolBars/editor.format1", "toolBars/editor.steps"}));
}

void tst_RyToolBarKit_layout::windowsWithTheSameKeyFollow()
{
    KitProgram program;
    program.start();
    KitProgram other;
    other.shareSettings(program);
    other.start();
    program.edit("edit", "paste");
    program.create("Mine", "open");
    QCOMPARE(other.contents(), program.contents());
    QCOMPARE(other.layoutChanges, 2);
    QCOMPARE(other.customizations, 0);
}

// OK without a change makes the other windows, and what is stored, the same again.
void tst_RyToolBarKit_layout::windowsThatDifferFollowToo()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    KitProgram other;
    other.shareSettings(program);
    other.start();
    other.toolBar("file")->toggleViewAction()->trigger();
    program.edit("edit", "paste");
    QVERIFY(!other.toolBar("file")->isHidden());
    other.toolBar("file")->toggleViewAction()->trigger();
    other.end();
    QVERIFY(program.stored().contains("shown"));
    program.edit("edit", "paste");
    QCOMPARE(program.stored(), QString(program.kit()->saveLayout()));
}

void tst_RyToolBarKit_layout::aRequiredActionDoesNotReturnInAnotherWindow()
{
    KitProgram program;
    program.start();
    KitProgram other;
    other.shareSettings(program);
    other.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        other.kit()->setRequired(other.action("open"));
    });
    program.edit("file", "new save");
    QCOMPARE(other.content("file"), QString("new save"));
}

void tst_RyToolBarKit_layout::windowsWithOtherKeysDoNot()
{
    KitProgram program;
    program.start();
    KitProgram other;
    other.start();
    program.edit("edit", "paste");
    QCOMPARE(other.content("edit"), QString("cut | copy"));
}

QTEST_MAIN(tst_RyToolBarKit_layout)
#include "tst_rytoolbarkit_layout.moc"
