// SPDX-License-Identifier: MIT

#include "editorcomparison.h"

#include "toolbaritem.h"

#include <QAction>
#include <QLineEdit>

namespace {

const int EntryAlignment = 0x881;

template <typename T> std::set<T> setOf(const QSet<T> &set)
{
    return {set.begin(), set.end()};
}

std::map<ToolBarItem *, Content> mapOf(const QMap<ToolBarItem *, QList<QAction *>> &map)
{
    std::map<ToolBarItem *, Content> result;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        result[it.key()] = Content(it.value().begin(), it.value().end());
    return result;
}

} // namespace

EditorComparison::EditorComparison(const EditorModel &model, const RealDialog &real,
                                   Differences *differences)
    : m_model(model)
    , m_real(real)
    , m_fields(real.fields())
    , m_differences(differences)
{
}

void EditorComparison::run()
{
    compareRecords();
    // What is freed must not be followed.
    if (!m_differences->lines.isEmpty())
        return;
    compareRows();
    compareEntries();
    compareTree();
    compareButtons();
    compareEditing();
}

void EditorComparison::compareRecords()
{
    m_differences->compare("working copy", m_model.working, mapOf(m_fields.workingActions));
    m_differences->compare("created", m_model.created, setOf(m_fields.createdRecords));
    m_differences->compare("removed", m_model.removed, setOf(m_fields.removedRecords));
    std::set<ToolBarItem *> owned;
    for (const auto &entry : m_model.records)
        owned.insert(entry.first);
    m_differences->compare("owned", owned, setOf(m_fields.ownedRecords));
    std::map<QToolBar *, ToolBarItem *> recordOfToolBar;
    for (auto it = m_fields.recordOfToolBar.cbegin(); it != m_fields.recordOfToolBar.cend(); ++it)
        recordOfToolBar[it.key()] = it.value();
    m_differences->compare("records of the fill", m_model.recordOfToolBar, recordOfToolBar);
    m_differences->compare("current record", m_model.currentRecord, m_fields.currentRecord);
    if (!m_differences->lines.isEmpty())
        return;
    for (const auto &entry : m_model.records) {
        m_differences->compare("toolbar of a record", entry.second.toolBar, entry.first->toolBar());
        m_differences->compare("name of a record", entry.second.name, entry.first->toolBarName());
    }
}

void EditorComparison::compareRows()
{
    const QListWidget *const list = m_real.views.toolBarList;
    const int count = static_cast<int>(m_model.rows.size());
    m_differences->compare("toolbar rows", count, list->count());
    m_differences->compare("current toolbar row", m_model.currentRow(), list->currentRow());
    m_differences->compare("rows of records", count, int(m_fields.listItemOfRecord.size()));
    m_differences->compare("records of rows", count, int(m_fields.recordOfListItem.size()));
    for (int row = 0; row < std::min(count, list->count()); ++row)
        compareRow(row);
}

void EditorComparison::compareRow(int row)
{
    const EditorModel::Row &expected = m_model.rows[static_cast<std::size_t>(row)];
    QListWidgetItem *const found = m_real.views.toolBarList->item(row);
    m_differences->compare("record of a row", expected.record,
                           m_fields.recordOfListItem.value(found));
    m_differences->compare(
        "row of a record",
        static_cast<const void *>(m_fields.listItemOfRecord.value(expected.record)),
        static_cast<const void *>(found));
    m_differences->compare("text of a toolbar row", expected.text, found->text());
    m_differences->compare("editable row", int(!expected.isDefault),
                           int(found->flags().testFlag(Qt::ItemIsEditable)));
    const QBrush expectedBrush = expected.isDefault ? QBrush(Qt::darkGreen) : QBrush();
    m_differences->compare("color of a row", 1, int(found->foreground() == expectedBrush));
}

void EditorComparison::compareEntries()
{
    const QListWidget *const list = m_real.views.currentToolBarList;
    const int count = static_cast<int>(m_model.entries.size());
    m_differences->compare("entries", count, list->count());
    m_differences->compare("current entry", m_model.currentEntry, list->currentRow());
    m_differences->compare("actions of entries", count, int(m_fields.actionOfEntry.size()));
    int actions = 0;
    for (const EditorModel::Entry &entry : m_model.entries)
        actions += entry.action ? 1 : 0;
    m_differences->compare("entries of actions", actions, int(m_fields.entryOfAction.size()));
    for (int row = 0; row < std::min(count, list->count()); ++row)
        compareEntry(row);
}

