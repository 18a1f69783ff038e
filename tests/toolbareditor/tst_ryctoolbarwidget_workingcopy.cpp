// SPDX-License-Identifier: MIT

#include "host.h"
#include "recordingtranslator.h"
#include "ryctoolbarwidget.h"
#include "showneditor.h"
#include "testcase.h"
#include "texts.h"
#include "toolbaritem.h"
#include "translations.h"

#include <QtTest>

#include <algorithm>

namespace {

const int EntryAlignment = 0x881;

const QString Separator = "< S E P A R A T O R >";

const QStringList AllButtons = {
    "newButton",  "removeButton", "renameButton", "upButton",
    "leftButton", "rightButton",  "downButton",
};

QIcon coloredIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

// As the window system sends it, not as show() and hide() do.
template <typename Event> void sendSpontaneous(QWidget *widget)
{
    Event event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

void setAllEnabled(const EditorViews &views, bool enabled)
{
    for (const QString &name : AllButtons)
        views.page->findChild<QToolButton *>(name)->setEnabled(enabled);
}

bool isEmpty(const EditorFields &fields)
{
    return fields.workingActions.isEmpty() && fields.recordOfToolBar.isEmpty()
        && fields.createdRecords.isEmpty() && fields.removedRecords.isEmpty()
        && fields.ownedRecords.isEmpty() && !fields.currentActionItem
        && fields.treeItemOfAction.isEmpty() && fields.actionOfTreeItem.isEmpty()
        && !fields.currentRecord && fields.listItemOfRecord.isEmpty()
        && fields.recordOfListItem.isEmpty() && fields.entryOfAction.isEmpty()
        && fields.actionOfEntry.isEmpty();
}

bool isEmpty(const EditorViews &views)
{
    return views.actionTree->topLevelItemCount() == 0 && views.toolBarList->count() == 0
        && views.currentToolBarList->count() == 0;
}

// A default toolbar and three custom ones.
class VariedHost : public Host
{
public:
    VariedHost()
    {
        defaultToolBar("file", {"open", "|", "save"}, "Files");
        for (const char *name : {"copy", "cut", "paste"})
            registered(name, "Edits");
        customToolBar(*this, "Empty", {});
        customToolBar(*this, "Mine", {"cut", "copy", "paste"});
        customToolBar(*this, "Single", {"|"});
    }
};

using Editor = HostedEditor<VariedHost>;

} // namespace

class tst_RyCToolBarWidget_WorkingCopy : public TestCase
{
    Q_OBJECT

private Q_SLOTS:

    void theConstructorTakesParentAndFlags();
    void theConstructorFillsNothing();

    void theFillShowsEveryCategoryAndAction();
    void theFillAddsEachCategoryOnItsOwnAndSortsOnce();
    void theSeparatorEntryIsSortedAmongTheCategories();
    void aCategoryNamedAsTheSeparatorEntryComesAfterIt();
    void theTranslatedSeparatorEntryIsSortedByItsTranslation();
    void theSeparatorIsTranslatedWhenTheEditorIsMade();
    void theSeparatorIsTranslatedAfterTheForm();
    void theSeparatorEntryAndCategoriesArePlain();
    void anActionItemLooksLikeItsAction();
    void actionsWithTheSameTextKeepTheirOrder();
    void aCategoryWithoutActionsIsChildless();

    void theFillShowsEveryToolBarSortedByTitle();
    void theFillSortsTheToolBarsItself();
    void theWorkingCopyEqualsTheManager();
    void theFirstToolBarInPointerOrderIsCurrent();
    void aDefaultToolBarIsDarkGreenAndNotEditable();
    void aCustomToolBarIsEditableAndNotColored();
    void theFillChangesEveryRowOnce();
    void theFillKnowsARowBeforeItsContentAndBothBeforeItIsCurrent();
    void theListIsSortedAfterEachChangeOfTheFill();
    void rowsOfTheSameTextStayInOrder();
    void aRowChangedWithoutACurrentToolBarIsSortedInLater();
    void aRowThatTheHostAddedIsSortedInLater();
    void aManagerWithoutAnythingGivesTheSeparatorEntryOnly();
    void withoutAManagerTheEditorStaysEmpty();

    void selectingAToolBarShowsItsContent();
    void selectingAToolBarSetsTheButtons();
    void anEntryLooksLikeItsAction();
    void aSeparatorRowIsPlain();
    void aForeignToolBarRowIsNoToolBar();
    void aForeignTreeItemIsNoAction();

    void theButtonsFollowTheSelection_data();
    void theButtonsFollowTheSelection();
    void theRuleSetsEveryButton_data();
    void theRuleSetsEveryButton();

