// SPDX-License-Identifier: MIT

#include "actionlog.h"
#include "filledhost.h"
#include "localecodec.h"
#include "namewarnings.h"
#include "savedlayout.h"
#include "statewriter.h"
#include "testcase.h"
#include "texts.h"
#include "toolbarlines.h"
#include "toolbarrecords.h"

#include <QBuffer>
#include <QDataStream>
#include <QtTest>

#include <limits>

namespace {

const QString A = "A";

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
    return "0x" + QString::number(reinterpret_cast<quintptr>(object), 16);
}

QString namelessToolBar(const QToolBar *toolBar, const QString &title)
{
    return QString("RyToolBarManager::saveState(): 'objectName' not set for QToolBar %1 "
                   "'%2', using 'windowTitle' instead")
        .arg(address(toolBar), title);
}

QString namelessAction(const QAction *action, const QString &text)
{
    return QString("RyToolBarManager::saveState(): 'objectName' not set for QAction %1 "
                   "'%2', using 'text' instead")
        .arg(address(action), text);
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

// Everything that the message logger passes on with a text.
QStringList messageContexts;

void recordContext(QtMsgType type, const QMessageLogContext &context, const QString &)
{
    messageContexts << QString("%1 %2 %3 %4 %5")
                           .arg(QString::number(type), context.category,
                                context.file ? context.file : "null", QString::number(context.line),
                                context.function ? context.function : "null");
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
    host.registered("open", A);
    host.toolBar("unmanaged", words("open"));
    const QByteArray state = host.manager.saveState(version);
    QCOMPARE(state.toHex(), (hex("000000ff") + written + hex("fe00000000 fd00000000")).toHex());
    QCOMPARE(state.size(), 18);
    QVERIFY(host.manager.restoreState(state, version));
    QVERIFY(!host.manager.restoreState(state, version == 1 ? 2 : 1));
}

void tst_RyToolBarManager_state::theBytesOfDefaultToolBars()
{
    Host host;
    QAction *const say = nameless(host, "Say");
    QAction *const empty = nameless(host, QString());
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 2);
    toolBars.at(0)->setObjectName("file");
    toolBars.at(0)->setWindowTitle("File");
    toolBars.at(1)->setObjectName(QString());
    toolBars.at(1)->setWindowTitle("F€");
    host.manager.addDefaultToolBar(toolBars.at(1), A);
    host.manager.addDefaultToolBar(toolBars.at(0), A);
    host.registered("open", A);
    host.manager.setToolBar(toolBars.at(0), {host.action("open"), nullptr, nullptr, say, empty});
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
    FilledHost host;
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
    mine->setObjectName("");
    QCOMPARE(host.manager.saveState(3).toHex(),
             hex("000000ff 00000003 fe 00000000 fd 00000001 00000000 ffffffff 00000000").toHex());
    mine->setWindowTitle("M");
    QCOMPARE(
        host.manager.saveState(3).toHex(),
        hex("000000ff 00000003 fe 00000000 fd 00000001 00000000 00000002 004d 00000000").toHex());
}

void tst_RyToolBarManager_state::theCurrentContentIsSaved()
{
    FilledHost host;
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
    customs = byAddress(customs);
    for (int i = 0; i < customs.size(); ++i) {
        customs.at(i)->setObjectName(QString("c%1").arg(i));
        customs.at(i)->setWindowTitle(QString::number(i));
    }
    const QStringList fields = SavedLayout::of(host.manager.saveState(3)).fields();
    QCOMPARE(fields.mid(fields.indexOf("FD")),
             words("FD 4 'c0' '0' 0 'c1' '1' 0 'c2' '2' 0 'c3' '3' 0"));
}

void tst_RyToolBarManager_state::anActionWithoutNameAndTextIsSavedAsASeparator()
{
    FilledHost host;
    QAction *const empty = nameless(host, QString());
    host.manager.setToolBar(host.file, {empty, nullptr, host.action("open")});
    const QByteArray state = host.manager.saveState(3);
    QCOMPARE(takeWarnings(), QStringList(namelessAction(empty, QString())));
    QVERIFY(host.manager.restoreState(state, 3));
    QCOMPARE(standingOn(host.file), words("| | open"));
}

