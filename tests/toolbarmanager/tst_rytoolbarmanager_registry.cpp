// SPDX-License-Identifier: MIT

#include "actionlog.h"
#include "host.h"
#include "localecodec.h"
#include "testcase.h"
#include "texts.h"
#include "virtualslots.h"

#include <QMenu>
#include <QMetaMethod>
#include <QPointer>
#include <QtTest>

namespace {

const QString A = QStringLiteral("A");
const QString B = QStringLiteral("B");

// What is known of an action: its category, and whether the registry and the category name it.
QString entryOf(const RyToolBarManager &manager, QAction *action)
{
    const QString category = manager.actionCategory(action);
    QString entry = category.isNull() ? QStringLiteral("null") : category;
    if (manager.actions().contains(action))
        entry += QLatin1String(" registered");
    if (manager.categoryActions(category).contains(action))
        entry += QLatin1String(" listed");
    return entry;
}

QStringList sortedContentOf(const QSet<QAction *> &actions)
{
    QStringList names = contentOf(actions.values());
    names.sort();
    return names;
}

QStringList textsOf(const QMetaObject *metaObject)
{
    QStringList texts;
    for (int i = metaObject->methodOffset(); i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        const bool signal = method.methodType() == QMetaMethod::Signal;
        const bool isPublic = method.access() == QMetaMethod::Public;
        texts << QLatin1String(signal ? "signal " : "slot ")
                + QLatin1String(isPublic ? "public " : "other ") + QLatin1String(method.typeName())
                + QLatin1Char(' ') + QLatin1String(method.methodSignature());
    }
    return texts;
}

// The fields follow QObject's one and take a pointer each.
template <typename Field> const Field &fieldOf(const RyToolBarManager &manager, size_t index)
{
    const char *const bytes = reinterpret_cast<const char *>(&manager);
    const void *const field = bytes + sizeof(QObject) + index * sizeof(void *);
    return *static_cast<const Field *>(field);
}

QString notByName(const char *name)
{
    return QStringLiteral("RyToolBarManager::restoreState(): cannot find a QAction named '%1', "
                          "trying to match using 'text' instead.")
        .arg(QString::fromUtf8(name));
}

QString notByText(const char *name)
{
    return QStringLiteral("RyToolBarManager::restoreState(): cannot find a QAction with matching "
                          "'text' (looking for '%1').")
        .arg(QString::fromUtf8(name));
}

// Lets a test see who listens to an object.
class Listened : public QAction
{
    Q_OBJECT

public:
    using QAction::QAction;
    using QAction::receivers;
};

class ListenedToolBar : public QToolBar
{
    Q_OBJECT

public:
    using QToolBar::QToolBar;
    using QToolBar::receivers;
};

// The types tell whose function it is that a subclass would override.
struct Access : RyToolBarManager
{
    template <typename Event> using Handler = void (QObject::*)(Event *);
    using Notice = void (QObject::*)(const QMetaMethod &);

    static QList<bool> inherited()
    {
        return {
            std::is_same_v<decltype(&Access::event), bool (QObject::*)(QEvent *)>,
            std::is_same_v<decltype(&Access::eventFilter), bool (QObject::*)(QObject *, QEvent *)>,
            std::is_same_v<decltype(&Access::timerEvent), Handler<QTimerEvent>>,
            std::is_same_v<decltype(&Access::childEvent), Handler<QChildEvent>>,
            std::is_same_v<decltype(&Access::customEvent), Handler<QEvent>>,
            std::is_same_v<decltype(&Access::connectNotify), Notice>,
            std::is_same_v<decltype(&Access::disconnectNotify), Notice>,
        };
    }
};

template <typename Signature> bool isOf(Signature function)
{
    return function != nullptr;
}

} // namespace

