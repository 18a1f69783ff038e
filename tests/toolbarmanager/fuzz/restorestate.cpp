// SPDX-License-Identifier: MIT

#include "fuzzapplication.h"
#include "restorecheck.h"

#include <sanitizer/allocator_interface.h>

#include <cstdio>
#include <cstdlib>

namespace {

// Fed by the hooks of the sanitizer's allocator; the program has one thread that allocates.
class HeapGauge : public MemoryGauge
{
public:
    void begin() override { m_now = m_peak = 0; }
    qint64 growth() override { return m_peak; }

    void allocated(size_t size)
    {
        m_now += static_cast<qint64>(size);
        m_peak = qMax(m_peak, m_now);
    }
    void freed(size_t size) { m_now -= static_cast<qint64>(size); }

private:
    qint64 m_now = 0;
    qint64 m_peak = 0;
};

HeapGauge gauge;

void onAllocation(const volatile void *, size_t size)
{
    gauge.allocated(size);
}

void onFree(const volatile void *memory)
{
    gauge.freed(__sanitizer_get_allocated_size(memory));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    startFuzzApplication();
    // Before the application's own ends.
    std::atexit(forgetHosts);
    return __sanitizer_install_malloc_and_free_hooks(onAllocation, onFree) ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QString breach = breachOf(input, &gauge);
    if (!breach.isEmpty()) {
        std::fprintf(stderr, "BROKEN: %s\nby the state %s\n", qPrintable(breach),
                     stateOfInput(input).toHex(' ').constData());
        std::abort();
    }
    return 0;
}
