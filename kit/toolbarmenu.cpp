// SPDX-License-Identifier: MIT

#include "toolbarmenu.h"

#include "rytoolbarkitprivate.h"
#include "toolbarplaces.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QContextMenuEvent>
#include <QMainWindow>
#include <QMenu>
#include <QScopedPointer>
#include <QTimer>
#include <QToolBar>

namespace {

// The toolbar of the window that QMainWindow::contextMenuEvent() would find.
QToolBar *toolBarAt(const QMainWindow *window, const QPoint &position)
{
    QWidget *widget = window->childAt(position);
    while (widget && widget->parentWidget() != window)
        widget = widget->parentWidget();
    return qobject_cast<QToolBar *>(widget);
}

int indexAt(const QToolBar *toolBar, const QPoint &position)
{
    const auto actions = toolBar->actions();
    for (int i = 0; i < actions.size(); ++i) {
        const QWidget *const widget = toolBar->widgetForAction(actions.at(i));
        if (widget && widget->isVisible() && widget->geometry().contains(position))
            return i;
    }
    return -1;
}

// Null for a separator.
QList<const QAction *> contentOf(const QMenu *menu)
{
    QList<const QAction *> content;
    const auto actions = menu->actions();
    for (const QAction *action : actions)
        content.append(action->isSeparator() ? nullptr : action);
    return content;
}

void separate(QMenu *menu)
{
    const auto actions = menu->actions();
    if (!actions.isEmpty() && !actions.last()->isSeparator())
        menu->addSeparator();
}

void addChoices(QMenu *menu, const QList<QPair<QString, QVariant>> &choices, const QVariant &chosen,
                const QObject *receiver, const char *slot)
{
    QActionGroup *const group = new QActionGroup(menu);
    group->setExclusive(true);
    for (const auto &choice : choices) {
        QAction *const action = group->addAction(choice.first);
        action->setData(choice.second);
        action->setCheckable(true);
        action->setChecked(choice.second == chosen);
        menu->addAction(action);
    }
    QObject::connect(group, SIGNAL(triggered(QAction *)), receiver, slot);
}

} // namespace

ToolBarMenu::ToolBarMenu(QMainWindow *window, RyToolBarKitPrivate *kit)
    : QObject(kit)
    , m_window(window)
    , m_kit(kit)
    , m_isWaiting(false)
    , m_isPassing(false)
    , m_index(-1)
{
    window->installEventFilter(this);
}

void ToolBarMenu::watch(QToolBar *toolBar)
{
    toolBar->installEventFilter(this);
}

bool ToolBarMenu::eventFilter(QObject *watched, QEvent *event)
{
    QMenu *const menu = m_isWaiting ? qobject_cast<QMenu *>(watched) : nullptr;
    if (menu && event->type() == QEvent::Polish)
        connect(menu, SIGNAL(aboutToShow()), this, SLOT(extendShown()), Qt::UniqueConnection);
    if (event->type() != QEvent::ContextMenu || m_isPassing)
        return QObject::eventFilter(watched, event);
    QContextMenuEvent *const click = static_cast<QContextMenuEvent *>(event);
    QToolBar *const toolBar = qobject_cast<QToolBar *>(watched);
    if (toolBar && toolBar->isWindow() && isAllowed(toolBar))
        return showForFloating(toolBar, click);
    if (watched == m_window)
        waitForMenu(toolBarAt(m_window, click->pos()), click->pos());
    return QObject::eventFilter(watched, event);
}

// Any menu may be the one that the program makes, so for this event all of them are watched.
void ToolBarMenu::waitForMenu(QToolBar *toolBar, const QPoint &position)
{
    if (!toolBar || !isAllowed(toolBar))
        return;
    note(toolBar, toolBar->mapFrom(m_window, position));
    m_isWaiting = true;
    qApp->installEventFilter(this);
    QTimer::singleShot(0, this, SLOT(stopWaiting()));
}

void ToolBarMenu::stopWaiting()
{
    m_isWaiting = false;
    qApp->removeEventFilter(this);
}

// A toolbar that defers the menu to its parent has the window's, as Qt shows it.
bool ToolBarMenu::isAllowed(const QToolBar *toolBar) const
{
    return m_window->contextMenuPolicy() == Qt::DefaultContextMenu
        && toolBar->contextMenuPolicy() == Qt::DefaultContextMenu && m_kit->hasMenu(toolBar);
}

void ToolBarMenu::note(QToolBar *toolBar, const QPoint &position)
{
    m_kit->followNow();
    m_toolBar = toolBar;
    m_index = indexAt(toolBar, position);
    m_entry = toolBar->actions().value(m_index);
}

// The program comes first. Its event filters see the event twice if they let it pass.
bool ToolBarMenu::showForFloating(QToolBar *toolBar, QContextMenuEvent *event)
{
    event->accept();
    m_isPassing = true;
    event->setAccepted(QCoreApplication::sendEvent(toolBar, event) && event->isAccepted());
    m_isPassing = false;
    if (event->isAccepted() || !isAllowed(toolBar))
        return true;
    note(toolBar, event->pos());
    QMenu *const menu = m_window->createPopupMenu();
    if (!menu || menu->isEmpty()) {
        delete menu;
        return true;
    }
    menu->setAttribute(Qt::WA_DeleteOnClose);
    extend(menu);
    menu->popup(event->globalPos());
    event->accept();
    return true;
}

