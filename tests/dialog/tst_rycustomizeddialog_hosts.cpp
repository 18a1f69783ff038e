// SPDX-License-Identifier: MIT

#include "hostcalls.h"
#include "nextmodal.h"
#include "recordingtranslator.h"
#include "showndialog.h"
#include "testcase.h"

#include <QMessageBox>
#include <QtTest>

namespace {

// A window that holds its manager, as most do: the manager goes before the window's children.
class OwningWindow : public QMainWindow
{
public:
    OwningWindow()
    {
        manager.setMainWindow(this);
        QToolBar *const toolBar = addToolBar("File");
        toolBar->addAction("Open");
        manager.addDefaultToolBar(toolBar, "Files");
    }

    RyToolBarManager manager;
};

} // namespace

class tst_RyCustomizedDialog_Hosts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void mayBeDeletedByItsOwnButton_data();
    void mayBeDeletedByItsOwnButton();
    void mayBeDeletedWhileItApplies_data();
    void mayBeDeletedWhileItApplies();
    void mayBeClosedWhileItApplies();
    void mayBeDeletedWhileItsHelpIsShown();
    void deletesItselfOnCloseIfAsked_data();
    void deletesItselfOnCloseIfAsked();
    void goesWithTheWindowThatHoldsItsManager();
    void worksOnAfterAPageWidgetIsGone();
    void doesNotRunTwiceAtOnce();
    void oneAfterTheOtherSeesWhatWasApplied();
    void twoAtOnceApplyInTurn();
    void anotherMainWindowIsUsedAtTheNextApply();
    void anotherLanguageKeepsTextsAndEdits();
    void changesOfTheAppearanceKeepTheEdits();
};

void tst_RyCustomizedDialog_Hosts::mayBeDeletedByItsOwnButton_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("OK") << int(QDialogButtonBox::Ok);
    QTest::newRow("Apply") << int(QDialogButtonBox::Apply);
    QTest::newRow("Cancel") << int(QDialogButtonBox::Cancel);
    QTest::newRow("Restore Defaults") << int(QDialogButtonBox::RestoreDefaults);
}

void tst_RyCustomizedDialog_Hosts::mayBeDeletedByItsOwnButton()
{
    QFETCH(int, button);
    ShownDialog shown;
    shown.edit();
    QPushButton *const pressed = shown.box->button(QDialogButtonBox::StandardButton(button));
    connect(pressed, &QPushButton::clicked, this, [&] { delete shown.dialog; });
    pressed->click();
    QVERIFY(!shown.dialog);
    const bool applies = button == QDialogButtonBox::Ok || button == QDialogButtonBox::Apply;
    QCOMPARE(standingOn(shown.host.file), applies ? words("| save") : words("open | save"));
}

void tst_RyCustomizedDialog_Hosts::mayBeDeletedWhileItApplies_data()
{
    QTest::addColumn<bool>("ok");
    QTest::newRow("OK") << true;
    QTest::newRow("Apply") << false;
}

void tst_RyCustomizedDialog_Hosts::mayBeDeletedWhileItApplies()
{
    QFETCH(bool, ok);
    ShownDialog shown;
    shown.edit();
    shown.views.click(shown.views.newButton);
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] { delete shown.dialog; });
    shown.host.file->installEventFilter(&calls);
    (ok ? shown.dialog->okButton() : shown.dialog->applyButton())->click();
    QVERIFY(!shown.dialog);
    QCOMPARE(standingOn(shown.host.file), words("| save"));
    QCOMPARE(shown.host.manager.toolBars().size(), 3);
    QCOMPARE(inconsistencyOf(shown.host.manager), QString());
}

void tst_RyCustomizedDialog_Hosts::mayBeClosedWhileItApplies()
{
    ShownDialog shown;
    shown.edit();
    shown.views.click(shown.views.newButton);
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] { shown.dialog->reject(); });
    shown.host.file->installEventFilter(&calls);
    shown.dialog->applyButton()->click();
    QVERIFY(!shown.dialog->isVisible());
    QCOMPARE(standingOn(shown.host.file), words("| save"));
    QCOMPARE(shown.host.manager.toolBars().size(), 3);
}

void tst_RyCustomizedDialog_Hosts::mayBeDeletedWhileItsHelpIsShown()
{
    ShownDialog shown;
    const NextModal next([&](QWidget *help) {
        QVERIFY(qobject_cast<QMessageBox *>(help));
        delete shown.dialog;
    });
    shown.dialog->helpButton()->click();
    QVERIFY(next.wasShown());
    QVERIFY(!shown.dialog);
}

void tst_RyCustomizedDialog_Hosts::deletesItselfOnCloseIfAsked_data()
{
    mayBeDeletedByItsOwnButton_data();
}

void tst_RyCustomizedDialog_Hosts::deletesItselfOnCloseIfAsked()
{
    QFETCH(int, button);
    ShownDialog shown;
    shown.dialog->setAttribute(Qt::WA_DeleteOnClose);
    shown.edit();
    shown.box->button(QDialogButtonBox::StandardButton(button))->click();
    if (shown.dialog)
        shown.dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!shown.dialog);
    const bool applies = button == QDialogButtonBox::Ok || button == QDialogButtonBox::Apply;
    QCOMPARE(standingOn(shown.host.file), applies ? words("| save") : words("open | save"));
}

