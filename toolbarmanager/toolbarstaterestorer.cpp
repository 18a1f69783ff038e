// SPDX-License-Identifier: MIT

#include "toolbarstaterestorer.h"

#include "countedentries.h"
#include "rytoolbarmanager.h"
#include "toolbarstateformat.h"

#include <QDataStream>

ToolBarStateRestorer::ToolBarStateRestorer(RyToolBarManager *manager, QDataStream &stream)
    : m_manager(manager)
    , m_stream(stream)
    , m_actions(manager->actions().values())
    , m_defaultToolBars(manager->defaultToolBars().keys())
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
    if (QToolBar *const toolBar = m_defaultToolBars.find(name))
        m_manager->setToolBar(toolBar, content);
}

void ToolBarStateRestorer::restoreCustomToolBars()
{
    indexToolBars();
    CountedEntries records(m_stream, readCount());
    while (records.next())
        restoreCustomToolBar();
}

void ToolBarStateRestorer::restoreCustomToolBar()
{
    const QString objectName = readString();
    const QString title = readString();
    const QList<QAction *> content = readContent();
    QToolBar *const toolBar = titledToolBar(objectName, title);
    if (!toolBar)
        return;
    toolBar->setObjectName(objectName);
    m_manager->setToolBar(toolBar, content);
}

QList<QAction *> ToolBarStateRestorer::readContent()
{
    QList<QAction *> content;
    CountedEntries entries(m_stream, readCount());
    while (entries.next()) {
        const QString name = readString();
        if (name.isEmpty())
            content.append(nullptr);
        else if (QAction *const action = m_actions.find(name))
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

void ToolBarStateRestorer::indexToolBars()
{
    const auto toolBars = m_manager->toolBars();
    for (QToolBar *toolBar : toolBars) {
        const QString objectName = toolBar->objectName();
        if (!m_toolBars.contains(objectName))
            m_toolBars.insert(objectName, toolBar);
        m_numbers.addName(objectName);
    }
}

// The toolbar of that objectName, with the title; a new one that still bears its generated name if
// there is none; null if that takes a main window and there is none.
QToolBar *ToolBarStateRestorer::titledToolBar(const QString &objectName, const QString &title)
{
    if (QToolBar *const toolBar = m_toolBars.value(objectName)) {
        toolBar->setWindowTitle(title);
        return toolBar;
    }
    if (!m_manager->mainWindow())
        return nullptr;
    QToolBar *const toolBar = m_manager->addCustomToolBar(title, m_numbers.firstFreeName());
    m_toolBars.insert(objectName, toolBar);
    m_numbers.addName(objectName);
    return toolBar;
}
