// SPDX-License-Identifier: MIT

#include "actionlog.h"
#include "host.h"
#include "localecodec.h"
#include "savedlayout.h"
#include "statewriter.h"
#include "testcase.h"
#include "texts.h"
#include "toolbarlines.h"
#include "toolbarorder.h"

#include <QBuffer>
#include <QChildEvent>
#include <QDataStream>
#include <QPointer>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <limits>

namespace {

const QString A = QStringLiteral("A");

QString name(const char *text)
{
    return QString::fromUtf8(text);
}

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

StateWriter version3()
{
    return StateWriter::ofVersion(3);
}

QString address(const void *object)
{
    return QLatin1String("0x") + QString::number(reinterpret_cast<quintptr>(object), 16);
}

QString namelessToolBar(const QToolBar *toolBar, const QString &title)
{
    return QStringLiteral("RyToolBarManager::saveState(): 'objectName' not set for QToolBar %1 "
                          "'%2', using 'windowTitle' instead")
        .arg(address(toolBar), title);
}

QString namelessAction(const QAction *action, const QString &text)
{
    return QStringLiteral("RyToolBarManager::saveState(): 'objectName' not set for QAction %1 "
                          "'%2', using 'text' instead")
        .arg(address(action), text);
}

QStringList notFound(const char *className, const char *property, const QString &name)
{
    return {QStringLiteral("RyToolBarManager::restoreState(): cannot find a %1 named '%3', "
                           "trying to match using '%2' instead.")
                .arg(QLatin1String(className), QLatin1String(property), name),
            QStringLiteral("RyToolBarManager::restoreState(): cannot find a %1 with matching "
                           "'%2' (looking for '%3').")
                .arg(QLatin1String(className), QLatin1String(property), name)};
}

// Both warnings of a name that nothing bears; the first one alone if a text or a title matches.
QStringList noAction(const char *searched)
{
    return notFound("QAction", "text", name(searched));
}

QStringList noToolBar(const char *searched)
{
    return notFound("QToolBar", "windowTitle", name(searched));
}

QStringList first(const QStringList &warnings)
{
    return {warnings.constFirst()};
}

// An action without an objectName and without a text of its own making.
QAction *nameless(Host &host, const QString &text)
{
    QAction *const action = new QAction(text, &host.window);
    host.manager.addAction(action, A);
    return action;
}

QList<QAction *> standingOnAll(const Host &host)
{
    QList<QAction *> standing;
    const auto toolBars = host.manager.toolBars();
    for (const QToolBar *toolBar : toolBars)
        standing << toolBar->actions();
    return standing;
}

// A host whose "file" holds "open | save", and a custom toolbar "Mine" with "| open".
class UsualHost : public Host
{
public:
    UsualHost()
        : file(defaultToolBar(name("file"), words("open | save"), A))
        , mine(manager.createToolBar(name("Mine")))
    {
        registered(name("find"), A);
        manager.setToolBar(mine, list(words("| open")));
    }

    QToolBar *const file;
    QToolBar *const mine;
};

QStringList usualLayout()
{
    return {name("_Custom_Toolbar_1 'Mine': | open"), name("default file 'File': open | save")};
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
            lines << QStringLiteral("+");
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QMainWindow *const m_window;
};

// Everything that the message logger passes on with a text.
QStringList messageContexts;

void recordContext(QtMsgType type, const QMessageLogContext &context, const QString &)
{
    messageContexts << QStringLiteral("%1 %2 %3 %4 %5")
                           .arg(QString::number(type), QLatin1String(context.category),
                                QLatin1String(context.file ? context.file : "null"),
                                QString::number(context.line),
                                QLatin1String(context.function ? context.function : "null"));
}

} // namespace

class tst_RyToolBarManager_state : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aStateWithoutToolBarsHas18Bytes_data();
    void aStateWithoutToolBarsHas18Bytes();
    void theBytesOfDefaultToolBars();
    void theBytesOfACustomToolBar();
    void theBytesOfANamelessCustomToolBar();
    void theBytesOfDefaultAndCustomToolBarsRestoreForEver();

    void theCurrentContentIsSaved();
    void defaultToolBarsAreSavedInTheOrderOfTheirAddresses();
    void customToolBarsAreSavedInTheOrderOfTheirAddresses();
    void anActionWithoutNameAndTextIsSavedAsASeparator();
    void savingWarnsOfNamelessToolBarsAndActionsInOrder();
    void savingWarnsOfANamelessActionEachTime();
    void savingDoesNotWarnOfANamelessCustomToolBar();
    void savingShowsNamesInTheLocalEncoding();
    void savingChangesNothing();
    void saveStateDataWritesTheSectionsOnly();
    void saveStateDataUsesTheStreamAsItIs();
    void everyWarningIsOneOfTheDefaultCategoryWithoutALocation();

    void restoringAnUnchangedStateTouchesNothing_data();
    void restoringAnUnchangedStateTouchesNothing();
    void restoringRefusesAnotherVersion_data();
    void restoringRefusesAnotherVersion();
    void restoringRefusesOtherBytes_data();
    void restoringRefusesOtherBytes();
    void restoringRefusesAnotherDefaultMarker_data();
    void restoringRefusesAnotherDefaultMarker();
    void anotherCustomMarkerLeavesTheDefaultToolBarsChanged_data();
    void anotherCustomMarkerLeavesTheDefaultToolBarsChanged();
    void restoringIgnoresTrailingBytes();
    void restoringDoesNotConsultTheStatusOfTheStream();
    void restoreStateDataReadsTheSectionsOnly();
    void countsOfZeroAndLessReadNothing_data();
    void countsOfZeroAndLessReadNothing();

    void restoringPutsTheContentBack();
    void restoringIntoAFreshHostGivesTheSameLayout();
    void restoringTakesRecordsInAnyOrder();
    void theLastOfSeveralRecordsOfAToolBarCounts();
    void emptyNamesAreSeparators();
    void unknownActionsAreDropped();
    void unregisteredActionsAreUnknown();
    void repeatedActionsKeepTheFirst();
    void unknownDefaultToolBarsAreSkipped();
    void aDefaultRecordDoesNotFindACustomToolBar();
    void aNamelessDefaultToolBarIsFoundByItsTitle();
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
    void savingAndRestoringEmitsNoSignal();
};

