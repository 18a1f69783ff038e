// SPDX-License-Identifier: MIT

#include "editedhost.h"
#include "editorcommands.h"
#include "selectedrows.h"
#include "testcase.h"
#include "texts.h"

#include <QtTest>

#include <algorithm>

/*
 * What the editor's buttons do with several selected rows, and what stays selected.
 */
class tst_SelectedRows : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsActOnAllSelectedEntries_data();
    void buttonsActOnAllSelectedEntries();
    void theAddButtonAddsAllSelectedActions_data();
    void theAddButtonAddsAllSelectedActions();
    void aSelectedSeparatorIsAddedOnce();
    void whatIsNotSelectedIsNotRemoved();
    void whatIsNotSelectedIsNotAdded();
    void aReleaseThatIsNoClickChangesNothing();

    void theUserSelectsSeveralByMouse();
    void theUserSelectsSeveralByKeys();
    void whatAProgramMakesCurrentIsSelectedAlone();
    void whatTheEditorMakesCurrentIsSelectedAlone();
};

namespace {

struct Stage : EditedHost
{
    Stage()
        : EditedHost(false)
        , commands(parts)
        , selected(parts, &commands)
        , list(editor.currentToolBarList)
        , tree(editor.actionTree)
    {
        show();
        QApplication::setActiveWindow(&dialog);
        list->setFocus();
    }

    // The last one becomes current.
    void select(const QList<int> &rows, int current) const
    {
        list->setCurrentRow(current, QItemSelectionModel::NoUpdate);
        list->clearSelection();
        for (const int row : rows)
            list->item(row)->setSelected(true);
    }

    void select(const QStringList &texts, const QString &current) const
    {
        tree->setCurrentItem(items({current}).constFirst(), 0, QItemSelectionModel::NoUpdate);
        tree->clearSelection();
        const auto picked = items(texts);
        for (QTreeWidgetItem *item : picked)
            item->setSelected(true);
    }

    QPoint place(int row) const
    {
        return list->viewport()->mapTo(&dialog, list->visualItemRect(list->item(row)).center());
    }

    // Through the window, so that Qt knows of the buttons.
    void click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, modifiers, place(row));
    }

    QStringList selectedTexts() const
    {
        QStringList texts;
        for (int row = 0; row < list->count(); ++row) {
            if (list->item(row)->isSelected())
                texts << list->item(row)->text();
        }
        return texts;
    }

    EditorCommands commands;
    const SelectedRows selected;
    QListWidget *const list;
    QTreeWidget *const tree;
};

} // namespace

void tst_SelectedRows::buttonsActOnAllSelectedEntries_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("content");
    // cut copy | paste undo |
    const auto row = [](const char *button, const QList<int> &rows, int current,
                        const char *content) {
        QTest::addRow("%s %s, current %d", button, qPrintable(QString("%1").arg(rows.size())),
                      current)
            << button << rows << current << content;
    };
    row("upButton", {3, 4}, 3, "cut copy paste undo | |");
    row("upButton", {3, 4}, 4, "cut copy paste undo | |");
    row("upButton", {0, 1}, 1, "cut copy | paste undo |");
    row("upButton", {0, 1, 4}, 4, "cut copy undo | paste |");
    row("upButton", {1}, 1, "copy cut | paste undo |");
    row("downButton", {0, 1}, 0, "| cut copy paste undo |");
    row("downButton", {0, 1}, 1, "| cut copy paste undo |");
    row("downButton", {0, 3}, 0, "copy | undo cut paste |");
    row("downButton", {4, 5}, 4, "cut copy | paste undo |");
    row("downButton", {0}, 0, "copy cut | paste undo |");
    row("leftButton", {0, 3, 4}, 3, "copy | |");
    row("leftButton", {0, 3, 4}, 4, "copy | |");
    row("leftButton", {0, 1, 2, 3, 4, 5}, 0, "");
    row("leftButton", {1}, 1, "cut | paste undo |");
}

void tst_SelectedRows::buttonsActOnAllSelectedEntries()
{
    QFETCH(QString, button);
    QFETCH(QList<int>, rows);
    QFETCH(int, current);
    QFETCH(QString, content);
    const Stage stage;
    QStringList selected;
    stage.select(rows, current);
    if (button != "leftButton")
        selected = stage.selectedTexts();
    stage.editor.click(stage.editor.page->findChild<QToolButton *>(button));
    if (button != "leftButton")
        QCOMPARE(stage.selectedTexts(), selected);
    else
        QCOMPARE(stage.selectedTexts().size(), content.isEmpty() ? 0 : 1);
    QCOMPARE(stage.applied("Edit"), content);
}

void tst_SelectedRows::theAddButtonAddsAllSelectedActions_data()
{
    QTest::addColumn<QString>("current");
    QTest::newRow("the first is current") << "Find";
    QTest::newRow("the last is current") << "About";
}

