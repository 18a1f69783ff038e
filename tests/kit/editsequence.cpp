// SPDX-License-Identifier: MIT

#include "editsequence.h"

#include "texts.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QtTest>

namespace {

const QString Separator = "|";

QString joined(const QList<int> &rows)
{
    QStringList texts;
    for (const int row : rows)
        texts << QString::number(row);
    return texts.join(" ");
}

// Two actions have the same text.
QString nameOf(const QTreeWidgetItem *action)
{
    if (!action->parent())
        return Separator;
    const QString text = action->text(0);
    return text == "Back" && action->parent()->text(0) == "Edit" ? "undo" : text.toLower();
}

// The items that can be added, in the order shown.
QList<QTreeWidgetItem *> actionsIn(const QTreeWidget *tree)
{
    QList<QTreeWidgetItem *> actions;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const item = tree->topLevelItem(i);
        if (item->childCount() == 0)
            actions << item;
        for (int j = 0; j < item->childCount(); ++j)
            actions << item->child(j);
    }
    return actions;
}

// The gap is counted while those that leave are still there.
QStringList placed(const QStringList &content, const QList<int> &leaving, const QStringList &names,
                   int gap)
{
    QStringList before;
    QStringList behind;
    for (int row = 0; row < content.size(); ++row) {
        if (!leaving.contains(row))
            (row < gap ? before : behind) << content.at(row);
    }
    return before + names + behind;
}

QStringList at(const QList<int> &rows, const QStringList &content)
{
    QStringList names;
    for (const int row : rows)
        names << content.at(row);
    return names;
}

} // namespace

EditSequence::EditSequence(quint32 seed)
    : m_random(seed)
    , m_host(false)
    , m_drag(m_host.parts, &m_host.dialog)
    , m_tree(m_host.editor.actionTree)
    , m_list(m_host.editor.currentToolBarList)
{
    m_host.show();
    QApplication::setActiveWindow(&m_host.dialog);
}

bool EditSequence::run(int steps)
{
    static const QList<Step> all = {&EditSequence::dragEntriesToGap,
                                    &EditSequence::dragEntriesToToolBar,
                                    &EditSequence::dragEntriesToActions,
                                    &EditSequence::dragActionsToGap,
                                    &EditSequence::dragActionsToToolBar,
                                    &EditSequence::dragActionsToActions,
                                    &EditSequence::abandonDrag,
                                    &EditSequence::dropFromElsewhere,
                                    &EditSequence::cutAndInsert,
                                    &EditSequence::moveUp,
                                    &EditSequence::moveDown,
                                    &EditSequence::removeEntries,
                                    &EditSequence::addActions,
                                    &EditSequence::chooseToolBar,
                                    &EditSequence::createToolBar,
                                    &EditSequence::removeToolBar,
                                    &EditSequence::apply};
    for (int i = 0; i < steps && agree(); ++i)
        (this->*all.at(random(int(all.size()))))();
    apply();
    return agree();
}

void EditSequence::move(const QList<int> &rows, int gap)
{
    content() = placed(content(), rows, at(rows, content()), gap);
}

void EditSequence::moveTo(const QString &toolBar, const QList<int> &rows, int gap)
{
    const QStringList names = at(rows, content());
    remove(rows);
    insert(toolBar, names, gap);
}

// What is there already moves.
void EditSequence::insert(const QString &toolBar, const QStringList &names, int gap)
{
    m_current = toolBar;
    QList<int> leaving;
    for (int row = 0; row < content().size(); ++row) {
        if (content().at(row) != Separator && names.contains(content().at(row)))
            leaving << row;
    }
    content() = placed(content(), leaving, names, gap);
}

void EditSequence::remove(const QList<int> &rows)
{
    content() = placed(content(), rows, QStringList(), 0);
}

QString EditSequence::pickToolBar()
{
    return m_contents.keys().at(random(int(m_contents.size())));
}

void EditSequence::makeAnyCurrent()
{
    if (m_list->count() > 0)
        m_list->setCurrentRow(random(m_list->count()));
}

// In the lower half of the row above it, or in the upper half of the row below.
QPoint EditSequence::pickGap(int gap)
{
    if (m_list->count() == 0)
        return QPoint(5, 5);
    if (gap == 0 || (gap < m_list->count() && random(2) == 0))
        return m_list->visualItemRect(m_list->item(gap)).topLeft() + QPoint(5, 1);
    return m_list->visualItemRect(m_list->item(gap - 1)).bottomLeft() + QPoint(5, -1);
}

