// SPDX-License-Identifier: MIT

#include "countedentries.h"

#include <QDataStream>

namespace {

const int MaximumPastEnd = 1000;

} // namespace

CountedEntries::CountedEntries(const QDataStream &stream, qint32 count)
    : m_stream(stream)
    , m_remaining(count)
    , m_remainingPastEnd(MaximumPastEnd)
{
}

bool CountedEntries::next()
{
    if (m_remaining <= 0)
        return false;
    if (m_stream.atEnd() && m_remainingPastEnd-- <= 0)
        return false;
    --m_remaining;
    return true;
}
