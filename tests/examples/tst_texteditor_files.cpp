// SPDX-License-Identifier: MIT

#include "editorsession.h"
#include "filecommands.h"
#include "recentfiles.h"
#include "testcase.h"
#include "textfile.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QtTest>

/*
 * Opening, saving, what happens to unsaved changes, and the recent files.
 */
class tst_TextEditorFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aPlainTextIsWrittenAsItWasRead_data();
    void aPlainTextIsWrittenAsItWasRead();
    void formatsOutliveAnHtmlFile();
    void htmlIsReadInTheEncodingThatItNames();
    void whatIsNoTextIsReported_data();
    void whatIsNoTextIsReported();
    void aFailedOpenLeavesTheDocumentAlone();
    void aFailedSaveIsReportedAndKeepsTheChanges();
    void theTitleNamesTheDocument();
    void theStatusBarNamesTheKind();
    void saveAsAsksForANameAndAddsTheSuffix_data();
    void saveAsAsksForANameAndAddsTheSuffix();
    void openAsksForTheFile();
    void formatsAreNotLostWithoutAQuestion();
    void theTourIsOpenedAsACopy();
    void reloadReadsTheFileAgain();
    void saveAndReloadAreEnabledWhenTheyCanDoSomething();
    void unsavedChangesAreAskedFor_data();
    void unsavedChangesAreAskedFor();
    void withoutChangesNothingIsAsked();
    void recentFilesAreShownTheLastOneFirst();
    void recentFilesAreNoMoreThanEight();
    void aRecentFileIsOpenedByItsEntry();
    void aRecentFileThatIsGoneLeavesTheList();
    void theRecentFilesCanBeCleared();
    void recentFilesOfAWrongTypeAreNoFiles_data();
    void recentFilesOfAWrongTypeAreNoFiles();

protected:
    void prepare() override { m_folder.reset(new QTemporaryDir); }

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QString settingsFile() const { return path("settings.ini"); }
    QString write(const char *name, const QByteArray &bytes) const;
    QByteArray read(const QString &path) const;

    QScopedPointer<QTemporaryDir> m_folder;
};

namespace {

QMenu *recentMenu(const EditorSession &session)
{
    QMenu *const fileMenu = session.window.menuBar()->actions().constFirst()->menu();
    const auto actions = fileMenu->actions();
    for (const QAction *action : actions) {
        if (action->text() == QLatin1String("Open Recent")) {
            Q_EMIT action->menu()->aboutToShow();
            return action->menu();
        }
    }
    return nullptr;
}

QStringList recentNames(const EditorSession &session)
{
    QStringList names;
    const auto actions = recentMenu(session)->actions();
    for (const QAction *action : actions) {
        if (action->isSeparator())
            break;
        names << action->text();
    }
    return names;
}

} // namespace

QString tst_TextEditorFiles::write(const char *name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", name);
    return file.fileName();
}

QByteArray tst_TextEditorFiles::read(const QString &path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void tst_TextEditorFiles::aPlainTextIsWrittenAsItWasRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("one line") << QByteArray("one");
    QTest::newRow("line end at the end") << QByteArray("one\ntwo\n");
    QTest::newRow("empty lines") << QByteArray("\n\none\n\n\n");
    QTest::newRow("carriage returns") << QByteArray("one\r\ntwo\r\n");
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFone\n");
    QTest::newRow("no-break space") << QByteArray("a\xC2\xA0"
                                                  "b\n");
    QTest::newRow("beyond Latin") << QByteArray(
        "gr\xC3\xBC\xC3\x9F \xE6\x97\xA5 \xF0\x9F\x8C\xB2\n");
    QTest::newRow("tags") << QByteArray("<b>one</b> &amp; \t two\n");
}

void tst_TextEditorFiles::aPlainTextIsWrittenAsItWasRead()
{
    QFETCH(QByteArray, bytes);
    const QString file = write("text.txt", bytes);
    EditorSession session(settingsFile());
    QVERIFY(session.window.openFile(file));
    QVERIFY(!session.editor->document()->isModified());
    session.editor->document()->setModified(true);
    QFile::remove(file);
    session.action("file_save")->trigger();
    QCOMPARE(read(file), bytes);
    QVERIFY(!session.editor->document()->isModified());
}

