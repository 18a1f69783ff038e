// SPDX-License-Identifier: MIT

#include "host.h"
#include "hostcalls.h"
#include "nextmodal.h"
#include "recordingtranslator.h"
#include "showneditor.h"
#include "testcase.h"
#include "texts.h"
#include "toolbaritem.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QProxyStyle>
#include <QWidgetAction>
#include <QtTest>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <malloc.h>
#include <memory>
#include <new>

namespace {

class FilledHost : public Host
{
public:
    FilledHost()
        : file(defaultToolBar("file", words("open | save"), "Files"))
    {
        for (const char *name : {"copy", "cut", "paste"})
            registered(name, "Edits");
        mine = customToolBar(*this, "Mine", words("cut | copy"));
        yours = customToolBar(*this, "Yours", words("paste"));
    }

    QToolBar *file;
    QPointer<QToolBar> mine;
    QPointer<QToolBar> yours;
};

QStringList lines(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list << QString::fromUtf8(text);
    return list;
}

ToolBarItem *createRecord(RyCToolBarWidget &widget, QToolBar *toolBar);
void deleteRecord(RyCToolBarWidget &widget, ToolBarItem *record);

// The arguments of an explicit instantiation may name private members.
template <ToolBarItem *(RyCToolBarWidget::*Create)(QToolBar *),
          void (RyCToolBarWidget::*Delete)(ToolBarItem *)>
struct RecordFunctions
{
    friend ToolBarItem *createRecord(RyCToolBarWidget &widget, QToolBar *toolBar)
    {
        return (widget.*Create)(toolBar);
    }
    friend void deleteRecord(RyCToolBarWidget &widget, ToolBarItem *record)
    {
        (widget.*Delete)(record);
    }
};

template struct RecordFunctions<&RyCToolBarWidget::createItem, &RyCToolBarWidget::deleteItem>;

// One edit of each kind: "Yours" goes, "Mine" loses its first entry, and a new toolbar gets one.
void removeEditAndCreate(ShownEditor &editor)
{
    editor.selectToolBar("Yours");
    editor.call("removeClicked");
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    editor.call("newClicked");
    editor.call("rightClicked");
}

// Memory that is kept when it is freed, to be given to the next object of that size.
struct Memory
{
    void *kept;
    std::size_t size;
    bool isFreed;
} memory = {nullptr, 0, false};

// Creates a toolbar, certainly at the address of the one that the call deletes.
QToolBar *reborn(Host &host, QToolBar *toolBar, const std::function<void()> &deletion)
{
    memory = {toolBar, sizeof(QToolBar), false};
    deletion();
    QToolBar *const created = host.manager.createToolBar("Reborn");
    QTest::qCompare(created, toolBar, "created", "deleted", __FILE__, __LINE__);
    memory = {nullptr, 0, false};
    return created;
}

QToolBar *reborn(Host &host, QToolBar *toolBar)
{
    return reborn(host, toolBar, [&] { host.manager.deleteToolBar(toolBar); });
}

} // namespace

void *operator new(std::size_t size)
{
    if (memory.isFreed && size == memory.size) {
        memory.isFreed = false;
        return memory.kept;
    }
    if (void *const block = std::malloc(size ? size : 1))
        return block;
    throw std::bad_alloc();
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return std::malloc(size ? size : 1);
}

// Overwrites what is freed, so that its use shows without a sanitizer as well.
void operator delete(void *block) noexcept
{
    if (!block)
        return;
    if (block == memory.kept) {
        memory.isFreed = true;
    } else {
        // Compilers leave out what is written before free().
        static void *(*volatile const overwrite)(void *, int, std::size_t) = std::memset;
        overwrite(block, 0xdd, malloc_usable_size(block));
        std::free(block);
    }
}

void operator delete(void *block, std::size_t) noexcept
{
    operator delete(block);
}

