// SPDX-License-Identifier: MIT

#include "host.h"
#include "namewarnings.h"
#include "pipe.h"
#include "processuse.h"
#include "restoremodel.h"
#include "savedlayout.h"
#include "statewriter.h"
#include "testcase.h"
#include "texts.h"
#include "toolbarlines.h"

#include <QtTest>

#include <limits>
#include <memory>

namespace {

const QString A = "A";
const qint32 Highest = std::numeric_limits<qint32>::max();

StateWriter version3()
{
    return StateWriter::ofVersion(3);
}

QStringList separators(int count)
{
    QStringList content;
    for (int i = 0; i < count; ++i)
        content << "|";
    return content;
}

QStringList namelessToolBars(int count)
{
    QStringList warnings;
    for (int i = 0; i < count; ++i)
        warnings << noToolBar("");
    return warnings;
}

// Rows of how many entries a count promises beyond those of the bytes, and how many are to be read
// past the end.
void addPromises()
{
    QTest::addColumn<qint32>("promised");
    QTest::addColumn<int>("read");
    QTest::newRow("none") << qint32(0) << 0;
    QTest::newRow("1") << qint32(1) << 1;
    QTest::newRow("999") << qint32(999) << 999;
    QTest::newRow("1000") << qint32(1000) << 1000;
    QTest::newRow("1001") << qint32(1001) << 1000;
    QTest::newRow("as many as can be promised") << Highest << 1000;
}

// The count of a list that holds one entry.
qint32 oneAnd(qint32 promised)
{
    return promised == Highest ? Highest : 1 + promised;
}

class TitleChanges : public QObject
{
    Q_OBJECT

public:
    explicit TitleChanges(QObject *watched) { watched->installEventFilter(this); }

    int count = 0;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::WindowTitleChange)
            ++count;
        return QObject::eventFilter(watched, event);
    }
};

// A kind of host, and the state whose bytes are damaged.
enum class Kind { NoToolBars, Defaults, DefaultsAndCustoms };

std::unique_ptr<Host> freshHost(Kind kind)
{
    auto host = std::make_unique<Host>();
    if (kind == Kind::NoToolBars)
        return host;
    if (kind == Kind::DefaultsAndCustoms) {
        host->defaultToolBar("f", words("b | a"), A);
        return host;
    }
    QAction *const nameless = new QAction("T", &host->window);
    host->manager.addAction(nameless, A);
    host->defaultToolBar("f", words("b"), A);
    host->registered("a", A);
    QToolBar *const untitled = host->toolBar(QString(), words("| a"));
    untitled->setWindowTitle("N");
    host->manager.addDefaultToolBar(untitled, A);
    return host;
}

QByteArray stateOf(Kind kind)
{
    StateWriter writer = version3();
    if (kind == Kind::NoToolBars)
        return writer.defaults(0).customs(0).bytes();
    if (kind == Kind::Defaults) {
        return writer.defaults(2)
            .defaultToolBar("f", words("a | T"))
            .defaultToolBar("N", words("| |"))
            .customs(0)
            .bytes();
    }
    return writer.defaults(1)
        .defaultToolBar("f", words("a |"))
        .customs(2)
        .customToolBar("c", "C", words("| b"))
        .customToolBar("d", "D", {})
        .bytes();
}

// What a byte is changed to: one bit flipped, one more and one less, all bits clear or set, and all
// values of the state, so that sizes, markers and letters become those of other fields.
QSet<char> otherValues(const QByteArray &state, char value)
{
    QSet<char> values(state.begin(), state.end());
    for (int bit = 0; bit < 8; ++bit)
        values.insert(static_cast<char>(value ^ (1 << bit)));
    for (const int other : {value + 1, value - 1, 0, 0xff})
        values.insert(static_cast<char>(other));
    values.remove(value);
    return values;
}

QString described(bool result, const QStringList &warnings, const QStringList &layout)
{
    const QString joint = "\n    ";
    return (result ? "true" : "false") + joint + (warnings + layout).join(joint);
}

} // namespace

Q_DECLARE_METATYPE(Kind)

