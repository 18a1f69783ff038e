// SPDX-License-Identifier: MIT

#include "ryctoolbarwidget.h"

#include "rytoolbarmanager.h"
#include "toolbaritem.h"

#include <QApplication>
#include <QToolBar>

namespace {

// The host may have deleted the toolbar meanwhile, so that it is only compared.
bool isAlive(QToolBar *toolBar)
{
    return QApplication::allWidgets().contains(toolBar);
}

} // namespace

void RyCToolBarWidget::applyClicked()
{
    applyExistingToolBars();
    applyRemovedToolBars();
    applyCreatedToolBars();
}

void RyCToolBarWidget::applyExistingToolBars()
{
    const auto workingActions = m_workingActions;
    for (auto it = workingActions.cbegin(); it != workingActions.cend(); ++it) {
        QToolBar *const toolBar = it.key()->toolBar();
        if (!toolBar)
            continue;
        m_manager->setToolBar(toolBar, it.value());
        // One that the manager has forgotten meanwhile gets its title all the same.
        if (m_manager->toolBarsActions().contains(toolBar) || isAlive(toolBar))
            toolBar->setWindowTitle(it.key()->toolBarName());
    }
}

void RyCToolBarWidget::applyRemovedToolBars()
{
    const auto removedRecords = m_removedRecords;
    for (ToolBarItem *record : removedRecords) {
        QToolBar *const toolBar = record->toolBar();
        m_removedRecords.remove(record);
        m_workingActions.remove(record);
        deleteItem(record);
        if (toolBar)
            m_manager->deleteToolBar(toolBar);
    }
}

void RyCToolBarWidget::applyCreatedToolBars()
{
    const auto createdRecords = m_createdRecords;
    for (ToolBarItem *record : createdRecords) {
        const QString name = record->toolBarName();
        m_createdRecords.remove(record);
        const auto actions = m_workingActions.value(record);
        // Null without a main window, and passed on as it is.
        QToolBar *const toolBar = m_manager->createToolBar(name);
        record->setToolBar(toolBar);
        m_manager->setToolBar(toolBar, actions);
    }
}

void RyCToolBarWidget::defaultClicked()
{
    const auto defaults = m_manager->defaultToolBars();
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it) {
        // None while the editor is hidden, and for toolbars registered after it was filled.
        if (ToolBarItem *const record = recordOf(it.key()))
            m_workingActions.insert(record, it.value());
    }
    currentToolBarChanged(m_listItemOfRecord.value(m_currentRecord));
    const auto records = m_workingActions.keys();
    for (ToolBarItem *record : records)
        removeToolBar(record);
}

// The entry of a deleted toolbar may have outlived its record, and a new toolbar or record may
// have been given the same address since.
ToolBarItem *RyCToolBarWidget::recordOf(QToolBar *toolBar) const
{
    ToolBarItem *const record = m_recordOfToolBar.value(toolBar);
    return m_ownedRecords.contains(record) && record->toolBar() == toolBar ? record : nullptr;
}
