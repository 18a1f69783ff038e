// SPDX-License-Identifier: MIT

#include "host.h"
#include "statewriter.h"
#include "testcase.h"
#include "texts.h"

#include <QtTest>

#include <memory>
#include <new>
#include <vector>

/*
 * Names of actions that change from one restore to the next. A restore may have kept what it has
 * read, and nobody told it.
 */

namespace {

const QString A = QStringLiteral("A");

QString name(const char *text)
{
    return QString::fromUtf8(text);
}

QByteArray stateOf(const char *toolBar, const char *content)
{
    return StateWriter::ofVersion(1)
        .defaults(1)
        .defaultToolBar(name(toolBar), words(content))
        .customs(0)
        .bytes();
}

// What stands on the toolbar after the names are put onto it.
QStringList restored(Host &host, QToolBar *toolBar, const char *content)
{
    host.manager.setToolBar(toolBar, {});
    if (!host.manager.restoreState(stateOf("file", content), 1))
        return {name("refused")};
    return standingOn(toolBar);
}

// A host whose names have been read by a restore.
class RestoredHost : public Host
{
public:
    RestoredHost()
        : open(registered(name("open"), A))
        , save(registered(name("save"), A))
        , file(defaultToolBar(name("file"), {}, A))
    {
        manager.restoreState(stateOf("file", "open | save"), 1);
    }

    QAction *const open;
    QAction *const save;
    QToolBar *const file;
};

// Gives the action another name as soon as anything is put onto the watched toolbar.
class Renamer : public QObject
{
public:
    explicit Renamer(QAction *action)
        : m_action(action)
    {
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::ActionAdded)
            m_action->setObjectName(QStringLiteral("load"));
        return QObject::eventFilter(watched, event);
    }

private:
    QAction *const m_action;
};

// Memory in which one manager after the other gets the same address.
class ManagerPlace
{
public:
    RyToolBarManager *make() { return new (&m_bytes) RyToolBarManager; }

private:
    std::aligned_storage<sizeof(RyToolBarManager), alignof(RyToolBarManager)>::type m_bytes;
};

} // namespace

class tst_RyToolBarManager_names : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anUnchangedNameIsFoundAgain();
    void aNewNameIsFound();
    void anOldNameIsNotFound();
    void anOldNameIsFoundInATextAgain();
    void exchangedNamesAreFoundExchanged();
    void aNameGivenToAnotherActionIsFoundThere();
    void aSecondActionOfTheNameIsFoundOnceTheFirstHasAnother();
    void aNameGivenAfterTheRegistrationIsFound();
    void anActionRegisteredSinceIsFound();
    void aRemovedActionIsNotFound();
    void aDeletedActionIsNotTouched();
    void anActionAtTheAddressOfADeletedOneIsFoundByItsName();
    void twoManagersFindTheirOwnActions();
    void aManagerAtTheAddressOfADeletedOneFindsItsOwnActions();
    void aNameChangedWhileRestoringIsNotFound();
    void manyNamesAreFound_data();
    void manyNamesAreFound();
    void findingNamesTakesNoTimeOfOtherActions();
};

void tst_RyToolBarManager_names::anUnchangedNameIsFoundAgain()
{
    RestoredHost host;
    QCOMPARE(standingOn(host.file), words("open | save"));
    QCOMPARE(restored(host, host.file, "save open"), words("save open"));
    QCOMPARE(restored(host, host.file, "open"), words("open"));
}

void tst_RyToolBarManager_names::aNewNameIsFound()
{
    RestoredHost host;
    host.open->setObjectName(name("load"));
    QCOMPARE(restored(host, host.file, "save load"), words("save load"));
    QCOMPARE(restored(host, host.file, "load"), words("load"));
}

void tst_RyToolBarManager_names::anOldNameIsNotFound()
{
    RestoredHost host;
    host.open->setObjectName(name("load"));
    QCOMPARE(restored(host, host.file, "open save"), words("save"));
    QCOMPARE(takeWarnings().size(), 2);
}

