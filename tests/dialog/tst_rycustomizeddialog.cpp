// SPDX-License-Identifier: MIT

#include "connections.h"
#include "nextmodal.h"
#include "qtdifferences.h"
#include "recordingtranslator.h"
#include "rycribbonwidget.h"
#include "ryctoolbarwidget.h"
#include "showndialog.h"
#include "testcase.h"

#include <QtTest>

#include <memory>

namespace {

using Dealing = std::function<void(QWidget *)>;

// Notes when the form's placeholder is shown.
class PlaceholderWatch : public QObject
{
public:
    PlaceholderWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        wasShown |= object->objectName() == "tab_2" && event->type() == QEvent::Show;
        return false;
    }

    bool wasShown = false;
};

void editAndPress(QWidget *dialog, QDialogButtonBox::StandardButton which)
{
    edit(dialog);
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(which), Qt::LeftButton);
}

} // namespace

Q_DECLARE_METATYPE(Dealing)

class tst_RyCustomizedDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theAccessorsReturnTheStandardButtons();
    void belongsToItsParent();
    void onlyTheContextHelpHintIsCleared_data();
    void onlyTheContextHelpHintIsCleared();
    void showsTwoTabsAndTheFirstIsCurrent();
    void thePlaceholderIsNeverShown();
    void everyTextIsLookedUpOnceAndInOrder();
    void theRibbonManagerIsNeverUsed();
    void theManagersStayTheHosts();
    void switchingTabsDiscardsTheEdits();
    void destroyingAShownDialogLeavesTheHostAlone_data();
    void destroyingAShownDialogLeavesTheHostAlone();

    void execReturnsWhatTheUserChose_data();
    void execReturnsWhatTheUserChose();
    void isModalWhileItRuns();
    void isNotDeletedOnCloseAndMayRunAgain();
    void execEndsWhenTheDialogIsDestroyed();
};

void tst_RyCustomizedDialog::theAccessorsReturnTheStandardButtons()
{
    const ShownDialog shown;
    using Accessor = QPushButton *(RyCustomizedDialog::*)() const;
    const QList<QPair<Accessor, QDialogButtonBox::StandardButton>> accessors{
        {&RyCustomizedDialog::okButton, QDialogButtonBox::Ok},
        {&RyCustomizedDialog::applyButton, QDialogButtonBox::Apply},
        {&RyCustomizedDialog::RestoreDefaultButton, QDialogButtonBox::RestoreDefaults},
        {&RyCustomizedDialog::helpButton, QDialogButtonBox::Help},
    };
    for (const auto &pair : accessors) {
        QVERIFY((shown.dialog->*pair.first)());
        QCOMPARE((shown.dialog->*pair.first)(), shown.box->button(pair.second));
    }
}

void tst_RyCustomizedDialog::belongsToItsParent()
{
    Host host;
    const RyCustomizedDialog child({&host.manager, nullptr}, &host.window);
    QCOMPARE(child.parentWidget(), &host.window);
    QVERIFY(child.isWindow());
    const RyCustomizedDialog orphan({&host.manager, nullptr});
    QVERIFY(!orphan.parentWidget());
}

void tst_RyCustomizedDialog::onlyTheContextHelpHintIsCleared_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::addColumn<bool>("shown");
    QTest::newRow("with a parent") << true << false;
    QTest::newRow("without a parent") << false << false;
    QTest::newRow("shown") << true << true;
}

