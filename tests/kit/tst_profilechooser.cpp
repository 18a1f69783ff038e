// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitlayout.h"
#include "kitwindow.h"
#include "testcase.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QWheelEvent>
#include <QtTest>

using Edit = std::function<void(EditorViews *)>;

Q_DECLARE_METATYPE(Edit)

class tst_ProfileChooser : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theDialogHasNoneByDefault();
    void itIsAboveTheTabs();
    void returnPressesOk();
    void itsControlsHaveNames();
    void theCurrentProfileIsShown();
    void choosingSwitches();
    void choosingAsksBeforeEditsAreLost_data();
    void choosingAsksBeforeEditsAreLost();
    void restoringWithoutAQuestionIsAnEdit();
    void afterApplyNothingIsAsked();
    void editsOfAPageThatWasLeftAreForgotten();
    void theWheelDoesNotSwitch();
    void aDamagedProfileMayBeRemoved();
    void aProfileThatHasGoneIsReported();
    void savingAppliesEdits();
    void savingWithoutEditsAppliesNothing();
    void savingAsksBeforeAnotherIsReplaced();
    void anEmptyNameIsNotSaved();
    void removingAsks();
    void anAppliedChangeLeavesTheProfile();
    void withoutStoreChangesProfilesAreOnlyChosen();
    void exportingAppliesEdits();
    void aFileThatCannotBeWrittenIsReported();
    void importingTakesTheFile();
    void importingListsUnknownNames();
    void importingAsksBeforeEditsAreLost();
    void manyUnknownNamesAreCut();
    void aRefusedFileIsReported();
    void theKitMayBeDeleted();
    void theDialogMayBeDeletedByASwitch();
    void theWindowMayBeDeletedWithAQuestionOpen();
};

namespace {

// The dialog of a program, and what a user does in the line with the profiles.
class Session
{
public:
    explicit Session(KitProgram *ofProgram)
        : program(ofProgram)
    {
        program->kit()->setProfilesShown(true);
        dialog = program->openDialog();
        chooser = dialog->findChild<QWidget *>("profileChooser");
        box = dialog->findChild<QComboBox *>("profileBox");
    }
    ~Session()
    {
        if (dialog)
            dialog->reject();
    }

    QPushButton *button(const QString &name) const
    {
        return dialog->findChild<QPushButton *>(name);
    }

    void choose(const QString &name) const
    {
        box->setFocus();
        box->setCurrentIndex(box->findText(name));
        Q_EMIT box->activated(box->findText(name));
    }

    // The text of the question or message that is open, after pressing a button of it.
    QString answer(QMessageBox::StandardButton button) const
    {
        QMessageBox *const message = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!message)
            return QString();
        const QString text = message->text() + '/' + message->informativeText();
        if (!message->button(button))
            return text + ", without that button";
        message->button(button)->click();
        letTheKitFollow();
        return text;
    }

    void saveAs(const QString &name) const
    {
        button("saveProfileButton")->click();
        QInputDialog *const input = dialog->findChild<QInputDialog *>();
        QVERIFY(input);
        QCOMPARE(input->windowTitle(), QString("Save Profile"));
        QCOMPARE(input->labelText(), QString("Name of the profile:"));
        QCOMPARE(input->textValue(), box->currentText());
        input->setTextValue(name);
        input->accept();
        letTheKitFollow();
    }

