// SPDX-License-Identifier: MIT

#ifndef OPENEDMENU_H
#define OPENEDMENU_H

#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QToolBar>

/*
 * The menu that a right click on a toolbar has opened, or none. It is closed at the end.
 */
class OpenedMenu
{
public:
    // Clicks at the widget of an action, or beside all of them for null.
    OpenedMenu(QToolBar *toolBar, QAction *action,
               QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse);
    ~OpenedMenu();
    OpenedMenu(const OpenedMenu &) = delete;
    OpenedMenu &operator=(const OpenedMenu &) = delete;

    QMenu *menu() const { return m_menu.data(); }
    // The texts of a menu, such as "[x] Small" for a checked entry, "(Reset)" for a disabled one
    // and "|" for a separator.
    QStringList texts() const { return m_menu ? texts(m_menu) : QStringList(); }
    static QStringList texts(const QMenu *menu);
    // That of a submenu; null if there is none.
    QMenu *submenu(const QString &text) const;
    // The visible entry with the text, in the menu or one of its submenus; null if there is none.
    QAction *entry(const QString &text) const;
    // Chooses that entry, if there is one and it is enabled, and closes the menu.
    bool choose(const QString &text);
    void close();

private:
    QPointer<QMenu> m_menu;
};

// Does that in one step. Whether the entry could be chosen.
bool chooseInMenu(QToolBar *toolBar, QAction *action, const QString &text);

#endif // OPENEDMENU_H
