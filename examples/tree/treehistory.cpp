// SPDX-License-Identifier: MIT

#include "treehistory.h"

#include "guardedtree.h"

#include <QUndoCommand>

namespace {

int countBelow(const QTreeWidgetItem *item)
{
    int count = item->childCount();
    for (int i = 0; i < item->childCount(); ++i)
        count += countBelow(item->child(i));
    return count;
}

template <typename Content> int countIn(const Content &content)
{
    int count = 0;
    for (const auto &root : content)
        count += countBelow(root.get());
    return count;
}

} // namespace

class TreeChange : public QUndoCommand
{
public:
    TreeChange(TreeHistory *history, const TreeHistory::Content &before)
        : m_history(history)
        , m_before(before)
        , m_after(history->content())
    {
    }

    void undo() override { m_history->show(m_before); }

    void redo() override { m_history->show(m_after); }

private:
    TreeHistory *const m_history;
    const TreeHistory::Content m_before;
    const TreeHistory::Content m_after;
};

TreeHistory::TreeHistory(const QList<GuardedTree *> &trees, QObject *parent)
    : QObject(parent)
    , m_trees(trees)
{
    for (const GuardedTree *tree : trees) {
        connect(tree, &GuardedTree::dragMayBegin, this, &TreeHistory::begin);
        // The items may be replaced only after the tree has finished handling its event.
        connect(tree, &GuardedTree::dragMayHaveEnded, this, &TreeHistory::end,
                Qt::QueuedConnection);
        connect(tree->model(), &QAbstractItemModel::rowsInserted, this,
                [this] { m_isChanged = true; });
        connect(tree->model(), &QAbstractItemModel::rowsRemoved, this,
                [this] { m_isChanged = true; });
    }
}

void TreeHistory::begin()
{
    m_before = content();
    m_isChanged = false;
}

void TreeHistory::end()
{
    if (!m_isChanged)
        return;
    if (countIn(content()) < countIn(m_before)) {
        show(m_before);
        Q_EMIT putBack();
    } else {
        m_undoStack.push(new TreeChange(this, m_before));
    }
}

TreeHistory::Content TreeHistory::content() const
{
    Content content;
    for (const GuardedTree *tree : m_trees)
        content.append(std::shared_ptr<QTreeWidgetItem>(tree->invisibleRootItem()->clone()));
    return content;
}

void TreeHistory::show(const Content &content)
{
    for (int i = 0; i < m_trees.size(); ++i) {
        const std::unique_ptr<QTreeWidgetItem> copy(content.at(i)->clone());
        m_trees.at(i)->clear();
        m_trees.at(i)->addTopLevelItems(copy->takeChildren());
        m_trees.at(i)->expandAll();
    }
    m_isChanged = false;
}
