// SPDX-License-Identifier: MIT

#ifndef TOOLBARMENU_H
#define TOOLBARMENU_H

#include <QObject>
#include <QPointer>

class QAction;
class QContextMenuEvent;
class QMainWindow;
class QMenu;
class QPoint;
class QToolBar;
class RyToolBarKitPrivate;
struct KitLook;

/*!
 * \brief Adds what a user can do with a toolbar to the menu that its window shows for it.
 *
 * The window makes that menu after everything that the program does with the event, so a program
 * that shows a menu of its own, or none, is left alone. Where the program makes the window's menu
 * itself, with QMainWindow::createPopupMenu(), all is in a submenu.
 */
class ToolBarMenu : public QObject
{
    Q_OBJECT

public:
    ToolBarMenu(QMainWindow *window, RyToolBarKitPrivate *kit);

    /*!
     * \brief Shows the menu also for \a toolBar when it floats: its window does not get the event
     *        then. Does nothing if that is so already.
     */
    void watch(QToolBar *toolBar);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void stopWaiting();
    void extendShown();
    void iconSizeChosen(QAction *action);
    void textPositionChosen(QAction *action);
    void lockChosen(bool locked);
    void removeEntry();
    void resetToolBar();

private:
    void waitForMenu(QToolBar *toolBar, const QPoint &position);
    bool showForFloating(QToolBar *toolBar, QContextMenuEvent *event);
    bool isAllowed(const QToolBar *toolBar) const;
    void note(QToolBar *toolBar, const QPoint &position);
    void extend(QMenu *menu);
    void addToolBars(QMenu *target, const QMenu *shown) const;
    void addAll(QMenu *target, const QMenu *shown);
    void addIconSizes(QMenu *menu, const KitLook &look);
    void addTextPositions(QMenu *menu, const KitLook &look);
    void addRemove(QMenu *menu);

    QMainWindow *m_window;
    RyToolBarKitPrivate *m_kit;
    // Whether the next menu is the one that the window shows for m_toolBar.
    bool m_isWaiting;
    // Whether an event that was seen here is on its way to the toolbar.
    bool m_isPassing;
    QPointer<QToolBar> m_toolBar;
    // The entry under the pointer or with the focus, and its index; null and -1 if there is none.
    QPointer<QAction> m_entry;
    int m_index;
};

#endif // TOOLBARMENU_H
