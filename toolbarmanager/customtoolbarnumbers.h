// SPDX-License-Identifier: MIT

#ifndef CUSTOMTOOLBARNUMBERS_H
#define CUSTOMTOOLBARNUMBERS_H

#include <QSet>
#include <QString>
#include <QVector>

/*
 * The numbers that generated objectNames of custom toolbars may still use.
 *
 * Names can only be added, so that the first free number never falls: adding k names and asking
 * for k free ones takes time linear in k.
 */
class CustomToolBarNumbers
{
public:
    CustomToolBarNumbers();

    // Takes the number of the name, if it is one that could have been generated.
    void addName(const QString &objectName);

    // The generated name with the first number from 1 on that no added name bears.
    QString firstFreeName();

private:
    void take(int number);
    bool isTaken(int number) const;

    // The usual numbers, at their place; kept small, whatever number a host gives.
    QVector<bool> m_taken;
    QSet<int> m_takenHigh;
    // Every number below it is taken.
    int m_firstCandidate;
};

#endif // CUSTOMTOOLBARNUMBERS_H
