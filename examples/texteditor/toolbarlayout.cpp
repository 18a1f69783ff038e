// SPDX-License-Identifier: MIT

#include "toolbarlayout.h"

#include <RyToolBarManager>

#include <QMainWindow>
#include <QSettings>
#include <QToolBar>

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
        return restoreFrom(stored) ? fileProblem()
                                   : tr("The stored toolbar layout does not fit; the default "
                                        "toolbars are shown.");
    case LayoutStore::Result::OtherVersion:
        return tr("The stored toolbar layout is of another version; the default toolbars are "
                  "shown.");
    case LayoutStore::Result::Damaged:
        return tr("The stored toolbar layout is damaged; the default toolbars are shown.");
    case LayoutStore::Result::Nothing:
        break;
    }
    return fileProblem();
}

bool ToolBarLayout::restoreFrom(const LayoutStore::Layout &stored)
{
    // The manager comes first: it creates the custom toolbars that the window then puts in their
    // places.
    if (m_manager->restoreState(stored.toolBars, LayoutStore::Version)
        && m_window->restoreGeometry(stored.geometry)
        && m_window->restoreState(stored.window, LayoutStore::Version))
        return true;
    goBackToDefaults();
    return false;
}

QString ToolBarLayout::fileProblem() const
{
    if (m_settings->status() == QSettings::FormatError)
        return tr("The settings file %1 is damaged.").arg(m_settings->fileName());
    return storingProblem();
}

QString ToolBarLayout::storingProblem() const
{
    if (m_settings->status() == QSettings::AccessError || !m_settings->isWritable())
        return tr("The toolbar layout cannot be stored in %1.").arg(m_settings->fileName());
    return QString();
}

// A failed restore may have changed or created some toolbars.
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
    return storingProblem();
}

// Qt does not show a toolbar that the dialog has just created until the event loop runs again.
// Until then, QMainWindow::saveState() would store it as hidden.
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
