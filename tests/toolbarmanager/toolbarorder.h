// SPDX-License-Identifier: MIT

#ifndef TOOLBARORDER_H
#define TOOLBARORDER_H

#include "host.h"

#include <QList>
#include <QStringList>

// Unmanaged toolbars of the host that are named "t0", "t1" and so on and listed by ascending
// address.
QList<QToolBar *> toolBarsByAddress(Host &host, int count);

// The objectNames.
QStringList namesOf(const QList<QToolBar *> &toolBars);

#endif // TOOLBARORDER_H
