// SPDX-License-Identifier: MIT

#include "editormodel.h"

#include <QAction>

#include <algorithm>

namespace {

template <typename T> int placeOf(const std::vector<T> &list, const T &value)
{
    return static_cast<int>(std::find(list.begin(), list.end(), value) - list.begin());
}

const QString SeparatorText = "< S E P A R A T O R >";

} // namespace

bool operator==(const EditorModel::Item &a, const EditorModel::Item &b)
{
    return a.isCategory == b.isCategory && a.action == b.action
        && (!a.isCategory || a.text == b.text);
}

EditorModel::EditorModel(WorldModel *world, ManagerModel *manager)
    : m_world(world)
    , m_manager(manager)
{
    reset();
}

void EditorModel::reset()
{
    if (filled)
        clear();
    std::fill(enabled, enabled + ButtonCount, true);
}

void EditorModel::fill(const std::map<QToolBar *, ToolBarItem *> &made)
{
    filled = true;
    recordOfToolBar = made;
    fillTree();
    for (const auto &entry : m_manager->toolBars) {
        ToolBarItem *const record = recordOfToolBar[entry.first];
        const QString title = m_world->toolBars[entry.first].title;
        records[record] = {entry.first, title};
        working[record] = entry.second.content;
        rows.push_back({record, title, entry.second.isDefault});
    }
    sortRows();
    if (!m_manager->toolBars.empty())
        makeCurrent(rowOf(recordOfToolBar[m_manager->toolBars.begin()->first]));
    setButtons();
}

void EditorModel::fillTree()
{
    currentItem = {false, SeparatorText, nullptr};
    hasCurrentItem = true;
    tree.push_back({currentItem, {}, false});
    for (const auto &category : m_manager->categories) {
        Category item{{true, category.first, nullptr}, {}, false};
        for (QAction *action : category.second)
            item.actions.push_back({false, m_world->actions[action].text, action});
        tree.push_back(item);
    }
    sortTree();
}

// Clearing the views leaves no toolbar and no action current, which sets the buttons; Rename alone
// is not disabled then.
void EditorModel::clear()
{
    currentRecord = nullptr;
    setButtons();
    for (int button = 0; button < ButtonCount; ++button)
        enabled[button] = enabled[button] && button == Rename;
    filled = false;
    records.clear();
    working.clear();
    created.clear();
    removed.clear();
    rows.clear();
    entries.clear();
    tree.clear();
    recordOfToolBar.clear();
    hasCurrentItem = false;
    currentEntry = -1;
    editing = nullptr;
}

void EditorModel::setTieOrder(const std::vector<ToolBarItem *> &rowOrder,
                              const std::vector<QAction *> &itemOrder)
{
    m_rowOrder = rowOrder;
    m_itemOrder = itemOrder;
}

void EditorModel::newClicked(ToolBarItem *record)
{
    if (!enabled[New])
        return;
    // Qt closes an open editor with its row, and takes over what was typed.
    commitEditing();
    const QString name = "Custom Toolbar";
    records[record] = {nullptr, name};
    working[record] = {};
    created.insert(record);
    rows.push_back({record, name, false});
    sortRows();
    makeCurrent(rowOf(record));
    beginEditing();
}

void EditorModel::removeClicked()
{
    if (enabled[Remove] && currentRecord)
        removeToolBar(currentRecord);
}

void EditorModel::removeToolBar(ToolBarItem *record)
{
    const int row = rowOf(record);
    if (isDefault(record) || row < 0)
        return;
    const bool wasCurrent = record == currentRecord;
    if (editing == record)
        editing = nullptr;
    working.erase(record);
    created.erase(record);
    rows.erase(rows.begin() + row);
    if (records[record].toolBar)
        removed.insert(record);
    else
        records.erase(record);
    if (wasCurrent)
        makeCurrent(std::min(row, static_cast<int>(rows.size()) - 1));
    setButtons();
}

void EditorModel::renameClicked()
{
    if (enabled[Rename])
        beginEditing();
}

void EditorModel::beginEditing()
{
    const int row = currentRow();
    if (row < 0 || rows[static_cast<std::size_t>(row)].isDefault || editing == currentRecord)
        return;
    editing = currentRecord;
    typed = rows[static_cast<std::size_t>(row)].text;
}

void EditorModel::type(const QString &text)
{
    if (editing)
        typed = text;
}

void EditorModel::commitEditing()
{
    if (!editing)
        return;
    rows[static_cast<std::size_t>(rowOf(editing))].text = typed;
    records[editing].name = typed;
    editing = nullptr;
    sortRows();
}

void EditorModel::cancelEditing()
{
    editing = nullptr;
}

void EditorModel::upClicked()
{
    if (enabled[Up] && currentEntry > 0)
        moveEntry(-1);
}

void EditorModel::downClicked()
{
    if (enabled[Down] && currentEntry >= 0 && currentEntry < static_cast<int>(entries.size()) - 1)
        moveEntry(1);
}

void EditorModel::moveEntry(int distance)
{
    const auto from = static_cast<std::size_t>(currentEntry);
    const auto to = static_cast<std::size_t>(currentEntry + distance);
    std::swap(entries[from], entries[to]);
    std::swap(working[currentRecord][from], working[currentRecord][to]);
    currentEntry += distance;
    setButtons();
}

void EditorModel::leftClicked()
{
    if (currentEntry < 0)
        return;
    entries.erase(entries.begin() + currentEntry);
    Content &content = working[currentRecord];
    content.erase(content.begin() + currentEntry);
    currentEntry = std::min(currentEntry, static_cast<int>(entries.size()) - 1);
    setButtons();
}

