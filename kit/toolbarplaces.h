// SPDX-License-Identifier: MIT

#ifndef TOOLBARPLACES_H
#define TOOLBARPLACES_H

#include "kitlayout.h"

#include <QHash>

class QMainWindow;
class QToolBar;

/*!
 * \brief Reads and changes where the toolbars of a window are.
 */
namespace ToolBarPlaces {

/*!
 * \brief Returns the toolbars of \a window in the order of its layout, hidden and floating ones
 *        included.
 */
QList<QToolBar *> toolBarsIn(const QMainWindow *window);

/*!
 * \brief Returns where the toolbars of \a window are that have a name in \a names.
 */
KitPlaces read(const QMainWindow *window, const QHash<const QToolBar *, QString> &names);

/*!
 * \brief Puts the toolbars of \a names where \a places has them, in one pass that leaves areas
 *        alone whose toolbars are there already.
 */
void apply(QMainWindow *window, const QHash<const QToolBar *, QString> &names,
           const KitPlaces &places);

/*!
 * \brief Returns the names of the toolbars in \a places.
 */
QSet<QString> toolBarsOf(const KitPlaces &places);

/*!
 * \brief Returns \a places with those toolbars of \a model that it lacks, beside their neighbours
 *        in \a model.
 */
KitPlaces merged(const KitPlaces &places, const KitPlaces &model);

} // namespace ToolBarPlaces

#endif // TOOLBARPLACES_H