    void takeFile(const QString &buttonName, const QString &file) const
    {
        button(buttonName)->click();
        QFileDialog *const files = dialog->findChild<QFileDialog *>();
        QVERIFY(files);
        const bool isExport = buttonName == "exportLayoutButton";
        QCOMPARE(files->acceptMode(), isExport ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        QCOMPARE(files->fileMode(), isExport ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
        QCOMPARE(files->defaultSuffix(), QString(isExport ? "json" : ""));
        QCOMPARE(files->nameFilters(), QStringList("Layouts (*.json)"));
        Q_EMIT files->fileSelected(file);
        files->reject();
        letTheKitFollow();
    }

    // Removes the first entry of the toolbar "File".
    void edit() const
    {
        EditorViews editor(dialog);
        editor.click(editor.toolBarList, "File");
        editor.click(editor.leftButton);
    }

    KitProgram *program;
    QPointer<RyCustomizedDialog> dialog;
    QPointer<QWidget> chooser;
    QComboBox *box;
};

// Two profiles: "Default", and "Short", which the program has.
void startWithProfiles(KitProgram *program)
{
    program->start();
    QVERIFY(program->kit()->saveProfile("Default"));
    program->edit("edit", "paste");
    QVERIFY(program->kit()->saveProfile("Short"));
}

const QString Lost = "Your changes in this dialog are lost.";

} // namespace

void tst_ProfileChooser::theDialogHasNoneByDefault()
{
    KitProgram program;
    program.start();
    RyCustomizedDialog *const dialog = program.openDialog();
    QVERIFY(!dialog->findChild<QWidget *>("profileChooser"));
    dialog->reject();
    program.kit()->setProfilesShown(true);
    program.kit()->setProfilesShown(false);
    QVERIFY(!program.openDialog()->findChild<QWidget *>("profileChooser"));
}

void tst_ProfileChooser::itIsAboveTheTabs()
{
    KitProgram program;
    program.start();
    const Session session(&program);
    const QTabWidget *const tabs = session.dialog->findChild<QTabWidget *>();
    QVERIFY(session.chooser->isVisible());
    QVERIFY(session.chooser->geometry().bottom() < tabs->geometry().top());
    QCOMPARE(session.dialog->size(), QSize(740, 460));
}

void tst_ProfileChooser::returnPressesOk()
{
    KitProgram program;
    program.start();
    const Session session(&program);
    session.button("exportLayoutButton")->setFocus();
    QTest::keyClick(session.button("exportLayoutButton"), Qt::Key_Return);
    QCOMPARE(program.customizations, 1);
}

void tst_ProfileChooser::itsControlsHaveNames()
{
    KitProgram program;
    program.start();
    const Session session(&program);
    QCOMPARE(QAccessible::queryAccessibleInterface(session.box)->text(QAccessible::Name),
             QString("Profile:"));
    QStringList texts;
    const auto buttons = session.chooser->findChildren<QPushButton *>();
    for (const QPushButton *button : buttons)
        texts << button->text();
    QCOMPARE(texts, QStringList({"Save As…", "Remove", "Import…", "Export…"}));
    QVERIFY(!session.box->isEnabled());
    QVERIFY(!session.button("removeProfileButton")->isEnabled());
    QVERIFY(session.button("saveProfileButton")->isEnabled());
}

void tst_ProfileChooser::theCurrentProfileIsShown()
{
    KitProgram program;
    startWithProfiles(&program);
    {
        const Session session(&program);
        QCOMPARE(session.box->currentText(), QString("Short"));
        QCOMPARE(session.box->count(), 2);
        QVERIFY(session.box->isEnabled());
        QVERIFY(session.button("removeProfileButton")->isEnabled());
    }
    program.edit("file", "save");
    const Session session(&program);
    QCOMPARE(session.box->currentIndex(), -1);
    QVERIFY(!session.button("removeProfileButton")->isEnabled());
}

void tst_ProfileChooser::choosingSwitches()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.choose("Default");
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    QCOMPARE(session.box->currentText(), QString("Default"));
    QVERIFY(!QApplication::activeModalWidget()->inherits("QMessageBox"));
    QVERIFY(session.button("removeProfileButton")->isEnabled());
    EditorViews editor(session.dialog);
    editor.click(editor.toolBarList, "Edit");
    QCOMPARE(editor.currentToolBarList->count(), 3);
    QTest::mouseClick(session.dialog->okButton(), Qt::LeftButton);
    QCOMPARE(program.content("edit"), QString("cut | copy"));
}

void tst_ProfileChooser::choosingAsksBeforeEditsAreLost_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::newRow("remove") << Edit([](EditorViews *e) { e->click(e->leftButton); });
    QTest::newRow("add") << Edit([](EditorViews *e) { e->click(e->rightButton); });
    QTest::newRow("down") << Edit([](EditorViews *e) { e->click(e->downButton); });
    QTest::newRow("up") << Edit([](EditorViews *e) {
        e->currentToolBarList->setCurrentRow(1);
        e->click(e->upButton);
    });
    QTest::newRow("new") << Edit([](EditorViews *e) { e->click(e->newButton); });
    QTest::newRow("double click an entry") << Edit([](EditorViews *e) {
        Q_EMIT e->currentToolBarList->itemDoubleClicked(e->currentToolBarList->item(0));
    });
    QTest::newRow("double click an action") << Edit([](EditorViews *e) {
        Q_EMIT e->actionTree->itemDoubleClicked(e->actionTree->topLevelItem(0), 0);
    });
    QTest::newRow("restore defaults") << Edit([](EditorViews *e) {
        RyCustomizedDialog *const dialog =
            qobject_cast<RyCustomizedDialog *>(e->actionTree->window());
        dialog->RestoreDefaultButton()->click();
        QMessageBox *const question = dialog->findChild<QMessageBox *>("restoreDefaultsQuestion");
        QVERIFY(question);
        question->button(QMessageBox::RestoreDefaults)->click();
    });
}

