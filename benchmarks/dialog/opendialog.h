// SPDX-License-Identifier: MIT

#ifndef OPENDIALOG_H
#define OPENDIALOG_H

#include "dialogscene.h"

/*
 * Constructs, shows, lays out and paints the dialog. Closing it is not timed.
 */
template <std::unique_ptr<QDialog> (DialogScene::*create)()> class OpenDialog : public Side
{
public:
    explicit OpenDialog(const Size &size)
        : m_scene(size)
    {
    }

    void run() override
    {
        m_dialog = (m_scene.*create)();
        m_dialog->show();
        settle();
    }

    void finish() override
    {
        m_dialog.reset();
        settle();
    }

    QStringList result() override { return describeDialog(m_dialog.get()); }

private:
    DialogScene m_scene;
    std::unique_ptr<QDialog> m_dialog;
};

using OpenDialogOurs = OpenDialog<&DialogScene::createOurs>;
using OpenDialogBare = OpenDialog<&DialogScene::createBare>;

#endif // OPENDIALOG_H
