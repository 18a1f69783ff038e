// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "hostcalls.h"
#include "nextmodal.h"
#include "recordingtranslator.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

class FilledHost : public Host
{
public:
    FilledHost()
        : file(defaultToolBar("file", words("open | save"), "Files"))
        , mine(manager.createToolBar("Mine"))
    {
        manager.setToolBar(mine, list(words("save")));
    }

    RyCustomizedDialog *newDialog(QWidget *parent = nullptr)
    {
        return new RyCustomizedDialog({&manager, nullptr}, parent);
    }

    QToolBar *file;
    QPointer<QToolBar> mine;
};

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

// What the user edits before the host interferes: "File" loses its first entry.
void edit(RyCustomizedDialog *dialog)
{
    const EditorViews views(dialog);
    views.click(views.toolBarList, "File");
    views.click(views.leftButton);
    QCOMPARE(rowsOf(views.currentToolBarList).size(), 2);
}

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
    FilledHost host;
    const QPointer<RyCustomizedDialog> dialog(host.newDialog());
    dialog->show();
    edit(dialog);
    QPushButton *const pressed =
        dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::StandardButton(button));
    connect(pressed, &QPushButton::clicked, this, [&] { delete dialog; });
    pressed->click();
    QVERIFY(!dialog);
    const bool applies = button == QDialogButtonBox::Ok || button == QDialogButtonBox::Apply;
    QCOMPARE(standingOn(host.file), applies ? words("| save") : words("open | save"));
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
    FilledHost host;
    const QPointer<RyCustomizedDialog> dialog(host.newDialog());
    dialog->show();
    edit(dialog);
    const EditorViews views(dialog);
    views.click(views.newButton);
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] { delete dialog; });
    host.file->installEventFilter(&calls);
    (ok ? dialog->okButton() : dialog->applyButton())->click();
    QVERIFY(!dialog);
    QCOMPARE(standingOn(host.file), words("| save"));
    QCOMPARE(host.manager.toolBars().size(), 3);
    QCOMPARE(inconsistencyOf(host.manager), QString());
}

void tst_RyCustomizedDialog_Hosts::mayBeClosedWhileItApplies()
{
    FilledHost host;
    const std::unique_ptr<RyCustomizedDialog> dialog(host.newDialog());
    dialog->show();
    edit(dialog.get());
    const EditorViews views(dialog.get());
    views.click(views.newButton);
    HostCalls calls({QEvent::ActionAdded}, HostCalls::Once, [&] { dialog->reject(); });
    host.file->installEventFilter(&calls);
    dialog->applyButton()->click();
    QVERIFY(!dialog->isVisible());
    QCOMPARE(standingOn(host.file), words("| save"));
    QCOMPARE(host.manager.toolBars().size(), 3);
}

void tst_RyCustomizedDialog_Hosts::mayBeDeletedWhileItsHelpIsShown()
{
    FilledHost host;
    const QPointer<RyCustomizedDialog> dialog(host.newDialog());
    dialog->show();
    const NextModal next([&](QWidget *help) {
        QVERIFY(qobject_cast<QMessageBox *>(help));
        delete dialog;
    });
    dialog->helpButton()->click();
    QVERIFY(next.wasShown());
    QVERIFY(!dialog);
}

void tst_RyCustomizedDialog_Hosts::deletesItselfOnCloseIfAsked_data()
{
    mayBeDeletedByItsOwnButton_data();
}

void tst_RyCustomizedDialog_Hosts::deletesItselfOnCloseIfAsked()
{
    QFETCH(int, button);
    FilledHost host;
    const QPointer<RyCustomizedDialog> dialog(host.newDialog());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    edit(dialog);
    dialog->findChild<QDialogButtonBox *>()
        ->button(QDialogButtonBox::StandardButton(button))
        ->click();
    if (dialog)
        dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!dialog);
    const bool applies = button == QDialogButtonBox::Ok || button == QDialogButtonBox::Apply;
    QCOMPARE(standingOn(host.file), applies ? words("| save") : words("open | save"));
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
    FilledHost host;
    const std::unique_ptr<RyCustomizedDialog> dialog(host.newDialog());
    dialog->show();
    edit(dialog.get());
    QTabWidget *const tabs = dialog->findChild<QTabWidget *>();
    delete tabs->widget(0);
    QCOMPARE(tabs->count(), 1);
    dialog->RestoreDefaultButton()->click();
    dialog->applyButton()->click();
    delete tabs->widget(0);
    dialog->okButton()->click();
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(standingOn(host.file), words("open | save"));
}

