// SPDX-License-Identifier: MIT

#ifndef DIALOGSCENE_H
#define DIALOGSCENE_H

#include "baredialog.h"
#include "managedscene.h"

#include "rycustomizeddialog.h"

/*
 * A host that opens the library's dialog or the bare one. Both show the content of the manager.
 */
class DialogScene : public ManagedScene
{
public:
    explicit DialogScene(const Size &size);

    std::unique_ptr<QDialog> createOurs();
    std::unique_ptr<QDialog> createBare();

private:
    QList<Category> m_categories;
    QList<BareToolBar> m_bareToolBars;
};

/*
 * The visible content of a dialog: its picture, and all rows, tabs and buttons.
 */
QStringList describeDialog(QDialog *dialog);

#endif // DIALOGSCENE_H