void tst_RyToolBarManager_state::aStateWithoutToolBarsHas18Bytes_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("0") << 0 << hex("00000000");
    QTest::newRow("3") << 3 << hex("00000003");
    QTest::newRow("-1") << -1 << hex("ffffffff");
    QTest::newRow("-2") << -2 << hex("fffffffe");
    QTest::newRow("255") << 255 << hex("000000ff");
    QTest::newRow("highest") << std::numeric_limits<int>::max() << hex("7fffffff");
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << hex("80000000");
}

void tst_RyToolBarManager_state::aStateWithoutToolBarsHas18Bytes()
{
    QFETCH(int, version);
    QFETCH(QByteArray, written);
    Host host;
    host.registered(name("open"), A);
    host.toolBar(name("unmanaged"), words("open"));
    const QByteArray state = host.manager.saveState(version);
    QCOMPARE(state.toHex(), (hex("000000ff") + written + hex("fe00000000 fd00000000")).toHex());
    QCOMPARE(state.size(), 18);
    QVERIFY(host.manager.restoreState(state, version));
    QVERIFY(!host.manager.restoreState(state, version == 1 ? 2 : 1));
}

void tst_RyToolBarManager_state::theBytesOfDefaultToolBars()
{
    Host host;
    QAction *const say = nameless(host, name("Say"));
    QAction *const empty = nameless(host, QString());
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 2);
    toolBars.at(0)->setObjectName(name("file"));
    toolBars.at(0)->setWindowTitle(name("File"));
    toolBars.at(1)->setObjectName(QString());
    toolBars.at(1)->setWindowTitle(name("F€"));
    host.manager.addDefaultToolBar(toolBars.at(1), A);
    host.manager.addDefaultToolBar(toolBars.at(0), A);
    host.registered(name("open"), A);
    host.manager.setToolBar(toolBars.at(0),
                            {host.action(name("open")), nullptr, nullptr, say, empty});
    QCOMPARE(host.manager.saveState(3).toHex(),
             hex("000000ff 00000003"
                 "fe 00000002"
                 "00000008 0066 0069 006c 0065"
                 "00000005"
                 "00000008 006f 0070 0065 006e"
                 "ffffffff"
                 "ffffffff"
                 "00000006 0053 0061 0079"
                 "ffffffff"
                 "00000004 0046 20ac"
                 "00000000"
                 "fd 00000000")
                 .toHex());
    QCOMPARE(takeWarnings().size(), 3);
}

void tst_RyToolBarManager_state::theBytesOfACustomToolBar()
{
    UsualHost host;
    QCOMPARE(host.manager.saveState(-1).toHex(),
             hex("000000ff ffffffff"
                 "fe 00000001"
                 "00000008 0066 0069 006c 0065"
                 "00000003"
                 "00000008 006f 0070 0065 006e"
                 "ffffffff"
                 "00000008 0073 0061 0076 0065"
                 "fd 00000001"
                 "00000022 005f 0043 0075 0073 0074 006f 006d 005f 0054 006f 006f 006c 0062 0061"
                 "0072 005f 0031"
                 "00000008 004d 0069 006e 0065"
                 "00000002"
                 "ffffffff"
                 "00000008 006f 0070 0065 006e")
                 .toHex());
}

void tst_RyToolBarManager_state::theBytesOfANamelessCustomToolBar()
{
    Host host;
    QToolBar *const mine = host.manager.createToolBar(QString());
    mine->setObjectName(QStringLiteral(""));
    QCOMPARE(host.manager.saveState(3).toHex(),
             hex("000000ff 00000003 fe 00000000 fd 00000001 00000000 ffffffff 00000000").toHex());
    mine->setWindowTitle(name("M"));
    QCOMPARE(
        host.manager.saveState(3).toHex(),
        hex("000000ff 00000003 fe 00000000 fd 00000001 00000000 00000002 004d 00000000").toHex());
}

void tst_RyToolBarManager_state::theBytesOfDefaultAndCustomToolBarsRestoreForEver()
{
    Host host;
    host.defaultToolBar(name("file"), words("save open"), A);
    QVERIFY(host.manager.restoreState(hex("000000ff 00000003"
                                          "fe 00000001"
                                          "00000008 0066 0069 006c 0065"
                                          "00000003"
                                          "00000008 006f 0070 0065 006e"
                                          "ffffffff"
                                          "00000008 0073 0061 0076 0065"
                                          "fd 00000001"
                                          "00000004 006d 0031"
                                          "00000004 004d 20ac"
                                          "00000002"
                                          "00000000"
                                          "00000008 006f 0070 0065 006e"),
                                      3));
    QCOMPARE(lines(host.manager),
             (QStringList{name("default file 'File': open | save"), name("m1 'M€': | open")}));
}

void tst_RyToolBarManager_state::theCurrentContentIsSaved()
{
    UsualHost host;
    host.manager.setToolBar(host.file, host.list(words("| find | | open")));
    host.manager.setToolBar(host.mine, {});
    QCOMPARE(SavedLayout::of(host.manager.saveState(3)).fields(),
             words("255 3 FE 1 'file' 5 null 'find' null null 'open' "
                   "FD 1 '_Custom_Toolbar_1' 'Mine' 0"));
}

void tst_RyToolBarManager_state::defaultToolBarsAreSavedInTheOrderOfTheirAddresses()
{
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 4);
    for (const int i : {2, 0, 3, 1})
        host.manager.addDefaultToolBar(toolBars.at(i), A);
    QCOMPARE(SavedLayout::of(host.manager.saveState(3)).fields(),
             words("255 3 FE 4 't0' 0 't1' 0 't2' 0 't3' 0 FD 0"));
}

