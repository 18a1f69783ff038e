// SPDX-License-Identifier: MIT

#include "host.h"
#include "hostcalls.h"
#include "nextmodal.h"
#include "recordingtranslator.h"
#include "showneditor.h"
#include "testcase.h"
#include "texts.h"
#include "toolbaritem.h"

#include <QMessageBox>
#include <QPointer>
#include <QtTest>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <malloc.h>
#include <memory>
#include <new>

namespace {

class WatchedHost : public Host
{
public:
    WatchedHost()
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

using Editor = HostedEditor<WatchedHost>;

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
    void *const block = std::malloc(size ? size : 1);
    if (!block)
        std::abort();
    return block;
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

    void aDeletedActionIsShownAsBefore();
    void aDeletedActionThatHasNoTreeItemIsShownWithoutText();
    void aDeletedActionIsNotLookedUpWhileTheEditorIsEmptied();
    void aDeletedActionIsLeftOutOfTheApply();
    void changesOfActionsAreShownOnlyByNewEntries();
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
    void aWidgetOnAToolBarSurvivesTheApply();

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
    Editor editor;
    editor.selectToolBar(isCurrent ? "Mine" : "File");
    editor.host.manager.deleteToolBar(editor.host.mine);
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
    QCOMPARE(toolBarsOf(editor.host.manager), QStringList({"File: open | save"}));
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
    Editor editor("Mine");
    editor.call(removed ? "removeClicked" : "leftClicked");
    QToolBar *const other = reborn(editor.host, editor.host.mine);
    editor.host.manager.setToolBar(other, editor.host.list(words("open | paste")));
    const QStringList before = toolBarsOf(editor.host.manager);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), before);
    if (!removed) {
        editor.selectToolBar("Mine");
        editor.call("removeClicked");
    }
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), before);
    QCOMPARE(editor.inconsistency(), QString());
}

// Created in the editor, applied, and then deleted by the host.
void tst_RyCToolBarWidget_Hosts::aNewToolBarAtTheAddressOfACreatedOneIsLeftAlone()
{
    Editor editor;
    editor.call("newClicked");
    editor.call("rightClicked");
    editor.widget.applyClicked();
    reborn(editor.host, EditorFields::of(editor.widget).currentRecord->toolBar());
    const QStringList before = toolBarsOf(editor.host.manager);
    editor.widget.applyClicked();
    editor.call("removeClicked");
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), before);
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
    Editor editor("Mine");
    const auto byEditor = [&] {
        editor.call("removeClicked");
        editor.widget.applyClicked();
    };
    QToolBar *const other = byTheEditor ? reborn(editor.host, editor.host.mine, byEditor)
                                        : reborn(editor.host, editor.host.mine);
    editor.host.manager.removeDefaultToolBar(other);
    other->addAction(editor.host.action("open"));
    editor.host.manager.addDefaultToolBar(other, "Late");
    editor.host.manager.setToolBar(other, editor.host.list(words("paste")));
    editor.widget.defaultClicked();
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(editor.workingCopy(), QStringList({"File: open | save"}));
    editor.widget.applyClicked();
    QCOMPARE(contentOf(editor.host.manager.actions(other)), words("paste"));
}

void tst_RyCToolBarWidget_Hosts::aDeletedActionIsShownAsBefore()
{
    WatchedHost host;
    QAction *const cut = host.action("cut");
    const QIcon icon(QPixmap(16, 16));
    cut->setIcon(icon);
    ShownEditor editor(&host.manager);
    editor.selectToolBar("File");
    host.manager.removeAction(cut);
    delete cut;
    editor.selectToolBar("Mine");
    QCOMPARE(rowsOf(editor.views.currentToolBarList),
             QStringList({"Cut", "< S E P A R A T O R >", "Copy"}));
    QCOMPARE(editor.views.currentToolBarList->item(0)->icon().cacheKey(), icon.cacheKey());
    editor.selectToolBar("Yours");
    editor.selectAction("Cut");
    editor.call("rightClicked");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList({"Paste", "Cut"}));
    editor.call("upClicked");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList({"Cut", "Paste"}));
}

