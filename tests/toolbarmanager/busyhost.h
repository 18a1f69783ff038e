// SPDX-License-Identifier: MIT

#ifndef BUSYHOST_H
#define BUSYHOST_H

#include "filledhost.h"
#include "hostcalls.h"

/*
 * A filled host with two default and two custom toolbars, and with two states of other layouts.
 */
class BusyHost : public FilledHost
{
public:
    BusyHost()
        : edit(defaultToolBar("edit", words("cut copy | paste"), "A"))
        , yours(manager.createToolBar("Yours"))
    {
        manager.setToolBar(mine, list(words("open | cut")));
        manager.setToolBar(yours, list(words("save copy")));
        plain = manager.saveState(1);
        QToolBar *const third = manager.createToolBar("Third");
        QToolBar *const fourth = manager.createToolBar("Fourth");
        manager.setToolBar(file, list(words("| paste open |")));
        manager.setToolBar(third, list(words("copy | open")));
        manager.setToolBar(fourth, list(words("paste")));
        full = manager.saveState(1);
        manager.deleteToolBar(third);
        manager.deleteToolBar(fourth);
        manager.resetToolBar(file);
    }

    // Calls at every change of the toolbars' actions and at every new child of the window.
    void watch(HostCalls *calls)
    {
        window.installEventFilter(calls);
        const auto toolBars = manager.toolBars();
        for (QToolBar *toolBar : toolBars)
            toolBar->installEventFilter(calls);
    }

    void deleteCustomToolBars()
    {
        const auto toolBars = manager.toolBars();
        for (QToolBar *toolBar : toolBars)
            manager.deleteToolBar(toolBar);
    }

    QToolBar *const edit;
    const QPointer<QToolBar> yours;
    QByteArray plain;
    QByteArray full;
};

#endif // BUSYHOST_H
