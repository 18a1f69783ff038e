// SPDX-License-Identifier: MIT

#include "kitdialog.h"

#include "texts.h"

#include <QApplication>
#include <QtTest>

KitDialog::KitDialog(RyToolBarKit::Features without)
    : dialog(open(without))
    , views(dialog)
{
    QApplication::setActiveWindow(dialog);
    letTheKitFollow();
}

RyCustomizedDialog *KitDialog::open(RyToolBarKit::Features without)
{
    program.start([&](QMainWindow *window) {
        program.kit()->setFeatures(program.kit()->features() & ~without);
        KitProgram::buildDefault(window);
    });
    program.create("Mine", "cut | copy");
    return program.openDialog();
}

void KitDialog::choose(const QString &toolBar, int row)
{
    views.toolBarList->setCurrentItem(itemNamed(views.toolBarList, toolBar));
    views.currentToolBarList->setCurrentRow(row);
    letTheKitFollow();
}

void KitDialog::pressKey(QWidget *focus, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    focus->setFocus();
    QCOMPARE(QApplication::focusWidget(), focus);
    QTest::keyClick(focus, key, modifiers);
    letTheKitFollow();
}

QStringList KitDialog::entries() const
{
    QStringList rows = rowsOf(views.currentToolBarList);
    rows.replaceInStrings("< S E P A R A T O R >", "|");
    return rows;
}
