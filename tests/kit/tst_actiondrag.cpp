// SPDX-License-Identifier: MIT

#include "actiondrag.h"
#include "dropindicator.h"
#include "editedhost.h"
#include "testcase.h"
#include "texts.h"

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QtTest>

#include <memory>

enum class View { Tree, ToolBars, Entries };
Q_DECLARE_METATYPE(View)

/*
 * What drags do when their events come, without a pointer. tst_actiondrag_window.cpp has real ones.
 */
class tst_ActionDrag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void droppingInTheEntries_data();
    void droppingInTheEntries();
    void droppingOntoAToolBar_data();
    void droppingOntoAToolBar();
    void droppingEntriesOntoTheActionsRemovesThem();
    void placesWithoutATargetRefuse_data();
    void placesWithoutATargetRefuse();
    void withoutACurrentToolBarThereAreNoPlaces();
    void severalAreDraggedInTheOrderShown();
    void aRowThatIsNotSelectedIsDraggedAlone();
    void rowsThatAreFilteredOutAreNotDragged();

    void strangeDragsAreRefused_data();
    void strangeDragsAreRefused();
    void aDropIsTakenOnce();
    void whatHasGoneIsNotDropped_data();
    void whatHasGoneIsNotDropped();
    void aToolBarThatHasGoneRefuses();
    void aDropWhileAToolBarIsNamed();
    void aDropWithoutAManager();
    void theDialogIsClosedInBetween();

    void theIndicatorIsAtTheGap();
    void theIndicatorIsAroundTheToolBar();
    void theIndicatorGoes();
    void nearTheEdgesTheListScrolls();

    void viewsDoNotDragThemselves();
    void theViewsSayWhatCanBeDone();
};

namespace {

// A dialog with drags, and the events that a window system would send.
struct Stage : EditedHost
{
    Stage()
        : EditedHost(false)
        , drag(new ActionDrag(parts, &dialog))
        , indicator(dialog.findChild<DropIndicator *>())
    {
        show();
        QApplication::setActiveWindow(&dialog);
    }

    QAbstractItemView *view(View which) const
    {
        if (which == View::Tree)
            return editor.actionTree;
        return which == View::ToolBars ? editor.toolBarList : editor.currentToolBarList;
    }

    static QModelIndex indexOf(const QTreeWidgetItem *item)
    {
        const QTreeWidget *const tree = item->treeWidget();
        if (!item->parent())
            return tree->model()->index(
                tree->indexOfTopLevelItem(const_cast<QTreeWidgetItem *>(item)), 0);
        return tree->model()->index(
            item->parent()->indexOfChild(const_cast<QTreeWidgetItem *>(item)), 0,
            indexOf(item->parent()));
    }

    void pickEntries(const QList<int> &rows)
    {
        editor.currentToolBarList->clearSelection();
        for (const int row : rows)
            editor.currentToolBarList->item(row)->setSelected(true);
        begin(view(View::Entries), view(View::Entries)->model()->index(rows.constFirst(), 0));
    }

    void pickActions(const QStringList &texts)
    {
        editor.actionTree->clearSelection();
        const auto picked = items(texts);
        for (QTreeWidgetItem *item : picked)
            item->setSelected(true);
        begin(view(View::Tree), indexOf(picked.constFirst()));
    }

    void begin(QAbstractItemView *source, const QModelIndex &pressed)
    {
        data.reset(drag->begin(source, pressed));
    }

    // Whether the view takes what is at the place.
    bool carryTo(View which, const QPoint &place, const QMimeData *payload = nullptr)
    {
        const QMimeData *const carried = payload ? payload : data.get();
        const auto actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(place, actions, carried, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view(which)->viewport(), &enter);
        hasEntered = enter.isAccepted();
        QDragMoveEvent move(place, actions, carried, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view(which)->viewport(), &move);
        return move.isAccepted() && hasEntered;
    }

    bool drop(View which, const QPoint &place, const QMimeData *payload = nullptr)
    {
        QDropEvent event(place, Qt::CopyAction | Qt::MoveAction, payload ? payload : data.get(),
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view(which)->viewport(), &event);
        return event.isAccepted();
    }

