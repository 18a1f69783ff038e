// SPDX-License-Identifier: MIT

#include "fieldoffset.h"
#include "rytreeitemmimedata.h"
#include "testcase.h"
#include "virtualslots.h"

#include <QTreeWidgetItem>
#include <QtTest>

namespace {

QList<qptrdiff> fieldOffsetsOf(const RyTreeItemMimeData &payload);

// The arguments of an explicit instantiation may name private members.
template <auto... Fields> struct FieldOffsets
{
    friend QList<qptrdiff> fieldOffsetsOf(const RyTreeItemMimeData &payload)
    {
        return {fieldOffset(payload, Fields)...};
    }
};

template struct FieldOffsets<&RyTreeItemMimeData::dragItem, &RyTreeItemMimeData::formatList>;

QString itemFormat()
{
    return "ItemMimeData";
}

} // namespace

class tst_RyTreeItemMimeData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutAnItemAndWithoutFormats();
    void reportsTheFormatOnceItIsSet();
    void reportsTheFormatThatWasGiven();
    void carriesTheItem();
    void aNullItemIsCarriedToo();
    void aSecondCallAppendsTheFormat_data();
    void aSecondCallAppendsTheFormat();
    void aSecondCallReplacesTheItem();
    void formatsAreACopy();
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
    void isKnownToTheMetaObjectSystem();
    void declaresNothingInItsMetaObject();
    void theFieldsStandInTheirOrder();
    void thereAreNoNewVirtualFunctions();
};

void tst_RyTreeItemMimeData::startsWithoutAnItemAndWithoutFormats()
{
    const RyTreeItemMimeData payload;
    QCOMPARE(payload.DragItemData(), nullptr);
    QCOMPARE(payload.formats(), QStringList());
    QVERIFY(!payload.hasFormat(itemFormat()));
}

void tst_RyTreeItemMimeData::reportsTheFormatOnceItIsSet()
{
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat(), &item);
    QCOMPARE(payload.formats(), QStringList{itemFormat()});
    QVERIFY(payload.hasFormat(itemFormat()));
    QVERIFY(!payload.hasFormat("text/plain"));
}

void tst_RyTreeItemMimeData::reportsTheFormatThatWasGiven()
{
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    payload.SetDragData("another/one", &item);
    QCOMPARE(payload.formats(), QStringList{"another/one"});
    QVERIFY(!payload.hasFormat(itemFormat()));
}

void tst_RyTreeItemMimeData::carriesTheItem()
{
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat(), &item);
    QCOMPARE(payload.DragItemData(), &item);
}

void tst_RyTreeItemMimeData::aNullItemIsCarriedToo()
{
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat(), nullptr);
    QCOMPARE(payload.DragItemData(), nullptr);
    QCOMPARE(payload.formats(), QStringList{itemFormat()});
}

void tst_RyTreeItemMimeData::aSecondCallAppendsTheFormat_data()
{
    QTest::addColumn<QString>("second");
    QTest::newRow("another") << "another/one";
    QTest::newRow("the same again") << itemFormat();
    QTest::newRow("empty") << QString();
}

void tst_RyTreeItemMimeData::aSecondCallAppendsTheFormat()
{
    QFETCH(QString, second);
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat(), &item);
    payload.SetDragData(second, &item);
    QCOMPARE(payload.formats(), (QStringList{itemFormat(), second}));
}

void tst_RyTreeItemMimeData::aSecondCallReplacesTheItem()
{
    QTreeWidgetItem first;
    QTreeWidgetItem second;
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat(), &first);
    payload.SetDragData(itemFormat(), &second);
    QCOMPARE(payload.DragItemData(), &second);
    payload.SetDragData(itemFormat(), nullptr);
    QCOMPARE(payload.DragItemData(), nullptr);
}

void tst_RyTreeItemMimeData::formatsAreACopy()
{
    RyTreeItemMimeData payload;
    payload.SetDragData(itemFormat(), nullptr);
    QStringList formats = payload.formats();
    formats.clear();
    QCOMPARE(payload.formats(), QStringList{itemFormat()});
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
    payload.SetDragData(itemFormat(), withItem ? &item : nullptr);
    const QVariant answer = payload.retrieveData(itemFormat(), QVariant::Type(type));
    QCOMPARE(answer.type(), QVariant::Bool);
    QCOMPARE(answer.toBool(), withItem);
}

void tst_RyTreeItemMimeData::retrievingTheItemFormatNeedsNoReportedFormat()
{
    QTreeWidgetItem item;
    RyTreeItemMimeData payload;
    QCOMPARE(payload.retrieveData(itemFormat(), QVariant::Bool), QVariant(false));
    payload.SetDragData("another/one", &item);
    QCOMPARE(payload.retrieveData(itemFormat(), QVariant::Bool), QVariant(true));
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
    payload.SetDragData(itemFormat(), &item);
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
    payload.SetDragData(itemFormat(), &item);
    QCOMPARE(payload.retrieveData(format, QVariant::Bool), QVariant());
    QVERIFY(!payload.hasFormat(format));
}

void tst_RyTreeItemMimeData::theItemFormatHidesDataStoredUnderIt()
{
    RyTreeItemMimeData payload;
    payload.setData(itemFormat(), QByteArrayLiteral("abc"));
    QCOMPARE(payload.retrieveData(itemFormat(), QVariant::ByteArray), QVariant(false));
}

void tst_RyTreeItemMimeData::destroyingItLeavesTheItem()
{
    QTreeWidgetItem parent;
    QTreeWidgetItem *const item = new QTreeWidgetItem(&parent, {"kept"});
    {
        RyTreeItemMimeData payload;
        payload.SetDragData(itemFormat(), item);
    }
    QCOMPARE(parent.childCount(), 1);
    QCOMPARE(parent.child(0)->text(0), "kept");
}

void tst_RyTreeItemMimeData::isKnownToTheMetaObjectSystem()
{
    const RyTreeItemMimeData payload;
    const QMimeData *const seen = &payload;
    QCOMPARE(qobject_cast<const RyTreeItemMimeData *>(seen), &payload);
    QCOMPARE(payload.metaObject()->className(), "RyTreeItemMimeData");
    QCOMPARE(payload.metaObject()->superClass(), &QMimeData::staticMetaObject);
    const QMimeData plain;
    QCOMPARE(qobject_cast<const RyTreeItemMimeData *>(&plain), nullptr);
}

void tst_RyTreeItemMimeData::declaresNothingInItsMetaObject()
{
    const QMetaObject &meta = RyTreeItemMimeData::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 0);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
}

void tst_RyTreeItemMimeData::theFieldsStandInTheirOrder()
{
    const RyTreeItemMimeData payload;
    const QList<qptrdiff> expected{sizeof(QMimeData), sizeof(QMimeData) + sizeof(void *)};
    QCOMPARE(fieldOffsetsOf(payload), expected);
}

void tst_RyTreeItemMimeData::thereAreNoNewVirtualFunctions()
{
    QCOMPARE(virtualSlotCount<RyTreeItemMimeData>(), virtualSlotCount<QMimeData>());
}

QTEST_MAIN(tst_RyTreeItemMimeData)

#include "tst_rytreeitemmimedata.moc"
