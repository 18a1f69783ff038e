// SPDX-License-Identifier: MIT

#include "dialogstage.h"

#include <QLineEdit>

DialogStage::DialogStage()
    : dialog({&host.manager, nullptr}, &host.window)
    , views(&dialog)
    , tabs(dialog.findChild<QTabWidget *>())
    , box(dialog.findChild<QDialogButtonBox *>())
{
    host.window.resize(1000, 800);
    user.waitForWindow(&dialog);
}

QString DialogStage::exec()
{
    host.window.show();
    if (!waitUntilSettled(&host.window))
        return "the host has no window";
    user.start();
    const int result = dialog.exec();
    const QString failure = user.finish();
    if (!failure.isEmpty())
        return failure;
    return result == QDialog::Accepted ? "accepted" : "rejected";
}

void DialogStage::typeName(const QString &name)
{
    waitForNameEditor();
    user.type(name, [this, name] { return nameEditor() && nameEditor()->text() == name; });
}

void DialogStage::waitForNameEditor()
{
    user.waitFor("editor", [this] {
        return nameEditor() && nameEditor()->hasFocus() && nameEditor()->hasSelectedText();
    });
}

QLineEdit *DialogStage::nameEditor() const
{
    return qobject_cast<QLineEdit *>(views.renameEditor());
}