void tst_TextEditorFiles::formatsOutliveAnHtmlFile()
{
    const QString file = write("text.html", "<p align=center>One <b>two</b> <i>three</i></p>");
    for (int run = 0; run < 2; ++run) {
        EditorSession session(settingsFile());
        QVERIFY(session.window.openFile(file));
        QCOMPARE(session.editor->plainContent(), QStringLiteral("One two three"));
        QTextCursor cursor(session.editor->document());
        QVERIFY(cursor.blockFormat().alignment() & Qt::AlignHCenter);
        cursor.setPosition(5);
        QVERIFY(cursor.charFormat().fontWeight() > QFont::Normal);
        cursor.setPosition(10);
        QVERIFY(cursor.charFormat().fontItalic());
        // Sizes that the user never chose are not written, or the text could not be zoomed.
        QVERIFY(!cursor.charFormat().hasProperty(QTextFormat::FontPointSize));
        session.editor->document()->setModified(true);
        session.action("file_save")->trigger();
        QVERIFY(read(file).startsWith("<!DOCTYPE"));
    }
}

void tst_TextEditorFiles::htmlIsReadInTheEncodingThatItNames()
{
    const QString file = write(
        "latin.html", "<html><head><meta charset=\"iso-8859-1\"></head><body>gr\xFC\xDF</body>");
    EditorSession session(settingsFile());
    QVERIFY(session.window.openFile(file));
    QCOMPARE(session.editor->plainContent(), QStringLiteral("grüß"));
    session.editor->document()->setModified(true);
    session.action("file_save")->trigger();
    QVERIFY(read(file).contains("gr\xC3\xBC\xC3\x9F"));
    QVERIFY(read(file).contains("charset=utf-8"));
}

void tst_TextEditorFiles::whatIsNoTextIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    QTest::newRow("missing") << QStringLiteral("missing.txt") << QStringLiteral("cannot be read");
    QTest::newRow("folder") << QStringLiteral("folder") << QStringLiteral("cannot be read");
    QTest::newRow("Latin-1") << QStringLiteral("latin.txt") << QStringLiteral("not a text");
    QTest::newRow("cut in a character")
        << QStringLiteral("cut.txt") << QStringLiteral("not a text");
    QTest::newRow("binary") << QStringLiteral("binary.txt") << QStringLiteral("not a text");
}

void tst_TextEditorFiles::whatIsNoTextIsReported()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    write("latin.txt", "gr\xFC\xDF");
    write("cut.txt", "gr\xC3");
    write("binary.txt", QByteArray("a\0b", 3));

    EditorSession session(settingsFile());
    session.start();
    const NextModal box(QMessageBox::Ok);
    QVERIFY(!session.window.openFile(m_folder->filePath(name)));
    QVERIFY(box.wasOpened());
    QVERIFY2(box.text().contains(message), qPrintable(box.text()));
    QVERIFY2(box.text().contains(name), qPrintable(box.text()));
}

void tst_TextEditorFiles::aFailedOpenLeavesTheDocumentAlone()
{
    const QString file = write("text.txt", "one\r\n");
    EditorSession session(settingsFile());
    QVERIFY(session.window.openFile(file));
    const NextModal box(QMessageBox::Ok);
    QVERIFY(!session.window.openFile(path("missing.txt")));
    QVERIFY(box.wasOpened());
    QCOMPARE(session.editor->plainContent(), QStringLiteral("one\n"));
    session.editor->document()->setModified(true);
    session.action("file_save")->trigger();
    QCOMPARE(read(file), QByteArray("one\r\n"));
}

void tst_TextEditorFiles::aFailedSaveIsReportedAndKeepsTheChanges()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    const QString file = write("folder/text.txt", "one");
    EditorSession session(settingsFile());
    QVERIFY(session.window.openFile(file));
    QVERIFY(QDir(path("folder")).removeRecursively());
    session.editor->insertPlainText(QStringLiteral("new "));
    const NextModal box(QMessageBox::Ok);
    session.action("file_save")->trigger();
    QVERIFY(box.wasOpened());
    QVERIFY2(box.text().contains(QLatin1String("cannot be written")), qPrintable(box.text()));
    QVERIFY(session.editor->document()->isModified());
}

