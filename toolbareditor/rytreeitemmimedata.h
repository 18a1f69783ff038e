// SPDX-License-Identifier: MIT

#ifndef RYTREEITEMMIMEDATA_H
#define RYTREEITEMMIMEDATA_H

#include "rycustomizeddialogexport.h"

#include <QMimeData>
#include <QStringList>
#include <QVariant>

class QTreeWidgetItem;

/*!
 * \brief What a drag out of a RyTreeWidget carries: a pointer to the dragged item.
 *
 * The format is the bare word "ItemMimeData". Nothing is serialized; the pointer means something
 * within one process only and is valid while the drag runs.
 *
 * The order of the fields and of the virtual functions is part of the binary contract.
 */
class RYCUSTOMIZEDDIALOG_EXPORT RyTreeItemMimeData : public QMimeData
{
    Q_OBJECT

public:
    /*!
     * \brief How QMimeData names a type, which depends on Qt.
     */
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    using PreferredType = QVariant::Type;
#else
    using PreferredType = QMetaType;
#endif

    /*!
     * \brief Constructs a payload without an item and without formats.
     */
    RyTreeItemMimeData();

    /*!
     * \brief Destroys the payload; the item is left alone.
     */
    ~RyTreeItemMimeData() override;

    /*!
     * \brief Appends \a format to the reported formats and makes \a item the dragged item.
     *
     * A second call appends again, duplicates included, and replaces the item. The capital first
     * letter is deliberate, as it is in DragItemData().
     *
     * \param format the format, "ItemMimeData" for everything that RyTreeWidget drags.
     * \param item the item, which stays its tree's; it may be null.
     */
    void SetDragData(QString format, QTreeWidgetItem *item);

    /*!
     * \brief Returns the dragged item, owned by its tree; null before SetDragData().
     */
    QTreeWidgetItem *DragItemData() const;

    /*!
     * \brief Returns the formats in the order in which SetDragData() appended them.
     */
    QStringList formats() const override;

    /*!
     * \brief Returns for "ItemMimeData", whatever \a type is asked for, a boolean that is true if
     *        there is an item; what QMimeData returns for any other \a mimeType.
     */
    QVariant retrieveData(const QString &mimeType, PreferredType type) const override;

private:
    // The dragged item in the source tree, not owned.
    QTreeWidgetItem *dragItem;
    QStringList formatList;
};

#endif // RYTREEITEMMIMEDATA_H