    bool carryAndDrop(View which, const QPoint &place)
    {
        return carryTo(which, place) && drop(which, place);
    }

    // Just above the row of that number, or at the end.
    QPoint gap(int row) const
    {
        const QListWidget *const list = editor.currentToolBarList;
        if (row < list->count())
            return list->visualItemRect(list->item(row)).topLeft() + QPoint(5, 1);
        return QPoint(5, list->viewport()->height() - 5);
    }

    QPoint placeOf(const QString &toolBar) const
    {
        return editor.toolBarList->visualItemRect(toolBarRow(toolBar)).center();
    }

    bool isUnchanged() const { return applied() == firstContents(); }

    ActionDrag *const drag;
    const QPointer<DropIndicator> indicator;
    std::unique_ptr<QMimeData> data;
    bool hasEntered = false;
};

const QString separator = "< S E P A R A T O R >";

} // namespace

void tst_ActionDrag::droppingInTheEntries_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<int>("gap");
    QTest::addColumn<QString>("content");
    const auto entries = [](const char *name, const QList<int> &rows, int gap,
                            const char *content) {
        QTest::newRow(name) << rows << QStringList() << gap << content;
    };
    entries("down", {0}, 4, "copy | paste cut undo |");
    entries("up", {3}, 1, "cut paste copy | undo |");
    entries("to the top", {4}, 0, "undo cut copy | paste |");
    entries("to the end", {0}, 6, "copy | paste undo | cut");
    entries("where it is", {1}, 1, "cut copy | paste undo |");
    entries("several", {0, 2, 4}, 4, "copy paste cut | undo |");
    const auto actions = [](const char *name, const QStringList &texts, int gap,
                            const char *content) {
        QTest::newRow(name) << QList<int>() << texts << gap << content;
    };
    actions("an action", {"Find"}, 1, "cut find copy | paste undo |");
    actions("a separator", {separator}, 0, "| cut copy | paste undo |");
    actions("an action to the end", {"Find"}, 6, "cut copy | paste undo | find");
    actions("an action that is there", {"Paste"}, 0, "paste cut copy | undo |");
    actions("several actions", {"Find", "Home", "Cut"}, 3, "copy | cut find home paste undo |");
}

void tst_ActionDrag::droppingInTheEntries()
{
    QFETCH(QList<int>, rows);
    QFETCH(QStringList, actions);
    QFETCH(int, gap);
    QFETCH(QString, content);
    Stage stage;
    if (actions.isEmpty())
        stage.pickEntries(rows);
    else
        stage.pickActions(actions);
    QVERIFY(stage.carryAndDrop(View::Entries, stage.gap(gap)));
    auto expected = Stage::firstContents();
    expected["Edit"] = content.split(' ');
    QCOMPARE(stage.applied(), expected);
}

void tst_ActionDrag::droppingOntoAToolBar_data()
{
    QTest::addColumn<bool>("areEntries");
    QTest::addColumn<QString>("toolBar");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("other");
    QTest::newRow("entries") << true << "Go"
                             << "cut | undo |"
                             << "back home copy paste";
    QTest::newRow("entries, an empty toolbar") << true << "Mine"
                                               << "cut | undo |"
                                               << "copy paste";
    QTest::newRow("actions") << false << "Go"
                             << "cut copy | paste undo |"
                             << "back find home";
    QTest::newRow("actions, an empty toolbar") << false << "Mine"
                                               << "cut copy | paste undo |"
                                               << "find home";
    QTest::newRow("actions, the current toolbar") << false << "Edit"
                                                  << "cut copy | paste undo | find home"
                                                  << "";
}

void tst_ActionDrag::droppingOntoAToolBar()
{
    QFETCH(bool, areEntries);
    QFETCH(QString, toolBar);
    QFETCH(QString, edit);
    QFETCH(QString, other);
    Stage stage;
    if (areEntries)
        stage.pickEntries({1, 3});
    else
        stage.pickActions({"Find", "Home"});
    QVERIFY(stage.carryAndDrop(View::ToolBars, stage.placeOf(toolBar)));
    QCOMPARE(stage.applied("Edit"), edit);
    if (toolBar != "Edit")
        QCOMPARE(stage.applied(toolBar), other);
    QCOMPARE(currentOf(stage.editor.toolBarList), toolBar);
}