class tst_RyCToolBarWidget_Hosts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aDeletedToolBarIsLeftAlone_data();
    void aDeletedToolBarIsLeftAlone();
    void aNewToolBarAtTheAddressOfADeletedOneIsLeftAlone_data();
    void aNewToolBarAtTheAddressOfADeletedOneIsLeftAlone();
    void aNewToolBarAtTheAddressOfACreatedOneIsLeftAlone();
    void aDefaultToolBarAtTheAddressOfADeletedOneIsNotReset_data();
    void aDefaultToolBarAtTheAddressOfADeletedOneIsNotReset();
    void aToolBarDeletedByItsOwnWindowIsLeftAlone();

    void aDeletedActionIsShownAsBefore();
    void aDeletedActionThatHasNoTreeItemIsShownWithoutText();
    void aDeletedActionIsNotLookedUpWhileTheEditorIsEmptied();
    void aDeletedActionIsLeftOutOfTheApply();
    void changesOfActionsAreShownOnlyByNewEntries();
    void anActionThatIsDisabledOrHiddenIsStillPlaced();
    void anActionThatBecameASeparatorIsStillAnAction();

    void theEditorMayBeHiddenWhileItApplies();
    void theEditorMayBeShownAgainWhileItApplies();
    void theEditorMayBeDeletedWhileItApplies_data();
    void theEditorMayBeDeletedWhileItApplies();
    void anApplyDuringTheApplyCreatesNothingTwice();
    void restoringDefaultsDuringTheApplyKeepsWhatIsApplied();
    void aCreatedToolBarMayBeRemovedWhileItIsApplied_data();
    void aCreatedToolBarMayBeRemovedWhileItIsApplied();
    void aNewRecordAtTheAddressOfACreatedOneKeepsItsToolBar();
    void aNewRecordAtTheAddressOfAFreedOneHasNoToolBar_data();
    void aNewRecordAtTheAddressOfAFreedOneHasNoToolBar();
    void aToolBarDeletedDuringTheApplyIsNotTitled();
    void toolBarsDeletedDuringTheApplyAreLeftAlone();
    void aMessageBoxDuringTheApplyLosesNothing();
    void restoringAStateDuringTheApplyLosesNoToolBar();
    void anyEditDuringTheApplyKeepsTheEditorConsistent_data();
    void anyEditDuringTheApplyKeepsTheEditorConsistent();

    void twoEditorsOfOneManagerWriteWhatEachShows();
    void aToolBarRemovedInOneEditorIsLeftAloneByTheOther();
    void theManagerMayGoBeforeAShownEditor();

    void theApplyLeavesAreaAndVisibilityAlone();
    void theApplyReachesToolBarsInAnotherWindow();
    void theApplyReachesFloatingToolBars();
    void aWidgetOnAToolBarSurvivesTheApply();
    void aWidgetOfTwoToolBarsStaysWhereItWas();
    void aCreatedWidgetStandsOnEachToolBar();

    void changesOfTheAppearanceKeepTheEdits_data();
    void changesOfTheAppearanceKeepTheEdits();
    void anotherLanguageKeepsTheEditsAndTheTexts();
    void becomingAnotherWindowDiscardsTheEdits();
};

void tst_RyCToolBarWidget_Hosts::aDeletedToolBarIsLeftAlone_data()
{
    QTest::addColumn<bool>("isCurrent");
    QTest::newRow("the current one") << true;
    QTest::newRow("another one") << false;
}

void tst_RyCToolBarWidget_Hosts::aDeletedToolBarIsLeftAlone()
{
    QFETCH(bool, isCurrent);
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(isCurrent ? "Mine" : "File");
    host.manager.deleteToolBar(host.mine);
    for (const char *slot : {"rightClicked", "upClicked", "downClicked", "leftClicked"})
        editor.call(slot);
    editor.selectToolBar("File");
    editor.selectToolBar("Mine");
    editor.call("renameClicked");
    editor.views.typeName("Ours");
    editor.widget.applyClicked();
    QCOMPARE(editor.inconsistency(), QString());
    editor.call("removeClicked");
    // Nothing is left of it: there is nothing to delete at the next apply.
    QCOMPARE(EditorFields::of(editor.widget).removedRecords.size(), 0);
    QCOMPARE(EditorFields::of(editor.widget).ownedRecords.size(), 2);
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.defaultClicked();
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), lines({"File: open | save"}));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Hosts::aNewToolBarAtTheAddressOfADeletedOneIsLeftAlone_data()
{
    QTest::addColumn<bool>("removed");
    QTest::newRow("edited") << false;
    QTest::newRow("removed in the editor") << true;
}

void tst_RyCToolBarWidget_Hosts::aNewToolBarAtTheAddressOfADeletedOneIsLeftAlone()
{
    QFETCH(bool, removed);
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.call(removed ? "removeClicked" : "leftClicked");
    QToolBar *const other = reborn(host, host.mine);
    host.manager.setToolBar(other, host.list(words("open | paste")));
    const QStringList before = toolBarsOf(host.manager);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
    if (!removed) {
        editor.selectToolBar("Mine");
        editor.call("removeClicked");
    }
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
    QCOMPARE(editor.inconsistency(), QString());
}