void tst_TextEditorFiles::theTitleNamesTheDocument()
{
    EditorSession session(settingsFile());
    QCOMPARE(session.window.windowTitle(), QStringLiteral("Untitled[*] - Text Editor"));
    QVERIFY(session.window.openFile(write("text.txt", "one")));
    QCOMPARE(session.window.windowTitle(), QStringLiteral("text.txt[*] - Text Editor"));
    QVERIFY(!session.window.isWindowModified());
    session.editor->insertPlainText(QStringLiteral("x"));
    QVERIFY(session.window.isWindowModified());
    session.action("file_save")->trigger();
    QVERIFY(!session.window.isWindowModified());
    session.action("file_new")->trigger();
    QCOMPARE(session.window.windowTitle(), QStringLiteral("Untitled[*] - Text Editor"));
    QCOMPARE(session.editor->plainContent(), QString());
}

void tst_TextEditorFiles::theStatusBarNamesTheKind()
{
    EditorSession session(settingsFile());
    const QLabel *const kind = session.child<QLabel>("status_kind");
    QCOMPARE(kind->text(), QStringLiteral("Not saved yet"));
    QVERIFY(session.window.openFile(write("text.txt", "one")));
    QCOMPARE(kind->text(), QStringLiteral("Plain text"));
    QVERIFY(session.window.openFile(write("text.HTM", "one")));
    QCOMPARE(kind->text(), QStringLiteral("Text with formats"));
}

void tst_TextEditorFiles::saveAsAsksForANameAndAddsTheSuffix_data()
{
    QTest::addColumn<bool>("bold");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("start");
    QTest::newRow("plain") << false << QStringLiteral("new") << QStringLiteral("new.txt")
                           << QStringLiteral("one");
    QTest::newRow("with formats") << true << QStringLiteral("new") << QStringLiteral("new.html")
                                  << QStringLiteral("<!DOCTYPE");
    QTest::newRow("other suffix") << false << QStringLiteral("new.md") << QStringLiteral("new.md")
                                  << QStringLiteral("one");
}

void tst_TextEditorFiles::saveAsAsksForANameAndAddsTheSuffix()
{
    QFETCH(bool, bold);
    QFETCH(QString, name);
    QFETCH(QString, saved);
    QFETCH(QString, start);
    EditorSession session(settingsFile());
    session.start();
    session.editor->setBold(bold);
    session.editor->insertPlainText(QStringLiteral("one"));
    const NextModal dialog([&](QWidget *modal) {
        QFileDialog *const chooser = qobject_cast<QFileDialog *>(modal);
        QVERIFY(chooser);
        chooser->setDirectory(m_folder->path());
        chooser->selectFile(name);
        QMetaObject::invokeMethod(chooser, "accept");
    });
    session.action("file_save")->trigger(); // a document without a name needs one
    QVERIFY(dialog.wasOpened());
    const QByteArray bytes = read(m_folder->filePath(saved));
    QVERIFY2(bytes.startsWith(start.toUtf8()), bytes.constData());
    QCOMPARE(session.window.windowTitle(), saved + QStringLiteral("[*] - Text Editor"));
}

void tst_TextEditorFiles::openAsksForTheFile()
{
    write("text.txt", "one");
    EditorSession session(settingsFile());
    session.start();
    const NextModal dialog([&](QWidget *modal) {
        QFileDialog *const chooser = qobject_cast<QFileDialog *>(modal);
        QVERIFY(chooser);
        chooser->setDirectory(m_folder->path());
        chooser->selectFile(QStringLiteral("text.txt"));
        QMetaObject::invokeMethod(chooser, "accept");
    });
    session.action("file_open")->trigger();
    QVERIFY(dialog.wasOpened());
    QCOMPARE(session.editor->plainContent(), QStringLiteral("one"));
}

