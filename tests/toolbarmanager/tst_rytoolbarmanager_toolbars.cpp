// SPDX-License-Identifier: MIT

#include "actionlog.h"
#include "host.h"
#include "localecodec.h"
#include "testcase.h"
#include "texts.h"
#include "toolbarorder.h"

#include <QLineEdit>
#include <QPointer>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

const QString A = QStringLiteral("A");
const QString B = QStringLiteral("B");

using Contents = QMap<QToolBar *, QList<QAction *>>;

QString name(const char *text)
{
    return QString::fromUtf8(text);
}

QList<QPointer<QAction>> guarded(const QList<QAction *> &actions)
{
    QList<QPointer<QAction>> guards;
    for (QAction *action : actions)
        guards << action;
    return guards;
}

// "alive" or "deleted" for each.
QStringList fatesOf(const QList<QPointer<QAction>> &actions)
{
    QStringList fates;
    for (const QPointer<QAction> &action : actions)
        fates << QLatin1String(action ? "alive" : "deleted");
    return fates;
}

// A toolbar in one line: what the manager says of it and what stands on it.
QStringList recordOf(const Host &host, QToolBar *toolBar)
{
    QStringList record;
    record << contentOf(host.manager.actions(toolBar)) << name("/") << standingOn(toolBar)
           << name("/") << contentOf(host.manager.defaultToolBars().value(toolBar)) << name("/")
           << name(host.manager.isDefaultToolBar(toolBar)          ? "default"
                       : host.manager.toolBars().contains(toolBar) ? "custom"
                                                                   : "unmanaged");
    return record;
}

QString notByName(const char *name)
{
    return QStringLiteral("RyToolBarManager::restoreState(): cannot find a QToolBar named '%1', "
                          "trying to match using 'windowTitle' instead.")
        .arg(QString::fromUtf8(name));
}

QString notByTitle(const char *name)
{
    return QStringLiteral("RyToolBarManager::restoreState(): cannot find a QToolBar with matching "
                          "'windowTitle' (looking for '%1').")
        .arg(QString::fromUtf8(name));
}

} // namespace

class tst_RyToolBarManager_toolbars : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addDefaultToolBarRecordsWhatStandsOnIt_data();
    void addDefaultToolBarRecordsWhatStandsOnIt();
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
    void setToolBarWithAnEqualListDoesNotMendTheWidget();
    void aListThatOnlyAddsDroppedEntriesIsNotEqual();
    void setToolBarRemovesEverythingInOrderAndThenAddsInOrder();
    void setToolBarDeletesTheOldSeparatorsAndMakesFreshOnes();
    void setToolBarAppendsBehindWhatTheHostPlaced();
    void anActionMayStandOnSeveralToolBars();
    void takingAnActionOffOneToolBarLeavesItOnTheOther();
    void setToolBarDoesNotChangeTheDefaultContent();
    void setToolBarRegistersNothing();
    void aRegisteredActionThatBecameASeparatorIsNotDeleted();
    void aRegisteredActionThatBecameASeparatorIsForgottenByItsToolBar();
    void aSeparatorThatBecameAnActionIsNotDeleted();
    void theOldContentIsReportedWhileTheWidgetChanges();
    void setToolBarsSetsEachToolBar();
    void setToolBarsIgnoresNullAndUnmanagedToolBars();
    void setToolBarsVisitsToolBarsByAddress();

    void createToolBarMakesAnEmptyCustomToolBar();
    void createToolBarTakesAnyTitle_data();
    void createToolBarTakesAnyTitle();
    void createToolBarWithoutAMainWindowCreatesNothing();
    void createToolBarAppendsToTheTopArea();
    void createToolBarUsesTheWindowOfTheMoment();
    void createToolBarTakesTheFirstFreeNumber_data();
    void createToolBarTakesTheFirstFreeNumber();
    void createToolBarLooksAtTheNamesOfTheMoment();
    void numbersOfDeletedToolBarsAreUsedAgain();
    void numbersOfForgottenToolBarsAreUsedAgain();

    void deleteToolBarDeletesTheWidgetAndItsSeparators();
    void deleteToolBarTakesTheActionsOffFirst();
    void deleteToolBarLeavesTheActionsAndOtherToolBars();
    void deleteToolBarLeavesWhatTheHostPlaced();
    void theWidgetOfADeletedToolBarReturns();
    void widgetsOfADeletedToolBarReturnToTheirOwnToolBars();
    void aWidgetActionOutlivesItsToolBars();
    void aSeparatorThatTheHostTookOffIsDeleted();
    void anActionThatWasDeletedIsNotTouched();
    void removeDefaultToolBarLeavesWidgetActionsToTheirToolBar();
    void deleteToolBarIgnoresOtherToolBars_data();
    void deleteToolBarIgnoresOtherToolBars();

    void removeDefaultToolBarLeavesDefaultToolBarsAlone();
    void removeDefaultToolBarLeavesUnmanagedToolBarsAlone_data();
    void removeDefaultToolBarLeavesUnmanagedToolBarsAlone();
    void removeDefaultToolBarEmptiesAndForgetsACustomToolBar();
    void aForgottenToolBarMayBecomeADefaultToolBar();

    void resetToolBarBringsTheDefaultContentBack();
    void resetToolBarLeavesAnUnchangedToolBarAlone();
    void resetToolBarIgnoresOtherToolBars_data();
    void resetToolBarIgnoresOtherToolBars();
    void resetAllToolBarsVisitsDefaultToolBarsByAddress();
    void resetAllToolBarsLeavesCustomToolBarsAlone();
    void theSlotsMayBeConnectedToSignals();

    void toolBarsStandInTheOrderOfTheirAddresses();
    void queriesOfOtherToolBarsAreEmpty_data();
    void queriesOfOtherToolBarsAreEmpty();
    void isDefaultToolBarOnlyComparesThePointer();
    void queriesReturnCopies();

    void toolBarByNameFindsDefaultAndCustomToolBars();
    void toolBarByNameFindsNothingElse_data();
    void toolBarByNameFindsNothingElse();
    void toolBarByNameOfAnEmptyNameFindsANamelessToolBar();
    void toolBarByNamePrefersTheLowestAddress_data();
    void toolBarByNamePrefersTheLowestAddress();
    void findDefaultToolBarByObjectName();
    void findDefaultToolBarByTitlePrintsOneWarning();
    void findDefaultToolBarOfAnUnknownNamePrintsTwoWarningsInOrder_data();
    void findDefaultToolBarOfAnUnknownNamePrintsTwoWarningsInOrder();
    void findDefaultToolBarPrefersAnObjectNameToATitle_data();
    void findDefaultToolBarPrefersAnObjectNameToATitle();
    void findDefaultToolBarPrefersTheLowestAddress_data();
    void findDefaultToolBarPrefersTheLowestAddress();
    void warningsShowTheNameInTheLocalEncoding();
    void warningsHaveNoSourceLocation();

    void noOperationOnToolBarsEmitsASignal();
};

