// SPDX-License-Identifier: MIT

#include "plaintextdelegate.h"

QString PlainTextDelegate::plainText(const QString &text)
{
    QString plain = text;
    for (int i = plain.indexOf(QLatin1Char('&')); i >= 0;
         i = plain.indexOf(QLatin1Char('&'), i + 1))
        plain.remove(i, 1); // keeps the second one of "&&"
    return plain;
}

QString PlainTextDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    return plainText(QStyledItemDelegate::displayText(value, locale));
}
