// SPDX-License-Identifier: MIT

#include "nextmodal.h"
#include "recordingpage.h"
#include "ryabstatcmanager.h"
#include "rycustomizeddialog.h"
#include "testcase.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include <memory>

namespace {

QStringList log(const char *lines)
{
    return QString(lines).split('\n', Qt::SkipEmptyParts);
}

const char applied[] = "toolbar apply\nribbon apply\n";
const char finished[] = "toolbar finish while open\nribbon finish while open\n";
const char restored[] = "toolbar RestorDefaults\nribbon RestorDefaults\n";

// The two managers and the dialog; what construction recorded is taken.
struct Opened
{
    Opened()
    {
        ofToolBars.setObjectName("first");
        ofRibbon.setObjectName("second");
        dialog.reset(new RyCustomizedDialog({&ofToolBars, &ofRibbon}, nullptr));
        dialog->show();
        RecordingPage::takeLog();
    }
    ~Opened()
    {
        dialog.reset();
        RecordingPage::takeLog();
    }
    Q_DISABLE_COPY(Opened)

    QPushButton *button(QDialogButtonBox::StandardButton which) const
    {
        return dialog->findChild<QDialogButtonBox *>()->button(which);
    }

    RyAbstatcManager ofToolBars;
    RyAbstatcManager ofRibbon;
    std::unique_ptr<RyCustomizedDialog> dialog;
};

// Says when the functions run that a subclass may override.
class OverridingDialog : public RyCustomizedDialog
{
    Q_OBJECT

public:
    OverridingDialog()
        : RyCustomizedDialog({nullptr, nullptr}, nullptr)
    {
    }

    void accept() override
    {
        calls << "accept";
        RyCustomizedDialog::accept();
    }
    void reject() override
    {
        calls << "reject";
        RyCustomizedDialog::reject();
    }
    void done(int result) override
    {
        calls << QString("done %1").arg(result);
        RyCustomizedDialog::done(result);
    }

    QStringList calls;
};

void closeMessageBox(QWidget *modal)
{
    QTest::keyClick(modal, Qt::Key_Escape);
}

} // namespace

Q_DECLARE_METATYPE(QDialogButtonBox::StandardButton)

// The dialog's own sources, built with pages that record what reaches them.
class tst_RyCustomizedDialog_Pages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thePagesAreMadeInOrder();
    void aNullRibbonManagerIsPassedOn();
    void furtherManagersAreIgnored();
    void thePagesAreTheTabs();
    void thePageWidgetsMoveIntoTheTabs();
    void thePagesAreDeletedInOrderAndBeforeTheirWidgets();
    void thePagesOutliveTheClosedDialog();

    void theButtonsReachThePages_data();
    void theButtonsReachThePages();
    void theSlotsReachThePages_data();
    void theSlotsReachThePages();
    void helpReachesNoPage();
    void theHostsSlotReachesNoPage();
    void switchingTabsReachesNoPage();
    void showingReachesNoPage();
    void escapeFinishesNoPage();
    void closingFinishesNoPage_data();
    void closingFinishesNoPage();
    void everyPressReachesThePagesAgain();
    void theOrderIsTheSameOnTheRibbonTab();
    void noPageIsReachedAfterADeletion_data();
    void noPageIsReachedAfterADeletion();
    void applyThenOkAppliesTwice();
    void applyThenCancelAppliesOnce();
    void aReopenedDialogKeepsItsPages();

    void okAndCancelBypassOverriddenFunctions_data();
    void okAndCancelBypassOverriddenFunctions();
    void escapeAndCloseCallTheVirtualReject();

private:
    static void addButtons();
    static void press(QPushButton *button, const QString &how);
};

void tst_RyCustomizedDialog_Pages::thePagesAreMadeInOrder()
{
    RyAbstatcManager first;
    first.setObjectName("first");
    RyAbstatcManager second;
    second.setObjectName("second");
    RecordingPage::takeLog();
    const RyCustomizedDialog dialog({&first, &second}, nullptr);
    QCOMPARE(RecordingPage::takeLog(),
             log("ribbon made for second\n"
                 "toolbar made for first\n"
                 "toolbar createPage in CustomizedDialog with 0 tabs\n"
                 "toolbar name\n"
                 "ribbon createPage in CustomizedDialog with 1 tabs\n"
                 "ribbon name\n"));
}

void tst_RyCustomizedDialog_Pages::aNullRibbonManagerIsPassedOn()
{
    RyAbstatcManager first;
    first.setObjectName("first");
    RecordingPage::takeLog();
    const RyCustomizedDialog dialog({&first, nullptr}, nullptr);
    const QStringList made = RecordingPage::takeLog().mid(0, 2);
    QCOMPARE(made, log("ribbon made for null\ntoolbar made for first"));
}

