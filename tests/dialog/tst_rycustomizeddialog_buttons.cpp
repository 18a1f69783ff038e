// SPDX-License-Identifier: MIT

#include "connections.h"
#include "nextmodal.h"
#include "recordingtranslator.h"
#include "showndialog.h"
#include "testcase.h"

#include <QMessageBox>
#include <QtTest>

namespace {

const QStringList defaultContent = words("open | save");
const QStringList editedContent = words("| save");

class Announcer : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void modifiedChanged(bool modified);
};

} // namespace

class tst_RyCustomizedDialog_Buttons : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void eachButtonIsConnectedOnce_data();
    void eachButtonIsConnectedOnce();
    void ofTheBoxOnlyRejectedIsConnected();
    void theHostsSlotIsConnectedToNothing();

    void okAndCancelClose_data();
    void okAndCancelClose();
    void applyStaysOpenAndKeepsTheEdits();
    void applyThenCancelKeepsWhatWasApplied();

    void restoreDefaultsChangesOnlyTheWorkingCopy();
    void restoreDefaultsThenOkResetsTheHost_data();
    void restoreDefaultsThenOkResetsTheHost();
    void restoreDefaultsOnTheRibbonTabChangesNothing_data();
    void restoreDefaultsOnTheRibbonTabChangesNothing();

    void helpShowsATranslatedMessage();
    void helpIsAnAboutBox();

    void modifiedDisablesApply_data();
    void modifiedDisablesApply();
    void nothingElseTouchesApply_data();
    void nothingElseTouchesApply();
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
    QTest::newRow("Cancel") << QDialogButtonBox::Cancel << QByteArray();
}

// Apart from this one connection there is the button box's own.
void tst_RyCustomizedDialog_Buttons::eachButtonIsConnectedOnce()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    QFETCH(QByteArray, slot);
    const ShownDialog shown;
    QPushButton *const button = shown.box->button(which);
    const QDialogButtonBox plain(QDialogButtonBox::Ok);
    const int ofBox = receiversOf(plain.button(QDialogButtonBox::Ok), SIGNAL(clicked()));
    const int ofDialog = slot.isEmpty() ? 0 : 1;
    QCOMPARE(receiversOf(button, SIGNAL(clicked())), ofBox + ofDialog);
    if (ofDialog)
        QCOMPARE(takeConnections(button, SIGNAL(clicked()), shown.dialog, slot.constData()), 1);
}

void tst_RyCustomizedDialog_Buttons::ofTheBoxOnlyRejectedIsConnected()
{
    const ShownDialog shown;
    for (const char *signal :
         {SIGNAL(accepted()), SIGNAL(helpRequested()), SIGNAL(clicked(QAbstractButton *))})
        QCOMPARE(receiversOf(shown.box, signal), 0);
    QCOMPARE(receiversOf(shown.box, SIGNAL(rejected())), 1);
    QCOMPARE(takeConnections(shown.box, SIGNAL(rejected()), shown.dialog, SLOT(slotRejected())), 1);
}

void tst_RyCustomizedDialog_Buttons::theHostsSlotIsConnectedToNothing()
{
    ShownDialog shown;
    QObjectList senders{shown.dialog, &shown.host.manager, &shown.host.window};
    for (QObject *below : shown.host.window.findChildren<QObject *>())
        senders << below;
    for (QObject *sender : std::as_const(senders))
        QVERIFY(!QObject::disconnect(sender, nullptr, shown.dialog, SLOT(slotUiModeChanged(bool))));
}

void tst_RyCustomizedDialog_Buttons::okAndCancelClose_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("which");
    QTest::newRow("OK") << QDialogButtonBox::Ok;
    QTest::newRow("Cancel") << QDialogButtonBox::Cancel;
}

