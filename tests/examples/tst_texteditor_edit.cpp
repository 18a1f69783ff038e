// SPDX-License-Identifier: MIT

#include "editorsession.h"
#include "testcase.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QLabel>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QtTest>

/*
 * What the actions of the categories Edit, Format and Tools do to the text.
 */
class tst_TextEditorEdit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anActionChangesTheSelection_data();
    void anActionChangesTheSelection();
    void theChangedSelectionStaysSelected();
    void pasteInsertsTheClipboard();
    void cutAndCopyFillTheClipboard();
    void redoMakesTheChangeAgain();
    void dateAndTimeAreInserted();
    void goToLineMovesTheCursor();
    void theStatusBarShowsThePosition();
    void actionsAreEnabledWhenTheyCanDoSomething();
    void aReadOnlyTextCannotBeChanged();
    void characterFormatsAreSetAndShown_data();
    void characterFormatsAreSetAndShown();
    void alignmentsAreSetAndShown_data();
    void alignmentsAreSetAndShown();
    void indentsGoBothWaysAndNotBelowZero();
    void theFontIsThatOfTheDialog();
    void theTextColorIsThatOfTheDialog();
    void formatsOfTheLastDocumentDoNotReachTheNext();
    void wordsAreCounted_data();
    void wordsAreCounted();
    void theAboutBoxNamesTheApplication();
    void aTextWithFormatsIsKnown_data();
    void aTextWithFormatsIsKnown();

protected:
    void prepare() override;
    void finish() override { m_session.reset(); }

private:
    void setText(const QString &text);
    void select(int from, int to);
    QString text() const { return m_session->editor->plainContent(); }
    QTextCharFormat formatAt(int position) const;

    QTemporaryDir m_folder;
    QScopedPointer<EditorSession> m_session;
};

void tst_TextEditorEdit::prepare()
{
    QApplication::clipboard()->clear();
    m_session.reset(new EditorSession(m_folder.filePath(QStringLiteral("settings.ini"))));
    m_session->start();
}

void tst_TextEditorEdit::setText(const QString &text)
{
    m_session->editor->setContent(text, false);
}

void tst_TextEditorEdit::select(int from, int to)
{
    QTextCursor cursor(m_session->editor->document());
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    m_session->editor->setTextCursor(cursor);
}

// The format of the character before the position.
QTextCharFormat tst_TextEditorEdit::formatAt(int position) const
{
    QTextCursor cursor(m_session->editor->document());
    cursor.setPosition(position);
    return cursor.charFormat();
}

void tst_TextEditorEdit::anActionChangesTheSelection_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, const char *action, const char *before, int from, int to,
                        const char *after) {
        QTest::newRow(name) << QString::fromLatin1(action) << QString::fromUtf8(before) << from
                            << to << QString::fromUtf8(after);
    };
    row("delete", "edit_delete", "one two", 0, 4, "two");
    row("cut", "edit_cut", "one two", 3, 7, "one");
    row("upper case", "edit_upper_case", "one größe", 4, 9, "one GRÖSSE");
    row("lower case", "edit_lower_case", "ONE TWO", 0, 5, "one tWO");
    row("duplicate a line", "edit_duplicate_line", "one\ntwo", 1, 1, "one\none\ntwo");
    row("duplicate the last line", "edit_duplicate_line", "one\ntwo", 5, 5, "one\ntwo\ntwo");
    row("sort all lines", "tools_sort_lines", "c\na\nb\n", 0, 0, "a\nb\nc\n");
    row("sort all lines without a last line end", "tools_sort_lines", "c\na\nb", 0, 0, "a\nb\nc");
    row("sort the selected lines", "tools_sort_lines", "d\nc\nb\na", 1, 5, "b\nc\nd\na");
    row("sort up to a line start", "tools_sort_lines", "d\nc\nb\na", 0, 4, "c\nd\nb\na");
    row("sort equal lines", "tools_sort_lines", "b\na\nb\na", 0, 0, "a\na\nb\nb");
    row("sort nothing", "tools_sort_lines", "", 0, 0, "");
}

void tst_TextEditorEdit::anActionChangesTheSelection()
{
    QFETCH(QString, action);
    QFETCH(QString, before);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, after);
    setText(before);
    select(from, to);
    m_session->action(qPrintable(action))->trigger();
    QCOMPARE(text(), after);
    if (before == after)
        return;
    m_session->action("edit_undo")->trigger();
    QCOMPARE(text(), before);
}

