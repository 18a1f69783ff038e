// SPDX-License-Identifier: MIT

#include "editorsession.h"
#include "nextmodal.h"
#include "testcase.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

/*
 * One walk through each of files, editing, finding and the view. The example is about toolbars;
 * that its commands do something is enough.
 */
class tst_TextEditor_Smoke : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsOpenedChangedAndSavedOnClose();
    void aSelectionIsChangedFormattedAndUndone();
    void aTextIsFoundAndReplaced();
    void theTextIsZoomedAndWrapped();

private:
    QString path(const char *name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void tst_TextEditor_Smoke::aFileIsOpenedChangedAndSavedOnClose()
{
    QFile file(path("text.txt"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.write("one\r\n");
    file.flush();
    EditorSession session(path("files.ini"));
    session.start();
    QVERIFY(session.window.openFile(file.fileName()));
    QCOMPARE(session.window.windowTitle(), "text.txt[*] - Text Editor");
    QCOMPARE(session.child<QLabel>("status_kind")->text(), "Plain text");
    QVERIFY(!session.action("file_save")->isEnabled());
    session.editor->insertPlainText("new ");
    QVERIFY(session.window.isWindowModified());
    const NextModal question([](QWidget *modal) {
        const QMessageBox *const box = qobject_cast<QMessageBox *>(modal);
        QVERIFY(box);
        QTest::mouseClick(box->button(QMessageBox::Save), Qt::LeftButton);
    });
    QVERIFY(session.window.close());
    QVERIFY(question.wasShown());
    QFile saved(file.fileName());
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(saved.readAll(), QByteArray("new one\r\n"));
    QVERIFY(session.settings.value("recentFiles").toStringList().contains(file.fileName()));
}

void tst_TextEditor_Smoke::aSelectionIsChangedFormattedAndUndone()
{
    EditorSession session(path("edit.ini"));
    session.start();
    session.editor->setContent("b\na", false);
    QVERIFY(!session.action("edit_upper_case")->isEnabled());
    session.action("edit_select_all")->trigger();
    session.action("edit_upper_case")->trigger();
    QCOMPARE(session.editor->plainContent(), "B\nA");
    session.action("tools_sort_lines")->trigger();
    QCOMPARE(session.editor->plainContent(), "A\nB");
    session.action("edit_undo")->trigger();
    QCOMPARE(session.editor->plainContent(), "B\nA");
    session.action("edit_select_all")->trigger();
    session.action("format_bold")->trigger();
    QVERIFY(session.action("format_bold")->isChecked());
    QVERIFY(session.editor->hasFormats());
    session.action("tools_read_only")->setChecked(true);
    QVERIFY(!session.action("format_bold")->isEnabled());
}

void tst_TextEditor_Smoke::aTextIsFoundAndReplaced()
{
    EditorSession session(path("find.ini"));
    session.start();
    session.editor->setContent("tree Tree\nhouse tree\n", false);
    session.action("edit_replace")->trigger();
    QTest::keyClicks(session.child<QLineEdit>("find_text"), "tree");
    session.action("edit_find_next")->trigger();
    QCOMPARE(session.editor->textCursor().selectionEnd(), 4);
    session.action("edit_find_previous")->trigger();
    QCOMPARE(session.editor->textCursor().selectionEnd(), 20);
    session.child<QLineEdit>("replace_text")->setText("bush");
    QTest::mouseClick(session.child<QPushButton>("replace_all"), Qt::LeftButton);
    QCOMPARE(session.editor->plainContent(), "bush bush\nhouse bush\n");
    QCOMPARE(session.child<QLabel>("find_result")->text(), "3 replaced");
    QTest::keyClick(session.child<QLineEdit>("find_text"), Qt::Key_Escape);
    QVERIFY(!session.child<QLineEdit>("find_text")->isVisible());
}

void tst_TextEditor_Smoke::theTextIsZoomedAndWrapped()
{
    EditorSession session(path("view.ini"));
    session.start();
    const qreal size = session.editor->font().pointSizeF();
    session.action("view_zoom_in")->trigger();
    QCOMPARE(session.editor->font().pointSizeF(), size + 1);
    session.action("view_zoom_reset")->trigger();
    QCOMPARE(session.editor->font().pointSizeF(), size);
    QVERIFY(session.editor->isWordWrapped());
    session.action("view_word_wrap")->trigger();
    QVERIFY(!session.editor->isWordWrapped());
    QVERIFY(!session.settings.value("view/wordWrap", true).toBool());
    session.action("view_full_screen")->trigger();
    QVERIFY(session.window.isFullScreen());
}

QTEST_MAIN(tst_TextEditor_Smoke)

#include "tst_texteditor_smoke.moc"
