// SPDX-License-Identifier: MIT

#include "busyhost.h"
#include "nextmodal.h"
#include "testcase.h"
#include "texts.h"

#include <QActionEvent>
#include <QLayout>
#include <QMap>
#include <QMessageBox>
#include <QPointer>
#include <QtTest>

#include <algorithm>

namespace {

const QString A = "A";

// Those that are left over included.
int separatorsBelow(const QToolBar *toolBar)
{
    const auto actions = toolBar->findChildren<QAction *>();
    return int(std::count_if(actions.cbegin(), actions.cend(),
                             [](const QAction *action) { return action->isSeparator(); }));
}

using Operation = void (*)(BusyHost &);

void query(BusyHost &host)
{
    const auto toolBars = host.manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        host.manager.actions(toolBar);
        host.manager.isDefaultToolBar(toolBar);
        host.manager.toolBarByName(toolBar->objectName());
    }
    host.manager.toolBarsActions();
    host.manager.defaultToolBars();
    host.manager.categoryActions(A);
}

void save(BusyHost &host)
{
    QCOMPARE(host.manager.saveState(1).left(4), QByteArray("\0\0\0\xFF", 4));
}

void setDefault(BusyHost &host)
{
    host.manager.setToolBar(host.file, host.list(words("| paste save | cut")));
}

void setCustom(BusyHost &host)
{
    host.manager.setToolBar(host.mine, host.list(words("paste | | save open")));
}

// Never the same twice.
void setToAnother(BusyHost &host)
{
    static int length = 0;
    length = (length + 1) % 7;
    for (QToolBar *toolBar : {host.file, host.mine.data()})
        host.manager.setToolBar(toolBar, host.list(words("open | cut | save |").mid(0, length)));
}

void setAll(BusyHost &host)
{
    host.manager.setToolBars({{host.file, host.list(words("copy |"))},
                              {host.edit, host.list(words("| | open"))},
                              {host.mine, host.list(words("cut save"))},
                              {host.yours, QList<QAction *>()}});
}

void empty(BusyHost &host)
{
    host.manager.setToolBar(host.file, QList<QAction *>());
    host.manager.setToolBar(host.mine, QList<QAction *>());
}

void create(BusyHost &host)
{
    if (host.manager.toolBars().size() > 20)
        return;
    QToolBar *const toolBar = host.manager.createToolBar("New");
    host.manager.setToolBar(toolBar, host.list(words("open | save")));
}

void deleteMine(BusyHost &host)
{
    host.manager.deleteToolBar(host.mine);
}

void forgetMine(BusyHost &host)
{
    host.manager.removeDefaultToolBar(host.mine);
}

void adoptMine(BusyHost &host)
{
    host.manager.removeDefaultToolBar(host.mine);
    host.manager.addDefaultToolBar(host.mine, A);
}

void resetAll(BusyHost &host)
{
    host.manager.resetAllToolBars();
}

void restorePlain(BusyHost &host)
{
    QVERIFY(host.manager.restoreState(host.plain, 1));
    TestCase::takeWarnings();
}

void restoreFull(BusyHost &host)
{
    QVERIFY(host.manager.restoreState(host.full, 1));
    TestCase::takeWarnings();
}

void unregister(BusyHost &host)
{
    host.manager.removeAction(host.action("save"));
    host.manager.removeAction(host.action("open"));
}

void unregisterAndDelete(BusyHost &host)
{
    for (const char *text : {"save", "paste", "cut"}) {
        if (QAction *const action = host.window.findChild<QAction *>(QString(text))) {
            // Nobody finds it and registers it again: a registered action is not deleted.
            action->setObjectName("deleted");
            host.manager.removeAction(action);
            // Not at once: Qt still uses the action of the event.
            action->deleteLater();
        }
    }
}

void unregisterAndRegister(BusyHost &host)
{
    host.manager.removeAction(host.action("save"));
    host.registered("save", A);
}

