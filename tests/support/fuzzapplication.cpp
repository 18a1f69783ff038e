// SPDX-License-Identifier: MIT

#include "fuzzapplication.h"

#include <QApplication>

#include <cstdlib>

void startFuzzApplication()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    static int count = 1;
    static char name[] = "fuzzer";
    static char *arguments[] = {name, nullptr};
    new QApplication(count, arguments);
}
