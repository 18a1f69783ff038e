// SPDX-License-Identifier: MIT

#include "kitdialog.h"

#include <QListWidget>
#include <QTreeWidget>

KitDialogScene::KitDialogScene(const Size &size, bool dressed)
    : KitScene(size)
{
    const RyToolBarKit::Features additions = RyToolBarKit::SearchActions | RyToolBarKit::DragActions
        | RyToolBarKit::ReadableLists | RyToolBarKit::ProtectEdits | RyToolBarKit::DialogKeys
        | RyToolBarKit::UserGuide;
    if (!dressed)
        kit()->setFeatures(kit()->features() & ~additions);
}

void KitDialogScene::open()
{
    kit()->customizeAction()->trigger();
    settle();
}

void KitDialogScene::close()
{
    dialog()->reject();
    settle();
}

RyCustomizedDialog *KitDialogScene::dialog()
{
    return window()->findChild<RyCustomizedDialog *>();
}

QStringList describeRows(RyCustomizedDialog *dialog)
{
    const QWidget *const page = dialog->findChild<QWidget *>(QStringLiteral("CToolBarPage"));
    int actions = 0;
    const auto *const tree = page->findChild<QTreeWidget *>(QStringLiteral("actionTree"));
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        actions += tree->topLevelItem(i)->childCount();
    QStringList rows{QString::number(actions)};
    for (const char *name : {"toolBarList", "currentToolBarList"}) {
        const auto *const list = page->findChild<QListWidget *>(QLatin1String(name));
        rows.append(QString::number(list->count()));
    }
    return rows;
}