void tst_RyToolBarManager_state::customToolBarsAreSavedInTheOrderOfTheirAddresses()
{
    Host host;
    QList<QToolBar *> customs;
    for (int i = 0; i < 4; ++i) {
        customs << host.manager.createToolBar(QString());
        host.defaultToolBar(QString::number(i), QStringList(), A);
    }
    // The new one may take the place in memory that the first one left.
    host.manager.deleteToolBar(customs.takeFirst());
    customs << host.manager.createToolBar(QString());
    std::sort(customs.begin(), customs.end(), std::less<QToolBar *>());
    for (int i = 0; i < customs.size(); ++i) {
        customs.at(i)->setObjectName(QStringLiteral("c%1").arg(i));
        customs.at(i)->setWindowTitle(QString::number(i));
    }
    const QStringList fields = SavedLayout::of(host.manager.saveState(3)).fields();
    QCOMPARE(fields.mid(fields.indexOf(name("FD"))),
             words("FD 4 'c0' '0' 0 'c1' '1' 0 'c2' '2' 0 'c3' '3' 0"));
}

void tst_RyToolBarManager_state::anActionWithoutNameAndTextIsSavedAsASeparator()
{
    UsualHost host;
    QAction *const empty = nameless(host, QString());
    host.manager.setToolBar(host.file, {empty, nullptr, host.action(name("open"))});
    const QByteArray state = host.manager.saveState(3);
    QCOMPARE(takeWarnings(), QStringList(namelessAction(empty, QString())));
    QVERIFY(host.manager.restoreState(state, 3));
    QCOMPARE(standingOn(host.file), words("| | open"));
}

void tst_RyToolBarManager_state::savingWarnsOfNamelessToolBarsAndActionsInOrder()
{
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 2);
    QAction *const one = nameless(host, name("One ö"));
    QAction *const two = nameless(host, name("&Two"));
    for (QToolBar *toolBar : toolBars) {
        toolBar->setObjectName(QString());
        host.manager.addDefaultToolBar(toolBar, A);
    }
    toolBars.at(0)->setWindowTitle(name("First ä"));
    toolBars.at(1)->setWindowTitle(QString());
    host.registered(name("open"), A);
    host.manager.setToolBar(toolBars.at(0), {one, nullptr, host.action(name("open")), two});
    host.manager.setToolBar(toolBars.at(1), {two});
    QToolBar *const mine = host.manager.createToolBar(name("Mine"));
    host.manager.setToolBar(mine, {one});
    const QStringList fields = SavedLayout::of(host.manager.saveState(3)).fields();
    QCOMPARE(takeWarnings(),
             (QStringList{namelessToolBar(toolBars.at(0), name("First ä")),
                          namelessAction(one, name("One ö")), namelessAction(two, name("&Two")),
                          namelessToolBar(toolBars.at(1), QString()),
                          namelessAction(two, name("&Two")), namelessAction(one, name("One ö"))}));
    QCOMPARE(fields,
             words("255 3 FE 2") + QStringList{name("'First ä'")} + words("4")
                 + QStringList{name("'One ö'")}
                 + words("null 'open' '&Two' null 1 '&Two' FD 1 '_Custom_Toolbar_1' 'Mine' 1")
                 + QStringList{name("'One ö'")});
}

void tst_RyToolBarManager_state::savingWarnsOfANamelessActionEachTime()
{
    UsualHost host;
    QAction *const say = nameless(host, name("Say"));
    host.manager.setToolBar(host.file, {say});
    host.manager.setToolBar(host.mine, {say});
    host.manager.saveState(3);
    host.manager.saveState(3);
    const QString warning = namelessAction(say, name("Say"));
    QCOMPARE(takeWarnings(), (QStringList{warning, warning, warning, warning}));
}

void tst_RyToolBarManager_state::savingDoesNotWarnOfANamelessCustomToolBar()
{
    Host host;
    host.manager.createToolBar(name("Mine"))->setObjectName(QString());
    QCOMPARE(SavedLayout::of(host.manager.saveState(3)).fields(),
             words("255 3 FE 0 FD 1 null 'Mine' 0"));
}

void tst_RyToolBarManager_state::savingShowsNamesInTheLocalEncoding()
{
    Host host;
    const QString twoLetters = QStringLiteral("\u00c3\u00a9");
    QToolBar *const toolBar = host.defaultToolBar(QString(), QStringList(), A);
    toolBar->setWindowTitle(twoLetters);
    QAction *const action = nameless(host, twoLetters);
    host.manager.setToolBar(toolBar, {action});
    const LocaleCodec latin1("ISO-8859-1");
    const QByteArray state = host.manager.saveState(3);
    // In that encoding the two letters are the bytes that UTF-8 has for the one that is shown.
    QCOMPARE(takeWarnings(),
             (QStringList{namelessToolBar(toolBar, name("é")), namelessAction(action, name("é"))}));
    // The state has no such limits.
    QCOMPARE(state,
             version3().defaults(1).defaultToolBar(twoLetters, {twoLetters}).customs(0).bytes());
}

