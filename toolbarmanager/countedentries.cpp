// SPDX-License-Identifier: MIT

#include "countedentries.h"

#include <QDataStream>
#include <QIODevice>

namespace {

const int MaximumThatReadNothing = 1000;

} // namespace

CountedEntries::CountedEntries(const QDataStream &stream, qint32 count)
    : m_stream(stream)
    , m_remaining(count)
    , m_remainingThatReadNothing(MaximumThatReadNothing)
    , m_position(-1)
{
}

bool CountedEntries::next()
{
    if (m_remaining <= 0 || (hasReadNothing() && --m_remainingThatReadNothing <= 0))
        return false;
    --m_remaining;
    m_position = position();
    return true;
}

// The status alone does not say so: it stays bad from the first error on. Nor does the position:
// some sequential devices never change it.
bool CountedEntries::hasReadNothing() const
{
    return m_stream.status() != QDataStream::Ok && m_position == position();
}

qint64 CountedEntries::position() const
{
    const QIODevice *const device = m_stream.device();
    return device->isSequential() ? device->bytesAvailable() : device->pos();
}