const QMap<QByteArray, Operation> &operations()
{
    static const QMap<QByteArray, Operation> all{
        {"setting a default toolbar", setDefault},
        {"setting a custom toolbar", setCustom},
        {"setting two toolbars to another list each time", setToAnother},
        {"setting all toolbars", setAll},
        {"emptying toolbars", empty},
        {"creating a toolbar", create},
        {"deleting a toolbar", deleteMine},
        {"deleting another toolbar",
         [](BusyHost &host) { host.manager.deleteToolBar(host.yours); }},
        {"deleting all custom toolbars", [](BusyHost &host) { host.deleteCustomToolBars(); }},
        {"forgetting a toolbar", forgetMine},
        {"making a custom toolbar a default one", adoptMine},
        {"resetting all toolbars", resetAll},
        {"restoring", restorePlain},
        {"restoring more toolbars", restoreFull},
        {"removing actions", unregister},
        {"removing and deleting actions", unregisterAndDelete},
        {"removing and registering an action", unregisterAndRegister},
    };
    return all;
}

} // namespace

class tst_RyToolBarManager_reentry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void recordsFitTheWidgetsWhateverTheHostCalls_data();
    void recordsFitTheWidgetsWhateverTheHostCalls();

    void aListSetDuringAChangeWins_data();
    void aListSetDuringAChangeWins();
    void theLastListSetDuringAChangeWins();
    void settingTheSameListEachTimeEnds();
    void settingAnotherListEachTimeEnds();
    void settingTheReportedListDuringAChangeDoesNothing();
    void resettingDuringAChangeWins();
    void anotherToolBarIsSetDuringAChange();
    void savingDuringAChangeSavesTheOldContent();
    void aMessageBoxDuringAChangeMayChangeTheToolBar();

    void aToolBarMayBeDeletedWhileItIsSet_data();
    void aToolBarMayBeDeletedWhileItIsSet();
    void aToolBarMayBeForgottenWhileItIsSet_data();
    void aToolBarMayBeForgottenWhileItIsSet();
    void aToolBarMadeADefaultOneWhileItIsDeletedStays();
    void deletingAToolBarTwiceAtOnceDeletesItOnce();
    void aListSetWhileItsToolBarIsDeletedIsIgnored();
    void aNewToolBarInThePlaceOfADeletedOneIsLeftAlone();
    void aDeletedToolBarIsForgottenByItsActions();

    void anActionRemovedWhileItIsPlacedIsNotPlaced();
    void anActionRemovedDuringAChangeIsNotPlaced_data();
    void anActionRemovedDuringAChangeIsNotPlaced();
    void anActionRemovedWhileItIsPlacedIsNotPlacedByTheNextList();
    void anActionDeletedDuringAChangeIsNotTouched();
    void anActionDeletedWhileItIsPlacedIsNotTouched();
    void anActionPlacedAgainWhileItIsRemovedIsTakenOff();
    void aToolBarDeletedWhileAnActionIsRemovedIsNotTouched();
    void anActionDeletedWhileItIsRemovedIsNotTouched();
    void removingAnActionTwiceAtOnceKeepsTheNamelessCategory();

    void aToolBarCreatedDuringACreationHasAnotherNumber();
    void theWindowMayBeUnsetWhileAToolBarIsCreated();

    void theMapGivenToSetToolBarsMayChange();
    void theListGivenToSetToolBarMayChange();
};

void tst_RyToolBarManager_reentry::recordsFitTheWidgetsWhateverTheHostCalls_data()
{
    QTest::addColumn<QByteArray>("running");
    QTest::addColumn<QByteArray>("called");
    QTest::addColumn<bool>("always");
    const auto names = operations().keys();
    for (const QByteArray &running : names) {
        for (const QByteArray &called : names) {
            for (const bool always : {false, true})
                QTest::newRow((running + " / " + called + (always ? " / always" : "")).constData())
                    << running << called << always;
        }
    }
}