void tst_SelectedRows::theAddButtonAddsAllSelectedActions()
{
    QFETCH(QString, current);
    const Stage stage;
    stage.list->setCurrentRow(0);
    stage.select(QStringList({"Find", "Home", "About"}), current);
    stage.editor.click(stage.editor.rightButton);
    QCOMPARE(stage.selectedTexts(), words("Find Home About"));
    QCOMPARE(stage.applied("Edit"), QString("cut find home about copy | paste undo |"));
    stage.select(QStringList({"Open"}), "Open");
    stage.editor.click(stage.editor.rightButton);
    QCOMPARE(stage.applied("Edit"), QString("cut find home about open copy | paste undo |"));
}

void tst_SelectedRows::aSelectedSeparatorIsAddedOnce()
{
    const Stage stage;
    stage.list->setCurrentRow(0);
    stage.select(QStringList({"< S E P A R A T O R >", "Find"}), "< S E P A R A T O R >");
    stage.editor.click(stage.editor.rightButton);
    QCOMPARE(stage.applied("Edit"), QString("cut | find copy | paste undo |"));
}

// Control and a click leave the row current.
void tst_SelectedRows::whatIsNotSelectedIsNotRemoved()
{
    const Stage stage;
    stage.select({0, 1}, 3);
    stage.editor.click(stage.editor.leftButton);
    QCOMPARE(stage.applied("Edit"), QString("| paste undo |"));
    stage.select(QList<int>(), 1);
    stage.editor.click(stage.editor.leftButton);
    QCOMPARE(stage.applied("Edit"), QString("| undo |"));
}

void tst_SelectedRows::whatIsNotSelectedIsNotAdded()
{
    const Stage stage;
    stage.makeCurrent("Mine");
    stage.select(QStringList({"Find", "About"}), "Home");
    stage.editor.click(stage.editor.rightButton);
    QCOMPARE(stage.applied("Mine"), QString("find about"));
    stage.select(QStringList(), "Home");
    stage.editor.click(stage.editor.rightButton);
    QCOMPARE(stage.applied("Mine"), QString("find about home"));
}

void tst_SelectedRows::aReleaseThatIsNoClickChangesNothing()
{
    const Stage stage;
    stage.select({0, 1}, 1);
    QToolButton *const button = stage.editor.leftButton;
    QTest::mousePress(button, Qt::LeftButton);
    QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
    QVERIFY(stage.applied() == Stage::firstContents());
    // The editor has made other rows since.
    stage.makeCurrent("File");
    stage.editor.click(button);
    QCOMPARE(stage.applied("File"), QString("save"));
}

void tst_SelectedRows::theUserSelectsSeveralByMouse()
{
    const Stage stage;
    stage.click(0);
    stage.click(3, Qt::ControlModifier);
    QCOMPARE(stage.selectedTexts(), words("Cut Paste"));
    stage.click(1, Qt::ControlModifier);
    QCOMPARE(stage.selectedTexts(), words("Cut Copy Paste"));
    stage.click(3, Qt::ControlModifier);
    QCOMPARE(stage.selectedTexts(), words("Cut Copy"));
    // A press alone may begin a drag of all.
    QTest::mousePress(stage.dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier, stage.place(0));
    QCOMPARE(stage.selectedTexts(), words("Cut Copy"));
    QTest::mouseRelease(stage.dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                        stage.place(0));
    QCOMPARE(stage.selectedTexts(), words("Cut"));
    stage.click(2, Qt::ShiftModifier);
    QCOMPARE(stage.selectedTexts().size(), 3);
}

void tst_SelectedRows::theUserSelectsSeveralByKeys()
{
    const Stage stage;
    QTest::keyClick(stage.dialog.windowHandle(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(stage.dialog.windowHandle(), Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(stage.selectedTexts().size(), 3);
    QTest::keyClick(stage.dialog.windowHandle(), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(stage.selectedTexts(), words("Cut Copy"));
    QTest::keyClick(stage.dialog.windowHandle(), Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(stage.selectedTexts(), words("Cut Copy"));
    QTest::keyClick(stage.dialog.windowHandle(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(stage.selectedTexts().size(), 6);
    QTest::keyClick(stage.dialog.windowHandle(), Qt::Key_Down);
    QCOMPARE(stage.selectedTexts().size(), 1);
}

// As a search does, while its line has the focus.
void tst_SelectedRows::whatAProgramMakesCurrentIsSelectedAlone()
{
    const Stage stage;
    stage.select(QStringList({"Find", "About"}), "About");
    stage.tree->setCurrentItem(stage.items({"Home"}).constFirst());
    QCOMPARE(stage.tree->selectedItems(), stage.items({"Home"}));
    stage.editor.click(stage.editor.rightButton);
    QCOMPARE(stage.selectedTexts(), words("Home"));
}

void tst_SelectedRows::whatTheEditorMakesCurrentIsSelectedAlone()
{
    const Stage stage;
    stage.click(0);
    stage.click(3, Qt::ControlModifier);
    stage.select(QStringList({"Find"}), "Find");
    stage.editor.click(stage.editor.rightButton);
    QCOMPARE(stage.selectedTexts(), words("Find"));
    stage.makeCurrent("File");
    QCOMPARE(stage.selectedTexts(), words("Open"));
    stage.editor.doubleClick(stage.list, 0);
    QCOMPARE(stage.selectedTexts(), words("Save"));
}

QTEST_MAIN(tst_SelectedRows)
#include "tst_selectedrows.moc"
