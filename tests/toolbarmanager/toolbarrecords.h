// SPDX-License-Identifier: MIT

#ifndef TOOLBARRECORDS_H
#define TOOLBARRECORDS_H

#include "host.h"

#include <QList>
#include <QPointer>
#include <QStringList>

// Unmanaged toolbars of the host that are named "t0", "t1" and so on and listed by ascending
// address.
QList<QToolBar *> toolBarsByAddress(Host &host, int count);

// The objectNames.
QStringList namesOf(const QList<QToolBar *> &toolBars);

// What the manager has recorded of a toolbar, what is on it, its default content and its kind, with
// "/" between them.
QStringList recordOf(const Host &host, QToolBar *toolBar);

QList<QPointer<QAction>> guarded(const QList<QAction *> &actions);

// "alive" or "deleted" for each.
QStringList fatesOf(const QList<QPointer<QAction>> &actions);

#endif // TOOLBARRECORDS_H
