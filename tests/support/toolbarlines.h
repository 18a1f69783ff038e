// SPDX-License-Identifier: MIT

#ifndef TOOLBARLINES_H
#define TOOLBARLINES_H

#include <QStringList>

class RyToolBarManager;

// One toolbar: "objectName 'title': content", with "default " before a default one.
QString lineOf(bool isDefault, const QString &objectName, const QString &title,
               const QStringList &content);

// The sorted lines of all toolbars that the manager knows. A line says so if other actions are on
// the widget than the manager has recorded.
QStringList lines(const RyToolBarManager &manager);

#endif // TOOLBARLINES_H
