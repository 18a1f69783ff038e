// SPDX-License-Identifier: MIT

#ifndef STEPGENERATOR_H
#define STEPGENERATOR_H

#include "step.h"

#include <cstdint>

/*
 * Makes scripts of a host's and a user's operations at random; the same seed makes the same script.
 */
class StepGenerator
{
public:
    enum Kind { ManagerOnly, WithDialog };

    StepGenerator(std::uint64_t seed, Kind kind);

    // A script that first sets up a host.
    Script script(int steps);

private:
    unsigned below(unsigned bound);
    int any() { return static_cast<int>(below(1000)); }
    std::vector<int> anyNumbers(unsigned most);
    Step::Kind pick(const std::vector<std::pair<Step::Kind, unsigned>> &weights);
    void add(Step::Kind kind);
    void addWith(Step::Kind kind, std::vector<int> numbers);
    void addHost();
    void addHostStep();
    void addDialogStep();
    void addReuseOfAddresses();
    void addRename();

    std::uint64_t m_state;
    Kind m_kind;
    Script m_script;
    bool m_open = false;
};

#endif // STEPGENERATOR_H
