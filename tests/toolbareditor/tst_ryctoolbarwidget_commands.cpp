// SPDX-License-Identifier: MIT

#include "host.h"
#include "showneditor.h"
#include "testcase.h"
#include "texts.h"
#include "toolbaritem.h"
#include "translations.h"

#include <QLineEdit>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

namespace {

const QString Separator = "< S E P A R A T O R >";
const QString NewName = "Custom Toolbar";

// All toolbars of the host, with "Mine" in the given state.
QStringList withMine(const QString &mine)
{
    return {"File: open | save", mine, "Tools: | cut"};
}

QListWidgetItem *addForeignRow(QListWidget *list)
{
    return new QListWidgetItem("Foreign", list);
}

} // namespace

class tst_RyCToolBarWidget_Commands : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newMakesAnEmptyCurrentToolBar();
    void newNamesInTheUsersLanguage();
    void newOpensTheEditorOfTheName();
    void newLeavesNoToolBarCurrentForAMoment();
    void newTwiceMakesTwoToolBarsOfOneName();
    void withoutAManagerNoCommandDoesAnything();
    void withoutACurrentToolBarNoCommandDoesAnything();
    void withoutACurrentEntryNoneIsMovedOrRemoved();

    void removeMakesTheNextToolBarCurrent_data();
    void removeMakesTheNextToolBarCurrent();
    void removingTheOnlyToolBarLeavesNoneCurrent();
    void removingANewToolBarLeavesNothing();
    void removingAnExistingToolBarKeepsItForTheApply();
    void removingWhileTheNameIsEdited();
    void removeOfAForeignRowDoesNothing();
    void removeTakesTheToolBarOfTheCurrentRow();
    void aDefaultToolBarCannotBeRemoved();
    void anUnknownRecordCannotBeRemoved_data();
    void anUnknownRecordCannotBeRemoved();
    void removingAToolBarThatIsNotCurrentKeepsTheCurrentOne();
    void isDefaultToolBarGoesByTheToolBar();

    void renameOpensTheEditorOfTheName();
    void aClickOnAnotherRowEndsTheNaming_data();
    void aClickOnAnotherRowEndsTheNaming();
    void renameTakesTheToolBarThatIsShown();
    void aDefaultToolBarCannotBeRenamed();
    void renameWhileTheEditorIsOpenKeepsItOpen();
    void everyNameIsAccepted_data();
    void everyNameIsAccepted();
    void aRenamedToolBarIsSortedAndStaysCurrent();
    void aRenamedToolBarGoesWhereSortingLeavesIt();
    void escapeKeepsTheOldName();
    void anotherRowCanBeRenamed();
    void aRenameWithoutACurrentToolBarIsIgnored();
    void aRenameOfAForeignRowIsIgnored();
    void changesOfARowThatAreNoRenameAreHarmless();
    void hidingWhileTheNameIsEditedDiscardsIt();

    void upAndDownMoveTheEntry_data();
    void upAndDownMoveTheEntry();
    void movingTakesSeparatorsAlong();

    void leftRemovesTheEntry_data();
    void leftRemovesTheEntry();
    void aDoubleClickOnAnEntryRemovesIt();
    void leftEmptiesTheToolBarAtTheEnd();

    void rightAddsAnAction_data();
    void rightAddsAnAction();
    void aDoubleClickAddsAnActionOrASeparator();
    void rightWithoutAnActionDoesNothing_data();
    void rightWithoutAnActionDoesNothing();
    void oneActionIsPutOnSeveralToolBars();
    void aRemovedActionCanBeAddedAgain();

    void aCommandSetsTheButtons();
    void removingAToolBarSetsTheButtons();
    void noCommandTouchesTheHost();
    void anyCommandsKeepTheEditorConsistent_data();
    void anyCommandsKeepTheEditorConsistent();

private:
    void compare(const ShownEditor &editor, const QStringList &toolBars);
    void applyAndCompare(ShownEditor &editor, const QStringList &toolBars);
};

// What the working copy and the views hold.
void tst_RyCToolBarWidget_Commands::compare(const ShownEditor &editor, const QStringList &toolBars)
{
    QCOMPARE(editor.workingCopy(), toolBars);
    QCOMPARE(editor.inconsistency(), QString());
}

// And what is then on the toolbars of the host.
void tst_RyCToolBarWidget_Commands::applyAndCompare(ShownEditor &editor,
                                                    const QStringList &toolBars)
{
    compare(editor, toolBars);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(*editor.manager), toolBars);
    compare(editor, toolBars);
}

void tst_RyCToolBarWidget_Commands::newMakesAnEmptyCurrentToolBar()
{
    FilledEditor editor("Mine");
    editor.views.click(editor.views.newButton);
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList({NewName, "File", "Mine", "Tools"}));
    QCOMPARE(currentOf(editor.views.toolBarList), NewName);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    const EditorFields fields = EditorFields::of(editor.widget);
    QCOMPARE(fields.createdRecords, QSet<ToolBarItem *>{fields.currentRecord});
    QVERIFY(!fields.currentRecord->toolBar());
    const QListWidgetItem *const row = editor.views.toolBarList->currentItem();
    QCOMPARE(row->flags(), QListWidgetItem().flags() | Qt::ItemIsEditable);
    QVERIFY(!row->data(Qt::ForegroundRole).isValid());
    applyAndCompare(editor,
                    {NewName + ":", "File: open | save", "Mine: cut copy paste", "Tools: | cut"});
}