// Created in the editor, applied, and then deleted by the host.
void tst_RyCToolBarWidget_Hosts::aNewToolBarAtTheAddressOfACreatedOneIsLeftAlone()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.call("newClicked");
    editor.call("rightClicked");
    editor.widget.applyClicked();
    reborn(host, EditorFields::of(editor.widget).currentRecord->toolBar());
    const QStringList before = toolBarsOf(host.manager);
    editor.widget.applyClicked();
    editor.call("removeClicked");
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Hosts::aDefaultToolBarAtTheAddressOfADeletedOneIsNotReset_data()
{
    QTest::addColumn<bool>("byTheEditor");
    QTest::newRow("deleted by the host") << false;
    QTest::newRow("deleted by the editor") << true;
}

void tst_RyCToolBarWidget_Hosts::aDefaultToolBarAtTheAddressOfADeletedOneIsNotReset()
{
    QFETCH(bool, byTheEditor);
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    const auto byEditor = [&] {
        editor.call("removeClicked");
        editor.widget.applyClicked();
    };
    QToolBar *const other =
        byTheEditor ? reborn(host, host.mine, byEditor) : reborn(host, host.mine);
    host.manager.removeDefaultToolBar(other);
    other->addAction(host.action("open"));
    host.manager.addDefaultToolBar(other, "Late");
    host.manager.setToolBar(other, host.list(words("paste")));
    editor.widget.defaultClicked();
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(editor.workingCopy(), lines({"File: open | save"}));
    editor.widget.applyClicked();
    QCOMPARE(contentOf(host.manager.actions(other)), words("paste"));
}

void tst_RyCToolBarWidget_Hosts::aToolBarDeletedByItsOwnWindowIsLeftAlone()
{
    FilledHost host;
    std::unique_ptr<QMainWindow> second(new QMainWindow);
    host.manager.setMainWindow(second.get());
    QPointer<QToolBar> far = customToolBar(host, "Far", words("cut"));
    ShownEditor editor(&host.manager);
    host.manager.deleteToolBar(far);
    second.reset();
    host.manager.setMainWindow(&host.window);
    editor.selectToolBar("Far");
    editor.call("leftClicked");
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             lines({"File: open | save", "Mine: cut | copy", "Yours: paste"}));
}

void tst_RyCToolBarWidget_Hosts::aDeletedActionIsShownAsBefore()
{
    FilledHost host;
    QAction *const cut = host.action("cut");
    const QIcon icon(QPixmap(16, 16));
    cut->setIcon(icon);
    ShownEditor editor(&host.manager);
    editor.selectToolBar("File");
    host.manager.removeAction(cut);
    delete cut;
    editor.selectToolBar("Mine");
    QCOMPARE(rowsOf(editor.views.currentToolBarList),
             lines({"Cut", "< S E P A R A T O R >", "Copy"}));
    QCOMPARE(editor.views.currentToolBarList->item(0)->icon().cacheKey(), icon.cacheKey());
    editor.selectToolBar("Yours");
    editor.selectAction("Cut");
    editor.call("rightClicked");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), lines({"Paste", "Cut"}));
    editor.call("upClicked");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), lines({"Cut", "Paste"}));
}

void tst_RyCToolBarWidget_Hosts::aDeletedActionThatHasNoTreeItemIsShownWithoutText()
{
    FilledHost host;
    // Takes the actions out of their category, but not off their toolbars.
    host.manager.addCategory("Edits");
    ShownEditor editor(&host.manager);
    editor.selectToolBar("File");
    QAction *const cut = host.action("cut");
    host.manager.removeAction(cut);
    delete cut;
    editor.selectToolBar("Mine");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), lines({"", "< S E P A R A T O R >", "Copy"}));
    QCOMPARE(editor.inconsistency(), QString());
}

// As when a button loses the focus to the toolbar list, because it is disabled.
void tst_RyCToolBarWidget_Hosts::aDeletedActionIsNotLookedUpWhileTheEditorIsEmptied()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("File");
    QAction *const cut = host.action("cut");
    host.manager.removeAction(cut);
    delete cut;
    int entries = 0;
    const QObject listening;
    connect(editor.views.actionTree->model(), &QAbstractItemModel::modelReset, &listening, [&] {
        editor.selectToolBar("Mine");
        entries += editor.views.currentToolBarList->count();
    });
    editor.widget.hide();
    QCOMPARE(entries, 3);
    QCOMPARE(editor.workingCopy(), QStringList());
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Hosts::aDeletedActionIsLeftOutOfTheApply()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    QAction *const cut = host.action("cut");
    host.manager.removeAction(cut);
    delete cut;
    editor.selectToolBar("Yours");
    editor.selectAction("Cut");
    editor.call("rightClicked");
    editor.call("newClicked");
    editor.call("rightClicked");
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar:", "File: open | save", "Mine: | copy", "Yours: paste"}));
}

