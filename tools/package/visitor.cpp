// SPDX-License-Identifier: MIT

// A user of the minimal example, to be preloaded into the finished program: looks at the window,
// opens the dialog, removes a command from the toolbar, presses OK and closes the window. The
// program ends with 1 if anything is not there.

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <cstdio>
#include <cstdlib>

namespace {

void say(bool holds, const char *what)
{
    std::printf("%s: %s\n", holds ? "yes" : "NO", what);
    if (holds)
        return;
    std::fflush(stdout);
    std::_Exit(1);
}

void removeCommand()
{
    QWidget *const dialog = QApplication::activeModalWidget();
    say(dialog && dialog->inherits("RyCustomizedDialog"),
        "the last entry of the menu opens the dialog");
    for (QToolButton *const button : dialog->findChildren<QToolButton *>("leftButton")) {
        if (button->isVisible())
            button->click();
    }
    const auto buttons = dialog->findChild<QDialogButtonBox *>();
    say(buttons && buttons->button(QDialogButtonBox::Ok), "it has an OK button");
    buttons->button(QDialogButtonBox::Ok)->click();
}

void visitWindow()
{
    QMainWindow *window = nullptr;
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && !window)
            window = qobject_cast<QMainWindow *>(widget);
    }
    say(window, "there is a window");
    const auto toolBar = window->findChild<QToolBar *>(QStringLiteral("edit"));
    say(toolBar && toolBar->actions().size() == 5, "its toolbar has four commands and a separator");
    const QList<QAction *> menus = window->menuBar()->actions();
    say(!menus.isEmpty() && menus.first()->menu(), "it has a menu");

    menus.first()->menu()->actions().last()->trigger();
    removeCommand();
    say(toolBar->actions().size() == 4, "the toolbar has a command less");
    QApplication::closeAllWindows();
}

// Once the program waits for its user.
void visit()
{
    QTimer::singleShot(0, visitWindow);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(visit)
