// SPDX-License-Identifier: MIT

#ifndef COUNTEDENTRIES_H
#define COUNTEDENTRIES_H

#include <QtGlobal>

class QDataStream;

/*
 * Counts off the entries of one list or section while they are read from a stream.
 *
 * A damaged count may promise two thousand million entries that the bytes do not hold. Those that
 * lie past the end of the data still count, because reading there gives empty names, but only the
 * first thousand of them.
 */
class CountedEntries
{
public:
    CountedEntries(const QDataStream &stream, qint32 count);

    // True if one more entry is to be read; a count of zero or less has none.
    bool next();

private:
    const QDataStream &m_stream;
    qint32 m_remaining;
    int m_remainingPastEnd;
};

#endif // COUNTEDENTRIES_H