void tst_RyToolBarManager_toolbars::addDefaultToolBarRecordsWhatStandsOnIt_data()
{
    QTest::addColumn<QStringList>("content");
    QTest::newRow("empty") << QStringList();
    QTest::newRow("actions") << words("open save find");
    QTest::newRow("separators between") << words("save | open | find");
    QTest::newRow("adjacent separators at the ends") << words("| | open | |");
    QTest::newRow("separators only") << words("| |");
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarRecordsWhatStandsOnIt()
{
    QFETCH(QStringList, content);
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), content, A);
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
    host.defaultToolBar(name("file"), words("save | find open |"), A);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("save find open"));
    QCOMPARE(host.manager.actions().size(), 3);
    QCOMPARE(host.manager.actionCategory(host.action(name("find"))), A);
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarLeavesKnownActionsInTheirCategory()
{
    Host host;
    host.registered(name("open"), B);
    host.defaultToolBar(name("file"), words("open save"), A);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("save"));
    QCOMPARE(contentOf(host.manager.categoryActions(B)), words("open"));
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarCreatesNoCategoryWithoutActions()
{
    Host host;
    host.registered(name("open"), B);
    host.defaultToolBar(name("empty"), QStringList(), A);
    host.defaultToolBar(name("bars"), words("| |"), A);
    host.defaultToolBar(name("known"), words("open"), A);
    QCOMPARE(host.manager.categories(), words("B"));
    QCOMPARE(host.manager.actions().size(), 1);
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarDoesNotChangeTheWidget()
{
    Host host;
    QToolBar *const file = host.toolBar(name("file"), words("| open | save"));
    const QList<QAction *> standing = file->actions();
    const QList<QPointer<QAction>> guards = guarded(standing);
    ActionLog log(file);
    host.manager.addDefaultToolBar(file, A);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(file->actions(), standing);
    QCOMPARE(fatesOf(guards), words("alive alive alive alive"));
    QCOMPARE(file->objectName(), name("file"));
    QCOMPARE(file->windowTitle(), name("File"));
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
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    file->addAction(host.action(name("find")));
    host.manager.setToolBar(file, host.list(words("save")));
    host.manager.addDefaultToolBar(file, B);
    QCOMPARE(recordOf(host, file), words("save / find save / open | save / default"));
    QCOMPARE(host.manager.categories(), words("A"));
    QVERIFY(!host.manager.actions().contains(host.action(name("find"))));
}

void tst_RyToolBarManager_toolbars::addDefaultToolBarIgnoresACustomToolBar()
{
    Host host;
    host.registered(name("open"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    host.manager.setToolBar(mine, host.list(words("open |")));
    mine->addAction(host.action(name("save")));
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
    loose.addAction(host.action(name("open")));
    host.manager.addDefaultToolBar(&loose, A);
    host.manager.setToolBar(&loose, host.list(words("| open")));
    QCOMPARE(recordOf(host, &loose), words("| open / | open / open / default"));
}

void tst_RyToolBarManager_toolbars::separatorsOfTheHostAreDeletedWithTheContent()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save |"), A);
    const QList<QPointer<QAction>> guards = guarded(file->actions());
    host.manager.setToolBar(file, host.list(words("save | open")));
    QCOMPARE(fatesOf(guards), words("alive deleted alive deleted"));
    QCOMPARE(standingOn(file), words("save | open"));
}

// The other toolbar's record must never hold a dangling pointer.
void tst_RyToolBarManager_toolbars::aSeparatorOnTwoDefaultToolBarsLivesUntilTheLastChanges()
{
    Host host;
    QToolBar *const file = host.toolBar(name("file"), words("open"));
    QToolBar *const edit = host.toolBar(name("edit"), words("find"));
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
    QTest::newRow("unmanaged") << QStringLiteral("other");
    QTest::newRow("custom") << QStringLiteral("_Custom_Toolbar_1");
    QTest::newRow("default, after it was registered") << QStringLiteral("edit");
}

void tst_RyToolBarManager_toolbars::aSeparatorThatTheHostPlacedElsewhereTooIsDeletedWithTheContent()
{
    QFETCH(QString, toolBar);
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open |"), A);
    host.defaultToolBar(name("edit"), QStringList(), A);
    host.toolBar(name("other"));
    host.manager.createToolBar(name("Mine"));
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
    host.registered(name("find"), B);
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
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
    host.registered(name("save"), A);
    QToolBar *const unmanaged = host.toolBar(name("other"), words("open |"));
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
    QToolBar *const file = host.defaultToolBar(name("file"), content, A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    host.manager.setToolBar(mine, host.list(content));
    const QList<QAction *> standing = file->actions() + mine->actions();
    ActionLog log(file);
    log.watch(mine);
    host.manager.setToolBar(file, host.list(content));
    host.manager.setToolBar(mine, host.list(content));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(file->actions() + mine->actions(), standing);
}

void tst_RyToolBarManager_toolbars::setToolBarWithAnEqualListDoesNotMendTheWidget()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open save"), A);
    file->removeAction(host.action(name("open")));
    host.manager.setToolBar(file, host.list(words("open save")));
    QCOMPARE(recordOf(host, file), words("open save / save / open save / default"));
    host.manager.setToolBar(file, host.list(words("save open")));
    QCOMPARE(standingOn(file), words("save open"));
}

void tst_RyToolBarManager_toolbars::aListThatOnlyAddsDroppedEntriesIsNotEqual()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open |"), A);
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
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save find |"), A);
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
    QToolBar *const file = host.defaultToolBar(name("file"), words("open"), A);
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
    QToolBar *const file = host.defaultToolBar(name("file"), words("open |"), A);
    file->addAction(host.action(name("stranger")));
    const QPointer<QAction> separator = file->addSeparator();
    host.manager.setToolBar(file, host.list(words("| open")));
    QCOMPARE(recordOf(host, file), words("| open / stranger | | open / open | / default"));
    QVERIFY(separator);
    host.manager.setToolBar(file, {});
    QCOMPARE(standingOn(file), words("stranger |"));
    QVERIFY(separator);
}

void tst_RyToolBarManager_toolbars::anActionMayStandOnSeveralToolBars()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    QToolBar *const yours = host.manager.createToolBar(name("Yours"));
    ActionLog log(file);
    host.manager.setToolBar(mine, host.list(words("open")));
    host.manager.setToolBar(yours, host.list(words("| open")));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(standingOn(file), words("open | save"));
    QCOMPARE(standingOn(mine), words("open"));
    QCOMPARE(standingOn(yours), words("| open"));
    // All three are known to hold it.
    host.manager.removeAction(host.action(name("open")));
    QCOMPARE(standingOn(file) + standingOn(mine) + standingOn(yours), words("| save |"));
}

