// SPDX-License-Identifier: MIT

#include "actionlog.h"
#include "host.h"
#include "testcase.h"
#include "texts.h"
#include "toolbarrecords.h"

#include <QLineEdit>
#include <QPointer>
#include <QtTest>

#include <memory>

namespace {

const QString A = "A";
const QString B = "B";

} // namespace

class tst_RyToolBarManager_customtoolbars : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
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
    void removeDefaultToolBarLeavesWidgetActionsToTheirToolBar();
    void deleteToolBarIgnoresOtherToolBars_data();
    void deleteToolBarIgnoresOtherToolBars();
    void removeDefaultToolBarLeavesDefaultToolBarsAlone();
    void removeDefaultToolBarLeavesUnmanagedToolBarsAlone_data();
    void removeDefaultToolBarLeavesUnmanagedToolBarsAlone();
    void removeDefaultToolBarEmptiesAndForgetsACustomToolBar();
    void aForgottenToolBarMayBecomeADefaultToolBar();
};

void tst_RyToolBarManager_customtoolbars::createToolBarMakesAnEmptyCustomToolBar()
{
    Host host;
    host.registered("open", A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    QVERIFY(mine);
    QCOMPARE(mine->windowTitle(), QString("Mine"));
    QCOMPARE(mine->objectName(), QString("_Custom_Toolbar_1"));
    QCOMPARE(mine->parent(), static_cast<QObject *>(&host.window));
    QCOMPARE(host.window.toolBarArea(mine), Qt::TopToolBarArea);
    QVERIFY(!mine->isHidden());
    QCOMPARE(recordOf(host, mine), words("/ / / custom"));
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{mine});
    QVERIFY(host.manager.defaultToolBars().isEmpty());
    QCOMPARE(host.manager.toolBarByName("_Custom_Toolbar_1"), mine);
}

void tst_RyToolBarManager_customtoolbars::createToolBarTakesAnyTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("of another toolbar") << "File";
    QTest::newRow("not of ASCII") << "Für €";
    QTest::newRow("like an objectName") << "_Custom_Toolbar_1";
}

void tst_RyToolBarManager_customtoolbars::createToolBarTakesAnyTitle()
{
    QFETCH(QString, title);
    Host host;
    host.defaultToolBar("file", QStringList(), A);
    QToolBar *const first = host.manager.createToolBar(title);
    QToolBar *const second = host.manager.createToolBar(title);
    QCOMPARE(first->windowTitle(), title);
    QCOMPARE(second->windowTitle(), title);
    QCOMPARE(namesOf({first, second}), words("_Custom_Toolbar_1 _Custom_Toolbar_2"));
}

void tst_RyToolBarManager_customtoolbars::createToolBarWithoutAMainWindowCreatesNothing()
{
    RyToolBarManager manager;
    QVERIFY(!manager.createToolBar("Mine"));
    QVERIFY(manager.toolBars().isEmpty());

    Host host;
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setMainWindow(nullptr);
    QVERIFY(!host.manager.createToolBar("Yours"));
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{mine});
    // TestCase fails on a widget that was left behind.
}

void tst_RyToolBarManager_customtoolbars::createToolBarAppendsToTheTopArea()
{
    Host host;
    host.toolBar("file", words("open"));
    host.window.addToolBar(Qt::LeftToolBarArea, new QToolBar(&host.window));
    QToolBar *const last = host.toolBar("edit", words("find"));
    QToolBar *const mine = host.manager.createToolBar("Mine");
    QToolBar *const yours = host.manager.createToolBar("Yours");
    host.registered("save", A);
    host.manager.setToolBar(mine, host.list(words("save")));
    host.window.resize(600, 400);
    host.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host.window));
    QVERIFY(last->x() < mine->x());
    QVERIFY(mine->x() < yours->x());
    QCOMPARE(mine->y(), last->y());
    QVERIFY(mine->isVisible());
}

