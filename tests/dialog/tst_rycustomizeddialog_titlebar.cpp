// SPDX-License-Identifier: MIT

#include "host.h"
#include "rycustomizeddialog.h"
#include "testcase.h"

#include <QProcess>
#include <QtTest>

namespace {

// What the window offers to the window manager, such as a button for context help.
QString protocolsOf(const QWidget *window)
{
    QProcess process;
    process.start("xprop", {"-id", QString::number(window->winId()), "WM_PROTOCOLS"});
    if (!process.waitForFinished() || process.exitCode() != 0)
        QTest::qFail("xprop failed", __FILE__, __LINE__);
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

// What the title bar of the dialog's real window offers.
class tst_RyCustomizedDialog_TitleBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void offersToClose();
    void offersNoContextHelp();
    void offersContextHelpForOtherDialogs();
};

void tst_RyCustomizedDialog_TitleBar::offersToClose()
{
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(protocolsOf(&dialog).contains("WM_DELETE_WINDOW"));
}

void tst_RyCustomizedDialog_TitleBar::offersNoContextHelp()
{
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(!protocolsOf(&dialog).contains("_NET_WM_CONTEXT_HELP"));
}

void tst_RyCustomizedDialog_TitleBar::offersContextHelpForOtherDialogs()
{
    QDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(protocolsOf(&dialog).contains("_NET_WM_CONTEXT_HELP"));
}

QTEST_MAIN(tst_RyCustomizedDialog_TitleBar)

#include "tst_rycustomizeddialog_titlebar.moc"
