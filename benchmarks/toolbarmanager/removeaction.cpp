// SPDX-License-Identifier: MIT

#include "removeaction.h"

namespace {

Size withOneEmptyToolBar(const Size &size)
{
    return {size.actions, 1, 0, 0};
}

} // namespace

RemoveActionOurs::RemoveActionOurs(const Size &size)
    : SceneSide(withOneEmptyToolBar(size))
{
}

void RemoveActionOurs::prepare()
{
    QToolBar *const toolBar = m_scene.toolBars().first();
    toolBar->addActions(m_scene.actions());
    m_manager = std::make_unique<RyToolBarManager>();
    m_manager->setMainWindow(m_scene.window());
    m_manager->addDefaultToolBar(toolBar, QStringLiteral("Commands"));
}

void RemoveActionOurs::run()
{
    for (QAction *action : m_scene.actions())
        m_manager->removeAction(action);
}

RemoveActionBare::RemoveActionBare(const Size &size)
    : SceneSide(withOneEmptyToolBar(size))
{
}

void RemoveActionBare::prepare()
{
    m_scene.toolBars().first()->addActions(m_scene.actions());
}

void RemoveActionBare::run()
{
    QToolBar *const toolBar = m_scene.toolBars().first();
    for (QAction *action : m_scene.actions())
        toolBar->removeAction(action);
}
