// SPDX-License-Identifier: MIT

#ifndef VISIBLEWIDGETS_H
#define VISIBLEWIDGETS_H

class QJsonArray;

/*!
 * \brief Returns what can be clicked in all visible windows: widgets, the rows of lists and trees,
 *        and the entries of menus, with their texts and places on the screen.
 */
QJsonArray visibleWidgets();

#endif // VISIBLEWIDGETS_H