void tst_ProfileChooser::choosingAsksBeforeEditsAreLost()
{
    QFETCH(Edit, edit);
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    EditorViews editor(session.dialog);
    editor.click(editor.toolBarList, "File");
    edit(&editor);
    session.choose("Default");
    QCOMPARE(session.box->currentText(), QString("Short"));
    QCOMPARE(session.answer(QMessageBox::No), "Switch to the profile “Default”?/" + Lost);
    QCOMPARE(program.content("edit"), QString("paste"));
    session.choose("Default");
    QCOMPARE(session.answer(QMessageBox::Yes), "Switch to the profile “Default”?/" + Lost);
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
    QCOMPARE(session.box->currentText(), QString("Default"));
    session.choose("Short");
    QCOMPARE(program.content("edit"), QString("paste"));
}

void tst_ProfileChooser::restoringWithoutAQuestionIsAnEdit()
{
    KitProgram program;
    startWithProfiles(&program);
    program.kit()->setFeatures(program.kit()->features() & ~RyToolBarKit::ProtectEdits);
    const Session session(&program);
    session.dialog->RestoreDefaultButton()->click();
    session.choose("Default");
    QCOMPARE(session.answer(QMessageBox::No), "Switch to the profile “Default”?/" + Lost);
}

void tst_ProfileChooser::afterApplyNothingIsAsked()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.edit();
    session.dialog->applyButton()->click();
    session.choose("Default");
    QCOMPARE(session.answer(QMessageBox::Yes), QString());
    QCOMPARE(program.contents(), QStringList({"edit: cut | copy", "file: new open save"}));
}

void tst_ProfileChooser::editsOfAPageThatWasLeftAreForgotten()
{
    KitProgram program;
    startWithProfiles(&program);
    program.kit()->setFeatures(program.kit()->features() & ~RyToolBarKit::ReadableLists);
    const Session session(&program);
    QTabWidget *const tabs = session.dialog->findChild<QTabWidget *>();
    session.edit();
    tabs->setCurrentIndex(1);
    session.choose("Default");
    QCOMPARE(session.answer(QMessageBox::Yes), QString());
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    tabs->setCurrentIndex(0);
    session.choose("Short");
    QCOMPARE(session.answer(QMessageBox::Yes), QString());
    QCOMPARE(program.content("edit"), QString("paste"));
}

void tst_ProfileChooser::theWheelDoesNotSwitch()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    const QPoint place = session.box->rect().center();
    QWheelEvent event(place, session.box->mapToGlobal(place), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(session.box, &event);
    QCOMPARE(session.box->currentText(), QString("Short"));
    QCOMPARE(program.content("edit"), QString("paste"));
}

void tst_ProfileChooser::aDamagedProfileMayBeRemoved()
{
    const QString question = "Remove the profile “bad”?/The layout cannot be used.";
    KitProgram program;
    startWithProfiles(&program);
    program.settings->setValue("toolBars.profiles/bad", "x");
    const Session session(&program);
    session.choose("bad");
    QCOMPARE(session.answer(QMessageBox::No), question);
    QCOMPARE(program.kit()->profiles(), QStringList({"Default", "Short", "bad"}));
    session.choose("bad");
    QCOMPARE(session.answer(QMessageBox::Yes), question);
    QCOMPARE(program.kit()->profiles(), QStringList({"Default", "Short"}));
    QCOMPARE(session.box->count(), 2);
    QCOMPARE(session.box->currentText(), QString("Short"));
    QCOMPARE(program.content("edit"), QString("paste"));
}

// Another window has removed it.
void tst_ProfileChooser::aProfileThatHasGoneIsReported()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    program.kit()->removeProfile("Default");
    session.choose("Default");
    QCOMPARE(session.answer(QMessageBox::Ok), QString("The layout cannot be used./"));
    QCOMPARE(session.box->count(), 1);
    QCOMPARE(session.box->currentText(), QString("Short"));
}

