// SPDX-License-Identifier: MIT

#ifndef EDITORCOMMANDS_H
#define EDITORCOMMANDS_H

#include "dialogparts.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>

class QListWidgetItem;
class QToolBar;
class QTreeWidgetItem;

/*!
 * \brief Edits of several entries at once, each as a sequence of current rows and clicks on the
 *        editor's buttons.
 *
 * Entries are those of the current toolbar, in their order. A gap is the row that what comes there
 * is going to have, counted before anything moves. Nothing is taken off a toolbar before it is at
 * its new place, so a click that does nothing loses nothing.
 */
class EditorCommands : public QObject
{
    Q_OBJECT

public:
    explicit EditorCommands(const DialogParts &parts);

    // Whether commands are running. What views and buttons report then is not the user's doing.
    bool areRunning() const { return m_areRunning; }

    // Whether entries may come onto another toolbar than the current one. The row of one that the
    // program has deleted stays, and what comes there is lost.
    bool canReachToolBars() const;

    // Each leaves what it has placed selected. Actions that are on the toolbar already move.
    void insert(const QList<QTreeWidgetItem *> &actions, int gap);
    void insertInto(QListWidgetItem *toolBar, const QList<QTreeWidgetItem *> &actions);
    void move(const QList<QListWidgetItem *> &entries, int gap);
    // A negative gap is the end. What is not among the actions stays where it is.
    void moveTo(QListWidgetItem *toolBar, const QList<QListWidgetItem *> &entries, int gap);
    void remove(const QList<QListWidgetItem *> &entries);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void rememberToolBars();

private:
    void run(const std::function<void()> &commands);
    void findActions();
    void choose(QTreeWidgetItem *action);
    bool show(QListWidgetItem *toolBar);
    bool isAddable(QTreeWidgetItem *action);
    QList<QTreeWidgetItem *> actionsOf(const QList<QListWidgetItem *> &entries);
    QTreeWidgetItem *actionOf(QListWidgetItem *entry, const QList<QListWidgetItem *> &order);
    bool isActionOf(QTreeWidgetItem *action, QListWidgetItem *entry,
                    const QList<QListWidgetItem *> &order);
    bool placeBehind(QListWidgetItem *previous, QTreeWidgetItem *action);
    QList<QListWidgetItem *> placeAll(const QList<QTreeWidgetItem *> &actions, int gap);
    bool stepBehind(QListWidgetItem *previous, QListWidgetItem *entry);
    bool stepTo(int row);
    bool removeAll(const QList<QListWidgetItem *> &entries);
    void select(const QList<QListWidgetItem *> &placed);
    void select(int first, int last);

    const DialogParts m_parts;
    bool m_areRunning;
    // While commands run: the actions below the categories by their texts, and the separator.
    QMultiHash<QString, QTreeWidgetItem *> m_actions;
    QTreeWidgetItem *m_separator;
    // The toolbars of the window when the editor was filled, or applied its changes.
    QList<QPointer<QToolBar>> m_toolBars;
};

#endif // EDITORCOMMANDS_H