class tst_RyToolBarManager_damage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aDefaultListEndsAThousandEntriesPastTheEnd_data();
    void aDefaultListEndsAThousandEntriesPastTheEnd();
    void aCustomListEndsAThousandEntriesPastTheEnd_data();
    void aCustomListEndsAThousandEntriesPastTheEnd();
    void theDefaultSectionEndsAThousandRecordsPastTheEnd_data();
    void theDefaultSectionEndsAThousandRecordsPastTheEnd();
    void theCustomSectionEndsAThousandRecordsPastTheEnd_data();
    void theCustomSectionEndsAThousandRecordsPastTheEnd();
    void customRecordsPastTheEndMakeOneNamelessToolBar_data();
    void customRecordsPastTheEndMakeOneNamelessToolBar();
    void customRecordsPastTheEndMakeNoneWithoutAMainWindow();
    void aListAndItsSectionEachReadAThousandPastTheEnd();
    void entriesThatTheBytesHoldAreNotLimited();
    void entriesThatASequentialDeviceHoldsAreNotLimited();
    void aStreamInAFailedTransactionIsReadToAnEnd();

    void theStatesAreWhatIsSaved_data();
    void theStatesAreWhatIsSaved();
    void everyTruncationIsRestoredAsByTheModel_data();
    void everyTruncationIsRestoredAsByTheModel();
    void everyChangeOfOneByteIsRestoredAsByTheModel_data();
    void everyChangeOfOneByteIsRestoredAsByTheModel();

private:
    void check(Kind kind, const QByteArray &damaged);
    void checkUse(const QByteArray &damaged, qint64 milliseconds);
    void checkThatTheHostIsSound(Host *host, Kind kind, const QByteArray &damaged);

    // At the beginning of the program, when no state has left free memory behind.
    qint64 m_residentBefore = 0;
};

void tst_RyToolBarManager_damage::initTestCase()
{
    forgetPeak();
    m_residentBefore = residentBytes();
}

void tst_RyToolBarManager_damage::aDefaultListEndsAThousandEntriesPastTheEnd_data()
{
    addPromises();
}

void tst_RyToolBarManager_damage::aDefaultListEndsAThousandEntriesPastTheEnd()
{
    QFETCH(qint32, promised);
    QFETCH(int, read);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open save"), A);
    QVERIFY(!host.manager.restoreState(
        version3().defaults(1).text("file").number(oneAnd(promised)).text("save").bytes(), 3));
    QCOMPARE(standingOn(file), words("save") + separators(read));
    QCOMPARE(contentOf(host.manager.actions(file)), standingOn(file));
}

void tst_RyToolBarManager_damage::aCustomListEndsAThousandEntriesPastTheEnd_data()
{
    addPromises();
}

void tst_RyToolBarManager_damage::aCustomListEndsAThousandEntriesPastTheEnd()
{
    QFETCH(qint32, promised);
    QFETCH(int, read);
    Host host;
    host.registered("save", A);
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(0)
                                          .customs(1)
                                          .text("mine")
                                          .text("Mine")
                                          .number(oneAnd(promised))
                                          .text("save")
                                          .bytes(),
                                      3));
    QCOMPARE(lines(host.manager),
             QStringList(lineOf(false, "mine", "Mine", words("save") + separators(read))));
}

void tst_RyToolBarManager_damage::theDefaultSectionEndsAThousandRecordsPastTheEnd_data()
{
    addPromises();
}

void tst_RyToolBarManager_damage::theDefaultSectionEndsAThousandRecordsPastTheEnd()
{
    QFETCH(qint32, promised);
    QFETCH(int, read);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open save"), A);
    QVERIFY(!host.manager.restoreState(
        version3().defaults(oneAnd(promised)).defaultToolBar("file", words("save")).bytes(), 3));
    QCOMPARE(takeWarnings(), namelessToolBars(read));
    QCOMPARE(standingOn(file), words("save"));
}

void tst_RyToolBarManager_damage::theCustomSectionEndsAThousandRecordsPastTheEnd_data()
{
    addPromises();
}

