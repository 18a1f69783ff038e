// SPDX-License-Identifier: MIT

#ifndef HOSTSNAPSHOT_H
#define HOSTSNAPSHOT_H

#include "fuzzhost.h"

/*
 * Everything that restoring may change, as it is at one moment, by pointer.
 */
class HostSnapshot
{
public:
    struct ToolBar
    {
        QString objectName;
        QString title;
        // As the manager reports it, as it is on the widget, and as the manager has recorded that.
        QList<QAction *> content;
        QList<QAction *> standing;
        QList<QAction *> recorded;

        bool operator==(const ToolBar &other) const;
    };

    explicit HostSnapshot(const FuzzHost &host);

    bool operator==(const HostSnapshot &other) const { return m_toolBars == other.m_toolBars; }
    bool operator!=(const HostSnapshot &other) const { return !(*this == other); }

    // True if the names and the contents are the same, be it with other separator actions.
    bool hasLayoutOf(const HostSnapshot &other) const;

    // Those of the default or of the custom toolbars.
    QMap<QToolBar *, ToolBar> toolBars(bool defaults) const;
    const QMap<QToolBar *, ToolBar> &toolBars() const { return m_toolBars; }

    // True if each thing that would be saved is found again under the name that it is saved under.
    bool namesAreUnambiguous() const;

private:
    bool actionsAreUnambiguous() const;
    bool defaultToolBarsAreUnambiguous() const;
    bool customToolBarsAreUnambiguous() const;

    QList<QAction *> m_actions;
    QList<QToolBar *> m_defaults;
    QMap<QToolBar *, ToolBar> m_toolBars;
};

#endif // HOSTSNAPSHOT_H
