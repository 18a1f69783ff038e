// SPDX-License-Identifier: MIT

#ifndef ITEMFOCUS_H
#define ITEMFOCUS_H

#include "dialogparts.h"

#include <QObject>

class QModelIndex;

/*!
 * \brief Reports to screen readers what has the keyboard focus in the dialog. The dialog owns it.
 *
 * Qt does not say which item is current in a list that gets the focus. And it reports the current
 * item of every list as focused, whichever list has the focus.
 */
class ItemFocus : public QObject
{
    Q_OBJECT

public:
    explicit ItemFocus(const DialogParts &parts);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void currentChanged(const QModelIndex &current);
    void report();

private:
    const DialogParts m_parts;
};

#endif // ITEMFOCUS_H
