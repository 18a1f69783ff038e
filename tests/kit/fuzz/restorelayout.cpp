// SPDX-License-Identifier: MIT

#include "fuzzapplication.h"
#include "layoutcheck.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    startFuzzApplication();
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
