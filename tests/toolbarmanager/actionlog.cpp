// SPDX-License-Identifier: MIT

#include "actionlog.h"

#include "texts.h"

#include <QActionEvent>
#include <QWidget>

ActionLog::ActionLog() = default;

ActionLog::ActionLog(QWidget *widget)
{
    watch(widget);
}

void ActionLog::watch(QWidget *widget)
{
    widget->installEventFilter(this);
}

void ActionLog::atEach(const std::function<void()> &callback)
{
    m_callback = callback;
}

QStringList ActionLog::take()
{
    const QStringList lines = m_lines;
    m_lines.clear();
    return lines;
}

bool ActionLog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionRemoved) {
        QAction *const action = static_cast<QActionEvent *>(event)->action();
        const bool added = event->type() == QEvent::ActionAdded;
        m_lines << watched->objectName() + (added ? "+" : "-")
                + contentOf({action->isSeparator() ? nullptr : action}).constFirst();
        if (m_callback)
            m_callback();
    }
    return QObject::eventFilter(watched, event);
}
