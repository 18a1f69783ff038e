// SPDX-License-Identifier: MIT

#include "editorfields.h"

#include "ryctoolbarwidget.h"

namespace {

EditorFields read(const RyCToolBarWidget &widget);

// The arguments of an explicit instantiation may name private members.
template <auto... Fields> struct Reader
{
    friend EditorFields read(const RyCToolBarWidget &widget) { return {widget.*Fields...}; }
};

template struct Reader<&RyCToolBarWidget::m_workingActions, &RyCToolBarWidget::m_recordOfToolBar,
                       &RyCToolBarWidget::m_createdRecords, &RyCToolBarWidget::m_removedRecords,
                       &RyCToolBarWidget::m_ownedRecords, &RyCToolBarWidget::m_currentActionItem,
                       &RyCToolBarWidget::m_treeItemOfAction, &RyCToolBarWidget::m_actionOfTreeItem,
                       &RyCToolBarWidget::m_currentRecord, &RyCToolBarWidget::m_listItemOfRecord,
                       &RyCToolBarWidget::m_recordOfListItem, &RyCToolBarWidget::m_entryOfAction,
                       &RyCToolBarWidget::m_actionOfEntry>;

} // namespace

EditorFields EditorFields::of(const RyCToolBarWidget &widget)
{
    return read(widget);
}
