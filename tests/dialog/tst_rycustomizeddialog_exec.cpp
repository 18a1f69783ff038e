// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "nextmodal.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

#include <memory>

namespace {

using Dealing = std::function<void(QWidget *)>;

QPushButton *buttonOf(QWidget *dialog, QDialogButtonBox::StandardButton which)
{
    return dialog->findChild<QDialogButtonBox *>()->button(which);
}

// To whatever has the focus, as the keyboard does.
void key(QWidget *dialog, Qt::Key key)
{
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QTest::keyClick(dialog->windowHandle(), key);
}

Dealing mouse(QDialogButtonBox::StandardButton which)
{
    return [which](QWidget *dialog) { QTest::mouseClick(buttonOf(dialog, which), Qt::LeftButton); };
}

Dealing keyOn(QDialogButtonBox::StandardButton which, Qt::Key pressed)
{
    return [which, pressed](QWidget *dialog) {
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        buttonOf(dialog, which)->setFocus();
        key(dialog, pressed);
    };
}

// Adds the action "open" to the toolbar that holds "save".
void edit(QWidget *dialog)
{
    const EditorViews editor(dialog);
    editor.doubleClick(editor.actionTree, "Open");
}

const QStringList defaultContent{"open", "save"};
const QStringList oldContent{"save"};
const QStringList newContent{"save", "open"};

struct FileHost : Host
{
    FileHost()
        : file(defaultToolBar("file", defaultContent, "File"))
    {
        manager.setToolBar(file, list(oldContent));
        window.show();
    }

    QToolBar *const file;
};

} // namespace

Q_DECLARE_METATYPE(Dealing)

class tst_RyCustomizedDialog_Exec : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void returnsWhatTheUserChose_data();
    void returnsWhatTheUserChose();
    void isModalWhileItRuns();
    void blocksTheHostsWindow();
    void isNotDeletedOnClose();
    void mayRunAgain();
    void applyKeepsItRunning();
    void restoreDefaultsKeepsItRunning();
    void helpRunsAboveIt();
    void aKeyEndsARenameFirst_data();
    void aKeyEndsARenameFirst();
    void enterInTheListsPressesOk();
    void endsWhenItIsDestroyed();
};

void tst_RyCustomizedDialog_Exec::returnsWhatTheUserChose_data()
{
    QTest::addColumn<Dealing>("deal");
    QTest::addColumn<bool>("accepted");
    const Dealing escape = [](QWidget *dialog) { key(dialog, Qt::Key_Escape); };
    const Dealing enter = [](QWidget *dialog) { key(dialog, Qt::Key_Return); };
    const Dealing close = [](QWidget *dialog) { dialog->close(); };
    const Dealing closeEvent = [](QWidget *dialog) {
        QCloseEvent event;
        QCoreApplication::sendEvent(dialog, &event);
    };
    QTest::newRow("OK by mouse") << mouse(QDialogButtonBox::Ok) << true;
    QTest::newRow("OK by space") << keyOn(QDialogButtonBox::Ok, Qt::Key_Space) << true;
    QTest::newRow("OK as default button") << enter << true;
    QTest::newRow("Cancel by mouse") << mouse(QDialogButtonBox::Cancel) << false;
    QTest::newRow("Cancel by space") << keyOn(QDialogButtonBox::Cancel, Qt::Key_Space) << false;
    QTest::newRow("Cancel by enter") << keyOn(QDialogButtonBox::Cancel, Qt::Key_Enter) << false;
    QTest::newRow("Escape") << escape << false;
    QTest::newRow("close()") << close << false;
    QTest::newRow("close event") << closeEvent << false;
}

