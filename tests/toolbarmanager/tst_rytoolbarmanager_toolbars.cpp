// SPDX-License-Identifier: MIT

#include "actionlog.h"
#include "host.h"
#include "testcase.h"
#include "texts.h"
#include "toolbarrecords.h"

#include <QPointer>
#include <QtTest>

namespace {

const QString A = "A";
const QString B = "B";

using Contents = QMap<QToolBar *, QList<QAction *>>;

} // namespace

class tst_RyToolBarManager_toolbars : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addDefaultToolBarRecordsWhatIsOnIt_data();
    void addDefaultToolBarRecordsWhatIsOnIt();
    void addDefaultToolBarRegistersTheActionsInTheirOrder();
    void addDefaultToolBarLeavesKnownActionsInTheirCategory();
    void addDefaultToolBarCreatesNoCategoryWithoutActions();
    void addDefaultToolBarDoesNotChangeTheWidget();
    void addDefaultToolBarIgnoresNull();
    void addDefaultToolBarTwiceKeepsTheFirstContent();
    void addDefaultToolBarIgnoresACustomToolBar();
    void addDefaultToolBarNeedsNoMainWindow();
    void separatorsOfTheHostAreDeletedWithTheContent();
    void aSeparatorOnTwoDefaultToolBarsLivesUntilTheLastChanges();
    void aSeparatorThatTheHostPlacedElsewhereTooIsDeletedWithTheContent_data();
    void aSeparatorThatTheHostPlacedElsewhereTooIsDeletedWithTheContent();

    void setToolBarPlacesTheContent_data();
    void setToolBarPlacesTheContent();
    void setToolBarIgnoresNullAndUnmanagedToolBars();
    void setToolBarWithAnEqualListTouchesNothing_data();
    void setToolBarWithAnEqualListTouchesNothing();
    void setToolBarWithAnEqualListDoesNotRepairTheWidget();
    void aListThatOnlyAddsDroppedEntriesIsNotEqual();
    void setToolBarRemovesEverythingInOrderAndThenAddsInOrder();
    void setToolBarDeletesTheOldSeparatorsAndMakesFreshOnes();
    void setToolBarAppendsBehindWhatTheHostPlaced();
    void anActionMayBeOnSeveralToolBars();
    void takingAnActionOffOneToolBarLeavesItOnTheOther();
    void setToolBarRegistersNothing();
    void aRegisteredActionThatBecameASeparatorIsNotDeleted();
    void aRegisteredActionThatBecameASeparatorIsForgottenByItsToolBar();
    void aSeparatorThatBecameAnActionIsNotDeleted();
    void theOldContentIsReportedWhileTheWidgetChanges();
    void setToolBarsSetsEachToolBar();
    void setToolBarsIgnoresNullAndUnmanagedToolBars();
    void setToolBarsVisitsToolBarsByAddress();

    void aSeparatorThatTheHostTookOffIsDeleted();
    void anActionThatWasDeletedIsNotTouched();

    void resetToolBarBringsTheDefaultContentBack();
    void resetToolBarIgnoresOtherToolBars_data();
    void resetToolBarIgnoresOtherToolBars();
    void resetAllToolBarsVisitsDefaultToolBarsByAddress();
    void resetAllToolBarsLeavesCustomToolBarsAlone();
    void theSlotsMayBeConnectedToSignals();

    void toolBarsAreInTheOrderOfTheirAddresses();
    void queriesOfOtherToolBarsAreEmpty_data();
    void queriesOfOtherToolBarsAreEmpty();
    void isDefaultToolBarOnlyComparesThePointer();
};

