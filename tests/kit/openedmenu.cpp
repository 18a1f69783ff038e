// SPDX-License-Identifier: MIT

#include "openedmenu.h"

#include <QApplication>
#include <QLayout>

namespace {

// A place of the toolbar that is not one of its entries.
QPoint besideEntries(const QToolBar *toolBar)
{
    for (int x = toolBar->width() - 1; x >= 0; --x) {
        if (!toolBar->childAt(x, toolBar->height() / 2))
            return QPoint(x, toolBar->height() / 2);
    }
    return QPoint();
}

} // namespace

OpenedMenu::OpenedMenu(QToolBar *toolBar, QAction *action, QContextMenuEvent::Reason reason)
{
    QWidget *const receiver = action ? toolBar->widgetForAction(action) : toolBar;
    const QPoint position = action ? receiver->rect().center() : besideEntries(toolBar);
    QContextMenuEvent event(reason, position, receiver->mapToGlobal(position));
    QCoreApplication::sendEvent(receiver, &event);
    m_menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

OpenedMenu::~OpenedMenu()
{
    close();
}

void OpenedMenu::close()
{
    if (m_menu)
        m_menu->close();
    QCoreApplication::sendPostedEvents(m_menu, QEvent::DeferredDelete);
}

QStringList OpenedMenu::texts(const QMenu *menu)
{
    QStringList texts;
    const auto actions = menu->actions();
    for (const QAction *action : actions) {
        const QString text = (action->isChecked() ? "[x] " : "") + action->text();
        if (action->isVisible())
            texts << (action->isSeparator() ? "|" : action->isEnabled() ? text : '(' + text + ')');
    }
    return texts;
}

QMenu *OpenedMenu::submenu(const QString &text) const
{
    const QAction *const action = entry(text);
    return action ? action->menu() : nullptr;
}

QAction *OpenedMenu::entry(const QString &text) const
{
    QList<QMenu *> menus;
    if (m_menu)
        menus = QList<QMenu *>({m_menu}) + m_menu->findChildren<QMenu *>();
    for (const QMenu *menu : menus) {
        const auto actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == text && action->isVisible())
                return action;
        }
    }
    return nullptr;
}

bool OpenedMenu::choose(const QString &text)
{
    const QPointer<QAction> chosen = entry(text);
    const bool isEnabled = chosen && chosen->isEnabled();
    if (m_menu)
        m_menu->hide(); // as Qt does before it triggers the action
    if (isEnabled)
        chosen->trigger();
    close();
    return isEnabled;
}

bool chooseInMenu(QToolBar *toolBar, QAction *action, const QString &text)
{
    return OpenedMenu(toolBar, action).choose(text);
}
