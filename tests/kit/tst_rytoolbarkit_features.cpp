// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitdialog.h"
#include "kitwindow.h"
#include "nextmodal.h"
#include "openedmenu.h"
#include "testcase.h"
#include "texts.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
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
    void withoutToolBarMenusTheyHaveThatOfQt();
    void withoutKeepStepsThereIsNothingToUndo();
    void withoutDragActionsTheDialogTakesNoDrags();
    void withoutSearchActionsThereIsNoLine();
    void withoutReadableListsTheDialogShowsWhatTheLibraryDoes();
    void withoutDialogKeysTheDialogHasThoseOfThePlainOne();
    void withoutUserGuideHelpIsThatOfThePlainDialog();
    void withoutProtectEditsNothingIsAskedOrKept();
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

void tst_RyToolBarKit_features::withoutToolBarMenusTheyHaveThatOfQt()
{
    KitProgram program;
    startWithout(&program, RyToolBarKit::ToolBarMenus);
    const OpenedMenu menu(program.toolBar("file"), program.action("open"));
    QCOMPARE(menu.texts(), QStringList({"[x] File", "[x] Edit"}));
}

void tst_RyToolBarKit_features::withoutKeepStepsThereIsNothingToUndo()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    KitProgram other;
    other.shareSettings(program);
    other.start();
    const QStringList keys = program.settings->allKeys();
    const QVariant steps = program.settings->value("toolBars.steps");
    startWithout(&program, RyToolBarKit::KeepSteps);
    QVERIFY(!program.kit()->undoAction()->isEnabled());
    program.edit("edit", "copy");
    QVERIFY(!program.kit()->undoAction()->isEnabled());
    QVERIFY(other.kit()->undoAction()->isEnabled());
    other.edit("edit", "cut");
    QVERIFY(!program.kit()->undoAction()->isEnabled());
    other.end();
    program.toolBar("file")->toggleViewAction()->trigger();
    delete program.toolBar("edit");
    letTheKitFollow();
    QVERIFY(!program.kit()->undoAction()->isEnabled());
    program.settings->setValue("toolBars.steps", steps);
    program.edit("file", "paste");
    program.end();
    QCOMPARE(program.settings->allKeys(), keys);
    QCOMPARE(program.settings->value("toolBars.steps"), steps);
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

void tst_RyToolBarKit_features::withoutSearchActionsThereIsNoLine()
{
    KitProgram program;
    startWithout(&program, RyToolBarKit::SearchActions);
    QVERIFY(!program.openDialog()->findChild<QLineEdit *>("actionSearch"));
}

void tst_RyToolBarKit_features::withoutReadableListsTheDialogShowsWhatTheLibraryDoes()
{
    KitProgram program;
    startWithout(&program, RyToolBarKit::ReadableLists);
    RyCustomizedDialog *const dialog = program.openDialog();
    const EditorViews views(dialog);
    QCOMPARE(dialog->windowTitle(), "Options");
    QCOMPARE(dialog->findChild<QTabWidget *>()->count(), 2);
    QCOMPARE(itemsOf(views.actionTree).mid(1, 4),
             QStringList({"Edit", "  &Special", "  Copy", "  Cut"}));
    QVERIFY(!dialog->findChild<QLabel *>("emptyToolBarHint"));
    for (const QAbstractItemView *view :
         {static_cast<QAbstractItemView *>(views.actionTree),
          static_cast<QAbstractItemView *>(views.toolBarList),
          static_cast<QAbstractItemView *>(views.currentToolBarList)}) {
        const auto *const delegate = qobject_cast<QStyledItemDelegate *>(view->itemDelegate());
        QCOMPARE(delegate->displayText("&Open", QLocale()), "&Open");
    }
}

void tst_RyToolBarKit_features::withoutDialogKeysTheDialogHasThoseOfThePlainOne()
{
    KitDialog stage(RyToolBarKit::DialogKeys);
    QCOMPARE(stage.views.upButton->toolTip(), "Move action up");
    QCOMPARE(stage.views.page->findChild<QLabel *>("label_2")->text(), "Toolbars");
    QCOMPARE(stage.views.actionTree->accessibleName(), QString());
    QVERIFY(!stage.dialog->findChild<QWidget *>("changeNotification"));
    stage.choose("Mine");
    stage.pressKey(stage.views.currentToolBarList, Qt::Key_Delete);
    QCOMPARE(stage.entries(), words("Cut | Copy"));
}

void tst_RyToolBarKit_features::withoutUserGuideHelpIsThatOfThePlainDialog()
{
    const KitDialog stage(RyToolBarKit::UserGuide);
    QString title;
    const NextModal box([&](QWidget *widget) {
        title = widget->windowTitle();
        widget->close();
    });
    QTest::mouseClick(stage.dialog->helpButton(), Qt::LeftButton);
    QCOMPARE(title, "help");
    QVERIFY(!stage.dialog->findChild<QDialog *>("userGuide"));
}

void tst_RyToolBarKit_features::withoutProtectEditsNothingIsAskedOrKept()
{
    KitProgram program;
    startWithout(&program, RyToolBarKit::ProtectEdits);
    program.edit("file", "open");
    RyCustomizedDialog *const dialog = program.openDialog();
    const EditorViews views(dialog);
    for (int i = 0; i < 2; ++i) {
        views.click(views.newButton);
        views.typeName("");
    }
    QCOMPARE(rowsOf(views.toolBarList), QStringList({"", "", "Edit", "File"}));
    views.toolBarList->setCurrentItem(nullptr);
    QVERIFY(views.removeButton->isEnabled() && views.renameButton->isEnabled());
    QTest::mouseClick(dialog->RestoreDefaultButton(), Qt::LeftButton);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QVERIFY(!dialog->findChild<QMessageBox *>());
    QVERIFY(!dialog->findChild<QSplitter *>());
    QVERIFY(!program.settings->contains("toolBars.dialog"));
    program.restoreDefaults();
    QCOMPARE(program.content("file"), QString("new open save"));
    QVERIFY(program.kit()->isDefault());
}

QTEST_MAIN(tst_RyToolBarKit_features)
#include "tst_rytoolbarkit_features.moc"
