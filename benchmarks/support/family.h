// SPDX-License-Identifier: MIT

#ifndef FAMILY_H
#define FAMILY_H

#include "side.h"

#include <QList>
#include <QString>

/*
 * One operation, done by the library and by bare Qt, for hosts of any size.
 */
struct Family
{
    const char *id;
    MakeSide ours;
    MakeSide bare;
    // Whether run() may be called many times in one round, because nothing changes.
    bool idempotent;
    // A small size with which both sides are compared and instructions are counted.
    Size small;
};

/*
 * One line of the table.
 */
struct Row
{
    enum Kind {
        // Ours by bare Qt's.
        Ratio,
        // Ours at the second size by ours at the first.
        Growth,
        // Our growth by bare Qt's.
        GrowthByBare,
        // Ours in milliseconds.
        Milliseconds,
        // Both are told, but nothing is aimed at.
        Figure
    };

    const char *family;
    QString title;
    Kind kind;
    double target;
    QList<Size> sizes;
};

/*
 * Time against a number that grows.
 */
struct Curve
{
    const char *family;
    QString title;
    QString axis;
    // What each number stands for.
    Size (*size)(int number);
    int greatest;
};

const QList<Family> &families();
const Family *familyOf(const QString &id);
QList<Row> rows();
QList<Curve> curves();

#endif // FAMILY_H