void tst_RyCToolBarWidget_Hosts::changesOfActionsAreShownOnlyByNewEntries()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    QAction *const cut = host.action("cut");
    cut->setText("Snip");
    cut->setObjectName("snip");
    QCOMPARE(rowsOf(editor.views.currentToolBarList).constFirst(), "Cut");
    QVERIFY(itemNamed(editor.views.actionTree, "Cut"));
    editor.selectToolBar("File");
    editor.selectAction("Cut");
    editor.call("rightClicked");
    QCOMPARE(rowsOf(editor.views.currentToolBarList),
             lines({"Open", "Snip", "< S E P A R A T O R >", "Save"}));
    editor.selectToolBar("Mine");
    QCOMPARE(rowsOf(editor.views.currentToolBarList).constFirst(), "Snip");
    editor.widget.applyClicked();
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("open snip | save"));
    QCOMPARE(host.manager.findAction("snip"), cut);
}

void tst_RyCToolBarWidget_Hosts::anActionThatIsDisabledOrHiddenIsStillPlaced()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    host.action("cut")->setEnabled(false);
    host.action("copy")->setVisible(false);
    editor.selectToolBar("Yours");
    for (const char *text : {"Cut", "Copy"}) {
        editor.selectAction(text);
        editor.call("rightClicked");
    }
    editor.widget.applyClicked();
    QCOMPARE(contentOf(host.manager.actions(host.yours)), words("paste cut copy"));
    QVERIFY(!host.action("cut")->isEnabled());
    QVERIFY(!host.action("copy")->isVisible());
}

void tst_RyCToolBarWidget_Hosts::anActionThatBecameASeparatorIsStillAnAction()
{
    FilledHost host;
    const QPointer<QAction> cut = host.action("cut");
    ShownEditor editor(&host.manager);
    cut->setSeparator(true);
    editor.selectToolBar("Yours");
    editor.selectAction("Cut");
    editor.call("rightClicked");
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    editor.widget.applyClicked();
    QVERIFY(cut);
    QCOMPARE(contentOf(host.manager.actions(host.yours)), words("paste cut"));
    QCOMPARE(contentOf(host.manager.actions(host.mine)), words("| copy"));
    cut->setSeparator(false);
    editor.widget.defaultClicked();
    editor.widget.applyClicked();
    QVERIFY(cut);
    QCOMPARE(toolBarsOf(host.manager), lines({"File: open | save"}));
}

void tst_RyCToolBarWidget_Hosts::theEditorMayBeHiddenWhileItApplies()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("File");
    editor.call("leftClicked");
    removeEditAndCreate(editor);
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] { editor.widget.hide(); });
    host.file->installEventFilter(&calls);
    host.mine->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(calls.count(), 1);
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar: |", "File: | save", "Mine: | copy"}));
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(editor.workingCopy(), QStringList());
}

void tst_RyCToolBarWidget_Hosts::theEditorMayBeShownAgainWhileItApplies()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    for (const char *title : {"Mine", "Yours", "File"}) {
        editor.selectToolBar(title);
        editor.call("leftClicked");
    }
    editor.call("newClicked");
    editor.call("rightClicked");
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] {
        editor.widget.hide();
        editor.widget.show();
    });
    for (QToolBar *toolBar : {host.file, host.mine.data(), host.yours.data()})
        toolBar->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(calls.count(), 1);
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar: |", "File: | save", "Mine: | copy", "Yours:"}));
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(editor.workingCopy().size(), 3);
}

void tst_RyCToolBarWidget_Hosts::theEditorMayBeDeletedWhileItApplies_data()
{
    QTest::addColumn<int>("phase");
    QTest::newRow("when a toolbar is changed") << 0;
    QTest::newRow("when a toolbar is deleted") << 1;
    QTest::newRow("when a toolbar is created") << 2;
}

void tst_RyCToolBarWidget_Hosts::theEditorMayBeDeletedWhileItApplies()
{
    QFETCH(int, phase);
    FilledHost host;
    ShownEditor *editor = new ShownEditor(&host.manager);
    removeEditAndCreate(*editor);
    HostCalls calls({phase == 2 ? QEvent::ChildAdded : QEvent::ActionRemoved}, HostCalls::Once,
                    [&] {
                        delete editor;
                        editor = nullptr;
                    });
    QObject *const watched[] = {host.mine, host.yours, &host.window};
    watched[phase]->installEventFilter(&calls);
    editor->widget.applyClicked();
    QVERIFY(!editor);
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar: |", "File: open | save", "Mine: | copy"}));
}

