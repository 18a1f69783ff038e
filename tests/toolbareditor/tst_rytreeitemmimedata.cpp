// SPDX-License-Identifier: MIT

#include "rytreeitemmimedata.h"
#include "testcase.h"

#include <QTreeWidgetItem>
#include <QtTest>

namespace {

const QString itemFormat = "ItemMimeData";

} // namespace

class tst_RyTreeItemMimeData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutAnItemAndWithoutFormats();
    void carriesTheItemAndReportsTheFormat();
    void aSecondCallAppendsTheFormatAndReplacesTheItem_data();
    void aSecondCallAppendsTheFormatAndReplacesTheItem();
    void otherContentIsNoFormat();
    void retrievingTheItemFormatSaysWhetherThereIsAnItem_data();
    void retrievingTheItemFormatSaysWhetherThereIsAnItem();
    void retrievingTheItemFormatNeedsNoReportedFormat();
    void otherFormatsComeFromTheBaseClass_data();
    void otherFormatsComeFromTheBaseClass();
    void theItemFormatIsComparedExactly_data();
    void theItemFormatIsComparedExactly();
    void theItemFormatHidesDataStoredUnderIt();
    void destroyingItLeavesTheItem();
};

void tst_RyTreeItemMimeData::startsWithoutAnItemAndWithoutFormats()
{
    const RyTreeItemMimeData payload;
    QCOMPARE(payload.DragItemData(), nullptr);
    QCOMPARE(payload.formats(), QStringList());
    QVERIFY(!payload.hasFormat(itemFormat));
}

void tst_RyTreeItemMimeData::carriesTheItemAndReportsTheFormat()
{
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat, &item);
    QCOMPARE(payload.DragItemData(), &item);
    QCOMPARE(payload.formats(), QStringList{itemFormat});
    QVERIFY(payload.hasFormat(itemFormat));
    QVERIFY(!payload.hasFormat("text/plain"));
}

void tst_RyTreeItemMimeData::aSecondCallAppendsTheFormatAndReplacesTheItem_data()
{
    QTest::addColumn<QString>("second");
    QTest::newRow("another") << "another/one";
    QTest::newRow("the same again") << itemFormat;
    QTest::newRow("empty") << QString();
}

void tst_RyTreeItemMimeData::aSecondCallAppendsTheFormatAndReplacesTheItem()
{
    QFETCH(QString, second);
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat, &item);
    payload.SetDragData(second, nullptr);
    QCOMPARE(payload.formats(), QStringList({itemFormat, second}));
    QCOMPARE(payload.DragItemData(), nullptr);
}

void tst_RyTreeItemMimeData::otherContentIsNoFormat()
{
    RyTreeItemMimeData payload;
    payload.setData("text/plain", QByteArrayLiteral("words"));
    QCOMPARE(payload.formats(), QStringList());
    QVERIFY(!payload.hasFormat("text/plain"));
}

void tst_RyTreeItemMimeData::retrievingTheItemFormatSaysWhetherThereIsAnItem_data()
{
    QTest::addColumn<bool>("withItem");
    QTest::addColumn<int>("type");
    const QList<QVariant::Type> types = {QVariant::Invalid, QVariant::Bool,      QVariant::Int,
                                         QVariant::String,  QVariant::ByteArray, QVariant::List,
                                         QVariant::Color};
    for (const QVariant::Type type : types) {
        const char *const name = type == QVariant::Invalid ? "none" : QVariant::typeToName(type);
        QTest::addRow("item, asked for %s", name) << true << int(type);
        QTest::addRow("null, asked for %s", name) << false << int(type);
    }
}

void tst_RyTreeItemMimeData::retrievingTheItemFormatSaysWhetherThereIsAnItem()
{
    QFETCH(bool, withItem);
    QFETCH(int, type);
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat, withItem ? &item : nullptr);
    const QVariant answer = payload.retrieveData(itemFormat, QVariant::Type(type));
    QCOMPARE(answer.type(), QVariant::Bool);
    QCOMPARE(answer.toBool(), withItem);
}

void tst_RyTreeItemMimeData::retrievingTheItemFormatNeedsNoReportedFormat()
{
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    QCOMPARE(payload.retrieveData(itemFormat, QVariant::Bool), QVariant(false));
    payload.SetDragData("another/one", &item);
    QCOMPARE(payload.retrieveData(itemFormat, QVariant::Bool), QVariant(true));
}

void tst_RyTreeItemMimeData::otherFormatsComeFromTheBaseClass_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("stored") << "my/bytes" << QVariant(QByteArrayLiteral("abc"));
    QTest::newRow("not stored") << "my/other" << QVariant();
    QTest::newRow("empty") << QString() << QVariant();
}

void tst_RyTreeItemMimeData::otherFormatsComeFromTheBaseClass()
{
    QFETCH(QString, format);
    QFETCH(QVariant, expected);
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat, &item);
    payload.setData("my/bytes", QByteArrayLiteral("abc"));
    QCOMPARE(payload.retrieveData(format, QVariant::ByteArray), expected);
}

void tst_RyTreeItemMimeData::theItemFormatIsComparedExactly_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("lower case") << "itemmimedata";
    QTest::newRow("upper case") << "ITEMMIMEDATA";
    QTest::newRow("longer") << "ItemMimeData ";
    QTest::newRow("shorter") << "ItemMimeDat";
    QTest::newRow("as a subtype") << "application/ItemMimeData";
}

void tst_RyTreeItemMimeData::theItemFormatIsComparedExactly()
{
    QFETCH(QString, format);
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat, &item);
    QCOMPARE(payload.retrieveData(format, QVariant::Bool), QVariant());
    QVERIFY(!payload.hasFormat(format));
}

void tst_RyTreeItemMimeData::theItemFormatHidesDataStoredUnderIt()
{
    RyTreeItemMimeData payload;
    payload.setData(itemFormat, QByteArrayLiteral("abc"));
    QCOMPARE(payload.retrieveData(itemFormat, QVariant::ByteArray), QVariant(false));
}

void tst_RyTreeItemMimeData::destroyingItLeavesTheItem()
{
    QTreeWidgetItem parent;
    QTreeWidgetItem *const item = new QTreeWidgetItem(&parent, {"kept"});
    {
        RyTreeItemMimeData payload;
        payload.SetDragData(itemFormat, item);
    }
    QCOMPARE(parent.childCount(), 1);
    QCOMPARE(parent.child(0)->text(0), "kept");
}

QTEST_MAIN(tst_RyTreeItemMimeData)

#include "tst_rytreeitemmimedata.moc"
