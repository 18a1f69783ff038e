// SPDX-License-Identifier: MIT

#ifndef MEMORY_H
#define MEMORY_H

#include <QList>
#include <QString>

/*
 * Bytes of the heap that are still in use after an operation.
 */
struct MemoryFigure
{
    QString title;
    // The bytes that the library needs in total, and those that bare Qt needs for the same.
    double ours;
    double bare;
    // The most bytes that the library may need in addition to bare Qt's, or 0 without a target.
    double target;
};

QList<MemoryFigure> measureMemory();

#endif // MEMORY_H
