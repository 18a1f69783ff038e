// SPDX-License-Identifier: MIT

#ifndef GUARDEDTREE_H
#define GUARDEDTREE_H

#include <RyTreeWidget>

/*!
 * \brief A RyTreeWidget that tells when a drag may begin and when it has ended, so that a host can
 *        take back what a drag has done.
 *
 * It also mends what a host may not want of RyTreeWidget: keys work, the Control key is never
 * missed, and items that are no folders take no children.
 */
class GuardedTree : public RyTreeWidget
{
    Q_OBJECT

public:
    explicit GuardedTree(QWidget *parent = nullptr);

Q_SIGNALS:
    //! The last moment at which everything is as it was; perhaps nothing follows.
    void dragMayBegin();

    //! A drag may have ended, somehow.
    void dragMayHaveEnded();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
};

#endif // GUARDEDTREE_H
