// SPDX-License-Identifier: MIT

#include "viewcommands.h"

#include "actioncatalog.h"
#include "editorview.h"

#include <QEvent>
#include <QMainWindow>
#include <QSettings>
#include <QStatusBar>

ViewCommands::ViewCommands(const ActionCatalog &actions, EditorView *editor, QMainWindow *window,
                           QSettings *settings)
    : QObject(window)
    , m_actions(actions)
    , m_editor(editor)
    , m_window(window)
    , m_settings(settings)
{
    connectZoomActions();
    connectStoredAction("view_word_wrap", "view/wordWrap",
                        [this](bool on) { m_editor->setWordWrapped(on); });
    connectStoredAction("view_status_bar", "view/statusBar",
                        [this](bool on) { m_window->statusBar()->setVisible(on); });
    connect(actions.action("view_full_screen"), &QAction::triggered, this,
            &ViewCommands::setFullScreen);
    window->installEventFilter(this);
}

void ViewCommands::connectZoomActions()
{
    connect(m_actions.action("view_zoom_in"), &QAction::triggered, m_editor,
            [this] { m_editor->zoomIn(); });
    connect(m_actions.action("view_zoom_out"), &QAction::triggered, m_editor,
            [this] { m_editor->zoomOut(); });
    connect(m_actions.action("view_zoom_reset"), &QAction::triggered, m_editor,
            &EditorView::resetZoom);
}

// On if the stored value is missing or is not a boolean.
void ViewCommands::connectStoredAction(const char *name, const char *key,
                                       const std::function<void(bool)> &apply)
{
    const QString storedKey = QLatin1String(key);
    QAction *const action = m_actions.action(name);
    const bool on = m_settings->value(storedKey, true).toString() != QLatin1String("false");
    action->setChecked(on);
    apply(on);
    connect(action, &QAction::toggled, this, [this, storedKey, apply](bool checked) {
        apply(checked);
        m_settings->setValue(storedKey, checked);
    });
}

void ViewCommands::setFullScreen(bool fullScreen)
{
    const Qt::WindowStates others = m_window->windowState() & ~Qt::WindowFullScreen;
    m_window->setWindowState(fullScreen ? others | Qt::WindowFullScreen : others);
}

bool ViewCommands::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowStateChange)
        m_actions.action("view_full_screen")->setChecked(m_window->isFullScreen());
    return QObject::eventFilter(watched, event);
}
