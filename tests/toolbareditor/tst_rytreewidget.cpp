// SPDX-License-Identifier: MIT

#include "rytreeitemmimedata.h"
#include "rytreewidget.h"
#include "testcase.h"
#include "texts.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(QTreeWidgetItem *)
Q_DECLARE_METATYPE(Qt::MouseButton)

/*
 * Without a display a drag ends at once, as one that nobody takes. Its QDrag stays a child of the
 * tree until the next deferred deletion, so that a test can look at it.
 */

namespace {

// Takes the keys that reach a tree's parent.
class KeyTaker : public QWidget
{
public:
    QStringList keys;

protected:
    void keyPressEvent(QKeyEvent *) override { keys << "press"; }
    void keyReleaseEvent(QKeyEvent *) override { keys << "release"; }
};

// Opens what Qt calls on a tree that a drag is over.
class OpenTree : public RyTreeWidget
{
public:
    using RyTreeWidget::dragEnterEvent;
    using RyTreeWidget::dragMoveEvent;
    using RyTreeWidget::dropEvent;
};

void fill(QTreeWidget &tree)
{
    tree.setHeaderHidden(true);
    QTreeWidgetItem *const a = new QTreeWidgetItem(&tree, {"a"});
    new QTreeWidgetItem(a, {"a1"});
    new QTreeWidgetItem(a, {"a2"});
    QTreeWidgetItem *const b = new QTreeWidgetItem(&tree, {"b"});
    new QTreeWidgetItem(b, {"b1"});
    new QTreeWidgetItem(&tree, {"c"});
    new QTreeWidgetItem(&tree, {"d"});
    a->setExpanded(true);
    tree.resize(200, 300);
}

QStringList filledContent()
{
    return lines("a,  a1,  a2,b,  b1,c,d");
}

QStringList filledContentWithout(const QString &item)
{
    QStringList content = filledContent();
    content.removeAll(item);
    return content;
}

QPoint centerOf(QTreeWidget &tree, const QString &text)
{
    return tree.visualItemRect(itemNamed(&tree, text)).center();
}

void makeCurrent(QTreeWidget &tree, const QString &text)
{
    tree.setCurrentItem(itemNamed(&tree, text));
}

QStringList selectedIn(const QTreeWidget &tree)
{
    QStringList texts;
    const auto items = tree.selectedItems();
    for (const QTreeWidgetItem *item : items)
        texts << item->text(0);
    texts.sort();
    return texts;
}

void sendMouse(QTreeWidget &tree, QEvent::Type type, const QPoint &position, Qt::MouseButton button,
               Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWidget *const viewport = tree.viewport();
    QMouseEvent event(type, position, viewport->mapToGlobal(position), button, buttons, modifiers);
    QCoreApplication::sendEvent(viewport, &event);
}

void press(QTreeWidget &tree, const QPoint &position, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(tree, QEvent::MouseButtonPress, position, button, button);
}

void release(QTreeWidget &tree, const QPoint &position, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(tree, QEvent::MouseButtonRelease, position, button, Qt::NoButton);
}

void move(QTreeWidget &tree, const QPoint &position, Qt::MouseButtons buttons = Qt::LeftButton,
          Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    sendMouse(tree, QEvent::MouseMove, position, Qt::NoButton, buttons, modifiers);
}

bool sendKey(QWidget &widget, QEvent::Type type, int key,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = QString())
{
    QKeyEvent event(type, key, modifiers, text);
    QCoreApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

void pressControl(QWidget &widget)
{
    sendKey(widget, QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);
}

void releaseControl(QWidget &widget)
{
    sendKey(widget, QEvent::KeyRelease, Qt::Key_Control);
}

QString describe(const QDrag *drag)
{
    const QString action = drag->supportedActions() == Qt::CopyAction ? "copy"
        : drag->supportedActions() == Qt::MoveAction                  ? "move"
                                                                      : "several";
    return action + " " + drag->mimeData()->formats().join(' ');
}

// The drags that a tree has started, each with the offered action and the formats.
QStringList dragsOf(const QTreeWidget &tree)
{
    QStringList drags;
    const auto all = tree.findChildren<QDrag *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QDrag *drag : all)
        drags << describe(drag);
    return drags;
}

QStringList oneMove()
{
    return {"move ItemMimeData"};
}

QStringList oneCopy()
{
    return {"copy ItemMimeData"};
}

QPoint farFrom(const QPoint &position)
{
    return position + QPoint(QApplication::startDragDistance() + 1, 0);
}

// All that a key could change in a tree.
QStringList stateOf(const QTreeWidget &tree)
{
    QStringList expanded;
    const auto items = tree.findItems(QString(), Qt::MatchContains | Qt::MatchRecursive);
    for (const QTreeWidgetItem *item : items) {
        if (item->isExpanded())
            expanded << item->text(0);
    }
    const bool editing = tree.viewport()->findChild<QLineEdit *>();
    return itemsOf(&tree) << "current " + currentOf(&tree)
                          << "selected " + selectedIn(tree).join(' ')
                          << "expanded " + expanded.join(' ')
                          << QString("check state %1").arg(tree.currentItem()->checkState(0))
                          << (editing ? "editing" : "not editing");
}

} // namespace

