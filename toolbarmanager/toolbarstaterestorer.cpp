// SPDX-License-Identifier: MIT

#include "toolbarstaterestorer.h"

#include "countedentries.h"
#include "rytoolbarmanager.h"
#include "toolbarstateformat.h"

#include <QDataStream>
#include <QPointer>

namespace {

// A damaged count must not take more room than this.
const qint32 UsualEntries = 64;

} // namespace

ToolBarStateRestorer::ToolBarStateRestorer(RyToolBarManager *manager, QDataStream &stream)
    : m_manager(manager)
    , m_stream(stream)
    , m_actions(manager->m_allActions.values())
    , m_defaultToolBars(manager->m_defaultToolBars.keys())
    , m_toolBars(manager->m_toolBars.keys())
    , m_changesOfActions(manager->m_changesOfActions)
    , m_changesOfToolBars(manager->m_changesOfToolBars)
{
}

bool ToolBarStateRestorer::restore()
{
    if (!readMarker(DefaultToolBarMarker))
        return false;
    restoreDefaultToolBars();
    // Not atomic on purpose: the default toolbars stay changed.
    if (!readMarker(CustomToolBarMarker))
        return false;
    restoreCustomToolBars();
    return true;
}

bool ToolBarStateRestorer::readMarker(quint8 expected)
{
    qint8 marker = 0;
    m_stream >> marker;
    return static_cast<quint8>(marker) == expected;
}

void ToolBarStateRestorer::restoreDefaultToolBars()
{
    CountedEntries records(m_stream, readCount());
    while (records.next())
        restoreDefaultToolBar();
}

void ToolBarStateRestorer::restoreDefaultToolBar()
{
    const QString name = readString();
    const QList<QAction *> content = readContent();
    updateToolBars();
    if (QToolBar *const toolBar = m_defaultToolBars.find(name))
        m_manager->setToolBar(toolBar, content);
}

void ToolBarStateRestorer::restoreCustomToolBars()
{
    CountedEntries records(m_stream, readCount());
    while (records.next())
        restoreCustomToolBar();
}

void ToolBarStateRestorer::restoreCustomToolBar()
{
    const QString objectName = readString();
    const QString title = readString();
    const QList<QAction *> content = readContent();
    // Guarded, because its title and its name may call the host.
    const QPointer<QToolBar> toolBar(titledToolBar(objectName, title));
    if (toolBar)
        toolBar->setObjectName(objectName);
    if (toolBar)
        m_manager->setToolBar(toolBar, content);
}

QList<QAction *> ToolBarStateRestorer::readContent()
{
    QList<QAction *> content;
    const qint32 count = readCount();
    content.reserve(qBound(0, count, UsualEntries));
    CountedEntries entries(m_stream, count);
    while (entries.next()) {
        const QString name = readString();
        if (name.isEmpty())
            content.append(nullptr);
        else if (QAction *const action = actionNamed(name))
            content.append(action);
    }
    return content;
}

QString ToolBarStateRestorer::readString()
{
    QString string;
    m_stream >> string;
    return string;
}

qint32 ToolBarStateRestorer::readCount()
{
    qint32 count = 0;
    m_stream >> count;
    return count;
}

QAction *ToolBarStateRestorer::actionNamed(const QString &name)
{
    if (m_changesOfActions != m_manager->m_changesOfActions) {
        m_changesOfActions = m_manager->m_changesOfActions;
        m_actions = NameIndex<QAction>(m_manager->m_allActions.values());
    }
    return m_actions.find(name);
}

void ToolBarStateRestorer::updateToolBars()
{
    if (m_changesOfToolBars == m_manager->m_changesOfToolBars)
        return;
    m_changesOfToolBars = m_manager->m_changesOfToolBars;
    m_defaultToolBars = NameIndex<QToolBar>(m_manager->m_defaultToolBars.keys());
    m_toolBars = NameIndex<QToolBar>(m_manager->m_toolBars.keys());
}

// A new one if none has that objectName. Null if that takes a main window and there is none.
QToolBar *ToolBarStateRestorer::titledToolBar(const QString &objectName, const QString &title)
{
    updateToolBars();
    const QPointer<QToolBar> toolBar(m_toolBars.findByObjectName(objectName));
    if (!toolBar)
        return m_manager->createToolBar(title);
    toolBar->setWindowTitle(title);
    return toolBar;
}
