// SPDX-License-Identifier: MIT

#include "editorsession.h"
#include "testcase.h"
#include "texts.h"

#include <RyToolBarKit>
#include <QFile>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolBar>
#include <QtTest>

/*
 * The text editor as a host of the kit: its toolbars from one run to the next, and what its user
 * hears about them.
 */
class tst_TextEditorLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStartShowsTheDefaultsWithoutANotice();
    void theKitHasNothingToReport();
    void aCustomToolBarIsBackInItsPlaceWithItsContent();
    void aCustomToolBarOutlivesACrashAfterTheDialog();
    void hiddenToolBarsStayHidden();
    void theGeometryIsBack();
    void resetBringsTheDefaultsBackAndStoresThem();
    void forgettingTheLayoutShowsTheDefaults();
    void forgettingTheLayoutKeepsOtherSettings();
    void aDamagedLayoutIsReported_data();
    void aDamagedLayoutIsReported();
    void theNoticeIsSeenWithoutStatusBar();
    void theNoticeOutlivesStatusTips();
    void theNextLayoutReplacesTheDamagedOne();
    void aDamagedSettingsFileIsReported();
    void aSettingsFileThatCannotBeWrittenIsReported_data();
    void aSettingsFileThatCannotBeWrittenIsReported();

protected:
    void prepare() override;

private:
    QString settingsFile() const { return m_folder->filePath("settings.ini"); }
    void storeFavoritesAtTheLeft();

    QScopedPointer<QTemporaryDir> m_folder;
};

namespace {

const QStringList DefaultTitles{"Edit", "File", "Format"};
const QString Refused = "The stored toolbars cannot be read; a copy of them or the default "
                        "toolbars are shown.";

// The toolbars as they are without any stored layout.
void verifyDefaults(const EditorSession &session)
{
    QCOMPARE(session.toolBarTitles(), DefaultTitles);
    QCOMPARE(standingOn(session.toolBar("File")).join(' '),
             "file_new file_open file_save | file_reload");
    for (const QString &title : DefaultTitles) {
        QToolBar *const toolBar = session.toolBar(title);
        QVERIFY2(toolBar->isVisible(), qPrintable(title));
        QCOMPARE(session.window.toolBarArea(toolBar), Qt::TopToolBarArea);
    }
}

// Both copies of the layout in the settings become this.
void damageLayout(QSettings *settings, const QVariant &value)
{
    QStringList keys = settings->allKeys().filter("layout/");
    QCOMPARE(keys.removeAll("layout/toolBars.dialog"), 1); // the size of the dialog
    QCOMPARE(keys.removeAll("layout/toolBars.steps"), 1);
    QCOMPARE(keys.size(), 2);
    for (const QString &key : keys)
        settings->setValue(key, value);
    settings->sync();
}

QByteArray contentOfFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void tst_TextEditorLayout::prepare()
{
    m_folder.reset(new QTemporaryDir);
}

// A whole session: the user makes a toolbar, moves it to the left, and closes the window.
void tst_TextEditorLayout::storeFavoritesAtTheLeft()
{
    EditorSession session(settingsFile());
    session.start();
    session.addToolBar("Favorites", {"Word Count", "< S E P A R A T O R >", "Sort Lines"});
    QToolBar *const favorites = session.toolBar("Favorites");
    QVERIFY(favorites);
    session.window.addToolBar(Qt::LeftToolBarArea, favorites);
    QVERIFY(session.window.close());
}

void tst_TextEditorLayout::theFirstStartShowsTheDefaultsWithoutANotice()
{
    EditorSession session(settingsFile());
    session.start();
    QCOMPARE(session.notice(), QString());
    verifyDefaults(session);
    QCOMPARE(session.window.size(), QSize(960, 680));
}

void tst_TextEditorLayout::theKitHasNothingToReport()
{
    EditorSession session(settingsFile());
    session.start();
    QCOMPARE(session.window.findChild<RyToolBarKit *>()->problems(), QStringList());
}

void tst_TextEditorLayout::aCustomToolBarIsBackInItsPlaceWithItsContent()
{
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    session.start();
    QCOMPARE(session.notice(), QString());
    QToolBar *const favorites = session.toolBar("Favorites");
    QVERIFY(favorites);
    QVERIFY(favorites->isVisible());
    QCOMPARE(session.window.toolBarArea(favorites), Qt::LeftToolBarArea);
    QCOMPARE(standingOn(favorites).join(' '), "tools_word_count | tools_sort_lines");
}

void tst_TextEditorLayout::aCustomToolBarOutlivesACrashAfterTheDialog()
{
    const QString copy = m_folder->filePath("copy.ini");
    {
        EditorSession session(settingsFile());
        session.start();
        session.addToolBar("Favorites", {"Word Count"});
        // What is in the file now is all that a process that ends here leaves behind.
        QVERIFY(QFile::copy(settingsFile(), copy));
    }
    EditorSession session(copy);
    session.start();
    QToolBar *const favorites = session.toolBar("Favorites");
    QVERIFY(favorites);
    QVERIFY(favorites->isVisible());
    QCOMPARE(standingOn(favorites), QStringList{"tools_word_count"});
}

void tst_TextEditorLayout::hiddenToolBarsStayHidden()
{
    storeFavoritesAtTheLeft();
    for (int run = 0; run < 2; ++run) {
        EditorSession session(settingsFile());
        session.start();
        for (const char *title : {"Favorites", "Edit"}) {
            QToolBar *const toolBar = session.toolBar(title);
            QCOMPARE(toolBar->isVisible(), run == 0);
            if (run == 0)
                toolBar->toggleViewAction()->trigger();
        }
        QVERIFY(session.window.close());
    }
}

void tst_TextEditorLayout::theGeometryIsBack()
{
    {
        EditorSession session(settingsFile());
        session.start();
        session.window.resize(700, 500);
        QVERIFY(session.window.close());
    }
    EditorSession session(settingsFile());
    session.start();
    QCOMPARE(session.window.size(), QSize(700, 500));
}

void tst_TextEditorLayout::resetBringsTheDefaultsBackAndStoresThem()
{
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    session.start();
    session.action("tools_reset_toolbars")->trigger();
    verifyDefaults(session);

    const QString copy = m_folder->filePath("copy.ini");
    QVERIFY(QFile::copy(settingsFile(), copy));
    EditorSession next(copy);
    next.start();
    verifyDefaults(next);
}

void tst_TextEditorLayout::forgettingTheLayoutShowsTheDefaults()
{
    storeFavoritesAtTheLeft();
    QSettings settings(settingsFile(), QSettings::IniFormat);
    MainWindow::forgetLayout(&settings);
    settings.sync();
    QVERIFY(!contentOfFile(settingsFile()).contains("Favorites"));
    EditorSession session(settingsFile());
    session.start();
    QCOMPARE(session.notice(), QString());
    verifyDefaults(session);
}

void tst_TextEditorLayout::forgettingTheLayoutKeepsOtherSettings()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue("recentFiles", "/a.txt");
    MainWindow::forgetLayout(&settings);
    QCOMPARE(settings.value("recentFiles").toString(), "/a.txt");
}