void tst_RyCToolBarWidget_Commands::newNamesInTheUsersLanguage()
{
    const Translations german("RyCToolBarWidget", {{NewName, "Eigene Leiste"}});
    Host host;
    ShownEditor editor(&host.manager);
    editor.views.click(editor.views.newButton);
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{"Eigene Leiste"});
    applyAndCompare(editor, {"Eigene Leiste:"});
}

void tst_RyCToolBarWidget_Commands::newOpensTheEditorOfTheName()
{
    FilledEditor editor;
    editor.views.click(editor.views.newButton);
    const QLineEdit *const name = editor.nameEditor();
    QVERIFY(name);
    QCOMPARE(name->text(), NewName);
    editor.views.typeName("Zebra");
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList({"File", "Mine", "Tools", "Zebra"}));
    QCOMPARE(currentOf(editor.views.toolBarList), "Zebra");
    applyAndCompare(editor,
                    {"File: open | save", "Mine: cut copy paste", "Tools: | cut", "Zebra:"});
}

// The row becomes current before it is known.
void tst_RyCToolBarWidget_Commands::newLeavesNoToolBarCurrentForAMoment()
{
    FilledEditor editor("Mine");
    QVERIFY(editor.views.rightButton->isEnabled());
    QStringList seen;
    const QObject watching;
    connect(editor.views.toolBarList, &QListWidget::currentItemChanged, &watching,
            [&seen, &editor](const QListWidgetItem *current) {
                const EditorFields fields = EditorFields::of(editor.widget);
                seen << current->text() << rowsOf(editor.views.currentToolBarList).join(' ')
                     << editor.views.enabledButtons().join(' ')
                     << (fields.currentRecord ? "current" : QString());
            });
    editor.views.click(editor.views.newButton);
    QCOMPARE(seen.mid(0, 4),
             QStringList({NewName, QString(), "newButton removeButton renameButton", QString()}));
    QVERIFY(editor.views.rightButton->isEnabled());
    QVERIFY(EditorFields::of(editor.widget).currentRecord);
}

void tst_RyCToolBarWidget_Commands::newTwiceMakesTwoToolBarsOfOneName()
{
    Host host;
    ShownEditor editor(&host.manager);
    editor.views.click(editor.views.newButton);
    QVERIFY(editor.views.renameEditor());
    QListWidgetItem *const first = editor.views.toolBarList->currentItem();
    editor.views.click(editor.views.newButton);
    QListWidgetItem *const second = editor.views.toolBarList->currentItem();
    QVERIFY(first != second);
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList({NewName, NewName}));
    // The first editor is gone, the open one is of the second row.
    QTRY_COMPARE(editor.views.toolBarList->viewport()->findChildren<QLineEdit *>().size(), 1);
    QCOMPARE(editor.views.toolBarList->itemWidget(second), editor.views.renameEditor());
    QVERIFY(!editor.views.toolBarList->itemWidget(first));
    editor.views.typeName("Other");
    QCOMPARE(first->text(), NewName);
    QCOMPARE(second->text(), "Other");
    applyAndCompare(editor, {NewName + ":", "Other:"});
}

void tst_RyCToolBarWidget_Commands::withoutAManagerNoCommandDoesAnything()
{
    ShownEditor editor(nullptr);
    for (const char *slot : {"removeClicked", "renameClicked", "upClicked", "leftClicked",
                             "rightClicked", "downClicked", "defaultClicked"})
        editor.call(slot);
    QVERIFY(editor.views.newButton->isEnabled());
    editor.views.click(editor.views.newButton);
    QCOMPARE(editor.views.enabledButtons(), QStringList());
    QVERIFY(!editor.views.renameEditor());
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList());
    compare(editor, {});
    editor.widget.applyClicked();
    compare(editor, {});
}

void tst_RyCToolBarWidget_Commands::withoutACurrentToolBarNoCommandDoesAnything()
{
    FilledEditor editor;
    editor.views.toolBarList->setCurrentItem(nullptr);
    editor.selectAction("Zoom");
    for (QToolButton *button : {editor.views.removeButton, editor.views.renameButton}) {
        QVERIFY(button->isEnabled());
        editor.views.click(button);
        QVERIFY(!editor.views.renameEditor());
    }
    for (const char *slot : {"upClicked", "downClicked", "leftClicked", "rightClicked"})
        editor.call(slot);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    applyAndCompare(editor, withMine("Mine: cut copy paste"));
}

