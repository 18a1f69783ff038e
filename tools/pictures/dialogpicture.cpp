// SPDX-License-Identifier: MIT

/*
 * dialogpicture STYLE light|dark ltr|rtl FILE
 *
 * Opens the dialog of the text editor with a style, a palette and a direction, and writes a picture
 * of it to a PNG file. QT_SCALE_FACTOR sets the scale, as for every Qt program.
 */

#include "mainwindow.h"

#include <RyCToolBarWidget>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QListWidget>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

namespace {

QPalette darkPalette()
{
    const QColor text(0xef, 0xf0, 0xf1);
    QPalette palette(QColor(0x31, 0x36, 0x3b), QColor(0x2a, 0x2e, 0x32));
    palette.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
    palette.setColor(QPalette::AlternateBase, QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x7f, 0x85, 0x8a));
    return palette;
}

// Creates a custom toolbar with three actions, so that every list has content.
void editToolBars(const QWidget *dialog)
{
    // The placeholder page has widgets with the same names.
    const auto page = dialog->findChild<RyCToolBarWidget *>();
    const auto tree = page->findChild<QTreeWidget *>(QStringLiteral("actionTree"));
    page->findChild<QToolButton *>(QStringLiteral("newButton"))->click();
    const auto toolBars = page->findChild<QListWidget *>(QStringLiteral("toolBarList"));
    const int custom = toolBars->currentRow();
    toolBars->setCurrentRow(custom + 1); // ends the editing of the name
    toolBars->setCurrentRow(custom);
    QTreeWidgetItem *const edit = tree->topLevelItem(1);
    edit->setExpanded(true);
    for (int i = 0; i < 3; ++i) {
        tree->setCurrentItem(edit->child(2 * i + 1));
        page->findChild<QToolButton *>(QStringLiteral("rightButton"))->click();
    }
}

void takePicture(QWidget *dialog, const QString &file)
{
    if (!dialog->grab().save(file))
        qFatal("cannot write %s", qPrintable(file));
    dialog->close();
}

} // namespace

int main(int argc, char *argv[])
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 5) {
        QTextStream(stderr) << "usage: dialogpicture STYLE light|dark ltr|rtl FILE\n";
        return 2;
    }
    QStyle *const style = QStyleFactory::create(arguments.at(1));
    if (!style)
        qFatal("no style %s", qPrintable(arguments.at(1)));
    QApplication::setStyle(style);
    QApplication::setPalette(arguments.at(2) == QLatin1String("dark") ? darkPalette()
                                                                      : style->standardPalette());
    QApplication::setLayoutDirection(arguments.at(3) == QLatin1String("rtl") ? Qt::RightToLeft
                                                                             : Qt::LeftToRight);

    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    MainWindow window(&settings);
    window.show();
    window.findChild<QAction *>(QStringLiteral("customizeToolBars"))->trigger();
    QWidget *const dialog = QApplication::activeModalWidget();
    // The focus stays where it belongs only while the dialog is active.
    QTimer::singleShot(0, dialog, [=] { editToolBars(dialog); });
    // Some styles take a while to show that a button has become enabled.
    QTimer::singleShot(500, dialog, [=] {
        takePicture(dialog, arguments.at(4));
        QCoreApplication::quit();
    });
    return QApplication::exec();
}
