// SPDX-License-Identifier: MIT

#ifndef NAMEWARNINGS_H
#define NAMEWARNINGS_H

#include <QStringList>

// Both warnings of a name that no action or no default toolbar has; the first one alone if a text
// or a title matches.
QStringList noAction(const QString &name);
QStringList noToolBar(const QString &name);
QStringList first(const QStringList &warnings);

#endif // NAMEWARNINGS_H
