// SPDX-License-Identifier: MIT

#ifndef RESTOREQUESTION_H
#define RESTOREQUESTION_H

#include "dialogparts.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

class DialogEdits;
class QAction;
class QListWidgetItem;
class RyToolBarManager;

/*!
 * \brief Asks before Restore Defaults does something, and says what that is.
 */
class RestoreQuestion : public QObject
{
    Q_OBJECT

public:
    /*!
     * \brief What the defaults are, and what else they take back.
     */
    struct Default
    {
        QString title;
        // Null is a separator.
        QList<QAction *> actions;
        // Whether the user has chosen an icon size or a text position.
        bool hasLook;
    };
    struct Defaults
    {
        QList<Default> toolBars;
        bool areLocked;
    };

    /*!
     * \param defaults is called for each question, as long as \a manager exists.
     */
    RestoreQuestion(const DialogParts &parts, DialogEdits *edits, const RyToolBarManager *manager,
                    const std::function<Defaults()> &defaults);

Q_SIGNALS:
    /*!
     * \brief The user wants the defaults.
     */
    void confirmed();

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
    // What the default toolbars of one title are to be, because a title is all that a row shows.
    struct Wanted
    {
        QList<Entries> contents;
        int looks = 0;
    };

    QStringList changes() const;
    QHash<int, Entries> takeOthers(QHash<QString, Wanted> *wanted) const;
    static QStringList differences(const QString &title, const Entries &shown,
                                   const Entries &wanted);
    static QHash<QString, Wanted> byTitle(const QList<Default> &defaults);
    Entries shownEntries() const;
    static QString names(const Entries &entries);

    const DialogParts m_parts;
    DialogEdits *const m_edits;
    const QPointer<const RyToolBarManager> m_manager;
    const std::function<Defaults()> m_defaults;
};

#endif // RESTOREQUESTION_H
