// SPDX-License-Identifier: MIT

#ifndef SEQUENCE_H
#define SEQUENCE_H

#include "step.h"

#include <QString>

#include <functional>

class Stage;

/*
 * Runs a script from nothing, the real thing and the models side by side, and compares everything
 * after each step.
 */
class Sequence
{
public:
    using Meddle = std::function<void(Stage &)>;

    // What went wrong in which step; a null string if nothing did. A test may meddle with the real
    // things before they are compared for the last time.
    static QString run(const Script &script, const Meddle &meddle = {});
};

#endif // SEQUENCE_H