void tst_ProfileChooser::savingAppliesEdits()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.edit();
    session.saveAs("  Mine\n");
    QCOMPARE(program.content("file"), QString("open save"));
    QCOMPARE(program.customizations, 2);
    QCOMPARE(session.box->currentText(), QString("Mine"));
    QCOMPARE(session.box->count(), 3);
    session.choose("Default");
    session.choose("Mine");
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: open save"}));
}

void tst_ProfileChooser::savingWithoutEditsAppliesNothing()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.saveAs("Mine");
    QCOMPARE(program.customizations, 1);
    QCOMPARE(program.kit()->profiles(), QStringList({"Default", "Mine", "Short"}));
}

void tst_ProfileChooser::savingAsksBeforeAnotherIsReplaced()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.edit();
    session.saveAs("Default");
    QCOMPARE(program.customizations, 1);
    QCOMPARE(session.answer(QMessageBox::No), QString("Replace the profile “Default”?/"));
    session.saveAs("Default");
    QCOMPARE(session.answer(QMessageBox::Yes), QString("Replace the profile “Default”?/"));
    QCOMPARE(session.box->currentText(), QString("Default"));
    session.choose("Short");
    session.choose("Default");
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: open save"}));
}

void tst_ProfileChooser::anEmptyNameIsNotSaved()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.edit();
    session.saveAs(" ");
    QCOMPARE(program.kit()->profiles(), QStringList({"Default", "Short"}));
    QCOMPARE(session.box->currentText(), QString("Short"));
    QCOMPARE(program.customizations, 1);
}

void tst_ProfileChooser::removingAsks()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.button("removeProfileButton")->click();
    QCOMPARE(session.answer(QMessageBox::No), QString("Remove the profile “Short”?/"));
    QCOMPARE(session.box->count(), 2);
    session.button("removeProfileButton")->click();
    QCOMPARE(session.answer(QMessageBox::Yes), QString("Remove the profile “Short”?/"));
    QCOMPARE(program.kit()->profiles(), QStringList("Default"));
    QCOMPARE(session.box->currentIndex(), -1);
    QCOMPARE(program.content("edit"), QString("paste"));
    // Its name is not proposed for another one.
    session.saveAs("New");
    QCOMPARE(program.kit()->profiles(), QStringList({"Default", "New"}));
}

void tst_ProfileChooser::anAppliedChangeLeavesTheProfile()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.dialog->applyButton()->click();
    QCOMPARE(session.box->currentText(), QString("Short"));
    session.edit();
    session.dialog->applyButton()->click();
    QCOMPARE(session.box->currentIndex(), -1);
}

void tst_ProfileChooser::withoutStoreChangesProfilesAreOnlyChosen()
{
    KitProgram program;
    startWithProfiles(&program);
    program.kit()->setFeatures(program.kit()->features() & ~RyToolBarKit::StoreChanges);
    program.settings->setValue("toolBars.profiles/bad", "x");
    const Session session(&program);
    QVERIFY(!session.button("saveProfileButton")->isEnabled());
    QVERIFY(!session.button("removeProfileButton")->isEnabled());
    session.choose("Default");
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    session.choose("bad");
    QCOMPARE(session.answer(QMessageBox::Ok), QString("The layout cannot be used./"));
}

void tst_ProfileChooser::exportingAppliesEdits()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.edit();
    const QString file = program.folder.filePath("layout.json");
    session.takeFile("exportLayoutButton", file);
    QCOMPARE(program.content("file"), QString("open save"));
    session.choose("Default");
    session.takeFile("importLayoutButton", file);
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: open save"}));
}

void tst_ProfileChooser::aFileThatCannotBeWrittenIsReported()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.takeFile("exportLayoutButton", program.folder.filePath("none/layout.json"));
    QCOMPARE(session.answer(QMessageBox::Ok), QString("The file cannot be written./"));
}

