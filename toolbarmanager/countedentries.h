// SPDX-License-Identifier: MIT

#ifndef COUNTEDENTRIES_H
#define COUNTEDENTRIES_H

#include <QtGlobal>

class QDataStream;

/*
 * Counts off the entries of one list or section while they are read from a stream.
 *
 * A damaged count may promise two thousand million entries that the bytes do not hold. Entries that
 * read nothing count too, because they give empty names, but only the first thousand of them.
 */
class CountedEntries
{
public:
    CountedEntries(const QDataStream &stream, qint32 count);

    // True if one more entry is to be read; a count of zero or less has none.
    bool next();

private:
    bool hasReadNothing() const;
    qint64 position() const;

    const QDataStream &m_stream;
    qint32 m_remaining;
    int m_remainingThatReadNothing;
    // Where the entry began that is being read; negative before the first one.
    qint64 m_position;
};

#endif // COUNTEDENTRIES_H
