// SPDX-License-Identifier: MIT

#include "qtdifferences.h"
#include "rytreeitemmimedata.h"
#include "rytreewidget.h"
#include "testcase.h"
#include "texts.h"
#include "userscript.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QtTest>

/*
 * Real drags by the pointer and the keyboard of an X server.
 */

namespace {

/*
 * A tree that writes down what drags do with it, and what it answers. A line that repeats the one
 * before is left out: how often Qt reports one place is its own matter.
 */
class WatchedTree : public RyTreeWidget
{
public:
    WatchedTree(const QString &name, QStringList &log)
        : m_log(log)
    {
        setObjectName(name);
    }

    // The base class would say so at the upper edge of an item.
    bool indicatesADropAboveAnItem() const { return dropIndicatorPosition() == AboveItem; }

    void dragEnterEvent(QDragEnterEvent *event) override
    {
        RyTreeWidget::dragEnterEvent(event);
        note("enter", event);
    }

    void dragMoveEvent(QDragMoveEvent *event) override
    {
        const QTreeWidgetItem *const item = itemAt(QtDifferences::position(event));
        RyTreeWidget::dragMoveEvent(event);
        note("over " + (item ? item->text(0) : "nothing"), event);
    }

    void dropEvent(QDropEvent *event) override
    {
        RyTreeWidget::dropEvent(event);
        note("drop", event);
    }

protected:
    void startDrag(Qt::DropActions actions) override
    {
        note("drag by the base class");
        RyTreeWidget::startDrag(actions);
    }

private:
    void note(const QString &what, const QDropEvent *event)
    {
        QString answer = "refused";
        if (event->isAccepted())
            answer = event->dropAction() == Qt::CopyAction ? "copy" : "move";
        note(what + ": " + answer);
    }

    void note(const QString &what)
    {
        const QString line = objectName() + " " + what;
        if (m_log.isEmpty() || m_log.last() != line)
            m_log << line;
    }

    QStringList &m_log;
};

void fill(QTreeWidget *tree)
{
    tree->setHeaderHidden(true);
    QTreeWidgetItem *const a = new QTreeWidgetItem(tree, {"a"});
    new QTreeWidgetItem(a, {"a1"});
    new QTreeWidgetItem(a, {"a2"});
    QTreeWidgetItem *const b = new QTreeWidgetItem(tree, {"b"});
    new QTreeWidgetItem(b, {"b1"});
    new QTreeWidgetItem(tree, {"c"});
    new QTreeWidgetItem(tree, {"d"});
    a->setExpanded(true);
}

QStringList filledContent()
{
    return lines("a,  a1,  a2,b,  b1,c,d");
}

QStringList filledContentWithoutC()
{
    return lines("a,  a1,  a2,b,  b1,d");
}

// Two watched trees and others that are none, in one window, and the user before it.
struct Stage
{
    Stage()
        : tree(new WatchedTree("tree", log))
        , other(new WatchedTree("other", log))
        , plain(new QTreeWidget)
        , list(new QListWidget)
        , label(new QLabel("label"))
        , line(new QLineEdit)
    {
        QGridLayout *const layout = new QGridLayout(&window);
        layout->addWidget(tree, 0, 0);
        layout->addWidget(other, 0, 1);
        layout->addWidget(plain, 1, 0);
        layout->addWidget(list, 1, 1);
        layout->addWidget(label, 2, 0);
        layout->addWidget(line, 2, 1);
        fill(tree);
        new QTreeWidgetItem(other, {"x"});
        new QTreeWidgetItem(other, {"y"});
        fill(plain);
        plain->setDragDropMode(QAbstractItemView::DragDrop);
        list->addItems(lines("p,q"));
        list->setDragDropMode(QAbstractItemView::DragDrop);
        window.resize(600, 500);
    }

    bool show()
    {
        window.show();
        tree->setFocus();
        return waitUntilSettled(&window);
    }

    static QPoint centerOf(const QTreeWidget *view, const char *text)
    {
        return view->visualItemRect(itemNamed(view, text)).center();
    }

    // A place of the view below all of its items.
    static QPoint emptyPlaceOf(const QAbstractItemView *view)
    {
        return view->viewport()->rect().center() + QPoint(0, view->viewport()->height() / 3);
    }

