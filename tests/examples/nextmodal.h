// SPDX-License-Identifier: MIT

#ifndef NEXTMODAL_H
#define NEXTMODAL_H

#include <QMessageBox>
#include <QTimer>

#include <functional>

/*
 * Deals with the next modal widget that is opened while the object lives.
 */
class NextModal
{
public:
    explicit NextModal(const std::function<void(QWidget *)> &deal);

    // Clicks that button of a message box.
    explicit NextModal(QMessageBox::StandardButton answer);

    ~NextModal();

    // Fails the test and closes a modal widget that no object of this class expects.
    static void refuseUnexpected();

    // Whether one was opened, and the text of the message box.
    bool wasOpened() const { return m_wasOpened; }
    QString text() const { return m_text; }

private:
    void dealWithModal(const std::function<void(QWidget *)> &deal);

    QTimer m_timer;
    bool m_wasOpened = false;
    QString m_text;
};

#endif // NEXTMODAL_H
