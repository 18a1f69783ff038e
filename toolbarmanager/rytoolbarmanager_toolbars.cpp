// SPDX-License-Identifier: MIT

#include "rytoolbarmanager.h"

#include "contentchange.h"
#include "customtoolbarnumbers.h"
#include "namelookup.h"
#include "registrychanges.h"

#include <QMainWindow>

namespace {

bool insertNew(QSet<QAction *> &actions, QAction *action)
{
    const int size = actions.size();
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
    ++RegistryChanges::ofToolBars;
}

void RyToolBarManager::removeDefaultToolBar(QToolBar *toolBar)
{
    // The inverted test is meant: a default toolbar stays one for the manager's life.
    if (m_toolBars.contains(toolBar) && !m_defaultToolBars.contains(toolBar))
        forgetToolBar(toolBar);
}

QToolBar *RyToolBarManager::createToolBar(const QString &toolBarName)
{
    if (!m_mainWindow)
        return nullptr;
    // Before its number is chosen: the window hears of its new child and may create another one.
    QToolBar *const toolBar = new QToolBar(toolBarName, m_mainWindow);
    CustomToolBarNumbers numbers;
    for (auto it = m_toolBars.cbegin(); it != m_toolBars.cend(); ++it)
        numbers.addName(it.key()->objectName());
    return addCustomToolBar(toolBar, numbers.firstFreeName());
}

// The toolbar is new and a child of its window. It is recorded first, so that its number is taken
// when the host is called. Null if the host deletes it then.
QToolBar *RyToolBarManager::addCustomToolBar(QToolBar *toolBar, const QString &objectName)
{
    const QPointer<QToolBar> added(toolBar);
    if (!m_toolBars.contains(toolBar)) {
        m_toolBars.insert(toolBar, QList<QAction *>());
        m_toolBarsWithSeparators.insert(toolBar, QList<QAction *>());
        ++RegistryChanges::ofToolBars;
    }
    toolBar->setObjectName(objectName);
    QMainWindow *const window = added ? qobject_cast<QMainWindow *>(added->parent()) : nullptr;
    if (window)
        window->addToolBar(added);
    return added;
}

void RyToolBarManager::deleteToolBar(QToolBar *toolBar)
{
    if (m_toolBars.contains(toolBar) && !m_defaultToolBars.contains(toolBar))
        delete forgetToolBar(toolBar);
}

// Empties a custom toolbar and returns it; null if the host made the manager forget it meanwhile.
QToolBar *RyToolBarManager::forgetToolBar(QToolBar *toolBar)
{
    ContentChange change(this, toolBar);
    takeContent(change);
    if (change.isCancelled())
        return nullptr;
    m_toolBars.remove(toolBar);
    m_toolBarsWithSeparators.remove(toolBar);
    ++RegistryChanges::ofToolBars;
    ContentChange::cancel(this, toolBar);
    keepActions(toolBar);
    return toolBar;
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
    if (ContentChange *const running = ContentChange::running(this, toolBar)) {
        running->replaceContent(content);
        return;
    }
    ContentChange change(this, toolBar, content);
    do {
        takeContent(change);
        placeContent(change);
    } while (change.startAgain());
    if (change.isCancelled())
        return;
    const bool complete = change.isContentRegistered()
        && m_toolBarsWithSeparators.value(toolBar).size() == change.content().size();
    m_toolBars.insert(toolBar, complete ? change.content() : placedContent(toolBar));
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

// Each action leaves the records before the widget, so that a host that is called finds no record
// of what no longer stands there.
void RyToolBarManager::takeContent(ContentChange &change)
{
    while (!change.isInterrupted()) {
        QList<QAction *> &standing = m_toolBarsWithSeparators[change.toolBar()];
        if (standing.isEmpty())
            return;
        const QPointer<QAction> action(standing.takeFirst());
        const auto toolBars = m_actionToToolBars.find(action);
        if (toolBars != m_actionToToolBars.end())
            toolBars.value().removeAll(change.toolBar());
        change.takeOff(action);
        // A registered action that became a separator later is still the host's.
        if (action && action->isSeparator() && !m_allActions.contains(action))
            deleteSeparator(action);
    }
}

// A separator action of the host may stand on several default toolbars; the last one deletes it.
void RyToolBarManager::deleteSeparator(QAction *separator)
{
    if (ContentChange::isTakingOff(separator))
        return;
    const auto widgets = separator->associatedWidgets();
    for (QWidget *widget : widgets) {
        if (isRecorded(qobject_cast<QToolBar *>(widget), separator))
            return;
    }
    delete separator;
}

void RyToolBarManager::placeContent(const ContentChange &change)
{
    const QList<QAction *> content = change.content();
    for (QAction *action : content) {
        if (change.isInterrupted())
            return;
        if (!action)
            placeSeparator(change);
        else if (change.isContentRegistered() || m_allActions.contains(action))
            placeAction(change, action);
    }
}

// Recorded only afterwards: what is taken off while Qt puts it on would leave its button behind.
void RyToolBarManager::placeAction(const ContentChange &change, QAction *action)
{
    const QPointer<QAction> placed(action);
    const quint64 changesOfActions = RegistryChanges::ofActions;
    change.toolBar()->insertAction(nullptr, action);
    if (!placed)
        return;
    const bool registered =
        changesOfActions == RegistryChanges::ofActions || m_allActions.contains(action);
    if (!change.isCancelled() && registered) {
        m_actionToToolBars[action].append(change.toolBar());
        m_toolBarsWithSeparators[change.toolBar()].append(action);
    } else if (change.toolBar() && !isRecorded(change.toolBar(), action)) {
        change.toolBar()->removeAction(action);
    }
}

void RyToolBarManager::placeSeparator(const ContentChange &change)
{
    QAction *const separator = change.toolBar()->insertSeparator(nullptr);
    // It goes with a toolbar that is gone.
    if (!change.isCancelled())
        m_toolBarsWithSeparators[change.toolBar()].append(separator);
    else if (change.toolBar() && !isRecorded(change.toolBar(), separator))
        delete separator;
}

bool RyToolBarManager::isRecorded(QToolBar *toolBar, QAction *action) const
{
    return m_toolBarsWithSeparators.value(toolBar).contains(action);
}

// What setToolBar() has placed: registered actions, and separators that it made.
QList<QAction *> RyToolBarManager::placedContent(QToolBar *toolBar) const
{
    QList<QAction *> content = m_toolBarsWithSeparators.value(toolBar);
    for (QAction *&entry : content) {
        if (!m_allActions.contains(entry))
            entry = nullptr;
    }
    return content;
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
