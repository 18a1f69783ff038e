// SPDX-License-Identifier: MIT

#include "keptactionnames.h"

#include "registrychanges.h"

#include <QAction>
#include <QHash>

namespace {

using NamesOfManagers = QHash<const RyToolBarManager *, KeptActionNames>;

// Null while nothing is kept: a static manager of the host may be destroyed later than any static
// object of the library.
NamesOfManagers *namesOfManagers = nullptr;

// At most half of the places are taken, so that few actions stand far from the place of their hash.
int sizeFor(int count)
{
    int size = 2;
    while (size < 2 * count)
        size *= 2;
    return size;
}

} // namespace

KeptActionNames::KeptActionNames()
    : KeptActionNames(QSet<QAction *>(), QList<QAction *>())
{
}

KeptActionNames::KeptActionNames(const QSet<QAction *> &actions, const QList<QAction *> &byAddress)
    : m_places(sizeFor(actions.size()), Place{0, nullptr})
    , m_changesOfActions(RegistryChanges::ofActions)
{
    // Thousands of actions are read several times as fast in the order in which they lie in memory.
    if (read(byAddress))
        return;
    m_places.fill(Place{0, nullptr});
    read(actions.values());
}

// False if several actions have the same name.
bool KeptActionNames::read(const QList<QAction *> &actions)
{
    bool unique = true;
    for (QAction *action : actions) {
        const QString name = action->objectName();
        if (name.isEmpty())
            continue;
        const uint hash = qHash(name);
        const Place &place = placeOf(name, hash);
        if (place.action)
            unique = false;
        else
            m_places[static_cast<int>(&place - m_places.constData())] = Place{hash, action};
    }
    return unique;
}

KeptActionNames KeptActionNames::of(const RyToolBarManager *manager)
{
    return namesOfManagers ? namesOfManagers->value(manager) : KeptActionNames();
}

void KeptActionNames::keepFor(const RyToolBarManager *manager) const
{
    if (!namesOfManagers)
        namesOfManagers = new NamesOfManagers;
    namesOfManagers->insert(manager, *this);
}

void KeptActionNames::forget(const RyToolBarManager *manager)
{
    if (!namesOfManagers)
        return;
    namesOfManagers->remove(manager);
    if (namesOfManagers->isEmpty()) {
        delete namesOfManagers;
        namesOfManagers = nullptr;
    }
}

bool KeptActionNames::areOfTheRegistry() const
{
    return m_changesOfActions == RegistryChanges::ofActions;
}

QAction *KeptActionNames::find(const QString &name) const
{
    return areOfTheRegistry() ? placeOf(name, qHash(name)).action : nullptr;
}

// The place of the action that bears the name, or else the free one where it would stand.
const KeptActionNames::Place &KeptActionNames::placeOf(const QString &name, uint hash) const
{
    const uint last = static_cast<uint>(m_places.size()) - 1;
    for (uint i = hash & last;; i = (i + 1) & last) {
        const Place &place = m_places.at(static_cast<int>(i));
        if (!place.action || (place.hash == hash && place.action->objectName() == name))
            return place;
    }
}
