// SPDX-License-Identifier: MIT

#ifndef TEXTS_H
#define TEXTS_H

#include <QAction>
#include <QList>
#include <QListWidget>
#include <QMainWindow>
#include <QStringList>
#include <QTreeWidget>

/*
 * Whole contents as lists of strings, so that one comparison shows everything.
 */

// The words of a text such as "open | save".
QStringList words(const char *text);

// The lines of a text that has commas between them.
QStringList lines(const char *text);

// The objectName of each action, its text in quotes without one, and "|" for null.
QStringList contentOf(const QList<QAction *> &actions);

// What is on a toolbar or any other widget, with "|" for a separator action.
QStringList standingOn(const QWidget *widget);

// The texts of the rows.
QStringList rowsOf(const QListWidget *list);

// The texts of the items, two blanks deeper for each level.
QStringList itemsOf(const QTreeWidget *tree);

// The text of the current row or item; a null string without one.
QString currentOf(const QListWidget *list);
QString currentOf(const QTreeWidget *tree);

// The first item of the text, or null.
QTreeWidgetItem *itemNamed(const QTreeWidget *tree, const QString &text);
QListWidgetItem *itemNamed(const QListWidget *list, const QString &text);

// The titles of the toolbars in the window, sorted.
QStringList toolBarTitlesIn(const QMainWindow &window);

// The first entry of that text in the menus of the menu bar, or null.
QAction *menuEntry(const QMainWindow &window, const QString &text);

#endif // TEXTS_H