void tst_RyCustomizedDialog_Pages::furtherManagersAreIgnored()
{
    RyAbstatcManager first;
    first.setObjectName("first");
    RyAbstatcManager third;
    std::unique_ptr<RyAbstatcManager> deleted(new RyAbstatcManager);
    const QList<RyAbstatcManager *> managers{&first, nullptr, &third, nullptr, deleted.get()};
    deleted.reset();
    RecordingPage::takeLog();
    const RyCustomizedDialog dialog(managers, nullptr);
    QCOMPARE(RecordingPage::takeLog().size(), 6);
    QCOMPARE(dialog.findChild<QTabWidget *>()->count(), 2);
}

void tst_RyCustomizedDialog_Pages::thePagesAreTheTabs()
{
    const Opened opened;
    const QTabWidget *const tabs = opened.dialog->findChild<QTabWidget *>();
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->tabText(0), "toolbar");
    QCOMPARE(tabs->tabText(1), "ribbon");
    QCOMPARE(tabs->widget(0)->objectName(), "toolbar");
    QCOMPARE(tabs->widget(1)->objectName(), "ribbon");
}

void tst_RyCustomizedDialog_Pages::thePageWidgetsMoveIntoTheTabs()
{
    const Opened opened;
    const QTabWidget *const tabs = opened.dialog->findChild<QTabWidget *>();
    for (const char *const name : {"toolbar", "ribbon"}) {
        const QWidget *const widget = opened.dialog->findChild<QWidget *>(name);
        QVERIFY(tabs->isAncestorOf(widget));
        QVERIFY(widget->parentWidget() != opened.dialog.get());
    }
}

void tst_RyCustomizedDialog_Pages::thePagesAreDeletedInOrderAndBeforeTheirWidgets()
{
    Opened opened;
    opened.dialog.reset();
    QStringList ends = RecordingPage::takeLog();
    // Qt deletes the widgets in an order of its own.
    std::sort(ends.begin() + 2, ends.end());
    QCOMPARE(ends,
             log("toolbar deleted before its widget\n"
                 "ribbon deleted before its widget\n"
                 "ribbon widget gone\n"
                 "toolbar widget gone\n"));
}

void tst_RyCustomizedDialog_Pages::thePagesOutliveTheClosedDialog()
{
    const Opened opened;
    opened.dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(RecordingPage::takeLog(), QStringList());
}

void tst_RyCustomizedDialog_Pages::addButtons()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("which");
    QTest::addColumn<QString>("how");
    QTest::addColumn<QByteArray>("calls");
    QTest::addColumn<bool>("open");
    const QByteArray accepting = QByteArray(applied) + finished;
    for (const char *const how : {"mouse", "space", "enter", "click()"}) {
        const auto row = [&how](const char *name) -> QTestData & {
            return QTest::addRow("%s by %s", name, how);
        };
        row("OK") << QDialogButtonBox::Ok << how << accepting << false;
        row("Apply") << QDialogButtonBox::Apply << how << QByteArray(applied) << true;
        row("Cancel") << QDialogButtonBox::Cancel << how << QByteArray(finished) << false;
        row("Restore Defaults") << QDialogButtonBox::RestoreDefaults << how << QByteArray(restored)
                                << true;
    }
    QTest::newRow("OK by enter elsewhere")
        << QDialogButtonBox::Ok << "enter elsewhere" << accepting << false;
}

void tst_RyCustomizedDialog_Pages::press(QPushButton *button, const QString &how)
{
    QVERIFY(QTest::qWaitForWindowActive(button->window()));
    QWindow *const window = button->window()->windowHandle();
    if (how == "mouse") {
        QTest::mouseClick(button, Qt::LeftButton);
    } else if (how == "click()") {
        button->click();
    } else if (how == "enter elsewhere") {
        button->window()->findChild<QTabBar *>()->setFocus();
        QTest::keyClick(window, Qt::Key_Return);
    } else {
        button->setFocus();
        QVERIFY(button->hasFocus());
        QTest::keyClick(window, how == "space" ? Qt::Key_Space : Qt::Key_Enter);
    }
}

void tst_RyCustomizedDialog_Pages::theButtonsReachThePages_data()
{
    addButtons();
}