void tst_RyCToolBarWidget_Commands::withoutACurrentEntryNoneIsMovedOrRemoved()
{
    FilledEditor editor("Mine");
    editor.selectEntry(-1);
    for (const char *slot : {"upClicked", "downClicked", "leftClicked"})
        editor.call(slot);
    QCOMPARE(editor.views.currentToolBarList->currentRow(), -1);
    applyAndCompare(editor, withMine("Mine: cut copy paste"));
}

void tst_RyCToolBarWidget_Commands::removeMakesTheNextToolBarCurrent_data()
{
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QString>("current");
    QTest::addColumn<QStringList>("content");
    const QStringList open = {"Open", Separator, "Save"};
    QTest::newRow("first") << "Above"
                           << "File" << open;
    QTest::newRow("middle") << "Mine"
                            << "Tools" << QStringList({Separator, "Cut"});
    QTest::newRow("last") << "Tools"
                          << "Mine" << QStringList({"Cut", "Copy", "Paste"});
}

void tst_RyCToolBarWidget_Commands::removeMakesTheNextToolBarCurrent()
{
    QFETCH(QString, removed);
    QFETCH(QString, current);
    QFETCH(QStringList, content);
    EditorHost host;
    customToolBar(host, "Above", {"zoom"});
    ShownEditor editor(&host.manager);
    QStringList rows = rowsOf(editor.views.toolBarList);
    QStringList expected = editor.workingCopy();
    editor.selectToolBar(removed);
    editor.views.click(editor.views.removeButton);
    rows.removeOne(removed);
    QCOMPARE(rowsOf(editor.views.toolBarList), rows);
    QCOMPARE(currentOf(editor.views.toolBarList), current);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), content);
    expected = expected.filter(QRegularExpression(QString("^(?!%1)").arg(removed)));
    QCOMPARE(expected.size(), 3);
    applyAndCompare(editor, expected);
}

void tst_RyCToolBarWidget_Commands::removingTheOnlyToolBarLeavesNoneCurrent()
{
    Host host;
    host.registered("cut", "Edits");
    customToolBar(host, "Mine", {"cut"});
    ShownEditor editor(&host.manager);
    editor.views.click(editor.views.removeButton);
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList());
    QVERIFY(!editor.views.toolBarList->currentItem());
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    QVERIFY(!EditorFields::of(editor.widget).currentRecord);
    QCOMPARE(editor.views.enabledButtons(),
             QStringList({"newButton", "removeButton", "renameButton"}));
    // There is nothing left to remove.
    editor.views.click(editor.views.removeButton);
    applyAndCompare(editor, {});
}

void tst_RyCToolBarWidget_Commands::removingANewToolBarLeavesNothing()
{
    EditorHost host;
    const QStringList before = toolBarsOf(host.manager);
    const auto toolBars = host.window.findChildren<QToolBar *>();
    ShownEditor editor(&host.manager);
    editor.views.click(editor.views.newButton);
    editor.views.typeName("Yours");
    editor.views.doubleClick(editor.views.actionTree, "Zoom");
    editor.views.click(editor.views.removeButton);
    const EditorFields fields = EditorFields::of(editor.widget);
    QVERIFY(fields.createdRecords.isEmpty());
    QVERIFY(fields.removedRecords.isEmpty());
    QCOMPARE(fields.ownedRecords.size(), 3);
    applyAndCompare(editor, before);
    QCOMPARE(host.window.findChildren<QToolBar *>(), toolBars);
}

void tst_RyCToolBarWidget_Commands::removingAnExistingToolBarKeepsItForTheApply()
{
    FilledEditor editor("Mine");
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    QToolBar *const toolBar = record->toolBar();
    editor.views.click(editor.views.removeButton);
    const EditorFields fields = EditorFields::of(editor.widget);
    QCOMPARE(fields.removedRecords, QSet<ToolBarItem *>{record});
    QCOMPARE(record->toolBar(), toolBar);
    QVERIFY(fields.ownedRecords.contains(record));
    QVERIFY(!fields.workingActions.contains(record));
    QCOMPARE(fields.recordOfToolBar.value(toolBar), record);
    QVERIFY(editor.host.manager.toolBars().contains(toolBar));
}

void tst_RyCToolBarWidget_Commands::removingWhileTheNameIsEdited()
{
    FilledEditor editor("Mine");
    editor.views.click(editor.views.renameButton);
    QLineEdit *const name = editor.nameEditor();
    QVERIFY(name);
    QTest::keyClicks(name, "Zebra");
    editor.views.click(editor.views.removeButton);
    QTRY_VERIFY(!editor.views.renameEditor());
    QCOMPARE(currentOf(editor.views.toolBarList), "Tools");
    applyAndCompare(editor, {"File: open | save", "Tools: | cut"});
}

void tst_RyCToolBarWidget_Commands::removeOfAForeignRowDoesNothing()
{
    FilledEditor editor;
    QListWidgetItem *const foreign = addForeignRow(editor.views.toolBarList);
    editor.views.toolBarList->setCurrentItem(foreign);
    editor.views.click(editor.views.removeButton);
    QCOMPARE(editor.views.toolBarList->count(), 4);
    delete foreign;
    compare(editor, withMine("Mine: cut copy paste"));
}

