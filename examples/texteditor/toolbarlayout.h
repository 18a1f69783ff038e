// SPDX-License-Identifier: MIT

#ifndef TOOLBARLAYOUT_H
#define TOOLBARLAYOUT_H

#include "layoutstore.h"

#include <QCoreApplication>
#include <QString>

class QMainWindow;
class QSettings;
class RyToolBarManager;

/*!
 * \brief Restores the user's toolbars at the start, and stores them for the next one.
 *
 * \code
 * // registers everything with the manager, in the window's constructor; then:
 * layout.restore();
 * window.show();
 * \endcode
 */
class ToolBarLayout
{
    Q_DECLARE_TR_FUNCTIONS(ToolBarLayout)

public:
    //! The caller owns all three, and they must outlive the object.
    ToolBarLayout(QMainWindow *window, RyToolBarManager *manager, QSettings *settings);

    /*!
     * \brief Restores the stored layout, if there is one.
     *
     * Call it when every action and default toolbar is registered and before the window is shown.
     *
     * \return a message for the user: that the stored layout is unusable and the defaults are
     * shown, or that no layout can be stored. An empty string if all is well.
     */
    QString restore();

    //! Stores the layout; returns a message for the user if that fails.
    QString save();

    //! Forgets the stored layout; the toolbars stay as they are.
    void forget();

private:
    bool restoreFrom(const LayoutStore::Layout &stored);
    QString fileProblem() const;
    QString storingProblem() const;
    void goBackToDefaults();
    void showNewToolBars();

    QMainWindow *const m_window;
    RyToolBarManager *const m_manager;
    QSettings *const m_settings;
    LayoutStore m_store;
};

#endif // TOOLBARLAYOUT_H
