// SPDX-License-Identifier: MIT

#ifndef TOOLBARSTATEFORMAT_H
#define TOOLBARSTATEFORMAT_H

#include <QtGlobal>

/*
 * The fixed numbers of a saved state. They are a file format: a value never changes.
 */

// Begins every state; the host's own version follows.
const qint32 StateMarker = 255;

// Begins the section of the default toolbars.
const quint8 DefaultToolBarMarker = 0xFE;

// Begins the section of the custom toolbars.
const quint8 CustomToolBarMarker = 0xFD;

#endif // TOOLBARSTATEFORMAT_H