void tst_RyCustomizedDialog::onlyTheContextHelpHintIsCleared()
{
    QFETCH(bool, withParent);
    QFETCH(bool, shown);
    Host host;
    QWidget *const parent = withParent ? &host.window : nullptr;
    const QDialog plain(parent);
    RyCustomizedDialog dialog({&host.manager, nullptr}, parent);
    dialog.setVisible(shown);
    QCOMPARE(plain.windowFlags().testFlag(Qt::WindowContextHelpButtonHint),
             QtDifferences::DialogsHaveContextHelp);
    QCOMPARE(dialog.windowFlags(), plain.windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

void tst_RyCustomizedDialog::showsTwoTabsAndTheFirstIsCurrent()
{
    const ShownDialog shown;
    QCOMPARE(shown.tabs->count(), 2);
    QCOMPARE(shown.tabs->tabText(0), "ToolBar");
    QCOMPARE(shown.tabs->tabText(1), "Ribbon");
    QCOMPARE(shown.tabs->currentIndex(), 0);
    QCOMPARE(shown.tabs->widget(0), shown.dialog->findChild<RyCToolBarWidget *>());
    QCOMPARE(shown.tabs->widget(1), shown.dialog->findChild<RyCRibbonWidget *>());
    QVERIFY(shown.tabs->widget(0)->isVisible());
    QVERIFY(!shown.tabs->widget(1)->isVisible());
}

void tst_RyCustomizedDialog::thePlaceholderIsNeverShown()
{
    const PlaceholderWatch watch;
    const ShownDialog shown;
    const QPointer<QWidget> placeholder = shown.dialog->findChild<QWidget *>("tab_2");
    QVERIFY(placeholder);
    QVERIFY(shown.tabs->isAncestorOf(placeholder));
    for (int tab : {1, 0})
        shown.tabs->setCurrentIndex(tab);
    QVERIFY(!watch.wasShown);
    delete shown.dialog;
    QVERIFY(!placeholder);
}

// The texts of the two pages' own forms are tested with the forms.
void tst_RyCustomizedDialog::everyTextIsLookedUpOnceAndInOrder()
{
    RecordingTranslator translator;
    const ShownDialog shown;
    QCOMPARE(shown.dialog->windowTitle(), "translated Options");
    QCOMPARE(shown.tabs->tabText(0), "translated ToolBar");
    QCOMPARE(shown.tabs->tabText(1), "translated Ribbon");
    QStringList lookUps = translator.takeLookUps();
    QCOMPARE(lookUps.filter(QRegularExpression("^CToolBarPage: ")).size(), 19);
    QCOMPARE(lookUps.filter(QRegularExpression("^CRibbonPage: ")).size(), 19);
    // One entry is left of each form, so that its place in the order shows.
    const QRegularExpression others("^(CToolBarPage|CRibbonPage): (?!Display)");
    for (const QString &text : lookUps.filter(others))
        lookUps.removeAll(text);
    lookUps.removeAll("RyCToolBarWidget: < S E P A R A T O R >");
    QCOMPARE(
        lookUps,
        QStringList({"CustomizedDialog: Options", "CToolBarPage: Display",
                     "RyCToolBarPage: ToolBar", "CRibbonPage: Display", "RyCRibbonPage: Ribbon"}));
}

void tst_RyCustomizedDialog::theRibbonManagerIsNeverUsed()
{
    Host host;
    std::unique_ptr<RyAbstatcManager> ribbonManager(new RyAbstatcManager);
    RyCustomizedDialog dialog({&host.manager, ribbonManager.get()}, &host.window);
    QVERIFY(connectedSignals(ribbonManager.get()).isEmpty());
    ribbonManager.reset();
    dialog.show();
    dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
    dialog.RestoreDefaultButton()->click();
    dialog.applyButton()->click();
    dialog.okButton()->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_RyCustomizedDialog::theManagersStayTheHosts()
{
    Host host;
    RyAbstatcManager ribbonManager;
    const QPointer<QObject> guards[] = {&host.manager, &ribbonManager};
    {
        RyCustomizedDialog dialog({&host.manager, &ribbonManager}, &host.window);
        dialog.show();
        dialog.okButton()->click();
        for (const auto &guard : guards)
            QVERIFY(!guard->parent());
    }
    for (const auto &guard : guards)
        QVERIFY(guard);
}

void tst_RyCustomizedDialog::switchingTabsDiscardsTheEdits()
{
    const ShownDialog shown;
    shown.edit();
    for (int tab : {1, 0})
        shown.tabs->setCurrentIndex(tab);
    shown.views.click(shown.views.toolBarList, "File");
    QCOMPARE(shown.views.currentRows(), words("Open | Save"));
    shown.press(QDialogButtonBox::Ok);
    QCOMPARE(standingOn(shown.host.file), words("open | save"));
}

void tst_RyCustomizedDialog::destroyingAShownDialogLeavesTheHostAlone_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<bool>("renaming");
    QTest::newRow("on the first tab") << 0 << false;
    QTest::newRow("on the second tab") << 1 << false;
    QTest::newRow("while a name is typed") << 0 << true;
}

void tst_RyCustomizedDialog::destroyingAShownDialogLeavesTheHostAlone()
{
    QFETCH(int, tab);
    QFETCH(bool, renaming);
    const ShownDialog shown;
    const QByteArray state = shown.host.manager.saveState(1);
    shown.edit();
    if (renaming)
        shown.views.click(shown.views.newButton);
    QCOMPARE(shown.views.renameEditor() != nullptr, renaming);
    shown.tabs->setCurrentIndex(tab);
    delete shown.dialog;
    QCOMPARE(shown.host.manager.saveState(1), state);
    QCOMPARE(standingOn(shown.host.file), words("open | save"));
    QCOMPARE(toolBarTitlesIn(shown.host.window), words("File Mine"));
}

void tst_RyCustomizedDialog::execReturnsWhatTheUserChose_data()
{
    QTest::addColumn<Dealing>("deal");
    QTest::addColumn<bool>("accepted");
    const auto row = [](const char *name, bool accepted, const Dealing &deal) {
        QTest::newRow(name) << deal << accepted;
    };
    row("OK", true, [](QWidget *dialog) { editAndPress(dialog, QDialogButtonBox::Ok); });
    row("Cancel", false, [](QWidget *dialog) { editAndPress(dialog, QDialogButtonBox::Cancel); });
    row("Apply, then close()", false, [](QWidget *dialog) {
        editAndPress(dialog, QDialogButtonBox::Apply);
        dialog->close();
    });
}

void tst_RyCustomizedDialog::execReturnsWhatTheUserChose()
{
    QFETCH(Dealing, deal);
    QFETCH(bool, accepted);
    DialogHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    const NextModal modal(deal);
    QCOMPARE(dialog.exec(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
    QVERIFY(modal.wasShown());
    QVERIFY(!dialog.isVisible());
    const bool cancelled = qstrcmp(QTest::currentDataTag(), "Cancel") == 0;
    QCOMPARE(standingOn(host.file), words(cancelled ? "open | save" : "| save"));
}

void tst_RyCustomizedDialog::isModalWhileItRuns()
{
    DialogHost host;
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

void tst_RyCustomizedDialog::isNotDeletedOnCloseAndMayRunAgain()
{
    DialogHost host;
    const QPointer<RyCustomizedDialog> dialog =
        new RyCustomizedDialog({&host.manager, nullptr}, &host.window);
    for (const auto which : {QDialogButtonBox::Cancel, QDialogButtonBox::Ok}) {
        const NextModal modal([which](QWidget *widget) { editAndPress(widget, which); });
        const bool accepted = which == QDialogButtonBox::Ok;
        QCOMPARE(dialog->exec(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(dialog);
    }
    QCOMPARE(standingOn(host.file), words("| save"));
    delete dialog;
}

void tst_RyCustomizedDialog::execEndsWhenTheDialogIsDestroyed()
{
    DialogHost host;
    RyCustomizedDialog *const dialog =
        new RyCustomizedDialog({&host.manager, nullptr}, &host.window);
    const NextModal modal([](QWidget *widget) { delete widget; });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(modal.wasShown());
    QCOMPARE(standingOn(host.file), words("open | save"));
}

QTEST_MAIN(tst_RyCustomizedDialog)

#include "tst_rycustomizeddialog.moc"
