// SPDX-License-Identifier: MIT

#include "filledhost.h"
#include "namewarnings.h"
#include "statewriter.h"
#include "testcase.h"
#include "texts.h"
#include "toolbarrecords.h"

#include <QtTest>

#include <memory>
#include <vector>

namespace {

const QString A = "A";

QByteArray stateOf(const char *content)
{
    return StateWriter::ofVersion(1)
        .defaults(1)
        .defaultToolBar("file", words(content))
        .customs(0)
        .bytes();
}

// What is on "file" after the names are restored.
QStringList restored(FilledHost &host, const char *content)
{
    host.manager.setToolBar(host.file, {});
    if (!host.manager.restoreState(stateOf(content), 1))
        return {"refused"};
    return standingOn(host.file);
}

// A host whose names have been read by a restore.
class RestoredHost : public FilledHost
{
public:
    RestoredHost()
        : open(action("open"))
        , save(action("save"))
    {
        restored(*this, "open | save");
    }

    QAction *const open;
    QAction *const save;
};

} // namespace

/*
 * How actions and toolbars are found by name, also by names that change from one restore to the
 * next. Each restore reads them again.
 */
class tst_RyToolBarManager_names : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void findActionByObjectName();
    void findActionByTextPrintsOneWarning();
    void findActionOfAnUnknownNamePrintsTwoWarningsInOrder_data();
    void findActionOfAnUnknownNamePrintsTwoWarningsInOrder();
    void findActionSearchesRegisteredActionsOnly();

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
    void findDefaultToolBarPrefersTheLowestAddress_data();
    void findDefaultToolBarPrefersTheLowestAddress();

    void anUnchangedNameIsFoundAgain();
    void anOldNameIsNotFound();
    void anOldNameIsFoundInATextAgain();
    void exchangedNamesAreFoundExchanged();
    void ofSeveralActionsWithOneNameRestoringTakesTheOneThatIsFound();
    void aNameGivenAfterTheRegistrationIsFound();
    void aDeletedActionIsNotTouched();
    void findingNamesTakesLinearTime();
};

void tst_RyToolBarManager_names::findActionByObjectName()
{
    Host host;
    const QStringList names = words("open save find");
    for (const QString &name : names)
        host.registered(name, A);
    for (const QString &name : names)
        QCOMPARE(host.manager.findAction(name), host.action(name));
}

void tst_RyToolBarManager_names::findActionByTextPrintsOneWarning()
{
    Host host;
    QAction *const open = host.registered("open", A);
    open->setText("&Open...");
    QCOMPARE(host.manager.findAction("&Open..."), open);
    QCOMPARE(takeWarnings(), first(noAction("&Open...")));
}

void tst_RyToolBarManager_names::findActionOfAnUnknownNamePrintsTwoWarningsInOrder_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("other") << "paste";
    QTest::newRow("not of ASCII") << "öffnen €";
    QTest::newRow("percent signs") << "%s %1 %d";
    QTest::newRow("empty") << "";
}

void tst_RyToolBarManager_names::findActionOfAnUnknownNamePrintsTwoWarningsInOrder()
{
    QFETCH(QString, name);
    Host host;
    host.registered("open", A);
    QVERIFY(!host.manager.findAction(name));
    QCOMPARE(takeWarnings(), noAction(name));
}

void tst_RyToolBarManager_names::findActionSearchesRegisteredActionsOnly()
{
    Host host;
    host.toolBar("other", words("open"));
    host.manager.removeAction(host.registered("save", A));
    QVERIFY(!host.manager.findAction("open"));
    QVERIFY(!host.manager.findAction("save"));
    QCOMPARE(takeWarnings(), noAction("open") + noAction("save"));
}

void tst_RyToolBarManager_names::toolBarByNameFindsDefaultAndCustomToolBars()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", QStringList(), A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    QCOMPARE(host.manager.toolBarByName("file"), file);
    QCOMPARE(host.manager.toolBarByName("_Custom_Toolbar_1"), mine);
}