void tst_RyCustomizedDialog_Hosts::doesNotRunTwiceAtOnce()
{
    FilledHost host;
    const std::unique_ptr<RyCustomizedDialog> dialog(host.newDialog());
    const NextModal next([&](QWidget *shown) {
        QCOMPARE(shown, dialog.get());
        edit(dialog.get());
        QCOMPARE(dialog->exec(), -1);
        QCOMPARE(takeWarnings().size(), 1);
        dialog->okButton()->click();
    });
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    QVERIFY(next.wasShown());
    QCOMPARE(standingOn(host.file), words("| save"));
}

void tst_RyCustomizedDialog_Hosts::oneAfterTheOtherSeesWhatWasApplied()
{
    FilledHost host;
    for (int i = 0; i < 2; ++i) {
        const std::unique_ptr<RyCustomizedDialog> dialog(host.newDialog());
        const NextModal next([&](QWidget *) {
            const EditorViews views(dialog.get());
            views.click(views.toolBarList, "File");
            views.click(views.leftButton);
            dialog->okButton()->click();
        });
        QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    }
    QCOMPARE(standingOn(host.file), words("save"));
}

void tst_RyCustomizedDialog_Hosts::twoAtOnceApplyInTurn()
{
    FilledHost host;
    const std::unique_ptr<RyCustomizedDialog> first(host.newDialog());
    const std::unique_ptr<RyCustomizedDialog> second(host.newDialog());
    // Without modality the user reaches both.
    first->setModal(false);
    second->setModal(false);
    first->show();
    second->show();
    edit(first.get());
    const EditorViews views(second.get());
    views.click(views.toolBarList, "Mine");
    views.click(views.removeButton);
    first->applyButton()->click();
    QCOMPARE(standingOn(host.file), words("| save"));
    // The second writes "File" as it was when it was shown.
    second->applyButton()->click();
    QCOMPARE(standingOn(host.file), words("open | save"));
    QVERIFY(!host.mine);
    first->okButton()->click();
    second->RestoreDefaultButton()->click();
    second->okButton()->click();
    QCOMPARE(standingOn(host.file), words("open | save"));
    QCOMPARE(host.manager.toolBars().size(), 1);
}

void tst_RyCustomizedDialog_Hosts::anotherMainWindowIsUsedAtTheNextApply()
{
    FilledHost host;
    QMainWindow other;
    const std::unique_ptr<RyCustomizedDialog> dialog(host.newDialog());
    dialog->show();
    const EditorViews views(dialog.get());
    views.click(views.newButton);
    host.manager.setMainWindow(&other);
    dialog->applyButton()->click();
    QCOMPARE(other.findChildren<QToolBar *>().size(), 1);
    QCOMPARE(host.window.findChildren<QToolBar *>().size(), 2);
    host.manager.deleteToolBar(other.findChild<QToolBar *>());
}

void tst_RyCustomizedDialog_Hosts::anotherLanguageKeepsTextsAndEdits()
{
    FilledHost host;
    const std::unique_ptr<RyCustomizedDialog> dialog(host.newDialog());
    dialog->show();
    edit(dialog.get());
    QTabWidget *const tabs = dialog->findChild<QTabWidget *>();
    const RecordingTranslator translator;
    QCoreApplication::processEvents();
    QCOMPARE(dialog->windowTitle(), "Options");
    QCOMPARE(tabs->tabText(0), "ToolBar");
    dialog->okButton()->click();
    QCOMPARE(standingOn(host.file), words("| save"));
}

void tst_RyCustomizedDialog_Hosts::changesOfTheAppearanceKeepTheEdits()
{
    FilledHost host;
    const std::unique_ptr<RyCustomizedDialog> dialog(host.newDialog());
    dialog->show();
    edit(dialog.get());
    dialog->setLayoutDirection(Qt::RightToLeft);
    dialog->setFont(QFont(dialog->font().family(), 24));
    dialog->setPalette(QPalette(Qt::darkGreen));
    dialog->setStyleSheet("* { margin: 3px; }");
    dialog->resize(300, 200);
    QCoreApplication::processEvents();
    dialog->okButton()->click();
    QCOMPARE(standingOn(host.file), words("| save"));
}

QTEST_MAIN(tst_RyCustomizedDialog_Hosts)
#include "tst_rycustomizeddialog_hosts.moc"
