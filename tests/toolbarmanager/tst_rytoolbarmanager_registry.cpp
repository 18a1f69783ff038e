// SPDX-License-Identifier: MIT

#include "actionlog.h"
#include "connections.h"
#include "host.h"
#include "managerrecords.h"
#include "testcase.h"
#include "texts.h"

#include <QMenu>
#include <QMetaMethod>
#include <QPointer>
#include <QtTest>

namespace {

const QString A = "A";
const QString B = "B";

// What is known of an action: its category, and whether the registry and the category name it.
QString entryOf(const RyToolBarManager &manager, QAction *action)
{
    const QString category = manager.actionCategory(action);
    QString entry = category.isNull() ? "null" : category;
    if (manager.actions().contains(action))
        entry += " registered";
    if (manager.categoryActions(category).contains(action))
        entry += " listed";
    return entry;
}

QStringList sortedContentOf(const QSet<QAction *> &actions)
{
    QStringList names = contentOf(actions.values());
    names.sort();
    return names;
}

} // namespace

class tst_RyToolBarManager_registry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theRecordsNameTheSameToolBars();
    void aRemovedActionIsForgottenByEveryRecord();
    void nothingIsListenedTo();
    void theParentArgumentIsIgnored();
    void aNewManagerIsEmpty();
    void destroyingTheManagerDeletesNothingElse();
    void theManagerMayOutliveItsHost();
    void theMainWindowIsStoredUnchanged();
    void aHostNoticesASignal_data();
    void aHostNoticesASignal();

    void addActionIgnoresNullAndSeparators_data();
    void addActionIgnoresNullAndSeparators();
    void anActionStaysInItsFirstCategory();
    void addActionCreatesTheCategory_data();
    void addActionCreatesTheCategory();
    void addActionTouchesNoToolBar();
    void categoryActionsAreInTheOrderOfRegistration();
    void categoriesAreInAscendingOrder();
    void categoriesAreComparedExactly();
    void queriesOfUnknownNamesCreateNothing();

    void addCategoryCreatesAnEmptyCategory_data();
    void addCategoryCreatesAnEmptyCategory();
    void addCategoryEmptiesACategoryThatExists();
    void anEmptiedCategoryStartsItsListAgain();

    void removeActionIgnoresWhatIsNotRegistered_data();
    void removeActionIgnoresWhatIsNotRegistered();
    void removeActionTakesTheActionOffEveryManagedToolBar();
    void removeActionKeepsSeparatorObjects();
    void removeActionVisitsToolBarsInTheOrderOfPlacement();
    void placingAnActionAgainMovesItsToolBarToTheEnd();
    void removeActionChangesRecordsBeforeTheWidget();
    void removeActionLeavesOtherWidgetsAlone();
    void resettingDoesNotBringARemovedActionBack();
    void removeActionAlsoChangesDefaultContentThatIsNotOnTheToolBar();
    void aRemovedActionMayBeRegisteredAgain();
    void aRemovedActionIsNotTakenOffAgain();
    void removingTheLastActionRemovesTheCategory_data();
    void removingTheLastActionRemovesTheCategory();
    void removingOneOfSeveralActionsKeepsTheCategory();
    void removingAnActionOfAnEmptiedCategoryRemovesTheCategory();
    void removingAnActionOfAnEmptiedCategoryKeepsItsNewActions();
    void removingAnActionWithoutACategoryCreatesNone();
};

void tst_RyToolBarManager_registry::theRecordsNameTheSameToolBars()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open |"), A);
    QToolBar *const unmanaged = host.toolBar("other", words("open"));
    QToolBar *const deleted = host.manager.createToolBar("Deleted");
    QToolBar *const forgotten = host.manager.createToolBar("Forgotten");
    for (QToolBar *toolBar : {deleted, forgotten})
        host.manager.setToolBar(toolBar, host.list(words("| open")));
    host.manager.deleteToolBar(deleted);
    host.manager.removeDefaultToolBar(forgotten);
    host.manager.removeDefaultToolBar(unmanaged);
    host.manager.setToolBar(unmanaged, host.list(words("|")));

    const QList<QToolBar *> left{file};
    QCOMPARE(toolBarsOfActions(host.manager).value(host.action("open")), left);
    QCOMPARE(placedActions(host.manager).keys(), left);
    QCOMPARE(host.manager.toolBarsActions().keys(), left);
    QCOMPARE(host.manager.defaultToolBars().keys(), left);
}

