// SPDX-License-Identifier: MIT

#ifndef SHOWNDIALOG_H
#define SHOWNDIALOG_H

#include "editorviews.h"
#include "host.h"
#include "rycustomizeddialog.h"
#include "texts.h"

#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

/*
 * A host with a default toolbar, a custom one and three more actions.
 */
class DialogHost : public Host
{
public:
    DialogHost()
        : file(defaultToolBar("file", words("open | save"), "File"))
    {
        for (const char *name : {"copy", "cut", "paste"})
            registered(name, "Edit");
        mine = manager.createToolBar("Mine");
        manager.setToolBar(mine, list(words("cut | copy")));
    }

    QToolBar *const file;
    QPointer<QToolBar> mine;
};

// Takes the first entry off "File" in the working copy.
inline void edit(QWidget *dialog)
{
    const EditorViews views(dialog);
    views.click(views.toolBarList, "File");
    views.click(views.leftButton);
}

/*
 * That host and its dialog, which is already shown. A test may delete the dialog.
 */
class ShownDialog
{
public:
    ShownDialog()
        : dialog(new RyCustomizedDialog({&host.manager, nullptr}, &host.window))
        , views(dialog)
        , tabs(dialog->findChild<QTabWidget *>())
        , box(dialog->findChild<QDialogButtonBox *>())
    {
        dialog->show();
    }
    ~ShownDialog() { delete dialog; }
    Q_DISABLE_COPY(ShownDialog)

    void edit() const { ::edit(dialog); }

    void press(QDialogButtonBox::StandardButton which) const
    {
        QTest::mouseClick(box->button(which), Qt::LeftButton);
    }

    DialogHost host;
    QPointer<RyCustomizedDialog> dialog;
    const EditorViews views;
    QTabWidget *const tabs;
    QDialogButtonBox *const box;
};

Q_DECLARE_METATYPE(QDialogButtonBox::StandardButton)

#endif // SHOWNDIALOG_H
