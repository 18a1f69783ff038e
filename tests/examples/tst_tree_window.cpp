// SPDX-License-Identifier: MIT

#include "guardedtree.h"
#include "bookswindow.h"
#include "testcase.h"
#include "texts.h"
#include "treehistory.h"
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
    void aMoveGoesToTheOtherTree();
    void aCopyGoesToTheOtherTree();
    void aDragIsUndoneAndRedone();
    void aCancelledDragIsPutBack();
    void aDropOnABookIsPutBack();
    void aDropIntoItsOwnFolderIsPutBack();
    void aCopyAfterwardsIsNoCopyForEver();
};

namespace {

struct Stage
{
    Stage()
        : library(window.findChild<GuardedTree *>(QStringLiteral("library")))
        , readingList(window.findChild<GuardedTree *>(QStringLiteral("readingList")))
        , undo(window.findChild<QAction *>(QStringLiteral("undo")))
        , redo(window.findChild<QAction *>(QStringLiteral("redo")))
        , undoStack(window.findChild<TreeHistory *>()->undoStack())
        , putBack(window.findChild<TreeHistory *>(), &TreeHistory::putBack)
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
        return tree->visualItemRect(itemNamed(tree, QLatin1String(text))).center();
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
        user.waitFor(QStringLiteral("the end of the drag"), [this, changes, losses] {
            return undoStack->count() == changes && putBack.count() == losses;
        });
    }

    BooksWindow window;
    GuardedTree *const library;
    GuardedTree *const readingList;
    QAction *const undo;
    QAction *const redo;
    QUndoStack *const undoStack;
    QSignalSpy putBack;
    UserScript user;
};

QStringList lines(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(','));
}

QStringList libraryAtFirst()
{
    return lines("Novels,  Dracula,  Emma,  Moby-Dick,Poems,  Leaves of Grass,  Sonnets,Science,"
                 "  Micrographia,  On the Origin of Species,  Opticks");
}

QStringList libraryWithoutEmma()
{
    QStringList library = libraryAtFirst();
    library.removeAt(2);
    return library;
}

QStringList readingListAtFirst()
{
    return lines("Now,  Frankenstein,Later");
}

} // namespace

void tst_Tree_Window::aMoveGoesToTheOtherTree()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.library, "Emma");
    stage.carryTo(stage.readingList, "Now");
    stage.user.drop();
    stage.waitForEnd(1, 0);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.library), libraryWithoutEmma());
    QCOMPARE(itemsOf(stage.readingList), lines("Now,  Frankenstein,  Emma,Later"));
}

void tst_Tree_Window::aCopyGoesToTheOtherTree()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.user.pressKey(Qt::Key_Control);
    stage.pickUp(stage.library, "Emma");
    stage.carryTo(stage.readingList, "Later");
    stage.user.drop();
    stage.user.releaseKey(Qt::Key_Control);
    stage.waitForEnd(1, 0);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.library), libraryAtFirst());
    QCOMPARE(itemsOf(stage.readingList), lines("Now,  Frankenstein,Later,  Emma"));
}

void tst_Tree_Window::aDragIsUndoneAndRedone()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.library, "Emma");
    stage.carryTo(stage.readingList, "Now");
    stage.user.drop();
    stage.waitForEnd(1, 0);
    QCOMPARE(stage.user.run(), QString());
    stage.undo->trigger();
    QCOMPARE(itemsOf(stage.library), libraryAtFirst());
    QCOMPARE(itemsOf(stage.readingList), readingListAtFirst());
    stage.redo->trigger();
    QCOMPARE(itemsOf(stage.library), libraryWithoutEmma());
    QCOMPARE(itemsOf(stage.readingList), lines("Now,  Frankenstein,  Emma,Later"));
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
    QCOMPARE(itemsOf(stage.library), libraryAtFirst());
    QCOMPARE(itemsOf(stage.readingList), readingListAtFirst());
}

void tst_Tree_Window::aDropOnABookIsPutBack()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.library, "Emma");
    stage.carryTo(stage.readingList, "Frankenstein");
    stage.user.drop();
    stage.waitForEnd(0, 1);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.library), libraryAtFirst());
    QCOMPARE(itemsOf(stage.readingList), readingListAtFirst());
}

void tst_Tree_Window::aDropIntoItsOwnFolderIsPutBack()
{
    Stage stage;
    QTreeWidgetItem *const novels = itemNamed(stage.library, QStringLiteral("Novels"));
    new QTreeWidgetItem(novels, {QStringLiteral("Long ones")});
    const QStringList before = itemsOf(stage.library);
    QVERIFY(stage.show());
    stage.pickUp(stage.library, "Novels");
    stage.carryTo(stage.library, "Long ones");
    stage.user.drop();
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
        QStringLiteral("no Control"), [&] { stage.user.input.releaseKey(Qt::Key_Control); },
        [] { return !QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier); });
    stage.user.drop();
    stage.waitForEnd(1, 0);
    stage.pickUp(stage.library, "Sonnets");
    stage.carryTo(stage.readingList, "Now");
    stage.user.drop();
    stage.waitForEnd(2, 0);
    QCOMPARE(stage.user.run(), QString());
    QVERIFY(itemNamed(stage.library, QStringLiteral("Emma")));
    QVERIFY(!itemNamed(stage.library, QStringLiteral("Sonnets")));
    QCOMPARE(itemsOf(stage.readingList), lines("Now,  Frankenstein,  Sonnets,Later,  Emma"));
}

QTEST_MAIN(tst_Tree_Window)

#include "tst_tree_window.moc"
