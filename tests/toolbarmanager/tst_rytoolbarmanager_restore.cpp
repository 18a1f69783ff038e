// SPDX-License-Identifier: MIT

#include "actionlog.h"
#include "filledhost.h"
#include "localecodec.h"
#include "namewarnings.h"
#include "statewriter.h"
#include "testcase.h"
#include "texts.h"
#include "toolbarlines.h"
#include "toolbarrecords.h"

#include <QChildEvent>
#include <QPointer>
#include <QtTest>

namespace {

const QString A = "A";

StateWriter version3()
{
    return StateWriter::ofVersion(3);
}

// An action without an objectName and without a text of its own making.
QAction *nameless(Host &host, const QString &text)
{
    QAction *const action = new QAction(text, &host.window);
    host.manager.addAction(action, A);
    return action;
}

// Each objectName that each child of a window receives, and what is put onto it, in order.
class CreationLog : public QObject
{
    Q_OBJECT

public:
    explicit CreationLog(QMainWindow *window)
        : m_window(window)
    {
        window->installEventFilter(this);
    }

    QStringList lines;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::ChildAdded) {
            QObject *const child = static_cast<QChildEvent *>(event)->child();
            if (child->parent() != m_window)
                return false;
            child->installEventFilter(this);
            connect(child, &QObject::objectNameChanged, this,
                    [this](const QString &objectName) { lines << objectName; });
        } else if (event->type() == QEvent::ActionAdded) {
            lines << "+";
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QMainWindow *const m_window;
};

} // namespace

class tst_RyToolBarManager_restore : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void restoringPutsTheContentBack();
    void restoringIntoAFreshHostGivesTheSameLayout();
    void restoringTakesRecordsInAnyOrder();
    void theLastOfSeveralRecordsOfAToolBarWins();
    void emptyNamesAreSeparators();
    void unknownActionsAreDropped();
    void repeatedActionsKeepTheFirst();
    void unknownDefaultToolBarsAreSkipped();
    void aDefaultRecordDoesNotFindACustomToolBar();
    void restoringFindsActionsLikeFindAction_data();
    void restoringFindsActionsLikeFindAction();
    void restoringFindsToolBarsLikeFindDefaultToolBar_data();
    void restoringFindsToolBarsLikeFindDefaultToolBar();
    void aCustomRecordChangesTheToolBarOfItsObjectName();
    void aCustomRecordDoesNotLookAtTitles();
    void aCustomRecordMayNameADefaultToolBar();
    void aCustomRecordCreatesAMissingToolBar();
    void customRecordsWithoutAMainWindowAreSkipped();
    void customRecordsWithoutAMainWindowChangeExistingToolBars();
    void anEmptyStoredObjectNameIsSet_data();
    void anEmptyStoredObjectNameIsSet();
    void anEmptyStoredObjectNameFindsANamelessToolBar();
    void customRecordsOfOneObjectNameMakeOneToolBar();
    void aCustomRecordChangesTheToolBarOfTheLowestAddress_data();
    void aCustomRecordChangesTheToolBarOfTheLowestAddress();
    void aCreatedToolBarIsNumberedThenNamedThenFilled_data();
    void aCreatedToolBarIsNumberedThenNamedThenFilled();
    void numbersContinueAfterManyRestoredToolBars();
    void titlesAreRestoredEvenIfEmpty();
    void otherCustomToolBarsKeepTheirContent();
    void restoringWarnsOfActionsBeforeTheirToolBar();
    void restoringShowsNamesInTheLocalEncoding();
    void restoredSeparatorsAreFreshOnes();
};

void tst_RyToolBarManager_restore::restoringPutsTheContentBack()
{
    FilledHost host;
    const QByteArray state = host.manager.saveState(3);
    host.manager.setToolBar(host.file, host.list(words("| find")));
    host.manager.setToolBar(host.mine, host.list(words("save save find")));
    host.mine->setWindowTitle("Renamed");
    QVERIFY(host.manager.restoreState(state, 3));
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(host.file)), words("open | save"));
}

