// SPDX-License-Identifier: MIT

#ifndef DIALOGDRESSING_H
#define DIALOGDRESSING_H

#include "dialogparts.h"
#include "rytoolbarkit.h"

#include <QObject>

/*!
 * \brief What the kit adds to a dialog that it opens. The dialog owns it.
 */
class DialogDressing : public QObject
{
    Q_OBJECT

public:
    DialogDressing(RyCustomizedDialog *dialog, RyToolBarKit::Features features);

private:
    void showPlainTexts();

    const DialogParts m_parts;
};

#endif // DIALOGDRESSING_H
