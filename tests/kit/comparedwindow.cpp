// SPDX-License-Identifier: MIT

#include "comparedwindow.h"

#include "openedmenu.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLayout>
#include <QMenuBar>

namespace {

// Drawing would take most of the time.
void showNowhere(QWidget *widget)
{
    widget->setAttribute(Qt::WA_DontShowOnScreen);
    widget->setUpdatesEnabled(false);
}

QStringList sorted(const QSet<QString> &names)
{
    QStringList all = names.values();
    all.sort();
    return all;
}

void replace(QWidget *widget, QAction *former, QAction *now)
{
    widget->insertAction(former, now); // at the end if the user has removed it
    widget->removeAction(former);
}

// What the menus of toolbars call the sizes and positions.
const QMap<int, QString> Sizes = {{16, "Small (16)"}, {22, "Medium (22)"}, {48, "Very large (48)"}};
const QMap<QString, QString> Positions = {
    {"icons", "Icons only"}, {"text", "Text only"}, {"under", "Text under icons"}};
const QMap<Qt::ToolButtonStyle, QString> Styles = {{Qt::ToolButtonIconOnly, "icons"},
                                                   {Qt::ToolButtonTextOnly, "text"},
                                                   {Qt::ToolButtonTextUnderIcon, "under"}};

QString described(int size, const QString &position)
{
    return (size == 0 ? QString() : QString(" (%1)").arg(size))
        + (position.isEmpty() ? QString() : " (" + position + ')');
}

} // namespace

const QStringList ComparedWindow::MenuActions = {"x", "y"};

ComparedWindow::ComparedWindow(const QString &settings, const QString &key)
{
    program.key = key;
    if (!settings.isEmpty())
        program.settings.reset(new QSettings(settings, QSettings::IniFormat));
}

void ComparedWindow::start(const KitModel::Release &release, const KitModel::Layout &stored,
                           const KitModel::Steps &steps)
{
    m_release = release;
    program.start([this](QMainWindow *window) { build(window); });
    model.start(release, stored, steps);
}

void ComparedWindow::end()
{
    program.end();
    const auto former = m_formerActions.children();
    qDeleteAll(former);
}

void ComparedWindow::build(QMainWindow *window)
{
    showNowhere(window);
    window->resize(1200, 900);
    window->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QObject::connect(program.kit(), &RyToolBarKit::aboutToCustomize, showNowhere);
    window->menuBar()->addMenu("Menu")->setObjectName("menu");
    if (m_release.actions.contains(MenuActions.first()))
        addMenu(window);
    const QStringList actions = sorted(m_release.actions);
    for (const QString &name : actions)
        addActionOf(window, name);
    const QStringList toolBars = m_release.toolBars.keys();
    for (const QString &name : toolBars)
        addToolBar(window, name);
    m_required = window->findChild<QAction *>(m_release.required);
    program.kit()->setRequired(m_required);
}

void ComparedWindow::addMenu(QMainWindow *window)
{
    QMenu *const menu = window->menuBar()->addMenu("Plugin");
    menu->setObjectName("plugin");
    for (const QString &name : MenuActions)
        addAction(menu, name)->setParent(menu);
}

void ComparedWindow::addActionOf(QMainWindow *window, const QString &name)
{
    if (!MenuActions.contains(name))
        setFormerName(name, addAction(window->findChild<QMenu *>("menu"), name));
}

void ComparedWindow::addToolBar(QMainWindow *window, const QString &name)
{
    QToolBar *const toolBar = new QToolBar(name, window);
    toolBar->setObjectName(name);
    const QStringList content = m_release.toolBars.value(name);
    for (const QString &entry : content) {
        QAction *const action = window->findChild<QAction *>(entry);
        if (entry == "|")
            toolBar->addSeparator();
        else if (action)
            toolBar->addAction(action);
    }
    window->addToolBar(toolBar);
    setFormerName(name, toolBar);
}

void ComparedWindow::setFormerName(const QString &name, QObject *object)
{
    if (m_release.formerNames.contains(name))
        program.kit()->setFormerNames(object, {m_release.formerNames.value(name)});
}

