// SPDX-License-Identifier: MIT

#include "actionfilter.h"

#include "plaintextdelegate.h"

#include <QKeyEvent>
#include <QTreeWidget>

namespace {

bool contains(const QTreeWidgetItem *item, const QString &text)
{
    // The text for screen readers may be simpler than the one that is shown.
    return PlainTextDelegate::plainText(item->text(0)).contains(text, Qt::CaseInsensitive)
        || item->data(0, Qt::AccessibleTextRole).toString().contains(text, Qt::CaseInsensitive);
}

// Hides items that do not match, and returns the first visible item without children.
QTreeWidgetItem *filter(QTreeWidgetItem *item, const QString &text, bool parentMatches)
{
    const bool matches = parentMatches || contains(item, text);
    QTreeWidgetItem *first = nullptr;
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem *const found = filter(item->child(i), text, matches);
        if (!first)
            first = found;
    }
    if (item->childCount() == 0 && matches)
        first = item;
    item->setHidden(!first);
    return first;
}

} // namespace

ActionFilter::ActionFilter(QTreeWidget *tree, QWidget *parent)
    : QLineEdit(parent)
    , m_tree(tree)
{
    connect(this, &QLineEdit::textChanged, this, &ActionFilter::apply);
    // The editor clears its tree when the user leaves its tab.
    connect(tree->model(), &QAbstractItemModel::modelReset, this, &QLineEdit::clear);
}

void ActionFilter::apply(const QString &text)
{
    QTreeWidgetItem *firstAction = nullptr;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const item = m_tree->topLevelItem(i);
        QTreeWidgetItem *const found = filter(item, text, false);
        if (!firstAction)
            firstAction = found;
        if (!text.isEmpty())
            item->setExpanded(true);
    }
    // If a hidden item stayed current, it could still be added to the toolbar.
    const QTreeWidgetItem *const current = m_tree->currentItem();
    if (!text.isEmpty() && (!current || current->isHidden() || current->childCount() > 0))
        m_tree->setCurrentItem(firstAction);
}

void ActionFilter::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT chosen();
        return;
    case Qt::Key_Down:
        m_tree->setFocus(Qt::OtherFocusReason);
        return;
    case Qt::Key_Escape:
        if (!text().isEmpty()) {
            clear();
            return;
        }
        break;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}
