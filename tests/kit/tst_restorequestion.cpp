// SPDX-License-Identifier: MIT

#include "openeddialog.h"
#include "openedmenu.h"
#include "testcase.h"
#include "texts.h"

#include <QMenuBar>
#include <QPushButton>
#include <QtTest>

/*
 * What the dialog of the kit asks when Restore Defaults is pressed.
 */
class tst_RestoreQuestion : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itSaysWhatChanges_data();
    void itSaysWhatChanges();
    void itSaysWhatChangesOnEachToolBar();
    void whatIsNotAppliedYetCounts();
    void namesAreShownAsTheyAre();
    void toolBarsOfTheSameTitle_data();
    void toolBarsOfTheSameTitle();
    void longListsAreShortened();
    void listsThatFitAreShownWhole();
    void looksAndTheLockAreSaid();
    void aLockThatDoesNotHoldIsNotSaid();
    void nothingToChangeIsSaid();
    void anotherActionThatLooksTheSameIsReplaced();
    void actionsThatCameLateBelongToTheDefaults();
    void actionsThatAreGoneAreNotPromised();
    void theAnswerDecides_data();
    void theAnswerDecides();
    void eachWayToPressTheButtonAsks_data();
    void eachWayToPressTheButtonAsks();
    void theCurrentRowsStay();
    void theDialogMayBeDeletedAtAnyTime();
};

namespace {

const QString question = "restoreDefaultsQuestion";
const QString nothing = "nothingToRestore";

// A program whose layout was edited before its dialog is opened.
OpenedDialog *edited(const QString &toolBar, const QString &content,
                     const KitProgram::Build &build = KitProgram::buildDefault)
{
    OpenedDialog *const opened = new OpenedDialog(build);
    opened->dialog->reject();
    letTheKitFollow();
    opened->program.edit(toolBar, content);
    opened->open();
    return opened;
}

void press(const OpenedDialog &opened)
{
    QTest::mouseClick(opened.dialog->RestoreDefaultButton(), Qt::LeftButton);
}

// Makes toolbars from "Mine 11" on, and presses Restore Defaults.
void pressWithToolBars(OpenedDialog *opened, int count)
{
    opened->dialog->reject();
    letTheKitFollow();
    for (int i = 0; i < count; ++i)
        opened->program.create(QString("Mine %1").arg(11 + i), "");
    opened->open();
    press(*opened);
}

QStringList linesOf(const QMessageBox *box)
{
    return box ? box->informativeText().split('\n') : QStringList("there is no question");
}

} // namespace

void tst_RestoreQuestion::itSaysWhatChanges_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("removed") << "open" << QStringList("File: add New, Save");
    QTest::newRow("added") << "new open save cut" << QStringList("File: remove Cut");
    QTest::newRow("both") << "new open cut copy"
                          << QStringList({"File: add Save", "File: remove Cut, Copy"});
    QTest::newRow("order") << "save new open" << QStringList("File: restore the order");
    QTest::newRow("separator") << "new | open save" << QStringList("File: restore the order");
    QTest::newRow("empty") << "" << QStringList("File: add New, Open, Save");
}

void tst_RestoreQuestion::itSaysWhatChanges()
{
    QFETCH(QString, content);
    QFETCH(QStringList, lines);
    const QScopedPointer<OpenedDialog> opened(edited("file", content));
    press(*opened);
    QCOMPARE(linesOf(opened->box(question)), lines);
    QCOMPARE(opened->box(question)->text(), "Restore the toolbars to their defaults?");
}

void tst_RestoreQuestion::itSaysWhatChangesOnEachToolBar()
{
    const QScopedPointer<OpenedDialog> opened(edited("file", "open"));
    opened->dialog->reject();
    letTheKitFollow();
    opened->program.edit("edit", "copy | cut");
    opened->program.create("Mine", "cut");
    opened->open();
    press(*opened);
    QCOMPARE(linesOf(opened->box(question)),
             QStringList(
                 {"Edit: restore the order", "File: add New, Save", "Mine: delete the toolbar"}));
}

void tst_RestoreQuestion::whatIsNotAppliedYetCounts()
{
    const OpenedDialog opened;
    opened.views->click(opened.views->toolBarList, "File");
    opened.views->click(opened.views->leftButton);
    opened.views->click(opened.views->newButton);
    opened.type("Mine");
    press(opened);
    QCOMPARE(linesOf(opened.box(question)),
             QStringList({"File: add New", "Mine: delete the toolbar"}));
}

void tst_RestoreQuestion::namesAreShownAsTheyAre()
{
    const QScopedPointer<OpenedDialog> opened(edited("bar", "", [](QMainWindow *window) {
        QToolBar *const toolBar = window->addToolBar("<b>&Bar</b>");
        toolBar->setObjectName("bar");
        toolBar->addAction("C&ut && <i>Paste</i>")->setObjectName("cut");
    }));
    press(*opened);
    QCOMPARE(linesOf(opened->box(question)), QStringList("<b>Bar</b>: add Cut & <i>Paste</i>"));
    QCOMPARE(opened->box(question)->textFormat(), Qt::PlainText);
}

