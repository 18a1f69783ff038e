// SPDX-License-Identifier: MIT

#include "busyhost.h"
#include "statewriter.h"
#include "testcase.h"

#include <QtTest>

#include <functional>

namespace {

const QString A = "A";

// A message handler of a host. Qt takes a plain function only, so that what it calls is static.
class MessageCalls
{
public:
    explicit MessageCalls(const std::function<void()> &call)
        : m_previous(qInstallMessageHandler(handle))
    {
        s_call = call;
    }
    ~MessageCalls() { qInstallMessageHandler(m_previous); }

private:
    Q_DISABLE_COPY(MessageCalls)

    static void handle(QtMsgType, const QMessageLogContext &, const QString &) { s_call(); }

    static std::function<void()> s_call;
    const QtMessageHandler m_previous;
};

std::function<void()> MessageCalls::s_call;

// Not the one whose title changes: Qt itself does not survive its deletion then.
void deleteOld(BusyHost &host)
{
    for (QToolBar *toolBar : {host.mine.data(), host.yours.data()}) {
        if (toolBar && toolBar->windowTitle() == "Old")
            host.manager.deleteToolBar(toolBar);
    }
}

} // namespace

class tst_RyToolBarManager_reentry_restore : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aToolBarDeletedWhileRestoringIsCreatedAgain();
    void toolBarsReplacedWhileRestoringAreLookedUpAgain();
    void aDefaultToolBarRegisteredWhileRestoringIsFound();
    void aDefaultToolBarRegisteredOnAWarningIsFound();
    void aToolBarDeletedWhileAnotherIsRestoredIsCreatedAgain();
    void aToolBarForgottenWhileAnotherIsRestoredIsNotTouched();
    void aToolBarDeletedByItsNewTitleIsNotTouched();
    void aToolBarDeletedByItsNewNameIsNotTouched();
    void anActionDeletedWhileRestoringIsNotTouched();
    void anActionRegisteredWhileRestoringIsFound();
    void anActionReplacedWhileRestoringIsFound();
    void actionsChangedTwiceWhileRestoringAreReadAgain();
    void restoringWhileRestoringIsDone();
};