void tst_TextEditorFiles::formatsAreNotLostWithoutAQuestion()
{
    const QString file = write("text.txt", "one");
    EditorSession session(settingsFile());
    QVERIFY(session.window.openFile(file));
    session.editor->selectAll();
    session.editor->setBold(true);
    {
        const NextModal question(QMessageBox::Cancel);
        session.action("file_save")->trigger();
        QVERIFY(question.wasOpened());
        QVERIFY(session.editor->document()->isModified());
    }
    {
        const NextModal question(QMessageBox::Save);
        session.action("file_save")->trigger();
        QVERIFY(question.wasOpened());
        QVERIFY(!session.editor->document()->isModified());
    }
    // Once is enough for a document.
    session.editor->insertPlainText(QStringLiteral("two"));
    session.action("file_save")->trigger();
    QCOMPARE(read(file), QByteArray("two"));
}

void tst_TextEditorFiles::theTourIsOpenedAsACopy()
{
    EditorSession session(settingsFile());
    session.action("help_tour")->trigger();
    QVERIFY(session.editor->plainContent().startsWith(QStringLiteral("The toolbar tour")));
    QVERIFY(session.editor->hasFormats());
    QCOMPARE(session.window.windowTitle(), QStringLiteral("Untitled[*] - Text Editor"));
    QVERIFY(!session.editor->document()->isModified());
    QCOMPARE(recentNames(session), QStringList());
}

void tst_TextEditorFiles::reloadReadsTheFileAgain()
{
    const QString file = write("text.txt", "one");
    EditorSession session(settingsFile());
    QVERIFY(session.window.openFile(file));
    write("text.txt", "two");
    session.action("file_reload")->trigger();
    QCOMPARE(session.editor->plainContent(), QStringLiteral("two"));
}

void tst_TextEditorFiles::saveAndReloadAreEnabledWhenTheyCanDoSomething()
{
    EditorSession session(settingsFile());
    QVERIFY(session.action("file_save")->isEnabled());
    QVERIFY(!session.action("file_reload")->isEnabled());
    QVERIFY(session.window.openFile(write("text.txt", "one")));
    QVERIFY(!session.action("file_save")->isEnabled());
    QVERIFY(session.action("file_reload")->isEnabled());
    session.editor->insertPlainText(QStringLiteral("x"));
    QVERIFY(session.action("file_save")->isEnabled());
}

void tst_TextEditorFiles::unsavedChangesAreAskedFor_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("happens");
    for (const char *what :
         {"close", "open", "file_new", "file_reload", "help_tour", "file_quit"}) {
        const QString action = QString::fromLatin1(what);
        QTest::addRow("%s, cancel", what) << action << int(QMessageBox::Cancel) << false;
        QTest::addRow("%s, discard", what) << action << int(QMessageBox::Discard) << true;
        QTest::addRow("%s, save", what) << action << int(QMessageBox::Save) << true;
    }
}

void tst_TextEditorFiles::unsavedChangesAreAskedFor()
{
    QFETCH(QString, what);
    QFETCH(int, answer);
    QFETCH(bool, happens);
    const QString other = write("other.txt", "other");
    const QString file = write("text.txt", "one");
    EditorSession session(settingsFile());
    session.start();
    QVERIFY(session.window.openFile(file));
    session.editor->insertPlainText(QStringLiteral("new "));
    const NextModal question(static_cast<QMessageBox::StandardButton>(answer));
    if (what == QLatin1String("close"))
        session.window.close();
    else if (what == QLatin1String("open"))
        session.window.openFile(other);
    else
        session.action(qPrintable(what))->trigger();

    QVERIFY(question.wasOpened());
    QCOMPARE(read(file), answer == QMessageBox::Save ? QByteArray("new one") : QByteArray("one"));
    const bool closes = what == QLatin1String("close") || what == QLatin1String("file_quit");
    QCOMPARE(session.window.isVisible(), !(closes && happens));
    const bool replaced = happens && !closes
        && !(what == QLatin1String("file_reload") && answer == QMessageBox::Save);
    QCOMPARE(session.editor->plainContent() != QLatin1String("new one"), replaced);
}

