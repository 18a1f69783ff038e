// SPDX-License-Identifier: MIT

#ifndef ACTIONDRAG_H
#define ACTIONDRAG_H

#include "dialogparts.h"
#include "editorcommands.h"
#include "selectedrows.h"

#include <QList>
#include <QObject>
#include <QPersistentModelIndex>
#include <QPoint>
#include <QRect>
#include <QTimer>

class DropIndicator;
class QAbstractItemView;
class QDropEvent;
class QMimeData;
class QMouseEvent;
class QPixmap;

/*!
 * \brief Lets the user drag actions onto toolbars, and entries within and between toolbars and off
 *        them.
 *
 * Only drags of its own are taken. What they carry is a number that is new for each drag: what is
 * dragged stays here, and rows that have gone are left out.
 */
class ActionDrag : public QObject
{
    Q_OBJECT

public:
    ActionDrag(const DialogParts &parts, QObject *parent);

    // A drag of the selected rows, or of another one that is pressed, is between begin() and end().
    // The caller owns the data.
    QMimeData *begin(QAbstractItemView *source, const QModelIndex &pressed);
    void end();

    static QString mimeType();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void scroll();

private:
    // Where a drop would go: a row, or a gap in the entries; -1 for nowhere.
    struct Target
    {
        int row;
        QRect mark;
    };

    void describe();
    bool viewportEvent(QAbstractItemView *view, QEvent *event);
    void press(QAbstractItemView *view, const QMouseEvent *event);
    bool move(QAbstractItemView *view, const QMouseEvent *event);
    void drag(QAbstractItemView *source);
    QPixmap picture() const;
    bool isOwn(const QDropEvent *event) const;
    void enter(QDropEvent *event);
    void dragTo(QAbstractItemView *view, QDropEvent *event);
    void leave();
    void drop(QAbstractItemView *view, QDropEvent *event);
    void dropRows(QAbstractItemView *view, int row);
    void scrollNearEdges();
    Target targetAt(QAbstractItemView *view, const QPoint &position) const;
    Target gapAt(const QPoint &position) const;
    Target toolBarAt(const QPoint &position) const;
    Target treeTarget() const;
    QModelIndexList remainingRows() const;

    const DialogParts m_parts;
    EditorCommands m_commands;
    SelectedRows m_selected;
    DropIndicator *m_indicator;
    // The row on which the left button was pressed, and where.
    QPersistentModelIndex m_pressed;
    QPoint m_pressPosition;
    // The view that is dragged from, or null; its rows; and what the drag carries.
    QAbstractItemView *m_source;
    QList<QPersistentModelIndex> m_rows;
    QByteArray m_token;
    // The view that is dragged over, and where.
    QAbstractItemView *m_target;
    QPoint m_position;
    QTimer m_scrollTimer;
    int m_scrollStep;
};

#endif // ACTIONDRAG_H
