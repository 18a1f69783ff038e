// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitwindow.h"
#include "layouthistory.h"
#include "testcase.h"

#include <QCloseEvent>
#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMenuBar>
#include <QPushButton>
#include <QtTest>

class tst_LayoutHistory : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsNothingToUndoAtFirst();
    void okIsOneStep();
    void applyIsOneStep();
    void restoreDefaultsIsOneStep();
    void movesAreOneStep();
    void aMoveThatIsNotStoredYetIsAStep();
    void hidingIsOneStep();
    void hidingAndShowingIsNoStep();
    void createdToolBarsGoAndComeBack();
    void removedToolBarsComeBack();
    void thereAreTwentySteps();
    void stepsAreKeptOverRestarts();
    void movesAreStepsAfterARestartToo();
    void aChangeClearsWhatCanBeRedone();
    void whatTheProgramChangesIsNoStep();
    void whatTheProgramChangesStays();
    void whatTheUserDidBeforeTheProgramIsAStep();
    void aToolBarThatIsNotLoadedKeepsItsLayout();
    void aToolBarOfTheStepThatIsNotLoadedIsUndone();
    void aToolBarWithANewNameIsFollowed();
    void whatAnotherReleaseHasByDefaultIsUndoneForTheOthers();
    void aDeletedToolBarChangesNothing();
    void aRequiredActionMayBeUndone();
    void windowsWithTheSameKeyHaveTheSameSteps();
    void theLastOkSetsTheSteps();
    void aWindowThatDoesNotFollowKeepsItsSteps();
    void restoreLayoutIsAStep();
    void theFirstLayoutIsNoStep();
    void aRefusedLayoutIsNoStep();
    void aRefusedLayoutBreaksNoStep();
    void onlyWhatTheStepChangedIsUndone();
    void aRemovedToolBarLeavesNoPlace();
    void theDialogShowsWhatWasUndone();
    void withoutStoreChangesStepsAreOnlyRead();
    void withoutASettingStepsAreKeptInMemory();

    void stepsAreReadAsTheyWereWritten();
    void textThatIsNotUnicodeDoesNotBreakTheSteps();
    void everyShorterTextHasNoSteps();
    void everyChangedByteIsNoticed();
    void stepsOfANewerFormatAreLeftOut();
    void textThatIsTooLargeHasNoSteps();
    void theOldestStepsAreLeftOutIfAllAreTooLarge();
    void onlyTwentyStepsAreRead();
};

namespace {

const QString StepsKey = "toolBars.steps";

void undo(const KitProgram &program)
{
    program.kit()->undoAction()->trigger();
}

void redo(const KitProgram &program)
{
    program.kit()->redoAction()->trigger();
}

// Which of the two actions are enabled.
QString possible(const KitProgram &program)
{
    QStringList names;
    if (program.kit()->undoAction()->isEnabled())
        names << "undo";
    if (program.kit()->redoAction()->isEnabled())
        names << "redo";
    return names.join(" ");
}

// Has the kit take the last changes together.
void storeNow(const KitProgram &program)
{
    QCloseEvent event;
    QCoreApplication::sendEvent(program.window(), &event);
}

void moveTo(const KitProgram &program, Qt::ToolBarArea area, const QString &toolBar)
{
    program.window()->addToolBar(area, program.toolBar(toolBar));
}

void buildWithPlugin(QMainWindow *window)
{
    KitProgram::buildDefault(window);
    QToolBar *const plugin = window->addToolBar("Plugin");
    plugin->setObjectName("plugin");
    addAction(plugin, "tool");
}

KitLayout layoutOf(const QString &title)
{
    KitLayout layout;
    layout.toolBars["mine"].custom = true;
    layout.toolBars["mine"].title = title;
    return layout;
}

// One step for each title.
LayoutHistory historyOf(const QStringList &titles)
{
    LayoutHistory history;
    for (const QString &title : titles)
        history.record(layoutOf(title));
    return history;
}

// The titles that undoing leads to, one after the other.
QStringList undone(LayoutHistory history)
{
    QStringList titles;
    KitLayout layout = layoutOf("now");
    while (history.canUndo()) {
        history.undo(&layout);
        titles << layout.toolBars.value("mine").title;
    }
    return titles;
}

} // namespace

