// SPDX-License-Identifier: MIT

#include "worldmodel.h"

#include <algorithm>

namespace {

template <typename T> void removeAll(std::vector<T> &list, const T &value)
{
    list.erase(std::remove(list.begin(), list.end(), value), list.end());
}

} // namespace

void WorldModel::addToolBar(QToolBar *toolBar, const ToolBar &state)
{
    toolBars[toolBar] = state;
    windows[state.window].push_back(toolBar);
}

void WorldModel::removeToolBar(QToolBar *toolBar)
{
    removeAll(windows[toolBars[toolBar].window], toolBar);
    toolBars.erase(toolBar);
}

void WorldModel::removeAction(QAction *action)
{
    for (auto &toolBar : toolBars)
        removeAll(toolBar.second.standing, Standing{action, 0});
    actions.erase(action);
}

WorldModel::Standing WorldModel::append(QToolBar *toolBar, QAction *action)
{
    const Standing standing{action, action ? 0 : ++m_separators};
    take(toolBar, standing);
    toolBars[toolBar].standing.push_back(standing);
    return standing;
}

void WorldModel::take(QToolBar *toolBar, const Standing &standing)
{
    removeAll(toolBars[toolBar].standing, standing);
}

void WorldModel::deleteSeparator(const Standing &standing)
{
    if (!standing.action)
        deletedSeparators.push_back(standing.separator);
}
