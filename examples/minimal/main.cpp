// SPDX-License-Identifier: MIT

#include <RyCustomizedDialog>
#include <RyToolBarManager>
#include <QtWidgets>

class Window : public QMainWindow
{
public:
    Window()
    {
        QTextEdit *const editor = new QTextEdit(this);
        setCentralWidget(editor);
        QToolBar *const toolBar = addToolBar("Edit");
        toolBar->setObjectName("edit"); // what the saved states know it by
        QMenu *const menu = menuBar()->addMenu("&Edit");
        m_manager.setMainWindow(this);

        // First register everything that may stand on a toolbar, and the default toolbars ...
        addCommand(menu, "undo", "Undo", editor, &QTextEdit::undo);
        addCommand(menu, "redo", "Redo", editor, &QTextEdit::redo);
        addCommand(menu, "cut", "Cut", editor, &QTextEdit::cut);
        addCommand(menu, "copy", "Copy", editor, &QTextEdit::copy);
        addCommand(menu, "paste", "Paste", editor, &QTextEdit::paste);
        toolBar->addActions(menu->actions().mid(0, 2));
        toolBar->addSeparator();
        toolBar->addActions(menu->actions().mid(2));
        m_manager.addDefaultToolBar(toolBar, "Edit");
        menu->addAction("Customize Toolbars…", this, &Window::customizeToolBars);

        // ... then restore what stands on each toolbar, and last where each toolbar stands.
        m_manager.restoreState(m_settings.value("toolBars").toByteArray(), 1);
        restoreState(m_settings.value("window").toByteArray(), 1);
    }

private:
    template <typename Slot>
    void addCommand(QMenu *menu, const char *name, const char *text, QTextEdit *editor, Slot slot)
    {
        QAction *const action = menu->addAction(text, editor, slot);
        action->setObjectName(name); // unique, and the same for ever
        m_manager.addAction(action, "Edit");
    }
    void customizeToolBars()
    {
        RyCustomizedDialog({&m_manager, nullptr}, this).exec();
        m_settings.setValue("toolBars", m_manager.saveState(1)); // "Apply" may precede a "Cancel"
    }
    void closeEvent(QCloseEvent *) override { m_settings.setValue("window", saveState(1)); }

    QSettings m_settings{"RyCustomizedDialog", "minimal"};
    RyToolBarManager m_manager;
};

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Window window;
    window.show();
    return application.exec();
}
