// SPDX-License-Identifier: MIT

#include "hostcalls.h"

#include "rytoolbarmanager.h"
#include "texts.h"

#include <QLayout>
#include <QPointer>

HostCalls::HostCalls(const QList<QEvent::Type> &types, Times times,
                     const std::function<void()> &call)
    : m_types(types)
    , m_maximum(times == Once ? 1 : 100000)
    , m_call(call)
{
}

int HostCalls::count() const
{
    return m_count;
}

bool HostCalls::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_types.contains(event->type()) || m_count >= m_maximum)
        return false;
    const QPointer<QObject> guard(watched);
    ++m_count;
    m_call();
    return !guard;
}

QString inconsistencyOf(const RyToolBarManager &manager)
{
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        const QStringList recorded = contentOf(manager.actions(toolBar));
        const QStringList standing = standingOn(toolBar);
        if (recorded != standing)
            return QString("%1 holds %2, but for the manager %3")
                .arg(toolBar->windowTitle(), standing.join(' '), recorded.join(' '));
        if (toolBar->layout()->count() != standing.size())
            return toolBar->windowTitle() + " has buttons without an action";
        const auto content = manager.actions(toolBar);
        for (QAction *action : content) {
            if (action && !manager.actions().contains(action))
                return toolBar->windowTitle() + " holds an unregistered action";
        }
    }
    return QString();
}
