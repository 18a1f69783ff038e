// SPDX-License-Identifier: MIT

#ifndef EDITPROTECTION_H
#define EDITPROTECTION_H

#include "dialogparts.h"

#include <QObject>

class QListWidgetItem;

/*!
 * \brief Keeps what the user does in the dialog from being lost, and buttons from doing nothing.
 */
class EditProtection : public QObject
{
    Q_OBJECT

public:
    explicit EditProtection(const DialogParts &parts);

    /*!
     * \brief Says that the dialog shows what the manager has. It is called for each fill.
     */
    void startAgain();

public Q_SLOTS:
    /*!
     * \brief Says that there is something to lose.
     */
    void markEdited();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void takeName();
    void nameNewToolBar();
    void checkName(QListWidgetItem *row);
    void markDoubleClick();
    void markApplied();
    void updateButtons();
    void leave(int answer);

private:
    QString uniqueName(const QListWidgetItem *row) const;
    bool isKept();

    const DialogParts m_parts;
    bool m_isEdited;
};

#endif // EDITPROTECTION_H
