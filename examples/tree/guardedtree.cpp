// SPDX-License-Identifier: MIT

#include "guardedtree.h"

#include <QDragMoveEvent>
#include <QKeyEvent>
#include <QMouseEvent>

GuardedTree::GuardedTree(QWidget *parent)
    : RyTreeWidget(parent)
{
}

void GuardedTree::mousePressEvent(QMouseEvent *event)
{
    // RyTreeWidget takes the state of Control from key events, and misses those during a drag or in
    // another widget. The mouse event has the real state.
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        QKeyEvent control(QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier);
        RyTreeWidget::keyPressEvent(&control);
    } else {
        QKeyEvent control(QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier);
        RyTreeWidget::keyReleaseEvent(&control);
    }
    Q_EMIT dragMayBegin();
    RyTreeWidget::mousePressEvent(event);
}

// The whole drag runs inside this function.
void GuardedTree::mouseMoveEvent(QMouseEvent *event)
{
    RyTreeWidget::mouseMoveEvent(event);
    Q_EMIT dragMayHaveEnded();
}

// RyTreeWidget ignores all other keys, but keyboard users need the arrow keys.
void GuardedTree::keyPressEvent(QKeyEvent *event)
{
    RyTreeWidget::keyPressEvent(event);
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the base class, which ignores it
    QTreeWidget::keyPressEvent(event); // clazy:exclude=skipped-base-method
}

void GuardedTree::keyReleaseEvent(QKeyEvent *event)
{
    RyTreeWidget::keyReleaseEvent(event);
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): the same
    QTreeWidget::keyReleaseEvent(event); // clazy:exclude=skipped-base-method
}

// RyTreeWidget lets every item have children. Refusing a drop is safe only with a guard, because a
// refused move deletes the item.
void GuardedTree::dragMoveEvent(QDragMoveEvent *event)
{
    RyTreeWidget::dragMoveEvent(event);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QTreeWidgetItem *const item = itemAt(event->pos());
#else
    const QTreeWidgetItem *const item = itemAt(event->position().toPoint());
#endif
    if (item && !item->flags().testFlag(Qt::ItemIsDropEnabled))
        event->ignore();
}
