// SPDX-License-Identifier: MIT

#ifndef LETTERICON_H
#define LETTERICON_H

#include <QColor>
#include <QIcon>

//! White letters on a square of that color, so that a picture shows whose command it is.
QIcon letterIcon(const QString &letters, const QColor &color);

#endif // LETTERICON_H