void tst_TextEditorEdit::theChangedSelectionStaysSelected()
{
    setText(QStringLiteral("one two"));
    select(4, 7);
    m_session->action("edit_upper_case")->trigger();
    QCOMPARE(m_session->editor->textCursor().selectedText(), QStringLiteral("TWO"));
}

void tst_TextEditorEdit::pasteInsertsTheClipboard()
{
    QApplication::clipboard()->setText(QStringLiteral("pasted"));
    m_session->action("edit_paste")->trigger();
    QCOMPARE(text(), QStringLiteral("pasted"));
}

void tst_TextEditorEdit::cutAndCopyFillTheClipboard()
{
    setText(QStringLiteral("one two"));
    select(0, 3);
    m_session->action("edit_copy")->trigger();
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("one"));
    select(4, 7);
    m_session->action("edit_cut")->trigger();
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("two"));
}

void tst_TextEditorEdit::redoMakesTheChangeAgain()
{
    setText(QStringLiteral("one"));
    m_session->action("edit_select_all")->trigger();
    m_session->action("edit_delete")->trigger();
    m_session->action("edit_undo")->trigger();
    QCOMPARE(text(), QStringLiteral("one"));
    m_session->action("edit_redo")->trigger();
    QCOMPARE(text(), QString());
}

void tst_TextEditorEdit::dateAndTimeAreInserted()
{
    m_session->action("tools_date_time")->trigger();
    const QDateTime now = QDateTime::currentDateTime();
    const QString stamp = QLocale().toString(now, QLocale::ShortFormat);
    // A minute may have ended in between.
    const QString before = QLocale().toString(now.addSecs(-60), QLocale::ShortFormat);
    QVERIFY2(text() == stamp || text() == before, qPrintable(text()));
}

void tst_TextEditorEdit::goToLineMovesTheCursor()
{
    setText(QStringLiteral("one\ntwo\nthree"));
    int maximum = 0;
    const NextModal dialog([&maximum](QWidget *modal) {
        QInputDialog *const question = qobject_cast<QInputDialog *>(modal);
        QVERIFY(question);
        maximum = question->intMaximum();
        question->setIntValue(3);
        question->accept();
    });
    m_session->action("edit_go_to_line")->trigger();
    QVERIFY(dialog.wasOpened());
    QCOMPARE(maximum, 3);
    QCOMPARE(m_session->editor->textCursor().position(), 8);
}

void tst_TextEditorEdit::theStatusBarShowsThePosition()
{
    const QLabel *const position = m_session->child<QLabel>("status_position");
    QCOMPARE(position->text(), QStringLiteral("Line 1, Column 1"));
    setText(QStringLiteral("one\ntwo"));
    select(6, 6);
    QCOMPARE(position->text(), QStringLiteral("Line 2, Column 3"));
}

void tst_TextEditorEdit::actionsAreEnabledWhenTheyCanDoSomething()
{
    const auto enabled = [this](const char *name) { return m_session->action(name)->isEnabled(); };
    setText(QStringLiteral("one"));
    for (const char *name : {"edit_undo", "edit_redo", "edit_cut", "edit_copy", "edit_paste",
                             "edit_delete", "edit_upper_case", "edit_lower_case"})
        QVERIFY2(!enabled(name), name);
    select(0, 1);
    for (const char *name :
         {"edit_cut", "edit_copy", "edit_delete", "edit_upper_case", "edit_lower_case"})
        QVERIFY2(enabled(name), name);
    m_session->action("edit_cut")->trigger();
    QVERIFY(enabled("edit_undo"));
    QVERIFY(enabled("edit_paste"));
    m_session->action("edit_undo")->trigger();
    QVERIFY(enabled("edit_redo"));
}