void tst_RyToolBarManager_toolbars::addDefaultToolBarRecordsWhatIsOnIt_data()
{
    QTest::addColumn<QStringList>("content");
    QTest::newRow("empty") << QStringList();
    QTest::newRow("actions") << words("open save find");
    QTest::newRow("separators between") << words("save | open | find");
    QTest::newRow("adjacent separators at the ends") << words("| | open | |");
    QTest::newRow("separators only") << words("| |");
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarRecordsWhatIsOnIt()
{
    QFETCH(QStringList, content);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", content, A);
    const QList<QAction *> expected = host.list(content);
    QCOMPARE(host.manager.actions(file), expected);
    QCOMPARE(host.manager.toolBarsActions(), (Contents{{file, expected}}));
    QCOMPARE(host.manager.defaultToolBars(), (Contents{{file, expected}}));
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{file});
    QVERIFY(host.manager.isDefaultToolBar(file));
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarRegistersTheActionsInTheirOrder()
{
    Host host;
    const QStringList names = words("open save find");
    for (const QString &each : names)
        host.action(each);
    host.defaultToolBar("file", words("save | find open |"), A);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("save find open"));
    QCOMPARE(host.manager.actions().size(), 3);
    QCOMPARE(host.manager.actionCategory(host.action("find")), A);
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarLeavesKnownActionsInTheirCategory()
{
    Host host;
    host.registered("open", B);
    host.defaultToolBar("file", words("open save"), A);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("save"));
    QCOMPARE(contentOf(host.manager.categoryActions(B)), words("open"));
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarCreatesNoCategoryWithoutActions()
{
    Host host;
    host.registered("open", B);
    host.defaultToolBar("empty", QStringList(), A);
    host.defaultToolBar("bars", words("| |"), A);
    host.defaultToolBar("known", words("open"), A);
    QCOMPARE(host.manager.categories(), words("B"));
    QCOMPARE(host.manager.actions().size(), 1);
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarDoesNotChangeTheWidget()
{
    Host host;
    QToolBar *const file = host.toolBar("file", words("| open | save"));
    const QList<QAction *> standing = file->actions();
    const QList<QPointer<QAction>> guards = guarded(standing);
    ActionLog log(file);
    host.manager.addDefaultToolBar(file, A);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(file->actions(), standing);
    QCOMPARE(fatesOf(guards), words("alive alive alive alive"));
    QCOMPARE(file->objectName(), QString("file"));
    QCOMPARE(file->windowTitle(), QString("File"));
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarIgnoresNull()
{
    Host host;
    host.manager.addDefaultToolBar(nullptr, A);
    QVERIFY(host.manager.toolBars().isEmpty());
    QVERIFY(host.manager.defaultToolBars().isEmpty());
    QVERIFY(!host.manager.isDefaultToolBar(nullptr));
    QVERIFY(host.manager.categories().isEmpty());
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarTwiceKeepsTheFirstContent()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    file->addAction(host.action("find"));
    host.manager.setToolBar(file, host.list(words("save")));
    host.manager.addDefaultToolBar(file, B);
    QCOMPARE(recordOf(host, file), words("save / find save / open | save / default"));
    QCOMPARE(host.manager.categories(), words("A"));
    QVERIFY(!host.manager.actions().contains(host.action("find")));
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarIgnoresACustomToolBar()
{
    Host host;
    host.registered("open", A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, host.list(words("open |")));
    mine->addAction(host.action("save"));
    host.manager.addDefaultToolBar(mine, B);
    QCOMPARE(recordOf(host, mine), words("open | / open | save / / custom"));
    QVERIFY(host.manager.defaultToolBars().isEmpty());
    QCOMPARE(host.manager.categories(), words("A"));
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarNeedsNoMainWindow()
{
    Host host;
    host.manager.setMainWindow(nullptr);
    QToolBar loose;
    loose.addAction(host.action("open"));
    host.manager.addDefaultToolBar(&loose, A);
    host.manager.setToolBar(&loose, host.list(words("| open")));
    QCOMPARE(recordOf(host, &loose), words("| open / | open / open / default"));
}

void tst_RyToolBarManager_toolbars::separatorsOfTheHostAreDeletedWithTheContent()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save |"), A);
    const QList<QPointer<QAction>> guards = guarded(file->actions());
    host.manager.setToolBar(file, host.list(words("save | open")));
    QCOMPARE(fatesOf(guards), words("alive deleted alive deleted"));
    QCOMPARE(standingOn(file), words("save | open"));
}

// The other toolbar's record must never hold a dangling pointer.
void tst_RyToolBarManager_toolbars::aSeparatorOnTwoDefaultToolBarsLivesUntilTheLastChanges()
{
    Host host;
    QToolBar *const file = host.toolBar("file", words("open"));
    QToolBar *const edit = host.toolBar("edit", words("find"));
    const QPointer<QAction> shared = file->addSeparator();
    edit->addAction(shared);
    host.manager.addDefaultToolBar(file, A);
    host.manager.addDefaultToolBar(edit, A);

    host.manager.setToolBar(file, host.list(words("open")));
    QVERIFY(shared);
    QCOMPARE(recordOf(host, file), words("open / open / open | / default"));
    QCOMPARE(recordOf(host, edit), words("find | / find | / find | / default"));
    QCOMPARE(edit->actions().last(), shared.data());
    host.manager.setToolBar(edit, host.list(words("find | |")));
    QVERIFY(!shared);
    QCOMPARE(standingOn(edit), words("find | |"));
    host.manager.resetToolBar(file);
    QCOMPARE(standingOn(file), words("open |"));
}

void tst_RyToolBarManager_toolbars::
    aSeparatorThatTheHostPlacedElsewhereTooIsDeletedWithTheContent_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::newRow("unmanaged") << "other";
    QTest::newRow("custom") << "_Custom_Toolbar_1";
    QTest::newRow("default, after it was registered") << "edit";
}

void tst_RyToolBarManager_toolbars::aSeparatorThatTheHostPlacedElsewhereTooIsDeletedWithTheContent()
{
    QFETCH(QString, toolBar);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open |"), A);
    host.defaultToolBar("edit", QStringList(), A);
    host.toolBar("other");
    host.manager.createToolBar("Mine");
    QToolBar *const elsewhere = host.window.findChild<QToolBar *>(toolBar);
    const QPointer<QAction> shared = file->actions().last();
    elsewhere->addAction(shared);
    host.manager.setToolBar(file, {});
    QVERIFY(!shared);
    QCOMPARE(standingOn(elsewhere), QStringList());
}

void tst_RyToolBarManager_toolbars::setToolBarPlacesTheContent_data()
{
    QTest::addColumn<QStringList>("requested");
    QTest::addColumn<QStringList>("placed");
    const auto same = [](const char *row, const char *content) {
        QTest::newRow(row) << words(content) << words(content);
    };
    const auto filtered = [](const char *row, const char *requested, const char *placed) {
        QTest::newRow(row) << words(requested) << words(placed);
    };
    same("nothing", "");
    same("one action", "find");
    same("reordered", "save | open");
    same("adjacent separators", "open | | | save");
    same("separators at the ends", "| | open save | |");
    same("separators only", "| | |");
    same("one separator", "|");
    filtered("unregistered", "stranger open stranger2 |", "open |");
    filtered("only unregistered", "stranger stranger2", "");
    filtered("repeated", "open save open find save open", "open save find");
    filtered("repeated with separators", "open | open | open", "open | |");
    filtered("unregistered and repeated", "find | | find stranger", "find | |");
}

void tst_RyToolBarManager_toolbars::setToolBarPlacesTheContent()
{
    QFETCH(QStringList, requested);
    QFETCH(QStringList, placed);
    Host host;
    host.registered("find", B);
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(file, host.list(requested));
    host.manager.setToolBar(mine, host.list(requested));
    QCOMPARE(standingOn(file), placed);
    QCOMPARE(standingOn(mine), placed);
    QCOMPARE(host.manager.actions(file), host.list(placed));
    QCOMPARE(host.manager.actions(mine), host.list(placed));
    QCOMPARE(host.manager.toolBarsActions(),
             (Contents{{file, host.list(placed)}, {mine, host.list(placed)}}));
}

void tst_RyToolBarManager_toolbars::setToolBarIgnoresNullAndUnmanagedToolBars()
{
    Host host;
    host.registered("save", A);
    QToolBar *const unmanaged = host.toolBar("other", words("open |"));
    ActionLog log(unmanaged);
    host.manager.setToolBar(unmanaged, host.list(words("save")));
    host.manager.setToolBar(nullptr, host.list(words("save")));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(recordOf(host, unmanaged), words("/ open | / / unmanaged"));
    QVERIFY(host.manager.toolBars().isEmpty());
}

void tst_RyToolBarManager_toolbars::setToolBarWithAnEqualListTouchesNothing_data()
{
    QTest::addColumn<QStringList>("content");
    QTest::newRow("empty") << QStringList();
    QTest::newRow("actions") << words("open save");
    QTest::newRow("with separators") << words("| open | | save");
}

void tst_RyToolBarManager_toolbars::setToolBarWithAnEqualListTouchesNothing()
{
    QFETCH(QStringList, content);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", content, A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, host.list(content));
    const QList<QAction *> standing = file->actions() + mine->actions();
    ActionLog log(file);
    log.watch(mine);
    host.manager.setToolBar(file, host.list(content));
    host.manager.setToolBar(mine, host.list(content));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(file->actions() + mine->actions(), standing);
}

void tst_RyToolBarManager_toolbars::setToolBarWithAnEqualListDoesNotRepairTheWidget()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open save"), A);
    file->removeAction(host.action("open"));
    host.manager.setToolBar(file, host.list(words("open save")));
    QCOMPARE(recordOf(host, file), words("open save / save / open save / default"));
    host.manager.setToolBar(file, host.list(words("save open")));
    QCOMPARE(standingOn(file), words("save open"));
}

void tst_RyToolBarManager_toolbars::aListThatOnlyAddsDroppedEntriesIsNotEqual()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open |"), A);
    const QPointer<QAction> separator = file->actions().last();
    ActionLog log(file);
    host.manager.setToolBar(file, host.list(words("open | stranger open")));
    QCOMPARE(log.take(), words("file-open file-| file+open file+|"));
    QVERIFY(!separator);
    QCOMPARE(contentOf(host.manager.actions(file)), words("open |"));
}

void tst_RyToolBarManager_toolbars::setToolBarRemovesEverythingInOrderAndThenAddsInOrder()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save find |"), A);
    ActionLog log(file);
    host.manager.setToolBar(file, host.list(words("| find open |")));
    QCOMPARE(log.take(),
             words("file-open file-| file-save file-find file-| "
                   "file+| file+find file+open file+|"));
    host.manager.setToolBar(file, {});
    QCOMPARE(log.take(), words("file-| file-find file-open file-|"));
}

