// SPDX-License-Identifier: MIT

#ifndef LAYOUT_H
#define LAYOUT_H

#include <QStringList>

class RyToolBarManager;

// One toolbar as a line: "objectName 'title': content", with "default " before a default one.
QString layoutLine(bool isDefault, const QString &objectName, const QString &title,
                   const QStringList &content);

// The sorted lines of all toolbars that the manager knows. A line says so if other actions stand on
// the widget than the manager has recorded.
QStringList layoutOf(const RyToolBarManager &manager);

#endif // LAYOUT_H