// Even while the editor shows no toolbar's content.
void tst_RyCToolBarWidget_Commands::removeTakesTheToolBarOfTheCurrentRow()
{
    FilledEditor editor("Mine");
    QListWidgetItem *const none = nullptr;
    editor.call("currentToolBarChanged", Q_ARG(QListWidgetItem *, none));
    editor.views.click(editor.views.removeButton);
    QCOMPARE(currentOf(editor.views.toolBarList), "Tools");
    applyAndCompare(editor, {"File: open | save", "Tools: | cut"});
}

void tst_RyCToolBarWidget_Commands::aDefaultToolBarCannotBeRemoved()
{
    FilledEditor editor("File");
    QVERIFY(!editor.views.removeButton->isEnabled());
    editor.views.click(editor.views.removeButton);
    editor.call("removeClicked");
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    editor.call("removeToolBar", Q_ARG(ToolBarItem *, record));
    QCOMPARE(currentOf(editor.views.toolBarList), "File");
    applyAndCompare(editor, withMine("Mine: cut copy paste"));
}

void tst_RyCToolBarWidget_Commands::anUnknownRecordCannotBeRemoved_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::newRow("null") << "null";
    QTest::newRow("without a toolbar") << "none";
    QTest::newRow("of a custom toolbar") << "Mine";
    QTest::newRow("of a default toolbar") << "File";
}

void tst_RyCToolBarWidget_Commands::anUnknownRecordCannotBeRemoved()
{
    QFETCH(QString, toolBar);
    FilledEditor editor("Mine");
    ToolBarItem foreign(toolBarTitled(editor.host.manager, toolBar), toolBar);
    ToolBarItem *const record = toolBar == "null" ? nullptr : &foreign;
    editor.call("removeToolBar", Q_ARG(ToolBarItem *, record));
    QCOMPARE(currentOf(editor.views.toolBarList), "Mine");
    applyAndCompare(editor, withMine("Mine: cut copy paste"));
}

void tst_RyCToolBarWidget_Commands::removingAToolBarThatIsNotCurrentKeepsTheCurrentOne()
{
    FilledEditor editor("Mine");
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    editor.selectToolBar("Tools");
    editor.selectEntry(1);
    editor.call("removeToolBar", Q_ARG(ToolBarItem *, record));
    QCOMPARE(currentOf(editor.views.toolBarList), "Tools");
    QCOMPARE(editor.views.currentToolBarList->currentRow(), 1);
    applyAndCompare(editor, {"File: open | save", "Tools: | cut"});
}

void tst_RyCToolBarWidget_Commands::isDefaultToolBarGoesByTheToolBar()
{
    FilledEditor editor;
    const auto isDefault = [&editor](ToolBarItem *record) {
        bool result = true;
        const bool called =
            QMetaObject::invokeMethod(&editor.widget, "isDefaultToolBar", Qt::DirectConnection,
                                      Q_RETURN_ARG(bool, result), Q_ARG(ToolBarItem *, record));
        return called ? QVariant(result) : QVariant();
    };
    const auto toolBars = editor.host.manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        ToolBarItem record(toolBar, QString());
        QCOMPARE(isDefault(&record), QVariant(toolBar->windowTitle() == "File"));
    }
    ToolBarItem without("File");
    QCOMPARE(isDefault(&without), QVariant(false));
    QCOMPARE(isDefault(nullptr), QVariant(false));
}

void tst_RyCToolBarWidget_Commands::renameOpensTheEditorOfTheName()
{
    FilledEditor editor("Mine");
    editor.views.click(editor.views.renameButton);
    const QLineEdit *const name = editor.nameEditor();
    QVERIFY(name);
    QCOMPARE(name->text(), "Mine");
    editor.views.typeName("Yours");
    QCOMPARE(currentOf(editor.views.toolBarList), "Yours");
    applyAndCompare(editor, {"File: open | save", "Tools: | cut", "Yours: cut copy paste"});
}

void tst_RyCToolBarWidget_Commands::aClickOnAnotherRowEndsTheNaming_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("clicked");
    for (const char *name : {"A", "G", "N", "Z"}) {
        for (const char *clicked : {"File", "Mine", "Tools"})
            QTest::addRow("%s, then %s", name, clicked) << name << clicked;
    }
}

// The row of the new toolbar moves to its place in the order while another one becomes current.
void tst_RyCToolBarWidget_Commands::aClickOnAnotherRowEndsTheNaming()
{
    QFETCH(QString, name);
    QFETCH(QString, clicked);
    FilledEditor editor;
    editor.selectToolBar(clicked);
    const QStringList content = rowsOf(editor.views.currentToolBarList);
    editor.call("newClicked");
    editor.nameEditor()->setText(name);
    QListWidget *const list = editor.views.toolBarList;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(itemNamed(list, clicked)).center());
    QCOMPARE(currentOf(list), clicked);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), content);
    QCOMPARE(editor.inconsistency(), QString());
}