void tst_RyToolBarManager_names::toolBarByNameFindsNothingElse_data()
{
    QTest::addColumn<QString>("searched");
    QTest::newRow("unknown") << "view";
    QTest::newRow("unmanaged") << "other";
    QTest::newRow("title of a default toolbar") << "File";
    QTest::newRow("title of a custom toolbar") << "Mine";
    QTest::newRow("other case") << "FILE";
    QTest::newRow("part") << "fil";
    QTest::newRow("empty") << "";
}

// And prints nothing, or TestCase fails.
void tst_RyToolBarManager_names::toolBarByNameFindsNothingElse()
{
    QFETCH(QString, searched);
    Host host;
    host.defaultToolBar("file", QStringList(), A);
    host.toolBar("other");
    host.manager.createToolBar("Mine");
    QVERIFY(!host.manager.toolBarByName(searched));
}

void tst_RyToolBarManager_names::toolBarByNameOfAnEmptyNameFindsANamelessToolBar()
{
    Host host;
    host.defaultToolBar("file", QStringList(), A);
    QToolBar *const nameless = host.defaultToolBar(QString(), QStringList(), A);
    QCOMPARE(host.manager.toolBarByName(QString()), nameless);
    QCOMPARE(host.manager.toolBarByName(""), nameless);
}

void tst_RyToolBarManager_names::toolBarByNamePrefersTheLowestAddress_data()
{
    QTest::addColumn<QList<int>>("registered");
    QTest::newRow("lowest first") << QList<int>{0, 1, 2};
    QTest::newRow("lowest last") << QList<int>{2, 1, 0};
}

void tst_RyToolBarManager_names::toolBarByNamePrefersTheLowestAddress()
{
    QFETCH(QList<int>, registered);
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 3);
    for (const int i : std::as_const(registered)) {
        toolBars.at(i)->setObjectName("same");
        host.manager.addDefaultToolBar(toolBars.at(i), A);
    }
    QCOMPARE(host.manager.toolBarByName("same"), toolBars.first());
    toolBars.first()->setObjectName("other");
    QCOMPARE(host.manager.toolBarByName("same"), toolBars.at(1));
}

void tst_RyToolBarManager_names::findDefaultToolBarByObjectName()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", QStringList(), A);
    QToolBar *const edit = host.defaultToolBar("edit", QStringList(), A);
    QToolBar *const nameless = host.defaultToolBar(QString(), QStringList(), A);
    QCOMPARE(host.manager.findDefaultToolBar("file"), file);
    QCOMPARE(host.manager.findDefaultToolBar("edit"), edit);
    QCOMPARE(host.manager.findDefaultToolBar(QString()), nameless);
}

void tst_RyToolBarManager_names::findDefaultToolBarByTitlePrintsOneWarning()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", QStringList(), A);
    QCOMPARE(host.manager.findDefaultToolBar("File"), file);
    QCOMPARE(takeWarnings(), first(noToolBar("File")));
}

void tst_RyToolBarManager_names::findDefaultToolBarOfAnUnknownNamePrintsTwoWarningsInOrder_data()
{
    QTest::addColumn<QString>("searched");
    QTest::newRow("unknown") << "view";
    QTest::newRow("custom") << "_Custom_Toolbar_1";
    QTest::newRow("title of a custom toolbar") << "Mine";
    QTest::newRow("not of ASCII") << "Träger €";
    QTest::newRow("percent signs") << "%s %1 %d";
    QTest::newRow("empty") << "";
}

void tst_RyToolBarManager_names::findDefaultToolBarOfAnUnknownNamePrintsTwoWarningsInOrder()
{
    QFETCH(QString, searched);
    Host host;
    host.defaultToolBar("file", QStringList(), A);
    host.toolBar("other");
    host.manager.createToolBar("Mine");
    QVERIFY(!host.manager.findDefaultToolBar(searched));
    QCOMPARE(takeWarnings(), noToolBar(searched));
}

void tst_RyToolBarManager_names::findDefaultToolBarPrefersTheLowestAddress_data()
{
    toolBarByNamePrefersTheLowestAddress_data();
}