    void hidingEmptiesTheEditor();
    void clearingDisablesSixButtonsAndLeavesRename_data();
    void clearingDisablesSixButtonsAndLeavesRename();
    void hidingLeavesRenameAsItIsWithoutACurrentToolBar();
    void showingAgainReadsTheManagerAgain();
    void hidingDiscardsTheEdits();
    void spontaneousEventsKeepTheEdits();

    void onlyOwnRecordsAreMadeAndFreed();
    void theRecordsAreFreed_data();
    void theRecordsAreFreed();
};

void tst_RyCToolBarWidget_WorkingCopy::theConstructorTakesParentAndFlags()
{
    QWidget parent;
    RyCToolBarWidget *const child = new RyCToolBarWidget(&parent, nullptr, Qt::WindowFlags());
    QCOMPARE(child->parentWidget(), &parent);
    QVERIFY(!child->isWindow());
    RyCToolBarWidget *const tool = new RyCToolBarWidget(&parent, nullptr, Qt::Tool);
    QCOMPARE(tool->windowType(), Qt::Tool);
    QCOMPARE(tool->parentWidget(), &parent);
}

void tst_RyCToolBarWidget_WorkingCopy::theConstructorFillsNothing()
{
    VariedHost host;
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    QVERIFY(isEmpty(views));
    QVERIFY(isEmpty(EditorFields::of(widget)));
    // As the form made them.
    QCOMPARE(views.enabledButtons(), AllButtons);
}

void tst_RyCToolBarWidget_WorkingCopy::theFillShowsEveryCategoryAndAction()
{
    VariedHost host;
    // Registered, but on no toolbar and not in the order of their texts.
    host.registered("zoom", "View");
    host.registered("browse", "Files");
    // On a window's toolbar, but not registered.
    host.toolBar("foreign", {"unknown"});
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree),
             QStringList({Separator, "Edits", "  Copy", "  Cut", "  Paste", "Files", "  Browse",
                          "  Open", "  Save", "View", "  Zoom"}));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theFillAddsEachCategoryOnItsOwnAndSortsOnce()
{
    Host host;
    for (const char *name : {"two", "one"})
        host.registered(name, "Digits");
    host.registered("alpha", "Names");
    host.manager.addCategory("! None");
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const QTreeWidget *const tree = EditorViews(&widget).actionTree;
    QStringList changes;
    connect(tree->model(), &QAbstractItemModel::rowsInserted, this,
            [&](const QModelIndex &parent, int first, int last) {
                QStringList texts(parent.data().toString() + ":");
                for (int row = first; row <= last; ++row)
                    texts << tree->model()->index(row, 0, parent).data().toString();
                changes << texts.join(' ');
            });
    connect(tree->model(), &QAbstractItemModel::layoutChanged, this, [&] { changes << "sorted"; });
    widget.show();
    QCOMPARE(changes,
             QStringList({": " + Separator, ": ! None", ": Digits", "Digits: Two One", ": Names",
                          "Names: Alpha", "sorted"}));
}

void tst_RyCToolBarWidget_WorkingCopy::theSeparatorEntryIsSortedAmongTheCategories()
{
    Host host;
    host.registered("open", "Files");
    host.registered("quit", "! Important");
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree),
             QStringList({"! Important", "  Quit", Separator, "Files", "  Open"}));
    QCOMPARE(currentOf(editor.views.actionTree), Separator);
}

void tst_RyCToolBarWidget_WorkingCopy::aCategoryNamedAsTheSeparatorEntryComesAfterIt()
{
    Host host;
    host.registered("open", Separator);
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree), QStringList({Separator, Separator, "  Open"}));
    QCOMPARE(editor.views.actionTree->currentItem(), editor.views.actionTree->topLevelItem(0));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theTranslatedSeparatorEntryIsSortedByItsTranslation()
{
    const Translations german("RyCToolBarWidget", {{Separator, "Trenner"}});
    VariedHost host;
    host.registered("zoom", "View");
    ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree),
             QStringList({"Edits", "  Copy", "  Cut", "  Paste", "Files", "  Open", "  Save",
                          "Trenner", "View", "  Zoom"}));
    QCOMPARE(currentOf(editor.views.actionTree), "Trenner");
    editor.selectToolBar("File");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList({"Open", "Trenner", "Save"}));
}

// Not when it is shown: a language that is installed in between has no effect.
void tst_RyCToolBarWidget_WorkingCopy::theSeparatorIsTranslatedWhenTheEditorIsMade()
{
    Host host;
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const Translations german("RyCToolBarWidget", {{Separator, "Trenner"}});
    widget.show();
    QCOMPARE(itemsOf(EditorViews(&widget).actionTree), QStringList{Separator});
}

