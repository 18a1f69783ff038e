// SPDX-License-Identifier: MIT

#ifndef PIPE_H
#define PIPE_H

#include <QByteArray>
#include <QIODevice>

#include <cstring>

/*
 * A sequential device that does not know how many bytes it still has. Unbuffered, it says at all
 * times that it is at its end.
 */
class Pipe : public QIODevice
{
public:
    explicit Pipe(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        const int count = static_cast<int>(qMin<qint64>(maximum, m_bytes.size()));
        std::memcpy(data, m_bytes.constData(), static_cast<std::size_t>(count));
        m_bytes.remove(0, count);
        return count;
    }

    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
};

#endif // PIPE_H