void ComparedWindow::change(const KitModel::Release &release)
{
    const KitModel::Release before = m_release;
    m_release = release;
    for (auto it = before.toolBars.cbegin(); it != before.toolBars.cend(); ++it) {
        if (!release.toolBars.contains(it.key()))
            delete program.toolBar(it.key());
    }
    const QString ofMenu = MenuActions.first();
    if (before.actions.contains(ofMenu) && !release.actions.contains(ofMenu))
        delete program.window()->findChild<QMenu *>("plugin");
    if (!before.actions.contains(ofMenu) && release.actions.contains(ofMenu))
        addMenu(program.window());
    const QStringList lost = sorted(before.actions - release.actions);
    for (const QString &name : lost)
        delete program.action(name);
    const QStringList gained = sorted(release.actions - before.actions);
    for (const QString &name : gained)
        addActionOf(program.window(), name);
    for (auto it = release.toolBars.cbegin(); it != release.toolBars.cend(); ++it) {
        if (!before.toolBars.contains(it.key()))
            addToolBar(program.window(), it.key());
    }
    letTheKitFollow();
    model.change(release);
}

void ComparedWindow::exchange(const QString &name)
{
    QAction *const former = program.action(name);
    QAction *const now = new QAction(former->text(), former->parent());
    now->setObjectName(name);
    former->setParent(&m_formerActions);
    const auto menus = program.window()->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        if (menu->actions().contains(former))
            replace(menu, former, now);
    }
    for (auto it = m_release.toolBars.cbegin(); it != m_release.toolBars.cend(); ++it) {
        if (model.isDefaultOn(it.key(), name))
            replace(program.toolBar(it.key()), former, now);
    }
    letTheKitFollow();
    setFormerName(name, now); // for layouts that are saved and older
}

// A program that hides its toolbars for a while does not change the layout.
void ComparedWindow::hideForAWhile(const QString &name)
{
    QToolBar *const toolBar = program.toolBar(name);
    const bool wasHidden = toolBar->isHidden();
    toolBar->hide();
    program.kit()->saveLayout();
    toolBar->setVisible(!wasHidden);
}

void ComparedWindow::edit(RyToolBarManager *manager, const QString &toolBar,
                          const QStringList &content)
{
    manager->setToolBar(program.toolBar(toolBar), program.actionsOf(content.join(" ")));
    model.edit(toolBar, content);
}

QString ComparedWindow::create(RyToolBarManager *manager, const QString &title,
                               const QStringList &content)
{
    QToolBar *const toolBar = manager->createToolBar(title);
    manager->setToolBar(toolBar, program.actionsOf(content.join(" ")));
    model.create(toolBar->objectName(), title, content);
    return toolBar->objectName();
}

void ComparedWindow::remove(RyToolBarManager *manager, const QString &toolBar)
{
    manager->deleteToolBar(program.toolBar(toolBar));
    model.remove(toolBar);
}

void ComparedWindow::hideOrShow(const QString &toolBar)
{
    program.toolBar(toolBar)->toggleViewAction()->trigger();
    model.hide(toolBar, !model.isHidden(toolBar));
}

// Nothing is chosen where the user cannot click.
bool ComparedWindow::chooseInMenuOf(const QString &name, QAction *entry, const QString &text)
{
    program.window()->layout()->activate();
    QToolBar *const toolBar = program.toolBar(name);
    const QWidget *const widget = entry ? toolBar->widgetForAction(entry) : toolBar;
    const QPoint center = widget->mapTo(program.window(), widget->rect().center());
    const QWidget *const there = program.window()->childAt(center);
    if (!widget->isVisible() || (there != toolBar && !toolBar->isAncestorOf(there)))
        return false;
    chooseInMenu(toolBar, entry, text);
    return true;
}

void ComparedWindow::chooseIconSize(const QString &toolBar, int size)
{
    if (chooseInMenuOf(toolBar, nullptr, Sizes.value(size)))
        model.chooseIconSize(toolBar, size);
}

