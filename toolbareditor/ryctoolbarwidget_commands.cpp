// SPDX-License-Identifier: MIT

#include "ryctoolbarwidget.h"

#include "rytoolbarmanager.h"
#include "toolbaritem.h"
#include "ui_ctoolbarpage.h"

#include <QVector>

#include <algorithm>

namespace {

// The row that slid into the place of a removed one becomes current, or else the new last row.
void selectAfterRemoval(QListWidget *list, int removedRow)
{
    const int row = qMin(removedRow, list->count() - 1);
    if (row >= 0)
        list->setCurrentRow(row);
}

// Sorts a list in which at most this row is out of order: moving it is much faster than sorting.
// False if other rows are out of order as well, or if this Qt cannot move rows.
bool moveIntoPlace(QListWidget *list, QListWidgetItem *item)
{
    const int from = list->row(item);
    QVector<QListWidgetItem *> others;
    others.reserve(list->count());
    for (int row = 0; row < list->count(); ++row) {
        if (row != from)
            others.append(list->item(row));
    }
    const auto less = [](const QListWidgetItem *a, const QListWidgetItem *b) { return *a < *b; };
    if (!std::is_sorted(others.cbegin(), others.cend(), less))
        return false;
    // Rows of the same text keep their order, as when the list is sorted.
    const auto equal = std::equal_range(others.cbegin(), others.cend(), item, less);
    const int to =
        qBound(int(equal.first - others.cbegin()), from, int(equal.second - others.cbegin()));
    return to == from
        || list->model()->moveRow(QModelIndex(), from, QModelIndex(), to < from ? to : to + 1);
}

} // namespace

void RyCToolBarWidget::newClicked()
{
    // The buttons are enabled until something sets them, and nothing could be applied.
    if (!m_managerGuard) {
        setButtons();
        return;
    }
    const QString name = tr("Custom Toolbar");
    ToolBarItem *const record = createItem(name);
    m_workingActions.insert(record, QList<QAction *>());
    m_createdRecords.insert(record);

    QListWidgetItem *const row = new QListWidgetItem(name, ui->toolBarList);
    row->setFlags(row->flags() | Qt::ItemIsEditable);
    // Not yet in the maps, so that this leaves no toolbar current.
    ui->toolBarList->setCurrentItem(row);
    m_recordOfListItem.insert(row, record);
    m_listItemOfRecord.insert(record, row);
    ui->toolBarList->sortItems(Qt::AscendingOrder);
    ui->toolBarList->setCurrentItem(row);
    currentToolBarChanged(row);
    renameClicked();
}

void RyCToolBarWidget::removeClicked()
{
    if (QListWidgetItem *const row = ui->toolBarList->currentItem())
        removeToolBar(m_recordOfListItem.value(row));
}

void RyCToolBarWidget::removeToolBar(ToolBarItem *item)
{
    if (!m_listItemOfRecord.contains(item) || isDefaultToolBar(item))
        return;
    QListWidgetItem *const rowItem = m_listItemOfRecord.take(item);
    const int row = ui->toolBarList->row(rowItem);
    const bool wasCurrent = row == ui->toolBarList->currentRow();
    m_workingActions.remove(item);
    m_createdRecords.remove(item);
    m_recordOfListItem.remove(rowItem);
    delete rowItem;
    // A toolbar that the host deleted is nothing to remove.
    if (toolBarOf(item))
        m_removedRecords.insert(item);
    else
        deleteItem(item);
    if (wasCurrent)
        selectAfterRemoval(ui->toolBarList, row);
    setButtons();
}

void RyCToolBarWidget::renameClicked()
{
    QListWidgetItem *const row = m_listItemOfRecord.value(m_currentRecord);
    if (!row || !row->flags().testFlag(Qt::ItemIsEditable))
        return;
    // Qt warns of a second editor; an open one is the row's widget.
    if (!ui->toolBarList->itemWidget(row))
        ui->toolBarList->editItem(row);
}

void RyCToolBarWidget::toolBarRenamed(QListWidgetItem *item)
{
    // Without a current toolbar the row's new text is not taken over, on purpose.
    ToolBarItem *const record = m_currentRecord ? m_recordOfListItem.value(item) : nullptr;
    if (!record)
        return;
    record->setToolBarName(item->text());
    if (!moveIntoPlace(ui->toolBarList, item))
        ui->toolBarList->sortItems(Qt::AscendingOrder);
}

void RyCToolBarWidget::upClicked()
{
    if (ui->currentToolBarList->currentRow() > 0)
        moveCurrentEntry(-1);
}

void RyCToolBarWidget::downClicked()
{
    const int row = ui->currentToolBarList->currentRow();
    if (row >= 0 && row < ui->currentToolBarList->count() - 1)
        moveCurrentEntry(1);
}

void RyCToolBarWidget::moveCurrentEntry(int distance)
{
    const int from = ui->currentToolBarList->currentRow();
    const int to = from + distance;
    QListWidgetItem *const entry = ui->currentToolBarList->takeItem(from);
    ui->currentToolBarList->insertItem(to, entry);
    m_workingActions[m_currentRecord].move(from, to);
    ui->currentToolBarList->setCurrentItem(entry);
    setButtons();
}

void RyCToolBarWidget::leftClicked()
{
    QListWidgetItem *const entry = ui->currentToolBarList->currentItem();
    if (!entry)
        return;
    const int row = ui->currentToolBarList->row(entry);
    m_workingActions[m_currentRecord].removeAt(row);
    if (QAction *const action = m_actionOfEntry.take(entry))
        m_entryOfAction.remove(action);
    delete entry;
    selectAfterRemoval(ui->currentToolBarList, row);
    setButtons();
}

void RyCToolBarWidget::rightClicked()
{
    if (!m_currentActionItem || !m_currentRecord)
        return;
    QListWidget *const list = ui->currentToolBarList;
    QAction *const action = m_actionOfTreeItem.value(m_currentActionItem);
    QListWidgetItem *entry = m_entryOfAction.value(action);
    if (entry && entry == list->currentItem())
        return;
    if (entry) {
        const int oldRow = list->row(entry);
        list->takeItem(oldRow);
        m_workingActions[m_currentRecord].removeAt(oldRow);
    } else {
        entry = createEntry(action);
    }
    // After the current entry, or at the end without one.
    const int row = list->currentRow() < 0 ? list->count() : list->currentRow() + 1;
    list->insertItem(row, entry);
    m_workingActions[m_currentRecord].insert(row, action);
    list->setCurrentItem(entry);
    setButtons();
}
