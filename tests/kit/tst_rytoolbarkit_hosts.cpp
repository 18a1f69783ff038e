// SPDX-License-Identifier: MIT

#include "kitwindow.h"
#include "openeddialog.h"
#include "openedmenu.h"
#include "testcase.h"

#include <QPushButton>
#include <QtTest>

/*
 * What programs do at the wrong moment, and what must not be lost by it.
 */
class tst_RyToolBarKit_hosts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theKitIsDeletedWithItsDialogOpen();
    void theDialogIsDeletedBeforeItIsShown();
    void theDialogIsDeletedInsteadOfClosed();
    void aTitleThatTheProgramSetsMeanwhileStays();
    void aToolBarIsDeletedBeforeALookIsStored();
    void theDialogIsHiddenAfterRestoreDefaults();
    void floatingToolBarsOfAnotherWindowAreDeleted();
};

namespace {

void buildUntitled(QMainWindow *window)
{
    KitProgram::buildDefault(window);
    window->addToolBar(QString())->setObjectName("plainBar");
}

} // namespace

void tst_RyToolBarKit_hosts::theKitIsDeletedWithItsDialogOpen()
{
    KitProgram program;
    program.start();
    const QPointer<QDialog> dialog(program.openDialog());
    delete program.kit();
    QVERIFY(!dialog->isVisible());
    letTheKitFollow();
    QVERIFY(!dialog);
}

void tst_RyToolBarKit_hosts::theDialogIsDeletedBeforeItIsShown()
{
    KitProgram program;
    program.start();
    const auto connection = connect(program.kit(), &RyToolBarKit::aboutToCustomize,
                                    [](RyCustomizedDialog *dialog) { delete dialog; });
    program.kit()->customizeAction()->trigger();
    QVERIFY(!program.window()->findChild<RyCustomizedDialog *>());
    disconnect(connection);
    program.edit("file", "open");
    QCOMPARE(program.content("file"), "open");
}

void tst_RyToolBarKit_hosts::theDialogIsDeletedInsteadOfClosed()
{
    KitProgram program;
    program.start(buildUntitled);
    const RyCustomizedDialog *const dialog = program.openDialog();
    QCOMPARE(program.toolBar("plainBar")->windowTitle(), "Plain Bar");
    delete dialog;
    QCOMPARE(program.toolBar("plainBar")->windowTitle(), QString());
}

void tst_RyToolBarKit_hosts::aTitleThatTheProgramSetsMeanwhileStays()
{
    KitProgram program;
    program.start(buildUntitled);
    RyCustomizedDialog *const dialog = program.openDialog();
    program.toolBar("plainBar")->setWindowTitle("Own");
    dialog->reject();
    QCOMPARE(program.toolBar("plainBar")->windowTitle(), "Own");
    QCOMPARE(program.toolBar("plainBar")->toggleViewAction()->text(), "Own");
    letTheKitFollow();
}

void tst_RyToolBarKit_hosts::aToolBarIsDeletedBeforeALookIsStored()
{
    KitProgram program;
    program.start();
    QVERIFY(chooseInMenu(program.toolBar("file"), nullptr, "Large (32)"));
    delete program.toolBar("edit");
    QTRY_VERIFY(program.stored().contains("32"));
    QCOMPARE(program.toolBar("file")->iconSize(), QSize(32, 32));
}

void tst_RyToolBarKit_hosts::theDialogIsHiddenAfterRestoreDefaults()
{
    OpenedDialog opened;
    opened.dialog->reject();
    letTheKitFollow();
    QVERIFY(chooseInMenu(opened.program.toolBar("file"), nullptr, "Large (32)"));
    opened.open();
    QTest::mouseClick(opened.dialog->RestoreDefaultButton(), Qt::LeftButton);
    opened.answer("restoreDefaultsQuestion", QMessageBox::RestoreDefaults);
    opened.dialog->hide();
    opened.dialog->show();
    QTest::mouseClick(opened.dialog->okButton(), Qt::LeftButton);
    QCOMPARE(opened.program.toolBar("file")->iconSize(), QSize(32, 32));
    letTheKitFollow();
}

void tst_RyToolBarKit_hosts::floatingToolBarsOfAnotherWindowAreDeleted()
{
    KitProgram program;
    program.start();
    QStringList names;
    for (int i = 0; i < 8; ++i)
        names.append(program.create(QString("Mine %1").arg(i), "cut"));
    KitProgram other;
    other.shareSettings(program);
    other.start();
    for (const QString &name : std::as_const(names)) {
        other.toolBar(name)->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
        other.toolBar(name)->show();
    }
    program.restoreDefaults();
    QCOMPARE(other.contents(), program.contents());
    QVERIFY(!other.toolBar(names.constFirst()));
}

QTEST_MAIN(tst_RyToolBarKit_hosts)
#include "tst_rytoolbarkit_hosts.moc"
