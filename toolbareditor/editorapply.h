// SPDX-License-Identifier: MIT

#ifndef EDITORAPPLY_H
#define EDITORAPPLY_H

#include <QList>
#include <QPointer>
#include <QString>
#include <QToolBar>

class QAction;
class RyCToolBarWidget;
class RyToolBarManager;
class ToolBarItem;

/*
 * Writes the working copy of an editor to its manager. Everything is read before the first toolbar
 * changes: that makes Qt call the host, which may hide the editor or delete it, and what the user
 * has confirmed is still written then.
 */
class EditorApply
{
public:
    explicit EditorApply(RyCToolBarWidget *editor);

    void run() const;

private:
    // One toolbar as edited.
    struct Edit
    {
        ToolBarItem *record;
        QPointer<QToolBar> toolBar;
        QString name;
        QList<QAction *> actions;
    };

    Edit editOf(ToolBarItem *record) const;
    void readExisting();
    void takeRemoved();
    void takeCreated();
    void write(const Edit &edit) const;
    void create(const Edit &edit) const;
    bool isFilled() const;

    const QPointer<RyCToolBarWidget> m_editor;
    RyToolBarManager *const m_manager;
    const int m_discards;
    QList<Edit> m_existing;
    QList<QPointer<QToolBar>> m_removed;
    QList<Edit> m_created;
};

#endif // EDITORAPPLY_H
