// SPDX-License-Identifier: MIT

#include "connections.h"
#include "editorviews.h"
#include "host.h"
#include "nextmodal.h"
#include "recordingtranslator.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

namespace {

const QStringList defaultContent{"open", "|", "save"};
const QStringList changedContent{"save"};
const QStringList editedContent{"save", "open"};
const QStringList editedRows{"Save", "Open"};

// A host whose default toolbar no longer has its default content and that has a custom toolbar, and
// the shown dialog.
struct Session : Host
{
    Session()
        : file(defaultToolBar("file", defaultContent, "File"))
        , custom(manager.createToolBar("Custom"))
        , dialog({&manager, nullptr}, &window)
        , editor(&dialog)
        , box(dialog.findChild<QDialogButtonBox *>())
        , tabs(dialog.findChild<QTabWidget *>())
    {
        manager.setToolBar(file, list(changedContent));
        dialog.show();
        editor.click(editor.toolBarList, "File");
    }

    // Appends the action "open" to the default toolbar in the working copy.
    void edit() const { editor.doubleClick(editor.actionTree, "Open"); }

    void press(QDialogButtonBox::StandardButton which) const
    {
        QTest::mouseClick(box->button(which), Qt::LeftButton);
    }

    // What the host has: the content of the default toolbar and the names of all toolbars.
    QStringList state() const
    {
        QStringList names = standingOn(file);
        for (const QToolBar *toolBar : window.findChildren<QToolBar *>())
            names << toolBar->windowTitle();
        return names;
    }

    QToolBar *const file;
    const QPointer<QToolBar> custom;
    RyCustomizedDialog dialog;
    const EditorViews editor;
    QDialogButtonBox *const box;
    QTabWidget *const tabs;
};

const QStringList titles{"File", "Custom"};

// What the message box of Help says of itself.
struct MessageBox
{
    QString title;
    QString text;
    QString informativeText;
    const QWidget *parent = nullptr;
    int buttons = 0;
};

void press(QWidget *modal, MessageBox *seen)
{
    const QMessageBox *const box = qobject_cast<QMessageBox *>(modal);
    QVERIFY(box);
    *seen = {box->windowTitle(), box->text(), box->informativeText(), box->parentWidget(),
             box->buttons().size()};
    QTest::mouseClick(box->buttons().value(0), Qt::LeftButton);
}

class Announcer : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void modifiedChanged(bool modified);
};

} // namespace

Q_DECLARE_METATYPE(QDialogButtonBox::StandardButton)

class tst_RyCustomizedDialog_Buttons : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void eachButtonIsConnectedOnce_data();
    void eachButtonIsConnectedOnce();
    void rejectedIsConnectedOnce();
    void acceptedAndHelpRequestedAreUnconnected();
    void cancelsClickIsUnconnected();
    void theHostsSlotIsConnectedToNothing();
    void theButtonsActAtOnce();

    void okAppliesAndCloses();
    void okIsTheDefaultButton();
    void cancelDropsTheEdits();
    void applyStaysOpenAndKeepsTheEdits();
    void applyThenOkAppliesAgain();
    void applyThenCancelKeepsWhatWasApplied();
    void theButtonsWorkOnTheRibbonTab();

    void restoreDefaultsChangesOnlyTheWorkingCopy();
    void restoreDefaultsThenCancelLeavesTheHost();
    void restoreDefaultsThenOkResetsTheHost_data();
    void restoreDefaultsThenOkResetsTheHost();
    void restoreDefaultsOnTheRibbonTabChangesNothing_data();
    void restoreDefaultsOnTheRibbonTabChangesNothing();
    void restoreDefaultsSkipsAToolBarRegisteredMeanwhile_data();
    void restoreDefaultsSkipsAToolBarRegisteredMeanwhile();

    void helpShowsAMessage();
    void helpIsAnAboutBox();
    void helpIsTranslated();
    void helpChangesNothing();
    void helpIsShownAtEachPress();
    void helpClosedWithEscapeLeavesTheDialog();

    void modifiedDisablesApply_data();
    void modifiedDisablesApply();
    void applyStaysDisabled();
    void aDisabledApplyDoesNothing();
    void okWorksWithoutApply();
    void applyIsEnabledThroughout();
};

