// SPDX-License-Identifier: MIT

#include "formerlayout.h"
#include "statewriter.h"
#include "testcase.h"

#include <QtTest>

/*
 * How much is read. What becomes of it is tested with windows.
 */
class tst_FormerLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void atMost1000ItemsOfAKindAreRead_data();
    void atMost1000ItemsOfAKindAreRead();
    void aNegativeCountIsRefused_data();
    void aNegativeCountIsRefused();
};

namespace {

QByteArray managerState(int defaults, int customs, int entries)
{
    StateWriter writer = StateWriter::ofVersion(0);
    writer.defaults(defaults);
    for (int i = 0; i < defaults; ++i) {
        writer.text("a").number(entries);
        for (int j = 0; j < entries; ++j)
            writer.text("open");
    }
    writer.customs(customs);
    for (int i = 0; i < customs; ++i)
        writer.customToolBar("b", "B", {});
    return writer.bytes();
}

// Only what a kit reads of them.
QByteArray windowState(int lines, int toolBars)
{
    StateWriter writer = StateWriter::ofVersion(0);
    writer.byte(0xfc).number(lines);
    for (int i = 0; i < lines; ++i) {
        writer.number(2).number(toolBars);
        for (int j = 0; j < toolBars; ++j)
            writer.text("a").byte(1).number(0).number(0).number(0).number(0);
    }
    return writer.bytes();
}

} // namespace

void tst_FormerLayout::atMost1000ItemsOfAKindAreRead_data()
{
    QTest::addColumn<QByteArray>("most");
    QTest::addColumn<QByteArray>("tooMany");
    QTest::newRow("default toolbars") << managerState(1000, 0, 1) << managerState(1001, 0, 1);
    QTest::newRow("custom toolbars") << managerState(0, 1000, 0) << managerState(0, 1001, 0);
    QTest::newRow("entries") << managerState(1, 0, 1000) << managerState(1, 0, 1001);
    QTest::newRow("lines") << windowState(1000, 1) << windowState(1001, 1);
    QTest::newRow("toolbars of a line") << windowState(1, 1000) << windowState(1, 1001);
}

void tst_FormerLayout::atMost1000ItemsOfAKindAreRead()
{
    QFETCH(QByteArray, most);
    QFETCH(QByteArray, tooMany);
    QVERIFY(FormerLayout().read(most));
    QVERIFY(!FormerLayout().read(tooMany));
}

void tst_FormerLayout::aNegativeCountIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("default toolbars") << managerState(-1, 0, 0);
    QTest::newRow("custom toolbars") << managerState(0, -1, 0);
    QTest::newRow("entries") << managerState(1, 0, -1);
    QTest::newRow("lines") << windowState(-1, 0);
    QTest::newRow("toolbars of a line") << windowState(1, -1);
}

void tst_FormerLayout::aNegativeCountIsRefused()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!FormerLayout().read(bytes));
}

QTEST_MAIN(tst_FormerLayout)
#include "tst_formerlayout.moc"
