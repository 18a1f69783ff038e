// SPDX-License-Identifier: MIT

#ifndef ISOLATEDRUN_H
#define ISOLATEDRUN_H

#include "sequence.h"

#include <QString>

/*
 * Runs a script in a process of its own, so that a crash and a hang are results too, and so that
 * each run finds the same memory.
 */
class IsolatedRun
{
public:
    // What went wrong; a null string if nothing did.
    static QString run(const Script &script, const Sequence::Meddle &meddle = {});
};

#endif // ISOLATEDRUN_H
