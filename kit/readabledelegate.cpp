// SPDX-License-Identifier: MIT

#include "readabledelegate.h"

#include <QApplication>
#include <QPainter>

#include <cmath>

namespace {

const double EnoughContrast = 4.5;

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// As the Web Content Accessibility Guidelines define it.
double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return first > second ? first / second : second / first;
}

QColor mixed(const QColor &from, const QColor &to, double share)
{
    return QColor::fromRgbF(from.redF() + (to.redF() - from.redF()) * share,
                            from.greenF() + (to.greenF() - from.greenF()) * share,
                            from.blueF() + (to.blueF() - from.blueF()) * share);
}

QStyle *styleOf(const QStyleOptionViewItem &item)
{
    return item.widget ? item.widget->style() : QApplication::style();
}

QIcon::Mode modeOf(const QStyleOptionViewItem &item)
{
    if (!item.state.testFlag(QStyle::State_Enabled))
        return QIcon::Disabled;
    return item.state.testFlag(QStyle::State_Selected) ? QIcon::Selected : QIcon::Normal;
}

QColor textColor(const QStyleOptionViewItem &item)
{
    const QPalette::ColorGroup group = !item.state.testFlag(QStyle::State_Enabled)
        ? QPalette::Disabled
        : item.state.testFlag(QStyle::State_Active) ? QPalette::Active
                                                    : QPalette::Inactive;
    const bool isSelected = item.state.testFlag(QStyle::State_Selected);
    return item.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

// Qt 5 paints icons in the resolution of a coarse screen, unless the program asks for more.
double factorForIcon(const QStyleOptionViewItem &item)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const bool isUpToQt = QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps);
    if (item.widget && !item.icon.isNull() && !isUpToQt)
        return item.widget->devicePixelRatioF();
#else
    Q_UNUSED(item)
#endif
    return 1;
}

// All that is left of the row, even if the style marks only the text of selected rows.
QRect placeOfText(const QStyleOptionViewItem &item)
{
    QStyleOptionViewItem whole = item;
    whole.showDecorationSelected = true;
    QStyle *const style = styleOf(item);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &item, item.widget) + 1;
    return style->subElementRect(QStyle::SE_ItemViewItemText, &whole, item.widget)
        .adjusted(margin, 0, -margin, 0);
}

void drawIcon(QPainter *painter, const QStyleOptionViewItem &item, const QIcon &icon, double factor)
{
    QPixmap pixmap = icon.pixmap(item.decorationSize * factor, modeOf(item));
    pixmap.setDevicePixelRatio(factor);
    QStyle *const style = styleOf(item);
    const QRect place =
        style->subElementRect(QStyle::SE_ItemViewItemDecoration, &item, item.widget);
    style->drawItemPixmap(painter, place, Qt::AlignCenter, pixmap);
}

void drawAtEnd(QPainter *painter, const QStyleOptionViewItem &item, const QRect &place,
               const QString &text)
{
    painter->save();
    painter->setFont(item.font);
    painter->setPen(textColor(item));
    const Qt::Alignment end = QStyle::visualAlignment(item.direction, Qt::AlignRight);
    painter->drawText(place, int(end | Qt::AlignVCenter) | Qt::TextSingleLine, text);
    painter->restore();
}

} // namespace

// Of the colors on the way to black or white, the first that contrasts: one of both always does.
QColor ReadableDelegate::readable(const QColor &color, const QColor &background)
{
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    QColor end = contrast(black, background) > contrast(white, background) ? black : white;
    const int steps = 20;
    for (int step = 0; step < steps; ++step) {
        QColor candidate = step == 0 ? color : mixed(color, end, double(step) / steps);
        if (contrast(candidate, background) >= EnoughContrast)
            return candidate;
    }
    return end;
}

QString ReadableDelegate::shortcut(const QModelIndex &) const
{
    return QString();
}

void ReadableDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    PlainTextDelegate::initStyleOption(option, index);
    if (!index.data(Qt::ForegroundRole).isValid())
        return;
    QPalette &palette = option->palette;
    palette.setColor(QPalette::Text,
                     readable(palette.color(QPalette::Text), palette.color(QPalette::Base)));
}

void ReadableDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QRect place = placeOfText(item);
    QString keys = shortcut(index);
    if (!keys.isEmpty()) {
        const int needed = item.fontMetrics.boundingRect(keys).width();
        const int left = place.width() - needed - item.fontMetrics.height();
        if (left < needed)
            keys.clear();
        else
            item.text = item.fontMetrics.elidedText(item.text, item.textElideMode, left);
    }
    const QIcon icon = item.icon;
    const double factor = factorForIcon(item);
    if (factor > 1)
        item.icon = QIcon(); // its place stays
    styleOf(item)->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    if (factor > 1)
        drawIcon(painter, item, icon, factor);
    if (!keys.isEmpty())
        drawAtEnd(painter, item, place, keys);
}
