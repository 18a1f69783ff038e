// SPDX-License-Identifier: MIT

#include "managercomparison.h"

#include "printedwarnings.h"

#include <algorithm>

namespace {

template <typename Map> std::vector<typename Map::key_type> keysOf(const Map &map)
{
    std::vector<typename Map::key_type> keys;
    for (const auto &entry : map)
        keys.push_back(entry.first);
    return keys;
}

template <typename List> std::vector<typename List::value_type> vectorOf(const List &list)
{
    return {list.begin(), list.end()};
}

} // namespace

ManagerComparison::ManagerComparison(Stage *stage, Differences *differences)
    : m_stage(stage)
    , m_differences(differences)
{
}

void ManagerComparison::run()
{
    compareRegistry();
    compareToolBars();
    compareWorld();
    compareState();
    m_differences->compare("emitted signals", 0, m_stage->emitted);
    m_differences->compare("warnings", m_stage->managerModel.takeWarnings(),
                           PrintedWarnings::take());
}

void ManagerComparison::compareRegistry()
{
    const ManagerModel &model = m_stage->managerModel;
    const RyToolBarManager &manager = m_stage->manager;
    m_differences->compare("mainWindow()", model.mainWindow, manager.mainWindow());
    const auto actions = manager.actions();
    std::vector<QAction *> sorted = vectorOf(actions);
    std::sort(sorted.begin(), sorted.end(), std::less<QAction *>());
    m_differences->compare("actions()", keysOf(model.registered), sorted);
    for (QAction *action : m_stage->actions) {
        const auto category = model.registered.find(action);
        m_differences->compare("actionCategory()",
                               category == model.registered.end() ? QString() : category->second,
                               manager.actionCategory(action));
    }
    m_differences->compare("categories()", keysOf(model.categories),
                           vectorOf(manager.categories()));
    for (int i = 0; i < 5; ++i) {
        const QString name = Stage::category(i);
        const auto category = model.categories.find(name);
        const bool known = category != model.categories.end();
        m_differences->compare("hasCategory()", int(known), int(manager.hasCategory(name)));
        compareContent("categoryActions()", known ? category->second : Content(),
                       manager.categoryActions(name));
    }
}

void ManagerComparison::compareToolBars()
{
    const RyToolBarManager &manager = m_stage->manager;
    const auto &expected = m_stage->managerModel.toolBars;
    m_differences->compare("toolBars()", keysOf(expected), vectorOf(manager.toolBars()));
    m_differences->compare("keys of toolBarsActions()", keysOf(expected),
                           vectorOf(manager.toolBarsActions().keys()));
    for (const auto &entry : expected)
        compareToolBar(entry.first, entry.second);
    for (QToolBar *toolBar : m_stage->toolBars) {
        if (!expected.count(toolBar)) {
            m_differences->compare("isDefaultToolBar()", 0, int(manager.isDefaultToolBar(toolBar)));
            compareContent("actions() of a stranger", {}, manager.actions(toolBar));
        }
    }
}

void ManagerComparison::compareToolBar(QToolBar *toolBar, const ManagerModel::ToolBar &expected)
{
    const RyToolBarManager &manager = m_stage->manager;
    const auto defaults = manager.defaultToolBars();
    m_differences->compare("isDefaultToolBar()", int(expected.isDefault),
                           int(manager.isDefaultToolBar(toolBar)));
    m_differences->compare("key of defaultToolBars()", int(expected.isDefault),
                           int(defaults.contains(toolBar)));
    compareContent("defaultToolBars()", expected.defaultContent, defaults.value(toolBar));
    compareContent("toolBarsActions()", expected.content, manager.toolBarsActions().value(toolBar));
    compareContent("actions()", expected.content, manager.actions(toolBar));
}

void ManagerComparison::compareContent(const char *what, const Content &expected,
                                       const QList<QAction *> &found)
{
    if (!std::equal(expected.begin(), expected.end(), found.begin(), found.end()))
        m_differences->compare(what, expected, vectorOf(found));
}

void ManagerComparison::compareState()
{
    const SavedLayout found = SavedLayout::of(m_stage->manager.saveState(7));
    const SavedLayout expected = m_stage->managerModel.save(7);
    if (!expected.matches(found))
        m_differences->add("saveState()", expected.fields().join(' '), found.fields().join(' '));
}

void ManagerComparison::compareWorld()
{
    const WorldModel &world = m_stage->world;
    for (const auto &entry : world.actions) {
        m_differences->compare("objectName of an action", entry.second.objectName,
                               entry.first->objectName());
        m_differences->compare("text of an action", entry.second.text, entry.first->text());
    }
    for (QMainWindow &window : m_stage->windows) {
        std::vector<QToolBar *> children;
        for (QObject *child : window.children()) {
            if (QToolBar *const toolBar = qobject_cast<QToolBar *>(child))
                children.push_back(toolBar);
        }
        m_differences->compare("toolbars of a window", world.windows.at(&window), children);
    }
    // What is gone or not known must not be followed.
    if (!m_differences->lines.isEmpty())
        return;
    for (const auto &entry : world.toolBars)
        compareWidget(entry.first, entry.second);
    compareDeletedSeparators();
}

void ManagerComparison::compareWidget(QToolBar *toolBar, const WorldModel::ToolBar &expected)
{
    m_differences->compare("objectName", expected.objectName, toolBar->objectName());
    m_differences->compare("windowTitle", expected.title, toolBar->windowTitle());
    m_differences->compare("area", int(Qt::TopToolBarArea),
                           int(expected.window->toolBarArea(toolBar)));
    comparePlaced(toolBar, expected);
}

// A separator of the same number must still be the same action.
void ManagerComparison::comparePlaced(QToolBar *toolBar, const WorldModel::ToolBar &expected)
{
    const auto found = toolBar->actions();
    Content actions;
    for (int place = 0; place < found.size(); ++place) {
        QAction *const action = found.at(place);
        actions.push_back(action->isSeparator() ? nullptr : action);
    }
    Content expectedActions;
    for (const WorldModel::Placed &placed : expected.placed)
        expectedActions.push_back(placed.action);
    m_differences->compare("actions on a toolbar", expectedActions, actions);
    if (expectedActions != actions)
        return;
    for (std::size_t place = 0; place < actions.size(); ++place) {
        const int number = expected.placed[place].separator;
        if (!number)
            continue;
        QAction *const separator = found.at(static_cast<int>(place));
        const auto known = m_separators.emplace(number, separator).first;
        m_differences->compare("separator", known->second.data(), separator);
    }
}

void ManagerComparison::compareDeletedSeparators()
{
    for (int number : m_stage->world.deletedSeparators) {
        m_differences->compare("deleted separator", static_cast<QAction *>(nullptr),
                               m_separators[number].data());
        m_separators.erase(number);
    }
    m_stage->world.deletedSeparators.clear();
}
