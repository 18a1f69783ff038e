// SPDX-License-Identifier: MIT

#include "host.h"
#include "rycustomizeddialog.h"
#include "testcase.h"

#include <QProcess>
#include <QtTest>

namespace {

// Runs a program of the X server's and returns what it prints.
QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        QTest::qFail(qPrintable(program + QLatin1String(" failed")), __FILE__, __LINE__);
    return QString::fromUtf8(process.readAllStandardOutput());
}

// What the window asks of the window manager, such as a button for context help.
QString protocolsOf(const QWidget *window)
{
    return run(
        QStringLiteral("xprop"),
        {QStringLiteral("-id"), QString::number(window->winId()), QStringLiteral("WM_PROTOCOLS")});
}

} // namespace

class tst_RyCustomizedDialog_TitleBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTitleBarOffersNoContextHelp();
};

void tst_RyCustomizedDialog_TitleBar::theTitleBarOffersNoContextHelp()
{
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QString offer = QStringLiteral("_NET_WM_CONTEXT_HELP");
    QVERIFY(!protocolsOf(&dialog).contains(offer));
    QVERIFY(protocolsOf(&dialog).contains(QLatin1String("WM_DELETE_WINDOW")));
    dialog.hide();
    QDialog plain;
    plain.show();
    QVERIFY(QTest::qWaitForWindowExposed(&plain));
    QVERIFY(protocolsOf(&plain).contains(offer));
}

QTEST_MAIN(tst_RyCustomizedDialog_TitleBar)

#include "tst_rycustomizeddialog_titlebar.moc"
