// SPDX-License-Identifier: MIT

#ifndef KEPTACTIONNAMES_H
#define KEPTACTIONNAMES_H

#include <QList>
#include <QSet>
#include <QVector>

class QAction;
class QString;
class RyToolBarManager;

/*
 * The actions of a manager by the objectNames that they had when these were last read, kept from
 * one restore to the next: reading thousands of names takes longer than reading most states.
 *
 * Nobody tells when an action gets another name. An action counts only as long as it bears the name
 * that it is looked for by. One that is not found may have been given its name since, so that the
 * names have to be read anew. The manager has no field for all this, because its fields are fixed.
 */
class KeptActionNames
{
public:
    // No names at all.
    KeptActionNames();
    // Reads the names of the actions, which are also given in the order of their addresses. Of
    // several with one name the first of the set counts, as for RyToolBarManager::findAction().
    KeptActionNames(const QSet<QAction *> &actions, const QList<QAction *> &byAddress);

    // What was kept for the manager.
    static KeptActionNames of(const RyToolBarManager *manager);
    void keepFor(const RyToolBarManager *manager) const;
    static void forget(const RyToolBarManager *manager);

    // False once any action was registered or removed: one that was removed may be gone.
    bool areOfTheRegistry() const;

    // Null if none is known, and if they are not those of the registry.
    QAction *find(const QString &name) const;

private:
    struct Place
    {
        uint hash;
        QAction *action;
    };

    bool read(const QList<QAction *> &actions);
    const Place &placeOf(const QString &name, uint hash) const;

    // A hash table, whose size is a power of two, with one free place at least. An action stands in
    // the place of its hash or, if others stand there, in the next free one.
    QVector<Place> m_places;
    quint64 m_changesOfActions;
};

#endif // KEPTACTIONNAMES_H
