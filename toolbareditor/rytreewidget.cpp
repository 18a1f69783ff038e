// SPDX-License-Identifier: MIT

#include "rytreewidget.h"

#include "rytreeitemmimedata.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

QPoint position(const QDropEvent *event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event->pos();
#else
    return event->position().toPoint();
#endif
}

bool comesFromTree(const QDropEvent *event)
{
    return qobject_cast<RyTreeWidget *>(event->source());
}

// Null for a drag that the tree's base class started: a mouse move after a copy is passed on to it,
// and it then drags the selected items with a payload of its own.
QTreeWidgetItem *draggedItem(const QDropEvent *event)
{
    const auto payload = qobject_cast<const RyTreeItemMimeData *>(event->mimeData());
    return payload ? payload->DragItemData() : nullptr;
}

// The flag is that of the tree under the pointer on purpose, though the source tree's decides over
// the dragged item.
void acceptDrop(QDropEvent *event, bool ctrlPressed)
{
    event->setDropAction(ctrlPressed ? Qt::CopyAction : Qt::MoveAction);
    event->accept();
}

} // namespace

RyTreeWidget::RyTreeWidget(QWidget *parent)
    : QTreeWidget(parent)
    , ctrlPressed(false)
{
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAcceptDrops(true);
    setDragEnabled(true);
    setStyleSheet(QStringLiteral("QTreeWidget::item:selected{ background-color: rgb(150, 0, 0)}"));
}

RyTreeWidget::~RyTreeWidget() = default;

void RyTreeWidget::performDrag()
{
    QTreeWidgetItem *const item = currentItem();
    if (!item)
        return;
    RyTreeItemMimeData *const payload = new RyTreeItemMimeData;
    payload->SetDragData(QStringLiteral("ItemMimeData"), item);
    QDrag *const drag = new QDrag(this);
    drag->setMimeData(payload);
    if (ctrlPressed) {
        drag->exec(Qt::CopyAction);
    } else {
        drag->exec(Qt::MoveAction);
        // Whatever the drag returned: a cancelled or refused move is meant to remove the item too.
        delete item;
    }
}

void RyTreeWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        startPos = event->pos();
    QTreeView::mousePressEvent(event);
}

void RyTreeWidget::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
}

void RyTreeWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton) {
        const int distance = (event->pos() - startPos).manhattanLength();
        if (distance > QApplication::startDragDistance())
            performDrag();
    }
    QTreeView::mouseMoveEvent(event);
}

// Passing no key on to the base class is meant, here and on release.
void RyTreeWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Control)
        ctrlPressed = true;
}

void RyTreeWidget::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Control)
        ctrlPressed = false;
}

void RyTreeWidget::dragEnterEvent(QDragEnterEvent *event)
{
    if (comesFromTree(event))
        acceptDrop(event, ctrlPressed);
}

void RyTreeWidget::dragMoveEvent(QDragMoveEvent *event)
{
    if (!comesFromTree(event))
        return;
    QTreeWidgetItem *const dragged = draggedItem(event);
    QTreeWidgetItem *const item = itemAt(position(event));
    if (!dragged || item == dragged) {
        event->ignore();
        return;
    }
    // Over empty space no item is current then, which is meant.
    setCurrentItem(item);
    acceptDrop(event, ctrlPressed);
}

void RyTreeWidget::dropEvent(QDropEvent *event)
{
    QTreeWidgetItem *const dragged = draggedItem(event);
    if (!comesFromTree(event) || !dragged)
        return;
    QTreeWidgetItem *const copy = dragged->clone();
    QTreeWidgetItem *const item = itemAt(position(event));
    // On the dragged item itself, too, the copy goes to the end of the top level on purpose.
    if (item && item != dragged)
        item->addChild(copy);
    else
        addTopLevelItem(copy);
    acceptDrop(event, ctrlPressed);
}
