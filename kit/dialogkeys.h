// SPDX-License-Identifier: MIT

#ifndef DIALOGKEYS_H
#define DIALOGKEYS_H

#include "dialogparts.h"

#include <QKeySequence>
#include <QObject>

class QLabel;

/*!
 * \brief Lets the user do everything in the dialog by keyboard, in an order that makes sense.
 *
 * Tool tips of buttons show their keys. The dialog owns it. Make it after everything that adds
 * controls to the dialog: it looks for the letters that they have taken.
 */
class DialogKeys : public QObject
{
    Q_OBJECT

public:
    explicit DialogKeys(const DialogParts &parts);

private:
    void addShortcuts();
    void addShortcut(QWidget *view, const QKeySequence &key, QToolButton *button);
    void addHelpKey();
    void describe();
    void giveMnemonic(QLabel *caption);
    void orderTabs();

    const DialogParts m_parts;
};

#endif // DIALOGKEYS_H