class tst_RyToolBarManager_registry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theMetaObjectHasThreeSignalsAndTwoSlotsInOrder();
    void theMetaObjectNamesOnlyTheManagerAndQObject();
    void theFieldsStandInTheirOrder();
    void addsAndOverridesNoVirtualFunction();
    void noQueryChangesTheManager();
    void theRecordsNameTheSameToolBars();
    void aRemovedActionIsForgottenByEveryRecord();
    void theParentArgumentIsIgnored();
    void aNewManagerIsEmpty();
    void destroyingTheManagerDeletesNothingElse();
    void theManagerMayOutliveItsHost();
    void theMainWindowIsStoredUnchanged();
    void nothingIsListenedTo();
    void aHostNoticesASignal_data();
    void aHostNoticesASignal();
    void noOperationOfTheRegistryEmitsASignal();

    void addActionIgnoresNullAndSeparators_data();
    void addActionIgnoresNullAndSeparators();
    void anActionStaysInItsFirstCategory();
    void anActionIsListedOnce();
    void addActionCreatesTheCategory_data();
    void addActionCreatesTheCategory();
    void addActionTouchesNoToolBar();
    void categoryActionsStandInTheOrderOfRegistration();
    void categoriesStandInAscendingOrder();
    void categoriesAreComparedExactly();
    void queriesOfUnknownNamesCreateNothing();
    void actionsReturnsACopy();
    void actionCategoryOfUnknownActionsIsNull_data();
    void actionCategoryOfUnknownActionsIsNull();

    void addCategoryCreatesAnEmptyCategory_data();
    void addCategoryCreatesAnEmptyCategory();
    void addCategoryEmptiesACategoryThatExists();
    void anEmptiedCategoryStartsItsListAnew();

    void removeActionIgnoresWhatIsNotRegistered_data();
    void removeActionIgnoresWhatIsNotRegistered();
    void removeActionTakesTheActionOffEveryManagedToolBar();
    void removeActionKeepsSeparatorObjects();
    void removeActionVisitsToolBarsInTheOrderOfPlacement();
    void placingAnActionAgainMovesItsToolBarToTheEnd();
    void removeActionChangesRecordsBeforeTheWidget();
    void removeActionLeavesOtherWidgetsAlone();
    void removeActionDoesNotDeleteTheAction();
    void resettingDoesNotBringARemovedActionBack();
    void removeActionLeavesDefaultContentThatDoesNotStandOnTheToolBar();
    void aRemovedActionMayBeRegisteredAgain();
    void aRemovedActionIsNotTakenOffAgain();
    void removingTheLastActionRemovesTheCategory_data();
    void removingTheLastActionRemovesTheCategory();
    void removingOneOfSeveralActionsKeepsTheCategory();
    void removingAnActionOfAnEmptiedCategoryRemovesTheCategory();
    void removingAnActionOfAnEmptiedCategoryKeepsItsNewActions();
    void removingAnActionWithoutACategoryCreatesNone();

    void findActionByObjectName();
    void findActionByTextPrintsOneWarning();
    void findActionOfAnUnknownNamePrintsTwoWarningsInOrder_data();
    void findActionOfAnUnknownNamePrintsTwoWarningsInOrder();
    void findActionPrefersAnObjectNameToATextMetEarlier();
    void findActionSearchesRegisteredActionsOnly();
    void findActionOfAnEmptyNameFindsANamelessAction_data();
    void findActionOfAnEmptyNameFindsANamelessAction();
    void findActionOfASharedNameFindsOneOfTheActions();
    void warningsShowTheNameInTheLocalEncoding();
    void warningsHaveNoSourceLocation();
};

void tst_RyToolBarManager_registry::theMetaObjectHasThreeSignalsAndTwoSlotsInOrder()
{
    QCOMPARE(textsOf(&RyToolBarManager::staticMetaObject),
             (QStringList{
                 QStringLiteral("signal public void toolBarCreated(QToolBar*)"),
                 QStringLiteral("signal public void toolBarRemoved(QToolBar*)"),
                 QStringLiteral("signal public void toolBarChanged(QToolBar*,QList<QAction*>)"),
                 QStringLiteral("slot public void resetToolBar(QToolBar*)"),
                 QStringLiteral("slot public void resetAllToolBars()"),
             }));
}

void tst_RyToolBarManager_registry::theMetaObjectNamesOnlyTheManagerAndQObject()
{
    RyToolBarManager manager;
    const QMetaObject *const metaObject = manager.metaObject();
    QCOMPARE(metaObject, &RyToolBarManager::staticMetaObject);
    QCOMPARE(metaObject->className(), "RyToolBarManager");
    QCOMPARE(metaObject->superClass(), &QObject::staticMetaObject);
    QCOMPARE(metaObject->propertyCount(), metaObject->propertyOffset());
    QCOMPARE(metaObject->enumeratorCount(), 0);
    QCOMPARE(metaObject->constructorCount(), 0);
    QCOMPARE(metaObject->classInfoCount(), 0);
    QCOMPARE(manager.qt_metacast("RyToolBarManager"), static_cast<void *>(&manager));
    QVERIFY(!manager.qt_metacast("RyAbstatcManager"));
    QCOMPARE(qobject_cast<RyToolBarManager *>(static_cast<QObject *>(&manager)), &manager);
}

