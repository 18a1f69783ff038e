// SPDX-License-Identifier: MIT

#ifndef ACTIONDELEGATE_H
#define ACTIONDELEGATE_H

#include "actionrows.h"
#include "readabledelegate.h"

#include <QPointer>

class QTreeWidget;

/*!
 * \brief Shows the rows of actions with their shortcuts and tool tips.
 *
 * It asks the action each time, because items with more data would make the dialog slow to open.
 */
class ActionDelegate : public ReadableDelegate
{
    Q_OBJECT

public:
    explicit ActionDelegate(QTreeWidget *tree);

    void setRows(const ActionRows &rows, const RyToolBarManager *manager);

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    QString shortcut(const QModelIndex &index) const override;

private:
    const QAction *actionOf(const QModelIndex &index) const;

    QTreeWidget *m_tree;
    QPointer<const RyToolBarManager> m_manager;
    // By the addresses of the items.
    QVector<ActionRows::Row> m_rows;
};

#endif // ACTIONDELEGATE_H