void tst_RyCToolBarWidget_Hosts::aDeletedActionThatHasNoTreeItemIsShownWithoutText()
{
    WatchedHost host;
    // Takes the actions out of their category, but not off their toolbars.
    host.manager.addCategory("Edits");
    ShownEditor editor(&host.manager);
    editor.selectToolBar("File");
    QAction *const cut = host.action("cut");
    host.manager.removeAction(cut);
    delete cut;
    editor.selectToolBar("Mine");
    QCOMPARE(rowsOf(editor.views.currentToolBarList),
             QStringList({"", "< S E P A R A T O R >", "Copy"}));
    QCOMPARE(editor.inconsistency(), QString());
}

// As when a button loses the focus to the toolbar list, because it is disabled.
void tst_RyCToolBarWidget_Hosts::aDeletedActionIsNotLookedUpWhileTheEditorIsEmptied()
{
    Editor editor("File");
    QAction *const cut = editor.host.action("cut");
    editor.host.manager.removeAction(cut);
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
    Editor editor;
    QAction *const cut = editor.host.action("cut");
    editor.host.manager.removeAction(cut);
    delete cut;
    editor.selectToolBar("Yours");
    editor.selectAction("Cut");
    editor.call("rightClicked");
    editor.call("newClicked");
    editor.call("rightClicked");
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager),
             QStringList({"Custom Toolbar:", "File: open | save", "Mine: | copy", "Yours: paste"}));
}

void tst_RyCToolBarWidget_Hosts::changesOfActionsAreShownOnlyByNewEntries()
{
    Editor editor("Mine");
    QAction *const cut = editor.host.action("cut");
    cut->setText("Snip");
    cut->setObjectName("snip");
    QCOMPARE(rowsOf(editor.views.currentToolBarList).constFirst(), "Cut");
    QVERIFY(itemNamed(editor.views.actionTree, "Cut"));
    editor.selectToolBar("File");
    editor.selectAction("Cut");
    editor.call("rightClicked");
    QCOMPARE(rowsOf(editor.views.currentToolBarList),
             QStringList({"Open", "Snip", "< S E P A R A T O R >", "Save"}));
    editor.selectToolBar("Mine");
    QCOMPARE(rowsOf(editor.views.currentToolBarList).constFirst(), "Snip");
    editor.widget.applyClicked();
    QCOMPARE(contentOf(editor.host.manager.actions(editor.host.file)), words("open snip | save"));
    QCOMPARE(editor.host.manager.findAction("snip"), cut);
}

void tst_RyCToolBarWidget_Hosts::anActionThatBecameASeparatorIsStillAnAction()
{
    WatchedHost host;
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
    QCOMPARE(toolBarsOf(host.manager), QStringList({"File: open | save"}));
}

void tst_RyCToolBarWidget_Hosts::theEditorMayBeHiddenWhileItApplies()
{
    Editor editor("File");
    editor.call("leftClicked");
    removeEditAndCreate(editor);
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] { editor.widget.hide(); });
    editor.host.file->installEventFilter(&calls);
    editor.host.mine->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(calls.count(), 1);
    QCOMPARE(toolBarsOf(editor.host.manager),
             QStringList({"Custom Toolbar: |", "File: | save", "Mine: | copy"}));
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(editor.workingCopy(), QStringList());
}

void tst_RyCToolBarWidget_Hosts::theEditorMayBeShownAgainWhileItApplies()
{
    Editor editor;
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
    for (QToolBar *toolBar : {editor.host.file, editor.host.mine.data(), editor.host.yours.data()})
        toolBar->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(calls.count(), 1);
    QCOMPARE(toolBarsOf(editor.host.manager),
             QStringList({"Custom Toolbar: |", "File: | save", "Mine: | copy", "Yours:"}));
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
    WatchedHost host;
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
             QStringList({"Custom Toolbar: |", "File: open | save", "Mine: | copy"}));
}

void tst_RyCToolBarWidget_Hosts::anApplyDuringTheApplyCreatesNothingTwice()
{
    Editor editor;
    removeEditAndCreate(editor);
    HostCalls calls({QEvent::ActionRemoved, QEvent::ActionAdded, QEvent::ChildAdded},
                    HostCalls::Once, [&] { editor.widget.applyClicked(); });
    editor.host.mine->installEventFilter(&calls);
    editor.host.window.installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(calls.count(), 1);
    QCOMPARE(toolBarsOf(editor.host.manager),
             QStringList({"Custom Toolbar: |", "File: open | save", "Mine: | copy"}));
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(editor.host.manager.toolBars().size(), 3);
}

