// SPDX-License-Identifier: MIT

#ifndef RYCUSTOMIZEDDIALOGEXPORT_H
#define RYCUSTOMIZEDDIALOGEXPORT_H

#include <QtGlobal>

/*!
 * \file
 * \brief Marks the classes that the library exports; everything else stays hidden.
 */

/*!
 * \def RYCUSTOMIZEDDIALOG_EXPORT
 * \brief Expands to the export attribute while the library is built and to the import attribute
 *        in a host.
 *
 * The build defines RYCUSTOMIZEDDIALOG_LIBRARY for the library's own sources; a host defines
 * nothing.
 */
#if defined(RYCUSTOMIZEDDIALOG_LIBRARY)
#define RYCUSTOMIZEDDIALOG_EXPORT Q_DECL_EXPORT
#else
#define RYCUSTOMIZEDDIALOG_EXPORT Q_DECL_IMPORT
#endif

#endif // RYCUSTOMIZEDDIALOGEXPORT_H