void tst_RyToolBarManager_registry::theFieldsStandInTheirOrder()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open | save"), A);
    QToolBar *const mine = host.manager.createToolBar(QStringLiteral("Mine"));
    host.manager.setToolBar(mine, host.list(words("| save")));
    QAction *const open = host.action(QStringLiteral("open"));
    QAction *const save = host.action(QStringLiteral("save"));

    using Contents = QMap<QToolBar *, QList<QAction *>>;
    const RyToolBarManager &manager = host.manager;
    QCOMPARE((fieldOf<QMap<QString, QList<QAction *>>>(manager, 0)),
             (QMap<QString, QList<QAction *>>{{A, {open, save}}}));
    QCOMPARE((fieldOf<QMap<QAction *, QString>>(manager, 1)),
             (QMap<QAction *, QString>{{open, A}, {save, A}}));
    QCOMPARE(fieldOf<QSet<QAction *>>(manager, 2), (QSet<QAction *>{open, save}));
    QCOMPARE((fieldOf<QMap<QAction *, QList<QToolBar *>>>(manager, 3)),
             (QMap<QAction *, QList<QToolBar *>>{{open, {file}}, {save, {file, mine}}}));
    QCOMPARE(fieldOf<Contents>(manager, 4),
             (Contents{{file, {open, nullptr, save}}, {mine, {nullptr, save}}}));
    QCOMPARE(fieldOf<Contents>(manager, 5),
             (Contents{{file, file->actions()}, {mine, mine->actions()}}));
    QCOMPARE(fieldOf<Contents>(manager, 6), (Contents{{file, {open, nullptr, save}}}));
    QCOMPARE(fieldOf<QMainWindow *>(manager, 7), &host.window);
}

void tst_RyToolBarManager_registry::addsAndOverridesNoVirtualFunction()
{
    QCOMPARE(virtualSlotCount<RyToolBarManager>(), virtualSlotCount<QObject>());
    QVERIFY(!Access::inherited().contains(false));
}

// Each may be asked of a manager that is const, with these arguments and results.
void tst_RyToolBarManager_registry::noQueryChangesTheManager()
{
    using Manager = RyToolBarManager;
    using Contents = QMap<QToolBar *, QList<QAction *>>;
    QVERIFY(isOf<QMainWindow *(Manager::*)() const>(&Manager::mainWindow));
    QVERIFY(isOf<bool (Manager::*)(const QString &) const>(&Manager::hasCategory));
    QVERIFY(isOf<QStringList (Manager::*)() const>(&Manager::categories));
    QVERIFY(isOf<QList<QAction *> (Manager::*)(const QString &) const>(&Manager::categoryActions));
    QVERIFY(isOf<QString (Manager::*)(QAction *) const>(&Manager::actionCategory));
    QVERIFY(isOf<QSet<QAction *> (Manager::*)() const>(&Manager::actions));
    QVERIFY(isOf<QAction *(Manager::*)(const QString &) const>(&Manager::findAction));
    QVERIFY(isOf<QList<QToolBar *> (Manager::*)() const>(&Manager::toolBars));
    QVERIFY(isOf<Contents (Manager::*)() const>(&Manager::defaultToolBars));
    QVERIFY(isOf<bool (Manager::*)(QToolBar *) const>(&Manager::isDefaultToolBar));
    QVERIFY(isOf<Contents (Manager::*)() const>(&Manager::toolBarsActions));
    QVERIFY(isOf<QList<QAction *> (Manager::*)(QToolBar *) const>(&Manager::actions));
    QVERIFY(isOf<QToolBar *(Manager::*)(const QString &) const>(&Manager::toolBarByName));
    QVERIFY(isOf<QToolBar *(Manager::*)(const QString &) const>(&Manager::findDefaultToolBar));
    QVERIFY(isOf<QByteArray (Manager::*)(int) const>(&Manager::saveState));
    QVERIFY(isOf<void (Manager::*)(QDataStream &) const>(&Manager::saveStateData));
}