void tst_RyCToolBarWidget_WorkingCopy::theSeparatorIsTranslatedAfterTheForm()
{
    RecordingTranslator translator;
    const RyCToolBarWidget widget(nullptr, nullptr, Qt::WindowFlags());
    const QStringList lookUps = translator.takeLookUps();
    QCOMPARE(lookUps.filter("CToolBarPage: ").size(), lookUps.size() - 1);
    QCOMPARE(lookUps.constLast(), "RyCToolBarWidget: " + Separator);
}

void tst_RyCToolBarWidget_WorkingCopy::theSeparatorEntryAndCategoriesArePlain()
{
    const Editor editor;
    const auto actions = EditorFields::of(editor.widget).actionOfTreeItem;
    for (const char *text : {"< S E P A R A T O R >", "Edits"}) {
        QTreeWidgetItem *const item = itemNamed(editor.views.actionTree, text);
        QVERIFY(item && !item->parent());
        QCOMPARE(item->flags(), QTreeWidgetItem().flags());
        QVERIFY(item->icon(0).isNull());
        QVERIFY(!item->data(0, Qt::TextAlignmentRole).isValid());
        QCOMPARE(actions.contains(item), item->text(0) == Separator);
    }
}

void tst_RyCToolBarWidget_WorkingCopy::anActionItemLooksLikeItsAction()
{
    Host host;
    QAction *const action = host.registered("open", "Files");
    action->setText("&Open...");
    action->setIcon(coloredIcon(Qt::red));
    const ShownEditor editor(&host.manager);
    QTreeWidgetItem *const item = itemNamed(editor.views.actionTree, "&Open...");
    QVERIFY(item);
    QCOMPARE(item->parent(), itemNamed(editor.views.actionTree, "Files"));
    QCOMPARE(item->icon(0).cacheKey(), action->icon().cacheKey());
    QCOMPARE(item->textAlignment(0), EntryAlignment);
    QCOMPARE(item->flags(), QTreeWidgetItem().flags() | Qt::ItemIsDragEnabled);
    QCOMPARE(EditorFields::of(editor.widget).actionOfTreeItem.value(item), action);
}

void tst_RyCToolBarWidget_WorkingCopy::actionsWithTheSameTextKeepTheirOrder()
{
    Host host;
    for (const char *name : {"delta", "alpha", "charlie", "bravo"})
        host.registered(name, "Names")->setText("Same");
    const ShownEditor editor(&host.manager);
    const EditorFields fields = EditorFields::of(editor.widget);
    QTreeWidgetItem *const names = itemNamed(editor.views.actionTree, "Names");
    QVERIFY(names);
    QList<QAction *> shown;
    for (int i = 0; i < names->childCount(); ++i)
        shown << fields.actionOfTreeItem.value(names->child(i));
    QCOMPARE(shown, host.manager.categoryActions("Names"));
    QCOMPARE(shown.size(), 4);
}

void tst_RyCToolBarWidget_WorkingCopy::aCategoryWithoutActionsIsChildless()
{
    Host host;
    host.manager.addCategory("Nothing");
    host.manager.addCategory(QString());
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree), QStringList({QString(), Separator, "Nothing"}));
}

void tst_RyCToolBarWidget_WorkingCopy::theFillShowsEveryToolBarSortedByTitle()
{
    VariedHost host;
    host.defaultToolBar("zoom", {}, "View");
    host.defaultToolBar("about", {}, "Help");
    host.toolBar("foreign");
    const ShownEditor editor(&host.manager);
    QCOMPARE(rowsOf(editor.views.toolBarList),
             QStringList({"About", "Empty", "File", "Mine", "Single", "Zoom"}));
}

// Not only because its own changes look like renames, which sort as well.
void tst_RyCToolBarWidget_WorkingCopy::theFillSortsTheToolBarsItself()
{
    Host host;
    for (const char *title : {"Delta", "Alpha", "Charlie", "Bravo"})
        host.manager.createToolBar(title);
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    const QSignalBlocker silent(views.toolBarList);
    widget.show();
    QCOMPARE(rowsOf(views.toolBarList), QStringList({"Alpha", "Bravo", "Charlie", "Delta"}));
}

