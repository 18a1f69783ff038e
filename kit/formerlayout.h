// SPDX-License-Identifier: MIT

#ifndef FORMERLAYOUT_H
#define FORMERLAYOUT_H

#include "kitlayout.h"

class QDataStream;

/*!
 * \brief What a program stored before it had the kit: bytes of RyToolBarManager::saveState() or of
 *        QMainWindow::saveState().
 *
 * Bytes that are not exactly one of these are refused, so that a layout is never half taken over.
 */
class FormerLayout
{
public:
    struct ToolBar
    {
        // As saved: the objectName, or the title of a default toolbar that had none.
        QString name;
        QString title;
        bool custom;
        // As saved: objectNames or texts; a null string is a separator.
        QStringList entries;
    };

    /*!
     * \brief Reads \a bytes, and returns false if they are damaged or something else.
     */
    bool read(const QByteArray &bytes);

    QList<ToolBar> toolBars;
    KitPlaces places;
    // The names of the toolbars in the places, with whether they were shown.
    QMap<QString, bool> shown;

private:
    bool readManagerState(QDataStream &stream);
    bool readWindowState(const QByteArray &bytes);
    bool readPlaces(QDataStream &stream);
    bool readLine(QDataStream &stream);
};

#endif // FORMERLAYOUT_H
