// SPDX-License-Identifier: MIT

#include "customtoolbarnumbers.h"

#include <limits>

namespace {

const int FirstHighNumber = 4096;
// Numbers begin with 1.
const int NoNumber = 0;

QLatin1String namePrefix()
{
    return QLatin1String("_Custom_Toolbar_");
}

// The number of a generated name. Zero, leading zeros, signs and the like are not generated. By
// hand, because creating a toolbar asks this of all the others.
int numberOf(const QString &objectName)
{
    if (!objectName.startsWith(namePrefix()))
        return NoNumber;
    qint64 number = 0;
    for (int i = namePrefix().size(); i < objectName.size(); ++i) {
        const int digit = objectName.at(i).unicode() - '0';
        if (digit < 0 || digit > 9 || (digit == 0 && number == 0))
            return NoNumber;
        number = 10 * number + digit;
        if (number > std::numeric_limits<int>::max())
            return NoNumber;
    }
    return static_cast<int>(number);
}

} // namespace

CustomToolBarNumbers::CustomToolBarNumbers()
    : m_firstCandidate(1)
{
}

void CustomToolBarNumbers::addName(const QString &objectName)
{
    const int number = numberOf(objectName);
    if (number != NoNumber)
        take(number);
}

QString CustomToolBarNumbers::firstFreeName()
{
    while (isTaken(m_firstCandidate))
        ++m_firstCandidate;
    return namePrefix() + QString::number(m_firstCandidate);
}

void CustomToolBarNumbers::take(int number)
{
    if (number >= FirstHighNumber) {
        m_takenHigh.insert(number);
        return;
    }
    if (number >= m_taken.size())
        m_taken.resize(2 * number + 64);
    m_taken[number] = true;
}

bool CustomToolBarNumbers::isTaken(int number) const
{
    if (number >= FirstHighNumber)
        return m_takenHigh.contains(number);
    return number < m_taken.size() && m_taken.at(number);
}
