// SPDX-License-Identifier: MIT

#ifndef KITDIALOG_H
#define KITDIALOG_H

#include "editorviews.h"
#include "kitwindow.h"

/*
 * A program with the toolbars "File" and "Edit" and a custom one, "Mine" with "Cut | Copy", and the
 * open dialog of its kit, which is active.
 */
struct KitDialog
{
    // What the kit does not do.
    explicit KitDialog(RyToolBarKit::Features without = {});
    KitDialog(const KitDialog &) = delete;
    KitDialog &operator=(const KitDialog &) = delete;

    // Chooses a toolbar, and an entry of it.
    void choose(const QString &toolBar, int row = 0);

    // What a key that a user presses does.
    void pressKey(QWidget *focus, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    // The rows of the current toolbar with "|" for a separator.
    QStringList entries() const;

    KitProgram program;
    RyCustomizedDialog *const dialog;
    const EditorViews views;

private:
    RyCustomizedDialog *open(RyToolBarKit::Features without);
};

#endif // KITDIALOG_H