void tst_RyToolBarManager_registry::theRecordsNameTheSameToolBars()
{
    using Contents = QMap<QToolBar *, QList<QAction *>>;
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open |"), A);
    QToolBar *const unmanaged = host.toolBar(QStringLiteral("other"), words("open"));
    QToolBar *const deleted = host.manager.createToolBar(QStringLiteral("Deleted"));
    QToolBar *const forgotten = host.manager.createToolBar(QStringLiteral("Forgotten"));
    for (QToolBar *toolBar : {deleted, forgotten})
        host.manager.setToolBar(toolBar, host.list(words("| open")));
    host.manager.deleteToolBar(deleted);
    host.manager.removeDefaultToolBar(forgotten);
    host.manager.removeDefaultToolBar(unmanaged);
    host.manager.setToolBar(unmanaged, host.list(words("|")));

    QAction *const open = host.action(QStringLiteral("open"));
    const RyToolBarManager &manager = host.manager;
    QCOMPARE((fieldOf<QMap<QAction *, QList<QToolBar *>>>(manager, 3).value(open)),
             QList<QToolBar *>{file});
    QCOMPARE(fieldOf<Contents>(manager, 4).keys(), QList<QToolBar *>{file});
    QCOMPARE(fieldOf<Contents>(manager, 5).keys(), QList<QToolBar *>{file});
    QCOMPARE(fieldOf<Contents>(manager, 6).keys(), QList<QToolBar *>{file});
}

void tst_RyToolBarManager_registry::aRemovedActionIsForgottenByEveryRecord()
{
    using Contents = QMap<QToolBar *, QList<QAction *>>;
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open save"), A);
    QAction *const save = host.action(QStringLiteral("save"));
    host.manager.removeAction(host.action(QStringLiteral("open")));
    const RyToolBarManager &manager = host.manager;
    const QList<QAction *> left{save};
    QCOMPARE((fieldOf<QMap<QString, QList<QAction *>>>(manager, 0).value(A)), left);
    QCOMPARE((fieldOf<QMap<QAction *, QString>>(manager, 1).keys()), left);
    QCOMPARE(fieldOf<QSet<QAction *>>(manager, 2).values(), left);
    QCOMPARE((fieldOf<QMap<QAction *, QList<QToolBar *>>>(manager, 3).keys()), left);
    for (size_t field : {4, 5, 6})
        QCOMPARE(fieldOf<Contents>(manager, field).value(file), left);
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
    QAction open(QStringLiteral("Open"));
    QToolBar *const file = window.addToolBar(QStringLiteral("File"));
    file->addAction(&open);
    file->addSeparator();
    QPointer<QToolBar> mine;
    QList<QAction *> standing;
    {
        RyToolBarManager manager;
        manager.setMainWindow(&window);
        manager.addDefaultToolBar(file, A);
        manager.setToolBar(file, {nullptr, &open, nullptr});
        mine = manager.createToolBar(QStringLiteral("Mine"));
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
    QToolBar *const file = window->addToolBar(QStringLiteral("File"));
    file->addAction(QStringLiteral("Open"));
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

void tst_RyToolBarManager_registry::nothingIsListenedTo()
{
    Host host;
    Listened open(QStringLiteral("Open"));
    ListenedToolBar file;
    file.addAction(&open);
    const char *const signal = SIGNAL(destroyed(QObject *));
    const int ofAction = open.receivers(signal);
    const int ofToolBar = file.receivers(signal);
    host.manager.addDefaultToolBar(&file, A);
    QCOMPARE(open.receivers(signal), ofAction);
    QCOMPARE(file.receivers(signal), ofToolBar);
    host.manager.removeAction(&open);
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

void tst_RyToolBarManager_registry::noOperationOfTheRegistryEmitsASignal()
{
    Host host;
    QAction *const open = host.registered(QStringLiteral("open"), A);
    host.defaultToolBar(QStringLiteral("file"), words("open | save"), A);
    host.manager.addCategory(B);
    host.manager.addCategory(A);
    host.manager.hasCategory(A);
    host.manager.categories();
    host.manager.categoryActions(A);
    host.manager.actionCategory(open);
    host.manager.actions();
    host.manager.findAction(QStringLiteral("open"));
    host.manager.removeAction(open);
    host.manager.removeAction(host.action(QStringLiteral("save")));
    host.manager.setMainWindow(nullptr);
    // The check itself is in the destructor of Host.
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
    QAction *const open = host.registered(QStringLiteral("open"), A);
    host.manager.addAction(open, B);
    QCOMPARE(host.manager.categories(), words("A"));
    QCOMPARE(host.manager.actionCategory(open), A);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("open"));
    QVERIFY(!host.manager.hasCategory(B));
}

void tst_RyToolBarManager_registry::anActionIsListedOnce()
{
    Host host;
    host.registered(QStringLiteral("open"), A);
    host.registered(QStringLiteral("open"), A);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("open"));
    QCOMPARE(host.manager.actions().size(), 1);
}

void tst_RyToolBarManager_registry::addActionCreatesTheCategory_data()
{
    QTest::addColumn<QString>("category");
    QTest::newRow("named") << A;
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("null") << QString();
}

void tst_RyToolBarManager_registry::addActionCreatesTheCategory()
{
    QFETCH(QString, category);
    Host host;
    QAction *const open = host.registered(QStringLiteral("open"), category);
    QVERIFY(host.manager.hasCategory(category));
    QCOMPARE(host.manager.categories(), QStringList(category));
    QCOMPARE(contentOf(host.manager.categoryActions(category)), words("open"));
    QCOMPARE(host.manager.actionCategory(open), category);
    QCOMPARE(host.manager.actions(), QSet<QAction *>{open});
}

void tst_RyToolBarManager_registry::addActionTouchesNoToolBar()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open"), A);
    ActionLog log(file);
    host.registered(QStringLiteral("save"), A);
    host.registered(QStringLiteral("open"), B);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(contentOf(host.manager.actions(file)), words("open"));
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(file)), words("open"));
}

