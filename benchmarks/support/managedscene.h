// SPDX-License-Identifier: MIT

#ifndef MANAGEDSCENE_H
#define MANAGEDSCENE_H

#include "scene.h"

#include "rytoolbarmanager.h"

/*
 * The same host with the library. Every action is registered, and every toolbar is a default
 * toolbar with its first content.
 */
class ManagedScene : public Scene
{
public:
    explicit ManagedScene(const Size &size);

    RyToolBarManager *manager() { return &m_manager; }

private:
    RyToolBarManager m_manager;
};

/*
 * Registers every action, and every toolbar as a default toolbar.
 */
void registerAll(Scene &scene, RyToolBarManager &manager);

/*
 * Puts the contents of a variant on all toolbars.
 */
void setContents(Scene &scene, RyToolBarManager &manager, int variant);

#endif // MANAGEDSCENE_H
