// SPDX-License-Identifier: MIT

#ifndef DIALOGEDITS_H
#define DIALOGEDITS_H

#include "dialogparts.h"

#include <QObject>

class QListWidgetItem;

/*!
 * \brief Knows whether the dialog has edits that are not applied yet.
 *
 * An edit that is taken back by hand still counts. The page forgets its edits when it is hidden.
 */
class DialogEdits : public QObject
{
    Q_OBJECT

public:
    explicit DialogEdits(const DialogParts &parts);

    bool any() const { return m_any; }

public Q_SLOTS:
    /*!
     * \brief Says that there is one more.
     */
    void add();

private Q_SLOTS:
    void addByDoubleClick();
    void addName(QListWidgetItem *row);
    void forget();

private:
    const DialogParts m_parts;
    bool m_any;
};

#endif // DIALOGEDITS_H