void tst_RyCToolBarWidget_WorkingCopy::theWorkingCopyEqualsTheManager()
{
    Editor editor;
    QCOMPARE(editor.workingCopy(),
             QStringList({"Empty:", "File: open | save", "Mine: cut copy paste", "Single: |"}));
    QCOMPARE(editor.workingCopy(), toolBarsOf(editor.host.manager));
    QCOMPARE(editor.inconsistency(), QString());
    const EditorFields fields = EditorFields::of(editor.widget);
    QCOMPARE(fields.recordOfToolBar.keys(), editor.host.manager.toolBars());
    for (auto it = fields.recordOfToolBar.cbegin(); it != fields.recordOfToolBar.cend(); ++it)
        QCOMPARE(it.value()->toolBar(), it.key());
    QVERIFY(fields.createdRecords.isEmpty());
    QVERIFY(fields.removedRecords.isEmpty());
}

void tst_RyCToolBarWidget_WorkingCopy::theFirstToolBarInPointerOrderIsCurrent()
{
    VariedHost host;
    QToolBar *const first = host.manager.toolBars().first();
    // Neither the first nor the last of the sorted list.
    first->setWindowTitle("First");
    const ShownEditor editor(&host.manager);
    QCOMPARE(currentOf(editor.views.toolBarList), "First");
    QCOMPARE(EditorFields::of(editor.widget).currentRecord->toolBar(), first);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::aDefaultToolBarIsDarkGreenAndNotEditable()
{
    const Editor editor;
    const QListWidgetItem *const row = itemNamed(editor.views.toolBarList, "File");
    QVERIFY(row);
    QCOMPARE(row->foreground().color(), QColor(Qt::darkGreen));
    QCOMPARE(row->flags(), QListWidgetItem().flags());
    QVERIFY(!row->flags().testFlag(Qt::ItemIsEditable));
    editor.views.doubleClick(editor.views.toolBarList, editor.views.toolBarList->row(row));
    QVERIFY(!editor.views.renameEditor());
}

void tst_RyCToolBarWidget_WorkingCopy::aCustomToolBarIsEditableAndNotColored()
{
    const Editor editor;
    const QListWidgetItem *const row = itemNamed(editor.views.toolBarList, "Mine");
    QVERIFY(row);
    QVERIFY(!row->data(Qt::ForegroundRole).isValid());
    QCOMPARE(row->flags(), QListWidgetItem().flags() | Qt::ItemIsEditable);
    editor.views.doubleClick(editor.views.toolBarList, editor.views.toolBarList->row(row));
    QVERIFY(editor.views.renameEditor());
}

// Each change reaches the renaming, which must find the names as they are.
void tst_RyCToolBarWidget_WorkingCopy::theFillChangesEveryRowOnce()
{
    VariedHost host;
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    QStringList changed;
    connect(views.toolBarList, &QListWidget::itemChanged, this,
            [&changed](const QListWidgetItem *row) { changed << row->text(); });
    widget.show();
    changed.sort();
    QCOMPARE(changed, rowsOf(views.toolBarList));
    widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({"Empty:", "File: open | save", "Mine: cut copy paste", "Single: |"}));
}

void tst_RyCToolBarWidget_WorkingCopy::theFillKnowsARowBeforeItsContentAndBothBeforeItIsCurrent()
{
    Host host;
    host.registered("cut", "Edits");
    customToolBar(host, "Mine", {"cut"});
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const QListWidget *const list = EditorViews(&widget).toolBarList;
    QStringList seen;
    const auto note = [&](const char *event) {
        const EditorFields fields = EditorFields::of(widget);
        const bool editable = list->item(0)->flags().testFlag(Qt::ItemIsEditable);
        seen << QString("%1: %2 recorded, %3 rows, %4 contents, %5")
                    .arg(event)
                    .arg(fields.recordOfToolBar.size())
                    .arg(fields.recordOfListItem.size())
                    .arg(fields.workingActions.size())
                    .arg(editable ? "editable" : "plain");
    };
    connect(list->model(), &QAbstractItemModel::rowsInserted, this, [&] { note("inserted"); });
    connect(list, &QListWidget::currentItemChanged, this, [&] { note("current"); });
    connect(list, &QListWidget::itemChanged, this, [&] { note("changed"); });
    widget.show();
    QCOMPARE(seen,
             QStringList({"inserted: 1 recorded, 0 rows, 0 contents, plain",
                          "current: 1 recorded, 1 rows, 1 contents, plain",
                          "changed: 1 recorded, 1 rows, 1 contents, editable"}));
}

void tst_RyCToolBarWidget_WorkingCopy::theListIsSortedAfterEachChangeOfTheFill()
{
    Host host;
    for (int i = 0; i < 40; ++i)
        host.manager.createToolBar(QString::number((i * 17) % 20));
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    int changes = 0;
    int sorted = 0;
    connect(views.toolBarList, &QListWidget::itemChanged, this, [&] {
        const QStringList rows = rowsOf(views.toolBarList);
        ++changes;
        sorted += rows.size() == changes && std::is_sorted(rows.cbegin(), rows.cend()) ? 1 : 0;
    });
    widget.show();
    QCOMPARE(changes, 40);
    QCOMPARE(sorted, 40);
    // The current row is that of the first toolbar, wherever it went.
    QCOMPARE(currentOf(views.toolBarList), host.manager.toolBars().first()->windowTitle());
}