void tst_RyCustomizedDialog_Pages::theButtonsReachThePages()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    QFETCH(QString, how);
    QFETCH(QByteArray, calls);
    QFETCH(bool, open);
    const Opened opened;
    press(opened.button(which), how);
    QCOMPARE(RecordingPage::takeLog(), log(calls.constData()));
    QCOMPARE(opened.dialog->isVisible(), open);
    const bool accepted = which == QDialogButtonBox::Ok;
    QCOMPARE(opened.dialog->result(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
}

void tst_RyCustomizedDialog_Pages::theSlotsReachThePages_data()
{
    QTest::addColumn<QByteArray>("calls");
    QTest::addColumn<bool>("open");
    QTest::newRow("slotAccepted") << QByteArray(applied) + finished << false;
    QTest::newRow("slotRejected") << QByteArray(finished) << false;
    QTest::newRow("slotApply") << QByteArray(applied) << true;
    QTest::newRow("slotRestorDefault") << QByteArray(restored) << true;
}

void tst_RyCustomizedDialog_Pages::theSlotsReachThePages()
{
    QFETCH(QByteArray, calls);
    QFETCH(bool, open);
    const Opened opened;
    QVERIFY(QMetaObject::invokeMethod(opened.dialog.get(), QTest::currentDataTag(),
                                      Qt::DirectConnection));
    QCOMPARE(RecordingPage::takeLog(), log(calls.constData()));
    QCOMPARE(opened.dialog->isVisible(), open);
}

void tst_RyCustomizedDialog_Pages::helpReachesNoPage()
{
    const Opened opened;
    const NextModal help(closeMessageBox);
    QTest::mouseClick(opened.dialog->helpButton(), Qt::LeftButton);
    QVERIFY(help.wasShown());
    QCOMPARE(RecordingPage::takeLog(), QStringList());
    QVERIFY(opened.dialog->isVisible());
}

void tst_RyCustomizedDialog_Pages::theHostsSlotReachesNoPage()
{
    const Opened opened;
    for (bool modified : {true, false})
        QVERIFY(QMetaObject::invokeMethod(opened.dialog.get(), "slotUiModeChanged",
                                          Q_ARG(bool, modified)));
    QCOMPARE(RecordingPage::takeLog(), QStringList());
}

void tst_RyCustomizedDialog_Pages::switchingTabsReachesNoPage()
{
    const Opened opened;
    QTabWidget *const tabs = opened.dialog->findChild<QTabWidget *>();
    tabs->setCurrentIndex(1);
    tabs->setCurrentIndex(0);
    QCOMPARE(RecordingPage::takeLog(), QStringList());
}

void tst_RyCustomizedDialog_Pages::showingReachesNoPage()
{
    const Opened opened;
    opened.dialog->hide();
    opened.dialog->show();
    QCOMPARE(RecordingPage::takeLog(), QStringList());
}

void tst_RyCustomizedDialog_Pages::escapeFinishesNoPage()
{
    const Opened opened;
    QVERIFY(QTest::qWaitForWindowActive(opened.dialog.get()));
    QTest::keyClick(opened.dialog->windowHandle(), Qt::Key_Escape);
    QVERIFY(!opened.dialog->isVisible());
    QCOMPARE(opened.dialog->result(), int(QDialog::Rejected));
    QCOMPARE(RecordingPage::takeLog(), QStringList());
}

void tst_RyCustomizedDialog_Pages::closingFinishesNoPage_data()
{
    QTest::addColumn<bool>("byEvent");
    QTest::newRow("close()") << false;
    QTest::newRow("close event") << true;
}

void tst_RyCustomizedDialog_Pages::closingFinishesNoPage()
{
    QFETCH(bool, byEvent);
    const Opened opened;
    opened.dialog->setResult(QDialog::Accepted);
    QCloseEvent event;
    if (byEvent)
        QCoreApplication::sendEvent(opened.dialog.get(), &event);
    else
        opened.dialog->close();
    QVERIFY(!opened.dialog->isVisible());
    QCOMPARE(opened.dialog->result(), int(QDialog::Rejected));
    QCOMPARE(RecordingPage::takeLog(), QStringList());
}

void tst_RyCustomizedDialog_Pages::everyPressReachesThePagesAgain()
{
    const Opened opened;
    opened.dialog->applyButton()->click();
    opened.dialog->RestoreDefaultButton()->click();
    opened.dialog->RestoreDefaultButton()->click();
    opened.dialog->applyButton()->click();
    const QByteArray expected = QByteArray(applied) + restored + restored + applied;
    QCOMPARE(RecordingPage::takeLog(), log(expected.constData()));
}

void tst_RyCustomizedDialog_Pages::theOrderIsTheSameOnTheRibbonTab()
{
    const Opened opened;
    opened.dialog->findChild<QTabWidget *>()->setCurrentIndex(1);
    opened.dialog->RestoreDefaultButton()->click();
    opened.dialog->okButton()->click();
    const QByteArray expected = QByteArray(restored) + applied + finished;
    QCOMPARE(RecordingPage::takeLog(), log(expected.constData()));
}

void tst_RyCustomizedDialog_Pages::noPageIsReachedAfterADeletion_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("which");
    QTest::addColumn<QByteArray>("calls");
    QTest::newRow("OK, first page applies") << QDialogButtonBox::Ok << QByteArray("toolbar apply");
    QTest::newRow("OK, last page applies") << QDialogButtonBox::Ok << QByteArray(applied).trimmed();
    QTest::newRow("OK, first page finishes")
        << QDialogButtonBox::Ok << QByteArray(applied) + "toolbar finish while open";
    QTest::newRow("OK, last page finishes")
        << QDialogButtonBox::Ok << QByteArray(applied) + QByteArray(finished).trimmed();
    QTest::newRow("Apply") << QDialogButtonBox::Apply << QByteArray("toolbar apply");
    QTest::newRow("Cancel, first page finishes")
        << QDialogButtonBox::Cancel << QByteArray("toolbar finish while open");
    QTest::newRow("Cancel, last page finishes")
        << QDialogButtonBox::Cancel << QByteArray(finished).trimmed();
    QTest::newRow("Restore Defaults")
        << QDialogButtonBox::RestoreDefaults << QByteArray("toolbar RestorDefaults");
}

