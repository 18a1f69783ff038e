// SPDX-License-Identifier: MIT

#include "editcommands.h"

#include "actioncatalog.h"
#include "editorview.h"
#include "findbar.h"

#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <QTextDocument>

EditCommands::EditCommands(const ActionCatalog &actions, EditorView *editor, FindBar *findBar)
    : QObject(editor)
    , m_actions(actions)
    , m_editor(editor)
    , m_findBar(findBar)
{
    connectClipboardActions();
    connectLineActions();
    connectSearchActions();
    connectUpdates();
    updateActions();
}

void EditCommands::connectClipboardActions()
{
    const auto connectTo = [this](const char *name, void (QTextEdit::*slot)()) {
        connect(m_actions.action(name), &QAction::triggered, m_editor, slot);
    };
    connectTo("edit_undo", &QTextEdit::undo);
    connectTo("edit_redo", &QTextEdit::redo);
    connectTo("edit_cut", &QTextEdit::cut);
    connectTo("edit_copy", &QTextEdit::copy);
    connectTo("edit_paste", &QTextEdit::paste);
    connectTo("edit_select_all", &QTextEdit::selectAll);
}

void EditCommands::connectLineActions()
{
    const auto connectTo = [this](const char *name, void (EditorView::*slot)()) {
        connect(m_actions.action(name), &QAction::triggered, m_editor, slot);
    };
    connectTo("edit_delete", &EditorView::deleteSelection);
    connectTo("edit_duplicate_line", &EditorView::duplicateLine);
    connectTo("edit_upper_case", &EditorView::makeUpperCase);
    connectTo("edit_lower_case", &EditorView::makeLowerCase);
    connectTo("tools_sort_lines", &EditorView::sortLines);
    connectTo("tools_date_time", &EditorView::insertDateAndTime);
}

void EditCommands::connectSearchActions()
{
    const auto connectTo = [this](const char *name, void (FindBar::*slot)()) {
        connect(m_actions.action(name), &QAction::triggered, m_findBar, slot);
    };
    connectTo("edit_find", &FindBar::openToFind);
    connectTo("edit_replace", &FindBar::openToReplace);
    connectTo("edit_find_next", &FindBar::findNext);
    connectTo("edit_find_previous", &FindBar::findPrevious);
    connect(m_actions.action("edit_go_to_line"), &QAction::triggered, this,
            &EditCommands::askForLine);
}

void EditCommands::connectUpdates()
{
    connect(m_actions.action("tools_read_only"), &QAction::toggled, this,
            &EditCommands::setReadOnly);
    connect(m_editor, &QTextEdit::selectionChanged, this, &EditCommands::updateActions);
    connect(m_editor->document(), &QTextDocument::undoAvailable, this,
            &EditCommands::updateActions);
    connect(m_editor->document(), &QTextDocument::redoAvailable, this,
            &EditCommands::updateActions);
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this,
            &EditCommands::updateActions);
}

void EditCommands::askForLine()
{
    bool accepted = false;
    const int line = QInputDialog::getInt(m_editor->window(), tr("Go to Line"), tr("Line:"),
                                          m_editor->currentLine(), 1,
                                          m_editor->document()->blockCount(), 1, &accepted);
    if (accepted)
        m_editor->goToLine(line);
}

void EditCommands::setReadOnly(bool readOnly)
{
    m_editor->setReadOnly(readOnly);
    m_findBar->setReadOnly(readOnly);
    updateActions();
}

void EditCommands::updateActions()
{
    const bool editable = !m_editor->isReadOnly();
    const bool hasSelection = m_editor->textCursor().hasSelection();
    const auto enable = [this](const char *name, bool enabled) {
        m_actions.action(name)->setEnabled(enabled);
    };
    enable("edit_undo", editable && m_editor->document()->isUndoAvailable());
    enable("edit_redo", editable && m_editor->document()->isRedoAvailable());
    enable("edit_cut", editable && hasSelection);
    enable("edit_copy", hasSelection);
    enable("edit_paste", editable && m_editor->canPaste());
    enable("edit_delete", editable && hasSelection);
    enable("edit_duplicate_line", editable);
    enable("edit_upper_case", editable && hasSelection);
    enable("edit_lower_case", editable && hasSelection);
    enable("edit_replace", editable);
    enable("tools_sort_lines", editable);
    enable("tools_date_time", editable);
}