    // Presses the button on an item and, without moving far enough for a drag, gets going.
    void pickUp(const QTreeWidget *view, const char *text, bool withControl = false)
    {
        const QPoint place = centerOf(view, text);
        user.moveTo(view->viewport(), place);
        user.press();
        if (withControl)
            user.pressKey(Qt::Key_Control);
        user.moveTo(view->viewport(), place + QPoint(2, 0));
    }

    // Moves on so that the drag begins by the way and arrives at the place.
    void carryTo(QWidget *widget, const QPoint &place)
    {
        user.moveTo(widget, place - QPoint(3, 0));
        user.moveTo(widget, place);
    }

    void carryTo(const QTreeWidget *view, const char *text)
    {
        carryTo(view->viewport(), centerOf(view, text));
    }

    void drop(bool withControl = false)
    {
        user.drop();
        if (withControl)
            user.releaseKey(Qt::Key_Control);
    }

    // Sets a tree's own flag and leaves it set: the key is released over the line edit.
    void leaveControlSet(QTreeWidget *view)
    {
        user.step(
            "focus the tree", [view] { view->setFocus(); }, [view] { return view->hasFocus(); });
        user.pressKey(Qt::Key_Control);
        user.step(
            "focus the line edit", [this] { line->setFocus(); },
            [this] { return line->hasFocus(); });
        user.releaseKey(Qt::Key_Control);
    }

    QStringList log;
    QWidget window;
    WatchedTree *const tree;
    WatchedTree *const other;
    QTreeWidget *const plain;
    QListWidget *const list;
    QLabel *const label;
    QLineEdit *const line;
    UserScript user;
};

void addActionRows()
{
    QTest::addColumn<bool>("copying");
    QTest::newRow("move") << false;
    QTest::newRow("copy") << true;
}

} // namespace

class tst_RyTreeWidget_Window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void movingOntoAnItemAppendsItAsTheLastChild_data();
    void movingOntoAnItemAppendsItAsTheLastChild();
    void copyingOntoAnItemKeepsTheOriginal_data();
    void copyingOntoAnItemKeepsTheOriginal();
    void theBaseClassDragsAfterACopyAndIsRefused();
    void theCopyIsADeepOne();
    void anyPlaceOfAnItemIsTheItem_data();
    void anyPlaceOfAnItemIsTheItem();
    void emptySpaceIsTheEndOfTheTopLevel_data();
    void emptySpaceIsTheEndOfTheTopLevel();
    void ontoItsOwnDescendant_data();
    void ontoItsOwnDescendant();
    void intoAnotherTree_data();
    void intoAnotherTree();
    void refusingTarget_data();
    void refusingTarget();
    void droppedNowhere_data();
    void droppedNowhere();
    void dragsFromOtherViewsAreRefused_data();
    void dragsFromOtherViewsAreRefused();
    void otherDragsFromATreeAreRefused();
    void payloadsWithoutAnItemAreLeftAlone_data();
    void payloadsWithoutAnItemAreLeftAlone();
    void aDropOnTheDraggedItemGoesToTheEndOfTheTopLevel();
    void theReceivingTreesFlagIsTheReportedAction_data();
    void theReceivingTreesFlagIsTheReportedAction();
    void theSourceTreesFlagDecidesOverTheItem_data();
    void theSourceTreesFlagDecidesOverTheItem();
    void hoveringMakesTheItemCurrent();
    void hoveringOverItselfKeepsTheCurrentItem();
    void hoveringShowsNoDropIndicator();
    void controlPressedDuringADragIsNotSeen();
    void controlReleasedDuringADragIsMissed();
    void theTreeTakesClicksAfterADrag_data();
    void theTreeTakesClicksAfterADrag();
    void otherButtonsDragNothingThatATreeTakes_data();
    void otherButtonsDragNothingThatATreeTakes();
};