void tst_LayoutHistory::thereIsNothingToUndoAtFirst()
{
    KitProgram program;
    program.start();
    QCOMPARE(possible(program), QString());
    QCOMPARE(program.kit()->undoAction()->objectName(), QString("undoToolBars"));
    QCOMPARE(program.kit()->redoAction()->objectName(), QString("redoToolBars"));
    QCOMPARE(program.kit()->undoAction()->text(), QString("Undo Toolbar Change"));
    QCOMPARE(program.kit()->redoAction()->text(), QString("Redo Toolbar Change"));
    QVERIFY(program.kit()->undoAction()->shortcut().isEmpty());
    QVERIFY(program.kit()->redoAction()->shortcut().isEmpty());
    QCOMPARE(program.kit()->undoAction()->parent(), program.kit());
    program.edit("edit", "cut | copy");
    QCOMPARE(possible(program), QString());
    program.end();
    QCOMPARE(program.settings->allKeys(), QStringList("toolBars.dialog")); // its size
}

void tst_LayoutHistory::okIsOneStep()
{
    KitProgram program;
    program.start();
    program.apply([&](RyToolBarManager *manager) {
        manager->setToolBar(program.toolBar("edit"), program.actionsOf("paste"));
        manager->setToolBar(program.toolBar("file"), program.actionsOf("save"));
    });
    QCOMPARE(possible(program), QString("undo"));
    const QString stored = program.stored();
    program.layoutChanges = 0;
    undo(program);
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    QCOMPARE(possible(program), QString("redo"));
    QCOMPARE(program.layoutChanges, 1);
    QVERIFY(program.kit()->isDefault());
    QCOMPARE(program.stored().toUtf8(), program.kit()->saveLayout());
    redo(program);
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: save"}));
    QCOMPARE(possible(program), QString("undo"));
    QCOMPARE(program.layoutChanges, 2);
    QCOMPARE(program.stored(), stored);
    QCOMPARE(program.customizations, 1);
}

void tst_LayoutHistory::applyIsOneStep()
{
    KitProgram program;
    program.start();
    RyCustomizedDialog *const dialog = program.openDialog();
    EditorViews editor(dialog);
    editor.click(editor.toolBarList, "File");
    for (int i = 0; i < 2; ++i) {
        editor.click(editor.leftButton);
        QTest::mouseClick(dialog->applyButton(), Qt::LeftButton);
    }
    dialog->reject();
    QCOMPARE(program.content("file"), QString("save"));
    undo(program);
    QCOMPARE(program.content("file"), QString("open save"));
    undo(program);
    QCOMPARE(program.content("file"), QString("new open save"));
    QCOMPARE(possible(program), QString("redo"));
}

void tst_LayoutHistory::restoreDefaultsIsOneStep()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    program.create("Mine", "open");
    program.restoreDefaults();
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    undo(program);
    QCOMPARE(program.contents(),
             QStringList({"_Custom_Toolbar_1: open", "edit: paste", "file: new open save"}));
}

void tst_LayoutHistory::movesAreOneStep()
{
    KitProgram program;
    program.start();
    moveTo(program, Qt::LeftToolBarArea, "file");
    moveTo(program, Qt::BottomToolBarArea, "edit");
    QTRY_COMPARE(possible(program), QString("undo"));
    undo(program);
    QCOMPARE(program.places(), QStringList("top: file, edit"));
    QCOMPARE(possible(program), QString("redo"));
    redo(program);
    QCOMPARE(program.places(), QStringList({"bottom: edit", "left: file"}));
}

void tst_LayoutHistory::aMoveThatIsNotStoredYetIsAStep()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    moveTo(program, Qt::LeftToolBarArea, "file");
    undo(program);
    QCOMPARE(program.places(), QStringList("top: file, edit"));
    QCOMPARE(program.content("edit"), QString("paste"));
    moveTo(program, Qt::LeftToolBarArea, "file");
    QCOMPARE(possible(program), QString("undo redo"));
    redo(program);
    QCOMPARE(program.places(), QStringList({"left: file", "top: edit"}));
    QCOMPARE(possible(program), QString("undo"));
}

