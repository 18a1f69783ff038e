// SPDX-License-Identifier: MIT

#include "openeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

/*
 * In the dialog of the kit nothing is lost, and no button does nothing.
 */
class tst_EditProtection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNameBeingTypedIsTaken_data();
    void aNameBeingTypedIsTaken();
    void escapeStillGivesUpAName();
    void newToolBarsHaveDifferentNames();
    void theNameOfANewToolBarIsSelected();
    void typedNamesAreNumbered_data();
    void typedNamesAreNumbered();
    void aToolBarMayKeepItsName();
    void namesOfTheProgramStay();
    void removeAndRenameNeedAToolBar();
    void removeAndRenameDoNothingToDefaultToolBars();
    void editsAreAskedFor_data();
    void editsAreAskedFor();
    void nothingIsAskedWithoutEdits_data();
    void nothingIsAskedWithoutEdits();
    void answersDoWhatTheySay_data();
    void answersDoWhatTheySay();
    void aNameBeingTypedIsAnEdit();
    void cancelAndTheProgramAreNotAsked_data();
    void cancelAndTheProgramAreNotAsked();
    void thereIsNothingToLoseAfterApply();
    void thereIsNothingToLoseAfterTheNextOpening();
    void theDialogMayBeDeletedAtAnyTime();
};

namespace {

const QString leaving = "unsavedEditsQuestion";

void rename(const OpenedDialog &opened, const QString &toolBar, const QString &name)
{
    opened.views->click(opened.views->toolBarList, toolBar);
    opened.views->click(opened.views->renameButton);
    opened.views->typeName(name);
}

void create(const OpenedDialog &opened, const QString &name)
{
    opened.views->click(opened.views->newButton);
    opened.views->typeName(name);
}

} // namespace

void tst_EditProtection::aNameBeingTypedIsTaken_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("OK") << "ok";
    QTest::newRow("Apply") << "apply";
    QTest::newRow("key of OK") << "key of ok";
    QTest::newRow("key of Apply") << "key of apply";
    QTest::newRow("mouse on a platform where it leaves the focus") << "mouse";
}

