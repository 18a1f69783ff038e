// SPDX-License-Identifier: MIT

#ifndef TRANSLATEDDIALOG_H
#define TRANSLATEDDIALOG_H

#include "editorviews.h"
#include "host.h"
#include "rycustomizeddialog.h"

#include <QStringList>
#include <QTabWidget>

/*
 * The shown dialog of a host whose own texts have no letters, with a toolbar that has a separator.
 */
class TranslatedDialog : public Host
{
public:
    TranslatedDialog();

    // Presses New, which opens the row of the new toolbar for renaming, and ends that.
    void createToolBar();

    // Presses Help and returns the title and the text of the message box.
    QStringList help();

    // Every text of the library in the dialog with both its tabs, shown at the moment or not.
    QStringList texts() const;

    // What does not fit into its place in a dialog as it is shown, with how much it needs.
    static QStringList cutOff(const QDialog *dialog);
    QStringList cutOff() const { return cutOff(&dialog); }

    RyCustomizedDialog dialog;
    const EditorViews editor;
    QTabWidget *const tabs;
};

#endif // TRANSLATEDDIALOG_H
