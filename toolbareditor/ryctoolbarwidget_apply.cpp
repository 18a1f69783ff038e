// SPDX-License-Identifier: MIT

#include "ryctoolbarwidget.h"

#include "rytoolbarmanager.h"
#include "toolbaritem.h"

namespace {

// One toolbar as edited; null for one that is to be created, or that the host has deleted.
struct Edit
{
    ToolBarItem *record;
    QPointer<QToolBar> toolBar;
    QString name;
    QList<QAction *> actions;
};

} // namespace

// Everything is read before the first toolbar changes: that makes Qt call the host, which may hide
// the editor or delete it, and what the user has confirmed is still written then.
void RyCToolBarWidget::applyClicked()
{
    if (!m_managerGuard)
        return;
    const auto editsOf = [this](const QList<ToolBarItem *> &records) {
        QList<Edit> edits;
        for (ToolBarItem *record : records)
            edits.append(
                {record, toolBarOf(record), record->toolBarName(), m_workingActions.value(record)});
        return edits;
    };
    const QList<Edit> all = editsOf(m_workingActions.keys());
    const QList<Edit> removed = editsOf(m_removedRecords.values());
    const QList<Edit> created = editsOf(m_createdRecords.values());
    // At once, so that an apply during this one does not delete and create them as well.
    m_removedRecords.clear();
    m_createdRecords.clear();
    for (const Edit &edit : removed) {
        m_workingActions.remove(edit.record);
        deleteItem(edit.record);
    }

    const QPointer<RyCToolBarWidget> editor(this);
    RyToolBarManager *const manager = m_manager;
    for (const Edit &edit : all) {
        manager->setToolBar(edit.toolBar, edit.actions);
        // Also one that the manager has forgotten.
        if (edit.toolBar)
            edit.toolBar->setWindowTitle(edit.name);
    }
    for (const Edit &edit : removed)
        manager->deleteToolBar(edit.toolBar);
    for (const Edit &edit : created) {
        // Null without a main window, and passed on as it is.
        const QPointer<QToolBar> toolBar(manager->createToolBar(edit.name));
        if (editor)
            setToolBarOf(edit.record, toolBar);
        manager->setToolBar(toolBar, edit.actions);
    }
}

// A record that has been removed from the editor since is left alone, and so is another one that
// was given its address.
void RyCToolBarWidget::setToolBarOf(ToolBarItem *record, QToolBar *toolBar)
{
    if (!m_ownedRecords.contains(record) || record->toolBar())
        return;
    record->setToolBar(toolBar);
    m_toolBarGuards.insert(record, toolBar);
}

void RyCToolBarWidget::defaultClicked()
{
    if (!m_managerGuard)
        return;
    const auto defaults = m_manager->defaultToolBars();
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it) {
        // Null for a toolbar that was registered after the fill. The entry of a deleted toolbar
        // outlives its record, and new ones may have been given their addresses.
        ToolBarItem *const record = m_recordOfToolBar.value(it.key());
        if (m_ownedRecords.contains(record) && toolBarOf(record) == it.key())
            m_workingActions.insert(record, it.value());
    }
    currentToolBarChanged(m_listItemOfRecord.value(m_currentRecord));
    const auto records = m_workingActions.keys();
    for (ToolBarItem *record : records)
        removeToolBar(record);
}
