// SPDX-License-Identifier: MIT

#include "hoststeps.h"

#include <cstdlib>

namespace {

const std::size_t StateLimit = 6;

// Gives out the numbers of a step one by one, and 0 when there are no more.
class Numbers
{
public:
    explicit Numbers(const Step &step)
        : m_step(step)
    {
    }

    int next() { return m_step.number(m_place++); }

private:
    const Step &m_step;
    std::size_t m_place = 0;
};

QStringList namesFrom(Numbers &numbers)
{
    QStringList names;
    for (int left = numbers.next() % 5; left > 0; --left)
        names.append(Stage::anyActionName(numbers.next()));
    return names;
}

SavedLayout layoutFrom(Numbers &numbers)
{
    SavedLayout layout;
    layout.version = numbers.next() % 2;
    for (int left = numbers.next() % 4; left > 0; --left) {
        const QString name = Stage::anyToolBarName(numbers.next());
        layout.defaults.push_back({name, QString(), namesFrom(numbers)});
    }
    for (int left = numbers.next() % 4; left > 0; --left) {
        const QString name = Stage::anyToolBarName(numbers.next());
        const QString title = Stage::title(numbers.next());
        layout.customs.push_back({name, title, namesFrom(numbers)});
    }
    return layout;
}

} // namespace

HostSteps::HostSteps(Stage *stage, Differences *differences)
    : m_stage(stage)
    , m_differences(differences)
{
}

HostSteps::~HostSteps()
{
    for (void *block : m_blocks)
        std::free(block);
}

bool HostSteps::run(const Step &step)
{
    return runForObjects(step) || runForActions(step) || runForToolBars(step) || runForStates(step);
}

bool HostSteps::runForObjects(const Step &step)
{
    switch (step.kind) {
    case Step::MainWindow:
        return setMainWindow(step), true;
    case Step::NewAction:
        return m_stage->addAction(), true;
    case Step::RecreateAction:
        return recreateAction(step), true;
    case Step::NameAction:
        return nameAction(step), true;
    case Step::TextAction:
        return textAction(step), true;
    case Step::NewToolBar:
        return newToolBar(step), true;
    case Step::DropToolBar:
        return dropToolBar(step), true;
    case Step::NameToolBar:
        return nameToolBar(step), true;
    case Step::TitleToolBar:
        return titleToolBar(step), true;
    case Step::Place:
        return place(m_stage->toolBar(step.number(0)), m_stage->action(step.number(1))), true;
    case Step::TakeOff:
        return takeOff(step), true;
    case Step::Scatter:
        return scatter(step.number(0)), true;
    default:
        return false;
    }
}

bool HostSteps::runForActions(const Step &step)
{
    switch (step.kind) {
    case Step::AddAction:
        return addAction(step), true;
    case Step::RemoveAction:
        return removeAction(step), true;
    case Step::AddCategory:
        return addCategory(step), true;
    case Step::Find:
        return find(step), true;
    default:
        return false;
    }
}

bool HostSteps::runForToolBars(const Step &step)
{
    switch (step.kind) {
    case Step::AddDefault:
        return addDefault(step), true;
    case Step::RemoveDefault:
        return removeDefault(step), true;
    case Step::Create:
        return create(step), true;
    case Step::Delete:
        return deleteToolBar(step), true;
    case Step::Set:
        return set(step), true;
    case Step::SetTwo:
        return setTwo(step), true;
    case Step::Reset:
        return reset(step), true;
    case Step::ResetAll:
        return resetAll(), true;
    default:
        return false;
    }
}

bool HostSteps::runForStates(const Step &step)
{
    switch (step.kind) {
    case Step::Save:
        return save(step), true;
    case Step::Restore:
        return restoreSaved(step), true;
    case Step::RestoreMade:
        return restoreMade(step), true;
    default:
        return false;
    }
}

void HostSteps::setMainWindow(const Step &step)
{
    QMainWindow *const window = m_stage->window(step.number(0));
    m_stage->manager.setMainWindow(window);
    m_stage->managerModel.mainWindow = window;
}

// The editor keeps the actions that it was filled with.
void HostSteps::recreateAction(const Step &step)
{
    if (m_stage->editorModel.filled || m_stage->actions.empty())
        return;
    m_stage->recreateAction(step.number(0) % static_cast<int>(m_stage->actions.size()));
}

void HostSteps::nameAction(const Step &step)
{
    if (m_stage->actions.empty())
        return;
    const int slot = step.number(0) % static_cast<int>(m_stage->actions.size());
    QAction *const action = m_stage->actions[static_cast<std::size_t>(slot)];
    const QString name = Stage::actionName(slot, step.number(1));
    action->setObjectName(name);
    m_stage->world.actions[action].objectName = name;
}

