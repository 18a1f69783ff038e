// SPDX-License-Identifier: MIT

#include "shrinker.h"

#include <algorithm>

Shrinker::Shrinker(std::function<bool(const Script &)> fails)
    : m_fails(std::move(fails))
{
}

Script Shrinker::shrink(Script script)
{
    for (bool changed = true; changed;) {
        changed = false;
        for (std::size_t size = std::max<std::size_t>(1, script.size() / 2); size > 0; size /= 2)
            changed = removeParts(script, size) || changed;
        changed = simplifyNumbers(script) || changed;
    }
    return script;
}

// From the end, where what came after the failure is.
bool Shrinker::removeParts(Script &script, std::size_t size)
{
    bool changed = false;
    for (std::size_t end = script.size(); end > 0;) {
        const std::size_t begin = end > size ? end - size : 0;
        Script candidate = script;
        candidate.erase(candidate.begin() + static_cast<std::ptrdiff_t>(begin),
                        candidate.begin() + static_cast<std::ptrdiff_t>(end));
        changed = tryInstead(script, candidate) || changed;
        end = begin;
    }
    return changed;
}

bool Shrinker::simplifyNumbers(Script &script)
{
    bool changed = false;
    for (std::size_t place = 0; place < script.size(); ++place)
        changed = simplifyStep(script, place) || changed;
    return changed;
}

bool Shrinker::simplifyStep(Script &script, std::size_t place)
{
    bool changed = false;
    while (!script[place].numbers.empty()) {
        Script candidate = script;
        candidate[place].numbers.pop_back();
        if (!tryInstead(script, candidate))
            break;
        changed = true;
    }
    for (std::size_t i = 0; i < script[place].numbers.size(); ++i) {
        for (int smaller : {0, 1, 2, 3, 4, 5}) {
            Script candidate = script;
            candidate[place].numbers[i] = smaller;
            if (smaller >= script[place].numbers[i])
                break;
            if (tryInstead(script, candidate)) {
                changed = true;
                break;
            }
        }
    }
    return changed;
}

bool Shrinker::tryInstead(Script &script, const Script &candidate)
{
    if (!m_fails(candidate))
        return false;
    script = candidate;
    return true;
}