void ComparedWindow::chooseTextPosition(const QString &toolBar, const QString &position)
{
    if (chooseInMenuOf(toolBar, nullptr, Positions.value(position)))
        model.chooseTextPosition(toolBar, position);
}

void ComparedWindow::lockOrUnlock(const QString &toolBar)
{
    if (chooseInMenuOf(toolBar, nullptr, "Lock toolbars"))
        model.lock(!model.isLocked());
}

void ComparedWindow::removeEntry(const QString &toolBar, int index)
{
    QStringList content = model.content(toolBar);
    content.removeAt(index);
    if (chooseInMenuOf(toolBar, program.toolBar(toolBar)->actions().at(index),
                       "Remove from toolbar"))
        model.edit(toolBar, content);
}

void ComparedWindow::reset(const QString &toolBar)
{
    if (!model.isCustom(toolBar) && chooseInMenuOf(toolBar, nullptr, "Reset this toolbar"))
        model.reset(toolBar);
}

bool ComparedWindow::switchToProfile(const QString &name, const KitModel::Layout &profile)
{
    if (!program.kit()->switchToProfile(name))
        return false;
    model.restore(profile, m_required && m_required == program.action(m_required->objectName()));
    return true;
}

QString ComparedWindow::difference()
{
    const int count = program.window()->findChildren<QToolBar *>().size();
    if (text() != programText() || count != model.toolBars().size())
        return "expected " + text() + "\n  but    " + programText();
    if (hasFormerActions())
        return "a toolbar has a former action";
    const auto toolBars = program.window()->findChildren<QToolBar *>();
    for (const QToolBar *toolBar : toolBars) {
        if (toolBar->isMovable() == model.isLocked())
            return "the lock of " + toolBar->objectName() + " is wrong";
    }
    if (program.kit()->undoAction()->isEnabled() == model.steps().undo.isEmpty()
        || program.kit()->redoAction()->isEnabled() == model.steps().redo.isEmpty())
        return QString("expected %1 and %2 steps")
            .arg(model.steps().undo.size())
            .arg(model.steps().redo.size());
    if (program.kit()->isDefault() && !model.isDefault())
        return "it is not the default";
    saved = program.kit()->saveLayout();
    layout = model.layout();
    return QString();
}

QString ComparedWindow::text() const
{
    QStringList lines;
    const QStringList toolBars = model.toolBars();
    for (const QString &name : toolBars) {
        lines << name + described(model.iconSize(name), model.textPosition(name))
                + (model.isHidden(name) ? " (hidden): " : ": ") + model.content(name).join(" ");
    }
    return lines.join("; ");
}

QString ComparedWindow::programText() const
{
    QStringList lines;
    const QStringList toolBars = model.toolBars();
    for (const QString &name : toolBars) {
        const QToolBar *const toolBar = program.toolBar(name);
        lines << name + (toolBar ? lookOf(toolBar) : QString())
                + (!toolBar                  ? " is missing"
                       : toolBar->isHidden() ? " (hidden): " + program.content(name)
                                             : ": " + program.content(name));
    }
    return lines.join("; ");
}

QString ComparedWindow::lookOf(const QToolBar *toolBar) const
{
    const QMainWindow *const window = program.window();
    const int size = toolBar->iconSize().width();
    const Qt::ToolButtonStyle style = toolBar->toolButtonStyle();
    return described(size == window->iconSize().width() ? 0 : size,
                     style == window->toolButtonStyle() ? QString() : Styles.value(style));
}

bool ComparedWindow::hasFormerActions() const
{
    const auto toolBars = program.window()->findChildren<QToolBar *>();
    for (const QToolBar *toolBar : toolBars) {
        const auto actions = toolBar->actions();
        for (const QAction *action : actions) {
            if (action->parent() == &m_formerActions)
                return true;
        }
    }
    return false;
}

void ComparedWindow::storeNow()
{
    QCloseEvent event;
    QCoreApplication::sendEvent(program.window(), &event);
}
