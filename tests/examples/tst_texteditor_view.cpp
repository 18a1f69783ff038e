// SPDX-License-Identifier: MIT

#include "editorsession.h"
#include "testcase.h"

#include <QStatusBar>
#include <QTemporaryDir>
#include <QtTest>

class tst_TextEditorView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void zoomingChangesTheFontAndResetBringsItBack();
    void aReopenedHtmlTextCanBeZoomed();
    void wordWrapIsOnAtFirstAndKept();
    void theStatusBarIsShownAtFirstAndItsStateKept();
    void fullScreenGoesBothWays();
    void theFullScreenActionFollowsTheWindow();
    void settingsOfAWrongTypeAreTheDefaults_data();
    void settingsOfAWrongTypeAreTheDefaults();

protected:
    void prepare() override { m_folder.reset(new QTemporaryDir); }

private:
    QString settingsFile() const { return m_folder->filePath(QStringLiteral("settings.ini")); }
    QScopedPointer<QTemporaryDir> m_folder;
};

void tst_TextEditorView::zoomingChangesTheFontAndResetBringsItBack()
{
    EditorSession session(settingsFile());
    const qreal size = session.editor->font().pointSizeF();
    session.action("view_zoom_in")->trigger();
    session.action("view_zoom_in")->trigger();
    QCOMPARE(session.editor->font().pointSizeF(), size + 2);
    session.action("view_zoom_reset")->trigger();
    QCOMPARE(session.editor->font().pointSizeF(), size);
    session.action("view_zoom_out")->trigger();
    QCOMPARE(session.editor->font().pointSizeF(), size - 1);
    QVERIFY(!session.editor->document()->isModified());
}

void tst_TextEditorView::aReopenedHtmlTextCanBeZoomed()
{
    EditorSession session(settingsFile());
    session.start();
    session.editor->setContent(QStringLiteral("<p>one <b>two</b></p>"), true);
    const QString html = session.editor->htmlContent();
    session.editor->setContent(html, true);
    const qreal height = session.editor->document()->size().height();
    for (int i = 0; i < 10; ++i)
        session.action("view_zoom_in")->trigger();
    QVERIFY(session.editor->document()->size().height() > height);
}

void tst_TextEditorView::wordWrapIsOnAtFirstAndKept()
{
    for (const bool expected : {true, false}) {
        EditorSession session(settingsFile());
        QCOMPARE(session.action("view_word_wrap")->isChecked(), expected);
        QCOMPARE(session.editor->isWordWrapped(), expected);
        session.action("view_word_wrap")->trigger();
        QCOMPARE(session.editor->isWordWrapped(), !expected);
    }
}

void tst_TextEditorView::theStatusBarIsShownAtFirstAndItsStateKept()
{
    for (const bool expected : {true, false}) {
        EditorSession session(settingsFile());
        session.start();
        QCOMPARE(session.action("view_status_bar")->isChecked(), expected);
        QCOMPARE(session.window.statusBar()->isVisible(), expected);
        session.action("view_status_bar")->trigger();
        QCOMPARE(session.window.statusBar()->isVisible(), !expected);
    }
}

void tst_TextEditorView::fullScreenGoesBothWays()
{
    EditorSession session(settingsFile());
    session.start();
    session.action("view_full_screen")->trigger();
    QVERIFY(session.window.isFullScreen());
    session.action("view_full_screen")->trigger();
    QVERIFY(!session.window.isFullScreen());
}

void tst_TextEditorView::theFullScreenActionFollowsTheWindow()
{
    {
        EditorSession session(settingsFile());
        session.start();
        session.window.showFullScreen();
        QVERIFY(session.action("view_full_screen")->isChecked());
        session.window.showNormal();
        QVERIFY(!session.action("view_full_screen")->isChecked());
        session.window.showFullScreen();
        QVERIFY(session.window.close());
    }
    EditorSession session(settingsFile());
    session.start();
    QCOMPARE(session.action("view_full_screen")->isChecked(), session.window.isFullScreen());
}

void tst_TextEditorView::settingsOfAWrongTypeAreTheDefaults_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << QVariant(QStringLiteral("perhaps"));
    QTest::newRow("list") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")});
    QTest::newRow("size") << QVariant(QSize(1, 2));
    QTest::newRow("bytes") << QVariant(QByteArray("\0\1", 2));
}

void tst_TextEditorView::settingsOfAWrongTypeAreTheDefaults()
{
    QFETCH(QVariant, value);
    {
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("view/wordWrap"), value);
        settings.setValue(QStringLiteral("view/statusBar"), value);
    }
    EditorSession session(settingsFile());
    session.start();
    QVERIFY(session.editor->isWordWrapped());
    QVERIFY(session.window.statusBar()->isVisible());
    QCOMPARE(session.notice(), QString());
}

QTEST_MAIN(tst_TextEditorView)

#include "tst_texteditor_view.moc"