void tst_RyToolBarManager_state::savingWarnsOfNamelessToolBarsAndActionsInOrder()
{
    Host host;
    const QList<QToolBar *> toolBars = toolBarsByAddress(host, 2);
    QAction *const one = nameless(host, "One ö");
    QAction *const two = nameless(host, "&Two");
    for (QToolBar *toolBar : toolBars) {
        toolBar->setObjectName(QString());
        host.manager.addDefaultToolBar(toolBar, A);
    }
    toolBars.at(0)->setWindowTitle("First ä");
    toolBars.at(1)->setWindowTitle(QString());
    host.registered("open", A);
    host.manager.setToolBar(toolBars.at(0), {one, nullptr, host.action("open"), two});
    host.manager.setToolBar(toolBars.at(1), {two});
    QToolBar *const mine = host.manager.createToolBar("Mine");
    host.manager.setToolBar(mine, {one});
    const QStringList fields = SavedLayout::of(host.manager.saveState(3)).fields();
    QCOMPARE(takeWarnings(),
             (QStringList{namelessToolBar(toolBars.at(0), "First ä"), namelessAction(one, "One ö"),
                          namelessAction(two, "&Two"), namelessToolBar(toolBars.at(1), QString()),
                          namelessAction(two, "&Two"), namelessAction(one, "One ö")}));
    QCOMPARE(fields,
             words("255 3 FE 2") + QStringList{"'First ä'"} + words("4") + QStringList{"'One ö'"}
                 + words("null 'open' '&Two' null 1 '&Two' FD 1 '_Custom_Toolbar_1' 'Mine' 1")
                 + QStringList{"'One ö'"});
}

void tst_RyToolBarManager_state::savingWarnsOfANamelessActionEachTime()
{
    FilledHost host;
    QAction *const say = nameless(host, "Say");
    host.manager.setToolBar(host.file, {say});
    host.manager.setToolBar(host.mine, {say});
    host.manager.saveState(3);
    host.manager.saveState(3);
    const QString warning = namelessAction(say, "Say");
    QCOMPARE(takeWarnings(), (QStringList{warning, warning, warning, warning}));
}

void tst_RyToolBarManager_state::savingDoesNotWarnOfANamelessCustomToolBar()
{
    Host host;
    host.manager.createToolBar("Mine")->setObjectName(QString());
    QCOMPARE(SavedLayout::of(host.manager.saveState(3)).fields(),
             words("255 3 FE 0 FD 1 null 'Mine' 0"));
}

void tst_RyToolBarManager_state::savingShowsNamesInTheLocalEncoding()
{
    Host host;
    const QString twoLetters = "\u00c3\u00a9";
    QToolBar *const toolBar = host.defaultToolBar(QString(), QStringList(), A);
    toolBar->setWindowTitle(twoLetters);
    QAction *const action = nameless(host, twoLetters);
    host.manager.setToolBar(toolBar, {action});
    const LocaleCodec latin1("ISO-8859-1");
    const QByteArray state = host.manager.saveState(3);
    const QString shown = LocaleCodec::shown(twoLetters);
    QCOMPARE(takeWarnings(),
             (QStringList{namelessToolBar(toolBar, shown), namelessAction(action, shown)}));
    // The state has no such limits.
    QCOMPARE(state,
             version3().defaults(1).defaultToolBar(twoLetters, {twoLetters}).customs(0).bytes());
}

void tst_RyToolBarManager_state::savingChangesNothing()
{
    FilledHost host;
    const QList<QAction *> standing = standingOnAll(host);
    ActionLog log(host.file);
    log.watch(host.mine);
    const QByteArray state = host.manager.saveState(3);
    QCOMPARE(host.manager.saveState(3), state);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(standingOnAll(host), standing);
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
}

void tst_RyToolBarManager_state::saveStateDataWritesTheSectionsOnly()
{
    FilledHost host;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << qint16(7);
    host.manager.saveStateData(stream);
    stream << qint16(9);
    QCOMPARE(bytes, hex("0007") + host.manager.saveState(3).mid(8) + hex("0009"));
}

void tst_RyToolBarManager_state::saveStateDataUsesTheStreamAsItIs()
{
    FilledHost host;
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
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
}

