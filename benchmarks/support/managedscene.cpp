// SPDX-License-Identifier: MIT

#include "managedscene.h"

ManagedScene::ManagedScene(const Size &size)
    : Scene(size)
{
    fillToolBars();
    registerAll(*this, m_manager);
}

void registerAll(Scene &scene, RyToolBarManager &manager)
{
    manager.setMainWindow(scene.window());
    const auto categories = scene.categories();
    for (const Scene::Category &category : categories) {
        for (QAction *action : category.actions)
            manager.addAction(action, category.name);
    }
    for (QToolBar *toolBar : scene.toolBars())
        manager.addDefaultToolBar(toolBar, QStringLiteral("Toolbars"));
}

void setContents(Scene &scene, RyToolBarManager &manager, int variant)
{
    for (int i = 0; i < scene.toolBars().size(); ++i)
        manager.setToolBar(scene.toolBars().at(i), scene.content(i, variant));
}
