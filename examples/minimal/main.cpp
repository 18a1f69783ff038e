// SPDX-License-Identifier: MIT

#include <RyToolBarKit>
#include <QtWidgets>

class Window : public QMainWindow
{
public:
    Window()
    {
        setObjectName("editor"); // names say what is what in a stored layout
        QTextEdit *const text = new QTextEdit(this);
        setCentralWidget(text);
        QMenu *const menu = menuBar()->addMenu("&Edit");
        menu->addAction("Undo", text, &QTextEdit::undo)->setObjectName("undo");
        menu->addAction("Redo", text, &QTextEdit::redo)->setObjectName("redo");
        menu->addAction("Copy", text, &QTextEdit::copy)->setObjectName("copy");
        menu->addAction("Paste", text, &QTextEdit::paste)->setObjectName("paste");
        QToolBar *const toolBar = addToolBar("Edit");
        toolBar->setObjectName("edit");
        toolBar->addActions(menu->actions());
        toolBar->insertSeparator(menu->actions().at(2));

        RyToolBarKit *const kit = new RyToolBarKit(this);
        menu->addAction(kit->customizeAction());
    }
};

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("RyCustomizedDialog"); // where QSettings are
    QCoreApplication::setApplicationName("Minimal");
    Window window;
    window.show();
    return application.exec();
}