void tst_LayoutHistory::hidingIsOneStep()
{
    KitProgram program;
    program.start();
    program.toolBar("file")->toggleViewAction()->trigger();
    storeNow(program);
    undo(program);
    QVERIFY(program.toolBar("file")->isVisible());
    QVERIFY(program.toolBar("file")->toggleViewAction()->isChecked());
    redo(program);
    QVERIFY(program.toolBar("file")->isHidden());
}

void tst_LayoutHistory::hidingAndShowingIsNoStep()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->findChild<QToolBar *>("file")->hide();
    });
    for (int i = 0; i < 2; ++i)
        program.toolBar("file")->toggleViewAction()->trigger();
    storeNow(program);
    QCOMPARE(possible(program), QString());
}

void tst_LayoutHistory::createdToolBarsGoAndComeBack()
{
    KitProgram program;
    program.start();
    program.create("Mine", "open | paste");
    moveTo(program, Qt::LeftToolBarArea, "_Custom_Toolbar_1");
    storeNow(program);
    undo(program);
    undo(program);
    QVERIFY(!program.toolBar("_Custom_Toolbar_1"));
    QVERIFY(program.kit()->isDefault());
    redo(program);
    redo(program);
    QCOMPARE(program.content("_Custom_Toolbar_1"), QString("open | paste"));
    QCOMPARE(program.toolBar("_Custom_Toolbar_1")->windowTitle(), QString("Mine"));
    QCOMPARE(program.places(), QStringList({"left: _Custom_Toolbar_1", "top: file, edit"}));
}

void tst_LayoutHistory::removedToolBarsComeBack()
{
    KitProgram program;
    program.start();
    program.create("Mine", "open | paste");
    moveTo(program, Qt::LeftToolBarArea, "_Custom_Toolbar_1");
    program.remove("_Custom_Toolbar_1");
    undo(program);
    QCOMPARE(program.content("_Custom_Toolbar_1"), QString("open | paste"));
    QCOMPARE(program.toolBar("_Custom_Toolbar_1")->windowTitle(), QString("Mine"));
}

void tst_LayoutHistory::thereAreTwentySteps()
{
    KitProgram program;
    program.start();
    for (int i = 0; i < 25; ++i)
        program.edit("edit", i % 2 == 0 ? "paste" : "cut");
    for (int i = 0; i < 19; ++i)
        undo(program);
    QCOMPARE(possible(program), QString("undo redo"));
    QCOMPARE(program.content("edit"), QString("cut"));
    undo(program);
    QCOMPARE(possible(program), QString("redo"));
    QCOMPARE(program.content("edit"), QString("paste"));
    for (int i = 0; i < 20; ++i)
        redo(program);
    QCOMPARE(possible(program), QString("undo"));
    QCOMPARE(program.content("edit"), QString("paste"));
}

void tst_LayoutHistory::stepsAreKeptOverRestarts()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    program.edit("file", "save");
    program.start();
    QCOMPARE(possible(program), QString("undo"));
    undo(program);
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: new open save"}));
    program.start();
    QCOMPARE(possible(program), QString("undo redo"));
    undo(program);
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    program.start();
    redo(program);
    redo(program);
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: save"}));
}

// Without another change that stores the steps.
void tst_LayoutHistory::movesAreStepsAfterARestartToo()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    moveTo(program, Qt::LeftToolBarArea, "file");
    QTRY_VERIFY(program.stored().contains("left"));
    program.start();
    undo(program);
    QCOMPARE(program.places(), QStringList("top: file, edit"));
    QCOMPARE(program.content("edit"), QString("paste"));
}

void tst_LayoutHistory::aChangeClearsWhatCanBeRedone()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    undo(program);
    program.edit("file", "save");
    QCOMPARE(possible(program), QString("undo"));
    undo(program);
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    QCOMPARE(possible(program), QString("redo"));
}