void tst_RyCustomizedDialog_Exec::returnsWhatTheUserChose()
{
    QFETCH(Dealing, deal);
    QFETCH(bool, accepted);
    FileHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    const NextModal modal([&deal](QWidget *widget) {
        edit(widget);
        deal(widget);
    });
    QCOMPARE(dialog.exec(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
    QVERIFY(modal.wasShown());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(standingOn(host.file), accepted ? newContent : oldContent);
}

void tst_RyCustomizedDialog_Exec::isModalWhileItRuns()
{
    FileHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    QWidget *seen = nullptr;
    const NextModal modal([&seen](QWidget *widget) {
        seen = widget;
        widget->close();
    });
    dialog.exec();
    QCOMPARE(seen, &dialog);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(dialog.isModal());
}

void tst_RyCustomizedDialog_Exec::blocksTheHostsWindow()
{
    FileHost host;
    QPushButton *const button = new QPushButton(&host.window);
    host.window.setCentralWidget(button);
    QSignalSpy clicked(button, &QPushButton::clicked);
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    const NextModal modal([&host](QWidget *widget) {
        QWindow *const window = host.window.windowHandle();
        QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier,
                          host.window.centralWidget()->geometry().center());
        widget->close();
    });
    dialog.exec();
    QCOMPARE(clicked.count(), 0);
    QTest::mouseClick(host.window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      button->geometry().center());
    QCOMPARE(clicked.count(), 1);
}

void tst_RyCustomizedDialog_Exec::isNotDeletedOnClose()
{
    FileHost host;
    const QPointer<RyCustomizedDialog> dialog =
        new RyCustomizedDialog({&host.manager, nullptr}, &host.window);
    const NextModal modal(mouse(QDialogButtonBox::Ok));
    dialog->exec();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(dialog);
    delete dialog;
}

void tst_RyCustomizedDialog_Exec::mayRunAgain()
{
    FileHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    const NextModal first([](QWidget *widget) {
        edit(widget);
        mouse(QDialogButtonBox::Cancel)(widget);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(standingOn(host.file), oldContent);
    const NextModal second(mouse(QDialogButtonBox::Ok));
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(second.wasShown());
    QCOMPARE(standingOn(host.file), oldContent);
}

void tst_RyCustomizedDialog_Exec::applyKeepsItRunning()
{
    FileHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    QStringList whileRunning;
    bool stayedOpen = false;
    const NextModal modal([&](QWidget *widget) {
        edit(widget);
        mouse(QDialogButtonBox::Apply)(widget);
        whileRunning = standingOn(host.file);
        stayedOpen = widget->isVisible();
        key(widget, Qt::Key_Escape);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(stayedOpen);
    QCOMPARE(whileRunning, newContent);
    QCOMPARE(standingOn(host.file), newContent);
}

void tst_RyCustomizedDialog_Exec::restoreDefaultsKeepsItRunning()
{
    FileHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    QStringList whileRunning;
    bool stayedOpen = false;
    const NextModal modal([&](QWidget *widget) {
        mouse(QDialogButtonBox::RestoreDefaults)(widget);
        whileRunning = standingOn(host.file);
        stayedOpen = widget->isVisible();
        mouse(QDialogButtonBox::Ok)(widget);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(stayedOpen);
    QCOMPARE(whileRunning, oldContent);
    QCOMPARE(standingOn(host.file), defaultContent);
}

void tst_RyCustomizedDialog_Exec::helpRunsAboveIt()
{
    FileHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    bool stayedOpen = false;
    QString text;
    const NextModal modal([&](QWidget *widget) {
        const NextModal help([&text](QWidget *box) {
            text = static_cast<QMessageBox *>(box)->text();
            key(box, Qt::Key_Return);
        });
        mouse(QDialogButtonBox::Help)(widget);
        stayedOpen = widget->isVisible() && QApplication::activeModalWidget() == widget;
        mouse(QDialogButtonBox::Ok)(widget);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(text, "KORVA help  doc!");
    QVERIFY(stayedOpen);
    QCOMPARE(standingOn(host.file), oldContent);
}

void tst_RyCustomizedDialog_Exec::aKeyEndsARenameFirst_data()
{
    QTest::addColumn<Qt::Key>("pressed");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("toolBars");
    QTest::newRow("Escape") << Qt::Key_Escape << int(QDialog::Rejected) << 1;
    QTest::newRow("Return") << Qt::Key_Return << int(QDialog::Accepted) << 2;
}

void tst_RyCustomizedDialog_Exec::aKeyEndsARenameFirst()
{
    QFETCH(Qt::Key, pressed);
    QFETCH(int, result);
    QFETCH(int, toolBars);
    FileHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    bool stayedOpen = false;
    const NextModal modal([&stayedOpen, pressed](QWidget *widget) {
        QVERIFY(QTest::qWaitForWindowActive(widget));
        const EditorViews editor(widget);
        editor.click(editor.newButton);
        QVERIFY(editor.renameEditor());
        key(widget, pressed);
        QTRY_VERIFY(!editor.renameEditor());
        stayedOpen = widget->isVisible();
        key(widget, pressed);
    });
    QCOMPARE(dialog.exec(), result);
    QVERIFY(stayedOpen);
    QCOMPARE(host.window.findChildren<QToolBar *>().size(), toolBars);
}

void tst_RyCustomizedDialog_Exec::enterInTheListsPressesOk()
{
    FileHost host;
    for (const char *name : {"actionTree", "toolBarList", "currentToolBarList"}) {
        RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
        const NextModal modal([name](QWidget *widget) {
            QVERIFY(QTest::qWaitForWindowActive(widget));
            widget->findChild<QWidget *>(name)->setFocus();
            key(widget, Qt::Key_Enter);
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    }
    QCOMPARE(standingOn(host.file), oldContent);
}

void tst_RyCustomizedDialog_Exec::endsWhenItIsDestroyed()
{
    FileHost host;
    RyCustomizedDialog *const dialog =
        new RyCustomizedDialog({&host.manager, nullptr}, &host.window);
    const NextModal modal([](QWidget *widget) {
        edit(widget);
        delete widget;
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(modal.wasShown());
    QCOMPARE(standingOn(host.file), oldContent);
}

QTEST_MAIN(tst_RyCustomizedDialog_Exec)

#include "tst_rycustomizeddialog_exec.moc"
