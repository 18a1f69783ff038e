// SPDX-License-Identifier: MIT

#ifndef EDITORVIEW_H
#define EDITORVIEW_H

#include <QTextEdit>

/*!
 * \brief The text, with operations that QTextEdit does not have.
 *
 * Each operation that changes the text is one undo step.
 */
class EditorView : public QTextEdit
{
    Q_OBJECT

public:
    explicit EditorView(QWidget *parent = nullptr);

    //! Replaces everything, including the format for typed text. The document is then unmodified.
    void setContent(const QString &text, bool isHtml);

    //! The text without its formats, lines separated by "\n".
    QString plainContent() const;

    //! The text with its formats.
    QString htmlContent() const;

    //! Whether plainContent() would lose formats.
    bool hasFormats() const;

    bool isWordWrapped() const { return lineWrapMode() == QTextEdit::WidgetWidth; }
    int currentLine() const;
    int currentColumn() const;

public Q_SLOTS:
    void deleteSelection();
    void duplicateLine();
    void sortLines();
    void makeUpperCase();
    void makeLowerCase();
    void insertDateAndTime();
    void goToLine(int line);
    void setBold(bool bold);
    void setStrikethrough(bool strikethrough);
    void setSelectionFont(const QFont &font);
    void indent() { changeIndent(1); }
    void unindent() { changeIndent(-1); }
    void resetZoom();
    void setWordWrapped(bool wrapped);

private:
    void replaceSelection(const QString &text);
    void changeIndent(int steps);

    // The font size that resetZoom() goes back to.
    const qreal m_fontSize;
};

#endif // EDITORVIEW_H
