// SPDX-License-Identifier: MIT

#include "rytoolbarkitprivate.h"

#include "menuactions.h"
#include "mergedentries.h"
#include "toolbarlooks.h"
#include "toolbarmenu.h"
#include "toolbarplaces.h"

#include <QAction>
#include <QActionEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QUrl>
#include <QWidgetAction>

#include <algorithm>

namespace {

const int StoreDelay = 500; // milliseconds without another move of a toolbar

// For actions that are registered but in no category.
const char *const HiddenCategory = "RyToolBarKit";

bool isPath(const QString &text)
{
    return QDir::isAbsolutePath(text) || text.contains(QLatin1String("://"));
}

bool hasDigitAsMnemonic(const QString &text)
{
    const int index = text.indexOf(QLatin1Char('&'));
    return index >= 0 && index + 1 < text.size() && text.at(index + 1).isDigit();
}

// The best text that a widget on a toolbar has.
QString textOfWidget(const QWidget *widget)
{
    const char *const names[] = {"windowTitle", "accessibleName", "placeholderText",
                                 "toolTip",     "statusTip",      "text"};
    for (const char *name : names) {
        QString text = StableNames::plainText(widget->property(name).toString());
        if (!text.isEmpty())
            return text;
    }
    if (!widget->objectName().isEmpty())
        return StableNames::inWords(widget->objectName());
    return widget->metaObject() == &QWidget::staticMetaObject
        ? RyToolBarKit::tr("Space")
        : QString::fromLatin1(widget->metaObject()->className());
}

bool isShownByProgram(const QToolBar *toolBar)
{
    return !toolBar->testAttribute(Qt::WA_WState_ExplicitShowHide) || !toolBar->isHidden();
}

} // namespace

RyToolBarKitPrivate::RyToolBarKitPrivate(RyToolBarKit *kit, QMainWindow *window, bool printProblems)
    : features(RyToolBarKit::AllFeatures)
    , customizeAction(new QAction(RyToolBarKit::tr("Customize Toolbars…"), kit))
    , undoAction(new QAction(RyToolBarKit::tr("Undo Toolbar Change"), kit))
    , redoAction(new QAction(RyToolBarKit::tr("Redo Toolbar Change"), kit))
    , areProfilesShown(false)
    , m_kit(kit)
    , m_window(window)
    , m_printProblems(printProblems)
    , m_menus(nullptr)
    , m_looks(nullptr)
    , m_toolBarMenu(nullptr)
    , m_actionNames(window)
    , m_toolBarNames(window)
    , m_isRestored(false)
    , m_dialog(nullptr)
    , m_rowsInDialog(nullptr)
    , m_isReset(false)
{
    customizeAction->setObjectName(QStringLiteral("customizeToolBars"));
    undoAction->setObjectName(QStringLiteral("undoToolBars"));
    redoAction->setObjectName(QStringLiteral("redoToolBars"));
    showSteps();
    connect(undoAction, SIGNAL(triggered()), this, SLOT(undo()));
    connect(redoAction, SIGNAL(triggered()), this, SLOT(redo()));
    connect(customizeAction, SIGNAL(triggered()), this, SLOT(customize()));
    m_updateTimer.setSingleShot(true);
    m_storeTimer.setSingleShot(true);
    m_storeTimer.setInterval(StoreDelay);
    connect(&m_updateTimer, SIGNAL(timeout()), this, SLOT(update()));
    connect(&m_storeTimer, SIGNAL(timeout()), this, SLOT(storeChanges()));
    if (!window)
        return;
    m_menus = new MenuActions(window, this);
    connect(m_menus, SIGNAL(changed()), &m_updateTimer, SLOT(start()));
    m_looks = new ToolBarLooks(window, this);
    connect(m_looks, SIGNAL(unlockedByProgram()), this, SLOT(unlock()));
    m_toolBarMenu = new ToolBarMenu(window, this);
    connect(qApp, SIGNAL(aboutToQuit()), this, SLOT(storeNow()));
    window->installEventFilter(this);
    if (window->isVisible())
        m_updateTimer.start();
}

