// SPDX-License-Identifier: MIT

#ifndef PLUGINSWINDOW_H
#define PLUGINSWINDOW_H

#include "textplugin.h"

#include <QMainWindow>

class QPlainTextEdit;
class QSettings;

/*!
 * \brief A small editor whose plugins the user switches on and off in the menu "Plugins".
 */
class PluginsWindow : public QMainWindow
{
    Q_OBJECT

public:
    //! Switches on the plugins that the user had on; at first, all of them.
    //!
    //! \param settings the application's settings, which must outlive the window.
    //! \param plugins the plugins that are installed now; they may differ from those of the last
    //! run.
    PluginsWindow(QSettings *settings, const QList<TextPlugin> &plugins, QWidget *parent = nullptr);

private:
    void createOwnCommands();
    void createPluginsMenu(const QList<TextPlugin> &plugins);
    void createSettingsMenu();
    void switchPlugin(const TextPlugin &plugin, bool on);

    QSettings *const m_settings;
    QPlainTextEdit *const m_editor;
    QMenu *m_commandsMenu = nullptr;
    // The actions of each plugin that is on.
    QHash<QString, QList<QAction *>> m_running;
};

#endif // PLUGINSWINDOW_H