void tst_RyToolBarManager_state::savingChangesNothing()
{
    UsualHost host;
    const QList<QAction *> standing = standingOnAll(host);
    ActionLog log(host.file);
    log.watch(host.mine);
    const QByteArray state = host.manager.saveState(3);
    QCOMPARE(host.manager.saveState(3), state);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(standingOnAll(host), standing);
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::saveStateDataWritesTheSectionsOnly()
{
    UsualHost host;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << qint16(7);
    host.manager.saveStateData(stream);
    stream << qint16(9);
    QCOMPARE(bytes, hex("0007") + host.manager.saveState(3).mid(8) + hex("0009"));
}

void tst_RyToolBarManager_state::saveStateDataUsesTheStreamAsItIs()
{
    UsualHost host;
    QByteArray bytes;
    QDataStream writer(&bytes, QIODevice::WriteOnly);
    writer.setByteOrder(QDataStream::LittleEndian);
    host.manager.saveStateData(writer);
    QCOMPARE(bytes.left(9), hex("fe 01000000 08000000"));
    QCOMPARE(writer.byteOrder(), QDataStream::LittleEndian);

    host.manager.setToolBar(host.file, {});
    QDataStream reader(bytes);
    reader.setByteOrder(QDataStream::LittleEndian);
    QVERIFY(host.manager.restoreStateData(reader));
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::everyWarningIsOneOfTheDefaultCategoryWithoutALocation()
{
    Host host;
    QToolBar *const toolBar = host.defaultToolBar(QString(), QStringList(), A);
    host.manager.setToolBar(toolBar, {nameless(host, name("Say"))});
    messageContexts.clear();
    const QtMessageHandler previous = qInstallMessageHandler(recordContext);
    host.manager.saveState(3);
    host.manager.findAction(name("x"));
    host.manager.findDefaultToolBar(name("x"));
    host.manager.restoreState(
        version3().defaults(1).defaultToolBar(name("x"), words("y")).customs(0).bytes(), 3);
    qInstallMessageHandler(previous);
    QStringList expected;
    for (int i = 0; i < 10; ++i)
        expected << QStringLiteral("%1 default null 0 null").arg(QtWarningMsg);
    QCOMPARE(messageContexts, expected);
}

void tst_RyToolBarManager_state::restoringAnUnchangedStateTouchesNothing_data()
{
    QTest::addColumn<int>("version");
    QTest::newRow("3") << 3;
    QTest::newRow("0") << 0;
    QTest::newRow("negative") << -17;
}

void tst_RyToolBarManager_state::restoringAnUnchangedStateTouchesNothing()
{
    QFETCH(int, version);
    UsualHost host;
    const QList<QAction *> standing = standingOnAll(host);
    ActionLog log(host.file);
    log.watch(host.mine);
    const QByteArray state = host.manager.saveState(version);
    const QByteArray copy(state.constData(), state.size());
    QVERIFY(host.manager.restoreState(state, version));
    QCOMPARE(state, copy);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(standingOnAll(host), standing);
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::restoringRefusesAnotherVersion_data()
{
    QTest::addColumn<int>("saved");
    QTest::addColumn<int>("expected");
    QTest::newRow("higher") << 3 << 4;
    QTest::newRow("lower") << 3 << 2;
    QTest::newRow("negative") << 3 << -3;
    QTest::newRow("other high byte") << 3 << 0x01000003;
    QTest::newRow("zero") << 3 << 0;
}

void tst_RyToolBarManager_state::restoringRefusesAnotherVersion()
{
    QFETCH(int, saved);
    QFETCH(int, expected);
    UsualHost host;
    const QByteArray state = StateWriter::ofVersion(saved)
                                 .defaults(1)
                                 .defaultToolBar(name("file"), words("find unknown"))
                                 .customs(1)
                                 .customToolBar(name("new"), name("New"), {})
                                 .bytes();
    QVERIFY(!host.manager.restoreState(state, expected));
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::restoringRefusesOtherBytes_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::newRow("null") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("[toolbars]\nfile=open\n");
    QTest::newRow("marker alone") << hex("000000ff");
    QTest::newRow("cut in the version") << hex("000000ff 000000");
    QTest::newRow("cut after the version") << hex("000000ff 00000003");
    const QByteArray rest = version3()
                                .defaults(1)
                                .defaultToolBar(name("file"), words("find unknown"))
                                .customs(0)
                                .bytes()
                                .mid(4);
    QTest::newRow("marker 254") << hex("000000fe") + rest;
    QTest::newRow("marker 0") << hex("00000000") + rest;
    QTest::newRow("marker -1") << hex("ffffffff") + rest;
    QTest::newRow("marker with a high bit") << hex("800000ff") + rest;
    QTest::newRow("marker of little endian") << hex("ff000000") + rest;
}

void tst_RyToolBarManager_state::restoringRefusesOtherBytes()
{
    QFETCH(QByteArray, state);
    UsualHost host;
    const QList<QAction *> standing = standingOnAll(host);
    QVERIFY(!host.manager.restoreState(state, 3));
    QCOMPARE(standingOnAll(host), standing);
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::restoringRefusesAnotherDefaultMarker_data()
{
    QTest::addColumn<int>("marker");
    for (const int marker : {0, 1, 0x7e, 0xfc, 0xfd, 0xff})
        QTest::newRow(qPrintable(QString::number(marker, 16))) << marker;
}

void tst_RyToolBarManager_state::restoringRefusesAnotherDefaultMarker()
{
    QFETCH(int, marker);
    UsualHost host;
    const QByteArray sections = StateWriter()
                                    .byte(marker)
                                    .number(1)
                                    .defaultToolBar(name("file"), words("find unknown"))
                                    .customs(1)
                                    .customToolBar(name("new"), name("New"), {})
                                    .bytes();
    QVERIFY(!host.manager.restoreState(hex("000000ff 00000003") + sections, 3));
    QDataStream stream(sections);
    QVERIFY(!host.manager.restoreStateData(stream));
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::anotherCustomMarkerLeavesTheDefaultToolBarsChanged_data()
{
    QTest::addColumn<QByteArray>("marker");
    for (const char *const marker : {"00", "01", "7d", "fc", "fe", "ff"})
        QTest::newRow(marker) << hex(marker);
    QTest::newRow("cut before it") << QByteArray();
}

void tst_RyToolBarManager_state::anotherCustomMarkerLeavesTheDefaultToolBarsChanged()
{
    QFETCH(QByteArray, marker);
    UsualHost host;
    const QByteArray customs =
        StateWriter().number(1).customToolBar(name("_Custom_Toolbar_1"), name("New"), {}).bytes();
    const QByteArray defaults =
        version3().defaults(1).defaultToolBar(name("file"), words("find |")).bytes();
    QVERIFY(!host.manager.restoreState(
        defaults + (marker.isEmpty() ? QByteArray() : marker + customs), 3));
    QCOMPARE(lines(host.manager),
             (QStringList{name("_Custom_Toolbar_1 'Mine': | open"),
                          name("default file 'File': find |")}));
}

void tst_RyToolBarManager_state::restoringIgnoresTrailingBytes()
{
    UsualHost host;
    const QByteArray state = host.manager.saveState(3);
    host.manager.setToolBars({{host.file, {}}, {host.mine, {}}});
    QVERIFY(host.manager.restoreState(state + hex("fe 00000001 ff 00"), 3));
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::restoringDoesNotConsultTheStatusOfTheStream()
{
    UsualHost host;
    const QByteArray sections = host.manager.saveState(3).mid(8);
    host.manager.setToolBars({{host.file, {}}, {host.mine, {}}});
    QDataStream stream(sections);
    stream.setStatus(QDataStream::ReadCorruptData);
    QVERIFY(host.manager.restoreStateData(stream));
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::restoreStateDataReadsTheSectionsOnly()
{
    UsualHost host;
    QByteArray bytes = hex("0007") + host.manager.saveState(3).mid(8) + hex("0009");
    host.manager.setToolBars({{host.file, {}}, {host.mine, {}}});
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QDataStream stream(&buffer);
    qint16 before = 0;
    qint16 after = 0;
    stream >> before;
    QVERIFY(host.manager.restoreStateData(stream));
    stream >> after;
    QCOMPARE(before, qint16(7));
    QCOMPARE(after, qint16(9));
    QVERIFY(stream.atEnd());
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::countsOfZeroAndLessReadNothing_data()
{
    QTest::addColumn<qint32>("count");
    QTest::newRow("0") << qint32(0);
    QTest::newRow("-1") << qint32(-1);
    QTest::newRow("lowest") << std::numeric_limits<qint32>::min();
}

void tst_RyToolBarManager_state::countsOfZeroAndLessReadNothing()
{
    QFETCH(qint32, count);
    UsualHost host;
    QVERIFY(host.manager.restoreState(version3().defaults(count).customs(count).bytes(), 3));
    QCOMPARE(lines(host.manager), usualLayout());
    // The counts of actions: each toolbar is emptied, and the next field is read.
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(1)
                                          .text(name("file"))
                                          .number(count)
                                          .customs(1)
                                          .text(name("_Custom_Toolbar_1"))
                                          .text(name("New"))
                                          .number(count)
                                          .bytes(),
                                      3));
    QCOMPARE(lines(host.manager),
             (QStringList{name("_Custom_Toolbar_1 'New': "), name("default file 'File': ")}));
}

void tst_RyToolBarManager_state::restoringPutsTheContentBack()
{
    UsualHost host;
    const QByteArray state = host.manager.saveState(3);
    host.manager.setToolBar(host.file, host.list(words("| find")));
    host.manager.setToolBar(host.mine, host.list(words("save save find")));
    host.mine->setWindowTitle(name("Renamed"));
    QVERIFY(host.manager.restoreState(state, 3));
    QCOMPARE(lines(host.manager), usualLayout());
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(host.file)), words("open | save"));
}

void tst_RyToolBarManager_state::restoringIntoAFreshHostGivesTheSameLayout()
{
    QByteArray state;
    QStringList layout;
    {
        UsualHost host;
        host.manager.createToolBar(name("Third"));
        QToolBar *const last = host.manager.createToolBar(name("Fourth"));
        host.manager.setToolBar(last, host.list(words("find | | save")));
        host.manager.setToolBar(host.file, host.list(words("| save |")));
        state = host.manager.saveState(3);
        layout = lines(host.manager);
    }
    Host fresh;
    fresh.defaultToolBar(name("file"), words("find save open"), A);
    QVERIFY(fresh.manager.restoreState(state, 3));
    QCOMPARE(lines(fresh.manager), layout);
    QVERIFY(fresh.manager.restoreState(state, 3));
    QCOMPARE(lines(fresh.manager), layout);
}

void tst_RyToolBarManager_state::restoringTakesRecordsInAnyOrder()
{
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 3);
    for (QToolBar *toolBar : toolBars)
        host.manager.addDefaultToolBar(toolBar, A);
    host.registered(name("open"), A);
    host.registered(name("save"), A);
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(3)
                                          .defaultToolBar(name("t2"), words("|"))
                                          .defaultToolBar(name("t0"), words("open"))
                                          .defaultToolBar(name("t1"), words("save"))
                                          .customs(0)
                                          .bytes(),
                                      3));
    QCOMPARE(standingOn(toolBars.at(0)), words("open"));
    QCOMPARE(standingOn(toolBars.at(1)), words("save"));
    QCOMPARE(standingOn(toolBars.at(2)), words("|"));
}

void tst_RyToolBarManager_state::theLastOfSeveralRecordsOfAToolBarCounts()
{
    UsualHost host;
    ActionLog log(host.file);
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(2)
                                          .defaultToolBar(name("file"), words("find"))
                                          .defaultToolBar(name("file"), words("| save"))
                                          .customs(0)
                                          .bytes(),
                                      3));
    QCOMPARE(log.take(), words("file-open file-| file-save file+find file-find file+| file+save"));
}

