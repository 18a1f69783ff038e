// SPDX-License-Identifier: MIT

#ifndef EDITSEQUENCE_H
#define EDITSEQUENCE_H

#include "actiondrag.h"
#include "editedhost.h"

#include <QRandomGenerator>

/*
 * A random sequence of what a user does in the dialog with several rows at once: drags, cuts and
 * buttons. Compared with lists of names, "|" for a separator.
 */
class EditSequence
{
public:
    explicit EditSequence(quint32 seed);

    // Whether the dialog and the lists agree after each step.
    bool run(int steps);

    const QStringList &log() const { return m_log; }

private:
    using Step = void (EditSequence::*)();

    void dragEntriesToGap();
    void dragEntriesToToolBar();
    void dragEntriesToActions();
    void dragActionsToGap();
    void dragActionsToToolBar();
    void dragActionsToActions();
    void abandonDrag();
    void dropFromElsewhere();
    void cutAndInsert();
    void moveUp();
    void moveDown();
    void removeEntries();
    void addActions();
    void chooseToolBar();
    void createToolBar();
    void removeToolBar();
    void apply();

    // What the lists have afterwards.
    void move(const QList<int> &rows, int gap);
    void moveTo(const QString &toolBar, const QList<int> &rows, int gap);
    void insert(const QString &toolBar, const QStringList &names, int gap);
    void remove(const QList<int> &rows);

    int random(int limit) { return m_random.bounded(limit); }
    QStringList &content() { return m_contents[m_current]; }
    QString pickToolBar();
    void makeAnyCurrent();
    QPoint pickGap(int gap);
    // Each selects rows and reports them, or what they are. There may be none.
    QList<int> selectEntries();
    QStringList selectActions();
    // The same, and begins a drag.
    QList<int> pickEntries();
    QStringList pickActions();
    void dropOn(QAbstractItemView *view, const QPoint &place, const QMimeData *data);
    void dropOnToolBar(const QString &toolBar);
    void press(QWidget *view, Qt::Key key);
    bool agree();

    QRandomGenerator m_random;
    EditedHost m_host;
    ActionDrag m_drag;
    std::unique_ptr<QMimeData> m_data;
    QTreeWidget *const m_tree;
    QListWidget *const m_list;
    // What each toolbar has, by title, and the title of the current one.
    QMap<QString, QStringList> m_contents = EditedHost::firstContents();
    QString m_current = "Edit";
    int m_created = 0;
    QStringList m_log;
    QString m_problem;
};

#endif // EDITSEQUENCE_H
