// SPDX-License-Identifier: MIT

#ifndef OPENEDDIALOG_H
#define OPENEDDIALOG_H

#include "editorviews.h"
#include "kitwindow.h"

#include <QMessageBox>

/*
 * A program with a kit whose dialog is open and active.
 */
class OpenedDialog
{
public:
    explicit OpenedDialog(const KitProgram::Build &build = KitProgram::buildDefault);

    // Opens the dialog again.
    void open();

    // The open question or message of that name, or null.
    QMessageBox *box(const QString &name) const;

    // Presses a button of the box, which must be open.
    void answer(const QString &box, QMessageBox::StandardButton button) const;

    // What the window system sends when the user presses the close button.
    void pressClose() const;

    // A name that is typed and not finished yet.
    void type(const QString &name) const;

    KitProgram program;
    RyCustomizedDialog *dialog = nullptr;
    std::unique_ptr<EditorViews> views;
};

#endif // OPENEDDIALOG_H