// The window has set that attribute for the menu, and deletes it.
void ToolBarMenu::extendShown()
{
    QMenu *const menu = qobject_cast<QMenu *>(sender());
    if (m_isWaiting && menu->testAttribute(Qt::WA_DeleteOnClose))
        extend(menu);
}

void ToolBarMenu::extend(QMenu *menu)
{
    if (!m_toolBar || !m_kit->hasMenu(m_toolBar))
        return;
    m_kit->giveTitles();
    connect(menu, SIGNAL(aboutToHide()), m_kit, SLOT(takeTitlesBack()));
    const QScopedPointer<QMenu> ofQt(m_window->QMainWindow::createPopupMenu());
    if (ofQt && contentOf(menu) == contentOf(ofQt.data())) {
        addAll(menu, menu);
        return;
    }
    QMenu *const submenu = new QMenu(tr("Toolbars"), menu);
    addToolBars(submenu, menu);
    addAll(submenu, menu);
    separate(menu);
    menu->addMenu(submenu);
}

// The program's own menu has those of its toolbars that the user may hide.
void ToolBarMenu::addToolBars(QMenu *target, const QMenu *shown) const
{
    const auto inMenu = shown->actions();
    const auto toolBars = ToolBarPlaces::toolBarsIn(m_window);
    for (const QToolBar *toolBar : toolBars) {
        if (m_kit->hasMenu(toolBar) && m_kit->recordOf(toolBar).custom
            && !inMenu.contains(toolBar->toggleViewAction()))
            target->addAction(toolBar->toggleViewAction());
    }
}

void ToolBarMenu::addAll(QMenu *target, const QMenu *shown)
{
    const KitLook look = m_kit->recordOf(m_toolBar).look;
    separate(target);
    addIconSizes(target->addMenu(tr("Icon size")), look);
    addTextPositions(target->addMenu(tr("Text position")), look);
    if (m_kit->isAnyMovable()) {
        QAction *const lock = target->addAction(tr("Lock toolbars"));
        lock->setCheckable(true);
        lock->setChecked(m_kit->isLocked());
        connect(lock, SIGNAL(triggered(bool)), this, SLOT(lockChosen(bool)));
    }
    separate(target);
    if (m_kit->canRemove(m_toolBar, m_index))
        addRemove(target);
    if (m_kit->manager->isDefaultToolBar(m_toolBar)) {
        QAction *const reset =
            target->addAction(tr("Reset this toolbar"), this, SLOT(resetToolBar()));
        reset->setEnabled(m_kit->canReset(m_toolBar));
    }
    if (!shown->actions().contains(m_kit->customizeAction)) {
        separate(target);
        target->addAction(m_kit->customizeAction);
    }
}

void ToolBarMenu::addIconSizes(QMenu *menu, const KitLook &look)
{
    addChoices(menu,
               {{tr("As the program has it"), 0},
                {tr("Small (%1)").arg(16), 16},
                {tr("Medium (%1)").arg(22), 22},
                {tr("Large (%1)").arg(32), 32},
                {tr("Very large (%1)").arg(48), 48}},
               look.iconSize, this, SLOT(iconSizeChosen(QAction *)));
}

void ToolBarMenu::addTextPositions(QMenu *menu, const KitLook &look)
{
    addChoices(menu,
               {{tr("As the program has it"), QString()},
                {tr("Icons only"), QStringLiteral("icons")},
                {tr("Text only"), QStringLiteral("text")},
                {tr("Text beside icons"), QStringLiteral("beside")},
                {tr("Text under icons"), QStringLiteral("under")}},
               look.textPosition, this, SLOT(textPositionChosen(QAction *)));
}

void ToolBarMenu::addRemove(QMenu *menu)
{
    QAction *const remove = menu->addAction(tr("Remove from toolbar"), this, SLOT(removeEntry()));
    if (!m_kit->isRequired(m_entry))
        return;
    remove->setToolTip(RyToolBarKit::tr("If you remove it, it returns at the next start."));
    menu->setToolTipsVisible(true);
}

void ToolBarMenu::iconSizeChosen(QAction *action)
{
    if (!m_toolBar)
        return;
    KitLook look = m_kit->recordOf(m_toolBar).look;
    look.iconSize = action->data().toInt();
    m_kit->setLook(m_toolBar, look);
}

void ToolBarMenu::textPositionChosen(QAction *action)
{
    if (!m_toolBar)
        return;
    KitLook look = m_kit->recordOf(m_toolBar).look;
    look.textPosition = action->data().toString();
    m_kit->setLook(m_toolBar, look);
}

void ToolBarMenu::lockChosen(bool locked)
{
    m_kit->setLocked(locked);
}

// The program may have changed the toolbar while the menu was open.
void ToolBarMenu::removeEntry()
{
    if (m_toolBar && m_entry && m_toolBar->actions().value(m_index) == m_entry)
        m_kit->removeEntry(m_toolBar, m_index);
}

void ToolBarMenu::resetToolBar()
{
    if (m_toolBar)
        m_kit->resetToolBar(m_toolBar);
}