void tst_LayoutHistory::whatTheProgramChangesIsNoStep()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    undo(program);
    redo(program);
    addAction(program.toolBar("file"), "late");
    letTheKitFollow();
    QToolBar *const plugin = program.window()->addToolBar("Plugin");
    plugin->setObjectName("plugin");
    letTheKitFollow();
    program.kit()->addActions({addAction(program.window(), "handed")}, "Plugin");
    program.kit()->setFormerNames(program.action("handed"), {"save"});
    storeNow(program);
    undo(program);
    QCOMPARE(possible(program), QString("redo"));
    QCOMPARE(program.content("file"), QString("new open save late"));
}

void tst_LayoutHistory::whatTheProgramChangesStays()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    addAction(program.toolBar("file"), "late");
    program.toolBar("edit")->removeAction(program.action("cut"));
    program.toolBar("edit")->hide();
    letTheKitFollow();
    undo(program);
    QCOMPARE(program.contents(), QStringList({"edit: | copy", "file: new open save late"}));
    QVERIFY(program.toolBar("edit")->isHidden());
    redo(program);
    QCOMPARE(program.content("file"), QString("save late"));
    QVERIFY(program.toolBar("edit")->isHidden());
}

void tst_LayoutHistory::whatTheUserDidBeforeTheProgramIsAStep()
{
    KitProgram program;
    program.start();
    program.toolBar("edit")->toggleViewAction()->trigger();
    addAction(program.toolBar("file"), "late");
    letTheKitFollow();
    undo(program);
    QVERIFY(program.toolBar("edit")->isVisible());
    program.toolBar("edit")->toggleViewAction()->trigger();
    delete program.toolBar("file");
    letTheKitFollow();
    QVERIFY(program.toolBar("edit")->isHidden());
    undo(program);
    QVERIFY(program.toolBar("edit")->isVisible());
}

void tst_LayoutHistory::aToolBarThatIsNotLoadedKeepsItsLayout()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    program.start(buildWithPlugin);
    program.edit("plugin", "open tool");
    program.start();
    program.edit("edit", "paste");
    undo(program);
    redo(program);
    undo(program);
    program.start(buildWithPlugin);
    QCOMPARE(program.contents(),
             QStringList({"edit: cut | copy", "file: save", "plugin: open tool"}));
}

void tst_LayoutHistory::aToolBarOfTheStepThatIsNotLoadedIsUndone()
{
    KitProgram program;
    program.start(buildWithPlugin);
    program.edit("plugin", "open tool");
    program.start();
    undo(program);
    program.start(buildWithPlugin);
    QCOMPARE(program.content("plugin"), QString("tool"));
    program.start();
    redo(program);
    program.start(buildWithPlugin);
    QCOMPARE(program.content("plugin"), QString("open tool"));
}

void tst_LayoutHistory::aToolBarWithANewNameIsFollowed()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    program.edit("file", "open");
    undo(program);
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->findChild<QToolBar *>("file")->setObjectName("document");
        program.kit()->setFormerNames(window->findChild<QToolBar *>("document"), {"file"});
    });
    QCOMPARE(program.content("document"), QString("save"));
    undo(program);
    QCOMPARE(program.content("document"), QString("new open save"));
    redo(program);
    QCOMPARE(program.content("document"), QString("save"));
    redo(program);
    QCOMPARE(program.content("document"), QString("open"));
}

// The layout is the default in that release already, but not what is stored.
void tst_LayoutHistory::whatAnotherReleaseHasByDefaultIsUndoneForTheOthers()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QToolBar *const file = window->findChild<QToolBar *>("file");
        for (const char *name : {"new", "open"})
            file->removeAction(window->findChild<QAction *>(name));
    });
    QVERIFY(program.kit()->isDefault());
    undo(program);
    QCOMPARE(program.stored().toUtf8(), program.kit()->saveLayout());
    program.start();
    QCOMPARE(program.content("file"), QString("new open save"));
}

