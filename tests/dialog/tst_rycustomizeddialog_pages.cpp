// SPDX-License-Identifier: MIT

#include "nextmodal.h"
#include "recordingpage.h"
#include "ryabstatcmanager.h"
#include "rycustomizeddialog.h"
#include "testcase.h"

#include <QDialogButtonBox>
#include <QPushButton>
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

} // namespace

Q_DECLARE_METATYPE(QDialogButtonBox::StandardButton)
Q_DECLARE_METATYPE(QEvent::Type)

// The dialog's own sources, built with pages that record what reaches them.
class tst_RyCustomizedDialog_Pages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thePagesAreMadeInOrder();
    void furtherManagersAreIgnored();
    void thePagesAreDeletedInOrderAndBeforeTheirWidgets();

    void theButtonsReachThePages_data();
    void theButtonsReachThePages();
    void nothingElseReachesAPage();
    void escapeAndClosingFinishNoPage_data();
    void escapeAndClosingFinishNoPage();
    void everyPressReachesThePagesAgain_data();
    void everyPressReachesThePagesAgain();
    void noPageIsReachedAfterADeletion_data();
    void noPageIsReachedAfterADeletion();
    void aReopenedDialogKeepsItsPages();

    void okAndCancelBypassOverriddenFunctions_data();
    void okAndCancelBypassOverriddenFunctions();
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

void tst_RyCustomizedDialog_Pages::theButtonsReachThePages_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("which");
    QTest::addColumn<QByteArray>("calls");
    QTest::addColumn<bool>("open");
    QTest::newRow("OK") << QDialogButtonBox::Ok << QByteArray(applied) + finished << false;
    QTest::newRow("Apply") << QDialogButtonBox::Apply << QByteArray(applied) << true;
    QTest::newRow("Cancel") << QDialogButtonBox::Cancel << QByteArray(finished) << false;
    QTest::newRow("Restore Defaults")
        << QDialogButtonBox::RestoreDefaults << QByteArray(restored) << true;
}

void tst_RyCustomizedDialog_Pages::theButtonsReachThePages()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    QFETCH(QByteArray, calls);
    QFETCH(bool, open);
    const Opened opened;
    opened.button(which)->click();
    QCOMPARE(RecordingPage::takeLog(), log(calls.constData()));
    QCOMPARE(opened.dialog->isVisible(), open);
    const bool accepted = which == QDialogButtonBox::Ok;
    QCOMPARE(opened.dialog->result(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
}

void tst_RyCustomizedDialog_Pages::nothingElseReachesAPage()
{
    const Opened opened;
    const NextModal help([](QWidget *modal) { QTest::keyClick(modal, Qt::Key_Escape); });
    opened.dialog->helpButton()->click();
    QVERIFY(help.wasShown());
    for (bool modified : {true, false})
        QVERIFY(QMetaObject::invokeMethod(opened.dialog.get(), "slotUiModeChanged",
                                          Q_ARG(bool, modified)));
    for (int tab : {1, 0})
        opened.dialog->findChild<QTabWidget *>()->setCurrentIndex(tab);
    opened.dialog->hide();
    opened.dialog->show();
    QCOMPARE(RecordingPage::takeLog(), QStringList());
}

void tst_RyCustomizedDialog_Pages::escapeAndClosingFinishNoPage_data()
{
    QTest::addColumn<QEvent::Type>("way");
    QTest::newRow("Escape") << QEvent::KeyPress;
    QTest::newRow("close()") << QEvent::None;
    QTest::newRow("close event") << QEvent::Close;
}

// They go to the virtual reject().
void tst_RyCustomizedDialog_Pages::escapeAndClosingFinishNoPage()
{
    QFETCH(QEvent::Type, way);
    OverridingDialog dialog;
    dialog.show();
    dialog.setResult(QDialog::Accepted);
    RecordingPage::takeLog();
    QCloseEvent event;
    if (way == QEvent::KeyPress)
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else if (way == QEvent::Close)
        QCoreApplication::sendEvent(&dialog, &event);
    else
        dialog.close();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.calls, QStringList({"reject", "done 0"}));
    QCOMPARE(RecordingPage::takeLog(), QStringList());
}

void tst_RyCustomizedDialog_Pages::everyPressReachesThePagesAgain_data()
{
    QTest::addColumn<int>("tab");
    QTest::newRow("on the first tab") << 0;
    QTest::newRow("on the second tab") << 1;
}

void tst_RyCustomizedDialog_Pages::everyPressReachesThePagesAgain()
{
    QFETCH(int, tab);
    const Opened opened;
    opened.dialog->findChild<QTabWidget *>()->setCurrentIndex(tab);
    opened.dialog->applyButton()->click();
    opened.dialog->RestoreDefaultButton()->click();
    opened.dialog->RestoreDefaultButton()->click();
    opened.dialog->applyButton()->click();
    opened.dialog->okButton()->click();
    const QByteArray expected =
        QByteArray(applied) + restored + restored + applied + applied + finished;
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

QTEST_MAIN(tst_RyCustomizedDialog_Pages)

#include "tst_rycustomizeddialog_pages.moc"
