// SPDX-License-Identifier: MIT

#include "pluginactions.h"

#include <RyToolBarManager>

#include <QAction>
#include <QSettings>

namespace {

const QLatin1String Group("knownActions");

QString keyOf(const QString &name)
{
    return Group + QLatin1Char('/') + name;
}

} // namespace

PluginActions::PluginActions(RyToolBarManager *manager, QSettings *settings)
    : m_manager(manager)
    , m_settings(settings)
{
}

PluginActions::~PluginActions()
{
    const auto names = m_standIns.keys();
    for (const QString &name : names)
        dropStandIn(name);
}

void PluginActions::standInForAll()
{
    m_settings->beginGroup(Group);
    const auto names = m_settings->childKeys();
    m_settings->endGroup();
    for (const QString &name : names) {
        const QStringList known = m_settings->value(keyOf(name)).toStringList();
        standIn(name, known.value(0), known.value(1));
    }
}

void PluginActions::add(const QList<QAction *> &actions, const QString &category)
{
    exchange([&] {
        for (QAction *action : actions) {
            dropStandIn(action->objectName());
            m_manager->addAction(action, category);
            m_settings->setValue(keyOf(action->objectName()),
                                 QStringList{action->text(), category});
        }
    });
}

void PluginActions::takeAndDelete(const QList<QAction *> &actions)
{
    exchange([&] {
        for (QAction *action : actions) {
            const QString category = m_manager->actionCategory(action);
            // Remove it from the manager first, which does not notice when an action is deleted.
            m_manager->removeAction(action);
            standIn(action->objectName(), action->text(), category);
            delete action;
        }
    });
}

void PluginActions::forgetAbsent()
{
    const auto names = m_standIns.keys();
    for (const QString &name : names) {
        m_settings->remove(keyOf(name));
        dropStandIn(name);
    }
}

// The trick: bytes saved before the change put the action that has a name after it into the place
// of the action that had the name before.
void PluginActions::exchange(const std::function<void()> &change)
{
    constexpr int version = 0; // the bytes are used only in this function
    const QByteArray places = m_manager->saveState(version);
    change();
    m_manager->restoreState(places, version);
}

void PluginActions::standIn(const QString &name, const QString &text, const QString &category)
{
    QAction *const action = new QAction(tr("%1 (plugin is off)").arg(text), nullptr);
    action->setObjectName(name);
    action->setVisible(false); // hidden on toolbars, but not in the dialog
    m_standIns.insert(name, action);
    m_manager->addAction(action, category);
}

void PluginActions::dropStandIn(const QString &name)
{
    QAction *const action = m_standIns.take(name);
    m_manager->removeAction(action); // ignores null
    delete action;
}