class tst_RyTreeWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isConstructedEmptyAndReadyForDrags();
    void belongsToItsParent();
    void selectedItemsArePaintedOnDarkRed();

    void keysDoNothing_data();
    void keysDoNothing();

    void controlKeyChoosesTheOfferedAction_data();
    void controlKeyChoosesTheOfferedAction();
    void controlReleasedInAnotherWidgetIsMissed();
    void theControlModifierOfTheMouseEventIsNotLookedAt();
    void eachTreeHasItsOwnControlFlag();

    void pressGoesToTheBaseClass_data();
    void pressGoesToTheBaseClass();
    void releaseGoesToTheBaseClass();
    void moveGoesToTheBaseClass();
    void moveGoesToTheBaseClassAfterADrag_data();
    void moveGoesToTheBaseClassAfterADrag();
    void theBaseClassDragsTheItemOnceMoreAfterACopy();
    void clickingABranchOpensIt();

    void dragStartsBeyondTheStartDistance_data();
    void dragStartsBeyondTheStartDistance();
    void onlyTheLeftButtonDrags_data();
    void onlyTheLeftButtonDrags();
    void theDistanceIsMeasuredFromTheOriginBeforeAnyPress_data();
    void theDistanceIsMeasuredFromTheOriginBeforeAnyPress();
    void aNewLeftPressMovesTheStart();
    void otherButtonsDoNotMoveTheStart_data();
    void otherButtonsDoNotMoveTheStart();
    void theStartOutlivesTheDrag();

    void performDragWithoutACurrentItemDoesNothing();
    void aRefusedDragOfTheCurrentItemDeletesItUnlessItIsACopy_data();
    void aRefusedDragOfTheCurrentItemDeletesItUnlessItIsACopy();
    void theDragObjectIsBareAndTheTrees();
    void theDragObjectIsNotDeletedByTheTree();
    void onlyTheCurrentItemIsDraggedWhateverIsSelected();

    void dragsWithoutASourceTreeAreLeftAlone_data();
    void dragsWithoutASourceTreeAreLeftAlone();

protected:
    void finish() override;

private:
    const int m_startDistance = QApplication::startDragDistance();
};

// For the spies of the tree's signals.
void tst_RyTreeWidget::initTestCase()
{
    qRegisterMetaType<QTreeWidgetItem *>();
}

void tst_RyTreeWidget::finish()
{
    QApplication::setStartDragDistance(m_startDistance);
}

