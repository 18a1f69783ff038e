// SPDX-License-Identifier: MIT

#include "settoolbar.h"

#include "baretoolbars.h"

SetToolBarOurs::SetToolBarOurs(const Size &size)
    : SceneSide<ManagedScene>(size)
{
}

void SetToolBarOurs::prepare()
{
    m_variant = 1 - m_variant;
    m_contents = contents(m_variant);
}

void SetToolBarOurs::run()
{
    for (int i = 0; i < m_contents.size(); ++i)
        m_scene.manager()->setToolBar(m_scene.toolBars().at(i), m_contents.at(i));
}

SetToolBarBare::SetToolBarBare(const Size &size)
    : SceneSide<Scene>(size)
{
    m_scene.fillToolBars();
}

void SetToolBarBare::prepare()
{
    m_variant = 1 - m_variant;
    m_contents = contents(m_variant);
}

void SetToolBarBare::run()
{
    for (int i = 0; i < m_contents.size(); ++i)
        bare::setContent(m_scene.toolBars().at(i), m_contents.at(i));
}
