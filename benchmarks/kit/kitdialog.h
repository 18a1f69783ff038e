// SPDX-License-Identifier: MIT

#ifndef KITDIALOG_H
#define KITDIALOG_H

#include "menuscene.h"

#include <RyCustomizedDialog>

/*
 * A host that opens its kit's dialog with all that the kit adds to it, or without.
 */
class KitDialogScene : public KitScene
{
public:
    KitDialogScene(const Size &size, bool dressed);

    void open();
    void close();
    RyCustomizedDialog *dialog();
};

/*
 * Opens, lays out and paints the dialog. Closing it is not timed.
 */
template <bool dressed> class OpenKitDialog : public Side
{
public:
    explicit OpenKitDialog(const Size &size)
        : m_scene(size, dressed)
    {
    }

    void run() override { m_scene.open(); }
    void finish() override { m_scene.close(); }
    QStringList result() override;

private:
    KitDialogScene m_scene;
};

// The number of rows in the views that the dialog has with and without additions.
QStringList describeRows(RyCustomizedDialog *dialog);

template <bool dressed> QStringList OpenKitDialog<dressed>::result()
{
    return describeRows(m_scene.dialog());
}

using OpenDressed = OpenKitDialog<true>;
using OpenPlain = OpenKitDialog<false>;

#endif // KITDIALOG_H
