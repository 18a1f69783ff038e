// SPDX-License-Identifier: MIT

#include "dialogsteps.h"

#include "editorcomparison.h"
#include "toolbaritem.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <algorithm>

namespace {

const Qt::Key Keys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_F2};

Content contentOf(const QList<QAction *> &list)
{
    return {list.begin(), list.end()};
}

int clamped(int row, int count)
{
    return std::max(0, std::min(row, count - 1));
}

} // namespace

DialogSteps::DialogSteps(Stage *stage, Differences *differences)
    : m_stage(stage)
    , m_differences(differences)
    , m_model(stage->editorModel)
{
}

DialogSteps::~DialogSteps() = default;

void DialogSteps::run(const Step &step)
{
    if (step.kind == Step::Open)
        open(step);
    else if (step.kind == Step::Destroy)
        destroy();
    else if (step.kind == Step::Idle)
        QCoreApplication::processEvents();
    else if (m_visible)
        runOnDialog(step);
    RealDialog::settle();
}

void DialogSteps::runOnDialog(const Step &step)
{
    switch (step.kind) {
    case Step::Hide:
        m_real->dialog.hide();
        return leave(m_result);
    case Step::Close:
        m_real->dialog.close();
        return leave(QDialog::Rejected);
    case Step::Tab:
        return changeTab(step);
    case Step::Ok:
        return pressOk();
    case Step::Apply:
        return pressApply();
    case Step::Cancel:
        return pressCancel();
    case Step::Defaults:
        return pressDefaults();
    case Step::Escape:
        return pressEscape();
    case Step::Minimize:
        return m_real->minimizeAndRestore();
    default:
        if (isPageShown())
            runOnPage(step);
    }
}

void DialogSteps::runOnPage(const Step &step)
{
    switch (step.kind) {
    case Step::Button:
        return pressButton(step.number(0) % EditorModel::ButtonCount);
    case Step::Row:
    case Step::RowTwice:
        return clickRow(step, step.kind == Step::RowTwice);
    case Step::Entry:
    case Step::EntryTwice:
        return clickEntry(step, step.kind == Step::EntryTwice);
    case Step::Item:
    case Step::ItemTwice:
        return clickItem(step, step.kind == Step::ItemTwice);
    case Step::Key:
        return pressKey(step);
    case Step::Type:
        return type(step);
    case Step::Return:
        return pressReturn();
    default:
        return;
    }
}

void DialogSteps::open(const Step &step)
{
    if (m_visible)
        return;
    if (!m_real) {
        m_real = std::make_unique<RealDialog>(&m_stage->manager);
        m_tab = 0;
        m_result = 0;
    }
    const bool asOpen = step.number(0) % 2;
    m_real->show(asOpen);
    if (asOpen)
        m_result = 0;
    m_visible = true;
    updatePage();
}

void DialogSteps::destroy()
{
    m_real.reset();
    m_visible = false;
    m_model.reset();
}

void DialogSteps::leave(int result)
{
    m_visible = false;
    m_result = result;
    updatePage();
}

void DialogSteps::changeTab(const Step &step)
{
    m_tab = step.number(0) % 2;
    m_real->clickTab(m_tab);
    updatePage();
}

// The page is filled whenever it is shown and cleared whenever it is hidden.
void DialogSteps::updatePage()
{
    if (isPageShown() == m_model.filled)
        return;
    if (m_model.filled)
        return m_model.clear();
    learnOrder();
    std::map<QToolBar *, ToolBarItem *> records;
    const auto recordOfToolBar = m_real->fields().recordOfToolBar;
    for (const auto &entry : m_stage->managerModel.toolBars) {
        records[entry.first] = recordOfToolBar.value(entry.first);
        if (!records[entry.first])
            m_differences->add("filled", "a record", "none");
    }
    m_model.fill(records);
}

void DialogSteps::pressButton(int button)
{
    if (button == EditorModel::New)
        return pressNew();
    m_real->click(m_real->button(button));
    learnOrder();
    switch (button) {
    case EditorModel::Remove:
        return m_model.removeClicked();
    case EditorModel::Rename:
        return m_model.renameClicked();
    case EditorModel::Up:
        return m_model.upClicked();
    case EditorModel::Left:
        return m_model.leftClicked();
    case EditorModel::Right:
        return m_model.rightClicked();
    default:
        return m_model.downClicked();
    }
}

