// SPDX-License-Identifier: MIT

#include "editorview.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

bool isPlain(const QTextCharFormat &format)
{
    return !format.hasProperty(QTextFormat::ForegroundBrush) && format.fontWeight() <= QFont::Normal
        && !format.fontItalic() && !format.fontUnderline() && !format.fontStrikeOut()
        && !format.hasProperty(QTextFormat::FontPointSize) && !format.isImageFormat();
}

bool isPlain(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    if (block.textList() || format.indent() > 0
        || !(format.alignment() & (Qt::AlignLeft | Qt::AlignLeading)))
        return false;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (!isPlain(it.fragment().charFormat()))
            return false;
    }
    return true;
}

// Extends the selection to the start of its first line and to the end of its last line. A line of
// which nothing is selected, such as the one after the last line end, is not included.
void selectWholeLines(QTextCursor *cursor)
{
    const int start = cursor->selectionStart();
    int end = cursor->selectionEnd();
    if (end > start && cursor->document()->findBlock(end).position() == end)
        --end;
    cursor->setPosition(start);
    cursor->movePosition(QTextCursor::StartOfBlock);
    cursor->setPosition(end, QTextCursor::KeepAnchor);
    cursor->movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
}

} // namespace

EditorView::EditorView(QWidget *parent)
    : QTextEdit(parent)
    , m_fontSize(font().pointSizeF())
{
    setObjectName(QStringLiteral("editor"));
    setAccessibleName(tr("Document"));
    document()->setDocumentMargin(12);
    setContent(QString(), false); // Qt treats the margin as a change by the user
}

void EditorView::setContent(const QString &text, bool isHtml)
{
    clear();
    setCurrentCharFormat(QTextCharFormat());
    if (isHtml)
        setHtml(text);
    else
        setPlainText(text);
    document()->setModified(false);
}

QString EditorView::plainContent() const
{
    // Not toPlainText(), which replaces no-break spaces.
    QTextCursor cursor(document());
    cursor.select(QTextCursor::Document);
    QString text = cursor.selectedText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text;
}

QString EditorView::htmlContent() const
{
    // Without the font of the body, which is only the display font. When the file is read again, it
    // would become a format of the whole text, and the zoom would have no effect.
    static const QRegularExpression bodyStyle(QStringLiteral("<body style=\"[^\"]*\">"));
    QString html = document()->toHtml();
    return html.replace(bodyStyle, QStringLiteral("<body>"));
}

bool EditorView::hasFormats() const
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (!isPlain(block))
            return true;
    }
    return false;
}

int EditorView::currentLine() const
{
    return textCursor().blockNumber() + 1;
}

int EditorView::currentColumn() const
{
    return textCursor().positionInBlock() + 1;
}

void EditorView::deleteSelection()
{
    textCursor().removeSelectedText();
}

void EditorView::duplicateLine()
{
    QTextCursor cursor = textCursor();
    const QString line = cursor.block().text();
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertBlock();
    cursor.insertText(line);
    cursor.endEditBlock();
}

void EditorView::sortLines()
{
    QTextCursor cursor = textCursor();
    if (!cursor.hasSelection())
        cursor.select(QTextCursor::Document);
    selectWholeLines(&cursor);
    QStringList lines = cursor.selectedText().split(QChar::ParagraphSeparator);
    std::stable_sort(lines.begin(), lines.end(), [](const QString &left, const QString &right) {
        return QString::localeAwareCompare(left, right) < 0;
    });
    cursor.insertText(lines.join(QChar::ParagraphSeparator));
}

void EditorView::makeUpperCase()
{
    replaceSelection(QLocale().toUpper(textCursor().selectedText()));
}

void EditorView::makeLowerCase()
{
    replaceSelection(QLocale().toLower(textCursor().selectedText()));
}

// Keeps the new text selected.
void EditorView::replaceSelection(const QString &text)
{
    QTextCursor cursor = textCursor();
    if (!cursor.hasSelection())
        return;
    const int start = cursor.selectionStart();
    cursor.insertText(text);
    const int end = cursor.position();
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void EditorView::insertDateAndTime()
{
    const QDateTime now = QDateTime::currentDateTime();
    textCursor().insertText(QLocale().toString(now, QLocale::ShortFormat));
}

void EditorView::goToLine(int line)
{
    const QTextBlock block = document()->findBlockByNumber(line - 1);
    if (!block.isValid())
        return;
    setTextCursor(QTextCursor(block));
    ensureCursorVisible();
}

void EditorView::setBold(bool bold)
{
    setFontWeight(bold ? QFont::Bold : QFont::Normal);
}

void EditorView::setStrikethrough(bool strikethrough)
{
    QTextCharFormat format;
    format.setFontStrikeOut(strikethrough);
    mergeCurrentCharFormat(format);
}

void EditorView::setSelectionFont(const QFont &font)
{
    QTextCharFormat format;
    format.setFont(font);
    mergeCurrentCharFormat(format);
}

void EditorView::changeIndent(int steps)
{
    QTextCursor cursor = textCursor();
    const QTextBlock last = document()->findBlock(cursor.selectionEnd());
    cursor.beginEditBlock();
    QTextBlock block = document()->findBlock(cursor.selectionStart());
    for (; block.isValid() && block.blockNumber() <= last.blockNumber(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        format.setIndent(std::max(0, format.indent() + steps));
        QTextCursor(block).setBlockFormat(format);
    }
    cursor.endEditBlock();
}

void EditorView::resetZoom()
{
    QFont normal = font();
    normal.setPointSizeF(m_fontSize);
    setFont(normal);
}

void EditorView::setWordWrapped(bool wrapped)
{
    setLineWrapMode(wrapped ? QTextEdit::WidgetWidth : QTextEdit::NoWrap);
}