RyToolBarKitPrivate::~RyToolBarKitPrivate()
{
    // A window that is being deleted is no main window any more.
    if (qobject_cast<QMainWindow *>(m_kit->parent())) {
        if (m_dialog)
            m_dialog->reject();
        storeNow();
    }
    giveUpManager();
}

bool RyToolBarKitPrivate::findEverything()
{
    if (!m_window || manager)
        return false;
    const QString name = m_window->objectName();
    store.setDefault(name.isEmpty() ? QLatin1String(m_window->metaObject()->className()) : name);
    createManager();
    if (m_printProblems) {
        const QStringList all = problems();
        for (const QString &problem : all)
            qWarning("RyToolBarKit: %s", qPrintable(problem));
    }
    m_printProblems = false;
    return true;
}

void RyToolBarKitPrivate::createManager()
{
    manager = new RyToolBarManager;
    manager->setMainWindow(m_window);
    m_actionNames = StableNames(m_window);
    m_toolBarNames = StableNames(m_window);
    findMenus();
    findToolBars();
}

// One of its own calls may be the reason.
void RyToolBarKitPrivate::giveUpManager()
{
    if (manager)
        manager->deleteLater();
    manager = nullptr;
}

// A manager cannot forget a toolbar of the program, so another one takes its place.
void RyToolBarKitPrivate::startAgain()
{
    const bool dialogWasOpen = m_dialog;
    if (m_dialog)
        m_dialog->reject();
    const auto customToolBars = m_customToolBars;
    m_customToolBars.clear();
    for (const QPointer<QToolBar> &toolBar : customToolBars)
        delete toolBar.data();
    recordSteps();
    setToDefaults();
    createManager();
    const QByteArray stored = m_value;
    restore(KitLayout(m_layout));
    m_value = stored; // what is not stored yet still has to be
    changedByProgram();
    if (dialogWasOpen)
        customize();
}

// What is on a toolbar when it is registered becomes its default content.
void RyToolBarKitPrivate::setToDefaults()
{
    RyToolBarManager once;
    const auto toolBars = ToolBarPlaces::toolBarsIn(m_window);
    for (QToolBar *toolBar : toolBars) {
        if (!m_defaults.contains(toolBar))
            continue;
        QList<QAction *> actions;
        const QStringList names = m_defaults.value(toolBar);
        for (const QString &name : names) {
            QAction *const action = static_cast<QAction *>(m_actionNames.object(name));
            if (!name.isNull() && !action)
                continue;
            once.addAction(action, QString());
            actions.append(action);
        }
        once.addDefaultToolBar(toolBar, QString());
        once.setToolBar(toolBar, actions);
    }
}

void RyToolBarKitPrivate::findMenus()
{
    offerHandedOver();
    if (features & RyToolBarKit::FindActions) {
        const auto found = m_menus->find(m_excluded);
        for (const MenuActions::Found &item : found) {
            if (!isOffered(item.action) && !isListEntry(item.action))
                offer(item.action, item.category);
        }
    }
}

void RyToolBarKitPrivate::offerHandedOver()
{
    const auto items = m_handedOver;
    for (const auto &item : items)
        offer(item.first, item.second);
}

// Returns whether there are others.
bool RyToolBarKitPrivate::findToolBars()
{
    if (!(features & RyToolBarKit::FindToolBars))
        return false;
    const auto managed = manager->toolBarsActions();
    const auto toolBars = ToolBarPlaces::toolBarsIn(m_window);
    QList<QToolBar *> added;
    for (QToolBar *toolBar : toolBars) {
        if (managed.contains(toolBar) || m_excluded.contains(toolBar))
            continue;
        addToolBar(toolBar);
        added.append(toolBar);
    }
    if (added.isEmpty())
        return false;
    const auto ofProgram = toolBarNames(manager->defaultToolBars().keys());
    m_placesByProgram =
        ToolBarPlaces::merged(m_placesByProgram, ToolBarPlaces::read(m_window, ofProgram));
    if (m_isRestored) {
        placeAll();
        for (QToolBar *toolBar : toolBars)
            applyVisibility(toolBar);
        applyPlaces();
        for (QToolBar *toolBar : added)
            applyLook(toolBar);
        applyLock();
    }
    return true;
}

