// SPDX-License-Identifier: MIT

#include "check.h"

// Each class is included under a name of another kind, and all of them have to fit together.
#include <RyAbstatcManager>
#include <RyCustomizedDialog>
#include <RyCustomizedDialog/RyCusInterface>
#include <RyCustomizedDialog/RyToolBarManager>
#include <RyCustomizedDialog/rytoolbarmanager.h>
#include <RyToolBarManager>
#include <rycustomizeddialog.h>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMainWindow>
#include <QPushButton>
#include <QToolBar>
#include <QTranslator>

namespace {

// A library that was built without translations names no folder.
void checkTranslations(bool expected)
{
    const QString folder = QStringLiteral(TRANSLATIONS_DIR);
    CHECK(folder.isEmpty() == !expected);
    if (folder.isEmpty())
        return;
    QTranslator german;
    CHECK(german.load(QLocale(QStringLiteral("de_DE")), QStringLiteral("rycustomizeddialog"),
                      QStringLiteral("_"), folder));
    QCoreApplication::installTranslator(&german);
    RyToolBarManager manager;
    const RyCustomizedDialog dialog({&manager, nullptr});
    CHECK(dialog.windowTitle() == QStringLiteral("Optionen"));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);

    QMainWindow window;
    QAction open(QStringLiteral("Open"), nullptr);
    open.setObjectName(QStringLiteral("open"));
    QAction save(QStringLiteral("Save"), nullptr);
    save.setObjectName(QStringLiteral("save"));
    QToolBar *const file = window.addToolBar(QStringLiteral("File"));
    file->setObjectName(QStringLiteral("file"));
    file->addAction(&open);

    RyToolBarManager manager;
    manager.setMainWindow(&window);
    manager.addDefaultToolBar(file, QStringLiteral("File"));
    manager.addAction(&save, QStringLiteral("File"));

    QToolBar *const mine = manager.createToolBar(QStringLiteral("Mine"));
    manager.setToolBar(mine, {&save, nullptr, &open});
    manager.setToolBar(file, {&save});
    const QByteArray state = manager.saveState(7);
    manager.deleteToolBar(mine);
    manager.resetAllToolBars();
    CHECK(file->actions() == QList<QAction *>{&open});

    CHECK(!manager.restoreState(state, 8));
    CHECK(manager.restoreState(state, 7));
    QToolBar *const restored = manager.toolBarByName(QStringLiteral("_Custom_Toolbar_1"));
    CHECK(restored);
    CHECK(manager.actions(restored) == (QList<QAction *>{&save, nullptr, &open}));
    CHECK(file->actions() == QList<QAction *>{&save});

    RyCustomizedDialog dialog({&manager, nullptr}, &window);
    dialog.show();
    dialog.okButton()->click();
    CHECK(dialog.result() == QDialog::Accepted);
    CHECK(manager.saveState(7) == state);

    const QImage icon(QStringLiteral(":/RyCustomizedDialog/images/plus.png"));
    CHECK(icon.size() == QSize(22, 22));

    checkTranslations(argc > 1);
    return failures;
}
