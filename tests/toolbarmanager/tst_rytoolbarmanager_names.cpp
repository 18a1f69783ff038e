// SPDX-License-Identifier: MIT

#include "host.h"
#include "statewriter.h"
#include "testcase.h"
#include "texts.h"

#include <QtTest>

#include <memory>
#include <vector>

/*
 * Names of actions that change from one restore to the next. Each restore reads them again.
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

} // namespace

class tst_RyToolBarManager_names : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anUnchangedNameIsFoundAgain();
    void anOldNameIsNotFound();
    void anOldNameIsFoundInATextAgain();
    void exchangedNamesAreFoundExchanged();
    void ofSeveralActionsWithOneNameRestoringTakesTheOneThatIsFound();
    void aNameGivenAfterTheRegistrationIsFound();
    void aDeletedActionIsNotTouched();
    void findingNamesTakesLinearTime();
};

void tst_RyToolBarManager_names::anUnchangedNameIsFoundAgain()
{
    RestoredHost host;
    QCOMPARE(standingOn(host.file), words("open | save"));
    QCOMPARE(restored(host, host.file, "save open"), words("save open"));
    QCOMPARE(restored(host, host.file, "open"), words("open"));
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

// Which of several actions of one name is found is not defined, but it is the same everywhere.
void tst_RyToolBarManager_names::ofSeveralActionsWithOneNameRestoringTakesTheOneThatIsFound()
{
    RestoredHost host;
    for (int i = 0; i < 40; ++i)
        host.registered(QStringLiteral("a%1").arg(i), A);
    const QList<QAction *> actions = host.manager.actions().values();
    for (QAction *action : actions) {
        action->setObjectName(name("same"));
        QCOMPARE(restored(host, host.file, "same"), words("same"));
        QCOMPARE(host.manager.actions(host.file),
                 QList<QAction *>{host.manager.findAction(name("same"))});
    }
    for (QAction *action : actions) {
        action->setObjectName(name("other"));
        restored(host, host.file, "other");
        QCOMPARE(host.manager.actions(host.file),
                 QList<QAction *>{host.manager.findAction(name("other"))});
    }
    takeWarnings();
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

void tst_RyToolBarManager_names::aDeletedActionIsNotTouched()
{
    RestoredHost host;
    host.manager.removeAction(host.open);
    delete host.open;
    QCOMPARE(restored(host, host.file, "open save"), words("save"));
    QCOMPARE(takeWarnings().size(), 2);
}

// Also with many actions without a name, or with the same.
void tst_RyToolBarManager_names::findingNamesTakesLinearTime()
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