void tst_RyToolBarManager_registry::aRemovedActionIsForgottenByEveryRecord()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open save"), A);
    host.manager.removeAction(host.action("open"));
    const QList<QAction *> left{host.action("save")};
    QCOMPARE(host.manager.categoryActions(A), left);
    QCOMPARE(host.manager.actions().values(), left);
    QCOMPARE(toolBarsOfActions(host.manager).keys(), left);
    QCOMPARE(placedActions(host.manager).value(file), left);
    QCOMPARE(host.manager.actions(file), left);
    QCOMPARE(host.manager.defaultToolBars().value(file), left);
    QVERIFY(host.manager.actionCategory(host.action("open")).isNull());
}

void tst_RyToolBarManager_registry::nothingIsListenedTo()
{
    Host host;
    QAction open("Open");
    QToolBar file;
    file.addAction(&open);
    const char *const signal = SIGNAL(destroyed(QObject *));
    const int ofAction = receiversOf(&open, signal);
    const int ofToolBar = receiversOf(&file, signal);
    host.manager.addDefaultToolBar(&file, A);
    QCOMPARE(receiversOf(&open, signal), ofAction);
    QCOMPARE(receiversOf(&file, signal), ofToolBar);
    host.manager.removeAction(&open);
}

void tst_RyToolBarManager_registry::theParentArgumentIsIgnored()
{
    QObject *const parent = new QObject;
    RyToolBarManager manager(parent);
    QVERIFY(!manager.parent());
    QVERIFY(parent->children().isEmpty());
    QPointer<RyToolBarManager> guard(&manager);
    delete parent;
    QVERIFY(guard);
}

void tst_RyToolBarManager_registry::aNewManagerIsEmpty()
{
    RyToolBarManager manager;
    QVERIFY(!manager.mainWindow());
    QVERIFY(manager.actions().isEmpty());
    QVERIFY(manager.categories().isEmpty());
    QVERIFY(manager.toolBars().isEmpty());
    QVERIFY(manager.toolBarsActions().isEmpty());
    QVERIFY(manager.defaultToolBars().isEmpty());
    QVERIFY(!manager.hasCategory(QString()));
    QVERIFY(!manager.parent());
    QVERIFY(manager.children().isEmpty());
}

void tst_RyToolBarManager_registry::destroyingTheManagerDeletesNothingElse()
{
    QMainWindow window;
    QAction open("Open");
    QToolBar *const file = window.addToolBar("File");
    file->addAction(&open);
    file->addSeparator();
    QPointer<QToolBar> mine;
    QList<QAction *> standing;
    {
        RyToolBarManager manager;
        manager.setMainWindow(&window);
        manager.addDefaultToolBar(file, A);
        manager.setToolBar(file, {nullptr, &open, nullptr});
        mine = manager.createToolBar("Mine");
        manager.setToolBar(mine, {&open, nullptr});
        standing = file->actions() + mine->actions();
    }
    QVERIFY(mine);
    QCOMPARE(standingOn(file), words("| \"Open\" |"));
    QCOMPARE(standingOn(mine), words("\"Open\" |"));
    QCOMPARE(file->actions() + mine->actions(), standing);
    QCOMPARE(window.findChildren<QToolBar *>(), (QList<QToolBar *>{file, mine}));
    QCOMPARE(window.toolBarArea(mine), Qt::TopToolBarArea);
}

void tst_RyToolBarManager_registry::theManagerMayOutliveItsHost()
{
    RyToolBarManager manager;
    QMainWindow *const window = new QMainWindow;
    manager.setMainWindow(window);
    QToolBar *const file = window->addToolBar("File");
    file->addAction("Open");
    manager.addDefaultToolBar(file, A);
    manager.setToolBar(manager.createToolBar(QString()), {nullptr, file->actions().constFirst()});
    delete window;
}

