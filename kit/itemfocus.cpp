// SPDX-License-Identifier: MIT

#include "itemfocus.h"

#include <RyCustomizedDialog>

#include <QAccessible>
#include <QEvent>
#include <QItemSelectionModel>
#include <QListWidget>
#include <QTreeWidget>

ItemFocus::ItemFocus(const DialogParts &parts)
    : QObject(parts.dialog)
    , m_parts(parts)
{
    for (QAbstractItemView *view : {static_cast<QAbstractItemView *>(parts.actionTree),
                                    static_cast<QAbstractItemView *>(parts.toolBarList),
                                    static_cast<QAbstractItemView *>(parts.entryList)}) {
        view->installEventFilter(this);
        connect(view->selectionModel(), SIGNAL(currentChanged(QModelIndex, QModelIndex)), this,
                SLOT(currentChanged(QModelIndex)));
    }
}

// The view has reported its item by now.
void ItemFocus::currentChanged(const QModelIndex &current)
{
    const QWidget *const focus = m_parts.dialog->focusWidget();
    const auto *const view = qobject_cast<const QAbstractItemView *>(focus);
    if (!view || view->model() != current.model())
        report();
}

void ItemFocus::report()
{
    QWidget *const focus = m_parts.dialog->focusWidget();
    if (!focus || !focus->hasFocus() || !QAccessible::isActive())
        return;
    QAbstractItemView *const view = qobject_cast<QAbstractItemView *>(focus);
    if (view && view->currentIndex().isValid()) {
        // Only the view knows which of its children the item is.
        QMetaObject::invokeMethod(view, "currentChanged", Q_ARG(QModelIndex, view->currentIndex()),
                                  Q_ARG(QModelIndex, QModelIndex()));
        return;
    }
    QAccessibleEvent event(focus, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

bool ItemFocus::eventFilter(QObject *watched, QEvent *event)
{
    // Qt reports the view after this event.
    if (event->type() == QEvent::FocusIn)
        QMetaObject::invokeMethod(this, "report", Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}
