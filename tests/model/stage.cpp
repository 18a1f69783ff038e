// SPDX-License-Identifier: MIT

#include "stage.h"

#include <QPixmap>

#include <algorithm>

namespace {

const int ActionLimit = 8;
const int ToolBarLimit = 8;

template <std::size_t Count> QString pick(const char *const (&names)[Count], int number)
{
    return QString::fromUtf8(names[static_cast<std::size_t>(number) % Count]);
}

const QIcon &someIcon()
{
    static const QIcon icon = [] {
        QPixmap pixmap(8, 8);
        pixmap.fill(Qt::red);
        return QIcon(pixmap);
    }();
    return icon;
}

} // namespace

Stage::Stage()
    : managerModel(&world)
    , editorModel(&world, &managerModel)
    , m_separator(new QAction)
    , m_stranger(new QAction("Stranger"))
{
    m_separator->setSeparator(true);
    const auto count = [this] { ++emitted; };
    QObject::connect(&manager, &RyToolBarManager::toolBarCreated, count);
    QObject::connect(&manager, &RyToolBarManager::toolBarRemoved, count);
    QObject::connect(&manager, &RyToolBarManager::toolBarChanged, count);
    for (QMainWindow &window : windows)
        world.windows[&window];
}

Stage::~Stage()
{
    qDeleteAll(actions);
}

QMainWindow *Stage::window(int number)
{
    return number % 3 ? &windows[number % 3 - 1] : nullptr;
}

// After the host's actions a separator action and one that is never registered.
QAction *Stage::action(int number) const
{
    const std::size_t count = actions.size();
    const std::size_t place = static_cast<std::size_t>(number) % (count + 3);
    if (place == 0)
        return nullptr;
    if (place <= count)
        return actions[place - 1];
    return place == count + 1 ? m_separator.get() : m_stranger.get();
}

QToolBar *Stage::toolBar(int number) const
{
    const std::size_t place = static_cast<std::size_t>(number) % (toolBars.size() + 1);
    return place == 0 ? nullptr : toolBars[place - 1];
}

Content Stage::content(const std::vector<int> &numbers) const
{
    Content content;
    for (int number : numbers)
        content.push_back(action(number));
    return content;
}

QString Stage::category(int number)
{
    static const char *const names[] = {"File", "Edit", "", "\u00c4", "Zoom"};
    return pick(names, number);
}

QString Stage::title(int number)
{
    static const char *const names[] = {"File",       "Edit", "Custom Toolbar", "", "view",
                                        "\u00c4 bar", "a b"};
    return pick(names, number);
}

QString Stage::toolBarName(int number)
{
    static const char *const names[] = {"file",
                                        "edit",
                                        "",
                                        "_Custom_Toolbar_1",
                                        "view",
                                        "_Custom_Toolbar_2",
                                        "_Custom_Toolbar_3",
                                        "_Custom_Toolbar_01"};
    return pick(names, number);
}

QString Stage::anyToolBarName(int number)
{
    if (number % 3 == 0)
        return title(number / 3);
    return number % 3 == 1 ? toolBarName(number / 3)
                           : QString("_Custom_Toolbar_%1").arg(1 + number / 3 % 5);
}

// Several actions may have the name "same".
QString Stage::actionName(int slot, int number)
{
    static const char *const names[] = {"act%1", "new%1", "", "same"};
    return pick(names, number).replace("%1", QString::number(slot));
}

QString Stage::actionText(int slot, int number)
{
    static const char *const texts[] = {"Act %1", "&Text %1", "act%1", "", "\u00c4 %1"};
    const QString text = pick(texts, number);
    // The text of one action may be the objectName of another one.
    const int shown = number % 5 == 2 ? (slot + 1) % ActionLimit : slot;
    return text.isEmpty() ? text : text.arg(shown);
}

QString Stage::anyActionName(int number)
{
    const int slot = number / 10 % (ActionLimit + 1);
    const int kind = number % 10;
    if (kind < 2)
        return QString();
    return kind < 6 ? actionName(slot, kind - 2) : actionText(slot, kind - 6);
}

void Stage::addAction()
{
    if (actions.size() >= ActionLimit)
        return;
    actions.push_back(nullptr);
    recreateAction(static_cast<int>(actions.size()) - 1);
}

void Stage::recreateAction(int slot)
{
    QAction *&action = actions[static_cast<std::size_t>(slot)];
    manager.removeAction(action);
    managerModel.removeAction(action);
    world.removeAction(action);
    delete action;
    action = new QAction(actionText(slot, 0), nullptr);
    action->setObjectName(actionName(slot, slot % 4 == 3 ? 2 : 0));
    if (slot % 2)
        action->setIcon(someIcon());
    world.actions[action] = {action->objectName(), action->text()};
}

QToolBar *Stage::addToolBar(QMainWindow *window, const QString &name, const QString &title)
{
    if (toolBars.size() >= ToolBarLimit)
        return nullptr;
    QToolBar *const toolBar = window->addToolBar(title);
    toolBar->setObjectName(name);
    world.addToolBar(toolBar, {name, title, window, {}});
    toolBars.push_back(toolBar);
    return toolBar;
}

bool Stage::isInEditor(QToolBar *toolBar) const
{
    return std::any_of(editorModel.records.begin(), editorModel.records.end(),
                       [toolBar](const auto &entry) { return entry.second.toolBar == toolBar; });
}

std::deque<QToolBar *> Stage::unknownToolBars() const
{
    std::deque<QToolBar *> unknown;
    for (const QMainWindow &window : windows) {
        for (QObject *child : window.children()) {
            QToolBar *const toolBar = qobject_cast<QToolBar *>(child);
            if (toolBar && !world.toolBars.count(toolBar))
                unknown.push_back(toolBar);
        }
    }
    return unknown;
}

void Stage::updateToolBars()
{
    const auto isGone = [this](QToolBar *toolBar) { return !world.toolBars.count(toolBar); };
    toolBars.erase(std::remove_if(toolBars.begin(), toolBars.end(), isGone), toolBars.end());
    for (const auto &window : world.windows) {
        for (QToolBar *toolBar : window.second) {
            if (std::find(toolBars.begin(), toolBars.end(), toolBar) == toolBars.end())
                toolBars.push_back(toolBar);
        }
    }
}

QList<QAction *> listOf(const Content &content)
{
    QList<QAction *> list;
    list.reserve(static_cast<int>(content.size()));
    for (QAction *action : content)
        list.append(action);
    return list;
}
