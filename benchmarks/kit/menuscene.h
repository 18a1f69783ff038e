// SPDX-License-Identifier: MIT

#ifndef MENUSCENE_H
#define MENUSCENE_H

#include "managedscene.h"

#include <RyToolBarKit>

/*
 * A host with a menu for each category, and with its first content on every toolbar.
 */
class MenuScene : public Scene
{
public:
    explicit MenuScene(const Size &size);
};

/*
 * The same host with a kit, which stores nothing until it gets settings.
 */
class KitScene : public MenuScene
{
public:
    explicit KitScene(const Size &size);

    RyToolBarKit *kit() { return m_kit; }
    RyToolBarManager *manager() { return m_kit->manager(); }

private:
    // Owned by the window.
    RyToolBarKit *m_kit;
};

#endif // MENUSCENE_H
