// SPDX-License-Identifier: MIT

#ifndef CONNECTIONS_H
#define CONNECTIONS_H

#include <QObject>
#include <QStringList>

/*
 * What is connected, which Qt lets only subclasses see.
 */

// The number of connections of a signal, given with SIGNAL().
int receiversOf(const QObject *sender, const char *signal);

// The number of connections from this signal to this slot, given with SLOT(). Disconnects them.
int takeConnections(QObject *sender, const char *signal, QObject *receiver, const char *slot);

// "count signature" of each of the object's signals that anything is connected to, in the order of
// the meta-object.
QStringList connectedSignals(const QObject *sender);

#endif // CONNECTIONS_H
