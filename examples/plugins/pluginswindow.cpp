// SPDX-License-Identifier: MIT

#include "pluginswindow.h"

#include "lettericon.h"

#include <RyCustomizedDialog>

#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSettings>
#include <QToolBar>

namespace {

// Raise it when the objectName of an action or a toolbar changes.
constexpr int LayoutVersion = 1;

const QLatin1String ToolBarsKey("layout/toolBars");
const QLatin1String WindowKey("layout/window");

QString switchKey(const TextPlugin &plugin)
{
    return QStringLiteral("pluginIsOn/") + plugin.name();
}

} // namespace

PluginsWindow::PluginsWindow(QSettings *settings, const QList<TextPlugin> &plugins, QWidget *parent)
    : QMainWindow(parent)
    , m_settings(settings)
    , m_editor(new QPlainTextEdit)
    , m_pluginActions(&m_manager, settings)
{
    m_editor->setPlainText(tr("pears\napples\npears\ncherries"));
    setCentralWidget(m_editor);
    setWindowTitle(tr("Plugins"));
    resize(720, 420);

    // In this order: permanent actions, stand-ins for plugins, the layout, and finally the plugins.
    m_manager.setMainWindow(this);
    createOwnCommands();
    m_pluginActions.standInForAll();
    restoreLayout();
    createPluginsMenu(plugins);
    createSettingsMenu();
}

void PluginsWindow::createOwnCommands()
{
    const QColor gray(0x70, 0x78, 0x80);
    QMenu *const menu = menuBar()->addMenu(tr("&Edit"));
    const auto add = [&](const char *name, const QString &letters, const QString &text,
                         void (QPlainTextEdit::*slot)()) {
        QAction *const action = menu->addAction(letterIcon(letters, gray), text, m_editor, slot);
        action->setObjectName(QLatin1String(name));
        m_manager.addAction(action, tr("Edit"));
    };
    add("edit_undo", QStringLiteral("U"), tr("Undo"), &QPlainTextEdit::undo);
    add("edit_redo", QStringLiteral("R"), tr("Redo"), &QPlainTextEdit::redo);
    add("edit_copy", QStringLiteral("C"), tr("Copy"), &QPlainTextEdit::copy);
    add("edit_paste", QStringLiteral("P"), tr("Paste"), &QPlainTextEdit::paste);

    QToolBar *const toolBar = addToolBar(tr("Edit"));
    toolBar->setObjectName(QStringLiteral("toolbar_edit"));
    toolBar->addActions(menu->actions());
    m_manager.addDefaultToolBar(toolBar, tr("Edit"));
}

void PluginsWindow::createPluginsMenu(const QList<TextPlugin> &plugins)
{
    m_commandsMenu = menuBar()->addMenu(tr("&Commands"));
    m_pluginsMenu = menuBar()->addMenu(tr("&Plugins"));
    for (const TextPlugin &plugin : plugins) {
        QAction *const entry = m_pluginsMenu->addAction(plugin.title());
        entry->setCheckable(true);
        connect(entry, &QAction::toggled, this,
                [this, plugin](bool on) { switchPlugin(plugin, on); });
        entry->setChecked(m_settings->value(switchKey(plugin), true).toBool());
    }
    m_pluginsMenu->addSeparator();
    m_pluginsMenu->addAction(tr("Forget Plugins That Are Off"), this,
                             &PluginsWindow::forgetAbsentPlugins);
}

void PluginsWindow::createSettingsMenu()
{
    QMenu *const menu = menuBar()->addMenu(tr("&Settings"));
    menu->addAction(tr("Customize Toolbars…"), this, &PluginsWindow::customizeToolBars);
    menu->addAction(tr("Reset Toolbars"), this, [this] {
        m_manager.resetAllToolBars();
        saveToolBars();
    });
}

void PluginsWindow::switchPlugin(const TextPlugin &plugin, bool on)
{
    if (on) {
        const auto actions = plugin.createActions(m_editor);
        m_running.insert(plugin.name(), actions);
        m_commandsMenu->addActions(actions);
        m_pluginActions.add(actions, plugin.title());
    } else {
        m_pluginActions.takeAndDelete(m_running.take(plugin.name()));
    }
    m_settings->setValue(switchKey(plugin), on);
}

void PluginsWindow::forgetAbsentPlugins()
{
    m_pluginActions.forgetAbsent();
    saveToolBars();
}

void PluginsWindow::customizeToolBars()
{
    RyCustomizedDialog({&m_manager, nullptr}, this).exec();
    saveToolBars();
}

void PluginsWindow::restoreLayout()
{
    m_manager.restoreState(m_settings->value(ToolBarsKey).toByteArray(), LayoutVersion);
    restoreState(m_settings->value(WindowKey).toByteArray(), LayoutVersion);
}

void PluginsWindow::saveToolBars()
{
    m_settings->setValue(ToolBarsKey, m_manager.saveState(LayoutVersion));
}

void PluginsWindow::closeEvent(QCloseEvent *event)
{
    m_settings->setValue(WindowKey, saveState(LayoutVersion));
    QMainWindow::closeEvent(event);
}