void tst_LayoutHistory::aDeletedToolBarChangesNothing()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    delete program.toolBar("file");
    undo(program);
    QCOMPARE(program.contents(), QStringList("edit: cut | copy"));
}

// It returns only at the next start.
void tst_LayoutHistory::aRequiredActionMayBeUndone()
{
    KitProgram program;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.kit()->setRequired(window->findChild<QAction *>("cut"));
    });
    program.edit("edit", "paste");
    undo(program);
    redo(program);
    QCOMPARE(program.content("edit"), QString("paste"));
}

void tst_LayoutHistory::windowsWithTheSameKeyHaveTheSameSteps()
{
    KitProgram program;
    KitProgram other;
    other.shareSettings(program);
    program.start();
    other.start();
    program.edit("edit", "paste");
    QCOMPARE(possible(other), QString("undo"));
    other.layoutChanges = 0;
    program.layoutChanges = 0;
    undo(other);
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    QCOMPARE(possible(program), QString("redo"));
    QCOMPARE(other.layoutChanges, 1);
    QCOMPARE(program.layoutChanges, 1);
    redo(program);
    QCOMPARE(other.content("edit"), QString("paste"));
    QCOMPARE(possible(other), QString("undo"));
    storeNow(other);
    QCOMPARE(possible(other), QString("undo"));
}

// Even if its own window has no change.
void tst_LayoutHistory::theLastOkSetsTheSteps()
{
    KitProgram program;
    KitProgram other;
    other.shareSettings(program);
    program.start();
    other.start();
    program.edit("edit", "paste");
    moveTo(other, Qt::LeftToolBarArea, "file");
    storeNow(other);
    const QString steps = program.settings->value(StepsKey).toString();
    program.edit("edit", "paste");
    QCOMPARE(other.places(), QStringList("top: file, edit"));
    QVERIFY(program.settings->value(StepsKey).toString() != steps);
    undo(other);
    QCOMPARE(other.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    QCOMPARE(possible(other), QString("redo"));
    program.end();
    other.start();
    QCOMPARE(possible(other), QString("redo"));
}

void tst_LayoutHistory::aWindowThatDoesNotFollowKeepsItsSteps()
{
    KitProgram program;
    KitProgram other;
    other.shareSettings(program);
    program.start();
    other.start();
    program.kit()->setFeatures(program.kit()->features() & ~RyToolBarKit::FollowOthers);
    program.edit("edit", "paste");
    other.edit("file", "save");
    undo(program);
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    QCOMPARE(other.contents(), QStringList({"edit: cut | copy", "file: save"}));
    QCOMPARE(possible(other), QString("undo"));
}

void tst_LayoutHistory::restoreLayoutIsAStep()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    const QByteArray layout = program.kit()->saveLayout();
    program.edit("file", "save");
    moveTo(program, Qt::LeftToolBarArea, "file");
    QVERIFY(program.kit()->restoreLayout(layout));
    QCOMPARE(program.content("file"), QString("new open save"));
    undo(program);
    QCOMPARE(program.content("file"), QString("save"));
    QCOMPARE(program.places(), QStringList({"left: file", "top: edit"}));
    undo(program);
    QCOMPARE(program.places(), QStringList("top: file, edit"));
    QCOMPARE(program.content("file"), QString("save"));
}

void tst_LayoutHistory::theFirstLayoutIsNoStep()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    const QByteArray layout = program.kit()->saveLayout();
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QVERIFY(program.kit()->restoreLayout(layout));
    });
    QCOMPARE(program.content("edit"), QString("paste"));
    QCOMPARE(possible(program), QString());
    program.edit("file", "save");
    undo(program);
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: new open save"}));
}

void tst_LayoutHistory::aRefusedLayoutIsNoStep()
{
    KitProgram program;
    program.start();
    QVERIFY(!program.kit()->restoreLayout("x"));
    QCOMPARE(possible(program), QString());
}

void tst_LayoutHistory::aRefusedLayoutBreaksNoStep()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    program.edit("edit", "paste");
    program.end();
    program.store("x");
    program.settings->setValue("toolBars.format1", "y");
    program.start();
    QCOMPARE(program.refusals.size(), 2);
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    QCOMPARE(possible(program), QString("undo"));
    undo(program);
    undo(program);
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    redo(program);
    redo(program);
    QCOMPARE(possible(program), QString("undo"));
}

