// SPDX-License-Identifier: MIT

#include "counted.h"

#include "family.h"

#include <QCoreApplication>

extern "C" {

__attribute__((noinline)) void ry_counted_operation(Side *side)
{
    side->run();
}
}

bool countOnce(const QString &id)
{
    const Family *const family = familyOf(id);
    if (!family)
        return false;
    // Each installed plugin for images looks at each image, so the counts would depend on them.
    QCoreApplication::setLibraryPaths({});
    const auto side = family->ours(family->small);
    // The first round does what is done only once, such as looking up symbols and fonts.
    side->prepare();
    side->run();
    side->finish();

    side->prepare();
    tidyHeap();
    ry_counted_operation(side.get());
    side->finish();
    return true;
}