void tst_RyToolBarManager_toolbars::setToolBarDeletesTheOldSeparatorsAndMakesFreshOnes()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    host.manager.setToolBar(file, host.list(words("| open |")));
    const QList<QPointer<QAction>> first = guarded(file->actions());
    QCOMPARE(first.at(0)->parent(), static_cast<QObject *>(file));
    QVERIFY(first.at(0) != first.at(2));
    host.manager.setToolBar(file, host.list(words("| open | |")));
    QCOMPARE(fatesOf(first), words("deleted alive deleted"));
    QCOMPARE(standingOn(file), words("| open | |"));
    const QList<QPointer<QAction>> second = guarded(file->actions());
    host.manager.setToolBar(file, {});
    QCOMPARE(fatesOf(second), words("deleted alive deleted deleted"));
    QCOMPARE(file->findChildren<QAction *>().contains(first.at(0)), false);
}

void tst_RyToolBarManager_toolbars::setToolBarAppendsBehindWhatTheHostPlaced()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open |"), A);
    file->addAction(host.action("stranger"));
    const QPointer<QAction> separator = file->addSeparator();
    host.manager.setToolBar(file, host.list(words("| open")));
    QCOMPARE(recordOf(host, file), words("| open / stranger | | open / open | / default"));
    QVERIFY(separator);
    host.manager.setToolBar(file, {});
    QCOMPARE(standingOn(file), words("stranger |"));
    QVERIFY(separator);
}