void tst_RyTreeWidget::isConstructedEmptyAndReadyForDrags()
{
    const RyTreeWidget tree;
    QCOMPARE(tree.parentWidget(), nullptr);
    QCOMPARE(tree.topLevelItemCount(), 0);
    QCOMPARE(tree.selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(tree.acceptDrops());
    QVERIFY(tree.dragEnabled());
    QCOMPARE(tree.dragDropMode(), QAbstractItemView::DragDrop);
    QCOMPARE(tree.styleSheet(), "QTreeWidget::item:selected{ background-color: rgb(150, 0, 0)}");
}

void tst_RyTreeWidget::belongsToItsParent()
{
    std::unique_ptr<QWidget> parent(new QWidget);
    const QPointer<RyTreeWidget> tree = new RyTreeWidget(parent.get());
    QCOMPARE(tree->parentWidget(), parent.get());
    parent.reset();
    QVERIFY(!tree);
}

void tst_RyTreeWidget::selectedItemsArePaintedOnDarkRed()
{
    RyTreeWidget tree;
    fill(tree);
    tree.show();
    makeCurrent(tree, "c");
    const QRect selected = tree.visualItemRect(itemNamed(&tree, "c"));
    const QRect other = tree.visualItemRect(itemNamed(&tree, "d"));
    const QImage picture = tree.viewport()->grab().toImage();
    const QPoint inset(-10, -3);
    QCOMPARE(QColor(picture.pixel(selected.bottomRight() + inset)), QColor(150, 0, 0));
    QCOMPARE(QColor(picture.pixel(other.bottomRight() + inset)),
             tree.palette().color(QPalette::Base));
}

void tst_RyTreeWidget::keysDoNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, int key, const char *text, int modifiers = 0) {
        QTest::newRow(name) << key << modifiers << text;
    };
    row("up", Qt::Key_Up, "");
    row("down", Qt::Key_Down, "");
    row("left", Qt::Key_Left, "");
    row("right", Qt::Key_Right, "");
    row("home", Qt::Key_Home, "");
    row("page down", Qt::Key_PageDown, "");
    row("letter that an item starts with", Qt::Key_D, "d");
    row("letter that none starts with", Qt::Key_Z, "z");
    row("space", Qt::Key_Space, " ");
    row("return", Qt::Key_Return, "\r");
    row("escape", Qt::Key_Escape, "");
    row("delete", Qt::Key_Delete, "");
    row("edit key", Qt::Key_F2, "");
    row("asterisk", Qt::Key_Asterisk, "*");
    row("shift", Qt::Key_Shift, "", Qt::ShiftModifier);
    row("control", Qt::Key_Control, "", Qt::ControlModifier);
    row("down extending", Qt::Key_Down, "", Qt::ShiftModifier);
    row("select all", Qt::Key_A, "\001", Qt::ControlModifier);
    row("copy", Qt::Key_C, "\003", Qt::ControlModifier);
}

// Neither in the tree nor in its parent.
void tst_RyTreeWidget::keysDoNothing()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    KeyTaker parent;
    RyTreeWidget &tree = *new RyTreeWidget(&parent);
    fill(tree);
    QTreeWidgetItem *const current = itemNamed(&tree, "b");
    current->setFlags(current->flags() | Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
    current->setCheckState(0, Qt::Unchecked);
    tree.setEditTriggers(QAbstractItemView::AllEditTriggers);
    parent.show();
    tree.setCurrentItem(current);
    const QStringList before = stateOf(tree);
    QSignalSpy activated(&tree, &QTreeWidget::itemActivated);
    QApplication::clipboard()->setText("untouched");

    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QVERIFY(sendKey(tree, type, key, Qt::KeyboardModifiers(modifiers), text));
        QCOMPARE(stateOf(tree), before);
    }
    QCOMPARE(parent.keys, QStringList());
    QCOMPARE(dragsOf(tree), QStringList());
    QCOMPARE(activated.count(), 0);
    QCOMPARE(QApplication::clipboard()->text(), "untouched");
}

void tst_RyTreeWidget::controlKeyChoosesTheOfferedAction_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("drags");
    const auto keys = [](const char *text) { return QString(text).split(' ', Qt::SkipEmptyParts); };
    QTest::newRow("no key") << keys("") << oneMove();
    QTest::newRow("pressed") << keys("+Control") << oneCopy();
    QTest::newRow("pressed and released") << keys("+Control -Control") << oneMove();
    QTest::newRow("released only") << keys("-Control") << oneMove();
    QTest::newRow("pressed again") << keys("+Control -Control +Control") << oneCopy();
    QTest::newRow("repeated") << keys("+Control +Control") << oneCopy();
    QTest::newRow("repeated and released") << keys("+Control +Control -Control") << oneMove();
    QTest::newRow("another key pressed") << keys("+Shift") << oneMove();
    QTest::newRow("another key released") << keys("+Control -Shift") << oneCopy();
    QTest::newRow("another key clicked") << keys("+Control +A -A") << oneCopy();
    QTest::newRow("other modifiers") << keys("+Shift +Alt +Meta") << oneMove();
}

