// SPDX-License-Identifier: MIT

#ifndef FIELDOFFSET_H
#define FIELDOFFSET_H

#include <QtGlobal>

/*
 * Where in an object a field lies, counted in bytes from the start of the object.
 */
template <typename Class, typename Field>
qptrdiff fieldOffset(const Class &object, Field Class::*field)
{
    return reinterpret_cast<const char *>(&(object.*field))
        - reinterpret_cast<const char *>(&object);
}

#endif // FIELDOFFSET_H