void tst_RyCToolBarWidget_WorkingCopy::rowsOfTheSameTextStayInOrder()
{
    Host host;
    QStringList expected;
    for (int i = 0; i < 8; ++i)
        host.manager.createToolBar("Same");
    const auto toolBars = host.manager.toolBars();
    for (int i = 0; i < toolBars.size(); ++i) {
        expected << QString("Action%1").arg(i);
        QAction *const action = host.registered(QString("action%1").arg(i), expected.last());
        host.manager.setToolBar(toolBars.at(i), {action});
    }
    const ShownEditor editor(&host.manager);
    QStringList shown;
    for (int i = 0; i < toolBars.size(); ++i) {
        editor.views.toolBarList->setCurrentRow(i);
        shown << rowsOf(editor.views.currentToolBarList);
    }
    QCOMPARE(shown, expected);
}

// Such a change is not taken over, so that the rows are out of order until the next one.
void tst_RyCToolBarWidget_WorkingCopy::aRowChangedWithoutACurrentToolBarIsSortedInLater()
{
    Host host;
    for (const char *title : {"A", "B", "C"})
        host.manager.createToolBar(title);
    const ShownEditor editor(&host.manager);
    QListWidget *const list = editor.views.toolBarList;
    editor.views.click(editor.views.newButton);
    list->setCurrentItem(nullptr);
    list->item(0)->setText("Z");
    QCOMPARE(rowsOf(list), QStringList({"Z", "B", "C", "Custom Toolbar"}));
    list->setCurrentRow(1);
    list->item(3)->setText("Y");
    QCOMPARE(rowsOf(list), QStringList({"B", "C", "Y", "Z"}));
}

void tst_RyCToolBarWidget_WorkingCopy::aRowThatTheHostAddedIsSortedInLater()
{
    Host host;
    for (const char *title : {"A", "B", "C"})
        host.manager.createToolBar(title);
    const ShownEditor editor(&host.manager);
    QListWidget *const list = editor.views.toolBarList;
    list->addItem("A of the host");
    list->item(0)->setText("Z");
    QCOMPARE(rowsOf(list), QStringList({"A of the host", "B", "C", "Z"}));
}

void tst_RyCToolBarWidget_WorkingCopy::aManagerWithoutAnythingGivesTheSeparatorEntryOnly()
{
    Host host;
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree), QStringList{Separator});
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList());
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    QVERIFY(!editor.views.toolBarList->currentItem());
    QCOMPARE(editor.views.enabledButtons(),
             QStringList({"newButton", "removeButton", "renameButton"}));
    editor.views.click(editor.views.removeButton);
    editor.views.click(editor.views.renameButton);
    QVERIFY(!editor.views.renameEditor());
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::withoutAManagerTheEditorStaysEmpty()
{
    ShownEditor editor(nullptr);
    QVERIFY(isEmpty(editor.views));
    QVERIFY(isEmpty(EditorFields::of(editor.widget)));
    // The fill leaves even the buttons alone.
    QCOMPARE(editor.views.enabledButtons(), AllButtons);
    editor.call("setButtons");
    QCOMPARE(editor.views.enabledButtons(), QStringList());
    editor.widget.applyClicked();
    editor.widget.hide();
    editor.widget.show();
    QVERIFY(isEmpty(editor.views));
    QVERIFY(isEmpty(EditorFields::of(editor.widget)));
}

void tst_RyCToolBarWidget_WorkingCopy::selectingAToolBarShowsItsContent()
{
    const Editor editor;
    editor.views.click(editor.views.toolBarList, "Mine");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList({"Cut", "Copy", "Paste"}));
    QCOMPARE(editor.views.currentToolBarList->currentRow(), 0);
    QCOMPARE(editor.inconsistency(), QString());

    editor.views.click(editor.views.toolBarList, "File");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList({"Open", Separator, "Save"}));
    QCOMPARE(editor.views.currentToolBarList->currentRow(), 0);
    QCOMPARE(editor.inconsistency(), QString());
}