bool RyToolBarKitPrivate::isOffered(QAction *action) const
{
    return manager->actions().contains(action);
}

bool RyToolBarKitPrivate::isListEntry(const QAction *action) const
{
    if (m_actionNames.hasName(action))
        return false;
    return action->text().isEmpty() || hasDigitAsMnemonic(action->text()) || isPath(action->text())
        || isPath(action->data().toString()) || isPath(action->toolTip())
        || isPath(action->statusTip());
}

void RyToolBarKitPrivate::offer(QAction *action, const QString &category)
{
    if (!action || action->isSeparator() || isOffered(action))
        return;
    withdrawFormer(action);
    m_actionNames.add(action);
    m_offered.insert(action, action);
    // A window may have thousands, and strings would be parsed for each.
    connect(action, &QObject::destroyed, this, &RyToolBarKitPrivate::actionDestroyed,
            Qt::UniqueConnection);
    if (m_excluded.contains(action))
        keepOutOfDialog(action);
    else
        manager->addAction(action, category);
}

// Programs exchange actions, such as those of another document, and keep the former ones.
void RyToolBarKitPrivate::withdrawFormer(QAction *action)
{
    const QString name = m_actionNames.wantedName(action);
    QAction *const former = m_offered.value(m_actionNames.object(name));
    if (!former || isInUse(former) || isOnToolBar(former, action))
        return;
    manager->removeAction(former);
    m_actionNames.remove(former);
}

// Whether the program still has an action in a menu, or has handed it over.
bool RyToolBarKitPrivate::isInUse(const QAction *action) const
{
    const auto isAction = [action](const QPair<QPointer<QAction>, QString> &item) {
        return item.first == action;
    };
    return m_menus->contains(action)
        || std::any_of(m_handedOver.cbegin(), m_handedOver.cend(), isAction);
}

// Whether the program still has an action on a toolbar, where the user may have removed it.
bool RyToolBarKitPrivate::isOnToolBar(QAction *former, QAction *successor) const
{
    const QString name = m_actionNames.nameOf(former);
    const auto contents = manager->toolBarsActions();
    for (auto it = contents.cbegin(); it != contents.cend(); ++it) {
        QToolBar *const toolBar = it.key();
        if (!m_defaults.value(toolBar).contains(name) || m_takenOff.value(toolBar).contains(name))
            continue;
        const auto onWidget = toolBar->actions();
        const bool isRemovedByUser = !it->contains(former) && !onWidget.contains(successor);
        if (onWidget.contains(former) || isRemovedByUser)
            return true;
    }
    // What is not yet known of a toolbar is on its widget only.
    const auto toolBars = ToolBarPlaces::toolBarsIn(m_window);
    return std::any_of(toolBars.cbegin(), toolBars.cend(), [this, former](QToolBar *toolBar) {
        return toolBar->actions().contains(former) && !manager->actions(toolBar).contains(former);
    });
}

// Adding a category that exists makes it list nothing, and it goes with its last action.
void RyToolBarKitPrivate::keepOutOfDialog(QAction *action)
{
    const QString category = QLatin1String(HiddenCategory);
    QAction last(nullptr);
    manager->addAction(action, category);
    manager->addCategory(category);
    manager->addAction(&last, category);
    manager->removeAction(&last);
}

void RyToolBarKitPrivate::addToolBar(QToolBar *toolBar)
{
    m_toolBarNames.add(toolBar);
    QString category = StableNames::plainText(toolBar->windowTitle());
    if (category.isEmpty())
        category = RyToolBarKit::tr("Other");
    const auto actions = toolBar->actions();
    for (QAction *action : actions) {
        prepareAction(toolBar, action);
        offer(action, category);
    }
    manager->addDefaultToolBar(toolBar, category);
    if (!m_defaults.contains(toolBar)) {
        m_defaults.insert(toolBar, namesOf(manager->actions(toolBar)));
        m_shownByProgram.insert(toolBar, isShownByProgram(toolBar));
    }
    watchToolBar(toolBar);
}

