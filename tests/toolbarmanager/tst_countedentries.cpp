// SPDX-License-Identifier: MIT

#include "countedentries.h"
#include "pipe.h"
#include "testcase.h"

#include <QDataStream>
#include <QtTest>

#include <limits>

namespace {

// Counts the entries of one byte each that a list of that count has in the stream.
int entriesOf(QDataStream &stream, qint32 count)
{
    int entries = 0;
    CountedEntries counted(stream, count);
    while (counted.next()) {
        qint8 byte = 0;
        stream >> byte;
        ++entries;
    }
    return entries;
}

} // namespace

class tst_CountedEntries : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void entriesAreCountedOff_data();
    void entriesAreCountedOff();
    void anEndedListStaysEnded();
    void entriesThatAreNotReadCountToo();
    void aSequentialDeviceIsReadToItsEnd_data();
    void aSequentialDeviceIsReadToItsEnd();
    void anEarlierErrorCutsNothing();
    void anEarlierErrorCutsNothingOfASequentialDevice();
    void aFailedTransactionEnds();
    void eachListMayGoAsFarPastTheEnd();
};

void tst_CountedEntries::entriesAreCountedOff_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<qint32>("count");
    QTest::addColumn<int>("entries");
    const qint32 highest = std::numeric_limits<qint32>::max();
    const qint32 lowest = std::numeric_limits<qint32>::min();
    QTest::newRow("none") << 5 << qint32(0) << 0;
    QTest::newRow("negative") << 5 << qint32(-1) << 0;
    QTest::newRow("lowest") << 5 << lowest << 0;
    QTest::newRow("lowest without bytes") << 0 << lowest << 0;
    QTest::newRow("fewer than there are bytes") << 5 << qint32(4) << 4;
    QTest::newRow("as many as there are bytes") << 5 << qint32(5) << 5;
    QTest::newRow("many bytes") << 5000 << qint32(5000) << 5000;
    QTest::newRow("1 past the end") << 5 << qint32(6) << 6;
    QTest::newRow("999 past the end") << 5 << qint32(1004) << 1004;
    QTest::newRow("1000 past the end") << 5 << qint32(1005) << 1005;
    QTest::newRow("1001 past the end") << 5 << qint32(1006) << 1005;
    QTest::newRow("1000 without bytes") << 0 << qint32(1000) << 1000;
    QTest::newRow("1001 without bytes") << 0 << qint32(1001) << 1000;
    QTest::newRow("highest") << 5 << highest << 1005;
    QTest::newRow("highest with many bytes") << 5000 << highest << 6000;
}

void tst_CountedEntries::entriesAreCountedOff()
{
    QFETCH(int, bytes);
    QFETCH(qint32, count);
    QFETCH(int, entries);
    QDataStream stream(QByteArray(bytes, '\0'));
    QCOMPARE(entriesOf(stream, count), entries);
}

void tst_CountedEntries::anEndedListStaysEnded()
{
    const QByteArray bytes(1, '\0');
    QDataStream stream(bytes);
    CountedEntries counted(stream, 1);
    QVERIFY(counted.next());
    QVERIFY(!counted.next());
    QVERIFY(!counted.next());

    QDataStream empty((QByteArray()));
    CountedEntries cut(empty, 5000);
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(cut.next());
        qint8 byte = 0;
        empty >> byte;
    }
    for (int i = 0; i < 1000; ++i)
        QVERIFY(!cut.next());
}

void tst_CountedEntries::entriesThatAreNotReadCountToo()
{
    const QByteArray bytes(3, '\0');
    QDataStream stream(bytes);
    CountedEntries counted(stream, 2);
    QVERIFY(counted.next());
    QVERIFY(counted.next());
    QVERIFY(!counted.next());
}

void tst_CountedEntries::aSequentialDeviceIsReadToItsEnd_data()
{
    QTest::addColumn<bool>("buffered");
    QTest::newRow("buffered") << true;
    // Has nothing available and is at its end at all times.
    QTest::newRow("unbuffered") << false;
}

void tst_CountedEntries::aSequentialDeviceIsReadToItsEnd()
{
    QFETCH(bool, buffered);
    Pipe pipe(QByteArray(5000, '\0'));
    QVERIFY(
        pipe.open(buffered ? QIODevice::ReadOnly : QIODevice::ReadOnly | QIODevice::Unbuffered));
    QDataStream stream(&pipe);
    QCOMPARE(entriesOf(stream, 3000), 3000);
    QCOMPARE(entriesOf(stream, std::numeric_limits<qint32>::max()), 3000);
}

void tst_CountedEntries::anEarlierErrorCutsNothing()
{
    QDataStream stream(QByteArray(5000, '\0'));
    stream.setStatus(QDataStream::ReadCorruptData);
    QCOMPARE(entriesOf(stream, 3000), 3000);
    QCOMPARE(entriesOf(stream, std::numeric_limits<qint32>::max()), 3000);
    QCOMPARE(stream.status(), QDataStream::ReadCorruptData);
}

void tst_CountedEntries::anEarlierErrorCutsNothingOfASequentialDevice()
{
    Pipe pipe(QByteArray(5000, '\0'));
    QVERIFY(pipe.open(QIODevice::ReadOnly));
    QDataStream stream(&pipe);
    stream.setStatus(QDataStream::ReadCorruptData);
    QCOMPARE(entriesOf(stream, 3000), 3000);
}

// Qt reads nothing more from it, though the device is not at its end.
void tst_CountedEntries::aFailedTransactionEnds()
{
    QDataStream stream(QByteArray(5000, '\0'));
    stream.startTransaction();
    QCOMPARE(entriesOf(stream, 10), 10);
    stream.setStatus(QDataStream::ReadCorruptData);
    QCOMPARE(entriesOf(stream, std::numeric_limits<qint32>::max()), 1000);
}

void tst_CountedEntries::eachListMayGoAsFarPastTheEnd()
{
    QDataStream stream(QByteArray(2, '\0'));
    QCOMPARE(entriesOf(stream, 2000), 1002);
    QCOMPARE(entriesOf(stream, 2000), 1000);
    QCOMPARE(entriesOf(stream, 500), 500);
}

QTEST_GUILESS_MAIN(tst_CountedEntries)

#include "tst_countedentries.moc"
