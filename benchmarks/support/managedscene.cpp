// SPDX-License-Identifier: MIT

#include "managedscene.h"

ManagedScene::ManagedScene(const Size &size)
    : Scene(size)
{
    m_manager.setMainWindow(window());
    const auto all = categories();
    for (const Category &category : all) {
        for (QAction *action : category.actions)
            m_manager.addAction(action, category.name);
    }
    fillToolBars();
    for (QToolBar *toolBar : toolBars())
        m_manager.addDefaultToolBar(toolBar, QStringLiteral("Toolbars"));
}