void EditorComparison::compareEntry(int row)
{
    const EditorModel::Entry &expected = m_model.entries[static_cast<std::size_t>(row)];
    QListWidgetItem *const found = m_real.views.currentToolBarList->item(row);
    m_differences->compare("action of an entry", expected.action,
                           m_fields.actionOfEntry.value(found));
    m_differences->compare("text of an entry", expected.text, found->text());
    m_differences->compare("alignment of an entry", expected.action ? EntryAlignment : 0,
                           found->textAlignment());
    m_differences->compare("icon of an entry", int(expected.hasIcon), int(!found->icon().isNull()));
    if (expected.action) {
        m_differences->compare(
            "entry of an action", static_cast<const void *>(found),
            static_cast<const void *>(m_fields.entryOfAction.value(expected.action)));
    }
}

void EditorComparison::compareTree()
{
    const QTreeWidget *const tree = m_real.views.actionTree;
    const int count = static_cast<int>(m_model.tree.size());
    m_differences->compare("top items", count, tree->topLevelItemCount());
    int known = 0;
    for (int i = 0; i < std::min(count, tree->topLevelItemCount()); ++i) {
        const EditorModel::Category &expected = m_model.tree[static_cast<std::size_t>(i)];
        const QTreeWidgetItem *const found = tree->topLevelItem(i);
        const int children = static_cast<int>(expected.actions.size());
        m_differences->compare("text of a top item", expected.item.text, found->text(0));
        m_differences->compare("expanded", int(expected.expanded), int(found->isExpanded()));
        m_differences->compare("items of a category", children, found->childCount());
        for (int j = 0; j < std::min(children, found->childCount()); ++j)
            compareActionItem(expected.actions[static_cast<std::size_t>(j)], found->child(j));
        known += children + (expected.item.isCategory ? 0 : 1);
    }
    m_differences->compare("actions of items", known, int(m_fields.actionOfTreeItem.size()));
    m_differences->compare("items of actions", known, int(m_fields.treeItemOfAction.size()));
    compareCurrentItem();
}

void EditorComparison::compareActionItem(const EditorModel::Item &expected,
                                         const QTreeWidgetItem *found)
{
    QTreeWidgetItem *const item = m_fields.treeItemOfAction.value(expected.action);
    m_differences->compare("text of an action item", expected.text, found->text(0));
    m_differences->compare("item of an action", static_cast<const void *>(found),
                           static_cast<const void *>(item));
    m_differences->compare("action of an item", expected.action,
                           m_fields.actionOfTreeItem.value(item));
    m_differences->compare("alignment of an item", EntryAlignment, found->textAlignment(0));
    m_differences->compare("draggable item", 1,
                           int(found->flags().testFlag(Qt::ItemIsDragEnabled)));
    m_differences->compare("icon of an item", int(!expected.action->icon().isNull()),
                           int(!found->icon(0).isNull()));
}

void EditorComparison::compareCurrentItem()
{
    QTreeWidgetItem *const found = m_real.views.actionTree->currentItem();
    const bool isAction = m_model.hasCurrentItem && !m_model.currentItem.isCategory;
    m_differences->compare("current item", int(m_model.hasCurrentItem), int(found != nullptr));
    if (found && m_model.hasCurrentItem) {
        m_differences->compare("text of the current item", m_model.currentItem.text,
                               found->text(0));
        m_differences->compare("action of the current item", m_model.currentItem.action,
                               m_fields.actionOfTreeItem.value(found));
    }
    m_differences->compare("current action item",
                           static_cast<const void *>(isAction ? found : nullptr),
                           static_cast<const void *>(m_fields.currentActionItem));
}

void EditorComparison::compareButtons()
{
    for (int button = 0; button < EditorModel::ButtonCount; ++button) {
        const QToolButton *const found = m_real.button(button);
        m_differences->compare(qPrintable(found->objectName()), int(m_model.enabled[button]),
                               int(found->isEnabled()));
    }
}

void EditorComparison::compareEditing()
{
    const QLineEdit *const editor = m_real.renameEditor();
    m_differences->compare("rename editor", int(m_model.editing != nullptr),
                           int(editor != nullptr));
    if (m_model.editing && editor)
        m_differences->compare("text of the rename editor", m_model.typed, editor->text());
}
