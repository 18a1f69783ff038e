// SPDX-License-Identifier: MIT

#ifndef VIEWCOMMANDS_H
#define VIEWCOMMANDS_H

#include <QObject>

#include <functional>

class ActionCatalog;
class EditorView;
class QMainWindow;
class QSettings;

/*!
 * \brief Connects the actions of the category View to the window, and stores their settings.
 */
class ViewCommands : public QObject
{
    Q_OBJECT

public:
    //! The arguments must outlive the object; \a window owns it.
    ViewCommands(const ActionCatalog &actions, EditorView *editor, QMainWindow *window,
                 QSettings *settings);

protected:
    //! Watches the window, because a window manager can also end full-screen mode.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectZoomActions();
    void connectStoredAction(const char *name, const char *key,
                             const std::function<void(bool)> &apply);
    void setFullScreen(bool fullScreen);

    const ActionCatalog &m_actions;
    EditorView *const m_editor;
    QMainWindow *const m_window;
    QSettings *const m_settings;
};

#endif // VIEWCOMMANDS_H
