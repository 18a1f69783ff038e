// SPDX-License-Identifier: MIT

#include "pluginswindow.h"

#include "lettericon.h"

#include <RyToolBarKit>

#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSettings>
#include <QToolBar>

namespace {

QString switchKey(const TextPlugin &plugin)
{
    return QStringLiteral("pluginIsOn/") + plugin.name();
}

} // namespace

PluginsWindow::PluginsWindow(QSettings *settings, const QList<TextPlugin> &plugins, QWidget *parent)
    : QMainWindow(parent)
    , m_settings(settings)
    , m_editor(new QPlainTextEdit)
{
    m_editor->setPlainText(tr("pears\napples\npears\ncherries"));
    setCentralWidget(m_editor);
    setWindowTitle(tr("Plugins"));
    resize(720, 420);

    createOwnCommands();
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
    };
    add("edit_undo", QStringLiteral("U"), tr("Undo"), &QPlainTextEdit::undo);
    add("edit_redo", QStringLiteral("R"), tr("Redo"), &QPlainTextEdit::redo);
    add("edit_copy", QStringLiteral("C"), tr("Copy"), &QPlainTextEdit::copy);
    add("edit_paste", QStringLiteral("P"), tr("Paste"), &QPlainTextEdit::paste);

    QToolBar *const toolBar = addToolBar(tr("Edit"));
    toolBar->setObjectName(QStringLiteral("toolbar_edit"));
    toolBar->addActions(menu->actions());
}

void PluginsWindow::createPluginsMenu(const QList<TextPlugin> &plugins)
{
    m_commandsMenu = menuBar()->addMenu(tr("&Commands"));
    QMenu *const menu = menuBar()->addMenu(tr("&Plugins"));
    for (const TextPlugin &plugin : plugins) {
        QAction *const entry = menu->addAction(plugin.title());
        entry->setObjectName(QStringLiteral("plugin_") + plugin.name());
        entry->setCheckable(true);
        connect(entry, &QAction::toggled, this,
                [this, plugin](bool on) { switchPlugin(plugin, on); });
        entry->setChecked(m_settings->value(switchKey(plugin), true).toBool());
    }
}

void PluginsWindow::createSettingsMenu()
{
    RyToolBarKit *const kit = new RyToolBarKit(this);
    kit->setSettings(m_settings, QStringLiteral("toolBars"));
    menuBar()->addMenu(tr("&Settings"))->addAction(kit->customizeAction());
}

// The kit sees what comes and goes in the menu.
void PluginsWindow::switchPlugin(const TextPlugin &plugin, bool on)
{
    if (on) {
        const auto actions = plugin.createActions(m_editor);
        m_running.insert(plugin.name(), actions);
        m_commandsMenu->addActions(actions);
    } else {
        qDeleteAll(m_running.take(plugin.name()));
    }
    m_settings->setValue(switchKey(plugin), on);
}
