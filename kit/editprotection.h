// SPDX-License-Identifier: MIT

#ifndef EDITPROTECTION_H
#define EDITPROTECTION_H

#include "dialogparts.h"

#include <QObject>

class DialogEdits;
class QListWidgetItem;

/*!
 * \brief Keeps what the user does in the dialog from being lost, and buttons from doing nothing.
 */
class EditProtection : public QObject
{
    Q_OBJECT

public:
    EditProtection(const DialogParts &parts, const DialogEdits *edits);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void takeName();
    void nameNewToolBar();
    void checkName(QListWidgetItem *row);
    void updateButtons();
    void leave(int answer);

private:
    QString uniqueName(const QListWidgetItem *row) const;
    bool isKept();

    const DialogParts m_parts;
    const DialogEdits *m_edits;
};

#endif // EDITPROTECTION_H