void tst_RyToolBarManager_toolbars::takingAnActionOffOneToolBarLeavesItOnTheOther()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open"), A);
    QToolBar *const edit = host.defaultToolBar(name("edit"), words("open"), A);
    host.manager.setToolBar(file, {});
    QCOMPARE(standingOn(file), QStringList());
    QCOMPARE(standingOn(edit), words("open"));
    ActionLog log(file);
    log.watch(edit);
    host.manager.removeAction(host.action(name("open")));
    QCOMPARE(log.take(), words("edit-open"));
}

void tst_RyToolBarManager_toolbars::setToolBarDoesNotChangeTheDefaultContent()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    host.manager.setToolBar(file, host.list(words("save")));
    QCOMPARE(recordOf(host, file), words("save / save / open | save / default"));
}

void tst_RyToolBarManager_toolbars::setToolBarRegistersNothing()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open"), A);
    host.manager.setToolBar(file, host.list(words("stranger |")));
    QCOMPARE(host.manager.actions(), QSet<QAction *>{host.action(name("open"))});
    QCOMPARE(host.manager.categories(), words("A"));
    QVERIFY(host.manager.actionCategory(host.action(name("stranger"))).isNull());
}

void tst_RyToolBarManager_toolbars::aRegisteredActionThatBecameASeparatorIsNotDeleted()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    host.manager.setToolBar(mine, host.list(words("save open")));
    const QPointer<QAction> open = host.action(name("open"));
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
    QToolBar *const file = host.defaultToolBar(name("file"), words("open"), A);
    QAction *const open = host.action(name("open"));
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
    QToolBar *const file = host.defaultToolBar(name("file"), words("open |"), A);
    const QPointer<QAction> former = file->actions().last();
    former->setSeparator(false);
    host.manager.setToolBar(file, host.list(words("open")));
    QVERIFY(former);
    QCOMPARE(standingOn(file), words("open"));
    QCOMPARE(host.manager.actions(), QSet<QAction *>{host.action(name("open"))});
}

void tst_RyToolBarManager_toolbars::theOldContentIsReportedWhileTheWidgetChanges()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open |"), A);
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
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    QToolBar *const edit = host.defaultToolBar(name("edit"), words("find"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
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
    QToolBar *const unmanaged = host.toolBar(name("other"), words("open"));
    QToolBar *const file = host.defaultToolBar(name("file"), words("save"), A);
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
    host.registered(name("open"), A);
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

void tst_RyToolBarManager_toolbars::createToolBarMakesAnEmptyCustomToolBar()
{
    Host host;
    host.registered(name("open"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    QVERIFY(mine);
    QCOMPARE(mine->windowTitle(), name("Mine"));
    QCOMPARE(mine->objectName(), name("_Custom_Toolbar_1"));
    QCOMPARE(mine->parent(), static_cast<QObject *>(&host.window));
    QCOMPARE(host.window.toolBarArea(mine), Qt::TopToolBarArea);
    QVERIFY(!mine->isHidden());
    QCOMPARE(recordOf(host, mine), words("/ / / custom"));
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{mine});
    QVERIFY(host.manager.defaultToolBars().isEmpty());
    QCOMPARE(host.manager.toolBarByName(name("_Custom_Toolbar_1")), mine);
}

void tst_RyToolBarManager_toolbars::createToolBarTakesAnyTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("of another toolbar") << QStringLiteral("File");
    QTest::newRow("not of ASCII") << QString::fromUtf8("Für €");
    QTest::newRow("like an objectName") << QStringLiteral("_Custom_Toolbar_1");
}

void tst_RyToolBarManager_toolbars::createToolBarTakesAnyTitle()
{
    QFETCH(QString, title);
    Host host;
    host.defaultToolBar(name("file"), QStringList(), A);
    QToolBar *const first = host.manager.createToolBar(title);
    QToolBar *const second = host.manager.createToolBar(title);
    QCOMPARE(first->windowTitle(), title);
    QCOMPARE(second->windowTitle(), title);
    QCOMPARE(namesOf({first, second}), words("_Custom_Toolbar_1 _Custom_Toolbar_2"));
}

void tst_RyToolBarManager_toolbars::createToolBarWithoutAMainWindowCreatesNothing()
{
    RyToolBarManager manager;
    QVERIFY(!manager.createToolBar(name("Mine")));
    QVERIFY(manager.toolBars().isEmpty());

    Host host;
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    host.manager.setMainWindow(nullptr);
    QVERIFY(!host.manager.createToolBar(name("Yours")));
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{mine});
    // TestCase fails on a widget that was left behind.
}

void tst_RyToolBarManager_toolbars::createToolBarAppendsToTheTopArea()
{
    Host host;
    host.toolBar(name("file"), words("open"));
    host.window.addToolBar(Qt::LeftToolBarArea, new QToolBar(&host.window));
    QToolBar *const last = host.toolBar(name("edit"), words("find"));
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    QToolBar *const yours = host.manager.createToolBar(name("Yours"));
    host.registered(name("save"), A);
    host.manager.setToolBar(mine, host.list(words("save")));
    host.window.resize(600, 400);
    host.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host.window));
    QVERIFY(last->x() < mine->x());
    QVERIFY(mine->x() < yours->x());
    QCOMPARE(mine->y(), last->y());
    QVERIFY(mine->isVisible());
}