void tst_TextEditorLayout::aDamagedLayoutIsReported_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << QVariant("toolbars");
    QTest::newRow("bytes") << QVariant(QByteArray("\x9c\x01\xfe\x00\xfd\x7f\xff\xff\xff", 9));
    QTest::newRow("number") << QVariant(7);
}

void tst_TextEditorLayout::aDamagedLayoutIsReported()
{
    QFETCH(QVariant, value);
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    damageLayout(&session.settings, value);
    session.start();
    QCOMPARE(session.notice(), Refused);
    QVERIFY(session.child<QWidget>("status_notice")->isVisible());
    verifyDefaults(session);
}

void tst_TextEditorLayout::theNoticeIsSeenWithoutStatusBar()
{
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    session.action("view_status_bar")->setChecked(false);
    damageLayout(&session.settings, "x");
    session.start();
    QVERIFY(session.window.statusBar()->isVisible());
    QVERIFY(session.action("view_status_bar")->isChecked());
}

void tst_TextEditorLayout::theNoticeOutlivesStatusTips()
{
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    damageLayout(&session.settings, "x");
    session.start();
    QWidget *const label = session.child<QWidget>("status_notice");
    session.action("file_open")->showStatusText(&session.window);
    QVERIFY(!label->isVisible());
    QStatusTipEvent leave((QString()));
    QApplication::sendEvent(&session.window, &leave);
    QVERIFY(label->isVisible());
    QVERIFY(!session.notice().isEmpty());
}

void tst_TextEditorLayout::theNextLayoutReplacesTheDamagedOne()
{
    storeFavoritesAtTheLeft();
    {
        EditorSession session(settingsFile());
        damageLayout(&session.settings, "x");
        session.start();
        QCOMPARE(session.notice(), Refused);
        session.addToolBar("Other", {"Quit"});
        QCOMPARE(session.notice(), QString());
        QVERIFY(session.window.close());
    }
    EditorSession session(settingsFile());
    session.start();
    QCOMPARE(session.notice(), QString());
    QCOMPARE(standingOn(session.toolBar("Other")), QStringList{"file_quit"});
}

void tst_TextEditorLayout::aDamagedSettingsFileIsReported()
{
    QFile file(settingsFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("this is no settings file\n[\n\0\1\2");
    file.close();
    EditorSession session(settingsFile());
    session.start();
    QCOMPARE(session.notice(), QString("The settings file %1 is damaged.").arg(settingsFile()));
    verifyDefaults(session);
    session.addToolBar("Favorites", {"Quit"});
    QVERIFY(contentOfFile(settingsFile()).contains("[layout]"));
    QCOMPARE(session.notice(), QString());
}

void tst_TextEditorLayout::aSettingsFileThatCannotBeWrittenIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("is a folder") << "folder";
    QTest::newRow("is below a file") << "file/settings.ini";
}

void tst_TextEditorLayout::aSettingsFileThatCannotBeWrittenIsReported()
{
    QFETCH(QString, name);
    QVERIFY(QDir(m_folder->path()).mkdir("folder"));
    QFile file(m_folder->filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString path = m_folder->filePath(name);
    const QString notice = QString("The toolbars cannot be stored in %1.").arg(path);

    EditorSession session(path);
    session.start();
    QCOMPARE(session.notice(), notice);
    verifyDefaults(session);
    session.addToolBar("Favorites", {"Quit"});
    QCOMPARE(session.notice(), notice);
    QVERIFY(session.toolBar("Favorites"));
    QVERIFY(session.window.close());
}

QTEST_MAIN(tst_TextEditorLayout)

#include "tst_texteditor_layout.moc"