void tst_ProfileChooser::importingTakesTheFile()
{
    KitProgram program;
    startWithProfiles(&program);
    const QString file = program.folder.filePath("layout.json");
    QVERIFY(program.kit()->exportLayout(file));
    const Session session(&program);
    session.choose("Default");
    session.button("importLayoutButton")->click();
    QFileDialog *const files = session.dialog->findChild<QFileDialog *>();
    QCOMPARE(files->fileMode(), QFileDialog::ExistingFile);
    QCOMPARE(files->acceptMode(), QFileDialog::AcceptOpen);
    QCOMPARE(files->nameFilters(), QStringList("Layouts (*.json)"));
    files->close();
    session.takeFile("importLayoutButton", file);
    QCOMPARE(program.content("edit"), QString("paste"));
    QCOMPARE(session.box->currentIndex(), -1);
    EditorViews editor(session.dialog);
    editor.click(editor.toolBarList, "Edit");
    QCOMPARE(editor.currentToolBarList->count(), 1);
}

void tst_ProfileChooser::importingListsUnknownNames()
{
    KitProgram program;
    startWithProfiles(&program);
    KitLayout layout;
    layout.toolBars["edit"].customized = true;
    layout.toolBars["edit"].entries = QStringList({"<b>tool</b>", "copy"});
    layout.toolBars["view"].visibility = KitToolBar::Hidden;
    const QString name = program.folder.filePath("layout.json");
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(layout.toJson());
    file.close();
    const Session session(&program);
    session.takeFile("importLayoutButton", name);
    QMessageBox *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    QVERIFY(box);
    QCOMPARE(box->textFormat(), Qt::PlainText);
    QCOMPARE(session.answer(QMessageBox::No),
             QString("Import this layout?/This program does not have: <b>tool</b>, view"));
    QCOMPARE(program.content("edit"), QString("paste"));
    session.takeFile("importLayoutButton", name);
    session.answer(QMessageBox::Yes);
    QCOMPARE(program.content("edit"), QString("cut copy"));
}

void tst_ProfileChooser::importingAsksBeforeEditsAreLost()
{
    KitProgram program;
    startWithProfiles(&program);
    const QString file = program.folder.filePath("layout.json");
    QVERIFY(program.kit()->exportLayout(file));
    const Session session(&program);
    session.edit();
    session.takeFile("importLayoutButton", file);
    QCOMPARE(session.answer(QMessageBox::Yes), "Import this layout?/" + Lost);
    EditorViews editor(session.dialog);
    editor.click(editor.toolBarList, "File");
    QCOMPARE(editor.currentToolBarList->count(), 3);
}

void tst_ProfileChooser::manyUnknownNamesAreCut()
{
    KitProgram program;
    startWithProfiles(&program);
    KitLayout layout;
    layout.toolBars["edit"].customized = true;
    QStringList shown;
    for (int i = 10; i < 31; ++i) {
        const QString name = QString::number(i) + QString(i == 10 ? 59 : 58, 'x');
        layout.toolBars["edit"].entries << name;
        if (i < 30)
            shown << (i == 10 ? name.left(60) + QChar(0x2026) : name);
    }
    const QString name = program.folder.filePath("layout.json");
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(layout.toJson());
    file.close();
    const Session session(&program);
    session.takeFile("importLayoutButton", name);
    QCOMPARE(session.answer(QMessageBox::No),
             "Import this layout?/This program does not have: " + shown.join(", ") + ", "
                 + QChar(0x2026));
}

void tst_ProfileChooser::aRefusedFileIsReported()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.takeFile("importLayoutButton", program.folder.filePath("none.json"));
    QCOMPARE(session.answer(QMessageBox::Ok), QString("The layout cannot be used./"));
    QCOMPARE(session.box->currentText(), QString("Short"));
}

void tst_ProfileChooser::theKitMayBeDeleted()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    delete program.kit();
    letTheKitFollow();
    QVERIFY(!session.chooser);
}

void tst_ProfileChooser::theDialogMayBeDeletedByASwitch()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    connect(program.kit(), &RyToolBarKit::layoutChanged, session.dialog.data(),
            [&] { delete session.dialog.data(); });
    session.choose("Default");
    QVERIFY(!session.dialog);
    QCOMPARE(program.content("edit"), QString("cut | copy"));
}

void tst_ProfileChooser::theWindowMayBeDeletedWithAQuestionOpen()
{
    KitProgram program;
    startWithProfiles(&program);
    const Session session(&program);
    session.edit();
    session.choose("Default");
    QVERIFY(session.dialog->findChild<QMessageBox *>());
    program.end();
    letTheKitFollow();
    QVERIFY(!session.dialog);
}

QTEST_MAIN(tst_ProfileChooser)
#include "tst_profilechooser.moc"
