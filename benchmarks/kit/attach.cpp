// SPDX-License-Identifier: MIT

#include "attach.h"

namespace {

// What is registered, by category, and the default toolbars.
QStringList describe(const RyToolBarManager &manager)
{
    QStringList lines;
    const auto categories = manager.categories();
    for (const QString &category : categories) {
        const auto actions = manager.categoryActions(category);
        for (const QAction *action : actions)
            lines.append(category + QLatin1String(": ") + action->objectName());
    }
    const auto toolBars = manager.defaultToolBars();
    for (auto it = toolBars.cbegin(); it != toolBars.cend(); ++it)
        lines.append(it.key()->objectName() + QString::number(it.value().size()));
    return lines;
}

} // namespace

void AttachKit::run()
{
    m_kit = std::make_unique<RyToolBarKit>(m_scene.window(), false);
    m_kit->setSettings(nullptr, QString());
    m_kit->restoreNow();
}

void AttachKit::finish()
{
    m_kit.reset();
    SceneSide::finish();
}

QStringList AttachKit::result()
{
    return SceneSide::result() + describe(*m_kit->manager());
}

void RegisterByHand::run()
{
    m_manager = std::make_unique<RyToolBarManager>();
    registerAll(m_scene, *m_manager);
}

void RegisterByHand::finish()
{
    m_manager.reset();
    SceneSide::finish();
}

QStringList RegisterByHand::result()
{
    return SceneSide::result() + describe(*m_manager);
}
