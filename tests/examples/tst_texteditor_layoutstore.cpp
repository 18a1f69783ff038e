// SPDX-License-Identifier: MIT

#include "layoutstore.h"
#include "testcase.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class tst_TextEditorLayoutStore : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasWrittenIsRead();
    void whatWasWrittenIsReadByTheNextRun();
    void emptyArraysAreWrittenAndRead();
    void nothingIsStoredAtFirstAndAfterClear();
    void clearLeavesOtherSettingsAlone();
    void otherVersionsAreReported_data();
    void otherVersionsAreReported();
    void everyChangedByteIsFound_data();
    void everyChangedByteIsFound();
    void everyTruncationIsFound_data();
    void everyTruncationIsFound();
    void bytesThatMovedToTheNextArrayAreFound();
    void aResultOtherThanReadLeavesTheLayoutAlone();

protected:
    void prepare() override { m_folder.reset(new QTemporaryDir); }

private:
    QString settingsFile() const { return m_folder->filePath("settings.ini"); }
    QScopedPointer<QTemporaryDir> m_folder;
};

namespace {

using Result = LayoutStore::Result;

LayoutStore::Layout someLayout()
{
    return {QByteArray("tool\0bars\xff", 10), QByteArray("window;\"\\", 9),
            QByteArray("@ByteArray(\n", 12)};
}

void compare(const LayoutStore::Layout &actual, const LayoutStore::Layout &expected)
{
    QCOMPARE(actual.toolBars, expected.toolBars);
    QCOMPARE(actual.window, expected.window);
    QCOMPARE(actual.geometry, expected.geometry);
}

void addKeyRows()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"layout/toolBars", "layout/window", "layout/geometry"})
        QTest::newRow(key) << key;
}

} // namespace

Q_DECLARE_METATYPE(LayoutStore::Result)

void tst_TextEditorLayoutStore::whatWasWrittenIsRead()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    LayoutStore store(&settings);
    store.write(someLayout());
    LayoutStore::Layout layout;
    QVERIFY(store.read(&layout) == Result::Read);
    compare(layout, someLayout());
}

void tst_TextEditorLayoutStore::whatWasWrittenIsReadByTheNextRun()
{
    {
        QSettings settings(settingsFile(), QSettings::IniFormat);
        LayoutStore(&settings).write(someLayout());
    }
    // Settings objects of one file share what they have read; a copy of the file has to be read.
    const QString copy = m_folder->filePath("copy.ini");
    QVERIFY(QFile::copy(settingsFile(), copy));
    QSettings settings(copy, QSettings::IniFormat);
    LayoutStore::Layout layout;
    QVERIFY(LayoutStore(&settings).read(&layout) == Result::Read);
    compare(layout, someLayout());
}

void tst_TextEditorLayoutStore::emptyArraysAreWrittenAndRead()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    LayoutStore store(&settings);
    store.write({QByteArray(), QByteArray(""), QByteArray("x")});
    settings.sync();
    LayoutStore::Layout layout = someLayout();
    QVERIFY(store.read(&layout) == Result::Read);
    compare(layout, {QByteArray(), QByteArray(), QByteArray("x")});
}

void tst_TextEditorLayoutStore::nothingIsStoredAtFirstAndAfterClear()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    LayoutStore store(&settings);
    LayoutStore::Layout layout;
    QVERIFY(store.read(&layout) == Result::Nothing);
    store.write(someLayout());
    store.clear();
    QVERIFY(store.read(&layout) == Result::Nothing);
    QCOMPARE(settings.allKeys(), QStringList());
}

void tst_TextEditorLayoutStore::clearLeavesOtherSettingsAlone()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue("layouts", 1);
    settings.setValue("view/wordWrap", true);
    LayoutStore store(&settings);
    store.write(someLayout());
    store.clear();
    QCOMPARE(settings.allKeys(), QStringList({"layouts", "view/wordWrap"}));
}

void tst_TextEditorLayoutStore::otherVersionsAreReported_data()
{
    QTest::addColumn<QVariant>("version");
    QTest::addColumn<Result>("result");

    QTest::newRow("this one as text") << QVariant("1") << Result::Read;
    QTest::newRow("older") << QVariant(0) << Result::OtherVersion;
    QTest::newRow("newer") << QVariant(2) << Result::OtherVersion;
    QTest::newRow("negative") << QVariant(-1) << Result::OtherVersion;
    QTest::newRow("text") << QVariant("one") << Result::Damaged;
    QTest::newRow("list") << QVariant(QStringList{"1", "1"}) << Result::Damaged;
    QTest::newRow("missing") << QVariant() << Result::Damaged;
}

void tst_TextEditorLayoutStore::otherVersionsAreReported()
{
    QFETCH(QVariant, version);
    QFETCH(Result, result);
    QSettings settings(settingsFile(), QSettings::IniFormat);
    LayoutStore store(&settings);
    store.write(someLayout());
    if (version.isValid())
        settings.setValue("layout/version", version);
    else
        settings.remove("layout/version");
    LayoutStore::Layout layout;
    QVERIFY(store.read(&layout) == result);
}

void tst_TextEditorLayoutStore::everyChangedByteIsFound_data()
{
    addKeyRows();
}

void tst_TextEditorLayoutStore::everyChangedByteIsFound()
{
    QFETCH(QString, key);
    QSettings settings(settingsFile(), QSettings::IniFormat);
    LayoutStore store(&settings);
    store.write(someLayout());
    const QByteArray bytes = settings.value(key).toByteArray();
    QVERIFY(!bytes.isEmpty());
    LayoutStore::Layout layout;
    for (int i = 0; i < bytes.size(); ++i) {
        QByteArray changed = bytes;
        changed[i] = static_cast<char>(changed.at(i) ^ 1);
        settings.setValue(key, changed);
        QVERIFY(store.read(&layout) == Result::Damaged);
    }
}

void tst_TextEditorLayoutStore::everyTruncationIsFound_data()
{
    addKeyRows();
}

void tst_TextEditorLayoutStore::everyTruncationIsFound()
{
    QFETCH(QString, key);
    QSettings settings(settingsFile(), QSettings::IniFormat);
    LayoutStore store(&settings);
    store.write(someLayout());
    const QByteArray bytes = settings.value(key).toByteArray();
    LayoutStore::Layout layout;
    for (int size = 0; size < bytes.size(); ++size) {
        settings.setValue(key, bytes.left(size));
        QVERIFY(store.read(&layout) == Result::Damaged);
    }
}

void tst_TextEditorLayoutStore::bytesThatMovedToTheNextArrayAreFound()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    LayoutStore store(&settings);
    store.write({QByteArray("ab"), QByteArray("cd"), QByteArray("ef")});
    settings.setValue("layout/toolBars", QByteArray("a"));
    settings.setValue("layout/window", QByteArray("bcd"));
    LayoutStore::Layout layout;
    QVERIFY(store.read(&layout) == Result::Damaged);
}

void tst_TextEditorLayoutStore::aResultOtherThanReadLeavesTheLayoutAlone()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    LayoutStore store(&settings);
    store.write({QByteArray("a"), QByteArray("b"), QByteArray("c")});
    settings.setValue("layout/window", QByteArray("x"));
    LayoutStore::Layout layout = someLayout();
    QVERIFY(store.read(&layout) == Result::Damaged);
    compare(layout, someLayout());
}

QTEST_MAIN(tst_TextEditorLayoutStore)

#include "tst_texteditor_layoutstore.moc"