void tst_RyTreeWidget::controlKeyChoosesTheOfferedAction()
{
    QFETCH(QStringList, keys);
    QFETCH(QStringList, drags);
    const QHash<QString, int> codes = {{"Control", Qt::Key_Control},
                                       {"Shift", Qt::Key_Shift},
                                       {"Alt", Qt::Key_Alt},
                                       {"Meta", Qt::Key_Meta},
                                       {"A", Qt::Key_A}};
    RyTreeWidget tree;
    fill(tree);
    makeCurrent(tree, "c");
    for (const QString &key : std::as_const(keys)) {
        const bool down = key.startsWith('+');
        QVERIFY(codes.contains(key.mid(1)));
        sendKey(tree, down ? QEvent::KeyPress : QEvent::KeyRelease, codes.value(key.mid(1)),
                Qt::ControlModifier);
    }
    tree.performDrag();
    QCOMPARE(dragsOf(tree), drags);
    QCOMPARE(itemsOf(&tree), drags == oneCopy() ? filledContent() : filledContentWithout("c"));
}

void tst_RyTreeWidget::controlReleasedInAnotherWidgetIsMissed()
{
    RyTreeWidget tree;
    QLineEdit other;
    fill(tree);
    makeCurrent(tree, "c");
    pressControl(tree);
    releaseControl(other);
    tree.performDrag();
    QCOMPARE(dragsOf(tree), oneCopy());
    releaseControl(tree);
    tree.performDrag();
    QCOMPARE(dragsOf(tree), oneCopy() + oneMove());
}

void tst_RyTreeWidget::theControlModifierOfTheMouseEventIsNotLookedAt()
{
    RyTreeWidget tree;
    fill(tree);
    const QPoint start = centerOf(tree, "c");
    press(tree, start);
    move(tree, farFrom(start), Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(dragsOf(tree), oneMove());
    QCOMPARE(itemsOf(&tree), filledContentWithout("c"));
}

void tst_RyTreeWidget::eachTreeHasItsOwnControlFlag()
{
    RyTreeWidget tree;
    RyTreeWidget other;
    fill(tree);
    makeCurrent(tree, "c");
    pressControl(other);
    tree.performDrag();
    QCOMPARE(dragsOf(tree), oneMove());
}

void tst_RyTreeWidget::pressGoesToTheBaseClass_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
}

void tst_RyTreeWidget::pressGoesToTheBaseClass()
{
    QFETCH(Qt::MouseButton, button);
    RyTreeWidget tree;
    fill(tree);
    QSignalSpy pressed(&tree, &QTreeWidget::itemPressed);
    press(tree, centerOf(tree, "c"), button);
    QCOMPARE(currentOf(&tree), "c");
    QCOMPARE(selectedIn(tree), QStringList{"c"});
    QCOMPARE(pressed.count(), 1);
}

void tst_RyTreeWidget::releaseGoesToTheBaseClass()
{
    RyTreeWidget tree;
    fill(tree);
    QSignalSpy clicked(&tree, &QTreeWidget::itemClicked);
    const QPoint position = centerOf(tree, "c");
    press(tree, position);
    QCOMPARE(clicked.count(), 0);
    release(tree, position);
    QCOMPARE(clicked.count(), 1);
}

void tst_RyTreeWidget::moveGoesToTheBaseClass()
{
    RyTreeWidget tree;
    fill(tree);
    QStringList entered;
    connect(&tree, &QTreeWidget::itemEntered,
            [&](QTreeWidgetItem *item) { entered << item->text(0); });
    tree.setMouseTracking(true);
    move(tree, centerOf(tree, "c"), Qt::NoButton);
    QCOMPARE(entered, QStringList{"c"});
}

void tst_RyTreeWidget::moveGoesToTheBaseClassAfterADrag_data()
{
    QTest::addColumn<bool>("copying");
    QTest::newRow("move") << false;
    QTest::newRow("copy") << true;
}

