// SPDX-License-Identifier: MIT

#ifndef SHOWNEDITOR_H
#define SHOWNEDITOR_H

#include "editorfields.h"
#include "editorviews.h"
#include "host.h"
#include "ryctoolbarwidget.h"

#include <QLineEdit>
#include <QStringList>

/*
 * A default toolbar, two custom ones and two actions that are on none.
 */
class EditorHost : public Host
{
public:
    EditorHost();
};

/*
 * A toolbar editor in a window of its own, already shown, with its views and its working copy.
 */
class ShownEditor
{
public:
    explicit ShownEditor(RyAbstatcManager *ofHost);

    // Calls one of the editor's slots, with Q_ARG() for what it takes.
    void call(const char *slot, QGenericArgument argument = QGenericArgument());

    // The open in-place editor of the toolbar list, or null.
    QLineEdit *nameEditor() const;

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

    RyToolBarManager *const manager;
    RyCToolBarWidget widget;
    EditorViews views;
};

// Made before the editor and destroyed after it.
template <typename SomeHost> struct HostOfEditor
{
    SomeHost host;
};

/*
 * A shown editor together with the host that it belongs to.
 */
template <typename SomeHost> class HostedEditor : public HostOfEditor<SomeHost>, public ShownEditor
{
public:
    explicit HostedEditor(const char *currentToolBar = nullptr)
        : ShownEditor(&this->host.manager)
    {
        if (currentToolBar)
            selectToolBar(currentToolBar);
    }
};

using FilledEditor = HostedEditor<EditorHost>;

// Every toolbar of the manager as "title: content", sorted. The content is what is on the
// toolbar; where the manager has recorded something else, that is added.
QStringList toolBarsOf(const RyToolBarManager &manager);

// The first toolbar of that title, or null.
QToolBar *toolBarTitled(const RyToolBarManager &manager, const QString &title);

// A toolbar that the manager creates and fills with the actions of these names; "|" is a separator.
QToolBar *customToolBar(Host &host, const QString &title, const QStringList &content);

#endif // SHOWNEDITOR_H
