// SPDX-License-Identifier: MIT

#include "nameindex.h"
#include "testcase.h"

#include <QtTest>

namespace {

using Actions = QList<QAction *>;

// Actions by "objectName/text"; an empty objectName is never set.
class NamedActions
{
public:
    explicit NamedActions(const QStringList &names)
    {
        for (const QString &name : names) {
            QAction *const action = new QAction(name.section('/', 1), &m_parent);
            action->setObjectName(name.section('/', 0, 0));
            list << action;
        }
    }

    Actions list;

private:
    QObject m_parent;
};

} // namespace

class tst_NameIndex : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstOfTheListIsFound_data();
    void theFirstOfTheListIsFound();
    void anIndexFindsAgainAndAgain();
    void namesAreReadOnce();
    void toolBarsAreFoundByTheirTitle();
};

void tst_NameIndex::theFirstOfTheListIsFound_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("found");
    QTest::addColumn<int>("warnings");
    QTest::newRow("objectName") << "b" << 1 << 0;
    QTest::newRow("objectName of several") << "same" << 3 << 0;
    QTest::newRow("objectName behind a text") << "late" << 6 << 0;
    QTest::newRow("text") << "B" << 1 << 1;
    QTest::newRow("text of several") << "Same" << 2 << 1;
    QTest::newRow("text of a nameless one") << "Nameless" << 5 << 1;
    QTest::newRow("empty") << "" << 5 << 0;
    QTest::newRow("null") << QString() << 5 << 0;
    QTest::newRow("other case") << "SAME" << -1 << 2;
    QTest::newRow("unknown") << "x" << -1 << 2;
}

void tst_NameIndex::theFirstOfTheListIsFound()
{
    QFETCH(QString, name);
    QFETCH(int, found);
    QFETCH(int, warnings);
    const NamedActions actions(
        {"a/late", "b/B", "c/Same", "same/x y", "same/Same", "/Nameless", "late/Late"});
    QAction *const expected = actions.list.value(found);
    NameIndex<QAction> index(actions.list);
    QCOMPARE(index.find(name), expected);
    QCOMPARE(takeWarnings().size(), warnings);
    QCOMPARE(index.findByObjectName(name), warnings == 0 ? expected : nullptr);
    QCOMPARE(takeWarnings(), QStringList());
}

void tst_NameIndex::anIndexFindsAgainAndAgain()
{
    const NamedActions actions({"a/A", "b/B"});
    NameIndex<QAction> index(actions.list);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(index.find("B"), actions.list.at(1));
        QCOMPARE(index.find("a"), actions.list.at(0));
        QVERIFY(!index.find("c"));
        QCOMPARE(takeWarnings().size(), 3);
    }
    NameIndex<QAction> empty((Actions()));
    QVERIFY(!empty.find(QString()));
    QVERIFY(!empty.find(QString()));
    QCOMPARE(takeWarnings().size(), 4);
}

// Reading every name for each one that is searched would take quadratic time.
void tst_NameIndex::namesAreReadOnce()
{
    const NamedActions actions({"a/A"});
    NameIndex<QAction> index(actions.list);
    actions.list.first()->setObjectName("b");
    QCOMPARE(index.find("a"), actions.list.first());
    QVERIFY(!index.find("b"));
    actions.list.first()->setText("B");
    QCOMPARE(index.find("A"), actions.list.first());
    QCOMPARE(takeWarnings().size(), 3);
}

void tst_NameIndex::toolBarsAreFoundByTheirTitle()
{
    QToolBar first("Title");
    QToolBar second("Title");
    second.setObjectName("second");
    const QList<QToolBar *> toolBars{&first, &second};
    NameIndex<QToolBar> index(toolBars);
    QCOMPARE(index.find("second"), &second);
    QCOMPARE(index.find("Title"), &first);
    const QString warning =
        "RyToolBarManager::restoreState(): cannot find a QToolBar named 'Title', "
        "trying to match using 'windowTitle' instead.";
    QCOMPARE(takeWarnings(), QStringList{warning});
}

QTEST_MAIN(tst_NameIndex)

#include "tst_nameindex.moc"