void tst_RyToolBarManager_state::emptyNamesAreSeparators()
{
    UsualHost host;
    QVERIFY(host.manager.restoreState(
        version3()
            .defaults(1)
            .defaultToolBar(name("file"),
                            {QString(), QStringLiteral(""), name("open"), QStringLiteral("")})
            .customs(0)
            .bytes(),
        3));
    QCOMPARE(standingOn(host.file), words("| | open |"));
}

void tst_RyToolBarManager_state::unknownActionsAreDropped()
{
    UsualHost host;
    QVERIFY(host.manager.restoreState(
        version3()
            .defaults(1)
            .defaultToolBar(name("file"), words("first | save OPEN Open find last"))
            .customs(1)
            .customToolBar(name("_Custom_Toolbar_1"), name("Mine"), words("only"))
            .bytes(),
        3));
    QCOMPARE(takeWarnings(),
             noAction("first") + noAction("OPEN") + first(noAction("Open")) + noAction("last")
                 + noAction("only"));
    QCOMPARE(lines(host.manager),
             (QStringList{name("_Custom_Toolbar_1 'Mine': "),
                          name("default file 'File': | save open find")}));
}

void tst_RyToolBarManager_state::unregisteredActionsAreUnknown()
{
    UsualHost host;
    host.toolBar(name("other"), words("stranger"));
    const QByteArray state = host.manager.saveState(3);
    host.manager.removeAction(host.action(name("open")));
    QVERIFY(host.manager.restoreState(state, 3));
    QCOMPARE(takeWarnings(), noAction("open") + noAction("open"));
    QCOMPARE(
        lines(host.manager),
        (QStringList{name("_Custom_Toolbar_1 'Mine': |"), name("default file 'File': | save")}));
}

