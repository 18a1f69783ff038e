// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "texts.h"
#include "treehistory.h"
#include "treestage.h"
#include "userscript.h"

#include <QAction>
#include <QUndoStack>
#include <QtTest>

/*
 * The example of trees in a real window: drags with the pointer of an X server.
 */
class tst_Tree_Window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aMoveGoesToTheOtherTreeAndBackByUndo();
    void aCopyGoesToTheOtherTree();
    void aCancelledDragIsPutBack();
    void aDropOnABookIsPutBack();
    void aDropIntoItsOwnFolderIsPutBack();
    void aCopyAfterwardsIsNoCopyForEver();
};

namespace {

struct Stage : TreeStage
{
    Stage()
        : putBack(window.findChild<TreeHistory *>(), &TreeHistory::putBack)
    {
    }

    bool show()
    {
        window.show();
        library->setFocus();
        return waitUntilSettled(&window);
    }

    static QPoint centerOf(const QTreeWidget *tree, const char *text)
    {
        return tree->visualItemRect(itemNamed(tree, text)).center();
    }

    void pickUp(QTreeWidget *tree, const char *text)
    {
        const QPoint place = centerOf(tree, text);
        user.moveTo(tree->viewport(), place);
        user.press();
        user.moveTo(tree->viewport(), place + QPoint(2, 0));
    }

    void carryTo(QTreeWidget *tree, const char *text)
    {
        const QPoint place = centerOf(tree, text);
        user.moveTo(tree->viewport(), place - QPoint(3, 0));
        user.moveTo(tree->viewport(), place);
    }

    // Each drag is one change or one loss.
    void waitForEnd(int changes, int losses)
    {
        user.waitFor("the end of the drag", [this, changes, losses] {
            return undoStack->count() == changes && putBack.count() == losses;
        });
    }

    void drag(QTreeWidget *from, const char *text, QTreeWidget *to, const char *target)
    {
        pickUp(from, text);
        carryTo(to, target);
        user.drop();
    }

    QStringList content() const { return itemsOf(library) + itemsOf(readingList); }

    QSignalSpy putBack;
    UserScript user;
};

QStringList contentAtFirst()
{
    return libraryAtFirst() + readingListAtFirst();
}

QStringList libraryWithoutEmma()
{
    QStringList library = libraryAtFirst();
    library.removeAt(2);
    return library;
}

} // namespace

void tst_Tree_Window::aMoveGoesToTheOtherTreeAndBackByUndo()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.drag(stage.library, "Emma", stage.readingList, "Now");
    stage.waitForEnd(1, 0);
    QCOMPARE(stage.user.run(), "");
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(itemsOf(stage.library), libraryWithoutEmma());
        QCOMPARE(itemsOf(stage.readingList), lines("Now,  Frankenstein,  Emma,Later"));
        stage.undo->trigger();
        QCOMPARE(stage.content(), contentAtFirst());
        stage.redo->trigger();
    }
}

void tst_Tree_Window::aCopyGoesToTheOtherTree()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.user.pressKey(Qt::Key_Control);
    stage.drag(stage.library, "Emma", stage.readingList, "Later");
    stage.user.releaseKey(Qt::Key_Control);
    stage.waitForEnd(1, 0);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.library), libraryAtFirst());
    QCOMPARE(itemsOf(stage.readingList), lines("Now,  Frankenstein,Later,  Emma"));
}

void tst_Tree_Window::aCancelledDragIsPutBack()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.library, "Emma");
    stage.carryTo(stage.readingList, "Now");
    stage.user.cancelDrag();
    stage.user.drop();
    stage.waitForEnd(0, 1);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(stage.content(), contentAtFirst());
}

void tst_Tree_Window::aDropOnABookIsPutBack()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.drag(stage.library, "Emma", stage.readingList, "Frankenstein");
    stage.waitForEnd(0, 1);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(stage.content(), contentAtFirst());
}

void tst_Tree_Window::aDropIntoItsOwnFolderIsPutBack()
{
    Stage stage;
    QTreeWidgetItem *const novels = itemNamed(stage.library, "Novels");
    new QTreeWidgetItem(novels, {"Long ones"});
    const QStringList before = itemsOf(stage.library);
    QVERIFY(stage.show());
    stage.drag(stage.library, "Novels", stage.library, "Long ones");
    stage.waitForEnd(0, 1);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.library), before);
}

// RyTreeWidget itself misses a Control key that is released during a drag.
void tst_Tree_Window::aCopyAfterwardsIsNoCopyForEver()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.user.pressKey(Qt::Key_Control);
    stage.pickUp(stage.library, "Emma");
    stage.carryTo(stage.readingList, "Later");
    stage.user.step(
        "no Control", [&] { stage.user.input.releaseKey(Qt::Key_Control); },
        [] { return !QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier); });
    stage.user.drop();
    stage.waitForEnd(1, 0);
    stage.drag(stage.library, "Sonnets", stage.readingList, "Now");
    stage.waitForEnd(2, 0);
    QCOMPARE(stage.user.run(), QString());
    QVERIFY(itemNamed(stage.library, "Emma"));
    QVERIFY(!itemNamed(stage.library, "Sonnets"));
    QCOMPARE(itemsOf(stage.readingList), lines("Now,  Frankenstein,  Sonnets,Later,  Emma"));
}

QTEST_MAIN(tst_Tree_Window)

#include "tst_tree_window.moc"
