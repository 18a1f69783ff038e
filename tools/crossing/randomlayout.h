// SPDX-License-Identifier: MIT

#ifndef RANDOMLAYOUT_H
#define RANDOMLAYOUT_H

#include <QByteArray>
#include <QString>

// Each is always the same for the same seed.

// A layout in the words of GoldenLayout, with names of many scripts. No two toolbars or actions
// have the same name.
QString randomLayout(unsigned seed);

// The bytes with one to three changes: other, missing, additional or repeated bytes, other counts.
QByteArray damaged(QByteArray bytes, unsigned seed);

#endif // RANDOMLAYOUT_H
