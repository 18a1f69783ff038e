// SPDX-License-Identifier: MIT

#include "side.h"

#include <QCoreApplication>
#include <QEvent>

#include <cstdlib>

Side::~Side() = default;

void Side::prepare()
{
}

void Side::finish()
{
}

void settle()
{
    // Deferred work may defer more work: for example, a layout defers painting.
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void tidyHeap()
{
    // Below the size that would be returned to the system.
    void *volatile const large = std::malloc(100000);
    std::free(large);
}
