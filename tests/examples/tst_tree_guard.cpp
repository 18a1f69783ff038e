// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "texts.h"
#include "treehistory.h"
#include "treestage.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QStatusBar>
#include <QtTest>

/*
 * The example of trees, without a display: every drag is refused at once there.
 */
class tst_Tree_Guard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTreesAreFilled();
    void aRefusedMoveIsPutBack();
    void aRefusedMoveOfAFolderIsPutBackWhole();
    void whatIsPutBackIsNothingToUndo();
    void aClickChangesNothing();
    void movingAcrossTakesTheCurrentItem();
    void movingAcrossIsUndoneAndRedone();
    void movingAcrossWithoutACurrentItemDoesNothing();
    void itemsAddedAreNoLoss();
    void flagsAndIconsSurviveUndo();
    void arrowKeysWorkInTheTree();
    void theCaptionsNameTheTrees();
};

namespace {

struct Stage : TreeStage
{
    Stage()
        : moveAcross(window.findChild<QAction *>("moveAcross"))
    {
        window.show();
        QApplication::setActiveWindow(&window);
    }

    // Presses an item and moves far enough for a drag, which ends at once.
    void drag(GuardedTree *tree, const char *text)
    {
        const QPoint place = tree->visualItemRect(itemNamed(tree, text)).center();
        QTest::mousePress(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        const QPoint far = place + QPoint(50, 0);
        QMouseEvent move(QEvent::MouseMove, far, tree->viewport()->mapToGlobal(far), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(tree->viewport(), &move);
        QTest::mouseRelease(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }

    QAction *const moveAcross;
};

} // namespace

void tst_Tree_Guard::theTreesAreFilled()
{
    Stage stage;
    QCOMPARE(itemsOf(stage.library), libraryAtFirst());
    QCOMPARE(itemsOf(stage.readingList), readingListAtFirst());
    QVERIFY(!stage.undo->isEnabled());
    QVERIFY(!stage.redo->isEnabled());
}

void tst_Tree_Guard::aRefusedMoveIsPutBack()
{
    Stage stage;
    stage.drag(stage.library, "Emma");
    QVERIFY(!itemNamed(stage.library, "Emma"));
    QTRY_COMPARE(itemsOf(stage.library), libraryAtFirst());
    QCOMPARE(itemsOf(stage.readingList), readingListAtFirst());
    QCOMPARE(stage.window.statusBar()->currentMessage(),
             "Nothing took what you dragged, so it is back in its place.");
    QVERIFY(itemNamed(stage.library, "Novels")->isExpanded());
}

void tst_Tree_Guard::aRefusedMoveOfAFolderIsPutBackWhole()
{
    Stage stage;
    stage.drag(stage.library, "Novels");
    QVERIFY(!itemNamed(stage.library, "Dracula"));
    QTRY_COMPARE(itemsOf(stage.library), libraryAtFirst());
}

void tst_Tree_Guard::whatIsPutBackIsNothingToUndo()
{
    Stage stage;
    stage.drag(stage.readingList, "Frankenstein");
    QTRY_COMPARE(itemsOf(stage.readingList), readingListAtFirst());
    QCoreApplication::processEvents();
    QVERIFY(!stage.undo->isEnabled());
    stage.drag(stage.readingList, "Frankenstein");
    QTRY_COMPARE(itemsOf(stage.readingList), readingListAtFirst());
}

void tst_Tree_Guard::aClickChangesNothing()
{
    Stage stage;
    const QTreeWidgetItem *const item = itemNamed(stage.library, "Emma");
    QTest::mouseClick(stage.library->viewport(), Qt::LeftButton, Qt::NoModifier,
                      stage.library->visualItemRect(item).center());
    QCoreApplication::processEvents();
    QCOMPARE(stage.library->currentItem(), item);
    QVERIFY(!stage.undo->isEnabled());
}

void tst_Tree_Guard::movingAcrossTakesTheCurrentItem()
{
    Stage stage;
    stage.library->setCurrentItem(itemNamed(stage.library, "Poems"));
    stage.library->setFocus();
    stage.moveAcross->trigger();
    QCOMPARE(itemsOf(stage.library),
             lines("Novels,  Dracula,  Emma,  Moby-Dick,Science,  Micrographia,"
                   "  On the Origin of Species,  Opticks"));
    QCOMPARE(itemsOf(stage.readingList),
             lines("Now,  Frankenstein,Later,Poems,  Leaves of Grass,  Sonnets"));

    stage.readingList->setCurrentItem(itemNamed(stage.readingList, "Frankenstein"));
    stage.readingList->setFocus();
    stage.moveAcross->trigger();
    QCOMPARE(itemsOf(stage.library).constLast(), "Frankenstein");
    QCOMPARE(itemsOf(stage.readingList), lines("Now,Later,Poems,  Leaves of Grass,  Sonnets"));
}

void tst_Tree_Guard::movingAcrossIsUndoneAndRedone()
{
    Stage stage;
    stage.library->setCurrentItem(itemNamed(stage.library, "Novels"));
    stage.moveAcross->trigger();
    const QStringList library = itemsOf(stage.library);
    const QStringList readingList = itemsOf(stage.readingList);
    QVERIFY(library != libraryAtFirst());
    stage.undo->trigger();
    QCOMPARE(itemsOf(stage.library), libraryAtFirst());
    QCOMPARE(itemsOf(stage.readingList), readingListAtFirst());
    stage.redo->trigger();
    QCOMPARE(itemsOf(stage.library), library);
    QCOMPARE(itemsOf(stage.readingList), readingList);
    stage.undo->trigger();
    QCOMPARE(itemsOf(stage.library), libraryAtFirst());
}

void tst_Tree_Guard::movingAcrossWithoutACurrentItemDoesNothing()
{
    Stage stage;
    stage.library->setCurrentItem(nullptr);
    stage.moveAcross->trigger();
    QCOMPARE(itemsOf(stage.library), libraryAtFirst());
    QVERIFY(!stage.undo->isEnabled());
}

void tst_Tree_Guard::itemsAddedAreNoLoss()
{
    Stage stage;
    TreeHistory *const history = stage.window.findChild<TreeHistory *>();
    QSignalSpy putBack(history, &TreeHistory::putBack);
    history->begin();
    new QTreeWidgetItem(stage.library, {"Plays"});
    history->end();
    QCOMPARE(itemsOf(stage.library).constLast(), "Plays");
    QCOMPARE(stage.undoStack->count(), 1);
    history->end(); // nothing has changed since
    QCOMPARE(stage.undoStack->count(), 1);
    QCOMPARE(putBack.count(), 0);
}

void tst_Tree_Guard::flagsAndIconsSurviveUndo()
{
    Stage stage;
    stage.library->setCurrentItem(itemNamed(stage.library, "Emma"));
    stage.moveAcross->trigger();
    stage.undo->trigger();
    const QTreeWidgetItem *const book = itemNamed(stage.library, "Emma");
    QVERIFY(book);
    QVERIFY(!book->flags().testFlag(Qt::ItemIsDropEnabled));
    QVERIFY(!book->icon(0).isNull());
    QVERIFY(itemNamed(stage.library, "Novels")->flags() & Qt::ItemIsDropEnabled);
}

void tst_Tree_Guard::arrowKeysWorkInTheTree()
{
    Stage stage;
    stage.library->setCurrentItem(itemNamed(stage.library, "Dracula"));
    QTest::keyClick(stage.library, Qt::Key_Down);
    QCOMPARE(currentOf(stage.library), "Emma");
    QTest::keyClick(stage.library, Qt::Key_End);
    QCOMPARE(currentOf(stage.library), "Opticks");
}

void tst_Tree_Guard::theCaptionsNameTheTrees()
{
    Stage stage;
    QWidgetList buddies;
    const auto labels = stage.window.findChildren<QLabel *>();
    for (const QLabel *label : labels)
        buddies << label->buddy();
    QVERIFY(buddies.contains(stage.library));
    QVERIFY(buddies.contains(stage.readingList));
    QCOMPARE(stage.library->accessibleName(), "Library");
    QCOMPARE(stage.readingList->accessibleName(), "Reading List");
}

QTEST_MAIN(tst_Tree_Guard)

#include "tst_tree_guard.moc"
