// SPDX-License-Identifier: MIT

#include "contentchange.h"

#include "rytoolbarmanager.h"

#include <algorithm>

namespace {

const int MaximumReplacements = 100;

} // namespace

ContentChange::ContentChange(RyToolBarManager *manager, QToolBar *toolBar)
    : m_manager(manager)
    , m_toolBar(toolBar)
    , m_outer(manager->m_innermostChange)
    , m_replacementsLeft(0)
    , m_isReplaced(false)
{
    manager->m_innermostChange = this;
}

ContentChange::~ContentChange()
{
    m_manager->m_innermostChange = m_outer;
}

ContentChange *ContentChange::running(const RyToolBarManager *manager, const QToolBar *toolBar)
{
    ContentChange *change = manager->m_innermostChange;
    while (change && change->m_toolBar != toolBar)
        change = change->m_outer;
    return change;
}

void ContentChange::run(const QList<QAction *> &content)
{
    m_content = content;
    m_replacementsLeft = MaximumReplacements;
    do {
        m_isReplaced = false;
        takeAllOff();
        placeContent();
    } while (m_isReplaced && !isOver());
    if (!isOver())
        m_manager->m_toolBars.insert(m_toolBar, placedContent());
}

bool ContentChange::empty()
{
    takeAllOff();
    return !isOver();
}

void ContentChange::replace(const QList<QAction *> &content)
{
    if (m_replacementsLeft == 0 || m_content == content)
        return;
    --m_replacementsLeft;
    m_content = content;
    m_isReplaced = true;
}

bool ContentChange::isOver() const
{
    return !m_toolBar || !m_manager->m_toolBars.contains(m_toolBar);
}

void ContentChange::takeAllOff()
{
    while (!m_isReplaced && !isOver()) {
        QList<QAction *> &placed = m_manager->m_toolBarsWithSeparators[m_toolBar];
        if (placed.isEmpty())
            return;
        takeOff(placed.takeFirst());
    }
}

void ContentChange::takeOff(QAction *action)
{
    const auto toolBars = m_manager->m_actionToToolBars.find(action);
    if (toolBars != m_manager->m_actionToToolBars.end())
        toolBars.value().removeAll(m_toolBar);
    // A registered action that became a separator later is still the host's.
    if (m_manager->m_allActions.contains(action)) {
        takeOffWidget(m_toolBar, action);
        return;
    }
    const QPointer<QAction> separator(action->isSeparator() ? action : nullptr);
    m_toolBar->removeAction(action);
    if (separator && !isShared(separator))
        delete separator;
}

void ContentChange::takeOffWidget(QToolBar *toolBar, QAction *action)
{
    if (toolBar->actions().contains(action))
        toolBar->removeAction(action);
}

// A separator action of the host may be on several default toolbars; the last one deletes it.
bool ContentChange::isShared(QAction *separator) const
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const auto owners = separator->associatedWidgets();
#else
    const auto owners = separator->associatedObjects();
#endif
    return std::any_of(owners.cbegin(), owners.cend(), [this, separator](QObject *owner) {
        QToolBar *const toolBar = qobject_cast<QToolBar *>(owner);
        return m_manager->m_toolBarsWithSeparators.value(toolBar).contains(separator);
    });
}

void ContentChange::placeContent()
{
    const QList<QAction *> content = m_content;
    for (QAction *action : content) {
        if (m_isReplaced || isOver())
            return;
        if (!action)
            placeSeparator();
        else if (m_manager->m_allActions.contains(action))
            placeAction(action);
    }
}

void ContentChange::placeAction(QAction *action)
{
    m_toolBar->insertAction(nullptr, action);
    if (!isOver() && m_manager->m_allActions.contains(action)) {
        m_manager->m_actionToToolBars[action].append(m_toolBar);
        m_manager->m_toolBarsWithSeparators[m_toolBar].append(action);
    } else if (!m_toolBar.isNull()) {
        takeOffWidget(m_toolBar, action);
    }
}

void ContentChange::placeSeparator()
{
    QAction *const separator = m_toolBar->insertSeparator(nullptr);
    // It goes with a toolbar that is gone.
    if (!isOver())
        m_manager->m_toolBarsWithSeparators[m_toolBar].append(separator);
    else if (!m_toolBar.isNull())
        delete separator;
}

// What was placed: registered actions, and separators that this class made.
QList<QAction *> ContentChange::placedContent() const
{
    QList<QAction *> content = m_manager->m_toolBarsWithSeparators.value(m_toolBar);
    for (QAction *&entry : content) {
        if (!m_manager->m_allActions.contains(entry))
            entry = nullptr;
    }
    return content;
}
