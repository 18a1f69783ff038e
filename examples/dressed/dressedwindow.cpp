// SPDX-License-Identifier: MIT

#include "dressedwindow.h"

#include "dressing.h"

#include <RyCustomizedDialog>

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

// A style tints the icons of selected rows with the color of their background. It does not change
// icons that have their own pixmaps for selected rows.
QIcon visibleWhenSelected(QIcon icon)
{
    const auto sizes = icon.availableSizes();
    for (const QSize &size : sizes)
        icon.addPixmap(icon.pixmap(size), QIcon::Selected);
    return icon;
}

} // namespace

DressedWindow::DressedWindow(QWidget *parent)
    : QMainWindow(parent)
{
    m_manager.setMainWindow(this);
    addCategory("toolbar_file", tr("File"),
                {{"file_new", tr("New"), QStyle::SP_FileIcon},
                 {"file_open", tr("Open"), QStyle::SP_DialogOpenButton},
                 {"file_save", tr("Save"), QStyle::SP_DialogSaveButton},
                 {"file_delete", tr("Delete"), QStyle::SP_TrashIcon}});
    addCategory("toolbar_go", tr("Go"),
                {{"go_home", tr("Home"), QStyle::SP_DirHomeIcon},
                 {"go_back", tr("Back"), QStyle::SP_ArrowBack},
                 {"go_forward", tr("Forward"), QStyle::SP_ArrowForward},
                 {"go_up", tr("Up"), QStyle::SP_ArrowUp},
                 {"go_reload", tr("Reload"), QStyle::SP_BrowserReload}});
    addCategory("toolbar_sound", tr("Sound"),
                {{"sound_play", tr("Play"), QStyle::SP_MediaPlay},
                 {"sound_pause", tr("Pause"), QStyle::SP_MediaPause},
                 {"sound_back", tr("Back to the Start"), QStyle::SP_MediaSkipBackward},
                 {"sound_volume", tr("Volume"), QStyle::SP_MediaVolume}});

    QMenu *const settings = menuBar()->addMenu(tr("Se&ttings"));
    settings->addAction(tr("Customize Toolbars…"), this, &DressedWindow::customizeToolBars);
    QAction *const direction = settings->addAction(tr("Right to Left"));
    direction->setCheckable(true);
    connect(direction, &QAction::toggled, qApp, [](bool on) {
        QApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
    });

    QLabel *const label = new QLabel(tr("Settings, Customize Toolbars… opens the dressed dialog."));
    label->setAlignment(Qt::AlignCenter);
    setCentralWidget(label);
    setWindowTitle(tr("Dressed Dialog"));
    statusBar();
    resize(640, 360);
}

void DressedWindow::addCategory(const char *name, const QString &title,
                                const QList<Command> &commands)
{
    QMenu *const menu = menuBar()->addMenu(QLatin1Char('&') + title);
    for (const Command &command : commands) {
        QAction *const action =
            menu->addAction(visibleWhenSelected(style()->standardIcon(command.icon)), command.text);
        action->setObjectName(QLatin1String(command.name));
        connect(action, &QAction::triggered, this,
                [this, action] { statusBar()->showMessage(action->text()); });
    }
    QToolBar *const toolBar = addToolBar(title);
    toolBar->setObjectName(QLatin1String(name));
    toolBar->addActions(menu->actions());
    m_manager.addDefaultToolBar(toolBar, title);
}

void DressedWindow::customizeToolBars()
{
    RyCustomizedDialog dialog({&m_manager, nullptr}, this);
    const Dressing *const dressing = new Dressing(&dialog);
    connect(dressing, &Dressing::helpRequested, this, [this, shown = &dialog] { showHelp(shown); });
    dialog.exec();
}

// A child of the modal dialog. Otherwise the user could not even scroll in it.
void DressedWindow::showHelp(RyCustomizedDialog *dialog)
{
    QDialog *window = dialog->findChild<QDialog *>(QStringLiteral("help"));
    if (!window) {
        window = new QDialog(dialog);
        window->setObjectName(QStringLiteral("help"));
        window->setWindowTitle(tr("Toolbars"));
        QTextBrowser *const text = new QTextBrowser;
        text->setHtml(tr("<h2>Your toolbars</h2>"
                         "<p>On the left are all actions. On the right are the toolbars, and the "
                         "content of the current one.</p>"
                         "<p>Insert adds the current action. Alt+Up and Alt+Down move it, Delete "
                         "removes it. Nothing changes before OK or Apply.</p>"));
        QVBoxLayout *const layout = new QVBoxLayout(window);
        layout->addWidget(text);
    }
    window->show();
    window->raise();
    window->activateWindow();
}