void tst_RyTreeWidget_Window::movingOntoAnItemAppendsItAsTheLastChild_data()
{
    QTest::addColumn<QByteArray>("item");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QStringList>("content");
    const auto row = [](const char *item, const char *target, const char *content) {
        QTest::addRow("%s onto %s", item, target)
            << QByteArray(item) << QByteArray(target) << lines(content);
    };
    row("c", "d", "a,  a1,  a2,b,  b1,d,  c");
    row("c", "b", "a,  a1,  a2,b,  b1,  c,d");
    row("a", "b", "b,  b1,  a,    a1,    a2,c,d");
    row("b", "a2", "a,  a1,  a2,    b,      b1,c,d");
    row("a1", "d", "a,  a2,b,  b1,c,d,  a1");
    row("d", "a", "a,  a1,  a2,  d,b,  b1,c");
    row("a1", "a", "a,  a2,  a1,b,  b1,c,d");
}

void tst_RyTreeWidget_Window::movingOntoAnItemAppendsItAsTheLastChild()
{
    QFETCH(QByteArray, item);
    QFETCH(QByteArray, target);
    QFETCH(QStringList, content);
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.tree, item.constData());
    stage.carryTo(stage.tree, target.constData());
    stage.drop();
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.tree), content);
    const QString over = QString("tree over %1: move").arg(target.constData());
    QCOMPARE(stage.log, (QStringList{"tree enter: move", over, "tree drop: move"}));
}

void tst_RyTreeWidget_Window::copyingOntoAnItemKeepsTheOriginal_data()
{
    QTest::addColumn<bool>("controlFirst");
    QTest::addColumn<bool>("atOnce");
    QTest::newRow("Control after the press") << false << false;
    QTest::newRow("Control before the press") << true << false;
    QTest::newRow("Control after the press, at once") << false << true;
    QTest::newRow("Control before the press, at once") << true << true;
}

void tst_RyTreeWidget_Window::copyingOntoAnItemKeepsTheOriginal()
{
    QFETCH(bool, controlFirst);
    QFETCH(bool, atOnce);
    Stage stage;
    QVERIFY(stage.show());
    QWidget *const viewport = stage.tree->viewport();
    const QPoint start = Stage::centerOf(stage.tree, "a");
    stage.user.moveTo(viewport, start);
    if (controlFirst)
        stage.user.pressKey(Qt::Key_Control);
    stage.user.press();
    if (!controlFirst)
        stage.user.pressKey(Qt::Key_Control);
    if (!atOnce)
        stage.user.moveTo(viewport, start + QPoint(2, 0));
    stage.carryTo(stage.tree, "b");
    stage.drop(true);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.tree), lines("a,  a1,  a2,b,  b1,  a,    a1,    a2,c,d"));
    QCOMPARE(stage.log.mid(0, 3), lines("tree enter: copy,tree over b: copy,tree drop: copy"));
}

// The small move before the drag makes the base class ready for a drag of its own, which it starts
// as soon as the move that started the tree's drag is passed on to it.
void tst_RyTreeWidget_Window::theBaseClassDragsAfterACopyAndIsRefused()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.tree, "c", true);
    stage.carryTo(stage.tree, "b");
    stage.drop(true);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.tree), lines("a,  a1,  a2,b,  b1,  c,c,d"));
    QCOMPARE(
        stage.log,
        (QStringList{"tree enter: copy", "tree over b: copy", "tree drop: copy",
                     "tree drag by the base class", "tree enter: copy", "tree over b: refused"}));
}

void tst_RyTreeWidget_Window::theCopyIsADeepOne()
{
    Stage stage;
    QVERIFY(stage.show());
    QTreeWidgetItem *const original = itemNamed(stage.tree, "a");
    original->setData(0, Qt::UserRole, 7);
    original->setToolTip(0, "tip");
    original->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable);
    original->child(1)->setData(0, Qt::UserRole, 8);
    stage.pickUp(stage.tree, "a", true);
    stage.carryTo(stage.other, "x");
    stage.drop(true);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.other), lines("x,  a,    a1,    a2,y"));
    const QTreeWidgetItem *const copy = itemNamed(stage.other, "a");
    QVERIFY(copy != original);
    QCOMPARE(copy->data(0, Qt::UserRole).toInt(), 7);
    QCOMPARE(copy->toolTip(0), "tip");
    QCOMPARE(copy->flags(), original->flags());
    QVERIFY(copy->child(1) != original->child(1));
    QCOMPARE(copy->child(1)->data(0, Qt::UserRole).toInt(), 8);
}

