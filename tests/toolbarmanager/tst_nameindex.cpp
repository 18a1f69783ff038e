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
            QAction *const action = new QAction(name.section(QLatin1Char('/'), 1), &m_parent);
            action->setObjectName(name.section(QLatin1Char('/'), 0, 0));
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
    void toolBarsStandInWithTheirTitle();
};

void tst_NameIndex::theFirstOfTheListIsFound_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("found");
    QTest::addColumn<int>("warnings");
    QTest::newRow("objectName") << QStringLiteral("b") << 1 << 0;
    QTest::newRow("objectName of several") << QStringLiteral("same") << 3 << 0;
    QTest::newRow("objectName behind a text") << QStringLiteral("late") << 6 << 0;
    QTest::newRow("text") << QStringLiteral("B") << 1 << 1;
    QTest::newRow("text of several") << QStringLiteral("Same") << 2 << 1;
    QTest::newRow("text of a nameless one") << QStringLiteral("Nameless") << 5 << 1;
    QTest::newRow("empty") << QStringLiteral("") << 5 << 0;
    QTest::newRow("null") << QString() << 5 << 0;
    QTest::newRow("other case") << QStringLiteral("SAME") << -1 << 2;
    QTest::newRow("unknown") << QStringLiteral("x") << -1 << 2;
}

void tst_NameIndex::theFirstOfTheListIsFound()
{
    QFETCH(QString, name);
    QFETCH(int, found);
    QFETCH(int, warnings);
    const NamedActions actions({QStringLiteral("a/late"), QStringLiteral("b/B"),
                                QStringLiteral("c/Same"), QStringLiteral("same/x y"),
                                QStringLiteral("same/Same"), QStringLiteral("/Nameless"),
                                QStringLiteral("late/Late")});
    QAction *const expected = actions.list.value(found);
    NameIndex<QAction> index(actions.list);
    QCOMPARE(index.find(name), expected);
    QCOMPARE(takeWarnings().size(), warnings);
    QCOMPARE(index.findByObjectName(name), warnings == 0 ? expected : nullptr);
    QCOMPARE(takeWarnings(), QStringList());
}

void tst_NameIndex::anIndexFindsAgainAndAgain()
{
    const NamedActions actions({QStringLiteral("a/A"), QStringLiteral("b/B")});
    NameIndex<QAction> index(actions.list);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(index.find(QStringLiteral("B")), actions.list.at(1));
        QCOMPARE(index.find(QStringLiteral("a")), actions.list.at(0));
        QVERIFY(!index.find(QStringLiteral("c")));
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
    const NamedActions actions({QStringLiteral("a/A")});
    NameIndex<QAction> index(actions.list);
    actions.list.first()->setObjectName(QStringLiteral("b"));
    QCOMPARE(index.find(QStringLiteral("a")), actions.list.first());
    QVERIFY(!index.find(QStringLiteral("b")));
    actions.list.first()->setText(QStringLiteral("B"));
    QCOMPARE(index.find(QStringLiteral("A")), actions.list.first());
    QCOMPARE(takeWarnings().size(), 3);
}

void tst_NameIndex::toolBarsStandInWithTheirTitle()
{
    QToolBar first(QStringLiteral("Title"));
    QToolBar second(QStringLiteral("Title"));
    second.setObjectName(QStringLiteral("second"));
    const QList<QToolBar *> toolBars{&first, &second};
    NameIndex<QToolBar> index(toolBars);
    QCOMPARE(index.find(QStringLiteral("second")), &second);
    QCOMPARE(index.find(QStringLiteral("Title")), &first);
    const QString warning =
        QStringLiteral("RyToolBarManager::restoreState(): cannot find a QToolBar named 'Title', "
                       "trying to match using 'windowTitle' instead.");
    QCOMPARE(takeWarnings(), QStringList{warning});
}

QTEST_MAIN(tst_NameIndex)

#include "tst_nameindex.moc"
