// SPDX-License-Identifier: MIT

#ifndef FIND_H
#define FIND_H

#include "dialogscene.h"
#include "menuscene.h"

#include <QLineEdit>
#include <QPointer>

/*
 * A keystroke in the kit's dialog that leaves a third of the actions, until it is painted.
 */
class FindAction : public Side
{
public:
    explicit FindAction(const Size &size);

    void run() override;
    void finish() override;
    QStringList result() override;

private:
    KitScene m_scene;
    QPointer<QDialog> m_dialog;
    QLineEdit *m_line;
};

/*
 * The same with a loop over the items of the bare dialog.
 */
class FindActionBare : public Side
{
public:
    explicit FindActionBare(const Size &size);

    void run() override;
    void finish() override;
    QStringList result() override;

private:
    DialogScene m_scene;
    std::unique_ptr<QDialog> m_dialog;
    QTreeWidget *m_tree;
};

#endif // FIND_H
