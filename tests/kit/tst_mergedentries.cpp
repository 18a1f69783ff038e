// SPDX-License-Identifier: MIT

#include "mergedentries.h"
#include "testcase.h"

#include <QRandomGenerator>
#include <QtTest>

class tst_mergedentries : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void missingNamesReturnBesideTheirNeighbours_data();
    void missingNamesReturnBesideTheirNeighbours();
    void whatIsTakenOutReturnsToItsPlace();
    void namesAreNewOnce_data();
    void namesAreNewOnce();
};

namespace {

// "a | b" for the list with a separator.
QStringList entries(const QString &text)
{
    QStringList list;
    const QStringList names = text.split(" ");
    for (const QString &name : names) {
        if (!name.isEmpty())
            list << (name == "|" ? QString() : name);
    }
    return list;
}

QString text(const QStringList &list)
{
    QStringList names;
    for (const QString &name : list)
        names << (name.isNull() ? QString("|") : name);
    return names.join(" ");
}

QSet<QString> set(const QStringList &names)
{
    return QSet<QString>(names.cbegin(), names.cend());
}

} // namespace

void tst_mergedentries::missingNamesReturnBesideTheirNeighbours_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("after");

    QTest::newRow("after its predecessor") << "a c"
                                           << "a b c"
                                           << "b"
                                           << "a b c";
    QTest::newRow("after an earlier predecessor") << "a d"
                                                  << "a b c d"
                                                  << "c"
                                                  << "a c d";
    QTest::newRow("at the front") << "b"
                                  << "a b"
                                  << "a"
                                  << "a b";
    QTest::newRow("before the first that is left") << "x b"
                                                   << "a b"
                                                   << "a"
                                                   << "x a b";
    QTest::newRow("into an empty list") << ""
                                        << "a b"
                                        << "a b"
                                        << "a b";
    QTest::newRow("several in a row") << "a d"
                                      << "a b c d"
                                      << "b c"
                                      << "a b c d";
    QTest::newRow("moved predecessor") << "c a"
                                       << "a b c"
                                       << "b"
                                       << "c a b";
    QTest::newRow("after a separator") << "a | c"
                                       << "a | b c"
                                       << "b"
                                       << "a | b c";
    QTest::newRow("between separators") << "a | | c"
                                        << "a | b | c"
                                        << "b"
                                        << "a | b | c";
    QTest::newRow("separator gone") << "a c"
                                    << "a | b c"
                                    << "b"
                                    << "a b c";
    QTest::newRow("before a separator at the front") << "| b"
                                                     << "a | b"
                                                     << "a"
                                                     << "a | b";
    QTest::newRow("both beside their neighbours") << "c b"
                                                  << "a b c d"
                                                  << "a d"
                                                  << "c d a b";
    QTest::newRow("not in the model") << "a"
                                      << "a"
                                      << "b"
                                      << "a";
    QTest::newRow("there already") << "b a"
                                   << "a b"
                                   << "b"
                                   << "b a";
    QTest::newRow("not missing") << "a"
                                 << "a b"
                                 << ""
                                 << "a";
}

void tst_mergedentries::missingNamesReturnBesideTheirNeighbours()
{
    QFETCH(QString, before);
    QFETCH(QString, model);
    QFETCH(QString, missing);
    QFETCH(QString, after);
    QCOMPARE(text(mergedEntries(entries(before), entries(model), set(entries(missing)))), after);
}

void tst_mergedentries::whatIsTakenOutReturnsToItsPlace()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 2000; ++round) {
        QStringList model;
        QStringList rest;
        QSet<QString> missing;
        const int size = random.bounded(9);
        for (int i = 0; i < size; ++i) {
            const int kind = random.bounded(3);
            model << (kind == 0 ? QString() : QString(QChar('a' + i)));
            if (kind == 1)
                missing << model.last();
            else
                rest << model.last();
        }
        QCOMPARE(text(mergedEntries(rest, model, missing)), text(model));
    }
}

void tst_mergedentries::namesAreNewOnce_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("known");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none is known") << "a b"
                                   << ""
                                   << "a b";
    QTest::newRow("all are known") << "a b"
                                   << "a b"
                                   << "";
    QTest::newRow("separators") << "| a | b |"
                                << "a b"
                                << "";
    QTest::newRow("in another order") << "a b c"
                                      << "c b a"
                                      << "";
    QTest::newRow("more are known") << "b"
                                    << "a b c"
                                    << "";
    QTest::newRow("new at the start") << "x a b"
                                      << "a b"
                                      << "x";
    QTest::newRow("new in between") << "a x b y"
                                    << "a b"
                                    << "x y";
    QTest::newRow("twice") << "a x a x"
                           << "a"
                           << "x";
}

void tst_mergedentries::namesAreNewOnce()
{
    QFETCH(const QString, names);
    QFETCH(const QString, known);
    QFETCH(const QString, expected);
    QCOMPARE(text(newNames(entries(names), entries(known))), expected);
}

QTEST_MAIN(tst_mergedentries)
#include "tst_mergedentries.moc"
