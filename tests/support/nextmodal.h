// SPDX-License-Identifier: MIT

#ifndef NEXTMODAL_H
#define NEXTMODAL_H

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>

/*
 * Deals with the next modal widget that is shown, from within the event loop that it runs. The
 * widget must be closed when the function returns; otherwise the test fails and it is closed here.
 */
class NextModal
{
public:
    explicit NextModal(const std::function<void(QWidget *)> &deal);

    // Whether a modal widget was shown and dealt with.
    bool wasShown() const;

private:
    void look();

    std::function<void(QWidget *)> m_deal;
    QPointer<QWidget> m_before;
    QTimer m_timer;
    bool m_shown = false;
};

#endif // NEXTMODAL_H