void tst_RyTreeWidget_Window::anyPlaceOfAnItemIsTheItem_data()
{
    QTest::addColumn<int>("edge");
    QTest::newRow("top") << 0;
    QTest::newRow("bottom") << 1;
}

void tst_RyTreeWidget_Window::anyPlaceOfAnItemIsTheItem()
{
    QFETCH(int, edge);
    Stage stage;
    QVERIFY(stage.show());
    const QRect rect = stage.tree->visualItemRect(itemNamed(stage.tree, "b"));
    stage.pickUp(stage.tree, "d");
    stage.carryTo(stage.tree->viewport(),
                  QPoint(rect.center().x(), edge == 0 ? rect.top() : rect.bottom()));
    stage.drop();
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.tree), lines("a,  a1,  a2,b,  b1,  d,c"));
}

void tst_RyTreeWidget_Window::emptySpaceIsTheEndOfTheTopLevel_data()
{
    QTest::addColumn<QByteArray>("item");
    QTest::addColumn<bool>("copying");
    QTest::addColumn<QStringList>("content");
    QTest::newRow("move") << QByteArray("a") << false << lines("b,  b1,c,d,a,  a1,  a2");
    QTest::newRow("move a child") << QByteArray("a1") << false << lines("a,  a2,b,  b1,c,d,a1");
    QTest::newRow("copy") << QByteArray("a") << true << lines("a,  a1,  a2,b,  b1,c,d,a,  a1,  a2");
    QTest::newRow("copy a child") << QByteArray("a1") << true << lines("a,  a1,  a2,b,  b1,c,d,a1");
}

void tst_RyTreeWidget_Window::emptySpaceIsTheEndOfTheTopLevel()
{
    QFETCH(QByteArray, item);
    QFETCH(bool, copying);
    QFETCH(QStringList, content);
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.tree, item.constData(), copying);
    stage.carryTo(stage.tree->viewport(), Stage::emptyPlaceOf(stage.tree));
    stage.drop(copying);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.tree), content);
    QCOMPARE(stage.log.value(1), copying ? "tree over nothing: copy" : "tree over nothing: move");
}

void tst_RyTreeWidget_Window::ontoItsOwnDescendant_data()
{
    QTest::addColumn<bool>("copying");
    QTest::addColumn<QStringList>("content");
    QTest::newRow("the whole subtree vanishes by a move") << false << lines("b,  b1,c,d");
    QTest::newRow("copy") << true << lines("a,  a1,    a,      a1,      a2,  a2,b,  b1,c,d");
}

void tst_RyTreeWidget_Window::ontoItsOwnDescendant()
{
    QFETCH(bool, copying);
    QFETCH(QStringList, content);
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.tree, "a", copying);
    stage.carryTo(stage.tree, "a1");
    stage.drop(copying);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.tree), content);
    QVERIFY(stage.log.contains(copying ? "tree drop: copy" : "tree drop: move"));
}

void tst_RyTreeWidget_Window::intoAnotherTree_data()
{
    QTest::addColumn<bool>("emptySpace");
    QTest::addColumn<bool>("copying");
    QTest::addColumn<QStringList>("content");
    QTest::newRow("move onto an item") << false << false << lines("x,  a,    a1,    a2,y");
    QTest::newRow("copy onto an item") << false << true << lines("x,  a,    a1,    a2,y");
    QTest::newRow("move onto empty space") << true << false << lines("x,y,a,  a1,  a2");
    QTest::newRow("copy onto empty space") << true << true << lines("x,y,a,  a1,  a2");
}

void tst_RyTreeWidget_Window::intoAnotherTree()
{
    QFETCH(bool, emptySpace);
    QFETCH(bool, copying);
    QFETCH(QStringList, content);
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.tree, "a", copying);
    if (emptySpace)
        stage.carryTo(stage.other->viewport(), Stage::emptyPlaceOf(stage.other));
    else
        stage.carryTo(stage.other, "x");
    stage.drop(copying);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.other), content);
    QCOMPARE(itemsOf(stage.tree), copying ? filledContent() : lines("b,  b1,c,d"));
}

void tst_RyTreeWidget_Window::refusingTarget_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("copying");
    for (const char *const target : {"label", "plain tree", "list", "line edit", "frame"}) {
        QTest::addRow("%s, move", target) << QByteArray(target) << false;
        QTest::addRow("%s, copy", target) << QByteArray(target) << true;
    }
}

