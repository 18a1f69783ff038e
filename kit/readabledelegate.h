// SPDX-License-Identifier: MIT

#ifndef READABLEDELEGATE_H
#define READABLEDELEGATE_H

#include "plaintextdelegate.h"

/*!
 * \brief Paints the rows of a list so that they can be read: in colors that contrast with the
 *        background, and with sharp icons.
 */
class ReadableDelegate : public PlainTextDelegate
{
    Q_OBJECT

public:
    using PlainTextDelegate::PlainTextDelegate;

    //! Returns \a color, or one like it with enough contrast to \a background.
    static QColor readable(const QColor &color, const QColor &background);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    /*!
     * \brief Returns the text at the right of a row.
     */
    virtual QString shortcut(const QModelIndex &index) const;

    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

#endif // READABLEDELEGATE_H
