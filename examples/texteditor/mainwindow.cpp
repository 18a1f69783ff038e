// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "editcommands.h"
#include "editorview.h"
#include "filecommands.h"
#include "findbar.h"
#include "formatcommands.h"
#include "statusline.h"
#include "viewcommands.h"

#include <RyToolBarKit>

#include <QCloseEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

const QLatin1String LayoutGroup("layout");
const QLatin1String LayoutKey("layout/toolBars");
const QLatin1String GeometryKey("window/geometry");

} // namespace

MainWindow::MainWindow(QSettings *settings, QWidget *parent)
    : QMainWindow(parent)
    , m_settings(settings)
    , m_actions(this)
    , m_recentFiles(settings)
    , m_kit(new RyToolBarKit(this))
    , m_editor(new EditorView)
    , m_findBar(new FindBar(m_editor))
    , m_statusLine(new StatusLine(statusBar(), m_editor))
    , m_files(new FileCommands(m_actions, m_editor, &m_recentFiles, this))
{
    QWidget *const center = new QWidget;
    QVBoxLayout *const layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_editor);
    layout->addWidget(m_findBar);
    setCentralWidget(center);

    new EditCommands(m_actions, m_editor, m_findBar);
    new FormatCommands(m_actions, m_editor);
    new ViewCommands(m_actions, m_editor, this, settings);
    createMenus();
    createToolBars();
    setUpKit();
    connectActions();

    setIconSize(QSize(22, 22));
    resize(960, 680);
    restoreGeometry(settings->value(GeometryKey).toByteArray());
    showPath(QString());
    m_editor->setFocus();
}

void MainWindow::createMenus()
{
    QMenu *const file = createMenu(tr("&File"),
                                   {"file_new", "file_open", "file_reload", "|", "file_save",
                                    "file_save_as", "|", "file_quit"});
    QMenu *const recent = new QMenu(tr("Open Recent"), file);
    recent->setIcon(QIcon(QStringLiteral(":/icons/recent.svg")));
    file->insertMenu(m_actions.action("file_reload"), recent);
    m_recentFiles.fill(recent);
    m_kit->setExcluded(recent); // filled each time it is shown

    createMenu(tr("&Edit"),
               {"edit_undo", "edit_redo", "|", "edit_cut", "edit_copy", "edit_paste", "edit_delete",
                "edit_select_all", "|", "edit_find", "edit_find_next", "edit_find_previous",
                "edit_replace", "edit_go_to_line", "|", "edit_duplicate_line", "edit_upper_case",
                "edit_lower_case"});
    createMenu(tr("&View"),
               {"view_zoom_in", "view_zoom_out", "view_zoom_reset", "|", "view_word_wrap",
                "view_status_bar", "view_full_screen"});
    createMenu(tr("F&ormat"),
               {"format_bold", "format_italic", "format_underline", "format_strikethrough", "|",
                "format_align_left", "format_align_center", "format_align_right",
                "format_align_justify", "|", "format_indent", "format_unindent", "|", "format_font",
                "format_text_color"});
    createMenu(tr("&Tools"),
               {"tools_date_time", "tools_sort_lines", "tools_word_count", "|", "tools_read_only"});
    QMenu *const settings = createMenu(tr("&Settings"), {});
    createToolBarsMenu(settings);
    settings->addSeparator();
    settings->addActions({m_kit->customizeAction(), m_kit->undoAction(), m_kit->redoAction(),
                          m_actions.action("tools_reset_toolbars")});
    createMenu(tr("&Help"), {"help_tour", "|", "help_about"});
}

// Filled each time it is shown, because the user can create toolbars. An action that is already in
// the menu is not added twice. Qt removes the action of a deleted toolbar from the menu.
void MainWindow::createToolBarsMenu(QMenu *parent)
{
    QMenu *const menu = parent->addMenu(tr("Toolbars"));
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        const auto toolBars = findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
        for (QToolBar *toolBar : toolBars)
            menu->addAction(toolBar->toggleViewAction());
    });
    m_kit->setExcluded(menu);
}

void MainWindow::createToolBars()
{
    createToolBar("toolbar_file", tr("File"),
                  {"file_new", "file_open", "file_save", "|", "file_reload"});
    createToolBar("toolbar_edit", tr("Edit"),
                  {"edit_undo", "edit_redo", "|", "edit_cut", "edit_copy", "edit_paste", "|",
                   "edit_find", "edit_replace"});
    createToolBar("toolbar_format", tr("Format"),
                  {"format_bold", "format_italic", "format_underline", "|", "format_align_left",
                   "format_align_center", "format_align_right", "format_align_justify", "|",
                   "format_font", "format_text_color"});
}

