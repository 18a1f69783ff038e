// SPDX-License-Identifier: MIT

#ifndef TEXTSEARCH_H
#define TEXTSEARCH_H

#include <QString>
#include <QTextDocument>

class QTextEdit;

/*!
 * \brief Finds and replaces a text in an editor; continues at the other end of the document.
 */
class TextSearch
{
public:
    //! \param editor the editor, which must outlive the search.
    explicit TextSearch(QTextEdit *editor);

    void setText(const QString &text) { m_text = text; }
    QString text() const { return m_text; }
    void setCaseSensitive(bool caseSensitive) { m_caseSensitive = caseSensitive; }

    //! Selects the next or previous match; returns false if there is none.
    bool findNext();
    bool findPrevious();

    //! Replaces the selection if it is a match, and selects the next one; false if there is none.
    bool replace(const QString &replacement);

    //! Replaces all matches as one undo step; returns their number.
    int replaceAll(const QString &replacement);

private:
    bool find(QTextDocument::FindFlags direction);
    bool isMatchSelected() const;
    QTextDocument::FindFlags caseFlag() const;

    QTextEdit *const m_editor;
    QString m_text;
    bool m_caseSensitive = false;
};

#endif // TEXTSEARCH_H