void tst_RyToolBarManager_restore::restoringIntoAFreshHostGivesTheSameLayout()
{
    QByteArray state;
    QStringList layout;
    {
        FilledHost host;
        host.manager.createToolBar("Third");
        QToolBar *const last = host.manager.createToolBar("Fourth");
        host.manager.setToolBar(last, host.list(words("find | | save")));
        host.manager.setToolBar(host.file, host.list(words("| save |")));
        state = host.manager.saveState(3);
        layout = lines(host.manager);
    }
    Host fresh;
    fresh.defaultToolBar("file", words("find save open"), A);
    QVERIFY(fresh.manager.restoreState(state, 3));
    QCOMPARE(lines(fresh.manager), layout);
    QVERIFY(fresh.manager.restoreState(state, 3));
    QCOMPARE(lines(fresh.manager), layout);
}

void tst_RyToolBarManager_restore::restoringTakesRecordsInAnyOrder()
{
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 3);
    for (QToolBar *toolBar : toolBars)
        host.manager.addDefaultToolBar(toolBar, A);
    host.registered("open", A);
    host.registered("save", A);
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(3)
                                          .defaultToolBar("t2", words("|"))
                                          .defaultToolBar("t0", words("open"))
                                          .defaultToolBar("t1", words("save"))
                                          .customs(0)
                                          .bytes(),
                                      3));
    QCOMPARE(standingOn(toolBars.at(0)), words("open"));
    QCOMPARE(standingOn(toolBars.at(1)), words("save"));
    QCOMPARE(standingOn(toolBars.at(2)), words("|"));
}

void tst_RyToolBarManager_restore::theLastOfSeveralRecordsOfAToolBarWins()
{
    FilledHost host;
    ActionLog log(host.file);
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(2)
                                          .defaultToolBar("file", words("find"))
                                          .defaultToolBar("file", words("| save"))
                                          .customs(0)
                                          .bytes(),
                                      3));
    QCOMPARE(log.take(), words("file-open file-| file-save file+find file-find file+| file+save"));
}

void tst_RyToolBarManager_restore::emptyNamesAreSeparators()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(1)
                                          .defaultToolBar("file", {QString(), "", "open", ""})
                                          .customs(0)
                                          .bytes(),
                                      3));
    QCOMPARE(standingOn(host.file), words("| | open |"));
}

void tst_RyToolBarManager_restore::unknownActionsAreDropped()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(
        version3()
            .defaults(1)
            .defaultToolBar("file", words("first | save OPEN Open find last"))
            .customs(1)
            .customToolBar("_Custom_Toolbar_1", "Mine", words("only"))
            .bytes(),
        3));
    QCOMPARE(takeWarnings(),
             noAction("first") + noAction("OPEN") + first(noAction("Open")) + noAction("last")
                 + noAction("only"));
    QCOMPARE(lines(host.manager),
             (QStringList{"_Custom_Toolbar_1 'Mine': ", "default file 'File': | save open find"}));
}

void tst_RyToolBarManager_restore::repeatedActionsKeepTheFirst()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(
        version3()
            .defaults(1)
            .defaultToolBar("file", words("open | open save | save open"))
            .customs(1)
            .customToolBar("_Custom_Toolbar_1", "Mine", words("save save"))
            .bytes(),
        3));
    QCOMPARE(lines(host.manager),
             (QStringList{"_Custom_Toolbar_1 'Mine': save", "default file 'File': open | save |"}));
}

void tst_RyToolBarManager_restore::unknownDefaultToolBarsAreSkipped()
{
    FilledHost host;
    host.toolBar("other", words("find"));
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(4)
                                          .defaultToolBar("FILE", words("find"))
                                          .defaultToolBar("other", words("find |"))
                                          .defaultToolBar(QString(), words("|"))
                                          .defaultToolBar("file", words("save"))
                                          .customs(0)
                                          .bytes(),
                                      3));
    QCOMPARE(takeWarnings(), noToolBar("FILE") + noToolBar("other") + noToolBar(""));
    QCOMPARE(lines(host.manager),
             (QStringList{"_Custom_Toolbar_1 'Mine': | open", "default file 'File': save"}));
}