void DialogSteps::pressNew()
{
    m_real->click(m_real->button(EditorModel::New));
    learnOrder();
    const auto created = m_real->fields().createdRecords;
    for (ToolBarItem *record : created) {
        if (!m_model.created.count(record))
            return m_model.newClicked(record);
    }
    m_differences->add("New", "a record", "none");
}

// Below the in-place editor no row can be clicked; everywhere else a click takes the focus from it.
void DialogSteps::clickRow(const Step &step, bool twice)
{
    if (m_model.rows.empty())
        return;
    const int row = step.number(0) % static_cast<int>(m_model.rows.size());
    if (m_model.editing && m_model.rowOf(m_model.editing) == row)
        return;
    m_real->click(m_real->views.toolBarList, row, twice);
    learnOrder();
    m_model.commitEditing();
    m_model.selectRow(row);
    if (twice)
        m_model.beginEditing();
}

void DialogSteps::clickEntry(const Step &step, bool twice)
{
    if (m_model.entries.empty())
        return;
    const int row = step.number(0) % static_cast<int>(m_model.entries.size());
    m_real->click(m_real->views.currentToolBarList, row, twice);
    learnOrder();
    m_model.commitEditing();
    m_model.selectEntry(row);
    if (twice)
        m_model.leftClicked();
}

void DialogSteps::clickItem(const Step &step, bool twice)
{
    std::vector<std::pair<EditorModel::Category *, EditorModel::Item>> items;
    for (EditorModel::Category &category : m_model.tree) {
        items.emplace_back(&category, category.item);
        for (const EditorModel::Item &action : category.actions)
            items.emplace_back(&category, action);
    }
    const auto chosen = items[static_cast<std::size_t>(step.number(0)) % items.size()];
    QTreeWidgetItem *const item = itemOf(chosen.second);
    if (!item)
        return m_differences->add("action tree", chosen.second.text, "no item");
    m_real->click(item, twice);
    learnOrder();
    m_model.commitEditing();
    m_model.selectItem(chosen.second);
    EditorModel::Category &category = *chosen.first;
    // An action's item has to be seen for a click.
    if (!(chosen.second == category.item))
        category.expanded = true;
    else if (twice && !category.actions.empty())
        category.expanded = !category.expanded;
    if (twice)
        m_model.rightClicked();
}

QTreeWidgetItem *DialogSteps::itemOf(const EditorModel::Item &item) const
{
    if (!item.isCategory)
        return m_real->fields().treeItemOfAction.value(item.action);
    const auto actionOfTreeItem = m_real->fields().actionOfTreeItem;
    QTreeWidget *const tree = m_real->views.actionTree;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const found = tree->topLevelItem(i);
        if (found->text(0) == item.text && !actionOfTreeItem.contains(found))
            return found;
    }
    return nullptr;
}

void DialogSteps::pressKey(const Step &step)
{
    const int key = step.number(1) % 5;
    const bool amongToolBars = step.number(0) % 2 == 0;
    if (m_model.editing || (!amongToolBars && Keys[key] == Qt::Key_F2))
        return;
    QListWidget *const list =
        amongToolBars ? m_real->views.toolBarList : m_real->views.currentToolBarList;
    list->setFocus();
    m_real->press(list, Keys[key]);
    learnOrder();
    if (Keys[key] == Qt::Key_F2)
        m_model.beginEditing();
    else
        moveCurrent(list, key);
}

void DialogSteps::moveCurrent(QListWidget *list, int key)
{
    const bool amongToolBars = list == m_real->views.toolBarList;
    const int count =
        static_cast<int>(amongToolBars ? m_model.rows.size() : m_model.entries.size());
    if (count == 0)
        return;
    const int row = amongToolBars ? m_model.currentRow() : m_model.currentEntry;
    const int rows[] = {row - 1, row + 1, 0, count - 1};
    if (amongToolBars)
        m_model.selectRow(clamped(rows[key], count));
    else
        m_model.selectEntry(clamped(rows[key], count));
}

void DialogSteps::type(const Step &step)
{
    if (!m_model.editing)
        return;
    m_real->type(Stage::title(step.number(0)));
    m_model.type(Stage::title(step.number(0)));
}