// Even while another row of the list is current.
void tst_RyCToolBarWidget_Commands::renameTakesTheToolBarThatIsShown()
{
    FilledEditor editor("Mine");
    QListWidgetItem *const tools = itemNamed(editor.views.toolBarList, "Tools");
    editor.call("currentToolBarChanged", Q_ARG(QListWidgetItem *, tools));
    editor.views.click(editor.views.renameButton);
    const QLineEdit *const name = editor.nameEditor();
    QVERIFY(name);
    QCOMPARE(name->text(), "Tools");
}

void tst_RyCToolBarWidget_Commands::aDefaultToolBarCannotBeRenamed()
{
    FilledEditor editor("File");
    QVERIFY(!editor.views.renameButton->isEnabled());
    editor.call("renameClicked");
    QVERIFY(!editor.views.renameEditor());
    QTest::keyClick(editor.views.toolBarList, Qt::Key_F2);
    QVERIFY(!editor.views.renameEditor());
}

void tst_RyCToolBarWidget_Commands::renameWhileTheEditorIsOpenKeepsItOpen()
{
    FilledEditor editor("Mine");
    editor.views.click(editor.views.renameButton);
    QLineEdit *const name = editor.nameEditor();
    QVERIFY(name);
    name->selectAll();
    QTest::keyClicks(name, "Yo");
    editor.views.click(editor.views.renameButton);
    QCOMPARE(editor.views.renameEditor(), name);
    QCOMPARE(name->text(), "Yo");
}

void tst_RyCToolBarWidget_Commands::everyNameIsAccepted_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "   ";
    QTest::newRow("of another custom toolbar") << "Tools";
    QTest::newRow("of a default toolbar") << "File";
    QTest::newRow("its own") << "Mine";
    QTest::newRow("blanks around") << " Mine ";
    QTest::newRow("ampersand") << "&Mine";
}

void tst_RyCToolBarWidget_Commands::everyNameIsAccepted()
{
    QFETCH(QString, name);
    FilledEditor editor("Mine");
    const ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    editor.views.click(editor.views.renameButton);
    editor.views.typeName(name);
    QCOMPARE(record->toolBarName(), name);
    QCOMPARE(editor.views.toolBarList->currentItem()->text(), name);
    QStringList expected = withMine(name + ": cut copy paste");
    expected.sort();
    applyAndCompare(editor, expected);
    QCOMPARE(record->toolBar()->windowTitle(), name);
}

void tst_RyCToolBarWidget_Commands::aRenamedToolBarIsSortedAndStaysCurrent()
{
    FilledEditor editor("Mine");
    editor.selectEntry(1);
    editor.views.click(editor.views.renameButton);
    editor.views.typeName("Zebra");
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList({"File", "Tools", "Zebra"}));
    QCOMPARE(currentOf(editor.views.toolBarList), "Zebra");
    QCOMPARE(editor.views.currentToolBarList->currentRow(), 1);
    editor.views.click(editor.views.renameButton);
    editor.views.typeName("Aardvark");
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList({"Aardvark", "File", "Tools"}));
    QCOMPARE(currentOf(editor.views.toolBarList), "Aardvark");
    QCOMPARE(editor.inconsistency(), QString());
}

// Toolbars of the same name keep their order.
void tst_RyCToolBarWidget_Commands::aRenamedToolBarGoesWhereSortingLeavesIt()
{
    Host host;
    for (int i = 0; i < 8; ++i)
        host.manager.createToolBar(QString::number(i % 4));
    const ShownEditor editor(&host.manager);
    QListWidget *const list = editor.views.toolBarList;
    const QListWidgetItem *const current = list->currentItem();
    const auto items = [list] { return list->findItems(QString(), Qt::MatchContains); };
    QRandomGenerator random(1);
    for (int step = 0; step < 500; ++step) {
        QList<QListWidgetItem *> expected = items();
        QListWidgetItem *const item = expected.at(random.bounded(expected.size()));
        const QString name = QString::number(random.bounded(4));
        const auto nameOf = [&](const QListWidgetItem *row) {
            return row == item ? name : row->text();
        };
        std::stable_sort(expected.begin(), expected.end(),
                         [&](const QListWidgetItem *a, const QListWidgetItem *b) {
                             return nameOf(a) < nameOf(b);
                         });
        item->setText(name);
        QCOMPARE(items(), expected);
    }
    QCOMPARE(list->currentItem(), current);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Commands::escapeKeepsTheOldName()
{
    FilledEditor editor("Mine");
    editor.views.click(editor.views.renameButton);
    QTest::keyClicks(editor.views.renameEditor(), "Yours");
    QTest::keyClick(editor.views.renameEditor(), Qt::Key_Escape);
    QTRY_VERIFY(!editor.views.renameEditor());
    QVERIFY(editor.widget.isVisible());
    // And it opens again.
    editor.views.click(editor.views.renameButton);
    QVERIFY(editor.views.renameEditor());
    QTest::keyClick(editor.views.renameEditor(), Qt::Key_Escape);
    QTRY_VERIFY(!editor.views.renameEditor());
    QCOMPARE(currentOf(editor.views.toolBarList), "Mine");
    applyAndCompare(editor, withMine("Mine: cut copy paste"));
}

void tst_RyCToolBarWidget_Commands::anotherRowCanBeRenamed()
{
    FilledEditor editor("File");
    itemNamed(editor.views.toolBarList, "Mine")->setText("Above");
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList({"Above", "File", "Tools"}));
    QCOMPARE(currentOf(editor.views.toolBarList), "File");
    applyAndCompare(editor, {"Above: cut copy paste", "File: open | save", "Tools: | cut"});
}

