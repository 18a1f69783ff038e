// SPDX-License-Identifier: MIT

#include "editorsession.h"
#include "findbar.h"
#include "testcase.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

class tst_TextEditorFind : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void findGoesFromMatchToMatchAndAround();
    void findPreviousGoesTheOtherWay();
    void theCaseCountsOnRequest();
    void whatIsNotThereIsTold();
    void theReturnKeyFindsTheNextMatch();
    void theSelectionIsWhatIsLookedFor();
    void findNextWithoutATextOpensTheBar();
    void findHidesTheReplaceRow();
    void escapeClosesTheBar();
    void theCloseButtonClosesTheBar();
    void replaceChangesTheSelectedMatchOnly();
    void replaceLeavesAnotherSelectionAlone();
    void replaceAllIsOneStepForUndo();
    void replaceAllDoesNotReplaceItsOwnText();
    void aReadOnlyTextIsNotReplaced();

protected:
    void prepare() override;
    void finish() override { m_session.reset(); }

private:
    void look(const QString &text);
    void press(const char *button);
    QString result() const { return m_session->child<QLabel>("find_result")->text(); }
    QString selection() const;

    QTemporaryDir m_folder;
    QScopedPointer<EditorSession> m_session;
};

void tst_TextEditorFind::prepare()
{
    m_session.reset(new EditorSession(m_folder.filePath(QStringLiteral("settings.ini"))));
    m_session->start();
    m_session->editor->setContent(QStringLiteral("tree Tree\nhouse tree\n"), false);
}

// Opens the bar and types the text.
void tst_TextEditorFind::look(const QString &text)
{
    m_session->action("edit_replace")->trigger();
    QLineEdit *const line = m_session->child<QLineEdit>("find_text");
    line->clear();
    QTest::keyClicks(line, text);
}

void tst_TextEditorFind::press(const char *button)
{
    QTest::mouseClick(m_session->child<QPushButton>(button), Qt::LeftButton);
}

// What is selected and where: "0 tree".
QString tst_TextEditorFind::selection() const
{
    const QTextCursor cursor = m_session->editor->textCursor();
    return QStringLiteral("%1 %2").arg(cursor.selectionStart()).arg(cursor.selectedText());
}

void tst_TextEditorFind::findGoesFromMatchToMatchAndAround()
{
    look(QStringLiteral("tree"));
    for (const char *expected : {"0 tree", "5 Tree", "16 tree", "0 tree"}) {
        m_session->action("edit_find_next")->trigger();
        QCOMPARE(selection(), QString::fromLatin1(expected));
    }
}

void tst_TextEditorFind::findPreviousGoesTheOtherWay()
{
    look(QStringLiteral("tree"));
    for (const char *expected : {"16 tree", "5 Tree", "0 tree", "16 tree"}) {
        m_session->action("edit_find_previous")->trigger();
        QCOMPARE(selection(), QString::fromLatin1(expected));
    }
}

void tst_TextEditorFind::theCaseCountsOnRequest()
{
    m_session->child<QCheckBox>("find_match_case")->setChecked(true);
    look(QStringLiteral("Tree"));
    for (int i = 0; i < 2; ++i) {
        press("find_next");
        QCOMPARE(selection(), QStringLiteral("5 Tree"));
    }
}

void tst_TextEditorFind::whatIsNotThereIsTold()
{
    look(QStringLiteral("cat"));
    press("find_next");
    QCOMPARE(result(), QStringLiteral("Not found"));
    QCOMPARE(selection(), QStringLiteral("0 "));
    look(QStringLiteral("house"));
    QCOMPARE(result(), QString());
}

void tst_TextEditorFind::theReturnKeyFindsTheNextMatch()
{
    look(QStringLiteral("house"));
    QTest::keyClick(m_session->child<QLineEdit>("find_text"), Qt::Key_Return);
    QCOMPARE(selection(), QStringLiteral("10 house"));
}

void tst_TextEditorFind::theSelectionIsWhatIsLookedFor()
{
    QTextCursor cursor(m_session->editor->document());
    cursor.setPosition(10);
    cursor.setPosition(15, QTextCursor::KeepAnchor);
    m_session->editor->setTextCursor(cursor);
    m_session->action("edit_find")->trigger();
    QCOMPARE(m_session->child<QLineEdit>("find_text")->text(), QStringLiteral("house"));
    m_session->editor->selectAll();
    m_session->action("edit_find")->trigger();
    QCOMPARE(m_session->child<QLineEdit>("find_text")->text(), QStringLiteral("house"));
}