void tst_EditProtection::aNameBeingTypedIsTaken()
{
    QFETCH(QString, how);
    const OpenedDialog opened;
    opened.views->click(opened.views->newButton);
    opened.type("Mine");
    QPushButton *const button =
        how.endsWith("apply") ? opened.dialog->applyButton() : opened.dialog->okButton();
    if (how.startsWith("key of")) {
        button->setText("&Xyz");
        QTest::keyClick(opened.dialog, Qt::Key_X, Qt::AltModifier);
    } else {
        if (how == "mouse")
            button->setFocusPolicy(Qt::TabFocus);
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QTRY_COMPARE(opened.program.customizations, 1);
    QVERIFY(toolBarTitlesIn(*opened.program.window()).contains("Mine"));
    letTheKitFollow();
}

void tst_EditProtection::escapeStillGivesUpAName()
{
    const OpenedDialog opened;
    opened.views->click(opened.views->newButton);
    opened.type("Mine");
    QTest::keyClick(opened.views->renameEditor(), Qt::Key_Escape);
    QTRY_VERIFY(!opened.views->renameEditor());
    QCOMPARE(currentOf(opened.views->toolBarList), "Custom Toolbar");
    QVERIFY(!opened.box(leaving));
    QVERIFY(opened.dialog->isVisible());
}

void tst_EditProtection::newToolBarsHaveDifferentNames()
{
    const OpenedDialog opened;
    for (const char *name : {"Custom Toolbar", "Custom Toolbar 2", "Custom Toolbar 3"}) {
        opened.views->click(opened.views->newButton);
        QCOMPARE(currentOf(opened.views->toolBarList), name);
        QTest::keyClick(opened.views->renameEditor(), Qt::Key_Return);
        QTRY_VERIFY(!opened.views->renameEditor());
    }
    QTest::mouseClick(opened.dialog->okButton(), Qt::LeftButton);
    QCOMPARE(
        toolBarTitlesIn(*opened.program.window()),
        QStringList({"Custom Toolbar", "Custom Toolbar 2", "Custom Toolbar 3", "Edit", "File"}));
    letTheKitFollow();
}

void tst_EditProtection::theNameOfANewToolBarIsSelected()
{
    const OpenedDialog opened;
    create(opened, "Custom Toolbar");
    opened.views->click(opened.views->newButton);
    const QLineEdit *const editor = qobject_cast<QLineEdit *>(opened.views->renameEditor());
    QVERIFY(editor);
    QCOMPARE(editor->text(), "Custom Toolbar 2");
    QCOMPARE(editor->selectedText(), "Custom Toolbar 2");
    QTest::keyClicks(opened.views->renameEditor(), "Mine");
    QTest::keyClick(opened.views->renameEditor(), Qt::Key_Return);
    QTRY_VERIFY(!opened.views->renameEditor());
    QCOMPARE(rowsOf(opened.views->toolBarList),
             QStringList({"Custom Toolbar", "Edit", "File", "Mine"}));
}

void tst_EditProtection::typedNamesAreNumbered_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("named");
    QTest::newRow("repeated, with the sign of an argument") << "Sales %1"
                                                            << "Sales %1 2";
    QTest::newRow("another") << "Other"
                             << "Other";
    QTest::newRow("empty") << ""
                           << "Custom Toolbar";
    QTest::newRow("blank") << "  "
                           << "Custom Toolbar";
    QTest::newRow("of a toolbar of the user") << "Mine"
                                              << "Mine 2";
    QTest::newRow("of a default toolbar") << "Edit"
                                          << "Edit 2";
    QTest::newRow("with a blank") << "Mine "
                                  << "Mine 2";
    QTest::newRow("with a mnemonic") << "&Mine"
                                     << "&Mine 2";
    QTest::newRow("number is taken") << "Yours"
                                     << "Yours 3";
    QTest::newRow("other case") << "mine"
                                << "mine";
}

void tst_EditProtection::typedNamesAreNumbered()
{
    QFETCH(QString, typed);
    QFETCH(QString, named);
    const OpenedDialog opened;
    for (const char *name : {"Mine", "Sales %1", "Yours", "Yours 2", "Last"})
        create(opened, name);
    rename(opened, "Last", typed);
    QCOMPARE(currentOf(opened.views->toolBarList), named);
    QTest::mouseClick(opened.dialog->okButton(), Qt::LeftButton);
    QVERIFY(toolBarTitlesIn(*opened.program.window()).contains(named));
    letTheKitFollow();
}

void tst_EditProtection::aToolBarMayKeepItsName()
{
    const OpenedDialog opened;
    create(opened, "Mine");
    rename(opened, "Mine", "Mine");
    rename(opened, "Mine", "Mine ");
    QCOMPARE(rowsOf(opened.views->toolBarList), QStringList({"Edit", "File", "Mine "}));
}

// Only what the user types is changed.
void tst_EditProtection::namesOfTheProgramStay()
{
    OpenedDialog opened;
    opened.dialog->reject();
    letTheKitFollow();
    for (int i = 0; i < 2; ++i)
        opened.program.create("Same", "cut");
    opened.open();
    QCOMPARE(rowsOf(opened.views->toolBarList), QStringList({"Edit", "File", "Same", "Same"}));
    opened.views->toolBarList->item(2)->setToolTip("Changes the row");
    QCOMPARE(rowsOf(opened.views->toolBarList), QStringList({"Edit", "File", "Same", "Same"}));
}