void tst_TextEditorEdit::aReadOnlyTextCannotBeChanged()
{
    QStringList changing{QStringLiteral("edit_undo"),       QStringLiteral("edit_redo"),
                         QStringLiteral("edit_cut"),        QStringLiteral("edit_paste"),
                         QStringLiteral("edit_delete"),     QStringLiteral("edit_duplicate_line"),
                         QStringLiteral("edit_upper_case"), QStringLiteral("edit_lower_case"),
                         QStringLiteral("edit_replace"),    QStringLiteral("tools_sort_lines"),
                         QStringLiteral("tools_date_time")};
    const auto all =
        m_session->window.findChildren<QAction *>(QRegularExpression(QStringLiteral("^format_")));
    QCOMPARE(all.size(), 12);
    for (const QAction *action : all)
        changing << action->objectName();

    setText(QStringLiteral("one two three"));
    QApplication::clipboard()->setText(QStringLiteral("x"));
    select(0, 3);
    m_session->action("edit_cut")->trigger();
    select(0, 3);
    m_session->action("edit_cut")->trigger();
    m_session->action("edit_undo")->trigger();
    m_session->editor->selectAll();
    for (const QString &name : qAsConst(changing))
        QVERIFY2(m_session->action(qPrintable(name))->isEnabled(), qPrintable(name));

    m_session->action("tools_read_only")->setChecked(true);
    for (const QString &name : qAsConst(changing))
        QVERIFY2(!m_session->action(qPrintable(name))->isEnabled(), qPrintable(name));
    const QString before = text();
    QTest::keyClicks(m_session->editor, QStringLiteral("typed"));
    QCOMPARE(text(), before);
    QVERIFY(m_session->action("edit_copy")->isEnabled());

    m_session->action("tools_read_only")->setChecked(false);
    for (const QString &name : qAsConst(changing))
        QVERIFY2(m_session->action(qPrintable(name))->isEnabled(), qPrintable(name));
}

void tst_TextEditorEdit::characterFormatsAreSetAndShown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("property");
    QTest::newRow("bold") << QStringLiteral("format_bold") << int(QTextFormat::FontWeight);
    QTest::newRow("italic") << QStringLiteral("format_italic") << int(QTextFormat::FontItalic);
    QTest::newRow("underline") << QStringLiteral("format_underline")
                               << int(QTextFormat::TextUnderlineStyle);
    QTest::newRow("strikethrough")
        << QStringLiteral("format_strikethrough") << int(QTextFormat::FontStrikeOut);
}

void tst_TextEditorEdit::characterFormatsAreSetAndShown()
{
    QFETCH(QString, name);
    QFETCH(int, property);
    QAction *const action = m_session->action(qPrintable(name));
    setText(QStringLiteral("one two"));
    const QVariant plain = formatAt(7).property(property);
    select(4, 7);
    action->trigger();
    QVERIFY(action->isChecked());
    QVERIFY(formatAt(7).property(property) != plain);
    QCOMPARE(formatAt(2).property(property), plain);
    select(1, 1);
    QVERIFY(!action->isChecked());
    select(4, 7);
    QVERIFY(action->isChecked());
    action->trigger();
    QVERIFY(!action->isChecked());
    QVERIFY(!m_session->editor->hasFormats());
}

void tst_TextEditorEdit::alignmentsAreSetAndShown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("alignment");
    QTest::newRow("left") << QStringLiteral("format_align_left") << int(Qt::AlignLeft);
    QTest::newRow("center") << QStringLiteral("format_align_center") << int(Qt::AlignHCenter);
    QTest::newRow("right") << QStringLiteral("format_align_right") << int(Qt::AlignRight);
    QTest::newRow("justify") << QStringLiteral("format_align_justify") << int(Qt::AlignJustify);
}

void tst_TextEditorEdit::alignmentsAreSetAndShown()
{
    QFETCH(QString, name);
    QFETCH(int, alignment);
    QAction *const action = m_session->action(qPrintable(name));
    setText(QStringLiteral("one\ntwo\nthree"));
    QVERIFY(m_session->action("format_align_left")->isChecked());
    select(5, 5);
    action->trigger();
    QCOMPARE(action->actionGroup()->checkedAction(), action);
    const QTextBlock block = m_session->editor->document()->findBlockByNumber(1);
    QCOMPARE(int(block.blockFormat().alignment() & Qt::AlignHorizontal_Mask & ~Qt::AlignAbsolute),
             alignment);
    select(0, 0);
    QVERIFY(m_session->action("format_align_left")->isChecked());
    select(5, 5);
    QVERIFY(action->isChecked());
}

void tst_TextEditorEdit::indentsGoBothWaysAndNotBelowZero()
{
    setText(QStringLiteral("one\ntwo\nthree"));
    const auto indents = [this] {
        QString all;
        for (QTextBlock block = m_session->editor->document()->begin(); block.isValid();
             block = block.next())
            all += QString::number(block.blockFormat().indent());
        return all;
    };
    select(1, 5);
    m_session->action("format_indent")->trigger();
    m_session->action("format_indent")->trigger();
    QCOMPARE(indents(), QStringLiteral("220"));
    select(5, 9);
    m_session->action("format_unindent")->trigger();
    QCOMPARE(indents(), QStringLiteral("210"));
    m_session->action("edit_undo")->trigger();
    QCOMPARE(indents(), QStringLiteral("220"));
}