void tst_ActionDrag::droppingEntriesOntoTheActionsRemovesThem()
{
    Stage stage;
    stage.pickEntries({0, 2, 3});
    QVERIFY(stage.carryAndDrop(View::Tree, QPoint(20, 20)));
    QCOMPARE(stage.applied("Edit"), QString("copy undo |"));
}

void tst_ActionDrag::placesWithoutATargetRefuse_data()
{
    QTest::addColumn<bool>("areEntries");
    QTest::addColumn<View>("view");
    QTest::addColumn<QString>("toolBar");
    QTest::newRow("entries onto their toolbar") << true << View::ToolBars << "Edit";
    QTest::newRow("entries onto no toolbar") << true << View::ToolBars << "";
    QTest::newRow("actions onto no toolbar") << false << View::ToolBars << "";
    QTest::newRow("actions onto the actions") << false << View::Tree << "";
}

void tst_ActionDrag::placesWithoutATargetRefuse()
{
    QFETCH(bool, areEntries);
    QFETCH(View, view);
    QFETCH(QString, toolBar);
    Stage stage;
    if (areEntries)
        stage.pickEntries({1});
    else
        stage.pickActions({"Find"});
    const QPoint place = toolBar.isEmpty()
        ? stage.view(view)->viewport()->rect().bottomLeft() + QPoint(5, -5)
        : stage.placeOf(toolBar);
    QVERIFY(!stage.carryTo(view, place));
    QVERIFY(!stage.indicator->isVisible());
    QVERIFY(!stage.drop(view, place));
    QVERIFY(stage.isUnchanged());
    // It goes on to where there is one.
    QVERIFY(stage.carryTo(View::ToolBars, stage.placeOf("Go")));
}

void tst_ActionDrag::withoutACurrentToolBarThereAreNoPlaces()
{
    Stage stage;
    stage.editor.toolBarList->setCurrentRow(-1);
    stage.pickActions({"Find"});
    QVERIFY(!stage.carryTo(View::Entries, QPoint(20, 20)));
    QVERIFY(stage.carryAndDrop(View::ToolBars, stage.placeOf("Mine")));
    QCOMPARE(stage.applied("Mine"), QString("find"));
}

void tst_ActionDrag::severalAreDraggedInTheOrderShown()
{
    Stage stage;
    stage.pickActions({"Home", separator, "Find", "About"});
    QVERIFY(stage.carryAndDrop(View::ToolBars, stage.placeOf("Mine")));
    QCOMPARE(stage.applied("Mine"), QString("| find home about"));
}

void tst_ActionDrag::aRowThatIsNotSelectedIsDraggedAlone()
{
    Stage stage;
    stage.editor.currentToolBarList->item(0)->setSelected(true);
    stage.editor.currentToolBarList->item(1)->setSelected(true);
    stage.begin(stage.view(View::Entries), stage.view(View::Entries)->model()->index(3, 0));
    QVERIFY(stage.carryAndDrop(View::Tree, QPoint(20, 20)));
    QCOMPARE(stage.applied("Edit"), QString("cut copy | undo |"));
}

void tst_ActionDrag::rowsThatAreFilteredOutAreNotDragged()
{
    Stage stage;
    itemNamed(stage.editor.actionTree, "Home")->setHidden(true);
    itemNamed(stage.editor.actionTree, "File")->setHidden(true);
    itemNamed(stage.editor.actionTree, "Help")->setExpanded(false);
    stage.pickActions({"Find", "Home", "Save", "About"});
    QVERIFY(stage.carryAndDrop(View::ToolBars, stage.placeOf("Mine")));
    QCOMPARE(stage.applied("Mine"), QString("find"));
}

