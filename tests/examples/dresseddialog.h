// SPDX-License-Identifier: MIT

#ifndef DRESSEDDIALOG_H
#define DRESSEDDIALOG_H

#include "actionfilter.h"
#include "dressing.h"
#include "editorviews.h"
#include "host.h"

#include <RyCustomizedDialog>

/*
 * A host with a default and a custom toolbar, and the dressed dialog before it, shown and active.
 */
struct DressedDialog
{
    DressedDialog();
    DressedDialog(const DressedDialog &) = delete;
    DressedDialog &operator=(const DressedDialog &) = delete;

    // What keys a user presses reach.
    void pressKey(QWidget *focus, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    // The texts of the items that the filter leaves, the rows of the current toolbar with "|" for a
    // separator.
    QStringList visibleItems() const;
    QStringList currentRows() const;

    Host host;
    QToolBar *const mine;
    RyCustomizedDialog dialog;
    Dressing *const dressing;
    const EditorViews views;
    ActionFilter *const filter;

private:
    QToolBar *fill();
};

#endif // DRESSEDDIALOG_H
