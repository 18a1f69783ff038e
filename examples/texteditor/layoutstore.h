// SPDX-License-Identifier: MIT

#ifndef LAYOUTSTORE_H
#define LAYOUTSTORE_H

#include <QByteArray>

class QSettings;

/*!
 * \brief Keeps the three byte arrays of a layout in the settings, with a version and a checksum.
 *
 * QMainWindow::restoreState() of Qt 5 can crash or hang on damaged bytes. So nobody gets to see
 * bytes that are not exactly those that write() was given: read() compares a checksum first.
 */
class LayoutStore
{
public:
    //! Goes up whenever a default toolbar or an action changes its objectName.
    static constexpr int Version = 1;

    struct Layout
    {
        QByteArray toolBars; // RyToolBarManager::saveState(): what stands on each toolbar
        QByteArray window; // QMainWindow::saveState(): where each toolbar stands
        QByteArray geometry; // QWidget::saveGeometry(): where the window stands
    };

    enum class Result { Read, Nothing, OtherVersion, Damaged };

    //! \param settings the application's settings, which must outlive the store.
    explicit LayoutStore(QSettings *settings);

    //! Reads what is stored to \a layout, which is changed only if the result is Read.
    Result read(Layout *layout) const;

    void write(const Layout &layout);

    void clear();

private:
    QSettings *const m_settings;
};

#endif // LAYOUTSTORE_H
