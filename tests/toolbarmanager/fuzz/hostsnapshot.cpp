// SPDX-License-Identifier: MIT

#include "hostsnapshot.h"

#include "managerrecords.h"

#include <QHash>

namespace {

template <typename Object>
void insertFirst(QHash<QString, Object *> &index, const QString &name, Object *object)
{
    if (!index.contains(name))
        index.insert(name, object);
}

} // namespace

bool HostSnapshot::ToolBar::operator==(const ToolBar &other) const
{
    return objectName == other.objectName && title == other.title && content == other.content
        && standing == other.standing && recorded == other.recorded;
}

HostSnapshot::HostSnapshot(const FuzzHost &host)
    : m_actions(host.manager.actions().values())
    , m_defaults(host.manager.defaultToolBars().keys())
{
    const auto contents = host.manager.toolBarsActions();
    const auto recorded = placedActions(host.manager);
    for (auto it = contents.cbegin(); it != contents.cend(); ++it) {
        QToolBar *const toolBar = it.key();
        m_toolBars.insert(toolBar,
                          ToolBar{toolBar->objectName(), toolBar->windowTitle(), it.value(),
                                  toolBar->actions(), recorded.value(toolBar)});
    }
}

bool HostSnapshot::hasLayoutOf(const HostSnapshot &other) const
{
    if (m_toolBars.keys() != other.m_toolBars.keys())
        return false;
    for (auto it = m_toolBars.cbegin(); it != m_toolBars.cend(); ++it) {
        const ToolBar &that = other.m_toolBars[it.key()];
        if (it->objectName != that.objectName || it->title != that.title
            || it->content != that.content)
            return false;
    }
    return true;
}

QMap<QToolBar *, HostSnapshot::ToolBar> HostSnapshot::toolBars(bool defaults) const
{
    QMap<QToolBar *, ToolBar> selected;
    for (auto it = m_toolBars.cbegin(); it != m_toolBars.cend(); ++it) {
        if (m_defaults.contains(it.key()) == defaults)
            selected.insert(it.key(), it.value());
    }
    return selected;
}

bool HostSnapshot::namesAreUnambiguous() const
{
    return actionsAreUnambiguous() && defaultToolBarsAreUnambiguous()
        && customToolBarsAreUnambiguous();
}

bool HostSnapshot::actionsAreUnambiguous() const
{
    QHash<QString, QAction *> byObjectName;
    QHash<QString, QAction *> byText;
    QSet<QAction *> standing;
    for (QAction *action : m_actions) {
        insertFirst(byObjectName, action->objectName(), action);
        insertFirst(byText, action->text(), action);
    }
    for (const ToolBar &toolBar : m_toolBars) {
        for (QAction *action : toolBar.content)
            standing.insert(action);
    }
    standing.remove(nullptr);
    for (QAction *action : std::as_const(standing)) {
        const bool named = !action->objectName().isEmpty();
        const QString name = named ? action->objectName() : action->text();
        if (name.isEmpty() || byObjectName.value(name, byText.value(name)) != action)
            return false;
    }
    return true;
}

bool HostSnapshot::defaultToolBarsAreUnambiguous() const
{
    QHash<QString, QToolBar *> byObjectName;
    QHash<QString, QToolBar *> byTitle;
    for (QToolBar *toolBar : m_defaults) {
        insertFirst(byObjectName, m_toolBars[toolBar].objectName, toolBar);
        insertFirst(byTitle, m_toolBars[toolBar].title, toolBar);
    }
    for (QToolBar *toolBar : m_defaults) {
        const ToolBar &it = m_toolBars[toolBar];
        const QString name = it.objectName.isEmpty() ? it.title : it.objectName;
        if (byObjectName.value(name, byTitle.value(name)) != toolBar)
            return false;
    }
    return true;
}

bool HostSnapshot::customToolBarsAreUnambiguous() const
{
    QHash<QString, QToolBar *> byObjectName;
    for (auto it = m_toolBars.cbegin(); it != m_toolBars.cend(); ++it)
        insertFirst(byObjectName, it.value().objectName, it.key());
    for (auto it = m_toolBars.cbegin(); it != m_toolBars.cend(); ++it) {
        if (!m_defaults.contains(it.key()) && byObjectName.value(it.value().objectName) != it.key())
            return false;
    }
    return true;
}
