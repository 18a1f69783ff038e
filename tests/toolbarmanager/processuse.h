// SPDX-License-Identifier: MIT

#ifndef PROCESSUSE_H
#define PROCESSUSE_H

#include <QtGlobal>

/*
 * What this process uses of the machine.
 */

// Processor time so far, without that of other processes.
qint64 usedMilliseconds();

// Resident memory now, and the most since the last call of forgetPeak(), in bytes.
qint64 residentBytes();
qint64 peakResidentBytes();
void forgetPeak();

// False with a sanitizer, which keeps freed memory back.
bool memoryIsComparable();

#endif // PROCESSUSE_H
