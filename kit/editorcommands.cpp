// SPDX-License-Identifier: MIT

#include "editorcommands.h"

#include <RyCustomizedDialog>

#include <QEvent>
#include <QIcon>
#include <QListWidget>
#include <QPersistentModelIndex>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>

namespace {

bool click(QToolButton *button)
{
    if (!button->isEnabled())
        return false;
    button->click();
    return true;
}

void makeCurrent(QListWidget *list, QListWidgetItem *item)
{
    list->setCurrentItem(item, QItemSelectionModel::NoUpdate);
}

} // namespace

EditorCommands::EditorCommands(const DialogParts &parts)
    : m_parts(parts)
    , m_areRunning(false)
    , m_separator(nullptr)
{
    // After the dialog's own connection, when toolbars have come and gone.
    connect(m_parts.dialog->applyButton(), SIGNAL(clicked()), this, SLOT(rememberToolBars()));
    m_parts.page->installEventFilter(this);
}

bool EditorCommands::eventFilter(QObject *watched, QEvent *event)
{
    // The editor fills its views then.
    if (watched == m_parts.page && event->type() == QEvent::Show && !event->spontaneous())
        rememberToolBars();
    return QObject::eventFilter(watched, event);
}

void EditorCommands::rememberToolBars()
{
    m_toolBars.clear();
    const QWidget *const window = m_parts.dialog->parentWidget();
    const auto toolBars = window
        ? window->findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly)
        : QList<QToolBar *>();
    for (QToolBar *toolBar : toolBars)
        m_toolBars.append(toolBar);
}

// The editor does not say which of its rows is for which toolbar.
bool EditorCommands::canReachToolBars() const
{
    return !m_toolBars.contains(nullptr);
}

void EditorCommands::insert(const QList<QTreeWidgetItem *> &actions, int gap)
{
    run([&] { select(placeAll(actions, gap)); });
}

void EditorCommands::insertInto(QListWidgetItem *toolBar, const QList<QTreeWidgetItem *> &actions)
{
    if (!canReachToolBars())
        return;
    run([&] {
        if (show(toolBar))
            select(placeAll(actions, m_parts.entryList->count()));
    });
}

void EditorCommands::move(const QList<QListWidgetItem *> &entries, int gap)
{
    run([&] {
        const auto actions = actionsOf(entries);
        QList<QListWidgetItem *> placed;
        QList<QListWidgetItem *> former;
        QListWidgetItem *previous = m_parts.entryList->item(gap - 1);
        for (int i = 0; i < entries.size(); ++i) {
            QTreeWidgetItem *const action = actions.at(i);
            if (!(action ? placeBehind(previous, action) : stepBehind(previous, entries.at(i))))
                break;
            previous = m_parts.entryList->currentItem();
            placed.append(previous);
            // Another separator has come in its place.
            if (previous != entries.at(i))
                former.append(entries.at(i));
        }
        removeAll(former);
        select(placed);
    });
}

void EditorCommands::moveTo(QListWidgetItem *toolBar, const QList<QListWidgetItem *> &entries,
                            int gap)
{
    if (!canReachToolBars())
        return;
    run([&] {
        QListWidgetItem *const source = m_parts.toolBarList->currentItem();
        const auto found = actionsOf(entries);
        QList<QTreeWidgetItem *> actions;
        QList<int> rows;
        for (int i = 0; i < entries.size(); ++i) {
            if (found.at(i)) {
                actions.append(found.at(i));
                rows.append(m_parts.entryList->row(entries.at(i)));
            }
        }
        if (actions.isEmpty() || !show(toolBar))
            return;
        const auto placed = placeAll(actions, gap < 0 ? m_parts.entryList->count() : gap);
        if (placed.isEmpty())
            return;
        const int first = m_parts.entryList->row(placed.first());
        const int last = m_parts.entryList->row(placed.last());
        // Showing a toolbar makes its rows again, so the entries are found by row.
        if (!show(source))
            return;
        QList<QListWidgetItem *> former;
        for (int i = 0; i < placed.size(); ++i)
            former.append(m_parts.entryList->item(rows.at(i)));
        if (removeAll(former) && show(toolBar))
            select(first, last);
    });
}

void EditorCommands::remove(const QList<QListWidgetItem *> &entries)
{
    run([&] {
        removeAll(entries);
        const int row = m_parts.entryList->currentRow();
        select(row, row);
    });
}

// Without the views following each current row: showing an action would expand its category. With
// rows of one size each layout is fast, and there is one for each click.
void EditorCommands::run(const std::function<void()> &commands)
{
    QListWidget *const list = m_parts.entryList;
    QTreeWidget *const tree = m_parts.actionTree;
    const QPersistentModelIndex current = tree->currentIndex();
    const bool listScrolls = list->hasAutoScroll();
    const bool treeScrolls = tree->hasAutoScroll();
    const bool isUniform = list->uniformItemSizes();
    list->setAutoScroll(false);
    tree->setAutoScroll(false);
    list->setUniformItemSizes(true);
    m_areRunning = true;
    findActions();

    commands();

    tree->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    m_actions.clear();
    m_areRunning = false;
    list->setUniformItemSizes(isUniform);
    tree->setAutoScroll(treeScrolls);
    list->setAutoScroll(listScrolls);
    list->doItemsLayout();
    list->scrollToItem(list->currentItem());
}

