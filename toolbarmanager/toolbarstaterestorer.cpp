// SPDX-License-Identifier: MIT

#include "toolbarstaterestorer.h"

#include "countedentries.h"
#include "registrychanges.h"
#include "rytoolbarmanager.h"
#include "toolbarstateformat.h"

#include <QDataStream>
#include <QMainWindow>
#include <QPointer>

namespace {

// A damaged count must not take more room than this.
const qint32 UsualEntries = 64;

} // namespace

ToolBarStateRestorer::ToolBarStateRestorer(RyToolBarManager *manager, QDataStream &stream)
    : m_manager(manager)
    , m_stream(stream)
    , m_actionNames(KeptActionNames::of(manager))
    , m_hasReadActionNames(false)
    , m_defaultToolBars(manager->defaultToolBars().keys())
    , m_changesOfToolBars(RegistryChanges::ofToolBars)
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
    if (QAction *const action = m_actionNames.find(name))
        return action;
    // It may have been given its name since an earlier restore, or registered during this one.
    if (!m_hasReadActionNames || !m_actionNames.areOfTheRegistry()) {
        readActionNames();
        if (QAction *const action = m_actionNames.find(name))
            return action;
    }
    if (!m_actions)
        m_actions.reset(new NameIndex<QAction>(m_manager->actions().values()));
    return m_actions->find(name);
}

void ToolBarStateRestorer::readActionNames()
{
    m_actionNames = KeptActionNames(m_manager->actions(), m_manager->m_actionToCategory.keys());
    m_actionNames.keepFor(m_manager);
    m_hasReadActionNames = true;
    // An action that the host removed meanwhile may be gone.
    m_actions.reset();
}

// A toolbar that the host deleted meanwhile is gone.
void ToolBarStateRestorer::updateToolBars()
{
    if (m_changesOfToolBars == RegistryChanges::ofToolBars)
        return;
    m_changesOfToolBars = RegistryChanges::ofToolBars;
    m_defaultToolBars = NameIndex<QToolBar>(m_manager->defaultToolBars().keys());
    indexToolBars();
}

void ToolBarStateRestorer::indexToolBars()
{
    m_toolBars.clear();
    m_numbers = CustomToolBarNumbers();
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
    updateToolBars();
    if (const QPointer<QToolBar> toolBar = m_toolBars.value(objectName)) {
        toolBar->setWindowTitle(title);
        return toolBar;
    }
    return m_manager->mainWindow() ? createdToolBar(objectName, title) : nullptr;
}

QToolBar *ToolBarStateRestorer::createdToolBar(const QString &objectName, const QString &title)
{
    QScopedPointer<QToolBar> toolBar(new QToolBar(title, m_manager->mainWindow()));
    updateToolBars();
    // The window heard of its new child, and the host may have restored the same one.
    if (m_toolBars.contains(objectName))
        return titledToolBar(objectName, title);
    QToolBar *const added = m_manager->addCustomToolBar(toolBar.take(), m_numbers.firstFreeName());
    m_toolBars.insert(objectName, added);
    m_numbers.addName(objectName);
    // Its own addition needs no new index; any other one of that moment does.
    ++m_changesOfToolBars;
    return added;
}
