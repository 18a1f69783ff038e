// SPDX-License-Identifier: MIT

#include "layout.h"

#include "rytoolbarmanager.h"
#include "texts.h"

QString layoutLine(bool isDefault, const QString &objectName, const QString &title,
                   const QStringList &content)
{
    return QLatin1String(isDefault ? "default " : "") + objectName + QLatin1String(" '") + title
        + QLatin1String("': ") + content.join(QLatin1Char(' '));
}

QStringList layoutOf(const RyToolBarManager &manager)
{
    QStringList layout;
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        const QStringList content = contentOf(manager.actions(toolBar));
        QString line = layoutLine(manager.isDefaultToolBar(toolBar), toolBar->objectName(),
                                  toolBar->windowTitle(), content);
        if (standingOn(toolBar) != content)
            line += QLatin1String(" (but not on the widget)");
        layout << line;
    }
    layout.sort();
    return layout;
}