// Itself, not only because another entry becomes current: these toolbars have none.
void tst_RyCToolBarWidget_WorkingCopy::selectingAToolBarSetsTheButtons()
{
    Host host;
    host.defaultToolBar("file", {}, QString());
    customToolBar(host, "Mine", {});
    ShownEditor editor(&host.manager);
    const QStringList ofMine = {"newButton", "removeButton", "renameButton", "rightButton"};
    const QStringList ofFile = {"newButton", "rightButton"};
    for (int i = 0; i < 2; ++i) {
        editor.selectToolBar("Mine");
        QCOMPARE(editor.views.enabledButtons(), ofMine);
        editor.selectToolBar("File");
        QCOMPARE(editor.views.enabledButtons(), ofFile);
    }
}

void tst_RyCToolBarWidget_WorkingCopy::anEntryLooksLikeItsAction()
{
    Host host;
    QAction *const action = host.registered("open", "Files");
    action->setText("&Open...");
    action->setIcon(coloredIcon(Qt::blue));
    customToolBar(host, "Mine", {"open"});
    const ShownEditor editor(&host.manager);
    QListWidgetItem *const entry = editor.views.currentToolBarList->item(0);
    QVERIFY(entry);
    QCOMPARE(entry->text(), "&Open...");
    QCOMPARE(entry->icon().cacheKey(), action->icon().cacheKey());
    QCOMPARE(entry->textAlignment(), EntryAlignment);
    QCOMPARE(EditorFields::of(editor.widget).entryOfAction.value(action), entry);
}

void tst_RyCToolBarWidget_WorkingCopy::aSeparatorRowIsPlain()
{
    Host host;
    customToolBar(host, "Mine", {"|", "|"});
    const ShownEditor editor(&host.manager);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList({Separator, Separator}));
    QListWidgetItem *const entry = editor.views.currentToolBarList->item(1);
    QVERIFY(entry->icon().isNull());
    QVERIFY(!entry->data(Qt::TextAlignmentRole).isValid());
    const EditorFields fields = EditorFields::of(editor.widget);
    QVERIFY(fields.actionOfEntry.contains(entry));
    QVERIFY(fields.entryOfAction.isEmpty());
}

void tst_RyCToolBarWidget_WorkingCopy::aForeignToolBarRowIsNoToolBar()
{
    Editor editor("Mine");
    QListWidgetItem foreign;
    editor.call("currentToolBarChanged", Q_ARG(QListWidgetItem *, &foreign));
    QVERIFY(!EditorFields::of(editor.widget).currentRecord);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    QCOMPARE(editor.views.enabledButtons(),
             QStringList({"newButton", "removeButton", "renameButton"}));
}

void tst_RyCToolBarWidget_WorkingCopy::aForeignTreeItemIsNoAction()
{
    Editor editor;
    QVERIFY(editor.views.rightButton->isEnabled());
    QTreeWidgetItem foreign;
    editor.call("currentActionChanged", Q_ARG(QTreeWidgetItem *, &foreign));
    QVERIFY(!EditorFields::of(editor.widget).currentActionItem);
    QVERIFY(!editor.views.rightButton->isEnabled());
}

void tst_RyCToolBarWidget_WorkingCopy::theButtonsFollowTheSelection_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("treeItem");
    QTest::addColumn<QString>("enabled");
    const auto row = [](const char *name, const QString &toolBar, int entry, const QString &item,
                        const char *enabled) {
        QTest::newRow(name) << toolBar << entry << item << enabled;
    };
    row("custom, first entry, action", "Mine", 0, "Cut", "new remove rename left right down");
    row("custom, middle entry, action", "Mine", 1, "Cut", "new remove rename up left right down");
    row("custom, last entry, action", "Mine", 2, "Cut", "new remove rename up left right");
    row("custom, no entry, action", "Mine", -1, "Cut", "new remove rename right");
    row("custom, middle entry, separator", "Mine", 1, Separator,
        "new remove rename up left right down");
    row("custom, middle entry, category", "Mine", 1, "Edits", "new remove rename up left down");
    row("custom, middle entry, nothing", "Mine", 1, "", "new remove rename up left down");
    row("custom, only entry, action", "Single", 0, "Cut", "new remove rename left right");
    row("custom, empty, action", "Empty", -1, "Cut", "new remove rename right");
    row("custom, empty, category", "Empty", -1, "Edits", "new remove rename");
    row("default, first entry, action", "File", 0, "Cut", "new left right down");
    row("default, middle entry, separator", "File", 1, Separator, "new up left right down");
    row("default, last entry, category", "File", 2, "Edits", "new up left");
    row("default, no entry, nothing", "File", -1, "", "new");
    row("no toolbar, action", "", -1, "Cut", "new remove rename");
    row("no toolbar, separator", "", -1, Separator, "new remove rename");
    row("no toolbar, category", "", -1, "Edits", "new remove rename");
    row("no toolbar, nothing", "", -1, "", "new remove rename");
}

