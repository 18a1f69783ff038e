// SPDX-License-Identifier: MIT

#include "actionrows.h"

#include <RyToolBarManager>

#include <QAction>
#include <QTreeWidget>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

using TextOf = std::pair<QString, QAction *>;

bool hasSmallerText(const TextOf &a, const TextOf &b)
{
    return a.first < b.first;
}

// Rows of the same text are in the order in which their actions were registered, wherever Qt has
// sorted them.
QVector<ActionRows::Row> rowsOf(const QTreeWidgetItem *category, const QList<QAction *> &actions)
{
    std::vector<TextOf> texts;
    texts.reserve(std::size_t(actions.size()));
    for (QAction *action : actions)
        texts.push_back({action->text(), action});
    std::stable_sort(texts.begin(), texts.end(), hasSmallerText);
    QVector<ActionRows::Row> rows;
    rows.reserve(category->childCount());
    for (int i = 0; i < category->childCount(); ++i) {
        QTreeWidgetItem *const item = category->child(i);
        const QString text = item->text(0);
        auto found =
            std::lower_bound(texts.begin(), texts.end(), TextOf(text, nullptr), hasSmallerText);
        while (found != texts.end() && !found->second)
            ++found; // it has a row already
        if (found != texts.end() && found->first == text) {
            rows.append({item, found->second});
            found->second = nullptr;
        }
    }
    return rows;
}

} // namespace

ActionRows::ActionRows(const QTreeWidget *tree, const RyToolBarManager *manager)
    : separator(tree->currentItem()) // a category may have its text
{
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const item = tree->topLevelItem(i);
        if (item != separator)
            categories.append({item, rowsOf(item, manager->categoryActions(item->text(0)))});
    }
}
