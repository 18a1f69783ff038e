// SPDX-License-Identifier: MIT

#ifndef SEQUENCE_H
#define SEQUENCE_H

#include "step.h"

#include <QString>

/*
 * Runs a script from nothing, the real thing and the models side by side, and compares everything
 * after each step.
 */
class Sequence
{
public:
    // What went wrong in which step; a null string if nothing did.
    static QString run(const Script &script);
};

#endif // SEQUENCE_H