void tst_RyCToolBarWidget_Hosts::restoringDefaultsDuringTheApplyKeepsWhatIsApplied()
{
    Editor editor("Mine");
    editor.call("leftClicked");
    editor.call("newClicked");
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once,
                    [&] { editor.widget.defaultClicked(); });
    editor.host.mine->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(calls.count(), 1);
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(toolBarsOf(editor.host.manager),
             QStringList({"Custom Toolbar:", "File: open | save", "Mine: | copy", "Yours: paste"}));
    // The editor has no row for the new one before it is shown again.
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager),
             QStringList({"Custom Toolbar:", "File: open | save"}));
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
    Editor editor;
    editor.call("newClicked");
    editor.selectAction("Cut");
    editor.call("rightClicked");
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    HostCalls removal({QEvent::ActionAdded}, HostCalls::Once,
                      [&] { editor.call("removeClicked"); });
    HostCalls creation({QEvent::ChildAdded}, HostCalls::Once, [&] {
        if (filled)
            editor.host.window.children().constLast()->installEventFilter(&removal);
        else
            editor.call("removeClicked");
    });
    editor.host.window.installEventFilter(&creation);
    editor.widget.applyClicked();
    QCOMPARE(removal.count(), filled ? 1 : 0);
    QCOMPARE(creation.count(), 1);
    QVERIFY(!itemNamed(editor.views.toolBarList, "Custom Toolbar"));
    QCOMPARE(editor.inconsistency(), QString());
    const QStringList applied = QStringList(
        {"Custom Toolbar: cut", "File: open | save", "Mine: cut | copy", "Yours: paste"});
    QCOMPARE(toolBarsOf(editor.host.manager), applied);
    // Without a toolbar it is gone for good, with one it goes with the next apply.
    const EditorFields fields = EditorFields::of(editor.widget);
    QCOMPARE(fields.ownedRecords.contains(record), filled);
    QCOMPARE(fields.removedRecords.contains(record), filled);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), applied.mid(filled ? 1 : 0));
    QCOMPARE(editor.inconsistency(), QString());
}

// The record of a created toolbar goes when the working copy is discarded.
void tst_RyCToolBarWidget_Hosts::aNewRecordAtTheAddressOfACreatedOneKeepsItsToolBar()
{
    Editor editor;
    editor.call("newClicked");
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    HostCalls calls({QEvent::ChildAdded}, HostCalls::Once, [&] {
        memory = {record, sizeof(ToolBarItem), false};
        editor.call("clearOld");
        QCOMPARE(createRecord(editor.widget, editor.host.file), record);
        memory = {nullptr, 0, false};
    });
    editor.host.window.installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(calls.count(), 1);
    QCOMPARE(record->toolBar(), editor.host.file);
    QCOMPARE(
        toolBarsOf(editor.host.manager),
        QStringList({"Custom Toolbar:", "File: open | save", "Mine: cut | copy", "Yours: paste"}));
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
    Editor editor;
    ToolBarItem *const record = createRecord(editor.widget, editor.host.mine);
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
    Editor editor("Mine");
    editor.call("leftClicked");
    QToolBar *other = nullptr;
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once,
                    [&] { other = reborn(editor.host, editor.host.mine); });
    editor.host.mine->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(other->windowTitle(), "Reborn");
    QCOMPARE(standingOn(other), QStringList());
    QCOMPARE(inconsistencyOf(editor.host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::toolBarsDeletedDuringTheApplyAreLeftAlone()
{
    Editor editor;
    for (const char *title : {"Mine", "Yours", "File"}) {
        editor.selectToolBar(title);
        editor.call("leftClicked");
    }
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] {
        editor.host.manager.deleteToolBar(editor.host.mine);
        editor.host.manager.deleteToolBar(editor.host.yours);
    });
    for (QToolBar *toolBar : {editor.host.file, editor.host.mine.data(), editor.host.yours.data()})
        toolBar->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), QStringList({"File: | save"}));
    QCOMPARE(inconsistencyOf(editor.host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::aMessageBoxDuringTheApplyLosesNothing()
{
    Editor editor("Mine");
    editor.call("leftClicked");
    editor.call("newClicked");
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] {
        const NextModal next([&](QWidget *box) {
            editor.widget.hide();
            editor.host.manager.resetAllToolBars();
            box->close();
        });
        QMessageBox(&editor.host.window).exec();
        QVERIFY(next.wasShown());
    });
    editor.host.mine->installEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager),
             QStringList({"Custom Toolbar:", "File: open | save", "Mine: | copy", "Yours: paste"}));
}

