// SPDX-License-Identifier: MIT

#include "managerrecords.h"

namespace {

// Explicit instantiations may name private members; each hands its one to a function.
struct PlacedActions
{
    using Field = QMap<QToolBar *, QList<QAction *>> RyToolBarManager::*;
    friend Field fieldOf(PlacedActions);
};

struct ToolBarsOfActions
{
    using Field = QMap<QAction *, QList<QToolBar *>> RyToolBarManager::*;
    friend Field fieldOf(ToolBarsOfActions);
};

template <typename Tag, typename Tag::Field field> struct Opened
{
    friend typename Tag::Field fieldOf(Tag) { return field; }
};

template struct Opened<PlacedActions, &RyToolBarManager::m_toolBarsWithSeparators>;
template struct Opened<ToolBarsOfActions, &RyToolBarManager::m_actionToToolBars>;

} // namespace

QMap<QToolBar *, QList<QAction *>> placedActions(const RyToolBarManager &manager)
{
    return manager.*fieldOf(PlacedActions());
}

QMap<QAction *, QList<QToolBar *>> toolBarsOfActions(const RyToolBarManager &manager)
{
    return manager.*fieldOf(ToolBarsOfActions());
}