void DialogSteps::pressReturn()
{
    if (!m_model.editing)
        return;
    if (QLineEdit *const editor = m_real->renameEditor())
        m_real->press(editor, Qt::Key_Return);
    RealDialog::settle();
    learnOrder();
    m_model.commitEditing();
}

void DialogSteps::pressEscape()
{
    QWidget *const editor = m_real->renameEditor();
    m_real->press(editor ? editor : &m_real->dialog, Qt::Key_Escape);
    if (m_model.editing)
        return m_model.cancelEditing();
    leave(QDialog::Rejected);
}

void DialogSteps::pressOk()
{
    m_real->click(m_real->dialog.okButton());
    apply();
    leave(QDialog::Accepted);
}

void DialogSteps::pressApply()
{
    m_real->click(m_real->dialog.applyButton());
    learnOrder();
    apply();
}

void DialogSteps::pressCancel()
{
    const auto *const box = m_real->dialog.findChild<QDialogButtonBox *>();
    m_real->click(box->button(QDialogButtonBox::Cancel));
    leave(QDialog::Rejected);
}

void DialogSteps::pressDefaults()
{
    QPushButton *const button = m_real->dialog.RestoreDefaultButton();
    // The press takes the focus from an open editor; where its row goes must be seen before rows
    // go.
    QTest::mousePress(button, Qt::LeftButton);
    learnOrder();
    m_model.commitEditing();
    QTest::mouseRelease(button, Qt::LeftButton);
    learnOrder();
    m_model.restoreDefaults();
}

void DialogSteps::apply()
{
    m_model.commitEditing();
    m_model.apply(madeToolBars());
}

// The last toolbars of the window, each with the record that it was made for.
std::vector<std::pair<ToolBarItem *, QToolBar *>> DialogSteps::madeToolBars() const
{
    std::vector<QToolBar *> made;
    if (const QMainWindow *const window = m_stage->managerModel.mainWindow) {
        for (QObject *child : window->children()) {
            if (QToolBar *const toolBar = qobject_cast<QToolBar *>(child))
                made.push_back(toolBar);
        }
    }
    const auto count = std::min(made.size(), m_model.created.size());
    made.erase(made.begin(), made.end() - static_cast<std::ptrdiff_t>(count));
    std::vector<std::pair<ToolBarItem *, QToolBar *>> pairs;
    std::set<ToolBarItem *> left = m_model.created;
    for (QToolBar *toolBar : made) {
        pairs.emplace_back(recordOf(toolBar, left), toolBar);
        left.erase(pairs.back().first);
    }
    for (ToolBarItem *record : left)
        pairs.emplace_back(record, nullptr);
    return pairs;
}

// OK has freed the records; those of the same name and content are as good as each other then.
ToolBarItem *DialogSteps::recordOf(QToolBar *toolBar, const std::set<ToolBarItem *> &records) const
{
    const auto owned = m_real->fields().ownedRecords;
    const Content content = contentOf(m_stage->manager.actions(toolBar));
    for (ToolBarItem *record : records) {
        if (owned.contains(record) && record->toolBar() == toolBar)
            return record;
    }
    for (ToolBarItem *record : records) {
        if (!owned.contains(record) && m_model.records[record].name == toolBar->windowTitle()
            && m_stage->managerModel.placeable(m_model.working[record]) == content)
            return record;
    }
    return *records.begin();
}

void DialogSteps::learnOrder()
{
    const EditorFields fields = m_real->fields();
    std::vector<ToolBarItem *> rows;
    const QListWidget *const list = m_real->views.toolBarList;
    for (int row = 0; row < list->count(); ++row)
        rows.push_back(fields.recordOfListItem.value(list->item(row)));
    std::vector<QAction *> items;
    for (QTreeWidgetItemIterator it(m_real->views.actionTree); *it; ++it) {
        if (fields.actionOfTreeItem.contains(*it))
            items.push_back(fields.actionOfTreeItem.value(*it));
    }
    m_model.setTieOrder(rows, items);
}

void DialogSteps::compare()
{
    if (!m_real)
        return;
    m_differences->compare("visible dialog", int(m_visible), int(m_real->dialog.isVisible()));
    m_differences->compare("tab", m_tab, m_real->tabs->currentIndex());
    m_differences->compare("result()", m_result, m_real->dialog.result());
    EditorComparison(m_model, *m_real, m_differences).run();
}
