// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "nextmodal.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

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

// Presses a key of the X server's keyboard, as the user does.
void pressUntilClosed(QWidget *dialog, const QString &key)
{
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    const EditorViews editor(dialog);
    editor.doubleClick(editor.actionTree, QStringLiteral("Open"));
    run(QStringLiteral("xdotool"), {QStringLiteral("key"), key});
    QTRY_VERIFY(!dialog->isVisible());
}

} // namespace

class tst_RyCustomizedDialog_Window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTitleBarOffersNoContextHelp();
    void theUsersKeysEndTheDialog_data();
    void theUsersKeysEndTheDialog();
};

void tst_RyCustomizedDialog_Window::theTitleBarOffersNoContextHelp()
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

void tst_RyCustomizedDialog_Window::theUsersKeysEndTheDialog_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("the window manager closes it") << QStringLiteral("alt+F4") << false;
    QTest::newRow("Escape") << QStringLiteral("Escape") << false;
    QTest::newRow("Return") << QStringLiteral("Return") << true;
}

void tst_RyCustomizedDialog_Window::theUsersKeysEndTheDialog()
{
    QFETCH(QString, key);
    QFETCH(bool, accepted);
    Host host;
    QToolBar *const file = host.defaultToolBar(QStringLiteral("file"),
                                               {QStringLiteral("save"), QStringLiteral("open")},
                                               QStringLiteral("File"));
    host.manager.setToolBar(file, host.list({QStringLiteral("save")}));
    host.window.show();
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    const NextModal modal([&key](QWidget *widget) { pressUntilClosed(widget, key); });
    QCOMPARE(dialog.exec(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
    QVERIFY(modal.wasShown());
    QStringList content{QStringLiteral("save")};
    if (accepted)
        content << QStringLiteral("open");
    QCOMPARE(standingOn(file), content);
}

QTEST_MAIN(tst_RyCustomizedDialog_Window)

#include "tst_rycustomizeddialog_window.moc"
