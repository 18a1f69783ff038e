// SPDX-License-Identifier: MIT

#include "nextmodal.h"

#include <QApplication>
#include <QWindow>
#include <QtTest>

NextModal::NextModal(const std::function<void(QWidget *)> &deal)
    : m_deal(deal)
    , m_before(QApplication::activeModalWidget())
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
    m_timer.start(0);
}

bool NextModal::wasShown() const
{
    return m_shown;
}

void NextModal::look()
{
    const QPointer<QWidget> modal = QApplication::activeModalWidget();
    if (!modal || modal == m_before || !modal->isVisible())
        return;
    // A window that is closed before the X server has mapped it cannot be shown again safely.
    if (!modal->windowHandle() || !modal->windowHandle()->isExposed())
        return;
    m_timer.stop();
    m_shown = true;
    m_deal(modal);
    if (modal && modal->isVisible()) {
        QTest::qFail("the modal widget was left open", __FILE__, __LINE__);
        modal->close();
    }
}
