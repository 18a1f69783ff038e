// SPDX-License-Identifier: MIT

#ifndef STAGE_H
#define STAGE_H

#include "editormodel.h"
#include "managermodel.h"
#include "rytoolbarmanager.h"
#include "worldmodel.h"

#include <QMainWindow>

#include <deque>
#include <memory>

/*
 * A host's real objects and the models of them, side by side, and how numbers of steps become
 * objects and names.
 */
class Stage
{
public:
    Stage();
    ~Stage();
    Stage(const Stage &) = delete;
    Stage &operator=(const Stage &) = delete;

    // The host's objects by number; null is one of them.
    QMainWindow *window(int number);
    QAction *action(int number) const;
    QToolBar *toolBar(int number) const;
    Content content(const std::vector<int> &numbers) const;

    // Names by number.
    static QString category(int number);
    static QString title(int number);
    static QString toolBarName(int number);
    static QString anyToolBarName(int number);
    static QString actionName(int slot, int number);
    static QString actionText(int slot, int number);
    static QString anyActionName(int number);

    void addAction();
    void recreateAction(int slot);
    QToolBar *addToolBar(QMainWindow *window, const QString &name, const QString &title);

    // Whether the editor remembers that toolbar.
    bool isInEditor(QToolBar *toolBar) const;

    // The toolbars of the windows that the models have not heard of, in the order of creation.
    std::deque<QToolBar *> unknownToolBars() const;

    // Takes over what the models have learned and forgotten of toolbars.
    void updateToolBars();

    QMainWindow windows[2];
    RyToolBarManager manager;
    int emitted = 0;

    WorldModel world;
    ManagerModel managerModel;
    EditorModel editorModel;

    std::vector<QAction *> actions;
    std::vector<QToolBar *> toolBars;

private:
    std::unique_ptr<QAction> m_separator;
    std::unique_ptr<QAction> m_stranger;
};

QList<QAction *> listOf(const Content &content);

#endif // STAGE_H
