// SPDX-License-Identifier: MIT

#ifndef LAYOUTS_H
#define LAYOUTS_H

#include <QStringList>

class QBoxLayout;
class QGridLayout;
class QObject;
class QSizePolicy;
class QWidget;

/*
 * Forms as lists of strings, so that one comparison shows everything.
 */

// The items in the order in which they were added: "name row,column rowSpan x columnSpan".
QStringList cellsOf(const QGridLayout *layout);

// The items from first to last: the name, or "spacer width x height" and its policies. An item that
// has a stretch or an alignment says so.
QStringList itemsOf(const QBoxLayout *layout);

// "horizontal vertical", then the control type unless it is the default, the stretch factors unless
// they are 0, and "height for width".
QString textOf(const QSizePolicy &policy);

// The class and the objectName of each child object, in the order of creation.
QStringList childrenOf(const QObject *parent);

// The objectNames of the children of the page, in the order in which Tab passes them.
QStringList focusChainOf(const QWidget *page);

// The names of the properties in which the widget differs from a fresh one of its class, geometry
// left out.
QStringList differingProperties(const QObject *widget, const QObject *fresh);

// "name property: value" of all properties of the widget and its descendants.
QStringList propertiesBelow(const QWidget *widget);

#endif // LAYOUTS_H
