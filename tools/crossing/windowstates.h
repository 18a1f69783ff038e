// SPDX-License-Identifier: MIT

#ifndef WINDOWSTATES_H
#define WINDOWSTATES_H

#include "layoutstates.h"

// What the window itself saves: its own state, and its geometry.
QList<SavedState> windowStates();
bool isWindowState(const QString &name);
Restored restoreWindow(const SavedState &state);

#endif // WINDOWSTATES_H
