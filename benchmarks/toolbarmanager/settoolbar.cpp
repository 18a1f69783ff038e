// SPDX-License-Identifier: MIT

#include "settoolbar.h"

#include "baretoolbars.h"

namespace {

QList<QList<QAction *>> contentsOf(const Scene &scene, int variant)
{
    QList<QList<QAction *>> contents;
    for (int i = 0; i < scene.toolBars().size(); ++i)
        contents.append(scene.content(i, variant));
    return contents;
}

} // namespace

SetToolBarOurs::SetToolBarOurs(const Size &size)
    : m_scene(size)
{
}

void SetToolBarOurs::prepare()
{
    m_variant = 1 - m_variant;
    m_contents = contentsOf(m_scene, m_variant);
}

void SetToolBarOurs::run()
{
    for (int i = 0; i < m_contents.size(); ++i)
        m_scene.manager()->setToolBar(m_scene.toolBars().at(i), m_contents.at(i));
}

void SetToolBarOurs::finish()
{
    settle();
}

QStringList SetToolBarOurs::result()
{
    return describeToolBars(m_scene.window());
}

SetToolBarBare::SetToolBarBare(const Size &size)
    : m_scene(size)
{
    m_scene.fillToolBars();
}

void SetToolBarBare::prepare()
{
    m_variant = 1 - m_variant;
    m_contents = contentsOf(m_scene, m_variant);
}

void SetToolBarBare::run()
{
    for (int i = 0; i < m_contents.size(); ++i)
        bare::setContent(m_scene.toolBars().at(i), m_contents.at(i));
}

void SetToolBarBare::finish()
{
    settle();
}

QStringList SetToolBarBare::result()
{
    return describeToolBars(m_scene.window());
}
