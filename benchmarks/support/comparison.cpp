// SPDX-License-Identifier: MIT

#include "comparison.h"

#include <algorithm>
#include <ctime>

namespace {

const int MaximumRounds = 2000;
// Long enough for the clock to measure.
const double MinimumTime = 0.0005;
const int MaximumRepetitions = 1000;

double secondsOn(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

Comparison::Comparison(const Family &family, const QList<Size> &sizes)
    : m_idempotent(family.idempotent)
{
    for (const Size &size : sizes) {
        for (const MakeSide make : {family.ours, family.bare}) {
            m_measured.emplace_back();
            m_measured.back().side = make(size);
        }
    }
}

void Comparison::measure(double seconds, int minimumRounds)
{
    // The first round fills caches, and shows how often short operations must be repeated.
    round(false);
    for (Measured &measured : m_measured) {
        if (m_idempotent) {
            const double wanted = MinimumTime / std::max(measured.times.back(), 1e-9);
            measured.repetitions = std::clamp(static_cast<int>(wanted) + 1, 1, MaximumRepetitions);
        }
        measured.times.clear();
    }
    const double end = secondsOn(CLOCK_MONOTONIC) + seconds;
    do {
        round(m_rounds % 2 == 1);
        ++m_rounds;
    } while (m_rounds < minimumRounds
             || (m_rounds < MaximumRounds && secondsOn(CLOCK_MONOTONIC) < end));
}

void Comparison::round(bool backwards)
{
    for (std::size_t i = 0; i < m_measured.size(); ++i) {
        Measured &measured = m_measured[backwards ? m_measured.size() - 1 - i : i];
        measured.times.push_back(timeOf(measured));
    }
}

double Comparison::timeOf(Measured &measured)
{
    measured.side->prepare();
    tidyHeap();
    const double begin = secondsOn(CLOCK_THREAD_CPUTIME_ID);
    for (int i = 0; i < measured.repetitions; ++i)
        measured.side->run();
    const double end = secondsOn(CLOCK_THREAD_CPUTIME_ID);
    measured.side->finish();
    return (end - begin) / measured.repetitions;
}

const std::vector<double> &Comparison::times(Which which, int size) const
{
    return m_measured[static_cast<std::size_t>(2 * size + which)].times;
}

double Comparison::time(Which which, int size) const
{
    return median(times(which, size));
}

double Comparison::ratio(Which which, int size, Which otherWhich, int otherSize) const
{
    std::vector<double> ratios = times(which, size);
    const std::vector<double> &others = times(otherWhich, otherSize);
    for (std::size_t i = 0; i < ratios.size(); ++i)
        ratios[i] /= others[i];
    return median(ratios);
}
