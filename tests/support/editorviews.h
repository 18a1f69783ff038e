// SPDX-License-Identifier: MIT

#ifndef EDITORVIEWS_H
#define EDITORVIEWS_H

#include <QListWidget>
#include <QStringList>
#include <QToolButton>
#include <QTreeWidget>

/*
 * The views and buttons of the toolbar editor below a widget, found by objectName as a host would
 * find them, and what a user does with them.
 */
class EditorViews
{
public:
    // The page or anything above it, such as the dialog.
    explicit EditorViews(QWidget *ancestor);

    // The names of the enabled buttons of the seven, in the order of the form.
    QStringList enabledButtons() const;

    // The rows of the current toolbar, "|" for a separator.
    QStringList currentRows() const;

    // Real left clicks and double clicks; an item is scrolled to first.
    void click(QToolButton *button) const;
    void click(QListWidget *list, const QString &text) const;
    void click(QTreeWidget *tree, const QString &text) const;
    void doubleClick(QListWidget *list, int row) const;
    void doubleClick(QTreeWidget *tree, const QString &text) const;

    // The open in-place editor of the toolbar list, or null.
    QWidget *renameEditor() const;

    // Types into the open in-place editor in place of its text and presses Return.
    void typeName(const QString &name) const;

    QWidget *page;
    QTreeWidget *actionTree;
    QListWidget *toolBarList;
    QListWidget *currentToolBarList;
    QToolButton *newButton;
    QToolButton *removeButton;
    QToolButton *renameButton;
    QToolButton *upButton;
    QToolButton *leftButton;
    QToolButton *rightButton;
    QToolButton *downButton;
};

#endif // EDITORVIEWS_H
