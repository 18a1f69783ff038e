// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "actioncatalog.h"
#include "recentfiles.h"
#include "toolbarlayout.h"

#include <RyToolBarManager>

#include <QMainWindow>

class EditorView;
class FileCommands;
class FindBar;
class QSettings;
class StatusLine;

/*!
 * \brief The window of the text editor. It creates the parts and registers actions and toolbars
 *        with the toolbar manager.
 *
 * The order at the start matters: construct, restoreLayout(), show().
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    //! \param settings the application's settings, which must outlive the window.
    explicit MainWindow(QSettings *settings, QWidget *parent = nullptr);

    //! Restores the stored layout; call it once, before the window is shown.
    void restoreLayout();

    //! Forgets the stored layout; call it before restoreLayout().
    void forgetLayout();

    //! Opens a document; reports errors to the user.
    bool openFile(const QString &path);

    //! A menu with all toolbars and "Customize Toolbars"; Qt calls it on a right click.
    QMenu *createPopupMenu() override;

public Q_SLOTS:
    void customizeToolBars();
    void resetToolBars();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createToolBars();
    void createMenus();
    void createToolBarsMenu(QMenu *parent);
    void registerWithManager();
    void connectActions();
    QToolBar *createToolBar(const char *name, const QString &title,
                            std::initializer_list<const char *> actions);
    QMenu *createMenu(const QString &title, std::initializer_list<const char *> actions);
    void addActionsTo(QWidget *widget, std::initializer_list<const char *> actions);
    void saveLayout();
    void notify(const QString &text);
    void showPath(const QString &path);
    void showWordCount();
    void showAbout();

    ActionCatalog m_actions;
    RyToolBarManager m_manager;
    ToolBarLayout m_layout;
    RecentFiles m_recentFiles;
    // The widget tree owns the rest.
    EditorView *const m_editor;
    FindBar *const m_findBar;
    StatusLine *const m_statusLine;
    FileCommands *const m_files;
};

#endif // MAINWINDOW_H