void tst_RyCustomizedDialog_Buttons::eachButtonIsConnectedOnce_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("which");
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("OK") << QDialogButtonBox::Ok << QByteArray(SLOT(slotAccepted()));
    QTest::newRow("Apply") << QDialogButtonBox::Apply << QByteArray(SLOT(slotApply()));
    QTest::newRow("Help") << QDialogButtonBox::Help << QByteArray(SLOT(slotHelp()));
    QTest::newRow("Restore Defaults")
        << QDialogButtonBox::RestoreDefaults << QByteArray(SLOT(slotRestorDefault()));
}

// Beside this one connection there is the button box's own.
void tst_RyCustomizedDialog_Buttons::eachButtonIsConnectedOnce()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    QFETCH(QByteArray, slot);
    Session session;
    QPushButton *const button = session.box->button(which);
    const QDialogButtonBox plain(QDialogButtonBox::Ok);
    const int ofBox = receiversOf(plain.button(QDialogButtonBox::Ok), SIGNAL(clicked()));
    QCOMPARE(receiversOf(button, SIGNAL(clicked())), ofBox + 1);
    QCOMPARE(takeConnections(button, SIGNAL(clicked()), &session.dialog, slot.constData()), 1);
}

void tst_RyCustomizedDialog_Buttons::rejectedIsConnectedOnce()
{
    Session session;
    QCOMPARE(receiversOf(session.box, SIGNAL(rejected())), 1);
    QCOMPARE(
        takeConnections(session.box, SIGNAL(rejected()), &session.dialog, SLOT(slotRejected())), 1);
}

void tst_RyCustomizedDialog_Buttons::acceptedAndHelpRequestedAreUnconnected()
{
    const Session session;
    QCOMPARE(receiversOf(session.box, SIGNAL(accepted())), 0);
    QCOMPARE(receiversOf(session.box, SIGNAL(helpRequested())), 0);
    QCOMPARE(receiversOf(session.box, SIGNAL(clicked(QAbstractButton *))), 0);
}

void tst_RyCustomizedDialog_Buttons::cancelsClickIsUnconnected()
{
    const Session session;
    const QDialogButtonBox plain(QDialogButtonBox::Cancel);
    QCOMPARE(receiversOf(session.box->button(QDialogButtonBox::Cancel), SIGNAL(clicked())),
             receiversOf(plain.button(QDialogButtonBox::Cancel), SIGNAL(clicked())));
}

void tst_RyCustomizedDialog_Buttons::theHostsSlotIsConnectedToNothing()
{
    Session session;
    QObjectList senders{&session.dialog, &session.manager, &session.window};
    for (QObject *below : session.window.findChildren<QObject *>())
        senders << below;
    for (QObject *sender : qAsConst(senders))
        QVERIFY(
            !QObject::disconnect(sender, nullptr, &session.dialog, SLOT(slotUiModeChanged(bool))));
}

void tst_RyCustomizedDialog_Buttons::theButtonsActAtOnce()
{
    Session session;
    session.edit();
    session.dialog.applyButton()->click();
    QCOMPARE(standingOn(session.file), editedContent);
    session.dialog.okButton()->click();
    QVERIFY(!session.dialog.isVisible());
}