// Each record past the end gives the nameless toolbar an empty title, which can be counted.
void tst_RyToolBarManager_damage::theCustomSectionEndsAThousandRecordsPastTheEnd()
{
    QFETCH(qint32, promised);
    QFETCH(int, read);
    Host host;
    QToolBar *const nameless = host.defaultToolBar(QString(), words("open |"), A);
    nameless->setWindowTitle("Title");
    const TitleChanges changes(nameless);
    QVERIFY(host.manager.restoreState(version3()
                                          .defaults(0)
                                          .customs(oneAnd(promised))
                                          .customToolBar("mine", "Mine", words("open"))
                                          .bytes(),
                                      3));
    QCOMPARE(changes.count, read);
    QCOMPARE(
        lines(host.manager),
        (QStringList{read ? "default  '': " : "default  'Title': open |", "mine 'Mine': open"}));
}

void tst_RyToolBarManager_damage::customRecordsPastTheEndMakeOneNamelessToolBar_data()
{
    addPromises();
}

void tst_RyToolBarManager_damage::customRecordsPastTheEndMakeOneNamelessToolBar()
{
    QFETCH(qint32, promised);
    QFETCH(int, read);
    Host host;
    host.defaultToolBar("file", words("open"), A);
    QVERIFY(host.manager.restoreState(version3().defaults(0).customs(promised).bytes(), 3));
    QStringList layout{"default file 'File': open"};
    if (read)
        layout.prepend(" '': ");
    QCOMPARE(lines(host.manager), layout);
}

void tst_RyToolBarManager_damage::customRecordsPastTheEndMakeNoneWithoutAMainWindow()
{
    Host host;
    host.manager.setMainWindow(nullptr);
    QVERIFY(host.manager.restoreState(version3().defaults(0).customs(Highest).bytes(), 3));
    QVERIFY(host.manager.toolBars().isEmpty());
}

void tst_RyToolBarManager_damage::aListAndItsSectionEachReadAThousandPastTheEnd()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    QVERIFY(!host.manager.restoreState(
        version3().defaults(Highest).text("file").number(Highest).bytes(), 3));
    QCOMPARE(standingOn(file), separators(1000));
    QCOMPARE(takeWarnings(), namelessToolBars(1000));
}

void tst_RyToolBarManager_damage::entriesThatTheBytesHoldAreNotLimited()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    const QByteArray held = version3().defaults(1).defaultToolBar("file", separators(1500)).bytes();
    QVERIFY(host.manager.restoreState(held + StateWriter().customs(0).bytes(), 3));
    QCOMPARE(standingOn(file), separators(1500));
    QVERIFY(!host.manager.restoreState(
        version3().defaults(1).text("file").number(Highest).texts(separators(1500)).bytes(), 3));
    QCOMPARE(standingOn(file), separators(2500));
    StateWriter writer = version3().defaults(1100);
    for (int i = 0; i < 1100; ++i)
        writer.defaultToolBar(QString(), {});
    QVERIFY(host.manager.restoreState(writer.customs(0).bytes(), 3));
    QCOMPARE(takeWarnings(), namelessToolBars(1100));
}

void tst_RyToolBarManager_damage::entriesThatASequentialDeviceHoldsAreNotLimited()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    Pipe pipe(
        StateWriter().defaults(1).defaultToolBar("file", separators(1500)).customs(0).bytes());
    QVERIFY(pipe.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    QVERIFY(pipe.atEnd());
    QDataStream stream(&pipe);
    QVERIFY(host.manager.restoreStateData(stream));
    QCOMPARE(standingOn(file), separators(1500));
}

// From the first error on nothing more is read, though the device still has bytes.
void tst_RyToolBarManager_damage::aStreamInAFailedTransactionIsReadToAnEnd()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", words("open"), A);
    // An odd number of bytes is no string.
    QDataStream stream(StateWriter()
                           .defaults(Highest)
                           .text("file")
                           .number(Highest)
                           .number(3)
                           .texts(separators(5000))
                           .bytes());
    stream.startTransaction();
    QVERIFY(!host.manager.restoreStateData(stream));
    QVERIFY(!stream.commitTransaction());
    // One for the damaged string, which has bytes.
    QCOMPARE(standingOn(file), separators(1001));
    QCOMPARE(takeWarnings(), namelessToolBars(1000));
}

void tst_RyToolBarManager_damage::theStatesAreWhatIsSaved_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("no toolbars") << Kind::NoToolBars;
    QTest::newRow("defaults") << Kind::Defaults;
    QTest::newRow("defaults and customs") << Kind::DefaultsAndCustoms;
}

