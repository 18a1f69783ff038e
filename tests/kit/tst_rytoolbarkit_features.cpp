// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitwindow.h"
#include "testcase.h"

#include <QMenuBar>
#include <QtTest>

/*
 * What a kit does not do when a program has switched it off.
 */
class tst_RyToolBarKit_features : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsOnByDefault();
    void withoutFindActionsOnlyThoseOfToolBarsAreOffered();
    void withoutFindToolBarsNoneIsCustomizable();
    void withoutKeepPlacesToolBarsAreWhereTheProgramHasThem();
    void withoutKeepVisibilityToolBarsAreShownAsByTheProgram();
    void withoutKeepButtonsTheyAreLikeNewOnes();
    void withoutAddNewDefaultsACustomizedToolBarStaysAsItIs();
    void withoutFollowOthersWindowsStayAsTheyAre_data();
    void withoutFollowOthersWindowsStayAsTheyAre();
    void withoutStoreChangesTheValueIsOnlyRead();
    void withoutDragActionsTheDialogTakesNoDrags();
};

namespace {

// Starts the program with a kit that has all features but one.
void startWithout(KitProgram *program, RyToolBarKit::Feature feature,
                  const KitProgram::Build &build = KitProgram::buildDefault)
{
    program->start([&](QMainWindow *window) {
        build(window);
        program->kit()->setFeatures(program->kit()->features() & ~feature);
    });
}

QToolButton *button(const KitProgram &program, const QString &toolBar, const QString &action)
{
    return qobject_cast<QToolButton *>(
        program.toolBar(toolBar)->widgetForAction(program.action(action)));
}

} // namespace

void tst_RyToolBarKit_features::everythingIsOnByDefault()
{
    KitProgram program;
    program.start();
    QCOMPARE(int(program.kit()->features()), 0xffff);
}

void tst_RyToolBarKit_features::withoutFindActionsOnlyThoseOfToolBarsAreOffered()
{
    KitProgram program;
    startWithout(&program, RyToolBarKit::FindActions);
    RyToolBarManager *const manager = program.kit()->manager();
    QCOMPARE(manager->categories(), QStringList({"Edit", "File"}));
    QCOMPARE(manager->categoryActions("Edit"),
             QList<QAction *>({program.action("cut"), program.action("copy")}));
    addAction(program.window()->menuBar()->actions().constFirst()->menu(), "late");
    letTheKitFollow();
    QVERIFY(!manager->actions().contains(program.action("late")));
}

void tst_RyToolBarKit_features::withoutFindToolBarsNoneIsCustomizable()
{
    KitProgram program;
    startWithout(&program, RyToolBarKit::FindToolBars);
    QCOMPARE(program.kit()->manager()->toolBars().size(), 0);
    QCOMPARE(program.kit()->manager()->categoryActions("Edit").size(), 4);
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
}

void tst_RyToolBarKit_features::withoutKeepPlacesToolBarsAreWhereTheProgramHasThem()
{
    KitProgram program;
    const auto move = [&] {
        program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("file"));
    };
    startWithout(&program, RyToolBarKit::KeepPlaces);
    move();
    QVERIFY(program.kit()->isDefault());
    program.start();
    QCOMPARE(program.places(), QStringList("top: file, edit"));
    move();
    startWithout(&program, RyToolBarKit::KeepPlaces);
    QCOMPARE(program.places(), QStringList("top: file, edit"));
}

void tst_RyToolBarKit_features::withoutKeepVisibilityToolBarsAreShownAsByTheProgram()
{
    KitProgram program;
    program.start();
    program.toolBar("file")->toggleViewAction()->trigger();
    startWithout(&program, RyToolBarKit::KeepVisibility);
    QVERIFY(program.toolBar("file")->isVisible());
    program.toolBar("file")->toggleViewAction()->trigger();
    QVERIFY(program.kit()->restoreLayout(QByteArray()));
    QVERIFY(!program.toolBar("file")->isVisible());
}

void tst_RyToolBarKit_features::withoutKeepButtonsTheyAreLikeNewOnes()
{
    KitProgram program;
    startWithout(&program, RyToolBarKit::KeepButtons);
    button(program, "file", "open")->setPopupMode(QToolButton::InstantPopup);
    program.edit("file", "save open");
    QCOMPARE(button(program, "file", "open")->popupMode(), QToolButton::DelayedPopup);
}

void tst_RyToolBarKit_features::withoutAddNewDefaultsACustomizedToolBarStaysAsItIs()
{
    KitProgram program;
    program.start();
    program.edit("file", "save open");
    startWithout(&program, RyToolBarKit::AddNewDefaults, [](QMainWindow *window) {
        KitProgram::buildDefault(window);
        addAction(window->findChild<QToolBar *>("file"), "recent");
    });
    QCOMPARE(program.content("file"), QString("save open"));
}

void tst_RyToolBarKit_features::withoutFollowOthersWindowsStayAsTheyAre_data()
{
    QTest::addColumn<bool>("editedHasNot");
    QTest::newRow("of the edited window") << true;
    QTest::newRow("of the other window") << false;
}

void tst_RyToolBarKit_features::withoutFollowOthersWindowsStayAsTheyAre()
{
    QFETCH(bool, editedHasNot);
    KitProgram program;
    program.start();
    KitProgram other;
    other.shareSettings(program);
    other.start();
    RyToolBarKit *const kit = (editedHasNot ? program : other).kit();
    kit->setFeatures(kit->features() & ~RyToolBarKit::FollowOthers);
    program.edit("edit", "paste");
    QCOMPARE(other.content("edit"), QString("cut | copy"));
}

void tst_RyToolBarKit_features::withoutStoreChangesTheValueIsOnlyRead()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    const QString stored = program.stored();
    startWithout(&program, RyToolBarKit::StoreChanges);
    QCOMPARE(program.content("edit"), QString("paste"));
    program.edit("edit", "copy");
    QCOMPARE(program.layoutChanges, 2);
    program.end();
    QCOMPARE(program.stored(), stored);
}

void tst_RyToolBarKit_features::withoutDragActionsTheDialogTakesNoDrags()
{
    KitProgram program;
    for (const bool hasDrags : {true, false}) {
        if (hasDrags)
            program.start();
        else
            startWithout(&program, RyToolBarKit::DragActions);
        const EditorViews editor(program.openDialog());
        QCOMPARE(editor.currentToolBarList->viewport()->acceptDrops(), hasDrags);
        QCOMPARE(editor.actionTree->selectionMode() == QAbstractItemView::ExtendedSelection,
                 hasDrags);
    }
}

QTEST_MAIN(tst_RyToolBarKit_features)
#include "tst_rytoolbarkit_features.moc"
