// SPDX-License-Identifier: MIT

#include "memory.h"

#include "dialogscene.h"
#include "kitdialog.h"

#include <malloc.h>

namespace {

double usedBytes()
{
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

template <typename Operation> double bytesOf(Operation operation)
{
    settle();
    const double before = usedBytes();
    operation();
    settle();
    return usedBytes() - before;
}

// The action itself exists anyway.
MemoryFigure registeredAction()
{
    const int count = 10000;
    Scene scene({count, 0, 0, 0});
    const auto categories = scene.categories();
    RyToolBarManager manager;
    const double bytes = bytesOf([&] {
        for (const Scene::Category &category : categories) {
            for (QAction *action : category.actions)
                manager.addAction(action, category.name);
        }
    });
    return {QStringLiteral("Bytes per registered action"), bytes / count, 0, 200};
}

// Only the content; actions and empty toolbars are created and registered before.
MemoryFigure entry()
{
    const Size size{5000, 100, 50, 0};
    const int count = size.toolBars * size.entries;
    Scene bareScene(size);
    const double bare = bytesOf([&] { bareScene.fillToolBars(); });

    Scene scene(size);
    RyToolBarManager manager;
    for (QAction *action : scene.actions())
        manager.addAction(action, QStringLiteral("Commands"));
    for (QToolBar *toolBar : scene.toolBars())
        manager.addDefaultToolBar(toolBar, QStringLiteral("Commands"));
    const double ours = bytesOf([&] {
        for (int i = 0; i < size.toolBars; ++i)
            manager.setToolBar(scene.toolBars().at(i), scene.content(i, 0));
    });
    return {QStringLiteral("Bytes per entry of a managed toolbar"), ours / count, bare / count, 0};
}

MemoryFigure dialog()
{
    DialogScene scene({5000, 10, 20, 0});
    const auto bytesOfDialog = [&](std::unique_ptr<QDialog> (DialogScene::*create)()) {
        double bytes = 0;
        // Memory that Qt keeps from the first time on is not counted.
        for (int i = 0; i < 2; ++i) {
            std::unique_ptr<QDialog> shown;
            bytes = bytesOf([&] {
                shown = (scene.*create)();
                shown->show();
            });
        }
        return bytes;
    };
    return {QStringLiteral("Bytes of an open dialog of 5,000 actions"),
            bytesOfDialog(&DialogScene::createOurs), bytesOfDialog(&DialogScene::createBare), 0};
}

// What the kit's additions need.
MemoryFigure kitDialog()
{
    const Size size{5000, 10, 20, 0};
    const auto bytesOfDialog = [&](bool dressed) {
        KitDialogScene scene(size, dressed);
        double bytes = 0;
        // Memory that Qt keeps from the first time on is not counted.
        for (int i = 0; i < 2; ++i) {
            bytes = bytesOf([&] { scene.open(); });
            scene.close();
        }
        return bytes;
    };
    return {QStringLiteral("Kit: bytes per action more in the open dialog, 5,000 actions"),
            (bytesOfDialog(true) - bytesOfDialog(false)) / size.actions, 0, 200};
}

} // namespace

QList<MemoryFigure> measureMemory()
{
    return {registeredAction(), entry(), dialog(), kitDialog()};
}