void tst_ActionDrag::strangeDragsAreRefused_data()
{
    QTest::addColumn<QStringList>("formats");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isDragging");
    const QString own = ActionDrag::mimeType();
    for (const bool isDragging : {false, true}) {
        const auto row = [=](const char *name, const QStringList &formats,
                             const QByteArray &bytes) {
            QTest::addRow("%s%s", name, isDragging ? ", during a drag" : "")
                << formats << bytes << isDragging;
        };
        row("nothing", {}, "");
        row("text", {"text/plain"}, "Cut");
        row("a file", {"text/uri-list"}, "file:///etc/passwd");
        row("rows of another view", {"application/x-qabstractitemmodeldatalist"}, "x");
        row("of another process", {own}, "0123456789abcdef");
        row("of another process, empty", {own}, "");
        row("everything", {own, "text/plain", "text/uri-list"}, "x");
    }
}

void tst_ActionDrag::strangeDragsAreRefused()
{
    QFETCH(QStringList, formats);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isDragging);
    Stage stage;
    if (isDragging)
        stage.pickEntries({1});
    QMimeData strange;
    for (const QString &format : formats)
        strange.setData(format, bytes);
    for (const View view : {View::Tree, View::ToolBars, View::Entries}) {
        const QPoint place = view == View::ToolBars ? stage.placeOf("Go") : QPoint(20, 20);
        QVERIFY(!stage.carryTo(view, place, &strange));
        QVERIFY(!stage.hasEntered);
        QVERIFY(!stage.indicator->isVisible());
        // Even if the window system sends one after a refusal.
        if (isDragging)
            QVERIFY(stage.carryTo(view, place));
        QVERIFY(!stage.drop(view, place, &strange));
    }
    QVERIFY(stage.isUnchanged());
}

void tst_ActionDrag::aDropIsTakenOnce()
{
    Stage stage;
    Stage other;
    stage.pickEntries({1});
    QVERIFY(!other.carryTo(View::Tree, QPoint(20, 20), stage.data.get()));
    other.pickEntries({1});
    QVERIFY(!other.carryTo(View::Tree, QPoint(20, 20), stage.data.get()));
    QVERIFY(stage.carryAndDrop(View::Tree, QPoint(20, 20)));
    QVERIFY(!stage.carryAndDrop(View::Tree, QPoint(20, 20)));
    stage.pickActions({"Find"});
    QVERIFY(stage.carryAndDrop(View::Entries, stage.gap(0)));
    QVERIFY(!stage.carryAndDrop(View::Entries, stage.gap(3)));
    const std::unique_ptr<QMimeData> former = std::move(stage.data);
    stage.pickEntries({0});
    QVERIFY(!stage.carryTo(View::Tree, QPoint(20, 20), former.get()));
    QCOMPARE(stage.applied("Edit"), QString("find cut | paste undo |"));
    QVERIFY(other.isUnchanged());
}

void tst_ActionDrag::whatHasGoneIsNotDropped_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("another toolbar") << "another toolbar";
    QTest::newRow("there and back") << "there and back";
    QTest::newRow("Restore Defaults") << "Restore Defaults";
    QTest::newRow("the page is left") << "the page is left";
}

void tst_ActionDrag::whatHasGoneIsNotDropped()
{
    QFETCH(QString, change);
    Stage stage;
    stage.pickEntries({0, 1});
    if (change == "the page is left") {
        stage.dialog.hide();
        stage.dialog.show();
    } else if (change == "Restore Defaults") {
        stage.dialog.RestoreDefaultButton()->click();
    } else {
        stage.makeCurrent("File");
    }
    if (change == "there and back")
        stage.makeCurrent("Edit");
    for (const View view : {View::Tree, View::ToolBars, View::Entries}) {
        const QPoint place = view == View::ToolBars ? stage.placeOf("Go") : QPoint(20, 20);
        QVERIFY(!stage.carryAndDrop(view, place));
    }
    auto expected = Stage::firstContents();
    if (change == "Restore Defaults")
        expected.remove("Mine");
    QCOMPARE(stage.applied(), expected);
}

