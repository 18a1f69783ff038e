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
 * \brief Lets actions come and go, and keeps the places that the user gave them.
 *
 * While a plugin is off, a stand-in is registered for each of its actions: an invisible QAction
 * with the same objectName. A saved layout identifies actions only by objectName, so it always has
 * every place. An action that is registered later takes the place of its stand-in.
 *
 * Do not call this while RyCustomizedDialog is open. Its working copy has the actions of the moment
 * when it was shown, and Apply leaves out actions that were removed since.
 */
class PluginActions
{
    Q_DECLARE_TR_FUNCTIONS(PluginActions)

public:
    //! \param manager where the actions are registered.
    //! \param settings where the names of all actions that were ever registered are stored. Both
    //!        must outlive the object.
    PluginActions(RyToolBarManager *manager, QSettings *settings);
    ~PluginActions();

    //! Registers a stand-in for every action that was ever registered. Call this before you restore
    //! the stored layout, or the places of actions that are not there yet are lost.
    void standInForAll();

    //! Registers the actions, each in the place of its stand-in.
    void add(const QList<QAction *> &actions, const QString &category);

    //! Replaces the actions with stand-ins and deletes the actions.
    void takeAndDelete(const QList<QAction *> &actions);

    //! Forgets all actions of which only the stand-in is registered, and their places.
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
