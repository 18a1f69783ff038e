// SPDX-License-Identifier: MIT

#include "restoremodel.h"

#include "rytoolbarmanager.h"
#include "texts.h"
#include "toolbarlines.h"

RestoreModel::RestoreModel(const RyToolBarManager &manager)
    : m_model(&m_world)
{
    m_model.mainWindow = manager.mainWindow();
    m_model.searchOrder = manager.actions().values();
    for (QAction *action : std::as_const(m_model.searchOrder)) {
        m_world.actions[action] = {action->objectName(), action->text()};
        m_model.registered[action] = manager.actionCategory(action);
        m_shown[action] = contentOf({action}).constFirst();
    }
    m_shown[nullptr] = '|';
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        const auto content = manager.actions(toolBar);
        m_world.toolBars[toolBar] = {toolBar->objectName(), toolBar->windowTitle(), nullptr, {}};
        m_model.toolBars[toolBar] = {
            manager.isDefaultToolBar(toolBar), {content.begin(), content.end()}, {}, {}};
    }
}

bool RestoreModel::restore(const QByteArray &state, int version)
{
    const SavedLayout layout = SavedLayout::of(state);
    // Addresses for all toolbars that it may create, which are only compared.
    std::deque<QToolBar *> made;
    for (quintptr i = 1; i <= layout.customs.size(); ++i)
        made.push_back(reinterpret_cast<QToolBar *>(i));
    return m_model.restore(layout, version, made);
}

QByteArray RestoreModel::save(int version)
{
    return m_model.save(version).bytes();
}

QStringList RestoreModel::lines() const
{
    QStringList lines;
    for (const auto &entry : m_model.toolBars) {
        QStringList content;
        for (QAction *action : entry.second.content)
            content << m_shown.at(action);
        const WorldModel::ToolBar &state = m_world.toolBars.at(entry.first);
        lines << lineOf(entry.second.isDefault, state.objectName, state.title, content);
    }
    lines.sort();
    return lines;
}

QStringList RestoreModel::takeWarnings()
{
    return m_model.takeWarnings();
}