void tst_RyTreeWidget::moveGoesToTheBaseClassAfterADrag()
{
    QFETCH(bool, copying);
    RyTreeWidget tree;
    fill(tree);
    if (copying)
        pressControl(tree);
    int dragsBefore = -1;
    connect(&tree, &QTreeWidget::itemEntered, [&] { dragsBefore = dragsOf(tree).count(); });
    tree.setMouseTracking(true);
    press(tree, centerOf(tree, "d"));
    move(tree, centerOf(tree, "a1"));
    QCOMPARE(dragsBefore, 1);
}

void tst_RyTreeWidget::theBaseClassDragsTheItemOnceMoreAfterACopy()
{
    RyTreeWidget tree;
    fill(tree);
    pressControl(tree);
    const QPoint start = centerOf(tree, "c");
    press(tree, start);
    move(tree, start + QPoint(1, 0));
    QCOMPARE(dragsOf(tree), QStringList());
    move(tree, farFrom(start));
    QCOMPARE(dragsOf(tree), oneCopy() << "several application/x-qabstractitemmodeldatalist");
    QCOMPARE(itemsOf(&tree), filledContent());
}

void tst_RyTreeWidget::clickingABranchOpensIt()
{
    RyTreeWidget tree;
    fill(tree);
    QTreeWidgetItem *const branch = itemNamed(&tree, "b");
    const QRect text = tree.visualItemRect(branch);
    const QPoint handle(text.left() - tree.indentation() / 2, text.center().y());
    QVERIFY(!branch->isExpanded());
    press(tree, handle);
    release(tree, handle);
    QVERIFY(branch->isExpanded());
}

void tst_RyTreeWidget::dragStartsBeyondTheStartDistance_data()
{
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<bool>("drags");
    QTest::newRow("no way") << QPoint(0, 0) << false;
    QTest::newRow("right, exactly") << QPoint(25, 0) << false;
    QTest::newRow("right, one more") << QPoint(26, 0) << true;
    QTest::newRow("left, exactly") << QPoint(-25, 0) << false;
    QTest::newRow("left, one more") << QPoint(-26, 0) << true;
    QTest::newRow("down, exactly") << QPoint(0, 25) << false;
    QTest::newRow("down, one more") << QPoint(0, 26) << true;
    QTest::newRow("up, exactly") << QPoint(0, -25) << false;
    QTest::newRow("up, one more") << QPoint(0, -26) << true;
    QTest::newRow("across, exactly") << QPoint(12, 13) << false;
    QTest::newRow("across, one more") << QPoint(13, 13) << true;
    QTest::newRow("across back, exactly") << QPoint(-12, -13) << false;
    QTest::newRow("across back, one more") << QPoint(-12, -14) << true;
}

void tst_RyTreeWidget::dragStartsBeyondTheStartDistance()
{
    QFETCH(QPoint, way);
    QFETCH(bool, drags);
    QApplication::setStartDragDistance(25);
    RyTreeWidget tree;
    fill(tree);
    const QPoint start = centerOf(tree, "c");
    press(tree, start);
    QCOMPARE(dragsOf(tree), QStringList());
    move(tree, start + way);
    QCOMPARE(dragsOf(tree), drags ? oneMove() : QStringList());
    QCOMPARE(itemsOf(&tree), drags ? filledContentWithout("c") : filledContent());
}

void tst_RyTreeWidget::onlyTheLeftButtonDrags_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<QStringList>("drags");
    QTest::newRow("none") << int(Qt::NoButton) << QStringList();
    QTest::newRow("right") << int(Qt::RightButton) << QStringList();
    QTest::newRow("middle") << int(Qt::MiddleButton) << QStringList();
    QTest::newRow("left") << int(Qt::LeftButton) << oneMove();
    QTest::newRow("left and right") << int(Qt::LeftButton | Qt::RightButton) << oneMove();
}

void tst_RyTreeWidget::onlyTheLeftButtonDrags()
{
    QFETCH(int, buttons);
    QFETCH(QStringList, drags);
    RyTreeWidget tree;
    fill(tree);
    makeCurrent(tree, "c");
    move(tree, QPoint(100, 100), Qt::MouseButtons(buttons));
    QCOMPARE(dragsOf(tree), drags);
}