void tst_ActionDrag::aToolBarThatHasGoneRefuses()
{
    Stage stage;
    const auto toolBars = stage.manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (toolBar->windowTitle() == "Mine")
            stage.manager.deleteToolBar(toolBar);
    }
    stage.pickEntries({0, 1});
    QVERIFY(!stage.carryTo(View::ToolBars, stage.placeOf("Mine")));
    QVERIFY(!stage.drop(View::ToolBars, stage.placeOf("Mine")));
    stage.pickActions({"Find"});
    QVERIFY(!stage.carryTo(View::ToolBars, stage.placeOf("Mine")));
    auto expected = Stage::firstContents();
    expected.remove("Mine");
    QCOMPARE(stage.applied(), expected);
}

void tst_ActionDrag::aDropWhileAToolBarIsNamed()
{
    Stage stage;
    stage.makeCurrent("Mine");
    stage.pickActions({"Find", "Home"});
    QVERIFY(stage.carryAndDrop(View::Entries, QPoint(5, 5)));
    stage.pickEntries({1});
    stage.editor.click(stage.editor.renameButton);
    QTest::keyClicks(stage.editor.renameEditor(), "A new name");
    QVERIFY(stage.carryAndDrop(View::ToolBars, stage.placeOf("File")));
    QTRY_VERIFY(!stage.editor.renameEditor());
    QCOMPARE(stage.applied("A new name"), QString("find"));
    QCOMPARE(stage.applied("File"), QString("open save home"));
}

