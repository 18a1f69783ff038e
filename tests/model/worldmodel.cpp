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
        removeAll(toolBar.second.placed, Placed{action, 0});
    actions.erase(action);
}

WorldModel::Placed WorldModel::append(QToolBar *toolBar, QAction *action)
{
    const Placed placed{action, action ? 0 : ++m_separators};
    take(toolBar, placed);
    toolBars[toolBar].placed.push_back(placed);
    return placed;
}

void WorldModel::take(QToolBar *toolBar, const Placed &placed)
{
    removeAll(toolBars[toolBar].placed, placed);
}

void WorldModel::deleteSeparator(const Placed &placed)
{
    if (!placed.action)
        deletedSeparators.push_back(placed.separator);
}
