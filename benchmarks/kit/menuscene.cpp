// SPDX-License-Identifier: MIT

#include "menuscene.h"

#include <QMenu>
#include <QMenuBar>

MenuScene::MenuScene(const Size &size)
    : Scene(size)
{
    const auto all = categories();
    for (const Category &category : all)
        window()->menuBar()->addMenu(category.name)->addActions(category.actions);
    fillToolBars();
}

KitScene::KitScene(const Size &size)
    : MenuScene(size)
    , m_kit(new RyToolBarKit(window(), false))
{
    m_kit->setSettings(nullptr, QString());
    m_kit->restoreNow();
}
