// SPDX-License-Identifier: MIT

#ifndef COMPARISON_H
#define COMPARISON_H

#include "family.h"

#include <vector>

/*
 * Many rounds of the sides of one operation, in seconds of processor time.
 *
 * All sides take part in each round, one after the other, so that whatever slows the machine down
 * meets all of them; every second round goes through them backwards. Of times, and of the ratios
 * that each round gives, the median counts.
 */
class Comparison
{
public:
    enum Which { Ours, Bare };

    // Both sides for each size.
    Comparison(const Family &family, const QList<Size> &sizes);

    // At least as many rounds as are asked for, and as many more as fit into the time.
    void measure(double seconds, int minimumRounds);

    double time(Which which, int size) const;
    double ratio(Which which, int size, Which otherWhich, int otherSize) const;
    int rounds() const { return m_rounds; }

private:
    struct Measured
    {
        std::unique_ptr<Side> side;
        // How often run() is called for one time.
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
