// SPDX-License-Identifier: MIT

#ifndef MANAGERRECORDS_H
#define MANAGERRECORDS_H

#include "rytoolbarmanager.h"

// Private records of the manager: what it has placed on each toolbar, separators included, and the
// toolbars of each action.
QMap<QToolBar *, QList<QAction *>> placedActions(const RyToolBarManager &manager);
QMap<QAction *, QList<QToolBar *>> toolBarsOfActions(const RyToolBarManager &manager);

#endif // MANAGERRECORDS_H