void tst_RyCToolBarWidget_Commands::aRenameWithoutACurrentToolBarIsIgnored()
{
    FilledEditor editor;
    editor.views.toolBarList->setCurrentItem(nullptr);
    itemNamed(editor.views.toolBarList, "Mine")->setText("Zebra");
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList({"File", "Zebra", "Tools"}));
    applyAndCompare(editor, withMine("Mine: cut copy paste"));
}

void tst_RyCToolBarWidget_Commands::aRenameOfAForeignRowIsIgnored()
{
    FilledEditor editor;
    QListWidgetItem *const foreign = addForeignRow(editor.views.toolBarList);
    foreign->setText("Above");
    QCOMPARE(editor.views.toolBarList->row(foreign), 3);
    delete foreign;
    compare(editor, withMine("Mine: cut copy paste"));
}

void tst_RyCToolBarWidget_Commands::changesOfARowThatAreNoRenameAreHarmless()
{
    FilledEditor editor;
    QListWidgetItem *const row = itemNamed(editor.views.toolBarList, "Mine");
    row->setForeground(Qt::red);
    row->setToolTip("Toolbar");
    row->setFlags(Qt::ItemIsEnabled);
    compare(editor, withMine("Mine: cut copy paste"));
}

void tst_RyCToolBarWidget_Commands::hidingWhileTheNameIsEditedDiscardsIt()
{
    FilledEditor editor;
    editor.views.click(editor.views.newButton);
    QTest::keyClicks(editor.views.renameEditor(), "Yours");
    editor.widget.hide();
    QTRY_VERIFY(!editor.views.renameEditor());
    editor.widget.show();
    applyAndCompare(editor, withMine("Mine: cut copy paste"));
}

void tst_RyCToolBarWidget_Commands::upAndDownMoveTheEntry_data()
{
    QTest::addColumn<bool>("up");
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("content");
    QTest::newRow("first up") << true << 0 << 0 << "Mine: cut copy paste";
    QTest::newRow("middle up") << true << 1 << 0 << "Mine: copy cut paste";
    QTest::newRow("last up") << true << 2 << 1 << "Mine: cut paste copy";
    QTest::newRow("first down") << false << 0 << 1 << "Mine: copy cut paste";
    QTest::newRow("middle down") << false << 1 << 2 << "Mine: cut paste copy";
    QTest::newRow("last down") << false << 2 << 2 << "Mine: cut copy paste";
}

void tst_RyCToolBarWidget_Commands::upAndDownMoveTheEntry()
{
    QFETCH(bool, up);
    QFETCH(int, entry);
    QFETCH(int, current);
    QFETCH(QString, content);
    FilledEditor editor("Mine");
    editor.selectEntry(entry);
    const QListWidgetItem *const moved = editor.views.currentToolBarList->currentItem();
    // The slot itself: at the end the button is disabled.
    editor.call(up ? "upClicked" : "downClicked");
    QCOMPARE(editor.views.currentToolBarList->currentItem(), moved);
    QCOMPARE(editor.views.currentToolBarList->currentRow(), current);
    QCOMPARE(editor.views.upButton->isEnabled(), current > 0);
    QCOMPARE(editor.views.downButton->isEnabled(), current < 2);
    applyAndCompare(editor, withMine(content));
}

void tst_RyCToolBarWidget_Commands::movingTakesSeparatorsAlong()
{
    FilledEditor editor("File");
    editor.selectEntry(1);
    editor.views.click(editor.views.upButton);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList({Separator, "Open", "Save"}));
    QVERIFY(!editor.views.upButton->isEnabled());
    editor.views.click(editor.views.downButton);
    editor.views.click(editor.views.downButton);
    applyAndCompare(editor, {"File: open save |", "Mine: cut copy paste", "Tools: | cut"});
}

void tst_RyCToolBarWidget_Commands::leftRemovesTheEntry_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("content");
    QTest::newRow("first") << 0 << "Copy"
                           << "Mine: copy paste";
    QTest::newRow("middle") << 1 << "Paste"
                            << "Mine: cut paste";
    QTest::newRow("last") << 2 << "Copy"
                          << "Mine: cut copy";
}

void tst_RyCToolBarWidget_Commands::leftRemovesTheEntry()
{
    QFETCH(int, entry);
    QFETCH(QString, current);
    QFETCH(QString, content);
    FilledEditor editor("Mine");
    editor.selectEntry(entry);
    editor.views.click(editor.views.leftButton);
    QCOMPARE(currentOf(editor.views.currentToolBarList), current);
    applyAndCompare(editor, withMine(content));
}

