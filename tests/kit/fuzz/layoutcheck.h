// SPDX-License-Identifier: MIT

#ifndef LAYOUTCHECK_H
#define LAYOUTCHECK_H

#include <QByteArray>
#include <QString>

/*
 * What must hold after any bytes went into RyToolBarKit::restoreLayout(). The fuzzer and the
 * ordinary test that replays its inputs share it.
 *
 * If the first byte of an input is "=", the rest is the layout of a value with a correct checksum.
 * Otherwise the whole input is the value.
 */

// What the input broke, in words; empty if everything holds.
QString breachOf(const QByteArray &input);

// The bytes that go into restoreLayout().
QByteArray valueOfInput(const QByteArray &input);

#endif // LAYOUTCHECK_H