// The dialog has only the text to show an action, and the widget exists only once.
void RyToolBarKitPrivate::prepareAction(QToolBar *toolBar, QAction *action)
{
    const QWidgetAction *const widgetAction = qobject_cast<QWidgetAction *>(action);
    QWidget *const widget = widgetAction ? widgetAction->defaultWidget() : nullptr;
    if (widget && !m_homes.contains(action))
        m_homes.insert(action, toolBar);
    if (action->isSeparator() || !action->text().isEmpty())
        return;
    const QString text = widget ? textOfWidget(widget) : action->toolTip();
    if (text.isEmpty())
        return;
    // Each change of the action makes Qt enable or disable the widget like the action.
    const bool isDisabled = widget && widget->testAttribute(Qt::WA_ForceDisabled);
    action->setText(text);
    if (isDisabled)
        widget->setEnabled(false);
}

void RyToolBarKitPrivate::watchToolBar(QToolBar *toolBar)
{
    m_looks->add(toolBar);
    m_toolBarMenu->watch(toolBar);
    toolBar->installEventFilter(this);
    connect(toolBar, SIGNAL(destroyed(QObject *)), this, SLOT(toolBarDestroyed(QObject *)),
            Qt::UniqueConnection);
    connect(toolBar, SIGNAL(topLevelChanged(bool)), &m_storeTimer, SLOT(start()),
            Qt::UniqueConnection);
    connect(toolBar->toggleViewAction(), SIGNAL(triggered(bool)), this,
            SLOT(visibilityChosen(bool)), Qt::UniqueConnection);
}

// What has come since, and what the program has done to its toolbars.
void RyToolBarKitPrivate::update()
{
    if (!manager) {
        if (m_isRestored)
            startAgain();
        else
            restoreNow();
        return;
    }
    if (m_storeTimer.isActive())
        recordSteps();
    const QSet<QAction *> before = manager->actions();
    findMenus();
    const QSet<const QObject *> changed = m_changedToolBars;
    m_changedToolBars.clear();
    m_newButtons.clear(); // made by the program, which sets their properties itself
    const auto toolBars = manager->toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (changed.contains(toolBar))
            followProgram(toolBar);
    }
    const bool haveOthersCome = manager->actions() != before;
    if (haveOthersCome)
        placeAll();
    if (findToolBars() || haveOthersCome || !changed.isEmpty())
        changedByProgram();
}

// Whatever the manager has not put on a toolbar, the program has.
void RyToolBarKitPrivate::followProgram(QToolBar *toolBar)
{
    QList<QAction *> onWidget; // without separators, which the manager may delete
    QStringList names;
    const auto all = toolBar->actions();
    m_takenOff[toolBar] += namesIn(namesOf(manager->actions(toolBar))) - namesIn(namesOf(all));
    for (QAction *action : all) {
        if (action->isSeparator()) {
            names.append(QString());
            continue;
        }
        prepareAction(toolBar, action);
        offer(action, StableNames::plainText(toolBar->windowTitle()));
        onWidget.append(action);
        names.append(m_actionNames.nameOf(action));
    }
    const QSet<QString> before = namesIn(namesOf(manager->actions(toolBar)));
    const QSet<QString> now = namesIn(names);
    if (before == now)
        return;
    m_takenOff[toolBar] -= now;
    if (m_defaults.contains(toolBar))
        m_defaults[toolBar] = mergedEntries(m_defaults.value(toolBar), names, now - before);
    place(toolBar);
    const QSet<QString> placed = namesIn(namesOf(manager->actions(toolBar)));
    for (QAction *action : onWidget) {
        if (!placed.contains(m_actionNames.nameOf(action)))
            toolBar->removeAction(action);
    }
}

bool RyToolBarKitPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window)
        windowEvent(event);
    else if (QToolBar *const toolBar = qobject_cast<QToolBar *>(watched))
        toolBarEvent(toolBar, event);
    return QObject::eventFilter(watched, event);
}