void tst_RyToolBarManager_customtoolbars::createToolBarUsesTheWindowOfTheMoment()
{
    QMainWindow other;
    Host host;
    QToolBar *const first = host.manager.createToolBar("Mine");
    host.manager.setMainWindow(&other);
    QToolBar *const second = host.manager.createToolBar("Yours");
    QCOMPARE(first->parent(), static_cast<QObject *>(&host.window));
    QCOMPARE(second->parent(), static_cast<QObject *>(&other));
    QCOMPARE(other.toolBarArea(second), Qt::TopToolBarArea);
    // Both are managed, so that both names are looked at.
    QCOMPARE(namesOf({first, second}), words("_Custom_Toolbar_1 _Custom_Toolbar_2"));
}

void tst_RyToolBarManager_customtoolbars::createToolBarTakesTheFirstFreeNumber_data()
{
    QTest::addColumn<QStringList>("existing");
    QTest::addColumn<QString>("created");
    const auto row = [](const char *existing, const char *number) {
        QStringList names;
        const QStringList numbers = QString::fromUtf8(existing).split(',');
        for (const QString &each : numbers)
            names << "_Custom_Toolbar_" + each;
        QTest::newRow(existing) << names << "_Custom_Toolbar_" + QString(number);
    };
    QTest::newRow("none") << QStringList() << "_Custom_Toolbar_1";
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
    row(" 1", "1");
    row("1a", "1");
    row("\u0661", "1");
    // The lowest bits of the first are a one.
    row("4294967297", "1");
    row("99999999999999999999", "1");
    QTest::newRow("other case") << words("_custom_toolbar_1") << "_Custom_Toolbar_1";
    QTest::newRow("longer prefix") << words("x_Custom_Toolbar_1") << "_Custom_Toolbar_1";
}

void tst_RyToolBarManager_customtoolbars::createToolBarTakesTheFirstFreeNumber()
{
    QFETCH(QStringList, existing);
    QFETCH(QString, created);
    Host defaults;
    Host customs;
    Host strangers;
    for (const QString &each : std::as_const(existing)) {
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
    // Unmanaged toolbars and titles are not looked at.
    QCOMPARE(strangers.manager.createToolBar(QString())->objectName(),
             QString("_Custom_Toolbar_1"));
}

void tst_RyToolBarManager_customtoolbars::createToolBarLooksAtTheNamesOfTheMoment()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", QStringList(), A);
    QToolBar *const first = host.manager.createToolBar(QString());
    file->setObjectName("_Custom_Toolbar_2");
    QCOMPARE(host.manager.createToolBar(QString())->objectName(), QString("_Custom_Toolbar_3"));
    first->setObjectName("mine");
    QCOMPARE(host.manager.createToolBar(QString())->objectName(), QString("_Custom_Toolbar_1"));
    file->setObjectName("file");
    QCOMPARE(host.manager.createToolBar(QString())->objectName(), QString("_Custom_Toolbar_2"));
}

void tst_RyToolBarManager_customtoolbars::numbersOfDeletedToolBarsAreUsedAgain()
{
    Host host;
    host.manager.createToolBar("One");
    QToolBar *const second = host.manager.createToolBar("Two");
    host.manager.createToolBar("Three");
    host.manager.deleteToolBar(second);
    QCOMPARE(host.manager.createToolBar("Again")->objectName(), QString("_Custom_Toolbar_2"));
    QCOMPARE(host.manager.createToolBar("Next")->objectName(), QString("_Custom_Toolbar_4"));
}

void tst_RyToolBarManager_customtoolbars::numbersOfForgottenToolBarsAreUsedAgain()
{
    Host host;
    QToolBar *const first = host.manager.createToolBar("One");
    host.manager.removeDefaultToolBar(first);
    QToolBar *const second = host.manager.createToolBar("Two");
    QCOMPARE(namesOf({first, second}), words("_Custom_Toolbar_1 _Custom_Toolbar_1"));
}

