// SPDX-License-Identifier: MIT

#include "rytreeitemmimedata.h"
#include "testcase.h"

#include <QTreeWidgetItem>
#include <QtTest>

namespace {

using PreferredType = RyTreeItemMimeData::PreferredType;

const QString itemFormat = "ItemMimeData";
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
const PreferredType AsBool = QVariant::Bool;
const PreferredType AsBytes = QVariant::ByteArray;
#else
const PreferredType AsBool(QMetaType::Bool);
const PreferredType AsBytes(QMetaType::QByteArray);
#endif

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
    const struct
    {
        const char *name;
        QMetaType::Type type;
    } types[] = {{"none", QMetaType::UnknownType}, {"bool", QMetaType::Bool},
                 {"int", QMetaType::Int},          {"string", QMetaType::QString},
                 {"bytes", QMetaType::QByteArray}, {"list", QMetaType::QVariantList},
                 {"color", QMetaType::QColor}};
    for (const auto &asked : types) {
        QTest::addRow("item, asked for %s", asked.name) << true << int(asked.type);
        QTest::addRow("null, asked for %s", asked.name) << false << int(asked.type);
    }
}

void tst_RyTreeItemMimeData::retrievingTheItemFormatSaysWhetherThereIsAnItem()
{
    QFETCH(bool, withItem);
    QFETCH(int, type);
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat, withItem ? &item : nullptr);
    const QVariant answer = payload.retrieveData(itemFormat, PreferredType(type));
    QCOMPARE(answer.userType(), int(QMetaType::Bool));
    QCOMPARE(answer.toBool(), withItem);
}

void tst_RyTreeItemMimeData::retrievingTheItemFormatNeedsNoReportedFormat()
{
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    QCOMPARE(payload.retrieveData(itemFormat, AsBool), QVariant(false));
    payload.SetDragData("another/one", &item);
    QCOMPARE(payload.retrieveData(itemFormat, AsBool), QVariant(true));
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
    QCOMPARE(payload.retrieveData(format, AsBytes), expected);
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
    QCOMPARE(payload.retrieveData(format, AsBool), QVariant());
    QVERIFY(!payload.hasFormat(format));
}

void tst_RyTreeItemMimeData::theItemFormatHidesDataStoredUnderIt()
{
    RyTreeItemMimeData payload;
    payload.setData(itemFormat, QByteArrayLiteral("abc"));
    QCOMPARE(payload.retrieveData(itemFormat, AsBytes), QVariant(false));
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