void RyToolBarKitPrivate::windowEvent(QEvent *event)
{
    const QEvent::Type type = event->type();
    // A window may also be polished while the program still builds it, even in the middle of
    // QMainWindow::restoreState().
    const bool isShown = type == QEvent::Show
        || (type == QEvent::Polish && m_window->testAttribute(Qt::WA_WState_ExplicitShowHide));
    if (isShown)
        restoreNow();
    else if (type == QEvent::Close)
        storeNow();
    else if (manager && (type == QEvent::ChildAdded || type == QEvent::ChildPolished))
        m_updateTimer.start();
}

void RyToolBarKitPrivate::toolBarEvent(QToolBar *toolBar, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Move)
        m_storeTimer.start();
    if (type != QEvent::ActionAdded && type != QEvent::ActionRemoved)
        return;
    QAction *const action = static_cast<QActionEvent *>(event)->action();
    if (type == QEvent::ActionAdded)
        m_newButtons[toolBar].insert(action);
    else if (features & RyToolBarKit::KeepButtons)
        m_buttons.read(toolBar, action);
    followLater(toolBar);
}

void RyToolBarKitPrivate::followLater(const QToolBar *toolBar)
{
    m_changedToolBars.insert(toolBar);
    m_updateTimer.start();
}

void RyToolBarKitPrivate::actionDestroyed(QObject *object)
{
    QAction *const action = m_offered.take(object);
    if (manager)
        manager->removeAction(action);
    m_actionNames.remove(object);
    m_buttons.forget(object);
    m_homes.remove(object);
}

void RyToolBarKitPrivate::toolBarDestroyed(QObject *object)
{
    m_toolBarNames.remove(object);
    m_defaults.remove(object);
    m_takenOff.remove(object);
    m_shownByProgram.remove(object);
    m_looks->forget(object);
    m_changedToolBars.remove(object);
    m_newButtons.remove(object);
    if (!isManaged(object))
        return;
    giveUpManager();
    m_updateTimer.start();
}

// False for a toolbar that the manager itself has deleted.
bool RyToolBarKitPrivate::isManaged(const QObject *object) const
{
    const auto toolBars = manager ? manager->toolBars() : QList<QToolBar *>();
    return std::any_of(toolBars.cbegin(), toolBars.cend(),
                       [object](const QToolBar *toolBar) { return toolBar == object; });
}

void RyToolBarKitPrivate::addActions(const QList<QAction *> &actions, const QString &category)
{
    for (QAction *action : actions) {
        if (!action)
            continue;
        m_handedOver.append({action, category});
        if (manager)
            offer(action, category);
    }
    if (m_isRestored && manager) {
        placeAll();
        changedByProgram();
    }
}

void RyToolBarKitPrivate::setFormerNames(QObject *object, const QStringList &names)
{
    if (!qobject_cast<QAction *>(object) && !qobject_cast<QToolBar *>(object))
        return;
    const auto before = m_formerNames.keys(object);
    for (const QString &name : before)
        m_formerNames.remove(name);
    for (const QString &name : names)
        m_formerNames.insert(name, object);
    if (m_isRestored && manager) {
        placeAll();
        changedByProgram();
    }
}

void RyToolBarKitPrivate::setExcluded(QObject *object)
{
    if (!object)
        return;
    m_excluded.insert(object);
    connect(object, SIGNAL(destroyed(QObject *)), this, SLOT(excludedDestroyed(QObject *)),
            Qt::UniqueConnection);
}

void RyToolBarKitPrivate::excludedDestroyed(QObject *object)
{
    m_excluded.remove(object);
}

void RyToolBarKitPrivate::setRequired(QAction *action)
{
    if (action)
        m_required.append(action);
}

QStringList RyToolBarKitPrivate::problems() const
{
    QStringList all;
    if (!manager)
        return all;
    if (m_window->objectName().isEmpty() && store.isDefault())
        all.append(QStringLiteral("The window has no objectName: give it one that no other window "
                                  "has, because its layout is stored below that name"));
    return all + m_toolBarNames.problems() + m_actionNames.problems();
}