void tst_RyToolBarManager_customtoolbars::deleteToolBarDeletesTheWidgetAndItsSeparators()
{
    Host host;
    host.registered("open", A);
    const QPointer<QToolBar> mine = host.manager.createToolBar("Mine");
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
    QVERIFY(!host.manager.toolBarByName("_Custom_Toolbar_1"));
    QVERIFY(host.window.findChildren<QToolBar *>().isEmpty());
}

void tst_RyToolBarManager_customtoolbars::deleteToolBarTakesTheActionsOffFirst()
{
    Host host;
    host.registered("open", A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    mine->setObjectName("mine");
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

void tst_RyToolBarManager_customtoolbars::deleteToolBarLeavesTheActionsAndOtherToolBars()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open |"), A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    QToolBar *const yours = host.manager.createToolBar("Yours");
    host.manager.setToolBar(mine, host.list(words("open |")));
    host.manager.setToolBar(yours, host.list(words("| open")));
    ActionLog log(file);
    log.watch(yours);
    host.manager.deleteToolBar(mine);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(recordOf(host, file), words("open | / open | / open | / default"));
    QCOMPARE(recordOf(host, yours), words("| open / | open / / custom"));
    // The deleted toolbar is not visited any more.
    host.manager.removeAction(host.action("open"));
    QCOMPARE(log.take(), words("file-open _Custom_Toolbar_2-open"));
}

void tst_RyToolBarManager_customtoolbars::deleteToolBarLeavesWhatTheHostPlaced()
{
    Host host;
    QToolBar *const mine = host.manager.createToolBar("Mine");
    const QPointer<QAction> stranger = host.action("stranger");
    QAction bar;
    bar.setSeparator(true);
    const QPointer<QAction> guard(&bar);
    mine->addAction(stranger);
    mine->addAction(&bar);
    host.manager.deleteToolBar(mine);
    QVERIFY(stranger);
    QVERIFY(guard);
}

void tst_RyToolBarManager_customtoolbars::theWidgetOfADeletedToolBarReturns()
{
    Host host;
    QToolBar *const file = host.toolBar("file");
    const QPointer<QWidget> box = new QLineEdit;
    QAction *const boxAction = file->addWidget(box);
    boxAction->setObjectName("box");
    host.manager.addDefaultToolBar(file, A);
    host.window.show();
    host.manager.setToolBar(file, {});
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, {boxAction});
    QCOMPARE(mine->widgetForAction(boxAction), box.data());
    host.manager.deleteToolBar(mine);
    QVERIFY(box);
    QCOMPARE(boxAction->parent(), file);
    host.manager.resetToolBar(file);
    QCOMPARE(file->widgetForAction(boxAction), box.data());
    QTRY_VERIFY(box->isVisible());
}

void tst_RyToolBarManager_customtoolbars::widgetsOfADeletedToolBarReturnToTheirOwnToolBars()
{
    Host host;
    QList<QObject *> toolBars;
    QList<QAction *> boxes;
    for (const char *title : {"File", "Edit", "View"}) {
        QToolBar *const toolBar = host.toolBar(QString(title));
        toolBars << toolBar;
        boxes << toolBar->addWidget(new QLineEdit);
        host.manager.addDefaultToolBar(toolBar, A);
    }
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, boxes);
    host.manager.deleteToolBar(mine);
    QList<QObject *> owners;
    for (const QAction *box : std::as_const(boxes))
        owners << box->parent();
    QCOMPARE(owners, toolBars);
}

void tst_RyToolBarManager_customtoolbars::aWidgetActionOutlivesItsToolBars()
{
    Host host;
    std::unique_ptr<QToolBar> other(new QToolBar);
    QPointer<QAction> box = other->addWidget(new QLineEdit);
    box->setObjectName("box");
    host.manager.addAction(box, A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, {box});
    other.reset();
    host.manager.deleteToolBar(mine);
    QVERIFY(box);
    QCOMPARE(box->parent(), &host.window);
    host.manager.removeAction(box);
}