void tst_RyToolBarManager_toolbars::createToolBarUsesTheWindowOfTheMoment()
{
    QMainWindow other;
    Host host;
    QToolBar *const first = host.manager.createToolBar(name("Mine"));
    host.manager.setMainWindow(&other);
    QToolBar *const second = host.manager.createToolBar(name("Yours"));
    QCOMPARE(first->parent(), static_cast<QObject *>(&host.window));
    QCOMPARE(second->parent(), static_cast<QObject *>(&other));
    QCOMPARE(other.toolBarArea(second), Qt::TopToolBarArea);
    // Both are managed, so that the number counts.
    QCOMPARE(namesOf({first, second}), words("_Custom_Toolbar_1 _Custom_Toolbar_2"));
}

void tst_RyToolBarManager_toolbars::createToolBarTakesTheFirstFreeNumber_data()
{
    QTest::addColumn<QStringList>("existing");
    QTest::addColumn<QString>("created");
    const auto row = [](const char *existing, const char *number) {
        QStringList names;
        const QStringList numbers = QString::fromUtf8(existing).split(QLatin1Char(','));
        for (const QString &each : numbers)
            names << QLatin1String("_Custom_Toolbar_") + each;
        QTest::newRow(existing) << names << QLatin1String("_Custom_Toolbar_") + name(number);
    };
    QTest::newRow("none") << QStringList() << name("_Custom_Toolbar_1");
    row("1", "2");
    row("1,3", "2");
    row("2", "1");
    row("3,2,1", "4");
    row("1,2,3,4,5,6,7,8,9", "10");
    row("2147483647", "1");
    // None of these is a number as it would be written.
    row("", "1");
    row("0", "1");
    row("01", "1");
    row("+1", "1");
    row("-1", "1");
    row(" 1", "1");
    row("1 ", "1");
    row("1.0", "1");
    row("1a", "1");
    row("0x1", "1");
    row("\u0661", "1");
    row("\uff11", "1");
    // The lowest bits of the first are a one.
    row("4294967297", "1");
    row("99999999999999999999", "1");
    QTest::newRow("other case") << words("_custom_toolbar_1") << name("_Custom_Toolbar_1");
    QTest::newRow("longer prefix") << words("x_Custom_Toolbar_1") << name("_Custom_Toolbar_1");
}

void tst_RyToolBarManager_toolbars::createToolBarTakesTheFirstFreeNumber()
{
    QFETCH(QStringList, existing);
    QFETCH(QString, created);
    Host defaults;
    Host customs;
    Host strangers;
    for (const QString &each : qAsConst(existing)) {
        defaults.defaultToolBar(each, QStringList(), A);
        strangers.toolBar(each);
        strangers.defaultToolBar(QString(), QStringList(), A)->setWindowTitle(each);
    }
    for (int i = 0; i < existing.size(); ++i)
        customs.manager.createToolBar(QString());
    const auto made = customs.manager.toolBars();
    for (int i = 0; i < existing.size(); ++i)
        made.at(i)->setObjectName(existing.at(i));
    QCOMPARE(defaults.manager.createToolBar(QString())->objectName(), created);
    QCOMPARE(customs.manager.createToolBar(QString())->objectName(), created);
    // Neither unmanaged toolbars nor titles count.
    QCOMPARE(strangers.manager.createToolBar(QString())->objectName(), name("_Custom_Toolbar_1"));
}

void tst_RyToolBarManager_toolbars::createToolBarLooksAtTheNamesOfTheMoment()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), QStringList(), A);
    QToolBar *const first = host.manager.createToolBar(QString());
    file->setObjectName(name("_Custom_Toolbar_2"));
    QCOMPARE(host.manager.createToolBar(QString())->objectName(), name("_Custom_Toolbar_3"));
    first->setObjectName(name("mine"));
    QCOMPARE(host.manager.createToolBar(QString())->objectName(), name("_Custom_Toolbar_1"));
    file->setObjectName(name("file"));
    QCOMPARE(host.manager.createToolBar(QString())->objectName(), name("_Custom_Toolbar_2"));
}

void tst_RyToolBarManager_toolbars::numbersOfDeletedToolBarsAreUsedAgain()
{
    Host host;
    host.manager.createToolBar(name("One"));
    QToolBar *const second = host.manager.createToolBar(name("Two"));
    host.manager.createToolBar(name("Three"));
    host.manager.deleteToolBar(second);
    QCOMPARE(host.manager.createToolBar(name("Again"))->objectName(), name("_Custom_Toolbar_2"));
    QCOMPARE(host.manager.createToolBar(name("Next"))->objectName(), name("_Custom_Toolbar_4"));
}

