// SPDX-License-Identifier: MIT

#include "bookswindow.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    BooksWindow window;
    window.show();
    return application.exec();
}
