// SPDX-License-Identifier: MIT

#ifndef RESTOREQUESTION_H
#define RESTOREQUESTION_H

#include "dialogparts.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

class QAction;
class QToolBar;
class RyToolBarManager;

/*!
 * \brief Asks before Restore Defaults does something, and says what that is.
 */
class RestoreQuestion : public QObject
{
    Q_OBJECT

public:
    using Defaults = QHash<const QToolBar *, QList<QAction *>>;

    /*!
     * \param defaults the default content of each default toolbar. Null is a separator. Actions
     *        that the manager no longer has are left out.
     */
    RestoreQuestion(const DialogParts &parts, const RyToolBarManager *manager,
                    const Defaults &defaults);

Q_SIGNALS:
    /*!
     * \brief The user wants the defaults.
     */
    void confirmed();

    /*!
     * \brief The user wants them, and something changes.
     */
    void changed();

private Q_SLOTS:
    void ask();
    void answer(int button);

private:
    // What a row of the current toolbar shows, to compare it with an action.
    struct Entry
    {
        QString text;
        qint64 icon;
        bool operator==(const Entry &other) const
        {
            return text == other.text && icon == other.icon;
        }
    };
    using Entries = QList<Entry>;

    QStringList changes() const;
    static QStringList differences(const QString &title, const Entries &shown,
                                   const Entries &wanted);
    QHash<QString, QList<Entries>> defaultEntries() const;
    Entries shownEntries() const;
    static QString names(const Entries &entries);

    const DialogParts m_parts;
    const QPointer<const RyToolBarManager> m_manager;
    const Defaults m_defaults;
};

#endif // RESTOREQUESTION_H