void tst_RyToolBarManager_toolbars::numbersOfForgottenToolBarsAreUsedAgain()
{
    Host host;
    QToolBar *const first = host.manager.createToolBar(name("One"));
    host.manager.removeDefaultToolBar(first);
    QToolBar *const second = host.manager.createToolBar(name("Two"));
    QCOMPARE(namesOf({first, second}), words("_Custom_Toolbar_1 _Custom_Toolbar_1"));
}

void tst_RyToolBarManager_toolbars::deleteToolBarDeletesTheWidgetAndItsSeparators()
{
    Host host;
    host.registered(name("open"), A);
    const QPointer<QToolBar> mine = host.manager.createToolBar(name("Mine"));
    host.manager.setToolBar(mine, host.list(words("| open |")));
    const QList<QPointer<QAction>> guards = guarded(mine->actions());
    QToolBar *const dangling = mine;
    host.manager.deleteToolBar(mine);
    QVERIFY(!mine);
    QCOMPARE(fatesOf(guards), words("deleted alive deleted"));
    QVERIFY(host.manager.toolBars().isEmpty());
    QVERIFY(host.manager.toolBarsActions().isEmpty());
    QVERIFY(host.manager.actions(dangling).isEmpty());
    QVERIFY(!host.manager.isDefaultToolBar(dangling));
    QVERIFY(!host.manager.toolBarByName(name("_Custom_Toolbar_1")));
    QVERIFY(host.window.findChildren<QToolBar *>().isEmpty());
}

void tst_RyToolBarManager_toolbars::deleteToolBarTakesTheActionsOffFirst()
{
    Host host;
    host.registered(name("open"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    mine->setObjectName(name("mine"));
    host.manager.setToolBar(mine, host.list(words("| open")));
    ActionLog log(mine);
    QStringList records;
    connect(mine, &QObject::destroyed, &log,
            [&] { records << QString::number(host.manager.toolBars().size()); });
    host.manager.deleteToolBar(mine);
    QCOMPARE(log.take(), words("mine-| mine-open"));
    // It was forgotten before it was destroyed.
    QCOMPARE(records, words("0"));
}

void tst_RyToolBarManager_toolbars::deleteToolBarLeavesTheActionsAndOtherToolBars()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open |"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    QToolBar *const yours = host.manager.createToolBar(name("Yours"));
    host.manager.setToolBar(mine, host.list(words("open |")));
    host.manager.setToolBar(yours, host.list(words("| open")));
    ActionLog log(file);
    log.watch(yours);
    host.manager.deleteToolBar(mine);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(recordOf(host, file), words("open | / open | / open | / default"));
    QCOMPARE(recordOf(host, yours), words("| open / | open / / custom"));
    // The deleted toolbar is not visited any more.
    host.manager.removeAction(host.action(name("open")));
    QCOMPARE(log.take(), words("file-open _Custom_Toolbar_2-open"));
}

void tst_RyToolBarManager_toolbars::deleteToolBarLeavesWhatTheHostPlaced()
{
    Host host;
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    const QPointer<QAction> stranger = host.action(name("stranger"));
    QAction bar;
    bar.setSeparator(true);
    const QPointer<QAction> guard(&bar);
    mine->addAction(stranger);
    mine->addAction(&bar);
    host.manager.deleteToolBar(mine);
    QVERIFY(stranger);
    QVERIFY(guard);
}

void tst_RyToolBarManager_toolbars::theWidgetOfADeletedToolBarReturns()
{
    Host host;
    QToolBar *const file = host.toolBar(name("file"));
    const QPointer<QWidget> box = new QLineEdit;
    QAction *const boxAction = file->addWidget(box);
    boxAction->setObjectName(name("box"));
    host.manager.addDefaultToolBar(file, A);
    host.window.show();
    host.manager.setToolBar(file, {});
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    host.manager.setToolBar(mine, {boxAction});
    QCOMPARE(mine->widgetForAction(boxAction), box.data());
    host.manager.deleteToolBar(mine);
    QVERIFY(box);
    QCOMPARE(boxAction->parent(), file);
    host.manager.resetToolBar(file);
    QCOMPARE(file->widgetForAction(boxAction), box.data());
    QTRY_VERIFY(box->isVisible());
}

void tst_RyToolBarManager_toolbars::widgetsOfADeletedToolBarReturnToTheirOwnToolBars()
{
    Host host;
    QList<QObject *> toolBars;
    QList<QAction *> boxes;
    for (const char *title : {"File", "Edit", "View"}) {
        QToolBar *const toolBar = host.toolBar(name(title));
        toolBars << toolBar;
        boxes << toolBar->addWidget(new QLineEdit);
        host.manager.addDefaultToolBar(toolBar, A);
    }
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    host.manager.setToolBar(mine, boxes);
    host.manager.deleteToolBar(mine);
    QList<QObject *> owners;
    for (const QAction *box : qAsConst(boxes))
        owners << box->parent();
    QCOMPARE(owners, toolBars);
}

void tst_RyToolBarManager_toolbars::aWidgetActionOutlivesItsToolBars()
{
    Host host;
    std::unique_ptr<QToolBar> other(new QToolBar);
    QPointer<QAction> box = other->addWidget(new QLineEdit);
    box->setObjectName(name("box"));
    host.manager.addAction(box, A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    host.manager.setToolBar(mine, {box});
    other.reset();
    host.manager.deleteToolBar(mine);
    QVERIFY(box);
    QCOMPARE(box->parent(), &host.window);
    host.manager.removeAction(box);
}

void tst_RyToolBarManager_toolbars::aSeparatorThatTheHostTookOffIsDeleted()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    const QPointer<QAction> separator = file->actions().at(1);
    file->removeAction(separator);
    host.manager.setToolBar(file, {});
    QVERIFY(!separator);
}

// Not promised, but a host that deletes an action too early should not crash.
void tst_RyToolBarManager_toolbars::anActionThatWasDeletedIsNotTouched()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save cut"), A);
    QAction *const open = host.action(name("open"));
    QAction *const save = host.action(name("save"));
    delete open;
    delete save;
    host.manager.removeAction(open);
    host.manager.setToolBar(file, host.list(words("cut")));
    host.manager.removeAction(save);
    QCOMPARE(standingOn(file), words("cut"));
    QCOMPARE(contentOf(host.manager.actions(file)), words("cut"));
}