void tst_RyToolBarManager_toolbars::anActionMayBeOnSeveralToolBars()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    QToolBar *const yours = host.manager.createToolBar("Yours");
    ActionLog log(file);
    host.manager.setToolBar(mine, host.list(words("open")));
    host.manager.setToolBar(yours, host.list(words("| open")));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(standingOn(file), words("open | save"));
    QCOMPARE(standingOn(mine), words("open"));
    QCOMPARE(standingOn(yours), words("| open"));
    // All three are known to hold it.
    host.manager.removeAction(host.action("open"));
    QCOMPARE(standingOn(file) + standingOn(mine) + standingOn(yours), words("| save |"));
}

void tst_RyToolBarManager_toolbars::takingAnActionOffOneToolBarLeavesItOnTheOther()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    QToolBar *const edit = host.defaultToolBar("edit", words("open"), A);
    host.manager.setToolBar(file, {});
    QCOMPARE(standingOn(file), QStringList());
    QCOMPARE(standingOn(edit), words("open"));
    ActionLog log(file);
    log.watch(edit);
    host.manager.removeAction(host.action("open"));
    QCOMPARE(log.take(), words("edit-open"));
}

void tst_RyToolBarManager_toolbars::setToolBarRegistersNothing()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    host.manager.setToolBar(file, host.list(words("stranger |")));
    QCOMPARE(host.manager.actions(), QSet<QAction *>{host.action("open")});
    QCOMPARE(host.manager.categories(), words("A"));
    QVERIFY(host.manager.actionCategory(host.action("stranger")).isNull());
}