void tst_RyCToolBarWidget_Hosts::anApplyDuringTheApplyCreatesNothingTwice()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    removeEditAndCreate(editor);
    HostCalls calls({QEvent::ActionRemoved, QEvent::ActionAdded, QEvent::ChildAdded},
                    HostCalls::Once, [&] { editor.widget.applyClicked(); });
    host.mine->installEventFilter(&calls);
    host.window.installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(calls.count(), 1);
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar: |", "File: open | save", "Mine: | copy"}));
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(host.manager.toolBars().size(), 3);
}

void tst_RyCToolBarWidget_Hosts::restoringDefaultsDuringTheApplyKeepsWhatIsApplied()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    editor.call("newClicked");
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once,
                    [&] { editor.widget.defaultClicked(); });
    host.mine->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(calls.count(), 1);
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar:", "File: open | save", "Mine: | copy", "Yours: paste"}));
    // The editor has no row for the new one before it is shown again.
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), lines({"Custom Toolbar:", "File: open | save"}));
}

void tst_RyCToolBarWidget_Hosts::aCreatedToolBarMayBeRemovedWhileItIsApplied_data()
{
    QTest::addColumn<bool>("filled");
    QTest::newRow("while it is created") << false;
    QTest::newRow("while it is filled") << true;
}

void tst_RyCToolBarWidget_Hosts::aCreatedToolBarMayBeRemovedWhileItIsApplied()
{
    QFETCH(bool, filled);
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.call("newClicked");
    editor.selectAction("Cut");
    editor.call("rightClicked");
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    HostCalls removal({QEvent::ActionAdded}, HostCalls::Once,
                      [&] { editor.call("removeClicked"); });
    HostCalls creation({QEvent::ChildAdded}, HostCalls::Once, [&] {
        if (filled)
            host.window.children().constLast()->installEventFilter(&removal);
        else
            editor.call("removeClicked");
    });
    host.window.installEventFilter(&creation);
    editor.widget.applyClicked();
    QCOMPARE(removal.count(), filled ? 1 : 0);
    QCOMPARE(creation.count(), 1);
    QVERIFY(!itemNamed(editor.views.toolBarList, "Custom Toolbar"));
    QCOMPARE(editor.inconsistency(), QString());
    const QStringList applied =
        lines({"Custom Toolbar: cut", "File: open | save", "Mine: cut | copy", "Yours: paste"});
    QCOMPARE(toolBarsOf(host.manager), applied);
    // Without a toolbar it is gone for good, with one it goes with the next apply.
    const EditorFields fields = EditorFields::of(editor.widget);
    QCOMPARE(fields.ownedRecords.contains(record), filled);
    QCOMPARE(fields.removedRecords.contains(record), filled);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), applied.mid(filled ? 1 : 0));
    QCOMPARE(editor.inconsistency(), QString());
}

// The record of a created toolbar goes when the working copy is discarded.
void tst_RyCToolBarWidget_Hosts::aNewRecordAtTheAddressOfACreatedOneKeepsItsToolBar()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.call("newClicked");
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    HostCalls calls({QEvent::ChildAdded}, HostCalls::Once, [&] {
        memory = {record, sizeof(ToolBarItem), false};
        editor.call("clearOld");
        QCOMPARE(createRecord(editor.widget, host.file), record);
        memory = {nullptr, 0, false};
    });
    host.window.installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(calls.count(), 1);
    QCOMPARE(record->toolBar(), host.file);
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar:", "File: open | save", "Mine: cut | copy", "Yours: paste"}));
}

void tst_RyCToolBarWidget_Hosts::aNewRecordAtTheAddressOfAFreedOneHasNoToolBar_data()
{
    QTest::addColumn<bool>("alone");
    QTest::newRow("freed alone") << true;
    QTest::newRow("freed with all others") << false;
}