void tst_RyTreeWidget::theDistanceIsMeasuredFromTheOriginBeforeAnyPress_data()
{
    const int distance = QApplication::startDragDistance();
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QStringList>("drags");
    QTest::newRow("exactly") << QPoint(distance - 4, 4) << QStringList();
    QTest::newRow("one more") << QPoint(distance - 4, 5) << oneMove();
}

void tst_RyTreeWidget::theDistanceIsMeasuredFromTheOriginBeforeAnyPress()
{
    QFETCH(QPoint, position);
    QFETCH(QStringList, drags);
    RyTreeWidget tree;
    fill(tree);
    makeCurrent(tree, "c");
    move(tree, position);
    QCOMPARE(dragsOf(tree), drags);
}

void tst_RyTreeWidget::aNewLeftPressMovesTheStart()
{
    RyTreeWidget tree;
    fill(tree);
    const QPoint first = centerOf(tree, "a");
    const QPoint second = centerOf(tree, "d");
    press(tree, first);
    release(tree, first);
    press(tree, second);
    move(tree, second + QPoint(QApplication::startDragDistance(), 0));
    QCOMPARE(dragsOf(tree), QStringList());
}

void tst_RyTreeWidget::otherButtonsDoNotMoveTheStart_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_RyTreeWidget::otherButtonsDoNotMoveTheStart()
{
    QFETCH(Qt::MouseButton, button);
    RyTreeWidget tree;
    fill(tree);
    const QPoint start = centerOf(tree, "a");
    const QPoint other = centerOf(tree, "d");
    press(tree, start);
    sendMouse(tree, QEvent::MouseButtonPress, other, button, Qt::LeftButton | button);
    move(tree, start + QPoint(QApplication::startDragDistance(), 0), Qt::LeftButton | button);
    QCOMPARE(dragsOf(tree), QStringList());
    move(tree, other, Qt::LeftButton | button);
    QCOMPARE(dragsOf(tree).first(), oneMove().first());
}

void tst_RyTreeWidget::theStartOutlivesTheDrag()
{
    RyTreeWidget tree;
    fill(tree);
    const QPoint start = centerOf(tree, "a1");
    press(tree, start);
    move(tree, farFrom(start));
    release(tree, farFrom(start));
    QCOMPARE(dragsOf(tree), oneMove());
    move(tree, start + QPoint(QApplication::startDragDistance(), 0));
    QCOMPARE(dragsOf(tree), oneMove());
    move(tree, farFrom(start));
    QCOMPARE(dragsOf(tree).mid(0, 2), oneMove() + oneMove());
}

void tst_RyTreeWidget::performDragWithoutACurrentItemDoesNothing()
{
    RyTreeWidget tree;
    fill(tree);
    itemNamed(&tree, "c")->setSelected(true);
    tree.setCurrentItem(nullptr);
    tree.performDrag();
    pressControl(tree);
    tree.performDrag();
    QCOMPARE(dragsOf(tree), QStringList());
    QCOMPARE(itemsOf(&tree), filledContent());
}

void tst_RyTreeWidget::aRefusedDragOfTheCurrentItemDeletesItUnlessItIsACopy_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("with children") << "a" << lines("b,  b1,c,d");
    QTest::newRow("with folded children") << "b" << lines("a,  a1,  a2,c,d");
    QTest::newRow("a child") << "a1" << lines("a,  a2,b,  b1,c,d");
    QTest::newRow("an only child") << "b1" << lines("a,  a1,  a2,b,c,d");
    QTest::newRow("the last one") << "d" << lines("a,  a1,  a2,b,  b1,c");
}

void tst_RyTreeWidget::aRefusedDragOfTheCurrentItemDeletesItUnlessItIsACopy()
{
    QFETCH(QString, item);
    QFETCH(QStringList, left);
    RyTreeWidget tree;
    fill(tree);
    makeCurrent(tree, item);
    const QTreeWidgetItem *const dragged = tree.currentItem();
    pressControl(tree);
    tree.performDrag();
    QCOMPARE(dragsOf(tree), oneCopy());
    QCOMPARE(itemsOf(&tree), filledContent());
    QCOMPARE(tree.currentItem(), dragged);
    releaseControl(tree);
    tree.performDrag();
    QCOMPARE(dragsOf(tree), oneCopy() + oneMove());
    QCOMPARE(itemsOf(&tree), left);
    const auto drags = tree.findChildren<QDrag *>();
    for (const QDrag *drag : drags) {
        const auto payload = qobject_cast<const RyTreeItemMimeData *>(drag->mimeData());
        QVERIFY(payload);
        QCOMPARE(payload->DragItemData(), dragged);
    }
}

