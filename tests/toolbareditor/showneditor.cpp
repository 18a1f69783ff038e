// SPDX-License-Identifier: MIT

#include "showneditor.h"

#include "texts.h"
#include "toolbaritem.h"

#include <QtTest>

namespace {

QString described(const QString &title, const QStringList &content)
{
    return content.isEmpty() ? title + ":" : title + ": " + content.join(' ');
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

template <typename Key, typename Value>
bool areInverse(const QMap<Key, Value> &there, const QMap<Value, Key> &back)
{
    if (there.size() != back.size())
        return false;
    for (auto it = there.cbegin(); it != there.cend(); ++it) {
        if (!back.contains(it.value()) || back.value(it.value()) != it.key())
            return false;
    }
    return true;
}

bool repeatsAnAction(const QList<QAction *> &content)
{
    QSet<QAction *> seen;
    for (QAction *action : content) {
        if (action && seen.contains(action))
            return true;
        seen.insert(action);
    }
    return false;
}

QString wrongRecords(const EditorFields &fields)
{
    const auto records = fields.workingActions.keys();
    for (ToolBarItem *record : fields.createdRecords) {
        if (record->toolBar() || !fields.workingActions.contains(record))
            return "created record with a toolbar or without content";
    }
    for (ToolBarItem *record : fields.removedRecords) {
        if (!record->toolBar() || fields.workingActions.contains(record))
            return "removed record without a toolbar or with content";
    }
    QSet<ToolBarItem *> reachable = fields.removedRecords;
    for (ToolBarItem *record : records) {
        reachable.insert(record);
        if (repeatsAnAction(fields.workingActions.value(record)))
            return "repeated action in " + record->toolBarName();
    }
    if (reachable != fields.ownedRecords)
        return "owned records that nothing reaches, or the other way round";
    return QString();
}

QString wrongToolBarRows(const EditorFields &fields, const QListWidget *list)
{
    if (fields.listItemOfRecord.keys() != fields.workingActions.keys())
        return "records with a row are not those with content";
    if (!areInverse(fields.listItemOfRecord, fields.recordOfListItem))
        return "rows of records and records of rows";
    if (fields.recordOfListItem.size() != list->count())
        return "number of toolbar rows";
    for (int row = 0; row < list->count(); ++row) {
        if (!fields.recordOfListItem.contains(list->item(row)))
            return "toolbar row without a record";
    }
    if (fields.currentRecord != fields.recordOfListItem.value(list->currentItem()))
        return "current record is not that of the current row";
    return QString();
}

QString wrongEntries(const EditorFields &fields, const QListWidget *list)
{
    QList<QAction *> shown;
    QMap<QAction *, QListWidgetItem *> entries;
    for (int row = 0; row < list->count(); ++row) {
        QListWidgetItem *const entry = list->item(row);
        if (!fields.actionOfEntry.contains(entry))
            return "entry without a record of its action";
        QAction *const action = fields.actionOfEntry.value(entry);
        shown.append(action);
        if (action)
            entries.insert(action, entry);
    }
    if (fields.actionOfEntry.size() != list->count())
        return "number of entries";
    if (fields.entryOfAction != entries)
        return "entries of actions";
    const auto content = fields.workingActions.value(fields.currentRecord);
    if (shown != content)
        return QString("shown: %1; content: %2")
            .arg(contentOf(shown).join(' '), contentOf(content).join(' '));
    return QString();
}

QString wrongActionTree(const EditorFields &fields, const QTreeWidget *tree)
{
    if (!areInverse(fields.treeItemOfAction, fields.actionOfTreeItem))
        return "items of actions and actions of items";
    QTreeWidgetItem *const current = tree->currentItem();
    if (fields.currentActionItem != (fields.actionOfTreeItem.contains(current) ? current : nullptr))
        return "current action item";
    return QString();
}

} // namespace

EditorHost::EditorHost()
{
    defaultToolBar("file", {"open", "|", "save"}, "Files");
    for (const char *name : {"copy", "cut", "paste", "undo", "zoom"})
        registered(name, "Edits");
    customToolBar(*this, "Mine", {"cut", "copy", "paste"});
    customToolBar(*this, "Tools", {"|", "cut"});
}

ShownEditor::ShownEditor(RyAbstatcManager *ofHost)
    : manager(static_cast<RyToolBarManager *>(ofHost))
    , widget(nullptr, ofHost, Qt::WindowFlags())
    , views(&widget)
{
    widget.show();
}

void ShownEditor::call(const char *slot, QGenericArgument argument)
{
    QVERIFY2(QMetaObject::invokeMethod(&widget, slot, Qt::DirectConnection, argument), slot);
}

QLineEdit *ShownEditor::nameEditor() const
{
    return qobject_cast<QLineEdit *>(views.renameEditor());
}

void ShownEditor::selectToolBar(const QString &title)
{
    QListWidgetItem *const row = itemNamed(views.toolBarList, title);
    QVERIFY2(row, qPrintable(title));
    views.toolBarList->setCurrentItem(row);
}

void ShownEditor::selectAction(const QString &text)
{
    QTreeWidgetItem *const item = itemNamed(views.actionTree, text);
    QVERIFY2(item, qPrintable(text));
    views.actionTree->setCurrentItem(item);
}

void ShownEditor::selectEntry(int row)
{
    QVERIFY(row < views.currentToolBarList->count());
    views.currentToolBarList->setCurrentRow(row);
}

QStringList ShownEditor::workingCopy() const
{
    QStringList texts;
    const EditorFields fields = EditorFields::of(widget);
    for (auto it = fields.workingActions.cbegin(); it != fields.workingActions.cend(); ++it)
        texts << described(it.key()->toolBarName(), contentOf(it.value()));
    return sorted(texts);
}

QString ShownEditor::inconsistency() const
{
    const EditorFields fields = EditorFields::of(widget);
    const QStringList wrong = {
        wrongRecords(fields),
        wrongToolBarRows(fields, views.toolBarList),
        wrongEntries(fields, views.currentToolBarList),
        wrongActionTree(fields, views.actionTree),
    };
    for (const QString &text : wrong) {
        if (!text.isEmpty())
            return text;
    }
    return QString();
}

QStringList toolBarsOf(const RyToolBarManager &manager)
{
    QStringList texts;
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        const QStringList managed = contentOf(manager.actions(toolBar));
        const QStringList standing = standingOn(toolBar);
        texts << described(toolBar->windowTitle(), standing);
        if (managed != standing)
            texts.last() += ", but for the manager " + managed.join(' ');
    }
    return sorted(texts);
}

QToolBar *toolBarTitled(const RyToolBarManager &manager, const QString &title)
{
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (toolBar->windowTitle() == title)
            return toolBar;
    }
    return nullptr;
}

QToolBar *customToolBar(Host &host, const QString &title, const QStringList &content)
{
    QToolBar *const toolBar = host.manager.createToolBar(title);
    host.manager.setToolBar(toolBar, host.list(content));
    return toolBar;
}
