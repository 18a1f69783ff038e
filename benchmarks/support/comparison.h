// SPDX-License-Identifier: MIT

#ifndef COMPARISON_H
#define COMPARISON_H

#include "family.h"

#include <vector>

/*
 * The medians of many rounds of the sides of one operation, in seconds of processor time.
 *
 * All sides take part in each round, one after the other, so that whatever slows the machine down
 * meets all of them; every second round goes through them backwards.
 */
class Comparison
{
public:
    // Both sides for each size: ours, bare, ours, bare.
    Comparison(const Family &family, const QList<Size> &sizes);

    // At least five rounds, and as many as fit into the time.
    void measure(double seconds);

    double ours(int size) const;
    double bare(int size) const;
    int rounds() const { return m_rounds; }

private:
    struct Measured
    {
        std::unique_ptr<Side> side;
        // How often run() is called for one time.
        int repetitions = 1;
        std::vector<double> times;
    };

    void round(bool backwards);
    static double timeOf(Measured &measured);
    static double medianOf(const Measured &measured);

    std::vector<Measured> m_measured;
    const bool m_idempotent;
    int m_rounds = 0;
};

#endif // COMPARISON_H