void tst_RyToolBarManager_registry::theMainWindowIsStoredUnchanged()
{
    Host host;
    QMainWindow other;
    QCOMPARE(host.manager.mainWindow(), &host.window);
    host.manager.setMainWindow(&other);
    QCOMPARE(host.manager.mainWindow(), &other);
    host.manager.setMainWindow(nullptr);
    QVERIFY(!host.manager.mainWindow());
    QVERIFY(other.findChildren<QToolBar *>().isEmpty());
}

void tst_RyToolBarManager_registry::aHostNoticesASignal_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("created") << 0;
    QTest::newRow("removed") << 1;
    QTest::newRow("changed") << 2;
}

// Every other test relies on the check of Host that no signal was emitted.
void tst_RyToolBarManager_registry::aHostNoticesASignal()
{
    QFETCH(int, index);
    QEXPECT_FAIL("", "emitted on purpose", Continue);
    Host host;
    const QList<QAction *> content;
    QToolBar *const toolBar = nullptr;
    const QMetaMethod signal =
        host.manager.metaObject()->method(host.manager.metaObject()->methodOffset() + index);
    if (index == 2)
        signal.invoke(&host.manager, Q_ARG(QToolBar *, toolBar), Q_ARG(QList<QAction *>, content));
    else
        signal.invoke(&host.manager, Q_ARG(QToolBar *, toolBar));
}

void tst_RyToolBarManager_registry::addActionIgnoresNullAndSeparators_data()
{
    QTest::addColumn<bool>("separator");
    QTest::newRow("null") << false;
    QTest::newRow("separator") << true;
}

void tst_RyToolBarManager_registry::addActionIgnoresNullAndSeparators()
{
    QFETCH(bool, separator);
    Host host;
    QAction bar;
    bar.setSeparator(true);
    host.manager.addAction(separator ? &bar : nullptr, A);
    QVERIFY(!host.manager.hasCategory(A));
    QVERIFY(host.manager.categories().isEmpty());
    QVERIFY(host.manager.actions().isEmpty());
    QVERIFY(host.manager.categoryActions(A).isEmpty());
    QVERIFY(host.manager.actionCategory(separator ? &bar : nullptr).isNull());
}

void tst_RyToolBarManager_registry::anActionStaysInItsFirstCategory()
{
    Host host;
    QAction *const open = host.registered("open", A);
    host.manager.addAction(open, B);
    QCOMPARE(host.manager.categories(), words("A"));
    QCOMPARE(host.manager.actionCategory(open), A);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("open"));
    QVERIFY(!host.manager.hasCategory(B));
}

void tst_RyToolBarManager_registry::addActionCreatesTheCategory_data()
{
    QTest::addColumn<QString>("category");
    QTest::newRow("named") << A;
    QTest::newRow("empty") << "";
    QTest::newRow("null") << QString();
}

void tst_RyToolBarManager_registry::addActionCreatesTheCategory()
{
    QFETCH(QString, category);
    Host host;
    QAction *const open = host.registered("open", category);
    QVERIFY(host.manager.hasCategory(category));
    QCOMPARE(host.manager.categories(), QStringList(category));
    QCOMPARE(contentOf(host.manager.categoryActions(category)), words("open"));
    QCOMPARE(host.manager.actionCategory(open), category);
    QCOMPARE(host.manager.actions(), QSet<QAction *>{open});
}

void tst_RyToolBarManager_registry::addActionTouchesNoToolBar()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    ActionLog log(file);
    host.registered("save", A);
    host.registered("open", B);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(contentOf(host.manager.actions(file)), words("open"));
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(file)), words("open"));
}

void tst_RyToolBarManager_registry::categoryActionsAreInTheOrderOfRegistration()
{
    Host host;
    const QStringList names = words("m z a q c y b k");
    for (const QString &name : names)
        host.action(name);
    // Neither alphabetical nor by address.
    const QStringList registered = words("q a z k b m c y");
    for (const QString &name : registered)
        host.registered(name, A);
    host.registered("other", B);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), registered);
    QCOMPARE(contentOf(host.manager.categoryActions(B)), words("other"));
}