void tst_RyCustomizedDialog_Buttons::okAndCancelClose()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    const bool ok = which == QDialogButtonBox::Ok;
    const ShownDialog shown;
    const QSignalSpy accepted(shown.dialog, &QDialog::accepted);
    const QSignalSpy rejected(shown.dialog, &QDialog::rejected);
    const QSignalSpy finished(shown.dialog, &QDialog::finished);
    shown.edit();
    shown.press(which);
    QCOMPARE(standingOn(shown.host.file), ok ? editedContent : defaultContent);
    QVERIFY(!shown.dialog->isVisible());
    QCOMPARE(shown.dialog->result(), int(ok ? QDialog::Accepted : QDialog::Rejected));
    QCOMPARE(accepted.count(), ok ? 1 : 0);
    QCOMPARE(rejected.count(), ok ? 0 : 1);
    QCOMPARE(finished.count(), 1);
}

void tst_RyCustomizedDialog_Buttons::applyStaysOpenAndKeepsTheEdits()
{
    const ShownDialog shown;
    const QSignalSpy finished(shown.dialog, &QDialog::finished);
    shown.edit();
    shown.press(QDialogButtonBox::Apply);
    QCOMPARE(standingOn(shown.host.file), editedContent);
    QVERIFY(shown.dialog->isVisible());
    QCOMPARE(finished.count(), 0);
    QCOMPARE(shown.tabs->currentIndex(), 0);
    QCOMPARE(currentOf(shown.views.toolBarList), "File");
    QCOMPARE(shown.views.currentRows(), words("| Save"));
}

void tst_RyCustomizedDialog_Buttons::applyThenCancelKeepsWhatWasApplied()
{
    const ShownDialog shown;
    shown.edit();
    shown.press(QDialogButtonBox::Apply);
    shown.views.click(shown.views.leftButton);
    shown.press(QDialogButtonBox::Cancel);
    QCOMPARE(standingOn(shown.host.file), editedContent);
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsChangesOnlyTheWorkingCopy()
{
    const ShownDialog shown;
    shown.edit();
    shown.press(QDialogButtonBox::Apply);
    shown.press(QDialogButtonBox::RestoreDefaults);
    QVERIFY(shown.dialog->isVisible());
    QCOMPARE(rowsOf(shown.views.toolBarList), words("File"));
    QCOMPARE(shown.views.currentRows(), words("Open | Save"));
    shown.press(QDialogButtonBox::Cancel);
    QCOMPARE(standingOn(shown.host.file), editedContent);
    QCOMPARE(toolBarTitlesIn(shown.host.window), words("File Mine"));
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
    const ShownDialog shown;
    shown.edit();
    shown.press(QDialogButtonBox::Apply);
    shown.press(QDialogButtonBox::RestoreDefaults);
    shown.press(which);
    QCOMPARE(standingOn(shown.host.file), defaultContent);
    QVERIFY(!shown.host.mine);
    QCOMPARE(toolBarTitlesIn(shown.host.window), words("File"));
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsOnTheRibbonTabChangesNothing_data()
{
    restoreDefaultsThenOkResetsTheHost_data();
}

void tst_RyCustomizedDialog_Buttons::restoreDefaultsOnTheRibbonTabChangesNothing()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    const ShownDialog shown;
    shown.edit();
    shown.press(QDialogButtonBox::Apply);
    shown.tabs->setCurrentIndex(1);
    shown.press(QDialogButtonBox::RestoreDefaults);
    shown.press(which);
    shown.dialog->show();
    shown.tabs->setCurrentIndex(0);
    shown.press(QDialogButtonBox::Ok);
    QCOMPARE(standingOn(shown.host.file), editedContent);
    QCOMPARE(toolBarTitlesIn(shown.host.window), words("File Mine"));
}

void tst_RyCustomizedDialog_Buttons::helpShowsATranslatedMessage()
{
    const ShownDialog shown;
    RecordingTranslator translator;
    QStringList seen;
    const NextModal help([&](QWidget *modal) {
        const auto box = qobject_cast<QMessageBox *>(modal);
        QVERIFY(box);
        QCOMPARE(box->parentWidget(), shown.dialog.data());
        QCOMPARE(box->buttons().size(), 1);
        seen << box->windowTitle() << box->text() << box->informativeText();
        QTest::mouseClick(box->buttons().constFirst(), Qt::LeftButton);
    });
    shown.press(QDialogButtonBox::Help);
    QVERIFY(help.wasShown());
    QCOMPARE(seen, QStringList({"translated help", "translated KORVA help  doc!", QString()}));
    QStringList lookUps = translator.takeLookUps();
    lookUps.sort();
    QCOMPARE(lookUps,
             QStringList({"RyCustomizedDialog: KORVA help  doc!", "RyCustomizedDialog: help"}));
}

// Unlike the other message boxes it shows the window's icon in place of a sign of its own.
void tst_RyCustomizedDialog_Buttons::helpIsAnAboutBox()
{
    const ShownDialog shown;
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::magenta);
    shown.dialog->setWindowIcon(pixmap);
    QImage icon;
    const NextModal help([&icon](QWidget *modal) {
        icon = qobject_cast<QMessageBox *>(modal)->iconPixmap().toImage();
        QTest::keyClick(modal, Qt::Key_Escape);
    });
    shown.press(QDialogButtonBox::Help);
    QVERIFY(help.wasShown());
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.pixelColor(icon.rect().center()), QColor(Qt::magenta));
    QVERIFY(shown.dialog->isVisible());
}

