// SPDX-License-Identifier: MIT

#ifndef ACTIONROWS_H
#define ACTIONROWS_H

#include <QVector>

class QAction;
class QTreeWidget;
class QTreeWidgetItem;
class RyToolBarManager;

/*!
 * \brief The rows of the dialog's action tree, and which action each is for.
 */
struct ActionRows
{
    struct Row
    {
        QTreeWidgetItem *item;
        QAction *action;
    };
    struct Category
    {
        QTreeWidgetItem *item;
        QVector<Row> rows;
    };

    ActionRows() = default;

    /*!
     * \brief Looks at a tree that the editor has just filled: texts and actions may change later.
     */
    ActionRows(const QTreeWidget *tree, const RyToolBarManager *manager);

    QTreeWidgetItem *separator = nullptr;
    QVector<Category> categories;
};

#endif // ACTIONROWS_H
