// SPDX-License-Identifier: MIT

#include "goldenlayout.h"
#include "savedlayout.h"
#include "testcase.h"

#include <QDir>
#include <QtTest>

namespace {

const char GoldenDir[] = RY_GOLDEN_DIR;

// The layout that name.txt describes is that of the bytes in name.state.
QStringList namesOf(const char *suffix)
{
    const QDir dir(QString::fromUtf8(GoldenDir));
    QStringList names;
    const auto files = dir.entryInfoList({"*" + QString(suffix)}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        names << file.completeBaseName();
    return names;
}

QString pathOf(const QString &name, const char *suffix)
{
    return QString::fromUtf8(GoldenDir) + '/' + name + suffix;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

GoldenLayout layoutNamed(const QString &name)
{
    return GoldenLayout(QString::fromUtf8(contentOf(pathOf(name, ".txt"))));
}

QStringList sorted(QStringList lines)
{
    lines.sort();
    return lines;
}

} // namespace

/*
 * States that were saved once restore for ever, and are saved again with the same bytes.
 *
 * The order of toolbars in a state is that of their addresses. Where bytes are compared, the
 * toolbars of the host therefore have got their names in that order.
 */
class tst_RyToolBarManager_golden : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyStateHasItsText();
    void aStateIsRestoredAndSavedWithTheSameBytes_data();
    void aStateIsRestoredAndSavedWithTheSameBytes();
    void theTestsReadAndWriteTheSameBytes_data();
    void theTestsReadAndWriteTheSameBytes();
    void theLayoutOfTheTextIsSavedWithTheSameBytes_data();
    void theLayoutOfTheTextIsSavedWithTheSameBytes();

private:
    static void addRows();
    void checkWarnings(const GoldenLayout &layout);
};

// For a new state: write its text, and run this program once with RY_NEW_GOLDEN_STATES=1. States
// that exist are never written.
void tst_RyToolBarManager_golden::initTestCase()
{
    if (!qEnvironmentVariableIsSet("RY_NEW_GOLDEN_STATES"))
        return;
    const QStringList names = namesOf(".txt");
    for (const QString &name : names) {
        if (QFile::exists(pathOf(name, ".state")))
            continue;
        const GoldenLayout layout = layoutNamed(name);
        const auto host = layout.host();
        layout.addCustomToolBars(*host);
        layout.apply(*host);
        QFile file(pathOf(name, ".state"));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::NewOnly));
        file.write(host->manager.saveState(layout.version()));
    }
}

void tst_RyToolBarManager_golden::everyStateHasItsText()
{
    const QStringList states = namesOf(".state");
    QVERIFY(states.size() >= 14);
    QCOMPARE(namesOf(".txt"), states);
    for (const QString &name : states)
        QCOMPARE(layoutNamed(name).error(), QString());
}

void tst_RyToolBarManager_golden::addRows()
{
    QTest::addColumn<QString>("name");
    const QStringList names = namesOf(".state");
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_RyToolBarManager_golden::aStateIsRestoredAndSavedWithTheSameBytes_data()
{
    addRows();
}

// The fresh host makes its custom toolbars at any addresses, so that what it saves goes through a
// second host.
void tst_RyToolBarManager_golden::aStateIsRestoredAndSavedWithTheSameBytes()
{
    QFETCH(QString, name);
    const QByteArray state = contentOf(pathOf(name, ".state"));
    const GoldenLayout layout = layoutNamed(name);
    const auto fresh = layout.host();
    QVERIFY(!fresh->manager.restoreState(state, layout.version() ^ 1));
    QVERIFY(fresh->manager.restoreState(state, layout.version()));
    QCOMPARE(sorted(GoldenLayout::linesOf(*fresh)), sorted(layout.lines()));
    const QByteArray saved = fresh->manager.saveState(layout.version());
    QCOMPARE(saved.size(), state.size());

    const auto ordered = layout.host();
    layout.addCustomToolBars(*ordered);
    QVERIFY(ordered->manager.restoreState(saved, layout.version()));
    const QByteArray again = ordered->manager.saveState(layout.version());
    checkWarnings(layout);
    QCOMPARE(again.toHex(), state.toHex());
    QCOMPARE(GoldenLayout::linesOf(*ordered), layout.lines());
}

void tst_RyToolBarManager_golden::theTestsReadAndWriteTheSameBytes_data()
{
    addRows();
}

// All other tests of states rely on it.
void tst_RyToolBarManager_golden::theTestsReadAndWriteTheSameBytes()
{
    QFETCH(QString, name);
    const QByteArray state = contentOf(pathOf(name, ".state"));
    const SavedLayout layout = SavedLayout::of(state);
    QVERIFY(!layout.isShort);
    QCOMPARE(layout.surplus, 0);
    QCOMPARE(layout.bytes().toHex(), state.toHex());
}

void tst_RyToolBarManager_golden::theLayoutOfTheTextIsSavedWithTheSameBytes_data()
{
    addRows();
}

void tst_RyToolBarManager_golden::theLayoutOfTheTextIsSavedWithTheSameBytes()
{
    QFETCH(QString, name);
    const GoldenLayout layout = layoutNamed(name);
    const auto host = layout.host();
    layout.addCustomToolBars(*host);
    layout.apply(*host);
    const QByteArray saved = host->manager.saveState(layout.version());
    checkWarnings(layout);
    QCOMPARE(saved.toHex(), contentOf(pathOf(name, ".state")).toHex());
}

// Only of things without an objectName; init() and cleanup() see to all others.
void tst_RyToolBarManager_golden::checkWarnings(const GoldenLayout &layout)
{
    if (layout.hasNamelessThings())
        QVERIFY(!takeWarnings().isEmpty());
}

QTEST_MAIN(tst_RyToolBarManager_golden)

#include "tst_rytoolbarmanager_golden.moc"
