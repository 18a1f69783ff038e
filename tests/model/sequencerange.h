// SPDX-License-Identifier: MIT

#ifndef SEQUENCERANGE_H
#define SEQUENCERANGE_H

#include "step.h"

#include <cstdint>

/*
 * The scripts of consecutive seeds, run one after the other in a process of their own. Seeds that
 * are even make scripts with the dialog.
 */
class SequenceRange
{
public:
    SequenceRange(std::uint64_t firstSeed, std::uint64_t count, int steps);

    static Script scriptOf(std::uint64_t seed, int steps);

    // True if none went wrong.
    bool run();

    // The seed that went wrong.
    std::uint64_t failedSeed() const;

private:
    [[noreturn]] void runHere() const;

    std::uint64_t m_firstSeed;
    std::uint64_t m_count;
    int m_steps;
    std::uint64_t *m_current;
};

#endif // SEQUENCERANGE_H
