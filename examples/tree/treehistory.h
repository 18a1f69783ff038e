// SPDX-License-Identifier: MIT

#ifndef TREEHISTORY_H
#define TREEHISTORY_H

#include <QList>
#include <QObject>
#include <QTreeWidgetItem>
#include <QUndoStack>

#include <memory>

class GuardedTree;

/*!
 * \brief Guards trees between which a user drags items. Every drag can be undone, and a drag that
 *        lost an item is undone at once.
 *
 * A move deletes the dragged item no matter how the drag ends: also if it is cancelled, if nothing
 * accepts the item, or if the item is dropped into itself. The history does not follow the drag. It
 * keeps deep copies of all items, so it need not know how an item was lost.
 */
class TreeHistory : public QObject
{
    Q_OBJECT

public:
    //! \param trees the trees, which must outlive the object.
    explicit TreeHistory(const QList<GuardedTree *> &trees, QObject *parent = nullptr);

    QUndoStack *undoStack() { return &m_undoStack; }

public Q_SLOTS:
    //! Call this before you change items; for drags, the trees call it.
    void begin();

    //! Call this after the items have changed. Stores the change for undo, or undoes it if there
    //! are fewer items than before.
    void end();

Q_SIGNALS:
    //! Items were lost and have been restored.
    void putBack();

private:
    friend class TreeChange;

    // Deep copies of all items of each tree, below its root.
    using Content = QList<std::shared_ptr<QTreeWidgetItem>>;

    Content content() const;
    void show(const Content &content);

    const QList<GuardedTree *> m_trees;
    QUndoStack m_undoStack;
    Content m_before;
    // Whether an item was added or removed since begin().
    bool m_isChanged = false;
};

#endif // TREEHISTORY_H