void tst_TextEditorFiles::withoutChangesNothingIsAsked()
{
    EditorSession session(settingsFile());
    session.start();
    QVERIFY(session.window.openFile(write("text.txt", "one")));
    session.editor->insertPlainText(QStringLiteral("x"));
    session.editor->undo();
    const NextModal question(QMessageBox::Cancel);
    session.action("file_new")->trigger();
    QVERIFY(session.window.close());
    QVERIFY(!question.wasOpened());
}

void tst_TextEditorFiles::recentFilesAreShownTheLastOneFirst()
{
    {
        EditorSession session(settingsFile());
        QVERIFY(session.window.openFile(write("a.txt", "a")));
        QVERIFY(session.window.openFile(write("b & c.txt", "b")));
        QVERIFY(session.window.openFile(write("a.txt", "a")));
    }
    EditorSession session(settingsFile());
    QCOMPARE(recentNames(session),
             QStringList({QStringLiteral("a.txt"), QStringLiteral("b && c.txt")}));
    QCOMPARE(recentMenu(session)->actions().constFirst()->statusTip(), path("a.txt"));
}

void tst_TextEditorFiles::recentFilesAreNoMoreThanEight()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    RecentFiles files(&settings);
    for (int i = 1; i <= 10; ++i)
        files.add(QStringLiteral("/%1.txt").arg(i));
    QCOMPARE(files.files().size(), 8);
    QCOMPARE(files.files().constFirst(), QStringLiteral("/10.txt"));
    QCOMPARE(files.files().constLast(), QStringLiteral("/3.txt"));
}

void tst_TextEditorFiles::aRecentFileIsOpenedByItsEntry()
{
    EditorSession session(settingsFile());
    QVERIFY(session.window.openFile(write("a.txt", "a")));
    QVERIFY(session.window.openFile(write("b.txt", "b")));
    recentMenu(session)->actions().at(1)->trigger();
    QCOMPARE(session.editor->plainContent(), QStringLiteral("a"));
    QCOMPARE(recentNames(session), QStringList({QStringLiteral("a.txt"), QStringLiteral("b.txt")}));
}

void tst_TextEditorFiles::aRecentFileThatIsGoneLeavesTheList()
{
    EditorSession session(settingsFile());
    const QString file = write("a.txt", "a");
    QVERIFY(session.window.openFile(file));
    QVERIFY(session.window.openFile(write("b.txt", "b")));
    QVERIFY(QFile::remove(file));
    const NextModal box(QMessageBox::Ok);
    recentMenu(session)->actions().at(1)->trigger();
    QVERIFY(box.wasOpened());
    QCOMPARE(recentNames(session), QStringList{QStringLiteral("b.txt")});
}

void tst_TextEditorFiles::theRecentFilesCanBeCleared()
{
    EditorSession session(settingsFile());
    QVERIFY(session.window.openFile(write("a.txt", "a")));
    QAction *const clear = recentMenu(session)->actions().constLast();
    QCOMPARE(clear->text(), QStringLiteral("Clear List"));
    clear->trigger();
    QCOMPARE(recentNames(session), QStringList());
    QVERIFY(!recentMenu(session)->actions().constLast()->isEnabled());
}

void tst_TextEditorFiles::recentFilesOfAWrongTypeAreNoFiles_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("size") << QVariant(QSize(1, 2));
    QTest::newRow("map") << QVariant(QVariantMap{{QStringLiteral("a"), 1}});
    QTest::newRow("empty text") << QVariant(QString());
    QTest::newRow("empty names") << QVariant(QStringList{QString(), QString()});
}

void tst_TextEditorFiles::recentFilesOfAWrongTypeAreNoFiles()
{
    QFETCH(QVariant, value);
    {
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("recentFiles"), value);
    }
    EditorSession session(settingsFile());
    QCOMPARE(recentNames(session), QStringList());
    QVERIFY(session.window.openFile(write("a.txt", "a")));
    QCOMPARE(recentNames(session), QStringList{QStringLiteral("a.txt")});
}

QTEST_MAIN(tst_TextEditorFiles)

#include "tst_texteditor_files.moc"
