// SPDX-License-Identifier: MIT

#include "ryctoolbarwidget.h"

#include "rytoolbarmanager.h"
#include "toolbaritem.h"
#include "ui_ctoolbarpage.h"

namespace {

const int EntryAlignment = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;

} // namespace

void RyCToolBarWidget::fillNew()
{
    if (!m_managerGuard)
        return;
    fillActionTree();
    fillToolBarList();
    setButtons();
}

void RyCToolBarWidget::fillActionTree()
{
    QTreeWidgetItem *const separator = new QTreeWidgetItem(QStringList(m_separatorText));
    ui->actionTree->addTopLevelItem(separator);
    ui->actionTree->setCurrentItem(separator);
    m_currentActionItem = separator;
    m_treeItemOfAction.insert(nullptr, separator);
    m_actionOfTreeItem.insert(separator, nullptr);

    const auto categories = m_manager->categories();
    for (const QString &category : categories) {
        QTreeWidgetItem *const item = new QTreeWidgetItem(ui->actionTree, QStringList(category));
        QList<QTreeWidgetItem *> actionItems;
        const auto actions = m_manager->categoryActions(category);
        for (QAction *action : actions)
            actionItems.append(createActionItem(action));
        item->addChildren(actionItems);
    }
    ui->actionTree->sortItems(0, Qt::AscendingOrder);
}

QTreeWidgetItem *RyCToolBarWidget::createActionItem(QAction *action)
{
    QTreeWidgetItem *const item = new QTreeWidgetItem(QStringList(action->text()));
    item->setIcon(0, action->icon());
    item->setData(0, Qt::TextAlignmentRole, EntryAlignment);
    item->setFlags(item->flags() | Qt::ItemIsDragEnabled);
    // Most of them come in the order of their addresses.
    m_treeItemOfAction.insert(m_treeItemOfAction.constEnd(), action, item);
    m_actionOfTreeItem.insert(m_actionOfTreeItem.constEnd(), item, action);
    return item;
}

void RyCToolBarWidget::fillToolBarList()
{
    const auto toolBars = m_manager->toolBarsActions();
    for (auto it = toolBars.cbegin(); it != toolBars.cend(); ++it) {
        ToolBarItem *const record = createItem(it.key());
        m_recordOfToolBar.insert(it.key(), record);
        QListWidgetItem *const row = new QListWidgetItem(record->toolBarName(), ui->toolBarList);
        m_listItemOfRecord.insert(record, row);
        m_recordOfListItem.insert(row, record);
        m_workingActions.insert(record, it.value());
        if (it == toolBars.cbegin())
            ui->toolBarList->setCurrentItem(row);
        // Either change reaches toolBarRenamed(), which is harmless and meant.
        if (isDefaultToolBar(record))
            row->setForeground(Qt::darkGreen);
        else
            row->setFlags(row->flags() | Qt::ItemIsEditable);
    }
    ui->toolBarList->sortItems(Qt::AscendingOrder);
}

void RyCToolBarWidget::clearOld()
{
    // First, because emptying the views may make another toolbar current, whose entries would look
    // for the tree items of removed actions.
    m_treeItemOfAction.clear();
    m_actionOfTreeItem.clear();

    ui->actionTree->clear();
    ui->toolBarList->clear();
    ui->currentToolBarList->clear();

    // The Rename button is left as it is on purpose.
    ui->removeButton->setEnabled(false);
    ui->newButton->setEnabled(false);
    ui->upButton->setEnabled(false);
    ui->downButton->setEnabled(false);
    ui->leftButton->setEnabled(false);
    ui->rightButton->setEnabled(false);

    m_listItemOfRecord.clear();
    m_recordOfListItem.clear();
    m_entryOfAction.clear();
    m_actionOfEntry.clear();
    m_recordOfToolBar.clear();
    m_workingActions.clear();
    m_createdRecords.clear();
    m_removedRecords.clear();
    qDeleteAll(m_ownedRecords);
    m_ownedRecords.clear();
    m_toolBarGuards.clear();
    m_currentRecord = nullptr;
    m_currentActionItem = nullptr;
}

ToolBarItem *RyCToolBarWidget::createItem(QToolBar *toolBar)
{
    if (!toolBar)
        return nullptr;
    ToolBarItem *const item = new ToolBarItem(toolBar, toolBar->windowTitle());
    m_toolBarGuards.insert(item, toolBar);
    m_ownedRecords.insert(item);
    return item;
}

ToolBarItem *RyCToolBarWidget::createItem(const QString &name)
{
    ToolBarItem *const item = new ToolBarItem(name);
    m_ownedRecords.insert(item);
    return item;
}

void RyCToolBarWidget::deleteItem(ToolBarItem *item)
{
    if (!m_ownedRecords.remove(item))
        return;
    m_toolBarGuards.remove(item);
    delete item;
}

// Null for a record without a toolbar, and for one whose toolbar the host deleted.
QToolBar *RyCToolBarWidget::toolBarOf(const ToolBarItem *record) const
{
    const auto guard = m_toolBarGuards.constFind(record);
    return guard == m_toolBarGuards.constEnd() ? record->toolBar() : guard.value().data();
}

// A row for the current toolbar's list that is not yet in the list. An action that the host has
// removed, and may have deleted, looks as it does in the action tree.
QListWidgetItem *RyCToolBarWidget::createEntry(QAction *action)
{
    QListWidgetItem *const entry = new QListWidgetItem(action ? QString() : m_separatorText);
    m_actionOfEntry.insert(entry, action);
    if (!action)
        return entry;
    m_entryOfAction.insert(action, entry);
    entry->setData(Qt::TextAlignmentRole, EntryAlignment);
    if (m_managerGuard && m_manager->actions().contains(action)) {
        entry->setText(action->text());
        entry->setIcon(action->icon());
    } else if (const QTreeWidgetItem *const item = m_treeItemOfAction.value(action)) {
        entry->setText(item->text(0));
        entry->setIcon(item->icon(0));
    }
    return entry;
}
