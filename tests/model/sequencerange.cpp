// SPDX-License-Identifier: MIT

#include "sequencerange.h"

#include "sequence.h"
#include "stepgenerator.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Long enough for a process that gets next to no processor.
const unsigned SecondsToHang = 600;
const std::uint64_t SequencesToTell = 1000;

} // namespace

SequenceRange::SequenceRange(std::uint64_t firstSeed, std::uint64_t count, int steps)
    : m_firstSeed(firstSeed)
    , m_count(count)
    , m_steps(steps)
{
    // What the other process writes there outlives it.
    void *const page =
        mmap(nullptr, sizeof *m_current, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (page == MAP_FAILED)
        std::abort();
    m_current = static_cast<std::uint64_t *>(page);
}

Script SequenceRange::scriptOf(std::uint64_t seed, int steps)
{
    const auto kind = seed % 2 ? StepGenerator::ManagerOnly : StepGenerator::WithDialog;
    return StepGenerator(seed, kind).script(steps);
}

bool SequenceRange::run()
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0)
        runHere();
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status))
        std::printf("ended by signal %d\n", WTERMSIG(status));
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::uint64_t SequenceRange::failedSeed() const
{
    return *m_current;
}

void SequenceRange::runHere() const
{
    // Not without the process that would report the result.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (std::uint64_t i = 0; i < m_count; ++i) {
        *m_current = m_firstSeed + i;
        alarm(SecondsToHang);
        const QString wrong = Sequence::run(scriptOf(*m_current, m_steps));
        if (!wrong.isNull())
            std::puts(qPrintable(wrong));
        else if ((i + 1) % SequencesToTell == 0)
            std::printf("%llu sequences\n", static_cast<unsigned long long>(i + 1));
        std::fflush(stdout);
        if (!wrong.isNull())
            _exit(1);
    }
    // Not at once, so that a sanitizer can look for leaks.
    std::exit(0);
}
