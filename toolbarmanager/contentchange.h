// SPDX-License-Identifier: MIT

#ifndef CONTENTCHANGE_H
#define CONTENTCHANGE_H

#include <QList>
#include <QPointer>
#include <QToolBar>

class QAction;
class RyToolBarManager;

/*
 * The change of one toolbar's content, while it runs.
 *
 * Every action that is put on a widget or taken off it makes Qt call the host, which may call the
 * manager again, for the same toolbar too. Everything that this takes is in this class:
 * - The manager reports the old content until the change is over.
 * - A list that is set for the same toolbar in between waits. The last one wins.
 * - What is on the widget is looked up again at every step. It is recorded once it is there and
 *   leaves the record before it leaves the widget, so that a host never finds a record of what is
 *   not there.
 * - The change ends early if the toolbar is gone or no longer managed.
 */
class ContentChange
{
public:
    ContentChange(RyToolBarManager *manager, QToolBar *toolBar);
    ~ContentChange();

    // The innermost running change of the toolbar, or null.
    static ContentChange *running(const RyToolBarManager *manager, const QToolBar *toolBar);

    // Gives the toolbar a content, whose actions are registered.
    void run(const QList<QAction *> &content);

    // Takes everything off and accepts no other content. False if the toolbar is gone or no longer
    // managed then.
    bool empty();

    // Leaves alone an action that is not on the toolbar, because the host may have deleted it.
    static void takeOffWidget(QToolBar *toolBar, QAction *action);

    // Asks for another content, without effect if it is the one that is being placed.
    void replace(const QList<QAction *> &content);

private:
    Q_DISABLE_COPY(ContentChange)

    bool isOver() const;
    void takeAllOff();
    void takeOff(QAction *action);
    bool isShared(QAction *separator) const;
    void placeContent();
    void placeAction(QAction *action);
    void placeSeparator();
    QList<QAction *> placedContent() const;

    RyToolBarManager *const m_manager;
    const QPointer<QToolBar> m_toolBar;
    // The running change that this one interrupts, or null.
    ContentChange *const m_outer;
    QList<QAction *> m_content;
    // How often the content may still be replaced, so that a host that always wants another one
    // comes to an end.
    int m_replacementsLeft;
    bool m_isReplaced;
};

#endif // CONTENTCHANGE_H