// One of them becomes current, as when a user selects them.
QList<int> EditSequence::selectEntries()
{
    QList<int> rows;
    for (int row = 0; row < m_list->count(); ++row) {
        if (random(3) == 0)
            rows << row;
    }
    if (!rows.isEmpty())
        m_list->setCurrentRow(rows.at(random(int(rows.size()))), QItemSelectionModel::NoUpdate);
    m_list->clearSelection();
    for (const int row : rows)
        m_list->item(row)->setSelected(true);
    m_log << "select entries " + joined(rows);
    return rows;
}

QStringList EditSequence::selectActions()
{
    QStringList names;
    QList<QTreeWidgetItem *> selected;
    const auto actions = actionsIn(m_tree);
    for (QTreeWidgetItem *action : actions) {
        if (random(4) != 0)
            continue;
        selected << action;
        names << nameOf(action);
    }
    if (!selected.isEmpty())
        m_tree->setCurrentItem(selected.at(random(int(selected.size()))), 0,
                               QItemSelectionModel::NoUpdate);
    m_tree->clearSelection();
    for (QTreeWidgetItem *action : selected)
        action->setSelected(true);
    m_log << "select actions " + names.join(" ");
    return names;
}

// Pressing a row that is not selected drags it alone.
QList<int> EditSequence::pickEntries()
{
    QList<int> rows = selectEntries();
    m_data.reset();
    if (rows.isEmpty())
        return rows;
    const int pressed = random(m_list->count());
    if (!rows.contains(pressed))
        rows = {pressed};
    m_log << "drag entries " + joined(rows);
    m_data.reset(m_drag.begin(m_list, m_list->model()->index(pressed, 0)));
    return rows;
}

QStringList EditSequence::pickActions()
{
    const QStringList names = selectActions();
    const QModelIndexList selected = m_tree->selectionModel()->selectedIndexes();
    m_data.reset();
    if (!names.isEmpty())
        m_data.reset(m_drag.begin(m_tree, selected.at(random(int(selected.size())))));
    return names;
}