void tst_RyCustomizedDialog_Hosts::goesWithTheWindowThatHoldsItsManager()
{
    OwningWindow *const window = new OwningWindow;
    const QPointer<RyCustomizedDialog> dialog(
        new RyCustomizedDialog({&window->manager, nullptr}, window));
    dialog->show();
    const EditorViews views(dialog);
    QCOMPARE(rowsOf(views.currentToolBarList), QStringList("Open"));
    views.click(views.newButton);
    delete window;
    QVERIFY(!dialog);
}

void tst_RyCustomizedDialog_Hosts::worksOnAfterAPageWidgetIsGone()
{
    ShownDialog shown;
    shown.edit();
    delete shown.tabs->widget(0);
    QCOMPARE(shown.tabs->count(), 1);
    shown.dialog->RestoreDefaultButton()->click();
    shown.dialog->applyButton()->click();
    delete shown.tabs->widget(0);
    shown.dialog->okButton()->click();
    QCOMPARE(shown.dialog->result(), int(QDialog::Accepted));
    QCOMPARE(standingOn(shown.host.file), words("open | save"));
}

void tst_RyCustomizedDialog_Hosts::doesNotRunTwiceAtOnce()
{
    DialogHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    const NextModal next([&](QWidget *modal) {
        QCOMPARE(modal, &dialog);
        edit(modal);
        QCOMPARE(dialog.exec(), -1);
        QCOMPARE(takeWarnings().size(), 1);
        dialog.okButton()->click();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(next.wasShown());
    QCOMPARE(standingOn(host.file), words("| save"));
}

void tst_RyCustomizedDialog_Hosts::oneAfterTheOtherSeesWhatWasApplied()
{
    DialogHost host;
    for (const char *left : {"| save", "save"}) {
        RyCustomizedDialog dialog({&host.manager, nullptr});
        dialog.show();
        edit(&dialog);
        dialog.okButton()->click();
        QCOMPARE(standingOn(host.file), words(left));
    }
}

void tst_RyCustomizedDialog_Hosts::twoAtOnceApplyInTurn()
{
    DialogHost host;
    RyCustomizedDialog first({&host.manager, nullptr});
    RyCustomizedDialog second({&host.manager, nullptr});
    // Without modality the user reaches both.
    for (RyCustomizedDialog *dialog : {&first, &second}) {
        dialog->setModal(false);
        dialog->show();
    }
    edit(&first);
    const EditorViews views(&second);
    views.click(views.toolBarList, "Mine");
    views.click(views.removeButton);
    first.applyButton()->click();
    QCOMPARE(standingOn(host.file), words("| save"));
    // The second writes "File" as it was when it was shown.
    second.applyButton()->click();
    QCOMPARE(standingOn(host.file), words("open | save"));
    QVERIFY(!host.mine);
    first.okButton()->click();
    second.RestoreDefaultButton()->click();
    second.okButton()->click();
    QCOMPARE(standingOn(host.file), words("open | save"));
    QCOMPARE(host.manager.toolBars().size(), 1);
}

void tst_RyCustomizedDialog_Hosts::anotherMainWindowIsUsedAtTheNextApply()
{
    ShownDialog shown;
    QMainWindow other;
    shown.views.click(shown.views.newButton);
    shown.host.manager.setMainWindow(&other);
    shown.dialog->applyButton()->click();
    QCOMPARE(other.findChildren<QToolBar *>().size(), 1);
    QCOMPARE(shown.host.window.findChildren<QToolBar *>().size(), 2);
    shown.host.manager.deleteToolBar(other.findChild<QToolBar *>());
}

void tst_RyCustomizedDialog_Hosts::anotherLanguageKeepsTextsAndEdits()
{
    ShownDialog shown;
    shown.edit();
    const RecordingTranslator translator;
    QCoreApplication::processEvents();
    QCOMPARE(shown.dialog->windowTitle(), "Options");
    QCOMPARE(shown.tabs->tabText(0), "ToolBar");
    shown.dialog->okButton()->click();
    QCOMPARE(standingOn(shown.host.file), words("| save"));
}

void tst_RyCustomizedDialog_Hosts::changesOfTheAppearanceKeepTheEdits()
{
    ShownDialog shown;
    shown.edit();
    shown.dialog->setLayoutDirection(Qt::RightToLeft);
    shown.dialog->setFont(QFont(shown.dialog->font().family(), 24));
    shown.dialog->setPalette(QPalette(Qt::darkGreen));
    shown.dialog->setStyleSheet("* { margin: 3px; }");
    shown.dialog->resize(300, 200);
    QCoreApplication::processEvents();
    shown.dialog->okButton()->click();
    QCOMPARE(standingOn(shown.host.file), words("| save"));
}

QTEST_MAIN(tst_RyCustomizedDialog_Hosts)
#include "tst_rycustomizeddialog_hosts.moc"
