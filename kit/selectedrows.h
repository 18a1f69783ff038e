// SPDX-License-Identifier: MIT

#ifndef SELECTEDROWS_H
#define SELECTEDROWS_H

#include "dialogparts.h"

#include <QList>
#include <QModelIndex>
#include <QObject>

class EditorCommands;
class QAbstractItemView;
class QListWidgetItem;
class QTreeWidgetItem;

/*!
 * \brief Lets the user select several actions and entries, and makes the editor's buttons act on
 *        all of them.
 *
 * The editor itself acts on the current one only. So the other selected ones follow. What is not
 * selected is never acted on, unless nothing is selected.
 */
class SelectedRows : public QObject
{
    Q_OBJECT

public:
    SelectedRows(const DialogParts &parts, EditorCommands *commands);

    // In the order of the views, without what is filtered out or in a collapsed category.
    QModelIndexList entryRows() const;
    QModelIndexList actionRows() const;

    // The items of rows.
    QList<QListWidgetItem *> entriesAt(const QModelIndexList &rows) const;
    QList<QTreeWidgetItem *> actionsAt(const QModelIndexList &rows) const;

private Q_SLOTS:
    void prepareForEntries();
    void prepareForActions();
    void moveOthersUp();
    void moveOthersDown();
    void removeOthers();
    void addOthers();

private:
    void selectSeveralIn(QAbstractItemView *view);
    void selectOnly(QAbstractItemView *view, const QModelIndex &current);
    void moveBehind(QListWidgetItem *previous);

    const DialogParts m_parts;
    EditorCommands *const m_commands;
    // What is selected when a button is pressed, before the editor acts on the current one.
    QList<QListWidgetItem *> m_entries;
    QList<QTreeWidgetItem *> m_actions;
    QListWidgetItem *m_currentEntry;
    // The entry behind which the selected ones come when they move up or down; null for none.
    QListWidgetItem *m_beforeUp;
    QListWidgetItem *m_beforeDown;
};

#endif // SELECTEDROWS_H
