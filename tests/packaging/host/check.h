// SPDX-License-Identifier: MIT

#ifndef CHECK_H
#define CHECK_H

#include <cstdio>

// How many checks of the program have failed.
static int failures = 0;

static void check(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "not true: %s\n", what);
        ++failures;
    }
}

#define CHECK(condition) check((condition), #condition)

#endif // CHECK_H
