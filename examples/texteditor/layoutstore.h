// SPDX-License-Identifier: MIT

#ifndef LAYOUTSTORE_H
#define LAYOUTSTORE_H

#include <QByteArray>

class QSettings;

/*!
 * \brief Keeps the three byte arrays of a layout in the settings, with a version and a checksum.
 *
 * QMainWindow::restoreState() of Qt 5 can crash or hang on damaged bytes. So read() compares a
 * checksum, and returns bytes only if they are exactly those that were passed to write().
 */
class LayoutStore
{
public:
    //! Raise it when the objectName of a default toolbar or an action changes.
    static constexpr int Version = 1;

    struct Layout
    {
        QByteArray toolBars; // RyToolBarManager::saveState(): the content of each toolbar
        QByteArray window; // QMainWindow::saveState(): the place of each toolbar
        QByteArray geometry; // QWidget::saveGeometry(): the place of the window
    };

    enum class Result { Read, Nothing, OtherVersion, Damaged };

    //! \param settings the application's settings, which must outlive the store.
    explicit LayoutStore(QSettings *settings);

    //! Reads the stored layout. \a layout changes only if the result is Read.
    Result read(Layout *layout) const;

    void write(const Layout &layout);

    void clear();

private:
    QSettings *const m_settings;
};

#endif // LAYOUTSTORE_H