void tst_EditProtection::removeAndRenameNeedAToolBar()
{
    const OpenedDialog opened([](QMainWindow *window) {
        window->addToolBar("Bar")->setObjectName("bar");
        window->findChild<RyToolBarKit *>()->setFeatures(
            RyToolBarKit::Features(RyToolBarKit::AllFeatures) & ~RyToolBarKit::FindToolBars);
    });
    const auto enabled = [&] { return opened.views->enabledButtons(); };
    QCOMPARE(enabled(), QStringList("newButton"));
    create(opened, "First");
    create(opened, "Second");
    const QStringList all{"newButton", "removeButton", "renameButton", "rightButton"};
    QCOMPARE(enabled(), all);
    opened.views->toolBarList->setCurrentItem(nullptr);
    QCOMPARE(enabled(), QStringList("newButton"));
    opened.views->click(opened.views->toolBarList, "First");
    QCOMPARE(enabled(), all);
    opened.views->click(opened.views->removeButton);
    QCOMPARE(enabled(), all);
    opened.views->click(opened.views->removeButton);
    QCOMPARE(rowsOf(opened.views->toolBarList), QStringList());
    QCOMPARE(enabled(), QStringList("newButton"));
}

void tst_EditProtection::removeAndRenameDoNothingToDefaultToolBars()
{
    const OpenedDialog opened;
    create(opened, "Mine");
    QVERIFY(opened.views->removeButton->isEnabled() && opened.views->renameButton->isEnabled());
    opened.views->click(opened.views->toolBarList, "File");
    QVERIFY(!opened.views->removeButton->isEnabled() && !opened.views->renameButton->isEnabled());
}

void tst_EditProtection::editsAreAskedFor_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<bool>("byKey");
    for (const char *edit : {"new", "remove", "rename", "up", "down", "left", "right",
                             "add by mouse", "remove by mouse", "restore"}) {
        QTest::newRow(qPrintable(QString(edit) + ", Escape")) << edit << true;
        QTest::newRow(qPrintable(QString(edit) + ", close button")) << edit << false;
    }
}

namespace {

void edit(const OpenedDialog &opened, const QString &what)
{
    const EditorViews &views = *opened.views;
    if (what == "new")
        create(opened, "Another");
    if (what == "remove") {
        views.click(views.toolBarList, "Mine");
        views.click(views.removeButton);
    }
    if (what == "rename")
        rename(opened, "Mine", "Other");
    views.toolBarList->setCurrentItem(itemNamed(views.toolBarList, "File"));
    if (what == "up" || what == "down") {
        views.currentToolBarList->setCurrentRow(1);
        views.click(what == "up" ? views.upButton : views.downButton);
    }
    if (what == "left")
        views.click(views.leftButton);
    if (what == "right")
        views.click(views.rightButton);
    if (what == "add by mouse")
        views.doubleClick(views.actionTree, "< S E P A R A T O R >");
    if (what == "remove by mouse")
        views.doubleClick(views.currentToolBarList, 0);
    if (what == "restore") {
        QTest::mouseClick(opened.dialog->RestoreDefaultButton(), Qt::LeftButton);
        opened.answer("restoreDefaultsQuestion", QMessageBox::RestoreDefaults);
    }
}

void leave(const OpenedDialog &opened, bool byKey)
{
    if (byKey)
        QTest::keyClick(opened.dialog, Qt::Key_Escape);
    else
        opened.pressClose();
}

} // namespace

void tst_EditProtection::editsAreAskedFor()
{
    QFETCH(bool, byKey);
    QFETCH(QString, edit);
    OpenedDialog opened;
    create(opened, "Mine");
    QTest::mouseClick(opened.dialog->okButton(), Qt::LeftButton);
    letTheKitFollow();
    opened.open();
    ::edit(opened, edit);
    leave(opened, byKey);
    QVERIFY(opened.box(leaving));
    QVERIFY(opened.dialog->isVisible());
    QCOMPARE(opened.dialog->findChildren<QMessageBox *>(leaving).size(), 1);
}

void tst_EditProtection::nothingIsAskedWithoutEdits_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Escape") << true;
    QTest::newRow("close button") << false;
}

