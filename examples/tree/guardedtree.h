// SPDX-License-Identifier: MIT

#ifndef GUARDEDTREE_H
#define GUARDEDTREE_H

#include <RyTreeWidget>

/*!
 * \brief A RyTreeWidget that emits signals before and after a drag, so that a host can undo the
 *        drag.
 *
 * It also changes some behaviour of RyTreeWidget: all keys work, the state of the Control key is
 * always right, and items that are not folders accept no children.
 */
class GuardedTree : public RyTreeWidget
{
    Q_OBJECT

public:
    explicit GuardedTree(QWidget *parent = nullptr);

Q_SIGNALS:
    //! Emitted before a possible drag, while nothing has changed yet.
    void dragMayBegin();

    //! A drag may have ended, in any way.
    void dragMayHaveEnded();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
};

#endif // GUARDEDTREE_H
