// SPDX-License-Identifier: MIT

#include "connections.h"

#include <QMetaMethod>

namespace {

struct Access : QObject
{
    using QObject::receivers;
};

} // namespace

int receiversOf(const QObject *sender, const char *signal)
{
    return (sender->*&Access::receivers)(signal);
}

int takeConnections(QObject *sender, const char *signal, QObject *receiver, const char *slot)
{
    const int before = receiversOf(sender, signal);
    QObject::disconnect(sender, signal, receiver, slot);
    return before - receiversOf(sender, signal);
}

QStringList connectedSignals(const QObject *sender)
{
    QStringList texts;
    const QMetaObject *const metaObject = sender->metaObject();
    for (int i = 0; i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        // What SIGNAL() puts before the signature.
        const QByteArray signature = '2' + method.methodSignature();
        if (const int count = receiversOf(sender, signature.constData()))
            texts << QString("%1 %2").arg(count).arg(QString(method.methodSignature()));
    }
    return texts;
}
