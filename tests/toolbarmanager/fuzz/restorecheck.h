// SPDX-License-Identifier: MIT

#ifndef RESTORECHECK_H
#define RESTORECHECK_H

#include <QByteArray>
#include <QString>

/*
 * What must hold after any bytes went into RyToolBarManager::restoreState(). The fuzzer and the
 * ordinary test that replays its inputs share it.
 *
 * The first byte of an input chooses the shape of the host (its low three bits) and whether the
 * right beginning of a state is put before the rest (the next bit); the rest is the state.
 */

// The version that the states are restored with.
const int StateVersion = 3;

// Measures the memory that restoring takes at its peak.
class MemoryGauge
{
public:
    virtual ~MemoryGauge();
    virtual void begin() = 0;
    // The bytes at the peak since begin(), less those at begin().
    virtual qint64 growth() = 0;
};

// What the input broke, in words; empty if everything holds. The hosts are kept for the next input.
QString breachOf(const QByteArray &input, MemoryGauge *gauge);

// Deletes the hosts.
void forgetHosts();

// The bytes that go into restoreState().
QByteArray stateOfInput(const QByteArray &input);

#endif // RESTORECHECK_H