void tst_RyToolBarManager_reentry::recordsFitTheWidgetsWhateverTheHostCalls()
{
    QFETCH(QByteArray, running);
    QFETCH(QByteArray, called);
    QFETCH(bool, always);
    BusyHost host;
    int depth = 0;
    HostCalls calls(
        {QEvent::ActionAdded, QEvent::ActionRemoved, QEvent::ChildAdded, QEvent::WindowTitleChange},
        always ? HostCalls::Always : HostCalls::Once, [&] {
            // A host that calls what calls it does not do so without an end.
            if (depth >= 4)
                return;
            ++depth;
            query(host);
            save(host);
            operations().value(called)(host);
            --depth;
        });
    host.watch(&calls);
    operations().value(running)(host);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(inconsistencyOf(host.manager), QString());

    // And it goes on.
    host.window.removeEventFilter(&calls);
    const auto toolBars = host.manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        toolBar->removeEventFilter(&calls);
        host.manager.setToolBar(toolBar, host.list(words("| copy")));
    }
    QCOMPARE(inconsistencyOf(host.manager), QString());
    host.deleteCustomToolBars();
    host.manager.removeAction(host.action("copy"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::aListSetDuringAChangeWins_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<QString>("second");
    for (const char *second : {"cut | save", "|", "", "open cut", "cut paste open"}) {
        QTest::addRow("%s, when an action is removed", second) << QEvent::ActionRemoved << second;
        QTest::addRow("%s, when an action is added", second) << QEvent::ActionAdded << second;
        QTest::addRow("%s, when a button is made", second) << QEvent::ChildAdded << second;
    }
}

void tst_RyToolBarManager_reentry::aListSetDuringAChangeWins()
{
    QFETCH(QEvent::Type, type);
    QFETCH(QString, second);
    BusyHost host;
    const QStringList expected = words(second.toLatin1().constData());
    HostCalls calls({type}, HostCalls::Once,
                    [&] { host.manager.setToolBar(host.file, host.list(expected)); });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("| paste copy |")));
    QCOMPARE(calls.count(), 1);
    QCOMPARE(contentOf(host.manager.actions(host.file)), expected);
    QCOMPARE(inconsistencyOf(host.manager), QString());
    QCOMPARE(separatorsBelow(host.file), expected.count("|"));
}

void tst_RyToolBarManager_reentry::theLastListSetDuringAChangeWins()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] {
        host.manager.setToolBar(host.file, host.list(words("cut")));
        host.manager.setToolBar(host.file, host.list(words("copy | cut")));
    });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("paste open")));
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("copy | cut"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::settingTheSameListEachTimeEnds()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionAdded, QEvent::ActionRemoved}, HostCalls::Always, [&] {
        host.manager.setToolBar(host.file, host.list(words("cut | stranger cut")));
    });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("paste open")));
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("cut |"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
    // One removed, two that are left to remove, and two added.
    QCOMPARE(calls.count(), 5);
}

void tst_RyToolBarManager_reentry::settingAnotherListEachTimeEnds()
{
    BusyHost host;
    int round = 0;
    HostCalls calls({QEvent::ActionAdded, QEvent::ActionRemoved}, HostCalls::Always, [&] {
        const char *const content = ++round % 2 ? "cut | copy" : "copy |";
        host.manager.setToolBar(host.file, host.list(words(content)));
    });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("paste open")));
    // A call for each of 100 lists, and for the three changes that the last one takes.
    QCOMPARE(calls.count(), 103);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::settingTheReportedListDuringAChangeDoesNothing()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionAdded, QEvent::ActionRemoved}, HostCalls::Always,
                    [&] { host.manager.setToolBar(host.file, host.manager.actions(host.file)); });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("paste | open")));
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("paste | open"));
    QCOMPARE(calls.count(), 6);
}

