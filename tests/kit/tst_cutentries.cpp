// SPDX-License-Identifier: MIT

#include "cutentries.h"
#include "editedhost.h"
#include "editorcommands.h"
#include "selectedrows.h"
#include "testcase.h"
#include "texts.h"

#include <QtTest>

/*
 * Entries that are moved by keys.
 */
class tst_CutEntries : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cutEntriesComeBehindTheCurrentOne_data();
    void cutEntriesComeBehindTheCurrentOne();
    void cutEntriesComeToTheEndOfAToolBar_data();
    void cutEntriesComeToTheEndOfAToolBar();
    void cuttingAloneChangesNothing();
    void whatIsEditedMeanwhileIsNotCutAnyMore();
    void cutEntriesAreInItalics();
    void anotherCutReplacesTheFirst();
    void insertingTwiceDoesNothing();
    void theCurrentEntryIsCutWithoutASelection();
    void whatHasChangedIsNotInserted_data();
    void whatHasChangedIsNotInserted();
    void aToolBarThatHasGoneGetsNothing();
    void keysEditTextWhileAToolBarIsNamed();
};

namespace {

struct Stage : EditedHost
{
    Stage()
        : EditedHost(false)
        , commands(parts)
        , selected(parts, &commands)
        , cutEntries(parts, &commands, &selected, nullptr)
        , list(editor.currentToolBarList)
    {
        show();
        QApplication::setActiveWindow(&dialog);
    }

    void press(QWidget *view, Qt::Key key) const
    {
        view->setFocus();
        QTest::keyClick(dialog.windowHandle(), key, Qt::ControlModifier);
    }

    void cut(const QList<int> &rows) const
    {
        list->clearSelection();
        for (const int row : rows)
            list->item(row)->setSelected(true);
        press(list, Qt::Key_X);
    }

    QStringList italicRows() const
    {
        QStringList texts;
        for (int row = 0; row < list->count(); ++row) {
            if (list->item(row)->data(Qt::FontRole).value<QFont>().italic())
                texts << list->item(row)->text();
        }
        return texts;
    }

    EditorCommands commands;
    const SelectedRows selected;
    const CutEntries cutEntries;
    QListWidget *const list;
};

} // namespace

void tst_CutEntries::cutEntriesComeBehindTheCurrentOne_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("other");
    QTest::newRow("the same toolbar") << "Edit" << 4 << "copy | undo cut paste |"
                                      << "";
    QTest::newRow("the same toolbar, upwards") << "Edit" << 1 << "copy cut paste | undo |"
                                               << "";
    QTest::newRow("another toolbar") << "File" << 0 << "copy | undo |"
                                     << "open cut paste save";
    QTest::newRow("its end") << "File" << 1 << "copy | undo |"
                             << "open save cut paste";
    QTest::newRow("an empty toolbar") << "Mine" << -1 << "copy | undo |"
                                      << "cut paste";
}

void tst_CutEntries::cutEntriesComeBehindTheCurrentOne()
{
    QFETCH(QString, toolBar);
    QFETCH(int, row);
    QFETCH(QString, edit);
    QFETCH(QString, other);
    const Stage stage;
    stage.cut({0, 3});
    stage.makeCurrent(toolBar);
    stage.list->setCurrentRow(row);
    stage.press(stage.list, Qt::Key_V);
    QCOMPARE(stage.applied("Edit"), edit);
    if (toolBar != "Edit")
        QCOMPARE(stage.applied(toolBar), other);
    QCOMPARE(currentOf(stage.editor.toolBarList), toolBar);
    QCOMPARE(currentOf(stage.list), QString("Paste"));
    QCOMPARE(stage.italicRows(), QStringList());
}

void tst_CutEntries::cutEntriesComeToTheEndOfAToolBar_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::addColumn<QString>("content");
    QTest::newRow("the same toolbar") << "Edit"
                                      << "copy | undo | cut paste";
    QTest::newRow("another toolbar") << "Go"
                                     << "back home cut paste";
}

void tst_CutEntries::cutEntriesComeToTheEndOfAToolBar()
{
    QFETCH(QString, toolBar);
    QFETCH(QString, content);
    const Stage stage;
    stage.cut({0, 3});
    stage.makeCurrent(toolBar);
    stage.press(stage.editor.toolBarList, Qt::Key_V);
    QCOMPARE(stage.applied(toolBar), content);
}

void tst_CutEntries::cuttingAloneChangesNothing()
{
    const Stage stage;
    stage.cut({0, 3});
    QCOMPARE(stage.applied(), Stage::firstContents());
    stage.makeCurrent("File");
    QCOMPARE(stage.applied(), Stage::firstContents());
}

void tst_CutEntries::whatIsEditedMeanwhileIsNotCutAnyMore()
{
    const Stage stage;
    stage.cut({0});
    stage.list->setCurrentRow(0);
    stage.editor.click(stage.editor.downButton);
    QCOMPARE(stage.italicRows(), QStringList());
    stage.makeCurrent("File");
    stage.press(stage.list, Qt::Key_V);
    QCOMPARE(stage.applied("Edit"), QString("copy cut | paste undo |"));
    QCOMPARE(stage.applied("File"), QString("open save"));
}

