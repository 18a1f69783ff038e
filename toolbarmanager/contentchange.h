// SPDX-License-Identifier: MIT

#ifndef CONTENTCHANGE_H
#define CONTENTCHANGE_H

#include <QList>
#include <QPointer>
#include <QToolBar>

class QAction;
class RyToolBarManager;

/*
 * The change of one toolbar's content while it runs.
 *
 * Every action that is put on a widget or taken off it makes Qt call the host, and what it calls
 * may be the manager, for the same toolbar. The second call finds the change here and tells it what
 * is wanted instead of starting one of its own: Qt would be left with two half-done changes of one
 * widget. The running changes form a stack on the GUI thread's stack; the manager has no field for
 * them, because its fields are fixed.
 */
class ContentChange
{
public:
    // Replaces the content by the given one, whose actions are registered.
    ContentChange(const RyToolBarManager *manager, QToolBar *toolBar,
                  const QList<QAction *> &content);
    // Takes everything off for good: no other content is accepted meanwhile.
    ContentChange(const RyToolBarManager *manager, QToolBar *toolBar);
    ~ContentChange();

    // The running change of the toolbar, or null.
    static ContentChange *running(const RyToolBarManager *manager, const QToolBar *toolBar);

    // Ends every running change of a toolbar that the manager has forgotten.
    static void cancel(const RyToolBarManager *manager, const QToolBar *toolBar);

    // True while any running change takes the action off its toolbar: Qt still uses it then.
    static bool isTakingOff(const QAction *action);

    // Takes the action off the toolbar, and the host is called.
    void takeOff(QAction *action);

    // Null once the toolbar is gone.
    QToolBar *toolBar() const;
    QList<QAction *> content() const;

    // True if no action was registered or removed since the content was asked for: all of it is
    // still registered then.
    bool isContentRegistered() const;

    // Asks for another content; without effect if it is the one that is being placed.
    void replaceContent(const QList<QAction *> &content);

    bool isCancelled() const;

    // Cancelled, or to be started again with another content.
    bool isInterrupted() const;

    // True if the content was replaced since the last call.
    bool startAgain();

private:
    Q_DISABLE_COPY(ContentChange)

    ContentChange(const RyToolBarManager *manager, QToolBar *toolBar,
                  const QList<QAction *> &content, int replacements);
    bool concerns(const RyToolBarManager *manager, const QToolBar *toolBar) const;

    static ContentChange *s_innermost;

    ContentChange *const m_outer;
    const RyToolBarManager *const m_manager;
    const QPointer<QToolBar> m_toolBar;
    QList<QAction *> m_content;
    // When the content was asked for.
    quint64 m_changesOfActions;
    // The action that is being taken off, or null.
    const QAction *m_takenOff;
    // How often the content may still be replaced, so that a host that always wants another one
    // comes to an end.
    int m_replacementsLeft;
    bool m_isReplaced;
    bool m_isCancelled;
};

#endif // CONTENTCHANGE_H
