// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "mainwindow.h"

#include <QApplication>
#include <QIcon>
#include <QSettings>

#include <memory>

namespace {

std::unique_ptr<QSettings> openSettings(const QString &path)
{
    if (!path.isEmpty())
        return std::make_unique<QSettings>(path, QSettings::IniFormat);
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                       QCoreApplication::organizationName(),
                                       QCoreApplication::applicationName());
}

} // namespace

int main(int argc, char *argv[])
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("RyCustomizedDialog"));
    QApplication::setApplicationName(QStringLiteral("Text Editor"));
    QApplication::setApplicationVersion(QStringLiteral(TEXTEDITOR_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/texteditor.svg")));

    CommandLine commandLine;
    commandLine.process(application);
    const auto settings = openSettings(commandLine.settingsFile());

    if (commandLine.resetLayout())
        MainWindow::forgetLayout(settings.get());
    MainWindow window(settings.get());
    if (commandLine.profiles())
        window.showProfiles();
    window.show();
    if (!commandLine.document().isEmpty())
        window.openFile(commandLine.document());
    return application.exec();
}