void tst_RyTreeWidget_Window::refusingTarget()
{
    QFETCH(QByteArray, target);
    QFETCH(bool, copying);
    Stage stage;
    QVERIFY(stage.show());
    // At once, lest the base class too makes a drag of the copied item, which other views take.
    stage.user.moveTo(stage.tree->viewport(), Stage::centerOf(stage.tree, "c"));
    if (copying)
        stage.user.pressKey(Qt::Key_Control);
    stage.user.press();
    if (target == "label")
        stage.carryTo(stage.label, stage.label->rect().center());
    else if (target == "plain tree")
        stage.carryTo(stage.plain, "b");
    else if (target == "list")
        stage.carryTo(stage.list->viewport(), Stage::emptyPlaceOf(stage.list));
    else if (target == "line edit")
        stage.carryTo(stage.line, stage.line->rect().center());
    else
        stage.carryTo(&stage.window, QPoint(5, 5));
    stage.drop(copying);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.tree), copying ? filledContent() : filledContentWithoutC());
    QCOMPARE(itemsOf(stage.other), lines("x,y"));
    QCOMPARE(itemsOf(stage.plain), filledContent());
    QCOMPARE(rowsOf(stage.list), lines("p,q"));
    QCOMPARE(stage.line->text(), QString());
}

void tst_RyTreeWidget_Window::droppedNowhere_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<bool>("copying");
    for (const char *const end : {"outside of all windows", "cancelled", "on itself"}) {
        QTest::addRow("%s, move", end) << QByteArray(end) << false;
        QTest::addRow("%s, copy", end) << QByteArray(end) << true;
    }
}

void tst_RyTreeWidget_Window::droppedNowhere()
{
    QFETCH(QByteArray, end);
    QFETCH(bool, copying);
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.tree, "c", copying);
    if (end == "on itself")
        stage.carryTo(stage.tree->viewport(), Stage::centerOf(stage.tree, "c") + QPoint(40, 0));
    else
        stage.carryTo(stage.tree, "b");
    if (end == "outside of all windows")
        stage.user.dragOut();
    else if (end == "cancelled")
        stage.user.cancelDrag();
    stage.drop(copying);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.tree), copying ? filledContent() : filledContentWithoutC());
    QVERIFY(stage.log.filter("drop").isEmpty());
    QCOMPARE(stage.log.value(1).contains("refused"), end == "on itself");
}

void tst_RyTreeWidget_Window::dragsFromOtherViewsAreRefused_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<bool>("emptySpace");
    QTest::newRow("plain tree onto an item") << QByteArray("plain tree") << false;
    QTest::newRow("plain tree onto empty space") << QByteArray("plain tree") << true;
    QTest::newRow("list onto an item") << QByteArray("list") << false;
    QTest::newRow("list onto empty space") << QByteArray("list") << true;
}

void tst_RyTreeWidget_Window::dragsFromOtherViewsAreRefused()
{
    QFETCH(QByteArray, source);
    QFETCH(bool, emptySpace);
    Stage stage;
    QVERIFY(stage.show());
    if (source == "plain tree") {
        stage.pickUp(stage.plain, "c");
    } else {
        const QPoint start = stage.list->visualItemRect(stage.list->item(0)).center();
        stage.user.moveTo(stage.list->viewport(), start);
        stage.user.press();
        stage.user.moveTo(stage.list->viewport(), start + QPoint(2, 0));
    }
    if (emptySpace)
        stage.carryTo(stage.tree->viewport(), Stage::emptyPlaceOf(stage.tree));
    else
        stage.carryTo(stage.tree, "b");
    stage.drop();
    stage.tree->setCurrentItem(itemNamed(stage.tree, "d"));
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(stage.log, QStringList{"tree enter: refused"});
    QCOMPARE(itemsOf(stage.tree), filledContent());
    QCOMPARE(currentOf(stage.tree), "d");
    QCOMPARE(itemsOf(stage.plain), filledContent());
    QCOMPARE(rowsOf(stage.list), lines("p,q"));
}