// What another program has stored for other toolbars stays.
void tst_LayoutHistory::onlyWhatTheStepChangedIsUndone()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    program.end();
    const QVariant steps = program.settings->value(StepsKey);
    program.start();
    program.edit("edit", "paste");
    program.edit("file", "open");
    program.end();
    program.settings->setValue(StepsKey, steps);
    program.start();
    undo(program);
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: new open save"}));
    redo(program);
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: open"}));
}

// Not even if the program has added a toolbar while the user's was there.
void tst_LayoutHistory::aRemovedToolBarLeavesNoPlace()
{
    const auto addLate = [](QMainWindow *window) {
        window->addToolBar("Late")->setObjectName("late");
    };
    KitProgram program;
    program.start();
    const QString name = program.create("Mine", "cut");
    addLate(program.window());
    letTheKitFollow();
    program.remove(name);
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        addLate(window);
    });
    const QByteArray removed = program.kit()->saveLayout();
    undo(program);
    redo(program);
    QCOMPARE(program.kit()->saveLayout(), removed);
}

void tst_LayoutHistory::theDialogShowsWhatWasUndone()
{
    KitProgram program;
    program.start();
    program.create("Mine", "open");
    program.edit("file", "save");
    RyCustomizedDialog *const dialog = program.openDialog();
    EditorViews editor(dialog);
    undo(program);
    editor.click(editor.toolBarList, "File");
    QCOMPARE(editor.currentToolBarList->count(), 3);
    undo(program);
    QCOMPARE(editor.toolBarList->count(), 2);
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    QCOMPARE(possible(program), QString("redo"));
}

void tst_LayoutHistory::withoutStoreChangesStepsAreOnlyRead()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    const QVariant steps = program.settings->value(StepsKey);
    program.start();
    program.kit()->setFeatures(program.kit()->features() & ~RyToolBarKit::StoreChanges);
    undo(program);
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    program.end();
    QCOMPARE(program.settings->value(StepsKey), steps);
}

void tst_LayoutHistory::withoutASettingStepsAreKeptInMemory()
{
    KitProgram program;
    program.key = QString();
    program.start();
    program.edit("edit", "paste");
    undo(program);
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    program.start();
    QCOMPARE(possible(program), QString());
}

void tst_LayoutHistory::stepsAreReadAsTheyWereWritten()
{
    LayoutHistory history = historyOf({"one", "two", "three"});
    KitLayout layout = layoutOf("three");
    history.undo(&layout);
    layout.places.lines["left"] = {{"mine"}};
    layout.toolBars["none"]; // nothing of the user
    history.setBase(layoutOf("two"));
    QVERIFY(history.isChanged());
    const QByteArray written = history.toJson();
    QVERIFY(!history.isChanged());
    LayoutHistory read = LayoutHistory::fromJson(written);
    QVERIFY(!read.isChanged());
    QCOMPARE(read.toJson(), written);
    read.redo(&layout);
    QCOMPARE(layout.toolBars.value("mine").title, QString("three"));
    QVERIFY(read.isChanged());
    read.undo(&layout);
    QCOMPARE(undone(read), QStringList({"one", QString()}));

    read.setBase(KitLayout());
    read.record(layout);
    read = LayoutHistory::fromJson(read.toJson());
    read.undo(&layout);
    QVERIFY(layout.places.isEmpty());
    QVERIFY(layout.toolBars.isEmpty() || !layout.toolBars.contains("mine"));
}

void tst_LayoutHistory::textThatIsNotUnicodeDoesNotBreakTheSteps()
{
    const QString half(QChar(0xd800));
    LayoutHistory history;
    history.record(layoutOf("one"));
    KitLayout layout = layoutOf(half);
    layout.toolBars[half].visibility = KitToolBar::Hidden;
    layout.places.lines["top"] = {{half}};
    history.record(layout);
    history.record(layoutOf("two"));
    const QString stored = QString::fromUtf8(history.toJson());
    QCOMPARE(undone(LayoutHistory::fromJson(stored.toUtf8())).size(), 3);
}