// At the last of these calls the host deletes the dialog.
void tst_RyCustomizedDialog_Pages::noPageIsReachedAfterADeletion()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    QFETCH(QByteArray, calls);
    Opened opened;
    const QStringList expected = log(calls.constData());
    RecordingPage::callAt(expected.constLast(), [&opened] { opened.dialog.reset(); });
    opened.button(which)->click();
    QVERIFY(!opened.dialog);
    const QStringList ends = log("toolbar deleted before its widget\n"
                                 "ribbon deleted before its widget\n");
    const QStringList found = RecordingPage::takeLog();
    QCOMPARE(found.mid(0, expected.size() + 2), expected + ends);
    QCOMPARE(found.filter("widget gone"), found.mid(expected.size() + 2));
}

void tst_RyCustomizedDialog_Pages::applyThenOkAppliesTwice()
{
    const Opened opened;
    opened.dialog->applyButton()->click();
    opened.dialog->okButton()->click();
    const QByteArray expected = QByteArray(applied) + applied + finished;
    QCOMPARE(RecordingPage::takeLog(), log(expected.constData()));
}

void tst_RyCustomizedDialog_Pages::applyThenCancelAppliesOnce()
{
    const Opened opened;
    opened.dialog->applyButton()->click();
    opened.button(QDialogButtonBox::Cancel)->click();
    const QByteArray expected = QByteArray(applied) + finished;
    QCOMPARE(RecordingPage::takeLog(), log(expected.constData()));
}

void tst_RyCustomizedDialog_Pages::aReopenedDialogKeepsItsPages()
{
    const Opened opened;
    opened.button(QDialogButtonBox::Cancel)->click();
    RecordingPage::takeLog();
    opened.dialog->show();
    QCOMPARE(RecordingPage::takeLog(), QStringList());
    opened.dialog->applyButton()->click();
    QCOMPARE(RecordingPage::takeLog(), log(applied));
}

void tst_RyCustomizedDialog_Pages::okAndCancelBypassOverriddenFunctions_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("which");
    QTest::addColumn<QString>("done");
    QTest::newRow("OK") << QDialogButtonBox::Ok << "done 1";
    QTest::newRow("Cancel") << QDialogButtonBox::Cancel << "done 0";
}

// The dialog calls QDialog's accept() and reject(), which end in the virtual done().
void tst_RyCustomizedDialog_Pages::okAndCancelBypassOverriddenFunctions()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    QFETCH(QString, done);
    OverridingDialog dialog;
    dialog.show();
    dialog.findChild<QDialogButtonBox *>()->button(which)->click();
    QCOMPARE(dialog.calls, QStringList{done});
}

void tst_RyCustomizedDialog_Pages::escapeAndCloseCallTheVirtualReject()
{
    const QStringList expected{"reject", "done 0"};
    OverridingDialog dialog;
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(dialog.calls, expected);
    dialog.calls.clear();
    dialog.show();
    dialog.close();
    QCOMPARE(dialog.calls, expected);
}

QTEST_MAIN(tst_RyCustomizedDialog_Pages)

#include "tst_rycustomizeddialog_pages.moc"