void tst_RyToolBarManager_reentry_restore::aToolBarDeletedWhileRestoringIsCreatedAgain()
{
    BusyHost host;
    host.manager.setToolBar(host.mine, host.list(words("paste")));
    host.manager.setToolBar(host.yours, host.list(words("paste")));
    // The first of the two that is restored deletes the other.
    HostCalls calls({QEvent::WindowTitleChange}, HostCalls::Once, [&] { deleteOld(host); });
    host.mine->setWindowTitle("Old");
    host.yours->setWindowTitle("Old");
    host.watch(&calls);
    QVERIFY(host.manager.restoreState(host.plain, 1));
    QVERIFY(!host.mine != !host.yours);
    QCOMPARE(host.manager.toolBars().size(), 4);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

// As many come as go, which must not pass for no change.
void tst_RyToolBarManager_reentry_restore::toolBarsReplacedWhileRestoringAreLookedUpAgain()
{
    BusyHost host;
    host.manager.setToolBar(host.mine, host.list(words("paste")));
    host.manager.setToolBar(host.yours, host.list(words("paste")));
    HostCalls calls({QEvent::WindowTitleChange}, HostCalls::Once, [&] {
        deleteOld(host);
        host.manager.createToolBar("Other")->setObjectName("other");
    });
    host.mine->setWindowTitle("Old");
    host.yours->setWindowTitle("Old");
    host.watch(&calls);
    QVERIFY(host.manager.restoreState(host.plain, 1));
    QVERIFY(!host.mine != !host.yours);
    QCOMPARE(host.manager.toolBars().size(), 5);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry_restore::aDefaultToolBarRegisteredWhileRestoringIsFound()
{
    BusyHost host;
    QToolBar *const late = host.toolBar("late");
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once,
                    [&] { host.manager.addDefaultToolBar(late, A); });
    host.watch(&calls);
    const QByteArray state = StateWriter::ofVersion(1)
                                 .defaults(2)
                                 .defaultToolBar("file", words("paste"))
                                 .defaultToolBar("late", words("cut"))
                                 .customs(0)
                                 .bytes();
    QVERIFY(host.manager.restoreState(state, 1));
    QCOMPARE(contentOf(host.manager.actions(late)), words("cut"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry_restore::aDefaultToolBarRegisteredOnAWarningIsFound()
{
    BusyHost host;
    QToolBar *const late = host.toolBar("late");
    const QByteArray state = StateWriter::ofVersion(1)
                                 .defaults(2)
                                 .defaultToolBar("unknown", words("paste"))
                                 .defaultToolBar("late", words("cut"))
                                 .customs(0)
                                 .bytes();
    {
        const MessageCalls calls([&] { host.manager.addDefaultToolBar(late, A); });
        QVERIFY(host.manager.restoreState(state, 1));
    }
    QCOMPARE(contentOf(host.manager.actions(late)), words("cut"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry_restore::aToolBarDeletedWhileAnotherIsRestoredIsCreatedAgain()
{
    BusyHost host;
    const QString yours = host.yours->objectName();
    HostCalls calls({QEvent::ChildAdded}, HostCalls::Once,
                    [&] { host.manager.deleteToolBar(host.yours); });
    host.window.installEventFilter(&calls);
    const QByteArray state = StateWriter::ofVersion(1)
                                 .defaults(0)
                                 .customs(2)
                                 .customToolBar("new", "New", words("paste"))
                                 .customToolBar(yours, "Yours", words("cut"))
                                 .bytes();
    QVERIFY(host.manager.restoreState(state, 1));
    QVERIFY(!host.yours);
    QCOMPARE(contentOf(host.manager.actions(host.manager.toolBarByName("new"))), words("paste"));
    QCOMPARE(contentOf(host.manager.actions(host.manager.toolBarByName(yours))), words("cut"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry_restore::aToolBarForgottenWhileAnotherIsRestoredIsNotTouched()
{
    BusyHost host;
    const QString mine = host.mine->objectName();
    const QString yours = host.yours->objectName();
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once,
                    [&] { host.manager.removeDefaultToolBar(host.yours); });
    host.mine->installEventFilter(&calls);
    const QByteArray state = StateWriter::ofVersion(1)
                                 .defaults(0)
                                 .customs(2)
                                 .customToolBar(mine, "Mine", words("paste"))
                                 .customToolBar(yours, "Again", words("cut"))
                                 .bytes();
    QVERIFY(host.manager.restoreState(state, 1));
    QCOMPARE(host.yours->windowTitle(), QString("Yours"));
    QToolBar *const again = host.manager.toolBarByName(yours);
    QVERIFY(again && again != host.yours);
    QCOMPARE(contentOf(host.manager.actions(again)), words("cut"));
}

void tst_RyToolBarManager_reentry_restore::aToolBarDeletedByItsNewTitleIsNotTouched()
{
    BusyHost host;
    for (QToolBar *toolBar : {host.mine.data(), host.yours.data()}) {
        toolBar->setWindowTitle("Old");
        connect(toolBar, &QWidget::windowTitleChanged, this,
                [&host, toolBar] { host.manager.deleteToolBar(toolBar); });
    }
    QVERIFY(host.manager.restoreState(host.plain, 1));
    QVERIFY(!host.mine && !host.yours);
    QCOMPARE(host.manager.toolBars().size(), 2);
}

void tst_RyToolBarManager_reentry_restore::aToolBarDeletedByItsNewNameIsNotTouched()
{
    BusyHost host;
    host.deleteCustomToolBars();
    HostCalls calls({QEvent::ChildAdded}, HostCalls::Always, [&] {
        QObject *const child = host.window.children().constLast();
        connect(child, &QObject::objectNameChanged, this, [&host, child] {
            if (child->objectName() == "mine")
                host.manager.deleteToolBar(qobject_cast<QToolBar *>(child));
        });
    });
    QToolBar *const named = host.manager.createToolBar("Mine");
    named->setObjectName("mine");
    const QByteArray state = host.manager.saveState(1);
    host.deleteCustomToolBars();
    host.watch(&calls);
    QVERIFY(host.manager.restoreState(state, 1));
    QCOMPARE(host.manager.toolBars().size(), 2);
}

void tst_RyToolBarManager_reentry_restore::anActionDeletedWhileRestoringIsNotTouched()
{
    BusyHost host;
    QAction *const nameless = new QAction("Nameless", &host.window);
    host.manager.addAction(nameless, A);
    host.manager.setToolBar(host.yours, {nameless});
    const QByteArray state = host.manager.saveState(1);
    TestCase::takeWarnings();
    QAction *const other = host.registered("other", A);
    host.manager.setToolBar(host.yours, {other});
    host.manager.setToolBar(host.file, host.list(words("cut")));
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] {
        for (QAction *action : {other, host.action("copy")}) {
            host.manager.removeAction(action);
            delete action;
        }
    });
    host.watch(&calls);
    QVERIFY(host.manager.restoreState(state, 1));
    TestCase::takeWarnings();
    QCOMPARE(contentOf(host.manager.actions(host.yours)), QStringList("\"Nameless\""));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry_restore::anActionRegisteredWhileRestoringIsFound()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] { host.registered("late", A); });
    host.watch(&calls);
    const QByteArray state = StateWriter::ofVersion(1)
                                 .defaults(2)
                                 .defaultToolBar("file", words("paste"))
                                 .defaultToolBar("edit", words("late"))
                                 .customs(0)
                                 .bytes();
    QVERIFY(host.manager.restoreState(state, 1));
    QCOMPARE(contentOf(host.manager.actions(host.edit)), words("late"));
}

void tst_RyToolBarManager_reentry_restore::anActionReplacedWhileRestoringIsFound()
{
    BusyHost host;
    host.manager.setToolBar(host.file, host.list(words("cut")));
    QAction *const old = host.action("copy");
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Once, [&] {
        host.manager.removeAction(old);
        old->setObjectName("old");
        host.registered("copy", A);
    });
    host.file->installEventFilter(&calls);
    QVERIFY(host.manager.restoreState(host.plain, 1));
    QCOMPARE(contentOf(host.manager.actions(host.yours)), words("save copy"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry_restore::actionsChangedTwiceWhileRestoringAreReadAgain()
{
    BusyHost host;
    // Each change of a toolbar deletes one action and registers another.
    QList<QAction *> doomed{host.registered("first", A), host.registered("second", A)};
    int registered = 0;
    HostCalls calls({QEvent::ActionRemoved}, HostCalls::Always, [&] {
        if (doomed.isEmpty())
            return;
        host.manager.removeAction(doomed.first());
        delete doomed.takeFirst();
        host.registered(QString("late%1").arg(++registered), A);
    });
    host.file->installEventFilter(&calls);
    host.manager.setToolBar(host.file, host.list(words("cut")));
    const QByteArray state = StateWriter::ofVersion(1)
                                 .defaults(3)
                                 .defaultToolBar("file", words("paste"))
                                 .defaultToolBar("file", words("copy first late1"))
                                 .defaultToolBar("edit", words("first second late1 late2 &Two"))
                                 .customs(0)
                                 .bytes();
    doomed.prepend(host.registered("zeroth", A));
    QVERIFY(host.manager.restoreState(state, 1));
    QCOMPARE(registered, 3);
    QVERIFY(TestCase::takeWarnings().size() > 0);
    QCOMPARE(contentOf(host.manager.actions(host.edit)), words("late1 late2"));
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyToolBarManager_reentry_restore::restoringWhileRestoringIsDone()
{
    BusyHost host;
    HostCalls calls({QEvent::ActionAdded, QEvent::ChildAdded}, HostCalls::Once,
                    [&] { QVERIFY(host.manager.restoreState(host.full, 1)); });
    host.watch(&calls);
    QVERIFY(host.manager.restoreState(host.full, 1));
    QCOMPARE(calls.count(), 1);
    QCOMPARE(host.manager.saveState(1).size(), host.full.size());
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

QTEST_MAIN(tst_RyToolBarManager_reentry_restore)

#include "tst_rytoolbarmanager_reentry_restore.moc"