void EditSequence::dropOn(QAbstractItemView *view, const QPoint &place, const QMimeData *data)
{
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(place, actions, data, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(place, actions, data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(place, actions, data, Qt::LeftButton, Qt::NoModifier);
    for (QEvent *event : std::initializer_list<QEvent *>{&enter, &move, &drop})
        QCoreApplication::sendEvent(view->viewport(), event);
    m_drag.end();
}

void EditSequence::dropOnToolBar(const QString &toolBar)
{
    m_log << "drop onto " + toolBar;
    QListWidget *const list = m_host.editor.toolBarList;
    dropOn(list, list->visualItemRect(m_host.toolBarRow(toolBar)).center(), m_data.get());
}

void EditSequence::dragEntriesToGap()
{
    const QList<int> rows = pickEntries();
    const int gap = random(m_list->count() + 1);
    if (rows.isEmpty())
        return;
    m_log << "drop at gap " + QString::number(gap);
    dropOn(m_list, pickGap(gap), m_data.get());
    move(rows, gap);
}

// Their own toolbar refuses them.
void EditSequence::dragEntriesToToolBar()
{
    const QList<int> rows = pickEntries();
    const QString toolBar = pickToolBar();
    if (rows.isEmpty())
        return;
    dropOnToolBar(toolBar);
    if (toolBar != m_current)
        moveTo(toolBar, rows, int(m_contents.value(toolBar).size()));
}

void EditSequence::dragEntriesToActions()
{
    const QList<int> rows = pickEntries();
    if (rows.isEmpty())
        return;
    m_log << "drop onto the actions";
    dropOn(m_tree, QPoint(20, 20), m_data.get());
    remove(rows);
}

void EditSequence::dragActionsToGap()
{
    const QStringList names = pickActions();
    const int gap = random(m_list->count() + 1);
    if (names.isEmpty())
        return;
    m_log << "drop at gap " + QString::number(gap);
    dropOn(m_list, pickGap(gap), m_data.get());
    insert(m_current, names, gap);
}

void EditSequence::dragActionsToToolBar()
{
    const QStringList names = pickActions();
    const QString toolBar = pickToolBar();
    if (names.isEmpty())
        return;
    dropOnToolBar(toolBar);
    insert(toolBar, names, int(m_contents.value(toolBar).size()));
}

void EditSequence::dragActionsToActions()
{
    if (!pickActions().isEmpty())
        dropOn(m_tree, QPoint(20, 20), m_data.get());
}

// Nothing is carried any more when the drop comes.
void EditSequence::abandonDrag()
{
    pickEntries();
    if (!m_data)
        return;
    m_log << "abandon the drag";
    m_drag.end();
    dropOnToolBar(pickToolBar());
}

void EditSequence::dropFromElsewhere()
{
    pickEntries();
    QMimeData data;
    data.setText("text");
    if (random(2) == 0)
        data.setData(ActionDrag::mimeType(), "another window's");
    m_log << "drop from elsewhere";
    const QList<QAbstractItemView *> views = {m_tree, m_list, m_host.editor.toolBarList};
    dropOn(views.at(random(int(views.size()))), QPoint(20, 20), &data);
}

void EditSequence::press(QWidget *view, Qt::Key key)
{
    view->setFocus();
    QTest::keyClick(m_host.dialog.windowHandle(), key, Qt::ControlModifier);
}

void EditSequence::cutAndInsert()
{
    const QList<int> rows = selectEntries();
    if (rows.isEmpty())
        return;
    press(m_list, Qt::Key_X);
    const QString source = m_current;
    const QString target = pickToolBar();
    m_host.makeCurrent(target);
    const bool isBehindCurrent = random(2) == 0;
    int gap = m_list->count();
    if (isBehindCurrent) {
        makeAnyCurrent();
        gap = m_list->currentRow() + 1;
    }
    m_log << QString("cut, and insert into %1 at gap %2").arg(target).arg(gap);
    press(isBehindCurrent ? m_list : m_host.editor.toolBarList, Qt::Key_V);
    if (target == source)
        move(rows, gap);
    else
        moveTo(target, rows, gap);
}

// Those that are apart come together.
void EditSequence::moveUp()
{
    const QList<int> rows = selectEntries();
    const bool isEnabled = m_list->currentRow() > 0;
    if (rows.isEmpty())
        return;
    m_log << "up";
    m_host.editor.click(m_host.editor.upButton);
    if (isEnabled)
        move(rows, qMax(0, rows.first() - 1));
}

void EditSequence::moveDown()
{
    const QList<int> rows = selectEntries();
    const bool isEnabled = m_list->currentRow() < m_list->count() - 1;
    if (rows.isEmpty())
        return;
    m_log << "down";
    m_host.editor.click(m_host.editor.downButton);
    if (isEnabled)
        move(rows, rows.last() + 2);
}

void EditSequence::removeEntries()
{
    const QList<int> rows = selectEntries();
    if (rows.isEmpty())
        return;
    m_log << "remove";
    m_host.editor.click(m_host.editor.leftButton);
    remove(rows);
}

void EditSequence::addActions()
{
    const QStringList names = selectActions();
    const int gap = m_list->currentRow() + 1;
    if (names.isEmpty())
        return;
    m_log << "add at gap " + QString::number(gap);
    m_host.editor.click(m_host.editor.rightButton);
    insert(m_current, names, gap);
}

void EditSequence::chooseToolBar()
{
    m_current = pickToolBar();
    m_log << "choose " + m_current;
    m_host.makeCurrent(m_current);
    makeAnyCurrent();
}

void EditSequence::createToolBar()
{
    if (m_contents.size() > 6)
        return;
    m_current = QString("Mine %1").arg(++m_created);
    m_log << "create " + m_current;
    m_host.editor.click(m_host.editor.newButton);
    m_host.editor.typeName(m_current);
    m_contents.insert(m_current, QStringList());
}

void EditSequence::removeToolBar()
{
    if (!m_current.startsWith("Mine"))
        return;
    m_log << "remove " + m_current;
    m_host.editor.click(m_host.editor.removeButton);
    m_contents.remove(m_current);
    m_current = currentOf(m_host.editor.toolBarList);
}

void EditSequence::apply()
{
    m_log << "apply";
    const auto applied = m_host.applied();
    for (auto it = m_contents.cbegin(); it != m_contents.cend(); ++it) {
        if (applied.value(it.key()) != it.value())
            m_problem = "applied " + it.key() + ": " + applied.value(it.key()).join(" ");
    }
    if (applied.size() != m_contents.size())
        m_problem = "applied " + QStringList(applied.keys()).join(", ");
}

bool EditSequence::agree()
{
    QStringList expected;
    for (const QString &name : content())
        expected << (name == Separator ? name : m_host.action(name)->text());
    if (m_problem.isEmpty() && currentOf(m_host.editor.toolBarList) != m_current)
        m_problem = "current is " + currentOf(m_host.editor.toolBarList);
    if (m_problem.isEmpty() && m_host.editor.currentRows() != expected)
        m_problem = "shown are " + m_host.editor.currentRows().join(" ");
    if (!m_problem.isEmpty())
        m_log << m_problem << "expected " + m_current + ": " + content().join(" ");
    return m_problem.isEmpty();
}
