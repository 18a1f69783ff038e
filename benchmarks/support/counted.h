// SPDX-License-Identifier: MIT

#ifndef COUNTED_H
#define COUNTED_H

class QString;

/*
 * Does one operation of the library for its small size, inside ry_counted_operation(), by whose
 * name callgrind knows when to count. False if there is no such operation.
 */
bool countOnce(const QString &id);

#endif // COUNTED_H
