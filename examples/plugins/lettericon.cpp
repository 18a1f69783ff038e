// SPDX-License-Identifier: MIT

#include "lettericon.h"

#include <QPainter>

QIcon letterIcon(const QString &letters, const QColor &color)
{
    constexpr int size = 44;
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(pixmap.rect(), 8, 8);
    QFont font = painter.font();
    font.setPixelSize(size / 2);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(pixmap.rect(), Qt::AlignCenter, letters);
    QIcon icon(pixmap);
    // A style tints the icons of selected rows with the color of their background.
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}
