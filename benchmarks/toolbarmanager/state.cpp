// SPDX-License-Identifier: MIT

#include "state.h"

#include <QDataStream>
#include <QHash>
#include <QIODevice>

namespace {

const int Version = 1;

void writeBare(QDataStream &stream, const QList<QAction *> &content)
{
    stream << static_cast<qint32>(content.size());
    for (const QAction *action : content)
        stream << (action ? action->objectName() : QString());
}

QByteArray saveBare(const Scene &scene, const QList<QList<QAction *>> &contents)
{
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << qint32(255) << qint32(Version) << qint8(-2) << qint32(contents.size());
    for (int i = 0; i < contents.size(); ++i) {
        stream << scene.toolBars().at(i)->objectName();
        writeBare(stream, contents.at(i));
    }
    stream << qint8(-3) << qint32(0);
    return state;
}

template <typename T> QHash<QString, T *> tableOf(const QList<T *> &objects)
{
    QHash<QString, T *> table;
    table.reserve(objects.size());
    for (T *object : objects)
        table.insert(object->objectName(), object);
    return table;
}

} // namespace

SaveOurs::SaveOurs(const Size &size)
    : SceneSide(size)
{
}

void SaveOurs::run()
{
    m_state = m_scene.manager()->saveState(Version);
}

QStringList SaveOurs::result()
{
    return {QString::fromLatin1(m_state.toHex())};
}

SaveBare::SaveBare(const Size &size)
    : SceneSide(size)
    , m_contents(contents(0))
{
    m_scene.fillToolBars();
}

void SaveBare::run()
{
    m_state = saveBare(m_scene, m_contents);
}

QStringList SaveBare::result()
{
    return {QString::fromLatin1(m_state.toHex())};
}

RestoreSameOurs::RestoreSameOurs(const Size &size)
    : SceneSide(size)
    , m_state(m_scene.manager()->saveState(Version))
{
}

void RestoreSameOurs::run()
{
    m_restored = m_scene.manager()->restoreState(m_state, Version);
}

QStringList RestoreSameOurs::result()
{
    return SceneSide::result() << QString::number(m_restored);
}

RestoreFirstOurs::RestoreFirstOurs(const Size &size)
    : SceneSide(size)
{
    m_scene.fillToolBars();
    m_state = saveBare(m_scene, contents(0));
}

void RestoreFirstOurs::prepare()
{
    m_manager = std::make_unique<RyToolBarManager>();
    registerAll(m_scene, *m_manager);
}

void RestoreFirstOurs::run()
{
    m_restored = m_manager->restoreState(m_state, Version);
}

QStringList RestoreFirstOurs::result()
{
    return SceneSide::result() << QString::number(m_restored);
}

RestoreSameBare::RestoreSameBare(const Size &size)
    : SceneSide(size)
{
    m_scene.fillToolBars();
    const auto first = contents(0);
    for (int i = 0; i < first.size(); ++i)
        m_contents.insert(m_scene.toolBars().at(i), first.at(i));
    m_state = saveBare(m_scene, first);
}

void RestoreSameBare::run()
{
    const auto actions = tableOf(m_scene.actions());
    const auto toolBars = tableOf(m_scene.toolBars());
    QDataStream stream(m_state);
    qint32 marker = 0;
    qint32 version = 0;
    qint8 section = 0;
    qint32 records = 0;
    stream >> marker >> version >> section >> records;
    m_restored = true;
    QString name;
    for (qint32 i = 0; i < records; ++i) {
        QString toolBar;
        qint32 entries = 0;
        stream >> toolBar >> entries;
        QList<QAction *> content;
        content.reserve(entries);
        for (qint32 j = 0; j < entries; ++j) {
            stream >> name;
            content.append(name.isEmpty() ? nullptr : actions.value(name));
        }
        m_restored = m_restored && m_contents.value(toolBars.value(toolBar)) == content;
    }
    stream >> section >> records;
}

QStringList RestoreSameBare::result()
{
    return SceneSide::result() << QString::number(m_restored);
}

RestoreOtherOurs::RestoreOtherOurs(const Size &size)
    : SceneSide(size)
{
    for (const int variant : {1, 0}) {
        setContents(m_scene, *m_scene.manager(), variant);
        m_states[variant] = m_scene.manager()->saveState(Version);
        settle();
    }
}

void RestoreOtherOurs::prepare()
{
    m_variant = 1 - m_variant;
}

void RestoreOtherOurs::run()
{
    m_scene.manager()->restoreState(m_states[m_variant], Version);
}