void tst_RyCToolBarWidget_Hosts::aNewRecordAtTheAddressOfAFreedOneHasNoToolBar()
{
    QFETCH(bool, alone);
    FilledHost host;
    ShownEditor editor(&host.manager);
    ToolBarItem *const record = createRecord(editor.widget, host.mine);
    memory = {record, sizeof(ToolBarItem), false};
    if (alone)
        deleteRecord(editor.widget, record);
    else
        editor.call("clearOld");
    editor.call("newClicked");
    memory = {nullptr, 0, false};
    QCOMPARE(EditorFields::of(editor.widget).currentRecord, record);
    // Without a toolbar it is freed at once.
    editor.call("removeClicked");
    QVERIFY(!EditorFields::of(editor.widget).ownedRecords.contains(record));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Hosts::aToolBarDeletedDuringTheApplyIsNotTitled()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    QToolBar *other = nullptr;
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once,
                    [&] { other = reborn(host, host.mine); });
    host.mine->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(other->windowTitle(), "Reborn");
    QCOMPARE(standingOn(other), QStringList());
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::toolBarsDeletedDuringTheApplyAreLeftAlone()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    for (const char *title : {"Mine", "Yours", "File"}) {
        editor.selectToolBar(title);
        editor.call("leftClicked");
    }
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] {
        host.manager.deleteToolBar(host.mine);
        host.manager.deleteToolBar(host.yours);
    });
    for (QToolBar *toolBar : {host.file, host.mine.data(), host.yours.data()})
        toolBar->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), lines({"File: | save"}));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::aMessageBoxDuringTheApplyLosesNothing()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    editor.call("newClicked");
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] {
        const NextModal next([&](QWidget *box) {
            editor.widget.hide();
            host.manager.resetAllToolBars();
            box->close();
        });
        QMessageBox(&host.window).exec();
        QVERIFY(next.wasShown());
    });
    host.mine->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar:", "File: open | save", "Mine: | copy", "Yours: paste"}));
}