void tst_RyCToolBarWidget_WorkingCopy::theButtonsFollowTheSelection()
{
    QFETCH(QString, toolBar);
    QFETCH(int, entry);
    QFETCH(QString, treeItem);
    QFETCH(QString, enabled);
    Editor editor;
    if (toolBar.isEmpty())
        editor.views.toolBarList->setCurrentItem(nullptr);
    else
        editor.selectToolBar(toolBar);
    editor.selectEntry(entry);
    if (treeItem.isEmpty())
        editor.views.actionTree->setCurrentItem(nullptr);
    else
        editor.selectAction(treeItem);

    QStringList expected = enabled.split(' ');
    expected.replaceInStrings(QRegularExpression("$"), "Button");
    QCOMPARE(editor.views.enabledButtons(), expected);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theRuleSetsEveryButton_data()
{
    QTest::addColumn<bool>("enabledBefore");
    QTest::newRow("all disabled before") << false;
    QTest::newRow("all enabled before") << true;
}

void tst_RyCToolBarWidget_WorkingCopy::theRuleSetsEveryButton()
{
    QFETCH(bool, enabledBefore);
    Editor editor("Mine");
    editor.selectEntry(1);
    setAllEnabled(editor.views, enabledBefore);
    editor.call("setButtons");
    QCOMPARE(editor.views.enabledButtons(), AllButtons);

    editor.selectToolBar("File");
    editor.selectEntry(-1);
    editor.selectAction("Edits");
    setAllEnabled(editor.views, enabledBefore);
    editor.call("setButtons");
    QCOMPARE(editor.views.enabledButtons(), QStringList{"newButton"});
}

void tst_RyCToolBarWidget_WorkingCopy::hidingEmptiesTheEditor()
{
    Editor editor("Single");
    editor.call("removeClicked");
    editor.call("newClicked");
    editor.selectToolBar("Mine");
    // The emptied views must not be what empties the fields.
    const QSignalBlocker silentToolBars(editor.views.toolBarList);
    const QSignalBlocker silentActions(editor.views.actionTree);
    editor.widget.hide();
    QVERIFY(isEmpty(editor.views));
    QVERIFY(isEmpty(EditorFields::of(editor.widget)));
}

void tst_RyCToolBarWidget_WorkingCopy::clearingDisablesSixButtonsAndLeavesRename_data()
{
    QTest::addColumn<bool>("renameEnabled");
    QTest::newRow("enabled before") << true;
    QTest::newRow("disabled before") << false;
}

void tst_RyCToolBarWidget_WorkingCopy::clearingDisablesSixButtonsAndLeavesRename()
{
    QFETCH(bool, renameEnabled);
    VariedHost host;
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    setAllEnabled(views, true);
    views.renameButton->setEnabled(renameEnabled);
    // Nothing is current, so that the cleared views do not ask for the buttons' rule.
    QVERIFY(QMetaObject::invokeMethod(&widget, "clearOld", Qt::DirectConnection));
    const QStringList rename = {"renameButton"};
    QCOMPARE(views.enabledButtons(), renameEnabled ? rename : QStringList());
}

// The toolbar list is emptied first; without a current toolbar the rule enables Rename.
void tst_RyCToolBarWidget_WorkingCopy::hidingLeavesRenameAsItIsWithoutACurrentToolBar()
{
    Editor editor;
    for (const char *title : {"File", "Mine"}) {
        editor.selectToolBar(title);
        editor.widget.hide();
        QCOMPARE(editor.views.enabledButtons(), QStringList{"renameButton"});
        editor.widget.show();
    }
}

void tst_RyCToolBarWidget_WorkingCopy::showingAgainReadsTheManagerAgain()
{
    Editor editor;
    editor.host.registered("zoom", "View");
    editor.host.manager.addDefaultToolBar(editor.host.toolBar("view", {"zoom"}), "View");
    editor.host.manager.removeAction(editor.host.action("copy"));
    editor.host.window.findChild<QToolBar *>("file")->setWindowTitle("Documents");
    // Not before it is shown again.
    QVERIFY(!itemNamed(editor.views.actionTree, "Zoom"));
    QVERIFY(!itemNamed(editor.views.toolBarList, "View"));

    editor.widget.hide();
    editor.widget.show();
    QCOMPARE(itemsOf(editor.views.actionTree),
             QStringList({Separator, "Edits", "  Cut", "  Paste", "Files", "  Open", "  Save",
                          "View", "  Zoom"}));
    QCOMPARE(rowsOf(editor.views.toolBarList),
             QStringList({"Documents", "Empty", "Mine", "Single", "View"}));
    QCOMPARE(editor.workingCopy(),
             QStringList({"Documents: open | save", "Empty:", "Mine: cut paste", "Single: |",
                          "View: zoom"}));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::hidingDiscardsTheEdits()
{
    Editor editor("Single");
    const QStringList before = toolBarsOf(editor.host.manager);
    editor.call("removeClicked");
    itemNamed(editor.views.toolBarList, "Mine")->setText("Yours");
    editor.selectToolBar("File");
    editor.call("leftClicked");
    editor.call("newClicked");
    QCOMPARE(editor.workingCopy(),
             QStringList({"Custom Toolbar:", "Empty:", "File: | save", "Yours: cut copy paste"}));

    editor.widget.hide();
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), before);
    editor.widget.show();
    QCOMPARE(editor.workingCopy(), before);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), before);
}

