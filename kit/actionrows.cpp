// SPDX-License-Identifier: MIT

#include "actionrows.h"

#include <RyToolBarManager>

#include <QAction>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace {

// The editor sorts rows by their texts, and those of the same text stay as they were registered.
QVector<ActionRows::Row> rowsOf(const QTreeWidgetItem *category, const QList<QAction *> &actions)
{
    using TextOf = std::pair<QString, QAction *>;
    QVector<TextOf> texts;
    texts.reserve(actions.size());
    for (QAction *action : actions)
        texts.append({action->text(), action});
    std::stable_sort(texts.begin(), texts.end(),
                     [](const TextOf &a, const TextOf &b) { return a.first < b.first; });
    QVector<ActionRows::Row> rows;
    rows.reserve(texts.size());
    for (int i = 0; i < qMin(int(texts.size()), category->childCount()); ++i) {
        if (category->child(i)->text(0) == texts.at(i).first)
            rows.append({category->child(i), texts.at(i).second});
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
