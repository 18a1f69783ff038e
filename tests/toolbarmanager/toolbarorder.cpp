// SPDX-License-Identifier: MIT

#include "toolbarorder.h"

#include <algorithm>
#include <functional>

QList<QToolBar *> toolBarsByAddress(Host &host, int count)
{
    QList<QToolBar *> toolBars;
    for (int i = 0; i < count; ++i)
        toolBars << host.toolBar(QString());
    std::sort(toolBars.begin(), toolBars.end(), std::less<QToolBar *>());
    for (int i = 0; i < count; ++i)
        toolBars.at(i)->setObjectName(QStringLiteral("t%1").arg(i));
    return toolBars;
}

QStringList namesOf(const QList<QToolBar *> &toolBars)
{
    QStringList names;
    for (const QToolBar *toolBar : toolBars)
        names << toolBar->objectName();
    return names;
}
