// SPDX-License-Identifier: MIT

#ifndef BARETOOLBARS_H
#define BARETOOLBARS_H

#include <QAction>
#include <QList>
#include <QToolBar>

/*
 * How a host without the library changes its toolbars.
 */
namespace bare {

// Appends actions, and a separator for each null.
inline void appendContent(QToolBar *toolBar, const QList<QAction *> &content)
{
    for (QAction *action : content) {
        if (action)
            toolBar->addAction(action);
        else
            toolBar->addSeparator();
    }
}

// Removes the actions from the front, where Qt finds them at once, and deletes the separators,
// which also removes them.
inline void clear(QToolBar *toolBar)
{
    const auto actions = toolBar->actions();
    for (QAction *action : actions) {
        if (action->isSeparator())
            delete action;
        else
            toolBar->removeAction(action);
    }
}

inline void setContent(QToolBar *toolBar, const QList<QAction *> &content)
{
    clear(toolBar);
    appendContent(toolBar, content);
}

} // namespace bare

#endif // BARETOOLBARS_H
