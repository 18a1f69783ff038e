// SPDX-License-Identifier: MIT

#include "cutentries.h"

#include "editorcommands.h"
#include "selectedrows.h"

#include <QListWidget>
#include <QShortcut>
#include <QToolButton>
#include <QTreeWidget>

namespace {

// Only in the view, because keys edit text while a toolbar is named.
void addKey(const QKeySequence &key, QWidget *view, CutEntries *entries, const char *slot)
{
    QShortcut *const shortcut = new QShortcut(key, view);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, SIGNAL(activated()), entries, slot);
}

} // namespace

CutEntries::CutEntries(const DialogParts &parts, EditorCommands *commands,
                       const SelectedRows *selected, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
    , m_commands(commands)
    , m_selected(selected)
{
    const QKeySequence cutKey(QKeySequence::Cut);
    const QKeySequence insertKey(QKeySequence::Paste);
    addKey(cutKey, m_parts.entryList, this, SLOT(cut()));
    addKey(insertKey, m_parts.entryList, this, SLOT(insertBehindCurrent()));
    addKey(insertKey, m_parts.toolBarList, this, SLOT(insertAtEnd()));
    // What is edited in between is not what was cut.
    for (const QToolButton *button :
         {m_parts.upButton, m_parts.downButton, m_parts.leftButton, m_parts.rightButton})
        connect(button, SIGNAL(clicked()), this, SLOT(forget()));
    connect(m_parts.actionTree, SIGNAL(itemDoubleClicked(QTreeWidgetItem *, int)), this,
            SLOT(forget()));
    connect(m_parts.entryList, SIGNAL(itemDoubleClicked(QListWidgetItem *)), this, SLOT(forget()));
    const QString insertText = insertKey.toString(QKeySequence::NativeText);
    DialogParts::explain(
        m_parts.entryList,
        tr("%1 cuts the selected actions. %2 inserts them after the current one, also in another "
           "toolbar.")
            .arg(cutKey.toString(QKeySequence::NativeText), insertText));
    DialogParts::explain(m_parts.toolBarList,
                         tr("%1 adds the actions that were cut.").arg(insertText));
}

void CutEntries::cut()
{
    mark(false);
    m_rows.clear();
    QModelIndexList rows = m_selected->entryRows();
    if (rows.isEmpty() && m_parts.entryList->currentItem())
        rows.append(m_parts.entryList->currentIndex());
    const QModelIndexList cut = rows;
    for (const QModelIndex &row : cut)
        m_rows.append(row.row());
    m_toolBar = m_parts.toolBarList->currentIndex();
    m_texts = texts();
    mark(true);
}

void CutEntries::forget()
{
    if (m_parts.toolBarList->currentIndex() == m_toolBar) {
        for (int row = 0; row < m_parts.entryList->count(); ++row)
            m_parts.entryList->item(row)->setData(Qt::FontRole, QVariant());
    }
    m_rows.clear();
}

void CutEntries::insertBehindCurrent()
{
    insert(m_parts.entryList->currentRow() + 1);
}

void CutEntries::insertAtEnd()
{
    insert(m_parts.entryList->count());
}

void CutEntries::insert(int gap)
{
    QListWidgetItem *const target = m_parts.toolBarList->currentItem();
    QListWidgetItem *const source = m_parts.toolBarList->item(m_toolBar.row());
    if (m_rows.isEmpty() || !source)
        return;
    m_parts.toolBarList->setCurrentItem(source);
    const bool isUnchanged = texts() == m_texts;
    mark(false);
    QList<QListWidgetItem *> entries;
    const QList<int> rows = m_rows;
    for (int row : rows)
        entries.append(m_parts.entryList->item(row));
    m_rows.clear();
    if (isUnchanged && source == target)
        m_commands->move(entries, gap);
    else if (isUnchanged && m_commands->canReachToolBars())
        m_commands->moveTo(target, entries, gap);
    else
        m_parts.toolBarList->setCurrentItem(target);
}

// In italics, until the rows are made again.
void CutEntries::mark(bool isCut)
{
    if (m_parts.toolBarList->currentIndex() != m_toolBar || texts() != m_texts)
        return;
    QFont font = m_parts.entryList->font();
    font.setItalic(true);
    const QList<int> rows = m_rows;
    for (int row : rows)
        m_parts.entryList->item(row)->setData(Qt::FontRole, isCut ? QVariant(font) : QVariant());
}

QStringList CutEntries::texts() const
{
    QStringList texts;
    for (int row = 0; row < m_parts.entryList->count(); ++row)
        texts.append(m_parts.entryList->item(row)->text());
    return texts;
}
