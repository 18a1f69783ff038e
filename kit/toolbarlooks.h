// SPDX-License-Identifier: MIT

#ifndef TOOLBARLOOKS_H
#define TOOLBARLOOKS_H

#include "kitlayout.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QToolButton>
#include <QVector>

class QMainWindow;
class QToolBar;

/*!
 * \brief Gives the toolbars of a window the look that the user wants, locks them, and takes both
 *        back.
 *
 * What the program sets later wins, and stays when a look is taken back. A toolbar without a look
 * of the user follows the window.
 */
class ToolBarLooks : public QObject
{
    Q_OBJECT

public:
    ToolBarLooks(QMainWindow *window, QObject *parent);

    /*!
     * \brief Remembers what the program has made of \a toolBar. Does nothing if that is known.
     */
    void add(QToolBar *toolBar);

    /*!
     * \brief Forgets \a toolBar, which may have been deleted.
     */
    void forget(const QObject *toolBar) { m_states.remove(toolBar); }

    /*!
     * \brief Returns \a look with what the program had when \a toolBar was added.
     */
    KitLook withProgram(const QToolBar *toolBar, KitLook look) const;

    /*!
     * \brief Returns \a look without what the program has set again since.
     */
    KitLook shown(const QToolBar *toolBar, KitLook look) const;

    /*!
     * \brief Shows \a toolBar as \a look says. Clears what was chosen when the program had
     *        something else.
     */
    void apply(QToolBar *toolBar, KitLook *look);

    /*!
     * \brief Makes \a toolBar immovable, or takes that back.
     */
    void setLocked(QToolBar *toolBar, bool locked);

    /*!
     * \brief Returns true if the program lets the user move \a toolBar.
     */
    bool isMovable(const QToolBar *toolBar) const;

Q_SIGNALS:
    /*!
     * \brief Emitted when the program has made a locked toolbar movable, for the receiver to take
     *        the lock back.
     */
    void unlockedByProgram();

private Q_SLOTS:
    void followWindow(Qt::ToolButtonStyle style);
    void movableChanged(bool movable);

private:
    template <typename Value> struct OfButton
    {
        QPointer<QToolButton> button;
        Value own;
    };
    template <typename Value> using OfButtons = QVector<OfButton<Value>>;

    struct State
    {
        int iconSizeByProgram = 0;
        QString textPositionByProgram;
        // What the user's look has set, and what it took the place of; invalid if that was the
        // window's, and if no size is set.
        QSize iconSize;
        QSize iconSizeBefore;
        OfButtons<QSize> ownIconSizes;
        // The same; a style of -1 is none.
        int style = -1;
        int styleBefore = -1;
        OfButtons<Qt::ToolButtonStyle> ownStyles;
        // The window's style that was set when the user's look was taken back. Qt regards it as the
        // toolbar's own.
        int styleOfWindow = -1;
        bool isLocked = false;
    };

    void setIconSize(QToolBar *toolBar, State *state, int size) const;
    void takeIconSizeBack(QToolBar *toolBar, State *state) const;
    void setStyle(QToolBar *toolBar, State *state, Qt::ToolButtonStyle style) const;
    void takeStyleBack(QToolBar *toolBar, State *state) const;

    QMainWindow *m_window;
    QHash<const QObject *, State> m_states;
};

#endif // TOOLBARLOOKS_H
