// SPDX-License-Identifier: MIT

#include "nextmodal.h"

#include <QApplication>
#include <QPushButton>
#include <QtTest>

NextModal::NextModal(const std::function<void(QWidget *)> &deal)
{
    QObject::connect(&m_timer, &QTimer::timeout, [this, deal] { dealWithModal(deal); });
    m_timer.start(0);
}

NextModal::NextModal(QMessageBox::StandardButton answer)
    : NextModal([this, answer](QWidget *modal) {
        QMessageBox *const box = qobject_cast<QMessageBox *>(modal);
        QVERIFY(box);
        m_text = box->text();
        QVERIFY(box->button(answer));
        QTest::mouseClick(box->button(answer), Qt::LeftButton);
    })
{
}

void NextModal::dealWithModal(const std::function<void(QWidget *)> &deal)
{
    QWidget *const modal = QApplication::activeModalWidget();
    if (!modal)
        return;
    m_timer.stop();
    m_wasOpened = true;
    deal(modal);
    // A step that failed must not leave the test waiting for ever.
    if (modal == QApplication::activeModalWidget())
        modal->close();
}
