// SPDX-License-Identifier: MIT

#ifndef PRINTEDWARNINGS_H
#define PRINTEDWARNINGS_H

#include <QStringList>

/*
 * Takes every message of Qt's logger while it exists; one at a time.
 */
class PrintedWarnings
{
public:
    PrintedWarnings();
    ~PrintedWarnings();
    PrintedWarnings(const PrintedWarnings &) = delete;
    PrintedWarnings &operator=(const PrintedWarnings &) = delete;

    // Those since the last call.
    static QStringList take();
};

#endif // PRINTEDWARNINGS_H
