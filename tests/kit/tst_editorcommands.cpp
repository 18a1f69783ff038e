// SPDX-License-Identifier: MIT

#include "editedhost.h"
#include "editorcommands.h"
#include "testcase.h"
#include "texts.h"

#include <QPushButton>
#include <QRandomGenerator>
#include <QtTest>

#include <memory>

/*
 * Edits of several entries at once, compared with simple lists.
 */
class tst_EditorCommands : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anyRowsComeToAnyGap();
    void anyActionsComeToAnyGap();
    void randomEditsGiveWhatListsGive_data();
    void randomEditsGiveWhatListsGive();

    void whatIsPlacedIsSelected();
    void theNeighbourOfWhatIsRemovedIsSelected();
    void theActionTreeStaysAsItIs();
    void anEntryWithAnotherTextThanItsActionIsStepped();
    void anEntryThatNoActionFitsStaysOnItsToolBar();
    void anActionWithTheTextOfTheSeparatorIsMoved();
    void aCategoryIsLeftOut();
    void withoutAManagerNothingChanges();
    void aToolBarThatTheHostDeletesGetsNothing();
    void aToolBarThatIsAppliedLaterIsNoneThatHasGone();
    void aNameThatIsBeingEditedIsKept();
    void aLargeToolBarTakesFewClicks();
};

namespace {

const QString separatorText = "< S E P A R A T O R >";

// The list without some rows, and with others in the gap before one.
QStringList rearranged(const QStringList &list, const QSet<int> &without, int gap,
                       const QStringList &block)
{
    QStringList result;
    for (int row = 0; row <= list.size(); ++row) {
        if (row == gap)
            result += block;
        if (row < list.size() && !without.contains(row))
            result << list.at(row);
    }
    return result;
}

QStringList moved(const QStringList &list, const QList<int> &rows, int gap)
{
    QStringList block;
    for (const int row : rows)
        block << list.at(row);
    return rearranged(list, QSet<int>(rows.cbegin(), rows.cend()), gap, block);
}

// An action is on a toolbar only once.
QStringList inserted(const QStringList &list, const QStringList &names, int gap)
{
    QSet<int> without;
    for (int row = 0; row < list.size(); ++row) {
        if (list.at(row) != "|" && names.contains(list.at(row)))
            without << row;
    }
    return rearranged(list, without, gap, names);
}

// The members of a set of up to eight, in order.
QList<int> members(int set)
{
    QList<int> all;
    for (int i = 0; i < 8; ++i) {
        if (set & (1 << i))
            all << i;
    }
    return all;
}

QList<int> chosen(QRandomGenerator *random, int count)
{
    QList<int> rows;
    for (int row = 0; row < count; ++row) {
        if (random->bounded(3) == 0)
            rows << row;
    }
    return rows;
}

// The host, and the same contents as lists.
struct Compared
{
    Compared()
        : commands(host.parts)
        , contents(EditedHost::firstContents())
        , current("Edit")
    {
        const auto children =
            host.editor.actionTree->findItems("*", Qt::MatchWildcard | Qt::MatchRecursive);
        for (QTreeWidgetItem *item : children) {
            if (item->parent())
                nameOf.insert(item, nameOfText(item));
            else if (item->childCount() == 0)
                nameOf.insert(item, "|");
        }
    }

    static QString nameOfText(const QTreeWidgetItem *item)
    {
        if (item->text(0) == "Back")
            return item->parent()->text(0) == "Edit" ? "undo" : "back";
        return item->text(0).toLower();
    }

    QStringList names(const QList<QTreeWidgetItem *> &items) const
    {
        QStringList names;
        for (QTreeWidgetItem *item : items)
            names << nameOf.value(item);
        return names;
    }

    void step(QRandomGenerator *random);

