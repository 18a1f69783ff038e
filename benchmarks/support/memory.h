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
    // What the library needs in all, and what bare Qt needs for the same.
    double ours;
    double bare;
    // The most that ours may need above bare, or 0 if nothing is aimed at.
    double target;
};

QList<MemoryFigure> measureMemory();

#endif // MEMORY_H
