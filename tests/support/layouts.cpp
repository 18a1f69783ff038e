// SPDX-License-Identifier: MIT

#include "layouts.h"

#include <QIcon>
#include <QBoxLayout>
#include <QDebug>
#include <QGridLayout>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QWidget>

namespace {

QString keyOf(QSizePolicy::Policy policy)
{
    return QMetaEnum::fromType<QSizePolicy::Policy>().valueToKey(policy);
}

QString nameOf(QLayoutItem *item)
{
    QString name;
    if (QWidget *const widget = item->widget()) {
        name = widget->objectName();
    } else if (QLayout *const layout = item->layout()) {
        name = layout->objectName();
    } else if (QSpacerItem *const spacer = item->spacerItem()) {
        const QSize size = spacer->sizeHint();
        name = QString("spacer %1x%2 ").arg(size.width()).arg(size.height())
            + textOf(spacer->sizePolicy());
    }
    return item->alignment() ? name + " aligned" : name;
}

// What follows from the style, the screen, the parent and the layout.
// Qt compares no pictures.
bool isSame(const QVariant &left, const QVariant &right)
{
    if (left.userType() == QMetaType::QIcon && right.userType() == QMetaType::QIcon)
        return left.value<QIcon>().cacheKey() == right.value<QIcon>().cacheKey();
    if (left.userType() == QMetaType::QPixmap && right.userType() == QMetaType::QPixmap)
        return left.value<QPixmap>().cacheKey() == right.value<QPixmap>().cacheKey();
    return left == right;
}

bool isGeometry(const QByteArray &property)
{
    static const QList<QByteArray> names{
        "childrenRect", "childrenRegion",  "frameGeometry",  "frameSize", "geometry",
        "height",       "minimumSizeHint", "normalGeometry", "pos",       "rect",
        "size",         "sizeHint",        "width",          "x",         "y",
    };
    return names.contains(property);
}

QString valueText(const QVariant &value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

} // namespace

QStringList cellsOf(const QGridLayout *layout)
{
    QStringList cells;
    for (int i = 0; i < layout->count(); ++i) {
        int row, column, rowSpan, columnSpan;
        layout->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        cells << nameOf(layout->itemAt(i))
                + QString(" %1,%2 %3x%4").arg(row).arg(column).arg(rowSpan).arg(columnSpan);
    }
    return cells;
}

QStringList itemsOf(const QBoxLayout *layout)
{
    QStringList items;
    for (int i = 0; i < layout->count(); ++i) {
        const QString name = nameOf(layout->itemAt(i));
        items << (layout->stretch(i) ? name + " stretched" : name);
    }
    return items;
}

QString textOf(const QSizePolicy &policy)
{
    QStringList parts{keyOf(policy.horizontalPolicy()), keyOf(policy.verticalPolicy())};
    if (policy.controlType() != QSizePolicy::DefaultType)
        parts << QString("control %1").arg(policy.controlType());
    if (policy.horizontalStretch() || policy.verticalStretch())
        parts << "stretched";
    if (policy.hasHeightForWidth())
        parts << "height for width";
    return parts.join(' ');
}

QStringList childrenOf(const QObject *parent)
{
    QStringList children;
    for (const QObject *child : parent->children())
        children << QString(child->metaObject()->className()) + ' ' + child->objectName();
    return children;
}

QStringList focusChainOf(const QWidget *page)
{
    QStringList names;
    const QWidget *widget = page->nextInFocusChain();
    for (; widget != page; widget = widget->nextInFocusChain()) {
        if (widget->parentWidget() == page)
            names << widget->objectName();
    }
    return names;
}

QStringList differingProperties(const QObject *widget, const QObject *fresh)
{
    QStringList names;
    const QMetaObject *const metaObject = widget->metaObject();
    for (int i = 0; i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        if (!isGeometry(property.name()) && !isSame(property.read(widget), property.read(fresh)))
            names << property.name();
    }
    return names;
}

QStringList propertiesBelow(const QWidget *widget)
{
    QStringList properties;
    QList<const QWidget *> widgets{widget};
    for (const QWidget *child : widget->findChildren<QWidget *>())
        widgets << child;
    for (const QWidget *each : std::as_const(widgets)) {
        const QMetaObject *const metaObject = each->metaObject();
        for (int i = 0; i < metaObject->propertyCount(); ++i) {
            const QMetaProperty property = metaObject->property(i);
            // Qt has a type here that it cannot read.
            if (qstrcmp(property.name(), "selectionBehaviorOnRemove") == 0)
                continue;
            properties << QString("%1 %2: %3")
                              .arg(each->objectName(), property.name(),
                                   valueText(property.read(each)));
        }
    }
    return properties;
}