void tst_LayoutHistory::everyShorterTextHasNoSteps()
{
    const QByteArray written = historyOf({"one", "two"}).toJson();
    QVERIFY(LayoutHistory::fromJson(written).canUndo());
    for (int size = 0; size < written.size(); ++size)
        QVERIFY2(!LayoutHistory::fromJson(written.left(size)).canUndo(), qPrintable(written));
}

void tst_LayoutHistory::everyChangedByteIsNoticed()
{
    const QByteArray written = historyOf({"one", "two"}).toJson();
    const QStringList expected = undone(LayoutHistory::fromJson(written));
    QCOMPARE(expected, QStringList({"one", QString()}));
    for (int i = 0; i < written.size(); ++i) {
        QByteArray changed = written;
        changed[i] = changed.at(i) == '1' ? '2' : '1';
        const QStringList steps = undone(LayoutHistory::fromJson(changed));
        QVERIFY2(steps.isEmpty(), changed.constData());
    }
}

void tst_LayoutHistory::stepsOfANewerFormatAreLeftOut()
{
    QByteArray written = historyOf({"one"}).toJson();
    const int index = int(written.lastIndexOf("\"format\":1,\"steps\""));
    QVERIFY(index > 0);
    QVERIFY(LayoutHistory::fromJson(written).canUndo());
    written.replace(index, 10, "\"format\":2");
    QVERIFY(!LayoutHistory::fromJson(written).canUndo());
}

void tst_LayoutHistory::textThatIsTooLargeHasNoSteps()
{
    const QByteArray written = historyOf({"one"}).toJson();
    const QByteArray blanks(1000000 - int(written.size()), ' ');
    QVERIFY(LayoutHistory::fromJson(written + blanks).canUndo());
    QVERIFY(!LayoutHistory::fromJson(written + blanks + ' ').canUndo());
}

void tst_LayoutHistory::theOldestStepsAreLeftOutIfAllAreTooLarge()
{
    QStringList titles;
    for (int i = 0; i < 5; ++i)
        titles << QString(300000, QChar('0' + i));
    LayoutHistory history = historyOf(titles);
    const QByteArray written = history.toJson();
    QVERIFY(written.size() <= 1000000);
    QCOMPARE(undone(LayoutHistory::fromJson(written)),
             QStringList({titles.at(3), titles.at(2), titles.at(1)}));
    QCOMPARE(undone(history).size(), 5);
    KitLayout layout = layoutOf(titles.at(4));
    for (int i = 0; i < 5; ++i)
        history.undo(&layout);
    history = LayoutHistory::fromJson(history.toJson());
    for (int i = 0; i < 3; ++i) {
        QVERIFY(history.canRedo());
        history.redo(&layout);
        QCOMPARE(layout.toolBars.value("mine").title, titles.at(i));
    }
    QVERIFY(!history.canRedo());
}

void tst_LayoutHistory::onlyTwentyStepsAreRead()
{
    QStringList titles;
    for (int i = 0; i < 20; ++i)
        titles << QString::number(i);
    QJsonObject value = QJsonDocument::fromJson(historyOf(titles).toJson()).object();
    QJsonObject steps = value.value("steps").toObject();
    QJsonArray undo = steps.value("undo").toArray();
    undo.append(undo.last());
    steps.insert("undo", undo);
    value.insert("steps", steps);
    const QByteArray compact = QJsonDocument(steps).toJson(QJsonDocument::Compact);
    value.insert("checksum",
                 QString(QCryptographicHash::hash(compact, QCryptographicHash::Sha1).toHex()));
    const QStringList read = undone(LayoutHistory::fromJson(QJsonDocument(value).toJson()));
    QCOMPARE(read.size(), 20);
    QCOMPARE(read.last(), QString("0"));
}

QTEST_MAIN(tst_LayoutHistory)
#include "tst_layouthistory.moc"