void tst_RyToolBarManager_restore::aDefaultRecordDoesNotFindACustomToolBar()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(2)
                                          .defaultToolBar("_Custom_Toolbar_1", words("find"))
                                          .defaultToolBar("Mine", words("find"))
                                          .customs(0)
                                          .bytes(),
                                      3));
    QCOMPARE(takeWarnings(), noToolBar("_Custom_Toolbar_1") + noToolBar("Mine"));
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
}

void tst_RyToolBarManager_restore::restoringFindsActionsLikeFindAction_data()
{
    QTest::addColumn<QString>("searched");
    QTest::newRow("objectName") << "open";
    QTest::newRow("text") << "Open";
    QTest::newRow("text of a nameless action") << "Nameless";
    QTest::newRow("objectName of one and text of others") << "both";
    QTest::newRow("objectName of several") << "same";
    QTest::newRow("text of several") << "Same";
    QTest::newRow("other case") << "oPEN";
    QTest::newRow("not of ASCII") << "öffnen";
    QTest::newRow("unknown") << "unknown";
}

void tst_RyToolBarManager_restore::restoringFindsActionsLikeFindAction()
{
    QFETCH(QString, searched);
    FilledHost host;
    nameless(host, "Nameless");
    nameless(host, "öffnen");
    for (int i = 0; i < 8; ++i) {
        nameless(host, "Same");
        nameless(host, "both");
        nameless(host, "Other")->setObjectName("same");
    }
    nameless(host, "Both")->setObjectName("both");
    QAction *const found = host.manager.findAction(searched);
    const QStringList warnings = takeWarnings();
    QVERIFY(host.manager.restoreState(
        version3().defaults(1).defaultToolBar("file", {searched}).customs(0).bytes(), 3));
    QCOMPARE(takeWarnings(), warnings);
    QCOMPARE(host.manager.actions(host.file), found ? QList<QAction *>{found} : QList<QAction *>());
}

void tst_RyToolBarManager_restore::restoringFindsToolBarsLikeFindDefaultToolBar_data()
{
    QTest::addColumn<QString>("searched");
    QTest::newRow("objectName") << "t3";
    QTest::newRow("title") << "T3";
    QTest::newRow("objectName of one and title of another") << "both";
    QTest::newRow("objectName of several") << "same";
    QTest::newRow("title of several") << "Same";
    QTest::newRow("other case") << "SAME";
    QTest::newRow("custom") << "_Custom_Toolbar_1";
    QTest::newRow("empty") << "";
}

void tst_RyToolBarManager_restore::restoringFindsToolBarsLikeFindDefaultToolBar()
{
    QFETCH(QString, searched);
    Host host;
    host.registered("open", A);
    host.manager.createToolBar("same");
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 10);
    for (const int i : {7, 3, 8, 2, 9, 6, 5, 4, 1, 0}) {
        toolBars.at(i)->setWindowTitle(i % 2 ? QString("T%1").arg(i) : "Same");
        host.manager.addDefaultToolBar(toolBars.at(i), A);
    }
    for (const int i : {9, 1, 5})
        toolBars.at(i)->setObjectName("same");
    toolBars.at(1)->setWindowTitle("both");
    toolBars.at(2)->setObjectName("both");
    toolBars.at(6)->setObjectName(QString());
    toolBars.at(7)->setObjectName(QString());
    QToolBar *const found = host.manager.findDefaultToolBar(searched);
    const QStringList warnings = takeWarnings();
    QVERIFY(host.manager.restoreState(
        version3().defaults(1).defaultToolBar(searched, words("open")).customs(0).bytes(), 3));
    QCOMPARE(takeWarnings(), warnings);
    QList<QToolBar *> filled;
    for (QToolBar *toolBar : toolBars) {
        if (!toolBar->actions().isEmpty())
            filled << toolBar;
    }
    QCOMPARE(filled, found ? QList<QToolBar *>{found} : QList<QToolBar *>());
}

