// SPDX-License-Identifier: MIT

#include "layoutcheck.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    static int count = 1;
    static char name[] = "fuzz-restorelayout";
    static char *arguments[] = {name, nullptr};
    // Lives until the process ends, as the fuzzer leaves by exit().
    new QApplication(count, arguments);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QString breach = breachOf(input);
    if (!breach.isEmpty()) {
        std::fprintf(stderr, "BROKEN: %s\nby the value %s\n", qPrintable(breach),
                     valueOfInput(input).constData());
        std::abort();
    }
    return 0;
}