void tst_RyToolBarManager_registry::categoriesAreInAscendingOrder()
{
    Host host;
    const QStringList names = words("b é a 9 A 10 Z");
    for (const QString &name : names)
        host.manager.addCategory(name);
    host.registered("open", QString());
    QCOMPARE(host.manager.categories(), QStringList(QString()) + words("10 9 A Z a b é"));
}

void tst_RyToolBarManager_registry::categoriesAreComparedExactly()
{
    Host host;
    host.registered("open", "File");
    host.registered("save", "file");
    QCOMPARE(host.manager.categories(), words("File file"));
    QVERIFY(!host.manager.hasCategory("FILE"));
    QVERIFY(!host.manager.hasCategory("File "));
    QCOMPARE(contentOf(host.manager.categoryActions("file")), words("save"));
}

void tst_RyToolBarManager_registry::queriesOfUnknownNamesCreateNothing()
{
    Host host;
    QVERIFY(host.manager.categoryActions(A).isEmpty());
    QVERIFY(!host.manager.hasCategory(A));
    QVERIFY(host.manager.actionCategory(host.action("open")).isNull());
    QVERIFY(host.manager.categories().isEmpty());
    QVERIFY(host.manager.actions().isEmpty());
}

void tst_RyToolBarManager_registry::addCategoryCreatesAnEmptyCategory_data()
{
    addActionCreatesTheCategory_data();
}

void tst_RyToolBarManager_registry::addCategoryCreatesAnEmptyCategory()
{
    QFETCH(QString, category);
    Host host;
    host.manager.addCategory(category);
    host.manager.addCategory(category);
    QVERIFY(host.manager.hasCategory(category));
    QCOMPARE(host.manager.categories(), QStringList(category));
    QVERIFY(host.manager.categoryActions(category).isEmpty());
    host.registered("open", category);
    QCOMPARE(contentOf(host.manager.categoryActions(category)), words("open"));
}

void tst_RyToolBarManager_registry::addCategoryEmptiesACategoryThatExists()
{
    Host host;
    QAction *const open = host.registered("open", A);
    QAction *const save = host.registered("save", A);
    QAction *const find = host.registered("find", B);
    QCOMPARE(entryOf(host.manager, open), QString("A registered listed"));
    host.manager.addCategory(A);
    QVERIFY(host.manager.hasCategory(A));
    QVERIFY(host.manager.categoryActions(A).isEmpty());
    QCOMPARE(entryOf(host.manager, open), QString("A registered"));
    QCOMPARE(entryOf(host.manager, save), QString("A registered"));
    QCOMPARE(entryOf(host.manager, find), QString("B registered listed"));
}

void tst_RyToolBarManager_registry::anEmptiedCategoryStartsItsListAgain()
{
    Host host;
    QAction *const open = host.registered("open", A);
    host.manager.addCategory(A);
    host.registered("save", A);
    // Known already, so that it does not return to the list.
    host.manager.addAction(open, A);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("save"));
}

void tst_RyToolBarManager_registry::removeActionIgnoresWhatIsNotRegistered_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << "null";
    QTest::newRow("unregistered") << "stranger";
    QTest::newRow("separator of a toolbar") << "separator";
    QTest::newRow("removed") << "gone";
}

void tst_RyToolBarManager_registry::removeActionIgnoresWhatIsNotRegistered()
{
    QFETCH(QString, name);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    host.manager.removeAction(host.registered("gone", B));
    const QMap<QString, QAction *> actions{{"stranger", host.action("stranger")},
                                           {"separator", file->actions().at(1)},
                                           {"gone", host.action("gone")}};
    file->addAction(actions.value("stranger"));
    ActionLog log(file);

    host.manager.removeAction(actions.value(name));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(contentOf(host.manager.actions(file)), words("open | save"));
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(file)), words("open | save"));
    QCOMPARE(sortedContentOf(host.manager.actions()), words("open save"));
    QCOMPARE(host.manager.categories(), words("A"));
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("open save"));
}

