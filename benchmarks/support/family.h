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
    // Whether run() changes nothing and may be called many times in one round.
    bool idempotent;
    // A small size, for comparing the results of both sides and for counting instructions.
    Size small;
};

/*
 * One line of the table.
 */
struct Row
{
    enum Kind {
        // Our time divided by bare Qt's.
        Ratio,
        // Our time at the second size divided by our time at the first.
        Growth,
        // Our growth divided by bare Qt's.
        GrowthByBare,
        // Our time in milliseconds.
        Milliseconds,
        // Our time beyond that of bare Qt, in milliseconds.
        Beyond,
        // Both times are reported, but there is no target.
        Figure
    };

    const char *family;
    QString title;
    Kind kind;
    double target;
    QList<Size> sizes;
};

/*
 * Time against a growing number.
 */
struct Curve
{
    const char *family;
    QString title;
    QString axis;
    // The size for each number.
    Size (*size)(int number);
    int greatest;
};

const QList<Family> &families();
const Family *familyOf(const QString &id);
QList<Row> rows();
QList<Curve> curves();

#endif // FAMILY_H
