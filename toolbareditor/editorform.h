// SPDX-License-Identifier: MIT

#ifndef EDITORFORM_H
#define EDITORFORM_H

#include "ryabstatcmanager.h"
#include "ui_ctoolbarpage.h"

#include <QHash>
#include <QPointer>
#include <QToolBar>

class ToolBarItem;

/*
 * The form of the toolbar editor, with what the editor's own fields, which are fixed, have no room
 * for: guards of what the host may delete while the editor is shown. An address alone does not tell
 * a deleted object from a new one in its place.
 */
struct EditorForm : Ui_CToolBarPage
{
    QPointer<RyAbstatcManager> manager;
    // The toolbar of each record that has one.
    QHash<const ToolBarItem *, QPointer<QToolBar>> toolBars;
    // How often the working copy was discarded.
    int discards = 0;
};

#endif // EDITORFORM_H
