// SPDX-License-Identifier: MIT

#ifndef SHOWNEDITOR_H
#define SHOWNEDITOR_H

#include "editorfields.h"
#include "editorviews.h"
#include "host.h"
#include "ryctoolbarwidget.h"

#include <QStringList>

/*
 * A toolbar editor in a window of its own, already shown, with its views and its working copy.
 */
class ShownEditor
{
public:
    explicit ShownEditor(RyAbstatcManager *manager);

    // Calls one of the editor's slots that take nothing.
    void call(const char *slot);

    // Makes the row of that title current in the toolbar list.
    void selectToolBar(const QString &title);

    // Makes the item of that text current in the action tree.
    void selectAction(const QString &text);

    // Makes the row of the current toolbar's list current; -1 for none.
    void selectEntry(int row);

    // Every toolbar of the working copy as "name: content", sorted.
    QStringList workingCopy() const;

    // What in the editor's fields and views does not fit together; null if everything does.
    QString inconsistency() const;

    RyCToolBarWidget widget;
    EditorViews views;
};

// Every toolbar of the manager as "title: content", sorted. The content is what stands on the
// toolbar; where the manager has recorded something else, that is added.
QStringList toolBarsOf(const RyToolBarManager &manager);

// A toolbar that the manager creates and fills with the actions of these names; "|" is a separator.
QToolBar *customToolBar(Host &host, const QString &title, const QStringList &content);

#endif // SHOWNEDITOR_H
