// SPDX-License-Identifier: MIT

#include "mergedentries.h"

#include <QHash>
#include <QVector>

QStringList mergedEntries(const QStringList &entries, const QStringList &model,
                          const QSet<QString> &missing)
{
    if (missing.isEmpty())
        return entries;
    QHash<QString, int> indexOf;
    for (int i = 0; i < entries.size(); ++i) {
        if (!entries.at(i).isNull())
            indexOf.insert(entries.at(i), i);
    }

    // At each place, what follows the entry before it and what precedes the entry after it.
    QVector<QStringList> following(entries.size() + 1);
    QVector<QStringList> preceding(entries.size() + 1);
    int place = 0;
    QStringList waiting; // until something of the model is found in the entries
    for (const QString &name : model) {
        if (name.isNull()) {
            if (place < entries.size() && entries.at(place).isNull()) {
                preceding[place] += waiting;
                waiting.clear();
                ++place;
            }
        } else if (indexOf.contains(name)) {
            const int index = indexOf.value(name);
            preceding[index] += waiting;
            waiting.clear();
            place = index + 1;
        } else if (missing.contains(name)) {
            if (place == 0)
                waiting.append(name);
            else
                following[place].append(name);
        }
    }
    preceding[place] += waiting;

    QStringList merged;
    for (int i = 0; i < entries.size(); ++i)
        merged << following.at(i) << preceding.at(i) << entries.at(i);
    return merged << following.last() << preceding.last();
}

QSet<QString> namesIn(const QStringList &entries)
{
    QSet<QString> names;
    for (const QString &name : entries) {
        if (!name.isNull())
            names.insert(name);
    }
    return names;
}

QStringList newNames(const QStringList &entries, const QStringList &known)
{
    QStringList added;
    QSet<QString> all;
    int sameOrder = 0; // both usually have the same names in the same order
    for (const QString &name : entries) {
        if (name.isNull())
            continue;
        if (sameOrder < known.size() && known.at(sameOrder) == name) {
            ++sameOrder;
            continue;
        }
        if (all.isEmpty())
            all = namesIn(known);
        if (all.contains(name))
            continue;
        all.insert(name);
        added.append(name);
    }
    return added;
}