void tst_RyToolBarManager_names::anOldNameIsFoundInATextAgain()
{
    RestoredHost host;
    host.open->setObjectName(name("load"));
    host.save->setText(name("open"));
    QCOMPARE(restored(host, host.file, "open"), words("save"));
    QCOMPARE(takeWarnings().size(), 1);
}

void tst_RyToolBarManager_names::exchangedNamesAreFoundExchanged()
{
    RestoredHost host;
    host.open->setObjectName(name("save"));
    host.save->setObjectName(name("open"));
    host.manager.setToolBar(host.file, {});
    QVERIFY(host.manager.restoreState(stateOf("file", "open | save"), 1));
    QCOMPARE(host.manager.actions(host.file), (QList<QAction *>{host.save, nullptr, host.open}));
}

void tst_RyToolBarManager_names::aNameGivenToAnotherActionIsFoundThere()
{
    RestoredHost host;
    host.open->setObjectName(QString());
    host.save->setObjectName(name("open"));
    host.manager.setToolBar(host.file, {});
    QVERIFY(host.manager.restoreState(stateOf("file", "open"), 1));
    QCOMPARE(host.manager.actions(host.file), QList<QAction *>{host.save});
}

void tst_RyToolBarManager_names::aSecondActionOfTheNameIsFoundOnceTheFirstHasAnother()
{
    RestoredHost host;
    host.save->setObjectName(name("open"));
    host.manager.addAction(host.action(name("print")), A);
    QVERIFY(host.manager.restoreState(stateOf("file", "open"), 1));
    QAction *const found = host.manager.actions(host.file).value(0);
    QAction *const other = found == host.open ? host.save : host.open;
    found->setObjectName(name("load"));
    QVERIFY(host.manager.restoreState(stateOf("file", "open"), 1));
    QCOMPARE(host.manager.actions(host.file), QList<QAction *>{other});
}

void tst_RyToolBarManager_names::aNameGivenAfterTheRegistrationIsFound()
{
    RestoredHost host;
    QAction late(QStringLiteral("Late"));
    host.manager.addAction(&late, A);
    QCOMPARE(restored(host, host.file, "open"), words("open"));
    late.setObjectName(name("late"));
    QCOMPARE(restored(host, host.file, "late open"), words("late open"));
    host.manager.removeAction(&late);
}

void tst_RyToolBarManager_names::anActionRegisteredSinceIsFound()
{
    RestoredHost host;
    host.registered(name("print"), A);
    QCOMPARE(restored(host, host.file, "print open"), words("print open"));
}

void tst_RyToolBarManager_names::aRemovedActionIsNotFound()
{
    RestoredHost host;
    host.manager.removeAction(host.open);
    QCOMPARE(restored(host, host.file, "open save"), words("save"));
    QCOMPARE(takeWarnings().size(), 2);
}

void tst_RyToolBarManager_names::aDeletedActionIsNotTouched()
{
    RestoredHost host;
    host.manager.removeAction(host.open);
    delete host.open;
    QCOMPARE(restored(host, host.file, "open save"), words("save"));
    QCOMPARE(takeWarnings().size(), 2);
}

// Also where nothing but the address changes: neither the count nor the names of the actions.
void tst_RyToolBarManager_names::anActionAtTheAddressOfADeletedOneIsFoundByItsName()
{
    RestoredHost host;
    std::aligned_storage<sizeof(QAction), alignof(QAction)>::type bytes;
    QAction *const first = new (&bytes) QAction(QStringLiteral("First"));
    first->setObjectName(name("first"));
    host.manager.addAction(first, A);
    QCOMPARE(restored(host, host.file, "first"), words("first"));
    host.manager.removeAction(first);
    first->~QAction();
    QAction *const second = new (&bytes) QAction(QStringLiteral("Second"));
    second->setObjectName(name("second"));
    host.manager.addAction(second, A);
    QCOMPARE(restored(host, host.file, "first second"), words("second"));
    QCOMPARE(takeWarnings().size(), 2);
    host.manager.removeAction(second);
    QCOMPARE(restored(host, host.file, "first second"), QStringList());
    QCOMPARE(takeWarnings().size(), 4);
    second->~QAction();
}