    EditedHost host;
    EditorCommands commands;
    QMap<QString, QStringList> contents;
    QString current;
    QMap<QTreeWidgetItem *, QString> nameOf;
};

void Compared::step(QRandomGenerator *random)
{
    const QStringList titles = contents.keys();
    const QString other = titles.at(random->bounded(titles.size()));
    QStringList &list = contents[current];
    const QList<int> rows = chosen(random, list.size());
    const int gap = random->bounded(list.size() + 1);
    QList<QTreeWidgetItem *> items;
    const auto indexes = chosen(random, nameOf.size());
    for (const int index : indexes)
        items << nameOf.keys().at(index);
    switch (random->bounded(6)) {
    case 0:
        commands.insert(items, gap);
        list = inserted(list, names(items), gap);
        break;
    case 1:
        commands.move(host.entries(rows), gap);
        list = moved(list, rows, gap);
        break;
    case 2:
        commands.remove(host.entries(rows));
        list = rearranged(list, QSet<int>(rows.cbegin(), rows.cend()), -1, QStringList());
        break;
    case 3:
        commands.insertInto(host.toolBarRow(other), items);
        contents[other] = inserted(contents[other], names(items), contents[other].size());
        current = other;
        break;
    case 4:
        if (other != current && !rows.isEmpty()) {
            QStringList block;
            for (const int row : rows)
                block << list.at(row);
            const int place = random->bounded(contents[other].size() + 1);
            const bool atEnd = random->bounded(2) == 0;
            commands.moveTo(host.toolBarRow(other), host.entries(rows), atEnd ? -1 : place);
            list = rearranged(list, QSet<int>(rows.cbegin(), rows.cend()), -1, QStringList());
            contents[other] =
                inserted(contents[other], block, atEnd ? contents[other].size() : place);
            current = other;
        }
        break;
    default:
        host.makeCurrent(other);
        current = other;
        break;
    }
}

} // namespace

void tst_EditorCommands::anyRowsComeToAnyGap()
{
    const EditedHost host;
    EditorCommands commands(host.parts);
    const QStringList first = host.firstContents().value("Edit");
    for (int set = 0; set < (1 << first.size()); ++set) {
        for (int gap = 0; gap <= first.size(); ++gap) {
            const auto rows = members(set);
            commands.move(host.entries(rows), gap);
            QCOMPARE(host.applied("Edit"), moved(first, rows, gap).join(" "));
            host.dialog.RestoreDefaultButton()->click();
            host.makeCurrent("Edit");
        }
    }
}

void tst_EditorCommands::anyActionsComeToAnyGap()
{
    Compared compared;
    const EditedHost &host = compared.host;
    const QStringList first = host.firstContents().value("Edit");
    const QStringList names = words("| find copy undo home cut");
    for (int set = 0; set < (1 << names.size()); ++set) {
        for (int gap = 0; gap <= first.size(); ++gap) {
            QList<QTreeWidgetItem *> some;
            const auto indexes = members(set);
            for (const int index : indexes)
                some << compared.nameOf.key(names.at(index));
            compared.commands.insert(some, gap);
            QCOMPARE(host.applied("Edit"), inserted(first, compared.names(some), gap).join(" "));
            host.dialog.RestoreDefaultButton()->click();
            host.makeCurrent("Edit");
        }
    }
}

void tst_EditorCommands::randomEditsGiveWhatListsGive_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 10; ++seed)
        QTest::addRow("%d", seed) << seed;
}

void tst_EditorCommands::randomEditsGiveWhatListsGive()
{
    QFETCH(int, seed);
    QRandomGenerator random(static_cast<quint32>(seed));
    Compared compared;
    for (int i = 0; i < 500; ++i) {
        compared.step(&random);
        QCOMPARE(compared.host.applied(), compared.contents);
        QCOMPARE(compared.host.editor.currentRows().size(),
                 compared.contents.value(compared.current).size());
    }
}

void tst_EditorCommands::whatIsPlacedIsSelected()
{
    const EditedHost host;
    EditorCommands commands(host.parts);
    QListWidget *const list = host.editor.currentToolBarList;
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    const auto selected = [list] {
        QList<int> rows;
        for (int row = 0; row < list->count(); ++row) {
            if (list->item(row)->isSelected())
                rows << row;
        }
        return rows << list->currentRow();
    };
    commands.insert(host.items({"Home", "|", "Find"}), 1);
    QCOMPARE(selected(), QList<int>({1, 2, 3, 3}));
    commands.move(host.entries({0, 2}), 5);
    QCOMPARE(selected(), QList<int>({3, 4, 4}));
    commands.insertInto(host.toolBarRow("Mine"), host.items({"Home", "Find"}));
    QCOMPARE(currentOf(host.editor.toolBarList), QString("Mine"));
    QCOMPARE(selected(), QList<int>({0, 1, 1}));
    commands.moveTo(host.toolBarRow("File"), host.entries({1}), 1);
    QCOMPARE(currentOf(host.editor.toolBarList), QString("File"));
    QCOMPARE(host.editor.currentRows(), words("Open Find Save"));
    QCOMPARE(selected(), QList<int>({1, 1}));
}

