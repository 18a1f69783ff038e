// SPDX-License-Identifier: MIT

#ifndef EDITORFIELDS_H
#define EDITORFIELDS_H

#include <QList>
#include <QMap>
#include <QSet>

class QAction;
class QListWidgetItem;
class QToolBar;
class QTreeWidgetItem;
class RyCToolBarWidget;
class ToolBarItem;

/*
 * A copy of the private fields of a toolbar editor: its working copy, which the views show only in
 * part, and what ties the views to it.
 */
struct EditorFields
{
    QMap<ToolBarItem *, QList<QAction *>> workingActions;
    QMap<QToolBar *, ToolBarItem *> recordOfToolBar;
    QSet<ToolBarItem *> createdRecords;
    QSet<ToolBarItem *> removedRecords;
    QSet<ToolBarItem *> ownedRecords;
    QTreeWidgetItem *currentActionItem;
    QMap<QAction *, QTreeWidgetItem *> treeItemOfAction;
    QMap<QTreeWidgetItem *, QAction *> actionOfTreeItem;
    ToolBarItem *currentRecord;
    QMap<ToolBarItem *, QListWidgetItem *> listItemOfRecord;
    QMap<QListWidgetItem *, ToolBarItem *> recordOfListItem;
    QMap<QAction *, QListWidgetItem *> entryOfAction;
    QMap<QListWidgetItem *, QAction *> actionOfEntry;

    static EditorFields of(const RyCToolBarWidget &widget);
};

// The editor's private functions that make a record of a toolbar and free one.
ToolBarItem *createRecord(RyCToolBarWidget &widget, QToolBar *toolBar);
void deleteRecord(RyCToolBarWidget &widget, ToolBarItem *record);

#endif // EDITORFIELDS_H
