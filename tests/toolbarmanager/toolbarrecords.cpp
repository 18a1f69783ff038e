// SPDX-License-Identifier: MIT

#include "toolbarrecords.h"

#include "texts.h"

namespace {

QString kindOf(const RyToolBarManager &manager, QToolBar *toolBar)
{
    if (manager.isDefaultToolBar(toolBar))
        return "default";
    return manager.toolBars().contains(toolBar) ? "custom" : "unmanaged";
}

} // namespace

QList<QToolBar *> toolBarsByAddress(Host &host, int count)
{
    QList<QToolBar *> toolBars;
    for (int i = 0; i < count; ++i)
        toolBars << host.toolBar(QString());
    toolBars = byAddress(toolBars);
    for (int i = 0; i < count; ++i)
        toolBars.at(i)->setObjectName(QString("t%1").arg(i));
    return toolBars;
}

QStringList namesOf(const QList<QToolBar *> &toolBars)
{
    QStringList names;
    for (const QToolBar *toolBar : toolBars)
        names << toolBar->objectName();
    return names;
}

QList<QPointer<QAction>> guarded(const QList<QAction *> &actions)
{
    QList<QPointer<QAction>> guards;
    for (QAction *action : actions)
        guards << action;
    return guards;
}

QStringList fatesOf(const QList<QPointer<QAction>> &actions)
{
    QStringList fates;
    for (const QPointer<QAction> &action : actions)
        fates << (action ? "alive" : "deleted");
    return fates;
}

QStringList recordOf(const Host &host, QToolBar *toolBar)
{
    QStringList record;
    record << contentOf(host.manager.actions(toolBar)) << "/" << standingOn(toolBar) << "/"
           << contentOf(host.manager.defaultToolBars().value(toolBar)) << "/"
           << kindOf(host.manager, toolBar);
    return record;
}
