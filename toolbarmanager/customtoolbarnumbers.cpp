// SPDX-License-Identifier: MIT

#include "customtoolbarnumbers.h"

namespace {

QLatin1String namePrefix()
{
    return QLatin1String("_Custom_Toolbar_");
}

QString generatedName(int number)
{
    return namePrefix() + QString::number(number);
}

} // namespace

CustomToolBarNumbers::CustomToolBarNumbers()
    : m_firstCandidate(1)
{
}

void CustomToolBarNumbers::addName(const QString &objectName)
{
    if (!objectName.startsWith(namePrefix()))
        return;
    const int number = objectName.midRef(namePrefix().size()).toInt();
    // Leading zeros, signs and the like are not generated and block nothing.
    if (objectName == generatedName(number))
        m_taken.insert(number);
}

QString CustomToolBarNumbers::firstFreeName()
{
    while (m_taken.contains(m_firstCandidate))
        ++m_firstCandidate;
    return generatedName(m_firstCandidate);
}
