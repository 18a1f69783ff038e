// SPDX-License-Identifier: MIT

/*
 * spokenprogram
 *
 * A program with menus, toolbars and a kit, whose dialog is open, for tst_dialog_spoken.py.
 */

#include "kitwindow.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    KitProgram program;
    program.start();
    program.create("Mine", "cut | copy");
    program.action("cut")->setText("Cu&t");
    program.openDialog();
    return QApplication::exec();
}