void tst_RyToolBarManager_registry::categoryActionsStandInTheOrderOfRegistration()
{
    Host host;
    const QStringList names = words("m z a q c y b k");
    for (const QString &name : names)
        host.action(name);
    // Neither the alphabet nor the addresses count.
    const QStringList registered = words("q a z k b m c y");
    for (const QString &name : registered)
        host.registered(name, A);
    host.registered(QStringLiteral("other"), B);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), registered);
    QCOMPARE(contentOf(host.manager.categoryActions(B)), words("other"));
}

void tst_RyToolBarManager_registry::categoriesStandInAscendingOrder()
{
    Host host;
    const QStringList names = words("b é a 9 A 10 Z");
    for (const QString &name : names)
        host.manager.addCategory(name);
    host.registered(QStringLiteral("open"), QString());
    QCOMPARE(host.manager.categories(), QStringList(QString()) + words("10 9 A Z a b é"));
}

void tst_RyToolBarManager_registry::categoriesAreComparedExactly()
{
    Host host;
    host.registered(QStringLiteral("open"), QStringLiteral("File"));
    host.registered(QStringLiteral("save"), QStringLiteral("file"));
    QCOMPARE(host.manager.categories(), words("File file"));
    QVERIFY(!host.manager.hasCategory(QStringLiteral("FILE")));
    QVERIFY(!host.manager.hasCategory(QStringLiteral("File ")));
    QCOMPARE(contentOf(host.manager.categoryActions(QStringLiteral("file"))), words("save"));
}

void tst_RyToolBarManager_registry::queriesOfUnknownNamesCreateNothing()
{
    Host host;
    QVERIFY(host.manager.categoryActions(A).isEmpty());
    QVERIFY(!host.manager.hasCategory(A));
    QVERIFY(host.manager.actionCategory(host.action(QStringLiteral("open"))).isNull());
    QVERIFY(host.manager.categories().isEmpty());
    QVERIFY(host.manager.actions().isEmpty());
}

void tst_RyToolBarManager_registry::actionsReturnsACopy()
{
    Host host;
    QAction *const open = host.registered(QStringLiteral("open"), A);
    QSet<QAction *> before = host.manager.actions();
    host.registered(QStringLiteral("save"), A);
    QCOMPARE(before, QSet<QAction *>{open});
    before.clear();
    QCOMPARE(sortedContentOf(host.manager.actions()), words("open save"));
}

void tst_RyToolBarManager_registry::actionCategoryOfUnknownActionsIsNull_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QStringLiteral("|");
    QTest::newRow("unregistered") << QStringLiteral("save");
    QTest::newRow("removed") << QStringLiteral("gone");
}

void tst_RyToolBarManager_registry::actionCategoryOfUnknownActionsIsNull()
{
    QFETCH(QString, name);
    Host host;
    host.registered(QStringLiteral("open"), A);
    host.manager.removeAction(host.registered(QStringLiteral("gone"), A));
    QVERIFY(host.manager.actionCategory(host.list({name}).constFirst()).isNull());
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
    host.registered(QStringLiteral("open"), category);
    QCOMPARE(contentOf(host.manager.categoryActions(category)), words("open"));
}

void tst_RyToolBarManager_registry::addCategoryEmptiesACategoryThatExists()
{
    Host host;
    QAction *const open = host.registered(QStringLiteral("open"), A);
    QAction *const save = host.registered(QStringLiteral("save"), A);
    QAction *const find = host.registered(QStringLiteral("find"), B);
    QCOMPARE(entryOf(host.manager, open), QStringLiteral("A registered listed"));
    host.manager.addCategory(A);
    QVERIFY(host.manager.hasCategory(A));
    QVERIFY(host.manager.categoryActions(A).isEmpty());
    QCOMPARE(entryOf(host.manager, open), QStringLiteral("A registered"));
    QCOMPARE(entryOf(host.manager, save), QStringLiteral("A registered"));
    QCOMPARE(entryOf(host.manager, find), QStringLiteral("B registered listed"));
}