void tst_ActionDrag::aDropWithoutAManager()
{
    Host host;
    std::unique_ptr<RyToolBarManager> manager(new RyToolBarManager);
    manager->setMainWindow(&host.window);
    manager->addDefaultToolBar(host.toolBar("file", words("open save |")), "File");
    RyCustomizedDialog dialog({manager.get(), nullptr}, &host.window);
    const DialogParts parts(&dialog);
    ActionDrag drag(parts, nullptr);
    dialog.show();
    parts.entryList->setCurrentRow(1);
    const std::unique_ptr<QMimeData> data(
        drag.begin(parts.entryList, parts.entryList->currentIndex()));
    manager.reset();
    QDragEnterEvent enter(QPoint(20, 20), Qt::MoveAction, data.get(), Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(parts.actionTree->viewport(), &enter);
    QDropEvent drop(QPoint(20, 20), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(parts.actionTree->viewport(), &drop);
    dialog.applyButton()->click();
    QCOMPARE(host.window.findChild<QToolBar *>("file")->actions().size(), 3);
}

void tst_ActionDrag::theDialogIsClosedInBetween()
{
    Stage stage;
    stage.pickEntries({0});
    QVERIFY(stage.carryTo(View::Entries, stage.gap(3)));
    stage.dialog.reject();
    QVERIFY(!stage.drop(View::Entries, stage.gap(3)));
    stage.drag->end();
    stage.show();
    QVERIFY(stage.isUnchanged());
}

void tst_ActionDrag::theIndicatorIsAtTheGap()
{
    Stage stage;
    stage.pickActions({"Find"});
    const QListWidget *const list = stage.editor.currentToolBarList;
    const QRect row = list->visualItemRect(list->item(2));
    const QRect area = list->viewport()->rect();
    QVERIFY(stage.carryTo(View::Entries, QPoint(5, row.top() + 1)));
    QVERIFY(stage.indicator->isVisible());
    QCOMPARE(stage.indicator->parentWidget(), list->viewport());
    QCOMPARE(stage.indicator->geometry(), QRect(0, row.top() - 1, area.width(), 2));
    QVERIFY(stage.carryTo(View::Entries, QPoint(5, row.bottom() - 1)));
    QCOMPARE(stage.indicator->geometry(), QRect(0, row.bottom(), area.width(), 2));
    QVERIFY(stage.carryTo(View::Entries, QPoint(5, area.bottom())));
    QCOMPARE(stage.indicator->y(), list->visualItemRect(list->item(5)).bottom());
    stage.makeCurrent("Mine");
    QVERIFY(stage.carryTo(View::Entries, QPoint(5, 0)));
    QCOMPARE(stage.indicator->geometry(), QRect(0, 0, area.width(), 2));
    const QColor color = stage.indicator->palette().color(QPalette::Text);
    QCOMPARE(stage.indicator->grab().toImage().pixelColor(10, 1), color);
}

void tst_ActionDrag::theIndicatorIsAroundTheToolBar()
{
    Stage stage;
    stage.pickEntries({0});
    QVERIFY(stage.carryTo(View::ToolBars, stage.placeOf("Go")));
    const QListWidget *const list = stage.editor.toolBarList;
    QCOMPARE(stage.indicator->parentWidget(), list->viewport());
    QCOMPARE(stage.indicator->geometry(), list->visualItemRect(stage.toolBarRow("Go")));
    const QImage image = stage.indicator->grab().toImage();
    QCOMPARE(image.pixelColor(1, 1), stage.indicator->palette().color(QPalette::Text));
    QVERIFY(stage.carryTo(View::Tree, QPoint(20, 20)));
    QCOMPARE(stage.indicator->parentWidget(), stage.editor.actionTree->viewport());
    QCOMPARE(stage.indicator->geometry(), stage.editor.actionTree->viewport()->rect());
}

void tst_ActionDrag::theIndicatorGoes()
{
    Stage stage;
    const auto carry = [&stage] {
        stage.pickEntries({0});
        QVERIFY(stage.carryTo(View::Entries, stage.gap(3)));
        QVERIFY(stage.indicator->isVisible());
    };
    carry();
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(stage.view(View::Entries)->viewport(), &leave);
    QVERIFY(!stage.indicator->isVisible());
    carry();
    stage.drag->end();
    QVERIFY(!stage.indicator->isVisible());
    QVERIFY(!stage.drop(View::Entries, stage.gap(3)));
    QVERIFY(stage.isUnchanged());
    carry();
    QVERIFY(stage.drop(View::Entries, stage.gap(3)));
    QVERIFY(!stage.indicator->isVisible());
}

void tst_ActionDrag::nearTheEdgesTheListScrolls()
{
    Stage stage;
    const auto names = stage.items({"Open", "Save", "Home", "Find", "About"});
    QListWidget *const list = stage.editor.currentToolBarList;
    for (int i = 0; i < 60; ++i) {
        stage.editor.actionTree->setCurrentItem(stage.items({"|"}).constFirst());
        stage.editor.rightButton->click();
    }
    list->scrollToTop();
    stage.pickActions({"Find"});
    const QRect area = list->viewport()->rect();
    const QScrollBar *const bar = list->verticalScrollBar();
    QVERIFY(stage.carryTo(View::Entries, area.center()));
    QTest::qWait(150);
    QCOMPARE(bar->value(), 0);
    QVERIFY(stage.carryTo(View::Entries, QPoint(5, area.bottom() - 3)));
    QTRY_COMPARE(bar->value(), bar->maximum());
    QVERIFY(stage.indicator->isVisible());
    QVERIFY(stage.carryTo(View::Entries, QPoint(5, 3)));
    QTRY_COMPARE(bar->value(), 0);
    QVERIFY(stage.carryTo(View::Entries, QPoint(5, area.bottom() - 3)));
    QTRY_COMPARE(bar->value(), bar->maximum());
    QVERIFY(stage.drop(View::Entries, QPoint(5, area.bottom() - 3)));
    QVERIFY(rowsOf(list).mid(60).contains("Find"));
}

void tst_ActionDrag::viewsDoNotDragThemselves()
{
    const Stage stage;
    for (const View view : {View::Tree, View::ToolBars, View::Entries}) {
        QVERIFY(!stage.view(view)->dragEnabled());
        QCOMPARE(stage.view(view)->dragDropMode(), QAbstractItemView::NoDragDrop);
    }
}

void tst_ActionDrag::theViewsSayWhatCanBeDone()
{
    const Stage stage;
    for (const View view : {View::Tree, View::ToolBars, View::Entries}) {
        QVERIFY(!stage.view(view)->toolTip().isEmpty());
        QCOMPARE(stage.view(view)->accessibleDescription(), stage.view(view)->toolTip());
    }
    const QString tip = stage.view(View::Entries)->toolTip();
    QVERIFY2(tip.contains("another toolbar. Drag") && tip.contains("remove them. Ctrl+X cuts"),
             qPrintable(tip));
}

QTEST_MAIN(tst_ActionDrag)
#include "tst_actiondrag.moc"
