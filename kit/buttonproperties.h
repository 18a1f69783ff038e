// SPDX-License-Identifier: MIT

#ifndef BUTTONPROPERTIES_H
#define BUTTONPROPERTIES_H

#include <QHash>
#include <QPair>
#include <QPointer>
#include <QVariant>
#include <QVector>

class QAction;
class QMenu;
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
    struct Button
    {
        QVector<QPair<QByteArray, QVariant>> properties;
        // Set for the button and not for its action; null if none is.
        QPointer<QMenu> menu;
    };

    QHash<const QObject *, Button> m_ofAction;
};

#endif // BUTTONPROPERTIES_H