void tst_RyToolBarManager_state::repeatedActionsKeepTheFirst()
{
    UsualHost host;
    QVERIFY(host.manager.restoreState(
        version3()
            .defaults(1)
            .defaultToolBar(name("file"), words("open | open save | save open"))
            .customs(1)
            .customToolBar(name("_Custom_Toolbar_1"), name("Mine"), words("save save"))
            .bytes(),
        3));
    QCOMPARE(lines(host.manager),
             (QStringList{name("_Custom_Toolbar_1 'Mine': save"),
                          name("default file 'File': open | save |")}));
}

void tst_RyToolBarManager_state::unknownDefaultToolBarsAreSkipped()
{
    UsualHost host;
    host.toolBar(name("other"), words("find"));
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(4)
                                          .defaultToolBar(name("FILE"), words("find"))
                                          .defaultToolBar(name("other"), words("find |"))
                                          .defaultToolBar(QString(), words("|"))
                                          .defaultToolBar(name("file"), words("save"))
                                          .customs(0)
                                          .bytes(),
                                      3));
    QCOMPARE(takeWarnings(), noToolBar("FILE") + noToolBar("other") + noToolBar(""));
    QCOMPARE(
        lines(host.manager),
        (QStringList{name("_Custom_Toolbar_1 'Mine': | open"), name("default file 'File': save")}));
}

void tst_RyToolBarManager_state::aDefaultRecordDoesNotFindACustomToolBar()
{
    UsualHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(2)
                                          .defaultToolBar(name("_Custom_Toolbar_1"), words("find"))
                                          .defaultToolBar(name("Mine"), words("find"))
                                          .customs(0)
                                          .bytes(),
                                      3));
    QCOMPARE(takeWarnings(), noToolBar("_Custom_Toolbar_1") + noToolBar("Mine"));
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::aNamelessDefaultToolBarIsFoundByItsTitle()
{
    Host host;
    QToolBar *const toolBar = host.defaultToolBar(QString(), words("open |"), A);
    toolBar->setWindowTitle(name("Title"));
    const QByteArray state = host.manager.saveState(3);
    QCOMPARE(takeWarnings(), QStringList(namelessToolBar(toolBar, name("Title"))));
    host.manager.setToolBar(toolBar, {});
    QVERIFY(host.manager.restoreState(state, 3));
    QCOMPARE(takeWarnings(), first(noToolBar("Title")));
    QCOMPARE(standingOn(toolBar), words("open |"));
}

void tst_RyToolBarManager_state::restoringFindsActionsLikeFindAction_data()
{
    QTest::addColumn<QString>("searched");
    QTest::newRow("objectName") << QStringLiteral("open");
    QTest::newRow("text") << QStringLiteral("Open");
    QTest::newRow("text of a nameless action") << QStringLiteral("Nameless");
    QTest::newRow("objectName of one and text of others") << QStringLiteral("both");
    QTest::newRow("objectName of several") << QStringLiteral("same");
    QTest::newRow("text of several") << QStringLiteral("Same");
    QTest::newRow("other case") << QStringLiteral("oPEN");
    QTest::newRow("not of ASCII") << QString::fromUtf8("öffnen");
    QTest::newRow("unknown") << QStringLiteral("unknown");
}

void tst_RyToolBarManager_state::restoringFindsActionsLikeFindAction()
{
    QFETCH(QString, searched);
    UsualHost host;
    nameless(host, name("Nameless"));
    nameless(host, name("öffnen"));
    for (int i = 0; i < 8; ++i) {
        nameless(host, name("Same"));
        nameless(host, name("both"));
        nameless(host, name("Other"))->setObjectName(name("same"));
    }
    nameless(host, name("Both"))->setObjectName(name("both"));
    QAction *const found = host.manager.findAction(searched);
    const QStringList warnings = takeWarnings();
    QVERIFY(host.manager.restoreState(
        version3().defaults(1).defaultToolBar(name("file"), {searched}).customs(0).bytes(), 3));
    QCOMPARE(takeWarnings(), warnings);
    QCOMPARE(host.manager.actions(host.file), found ? QList<QAction *>{found} : QList<QAction *>());
}

void tst_RyToolBarManager_state::restoringFindsToolBarsLikeFindDefaultToolBar_data()
{
    QTest::addColumn<QString>("searched");
    QTest::newRow("objectName") << QStringLiteral("t3");
    QTest::newRow("title") << QStringLiteral("T3");
    QTest::newRow("objectName of one and title of another") << QStringLiteral("both");
    QTest::newRow("objectName of several") << QStringLiteral("same");
    QTest::newRow("title of several") << QStringLiteral("Same");
    QTest::newRow("other case") << QStringLiteral("SAME");
    QTest::newRow("custom") << QStringLiteral("_Custom_Toolbar_1");
    QTest::newRow("empty") << QStringLiteral("");
}

void tst_RyToolBarManager_state::restoringFindsToolBarsLikeFindDefaultToolBar()
{
    QFETCH(QString, searched);
    Host host;
    host.registered(name("open"), A);
    host.manager.createToolBar(name("same"));
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 10);
    for (const int i : {7, 3, 8, 2, 9, 6, 5, 4, 1, 0}) {
        toolBars.at(i)->setWindowTitle(i % 2 ? name("T%1").arg(i) : name("Same"));
        host.manager.addDefaultToolBar(toolBars.at(i), A);
    }
    for (const int i : {9, 1, 5})
        toolBars.at(i)->setObjectName(name("same"));
    toolBars.at(1)->setWindowTitle(name("both"));
    toolBars.at(2)->setObjectName(name("both"));
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