void tst_RyToolBarManager_toolbars::removeDefaultToolBarLeavesWidgetActionsToTheirToolBar()
{
    Host host;
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    QAction *const box = mine->addWidget(new QLineEdit);
    box->setObjectName(name("box"));
    host.manager.addAction(box, A);
    host.manager.setToolBar(mine, {box});
    host.manager.removeDefaultToolBar(mine);
    QCOMPARE(box->parent(), mine);
    host.manager.removeAction(box);
}

void tst_RyToolBarManager_toolbars::deleteToolBarIgnoresOtherToolBars_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::newRow("null") << QStringLiteral("null");
    QTest::newRow("default") << QStringLiteral("file");
    QTest::newRow("unmanaged") << QStringLiteral("other");
    QTest::newRow("forgotten") << QStringLiteral("forgotten");
}

void tst_RyToolBarManager_toolbars::deleteToolBarIgnoresOtherToolBars()
{
    QFETCH(QString, toolBar);
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    host.manager.setToolBar(file, host.list(words("save |")));
    QToolBar *const other = host.toolBar(name("other"), words("open |"));
    QToolBar *const forgotten = host.manager.createToolBar(name("Mine"));
    forgotten->setObjectName(name("forgotten"));
    host.manager.removeDefaultToolBar(forgotten);
    forgotten->addAction(host.action(name("open")));
    ActionLog log(file);
    log.watch(other);
    log.watch(forgotten);

    host.manager.deleteToolBar(host.window.findChild<QToolBar *>(toolBar));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(namesOf(host.window.findChildren<QToolBar *>()), words("file other forgotten"));
    QCOMPARE(recordOf(host, file), words("save | / save | / open | save / default"));
    QCOMPARE(recordOf(host, other), words("/ open | / / unmanaged"));
    QCOMPARE(recordOf(host, forgotten), words("/ open / / unmanaged"));
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{file});
}

// The inverted test is meant: default toolbars are just the ones that it leaves alone.
void tst_RyToolBarManager_toolbars::removeDefaultToolBarLeavesDefaultToolBarsAlone()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    host.manager.setToolBar(file, host.list(words("save |")));
    const QList<QAction *> standing = file->actions();
    ActionLog log(file);
    host.manager.removeDefaultToolBar(file);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(file->actions(), standing);
    QCOMPARE(recordOf(host, file), words("save | / save | / open | save / default"));
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{file});
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("open save"));
}

void tst_RyToolBarManager_toolbars::removeDefaultToolBarLeavesUnmanagedToolBarsAlone_data()
{
    QTest::addColumn<bool>("null");
    QTest::newRow("null") << true;
    QTest::newRow("unmanaged") << false;
}

void tst_RyToolBarManager_toolbars::removeDefaultToolBarLeavesUnmanagedToolBarsAlone()
{
    QFETCH(bool, null);
    Host host;
    host.registered(name("open"), A);
    QToolBar *const other = host.toolBar(name("other"), words("open | save"));
    ActionLog log(other);
    host.manager.removeDefaultToolBar(null ? nullptr : other);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(recordOf(host, other), words("/ open | save / / unmanaged"));
    QVERIFY(host.manager.toolBars().isEmpty());
    QVERIFY(host.manager.toolBarsActions().isEmpty());
    QVERIFY(host.manager.defaultToolBars().isEmpty());
    QVERIFY(!host.manager.isDefaultToolBar(nullptr));
    QCOMPARE(host.manager.actions().size(), 1);
}

void tst_RyToolBarManager_toolbars::removeDefaultToolBarEmptiesAndForgetsACustomToolBar()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open"), A);
    const QPointer<QToolBar> mine = host.manager.createToolBar(name("Mine"));
    host.manager.setToolBar(mine, host.list(words("| open |")));
    mine->addAction(host.action(name("stranger")));
    const QList<QPointer<QAction>> guards = guarded(mine->actions());
    host.manager.removeDefaultToolBar(mine);
    QVERIFY(mine);
    QCOMPARE(fatesOf(guards), words("deleted alive deleted alive"));
    QCOMPARE(recordOf(host, mine), words("/ stranger / / unmanaged"));
    QCOMPARE(mine->windowTitle(), name("Mine"));
    QCOMPARE(host.window.toolBarArea(mine), Qt::TopToolBarArea);
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{file});
    QCOMPARE(host.manager.defaultToolBars().keys(), QList<QToolBar *>{file});
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("open"));
    QCOMPARE(standingOn(file), words("open"));
    host.manager.setToolBar(mine, host.list(words("open")));
    QCOMPARE(standingOn(mine), words("stranger"));
}

void tst_RyToolBarManager_toolbars::aForgottenToolBarMayBecomeADefaultToolBar()
{
    Host host;
    host.registered(name("open"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    host.manager.setToolBar(mine, host.list(words("| open")));
    host.manager.removeDefaultToolBar(mine);
    mine->addAction(host.action(name("save")));
    host.manager.addDefaultToolBar(mine, B);
    QCOMPARE(recordOf(host, mine), words("save / save / save / default"));
}

void tst_RyToolBarManager_toolbars::resetToolBarBringsTheDefaultContentBack()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    QToolBar *const edit = host.defaultToolBar(name("edit"), words("find"), A);
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

void tst_RyToolBarManager_toolbars::resetToolBarLeavesAnUnchangedToolBarAlone()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    const QList<QAction *> standing = file->actions();
    ActionLog log(file);
    host.manager.resetToolBar(file);
    host.manager.resetAllToolBars();
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(file->actions(), standing);
}

void tst_RyToolBarManager_toolbars::resetToolBarIgnoresOtherToolBars_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::newRow("null") << QStringLiteral("null");
    QTest::newRow("custom") << QStringLiteral("_Custom_Toolbar_1");
    QTest::newRow("unmanaged") << QStringLiteral("other");
}

