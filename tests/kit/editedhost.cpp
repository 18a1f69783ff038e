// SPDX-License-Identifier: MIT

#include "editedhost.h"

#include "texts.h"

#include <QPushButton>
#include <QtTest>

EditedHost::EditedHost(bool isShown)
    : dialog({&manager, nullptr}, &window)
    , editor(&dialog)
    , parts(&dialog)
{
    action("undo")->setText("Back");
    const auto contents = firstContents();
    for (auto it = contents.cbegin(); it != contents.cend(); ++it) {
        if (it.key() == "Mine")
            manager.createToolBar("Mine");
        else
            defaultToolBar(it.key().toLower(), it.value(), it.key());
    }
    registered("find", "Edit");
    registered("about", "Help");
    if (isShown)
        show();
}

void EditedHost::show()
{
    dialog.show();
    makeCurrent("Edit");
    editor.actionTree->expandAll();
}

QMap<QString, QStringList> EditedHost::firstContents()
{
    return {{"Edit", words("cut copy | paste undo |")},
            {"File", words("open save")},
            {"Go", words("back home")},
            {"Mine", QStringList()}};
}

QListWidgetItem *EditedHost::toolBarRow(const QString &title) const
{
    return itemNamed(editor.toolBarList, title);
}

void EditedHost::makeCurrent(const QString &toolBar) const
{
    editor.toolBarList->setCurrentItem(toolBarRow(toolBar));
}

QList<QListWidgetItem *> EditedHost::entries(const QList<int> &rows) const
{
    QList<QListWidgetItem *> entries;
    for (const int row : rows)
        entries << editor.currentToolBarList->item(row);
    return entries;
}

QList<QTreeWidgetItem *> EditedHost::items(const QStringList &texts) const
{
    QList<QTreeWidgetItem *> items;
    for (const QString &text : texts)
        items << itemNamed(editor.actionTree, text == "|" ? "< S E P A R A T O R >" : text);
    return items;
}

QMap<QString, QStringList> EditedHost::applied() const
{
    dialog.applyButton()->click();
    QMap<QString, QStringList> contents;
    const auto toolBars = manager.toolBarsActions();
    for (auto it = toolBars.cbegin(); it != toolBars.cend(); ++it)
        contents.insert(it.key()->windowTitle(), contentOf(it.value()));
    return contents;
}

QString EditedHost::applied(const QString &toolBar) const
{
    return applied().value(toolBar).join(" ");
}