void tst_EditorCommands::theNeighbourOfWhatIsRemovedIsSelected()
{
    const EditedHost host;
    EditorCommands commands(host.parts);
    commands.remove(host.entries({1, 3}));
    QCOMPARE(host.editor.currentRows(), words("Cut | Back |"));
    QCOMPARE(host.editor.currentToolBarList->currentRow(), 2);
    QVERIFY(host.editor.currentToolBarList->item(2)->isSelected());
    commands.remove(host.entries({0, 1, 2, 3}));
    QCOMPARE(host.editor.currentRows(), QStringList());
}

void tst_EditorCommands::theActionTreeStaysAsItIs()
{
    const EditedHost host;
    EditorCommands commands(host.parts);
    QTreeWidget *const tree = host.editor.actionTree;
    tree->collapseAll();
    tree->setCurrentItem(itemNamed(tree, "Go"));
    commands.insert(host.items({"Home"}), 0);
    commands.move(host.entries({0, 2}), 5);
    commands.moveTo(host.toolBarRow("File"), host.entries({1}), -1);
    commands.remove(host.entries({0}));
    QCOMPARE(currentOf(tree), QString("Go"));
    QCOMPARE(tree->selectedItems(), host.items({"Go"}));
    QVERIFY(!itemNamed(tree, "Edit")->isExpanded());
    QVERIFY(tree->hasAutoScroll());
    QVERIFY(host.editor.currentToolBarList->hasAutoScroll());
    QVERIFY(!host.editor.currentToolBarList->uniformItemSizes());
}

// The text of a row is that of the moment when it was made.
void tst_EditorCommands::anEntryWithAnotherTextThanItsActionIsStepped()
{
    EditedHost host;
    EditorCommands commands(host.parts);
    host.action("copy")->setText("Duplicate");
    host.action("paste")->setText("Find"); // that of another action
    host.makeCurrent("File");
    host.makeCurrent("Edit");
    QCOMPARE(host.editor.currentRows(), words("Cut Duplicate | Find Back |"));
    commands.move(host.entries({1, 3}), 0);
    QCOMPARE(host.applied("Edit"), QString("copy paste cut | undo |"));
    commands.move(host.entries({0, 1}), 5);
    QCOMPARE(host.applied("Edit"), QString("cut | undo copy paste |"));
}

void tst_EditorCommands::anEntryThatNoActionFitsStaysOnItsToolBar()
{
    EditedHost host;
    EditorCommands commands(host.parts);
    host.action("copy")->setText("Duplicate");
    host.action("paste")->setText("Cut");
    host.makeCurrent("File");
    host.makeCurrent("Edit");
    commands.moveTo(host.toolBarRow("File"), host.entries({0, 1, 3}), 1);
    QCOMPARE(host.applied("Edit"), QString("copy | paste undo |"));
    QCOMPARE(host.applied("File"), QString("open cut save"));
    QCOMPARE(host.applied("Go"), QString("back home"));
}

void tst_EditorCommands::anActionWithTheTextOfTheSeparatorIsMoved()
{
    EditedHost host(false);
    host.action("copy")->setText(separatorText);
    host.show();
    EditorCommands commands(host.parts);
    commands.moveTo(host.toolBarRow("File"), host.entries({1, 2}), 0);
    QCOMPARE(host.applied("Edit"), QString("cut paste undo |"));
    QCOMPARE(host.applied("File"), QString("copy | open save"));
}

void tst_EditorCommands::aCategoryIsLeftOut()
{
    const EditedHost host;
    EditorCommands commands(host.parts);
    commands.insert(host.items({"Home", "Go", "Find"}), 0);
    QCOMPARE(host.applied("Edit"), QString("home find cut copy | paste undo |"));
}