void tst_RyCToolBarWidget_WorkingCopy::spontaneousEventsKeepTheEdits()
{
    Editor editor("File");
    editor.call("leftClicked");
    editor.selectAction("Cut");
    const QStringList edited = editor.workingCopy();
    const QStringList tree = itemsOf(editor.views.actionTree);

    sendSpontaneous<QHideEvent>(&editor.widget);
    QCOMPARE(editor.workingCopy(), edited);
    sendSpontaneous<QShowEvent>(&editor.widget);
    QCOMPARE(editor.workingCopy(), edited);
    QVERIFY(edited.contains("File: | save"));
    QCOMPARE(itemsOf(editor.views.actionTree), tree);
    QCOMPARE(currentOf(editor.views.actionTree), "Cut");
    QCOMPARE(currentOf(editor.views.toolBarList), "File");
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::onlyOwnRecordsAreMadeAndFreed()
{
    Editor editor;
    QCOMPARE(createRecord(editor.widget, nullptr), nullptr);
    ToolBarItem foreign("Foreign");
    deleteRecord(editor.widget, &foreign);
    deleteRecord(editor.widget, nullptr);
    QCOMPARE(foreign.toolBarName(), "Foreign");
    // Nor is its own one freed twice.
    ToolBarItem *const own = createRecord(editor.widget, editor.host.toolBar("other"));
    QVERIFY(EditorFields::of(editor.widget).ownedRecords.contains(own));
    deleteRecord(editor.widget, own);
    deleteRecord(editor.widget, own);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theRecordsAreFreed_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("hidden") << "hide";
    QTest::newRow("destroyed while shown") << "destroy";
    QTest::newRow("destroyed with its parent while shown") << "destroy parent";
    QTest::newRow("hidden, then destroyed") << "hide destroy";
    QTest::newRow("filled twice, then destroyed") << "hide show destroy";
    QTest::newRow("toolbar removed, then destroyed") << "remove destroy";
    QTest::newRow("toolbar removed and applied") << "remove apply";
    QTest::newRow("minimized, then destroyed") << "minimize destroy";
}

// A record shares its name with the toolbar's title, so that a leaked one keeps it shared.
void tst_RyCToolBarWidget_WorkingCopy::theRecordsAreFreed()
{
    QFETCH(QString, end);
    Host host;
    QString title = "Title of its own";
    QToolBar *const toolBar = host.manager.createToolBar(title);
    const QPointer<QToolBar> guard = toolBar;
    QWidget *const parent = new QWidget;
    RyCToolBarWidget *const widget = new RyCToolBarWidget(parent, &host.manager, Qt::WindowFlags());
    parent->show();
    QCOMPARE(EditorFields::of(*widget).ownedRecords.size(), 1);
    QVERIFY(!title.isDetached());

    const QStringList steps = end.split(' ');
    for (const QString &step : steps) {
        if (step == "hide")
            widget->hide();
        else if (step == "show")
            widget->show();
        else if (step == "minimize")
            sendSpontaneous<QHideEvent>(widget);
        else if (step == "remove")
            QVERIFY(QMetaObject::invokeMethod(widget, "removeClicked"));
        else if (step == "apply")
            widget->applyClicked();
        else if (step == "destroy" && !end.endsWith("parent"))
            delete widget;
    }
    if (end.endsWith("parent")) {
        delete parent;
    } else if (QListWidget *const list = parent->findChild<QListWidget *>("toolBarList")) {
        // A list of Qt 6 keeps the text that it measured last.
        list->addItem("Another");
        list->sizeHintForRow(list->count() - 1);
    }
    if (guard)
        guard->setWindowTitle("Another");
    QVERIFY(title.isDetached());
    if (!end.endsWith("parent"))
        delete parent;
}

QTEST_MAIN(tst_RyCToolBarWidget_WorkingCopy)

#include "tst_ryctoolbarwidget_workingcopy.moc"