void tst_RyCustomizedDialog_Buttons::modifiedDisablesApply_data()
{
    QTest::addColumn<QList<bool>>("notices");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("true") << QList<bool>{true} << false;
    QTest::newRow("false") << QList<bool>{false} << true;
    QTest::newRow("true, then false") << QList<bool>{true, false} << true;
    QTest::newRow("false, then true") << QList<bool>{false, true} << false;
}

// As a host does, which connects a signal of its own.
void tst_RyCustomizedDialog_Buttons::modifiedDisablesApply()
{
    QFETCH(QList<bool>, notices);
    QFETCH(bool, enabled);
    const ShownDialog shown;
    Announcer announcer;
    QVERIFY(QObject::connect(&announcer, SIGNAL(modifiedChanged(bool)), shown.dialog,
                             SLOT(slotUiModeChanged(bool))));
    for (bool modified : std::as_const(notices))
        Q_EMIT announcer.modifiedChanged(modified);
    const auto buttons = shown.box->buttons();
    for (QAbstractButton *button : buttons)
        QCOMPARE(button->isEnabled(), enabled || button != shown.dialog->applyButton());
}

void tst_RyCustomizedDialog_Buttons::nothingElseTouchesApply_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::newRow("enabled") << true;
    QTest::newRow("disabled") << false;
}

void tst_RyCustomizedDialog_Buttons::nothingElseTouchesApply()
{
    QFETCH(bool, enabled);
    const ShownDialog shown;
    const QPushButton *const apply = shown.dialog->applyButton();
    QVERIFY(apply->isEnabled());
    if (!enabled)
        QVERIFY(QMetaObject::invokeMethod(shown.dialog, "slotUiModeChanged", Q_ARG(bool, true)));
    shown.edit();
    QCOMPARE(apply->isEnabled(), enabled);
    QVERIFY(QMetaObject::invokeMethod(shown.dialog, "slotApply"));
    QCOMPARE(apply->isEnabled(), enabled);
    shown.press(QDialogButtonBox::RestoreDefaults);
    for (int tab : {1, 0})
        shown.tabs->setCurrentIndex(tab);
    shown.press(QDialogButtonBox::Cancel);
    shown.dialog->show();
    QCOMPARE(apply->isEnabled(), enabled);
}

QTEST_MAIN(tst_RyCustomizedDialog_Buttons)

#include "tst_rycustomizeddialog_buttons.moc"