void tst_RyToolBarManager_toolbars::resetToolBarIgnoresOtherToolBars()
{
    QFETCH(QString, toolBar);
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open"), A);
    host.manager.setToolBar(file, host.list(words("|")));
    QToolBar *const other = host.toolBar(name("other"), words("open |"));
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
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
        toolBars.at(i)->addAction(host.action(name("open")));
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
    QToolBar *const file = host.defaultToolBar(name("file"), words("open |"), A);
    QToolBar *const edit = host.defaultToolBar(name("edit"), words("| find"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
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
    QToolBar *const file = host.defaultToolBar(name("file"), words("open |"), A);
    QToolBar *const edit = host.defaultToolBar(name("edit"), words("find"), A);
    host.manager.setToolBars({{file, {}}, {edit, {}}});
    QVERIFY(QMetaObject::invokeMethod(&host.manager, "resetToolBar", Q_ARG(QToolBar *, file)));
    QCOMPARE(standingOn(file) + standingOn(edit), words("open |"));
    QAction *const reset = host.action(name("reset"));
    QVERIFY(connect(reset, SIGNAL(triggered()), &host.manager, SLOT(resetAllToolBars())));
    reset->trigger();
    QCOMPARE(standingOn(file) + standingOn(edit), words("open | find"));
}

void tst_RyToolBarManager_toolbars::toolBarsStandInTheOrderOfTheirAddresses()
{
    Host host;
    QList<QToolBar *> toolBars = toolBarsByAddress(host, 6);
    for (const int i : {5, 1, 4, 0, 3, 2})
        host.manager.addDefaultToolBar(toolBars.at(i), A);
    QCOMPARE(namesOf(host.manager.toolBars()), words("t0 t1 t2 t3 t4 t5"));
    QCOMPARE(host.manager.toolBars(), host.manager.defaultToolBars().keys());
    for (int i = 0; i < 4; ++i)
        toolBars << host.manager.createToolBar(QString());
    std::sort(toolBars.begin(), toolBars.end(), std::less<QToolBar *>());
    QCOMPARE(host.manager.toolBars(), toolBars);
}

void tst_RyToolBarManager_toolbars::queriesOfOtherToolBarsAreEmpty_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::newRow("null") << QStringLiteral("null");
    QTest::newRow("unmanaged") << QStringLiteral("other");
    QTest::newRow("custom") << QStringLiteral("_Custom_Toolbar_1");
}

void tst_RyToolBarManager_toolbars::queriesOfOtherToolBarsAreEmpty()
{
    QFETCH(QString, toolBar);
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open"), A);
    host.toolBar(name("other"), words("open"));
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
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
    host.defaultToolBar(name("file"), words("open"), A);
    QToolBar *const gone = host.toolBar(name("other"));
    delete gone;
    QVERIFY(!host.manager.isDefaultToolBar(gone));
    QVERIFY(host.manager.actions(gone).isEmpty());
}

void tst_RyToolBarManager_toolbars::queriesReturnCopies()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open"), A);
    Contents defaults = host.manager.defaultToolBars();
    Contents current = host.manager.toolBarsActions();
    defaults[file].clear();
    current.clear();
    host.manager.setToolBar(file, host.list(words("| open")));
    QCOMPARE(recordOf(host, file), words("| open / | open / open / default"));
    QVERIFY(current.isEmpty());
}

void tst_RyToolBarManager_toolbars::toolBarByNameFindsDefaultAndCustomToolBars()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), QStringList(), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    QCOMPARE(host.manager.toolBarByName(name("file")), file);
    QCOMPARE(host.manager.toolBarByName(name("_Custom_Toolbar_1")), mine);
}

void tst_RyToolBarManager_toolbars::toolBarByNameFindsNothingElse_data()
{
    QTest::addColumn<QString>("searched");
    QTest::newRow("unknown") << QStringLiteral("view");
    QTest::newRow("unmanaged") << QStringLiteral("other");
    QTest::newRow("title of a default toolbar") << QStringLiteral("File");
    QTest::newRow("title of a custom toolbar") << QStringLiteral("Mine");
    QTest::newRow("other case") << QStringLiteral("FILE");
    QTest::newRow("part") << QStringLiteral("fil");
    QTest::newRow("empty") << QStringLiteral("");
}

// And prints nothing, or TestCase fails.
void tst_RyToolBarManager_toolbars::toolBarByNameFindsNothingElse()
{
    QFETCH(QString, searched);
    Host host;
    host.defaultToolBar(name("file"), QStringList(), A);
    host.toolBar(name("other"));
    host.manager.createToolBar(name("Mine"));
    QVERIFY(!host.manager.toolBarByName(searched));
}

void tst_RyToolBarManager_toolbars::toolBarByNameOfAnEmptyNameFindsANamelessToolBar()
{
    Host host;
    host.defaultToolBar(name("file"), QStringList(), A);
    QToolBar *const nameless = host.defaultToolBar(QString(), QStringList(), A);
    QCOMPARE(host.manager.toolBarByName(QString()), nameless);
    QCOMPARE(host.manager.toolBarByName(QStringLiteral("")), nameless);
}

void tst_RyToolBarManager_toolbars::toolBarByNamePrefersTheLowestAddress_data()
{
    QTest::addColumn<QList<int>>("registered");
    QTest::newRow("lowest first") << QList<int>{0, 1, 2};
    QTest::newRow("lowest last") << QList<int>{2, 1, 0};
}

void tst_RyToolBarManager_toolbars::toolBarByNamePrefersTheLowestAddress()
{
    QFETCH(QList<int>, registered);
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 3);
    for (const int i : qAsConst(registered)) {
        toolBars.at(i)->setObjectName(name("same"));
        host.manager.addDefaultToolBar(toolBars.at(i), A);
    }
    QCOMPARE(host.manager.toolBarByName(name("same")), toolBars.first());
    toolBars.first()->setObjectName(name("other"));
    QCOMPARE(host.manager.toolBarByName(name("same")), toolBars.at(1));
}

