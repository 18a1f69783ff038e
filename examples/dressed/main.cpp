// SPDX-License-Identifier: MIT

#include "dressedwindow.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // needed for sharp icons
    QApplication application(argc, argv);
    DressedWindow window;
    window.show();
    return application.exec();
}
