// SPDX-License-Identifier: MIT

#include "rytoolbarmanager.h"

#include "contentchange.h"
#include "nameindex.h"

#include <QMainWindow>
#include <QVector>

namespace {

const QLatin1String CustomToolBarPrefix("_Custom_Toolbar_");

// The number of a generated name if it is at most the given one, or else 0. Leading zeros, signs
// and the like are not generated.
int numberOf(const QString &objectName, int maximum)
{
    if (!objectName.startsWith(CustomToolBarPrefix))
        return 0;
    int number = 0;
    for (auto i = CustomToolBarPrefix.size(); i < objectName.size(); ++i) {
        const int digit = objectName.at(i).unicode() - '0';
        if (digit < 0 || digit > 9 || (digit == 0 && number == 0))
            return 0;
        number = 10 * number + digit;
        if (number > maximum)
            return 0;
    }
    return number;
}

// The first generated name that none of the toolbars has.
QString freeObjectName(const QList<QToolBar *> &toolBars)
{
    // Of one number more than there are toolbars at least one is free.
    const int maximum = static_cast<int>(toolBars.size()) + 1;
    QVector<bool> taken(maximum + 1);
    for (const QToolBar *toolBar : toolBars)
        taken[numberOf(toolBar->objectName(), maximum)] = true;
    return CustomToolBarPrefix + QString::number(taken.indexOf(false, 1));
}

bool insertNew(QSet<QAction *> &actions, QAction *action)
{
    const auto size = actions.size();
    actions.insert(action);
    return actions.size() > size;
}

} // namespace

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
    ++m_changesOfToolBars;
}

void RyToolBarManager::removeDefaultToolBar(QToolBar *toolBar)
{
    // The inverted test is deliberate: a default toolbar stays one for the manager's life.
    if (isCustomToolBar(toolBar))
        forgetToolBar(toolBar);
}

QToolBar *RyToolBarManager::createToolBar(const QString &toolBarName)
{
    if (!m_mainWindow)
        return nullptr;
    // The host sees the new child, and may unset the window.
    QMainWindow *const window = m_mainWindow;
    QToolBar *const toolBar = new QToolBar(toolBarName, window);
    toolBar->setObjectName(freeObjectName(m_toolBars.keys()));
    window->addToolBar(toolBar);
    m_toolBars.insert(toolBar, QList<QAction *>());
    m_toolBarsWithSeparators.insert(toolBar, QList<QAction *>());
    ++m_changesOfToolBars;
    return toolBar;
}

void RyToolBarManager::deleteToolBar(QToolBar *toolBar)
{
    if (!isCustomToolBar(toolBar))
        return;
    const QPointer<QToolBar> forgotten(toolBar);
    forgetToolBar(toolBar);
    if (!forgotten || m_toolBars.contains(forgotten))
        return;
    keepActions(forgotten);
    delete forgotten;
}

bool RyToolBarManager::isCustomToolBar(QToolBar *toolBar) const
{
    return m_toolBars.contains(toolBar) && !m_defaultToolBars.contains(toolBar);
}

void RyToolBarManager::forgetToolBar(QToolBar *toolBar)
{
    // The host may have made it a default toolbar when it was emptied.
    if (!ContentChange(this, toolBar).empty() || !isCustomToolBar(toolBar))
        return;
    m_toolBars.remove(toolBar);
    m_toolBarsWithSeparators.remove(toolBar);
    ++m_changesOfToolBars;
}

// What QToolBar::addWidget() made becomes the child of each toolbar that it is placed on. It is
// still the host's, and must not go with a custom toolbar.
void RyToolBarManager::keepActions(QToolBar *toolBar) const
{
    const auto actions = toolBar->findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    for (QAction *action : actions) {
        if (m_allActions.contains(action))
            action->setParent(ownerOf(action, toolBar->parent()));
    }
}

// The default toolbar that the action came with, or else the given object.
QObject *RyToolBarManager::ownerOf(QAction *action, QObject *otherwise) const
{
    for (auto it = m_defaultToolBars.cbegin(); it != m_defaultToolBars.cend(); ++it) {
        if (it.value().contains(action))
            return it.key();
    }
    return otherwise;
}

void RyToolBarManager::setToolBar(QToolBar *toolBar, const QList<QAction *> &actions)
{
    const auto current = m_toolBars.constFind(toolBar);
    if (current == m_toolBars.constEnd() || current.value() == actions)
        return;
    const QList<QAction *> content = placeableActions(actions);
    if (ContentChange *const running = ContentChange::running(this, toolBar))
        running->replace(content);
    else
        ContentChange(this, toolBar).run(content);
}

QList<QAction *> RyToolBarManager::placeableActions(const QList<QAction *> &actions) const
{
    QList<QAction *> placeable;
    placeable.reserve(actions.size());
    QSet<QAction *> placed;
    placed.reserve(actions.size());
    for (QAction *action : actions) {
        if (!action || (m_allActions.contains(action) && insertNew(placed, action)))
            placeable.append(action);
    }
    return placeable;
}

void RyToolBarManager::setToolBars(const QMap<QToolBar *, QList<QAction *>> &toolBars)
{
    // The host may be called and change the map that it gave.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const auto copy = toolBars;
    for (auto it = copy.cbegin(); it != copy.cend(); ++it)
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
    const NameIndex<QToolBar> toolBars(m_toolBars.keys());
    return toolBars.findByObjectName(name);
}

QToolBar *RyToolBarManager::findDefaultToolBar(const QString &name) const
{
    NameIndex<QToolBar> toolBars(m_defaultToolBars.keys());
    return toolBars.find(name);
}