void tst_RyToolBarManager_restore::aCustomRecordChangesTheToolBarOfItsObjectName()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(
        version3()
            .defaults(0)
            .customs(1)
            .customToolBar("_Custom_Toolbar_1", "Renamed €", words("find |"))
            .bytes(),
        3));
    QCOMPARE(
        lines(host.manager),
        (QStringList{"_Custom_Toolbar_1 'Renamed €': find |", "default file 'File': open | save"}));
    QVERIFY(host.manager.toolBars().contains(host.mine));
}

void tst_RyToolBarManager_restore::aCustomRecordDoesNotLookAtTitles()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(
        version3().defaults(0).customs(1).customToolBar("Mine", "Mine", {}).bytes(), 3));
    QCOMPARE(lines(host.manager),
             (QStringList{"Mine 'Mine': ", "_Custom_Toolbar_1 'Mine': | open",
                          "default file 'File': open | save"}));
}

void tst_RyToolBarManager_restore::aCustomRecordMayNameADefaultToolBar()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(1)
                                          .defaultToolBar("file", words("save"))
                                          .customs(1)
                                          .customToolBar("file", "Title", words("| find"))
                                          .bytes(),
                                      3));
    QCOMPARE(lines(host.manager),
             (QStringList{"_Custom_Toolbar_1 'Mine': | open", "default file 'Title': | find"}));
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(host.file)), words("open | save"));
    // Records of the default section would still find it by either name.
    QCOMPARE(host.manager.findDefaultToolBar("file"), host.file);
}

void tst_RyToolBarManager_restore::aCustomRecordCreatesAMissingToolBar()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(
        version3()
            .defaults(0)
            .customs(1)
            .customToolBar("theirs", "Theirs", words("open | open unknown"))
            .bytes(),
        3));
    QCOMPARE(takeWarnings(), noAction("unknown"));
    QToolBar *const made = host.manager.toolBarByName("theirs");
    QVERIFY(made);
    QCOMPARE(lines(host.manager),
             FilledHost::firstLines() + QStringList("theirs 'Theirs': open |"));
    QCOMPARE(made->parent(), static_cast<QObject *>(&host.window));
    QCOMPARE(host.window.toolBarArea(made), Qt::TopToolBarArea);
    QVERIFY(!host.manager.isDefaultToolBar(made));
    host.manager.deleteToolBar(made);
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
}

void tst_RyToolBarManager_restore::customRecordsWithoutAMainWindowAreSkipped()
{
    FilledHost host;
    host.manager.setMainWindow(nullptr);
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(0)
                                          .customs(2)
                                          .customToolBar("x", "X", words("unknown |"))
                                          .customToolBar("y", "Y", words("open"))
                                          .bytes(),
                                      3));
    QCOMPARE(takeWarnings(), noAction("unknown"));
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
    QCOMPARE(namesOf(host.window.findChildren<QToolBar *>()), words("file _Custom_Toolbar_1"));
}

void tst_RyToolBarManager_restore::customRecordsWithoutAMainWindowChangeExistingToolBars()
{
    FilledHost host;
    host.manager.setMainWindow(nullptr);
    QVERIFY(
        host.manager.restoreState(version3()
                                      .defaults(1)
                                      .defaultToolBar("file", words("find"))
                                      .customs(2)
                                      .customToolBar("x", "X", words("save"))
                                      .customToolBar("_Custom_Toolbar_1", "Renamed", words("save"))
                                      .bytes(),
                                  3));
    QCOMPARE(lines(host.manager),
             (QStringList{"_Custom_Toolbar_1 'Renamed': save", "default file 'File': find"}));
}

void tst_RyToolBarManager_restore::anEmptyStoredObjectNameIsSet_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
}

void tst_RyToolBarManager_restore::anEmptyStoredObjectNameIsSet()
{
    QFETCH(QString, stored);
    FilledHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(0)
                                          .customs(2)
                                          .customToolBar(stored, "X", words("open"))
                                          .customToolBar(stored, "Y", words("save |"))
                                          .bytes(),
                                      3));
    // The second record finds the toolbar of the first one.
    QCOMPARE(lines(host.manager), QStringList(" 'Y': save |") + FilledHost::firstLines());
}

