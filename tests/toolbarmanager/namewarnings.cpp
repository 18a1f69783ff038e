// SPDX-License-Identifier: MIT

#include "namewarnings.h"

namespace {

QStringList notFound(const char *className, const char *property, const QString &name)
{
    return {QString("RyToolBarManager::restoreState(): cannot find a %1 named '%3', trying to "
                    "match using '%2' instead.")
                .arg(className, property, name),
            QString("RyToolBarManager::restoreState(): cannot find a %1 with matching '%2' "
                    "(looking for '%3').")
                .arg(className, property, name)};
}

} // namespace

QStringList noAction(const QString &name)
{
    return notFound("QAction", "text", name);
}

QStringList noToolBar(const QString &name)
{
    return notFound("QToolBar", "windowTitle", name);
}

QStringList first(const QStringList &warnings)
{
    return {warnings.constFirst()};
}
