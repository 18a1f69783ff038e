// SPDX-License-Identifier: MIT

#ifndef LETTERICON_H
#define LETTERICON_H

#include <QColor>
#include <QIcon>

//! White letters on a colored square. The color shows which plugin the command belongs to.
QIcon letterIcon(const QString &letters, const QColor &color);

#endif // LETTERICON_H
