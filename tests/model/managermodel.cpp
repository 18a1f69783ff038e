// SPDX-License-Identifier: MIT

#include "managermodel.h"

#include <algorithm>
#include <set>

namespace {

void removeAll(Content &content, QAction *action)
{
    content.erase(std::remove(content.begin(), content.end(), action), content.end());
}

bool contains(const Content &content, QAction *action)
{
    return std::find(content.begin(), content.end(), action) != content.end();
}

// A text for %s is in the local encoding and ends at its first null character.
QString shown(const QString &name)
{
    return QString::fromUtf8(name.toLocal8Bit().constData());
}

QString notFound(const char *className, const char *property, const QString &name)
{
    return QString("RyToolBarManager::restoreState(): cannot find a %1 named '%2', trying to match "
                   "using '%3' instead.")
        .arg(className, shown(name), property);
}

QString notFoundAtAll(const char *className, const char *property, const QString &name)
{
    return QString("RyToolBarManager::restoreState(): cannot find a %1 with matching '%2' (looking "
                   "for '%3').")
        .arg(className, property, shown(name));
}

QString noObjectName(const char *className, const void *address, const QString &name,
                     const char *property)
{
    return QString("RyToolBarManager::saveState(): 'objectName' not set for %1 %2 '%3', using '%4' "
                   "instead")
        .arg(className, QString::asprintf("%p", address), shown(name), property);
}

} // namespace

ManagerModel::ManagerModel(WorldModel *world)
    : m_world(world)
{
}

// Null, separators and strangers are no actions of the world.
void ManagerModel::addAction(QAction *action, const QString &category)
{
    if (!m_world->actions.count(action) || registered.count(action))
        return;
    registered[action] = category;
    categories[category].push_back(action);
}

void ManagerModel::removeAction(QAction *action)
{
    if (!registered.count(action))
        return;
    for (auto &entry : toolBars) {
        if (contains(entry.second.content, action))
            m_world->take(entry.first, {action, 0});
        removeAll(entry.second.content, action);
        removeAll(entry.second.defaultContent, action);
        auto &placed = entry.second.placed;
        placed.erase(std::remove(placed.begin(), placed.end(), WorldModel::Placed{action, 0}),
                     placed.end());
    }
    const auto category = categories.find(registered[action]);
    registered.erase(action);
    if (category == categories.end())
        return;
    removeAll(category->second, action);
    if (category->second.empty())
        categories.erase(category);
}

void ManagerModel::addCategory(const QString &category)
{
    categories[category].clear();
}

QAction *ManagerModel::findAction(const QString &name)
{
    for (QAction *action : searchOrder) {
        if (m_world->actions[action].objectName == name)
            return action;
    }
    m_warnings << notFound("QAction", "text", name);
    for (QAction *action : searchOrder) {
        if (m_world->actions[action].text == name)
            return action;
    }
    m_warnings << notFoundAtAll("QAction", "text", name);
    return nullptr;
}

void ManagerModel::addDefaultToolBar(QToolBar *toolBar, const QString &category)
{
    if (!toolBar || isManaged(toolBar))
        return;
    ToolBar managed{true, {}, {}, {}};
    for (const WorldModel::Placed &placed : m_world->toolBars[toolBar].placed) {
        addAction(placed.action, category);
        managed.content.push_back(placed.action);
        managed.placed.push_back(placed);
    }
    managed.defaultContent = managed.content;
    toolBars[toolBar] = managed;
}

// Inverted on purpose: default toolbars stay.
void ManagerModel::removeDefaultToolBar(QToolBar *toolBar)
{
    if (isDefaultToolBar(toolBar))
        return;
    setToolBar(toolBar, {});
    toolBars.erase(toolBar);
}

QToolBar *ManagerModel::createToolBar(const QString &title, std::deque<QToolBar *> &made)
{
    if (!mainWindow || made.empty())
        return nullptr;
    QToolBar *const toolBar = made.front();
    made.pop_front();
    int number = 1;
    while (toolBarByName(QString("_Custom_Toolbar_%1").arg(number)))
        ++number;
    const QString name = QString("_Custom_Toolbar_%1").arg(number);
    m_world->addToolBar(toolBar, {name, title, mainWindow, {}});
    toolBars[toolBar] = {false, {}, {}, {}};
    return toolBar;
}

void ManagerModel::deleteToolBar(QToolBar *toolBar)
{
    if (!isManaged(toolBar) || isDefaultToolBar(toolBar))
        return;
    toolBars.erase(toolBar);
    m_world->removeToolBar(toolBar);
}

void ManagerModel::setToolBar(QToolBar *toolBar, const Content &request)
{
    if (!isManaged(toolBar) || toolBars[toolBar].content == request)
        return;
    ToolBar &managed = toolBars[toolBar];
    managed.content = placeable(request);
    for (const WorldModel::Placed &placed : managed.placed) {
        m_world->take(toolBar, placed);
        m_world->deleteSeparator(placed);
    }
    managed.placed.clear();
    for (QAction *action : managed.content)
        managed.placed.push_back(m_world->append(toolBar, action));
}

