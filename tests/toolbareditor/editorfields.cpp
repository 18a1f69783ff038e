// SPDX-License-Identifier: MIT

#include "editorfields.h"

#include "ryctoolbarwidget.h"

namespace {

EditorFields read(const RyCToolBarWidget &widget);
ToolBarItem *create(RyCToolBarWidget &widget, QToolBar *toolBar);
void free(RyCToolBarWidget &widget, ToolBarItem *record);

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

template <ToolBarItem *(RyCToolBarWidget::*Create)(QToolBar *),
          void (RyCToolBarWidget::*Delete)(ToolBarItem *)>
struct RecordFunctions
{
    friend ToolBarItem *create(RyCToolBarWidget &widget, QToolBar *toolBar)
    {
        return (widget.*Create)(toolBar);
    }
    friend void free(RyCToolBarWidget &widget, ToolBarItem *record) { (widget.*Delete)(record); }
};

template struct RecordFunctions<&RyCToolBarWidget::createItem, &RyCToolBarWidget::deleteItem>;

} // namespace

EditorFields EditorFields::of(const RyCToolBarWidget &widget)
{
    return read(widget);
}

ToolBarItem *createRecord(RyCToolBarWidget &widget, QToolBar *toolBar)
{
    return create(widget, toolBar);
}

void deleteRecord(RyCToolBarWidget &widget, ToolBarItem *record)
{
    free(widget, record);
}
