// SPDX-License-Identifier: MIT

#ifndef COUNTED_H
#define COUNTED_H

class QString;

/*
 * Runs one operation of the library with its small size, inside ry_counted_operation(). Callgrind
 * counts only inside that function. Returns false if there is no such operation.
 */
bool countOnce(const QString &id);

#endif // COUNTED_H