void tst_RyTreeWidget_Window::otherDragsFromATreeAreRefused()
{
    Stage stage;
    QVERIFY(stage.show());
    Qt::DropAction result = Qt::LinkAction;
    stage.user.moveTo(stage.tree->viewport(), Stage::centerOf(stage.tree, "c"));
    stage.user.press();
    bool started = false;
    const auto drag = [&] {
        QDrag *const ofText = new QDrag(stage.tree);
        QMimeData *const payload = new QMimeData;
        payload->setText("words");
        ofText->setMimeData(payload);
        started = true;
        result = ofText->exec(Qt::CopyAction | Qt::MoveAction);
    };
    stage.user.step(
        "drag", [&] { QTimer::singleShot(0, stage.tree, drag); }, [&] { return started; });
    stage.user.moveTo(stage.other->viewport(), Stage::centerOf(stage.other, "x"));
    stage.user.drop();
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(
        stage.log,
        lines("tree enter: move,tree over c: refused,other enter: move,other over x: refused"));
    QCOMPARE(result, Qt::IgnoreAction);
    QCOMPARE(itemsOf(stage.other), lines("x,y"));
    QCOMPARE(currentOf(stage.other), QString());
    QCOMPARE(itemsOf(stage.tree), filledContent());
}

void tst_RyTreeWidget_Window::payloadsWithoutAnItemAreLeftAlone_data()
{
    QTest::addColumn<bool>("treePayload");
    QTest::newRow("text") << false;
    QTest::newRow("null item") << true;
}

// Qt asks nobody for a drop where the move was refused, so these events are made by hand.
void tst_RyTreeWidget_Window::payloadsWithoutAnItemAreLeftAlone()
{
    QFETCH(bool, treePayload);
    Stage stage;
    QVERIFY(stage.show());
    QMimeData text;
    text.setText("words");
    RyTreeItemMimeData item;
    item.SetDragData("ItemMimeData", nullptr);
    const QMimeData *const payload = treePayload ? &item : &text;
    const QPoint place = Stage::centerOf(stage.other, "x");
    QDragMoveEvent over(place, Qt::MoveAction, payload, Qt::LeftButton, Qt::NoModifier);
    QDropEvent dropped(place, Qt::MoveAction, payload, Qt::LeftButton, Qt::NoModifier);
    over.accept();
    QVERIFY(!dropped.isAccepted());
    const QObject *source = nullptr;
    stage.pickUp(stage.tree, "c");
    stage.carryTo(stage.tree, "b");
    stage.user.act([&] {
        source = dropped.source();
        stage.other->dragMoveEvent(&over);
        stage.other->dropEvent(&dropped);
    });
    stage.user.cancelDrag();
    stage.user.drop();
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(source, stage.tree);
    QVERIFY(!over.isAccepted());
    QVERIFY(!dropped.isAccepted());
    QCOMPARE(currentOf(stage.other), QString());
    QCOMPARE(itemsOf(stage.other), lines("x,y"));
}

void tst_RyTreeWidget_Window::aDropOnTheDraggedItemGoesToTheEndOfTheTopLevel()
{
    Stage stage;
    QVERIFY(stage.show());
    RyTreeItemMimeData payload;
    payload.SetDragData("ItemMimeData", itemNamed(stage.tree, "a1"));
    QDropEvent dropped(Stage::centerOf(stage.tree, "a1"), Qt::MoveAction, &payload, Qt::LeftButton,
                       Qt::NoModifier);
    stage.pickUp(stage.tree, "c");
    stage.carryTo(stage.tree, "b");
    stage.user.act([&] { stage.tree->dropEvent(&dropped); });
    stage.user.cancelDrag();
    stage.user.drop();
    QCOMPARE(stage.user.run(), QString());
    QVERIFY(dropped.isAccepted());
    QCOMPARE(itemsOf(stage.tree), lines("a,  a1,  a2,b,  b1,d,a1"));
}

void tst_RyTreeWidget_Window::theReceivingTreesFlagIsTheReportedAction_data()
{
    QTest::addColumn<bool>("receiverFlag");
    QTest::addColumn<bool>("sourceFlag");
    QTest::newRow("none") << false << false;
    QTest::newRow("receiver only") << true << false;
    QTest::newRow("source only") << false << true;
    QTest::newRow("both") << true << true;
}

