// SPDX-License-Identifier: MIT

#include "openeddialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QtTest>

OpenedDialog::OpenedDialog(const KitProgram::Build &build)
{
    program.start(build);
    open();
}

void OpenedDialog::open()
{
    dialog = program.openDialog();
    QVERIFY(dialog);
    views.reset(new EditorViews(dialog));
    QApplication::setActiveWindow(dialog);
    QVERIFY(QTest::qWaitForWindowActive(dialog));
}

QMessageBox *OpenedDialog::box(const QString &name) const
{
    QMessageBox *const found = dialog->findChild<QMessageBox *>(name);
    return found && found->isVisible() ? found : nullptr;
}

void OpenedDialog::answer(const QString &name, QMessageBox::StandardButton button) const
{
    QMessageBox *const found = box(name);
    QVERIFY2(found, qPrintable(name));
    QVERIFY(found->button(button));
    QTest::mouseClick(found->button(button), Qt::LeftButton);
    letTheKitFollow();
}

void OpenedDialog::pressClose() const
{
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(dialog, &event);
}

void OpenedDialog::type(const QString &name) const
{
    QLineEdit *const editor = qobject_cast<QLineEdit *>(views->renameEditor());
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, name);
}