void tst_RyToolBarManager_registry::anEmptiedCategoryStartsItsListAnew()
{
    Host host;
    QAction *const open = host.registered(QStringLiteral("open"), A);
    host.manager.addCategory(A);
    host.registered(QStringLiteral("save"), A);
    // Known already, so that it does not return to the list.
    host.manager.addAction(open, A);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("save"));
}

void tst_RyToolBarManager_registry::removeActionIgnoresWhatIsNotRegistered_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QStringLiteral("null");
    QTest::newRow("unregistered") << QStringLiteral("stranger");
    QTest::newRow("separator of a toolbar") << QStringLiteral("separator");
    QTest::newRow("removed") << QStringLiteral("gone");
}

void tst_RyToolBarManager_registry::removeActionIgnoresWhatIsNotRegistered()
{
    QFETCH(QString, name);
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open | save"), A);
    host.manager.removeAction(host.registered(QStringLiteral("gone"), B));
    const QMap<QString, QAction *> actions{
        {QStringLiteral("stranger"), host.action(QStringLiteral("stranger"))},
        {QStringLiteral("separator"), file->actions().at(1)},
        {QStringLiteral("gone"), host.action(QStringLiteral("gone"))}};
    file->addAction(actions.value(QStringLiteral("stranger")));
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
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("| open | | save"), A);
    QToolBar *const edit = host.defaultToolBar(QStringLiteral("edit"), words("find | open |"), A);
    QToolBar *const mine = host.manager.createToolBar(QStringLiteral("Mine"));
    host.manager.setToolBar(mine, host.list(words("| open |")));
    QAction *const open = host.action(QStringLiteral("open"));

    host.manager.removeAction(open);
    QCOMPARE(standingOn(file), words("| | | save"));
    QCOMPARE(standingOn(edit), words("find | |"));
    QCOMPARE(standingOn(mine), words("| |"));
    QCOMPARE(contentOf(host.manager.actions(file)), words("| | | save"));
    QCOMPARE(contentOf(host.manager.actions(edit)), words("find | |"));
    QCOMPARE(contentOf(host.manager.actions(mine)), words("| |"));
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(file)), words("| | | save"));
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(edit)), words("find | |"));
    QCOMPARE(entryOf(host.manager, open), QStringLiteral("null"));
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("save find"));
}

void tst_RyToolBarManager_registry::removeActionKeepsSeparatorObjects()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("| open |"), A);
    const QPointer<QAction> first = file->actions().first();
    const QPointer<QAction> last = file->actions().last();
    host.manager.removeAction(host.action(QStringLiteral("open")));
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
    QAction *const open = host.registered(QStringLiteral("open"), A);
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
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open"), A);
    QToolBar *const edit = host.defaultToolBar(QStringLiteral("edit"), words("open"), A);
    host.manager.setToolBar(file, host.list(words("| open")));
    ActionLog log(file);
    log.watch(edit);
    host.manager.removeAction(host.action(QStringLiteral("open")));
    QCOMPARE(log.take(), words("edit-open file-open"));
}

void tst_RyToolBarManager_registry::removeActionChangesRecordsBeforeTheWidget()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open |"), A);
    QToolBar *const edit = host.defaultToolBar(QStringLiteral("edit"), words("find open"), A);
    QAction *const open = host.action(QStringLiteral("open"));
    ActionLog log(file);
    log.watch(edit);
    QList<QStringList> seen;
    log.atEach([&] {
        seen << contentOf(host.manager.actions(file)) << contentOf(host.manager.actions(edit))
             << contentOf(host.manager.defaultToolBars().value(file))
             << QStringList(entryOf(host.manager, open));
    });
    host.manager.removeAction(open);
    const QStringList registered(QStringLiteral("A registered listed"));
    QCOMPARE(seen,
             (QList<QStringList>{words("|"), words("find open"), words("open |"), registered,
                                 words("|"), words("find"), words("open |"), registered}));
}

void tst_RyToolBarManager_registry::removeActionLeavesOtherWidgetsAlone()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open"), A);
    QToolBar *const unmanaged = host.toolBar(QStringLiteral("other"), words("open |"));
    QMenu menu;
    menu.addAction(host.action(QStringLiteral("open")));
    host.manager.removeAction(host.action(QStringLiteral("open")));
    QCOMPARE(standingOn(file), QStringList());
    QCOMPARE(standingOn(unmanaged), words("open |"));
    QCOMPARE(standingOn(&menu), words("open"));
}