void tst_RyToolBarManager_state::aCustomRecordChangesTheToolBarOfItsObjectName()
{
    UsualHost host;
    QVERIFY(host.manager.restoreState(
        version3()
            .defaults(0)
            .customs(1)
            .customToolBar(name("_Custom_Toolbar_1"), name("Renamed €"), words("find |"))
            .bytes(),
        3));
    QCOMPARE(lines(host.manager),
             (QStringList{name("_Custom_Toolbar_1 'Renamed €': find |"),
                          name("default file 'File': open | save")}));
    QVERIFY(host.manager.toolBars().contains(host.mine));
}

void tst_RyToolBarManager_state::aCustomRecordDoesNotLookAtTitles()
{
    UsualHost host;
    QVERIFY(host.manager.restoreState(
        version3().defaults(0).customs(1).customToolBar(name("Mine"), name("Mine"), {}).bytes(),
        3));
    QCOMPARE(lines(host.manager),
             (QStringList{name("Mine 'Mine': "), name("_Custom_Toolbar_1 'Mine': | open"),
                          name("default file 'File': open | save")}));
}

void tst_RyToolBarManager_state::aCustomRecordMayNameADefaultToolBar()
{
    UsualHost host;
    QVERIFY(
        host.manager.restoreState(version3()
                                      .defaults(1)
                                      .defaultToolBar(name("file"), words("save"))
                                      .customs(1)
                                      .customToolBar(name("file"), name("Title"), words("| find"))
                                      .bytes(),
                                  3));
    QCOMPARE(lines(host.manager),
             (QStringList{name("_Custom_Toolbar_1 'Mine': | open"),
                          name("default file 'Title': | find")}));
    QCOMPARE(contentOf(host.manager.defaultToolBars().value(host.file)), words("open | save"));
    // Records of the default section would still find it by either name.
    QCOMPARE(host.manager.findDefaultToolBar(name("file")), host.file);
}

void tst_RyToolBarManager_state::aCustomRecordCreatesAMissingToolBar()
{
    UsualHost host;
    QVERIFY(host.manager.restoreState(
        version3()
            .defaults(0)
            .customs(1)
            .customToolBar(name("theirs"), name("Theirs"), words("open | open unknown"))
            .bytes(),
        3));
    QCOMPARE(takeWarnings(), noAction("unknown"));
    QToolBar *const made = host.manager.toolBarByName(name("theirs"));
    QVERIFY(made);
    QCOMPARE(lines(host.manager), usualLayout() + QStringList(name("theirs 'Theirs': open |")));
    QCOMPARE(made->parent(), static_cast<QObject *>(&host.window));
    QCOMPARE(host.window.toolBarArea(made), Qt::TopToolBarArea);
    QVERIFY(!host.manager.isDefaultToolBar(made));
    host.manager.deleteToolBar(made);
    QCOMPARE(lines(host.manager), usualLayout());
}

void tst_RyToolBarManager_state::customRecordsWithoutAMainWindowAreSkipped()
{
    UsualHost host;
    host.manager.setMainWindow(nullptr);
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(0)
                                          .customs(2)
                                          .customToolBar(name("x"), name("X"), words("unknown |"))
                                          .customToolBar(name("y"), name("Y"), words("open"))
                                          .bytes(),
                                      3));
    QCOMPARE(takeWarnings(), noAction("unknown"));
    QCOMPARE(lines(host.manager), usualLayout());
    QCOMPARE(namesOf(host.window.findChildren<QToolBar *>()), words("file _Custom_Toolbar_1"));
}

void tst_RyToolBarManager_state::customRecordsWithoutAMainWindowChangeExistingToolBars()
{
    UsualHost host;
    host.manager.setMainWindow(nullptr);
    QVERIFY(host.manager.restoreState(
        version3()
            .defaults(1)
            .defaultToolBar(name("file"), words("find"))
            .customs(2)
            .customToolBar(name("x"), name("X"), words("save"))
            .customToolBar(name("_Custom_Toolbar_1"), name("Renamed"), words("save"))
            .bytes(),
        3));
    QCOMPARE(lines(host.manager),
             (QStringList{name("_Custom_Toolbar_1 'Renamed': save"),
                          name("default file 'File': find")}));
}

void tst_RyToolBarManager_state::anEmptyStoredObjectNameIsSet_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
}

void tst_RyToolBarManager_state::anEmptyStoredObjectNameIsSet()
{
    QFETCH(QString, stored);
    UsualHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(0)
                                          .customs(2)
                                          .customToolBar(stored, name("X"), words("open"))
                                          .customToolBar(stored, name("Y"), words("save |"))
                                          .bytes(),
                                      3));
    // The second record finds the toolbar of the first one.
    QCOMPARE(lines(host.manager), QStringList(name(" 'Y': save |")) + usualLayout());
}

void tst_RyToolBarManager_state::anEmptyStoredObjectNameFindsANamelessToolBar()
{
    Host host;
    host.defaultToolBar(QString(), words("open"), A);
    QVERIFY(host.manager.restoreState(
        version3().defaults(0).customs(1).customToolBar(QString(), name("X"), words("|")).bytes(),
        3));
    QCOMPARE(lines(host.manager), QStringList(name("default  'X': |")));
}

void tst_RyToolBarManager_state::customRecordsOfOneObjectNameMakeOneToolBar()
{
    UsualHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(0)
                                          .customs(3)
                                          .customToolBar(name("x"), name("1"), words("open"))
                                          .customToolBar(name("y"), name("2"), words("save"))
                                          .customToolBar(name("x"), name("3"), words("find"))
                                          .bytes(),
                                      3));
    QCOMPARE(lines(host.manager),
             (usualLayout() + QStringList{name("x '3': find"), name("y '2': save")}));
}

void tst_RyToolBarManager_state::aCustomRecordChangesTheToolBarOfTheLowestAddress_data()
{
    QTest::addColumn<QList<int>>("registered");
    QTest::newRow("lowest first") << QList<int>{0, 1, 2};
    QTest::newRow("lowest last") << QList<int>{2, 1, 0};
}

