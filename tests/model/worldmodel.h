// SPDX-License-Identifier: MIT

#ifndef WORLDMODEL_H
#define WORLDMODEL_H

#include <QString>

#include <map>
#include <vector>

class QAction;
class QMainWindow;
class QToolBar;

// A list of actions as host and manager exchange it; null is a separator.
using Content = std::vector<QAction *>;

/*
 * What is true of the host's objects: names, titles, what is where. Pointers are only names of
 * objects here and in the other models, compared but never followed.
 */
class WorldModel
{
public:
    struct Action
    {
        QString objectName;
        QString text;
    };

    // An action, or null and the number of a separator.
    struct Placed
    {
        QAction *action;
        int separator;
    };

    struct ToolBar
    {
        QString objectName;
        QString title;
        QMainWindow *window;
        std::vector<Placed> placed;
    };

    void addToolBar(QToolBar *toolBar, const ToolBar &state);
    void removeToolBar(QToolBar *toolBar);
    void removeAction(QAction *action);

    // As the widget has it: an action that is there already moves to the end.
    Placed append(QToolBar *toolBar, QAction *action);
    void take(QToolBar *toolBar, const Placed &placed);
    void deleteSeparator(const Placed &placed);

    std::map<QAction *, Action> actions;
    std::map<QToolBar *, ToolBar> toolBars;

    // The toolbars of each window in the order of creation.
    std::map<QMainWindow *, std::vector<QToolBar *>> windows;

    // The separators that are gone since this was last emptied.
    std::vector<int> deletedSeparators;

private:
    int m_separators = 0;
};

inline bool operator==(const WorldModel::Placed &a, const WorldModel::Placed &b)
{
    return a.action == b.action && a.separator == b.separator;
}

#endif // WORLDMODEL_H