void tst_RyToolBarManager_toolbars::aRegisteredActionThatBecameASeparatorIsNotDeleted()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, host.list(words("save open")));
    const QPointer<QAction> open = host.action("open");
    open->setSeparator(true);
    host.manager.setToolBar(file, {nullptr, open});
    QVERIFY(open);
    QCOMPARE(standingOn(file), words("| |"));
    QCOMPARE(contentOf(host.manager.actions(file)), words("| open"));
    host.manager.deleteToolBar(mine);
    QVERIFY(open);
    host.manager.setToolBar(file, {});
    QVERIFY(open);
    QVERIFY(host.manager.actions().contains(open));
}

void tst_RyToolBarManager_toolbars::aRegisteredActionThatBecameASeparatorIsForgottenByItsToolBar()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    QAction *const open = host.action("open");
    open->setSeparator(true);
    host.manager.setToolBar(file, {});
    ActionLog log(file);
    file->addAction(open);
    log.take();
    host.manager.removeAction(open);
    QCOMPARE(log.take(), QStringList());
}

void tst_RyToolBarManager_toolbars::aSeparatorThatBecameAnActionIsNotDeleted()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open |"), A);
    const QPointer<QAction> former = file->actions().last();
    former->setSeparator(false);
    host.manager.setToolBar(file, host.list(words("open")));
    QVERIFY(former);
    QCOMPARE(standingOn(file), words("open"));
    QCOMPARE(host.manager.actions(), QSet<QAction *>{host.action("open")});
}

void tst_RyToolBarManager_toolbars::theOldContentIsReportedWhileTheWidgetChanges()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open |"), A);
    ActionLog log(file);
    QList<QStringList> seen;
    log.atEach([&] { seen << contentOf(host.manager.actions(file)); });
    host.manager.setToolBar(file, host.list(words("| open")));
    const QStringList old = words("open |");
    QCOMPARE(seen, (QList<QStringList>{old, old, old, old}));
    QCOMPARE(contentOf(host.manager.actions(file)), words("| open"));
}

void tst_RyToolBarManager_toolbars::setToolBarsSetsEachToolBar()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    QToolBar *const edit = host.defaultToolBar("edit", words("find"), A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBars(
        {{file, host.list(words("find stranger find"))}, {mine, host.list(words("| open"))}});
    QCOMPARE(recordOf(host, file), words("find / find / open | save / default"));
    QCOMPARE(recordOf(host, edit), words("find / find / find / default"));
    QCOMPARE(recordOf(host, mine), words("| open / | open / / custom"));
    host.manager.setToolBars({});
    QCOMPARE(standingOn(file), words("find"));
}

