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
        QMenu *const menu = menuBar()->addMenu("&Edit");
        QToolBar *const toolBar = addToolBar("Edit");
        toolBar->setObjectName("edit"); // identifies it in stored layouts

        // First register everything: all actions that may go on a toolbar, and the toolbars ...
        m_manager.setMainWindow(this);
        addCommand(menu, "undo", "Undo", editor, &QTextEdit::undo);
        addCommand(menu, "redo", "Redo", editor, &QTextEdit::redo);
        addCommand(menu, "copy", "Copy", editor, &QTextEdit::copy);
        addCommand(menu, "paste", "Paste", editor, &QTextEdit::paste);
        toolBar->addActions(menu->actions());
        toolBar->insertSeparator(menu->actions().at(2));
        m_manager.addDefaultToolBar(toolBar, "Edit");
        menu->addAction("Customize Toolbars…", this, &Window::customizeToolBars);

        // ... then restore the contents of the toolbars, then their places, then show.
        m_manager.restoreState(m_settings.value("toolBars").toByteArray(), 1);
        restoreState(m_settings.value("window").toByteArray(), 1);
    }

private:
    template <typename Slot>
    void addCommand(QMenu *menu, const char *name, const char *text, QTextEdit *editor, Slot slot)
    {
        QAction *const action = menu->addAction(text, editor, slot);
        action->setObjectName(name); // like the toolbar's: unique, and never changed
        m_manager.addAction(action, "Edit");
    }
    void customizeToolBars()
    {
        RyCustomizedDialog({&m_manager, nullptr}, this).exec();
        m_settings.setValue("toolBars", m_manager.saveState(1)); // also after Apply and Cancel
    }
    void closeEvent(QCloseEvent *) override { m_settings.setValue("window", saveState(1)); }

    QSettings m_settings{"RyCustomizedDialog", "Minimal"};
    RyToolBarManager m_manager;
};

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Window window;
    window.show();
    return application.exec();
}
