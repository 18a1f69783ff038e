// SPDX-License-Identifier: MIT

#include "contentchange.h"

#include "registrychanges.h"

namespace {

const int MaximumReplacements = 100;

} // namespace

ContentChange *ContentChange::s_innermost = nullptr;

ContentChange::ContentChange(const RyToolBarManager *manager, QToolBar *toolBar,
                             const QList<QAction *> &content, int replacements)
    : m_outer(s_innermost)
    , m_manager(manager)
    , m_toolBar(toolBar)
    , m_content(content)
    , m_changesOfActions(RegistryChanges::ofActions)
    , m_takenOff(nullptr)
    , m_replacementsLeft(replacements)
    , m_isReplaced(false)
    , m_isCancelled(false)
{
    s_innermost = this;
}

ContentChange::ContentChange(const RyToolBarManager *manager, QToolBar *toolBar,
                             const QList<QAction *> &content)
    : ContentChange(manager, toolBar, content, MaximumReplacements)
{
}

ContentChange::ContentChange(const RyToolBarManager *manager, QToolBar *toolBar)
    : ContentChange(manager, toolBar, QList<QAction *>(), 0)
{
}

ContentChange::~ContentChange()
{
    s_innermost = m_outer;
}

ContentChange *ContentChange::running(const RyToolBarManager *manager, const QToolBar *toolBar)
{
    for (ContentChange *change = s_innermost; change; change = change->m_outer) {
        if (change->concerns(manager, toolBar))
            return change;
    }
    return nullptr;
}

void ContentChange::cancel(const RyToolBarManager *manager, const QToolBar *toolBar)
{
    for (ContentChange *change = s_innermost; change; change = change->m_outer) {
        if (change->concerns(manager, toolBar))
            change->m_isCancelled = true;
    }
}

bool ContentChange::concerns(const RyToolBarManager *manager, const QToolBar *toolBar) const
{
    return m_manager == manager && m_toolBar == toolBar && !m_isCancelled;
}

bool ContentChange::isTakingOff(const QAction *action)
{
    for (const ContentChange *change = s_innermost; change; change = change->m_outer) {
        if (change->m_takenOff == action)
            return true;
    }
    return false;
}

void ContentChange::takeOff(QAction *action)
{
    m_takenOff = action;
    m_toolBar->removeAction(action);
    m_takenOff = nullptr;
}

QToolBar *ContentChange::toolBar() const
{
    return m_toolBar;
}

QList<QAction *> ContentChange::content() const
{
    return m_content;
}

bool ContentChange::isContentRegistered() const
{
    return m_changesOfActions == RegistryChanges::ofActions;
}

void ContentChange::replaceContent(const QList<QAction *> &content)
{
    if (m_content == content || m_replacementsLeft <= 0)
        return;
    --m_replacementsLeft;
    m_content = content;
    m_changesOfActions = RegistryChanges::ofActions;
    m_isReplaced = true;
}

bool ContentChange::isCancelled() const
{
    return m_isCancelled || !m_toolBar;
}

bool ContentChange::isInterrupted() const
{
    return m_isReplaced || isCancelled();
}

bool ContentChange::startAgain()
{
    const bool again = m_isReplaced && !isCancelled();
    m_isReplaced = false;
    return again;
}
