// SPDX-License-Identifier: MIT

#ifndef DIALOGSTAGE_H
#define DIALOGSTAGE_H

#include "showndialog.h"
#include "userscript.h"

class QLineEdit;

/*
 * A host, its dialog, and the user before it, with the pointer and the keys of an X server. What is
 * asked of the user is done while exec() runs.
 */
class DialogStage
{
public:
    DialogStage();

    // Shows the host and runs the dialog; "accepted" or "rejected" is what the dialog returned,
    // anything else says what went wrong before.
    QString exec();

    // Types into the in-place editor, which has opened with its text selected.
    void typeName(const QString &name);
    void waitForNameEditor();

    // The in-place editor, or null.
    QLineEdit *nameEditor() const;

    DialogHost host;
    RyCustomizedDialog dialog;
    EditorViews views;
    QTabWidget *const tabs;
    QDialogButtonBox *const box;
    UserScript user;
};

#endif // DIALOGSTAGE_H