// A tree offers one action alone, and Qt replaces an answer that was not offered. So these events
// are made by hand; what they need is a drag from a tree.
void tst_RyTreeWidget_Window::theReceivingTreesFlagIsTheReportedAction()
{
    QFETCH(bool, receiverFlag);
    QFETCH(bool, sourceFlag);
    Stage stage;
    QVERIFY(stage.show());
    RyTreeItemMimeData payload;
    payload.SetDragData("ItemMimeData", itemNamed(stage.tree, "a1"));
    const QPoint place = Stage::centerOf(stage.other, "x");
    const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    QDragEnterEvent enter(place, offered, &payload, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent over(place, offered, &payload, Qt::LeftButton, Qt::NoModifier);
    QDropEvent dropped(place, offered, &payload, Qt::LeftButton, Qt::NoModifier);
    const QList<QDropEvent *> events = {&enter, &over, &dropped};
    for (QDropEvent *event : events) {
        event->setDropAction(Qt::LinkAction);
        event->ignore();
    }
    if (receiverFlag)
        stage.leaveControlSet(stage.other);
    if (sourceFlag)
        stage.leaveControlSet(stage.tree);
    stage.pickUp(stage.tree, "c");
    stage.carryTo(stage.tree, "b");
    stage.user.act([&] {
        stage.other->dragEnterEvent(&enter);
        stage.other->dragMoveEvent(&over);
        stage.other->dropEvent(&dropped);
    });
    stage.user.cancelDrag();
    stage.user.drop();
    QCOMPARE(stage.user.run(), QString());
    for (const QDropEvent *event : events) {
        QVERIFY(event->isAccepted());
        QCOMPARE(event->dropAction(), receiverFlag ? Qt::CopyAction : Qt::MoveAction);
    }
    QCOMPARE(itemsOf(stage.other), lines("x,  a1,y"));
    QCOMPARE(currentOf(stage.other), "x");
}

void tst_RyTreeWidget_Window::theSourceTreesFlagDecidesOverTheItem_data()
{
    QTest::addColumn<bool>("sourceFlag");
    QTest::newRow("receiver only") << false;
    QTest::newRow("source only") << true;
}

void tst_RyTreeWidget_Window::theSourceTreesFlagDecidesOverTheItem()
{
    QFETCH(bool, sourceFlag);
    Stage stage;
    QVERIFY(stage.show());
    stage.leaveControlSet(sourceFlag ? stage.tree : stage.other);
    stage.pickUp(stage.tree, "c");
    stage.carryTo(stage.other, "x");
    stage.drop();
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.other), lines("x,  c,y"));
    QCOMPARE(itemsOf(stage.tree), sourceFlag ? filledContent() : filledContentWithoutC());
}

void tst_RyTreeWidget_Window::hoveringMakesTheItemCurrent()
{
    Stage stage;
    QVERIFY(stage.show());
    QStringList currents;
    const auto note = [&](const QTreeWidget *view) {
        stage.user.act(
            [&currents, view] { currents << view->objectName() + " " + currentOf(view); });
    };
    stage.pickUp(stage.tree, "c");
    stage.carryTo(stage.tree, "b");
    note(stage.tree);
    stage.carryTo(stage.tree, "a2");
    note(stage.tree);
    stage.carryTo(stage.other, "y");
    note(stage.other);
    note(stage.tree);
    stage.carryTo(stage.other, "x");
    note(stage.other);
    stage.carryTo(stage.other->viewport(), Stage::emptyPlaceOf(stage.other));
    note(stage.other);
    stage.user.cancelDrag();
    stage.user.drop();
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(currents, lines("tree b,tree a2,other y,tree a2,other x,other "));
    QCOMPARE(itemsOf(stage.tree), filledContentWithoutC());
}

void tst_RyTreeWidget_Window::hoveringOverItselfKeepsTheCurrentItem()
{
    Stage stage;
    QVERIFY(stage.show());
    QString current;
    stage.pickUp(stage.tree, "c");
    stage.carryTo(stage.tree, "a2");
    stage.carryTo(stage.tree, "c");
    stage.user.act([&] { current = currentOf(stage.tree); });
    stage.carryTo(stage.tree, "d");
    stage.drop();
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(current, "a2");
    QCOMPARE(stage.log,
             lines("tree enter: move,tree over a2: move,tree over c: refused,"
                   "tree over d: move,tree drop: move"));
    QCOMPARE(itemsOf(stage.tree), lines("a,  a1,  a2,b,  b1,d,  c"));
}

