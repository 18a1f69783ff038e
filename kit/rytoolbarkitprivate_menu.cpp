// SPDX-License-Identifier: MIT

#include "rytoolbarkitprivate.h"

#include "toolbarlooks.h"

#include <QAction>
#include <QToolBar>

// A toolbar that the kit does not know is the program's own business.
bool RyToolBarKitPrivate::hasMenu(const QToolBar *toolBar) const
{
    return (features & RyToolBarKit::ToolBarMenus) && m_isRestored && isManaged(toolBar);
}

void RyToolBarKitPrivate::followNow()
{
    update();
    collect();
}

KitToolBar RyToolBarKitPrivate::recordOf(const QToolBar *toolBar) const
{
    KitToolBar record = m_layout.toolBars.value(m_toolBarNames.nameOf(toolBar));
    record.look = m_looks->shown(toolBar, record.look);
    return record;
}

void RyToolBarKitPrivate::setLook(QToolBar *toolBar, const KitLook &look)
{
    if (!isManaged(toolBar))
        return;
    m_layout.toolBars[m_toolBarNames.nameOf(toolBar)].look = m_looks->withProgram(toolBar, look);
    applyLook(toolBar);
    m_storeTimer.start();
}

// The user's choice holds as long as the program starts with what it had then.
void RyToolBarKitPrivate::applyLook(QToolBar *toolBar)
{
    if (features & RyToolBarKit::ToolBarMenus)
        m_looks->apply(toolBar, &m_layout.toolBars[m_toolBarNames.nameOf(toolBar)].look);
}

// A program that locks its toolbars locks all of them.
bool RyToolBarKitPrivate::isAnyMovable() const
{
    const auto defaults = manager->defaultToolBars();
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it) {
        if (m_looks->isMovable(it.key()))
            return true;
    }
    return defaults.isEmpty();
}

void RyToolBarKitPrivate::setLocked(bool locked)
{
    m_layout.locked = locked;
    if (manager)
        applyLock();
    m_storeTimer.start();
}

// A lock that the program has too is its own, and goes when the program opens it.
void RyToolBarKitPrivate::applyLock()
{
    if (!(features & RyToolBarKit::ToolBarMenus))
        return;
    m_layout.locked = m_layout.locked && isAnyMovable();
    const auto toolBars = manager->toolBars();
    for (QToolBar *toolBar : toolBars)
        m_looks->setLocked(toolBar, m_layout.locked);
}

void RyToolBarKitPrivate::unlock()
{
    setLocked(false);
}

bool RyToolBarKitPrivate::canRemove(QToolBar *toolBar, int index) const
{
    if (m_dialog || !isManaged(toolBar))
        return false;
    const auto entries = manager->actions(toolBar);
    const auto onWidget = toolBar->actions();
    const QAction *const action = onWidget.value(index);
    if (!action || onWidget.size() != entries.size())
        return false;
    return entries.at(index) ? entries.at(index) == action : action->isSeparator();
}

void RyToolBarKitPrivate::removeEntry(QToolBar *toolBar, int index)
{
    if (!canRemove(toolBar, index))
        return;
    auto entries = manager->actions(toolBar);
    entries.removeAt(index);
    manager->setToolBar(toolBar, entries);
    putBackButtons(toolBar);
    collect();
    m_storeTimer.start();
}

bool RyToolBarKitPrivate::isRequired(const QAction *action) const
{
    return m_required.contains(const_cast<QAction *>(action));
}

bool RyToolBarKitPrivate::canReset(const QToolBar *toolBar) const
{
    const KitToolBar record = recordOf(toolBar);
    return !m_dialog && !record.custom && (record.customized || !record.look.isDefault());
}

void RyToolBarKitPrivate::resetToolBar(QToolBar *toolBar)
{
    if (!isManaged(toolBar) || !canReset(toolBar))
        return;
    KitToolBar &record = m_layout.toolBars[m_toolBarNames.nameOf(toolBar)];
    record.customized = false;
    record.look = KitLook();
    place(toolBar);
    applyLook(toolBar);
    m_storeTimer.start();
}

// As the program has the toolbars.
void RyToolBarKitPrivate::takeLooksBack()
{
    const auto toolBars = manager->toolBars();
    for (QToolBar *toolBar : toolBars) {
        m_layout.toolBars[m_toolBarNames.nameOf(toolBar)].look = KitLook();
        applyLook(toolBar);
    }
    m_layout.locked = false;
    applyLock();
}
