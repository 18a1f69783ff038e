// SPDX-License-Identifier: MIT

#include "menuactions.h"

#include "stablenames.h"

#include <QAction>
#include <QActionEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

MenuActions::MenuActions(QMainWindow *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
}

QList<MenuActions::Found> MenuActions::find(const QSet<const QObject *> &excluded)
{
    m_excluded = excluded;
    m_inMenus.clear();
    m_found.clear();
    m_visited.clear();
    m_categories.clear();
    QList<Found> found;
    QMenuBar *const menuBar = qobject_cast<QMenuBar *>(m_window->menuWidget());
    if (!menuBar)
        return found;
    menuBar->installEventFilter(this);
    const auto actions = menuBar->actions();
    for (QAction *action : actions) {
        m_found.insert(action);
        QMenu *const menu = action->menu();
        if (!menu || m_visited.contains(menu) || excluded.contains(menu))
            continue;
        m_visited.insert(menu);
        menu->installEventFilter(this);
        findIn(menu->actions(), StableNames::plainText(action->text()), &found);
    }
    return found;
}

void MenuActions::findIn(const QList<QAction *> &actions, const QString &category,
                         QList<Found> *found)
{
    m_categories.append(category);
    for (QAction *action : actions) {
        QMenu *const menu = action->menu();
        if (m_excluded.contains(action) || (menu && m_excluded.contains(menu)))
            continue;
        m_inMenus.insert(action);
        if (!action->isVisible() || action->isSeparator())
            continue;
        if (!m_found.contains(action))
            found->append({action, category});
        m_found.insert(action);
        if (!menu || m_visited.contains(menu))
            continue;
        m_visited.insert(menu);
        menu->installEventFilter(this);
        findIn(menu->actions(),
               category + QLatin1String(" / ") + StableNames::plainText(action->text()), found);
    }
}

bool MenuActions::eventFilter(QObject *watched, QEvent *event)
{
    const bool isAdded = event->type() == QEvent::ActionAdded;
    if (isAdded || event->type() == QEvent::ActionChanged) {
        // Qt changes actions often, but only new ones matter.
        if (!m_found.contains(static_cast<QActionEvent *>(event)->action()))
            Q_EMIT changed();
    } else if (event->type() == QEvent::ActionRemoved) {
        // Another action may get its address.
        const QAction *const action = static_cast<QActionEvent *>(event)->action();
        m_inMenus.remove(action);
        m_found.remove(action);
        // It may be that of a menu that is deleted, whose actions are removed without an event.
        Q_EMIT changed();
    }
    return QObject::eventFilter(watched, event);
}