void tst_RyToolBarManager_state::aCustomRecordChangesTheToolBarOfTheLowestAddress()
{
    QFETCH(QList<int>, registered);
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 3);
    for (const int i : qAsConst(registered)) {
        toolBars.at(i)->setObjectName(name("same"));
        toolBars.at(i)->setWindowTitle(QString::number(i));
        host.manager.addDefaultToolBar(toolBars.at(i), A);
    }
    QVERIFY(host.manager.restoreState(
        version3().defaults(0).customs(1).customToolBar(name("same"), name("X"), {}).bytes(), 3));
    QStringList titles;
    for (const QToolBar *toolBar : toolBars)
        titles << toolBar->windowTitle();
    QCOMPARE(titles, words("X 1 2"));
}

void tst_RyToolBarManager_state::aCreatedToolBarIsNumberedThenNamedThenFilled_data()
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

void tst_RyToolBarManager_state::aCreatedToolBarIsNumberedThenNamedThenFilled()
{
    QFETCH(QStringList, existing);
    QFETCH(QStringList, stored);
    QFETCH(QStringList, log);
    Host host;
    for (const QString &each : qAsConst(existing))
        host.defaultToolBar(each, QStringList(), A);
    host.registered(name("open"), A);
    StateWriter writer = version3().defaults(0).customs(stored.size());
    for (const QString &each : qAsConst(stored))
        writer.customToolBar(each, QString(), words("open"));
    CreationLog creations(&host.window);
    QVERIFY(host.manager.restoreState(writer.bytes(), 3));
    QCOMPARE(creations.lines, log);
}

void tst_RyToolBarManager_state::numbersContinueAfterManyRestoredToolBars()
{
    const int count = 200;
    Host host;
    host.registered(name("open"), A);
    QToolBar *const first = host.manager.createToolBar(name("Mine"));
    const QString numbered = QStringLiteral("_Custom_Toolbar_%1");
    StateWriter writer = version3().defaults(0).customs(count);
    QStringList expected;
    for (int i = count; i > 0; --i) {
        if (i == 77)
            writer.customToolBar(name("other"), name("77"), words("open"));
        else
            writer.customToolBar(numbered.arg(i), QString::number(i), words("open"));
        expected << (i == 77 ? name("other '77': open")
                             : numbered.arg(i) + QStringLiteral(" '%1': open").arg(i));
    }
    expected.sort();
    QVERIFY(host.manager.restoreState(writer.bytes(), 3));
    QCOMPARE(lines(host.manager), expected);
    QCOMPARE(host.manager.toolBarByName(numbered.arg(1)), first);
    QCOMPARE(host.manager.createToolBar(QString())->objectName(), numbered.arg(77));
    QCOMPARE(host.manager.createToolBar(QString())->objectName(), numbered.arg(count + 1));
}

void tst_RyToolBarManager_state::titlesAreRestoredEvenIfEmpty()
{
    UsualHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(0)
                                          .customs(2)
                                          .customToolBar(name("_Custom_Toolbar_1"), QString(), {})
                                          .customToolBar(name("file"), QStringLiteral(""), {})
                                          .bytes(),
                                      3));
    QCOMPARE(lines(host.manager),
             (QStringList{name("_Custom_Toolbar_1 '': "), name("default file '': ")}));
}

void tst_RyToolBarManager_state::otherCustomToolBarsKeepTheirContent()
{
    UsualHost host;
    const QList<QAction *> standing = host.mine->actions();
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(1)
                                          .defaultToolBar(name("file"), {})
                                          .customs(1)
                                          .customToolBar(name("x"), name("X"), {})
                                          .bytes(),
                                      3));
    QCOMPARE(lines(host.manager),
             (QStringList{name("_Custom_Toolbar_1 'Mine': | open"), name("default file 'File': "),
                          name("x 'X': ")}));
    QCOMPARE(host.mine->actions(), standing);
}

void tst_RyToolBarManager_state::restoringWarnsOfActionsBeforeTheirToolBar()
{
    UsualHost host;
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(2)
                                          .defaultToolBar(name("x"), words("a Open b"))
                                          .defaultToolBar(name("File"), words("c"))
                                          .customs(1)
                                          .customToolBar(name("y"), name("Y"), words("d Save"))
                                          .bytes(),
                                      3));
    QCOMPARE(takeLocatedWarnings().replaceInStrings(QStringLiteral(":0  "), QString()),
             noAction("a") + first(noAction("Open")) + noAction("b") + noToolBar("x")
                 + noAction("c") + first(noToolBar("File")) + noAction("d")
                 + first(noAction("Save")));
}

void tst_RyToolBarManager_state::restoringShowsNamesInTheLocalEncoding()
{
    UsualHost host;
    const QString twoLetters = QStringLiteral("\u00c3\u00a9");
    const LocaleCodec latin1("ISO-8859-1");
    QVERIFY(host.manager.restoreState(
        version3().defaults(1).defaultToolBar(twoLetters, {twoLetters}).customs(0).bytes(), 3));
    QCOMPARE(takeWarnings(), noAction("é") + noToolBar("é"));
}

void tst_RyToolBarManager_state::restoredSeparatorsAreFreshOnes()
{
    UsualHost host;
    const QPointer<QAction> separator = host.file->actions().at(1);
    const QPointer<QAction> kept = host.mine->actions().at(0);
    QVERIFY(host.manager.restoreState(
        version3().defaults(1).defaultToolBar(name("file"), words("save |")).customs(0).bytes(),
        3));
    QVERIFY(!separator);
    QVERIFY(kept);
    QCOMPARE(standingOn(host.file), words("save |"));
}

void tst_RyToolBarManager_state::savingAndRestoringEmitsNoSignal()
{
    UsualHost host;
    const QByteArray state = host.manager.saveState(3);
    host.manager.setToolBar(host.file, {});
    host.manager.deleteToolBar(host.mine);
    QVERIFY(host.manager.restoreState(state, 3));
    QVERIFY(!host.manager.restoreState(state, 4));
    QCOMPARE(lines(host.manager), usualLayout());
    // The check itself is in the destructor of Host.
}

QTEST_MAIN(tst_RyToolBarManager_state)

#include "tst_rytoolbarmanager_state.moc"
