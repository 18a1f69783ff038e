// SPDX-License-Identifier: MIT

#include "toolbarlayout.h"

#include <RyToolBarManager>

#include <QCoreApplication>
#include <QMainWindow>
#include <QSettings>
#include <QToolBar>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ToolBarLayout", text);
}

} // namespace

ToolBarLayout::ToolBarLayout(QMainWindow *window, RyToolBarManager *manager, QSettings *settings)
    : m_window(window)
    , m_manager(manager)
    , m_settings(settings)
    , m_store(settings)
{
}

QString ToolBarLayout::restore()
{
    LayoutStore::Layout stored;
    switch (m_store.read(&stored)) {
    case LayoutStore::Result::Read:
        return restoreFrom(stored);
    case LayoutStore::Result::OtherVersion:
        return tr("The stored toolbar layout is of another version; the default toolbars are "
                  "shown.");
    case LayoutStore::Result::Damaged:
        return tr("The stored toolbar layout is damaged; the default toolbars are shown.");
    case LayoutStore::Result::Nothing:
        break;
    }
    if (m_settings->status() != QSettings::NoError)
        return tr("The settings file cannot be read; the default toolbars are shown.");
    return QString();
}

QString ToolBarLayout::restoreFrom(const LayoutStore::Layout &stored)
{
    // The manager first: it creates the custom toolbars that the window then puts in their places.
    const bool restored = m_manager->restoreState(stored.toolBars, LayoutStore::Version)
        && m_window->restoreState(stored.window, LayoutStore::Version);
    if (!restored) {
        goBackToDefaults();
        return tr("The stored toolbar layout is of no use; the default toolbars are shown.");
    }
    m_window->restoreGeometry(stored.geometry);
    return QString();
}

// A failed restore may have changed some toolbars and created others.
void ToolBarLayout::goBackToDefaults()
{
    m_manager->resetAllToolBars();
    const auto toolBars = m_manager->toolBars();
    for (QToolBar *toolBar : toolBars)
        m_manager->deleteToolBar(toolBar); // leaves default toolbars alone
}

QString ToolBarLayout::save()
{
    showNewToolBars();
    m_store.write({m_manager->saveState(LayoutStore::Version),
                   m_window->saveState(LayoutStore::Version), m_window->saveGeometry()});
    m_settings->sync();
    if (m_settings->status() != QSettings::NoError)
        return tr("The toolbar layout cannot be stored in %1.").arg(m_settings->fileName());
    return QString();
}

// Qt shows a toolbar that the dialog has just created only when the event loop runs next. Until then
// QMainWindow::saveState() would store it as hidden.
void ToolBarLayout::showNewToolBars()
{
    const auto toolBars = m_manager->toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (!toolBar->testAttribute(Qt::WA_WState_ExplicitShowHide))
            toolBar->show();
    }
}

void ToolBarLayout::forget()
{
    m_store.clear();
}