void tst_RyToolBarManager_registry::removeActionDoesNotDeleteTheAction()
{
    Host host;
    host.defaultToolBar(QStringLiteral("file"), words("open"), A);
    const QPointer<QAction> open = host.action(QStringLiteral("open"));
    host.manager.removeAction(open);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(open);
    QVERIFY(open->isEnabled());
}

void tst_RyToolBarManager_registry::resettingDoesNotBringARemovedActionBack()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open | save"), A);
    QAction *const open = host.action(QStringLiteral("open"));
    host.manager.removeAction(open);
    host.manager.addAction(open, A);
    host.manager.setToolBar(file, {});
    host.manager.resetToolBar(file);
    QCOMPARE(standingOn(file), words("| save"));
}

void tst_RyToolBarManager_registry::removeActionLeavesDefaultContentThatDoesNotStandOnTheToolBar()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open | save"), A);
    host.manager.setToolBar(file, host.list(words("save")));
    ActionLog log(file);
    host.manager.removeAction(host.action(QStringLiteral("open")));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(file)), words("| save"));
}

void tst_RyToolBarManager_registry::aRemovedActionMayBeRegisteredAgain()
{
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open"), A);
    QToolBar *const edit = host.defaultToolBar(QStringLiteral("edit"), words("find"), A);
    QAction *const open = host.action(QStringLiteral("open"));
    host.manager.removeAction(open);
    host.manager.addAction(open, B);
    QCOMPARE(entryOf(host.manager, open), QStringLiteral("B registered listed"));
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
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"), words("open | save"), A);
    QAction *const open = host.action(QStringLiteral("open"));
    host.manager.removeAction(open);
    file->addAction(open);
    host.manager.setToolBar(file, host.list(words("save")));
    QCOMPARE(standingOn(file), words("open save"));
    host.manager.removeAction(host.action(QStringLiteral("save")));
    delete host.action(QStringLiteral("save"));
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
    QAction *const open = host.registered(QStringLiteral("open"), category);
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
    host.manager.removeAction(host.action(QStringLiteral("save")));
    QCOMPARE(host.manager.categories(), words("A"));
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("open find"));
    QCOMPARE(sortedContentOf(host.manager.actions()), words("find open"));
}

void tst_RyToolBarManager_registry::removingAnActionOfAnEmptiedCategoryRemovesTheCategory()
{
    Host host;
    QAction *const open = host.registered(QStringLiteral("open"), A);
    QAction *const save = host.registered(QStringLiteral("save"), A);
    host.manager.addCategory(A);
    host.manager.removeAction(open);
    QVERIFY(!host.manager.hasCategory(A));
    QCOMPARE(entryOf(host.manager, save), QStringLiteral("A registered"));
}

void tst_RyToolBarManager_registry::removingAnActionOfAnEmptiedCategoryKeepsItsNewActions()
{
    Host host;
    QAction *const open = host.registered(QStringLiteral("open"), A);
    host.manager.addCategory(A);
    host.registered(QStringLiteral("save"), A);
    host.manager.removeAction(open);
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("save"));
    QVERIFY(host.manager.actionCategory(open).isNull());
}

void tst_RyToolBarManager_registry::removingAnActionWithoutACategoryCreatesNone()
{
    Host host;
    QAction *const open = host.registered(QStringLiteral("open"), A);
    QAction *const save = host.registered(QStringLiteral("save"), A);
    host.manager.addCategory(A);
    host.manager.removeAction(open);
    host.manager.removeAction(save);
    QCOMPARE(host.manager.categories(), QStringList());
    QVERIFY(host.manager.actions().isEmpty());
}

void tst_RyToolBarManager_registry::findActionByObjectName()
{
    Host host;
    const QStringList names = words("open save find");
    for (const QString &name : names)
        host.registered(name, A);
    for (const QString &name : names)
        QCOMPARE(host.manager.findAction(name), host.action(name));
}

void tst_RyToolBarManager_registry::findActionByTextPrintsOneWarning()
{
    Host host;
    QAction *const open = host.registered(QStringLiteral("open"), A);
    open->setText(QStringLiteral("&Open..."));
    QCOMPARE(host.manager.findAction(QStringLiteral("&Open...")), open);
    QCOMPARE(takeWarnings(), QStringList(notByName("&Open...")));
}