void tst_RyCToolBarWidget_Hosts::restoringAStateDuringTheApplyLosesNoToolBar()
{
    FilledHost host;
    const QByteArray state = host.manager.saveState(1);
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    editor.call("newClicked");
    HostCalls calls({QEvent::ActionRemoved, QEvent::ChildAdded}, HostCalls::Always,
                    [&] { QVERIFY(host.manager.restoreState(state, 1)); });
    host.mine->installEventFilter(&calls);
    host.window.installEventFilter(&calls);
    editor.widget.applyClicked();
    QVERIFY(calls.count() >= 2);
    QCOMPARE(host.manager.toolBars().size(), 4);
    QCOMPARE(inconsistencyOf(host.manager), QString());
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Hosts::anyEditDuringTheApplyKeepsTheEditorConsistent_data()
{
    QTest::addColumn<QByteArray>("slot");
    for (const char *slot :
         {"newClicked", "removeClicked", "upClicked", "downClicked", "rightClicked", "leftClicked",
          "defaultClicked", "applyClicked", "setButtons"}) {
        QTest::newRow(slot) << QByteArray(slot);
    }
}

void tst_RyCToolBarWidget_Hosts::anyEditDuringTheApplyKeepsTheEditorConsistent()
{
    QFETCH(QByteArray, slot);
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.call("newClicked");
    editor.call("rightClicked");
    for (const char *title : {"Yours", "File", "Mine"}) {
        editor.selectToolBar(title);
        editor.call("leftClicked");
    }
    HostCalls calls({QEvent::ActionRemoved, QEvent::ActionAdded, QEvent::ChildAdded},
                    HostCalls::Always, [&] {
                        static int depth = 0;
                        if (++depth < 3)
                            editor.call(slot.constData());
                        --depth;
                    });
    for (QObject *object :
         std::initializer_list<QObject *>{host.file, host.mine, host.yours, &host.window})
        object->installEventFilter(&calls);
    editor.widget.applyClicked();
    QVERIFY(calls.count() > 0);
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(inconsistencyOf(host.manager), QString());
    for (QObject *object : std::initializer_list<QObject *>{host.file, &host.window})
        object->removeEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::twoEditorsOfOneManagerWriteWhatEachShows()
{
    FilledHost host;
    ShownEditor first(&host.manager);
    ShownEditor second(&host.manager);
    first.selectToolBar("Mine");
    first.call("leftClicked");
    second.selectToolBar("Yours");
    second.call("rightClicked");
    first.call("newClicked");
    first.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar:", "File: open | save", "Mine: | copy", "Yours: paste"}));
    // The second writes everything as it was when it was shown, but knows no new toolbar.
    second.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar:", "File: open | save", "Mine: cut | copy", "Yours: paste |"}));
    first.call("rightClicked");
    first.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             lines({"Custom Toolbar: |", "File: open | save", "Mine: | copy", "Yours: paste"}));
    QCOMPARE(first.inconsistency(), QString());
    QCOMPARE(second.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Hosts::aToolBarRemovedInOneEditorIsLeftAloneByTheOther()
{
    FilledHost host;
    ShownEditor first(&host.manager);
    ShownEditor second(&host.manager);
    for (ShownEditor *editor : {&first, &second}) {
        editor->selectToolBar("Mine");
        editor->call("removeClicked");
    }
    first.selectToolBar("Yours");
    first.call("removeClicked");
    second.selectToolBar("Yours");
    second.call("rightClicked");
    first.widget.applyClicked();
    second.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), lines({"File: open | save"}));
    second.call("removeClicked");
    second.widget.defaultClicked();
    second.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), lines({"File: open | save"}));
    QCOMPARE(first.inconsistency(), QString());
    QCOMPARE(second.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Hosts::theManagerMayGoBeforeAShownEditor()
{
    QMainWindow window;
    std::unique_ptr<RyToolBarManager> manager(new RyToolBarManager);
    manager->setMainWindow(&window);
    QAction cut("Cut", nullptr);
    manager->addAction(&cut, "Edits");
    manager->setToolBar(manager->createToolBar("Mine"), {&cut});
    std::unique_ptr<ShownEditor> editor(new ShownEditor(manager.get()));
    manager.reset();
    editor->views.toolBarList->setCurrentItem(nullptr);
    editor->selectToolBar("Mine");
    QCOMPARE(rowsOf(editor->views.currentToolBarList), lines({"Cut"}));
    QCOMPARE(editor->views.enabledButtons(), QStringList());
    editor->call("newClicked");
    editor->widget.defaultClicked();
    editor->widget.applyClicked();
    QCOMPARE(editor->workingCopy(), lines({"Mine: \"Cut\""}));
    editor->call("removeClicked");
    QCOMPARE(editor->workingCopy(), QStringList());
    editor->widget.hide();
    editor->widget.show();
    editor->widget.applyClicked();
    QCOMPARE(editor->workingCopy(), QStringList());
    editor.reset();
}

void tst_RyCToolBarWidget_Hosts::theApplyLeavesAreaAndVisibilityAlone()
{
    FilledHost host;
    host.window.addToolBar(Qt::LeftToolBarArea, host.mine);
    host.window.addToolBarBreak(Qt::LeftToolBarArea);
    host.window.addToolBar(Qt::BottomToolBarArea, host.yours);
    host.window.show();
    host.mine->hide();
    ShownEditor editor(&host.manager);
    for (const char *title : {"Mine", "Yours", "File"}) {
        editor.selectToolBar(title);
        editor.call("leftClicked");
    }
    editor.widget.applyClicked();
    QVERIFY(!host.mine->isVisible());
    QVERIFY(host.yours->isVisible());
    QCOMPARE(host.window.toolBarArea(host.mine), Qt::LeftToolBarArea);
    QCOMPARE(host.window.toolBarArea(host.yours), Qt::BottomToolBarArea);
    QCOMPARE(host.mine->orientation(), Qt::Vertical);
    QCOMPARE(toolBarsOf(host.manager), lines({"File: | save", "Mine: | copy", "Yours:"}));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::theApplyReachesToolBarsInAnotherWindow()
{
    FilledHost host;
    QMainWindow second;
    second.addToolBar(host.mine);
    second.addToolBar(host.yours);
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    editor.selectToolBar("Yours");
    editor.call("removeClicked");
    editor.widget.applyClicked();
    QVERIFY(!host.yours);
    QCOMPARE(host.mine->parent(), &second);
    QCOMPARE(standingOn(host.mine), words("| copy"));
}

void tst_RyCToolBarWidget_Hosts::theApplyReachesFloatingToolBars()
{
    FilledHost host;
    host.window.show();
    for (QToolBar *toolBar : {host.mine.data(), host.yours.data()}) {
        toolBar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
        toolBar->move(300, 300);
        toolBar->show();
        QVERIFY(toolBar->isFloating());
    }
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    editor.selectToolBar("Yours");
    editor.call("removeClicked");
    editor.widget.applyClicked();
    QVERIFY(!host.yours);
    QVERIFY(host.mine->isFloating());
    QVERIFY(host.mine->isVisible());
    QCOMPARE(standingOn(host.mine), words("| copy"));
}

void tst_RyCToolBarWidget_Hosts::aWidgetOnAToolBarSurvivesTheApply()
{
    Host host;
    QToolBar *const file = host.toolBar("file", words("open"));
    const QPointer<QWidget> box = new QListWidget;
    QAction *const boxAction = file->addWidget(box);
    boxAction->setObjectName("box");
    boxAction->setText("Box");
    file->addAction(host.action("save"));
    host.manager.addDefaultToolBar(file, "Files");
    host.window.show();
    ShownEditor editor(&host.manager);
    editor.selectEntry(1);
    editor.call("upClicked");
    editor.widget.applyClicked();
    QCOMPARE(standingOn(file), words("box open save"));
    QVERIFY(box);
    QCOMPARE(file->widgetForAction(boxAction), box.data());
    QTRY_VERIFY(box->isVisible());
    editor.call("leftClicked");
    editor.widget.applyClicked();
    QCOMPARE(standingOn(file), words("open save"));
    QVERIFY(box && !box->isVisible());
    editor.widget.defaultClicked();
    editor.widget.applyClicked();
    QCOMPARE(standingOn(file), words("open box save"));
    QTRY_VERIFY(box && box->isVisible());
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::aWidgetOfTwoToolBarsStaysWhereItWas()
{
    Host host;
    QToolBar *const file = host.toolBar("file");
    QWidget *const box = new QListWidget;
    QAction *const boxAction = file->addWidget(box);
    boxAction->setObjectName("box");
    boxAction->setText("Box");
    host.manager.addDefaultToolBar(file, "Files");
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.window.show();
    host.manager.setToolBar(mine, {boxAction});
    QCOMPARE(file->widgetForAction(boxAction), box);
    QVERIFY(qobject_cast<QToolButton *>(mine->widgetForAction(boxAction)));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::aCreatedWidgetStandsOnEachToolBar()
{
    class Maker : public QWidgetAction
    {
    public:
        using QWidgetAction::QWidgetAction;
        QWidget *createWidget(QWidget *parent) override { return new QListWidget(parent); }
    };
    Host host;
    Maker maker(nullptr);
    maker.setObjectName("maker");
    host.manager.addAction(&maker, "Files");
    QToolBar *const mine = host.manager.createToolBar("Mine");
    QToolBar *const yours = host.manager.createToolBar("Yours");
    host.manager.setToolBars({{mine, {&maker}}, {yours, {&maker}}});
    QVERIFY(qobject_cast<QListWidget *>(mine->widgetForAction(&maker)));
    QVERIFY(qobject_cast<QListWidget *>(yours->widgetForAction(&maker)));
    host.manager.deleteToolBar(mine);
    QVERIFY(qobject_cast<QListWidget *>(yours->widgetForAction(&maker)));
    host.manager.removeAction(&maker);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::changesOfTheAppearanceKeepTheEdits_data()
{
    QTest::addColumn<int>("change");
    const char *const names[] = {"style",     "style sheet", "palette",         "font",
                                 "direction", "enabled",     "application font"};
    for (int i = 0; i < 7; ++i)
        QTest::newRow(names[i]) << i;
}

void tst_RyCToolBarWidget_Hosts::changesOfTheAppearanceKeepTheEdits()
{
    QFETCH(int, change);
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    editor.call("newClicked");
    editor.call("rightClicked");
    const QStringList edited = editor.workingCopy();
    const QStringList entries = rowsOf(editor.views.currentToolBarList);
    const QFont font = QApplication::font();
    QProxyStyle style("windows");
    const std::function<void()> changes[] = {
        [&] { editor.widget.setStyle(&style); },
        [&] { editor.widget.setStyleSheet("QListWidget { padding: 9px; }"); },
        [&] { editor.widget.setPalette(QPalette(Qt::darkBlue)); },
        [&] { editor.widget.setFont(QFont(font.family(), 30)); },
        [&] { editor.widget.setLayoutDirection(Qt::RightToLeft); },
        [&] { editor.widget.setEnabled(false); },
        [&] { QApplication::setFont(QFont(font.family(), 30)); },
    };
    changes[change]();
    QCoreApplication::processEvents();
    QCOMPARE(editor.workingCopy(), edited);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), entries);
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), edited);
    editor.widget.setStyle(nullptr);
    QApplication::setFont(font);
}

void tst_RyCToolBarWidget_Hosts::anotherLanguageKeepsTheEditsAndTheTexts()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    const QStringList edited = editor.workingCopy();
    const QStringList entries = rowsOf(editor.views.currentToolBarList);
    const QString rename = editor.views.renameButton->text();
    const RecordingTranslator translator;
    QCoreApplication::processEvents();
    QCOMPARE(editor.workingCopy(), edited);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), entries);
    QCOMPARE(editor.views.renameButton->text(), rename);
    editor.selectAction("< S E P A R A T O R >");
    editor.call("rightClicked");
    QCOMPARE(currentOf(editor.views.currentToolBarList), "< S E P A R A T O R >");
    editor.call("newClicked");
    QCOMPARE(currentOf(editor.views.toolBarList), "translated Custom Toolbar");
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Hosts::becomingAnotherWindowDiscardsTheEdits()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.call("leftClicked");
    editor.call("newClicked");
    editor.widget.setWindowFlags(Qt::Dialog);
    QCOMPARE(editor.workingCopy(), QStringList());
    editor.widget.show();
    QCOMPARE(editor.workingCopy(),
             lines({"File: open | save", "Mine: cut | copy", "Yours: paste"}));
    QCOMPARE(editor.inconsistency(), QString());
}

QTEST_MAIN(tst_RyCToolBarWidget_Hosts)
#include "tst_ryctoolbarwidget_hosts.moc"