// What is damaged below is a state as it is saved, but for the order of the toolbars.
void tst_RyToolBarManager_damage::theStatesAreWhatIsSaved()
{
    QFETCH(Kind, kind);
    const auto host = freshHost(kind);
    const QByteArray state = stateOf(kind);
    QVERIFY(host->manager.restoreState(state, 3));
    const QByteArray saved = host->manager.saveState(3);
    takeWarnings();
    QCOMPARE(saved.size(), state.size());
    QStringList expected = SavedLayout::of(state).fields();
    QStringList fields = SavedLayout::of(saved).fields();
    expected.sort();
    fields.sort();
    QCOMPARE(fields, expected);
}

void tst_RyToolBarManager_damage::everyTruncationIsRestoredAsByTheModel_data()
{
    theStatesAreWhatIsSaved_data();
}

void tst_RyToolBarManager_damage::everyTruncationIsRestoredAsByTheModel()
{
    QFETCH(Kind, kind);
    const QByteArray state = stateOf(kind);
    for (int size = 0; size <= state.size(); ++size) {
        check(kind, state.left(size));
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_RyToolBarManager_damage::everyChangeOfOneByteIsRestoredAsByTheModel_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("position");
    const QList<QPair<Kind, const char *>> kinds{{Kind::NoToolBars, "no toolbars"},
                                                 {Kind::Defaults, "defaults"},
                                                 {Kind::DefaultsAndCustoms, "customs"}};
    for (const auto &kind : kinds) {
        for (int position = 0; position < stateOf(kind.first).size(); ++position)
            QTest::addRow("%s, byte %d", kind.second, position) << kind.first << position;
    }
}

void tst_RyToolBarManager_damage::everyChangeOfOneByteIsRestoredAsByTheModel()
{
    QFETCH(Kind, kind);
    QFETCH(int, position);
    const QByteArray state = stateOf(kind);
    const auto values = otherValues(state, state.at(position));
    for (const char value : values) {
        QByteArray damaged = state;
        damaged[position] = value;
        check(kind, damaged);
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_RyToolBarManager_damage::check(Kind kind, const QByteArray &damaged)
{
    const auto host = freshHost(kind);
    RestoreModel model(host->manager);
    const bool expectedResult = model.restore(damaged, 3);
    const QString expected = described(expectedResult, model.takeWarnings(), model.lines());
    const auto defaults = host->manager.defaultToolBars();

    const qint64 before = usedMilliseconds();
    const bool result = host->manager.restoreState(damaged, 3);
    checkUse(damaged, usedMilliseconds() - before);
    const QString actual = described(result, takeWarnings(), lines(host->manager));
    QVERIFY2(actual == expected,
             qPrintable(QString("%1:\nactual:   %2\nexpected: %3")
                            .arg(QString::fromLatin1(damaged.toHex(' ')), actual, expected)));
    QCOMPARE(host->manager.defaultToolBars(), defaults);
    checkThatTheHostIsSound(host.get(), kind, damaged);
}

// No state can have taken more than all of them together.
void tst_RyToolBarManager_damage::checkUse(const QByteArray &damaged, qint64 milliseconds)
{
    QVERIFY2(milliseconds < 1000, damaged.toHex(' ').constData());
    if (!memoryIsComparable())
        return;
    const qint64 growth = peakResidentBytes() - m_residentBefore;
    QVERIFY2(growth < 64 * 1024 * 1024, damaged.toHex(' ').constData());
}

void tst_RyToolBarManager_damage::checkThatTheHostIsSound(Host *host, Kind kind,
                                                          const QByteArray &damaged)
{
    const QStringList layout = lines(host->manager);
    const QByteArray saved = host->manager.saveState(3);
    QVERIFY2(host->manager.restoreState(saved, 3), damaged.toHex(' ').constData());
    takeWarnings();
    const QStringList again = lines(host->manager);
    QCOMPARE(again.filter("not on the widget"), QStringList());
    // The title of a nameless default toolbar may have become the name of another toolbar.
    if (kind != Kind::Defaults)
        QCOMPARE(again, layout);
}

QTEST_MAIN(tst_RyToolBarManager_damage)

#include "tst_rytoolbarmanager_damage.moc"