void tst_RyTreeWidget::theDragObjectIsBareAndTheTrees()
{
    RyTreeWidget tree;
    fill(tree);
    makeCurrent(tree, "c");
    tree.performDrag();
    const QDrag *const drag = tree.findChild<QDrag *>();
    QVERIFY(drag);
    QCOMPARE(drag->parent(), &tree);
    QCOMPARE(drag->source(), &tree);
    QCOMPARE(drag->mimeData()->parent(), nullptr);
    QVERIFY(drag->pixmap().isNull());
    QCOMPARE(drag->hotSpot(), QDrag(&tree).hotSpot());
}

void tst_RyTreeWidget::theDragObjectIsNotDeletedByTheTree()
{
    RyTreeWidget tree;
    fill(tree);
    makeCurrent(tree, "c");
    tree.performDrag();
    const QPointer<QDrag> drag = tree.findChild<QDrag *>();
    QVERIFY(drag);
    const QPointer<const QMimeData> payload = drag->mimeData();
    // Qt deletes it, and the payload with it.
    QCoreApplication::sendPostedEvents(drag, QEvent::DeferredDelete);
    QVERIFY(!drag);
    QVERIFY(!payload);
}

void tst_RyTreeWidget::onlyTheCurrentItemIsDraggedWhateverIsSelected()
{
    RyTreeWidget tree;
    fill(tree);
    makeCurrent(tree, "c");
    for (const char *const selected : {"b", "c", "d"})
        itemNamed(&tree, selected)->setSelected(true);
    tree.performDrag();
    QCOMPARE(dragsOf(tree), oneMove());
    QCOMPARE(itemsOf(&tree), filledContentWithout("c"));
    tree.setCurrentItem(itemNamed(&tree, "d"), 0, QItemSelectionModel::NoUpdate);
    itemNamed(&tree, "d")->setSelected(false);
    tree.performDrag();
    QCOMPARE(itemsOf(&tree), lines("a,  a1,  a2,b,  b1"));
}

void tst_RyTreeWidget::dragsWithoutASourceTreeAreLeftAlone_data()
{
    QTest::addColumn<bool>("treePayload");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("text") << false << false;
    QTest::newRow("text, accepted before") << false << true;
    QTest::newRow("item") << true << false;
    QTest::newRow("item, accepted before") << true << true;
}

void tst_RyTreeWidget::dragsWithoutASourceTreeAreLeftAlone()
{
    QFETCH(bool, treePayload);
    QFETCH(bool, accepted);
    OpenTree tree;
    fill(tree);
    makeCurrent(tree, "d");
    RyTreeItemMimeData item;
    item.SetDragData("ItemMimeData", itemNamed(&tree, "c"));
    QMimeData text;
    text.setText("words");
    const QMimeData *const payload = treePayload ? &item : &text;
    const QPoint position = centerOf(tree, "a");
    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;

    QDragEnterEvent enter(position, actions, payload, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent over(position, actions, payload, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(position, actions, payload, Qt::LeftButton, Qt::NoModifier);
    const QList<QDropEvent *> events = {&enter, &over, &drop};
    for (QDropEvent *event : events) {
        event->setDropAction(Qt::LinkAction);
        event->setAccepted(accepted);
    }
    tree.dragEnterEvent(&enter);
    tree.dragMoveEvent(&over);
    tree.dropEvent(&drop);

    for (const QDropEvent *event : events) {
        QCOMPARE(event->isAccepted(), accepted);
        QCOMPARE(event->dropAction(), Qt::LinkAction);
    }
    QCOMPARE(currentOf(&tree), "d");
    QCOMPARE(itemsOf(&tree), filledContent());
}

QTEST_MAIN(tst_RyTreeWidget)

#include "tst_rytreewidget.moc"
