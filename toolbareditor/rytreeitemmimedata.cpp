// SPDX-License-Identifier: MIT

#include "rytreeitemmimedata.h"

RyTreeItemMimeData::RyTreeItemMimeData()
    : dragItem(nullptr)
{
}

RyTreeItemMimeData::~RyTreeItemMimeData() = default;

// Taking the format by value is part of the binary contract.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void RyTreeItemMimeData::SetDragData(QString format, QTreeWidgetItem *item)
{
    formatList.append(format);
    dragItem = item;
}

QTreeWidgetItem *RyTreeItemMimeData::DragItemData() const
{
    return dragItem;
}

QStringList RyTreeItemMimeData::formats() const
{
    return formatList;
}

QVariant RyTreeItemMimeData::retrieveData(const QString &mimeType, PreferredType type) const
{
    if (mimeType == QLatin1String("ItemMimeData"))
        return dragItem != nullptr;
    return QMimeData::retrieveData(mimeType, type);
}