void tst_RyToolBarManager_registry::findActionOfAnUnknownNamePrintsTwoWarningsInOrder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("other") << QByteArray("paste");
    QTest::newRow("icon text and other case of the objectName") << QByteArray("Open");
    QTest::newRow("other case of the text") << QByteArray("open file");
    QTest::newRow("part") << QByteArray("ope");
    QTest::newRow("trailing blank") << QByteArray("open ");
    QTest::newRow("text without its mnemonic") << QByteArray("Open File");
    QTest::newRow("not of ASCII") << QByteArray("öffnen €");
    QTest::newRow("percent signs") << QByteArray("%s %1 %d");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("tool tip") << QByteArray("Tip");
}

void tst_RyToolBarManager_registry::findActionOfAnUnknownNamePrintsTwoWarningsInOrder()
{
    QFETCH(QByteArray, name);
    Host host;
    QAction *const open = host.registered(QStringLiteral("open"), A);
    open->setText(QStringLiteral("Open &File"));
    open->setIconText(QStringLiteral("Open"));
    open->setToolTip(QStringLiteral("Tip"));
    QVERIFY(!host.manager.findAction(QString::fromUtf8(name)));
    QCOMPARE(takeWarnings(), (QStringList{notByName(name), notByText(name)}));
}

void tst_RyToolBarManager_registry::findActionPrefersAnObjectNameToATextMetEarlier()
{
    Host host;
    // So many that the one in question is hardly the first of the set.
    for (int i = 0; i < 40; ++i)
        host.registered(QString::number(i), A)->setText(QStringLiteral("open"));
    QAction *const open = host.registered(QStringLiteral("open"), A);
    open->setText(QStringLiteral("other"));
    for (int i = 40; i < 80; ++i)
        host.registered(QString::number(i), A)->setText(QStringLiteral("open"));
    QCOMPARE(host.manager.findAction(QStringLiteral("open")), open);
}

void tst_RyToolBarManager_registry::findActionSearchesRegisteredActionsOnly()
{
    Host host;
    host.toolBar(QStringLiteral("other"), words("open"));
    host.manager.removeAction(host.registered(QStringLiteral("save"), A));
    QVERIFY(!host.manager.findAction(QStringLiteral("open")));
    QVERIFY(!host.manager.findAction(QStringLiteral("save")));
    QCOMPARE(
        takeWarnings(),
        (QStringList{notByName("open"), notByText("open"), notByName("save"), notByText("save")}));
}

void tst_RyToolBarManager_registry::findActionOfAnEmptyNameFindsANamelessAction_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("null") << QString();
}

void tst_RyToolBarManager_registry::findActionOfAnEmptyNameFindsANamelessAction()
{
    QFETCH(QString, name);
    Host host;
    host.registered(QStringLiteral("open"), A)->setText(QString());
    QAction nameless(QStringLiteral("Nameless"));
    host.manager.addAction(&nameless, A);
    QCOMPARE(host.manager.findAction(name), &nameless);
    host.manager.removeAction(&nameless);
}

void tst_RyToolBarManager_registry::findActionOfASharedNameFindsOneOfTheActions()
{
    Host host;
    QSet<QAction *> byName;
    QSet<QAction *> byText;
    for (int i = 0; i < 3; ++i) {
        QAction *const named = host.registered(QStringLiteral("n%1").arg(i), A);
        named->setObjectName(QStringLiteral("same"));
        byName.insert(named);
        QAction *const titled = host.registered(QStringLiteral("t%1").arg(i), A);
        titled->setText(QStringLiteral("Same"));
        byText.insert(titled);
    }
    QVERIFY(byName.contains(host.manager.findAction(QStringLiteral("same"))));
    QCOMPARE(takeWarnings(), QStringList());
    QVERIFY(byText.contains(host.manager.findAction(QStringLiteral("Same"))));
    QCOMPARE(takeWarnings(), QStringList(notByName("Same")));
}

void tst_RyToolBarManager_registry::warningsShowTheNameInTheLocalEncoding()
{
    Host host;
    const LocaleCodec latin1("ISO-8859-1");
    // In that encoding its two letters are the bytes that UTF-8 has for the one that is shown.
    host.manager.findAction(QStringLiteral("caf\u00c3\u00a9"));
    QCOMPARE(takeWarnings(), (QStringList{notByName("café"), notByText("café")}));
}

void tst_RyToolBarManager_registry::warningsHaveNoSourceLocation()
{
    Host host;
    host.manager.findAction(QStringLiteral("open"));
    QCOMPARE(takeLocatedWarnings(),
             (QStringList{QLatin1String(":0  ") + notByName("open"),
                          QLatin1String(":0  ") + notByText("open")}));
}

QTEST_MAIN(tst_RyToolBarManager_registry)

#include "tst_rytoolbarmanager_registry.moc"
