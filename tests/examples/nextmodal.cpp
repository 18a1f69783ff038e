// SPDX-License-Identifier: MIT

#include "nextmodal.h"

#include <QApplication>
#include <QPushButton>
#include <QtTest>

namespace {

int expectations = 0;

} // namespace

NextModal::NextModal(const std::function<void(QWidget *)> &deal)
{
    ++expectations;
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

NextModal::~NextModal()
{
    --expectations;
}

void NextModal::refuseUnexpected()
{
    QWidget *const modal = QApplication::activeModalWidget();
    if (!modal || expectations > 0)
        return;
    modal->close();
    QFAIL(qPrintable(QLatin1String("nobody expects ") + modal->windowTitle()));
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
