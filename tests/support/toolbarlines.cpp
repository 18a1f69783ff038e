// SPDX-License-Identifier: MIT

#include "toolbarlines.h"

#include "rytoolbarmanager.h"
#include "texts.h"

QString lineOf(bool isDefault, const QString &objectName, const QString &title,
               const QStringList &content)
{
    return (isDefault ? "default " : "") + objectName + " '" + title + "': " + content.join(' ');
}

QStringList lines(const RyToolBarManager &manager)
{
    QStringList lines;
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        const QStringList content = contentOf(manager.actions(toolBar));
        QString line = lineOf(manager.isDefaultToolBar(toolBar), toolBar->objectName(),
                              toolBar->windowTitle(), content);
        if (standingOn(toolBar) != content)
            line += " (but not on the widget)";
        lines << line;
    }
    lines.sort();
    return lines;
}
