// SPDX-License-Identifier: MIT

#ifndef BUTTONPROPERTIES_H
#define BUTTONPROPERTIES_H

#include <QHash>
#include <QMenu>
#include <QPair>
#include <QPointer>
#include <QToolButton>
#include <QVariant>
#include <QVector>

class QAction;
class QToolBar;

/*!
 * \brief What a program has set for the buttons of its actions on toolbars.
 *
 * Qt deletes the button of an action that leaves a toolbar, and makes another one when it comes
 * back.
 */
class ButtonProperties
{
public:
    /*!
     * \brief Reads the button of \a action on \a toolBar. Does nothing if it has none.
     */
    void read(const QToolBar *toolBar, QAction *action);

    /*!
     * \brief Sets the button of \a action on \a toolBar as the last one that was read.
     */
    void putBack(const QToolBar *toolBar, QAction *action) const;

    /*!
     * \brief Forgets what was read for \a action, which may have been deleted.
     */
    void forget(const QObject *action) { m_ofAction.remove(action); }

private:
    // All that a program may set for a button, without what the action sets.
    struct Button
    {
        QString objectName;
        QString accessibleName;
        QString accessibleDescription;
        QString styleSheet;
        QSize minimumSize;
        QSize maximumSize;
        QSizePolicy sizePolicy;
        Qt::FocusPolicy focusPolicy;
        Qt::ContextMenuPolicy contextMenuPolicy;
        Qt::ArrowType arrowType;
        QToolButton::ToolButtonPopupMode popupMode;
        bool autoRaise;
        Qt::ToolButtonStyle toolButtonStyle;
        bool hasOwnStyle; // not that of the toolbar
        QSize iconSize;
        bool hasOwnIconSize;
        QVector<QPair<QByteArray, QVariant>> dynamicProperties;
        // Set for the button and not for its action; null if none is.
        QPointer<QMenu> menu;
    };

    static Button read(const QToolButton *widget, const QToolBar *toolBar, const QAction *action);
    static bool isSame(const Button &a, const Button &b);
    static void set(QToolButton *widget, const Button &button);

    QHash<const QObject *, Button> m_ofAction;
};

#endif // BUTTONPROPERTIES_H
