// SPDX-License-Identifier: MIT

#include "pluginswindow.h"

#include <QApplication>
#include <QSettings>

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QSettings settings(QStringLiteral("RyCustomizedDialog"), QStringLiteral("Plugins"));
    PluginsWindow window(&settings, TextPlugin::all());
    window.show();
    return application.exec();
}