// A category without actions has no children either, but it cannot be added.
void EditorCommands::findActions()
{
    m_separator = nullptr;
    for (int i = 0; i < m_parts.actionTree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const item = m_parts.actionTree->topLevelItem(i);
        if (item->childCount() == 0 && isAddable(item))
            m_separator = item;
        for (int j = 0; j < item->childCount(); ++j)
            m_actions.insert(item->child(j)->text(0), item->child(j));
    }
}

void EditorCommands::choose(QTreeWidgetItem *action)
{
    m_parts.actionTree->setCurrentItem(action, 0, QItemSelectionModel::NoUpdate);
}

bool EditorCommands::show(QListWidgetItem *toolBar)
{
    m_parts.toolBarList->setCurrentItem(toolBar);
    return m_parts.toolBarList->currentItem() == toolBar;
}

bool EditorCommands::isAddable(QTreeWidgetItem *action)
{
    choose(action);
    return m_parts.rightButton->isEnabled();
}

// For each entry what adds it to a toolbar, or null. All are found before the first one moves.
QList<QTreeWidgetItem *> EditorCommands::actionsOf(const QList<QListWidgetItem *> &entries)
{
    QList<QListWidgetItem *> order;
    for (int row = 0; row < m_parts.entryList->count(); ++row)
        order.append(m_parts.entryList->item(row));
    QList<QTreeWidgetItem *> actions;
    for (QListWidgetItem *entry : entries)
        actions.append(actionOf(entry, order));
    return actions;
}

// Several may have the same text. Those with the same icon are likelier.
QTreeWidgetItem *EditorCommands::actionOf(QListWidgetItem *entry,
                                          const QList<QListWidgetItem *> &order)
{
    const auto candidates = m_actions.values(entry->text());
    for (const bool withSameIcon : {true, false}) {
        for (QTreeWidgetItem *action : candidates) {
            const bool hasSameIcon = action->icon(0).cacheKey() == entry->icon().cacheKey();
            if (hasSameIcon == withSameIcon && isActionOf(action, entry, order))
                return action;
        }
    }
    return m_separator && m_separator->text(0) == entry->text() ? m_separator : nullptr;
}

// The editor leaves everything as it is if the action to be added is that of the current entry.
// Otherwise this is taken back.
bool EditorCommands::isActionOf(QTreeWidgetItem *action, QListWidgetItem *entry,
                                const QList<QListWidgetItem *> &order)
{
    QListWidget *const list = m_parts.entryList;
    choose(action);
    makeCurrent(list, entry);
    if (!click(m_parts.rightButton))
        return false;
    if (list->currentItem() == entry)
        return true;
    if (list->count() > order.size())
        click(m_parts.leftButton);
    else
        stepTo(order.indexOf(list->currentItem()));
    return false;
}

// The editor adds after the current entry, so the first place is reached from behind it.
bool EditorCommands::placeBehind(QListWidgetItem *previous, QTreeWidgetItem *action)
{
    QListWidget *const list = m_parts.entryList;
    choose(action);
    makeCurrent(list, previous ? previous : list->item(0));
    if (!click(m_parts.rightButton))
        return false;
    return previous || stepTo(0);
}

QList<QListWidgetItem *> EditorCommands::placeAll(const QList<QTreeWidgetItem *> &actions, int gap)
{
    QList<QListWidgetItem *> placed;
    QListWidgetItem *previous = m_parts.entryList->item(gap - 1);
    for (QTreeWidgetItem *action : actions) {
        if (!isAddable(action))
            continue;
        if (!placeBehind(previous, action))
            break;
        previous = m_parts.entryList->currentItem();
        placed.append(previous);
    }
    return placed;
}

bool EditorCommands::stepBehind(QListWidgetItem *previous, QListWidgetItem *entry)
{
    QListWidget *const list = m_parts.entryList;
    makeCurrent(list, entry);
    const int row = previous ? list->row(previous) + 1 : 0;
    return stepTo(list->row(entry) < row ? row - 1 : row);
}

bool EditorCommands::stepTo(int row)
{
    const QListWidget *const list = m_parts.entryList;
    while (list->currentRow() != row) {
        if (!click(list->currentRow() > row ? m_parts.upButton : m_parts.downButton))
            return false;
    }
    return true;
}

bool EditorCommands::removeAll(const QList<QListWidgetItem *> &entries)
{
    return std::all_of(entries.cbegin(), entries.cend(), [this](QListWidgetItem *entry) {
        makeCurrent(m_parts.entryList, entry);
        return click(m_parts.leftButton);
    });
}

void EditorCommands::select(const QList<QListWidgetItem *> &placed)
{
    if (!placed.isEmpty())
        select(m_parts.entryList->row(placed.first()), m_parts.entryList->row(placed.last()));
}

// The last one becomes current, after which the next is added.
void EditorCommands::select(int first, int last)
{
    const QAbstractItemModel *const model = m_parts.entryList->model();
    QItemSelectionModel *const selection = m_parts.entryList->selectionModel();
    selection->setCurrentIndex(model->index(last, 0), QItemSelectionModel::NoUpdate);
    selection->select(QItemSelection(model->index(first, 0), model->index(last, 0)),
                      QItemSelectionModel::ClearAndSelect);
}
