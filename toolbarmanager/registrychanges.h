// SPDX-License-Identifier: MIT

#ifndef REGISTRYCHANGES_H
#define REGISTRYCHANGES_H

#include <QtGlobal>

/*
 * How often actions and toolbars were registered and forgotten, by any manager.
 *
 * Whoever keeps pointers to them across calls of the host sees by it that they may be stale.
 */
struct RegistryChanges
{
    static quint64 ofActions;
    static quint64 ofToolBars;
};

#endif // REGISTRYCHANGES_H
