// SPDX-License-Identifier: MIT

#include "actiondelegate.h"

#include <RyToolBarManager>

#include <QAction>
#include <QHelpEvent>
#include <QToolTip>
#include <QTreeWidget>

#include <algorithm>
#include <functional>

namespace {

bool isBefore(const ActionRows::Row &a, const ActionRows::Row &b)
{
    return std::less<const QTreeWidgetItem *>()(a.item, b.item);
}

// Empty if it would only repeat the row, as the tool tip that Qt makes does.
QString explanationOf(const QAction *action)
{
    const QString tip = action->statusTip().isEmpty() ? action->toolTip() : action->statusTip();
    return PlainTextDelegate::plainText(action->text()).startsWith(tip) ? QString() : tip;
}

} // namespace

ActionDelegate::ActionDelegate(QTreeWidget *tree)
    : ReadableDelegate(tree)
    , m_tree(tree)
{
}

void ActionDelegate::setRows(const ActionRows &rows, const RyToolBarManager *manager)
{
    m_manager = manager;
    m_rows.clear();
    m_rows.reserve(manager->actions().size());
    for (const ActionRows::Category &category : rows.categories)
        m_rows += category.rows;
    std::sort(m_rows.begin(), m_rows.end(), isBefore);
}

// Null for what is no action, and for an action that the program has taken back.
const QAction *ActionDelegate::actionOf(const QModelIndex &index) const
{
    const QTreeWidgetItem *const category = m_tree->topLevelItem(index.parent().row());
    QTreeWidgetItem *const item = category ? category->child(index.row()) : nullptr;
    const auto row =
        std::lower_bound(m_rows.cbegin(), m_rows.cend(), ActionRows::Row{item, nullptr}, isBefore);
    if (row == m_rows.cend() || row->item != item || !m_manager)
        return nullptr;
    return m_manager->actions().contains(row->action) ? row->action : nullptr;
}

QString ActionDelegate::shortcut(const QModelIndex &index) const
{
    const QAction *const action = actionOf(index);
    return action ? action->shortcut().toString(QKeySequence::NativeText) : QString();
}

bool ActionDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                               const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QAction *const action = actionOf(index);
    if (!action || event->type() != QEvent::ToolTip || index.data(Qt::ToolTipRole).isValid())
        return ReadableDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), explanationOf(action), view->viewport(),
                       view->visualRect(index));
    return true;
}
