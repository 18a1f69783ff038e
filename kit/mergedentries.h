// SPDX-License-Identifier: MIT

#ifndef MERGEDENTRIES_H
#define MERGEDENTRIES_H

#include <QSet>
#include <QStringList>

/*!
 * \brief Returns \a entries with the names \a missing at the places that they have in \a model.
 *
 * Both lists are contents of a toolbar; a null string is a separator. A missing name follows the
 * name that precedes it in \a model, or the nearest earlier one that is in \a entries, and as many
 * of the separators in between as \a entries has there. Without such a name it precedes the first
 * one that follows it. So taking names out of a list and merging them with that list as the model
 * gives the list again.
 *
 * Names that \a model lacks, and those that \a entries has, are not inserted.
 */
QStringList mergedEntries(const QStringList &entries, const QStringList &model,
                          const QSet<QString> &missing);

/*!
 * \brief Returns the names in \a entries, without separators.
 */
QSet<QString> namesIn(const QStringList &entries);

/*!
 * \brief Returns the names in \a entries that \a known lacks, each once and in their order.
 */
QStringList newNames(const QStringList &entries, const QStringList &known);

#endif // MERGEDENTRIES_H
