// SPDX-License-Identifier: MIT

#ifndef PLAINTEXTDELEGATE_H
#define PLAINTEXTDELEGATE_H

#include <QStyledItemDelegate>

/*!
 * \brief Shows texts without the "&" of their mnemonics.
 */
class PlainTextDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    //! Returns \a text as it is shown. "&&" becomes "&".
    static QString plainText(const QString &text);

    QString displayText(const QVariant &value, const QLocale &locale) const override;
};

#endif // PLAINTEXTDELEGATE_H
