// SPDX-License-Identifier: MIT

#ifndef LAYOUTSTATES_H
#define LAYOUTSTATES_H

#include <QByteArray>
#include <QList>
#include <QString>

struct SavedState
{
    // One word, from which the host that restores the state is made again.
    QString name;
    QByteArray bytes;
};

struct Restored
{
    // Result, warnings, toolbars, and the bytes that are saved afterwards.
    QByteArray described;
    // Empty if it is right, as far as one Qt can know.
    QString error;
};

// From now on, they are only printed in the descriptions.
void recordWarnings();

// What the manager saves: the golden layouts, random layouts, and damaged bytes of each.
QList<SavedState> layoutStates();
Restored restoreLayout(const SavedState &state);

#endif // LAYOUTSTATES_H
