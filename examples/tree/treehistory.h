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
 * \brief Guards trees between which a user drags: every drag can be undone, and one that lost an
 *        item is undone at once.
 *
 * A move deletes the dragged item however the drag ends, also when it is cancelled, when nothing
 * takes the item, or when the item is dropped into itself. The history keeps deep copies of all
 * items instead of following the drag: it need not know how something was lost.
 */
class TreeHistory : public QObject
{
    Q_OBJECT

public:
    //! \param trees the trees, which must outlive the object.
    explicit TreeHistory(const QList<GuardedTree *> &trees, QObject *parent = nullptr);

    QUndoStack *undoStack() { return &m_undoStack; }

public Q_SLOTS:
    //! Call this before the items change; the trees do it for drags.
    void begin();

    //! Call this after the items have changed. Keeps the change for undoing it, or takes it back if
    //! there are fewer items than before.
    void end();

Q_SIGNALS:
    //! Items were lost and are back.
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
    // Whether an item has come or gone since begin().
    bool m_isChanged = false;
};

#endif // TREEHISTORY_H