void tst_RyToolBarManager_names::twoManagersFindTheirOwnActions()
{
    RestoredHost first;
    RestoredHost second;
    for (int i = 0; i < 2; ++i) {
        for (RestoredHost *host : {&first, &second}) {
            host->manager.setToolBar(host->file, {});
            QVERIFY(host->manager.restoreState(stateOf("file", "open save"), 1));
            QCOMPARE(host->manager.actions(host->file), (QList<QAction *>{host->open, host->save}));
        }
    }
}

void tst_RyToolBarManager_names::aManagerAtTheAddressOfADeletedOneFindsItsOwnActions()
{
    Host host;
    QAction *const open = host.action(name("open"));
    QToolBar *const file = host.toolBar(name("file"));
    ManagerPlace place;
    RyToolBarManager *manager = place.make();
    manager->addAction(open, A);
    manager->addDefaultToolBar(file, A);
    QVERIFY(manager->restoreState(stateOf("file", "open"), 1));
    QCOMPARE(standingOn(file), words("open"));
    manager->setToolBar(file, {});
    manager->~RyToolBarManager();
    manager = place.make();
    manager->addDefaultToolBar(file, A);
    QVERIFY(manager->restoreState(stateOf("file", "open"), 1));
    QCOMPARE(takeWarnings().size(), 2);
    QCOMPARE(standingOn(file), QStringList());
    manager->~RyToolBarManager();
}

// The names that count are those of the moment.
void tst_RyToolBarManager_names::aNameChangedWhileRestoringIsNotFound()
{
    RestoredHost host;
    QToolBar *const edit = host.defaultToolBar(name("edit"), {}, A);
    host.manager.setToolBar(host.file, {});
    const QByteArray state = StateWriter::ofVersion(1)
                                 .defaults(2)
                                 .defaultToolBar(name("file"), words("save"))
                                 .defaultToolBar(name("edit"), words("open save"))
                                 .customs(0)
                                 .bytes();
    Renamer renamer(host.open);
    host.file->installEventFilter(&renamer);
    QVERIFY(host.manager.restoreState(state, 1));
    QCOMPARE(standingOn(edit), words("save"));
    QCOMPARE(takeWarnings().size(), 2);
}

void tst_RyToolBarManager_names::manyNamesAreFound_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("one") << 1;
    QTest::newRow("two") << 2;
    QTest::newRow("three") << 3;
    QTest::newRow("a power of two") << 64;
    QTest::newRow("one more") << 65;
    QTest::newRow("many") << 1000;
}

void tst_RyToolBarManager_names::manyNamesAreFound()
{
    QFETCH(int, count);
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), {}, A);
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names << QStringLiteral("action%1").arg(i);
        host.registered(names.last(), A);
    }
    const QByteArray state = StateWriter::ofVersion(1)
                                 .defaults(1)
                                 .defaultToolBar(name("file"), names)
                                 .customs(0)
                                 .bytes();
    for (int i = 0; i < 2; ++i) {
        host.manager.setToolBar(file, {});
        QVERIFY(host.manager.restoreState(state, 1));
        QCOMPARE(standingOn(file), names);
    }
}

// Many actions without a name, or with the same, do not stand in each other's way.
void tst_RyToolBarManager_names::findingNamesTakesNoTimeOfOtherActions()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(name("file"), {}, A);
    std::vector<std::unique_ptr<QAction>> actions;
    for (int i = 0; i < 20000; ++i) {
        actions.emplace_back(new QAction);
        actions.back()->setObjectName(i % 2 ? QString() : name("same"));
        host.manager.addAction(actions.back().get(), A);
    }
    host.registered(name("open"), A);
    // In quadratic time this takes many seconds, and the test programs have a limit.
    for (int i = 0; i < 20; ++i)
        QCOMPARE(restored(host, file, "open"), words("open"));
    for (const auto &action : actions)
        host.manager.removeAction(action.get());
}

QTEST_MAIN(tst_RyToolBarManager_names)

#include "tst_rytoolbarmanager_names.moc"
