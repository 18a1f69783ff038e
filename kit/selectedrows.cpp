// SPDX-License-Identifier: MIT

#include "selectedrows.h"

#include "editorcommands.h"

#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QListWidget>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>

namespace {

// Then the view selects by itself.
bool isChosenByUser(const QAbstractItemView *view)
{
    return view->hasFocus()
        && (QGuiApplication::mouseButtons()
            || QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier));
}

} // namespace

// A button reports its release before its click, to which the editor is connected already.
SelectedRows::SelectedRows(const DialogParts &parts, EditorCommands *commands)
    : m_parts(parts)
    , m_commands(commands)
    , m_currentEntry(nullptr)
    , m_beforeUp(nullptr)
    , m_beforeDown(nullptr)
{
    selectSeveralIn(m_parts.actionTree);
    selectSeveralIn(m_parts.entryList);
    for (QToolButton *button : {m_parts.upButton, m_parts.downButton, m_parts.leftButton})
        connect(button, SIGNAL(released()), this, SLOT(prepareForEntries()));
    connect(m_parts.rightButton, SIGNAL(released()), this, SLOT(prepareForActions()));
    connect(m_parts.upButton, SIGNAL(clicked()), this, SLOT(moveOthersUp()));
    connect(m_parts.downButton, SIGNAL(clicked()), this, SLOT(moveOthersDown()));
    connect(m_parts.leftButton, SIGNAL(clicked()), this, SLOT(removeOthers()));
    connect(m_parts.rightButton, SIGNAL(clicked()), this, SLOT(addOthers()));
}

void SelectedRows::selectSeveralIn(QAbstractItemView *view)
{
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, view](const QModelIndex &current) { selectOnly(view, current); });
}

// What the editor or another addition makes current would be selected in addition to the rest.
void SelectedRows::selectOnly(QAbstractItemView *view, const QModelIndex &current)
{
    if (!m_commands->areRunning() && current.isValid() && !isChosenByUser(view))
        view->selectionModel()->select(current, QItemSelectionModel::ClearAndSelect);
}

QModelIndexList SelectedRows::entryRows() const
{
    QModelIndexList rows = m_parts.entryList->selectionModel()->selectedIndexes();
    std::sort(rows.begin(), rows.end());
    return rows;
}

QModelIndexList SelectedRows::actionRows() const
{
    QModelIndexList rows;
    const QTreeWidget *const tree = m_parts.actionTree;
    const QItemSelectionModel *const selection = tree->selectionModel();
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *const item = tree->topLevelItem(i);
        const QModelIndex index = tree->model()->index(i, 0);
        if (item->isHidden())
            continue;
        if (item->childCount() == 0 && selection->isSelected(index))
            rows.append(index);
        for (int j = 0; item->isExpanded() && j < item->childCount(); ++j) {
            const QModelIndex child = tree->model()->index(j, 0, index);
            if (selection->isSelected(child) && !item->child(j)->isHidden())
                rows.append(child);
        }
    }
    return rows;
}

QList<QListWidgetItem *> SelectedRows::entriesAt(const QModelIndexList &rows) const
{
    QList<QListWidgetItem *> entries;
    for (const QModelIndex &row : rows)
        entries.append(m_parts.entryList->item(row.row()));
    return entries;
}

QList<QTreeWidgetItem *> SelectedRows::actionsAt(const QModelIndexList &rows) const
{
    QList<QTreeWidgetItem *> actions;
    for (const QModelIndex &row : rows) {
        const QModelIndex category = row.parent();
        actions.append(category.isValid()
                           ? m_parts.actionTree->topLevelItem(category.row())->child(row.row())
                           : m_parts.actionTree->topLevelItem(row.row()));
    }
    return actions;
}

// If the user has deselected the current one, another takes its place.
void SelectedRows::prepareForEntries()
{
    if (m_commands->areRunning())
        return;
    QListWidget *const list = m_parts.entryList;
    m_entries = entriesAt(entryRows());
    if (m_entries.isEmpty())
        return;
    const int first = list->row(m_entries.first());
    const int last = list->row(m_entries.last());
    if (!m_entries.contains(list->currentItem()))
        list->setCurrentItem(m_entries.first(), QItemSelectionModel::NoUpdate);
    m_currentEntry = list->currentItem();
    m_beforeUp = list->item(first - 2);
    m_beforeDown = list->item(qMin(last + 1, list->count() - 1));
}

void SelectedRows::prepareForActions()
{
    if (m_commands->areRunning())
        return;
    m_actions = actionsAt(actionRows());
    QTreeWidgetItem *const current = m_parts.actionTree->currentItem();
    // Not the separator, which is the first and would be added twice.
    if (!m_actions.isEmpty() && (!m_actions.contains(current) || !current->parent()))
        m_parts.actionTree->setCurrentItem(m_actions.last(), 0, QItemSelectionModel::NoUpdate);
}

void SelectedRows::moveOthersUp()
{
    moveBehind(m_beforeUp);
}

void SelectedRows::moveOthersDown()
{
    moveBehind(m_beforeDown);
}

void SelectedRows::moveBehind(QListWidgetItem *previous)
{
    if (m_commands->areRunning() || m_entries.size() < 2)
        return;
    m_commands->move(m_entries, previous ? m_parts.entryList->row(previous) + 1 : 0);
}

void SelectedRows::removeOthers()
{
    if (m_commands->areRunning() || m_entries.size() < 2)
        return;
    m_entries.removeOne(m_currentEntry);
    m_commands->remove(m_entries);
}

// All of them come to where the editor has added the current one.
void SelectedRows::addOthers()
{
    if (!m_commands->areRunning() && m_actions.size() > 1)
        m_commands->insert(m_actions, m_parts.entryList->currentRow());
}
