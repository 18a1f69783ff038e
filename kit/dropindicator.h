// SPDX-License-Identifier: MIT

#ifndef DROPINDICATOR_H
#define DROPINDICATOR_H

#include <QWidget>

/*!
 * \brief Shows in a view where what is dragged would go: between two rows, or onto something.
 */
class DropIndicator : public QWidget
{
    Q_OBJECT

public:
    // The height of a line between two rows. What is higher has a frame.
    enum { LineHeight = 2 };

    explicit DropIndicator(QWidget *viewport);

    // An empty place hides it.
    void showAt(QWidget *viewport, const QRect &place);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif // DROPINDICATOR_H