void tst_TextEditorEdit::theFontIsThatOfTheDialog()
{
    setText(QStringLiteral("one two"));
    select(0, 3);
    const NextModal dialog([](QWidget *modal) {
        QFontDialog *const chooser = qobject_cast<QFontDialog *>(modal);
        QVERIFY(chooser);
        QFont font = chooser->currentFont();
        font.setPointSize(31);
        chooser->setCurrentFont(font);
        chooser->accept();
    });
    m_session->action("format_font")->trigger();
    QVERIFY(dialog.wasOpened());
    QCOMPARE(formatAt(3).fontPointSize(), 31.0);
    QVERIFY(formatAt(7).fontPointSize() != 31.0);
}

void tst_TextEditorEdit::theTextColorIsThatOfTheDialog()
{
    setText(QStringLiteral("one two"));
    select(0, 3);
    const NextModal dialog([](QWidget *modal) {
        QColorDialog *const chooser = qobject_cast<QColorDialog *>(modal);
        QVERIFY(chooser);
        chooser->setCurrentColor(Qt::red);
        chooser->accept();
    });
    m_session->action("format_text_color")->trigger();
    QVERIFY(dialog.wasOpened());
    QCOMPARE(formatAt(3).foreground().color(), QColor(Qt::red));
    QVERIFY(!formatAt(7).hasProperty(QTextFormat::ForegroundBrush));
}

void tst_TextEditorEdit::formatsOfTheLastDocumentDoNotReachTheNext()
{
    m_session->action("format_bold")->trigger();
    m_session->action("format_align_right")->trigger();
    m_session->editor->insertPlainText(QStringLiteral("one"));
    setText(QStringLiteral("two"));
    QVERIFY(!m_session->editor->hasFormats());
    QVERIFY(!m_session->action("format_bold")->isChecked());
    QVERIFY(m_session->action("format_align_left")->isChecked());
    QVERIFY(!m_session->action("edit_undo")->isEnabled());
}

void tst_TextEditorEdit::wordsAreCounted_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("counts");
    QTest::newRow("nothing") << QString() << QStringLiteral("Lines: 1\nWords: 0\nCharacters: 0");
    QTest::newRow("words") << QStringLiteral(" one  two\nthree\t4\n")
                           << QStringLiteral("Lines: 3\nWords: 4\nCharacters: 18");
}

void tst_TextEditorEdit::wordsAreCounted()
{
    QFETCH(QString, content);
    QFETCH(QString, counts);
    setText(content);
    const NextModal box(QMessageBox::Ok);
    m_session->action("tools_word_count")->trigger();
    QCOMPARE(box.text(), counts);
}

void tst_TextEditorEdit::theAboutBoxNamesTheApplication()
{
    const NextModal box(QMessageBox::Ok);
    m_session->action("help_about")->trigger();
    QVERIFY(box.text().contains(QStringLiteral("Customize Toolbars")));
}

void tst_TextEditorEdit::aTextWithFormatsIsKnown_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<bool>("expected");
    const auto row = [](const char *name, const char *html, bool expected) {
        QTest::newRow(name) << QString::fromLatin1(html) << expected;
    };
    row("plain", "one<br>two<p>three</p>", false);
    row("bold", "one <b>two</b>", true);
    row("italic", "one <i>two</i>", true);
    row("underline", "one <u>two</u>", true);
    row("strikethrough", "one <s>two</s>", true);
    row("color", "one <span style=\"color:#ff0000\">two</span>", true);
    row("size", "one <span style=\"font-size:20pt\">two</span>", true);
    row("centered", "<p align=center>one</p>", true);
    row("right", "<p align=right>one</p>", true);
    row("justified", "<p align=justify>one</p>", true);
    row("list", "<ul><li>one</li></ul>", true);
    row("in a later block", "<p>one</p><p>two</p><p><b>three</b></p>", true);
}

void tst_TextEditorEdit::aTextWithFormatsIsKnown()
{
    QFETCH(QString, html);
    QFETCH(bool, expected);
    m_session->editor->setContent(html, true);
    QCOMPARE(m_session->editor->hasFormats(), expected);
}

QTEST_MAIN(tst_TextEditorEdit)

#include "tst_texteditor_edit.moc"