void tst_RyToolBarManager_toolbars::findDefaultToolBarByObjectName()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), QStringList(), A);
    QToolBar *const edit = host.defaultToolBar(name("edit"), QStringList(), A);
    QToolBar *const nameless = host.defaultToolBar(QString(), QStringList(), A);
    QCOMPARE(host.manager.findDefaultToolBar(name("file")), file);
    QCOMPARE(host.manager.findDefaultToolBar(name("edit")), edit);
    QCOMPARE(host.manager.findDefaultToolBar(QString()), nameless);
}

void tst_RyToolBarManager_toolbars::findDefaultToolBarByTitlePrintsOneWarning()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), QStringList(), A);
    QCOMPARE(host.manager.findDefaultToolBar(name("File")), file);
    QCOMPARE(takeWarnings(), QStringList(notByName("File")));
}

void tst_RyToolBarManager_toolbars::findDefaultToolBarOfAnUnknownNamePrintsTwoWarningsInOrder_data()
{
    QTest::addColumn<QByteArray>("searched");
    QTest::newRow("unknown") << QByteArray("view");
    QTest::newRow("unmanaged") << QByteArray("other");
    QTest::newRow("title of an unmanaged toolbar") << QByteArray("Other");
    QTest::newRow("custom") << QByteArray("_Custom_Toolbar_1");
    QTest::newRow("title of a custom toolbar") << QByteArray("Mine");
    QTest::newRow("other case") << QByteArray("FILE");
    QTest::newRow("trailing blank") << QByteArray("file ");
    QTest::newRow("not of ASCII") << QByteArray("Träger €");
    QTest::newRow("percent signs") << QByteArray("%s %1 %d");
    QTest::newRow("empty") << QByteArray("");
}

void tst_RyToolBarManager_toolbars::findDefaultToolBarOfAnUnknownNamePrintsTwoWarningsInOrder()
{
    QFETCH(QByteArray, searched);
    Host host;
    host.defaultToolBar(name("file"), QStringList(), A);
    host.toolBar(name("other"));
    host.manager.createToolBar(name("Mine"));
    QVERIFY(!host.manager.findDefaultToolBar(name(searched)));
    QCOMPARE(takeWarnings(), (QStringList{notByName(searched), notByTitle(searched)}));
}

void tst_RyToolBarManager_toolbars::findDefaultToolBarPrefersAnObjectNameToATitle_data()
{
    QTest::addColumn<int>("named");
    QTest::newRow("lower address") << 0;
    QTest::newRow("higher address") << 1;
}

void tst_RyToolBarManager_toolbars::findDefaultToolBarPrefersAnObjectNameToATitle()
{
    QFETCH(int, named);
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 2);
    toolBars.at(named)->setObjectName(name("same"));
    toolBars.at(1 - named)->setWindowTitle(name("same"));
    host.manager.addDefaultToolBar(toolBars.at(0), A);
    host.manager.addDefaultToolBar(toolBars.at(1), A);
    QCOMPARE(host.manager.findDefaultToolBar(name("same")), toolBars.at(named));
}

void tst_RyToolBarManager_toolbars::findDefaultToolBarPrefersTheLowestAddress_data()
{
    toolBarByNamePrefersTheLowestAddress_data();
}

void tst_RyToolBarManager_toolbars::findDefaultToolBarPrefersTheLowestAddress()
{
    QFETCH(QList<int>, registered);
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 6);
    for (const int i : qAsConst(registered)) {
        toolBars.at(2 * i)->setObjectName(name("same"));
        toolBars.at(2 * i + 1)->setWindowTitle(name("Same"));
        host.manager.addDefaultToolBar(toolBars.at(2 * i), A);
        host.manager.addDefaultToolBar(toolBars.at(2 * i + 1), A);
    }
    QCOMPARE(host.manager.findDefaultToolBar(name("same")), toolBars.at(0));
    QCOMPARE(takeWarnings(), QStringList());
    QCOMPARE(host.manager.findDefaultToolBar(name("Same")), toolBars.at(1));
    QCOMPARE(takeWarnings(), QStringList(notByName("Same")));
}

void tst_RyToolBarManager_toolbars::warningsShowTheNameInTheLocalEncoding()
{
    Host host;
    const LocaleCodec latin1("ISO-8859-1");
    // In that encoding its two letters are the bytes that UTF-8 has for the one that is shown.
    host.manager.findDefaultToolBar(QStringLiteral("caf\u00c3\u00a9"));
    QCOMPARE(takeWarnings(), (QStringList{notByName("café"), notByTitle("café")}));
}

void tst_RyToolBarManager_toolbars::warningsHaveNoSourceLocation()
{
    Host host;
    host.manager.findDefaultToolBar(name("file"));
    QCOMPARE(takeLocatedWarnings(),
             (QStringList{QLatin1String(":0  ") + notByName("file"),
                          QLatin1String(":0  ") + notByTitle("file")}));
}

void tst_RyToolBarManager_toolbars::noOperationOnToolBarsEmitsASignal()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), words("open | save"), A);
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    QToolBar *const yours = host.manager.createToolBar(name("Yours"));
    host.manager.setToolBar(mine, host.list(words("open |")));
    host.manager.setToolBars({{file, host.list(words("save"))}, {yours, host.list(words("|"))}});
    host.manager.resetToolBar(file);
    host.manager.setToolBar(file, {});
    host.manager.resetAllToolBars();
    host.manager.deleteToolBar(mine);
    host.manager.deleteToolBar(file);
    host.manager.removeDefaultToolBar(yours);
    host.manager.removeDefaultToolBar(file);
    host.manager.findDefaultToolBar(name("file"));
    host.manager.toolBarByName(name("file"));
    // The check itself is in the destructor of Host.
}

QTEST_MAIN(tst_RyToolBarManager_toolbars)

#include "tst_rytoolbarmanager_toolbars.moc"
