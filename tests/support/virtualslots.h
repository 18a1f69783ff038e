// SPDX-License-Identifier: MIT

#ifndef VIRTUALSLOTS_H
#define VIRTUALSLOTS_H

#include <QtGlobal>

#include <cstring>

/*
 * The place of a virtual function in the table of its class, counted from 0; -1 for a function that
 * is not virtual. A virtual destructor takes two places. This is how pointers to members are laid
 * out by the C++ ABI of Linux on x86-64.
 */
template <typename Function> int virtualSlot(Function function)
{
    static_assert(sizeof(function) == 2 * sizeof(quintptr));
    quintptr word = 0;
    std::memcpy(&word, &function, sizeof(word));
    return word % 2 == 0 ? -1 : int(word / sizeof(void *));
}

/*
 * The number of places in the table of a class that may be derived from and constructed without
 * arguments or not at all.
 */
template <typename Class> int virtualSlotCount()
{
    struct Derived : Class
    {
        virtual void next() = 0;
    };
    return virtualSlot(&Derived::next);
}

#endif // VIRTUALSLOTS_H