void EditorModel::rightClicked()
{
    if (!hasCurrentItem || currentItem.isCategory || !currentRecord)
        return;
    QAction *const action = currentItem.action;
    Content &content = working[currentRecord];
    Entry entry = entryOf(action);
    const int place = action ? placeOf(content, action) : static_cast<int>(content.size());
    if (place < static_cast<int>(content.size())) {
        if (place == currentEntry)
            return;
        entry = entries[static_cast<std::size_t>(place)];
        entries.erase(entries.begin() + place);
        content.erase(content.begin() + place);
        if (place < currentEntry)
            --currentEntry;
    }
    currentEntry = currentEntry < 0 ? static_cast<int>(entries.size()) : currentEntry + 1;
    entries.insert(entries.begin() + currentEntry, entry);
    content.insert(content.begin() + currentEntry, action);
    setButtons();
}

void EditorModel::apply(const std::vector<std::pair<ToolBarItem *, QToolBar *>> &made)
{
    applyExisting();
    applyRemoved();
    for (const auto &creation : made) {
        ToolBarItem *const record = creation.first;
        std::deque<QToolBar *> toolBars{creation.second};
        if (!created.erase(record))
            continue;
        QToolBar *const toolBar = m_manager->createToolBar(records[record].name, toolBars);
        records[record].toolBar = toolBar;
        m_manager->setToolBar(toolBar, working[record]);
    }
}

void EditorModel::applyExisting()
{
    for (const auto &entry : working) {
        const Record &record = records[entry.first];
        if (!record.toolBar)
            continue;
        m_manager->setToolBar(record.toolBar, entry.second);
        m_world->toolBars[record.toolBar].title = record.name;
    }
}

void EditorModel::applyRemoved()
{
    const auto gone = removed;
    for (ToolBarItem *record : gone) {
        QToolBar *const toolBar = records[record].toolBar;
        removed.erase(record);
        working.erase(record);
        records.erase(record);
        m_manager->deleteToolBar(toolBar);
    }
}

void EditorModel::restoreDefaults()
{
    // Toolbars that were registered after the page was filled have no record and are left out.
    for (const auto &entry : m_manager->toolBars) {
        const auto found = recordOfToolBar.find(entry.first);
        if (!entry.second.isDefault || found == recordOfToolBar.end())
            continue;
        // The record may be gone, and its address that of another one.
        const auto record = records.find(found->second);
        if (record != records.end() && record->second.toolBar == entry.first)
            working[record->first] = entry.second.defaultContent;
    }
    showCurrent();
    const auto copy = working;
    for (const auto &entry : copy)
        removeToolBar(entry.first);
}

void EditorModel::selectRow(int row)
{
    if (row != currentRow())
        makeCurrent(row);
}

void EditorModel::selectEntry(int row)
{
    if (row == currentEntry)
        return;
    currentEntry = row;
    setButtons();
}

void EditorModel::selectItem(const Item &item)
{
    if (hasCurrentItem && currentItem == item)
        return;
    hasCurrentItem = true;
    currentItem = item;
    setButtons();
}

bool EditorModel::isDefault(ToolBarItem *record) const
{
    const auto it = records.find(record);
    return it != records.end() && m_manager->isDefaultToolBar(it->second.toolBar);
}

int EditorModel::rowOf(ToolBarItem *record) const
{
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].record == record)
            return static_cast<int>(row);
    }
    return -1;
}

void EditorModel::makeCurrent(int row)
{
    currentRecord = row < 0 ? nullptr : rows[static_cast<std::size_t>(row)].record;
    showCurrent();
}

void EditorModel::showCurrent()
{
    entries.clear();
    if (currentRecord) {
        for (QAction *action : working[currentRecord])
            entries.push_back(entryOf(action));
    }
    currentEntry = entries.empty() ? -1 : 0;
    setButtons();
}

// An action that is no longer registered is shown as the tree shows it.
EditorModel::Entry EditorModel::entryOf(QAction *action) const
{
    if (!action)
        return {nullptr, SeparatorText, false};
    const bool hasIcon = !action->icon().isNull();
    if (m_manager->registered.count(action))
        return {action, m_world->actions[action].text, hasIcon};
    for (const Category &category : tree) {
        for (const Item &item : category.actions) {
            if (item.action == action)
                return {action, item.text, hasIcon};
        }
    }
    return {action, QString(), false};
}

void EditorModel::setButtons()
{
    const int last = static_cast<int>(entries.size()) - 1;
    enabled[New] = true;
    enabled[Remove] = !isDefault(currentRecord);
    enabled[Rename] = enabled[Remove];
    enabled[Up] = currentEntry > 0;
    enabled[Down] = currentEntry >= 0 && currentEntry < last;
    enabled[Left] = currentEntry >= 0;
    enabled[Right] = hasCurrentItem && !currentItem.isCategory && currentRecord;
}

void EditorModel::sortRows()
{
    std::sort(rows.begin(), rows.end(), [this](const Row &a, const Row &b) {
        const int order = QString::localeAwareCompare(a.text, b.text);
        return order < 0
            || (order == 0 && placeOf(m_rowOrder, a.record) < placeOf(m_rowOrder, b.record));
    });
}

void EditorModel::sortTree()
{
    const auto before = [this](const Item &a, const Item &b) {
        const int order = QString::localeAwareCompare(a.text, b.text);
        // The separator entry is no category of the same name; m_itemOrder has null for it.
        if (order == 0 && a.isCategory != b.isCategory)
            return b.isCategory;
        return order < 0
            || (order == 0 && placeOf(m_itemOrder, a.action) < placeOf(m_itemOrder, b.action));
    };
    for (Category &category : tree)
        std::sort(category.actions.begin(), category.actions.end(), before);
    std::sort(tree.begin(), tree.end(),
              [&](const Category &a, const Category &b) { return before(a.item, b.item); });
}
