// SPDX-License-Identifier: MIT

// usage: translationpictures FOLDER
//
// Writes a picture for each language: the dialog's two tabs and the box of its Help button, the
// dialog of the kit and its help, each with its title above it, in the direction of the language.

#include "host.h"
#include "installedlanguage.h"
#include "rycustomizeddialog.h"
#include "rytoolbarkit.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>

#include <cstdio>

namespace {

struct View
{
    QString title;
    QPixmap picture;
};

View viewOf(QWidget *widget)
{
    return {widget->windowTitle(), widget->grab()};
}

View helpOf(const RyCustomizedDialog &dialog)
{
    View view;
    QTimer::singleShot(0, qApp, [&view] {
        QWidget *const box = QApplication::activeModalWidget();
        view = viewOf(box);
        box->close();
    });
    dialog.helpButton()->click();
    return view;
}

QList<View> viewsOfDialog()
{
    Host host;
    host.registered("print", "File");
    host.defaultToolBar("file", {"open", "|"}, "File");
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    dialog.show();
    dialog.findChild<QAbstractButton *>("newButton")->click();
    QCoreApplication::processEvents();

    QList<View> views{viewOf(&dialog)};
    dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
    views << viewOf(&dialog) << helpOf(dialog);
    return views;
}

QList<View> viewsOfKit()
{
    QMainWindow window;
    QMenu *const menu = window.menuBar()->addMenu("&Edit");
    for (const char *text : {"Cu&t", "&Copy", "&Paste"})
        menu->addAction(text)->setObjectName(text);
    QToolBar *const toolBar = window.addToolBar("Edit");
    toolBar->setObjectName("edit");
    toolBar->addActions(menu->actions());
    RyToolBarKit kit(&window, false);
    kit.setSettings(nullptr, QString());
    kit.customizeAction()->trigger();
    RyCustomizedDialog *const dialog = window.findChild<RyCustomizedDialog *>();
    QList<View> views{viewOf(dialog)};
    dialog->helpButton()->click();
    views << viewOf(dialog->findChild<QDialog *>("userGuide"));
    return views;
}

QImage sheetOf(const QList<View> &views)
{
    const int caption = 24;
    QSize size;
    for (const View &view : views)
        size = QSize(qMax(size.width(), view.picture.width()),
                     size.height() + caption + view.picture.height());
    QImage sheet(size, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    int y = 0;
    for (const View &view : views) {
        painter.drawText(QRect(0, y, size.width(), caption), Qt::AlignCenter, view.title);
        painter.drawPixmap(0, y + caption, view.picture);
        y += caption + view.picture.height();
    }
    return sheet;
}

bool takePicture(const QString &language, const QDir &folder)
{
    const InstalledLanguage installed(language, InstalledLanguage::LibraryAndQt);
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
    const QString file = folder.filePath(language + ".png");
    const bool done = installed.isLoaded() && sheetOf(viewsOfDialog() + viewsOfKit()).save(file);
    std::printf("%s: %s\n", qPrintable(file), done ? "written" : "FAILED");
    return done;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QDir folder(application.arguments().value(1));
    int failed = 0;
    const auto languages = InstalledLanguage::all();
    for (const QString &language : languages)
        failed += takePicture(language, folder) ? 0 : 1;
    return failed;
}
