// SPDX-License-Identifier: MIT

#include "rytoolbarmanager.h"

#include "customtoolbarnumbers.h"
#include "namelookup.h"

#include <QMainWindow>

void RyToolBarManager::addDefaultToolBar(QToolBar *toolBar, const QString &category)
{
    if (!toolBar || m_toolBars.contains(toolBar))
        return;
    const QList<QAction *> standing = toolBar->actions();
    QList<QAction *> content;
    content.reserve(standing.size());
    for (QAction *action : standing) {
        addAction(action, category);
        const bool separator = action->isSeparator();
        if (!separator)
            m_actionToToolBars[action].append(toolBar);
        content.append(separator ? nullptr : action);
    }
    m_defaultToolBars.insert(toolBar, content);
    m_toolBars.insert(toolBar, content);
    m_toolBarsWithSeparators.insert(toolBar, standing);
}

void RyToolBarManager::removeDefaultToolBar(QToolBar *toolBar)
{
    // The inverted test is meant: a default toolbar stays one for the manager's life.
    if (m_defaultToolBars.contains(toolBar))
        return;
    setToolBar(toolBar, QList<QAction *>());
    m_toolBars.remove(toolBar);
    m_toolBarsWithSeparators.remove(toolBar);
}

QToolBar *RyToolBarManager::createToolBar(const QString &toolBarName)
{
    if (!m_mainWindow)
        return nullptr;
    CustomToolBarNumbers numbers;
    for (auto it = m_toolBars.cbegin(); it != m_toolBars.cend(); ++it)
        numbers.addName(it.key()->objectName());
    return addCustomToolBar(toolBarName, numbers.firstFreeName());
}

QToolBar *RyToolBarManager::addCustomToolBar(const QString &title, const QString &objectName)
{
    QToolBar *const toolBar = new QToolBar(title, m_mainWindow);
    toolBar->setObjectName(objectName);
    m_mainWindow->addToolBar(toolBar);
    m_toolBars.insert(toolBar, QList<QAction *>());
    m_toolBarsWithSeparators.insert(toolBar, QList<QAction *>());
    return toolBar;
}

void RyToolBarManager::deleteToolBar(QToolBar *toolBar)
{
    if (!m_toolBars.contains(toolBar) || m_defaultToolBars.contains(toolBar))
        return;
    setToolBar(toolBar, QList<QAction *>());
    m_toolBars.remove(toolBar);
    m_toolBarsWithSeparators.remove(toolBar);
    delete toolBar;
}

void RyToolBarManager::setToolBar(QToolBar *toolBar, const QList<QAction *> &actions)
{
    const auto current = m_toolBars.constFind(toolBar);
    if (current == m_toolBars.constEnd() || current.value() == actions)
        return;
    const QList<QAction *> content = placeableActions(actions);
    takeContent(toolBar);
    const QList<QAction *> standing = placeContent(toolBar, content);
    m_toolBars.insert(toolBar, content);
    m_toolBarsWithSeparators.insert(toolBar, standing);
}

QList<QAction *> RyToolBarManager::placeableActions(const QList<QAction *> &actions) const
{
    QList<QAction *> placeable;
    placeable.reserve(actions.size());
    QSet<QAction *> placed;
    for (QAction *action : actions) {
        if (action && (!m_allActions.contains(action) || placed.contains(action)))
            continue;
        placed.insert(action);
        placeable.append(action);
    }
    return placeable;
}

void RyToolBarManager::takeContent(QToolBar *toolBar)
{
    const auto standing = m_toolBarsWithSeparators.value(toolBar);
    for (QAction *action : standing) {
        toolBar->removeAction(action);
        // A registered action that became a separator later is still the host's.
        if (action->isSeparator() && !m_allActions.contains(action))
            deleteSeparator(action);
        else
            m_actionToToolBars[action].removeAll(toolBar);
    }
}

// A separator action of the host may stand on several default toolbars; the last one deletes it.
void RyToolBarManager::deleteSeparator(QAction *separator)
{
    const auto widgets = separator->associatedWidgets();
    for (QWidget *widget : widgets) {
        const auto recorded = m_toolBarsWithSeparators.value(qobject_cast<QToolBar *>(widget));
        if (recorded.contains(separator))
            return;
    }
    delete separator;
}

QList<QAction *> RyToolBarManager::placeContent(QToolBar *toolBar, const QList<QAction *> &actions)
{
    QList<QAction *> standing;
    standing.reserve(actions.size());
    for (QAction *action : actions) {
        if (action) {
            toolBar->insertAction(nullptr, action);
            m_actionToToolBars[action].append(toolBar);
            standing.append(action);
        } else {
            standing.append(toolBar->insertSeparator(nullptr));
        }
    }
    return standing;
}

void RyToolBarManager::setToolBars(const QMap<QToolBar *, QList<QAction *>> &toolBars)
{
    for (auto it = toolBars.cbegin(); it != toolBars.cend(); ++it)
        setToolBar(it.key(), it.value());
}

void RyToolBarManager::resetToolBar(QToolBar *toolBar)
{
    const auto defaults = m_defaultToolBars.constFind(toolBar);
    if (defaults != m_defaultToolBars.constEnd())
        setToolBar(toolBar, defaults.value());
}

void RyToolBarManager::resetAllToolBars()
{
    setToolBars(defaultToolBars());
}

QList<QToolBar *> RyToolBarManager::toolBars() const
{
    return m_toolBars.keys();
}

QMap<QToolBar *, QList<QAction *>> RyToolBarManager::defaultToolBars() const
{
    return m_defaultToolBars;
}

bool RyToolBarManager::isDefaultToolBar(QToolBar *toolBar) const
{
    return m_defaultToolBars.contains(toolBar);
}

QMap<QToolBar *, QList<QAction *>> RyToolBarManager::toolBarsActions() const
{
    return m_toolBars;
}

QList<QAction *> RyToolBarManager::actions(QToolBar *toolBar) const
{
    return m_toolBars.value(toolBar);
}

QToolBar *RyToolBarManager::toolBarByName(const QString &name) const
{
    for (auto it = m_toolBars.cbegin(); it != m_toolBars.cend(); ++it) {
        if (it.key()->objectName() == name)
            return it.key();
    }
    return nullptr;
}

QToolBar *RyToolBarManager::findDefaultToolBar(const QString &name) const
{
    return findNamed<QToolBar>(m_defaultToolBars.keys(), name);
}