void tst_RyToolBarManager_reentry::resettingDuringAChangeWins()
{
    BusyHost host;
    host.manager.setToolBar(host.file, host.list(words("cut")));
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Always,
                    [&] { host.manager.resetAllToolBars(); });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("paste | open")));
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("open | save"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::anotherToolBarIsSetDuringAChange()
{
    BusyHost host;
    QStringList seen;
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] {
        host.manager.setToolBar(host.mine, host.list(words("open |")));
        seen = contentOf(host.manager.actions(host.mine)) + standingOn(host.mine);
    });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("paste | open")));
    QCOMPARE(seen, words("open | open |"));
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("paste | open"));
    QCOMPARE(contentOf(host.manager.actions(host.mine)), words("open |"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::savingDuringAChangeSavesTheOldContent()
{
    BusyHost host;
    const QByteArray before = host.manager.saveState(1);
    QList<QByteArray> saved;
    HostCalls calls({QEvent::ActionAdded, QEvent::ActionRemoved}, HostCalls::Always,
                    [&] { saved << host.manager.saveState(1); });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("paste")));
    QCOMPARE(saved, (QList<QByteArray>{before, before, before, before}));
}

void tst_RyToolBarManager_reentry::aMessageBoxDuringAChangeMayChangeTheToolBar()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] {
        const NextModal next([&](QWidget *box) {
            host.manager.setToolBar(host.file, host.list(words("cut |")));
            host.manager.deleteToolBar(host.yours);
            box->close();
        });
        QMessageBox(&host.window).exec();
        QVERIFY(next.wasShown());
    });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("paste | open")));
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("cut |"));
    QVERIFY(!host.yours);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::aToolBarMayBeDeletedWhileItIsSet_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<QString>("content");
    QTest::newRow("when an action is removed") << QEvent::ActionRemoved << "save";
    QTest::newRow("when an action is added") << QEvent::ActionAdded << "save |";
    QTest::newRow("when a separator is added") << QEvent::ActionAdded << "| save";
}

void tst_RyToolBarManager_reentry::aToolBarMayBeDeletedWhileItIsSet()
{
    QFETCH(QEvent::Type, type);
    QFETCH(QString, content);
    BusyHost host;
    HostCalls calls({type}, HostCalls::Once, [&] { host.manager.deleteToolBar(host.mine); });
    host.watch(&calls);
    host.manager.setToolBar(host.mine, host.list(words(content.toLatin1().constData())));
    QVERIFY(!host.mine);
    QCOMPARE(host.manager.toolBars().size(), 3);
    QCOMPARE(inconsistencyOf(host.manager), QString());
    unregister(host);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::aToolBarMayBeForgottenWhileItIsSet_data()
{
    aToolBarMayBeDeletedWhileItIsSet_data();
}

void tst_RyToolBarManager_reentry::aToolBarMayBeForgottenWhileItIsSet()
{
    QFETCH(QEvent::Type, type);
    QFETCH(QString, content);
    BusyHost host;
    HostCalls calls({type}, HostCalls::Once, [&] { forgetMine(host); });
    host.watch(&calls);
    host.manager.setToolBar(host.mine, host.list(words(content.toLatin1().constData())));
    QVERIFY(!host.manager.toolBars().contains(host.mine));
    QCOMPARE(standingOn(host.mine), QStringList());
    QCOMPARE(host.mine->layout()->count(), 0);
    QCOMPARE(separatorsBelow(host.mine), 0);
    delete host.mine;
    unregister(host);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::aToolBarMadeADefaultOneWhileItIsDeletedStays()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] { adoptMine(host); });
    host.watch(&calls);
    host.manager.deleteToolBar(host.mine);
    QVERIFY(host.mine);
    QVERIFY(host.manager.isDefaultToolBar(host.mine));
    QCOMPARE(host.manager.toolBars().size(), 4);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::deletingAToolBarTwiceAtOnceDeletesItOnce()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Always,
                    [&] { host.manager.deleteToolBar(host.mine); });
    host.watch(&calls);
    host.manager.deleteToolBar(host.mine);
    QVERIFY(!host.mine);
    QCOMPARE(host.manager.toolBars().size(), 3);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::aListSetWhileItsToolBarIsDeletedIsIgnored()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Always, [&] { setCustom(host); });
    host.watch(&calls);
    host.manager.deleteToolBar(host.mine);
    QVERIFY(!host.mine);
    QCOMPARE(calls.count(), 3);
    QCOMPARE(host.manager.toolBars().size(), 3);
    unregister(host);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::aNewToolBarInThePlaceOfADeletedOneIsLeftAlone()
{
    BusyHost host;
    QToolBar *other = nullptr;
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] {
        host.manager.deleteToolBar(host.mine);
        other = host.manager.createToolBar("Other");
        host.manager.setToolBar(other, host.list(words("copy |")));
    });
    host.watch(&calls);
    host.manager.setToolBar(host.mine, host.list(words("save | open")));
    QCOMPARE(contentOf(host.manager.actions(other)), words("copy |"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::aDeletedToolBarIsForgottenByItsActions()
{
    BusyHost host;
    host.manager.setToolBar(host.mine, QList<QAction *>());
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Always, [&] {
        if (standingOn(host.mine).size() == 2)
            host.manager.deleteToolBar(host.mine);
    });
    host.watch(&calls);
    host.manager.setToolBar(host.mine, host.list(words("save open")));
    QVERIFY(!host.mine);
    unregister(host);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::anActionRemovedWhileItIsPlacedIsNotPlaced()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once,
                    [&] { host.manager.removeAction(host.action("paste")); });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("paste | open")));
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("| open"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
    delete host.action("paste");
    host.manager.setToolBar(host.file, host.list(words("open")));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::anActionRemovedDuringAChangeIsNotPlaced_data()
{
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("still to be taken off") << "save"
                                           << "paste | open";
    QTest::newRow("still to be placed") << "paste"
                                        << "| open";
    QTest::newRow("to be taken off and placed") << "open"
                                                << "paste |";
}

void tst_RyToolBarManager_reentry::anActionRemovedDuringAChangeIsNotPlaced()
{
    QFETCH(QString, removed);
    QFETCH(QString, expected);
    BusyHost host;
    host.manager.setToolBar(host.file, host.list(words("cut save | open")));
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] {
        QAction *const action = host.action(removed);
        host.manager.removeAction(action);
        delete action;
    });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("paste | open")));
    QCOMPARE(contentOf(host.manager.actions(host.file)), words(expected.toLatin1().constData()));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