void tst_TextEditorFind::findNextWithoutATextOpensTheBar()
{
    const QWidget *const bar = m_session->window.findChild<FindBar *>();
    QVERIFY(!bar->isVisible());
    m_session->action("edit_find_next")->trigger();
    QVERIFY(bar->isVisible());
    QCOMPARE(selection(), QStringLiteral("0 "));
}

void tst_TextEditorFind::findHidesTheReplaceRow()
{
    const QWidget *const row = m_session->child<QLineEdit>("replace_text");
    m_session->action("edit_replace")->trigger();
    QVERIFY(row->isVisible());
    m_session->action("edit_find")->trigger();
    QVERIFY(!row->isVisible());
    QVERIFY(m_session->child<QLineEdit>("find_text")->isVisible());
}

void tst_TextEditorFind::escapeClosesTheBar()
{
    look(QStringLiteral("tree"));
    QTest::keyClick(m_session->child<QLineEdit>("find_text"), Qt::Key_Escape);
    QVERIFY(!m_session->window.findChild<FindBar *>()->isVisible());
    QCOMPARE(m_session->window.focusWidget(), m_session->editor);
}

void tst_TextEditorFind::theCloseButtonClosesTheBar()
{
    look(QStringLiteral("tree"));
    press("find_close");
    QVERIFY(!m_session->window.findChild<FindBar *>()->isVisible());
}

void tst_TextEditorFind::replaceChangesTheSelectedMatchOnly()
{
    look(QStringLiteral("tree"));
    m_session->child<QLineEdit>("replace_text")->setText(QStringLiteral("bush"));
    press("replace_one"); // finds the first
    QCOMPARE(selection(), QStringLiteral("0 tree"));
    press("replace_one");
    QCOMPARE(m_session->editor->plainContent(), QStringLiteral("bush Tree\nhouse tree\n"));
    QCOMPARE(selection(), QStringLiteral("5 Tree"));
}

void tst_TextEditorFind::replaceLeavesAnotherSelectionAlone()
{
    look(QStringLiteral("tree"));
    m_session->editor->selectAll();
    press("replace_one");
    QCOMPARE(m_session->editor->plainContent(), QStringLiteral("tree Tree\nhouse tree\n"));
    m_session->child<QCheckBox>("find_match_case")->setChecked(true);
    QTextCursor cursor(m_session->editor->document());
    cursor.setPosition(5);
    cursor.setPosition(9, QTextCursor::KeepAnchor);
    m_session->editor->setTextCursor(cursor);
    press("replace_one");
    QCOMPARE(m_session->editor->plainContent(), QStringLiteral("tree Tree\nhouse tree\n"));
    QCOMPARE(selection(), QStringLiteral("16 tree"));
}

void tst_TextEditorFind::replaceAllIsOneStepForUndo()
{
    look(QStringLiteral("tree"));
    m_session->child<QLineEdit>("replace_text")->setText(QStringLiteral("bush"));
    press("replace_all");
    QCOMPARE(m_session->editor->plainContent(), QStringLiteral("bush bush\nhouse bush\n"));
    QCOMPARE(result(), QStringLiteral("3 replaced"));
    m_session->editor->undo();
    QCOMPARE(m_session->editor->plainContent(), QStringLiteral("tree Tree\nhouse tree\n"));
}

void tst_TextEditorFind::replaceAllDoesNotReplaceItsOwnText()
{
    look(QStringLiteral("tree"));
    m_session->child<QLineEdit>("replace_text")->setText(QStringLiteral("tree tree"));
    press("replace_all");
    QCOMPARE(result(), QStringLiteral("3 replaced"));
}

void tst_TextEditorFind::aReadOnlyTextIsNotReplaced()
{
    m_session->action("tools_read_only")->setChecked(true);
    QVERIFY(!m_session->action("edit_replace")->isEnabled());
    QVERIFY(!m_session->child<QPushButton>("replace_all")->isEnabled());
    QVERIFY(!m_session->child<QPushButton>("replace_one")->isEnabled());
    QVERIFY(m_session->child<QPushButton>("find_next")->isEnabled());
}

QTEST_MAIN(tst_TextEditorFind)

#include "tst_texteditor_find.moc"
