// SPDX-License-Identifier: MIT

#ifndef SCENE_H
#define SCENE_H

#include "side.h"

#include <QAction>
#include <QList>
#include <QMainWindow>
#include <QToolBar>

/*
 * A host without the library: a window, actions with icons, and toolbars. Each toolbar has two
 * contents without a common action, so that going from one to the other changes every entry.
 */
class Scene
{
public:
    explicit Scene(const Size &size);
    ~Scene();

    const Size &size() const { return m_size; }
    QMainWindow *window() { return &m_window; }
    const QList<QAction *> &actions() const { return m_actions; }
    // In the order of their addresses, like in the manager.
    const QList<QToolBar *> &toolBars() const { return m_toolBars; }

    // Each with its actions, all of the same number.
    struct Category
    {
        QString name;
        QList<QAction *> actions;
    };
    QList<Category> categories() const;

    // Null is a separator. The variant is 0 or 1.
    QList<QAction *> content(int toolBar, int variant) const;

    // Puts the first content on every toolbar, with bare Qt.
    void fillToolBars();

    void show();

private:
    Q_DISABLE_COPY(Scene)

    void createActions();
    void createToolBars();

    const Size m_size;
    QMainWindow m_window;
    QList<QAction *> m_actions;
    QList<QToolBar *> m_toolBars;
};

/*
 * The toolbars of a window in the order of their names: title, actions, and how many of these have
 * a widget.
 */
QStringList describeToolBars(const QMainWindow *window);

#endif // SCENE_H