void HostSteps::textAction(const Step &step)
{
    if (m_stage->actions.empty())
        return;
    const int slot = step.number(0) % static_cast<int>(m_stage->actions.size());
    QAction *const action = m_stage->actions[static_cast<std::size_t>(slot)];
    const QString text = Stage::actionText(slot, step.number(1));
    action->setText(text);
    m_stage->world.actions[action].text = text;
}

void HostSteps::newToolBar(const Step &step)
{
    QToolBar *const toolBar =
        m_stage->addToolBar(&m_stage->windows[step.number(0) % 2],
                            Stage::toolBarName(step.number(0)), Stage::title(step.number(1)));
    for (QAction *action : m_stage->content(step.from(2)))
        place(toolBar, action);
}

void HostSteps::dropToolBar(const Step &step)
{
    QToolBar *const toolBar = m_stage->toolBar(step.number(0));
    if (!toolBar || m_stage->managerModel.isManaged(toolBar) || m_stage->isInEditor(toolBar))
        return;
    m_stage->world.removeToolBar(toolBar);
    delete toolBar;
}

void HostSteps::nameToolBar(const Step &step)
{
    QToolBar *const toolBar = m_stage->toolBar(step.number(0));
    if (!toolBar)
        return;
    toolBar->setObjectName(Stage::toolBarName(step.number(1)));
    m_stage->world.toolBars[toolBar].objectName = Stage::toolBarName(step.number(1));
}

void HostSteps::titleToolBar(const Step &step)
{
    QToolBar *const toolBar = m_stage->toolBar(step.number(0));
    if (!toolBar)
        return;
    toolBar->setWindowTitle(Stage::title(step.number(1)));
    m_stage->world.toolBars[toolBar].title = Stage::title(step.number(1));
}

// Separators are the toolbar's own; the action that is one already could be on two.
void HostSteps::place(QToolBar *toolBar, QAction *action)
{
    if (!toolBar || (action && !m_stage->world.actions.count(action)))
        return;
    if (action)
        toolBar->addAction(action);
    else
        toolBar->addSeparator();
    m_stage->world.append(toolBar, action);
}

void HostSteps::takeOff(const Step &step)
{
    QToolBar *const toolBar = m_stage->toolBar(step.number(0));
    if (!toolBar || m_stage->world.toolBars[toolBar].placed.empty())
        return;
    const auto &placed = m_stage->world.toolBars[toolBar].placed;
    const std::size_t place = static_cast<std::size_t>(step.number(1)) % placed.size();
    toolBar->removeAction(toolBar->actions().at(static_cast<int>(place)));
    m_stage->world.take(toolBar, WorldModel::Placed(placed[place]));
}

// Leaves free blocks of the sizes of toolbars and the editor's records here and there.
void HostSteps::scatter(int seed)
{
    const std::size_t sizes[] = {sizeof(QToolBar), 16, sizeof(QAction)};
    const std::size_t first = m_blocks.size();
    for (int i = 0; i < 60; ++i)
        m_blocks.push_back(std::malloc(sizes[i % 3]));
    unsigned state = static_cast<unsigned>(seed);
    for (std::size_t left = m_blocks.size(); left > first + 30; --left) {
        state = state * 1664525u + 1013904223u;
        std::swap(m_blocks[first + (state >> 16) % (left - first)], m_blocks[left - 1]);
        std::free(m_blocks[left - 1]);
        m_blocks.pop_back();
    }
}

void HostSteps::addAction(const Step &step)
{
    QAction *const action = m_stage->action(step.number(0));
    const bool isStranger =
        action && !action->isSeparator() && !m_stage->world.actions.count(action);
    if (isStranger)
        return;
    m_stage->manager.addAction(action, Stage::category(step.number(1)));
    m_stage->managerModel.addAction(action, Stage::category(step.number(1)));
}

void HostSteps::removeAction(const Step &step)
{
    QAction *const action = m_stage->action(step.number(0));
    m_stage->manager.removeAction(action);
    m_stage->managerModel.removeAction(action);
}

void HostSteps::addCategory(const Step &step)
{
    m_stage->manager.addCategory(Stage::category(step.number(0)));
    m_stage->managerModel.addCategory(Stage::category(step.number(0)));
}

void HostSteps::addDefault(const Step &step)
{
    QToolBar *const toolBar = m_stage->toolBar(step.number(0));
    m_stage->manager.addDefaultToolBar(toolBar, Stage::category(step.number(1)));
    m_stage->managerModel.addDefaultToolBar(toolBar, Stage::category(step.number(1)));
}

void HostSteps::removeDefault(const Step &step)
{
    QToolBar *const toolBar = m_stage->toolBar(step.number(0));
    m_stage->manager.removeDefaultToolBar(toolBar);
    m_stage->managerModel.removeDefaultToolBar(toolBar);
}