void tst_RyCToolBarWidget_Commands::aDoubleClickOnAnEntryRemovesIt()
{
    FilledEditor editor("File");
    editor.views.doubleClick(editor.views.currentToolBarList, 1);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList({"Open", "Save"}));
    QCOMPARE(currentOf(editor.views.currentToolBarList), "Save");
    applyAndCompare(editor, {"File: open save", "Mine: cut copy paste", "Tools: | cut"});
}

void tst_RyCToolBarWidget_Commands::leftEmptiesTheToolBarAtTheEnd()
{
    FilledEditor editor("Mine");
    for (int i = 0; i < 3; ++i)
        editor.views.click(editor.views.leftButton);
    QCOMPARE(editor.views.currentToolBarList->currentRow(), -1);
    QCOMPARE(editor.views.enabledButtons(),
             QStringList({"newButton", "removeButton", "renameButton", "rightButton"}));
    applyAndCompare(editor, withMine("Mine:"));
}

void tst_RyCToolBarWidget_Commands::rightAddsAnAction_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("content");
    const auto row = [](const char *name, const QString &action, int entry, int current,
                        const char *content) {
        QTest::newRow(name) << action << entry << current << content;
    };
    row("new after the first", "Zoom", 0, 1, "Mine: cut zoom copy paste");
    row("new after the middle", "Zoom", 1, 2, "Mine: cut copy zoom paste");
    row("new after the last", "Zoom", 2, 3, "Mine: cut copy paste zoom");
    row("new without a current entry", "Zoom", -1, 3, "Mine: cut copy paste zoom");
    row("separator after the first", Separator, 0, 1, "Mine: cut | copy paste");
    row("separator after the last", Separator, 2, 3, "Mine: cut copy paste |");
    row("separator without a current entry", Separator, -1, 3, "Mine: cut copy paste |");
    row("its own entry is current, first", "Cut", 0, 0, "Mine: cut copy paste");
    row("its own entry is current, middle", "Copy", 1, 1, "Mine: cut copy paste");
    row("its own entry is current, last", "Paste", 2, 2, "Mine: cut copy paste");
    row("moved down", "Cut", 1, 1, "Mine: copy cut paste");
    row("moved to the end", "Cut", 2, 2, "Mine: copy paste cut");
    row("moved up", "Paste", 0, 1, "Mine: cut paste copy");
    row("moved to where it was", "Copy", 0, 1, "Mine: cut copy paste");
    row("moved without a current entry", "Cut", -1, 2, "Mine: copy paste cut");
}

void tst_RyCToolBarWidget_Commands::rightAddsAnAction()
{
    QFETCH(QString, action);
    QFETCH(int, entry);
    QFETCH(int, current);
    QFETCH(QString, content);
    FilledEditor editor("Mine");
    editor.selectEntry(entry);
    editor.selectAction(action);
    editor.views.click(editor.views.rightButton);
    QCOMPARE(currentOf(editor.views.currentToolBarList), action);
    QCOMPARE(editor.views.currentToolBarList->currentRow(), current);
    // Neither the action nor the toolbar is another one now.
    QCOMPARE(currentOf(editor.views.actionTree), action);
    QCOMPARE(currentOf(editor.views.toolBarList), "Mine");
    applyAndCompare(editor, withMine(content));
}

void tst_RyCToolBarWidget_Commands::aDoubleClickAddsAnActionOrASeparator()
{
    FilledEditor editor("Mine");
    editor.views.doubleClick(editor.views.actionTree, "Zoom");
    editor.views.doubleClick(editor.views.actionTree, "Undo");
    for (int i = 0; i < 2; ++i)
        editor.views.doubleClick(editor.views.actionTree, Separator);
    // A category is nothing to add.
    editor.views.doubleClick(editor.views.actionTree, "Edits");
    applyAndCompare(editor, withMine("Mine: cut zoom undo | | copy paste"));
}

void tst_RyCToolBarWidget_Commands::rightWithoutAnActionDoesNothing_data()
{
    QTest::addColumn<QString>("treeItem");
    QTest::newRow("category") << "Edits";
    QTest::newRow("nothing") << "";
}

void tst_RyCToolBarWidget_Commands::rightWithoutAnActionDoesNothing()
{
    QFETCH(QString, treeItem);
    FilledEditor editor("Mine");
    editor.views.actionTree->setCurrentItem(itemNamed(editor.views.actionTree, treeItem));
    QVERIFY(!editor.views.rightButton->isEnabled());
    editor.call("rightClicked");
    applyAndCompare(editor, withMine("Mine: cut copy paste"));
}

void tst_RyCToolBarWidget_Commands::oneActionIsPutOnSeveralToolBars()
{
    FilledEditor editor;
    for (const char *title : {"File", "Mine", "Tools"}) {
        editor.selectToolBar(title);
        editor.views.doubleClick(editor.views.actionTree, "Zoom");
    }
    applyAndCompare(editor,
                    {"File: open zoom | save", "Mine: cut zoom copy paste", "Tools: | zoom cut"});
}