void tst_RestoreQuestion::toolBarsOfTheSameTitle_data()
{
    QTest::addColumn<QString>("emptied");
    QTest::newRow("first") << "first";
    QTest::newRow("second") << "second";
}

void tst_RestoreQuestion::toolBarsOfTheSameTitle()
{
    QFETCH(QString, emptied);
    const QScopedPointer<OpenedDialog> opened(edited(emptied, "", [](QMainWindow *window) {
        for (const char *name : {"first", "second"}) {
            QToolBar *const toolBar = window->addToolBar("Bar");
            toolBar->setObjectName(name);
            addAction(toolBar, QString("of ") + name);
        }
    }));
    press(*opened);
    QCOMPARE(linesOf(opened->box(question)), QStringList("Bar: add Of " + emptied));
}

void tst_RestoreQuestion::longListsAreShortened()
{
    const QScopedPointer<OpenedDialog> opened(edited("bar", "", [](QMainWindow *window) {
        QToolBar *const toolBar = window->addToolBar("Bar");
        toolBar->setObjectName("bar");
        for (const char *name : {"a", "b", "c", "d", "e", "f", "g"})
            addAction(toolBar, name);
    }));
    pressWithToolBars(opened.data(), 20);
    const QStringList said = linesOf(opened->box(question));
    QCOMPARE(said.size(), 12);
    QCOMPARE(said.constFirst(), "Bar: add A, B, C, D, E …");
    QCOMPARE(said.at(10), "Mine 20: delete the toolbar");
    QCOMPARE(said.constLast(), "…");
    const QStringList all = opened->box(question)->detailedText().split('\n');
    QCOMPARE(all.size(), 21);
    QCOMPARE(all.constLast(), "Mine 30: delete the toolbar");
}

void tst_RestoreQuestion::listsThatFitAreShownWhole()
{
    OpenedDialog opened;
    pressWithToolBars(&opened, 12);
    const QStringList said = linesOf(opened.box(question));
    QCOMPARE(said.size(), 12);
    QCOMPARE(said.constLast(), "Mine 22: delete the toolbar");
    QCOMPARE(opened.box(question)->detailedText(), QString());
}

void tst_RestoreQuestion::looksAndTheLockAreSaid()
{
    OpenedDialog opened;
    opened.dialog->reject();
    letTheKitFollow();
    opened.program.edit("edit", "copy");
    const QString mine = opened.program.create("Mine", "cut");
    QVERIFY(chooseInMenu(opened.program.toolBar("edit"), nullptr, "Large (32)"));
    QVERIFY(chooseInMenu(opened.program.toolBar("file"), nullptr, "Text only"));
    QVERIFY(chooseInMenu(opened.program.toolBar(mine), nullptr, "Large (32)"));
    QVERIFY(chooseInMenu(opened.program.toolBar("file"), nullptr, "Lock toolbars"));
    opened.open();
    press(opened);
    QCOMPARE(linesOf(opened.box(question)),
             QStringList({"Edit: add Cut", "Edit: restore icon size and text position",
                          "File: restore icon size and text position", "Mine: delete the toolbar",
                          "Unlock the toolbars"}));
    opened.answer(question, QMessageBox::RestoreDefaults);
    QTest::mouseClick(opened.dialog->okButton(), Qt::LeftButton);
    QVERIFY(opened.program.kit()->isDefault());
    letTheKitFollow();
}

void tst_RestoreQuestion::aLockThatDoesNotHoldIsNotSaid()
{
    OpenedDialog opened;
    opened.dialog->reject();
    letTheKitFollow();
    QVERIFY(chooseInMenu(opened.program.toolBar("file"), nullptr, "Lock toolbars"));
    opened.program.kit()->setFeatures(opened.program.kit()->features()
                                      & ~RyToolBarKit::ToolBarMenus);
    opened.open();
    press(opened);
    QVERIFY(opened.box(nothing));
}

void tst_RestoreQuestion::nothingToChangeIsSaid()
{
    const OpenedDialog opened;
    press(opened);
    QVERIFY(!opened.box(question));
    QVERIFY(opened.box(nothing));
    QCOMPARE(opened.box(nothing)->text(), "All toolbars are as the application made them.");
    opened.answer(nothing, QMessageBox::Ok);
    QTest::keyClick(opened.dialog, Qt::Key_Escape);
    QVERIFY(!opened.dialog->isVisible());
    letTheKitFollow();
}

void tst_RestoreQuestion::anotherActionThatLooksTheSameIsReplaced()
{
    const QScopedPointer<OpenedDialog> opened(edited("bar", "second", [](QMainWindow *window) {
        QMenu *const menu = window->menuBar()->addMenu("Menu");
        for (const char *name : {"first", "second"})
            menu->addAction("Same")->setObjectName(name);
        QToolBar *const toolBar = window->addToolBar("Bar");
        toolBar->setObjectName("bar");
        toolBar->addAction(menu->actions().constFirst());
    }));
    press(*opened);
    opened->answer(nothing, QMessageBox::Ok);
    QTest::mouseClick(opened->dialog->okButton(), Qt::LeftButton);
    QCOMPARE(opened->program.content("bar"), "first");
    letTheKitFollow();
}

