// SPDX-License-Identifier: MIT

#include "rytoolbarmanager.h"

#include "contentchange.h"
#include "nameindex.h"

RyToolBarManager::RyToolBarManager(QObject *parent)
    : m_mainWindow(nullptr)
    , m_innermostChange(nullptr)
    , m_changesOfActions(0)
    , m_changesOfToolBars(0)
{
    // Ignored on purpose: the manager belongs to whoever creates it.
    Q_UNUSED(parent);
}

RyToolBarManager::~RyToolBarManager() = default;

void RyToolBarManager::setMainWindow(QMainWindow *mainWindow)
{
    m_mainWindow = mainWindow;
}

QMainWindow *RyToolBarManager::mainWindow() const
{
    return m_mainWindow;
}

void RyToolBarManager::addAction(QAction *action, const QString &category)
{
    if (!action || action->isSeparator() || m_allActions.contains(action))
        return;
    m_allActions.insert(action);
    m_categoryToActions[category].append(action);
    m_actionToCategory.insert(action, category);
    ++m_changesOfActions;
}

void RyToolBarManager::removeAction(QAction *action)
{
    if (!m_allActions.contains(action))
        return;
    takeOffToolBars(action);
    for (auto it = m_defaultToolBars.begin(); it != m_defaultToolBars.end(); ++it)
        it.value().removeOne(action);
    if (!m_allActions.remove(action))
        return;
    ++m_changesOfActions;
    // The host may have placed it again when it was taken off; from now on it cannot.
    takeOffToolBars(action);
    forgetCategory(action);
}

void RyToolBarManager::takeOffToolBars(QAction *action)
{
    const auto toolBars = m_actionToToolBars.take(action);
    for (QToolBar *toolBar : toolBars) {
        const auto content = m_toolBars.find(toolBar);
        // The host may have deleted the toolbar when the action was taken off another one.
        if (content == m_toolBars.end())
            continue;
        // No content has an action twice.
        content.value().removeOne(action);
        m_toolBarsWithSeparators[toolBar].removeOne(action);
        ContentChange::takeOffWidget(toolBar, action);
    }
}

// The category goes with its last action, even one that addCategory() created.
void RyToolBarManager::forgetCategory(QAction *action)
{
    const auto category = m_categoryToActions.find(m_actionToCategory.take(action));
    if (category == m_categoryToActions.end())
        return;
    category.value().removeOne(action);
    if (category.value().isEmpty())
        m_categoryToActions.erase(category);
}

void RyToolBarManager::addCategory(const QString &category)
{
    // Emptying a category that exists is meant; its actions stay registered.
    m_categoryToActions.insert(category, QList<QAction *>());
}

bool RyToolBarManager::hasCategory(const QString &category) const
{
    return m_categoryToActions.contains(category);
}

QStringList RyToolBarManager::categories() const
{
    return m_categoryToActions.keys();
}

QList<QAction *> RyToolBarManager::categoryActions(const QString &category) const
{
    return m_categoryToActions.value(category);
}

QString RyToolBarManager::actionCategory(QAction *action) const
{
    return m_actionToCategory.value(action);
}

QSet<QAction *> RyToolBarManager::actions() const
{
    return m_allActions;
}

QAction *RyToolBarManager::findAction(const QString &name) const
{
    NameIndex<QAction> actions(m_allActions.values());
    return actions.find(name);
}