Content ManagerModel::placeable(const Content &request) const
{
    Content content;
    for (QAction *action : request) {
        if (!action || (registered.count(action) && !contains(content, action)))
            content.push_back(action);
    }
    return content;
}

void ManagerModel::setToolBars(const std::map<QToolBar *, Content> &requests)
{
    for (const auto &request : requests)
        setToolBar(request.first, request.second);
}

void ManagerModel::resetToolBar(QToolBar *toolBar)
{
    if (isDefaultToolBar(toolBar))
        setToolBar(toolBar, Content(toolBars[toolBar].defaultContent));
}

void ManagerModel::resetAllToolBars()
{
    for (const auto &entry : toolBars)
        resetToolBar(entry.first);
}

bool ManagerModel::isManaged(QToolBar *toolBar) const
{
    return toolBars.count(toolBar);
}

bool ManagerModel::isDefaultToolBar(QToolBar *toolBar) const
{
    return isManaged(toolBar) && toolBars.at(toolBar).isDefault;
}

QToolBar *ManagerModel::toolBarByName(const QString &objectName) const
{
    for (const auto &entry : toolBars) {
        if (m_world->toolBars[entry.first].objectName == objectName)
            return entry.first;
    }
    return nullptr;
}

QToolBar *ManagerModel::findDefaultToolBar(const QString &name)
{
    for (const auto &entry : toolBars) {
        if (entry.second.isDefault && m_world->toolBars[entry.first].objectName == name)
            return entry.first;
    }
    m_warnings << notFound("QToolBar", "windowTitle", name);
    for (const auto &entry : toolBars) {
        if (entry.second.isDefault && m_world->toolBars[entry.first].title == name)
            return entry.first;
    }
    m_warnings << notFoundAtAll("QToolBar", "windowTitle", name);
    return nullptr;
}

SavedLayout ManagerModel::save(int version)
{
    SavedLayout layout;
    layout.version = version;
    for (const auto &entry : toolBars) {
        if (!entry.second.isDefault)
            continue;
        const QString name = savedName(entry.first);
        layout.defaults.push_back({name, QString(), savedNames(entry.second.content)});
    }
    for (const auto &entry : toolBars) {
        if (entry.second.isDefault)
            continue;
        const WorldModel::ToolBar &toolBar = m_world->toolBars[entry.first];
        layout.customs.push_back(
            {toolBar.objectName, toolBar.title, savedNames(entry.second.content)});
    }
    return layout;
}

QStringList ManagerModel::savedNames(const Content &content)
{
    QStringList names;
    for (QAction *action : content)
        names.append(action ? savedName(action) : QString());
    return names;
}

QString ManagerModel::savedName(QToolBar *toolBar)
{
    const WorldModel::ToolBar &state = m_world->toolBars[toolBar];
    if (!state.objectName.isEmpty())
        return state.objectName;
    m_warnings << noObjectName("QToolBar", toolBar, state.title, "windowTitle");
    return state.title;
}

QString ManagerModel::savedName(QAction *action)
{
    const WorldModel::Action &state = m_world->actions[action];
    if (!state.objectName.isEmpty())
        return state.objectName;
    m_warnings << noObjectName("QAction", action, state.text, "text");
    return state.text;
}

bool ManagerModel::restore(const SavedLayout &layout, int version, std::deque<QToolBar *> &made)
{
    if (layout.marker != 255 || layout.version != version || layout.defaultMarker != 0xFE)
        return false;
    for (const SavedLayout::ToolBar &record : layout.defaults) {
        const Content content = readContent(record.actions);
        if (QToolBar *const toolBar = findDefaultToolBar(record.objectName))
            setToolBar(toolBar, content);
    }
    if (layout.customMarker != 0xFD)
        return false;
    for (const SavedLayout::ToolBar &record : layout.customs)
        restoreCustom(record, made);
    return true;
}

void ManagerModel::restoreCustom(const SavedLayout::ToolBar &record, std::deque<QToolBar *> &made)
{
    const Content content = readContent(record.actions);
    QToolBar *toolBar = toolBarByName(record.objectName);
    if (toolBar)
        m_world->toolBars[toolBar].title = record.title;
    else
        toolBar = createToolBar(record.title, made);
    if (!toolBar)
        return;
    m_world->toolBars[toolBar].objectName = record.objectName;
    setToolBar(toolBar, content);
}

Content ManagerModel::readContent(const QStringList &names)
{
    Content content;
    for (const QString &name : names) {
        QAction *const action = name.isEmpty() ? nullptr : findAction(name);
        if (name.isEmpty() || action)
            content.push_back(action);
    }
    return content;
}

QStringList ManagerModel::takeWarnings()
{
    const QStringList warnings = m_warnings;
    m_warnings.clear();
    return warnings;
}