QToolBar *MainWindow::createToolBar(const char *name, const QString &title,
                                    std::initializer_list<const char *> actions)
{
    QToolBar *const toolBar = addToolBar(title);
    toolBar->setObjectName(QLatin1String(name)); // identifies it in saved states
    addActionsTo(toolBar, actions);
    return toolBar;
}

QMenu *MainWindow::createMenu(const QString &title, std::initializer_list<const char *> actions)
{
    QMenu *const menu = menuBar()->addMenu(title);
    addActionsTo(menu, actions);
    return menu;
}

void MainWindow::addActionsTo(QWidget *widget, std::initializer_list<const char *> actions)
{
    for (const char *name : actions) {
        if (qstrcmp(name, "|") != 0) {
            widget->addAction(m_actions.action(name));
            continue;
        }
        QAction *const separator = new QAction(widget);
        separator->setSeparator(true);
        widget->addAction(separator);
    }
}

// The kit finds the menus and toolbars by itself. This says where the layout is kept, and shows the
// user what goes wrong with it.
void MainWindow::setUpKit()
{
    m_kit->setSettings(m_settings, LayoutKey);
    m_kit->customizeAction()->setIcon(ActionCatalog::icon("customize-toolbars"));
    m_kit->customizeAction()->setStatusTip(tr("Choose the buttons of the toolbars"));
    connect(m_actions.action("tools_reset_toolbars"), &QAction::triggered, m_kit,
            [this] { m_kit->restoreLayout(QByteArray()); });
    connect(m_kit, &RyToolBarKit::layoutRefused, this, [this] {
        notify(tr("The stored toolbars cannot be read; a copy of them or the default toolbars are "
                  "shown."));
    });
    connect(m_kit, &RyToolBarKit::layoutChanged, this, [this] {
        m_settings->sync();
        notify(settingsProblem());
    });
    if (m_settings->status() == QSettings::FormatError)
        notify(tr("The settings file %1 is damaged.").arg(m_settings->fileName()));
    else
        notify(settingsProblem());
}

void MainWindow::showProfiles()
{
    m_kit->setProfilesShown(true);
}

QString MainWindow::settingsProblem() const
{
    if (m_settings->status() == QSettings::AccessError || !m_settings->isWritable())
        return tr("The toolbars cannot be stored in %1.").arg(m_settings->fileName());
    return QString();
}

void MainWindow::forgetLayout(QSettings *settings)
{
    settings->remove(LayoutGroup);
}

void MainWindow::connectActions()
{
    connect(m_actions.action("file_quit"), &QAction::triggered, this, &QWidget::close);
    connect(m_actions.action("tools_word_count"), &QAction::triggered, this,
            &MainWindow::showWordCount);
    connect(m_actions.action("help_about"), &QAction::triggered, this, &MainWindow::showAbout);
    connect(m_editor->document(), &QTextDocument::modificationChanged, this,
            &QWidget::setWindowModified);
    connect(m_files, &FileCommands::pathChanged, this, &MainWindow::showPath);
}

// Shows the notice even if the user has hidden the status bar. An empty text removes the notice.
void MainWindow::notify(const QString &text)
{
    m_statusLine->setNotice(text);
    if (!text.isEmpty())
        m_actions.action("view_status_bar")->setChecked(true);
}

bool MainWindow::openFile(const QString &path)
{
    return m_files->open(path);
}

void MainWindow::showPath(const QString &path)
{
    const QString name = path.isEmpty() ? tr("Untitled") : QFileInfo(path).fileName();
    setWindowTitle(tr("%1[*] - Text Editor").arg(name));
    if (path.isEmpty())
        m_statusLine->setDocumentKind(tr("Not saved yet"));
    else
        m_statusLine->setDocumentKind(TextFile::isHtml(path) ? tr("Text with formats")
                                                             : tr("Plain text"));
}

void MainWindow::showWordCount()
{
    const QString text = m_editor->plainContent();
    const QString line = text.simplified();
    const int words = line.isEmpty() ? 0 : line.count(QLatin1Char(' ')) + 1;
    QMessageBox::information(this, tr("Word Count"),
                             tr("Lines: %1\nWords: %2\nCharacters: %3")
                                 .arg(m_editor->document()->blockCount())
                                 .arg(words)
                                 .arg(text.size()));
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About Text Editor"),
                       tr("A text editor whose toolbars are yours: choose Customize Toolbars in "
                          "the menu Settings."));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_files->mayDiscardChanges()) {
        event->ignore();
        return;
    }
    m_settings->setValue(GeometryKey, saveGeometry());
    event->accept();
}