void tst_RyCToolBarWidget_Commands::aRemovedActionCanBeAddedAgain()
{
    FilledEditor editor("Mine");
    editor.views.doubleClick(editor.views.currentToolBarList, 0);
    editor.selectEntry(1);
    editor.views.doubleClick(editor.views.actionTree, "Cut");
    applyAndCompare(editor, withMine("Mine: copy paste cut"));
}

// Itself, not only because another row becomes current.
void tst_RyCToolBarWidget_Commands::aCommandSetsTheButtons()
{
    FilledEditor editor("Mine");
    editor.selectAction("Zoom");
    const QSignalBlocker silent(editor.views.currentToolBarList);
    const auto enabled = [&editor](const char *slot) {
        editor.call(slot);
        return editor.views.enabledButtons().join(' ');
    };
    const QString first = "newButton removeButton renameButton leftButton rightButton downButton";
    const QString middle =
        "newButton removeButton renameButton upButton leftButton rightButton downButton";
    const QString last = "newButton removeButton renameButton upButton leftButton rightButton";
    QCOMPARE(enabled("downClicked"), middle);
    QCOMPARE(enabled("downClicked"), last);
    QCOMPARE(enabled("upClicked"), middle);
    QCOMPARE(enabled("upClicked"), first);
    QCOMPARE(enabled("rightClicked"), middle);
    QCOMPARE(enabled("downClicked"), middle);
    QCOMPARE(enabled("downClicked"), last);
    QCOMPARE(enabled("upClicked"), middle);
    QCOMPARE(enabled("leftClicked"), last);
}

void tst_RyCToolBarWidget_Commands::removingAToolBarSetsTheButtons()
{
    FilledEditor editor("Mine");
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    editor.selectToolBar("File");
    for (QToolButton *button : {editor.views.newButton, editor.views.rightButton})
        button->setEnabled(false);
    for (QToolButton *button : {editor.views.removeButton, editor.views.renameButton})
        button->setEnabled(true);
    // No other row becomes current.
    editor.call("removeToolBar", Q_ARG(ToolBarItem *, record));
    QCOMPARE(editor.views.enabledButtons(),
             QStringList({"newButton", "leftButton", "rightButton", "downButton"}));
}

void tst_RyCToolBarWidget_Commands::noCommandTouchesTheHost()
{
    FilledEditor editor("File");
    const QStringList before = toolBarsOf(editor.host.manager);
    editor.selectAction("Zoom");
    for (const char *slot : {"rightClicked", "upClicked", "downClicked", "leftClicked",
                             "newClicked", "rightClicked", "removeClicked", "newClicked"}) {
        editor.call(slot);
        QCOMPARE(toolBarsOf(editor.host.manager), before);
    }
    editor.selectToolBar("Mine");
    editor.call("removeClicked");
    editor.selectToolBar("Tools");
    editor.views.toolBarList->currentItem()->setText("Mine");
    QCOMPARE(toolBarsOf(editor.host.manager), before);
}

void tst_RyCToolBarWidget_Commands::anyCommandsKeepTheEditorConsistent_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_RyCToolBarWidget_Commands::anyCommandsKeepTheEditorConsistent()
{
    QFETCH(quint32, seed);
    const QList<const char *> commands = {
        "newClicked",   "removeClicked", "renameClicked", "upClicked",     "downClicked",
        "leftClicked",  "leftClicked",   "rightClicked",  "rightClicked",  "rightClicked",
        "rightClicked", "applyClicked",  "newClicked",    "defaultClicked"};
    QRandomGenerator random(seed);
    FilledEditor editor;
    const QList<QTreeWidgetItem *> items =
        editor.views.actionTree->findItems(QString(), Qt::MatchContains | Qt::MatchRecursive);
    for (int step = 0; step < 300; ++step) {
        QListWidget *const list = editor.views.toolBarList;
        QListWidget *const entries = editor.views.currentToolBarList;
        list->setCurrentRow(random.bounded(-1, list->count()));
        entries->setCurrentRow(random.bounded(-1, entries->count()));
        editor.views.actionTree->setCurrentItem(items.at(random.bounded(items.size())));
        if (list->currentItem() && list->currentItem()->flags().testFlag(Qt::ItemIsEditable))
            list->currentItem()->setText(QString::number(random.bounded(5)));
        const char *const command = commands.at(random.bounded(commands.size()));
        editor.call(command);
        const QByteArray place = "step " + QByteArray::number(step) + ' ' + command;
        QVERIFY2(editor.inconsistency().isEmpty(),
                 (place + ": " + editor.inconsistency().toLocal8Bit()).constData());
        if (qstrcmp(command, "applyClicked") == 0)
            QCOMPARE(toolBarsOf(editor.host.manager), editor.workingCopy());
    }
}

QTEST_MAIN(tst_RyCToolBarWidget_Commands)

#include "tst_ryctoolbarwidget_commands.moc"
