// SPDX-License-Identifier: MIT

#ifndef PLUGINACTIONS_H
#define PLUGINACTIONS_H

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>

#include <functional>

class QAction;
class QSettings;
class RyToolBarManager;

/*!
 * \brief Lets actions come and go while the places that the user gave them stay.
 *
 * While a plugin is off, a stand-in is registered for each of its actions: an invisible QAction of
 * the same objectName. A saved layout knows actions by objectName only, so that it always names
 * every place, and an action that comes late goes where its stand-in was.
 *
 * Call nothing of this while RyCustomizedDialog is open: its working copy holds the actions of the
 * moment when it was shown, and Apply leaves out those that are gone since.
 */
class PluginActions
{
    Q_DECLARE_TR_FUNCTIONS(PluginActions)

public:
    //! \param manager where the actions are registered.
    //! \param settings where the names of all actions that were ever there are kept; both must
    //!        outlive the object.
    PluginActions(RyToolBarManager *manager, QSettings *settings);
    ~PluginActions();

    //! Registers a stand-in for every action that was ever there. Call it before the stored layout
    //! is restored, or restoring drops the places of those that have not come yet.
    void standInForAll();

    //! Registers the actions, each in the place of its stand-in.
    void add(const QList<QAction *> &actions, const QString &category);

    //! Puts stand-ins in the places of the actions and deletes the actions.
    void takeAndDelete(const QList<QAction *> &actions);

    //! Forgets the actions that are not there, and their places.
    void forgetAbsent();

private:
    void exchange(const std::function<void()> &change);
    void standIn(const QString &name, const QString &text, const QString &category);
    void dropStandIn(const QString &name);

    RyToolBarManager *const m_manager;
    QSettings *const m_settings;
    // Owned, by objectName.
    QHash<QString, QAction *> m_standIns;
};

#endif // PLUGINACTIONS_H