void tst_RyToolBarManager_state::everyWarningIsOneOfTheDefaultCategoryWithoutALocation()
{
    Host host;
    QToolBar *const toolBar = host.defaultToolBar(QString(), QStringList(), A);
    host.manager.setToolBar(toolBar, {nameless(host, "Say")});
    messageContexts.clear();
    const QtMessageHandler previous = qInstallMessageHandler(recordContext);
    host.manager.saveState(3);
    host.manager.findAction("x");
    host.manager.findDefaultToolBar("x");
    host.manager.restoreState(
        version3().defaults(1).defaultToolBar("x", words("y")).customs(0).bytes(), 3);
    qInstallMessageHandler(previous);
    QStringList expected;
    for (int i = 0; i < 10; ++i)
        expected << QString("%1 default null 0 null").arg(QtWarningMsg);
    QCOMPARE(messageContexts, expected);
}

void tst_RyToolBarManager_state::restoringAnUnchangedStateTouchesNothing()
{
    FilledHost host;
    const QList<QAction *> standing = standingOnAll(host);
    ActionLog log(host.file);
    log.watch(host.mine);
    const QByteArray state = host.manager.saveState(-17);
    const QByteArray copy(state.constData(), state.size());
    QVERIFY(host.manager.restoreState(state, -17));
    QCOMPARE(state, copy);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(standingOnAll(host), standing);
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
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
    FilledHost host;
    const QByteArray state = StateWriter::ofVersion(saved)
                                 .defaults(1)
                                 .defaultToolBar("file", words("find unknown"))
                                 .customs(1)
                                 .customToolBar("new", "New", {})
                                 .bytes();
    QVERIFY(!host.manager.restoreState(state, expected));
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
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
                                .defaultToolBar("file", words("find unknown"))
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
    FilledHost host;
    const QList<QAction *> standing = standingOnAll(host);
    QVERIFY(!host.manager.restoreState(state, 3));
    QCOMPARE(standingOnAll(host), standing);
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
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
    FilledHost host;
    const QByteArray sections = StateWriter()
                                    .byte(marker)
                                    .number(1)
                                    .defaultToolBar("file", words("find unknown"))
                                    .customs(1)
                                    .customToolBar("new", "New", {})
                                    .bytes();
    QVERIFY(!host.manager.restoreState(hex("000000ff 00000003") + sections, 3));
    QDataStream stream(sections);
    QVERIFY(!host.manager.restoreStateData(stream));
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
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
    FilledHost host;
    const QByteArray customs =
        StateWriter().number(1).customToolBar("_Custom_Toolbar_1", "New", {}).bytes();
    const QByteArray defaults =
        version3().defaults(1).defaultToolBar("file", words("find |")).bytes();
    QVERIFY(!host.manager.restoreState(
        defaults + (marker.isEmpty() ? QByteArray() : marker + customs), 3));
    QCOMPARE(lines(host.manager),
             (QStringList{"_Custom_Toolbar_1 'Mine': | open", "default file 'File': find |"}));
}

void tst_RyToolBarManager_state::restoringIgnoresTrailingBytes()
{
    FilledHost host;
    const QByteArray state = host.manager.saveState(3);
    host.manager.setToolBars({{host.file, {}}, {host.mine, {}}});
    QVERIFY(host.manager.restoreState(state + hex("fe 00000001 ff 00"), 3));
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
}

void tst_RyToolBarManager_state::restoringDoesNotConsultTheStatusOfTheStream()
{
    FilledHost host;
    const QByteArray sections = host.manager.saveState(3).mid(8);
    host.manager.setToolBars({{host.file, {}}, {host.mine, {}}});
    QDataStream stream(sections);
    stream.setStatus(QDataStream::ReadCorruptData);
    QVERIFY(host.manager.restoreStateData(stream));
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
}

void tst_RyToolBarManager_state::restoreStateDataReadsTheSectionsOnly()
{
    FilledHost host;
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
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
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
    FilledHost host;
    QVERIFY(host.manager.restoreState(version3().defaults(count).customs(count).bytes(), 3));
    QCOMPARE(lines(host.manager), FilledHost::firstLines());
    // The counts of actions: each toolbar is emptied, and the next field is read.
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(1)
                                          .text("file")
                                          .number(count)
                                          .customs(1)
                                          .text("_Custom_Toolbar_1")
                                          .text("New")
                                          .number(count)
                                          .bytes(),
                                      3));
    QCOMPARE(lines(host.manager),
             (QStringList{"_Custom_Toolbar_1 'New': ", "default file 'File': "}));
}

QTEST_MAIN(tst_RyToolBarManager_state)

#include "tst_rytoolbarmanager_state.moc"
