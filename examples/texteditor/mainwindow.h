// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "actioncatalog.h"
#include "recentfiles.h"

#include <QMainWindow>

class EditorView;
class FileCommands;
class FindBar;
class QSettings;
class RyToolBarKit;
class StatusLine;

/*!
 * \brief The window of the text editor. It creates the parts, and a kit that lets the user
 * customize the toolbars.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    //! \param settings the application's settings, which must outlive the window.
    explicit MainWindow(QSettings *settings, QWidget *parent = nullptr);

    //! Forgets the toolbars that \a settings have; call it before the window is constructed.
    static void forgetLayout(QSettings *settings);

    //! Lets the user keep several layouts of the toolbars by name.
    void showProfiles();

    //! Opens a document; reports errors to the user.
    bool openFile(const QString &path);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createToolBars();
    void createMenus();
    void createToolBarsMenu(QMenu *parent);
    void setUpKit();
    void connectActions();
    QToolBar *createToolBar(const char *name, const QString &title,
                            std::initializer_list<const char *> actions);
    QMenu *createMenu(const QString &title, std::initializer_list<const char *> actions);
    void addActionsTo(QWidget *widget, std::initializer_list<const char *> actions);
    QString settingsProblem() const;
    void notify(const QString &text);
    void showPath(const QString &path);
    void showWordCount();
    void showAbout();

    QSettings *const m_settings;
    ActionCatalog m_actions;
    RecentFiles m_recentFiles;
    // The widget tree owns the rest.
    RyToolBarKit *const m_kit;
    EditorView *const m_editor;
    FindBar *const m_findBar;
    StatusLine *const m_statusLine;
    FileCommands *const m_files;
};

#endif // MAINWINDOW_H
