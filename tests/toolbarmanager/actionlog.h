// SPDX-License-Identifier: MIT

#ifndef ACTIONLOG_H
#define ACTIONLOG_H

#include <QObject>
#include <QStringList>

#include <functional>

class QWidget;

/*
 * What is put on and taken off widgets, in order, as an event filter of the host sees it.
 */
class ActionLog : public QObject
{
    Q_OBJECT

public:
    ActionLog();
    explicit ActionLog(QWidget *widget);

    void watch(QWidget *widget);

    // Called at each action that is added or removed, before the widget handles it.
    void atEach(const std::function<void()> &callback);

    // "file+open", "file-|" and so on since the last call: objectName of the widget, and the action
    // or "|" for a separator.
    QStringList take();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList m_lines;
    std::function<void()> m_callback;
};

#endif // ACTIONLOG_H
