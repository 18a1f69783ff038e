// SPDX-License-Identifier: MIT

#include "ryctoolbarwidget.h"

#include "editorapply.h"
#include "editorform.h"
#include "rytoolbarmanager.h"
#include "toolbaritem.h"

void RyCToolBarWidget::applyClicked()
{
    if (form()->manager)
        EditorApply(this).run();
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
    return m_ownedRecords.contains(record) && toolBarOf(record) == toolBar ? record : nullptr;
}
