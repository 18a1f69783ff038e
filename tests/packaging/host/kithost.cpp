// SPDX-License-Identifier: MIT

#include "check.h"

// A host of the kit, and a user who customizes a toolbar of it.
#include <RyCustomizedDialog>
#include <RyToolBarKit>
#include <RyToolBarKit/rytoolbarkit.h>
#include <RyToolBarManager>
#include <rytoolbarkit.h>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolBar>
#include <QTranslator>

namespace {

class Window : public QMainWindow
{
public:
    explicit Window(QSettings *settings)
        : open(new QAction(QStringLiteral("Open"), this))
        , save(new QAction(QStringLiteral("Save"), this))
        , toolBar(addToolBar(QStringLiteral("File")))
        , kit(new RyToolBarKit(this, false))
    {
        open->setObjectName(QStringLiteral("open"));
        save->setObjectName(QStringLiteral("save"));
        menuBar()->addMenu(QStringLiteral("File"))->addActions({open, save});
        toolBar->setObjectName(QStringLiteral("file"));
        toolBar->addAction(open);
        kit->setSettings(settings, QStringLiteral("toolBars"));
    }

    QAction *const open;
    QAction *const save;
    QToolBar *const toolBar;
    RyToolBarKit *const kit;
};

void customize(Window *window)
{
    window->kit->manager()->setToolBar(window->toolBar, {window->save});
    RyCustomizedDialog *shown = nullptr;
    QObject::connect(window->kit, &RyToolBarKit::aboutToCustomize,
                     [&shown](RyCustomizedDialog *dialog) { shown = dialog; });
    window->kit->customizeAction()->trigger();
    CHECK(shown);
    if (shown)
        shown->okButton()->click();
}

// A kit that was built without translations names no folder.
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
    Window window(nullptr);
    CHECK(window.kit->customizeAction()->text().startsWith(QStringLiteral("Werkzeugleisten")));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);

    const QTemporaryDir folder;
    QSettings settings(folder.path() + QStringLiteral("/host.ini"), QSettings::IniFormat);
    {
        Window window(&settings);
        window.show();
        CHECK(window.kit->isDefault());
        customize(&window);
    }
    CHECK(settings.contains(QStringLiteral("toolBars")));
    Window window(&settings);
    window.show();
    CHECK(window.toolBar->actions() == QList<QAction *>{window.save});

    checkTranslations(argc > 1);
    return failures;
}
