// SPDX-License-Identifier: MIT

#ifndef EDITORSESSION_H
#define EDITORSESSION_H

#include "editorview.h"
#include "mainwindow.h"
#include "nextmodal.h"

#include <QSettings>
#include <QStringList>

#include <functional>

class EditorViews;
class RyCustomizedDialog;

/*
 * One run of the text editor, from its start to its end, with a settings file of its own.
 */
class EditorSession
{
public:
    explicit EditorSession(const QString &settingsFile);

    // Restores the layout and shows the window, as main() does.
    void start();

    // What the status bar tells until further notice.
    QString notice() const;

    QAction *action(const char *name) const;
    QToolBar *toolBar(const QString &title) const;

    // The titles of all toolbars, sorted.
    QStringList toolBarTitles() const;

    // Runs the dialog through its action; steps() is called while it is open, and must close it.
    void customize(const std::function<void(const EditorViews &, RyCustomizedDialog *)> &steps);

    // Adds a custom toolbar with these actions through the dialog.
    void addToolBar(const QString &title, const QStringList &actionTexts);

    template <typename Widget> Widget *child(const char *name) const
    {
        return window.findChild<Widget *>(QLatin1String(name));
    }

    QSettings settings;
    MainWindow window;
    EditorView *const editor;

private:
    QTimer m_watch;
};

#endif // EDITORSESSION_H
