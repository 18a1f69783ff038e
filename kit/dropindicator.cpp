// SPDX-License-Identifier: MIT

#include "dropindicator.h"

#include <QPainter>

DropIndicator::DropIndicator(QWidget *viewport)
    : QWidget(viewport)
{
    setObjectName(QStringLiteral("dropIndicator"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropIndicator::showAt(QWidget *viewport, const QRect &place)
{
    if (parentWidget() != viewport)
        setParent(viewport); // hides it
    setGeometry(place);
    setVisible(!place.isEmpty());
}

// In the color of the text, which every palette keeps readable.
void DropIndicator::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor color = palette().color(QPalette::Text);
    if (height() <= LineHeight) {
        painter.fillRect(rect(), color);
        return;
    }
    painter.setPen(QPen(color, LineHeight));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}