void tst_RyToolBarManager_restore::anEmptyStoredObjectNameFindsANamelessToolBar()
{
    Host host;
    host.defaultToolBar(QString(), words("open"), A);
    QVERIFY(host.manager.restoreState(
        version3().defaults(0).customs(1).customToolBar(QString(), "X", words("|")).bytes(), 3));
    QCOMPARE(lines(host.manager), QStringList("default  'X': |"));
}

void tst_RyToolBarManager_restore::customRecordsOfOneObjectNameMakeOneToolBar()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(0)
                                          .customs(3)
                                          .customToolBar("x", "1", words("open"))
                                          .customToolBar("y", "2", words("save"))
                                          .customToolBar("x", "3", words("find"))
                                          .bytes(),
                                      3));
    QCOMPARE(lines(host.manager),
             (FilledHost::firstLines() + QStringList{"x '3': find", "y '2': save"}));
}

void tst_RyToolBarManager_restore::aCustomRecordChangesTheToolBarOfTheLowestAddress_data()
{
    QTest::addColumn<QList<int>>("registered");
    QTest::newRow("lowest first") << QList<int>{0, 1, 2};
    QTest::newRow("lowest last") << QList<int>{2, 1, 0};
}

void tst_RyToolBarManager_restore::aCustomRecordChangesTheToolBarOfTheLowestAddress()
{
    QFETCH(QList<int>, registered);
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 3);
    for (const int i : std::as_const(registered)) {
        toolBars.at(i)->setObjectName("same");
        toolBars.at(i)->setWindowTitle(QString::number(i));
        host.manager.addDefaultToolBar(toolBars.at(i), A);
    }
    QVERIFY(host.manager.restoreState(
        version3().defaults(0).customs(1).customToolBar("same", "X", {}).bytes(), 3));
    QStringList titles;
    for (const QToolBar *toolBar : toolBars)
        titles << toolBar->windowTitle();
    QCOMPARE(titles, words("X 1 2"));
}

void tst_RyToolBarManager_restore::aCreatedToolBarIsNumberedThenNamedThenFilled_data()
{
    QTest::addColumn<QStringList>("existing");
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("log");
    QTest::newRow("alone") << QStringList() << words("x y")
                           << words("_Custom_Toolbar_1 x + _Custom_Toolbar_1 y +");
    QTest::newRow("beside others")
        << words("_Custom_Toolbar_1 _Custom_Toolbar_3") << words("x _Custom_Toolbar_4 y")
        << words("_Custom_Toolbar_2 x + _Custom_Toolbar_2 _Custom_Toolbar_4 + "
                 "_Custom_Toolbar_2 y +");
    QTest::newRow("takes the free number")
        << words("_Custom_Toolbar_1 _Custom_Toolbar_3") << words("x _Custom_Toolbar_2 y")
        << words("_Custom_Toolbar_2 x + _Custom_Toolbar_2 + _Custom_Toolbar_4 y +");
    QTest::newRow("in falling order")
        << QStringList() << words("_Custom_Toolbar_2 _Custom_Toolbar_1 x")
        << words("_Custom_Toolbar_1 _Custom_Toolbar_2 + _Custom_Toolbar_1 + _Custom_Toolbar_3 x +");
}

void tst_RyToolBarManager_restore::aCreatedToolBarIsNumberedThenNamedThenFilled()
{
    QFETCH(QStringList, existing);
    QFETCH(QStringList, stored);
    QFETCH(QStringList, log);
    Host host;
    for (const QString &each : std::as_const(existing))
        host.defaultToolBar(each, QStringList(), A);
    host.registered("open", A);
    StateWriter writer = version3().defaults(0).customs(stored.size());
    for (const QString &each : std::as_const(stored))
        writer.customToolBar(each, QString(), words("open"));
    CreationLog creations(&host.window);
    QVERIFY(host.manager.restoreState(writer.bytes(), 3));
    QCOMPARE(creations.lines, log);
}