void tst_RyToolBarManager_names::findDefaultToolBarPrefersTheLowestAddress()
{
    QFETCH(QList<int>, registered);
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 6);
    for (const int i : std::as_const(registered)) {
        toolBars.at(2 * i)->setObjectName("same");
        toolBars.at(2 * i + 1)->setWindowTitle("Same");
        host.manager.addDefaultToolBar(toolBars.at(2 * i), A);
        host.manager.addDefaultToolBar(toolBars.at(2 * i + 1), A);
    }
    QCOMPARE(host.manager.findDefaultToolBar("same"), toolBars.at(0));
    QCOMPARE(takeWarnings(), QStringList());
    QCOMPARE(host.manager.findDefaultToolBar("Same"), toolBars.at(1));
    QCOMPARE(takeWarnings(), first(noToolBar("Same")));
}

void tst_RyToolBarManager_names::anUnchangedNameIsFoundAgain()
{
    RestoredHost host;
    QCOMPARE(standingOn(host.file), words("open | save"));
    QCOMPARE(restored(host, "save open"), words("save open"));
    QCOMPARE(restored(host, "open"), words("open"));
}

void tst_RyToolBarManager_names::anOldNameIsNotFound()
{
    RestoredHost host;
    host.open->setObjectName("load");
    QCOMPARE(restored(host, "open save"), words("save"));
    QCOMPARE(takeWarnings().size(), 2);
}

void tst_RyToolBarManager_names::anOldNameIsFoundInATextAgain()
{
    RestoredHost host;
    host.open->setObjectName("load");
    host.save->setText("open");
    QCOMPARE(restored(host, "open"), words("save"));
    QCOMPARE(takeWarnings().size(), 1);
}

void tst_RyToolBarManager_names::exchangedNamesAreFoundExchanged()
{
    RestoredHost host;
    host.open->setObjectName("save");
    host.save->setObjectName("open");
    host.manager.setToolBar(host.file, {});
    QVERIFY(host.manager.restoreState(stateOf("open | save"), 1));
    QCOMPARE(host.manager.actions(host.file), (QList<QAction *>{host.save, nullptr, host.open}));
}

// Which of several actions of one name is found is not defined, but it is the same everywhere.
void tst_RyToolBarManager_names::ofSeveralActionsWithOneNameRestoringTakesTheOneThatIsFound()
{
    RestoredHost host;
    for (int i = 0; i < 40; ++i)
        host.registered(QString("a%1").arg(i), A);
    const QList<QAction *> actions = host.manager.actions().values();
    for (QAction *action : actions) {
        action->setObjectName("same");
        QCOMPARE(restored(host, "same"), words("same"));
        QCOMPARE(host.manager.actions(host.file),
                 QList<QAction *>{host.manager.findAction("same")});
    }
    for (QAction *action : actions) {
        action->setObjectName("other");
        restored(host, "other");
        QCOMPARE(host.manager.actions(host.file),
                 QList<QAction *>{host.manager.findAction("other")});
    }
    takeWarnings();
}

void tst_RyToolBarManager_names::aNameGivenAfterTheRegistrationIsFound()
{
    RestoredHost host;
    QAction late("Late");
    host.manager.addAction(&late, A);
    QCOMPARE(restored(host, "open"), words("open"));
    late.setObjectName("late");
    QCOMPARE(restored(host, "late open"), words("late open"));
    host.manager.removeAction(&late);
}

void tst_RyToolBarManager_names::aDeletedActionIsNotTouched()
{
    RestoredHost host;
    host.manager.removeAction(host.open);
    delete host.open;
    QCOMPARE(restored(host, "open save"), words("save"));
    QCOMPARE(takeWarnings().size(), 2);
}

// Also with many actions without a name, or with the same.
void tst_RyToolBarManager_names::findingNamesTakesLinearTime()
{
    FilledHost host;
    std::vector<std::unique_ptr<QAction>> actions;
    for (int i = 0; i < 20000; ++i) {
        actions.emplace_back(new QAction);
        actions.back()->setObjectName(i % 2 ? QString() : "same");
        host.manager.addAction(actions.back().get(), A);
    }
    // In quadratic time this takes many seconds, and the test programs have a limit.
    for (int i = 0; i < 20; ++i)
        QCOMPARE(restored(host, "open"), words("open"));
    for (const auto &action : actions)
        host.manager.removeAction(action.get());
}

QTEST_MAIN(tst_RyToolBarManager_names)

#include "tst_rytoolbarmanager_names.moc"
