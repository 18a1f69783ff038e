// SPDX-License-Identifier: MIT

#ifndef FUZZAPPLICATION_H
#define FUZZAPPLICATION_H

// Starts the application of a fuzzer, without a display. It lives until the process ends, as
// fuzzers leave by exit().
void startFuzzApplication();

#endif // FUZZAPPLICATION_H