void tst_RyToolBarManager_registry::removeActionTakesTheActionOffEveryManagedToolBar()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("| open | | save"), A);
    QToolBar *const edit = host.defaultToolBar("edit", words("find | open |"), A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, host.list(words("| open |")));
    QAction *const open = host.action("open");

    host.manager.removeAction(open);
    QCOMPARE(standingOn(file), words("| | | save"));
    QCOMPARE(standingOn(edit), words("find | |"));
    QCOMPARE(standingOn(mine), words("| |"));
    QCOMPARE(contentOf(host.manager.actions(file)), words("| | | save"));
    QCOMPARE(contentOf(host.manager.actions(edit)), words("find | |"));
    QCOMPARE(contentOf(host.manager.actions(mine)), words("| |"));
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(file)), words("| | | save"));
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(edit)), words("find | |"));
    QCOMPARE(entryOf(host.manager, open), QString("null"));
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("save find"));
}

void tst_RyToolBarManager_registry::removeActionKeepsSeparatorObjects()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("| open |"), A);
    const QPointer<QAction> first = file->actions().first();
    const QPointer<QAction> last = file->actions().last();
    host.manager.removeAction(host.action("open"));
    QCOMPARE(file->actions(), (QList<QAction *>{first, last}));
    // They are still the manager's, which deletes them with the next content.
    host.manager.setToolBar(file, {});
    QVERIFY(!first);
    QVERIFY(!last);
}

void tst_RyToolBarManager_registry::removeActionVisitsToolBarsInTheOrderOfPlacement()
{
    Host host;
    ActionLog log;
    QAction *const open = host.registered("open", A);
    const QStringList names = words("one two three four five six");
    for (const QString &name : names)
        log.watch(host.defaultToolBar(name, QStringList(), A));
    const QStringList placed = words("four one six two five three");
    for (const QString &name : placed)
        host.manager.setToolBar(host.manager.toolBarByName(name), {open, nullptr});
    log.take();
    host.manager.removeAction(open);
    QCOMPARE(log.take(), words("four-open one-open six-open two-open five-open three-open"));
}

void tst_RyToolBarManager_registry::placingAnActionAgainMovesItsToolBarToTheEnd()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    QToolBar *const edit = host.defaultToolBar("edit", words("open"), A);
    host.manager.setToolBar(file, host.list(words("| open")));
    ActionLog log(file);
    log.watch(edit);
    host.manager.removeAction(host.action("open"));
    QCOMPARE(log.take(), words("edit-open file-open"));
}

void tst_RyToolBarManager_registry::removeActionChangesRecordsBeforeTheWidget()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open |"), A);
    QToolBar *const edit = host.defaultToolBar("edit", words("find open"), A);
    QAction *const open = host.action("open");
    ActionLog log(file);
    log.watch(edit);
    QList<QStringList> seen;
    log.atEach([&] {
        seen << contentOf(host.manager.actions(file)) << contentOf(host.manager.actions(edit))
             << contentOf(host.manager.defaultToolBars().value(file))
             << QStringList(entryOf(host.manager, open));
    });
    host.manager.removeAction(open);
    const QStringList registered("A registered listed");
    QCOMPARE(seen,
             (QList<QStringList>{words("|"), words("find open"), words("open |"), registered,
                                 words("|"), words("find"), words("open |"), registered}));
}

void tst_RyToolBarManager_registry::removeActionLeavesOtherWidgetsAlone()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    QToolBar *const unmanaged = host.toolBar("other", words("open |"));
    QMenu menu;
    menu.addAction(host.action("open"));
    host.manager.removeAction(host.action("open"));
    QCOMPARE(standingOn(file), QStringList());
    QCOMPARE(standingOn(unmanaged), words("open |"));
    QCOMPARE(standingOn(&menu), words("open"));
}

void tst_RyToolBarManager_registry::resettingDoesNotBringARemovedActionBack()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    QAction *const open = host.action("open");
    host.manager.removeAction(open);
    host.manager.addAction(open, A);
    host.manager.setToolBar(file, {});
    host.manager.resetToolBar(file);
    QCOMPARE(standingOn(file), words("| save"));
}