void tst_RyToolBarManager_restore::numbersContinueAfterManyRestoredToolBars()
{
    const int count = 200;
    Host host;
    host.registered("open", A);
    QToolBar *const first = host.manager.createToolBar("Mine");
    const QString numbered = "_Custom_Toolbar_%1";
    StateWriter writer = version3().defaults(0).customs(count);
    QStringList expected;
    for (int i = count; i > 0; --i) {
        if (i == 77)
            writer.customToolBar("other", "77", words("open"));
        else
            writer.customToolBar(numbered.arg(i), QString::number(i), words("open"));
        expected << (i == 77 ? "other '77': open"
                             : numbered.arg(i) + QString(" '%1': open").arg(i));
    }
    expected.sort();
    QVERIFY(host.manager.restoreState(writer.bytes(), 3));
    QCOMPARE(lines(host.manager), expected);
    QCOMPARE(host.manager.toolBarByName(numbered.arg(1)), first);
    QCOMPARE(host.manager.createToolBar(QString())->objectName(), numbered.arg(77));
    QCOMPARE(host.manager.createToolBar(QString())->objectName(), numbered.arg(count + 1));
}

void tst_RyToolBarManager_restore::titlesAreRestoredEvenIfEmpty()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(0)
                                          .customs(2)
                                          .customToolBar("_Custom_Toolbar_1", QString(), {})
                                          .customToolBar("file", "", {})
                                          .bytes(),
                                      3));
    QCOMPARE(lines(host.manager), (QStringList{"_Custom_Toolbar_1 '': ", "default file '': "}));
}

void tst_RyToolBarManager_restore::otherCustomToolBarsKeepTheirContent()
{
    FilledHost host;
    const QList<QAction *> standing = host.mine->actions();
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(1)
                                          .defaultToolBar("file", {})
                                          .customs(1)
                                          .customToolBar("x", "X", {})
                                          .bytes(),
                                      3));
    QCOMPARE(lines(host.manager),
             (QStringList{"_Custom_Toolbar_1 'Mine': | open", "default file 'File': ", "x 'X': "}));
    QCOMPARE(host.mine->actions(), standing);
}

void tst_RyToolBarManager_restore::restoringWarnsOfActionsBeforeTheirToolBar()
{
    FilledHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(2)
                                          .defaultToolBar("x", words("a Open b"))
                                          .defaultToolBar("File", words("c"))
                                          .customs(1)
                                          .customToolBar("y", "Y", words("d Save"))
                                          .bytes(),
                                      3));
    QCOMPARE(takeLocatedWarnings().replaceInStrings(":0  ", QString()),
             noAction("a") + first(noAction("Open")) + noAction("b") + noToolBar("x")
                 + noAction("c") + first(noToolBar("File")) + noAction("d")
                 + first(noAction("Save")));
}

void tst_RyToolBarManager_restore::restoringShowsNamesInTheLocalEncoding()
{
    FilledHost host;
    const QString twoLetters = "\u00c3\u00a9";
    const LocaleCodec latin1("ISO-8859-1");
    QVERIFY(host.manager.restoreState(
        version3().defaults(1).defaultToolBar(twoLetters, {twoLetters}).customs(0).bytes(), 3));
    const QString shown = LocaleCodec::shown(twoLetters);
    QCOMPARE(takeWarnings(), noAction(shown) + noToolBar(shown));
}

void tst_RyToolBarManager_restore::restoredSeparatorsAreFreshOnes()
{
    FilledHost host;
    const QPointer<QAction> separator = host.file->actions().at(1);
    const QPointer<QAction> kept = host.mine->actions().at(0);
    QVERIFY(host.manager.restoreState(
        version3().defaults(1).defaultToolBar("file", words("save |")).customs(0).bytes(), 3));
    QVERIFY(!separator);
    QVERIFY(kept);
    QCOMPARE(standingOn(host.file), words("save |"));
}

QTEST_MAIN(tst_RyToolBarManager_restore)

#include "tst_rytoolbarmanager_restore.moc"