void tst_RyToolBarManager_toolbars::setToolBarsIgnoresNullAndUnmanagedToolBars()
{
    Host host;
    QToolBar *const unmanaged = host.toolBar("other", words("open"));
    QToolBar *const file = host.defaultToolBar("file", words("save"), A);
    host.manager.setToolBars({{nullptr, host.list(words("save"))},
                              {unmanaged, host.list(words("save"))},
                              {file, host.list(words("| save"))}});
    QCOMPARE(standingOn(unmanaged), words("open"));
    QCOMPARE(standingOn(file), words("| save"));
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{file});
}

void tst_RyToolBarManager_toolbars::setToolBarsVisitsToolBarsByAddress()
{
    Host host;
    host.registered("open", A);
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 5);
    ActionLog log;
    Contents contents;
    for (const int i : {3, 0, 4, 2, 1}) {
        log.watch(toolBars.at(i));
        host.manager.addDefaultToolBar(toolBars.at(i), A);
        contents.insert(toolBars.at(i), host.list(words("open")));
    }
    host.manager.setToolBars(contents);
    QCOMPARE(log.take(), words("t0+open t1+open t2+open t3+open t4+open"));
}

void tst_RyToolBarManager_toolbars::aSeparatorThatTheHostTookOffIsDeleted()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    const QPointer<QAction> separator = file->actions().at(1);
    file->removeAction(separator);
    host.manager.setToolBar(file, {});
    QVERIFY(!separator);
}

// Not promised, but a host that deletes an action too early should not crash.
void tst_RyToolBarManager_toolbars::anActionThatWasDeletedIsNotTouched()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save cut"), A);
    QAction *const open = host.action("open");
    QAction *const save = host.action("save");
    delete open;
    delete save;
    host.manager.removeAction(open);
    host.manager.setToolBar(file, host.list(words("cut")));
    host.manager.removeAction(save);
    QCOMPARE(standingOn(file), words("cut"));
    QCOMPARE(contentOf(host.manager.actions(file)), words("cut"));
}

void tst_RyToolBarManager_toolbars::resetToolBarBringsTheDefaultContentBack()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    QToolBar *const edit = host.defaultToolBar("edit", words("find"), A);
    host.manager.setToolBar(file, host.list(words("find |")));
    host.manager.setToolBar(edit, host.list(words("find | open")));
    const QPointer<QAction> separator = file->actions().last();
    ActionLog log(file);
    log.watch(edit);
    host.manager.resetToolBar(file);
    QCOMPARE(log.take(), words("file-find file-| file+open file+| file+save"));
    QVERIFY(!separator);
    QCOMPARE(recordOf(host, file), words("open | save / open | save / open | save / default"));
    QCOMPARE(standingOn(edit), words("find | open"));
}

void tst_RyToolBarManager_toolbars::resetToolBarIgnoresOtherToolBars_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::newRow("null") << "null";
    QTest::newRow("custom") << "_Custom_Toolbar_1";
    QTest::newRow("unmanaged") << "other";
}

void tst_RyToolBarManager_toolbars::resetToolBarIgnoresOtherToolBars()
{
    QFETCH(QString, toolBar);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    host.manager.setToolBar(file, host.list(words("|")));
    QToolBar *const other = host.toolBar("other", words("open |"));
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, host.list(words("| open")));
    ActionLog log(mine);
    log.watch(file);
    log.watch(other);
    host.manager.resetToolBar(host.window.findChild<QToolBar *>(toolBar));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(recordOf(host, mine), words("| open / | open / / custom"));
    QCOMPARE(recordOf(host, other), words("/ open | / / unmanaged"));
}

