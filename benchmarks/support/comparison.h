// SPDX-License-Identifier: MIT

#ifndef COMPARISON_H
#define COMPARISON_H

#include "family.h"

#include <vector>

/*
 * Many rounds of the sides of one operation, in seconds of processor time.
 *
 * Each round runs all sides, one after the other, so anything that slows down the machine affects
 * all of them. Every second round runs them in reverse order. The result is the median of the times
 * and of the ratios of all rounds.
 */
class Comparison
{
public:
    enum Which { Ours, Bare };

    // Both sides for each size.
    Comparison(const Family &family, const QList<Size> &sizes);

    // Runs at least the given number of rounds, and more if there is time.
    void measure(double seconds, int minimumRounds);

    double time(Which which, int size) const;
    double ratio(Which which, int size, Which otherWhich, int otherSize) const;
    int rounds() const { return m_rounds; }

private:
    struct Measured
    {
        std::unique_ptr<Side> side;
        // How often run() is called for one measured time.
        int repetitions = 1;
        std::vector<double> times;
    };

    const std::vector<double> &times(Which which, int size) const;
    void round(bool backwards);
    static double timeOf(Measured &measured);

    std::vector<Measured> m_measured;
    const bool m_idempotent;
    int m_rounds = 0;
};

#endif // COMPARISON_H
