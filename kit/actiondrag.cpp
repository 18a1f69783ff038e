// SPDX-License-Identifier: MIT

#include "actiondrag.h"

#include "cutentries.h"
#include "dropindicator.h"

#include <QApplication>
#include <QDrag>
#include <QDragMoveEvent>
#include <QListWidget>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QTreeWidget>
#include <QUuid>

namespace {

const int ScrollInterval = 50;
const int MostPicturedRows = 5;
const QPoint BesidePointer(-12, -12);

QPoint positionOf(const QDropEvent *event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event->pos();
#else
    return event->position().toPoint();
#endif
}

} // namespace

ActionDrag::ActionDrag(const DialogParts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
    , m_commands(parts)
    , m_selected(parts, &m_commands)
    , m_indicator(new DropIndicator(parts.entryList->viewport()))
    , m_source(nullptr)
    , m_target(nullptr)
    , m_scrollStep(0)
{
    describe();
    new CutEntries(parts, &m_commands, &m_selected, this);
    m_scrollTimer.setInterval(ScrollInterval);
    connect(&m_scrollTimer, SIGNAL(timeout()), this, SLOT(scroll()));
    for (QAbstractItemView *view : {static_cast<QAbstractItemView *>(m_parts.actionTree),
                                    static_cast<QAbstractItemView *>(m_parts.toolBarList),
                                    static_cast<QAbstractItemView *>(m_parts.entryList)}) {
        view->viewport()->setAcceptDrops(true);
        view->viewport()->installEventFilter(this);
    }
}

void ActionDrag::describe()
{
    DialogParts::explain(m_parts.actionTree,
                         tr("Drag actions to a place in the toolbar, or onto another toolbar."));
    DialogParts::explain(m_parts.entryList,
                         tr("Drag actions to move them, also onto another toolbar. Drag them back "
                            "to all actions to remove them."));
}

QString ActionDrag::mimeType()
{
    return QStringLiteral("application/x-rytoolbarkit-drag");
}

bool ActionDrag::eventFilter(QObject *watched, QEvent *event)
{
    // Null while the view is being deleted.
    QAbstractItemView *const view = qobject_cast<QAbstractItemView *>(watched->parent());
    return view && viewportEvent(view, event);
}

// The views themselves take no drops, and would select rows while the pointer is moved.
bool ActionDrag::viewportEvent(QAbstractItemView *view, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress)
        press(view, static_cast<QMouseEvent *>(event));
    else if (type == QEvent::MouseButtonRelease)
        m_pressed = QModelIndex();
    else if (type == QEvent::MouseMove)
        return move(view, static_cast<QMouseEvent *>(event));
    else if (type == QEvent::DragEnter)
        enter(static_cast<QDropEvent *>(event));
    else if (type == QEvent::DragMove)
        dragTo(view, static_cast<QDropEvent *>(event));
    else if (type == QEvent::DragLeave)
        leave();
    else if (type == QEvent::Drop)
        drop(view, static_cast<QDropEvent *>(event));
    return type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::DragLeave
        || type == QEvent::Drop;
}

void ActionDrag::press(QAbstractItemView *view, const QMouseEvent *event)
{
    m_pressed = QModelIndex();
    if (event->button() != Qt::LeftButton || view == m_parts.toolBarList)
        return;
    const QModelIndex index = view->indexAt(event->pos());
    // A category cannot be added.
    if (view == m_parts.actionTree && view->model()->hasChildren(index))
        return;
    m_pressed = index;
    m_pressPosition = event->pos();
}

bool ActionDrag::move(QAbstractItemView *view, const QMouseEvent *event)
{
    if (!m_pressed.isValid() || m_pressed.model() != view->model()
        || !(event->buttons() & Qt::LeftButton))
        return false;
    const int distance = (event->pos() - m_pressPosition).manhattanLength();
    if (distance >= QApplication::startDragDistance())
        drag(view);
    return true;
}

// The drag belongs to the application: Qt still uses it if the dialog is deleted in between.
void ActionDrag::drag(QAbstractItemView *source)
{
    const QPointer<ActionDrag> guard(this);
    QDrag *const drag = new QDrag(qApp);
    drag->setMimeData(begin(source, m_pressed));
    drag->setPixmap(picture());
    drag->setHotSpot(BesidePointer);
    m_pressed = QModelIndex();
    drag->exec(source == m_parts.actionTree ? Qt::CopyAction : Qt::MoveAction);
    if (!guard.isNull())
        end();
}

QMimeData *ActionDrag::begin(QAbstractItemView *source, const QModelIndex &pressed)
{
    m_source = source;
    m_rows.clear();
    const QModelIndexList selected =
        source == m_parts.entryList ? m_selected.entryRows() : m_selected.actionRows();
    const QModelIndexList rows =
        source->selectionModel()->isSelected(pressed) ? selected : QModelIndexList{pressed};
    for (const QModelIndex &row : rows)
        m_rows.append(row);
    m_token = QUuid::createUuid().toRfc4122();
    QMimeData *const data = new QMimeData;
    data->setData(mimeType(), m_token);
    return data;
}

void ActionDrag::end()
{
    leave();
    m_source = nullptr;
    m_rows.clear();
}