void tst_RestoreQuestion::actionsThatCameLateBelongToTheDefaults()
{
    OpenedDialog opened;
    opened.dialog->reject();
    letTheKitFollow();
    addAction(opened.program.toolBar("file"), "late");
    letTheKitFollow();
    opened.open();
    press(opened);
    QVERIFY(opened.box(nothing));
    delete opened.box(nothing);
    opened.views->click(opened.views->toolBarList, "File");
    opened.views->click(opened.views->leftButton);
    press(opened);
    QVERIFY(opened.box(question));
    opened.answer(question, QMessageBox::RestoreDefaults);
    QTest::mouseClick(opened.dialog->okButton(), Qt::LeftButton);
    QCOMPARE(opened.program.content("file"), "new open save late");
    letTheKitFollow();
}

void tst_RestoreQuestion::actionsThatAreGoneAreNotPromised()
{
    const QScopedPointer<OpenedDialog> opened(edited("file", "open"));
    delete opened->program.action("save");
    letTheKitFollow();
    press(*opened);
    QCOMPARE(linesOf(opened->box(question)), QStringList("File: add New"));
}

void tst_RestoreQuestion::theAnswerDecides_data()
{
    QTest::addColumn<bool>("isYes");
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<QString>("content");
    QTest::newRow("Restore Defaults") << true << false << "new open save";
    QTest::newRow("Cancel") << false << false << "open";
    QTest::newRow("Return") << true << true << "new open save";
    QTest::newRow("Escape") << false << true << "open";
}

void tst_RestoreQuestion::theAnswerDecides()
{
    QFETCH(bool, isYes);
    QFETCH(bool, byKey);
    const QScopedPointer<OpenedDialog> opened(edited("file", "open"));
    const QString before = opened->program.stored();
    press(*opened);
    QVERIFY(opened->box(question));
    if (byKey)
        QTest::keyClick(opened->box(question), isYes ? Qt::Key_Return : Qt::Key_Escape);
    else
        opened->answer(question, isYes ? QMessageBox::RestoreDefaults : QMessageBox::Cancel);
    letTheKitFollow();
    QVERIFY(!opened->box(question));
    QTest::mouseClick(opened->dialog->okButton(), Qt::LeftButton);
    QTEST(opened->program.content("file"), "content");
    QCOMPARE(opened->program.stored() == before, !isYes);
    QCOMPARE(opened->program.kit()->isDefault(), isYes);
    letTheKitFollow();
}

void tst_RestoreQuestion::eachWayToPressTheButtonAsks_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"mouse", "Space", "Return", "mnemonic", "click", "animateClick"})
        QTest::newRow(how) << how;
}

void tst_RestoreQuestion::eachWayToPressTheButtonAsks()
{
    QFETCH(QString, how);
    const QScopedPointer<OpenedDialog> opened(edited("file", "open"));
    opened->views->click(opened->views->toolBarList, "File");
    QPushButton *const button = opened->dialog->RestoreDefaultButton();
    button->setFocus();
    if (how == "mouse")
        QTest::mouseClick(button, Qt::LeftButton);
    else if (how == "Space")
        QTest::keyClick(button, Qt::Key_Space);
    else if (how == "Return")
        QTest::keyClick(button, Qt::Key_Return);
    else if (how == "click")
        button->click();
    else if (how == "animateClick")
        button->animateClick();
    if (how == "mnemonic") {
        button->setText("&Xyz");
        QTest::keyClick(opened->dialog, Qt::Key_X, Qt::AltModifier);
    }
    QTRY_VERIFY(opened->box(question));
    QCOMPARE(opened->views->currentRows(), QStringList("Open"));
    opened->answer(question, QMessageBox::RestoreDefaults);
    QCOMPARE(opened->views->currentRows(), QStringList({"New", "Open", "Save"}));
}

void tst_RestoreQuestion::theCurrentRowsStay()
{
    const QScopedPointer<OpenedDialog> opened(edited("edit", "paste"));
    opened->views->click(opened->views->toolBarList, "File");
    opened->views->currentToolBarList->setCurrentRow(1);
    press(*opened);
    opened->answer(question, QMessageBox::Cancel);
    QCOMPARE(currentOf(opened->views->toolBarList), "File");
    QCOMPARE(currentOf(opened->views->currentToolBarList), "Open");
    QCOMPARE(opened->views->currentRows(), QStringList({"New", "Open", "Save"}));
}

void tst_RestoreQuestion::theDialogMayBeDeletedAtAnyTime()
{
    const QScopedPointer<OpenedDialog> opened(edited("edit", "paste"));
    press(*opened);
    QVERIFY(opened->box(question));
    delete opened->dialog;
    opened->open();
    press(*opened);
    opened->program.end();
}

QTEST_MAIN(tst_RestoreQuestion)
#include "tst_restorequestion.moc"