void tst_RyToolBarManager_customtoolbars::removeDefaultToolBarLeavesWidgetActionsToTheirToolBar()
{
    Host host;
    QToolBar *const mine = host.manager.createToolBar("Mine");
    QAction *const box = mine->addWidget(new QLineEdit);
    box->setObjectName("box");
    host.manager.addAction(box, A);
    host.manager.setToolBar(mine, {box});
    host.manager.removeDefaultToolBar(mine);
    QCOMPARE(box->parent(), mine);
    host.manager.removeAction(box);
}

void tst_RyToolBarManager_customtoolbars::deleteToolBarIgnoresOtherToolBars_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::newRow("null") << "null";
    QTest::newRow("default") << "file";
    QTest::newRow("unmanaged") << "other";
    QTest::newRow("forgotten") << "forgotten";
}

void tst_RyToolBarManager_customtoolbars::deleteToolBarIgnoresOtherToolBars()
{
    QFETCH(QString, toolBar);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
    host.manager.setToolBar(file, host.list(words("save |")));
    QToolBar *const other = host.toolBar("other", words("open |"));
    QToolBar *const forgotten = host.manager.createToolBar("Mine");
    forgotten->setObjectName("forgotten");
    host.manager.removeDefaultToolBar(forgotten);
    forgotten->addAction(host.action("open"));
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
void tst_RyToolBarManager_customtoolbars::removeDefaultToolBarLeavesDefaultToolBarsAlone()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open | save"), A);
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

void tst_RyToolBarManager_customtoolbars::removeDefaultToolBarLeavesUnmanagedToolBarsAlone_data()
{
    QTest::addColumn<bool>("null");
    QTest::newRow("null") << true;
    QTest::newRow("unmanaged") << false;
}

void tst_RyToolBarManager_customtoolbars::removeDefaultToolBarLeavesUnmanagedToolBarsAlone()
{
    QFETCH(bool, null);
    Host host;
    host.registered("open", A);
    QToolBar *const other = host.toolBar("other", words("open | save"));
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

void tst_RyToolBarManager_customtoolbars::removeDefaultToolBarEmptiesAndForgetsACustomToolBar()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    const QPointer<QToolBar> mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, host.list(words("| open |")));
    mine->addAction(host.action("stranger"));
    const QList<QPointer<QAction>> guards = guarded(mine->actions());
    host.manager.removeDefaultToolBar(mine);
    QVERIFY(mine);
    QCOMPARE(fatesOf(guards), words("deleted alive deleted alive"));
    QCOMPARE(recordOf(host, mine), words("/ stranger / / unmanaged"));
    QCOMPARE(mine->windowTitle(), QString("Mine"));
    QCOMPARE(host.window.toolBarArea(mine), Qt::TopToolBarArea);
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{file});
    QCOMPARE(host.manager.defaultToolBars().keys(), QList<QToolBar *>{file});
    QCOMPARE(contentOf(host.manager.categoryActions(A)), words("open"));
    QCOMPARE(standingOn(file), words("open"));
    host.manager.setToolBar(mine, host.list(words("open")));
    QCOMPARE(standingOn(mine), words("stranger"));
}

void tst_RyToolBarManager_customtoolbars::aForgottenToolBarMayBecomeADefaultToolBar()
{
    Host host;
    host.registered("open", A);
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, host.list(words("| open")));
    host.manager.removeDefaultToolBar(mine);
    mine->addAction(host.action("save"));
    host.manager.addDefaultToolBar(mine, B);
    QCOMPARE(recordOf(host, mine), words("save / save / save / default"));
}

QTEST_MAIN(tst_RyToolBarManager_customtoolbars)

#include "tst_rytoolbarmanager_customtoolbars.moc"
