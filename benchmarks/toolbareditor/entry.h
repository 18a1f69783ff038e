// SPDX-License-Identifier: MIT

#ifndef ENTRY_H
#define ENTRY_H

#include "dialogscene.h"

class QAbstractButton;

/*
 * Adds an action in the middle of the first toolbar's list with a click on "->", and removes it
 * again with a click on "<-".
 */
class Entry : public Side
{
public:
    void prepare() override;
    void run() override;
    void finish() override;
    QStringList result() override;

protected:
    Entry(const Size &size, std::unique_ptr<QDialog> (DialogScene::*create)());

private:
    DialogScene m_scene;
    std::unique_ptr<QDialog> m_dialog;
    QListWidget *m_list;
    QAbstractButton *m_addButton;
    QAbstractButton *m_removeButton;
};

class EntryOurs : public Entry
{
public:
    explicit EntryOurs(const Size &size);
};

/*
 * Bare Qt's slots insert one item, or delete one, make another one current, keep the list of
 * actions and set the buttons.
 */
class EntryBare : public Entry
{
public:
    explicit EntryBare(const Size &size);
};

#endif // ENTRY_H
