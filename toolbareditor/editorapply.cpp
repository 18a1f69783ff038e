// SPDX-License-Identifier: MIT

#include "editorapply.h"

#include "editorform.h"
#include "ryctoolbarwidget.h"
#include "rytoolbarmanager.h"
#include "toolbaritem.h"

EditorApply::EditorApply(RyCToolBarWidget *editor)
    : m_editor(editor)
    , m_manager(editor->m_manager)
    , m_discards(editor->form()->discards)
{
    readExisting();
    takeRemoved();
    takeCreated();
}

EditorApply::Edit EditorApply::editOf(ToolBarItem *record) const
{
    return {record, m_editor->toolBarOf(record), record->toolBarName(),
            m_editor->m_workingActions.value(record)};
}

void EditorApply::readExisting()
{
    const auto records = m_editor->m_workingActions.keys();
    for (ToolBarItem *record : records) {
        if (m_editor->toolBarOf(record))
            m_existing.append(editOf(record));
    }
}

void EditorApply::takeRemoved()
{
    const auto records = m_editor->m_removedRecords;
    m_editor->m_removedRecords.clear();
    for (ToolBarItem *record : records) {
        m_removed.append(m_editor->toolBarOf(record));
        m_editor->m_workingActions.remove(record);
        m_editor->deleteItem(record);
    }
}

// Taken at once, so that an apply during this one does not create them as well.
void EditorApply::takeCreated()
{
    const auto records = m_editor->m_createdRecords;
    m_editor->m_createdRecords.clear();
    for (ToolBarItem *record : records)
        m_created.append(editOf(record));
}

void EditorApply::run() const
{
    for (const Edit &edit : m_existing)
        write(edit);
    for (const QPointer<QToolBar> &toolBar : m_removed)
        m_manager->deleteToolBar(toolBar);
    for (const Edit &edit : m_created)
        create(edit);
}

void EditorApply::write(const Edit &edit) const
{
    if (!edit.toolBar)
        return;
    m_manager->setToolBar(edit.toolBar, edit.actions);
    // The host may have deleted it; one that the manager has forgotten gets its title all the same.
    if (edit.toolBar)
        edit.toolBar->setWindowTitle(edit.name);
}

void EditorApply::create(const Edit &edit) const
{
    // Removed in the editor meanwhile.
    if (isFilled() && !m_editor->m_ownedRecords.contains(edit.record))
        return;
    // Null without a main window, and passed on as it is.
    const QPointer<QToolBar> toolBar(m_manager->createToolBar(edit.name));
    if (isFilled() && m_editor->m_ownedRecords.contains(edit.record))
        m_editor->setToolBarOf(edit.record, toolBar);
    m_manager->setToolBar(toolBar, edit.actions);
}

// Still with the working copy that was read.
bool EditorApply::isFilled() const
{
    return m_editor && m_editor->form()->discards == m_discards;
}
