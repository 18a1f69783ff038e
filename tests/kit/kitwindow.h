// SPDX-License-Identifier: MIT

#ifndef KITWINDOW_H
#define KITWINDOW_H

#include <RyCustomizedDialog>
#include <RyToolBarKit>
#include <RyToolBarManager>
#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolBar>

#include <functional>
#include <memory>

/*
 * A program with a window and a kit that can be started again. Its settings stay.
 */
class KitProgram
{
public:
    // What the window has: menus "File" and "Edit" with a submenu "Special", and toolbars "file"
    // and "edit", unless the function replaces that.
    using Build = std::function<void(QMainWindow *)>;

    KitProgram();
    ~KitProgram();

    static void buildDefault(QMainWindow *window);

    // Makes this another window of the same program.
    void shareSettings(const KitProgram &first);

    // Starts the program, or ends the running one first.
    void start(const Build &build = buildDefault);
    void end();

    QMainWindow *window() const { return m_window.get(); }
    RyToolBarKit *kit() const { return m_kit; }
    QAction *action(const QString &name) const;
    QToolBar *toolBar(const QString &name) const;

    // The content of a toolbar's widget as one text, such as "open | save".
    QString content(const QString &toolBar) const;
    // All toolbars of the window as such texts, by name.
    QStringList contents() const;
    // Where they are: "top: file, edit / view" with a slash between lines.
    QStringList places() const;

    // What a user does in the dialog: opens it, sets the content of a toolbar, and presses OK.
    void edit(const QString &toolBar, const QString &content);
    QString create(const QString &title, const QString &content);
    void remove(const QString &toolBar);
    void restoreDefaults();
    RyCustomizedDialog *openDialog();
    // Opens the dialog, makes a change that is the page's last word, and presses OK.
    void apply(const std::function<void(RyToolBarManager *)> &change);
    // The actions of a text like that of content().
    QList<QAction *> actionsOf(const QString &content) const;

    QString stored() const;
    void store(const QString &value);

    // For windows of another class.
    std::function<QMainWindow *()> makeWindow = [] { return new QMainWindow; };
    QString key = "toolBars";
    QTemporaryDir folder;
    std::unique_ptr<QSettings> settings;
    QStringList refusals;
    int layoutChanges = 0;
    int customizations = 0;

private:
    std::unique_ptr<QMainWindow> m_window;
    RyToolBarKit *m_kit = nullptr;
};

// An action in a menu or on a toolbar, with an objectName and a text such as "Open" for "open".
QAction *addAction(QWidget *widget, const QString &name);

// Lets the kit find what has changed.
void letTheKitFollow();

#endif // KITWINDOW_H
