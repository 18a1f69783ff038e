// SPDX-License-Identifier: MIT

#ifndef HOSTCALLS_H
#define HOSTCALLS_H

#include <QEvent>
#include <QList>
#include <QObject>

#include <functional>

class QToolBar;
class RyToolBarManager;

/*
 * An event filter of a host that calls something, with an end: it is called at the first of its
 * events, or at the first hundred thousand of them.
 */
class HostCalls : public QObject
{
public:
    enum Times { Once, Always };

    HostCalls(const QList<QEvent::Type> &types, Times times, const std::function<void()> &call);

    int count() const;

    // Keeps the event from an object that the call deleted, as Qt asks of event filters.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QList<QEvent::Type> m_types;
    const int m_maximum;
    const std::function<void()> m_call;
    int m_count = 0;
};

// What of the toolbars does not fit together: the records of the manager, what is on the
// widget, and its buttons. Null if everything does.
QString inconsistencyOf(const RyToolBarManager &manager);

#endif // HOSTCALLS_H
