// SPDX-License-Identifier: MIT

#include "createtoolbar.h"

namespace {

Size withoutToolBars(const Size &size)
{
    return {size.actions, 0, 0, 0};
}

} // namespace

CreateToolBarOurs::CreateToolBarOurs(const Size &size)
    : SceneSide(withoutToolBars(size))
    , m_count(size.toolBars)
{
}

void CreateToolBarOurs::run()
{
    for (int i = 0; i < m_count; ++i)
        m_scene.manager()->createToolBar(m_title);
}

void CreateToolBarOurs::finish()
{
    const auto toolBars = m_scene.manager()->toolBars();
    for (QToolBar *toolBar : toolBars)
        m_scene.manager()->deleteToolBar(toolBar);
    SceneSide::finish();
}

CreateToolBarBare::CreateToolBarBare(const Size &size)
    : SceneSide(withoutToolBars(size))
    , m_count(size.toolBars)
{
}

void CreateToolBarBare::run()
{
    const QString name = QStringLiteral("_Custom_Toolbar_%1");
    for (int i = 0; i < m_count; ++i) {
        QToolBar *const toolBar = new QToolBar(m_title, m_scene.window());
        toolBar->setObjectName(name.arg(i + 1));
        m_scene.window()->addToolBar(toolBar);
        m_created.append(toolBar);
    }
}

void CreateToolBarBare::finish()
{
    qDeleteAll(m_created);
    m_created.clear();
    SceneSide::finish();
}
