// SPDX-License-Identifier: MIT

#ifndef TOOLBARLAYOUT_H
#define TOOLBARLAYOUT_H

#include "layoutstore.h"

#include <QString>

class QMainWindow;
class QSettings;
class RyToolBarManager;

/*!
 * \brief Brings the user's toolbars back at the start and keeps them for the next one.
 *
 * \code
 * // registers everything with the manager, in the window's constructor; then:
 * layout.restore();
 * window.show();
 * \endcode
 */
class ToolBarLayout
{
public:
    //! All three stay the caller's and must outlive the object.
    ToolBarLayout(QMainWindow *window, RyToolBarManager *manager, QSettings *settings);

    /*!
     * \brief Restores the stored layout, if there is one.
     *
     * Call it when every action and default toolbar is registered and before the window is shown.
     *
     * \return what the user should be told if the stored layout was of no use, and the defaults
     *         stand; an empty string if all is well.
     */
    QString restore();

    //! Stores the layout; returns what the user should be told if that failed.
    QString save();

    //! Forgets the stored layout; the toolbars stay as they are.
    void forget();

private:
    QString restoreFrom(const LayoutStore::Layout &stored);
    void goBackToDefaults();
    void showNewToolBars();

    QMainWindow *const m_window;
    RyToolBarManager *const m_manager;
    QSettings *const m_settings;
    LayoutStore m_store;
};

#endif // TOOLBARLAYOUT_H