void tst_CutEntries::cutEntriesAreInItalics()
{
    const Stage stage;
    stage.cut({0, 3});
    QCOMPARE(stage.italicRows(), words("Cut Paste"));
    stage.cut({1});
    QCOMPARE(stage.italicRows(), words("Copy"));
}

void tst_CutEntries::anotherCutReplacesTheFirst()
{
    const Stage stage;
    stage.cut({0, 3});
    stage.makeCurrent("File");
    stage.cut({1});
    stage.makeCurrent("Mine");
    stage.press(stage.list, Qt::Key_V);
    QCOMPARE(stage.applied("Mine"), QString("save"));
    QCOMPARE(stage.applied("Edit"), QString("cut copy | paste undo |"));
}

void tst_CutEntries::insertingTwiceDoesNothing()
{
    const Stage stage;
    stage.press(stage.list, Qt::Key_V);
    stage.cut({2});
    stage.makeCurrent("File");
    stage.press(stage.list, Qt::Key_V);
    stage.press(stage.list, Qt::Key_V);
    QCOMPARE(stage.applied("File"), QString("open | save"));
    // Also where the first time changes nothing.
    stage.cut({0});
    stage.list->setCurrentRow(0);
    stage.press(stage.list, Qt::Key_V);
    stage.list->setCurrentRow(2);
    stage.press(stage.list, Qt::Key_V);
    QCOMPARE(stage.applied("File"), QString("open | save"));
}

void tst_CutEntries::theCurrentEntryIsCutWithoutASelection()
{
    const Stage stage;
    stage.list->setCurrentRow(3);
    stage.cut({});
    stage.makeCurrent("Mine");
    stage.press(stage.list, Qt::Key_V);
    QCOMPARE(stage.applied("Mine"), QString("paste"));
    stage.makeCurrent("Go");
    stage.list->setCurrentRow(-1);
    stage.cut({});
    stage.makeCurrent("Mine");
    stage.press(stage.list, Qt::Key_V);
    QCOMPARE(stage.applied("Mine"), QString("paste"));
}

void tst_CutEntries::whatHasChangedIsNotInserted_data()
{
    QTest::addColumn<QString>("change");
    for (const char *change :
         {"an entry is removed", "an entry is moved", "the toolbar is removed"})
        QTest::newRow(change) << change;
}

void tst_CutEntries::whatHasChangedIsNotInserted()
{
    QFETCH(QString, change);
    Stage stage;
    stage.makeCurrent("Mine");
    for (const char *name : {"Find", "About", "Home"})
        stage.commands.insert(stage.items({name}), 3);
    stage.cut({0, 2});
    stage.list->clearSelection();
    stage.list->setCurrentRow(1);
    if (change == "an entry is removed")
        stage.editor.click(stage.editor.leftButton);
    else if (change == "an entry is moved")
        stage.editor.click(stage.editor.upButton);
    else
        stage.editor.click(stage.editor.removeButton);
    const auto expected = stage.applied();
    stage.makeCurrent("File");
    stage.press(stage.list, Qt::Key_V);
    QCOMPARE(stage.applied(), expected);
    QCOMPARE(currentOf(stage.editor.toolBarList), QString("File"));
}

void tst_CutEntries::aToolBarThatHasGoneGetsNothing()
{
    Stage stage;
    const auto toolBars = stage.manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (toolBar->windowTitle() == "Mine")
            stage.manager.deleteToolBar(toolBar);
    }
    stage.cut({0});
    stage.makeCurrent("Mine");
    stage.press(stage.editor.toolBarList, Qt::Key_V);
    QCOMPARE(currentOf(stage.editor.toolBarList), QString("Mine"));
    QCOMPARE(stage.applied("Edit"), QString("cut copy | paste undo |"));
    stage.makeCurrent("Edit");
    stage.cut({0});
    stage.press(stage.editor.toolBarList, Qt::Key_V);
    QCOMPARE(stage.applied("Edit"), QString("copy | paste undo | cut"));
}

void tst_CutEntries::keysEditTextWhileAToolBarIsNamed()
{
    const Stage stage;
    stage.cut({0});
    stage.makeCurrent("Mine");
    stage.editor.toolBarList->setFocus();
    stage.editor.click(stage.editor.renameButton);
    QTest::keyClick(stage.dialog.windowHandle(), Qt::Key_X, Qt::ControlModifier);
    QTest::keyClick(stage.dialog.windowHandle(), Qt::Key_V, Qt::ControlModifier);
    QVERIFY(stage.editor.renameEditor());
    stage.editor.typeName("Mine");
    QCOMPARE(stage.applied(), Stage::firstContents());
}

QTEST_MAIN(tst_CutEntries)
#include "tst_cutentries.moc"
