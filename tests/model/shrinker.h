// SPDX-License-Identifier: MIT

#ifndef SHRINKER_H
#define SHRINKER_H

#include "step.h"

#include <functional>

/*
 * Makes a failing script as short as it gets: takes out ever smaller parts of it, then makes its
 * numbers fewer and smaller, as long as it fails.
 */
class Shrinker
{
public:
    explicit Shrinker(std::function<bool(const Script &)> fails);

    Script shrink(Script script);

private:
    bool removeParts(Script &script, std::size_t size);
    bool simplifyNumbers(Script &script);
    bool simplifyStep(Script &script, std::size_t place);
    bool tryInstead(Script &script, const Script &candidate);

    std::function<bool(const Script &)> m_fails;
};

#endif // SHRINKER_H
