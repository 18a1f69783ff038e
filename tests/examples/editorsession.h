// SPDX-License-Identifier: MIT

#ifndef EDITORSESSION_H
#define EDITORSESSION_H

#include "customizing.h"
#include "editorview.h"
#include "mainwindow.h"

#include <QSettings>
#include <QStringList>

/*
 * One run of the text editor, from its start to its end, with a settings file of its own.
 */
class EditorSession
{
public:
    explicit EditorSession(const QString &settingsFile);

    // Shows the window, as main() does.
    void start();

    // What the status bar says until further notice.
    QString notice() const;

    QAction *action(const char *name) const;
    QToolBar *toolBar(const QString &title) const;

    // The titles of all toolbars, sorted.
    QStringList toolBarTitles() const;

    void customize(const DialogSteps &steps);

    // Adds a custom toolbar with these actions through the dialog.
    void addToolBar(const QString &title, const QStringList &actionTexts);

    template <typename Widget> Widget *child(const char *name) const
    {
        return window.findChild<Widget *>(name);
    }

    QSettings settings;
    MainWindow window;
    EditorView *const editor;
};

#endif // EDITORSESSION_H
