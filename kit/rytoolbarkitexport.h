// SPDX-License-Identifier: MIT

#ifndef RYTOOLBARKITEXPORT_H
#define RYTOOLBARKITEXPORT_H

#include <QtGlobal>

/*!
 * \file
 * \brief Marks the class that the kit exports; everything else stays hidden.
 */

/*!
 * \def RYTOOLBARKIT_EXPORT
 * \brief Expands to the export attribute while the kit is built and to the import attribute in a
 *        host.
 *
 * The build defines RYTOOLBARKIT_LIBRARY for the kit's own sources; a host defines nothing.
 */
#if defined(RYTOOLBARKIT_LIBRARY)
#define RYTOOLBARKIT_EXPORT Q_DECL_EXPORT
#else
#define RYTOOLBARKIT_EXPORT Q_DECL_IMPORT
#endif

#endif // RYTOOLBARKITEXPORT_H
