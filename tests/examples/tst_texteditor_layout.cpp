// SPDX-License-Identifier: MIT

#include "editorsession.h"
#include "layoutstore.h"
#include "testcase.h"
#include "texts.h"

#include <QFile>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolBar>
#include <QtTest>

/*
 * The toolbars from one run of the text editor to the next.
 */
class tst_TextEditorLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStartShowsTheDefaultsWithoutANotice();
    void aCustomToolBarIsBackInItsPlaceWithItsContent();
    void aCustomToolBarOutlivesACrashAfterTheDialog();
    void aNewToolBarIsVisibleAtOnce();
    void hiddenToolBarsStayHidden();
    void changedDefaultToolBarsAreBack();
    void removedToolBarsStayRemoved();
    void theGeometryIsBack();
    void theDialogIsFollowedByAStoredLayout_data();
    void theDialogIsFollowedByAStoredLayout();
    void cancelWithoutApplyChangesNothing();
    void resetBringsTheDefaultContentBackAndStoresIt();
    void resetLeavesCustomToolBarsAlone();
    void forgettingTheLayoutShowsTheDefaults();
    void forgettingTheLayoutKeepsOtherSettings();
    void aDamagedLayoutIsReportedAndTheDefaultsShown_data();
    void aDamagedLayoutIsReportedAndTheDefaultsShown();
    void bytesOfNoUseBehindAGoodChecksumAreReported_data();
    void bytesOfNoUseBehindAGoodChecksumAreReported();
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

void tst_TextEditorLayout::aNewToolBarIsVisibleAtOnce()
{
    EditorSession session(settingsFile());
    session.start();
    session.addToolBar("Favorites", {"Word Count"});
    QVERIFY(session.toolBar("Favorites")->isVisible());
}

void tst_TextEditorLayout::hiddenToolBarsStayHidden()
{
    storeFavoritesAtTheLeft();
    for (int run = 0; run < 2; ++run) {
        EditorSession session(settingsFile());
        session.start();
        QToolBar *const favorites = session.toolBar("Favorites");
        QToolBar *const edit = session.toolBar("Edit");
        QCOMPARE(favorites->isVisible(), run == 0);
        QCOMPARE(edit->isVisible(), run == 0);
        favorites->hide();
        edit->hide();
        session.customize([](const EditorViews &, RyCustomizedDialog *dialog) {
            QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
        });
        QVERIFY(!favorites->isVisible());
        QVERIFY(session.window.close());
    }
}

void tst_TextEditorLayout::changedDefaultToolBarsAreBack()
{
    {
        EditorSession session(settingsFile());
        session.start();
        session.customize([](const EditorViews &views, RyCustomizedDialog *dialog) {
            views.click(views.toolBarList, "File");
            views.click(views.currentToolBarList, "Open…");
            views.click(views.upButton);
            QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
        });
        QVERIFY(session.window.close());
    }
    EditorSession session(settingsFile());
    session.start();
    QCOMPARE(standingOn(session.toolBar("File")).join(' '),
             "file_open file_new file_save | file_reload");
}