void tst_EditorCommands::withoutAManagerNothingChanges()
{
    Host host;
    std::unique_ptr<RyToolBarManager> manager(new RyToolBarManager);
    manager->setMainWindow(&host.window);
    manager->addDefaultToolBar(host.toolBar("file", words("open save |")), "File");
    manager->addDefaultToolBar(host.toolBar("go", words("back")), "Go");
    RyCustomizedDialog dialog({manager.get(), nullptr}, &host.window);
    dialog.show();
    const EditorViews editor(&dialog);
    EditorCommands commands{DialogParts(&dialog)};
    QListWidgetItem *const go = itemNamed(editor.toolBarList, "Go");
    editor.toolBarList->setCurrentItem(itemNamed(editor.toolBarList, "File"));
    editor.actionTree->setCurrentItem(itemNamed(editor.actionTree, "Back"));
    manager.reset();
    const auto entries = [&] {
        return QList<QListWidgetItem *>{editor.currentToolBarList->item(1)};
    };
    commands.insert({itemNamed(editor.actionTree, "Back")}, 0);
    commands.move(entries(), 0);
    commands.moveTo(go, entries(), 0);
    editor.toolBarList->setCurrentItem(itemNamed(editor.toolBarList, "File"));
    commands.remove(entries());
    QCOMPARE(editor.currentRows(), words("Open Save |"));
    commands.insertInto(go, {itemNamed(editor.actionTree, "Open")});
    QCOMPARE(editor.currentRows(), words("Back"));
}

void tst_EditorCommands::aToolBarThatTheHostDeletesGetsNothing()
{
    EditedHost host;
    EditorCommands commands(host.parts);
    host.dialog.hide();
    host.show();
    QVERIFY(commands.canReachToolBars());
    const auto toolBars = host.manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (toolBar->windowTitle() == "Mine")
            host.manager.deleteToolBar(toolBar);
    }
    QVERIFY(!commands.canReachToolBars());
    commands.moveTo(host.toolBarRow("Mine"), host.entries({0, 1}), -1);
    commands.insertInto(host.toolBarRow("Mine"), host.items({"Find"}));
    QCOMPARE(currentOf(host.editor.toolBarList), QString("Edit"));
    QCOMPARE(host.applied("Edit"), QString("cut copy | paste undo |"));
}

void tst_EditorCommands::aToolBarThatIsAppliedLaterIsNoneThatHasGone()
{
    EditedHost host(false);
    EditorCommands commands(host.parts);
    host.show();
    host.makeCurrent("Mine");
    host.editor.click(host.editor.removeButton);
    host.editor.click(host.editor.newButton);
    host.editor.typeName("New");
    host.dialog.applyButton()->click();
    QVERIFY(commands.canReachToolBars());
    host.makeCurrent("Edit");
    commands.moveTo(host.toolBarRow("New"), host.entries({0}), -1);
    QCOMPARE(host.applied("New"), QString("cut"));
}

// The name ends with the toolbar's row being the current one, and sorts the rows.
void tst_EditorCommands::aNameThatIsBeingEditedIsKept()
{
    EditedHost host;
    EditorCommands commands(host.parts);
    host.makeCurrent("Mine");
    commands.insert(host.items({"Find", "|"}), 0);
    host.editor.click(host.editor.renameButton);
    QTest::keyClicks(host.editor.renameEditor(), "A first one");
    commands.moveTo(host.toolBarRow("Go"), host.entries({0}), 1);
    QTRY_VERIFY(!host.editor.renameEditor());
    auto expected = EditedHost::firstContents();
    expected.remove("Mine");
    expected.insert("A first one", words("|"));
    expected.insert("Go", words("back find home"));
    QCOMPARE(host.applied(), expected);
    QCOMPARE(currentOf(host.editor.toolBarList), QString("Go"));
    QCOMPARE(host.editor.currentRows(), words("Back Find Home"));
}

void tst_EditorCommands::aLargeToolBarTakesFewClicks()
{
    EditedHost host(false);
    QStringList content;
    for (int i = 0; i < 2000; ++i)
        content << QString("a%1").arg(i);
    host.defaultToolBar("large", content, "Large");
    host.show();
    host.makeCurrent("Large");
    EditorCommands commands(host.parts);
    int clicks = 0;
    const auto buttons = host.editor.page->findChildren<QToolButton *>();
    for (const QToolButton *button : buttons)
        connect(button, &QToolButton::clicked, [&clicks] { ++clicks; });
    commands.move(host.entries({1990, 1995}), 0);
    QCOMPARE(rowsOf(host.editor.currentToolBarList).mid(0, 3), words("A1990 A1995 A0"));
    commands.move(host.entries({0, 1}), 2000);
    QCOMPARE(rowsOf(host.editor.currentToolBarList).mid(1998), words("A1990 A1995"));
    QVERIFY2(clicks < 12, qPrintable(QString::number(clicks)));
}

QTEST_MAIN(tst_EditorCommands)
#include "tst_editorcommands.moc"
