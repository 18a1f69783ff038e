// SPDX-License-Identifier: MIT

#include "textsearch.h"

#include <QTextCursor>
#include <QTextEdit>

TextSearch::TextSearch(QTextEdit *editor)
    : m_editor(editor)
{
}

bool TextSearch::findNext()
{
    return find(QTextDocument::FindFlags());
}

bool TextSearch::findPrevious()
{
    return find(QTextDocument::FindBackward);
}

bool TextSearch::find(QTextDocument::FindFlags direction)
{
    const QTextDocument::FindFlags flags = direction | caseFlag();
    const QTextDocument *const document = m_editor->document();
    QTextCursor match = document->find(m_text, m_editor->textCursor(), flags);
    if (match.isNull()) {
        QTextCursor otherEnd(m_editor->document());
        if (direction & QTextDocument::FindBackward)
            otherEnd.movePosition(QTextCursor::End);
        match = document->find(m_text, otherEnd, flags);
    }
    if (match.isNull())
        return false;
    m_editor->setTextCursor(match);
    return true;
}

bool TextSearch::replace(const QString &replacement)
{
    if (isMatchSelected())
        m_editor->textCursor().insertText(replacement);
    return findNext();
}

int TextSearch::replaceAll(const QString &replacement)
{
    int count = 0;
    QTextCursor all(m_editor->document());
    all.beginEditBlock();
    QTextCursor match = m_editor->document()->find(m_text, 0, caseFlag());
    while (!match.isNull()) {
        match.insertText(replacement);
        ++count;
        match = m_editor->document()->find(m_text, match, caseFlag());
    }
    all.endEditBlock();
    return count;
}

bool TextSearch::isMatchSelected() const
{
    const Qt::CaseSensitivity sensitivity =
        m_caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
    return !m_text.isEmpty()
        && m_editor->textCursor().selectedText().compare(m_text, sensitivity) == 0;
}

QTextDocument::FindFlags TextSearch::caseFlag() const
{
    return m_caseSensitive ? QTextDocument::FindCaseSensitively : QTextDocument::FindFlags();
}