void tst_RyTreeWidget_Window::hoveringShowsNoDropIndicator()
{
    Stage stage;
    QVERIFY(stage.show());
    const QRect rect = stage.tree->visualItemRect(itemNamed(stage.tree, "b"));
    bool indicated = true;
    stage.pickUp(stage.tree, "c");
    stage.carryTo(stage.tree->viewport(), QPoint(rect.center().x(), rect.top()));
    stage.user.act([&] { indicated = stage.tree->indicatesADropAboveAnItem(); });
    stage.drop();
    QCOMPARE(stage.user.run(), QString());
    QVERIFY(!indicated);
}

void tst_RyTreeWidget_Window::controlPressedDuringADragIsNotSeen()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.tree, "c");
    stage.carryTo(stage.tree, "b");
    stage.user.step(
        "Control", [&] { stage.user.input.pressKey(Qt::Key_Control); },
        [] { return QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier); });
    stage.carryTo(stage.tree, "d");
    stage.drop(true);
    QCOMPARE(stage.user.run(), QString());
    QVERIFY(stage.log.contains("tree drop: move"));
    QCOMPARE(itemsOf(stage.tree), lines("a,  a1,  a2,b,  b1,d,  c"));
}

void tst_RyTreeWidget_Window::controlReleasedDuringADragIsMissed()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.tree, "c", true);
    stage.carryTo(stage.tree, "b");
    stage.user.step(
        "no Control", [&] { stage.user.input.releaseKey(Qt::Key_Control); },
        [] { return !QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier); });
    stage.carryTo(stage.tree, "d");
    stage.drop();
    stage.pickUp(stage.tree, "a1");
    stage.carryTo(stage.other, "x");
    stage.drop();
    QCOMPARE(stage.user.run(), QString());
    QVERIFY(stage.log.contains("tree drop: copy"));
    QCOMPARE(itemsOf(stage.tree), lines("a,  a1,  a2,b,  b1,c,d,  c"));
    QCOMPARE(itemsOf(stage.other), lines("x,  a1,y"));
}

void tst_RyTreeWidget_Window::theTreeTakesClicksAfterADrag_data()
{
    addActionRows();
}

void tst_RyTreeWidget_Window::theTreeTakesClicksAfterADrag()
{
    QFETCH(bool, copying);
    Stage stage;
    QVERIFY(stage.show());
    stage.pickUp(stage.tree, "c", copying);
    stage.carryTo(stage.other, "x");
    stage.drop(copying);
    stage.user.moveTo(stage.tree->viewport(), Stage::centerOf(stage.tree, "a1"));
    stage.user.press();
    stage.user.release();
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(currentOf(stage.tree), "a1");
    QCOMPARE(stage.tree->selectedItems(), QList<QTreeWidgetItem *>{stage.tree->currentItem()});
    QCOMPARE(itemsOf(stage.tree), copying ? filledContent() : filledContentWithoutC());
    QCOMPARE(itemsOf(stage.other), lines("x,  c,y"));
    QTRY_VERIFY(stage.tree->findChildren<QDrag *>().isEmpty());
}

void tst_RyTreeWidget_Window::otherButtonsDragNothingThatATreeTakes_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

// The tree leaves these buttons to its base class, which drags with any.
void tst_RyTreeWidget_Window::otherButtonsDragNothingThatATreeTakes()
{
    QFETCH(int, button);
    Stage stage;
    QVERIFY(stage.show());
    stage.user.moveTo(stage.tree->viewport(), Stage::centerOf(stage.tree, "c"));
    stage.user.press(Qt::MouseButton(button));
    stage.carryTo(stage.tree, "a");
    stage.user.drop(Qt::MouseButton(button));
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(itemsOf(stage.tree), filledContent());
    QCOMPARE(stage.log, lines("tree drag by the base class,tree enter: move,tree over a: refused"));
}

QTEST_MAIN(tst_RyTreeWidget_Window)

#include "tst_rytreewidget_window.moc"