void tst_RyCustomizedDialog_Buttons::okAppliesAndCloses()
{
    Session session;
    QSignalSpy accepted(&session.dialog, &QDialog::accepted);
    QSignalSpy finished(&session.dialog, &QDialog::finished);
    session.edit();
    session.press(QDialogButtonBox::Ok);
    QCOMPARE(session.state(), editedContent + titles);
    QVERIFY(!session.dialog.isVisible());
    QCOMPARE(session.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(finished.count(), 1);
}

void tst_RyCustomizedDialog_Buttons::okIsTheDefaultButton()
{
    const Session session;
    QVERIFY(session.dialog.okButton()->isDefault());
}

void tst_RyCustomizedDialog_Buttons::cancelDropsTheEdits()
{
    Session session;
    QSignalSpy rejected(&session.dialog, &QDialog::rejected);
    QSignalSpy finished(&session.dialog, &QDialog::finished);
    session.edit();
    session.press(QDialogButtonBox::Cancel);
    QCOMPARE(session.state(), changedContent + titles);
    QVERIFY(!session.dialog.isVisible());
    QCOMPARE(session.dialog.result(), int(QDialog::Rejected));
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(finished.count(), 1);
}

void tst_RyCustomizedDialog_Buttons::applyStaysOpenAndKeepsTheEdits()
{
    Session session;
    QSignalSpy finished(&session.dialog, &QDialog::finished);
    session.edit();
    session.press(QDialogButtonBox::Apply);
    QCOMPARE(session.state(), editedContent + titles);
    QVERIFY(session.dialog.isVisible());
    QCOMPARE(finished.count(), 0);
    QCOMPARE(session.tabs->currentIndex(), 0);
    QCOMPARE(currentOf(session.editor.toolBarList), "File");
    QCOMPARE(rowsOf(session.editor.currentToolBarList), editedRows);
}

// The second time shows in a title that the host changed in between.
void tst_RyCustomizedDialog_Buttons::applyThenOkAppliesAgain()
{
    Session session;
    session.edit();
    session.press(QDialogButtonBox::Apply);
    session.file->setWindowTitle("Renamed");
    session.manager.setToolBar(session.file, {});
    session.press(QDialogButtonBox::Ok);
    QCOMPARE(session.state(), editedContent + titles);
}

void tst_RyCustomizedDialog_Buttons::applyThenCancelKeepsWhatWasApplied()
{
    Session session;
    session.edit();
    session.press(QDialogButtonBox::Apply);
    session.editor.click(session.editor.leftButton);
    session.press(QDialogButtonBox::Cancel);
    QCOMPARE(session.state(), editedContent + titles);
    QCOMPARE(session.dialog.result(), int(QDialog::Rejected));
}

void tst_RyCustomizedDialog_Buttons::theButtonsWorkOnTheRibbonTab()
{
    Session session;
    session.tabs->setCurrentIndex(1);
    session.press(QDialogButtonBox::Apply);
    QVERIFY(session.dialog.isVisible());
    session.press(QDialogButtonBox::Ok);
    QCOMPARE(session.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(session.state(), changedContent + titles);
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsChangesOnlyTheWorkingCopy()
{
    Session session;
    session.press(QDialogButtonBox::RestoreDefaults);
    QVERIFY(session.dialog.isVisible());
    QCOMPARE(session.state(), changedContent + titles);
    QCOMPARE(rowsOf(session.editor.toolBarList), QStringList{"File"});
    const QStringList rows{"Open", "< S E P A R A T O R >", "Save"};
    QCOMPARE(rowsOf(session.editor.currentToolBarList), rows);
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsThenCancelLeavesTheHost()
{
    Session session;
    session.press(QDialogButtonBox::RestoreDefaults);
    session.press(QDialogButtonBox::Cancel);
    QCOMPARE(session.state(), changedContent + titles);
    QVERIFY(session.custom);
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsThenOkResetsTheHost_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("which");
    QTest::newRow("OK") << QDialogButtonBox::Ok;
    QTest::newRow("Apply") << QDialogButtonBox::Apply;
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsThenOkResetsTheHost()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    Session session;
    session.press(QDialogButtonBox::RestoreDefaults);
    session.press(which);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(session.state(), defaultContent + QStringList{"File"});
    QVERIFY(!session.custom);
    QCOMPARE(session.manager.toolBarsActions().keys(), QList<QToolBar *>{session.file});
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsOnTheRibbonTabChangesNothing_data()
{
    restoreDefaultsThenOkResetsTheHost_data();
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsOnTheRibbonTabChangesNothing()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    Session session;
    session.tabs->setCurrentIndex(1);
    session.press(QDialogButtonBox::RestoreDefaults);
    session.press(which);
    QCOMPARE(session.state(), changedContent + titles);
    QVERIFY(session.custom);
    session.dialog.show();
    session.tabs->setCurrentIndex(0);
    session.press(QDialogButtonBox::Ok);
    QCOMPARE(session.state(), changedContent + titles);
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsSkipsAToolBarRegisteredMeanwhile_data()
{
    restoreDefaultsThenOkResetsTheHost_data();
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsSkipsAToolBarRegisteredMeanwhile()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    Session session;
    QToolBar *const late = session.defaultToolBar("late", {"cut"}, "Edit");
    session.manager.setToolBar(late, session.list({"cut", "|"}));
    session.press(QDialogButtonBox::RestoreDefaults);
    session.press(which);
    const QStringList kept{"cut", "|"};
    QCOMPARE(standingOn(late), kept);
    QCOMPARE(late->windowTitle(), "Late");
    QVERIFY(session.manager.isDefaultToolBar(late));
    QCOMPARE(standingOn(session.file), defaultContent);
}

void tst_RyCustomizedDialog_Buttons::helpShowsAMessage()
{
    const Session session;
    MessageBox seen;
    const NextModal help([&seen](QWidget *modal) { press(modal, &seen); });
    session.press(QDialogButtonBox::Help);
    QVERIFY(help.wasShown());
    QCOMPARE(seen.title, "help");
    QCOMPARE(seen.text, "KORVA help  doc!");
    QCOMPARE(seen.informativeText, QString());
    QCOMPARE(seen.parent, &session.dialog);
    QCOMPARE(seen.buttons, 1);
}

// Unlike the other message boxes it shows the window's icon in place of a sign of its own.
void tst_RyCustomizedDialog_Buttons::helpIsAnAboutBox()
{
    Session session;
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::magenta);
    session.dialog.setWindowIcon(pixmap);
    QImage shown;
    const NextModal help([&shown](QWidget *modal) {
        shown = qobject_cast<QMessageBox *>(modal)->iconPixmap().toImage();
        QTest::keyClick(modal, Qt::Key_Escape);
    });
    session.press(QDialogButtonBox::Help);
    QVERIFY(help.wasShown());
    QVERIFY(!shown.isNull());
    QCOMPARE(shown.pixelColor(shown.rect().center()), QColor(Qt::magenta));
}

void tst_RyCustomizedDialog_Buttons::helpIsTranslated()
{
    const Session session;
    RecordingTranslator translator;
    MessageBox seen;
    const NextModal help([&seen](QWidget *modal) { press(modal, &seen); });
    session.press(QDialogButtonBox::Help);
    QVERIFY(help.wasShown());
    QCOMPARE(seen.title, "translated help");
    QCOMPARE(seen.text, "translated KORVA help  doc!");
    QStringList lookUps = translator.takeLookUps();
    lookUps.sort();
    const QStringList expected{"RyCustomizedDialog: KORVA help  doc!", "RyCustomizedDialog: help"};
    QCOMPARE(lookUps, expected);
}

void tst_RyCustomizedDialog_Buttons::helpChangesNothing()
{
    const Session session;
    session.edit();
    QSignalSpy finished(&session.dialog, &QDialog::finished);
    const QStringList buttons = session.editor.enabledButtons();
    MessageBox seen;
    const NextModal help([&seen](QWidget *modal) { press(modal, &seen); });
    session.press(QDialogButtonBox::Help);
    QVERIFY(help.wasShown());
    QVERIFY(session.dialog.isVisible());
    QCOMPARE(session.dialog.result(), int(QDialog::Rejected));
    QCOMPARE(finished.count(), 0);
    QCOMPARE(session.state(), changedContent + titles);
    QCOMPARE(rowsOf(session.editor.currentToolBarList), editedRows);
    QCOMPARE(session.editor.enabledButtons(), buttons);
    QCOMPARE(session.tabs->currentIndex(), 0);
    QVERIFY(session.dialog.applyButton()->isEnabled());
}

void tst_RyCustomizedDialog_Buttons::helpIsShownAtEachPress()
{
    const Session session;
    for (int i = 0; i < 2; ++i) {
        MessageBox seen;
        const NextModal help([&seen](QWidget *modal) { press(modal, &seen); });
        session.press(QDialogButtonBox::Help);
        QVERIFY(help.wasShown());
        QCOMPARE(seen.text, "KORVA help  doc!");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!session.dialog.findChild<QMessageBox *>());
    }
}

void tst_RyCustomizedDialog_Buttons::helpClosedWithEscapeLeavesTheDialog()
{
    const Session session;
    const NextModal help([](QWidget *modal) { QTest::keyClick(modal, Qt::Key_Escape); });
    session.press(QDialogButtonBox::Help);
    QVERIFY(help.wasShown());
    QVERIFY(session.dialog.isVisible());
}

void tst_RyCustomizedDialog_Buttons::modifiedDisablesApply_data()
{
    QTest::addColumn<QList<bool>>("notices");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("none") << QList<bool>{} << true;
    QTest::newRow("true") << QList<bool>{true} << false;
    QTest::newRow("false") << QList<bool>{false} << true;
    QTest::newRow("true twice") << QList<bool>{true, true} << false;
    QTest::newRow("true, then false") << QList<bool>{true, false} << true;
    QTest::newRow("false, then true") << QList<bool>{false, true} << false;
}

// As a host does, which connects a signal of its own.
void tst_RyCustomizedDialog_Buttons::modifiedDisablesApply()
{
    QFETCH(QList<bool>, notices);
    QFETCH(bool, enabled);
    Session session;
    Announcer announcer;
    QVERIFY(QObject::connect(&announcer, SIGNAL(modifiedChanged(bool)), &session.dialog,
                             SLOT(slotUiModeChanged(bool))));
    for (bool modified : qAsConst(notices))
        Q_EMIT announcer.modifiedChanged(modified);
    QCOMPARE(session.dialog.applyButton()->isEnabled(), enabled);
    for (const QPushButton *button :
         {session.dialog.okButton(), session.dialog.RestoreDefaultButton(),
          session.dialog.helpButton(), session.box->button(QDialogButtonBox::Cancel)})
        QVERIFY(button->isEnabled());
}

void tst_RyCustomizedDialog_Buttons::applyStaysDisabled()
{
    Session session;
    QVERIFY(QMetaObject::invokeMethod(&session.dialog, "slotUiModeChanged", Q_ARG(bool, true)));
    session.edit();
    session.press(QDialogButtonBox::RestoreDefaults);
    session.tabs->setCurrentIndex(1);
    session.tabs->setCurrentIndex(0);
    session.press(QDialogButtonBox::Cancel);
    session.dialog.show();
    QVERIFY(QMetaObject::invokeMethod(&session.dialog, "slotApply"));
    QVERIFY(!session.dialog.applyButton()->isEnabled());
    QVERIFY(QMetaObject::invokeMethod(&session.dialog, "slotUiModeChanged", Q_ARG(bool, false)));
    QVERIFY(session.dialog.applyButton()->isEnabled());
}

void tst_RyCustomizedDialog_Buttons::aDisabledApplyDoesNothing()
{
    Session session;
    QVERIFY(QMetaObject::invokeMethod(&session.dialog, "slotUiModeChanged", Q_ARG(bool, true)));
    session.edit();
    session.press(QDialogButtonBox::Apply);
    QCOMPARE(session.state(), changedContent + titles);
}

void tst_RyCustomizedDialog_Buttons::okWorksWithoutApply()
{
    Session session;
    QVERIFY(QMetaObject::invokeMethod(&session.dialog, "slotUiModeChanged", Q_ARG(bool, true)));
    session.edit();
    session.press(QDialogButtonBox::Ok);
    QCOMPARE(session.state(), editedContent + titles);
}

void tst_RyCustomizedDialog_Buttons::applyIsEnabledThroughout()
{
    const Session session;
    QVERIFY(session.dialog.applyButton()->isEnabled());
    session.edit();
    QVERIFY(session.dialog.applyButton()->isEnabled());
    session.press(QDialogButtonBox::Apply);
    QVERIFY(session.dialog.applyButton()->isEnabled());
    session.press(QDialogButtonBox::RestoreDefaults);
    QVERIFY(session.dialog.applyButton()->isEnabled());
    session.tabs->setCurrentIndex(1);
    QVERIFY(session.dialog.applyButton()->isEnabled());
}

QTEST_MAIN(tst_RyCustomizedDialog_Buttons)

#include "tst_rycustomizeddialog_buttons.moc"