void tst_TextEditorLayout::removedToolBarsStayRemoved()
{
    storeFavoritesAtTheLeft();
    {
        EditorSession session(settingsFile());
        session.start();
        session.customize([](const EditorViews &views, RyCustomizedDialog *dialog) {
            views.click(views.toolBarList, "Favorites");
            views.click(views.removeButton);
            QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
        });
        QVERIFY(session.window.close());
    }
    EditorSession session(settingsFile());
    session.start();
    QCOMPARE(session.notice(), QString());
    verifyDefaults(session);
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

void tst_TextEditorLayout::theDialogIsFollowedByAStoredLayout_data()
{
    QTest::addColumn<bool>("apply");
    QTest::addColumn<int>("end");
    QTest::newRow("OK") << false << 0;
    QTest::newRow("Apply and Cancel") << true << 1;
    QTest::newRow("Apply and Escape") << true << 2;
    QTest::newRow("Apply and the close button") << true << 3;
}

void tst_TextEditorLayout::theDialogIsFollowedByAStoredLayout()
{
    QFETCH(bool, apply);
    QFETCH(int, end);
    EditorSession session(settingsFile());
    session.start();
    session.customize([&](const EditorViews &views, RyCustomizedDialog *dialog) {
        views.click(views.toolBarList, "File");
        views.click(views.currentToolBarList, "New");
        views.click(views.leftButton);
        if (apply)
            QTest::mouseClick(dialog->applyButton(), Qt::LeftButton);
        if (end == 0)
            QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
        else if (end == 1)
            dialog->reject();
        else if (end == 2)
            QTest::keyClick(dialog, Qt::Key_Escape);
        else
            dialog->close();
    });
    const QString copy = m_folder->filePath("copy.ini");
    QVERIFY(QFile::copy(settingsFile(), copy));
    EditorSession next(copy);
    next.start();
    QCOMPARE(standingOn(next.toolBar("File")).join(' '), "file_open file_save | file_reload");
}

void tst_TextEditorLayout::cancelWithoutApplyChangesNothing()
{
    EditorSession session(settingsFile());
    session.start();
    session.customize([](const EditorViews &views, RyCustomizedDialog *dialog) {
        views.click(views.newButton);
        views.typeName("Favorites");
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    verifyDefaults(session);
}

void tst_TextEditorLayout::resetBringsTheDefaultContentBackAndStoresIt()
{
    EditorSession session(settingsFile());
    session.start();
    session.customize([](const EditorViews &views, RyCustomizedDialog *dialog) {
        views.click(views.toolBarList, "File");
        views.click(views.currentToolBarList, "New");
        views.click(views.leftButton);
        QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    });
    session.action("tools_reset_toolbars")->trigger();
    verifyDefaults(session);

    const QString copy = m_folder->filePath("copy.ini");
    QVERIFY(QFile::copy(settingsFile(), copy));
    EditorSession next(copy);
    next.start();
    verifyDefaults(next);
}

void tst_TextEditorLayout::resetLeavesCustomToolBarsAlone()
{
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    session.start();
    session.action("tools_reset_toolbars")->trigger();
    QVERIFY(session.toolBar("Favorites"));
}

void tst_TextEditorLayout::forgettingTheLayoutShowsTheDefaults()
{
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    session.window.forgetLayout();
    session.start();
    QCOMPARE(session.notice(), QString());
    verifyDefaults(session);
    QVERIFY(!session.settings.childGroups().contains("layout"));
}

void tst_TextEditorLayout::forgettingTheLayoutKeepsOtherSettings()
{
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    session.settings.setValue("recentFiles", "/a.txt");
    session.window.forgetLayout();
    QCOMPARE(session.settings.value("recentFiles").toString(), "/a.txt");
}

void tst_TextEditorLayout::aDamagedLayoutIsReportedAndTheDefaultsShown_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("notice");

    const QString damaged = "The stored toolbar layout is damaged; the default toolbars are shown.";
    for (const char *key : {"layout/toolBars", "layout/window", "layout/geometry"}) {
        const QString name = key;
        const auto row = [&](const char *what, const QVariant &value) {
            QTest::addRow("%s %s", key, what) << name << value << damaged;
        };
        row("missing", QVariant());
        row("empty", QByteArray());
        row("truncated", QVariant("truncate"));
        row("byte changed", QVariant("change"));
        row("random bytes", QByteArray("\x9c\x01\xfe\x00\xfd\x7f\xff\xff\xff", 9));
        row("number", 7);
        row("text", "toolbars");
        row("list", QStringList({"a", "b"}));
        row("size", QSize(3, 4));
    }
    QTest::newRow("checksum missing") << "layout/checksum" << QVariant() << damaged;
    QTest::newRow("checksum of another layout")
        << "layout/checksum" << QVariant(QString(64, '0')) << damaged;
    QTest::newRow("version missing") << "layout/version" << QVariant() << damaged;
    QTest::newRow("version a text") << "layout/version" << QVariant("new") << damaged;
    QTest::newRow("other version")
        << "layout/version" << QVariant(LayoutStore::Version + 1)
        << "The stored toolbar layout is of another version; the default toolbars "
           "are shown.";
    QTest::newRow("one value instead of the group")
        << "layout" << QVariant(QByteArray("x")) << damaged;
}

void tst_TextEditorLayout::aDamagedLayoutIsReportedAndTheDefaultsShown()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QString, notice);
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    QByteArray bytes = session.settings.value(key).toByteArray();
    if (value == QVariant("truncate")) {
        bytes.chop(1);
        value = bytes;
    } else if (value == QVariant("change")) {
        bytes[bytes.size() / 2] = static_cast<char>(bytes.at(bytes.size() / 2) ^ 0x10);
        value = bytes;
    }
    if (key == "layout")
        session.settings.remove(key);
    if (value.isValid())
        session.settings.setValue(key, value);
    else
        session.settings.remove(key);
    session.settings.sync();

    session.start();
    QCOMPARE(session.notice(), notice);
    QVERIFY(session.window.isVisible());
    QVERIFY(session.child<QWidget>("status_notice")->isVisible());
    verifyDefaults(session);
}

void tst_TextEditorLayout::bytesOfNoUseBehindAGoodChecksumAreReported_data()
{
    QTest::addColumn<bool>("toolBars");
    QTest::addColumn<bool>("window");
    QTest::addColumn<bool>("geometry");
    QTest::newRow("toolbars") << false << true << true;
    QTest::newRow("window") << true << false << true;
    QTest::newRow("geometry") << true << true << false;
}

void tst_TextEditorLayout::bytesOfNoUseBehindAGoodChecksumAreReported()
{
    QFETCH(bool, toolBars);
    QFETCH(bool, window);
    QFETCH(bool, geometry);
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    LayoutStore store(&session.settings);
    LayoutStore::Layout layout;
    QVERIFY(store.read(&layout) == LayoutStore::Result::Read);
    const QByteArray useless("\x00\x00\x00\xff\x00\x00\x00\x02", 8);
    store.write({toolBars ? layout.toolBars : useless, window ? layout.window : useless,
                 geometry ? layout.geometry : useless});
    session.start();
    QCOMPARE(session.notice(),
             "The stored toolbar layout does not fit; the default toolbars are "
             "shown.");
    verifyDefaults(session);
}

void tst_TextEditorLayout::theNoticeIsSeenWithoutStatusBar()
{
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    session.action("view_status_bar")->setChecked(false);
    session.settings.remove("layout/window");
    session.start();
    QVERIFY(session.window.statusBar()->isVisible());
    QVERIFY(session.action("view_status_bar")->isChecked());
}

void tst_TextEditorLayout::theNoticeOutlivesStatusTips()
{
    storeFavoritesAtTheLeft();
    EditorSession session(settingsFile());
    session.settings.remove("layout/window");
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
        session.settings.remove("layout/window");
        session.start();
        QVERIFY(!session.notice().isEmpty());
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
    session.customize([](const EditorViews &, RyCustomizedDialog *dialog) { dialog->accept(); });
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
    const QString notice = QString("The toolbar layout cannot be stored in %1.").arg(path);

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