void HostSteps::create(const Step &step)
{
    if (m_stage->toolBars.size() >= 12)
        return;
    QToolBar *const made = m_stage->manager.createToolBar(Stage::title(step.number(0)));
    std::deque<QToolBar *> known;
    if (made)
        known.push_back(made);
    QToolBar *const expected =
        m_stage->managerModel.createToolBar(Stage::title(step.number(0)), known);
    m_differences->compare("createToolBar()", expected, made);
}

// The editor keeps the toolbars that it was filled with.
void HostSteps::deleteToolBar(const Step &step)
{
    QToolBar *const toolBar = m_stage->toolBar(step.number(0));
    if (m_stage->isInEditor(toolBar) && !m_stage->managerModel.isDefaultToolBar(toolBar))
        return;
    m_stage->manager.deleteToolBar(toolBar);
    m_stage->managerModel.deleteToolBar(toolBar);
}

void HostSteps::set(const Step &step)
{
    QToolBar *const toolBar = m_stage->toolBar(step.number(0));
    Content content = m_stage->content(step.from(2));
    const auto managed = m_stage->managerModel.toolBars.find(toolBar);
    if (step.number(1) % 4 == 0 && managed != m_stage->managerModel.toolBars.end()) {
        const Content &present = managed->second.content;
        content.insert(content.begin(), present.begin(), present.end());
    }
    m_stage->manager.setToolBar(toolBar, listOf(content));
    m_stage->managerModel.setToolBar(toolBar, content);
}

void HostSteps::setTwo(const Step &step)
{
    std::map<QToolBar *, Content> requests;
    QMap<QToolBar *, QList<QAction *>> lists;
    for (std::size_t place = 0; place < 2; ++place) {
        QToolBar *const toolBar = m_stage->toolBar(step.number(place));
        requests[toolBar] = m_stage->content(step.from(2 + place));
        lists[toolBar] = listOf(requests[toolBar]);
    }
    m_stage->manager.setToolBars(lists);
    m_stage->managerModel.setToolBars(requests);
}

void HostSteps::reset(const Step &step)
{
    QToolBar *const toolBar = m_stage->toolBar(step.number(0));
    m_stage->manager.resetToolBar(toolBar);
    m_stage->managerModel.resetToolBar(toolBar);
}

void HostSteps::resetAll()
{
    m_stage->manager.resetAllToolBars();
    m_stage->managerModel.resetAllToolBars();
}

void HostSteps::find(const Step &step)
{
    const QString name = Stage::anyToolBarName(step.number(0));
    m_differences->compare("findDefaultToolBar()", m_stage->managerModel.findDefaultToolBar(name),
                           m_stage->manager.findDefaultToolBar(name));
    m_differences->compare("toolBarByName()", m_stage->managerModel.toolBarByName(name),
                           m_stage->manager.toolBarByName(name));
    const QString actionName = Stage::anyActionName(step.number(0));
    m_stage->managerModel.searchOrder = m_stage->manager.actions().values();
    m_differences->compare("findAction()", m_stage->managerModel.findAction(actionName),
                           m_stage->manager.findAction(actionName));
}

void HostSteps::save(const Step &step)
{
    const int version = step.number(0) % 2;
    const State state{m_stage->manager.saveState(version), m_stage->managerModel.save(version)};
    if (m_states.size() == StateLimit)
        m_states.erase(m_states.begin());
    m_states.push_back(state);
}

void HostSteps::restoreSaved(const Step &step)
{
    if (m_states.empty())
        return;
    State state = m_states[static_cast<std::size_t>(step.number(0)) % m_states.size()];
    const int version = state.layout.version + step.number(1) % 2;
    switch (step.number(2) % 8) {
    case 1:
        state.layout.marker = 254;
        break;
    case 2:
        state.layout.defaultMarker = 0xFD;
        break;
    case 3:
        state.layout.customMarker = 0xFE;
        break;
    case 4:
        // Past the end a marker reads as zero.
        state.layout.defaultMarker = 0;
        return restore(state.bytes.left(8), state.layout, version);
    case 5:
        return restore(state.bytes + QByteArray("more"), state.layout, version);
    default:
        return restore(state.bytes, state.layout, version);
    }
    restore(state.layout.bytes(), state.layout, version);
}

void HostSteps::restoreMade(const Step &step)
{
    Numbers numbers(step);
    const SavedLayout layout = layoutFrom(numbers);
    restore(layout.bytes(), layout, 0);
}

void HostSteps::restore(const QByteArray &bytes, const SavedLayout &layout, int version)
{
    if (m_stage->toolBars.size() >= 12)
        return;
    m_stage->managerModel.searchOrder = m_stage->manager.actions().values();
    const bool done = m_stage->manager.restoreState(bytes, version);
    std::deque<QToolBar *> made = m_stage->unknownToolBars();
    m_differences->compare("restoreState()",
                           int(m_stage->managerModel.restore(layout, version, made)), int(done));
}
