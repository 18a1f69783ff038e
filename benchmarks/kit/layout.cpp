// SPDX-License-Identifier: MIT

#include "layout.h"

namespace {

const int Version = 1;
const char *const Key = "toolBars";

} // namespace

void StoreMove::run()
{
    const QString layout = QString::fromUtf8(m_scene.kit()->saveLayout());
    m_settings.setValue(QLatin1String(Key), layout);
    m_settings.setValue(QStringLiteral("copy"), layout);
}

QStringList StoreMove::result()
{
    const QString stored = m_settings.value(QLatin1String(Key)).toString();
    return SceneSide::result() << QString::number(
               stored == QString::fromUtf8(m_scene.kit()->saveLayout()));
}

void StoreMoveByHand::run()
{
    m_settings.setValue(QLatin1String(Key), m_scene.manager()->saveState(Version));
    m_settings.setValue(QStringLiteral("window"), m_scene.window()->saveState(Version));
}

QStringList StoreMoveByHand::result()
{
    const QByteArray stored = m_settings.value(QLatin1String(Key)).toByteArray();
    return SceneSide::result() << QString::number(stored == m_scene.manager()->saveState(Version));
}

RestoreLayout::RestoreLayout(const Size &size)
    : SceneSide(size)
{
    for (const int variant : {1, 0}) {
        setContents(m_scene, *m_scene.manager(), variant);
        m_layouts[variant] = m_scene.kit()->saveLayout();
        settle();
    }
}

void RestoreLayout::prepare()
{
    m_variant = 1 - m_variant;
}

void RestoreLayout::run()
{
    m_scene.kit()->restoreLayout(m_layouts[m_variant]);
}

RestoreByHand::RestoreByHand(const Size &size)
    : SceneSide(size)
{
    for (const int variant : {1, 0}) {
        setContents(m_scene, *m_scene.manager(), variant);
        m_states[variant] = m_scene.manager()->saveState(Version);
        m_windowStates[variant] = m_scene.window()->saveState(Version);
        settle();
    }
}

void RestoreByHand::prepare()
{
    m_variant = 1 - m_variant;
}

void RestoreByHand::run()
{
    m_scene.manager()->restoreState(m_states[m_variant], Version);
    m_scene.window()->restoreState(m_windowStates[m_variant], Version);
}
