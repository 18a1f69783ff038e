// SPDX-License-Identifier: MIT

#ifndef CUSTOMIZING_H
#define CUSTOMIZING_H

#include "editorviews.h"

#include <RyCustomizedDialog>

#include <functional>

class QAction;
class QMainWindow;
class QToolBar;

/*
 * What a user of any example does with its toolbars.
 */

using DialogSteps = std::function<void(const EditorViews &, RyCustomizedDialog *)>;

// Opens the dialog through the action. The steps are taken while it is open, and must close it.
void customize(QAction *action, const DialogSteps &steps);

// The toolbar of that title in the window, or null.
QToolBar *toolBarTitled(const QMainWindow &window, const QString &title);

#endif // CUSTOMIZING_H
