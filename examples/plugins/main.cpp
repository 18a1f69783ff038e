// SPDX-License-Identifier: MIT

#include "pluginswindow.h"

#include <QApplication>
#include <QSettings>

int main(int argc, char *argv[])
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    QSettings settings(QStringLiteral("RyCustomizedDialog"), QStringLiteral("Plugins"));
    PluginsWindow window(&settings, TextPlugin::all());
    window.show();
    return application.exec();
}