// The first rows that are in view, one below the other.
QPixmap ActionDrag::picture() const
{
    QWidget *const viewport = m_source->viewport();
    QList<QRect> rects;
    QSize size;
    for (const QPersistentModelIndex &row : m_rows) {
        const QRect rect = m_source->visualRect(row) & viewport->rect();
        if (rect.isEmpty() || rects.size() == MostPicturedRows)
            continue;
        rects.append(rect);
        size = QSize(qMax(size.width(), rect.width()), size.height() + rect.height());
    }
    const qreal ratio = viewport->devicePixelRatioF();
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    int y = 0;
    for (const QRect &rect : rects) {
        painter.drawPixmap(0, y, viewport->grab(rect));
        y += rect.height();
    }
    return picture;
}

// Another program, and another dialog, can know the type but not the number.
bool ActionDrag::isOwn(const QDropEvent *event) const
{
    return m_source && event->mimeData()->data(mimeType()) == m_token;
}

// Qt reports no move in a view that has refused the entry.
void ActionDrag::enter(QDropEvent *event)
{
    event->ignore();
    if (isOwn(event))
        event->acceptProposedAction();
}

void ActionDrag::dragTo(QAbstractItemView *view, QDropEvent *event)
{
    event->ignore();
    if (!isOwn(event))
        return;
    m_target = view;
    m_position = positionOf(event);
    scrollNearEdges();
    const Target target = targetAt(view, m_position);
    m_indicator->showAt(view->viewport(), target.mark);
    if (target.row >= 0)
        event->acceptProposedAction();
}

void ActionDrag::leave()
{
    m_target = nullptr;
    m_scrollTimer.stop();
    m_indicator->hide();
}

void ActionDrag::drop(QAbstractItemView *view, QDropEvent *event)
{
    leave();
    event->ignore();
    if (!isOwn(event))
        return;
    const int row = targetAt(view, positionOf(event)).row;
    if (row < 0)
        return;
    event->acceptProposedAction();
    dropRows(view, row);
    end();
}

void ActionDrag::dropRows(QAbstractItemView *view, int row)
{
    const QModelIndexList rows = remainingRows();
    QListWidgetItem *const toolBar = m_parts.toolBarList->item(row);
    const bool areActions = m_source == m_parts.actionTree;
    if (view == m_parts.toolBarList && areActions)
        m_commands.insertInto(toolBar, m_selected.actionsAt(rows));
    else if (view == m_parts.toolBarList)
        m_commands.moveTo(toolBar, m_selected.entriesAt(rows), -1);
    else if (view == m_parts.actionTree)
        m_commands.remove(m_selected.entriesAt(rows));
    else if (areActions)
        m_commands.insert(m_selected.actionsAt(rows), row);
    else
        m_commands.move(m_selected.entriesAt(rows), row);
}

// Faster with each step, up to a page.
void ActionDrag::scrollNearEdges()
{
    const QRect calm = m_target->viewport()->rect().adjusted(0, m_target->autoScrollMargin(), 0,
                                                             -m_target->autoScrollMargin());
    const bool isNear = m_position.y() < calm.top() || m_position.y() > calm.bottom();
    if (!isNear || m_target == m_parts.actionTree) {
        m_scrollTimer.stop();
    } else if (!m_scrollTimer.isActive()) {
        m_scrollStep = 0;
        m_scrollTimer.start();
    }
}

void ActionDrag::scroll()
{
    QScrollBar *const bar = m_target->verticalScrollBar();
    m_scrollStep = qMin(m_scrollStep + 1, bar->pageStep());
    const bool isUp = m_position.y() < m_target->viewport()->height() / 2;
    bar->setValue(bar->value() + (isUp ? -m_scrollStep : m_scrollStep));
    m_indicator->showAt(m_target->viewport(), targetAt(m_target, m_position).mark);
}

ActionDrag::Target ActionDrag::targetAt(QAbstractItemView *view, const QPoint &position) const
{
    if (remainingRows().isEmpty())
        return {-1, QRect()};
    if (view == m_parts.toolBarList)
        return toolBarAt(position);
    return view == m_parts.entryList ? gapAt(position) : treeTarget();
}

ActionDrag::Target ActionDrag::gapAt(const QPoint &position) const
{
    const QListWidget *const list = m_parts.entryList;
    if (!m_parts.toolBarList->currentItem())
        return {-1, QRect()};
    const QModelIndex index = list->indexAt(position);
    const int row = index.isValid() ? index.row() : list->count() - 1;
    const QRect rect = list->visualItemRect(list->item(row));
    const bool isBehind = !index.isValid() || position.y() > rect.center().y();
    const int top = isBehind ? rect.bottom() + 1 : rect.top();
    const QRect area = list->viewport()->rect();
    const int y = qBound(0, top - 1, area.bottom() - DropIndicator::LineHeight + 1);
    return {row + (isBehind ? 1 : 0), QRect(0, y, area.width(), DropIndicator::LineHeight)};
}

// Entries come onto another toolbar than their own.
ActionDrag::Target ActionDrag::toolBarAt(const QPoint &position) const
{
    QListWidget *const list = m_parts.toolBarList;
    const QListWidgetItem *const item = list->itemAt(position);
    const bool isOwnToolBar = m_source == m_parts.entryList && item == list->currentItem();
    if (!item || isOwnToolBar || !m_commands.canReachToolBars())
        return {-1, QRect()};
    return {list->row(item), list->visualItemRect(item)};
}

// Entries are taken off their toolbar.
ActionDrag::Target ActionDrag::treeTarget() const
{
    if (m_source != m_parts.entryList)
        return {-1, QRect()};
    return {0, m_parts.actionTree->viewport()->rect()};
}

QModelIndexList ActionDrag::remainingRows() const
{
    QModelIndexList rows;
    for (const QPersistentModelIndex &row : m_rows) {
        if (row.isValid())
            rows.append(row);
    }
    return rows;
}