void tst_RyToolBarManager_toolbars::resetAllToolBarsVisitsDefaultToolBarsByAddress()
{
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 5);
    ActionLog log;
    for (const int i : {3, 0, 4, 2, 1}) {
        toolBars.at(i)->addAction(host.action("open"));
        host.manager.addDefaultToolBar(toolBars.at(i), A);
        host.manager.setToolBar(toolBars.at(i), {});
        log.watch(toolBars.at(i));
    }
    host.manager.resetAllToolBars();
    QCOMPARE(log.take(), words("t0+open t1+open t2+open t3+open t4+open"));
}

void tst_RyToolBarManager_toolbars::resetAllToolBarsLeavesCustomToolBarsAlone()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open |"), A);
    QToolBar *const edit = host.defaultToolBar("edit", words("| find"), A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, host.list(words("| open")));
    host.manager.setToolBar(file, {});
    host.manager.setToolBar(edit, host.list(words("open")));
    const QList<QAction *> standing = mine->actions();
    host.manager.resetAllToolBars();
    QCOMPARE(standingOn(file), words("open |"));
    QCOMPARE(standingOn(edit), words("| find"));
    QCOMPARE(mine->actions(), standing);
    QCOMPARE(recordOf(host, mine), words("| open / | open / / custom"));
}

void tst_RyToolBarManager_toolbars::theSlotsMayBeConnectedToSignals()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open |"), A);
    QToolBar *const edit = host.defaultToolBar("edit", words("find"), A);
    host.manager.setToolBars({{file, {}}, {edit, {}}});
    QVERIFY(QMetaObject::invokeMethod(&host.manager, "resetToolBar", Q_ARG(QToolBar *, file)));
    QCOMPARE(standingOn(file) + standingOn(edit), words("open |"));
    QAction *const reset = host.action("reset");
    QVERIFY(connect(reset, SIGNAL(triggered()), &host.manager, SLOT(resetAllToolBars())));
    reset->trigger();
    QCOMPARE(standingOn(file) + standingOn(edit), words("open | find"));
}

void tst_RyToolBarManager_toolbars::toolBarsAreInTheOrderOfTheirAddresses()
{
    Host host;
    QList<QToolBar *> toolBars = toolBarsByAddress(host, 6);
    for (const int i : {5, 1, 4, 0, 3, 2})
        host.manager.addDefaultToolBar(toolBars.at(i), A);
    QCOMPARE(namesOf(host.manager.toolBars()), words("t0 t1 t2 t3 t4 t5"));
    QCOMPARE(host.manager.toolBars(), host.manager.defaultToolBars().keys());
    for (int i = 0; i < 4; ++i)
        toolBars << host.manager.createToolBar(QString());
    toolBars = byAddress(toolBars);
    QCOMPARE(host.manager.toolBars(), toolBars);
}

void tst_RyToolBarManager_toolbars::queriesOfOtherToolBarsAreEmpty_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::newRow("null") << "null";
    QTest::newRow("unmanaged") << "other";
    QTest::newRow("custom") << "_Custom_Toolbar_1";
}

void tst_RyToolBarManager_toolbars::queriesOfOtherToolBarsAreEmpty()
{
    QFETCH(QString, toolBar);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    host.toolBar("other", words("open"));
    QToolBar *const mine = host.manager.createToolBar("Mine");
    QToolBar *const asked = host.window.findChild<QToolBar *>(toolBar);
    QVERIFY(host.manager.actions(asked).isEmpty());
    QVERIFY(!host.manager.isDefaultToolBar(asked));
    // Asking registers nothing.
    QCOMPARE(host.manager.defaultToolBars().keys(), QList<QToolBar *>{file});
    QCOMPARE(host.manager.toolBarsActions().size(), 2);
    QVERIFY(host.manager.toolBars().contains(mine));
}

void tst_RyToolBarManager_toolbars::isDefaultToolBarOnlyComparesThePointer()
{
    Host host;
    host.defaultToolBar("file", words("open"), A);
    QToolBar *const gone = host.toolBar("other");
    delete gone;
    QVERIFY(!host.manager.isDefaultToolBar(gone));
    QVERIFY(host.manager.actions(gone).isEmpty());
}

QTEST_MAIN(tst_RyToolBarManager_toolbars)

#include "tst_rytoolbarmanager_toolbars.moc"
