// SPDX-License-Identifier: MIT

#ifndef CHANGEANNOUNCER_H
#define CHANGEANNOUNCER_H

#include "dialogparts.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

class QListWidgetItem;

/*!
 * \brief Lets screen readers say what was added, removed or moved in the dialog, because that may
 *        be in another list than the focus. The dialog owns it.
 *
 * Compares what the lists show with what they showed before. So it does not matter how the user
 * made the change.
 */
class ChangeAnnouncer : public QObject
{
    Q_OBJECT

public:
    explicit ChangeAnnouncer(const DialogParts &parts);

private Q_SLOTS:
    void compare();

private:
    void announce(const QString &text);
    QString entryChange(const QStringList &entries) const;

    const DialogParts m_parts;
    // What Qt reports as a notification. It is as small as a widget can be.
    QWidget *m_notification;
    // Waits until a change is complete: an entry is moved by taking it out first.
    QTimer m_timer;
    // As of the last comparison. The current toolbar may be deleted.
    const QListWidgetItem *m_toolBar;
    QStringList m_toolBars;
    QStringList m_entries;
};

#endif // CHANGEANNOUNCER_H
