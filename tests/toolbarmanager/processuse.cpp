// SPDX-License-Identifier: MIT

#include "processuse.h"

#include <QByteArray>
#include <QFile>
#include <QtTest>

#include <ctime>

namespace {

qint64 statusBytes(const char *key)
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return -1;
    const QByteArray text = status.readAll();
    const int start = text.indexOf(key);
    const int end = text.indexOf(" kB", start);
    const int keySize = static_cast<int>(qstrlen(key));
    return 1024 * text.mid(start + keySize, end - start - keySize).trimmed().toLongLong();
}

} // namespace

qint64 usedMilliseconds()
{
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1000 * static_cast<qint64>(time.tv_sec) + time.tv_nsec / 1000000;
}

qint64 residentBytes()
{
    return statusBytes("VmRSS:");
}

qint64 peakResidentBytes()
{
    return statusBytes("VmHWM:");
}

void forgetPeak()
{
    QFile file("/proc/self/clear_refs");
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QCOMPARE(file.write("5"), qint64(1));
}

bool memoryIsComparable()
{
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
    return false;
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
    return false;
#else
    return true;
#endif
}