// Its list wins, and was asked for after the removal.
void tst_RyToolBarManager_reentry::anActionRemovedWhileItIsPlacedIsNotPlacedByTheNextList()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] {
        QAction *const action = host.action("cut");
        host.manager.removeAction(action);
        host.manager.setToolBar(host.file, host.list(words("save | open")));
    });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("cut paste")));
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("save | open"));
    QCOMPARE(standingOn(host.file), words("save | open"));
    host.manager.addAction(host.action("cut"), A);
    host.manager.setToolBar(host.file, host.list(words("cut")));
    QCOMPARE(standingOn(host.file), words("cut"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::anActionDeletedDuringAChangeIsNotTouched()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] {
        for (const char *text : {"save", "copy", "cut"}) {
            QAction *const action = host.action(QString(text));
            host.manager.removeAction(action);
            delete action;
        }
    });
    host.watch(&calls);
    host.manager.setToolBar(host.file, host.list(words("open | cut copy save")));
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("open |"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::anActionDeletedWhileItIsPlacedIsNotTouched()
{
    // Keeps the toolbar, which would use the action, from hearing that it came.
    class Thief : public QObject
    {
    public:
        Thief(RyToolBarManager *manager, QAction *action)
            : m_manager(manager)
            , m_action(action)
        {
        }

        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() != QEvent::ActionAdded
                || static_cast<QActionEvent *>(event)->action() != m_action)
                return false;
            m_manager->removeAction(m_action);
            delete m_action;
            return true;
        }

    private:
        RyToolBarManager *const m_manager;
        const QPointer<QAction> m_action;
    };

    BusyHost host;
    Thief thief(&host.manager, host.action("save"));
    host.file->installEventFilter(&thief);
    host.manager.setToolBar(host.file, host.list(words("open save cut")));
    host.file->removeEventFilter(&thief);
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("open cut"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::anActionPlacedAgainWhileItIsRemovedIsTakenOff()
{
    BusyHost host;
    QAction *const save = host.action("save");
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Always, [&] {
        for (QToolBar *toolBar : {host.file, host.edit, host.mine.data()})
            host.manager.setToolBar(toolBar, {save});
    });
    host.watch(&calls);
    host.manager.removeAction(save);
    QVERIFY(!host.manager.actions().contains(save));
    QCOMPARE(inconsistencyOf(host.manager), QString());
    delete save;
    host.manager.saveState(1);
    host.manager.resetAllToolBars();
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::aToolBarDeletedWhileAnActionIsRemovedIsNotTouched()
{
    BusyHost host;
    // Placed last, so that it is the turn of a toolbar that is gone.
    host.manager.setToolBar(host.mine, host.list(words("open")));
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] { host.deleteCustomToolBars(); });
    host.watch(&calls);
    host.manager.removeAction(host.action("open"));
    QCOMPARE(host.manager.toolBars().size(), 2);
    QCOMPARE(host.manager.toolBarsActions().size(), 2);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::anActionDeletedWhileItIsRemovedIsNotTouched()
{
    BusyHost host;
    QAction *const save = host.action("save");
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] { delete save; });
    // Below the toolbar's own handling, which needs the action: the tool button has it as well.
    const auto buttons = host.file->findChildren<QWidget *>();
    for (QWidget *button : buttons) {
        if (button->actions().contains(save))
            button->installEventFilter(&calls);
    }
    host.manager.removeAction(save);
    QCOMPARE(contentOf(host.manager.actions(host.yours)), words("copy"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::removingAnActionTwiceAtOnceKeepsTheNamelessCategory()
{
    BusyHost host;
    host.manager.addCategory(QString());
    QAction *const save = host.action("save");
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Always,
                    [&] { host.manager.removeAction(save); });
    host.watch(&calls);
    host.manager.removeAction(save);
    QVERIFY(host.manager.hasCategory(QString()));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry::aToolBarCreatedDuringACreationHasAnotherNumber()
{
    BusyHost host;
    QToolBar *inner = nullptr;
    HostCalls calls({QEvent::ChildAdded}, HostCalls::Once,
                    [&] { inner = host.manager.createToolBar("Inner"); });
    host.watch(&calls);
    QToolBar *const outer = host.manager.createToolBar("Outer");
    QCOMPARE(inner->objectName(), QString("_Custom_Toolbar_3"));
    QCOMPARE(outer->objectName(), QString("_Custom_Toolbar_4"));
}

void tst_RyToolBarManager_reentry::theWindowMayBeUnsetWhileAToolBarIsCreated()
{
    BusyHost host;
    HostCalls calls({QEvent::ChildAdded}, HostCalls::Once,
                    [&] { host.manager.setMainWindow(nullptr); });
    host.watch(&calls);
    QToolBar *const toolBar = host.manager.createToolBar("New");
    QCOMPARE(toolBar->parent(), &host.window);
    QCOMPARE(host.window.toolBarArea(toolBar), Qt::TopToolBarArea);
    QVERIFY(host.manager.toolBars().contains(toolBar));
    QVERIFY(!host.manager.createToolBar("New"));
}

void tst_RyToolBarManager_reentry::theMapGivenToSetToolBarsMayChange()
{
    BusyHost host;
    QMap<QToolBar *, QList<QAction *>> map{{host.file, host.list(words("cut"))},
                                           {host.edit, host.list(words("open"))},
                                           {host.mine, host.list(words("save"))}};
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Always, [&] { map.clear(); });
    host.watch(&calls);
    host.manager.setToolBars(map);
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("cut"));
    QCOMPARE(contentOf(host.manager.actions(host.edit)), words("open"));
    QCOMPARE(contentOf(host.manager.actions(host.mine)), words("save"));
}

void tst_RyToolBarManager_reentry::theListGivenToSetToolBarMayChange()
{
    BusyHost host;
    QList<QAction *> content = host.list(words("cut | copy"));
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Always, [&] { content.clear(); });
    host.watch(&calls);
    host.manager.setToolBar(host.file, content);
    QCOMPARE(contentOf(host.manager.actions(host.file)), words("cut | copy"));
}

QTEST_MAIN(tst_RyToolBarManager_reentry)
#include "tst_rytoolbarmanager_reentry.moc"