void tst_EditProtection::nothingIsAskedWithoutEdits()
{
    QFETCH(bool, byKey);
    const OpenedDialog opened;
    opened.views->click(opened.views->toolBarList, "File");
    opened.views->currentToolBarList->setCurrentRow(1);
    opened.views->doubleClick(opened.views->actionTree, "File");
    leave(opened, byKey);
    QVERIFY(!opened.dialog->isVisible());
    letTheKitFollow();
}

void tst_EditProtection::answersDoWhatTheySay_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isOpen");
    QTest::addColumn<QString>("content");
    QTest::newRow("Apply") << int(QMessageBox::Apply) << false << "open save";
    QTest::newRow("Discard") << int(QMessageBox::Discard) << false << "new open save";
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << true << "new open save";
}

void tst_EditProtection::answersDoWhatTheySay()
{
    QFETCH(int, answer);
    QFETCH(bool, isOpen);
    OpenedDialog opened;
    edit(opened, "left");
    const QPointer<QDialog> dialog(opened.dialog);
    leave(opened, true);
    QCOMPARE(opened.box(leaving)->text(), "Apply your changes to the toolbars?");
    opened.answer(leaving, QMessageBox::StandardButton(answer));
    QCOMPARE(dialog && dialog->isVisible(), isOpen);
    QTEST(opened.program.content("file"), "content");
    if (isOpen) {
        QCOMPARE(opened.views->currentRows(), QStringList({"Open", "Save"}));
        leave(opened, false);
        QVERIFY(opened.box(leaving));
    }
}

void tst_EditProtection::aNameBeingTypedIsAnEdit()
{
    OpenedDialog opened;
    create(opened, "Mine");
    QTest::mouseClick(opened.dialog->applyButton(), Qt::LeftButton);
    opened.views->click(opened.views->renameButton);
    opened.type("Other");
    opened.pressClose();
    QVERIFY(opened.box(leaving));
    opened.answer(leaving, QMessageBox::Apply);
    QVERIFY(toolBarTitlesIn(*opened.program.window()).contains("Other"));
}

void tst_EditProtection::cancelAndTheProgramAreNotAsked_data()
{
    QTest::addColumn<QString>("who");
    QTest::newRow("Cancel") << "cancel";
    QTest::newRow("close()") << "close";
    QTest::newRow("reject()") << "reject";
}

void tst_EditProtection::cancelAndTheProgramAreNotAsked()
{
    QFETCH(QString, who);
    const OpenedDialog opened;
    edit(opened, "left");
    if (who == "cancel")
        QTest::mouseClick(
            opened.dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel),
            Qt::LeftButton);
    else if (who == "close")
        opened.dialog->close();
    else
        opened.dialog->reject();
    QVERIFY(!opened.dialog->isVisible());
    QCOMPARE(opened.program.content("file"), "new open save");
    letTheKitFollow();
}

void tst_EditProtection::thereIsNothingToLoseAfterApply()
{
    const OpenedDialog opened;
    edit(opened, "left");
    QTest::mouseClick(opened.dialog->applyButton(), Qt::LeftButton);
    leave(opened, true);
    QVERIFY(!opened.dialog->isVisible());
    letTheKitFollow();
}

void tst_EditProtection::thereIsNothingToLoseAfterTheNextOpening()
{
    const OpenedDialog opened;
    edit(opened, "left");
    opened.dialog->hide();
    opened.dialog->show();
    leave(opened, false);
    QVERIFY(!opened.dialog->isVisible());
    letTheKitFollow();
}

void tst_EditProtection::theDialogMayBeDeletedAtAnyTime()
{
    OpenedDialog opened;
    opened.views->click(opened.views->newButton);
    opened.type("Mine");
    delete opened.dialog;
    opened.open();
    edit(opened, "left");
    leave(opened, true);
    delete opened.dialog;
}

QTEST_MAIN(tst_EditProtection)
#include "tst_editprotection.moc"
