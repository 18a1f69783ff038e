// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "toolbaritem.h"

#include <QToolBar>
#include <QtTest>

#include <type_traits>

namespace {

QList<qptrdiff> fieldOffsetsOf(const ToolBarItem &item);

// In bytes from the start of the record.
template <typename Field> qptrdiff offsetOf(const ToolBarItem &item, Field ToolBarItem::*field)
{
    return reinterpret_cast<const char *>(&(item.*field)) - reinterpret_cast<const char *>(&item);
}

// The arguments of an explicit instantiation may name private members.
template <auto... Fields> struct FieldOffsets
{
    friend QList<qptrdiff> fieldOffsetsOf(const ToolBarItem &item)
    {
        return {offsetOf(item, Fields)...};
    }
};

template struct FieldOffsets<&ToolBarItem::m_toolBar, &ToolBarItem::m_toolBarName>;

} // namespace

class tst_ToolBarItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRecordOfAToolBarHasTheToolBarAndTheName();
    void theNameIsNotTakenFromTheToolBar();
    void aRecordOfANameHasNoToolBar();
    void theToolBarCanBeReplaced();
    void theNameIsKeptExactly_data();
    void theNameIsKeptExactly();
    void theNameIsReturnedAsACopy();
    void destroyingARecordLeavesTheToolBar();
    void theClassIsPlain();
    void theFieldsAreInOrder();
};

void tst_ToolBarItem::aRecordOfAToolBarHasTheToolBarAndTheName()
{
    QToolBar toolBar;
    const ToolBarItem item(&toolBar, "File");
    QCOMPARE(item.toolBar(), &toolBar);
    QCOMPARE(item.toolBarName(), "File");

    const ToolBarItem withoutToolBar(nullptr, "File");
    QCOMPARE(withoutToolBar.toolBar(), nullptr);
    QCOMPARE(withoutToolBar.toolBarName(), "File");
}

void tst_ToolBarItem::theNameIsNotTakenFromTheToolBar()
{
    QToolBar toolBar("Title");
    ToolBarItem item(&toolBar, "Name");
    QCOMPARE(item.toolBarName(), "Name");
    item.setToolBarName("Other");
    QCOMPARE(toolBar.windowTitle(), "Title");
}

void tst_ToolBarItem::aRecordOfANameHasNoToolBar()
{
    const ToolBarItem item("Mine");
    QCOMPARE(item.toolBar(), nullptr);
    QCOMPARE(item.toolBarName(), "Mine");
}

void tst_ToolBarItem::theToolBarCanBeReplaced()
{
    QToolBar toolBar;
    QToolBar other;
    ToolBarItem item("Mine");
    item.setToolBar(&toolBar);
    QCOMPARE(item.toolBar(), &toolBar);
    item.setToolBar(&other);
    QCOMPARE(item.toolBar(), &other);
    item.setToolBar(nullptr);
    QCOMPARE(item.toolBar(), nullptr);
    QCOMPARE(item.toolBarName(), "Mine");
}

void tst_ToolBarItem::theNameIsKeptExactly_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "  ";
    QTest::newRow("blanks around") << " My tools ";
    QTest::newRow("ampersand") << "&Tools";
    QTest::newRow("not ASCII") << QString::fromUtf8(
        "Gr\xC3\xB6\xC3\x9F\x65 \xE2\x80\x94 \xF0\x9F\x98\x80");
}

void tst_ToolBarItem::theNameIsKeptExactly()
{
    QFETCH(QString, name);
    QToolBar toolBar;
    QCOMPARE(ToolBarItem(name).toolBarName(), name);
    QCOMPARE(ToolBarItem(&toolBar, name).toolBarName(), name);
    ToolBarItem item(&toolBar, "Mine");
    item.setToolBarName(name);
    QCOMPARE(item.toolBarName(), name);
    QCOMPARE(item.toolBarName().isNull(), name.isNull());
    QCOMPARE(item.toolBar(), &toolBar);
}

void tst_ToolBarItem::theNameIsReturnedAsACopy()
{
    static_assert(
        std::is_same<decltype(std::declval<const ToolBarItem &>().toolBarName()), QString>::value,
        "by value");
    ToolBarItem item("Mine");
    const QString before = item.toolBarName();
    item.setToolBarName("Yours");
    QCOMPARE(before, "Mine");
}

void tst_ToolBarItem::destroyingARecordLeavesTheToolBar()
{
    QToolBar toolBar;
    const QPointer<QToolBar> guard(&toolBar);
    delete new ToolBarItem(&toolBar, "File");
    QVERIFY(guard);
}

void tst_ToolBarItem::theClassIsPlain()
{
    QVERIFY(!std::is_polymorphic<ToolBarItem>::value);
    QVERIFY(!std::is_default_constructible<ToolBarItem>::value);
    QCOMPARE(sizeof(ToolBarItem), sizeof(QToolBar *) + sizeof(QString));
}

void tst_ToolBarItem::theFieldsAreInOrder()
{
    const ToolBarItem item("Mine");
    const QList<qptrdiff> expected{0, sizeof(QToolBar *)};
    QCOMPARE(fieldOffsetsOf(item), expected);
}

QTEST_MAIN(tst_ToolBarItem)

#include "tst_toolbaritem.moc"
