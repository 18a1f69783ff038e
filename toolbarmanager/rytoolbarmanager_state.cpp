// SPDX-License-Identifier: MIT

#include "rytoolbarmanager.h"

#include "toolbarstateformat.h"
#include "toolbarstaterestorer.h"

#include <QDataStream>
#include <QIODevice>
#include <QMessageLogger>

namespace {

QString savedName(const QToolBar *toolBar)
{
    QString name = toolBar->objectName();
    if (name.isEmpty()) {
        name = toolBar->windowTitle();
        QMessageLogger(nullptr, 0, nullptr)
            .warning("RyToolBarManager::saveState(): 'objectName' not set for QToolBar %p "
                     "'%s', using 'windowTitle' instead",
                     static_cast<const void *>(toolBar), qPrintable(name));
    }
    return name;
}

QString savedName(const QAction *action)
{
    QString name = action->objectName();
    if (name.isEmpty()) {
        name = action->text();
        QMessageLogger(nullptr, 0, nullptr)
            .warning("RyToolBarManager::saveState(): 'objectName' not set for QAction %p "
                     "'%s', using 'text' instead",
                     static_cast<const void *>(action), qPrintable(name));
    }
    return name;
}

void writeMarker(QDataStream &stream, quint8 marker)
{
    stream << static_cast<qint8>(marker);
}

void writeContent(QDataStream &stream, const QList<QAction *> &content)
{
    stream << static_cast<qint32>(content.size());
    for (const QAction *action : content)
        stream << (action ? savedName(action) : QString());
}

} // namespace

QByteArray RyToolBarManager::saveState(int version) const
{
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << StateMarker << static_cast<qint32>(version);
    saveStateData(stream);
    return state;
}

bool RyToolBarManager::restoreState(const QByteArray &state, int version)
{
    QDataStream stream(state);
    qint32 marker = 0;
    qint32 storedVersion = 0;
    stream >> marker >> storedVersion;
    if (marker != StateMarker || storedVersion != version)
        return false;
    return restoreStateData(stream);
}

void RyToolBarManager::saveStateData(QDataStream &stream) const
{
    writeMarker(stream, DefaultToolBarMarker);
    stream << static_cast<qint32>(m_defaultToolBars.size());
    for (auto it = m_defaultToolBars.cbegin(); it != m_defaultToolBars.cend(); ++it) {
        stream << savedName(it.key());
        writeContent(stream, m_toolBars.value(it.key()));
    }
    writeMarker(stream, CustomToolBarMarker);
    stream << static_cast<qint32>(m_toolBars.size() - m_defaultToolBars.size());
    for (auto it = m_toolBars.cbegin(); it != m_toolBars.cend(); ++it) {
        if (m_defaultToolBars.contains(it.key()))
            continue;
        // The objectName as it is, even if empty: here nothing stands in for it, on purpose.
        stream << it.key()->objectName() << it.key()->windowTitle();
        writeContent(stream, it.value());
    }
}

bool RyToolBarManager::restoreStateData(QDataStream &stream)
{
    return ToolBarStateRestorer(this, stream).restore();
}