void tst_RyToolBarManager_registry::removeActionAlsoChangesDefaultContentThatIsNotOnTheToolBar()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    host.manager.setToolBar(file, host.list(words("save")));
    ActionLog log(file);
    host.manager.removeAction(host.action("open"));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(file)), words("| save"));
}

void tst_RyToolBarManager_registry::aRemovedActionMayBeRegisteredAgain()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    QToolBar *const edit = host.defaultToolBar("edit", words("find"), A);
    QAction *const open = host.action("open");
    host.manager.removeAction(open);
    host.manager.addAction(open, B);
    QCOMPARE(entryOf(host.manager, open), QString("B registered listed"));
    QCOMPARE(standingOn(file), QStringList());
    host.manager.setToolBar(edit, {open});
    file->addAction(open);
    host.manager.removeAction(open);
    // The toolbars of its first life are forgotten, so that the host's own placing stays.
    QCOMPARE(standingOn(edit), QStringList());
    QCOMPARE(standingOn(file), words("open"));
}

void tst_RyToolBarManager_registry::aRemovedActionIsNotTakenOffAgain()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    QAction *const open = host.action("open");
    host.manager.removeAction(open);
    file->addAction(open);
    host.manager.setToolBar(file, host.list(words("save")));
    QCOMPARE(standingOn(file), words("open save"));
    host.manager.removeAction(host.action("save"));
    delete host.action("save");
    host.manager.setToolBar(file, {nullptr});
    QCOMPARE(standingOn(file), words("open |"));
}

void tst_RyToolBarManager_registry::removingTheLastActionRemovesTheCategory_data()
{
    QTest::addColumn<bool>("createdByHand");
    QTest::addColumn<QString>("category");
    QTest::newRow("created by addAction") << false << A;
    QTest::newRow("created by addCategory") << true << A;
    QTest::newRow("empty name") << false << QString();
}

void tst_RyToolBarManager_registry::removingTheLastActionRemovesTheCategory()
{
    QFETCH(bool, createdByHand);
    QFETCH(QString, category);
    Host host;
    host.manager.addCategory(B);
    if (createdByHand)
        host.manager.addCategory(category);
    QAction *const open = host.registered("open", category);
    host.manager.removeAction(open);
    QVERIFY(!host.manager.hasCategory(category));
    QCOMPARE(host.manager.categories(), words("B"));
    QVERIFY(host.manager.actionCategory(open).isNull());
    QVERIFY(host.manager.actions().isEmpty());
}

void tst_RyToolBarManager_registry::removingOneOfSeveralActionsKeepsTheCategory()
{
    Host host;
    const QStringList names = words("open save find");
    for (const QString &name : names)
        host.registered(name, A);
    host.manager.removeAction(host.action("save"));
    QCOMPARE(host.manager.categories(), words("A"));
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("open find"));
    QCOMPARE(sortedContentOf(host.manager.actions()), words("find open"));
}

void tst_RyToolBarManager_registry::removingAnActionOfAnEmptiedCategoryRemovesTheCategory()
{
    Host host;
    QAction *const open = host.registered("open", A);
    QAction *const save = host.registered("save", A);
    host.manager.addCategory(A);
    host.manager.removeAction(open);
    QVERIFY(!host.manager.hasCategory(A));
    QCOMPARE(entryOf(host.manager, save), QString("A registered"));
}

void tst_RyToolBarManager_registry::removingAnActionOfAnEmptiedCategoryKeepsItsNewActions()
{
    Host host;
    QAction *const open = host.registered("open", A);
    host.manager.addCategory(A);
    host.registered("save", A);
    host.manager.removeAction(open);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("save"));
    QVERIFY(host.manager.actionCategory(open).isNull());
}

void tst_RyToolBarManager_registry::removingAnActionWithoutACategoryCreatesNone()
{
    Host host;
    QAction *const open = host.registered("open", A);
    QAction *const save = host.registered("save", A);
    host.manager.addCategory(A);
    host.manager.removeAction(open);
    host.manager.removeAction(save);
    QCOMPARE(host.manager.categories(), QStringList());
    QVERIFY(host.manager.actions().isEmpty());
}

QTEST_MAIN(tst_RyToolBarManager_registry)

#include "tst_rytoolbarmanager_registry.moc"
