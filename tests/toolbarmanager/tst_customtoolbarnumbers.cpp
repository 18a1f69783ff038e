// SPDX-License-Identifier: MIT

#include "customtoolbarnumbers.h"
#include "testcase.h"

#include <QtTest>

namespace {

QString numbered(const QString &number)
{
    return QLatin1String("_Custom_Toolbar_") + number;
}

QString numbered(int number)
{
    return numbered(QString::number(number));
}

} // namespace

class tst_CustomToolBarNumbers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstNumberIsOne();
    void askingTakesNothing();
    void theFirstGapIsFound_data();
    void theFirstGapIsFound();
    void otherNamesBlockNothing_data();
    void otherNamesBlockNothing();
    void namesMayBeAddedBetweenQuestions();
    void manyNamesAreFreeInTurn();
    void highNumbersAreRemembered();
};

void tst_CustomToolBarNumbers::theFirstNumberIsOne()
{
    CustomToolBarNumbers numbers;
    QCOMPARE(numbers.firstFreeName(), QStringLiteral("_Custom_Toolbar_1"));
}

void tst_CustomToolBarNumbers::askingTakesNothing()
{
    CustomToolBarNumbers numbers;
    numbers.addName(numbered(1));
    QCOMPARE(numbers.firstFreeName(), numbered(2));
    QCOMPARE(numbers.firstFreeName(), numbered(2));
}

void tst_CustomToolBarNumbers::theFirstGapIsFound_data()
{
    QTest::addColumn<QList<int>>("taken");
    QTest::addColumn<int>("free");
    QTest::newRow("none taken") << QList<int>{} << 1;
    QTest::newRow("first taken") << QList<int>{1} << 2;
    QTest::newRow("later taken") << QList<int>{2, 3} << 1;
    QTest::newRow("gap") << QList<int>{1, 2, 4, 5} << 3;
    QTest::newRow("in falling order") << QList<int>{3, 2, 1} << 4;
    QTest::newRow("repeated") << QList<int>{1, 1, 2, 2} << 3;
    QTest::newRow("more digits") << QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9} << 10;
    QTest::newRow("highest taken") << QList<int>{2147483647} << 1;
}

void tst_CustomToolBarNumbers::theFirstGapIsFound()
{
    QFETCH(QList<int>, taken);
    QFETCH(int, free);
    CustomToolBarNumbers numbers;
    for (const int number : qAsConst(taken))
        numbers.addName(numbered(number));
    QCOMPARE(numbers.firstFreeName(), numbered(free));
}

void tst_CustomToolBarNumbers::otherNamesBlockNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("number alone") << QStringLiteral("1");
    QTest::newRow("other case") << QStringLiteral("_custom_toolbar_1");
    QTest::newRow("longer prefix") << QStringLiteral("x_Custom_Toolbar_1");
    const QStringList numbers{QStringLiteral(""),           QStringLiteral("0"),
                              QStringLiteral("01"),         QStringLiteral("+1"),
                              QStringLiteral("-1"),         QStringLiteral(" 1"),
                              QStringLiteral("1 "),         QStringLiteral("1.0"),
                              QStringLiteral("1a"),         QStringLiteral("0x1"),
                              QStringLiteral("4294967297"), QStringLiteral("2147483648"),
                              QStringLiteral("\u0661"),     QStringLiteral("99999999999999999999"),
                              QStringLiteral("%1")};
    for (const QString &number : numbers)
        QTest::newRow(qPrintable(numbered(number))) << numbered(number);
}

void tst_CustomToolBarNumbers::otherNamesBlockNothing()
{
    QFETCH(QString, name);
    CustomToolBarNumbers numbers;
    numbers.addName(name);
    QCOMPARE(numbers.firstFreeName(), numbered(1));
}

void tst_CustomToolBarNumbers::namesMayBeAddedBetweenQuestions()
{
    CustomToolBarNumbers numbers;
    QCOMPARE(numbers.firstFreeName(), numbered(1));
    numbers.addName(numbered(2));
    QCOMPARE(numbers.firstFreeName(), numbered(1));
    numbers.addName(numbered(1));
    QCOMPARE(numbers.firstFreeName(), numbered(3));
}

void tst_CustomToolBarNumbers::manyNamesAreFreeInTurn()
{
    CustomToolBarNumbers numbers;
    for (int i = 1; i <= 6000; ++i) {
        if (i % 3 == 0)
            numbers.addName(numbered(i));
    }
    for (int i = 1; i <= 6000; ++i) {
        if (i % 3 == 0)
            continue;
        QCOMPARE(numbers.firstFreeName(), numbered(i));
        numbers.addName(numbered(i));
    }
    QCOMPARE(numbers.firstFreeName(), numbered(6001));
}

// They are kept in another way than the low ones.
void tst_CustomToolBarNumbers::highNumbersAreRemembered()
{
    CustomToolBarNumbers numbers;
    for (int i = 5000; i >= 4000; --i)
        numbers.addName(numbered(i));
    for (int i = 1; i < 4000; ++i)
        numbers.addName(numbered(i));
    QCOMPARE(numbers.firstFreeName(), numbered(5001));
}

QTEST_APPLESS_MAIN(tst_CustomToolBarNumbers)

#include "tst_customtoolbarnumbers.moc"