void tst_RyCToolBarWidget_Hosts::restoringAStateDuringTheApplyLosesNoToolBar()
{
    WatchedHost host;
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
    Editor editor;
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
    for (QObject *object : std::initializer_list<QObject *>{editor.host.file, editor.host.mine,
                                                            editor.host.yours, &editor.host.window})
        object->installEventFilter(&calls);
    editor.widget.applyClicked();
    QVERIFY(calls.count() > 0);
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(inconsistencyOf(editor.host.manager), QString());
    for (QObject *object : std::initializer_list<QObject *>{editor.host.file, &editor.host.window})
        object->removeEventFilter(&calls);
    editor.widget.applyClicked();
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(inconsistencyOf(editor.host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::twoEditorsOfOneManagerWriteWhatEachShows()
{
    WatchedHost host;
    ShownEditor first(&host.manager);
    ShownEditor second(&host.manager);
    first.selectToolBar("Mine");
    first.call("leftClicked");
    second.selectToolBar("Yours");
    second.call("rightClicked");
    first.call("newClicked");
    first.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({"Custom Toolbar:", "File: open | save", "Mine: | copy", "Yours: paste"}));
    // The second writes everything as it was when it was shown, but knows no new toolbar.
    second.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             QStringList(
                 {"Custom Toolbar:", "File: open | save", "Mine: cut | copy", "Yours: paste |"}));
    first.call("rightClicked");
    first.widget.applyClicked();
    QCOMPARE(
        toolBarsOf(host.manager),
        QStringList({"Custom Toolbar: |", "File: open | save", "Mine: | copy", "Yours: paste"}));
    QCOMPARE(first.inconsistency(), QString());
    QCOMPARE(second.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Hosts::aToolBarRemovedInOneEditorIsLeftAloneByTheOther()
{
    WatchedHost host;
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
    QCOMPARE(toolBarsOf(host.manager), QStringList({"File: open | save"}));
    second.call("removeClicked");
    second.widget.defaultClicked();
    second.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList({"File: open | save"}));
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
    QCOMPARE(rowsOf(editor->views.currentToolBarList), QStringList({"Cut"}));
    QCOMPARE(editor->views.enabledButtons(), QStringList());
    editor->call("newClicked");
    editor->widget.defaultClicked();
    editor->widget.applyClicked();
    QCOMPARE(editor->workingCopy(), QStringList({"Mine: \"Cut\""}));
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
    WatchedHost host;
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
    QCOMPARE(toolBarsOf(host.manager), QStringList({"File: | save", "Mine: | copy", "Yours:"}));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyCToolBarWidget_Hosts::theApplyReachesToolBarsInAnotherWindow()
{
    WatchedHost host;
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

void tst_RyCToolBarWidget_Hosts::anotherLanguageKeepsTheEditsAndTheTexts()
{
    Editor editor("Mine");
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
    Editor editor("Mine");
    editor.call("leftClicked");
    editor.call("newClicked");
    editor.widget.setWindowFlags(Qt::Dialog);
    QCOMPARE(editor.workingCopy(), QStringList());
    editor.widget.show();
    QCOMPARE(editor.workingCopy(),
             QStringList({"File: open | save", "Mine: cut | copy", "Yours: paste"}));
    QCOMPARE(editor.inconsistency(), QString());
}

QTEST_MAIN(tst_RyCToolBarWidget_Hosts)
#include "tst_ryctoolbarwidget_hosts.moc"
