// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitwindow.h"
#include "qtdifferences.h"
#include "testcase.h"
#include "texts.h"
#include "userscript.h"

#include <QDrag>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QSocketNotifier>
#include <QtTest>

#include <cstdio>
#include <functional>
#include <memory>

/*
 * Real drags in the kit's dialog, by the pointer and the keyboard of an X server.
 */
class tst_ActionDrag_Window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void noDragAndDrop();
    void withinTheEntries_data();
    void withinTheEntries();
    void entriesOntoTheActionsAreRemoved();
    void entriesOntoAnotherToolBarMoveThere();
    void actionsOntoAnotherToolBarAreAdded();
    void severalEntriesAtOnce();
    void severalActionsAtOnce();
    void theListScrollsNearItsEdge();
    void theIndicatorIsShownDuringTheDrag();

    void escapeCancelsTheDragOnly();
    void droppedNowhereNothingChanges_data();
    void droppedNowhereNothingChanges();
    void onAStrangeTargetNothingIsLost();
    void strangeDragsDropNothing_data();
    void strangeDragsDropNothing();
    void otherProgramsDropNothing_data() { strangeDragsDropNothing_data(); }
    void otherProgramsDropNothing();
    void theDialogGoesDuringTheDrag_data();
    void theDialogGoesDuringTheDrag();

    void clicksWorkAfterADrag();
    void aToolBarIsNamedBeforeTheDrag();
};

namespace {

const QString separator = "< S E P A R A T O R >";

// The dialog of a program with the toolbars "File": new open save and "Edit": cut | copy, and the
// user before it.
struct Stage
{
    explicit Stage(const KitProgram::Build &build = KitProgram::buildDefault)
    {
        program.start(build);
        dialog = program.openDialog();
        editor.reset(new EditorViews(dialog));
        entries = editor->currentToolBarList;
        toolBars = editor->toolBarList;
        tree = editor->actionTree;
        toolBars->setCurrentItem(itemNamed(toolBars, "File"));
        tree->expandAll();
    }

    bool isReady() const { return waitUntilSettled(dialog); }

    static QPoint centerOf(const QListWidget *list, const QString &text)
    {
        return list->visualItemRect(itemNamed(list, text)).center();
    }

    static QPoint centerOf(const QTreeWidget *view, const QString &text)
    {
        return view->visualItemRect(itemNamed(view, text)).center();
    }

    QPoint above(const QString &text) const
    {
        return entries->visualItemRect(itemNamed(entries, text)).topLeft() + QPoint(30, 2);
    }

    QPoint below(const QString &text) const
    {
        return entries->visualItemRect(itemNamed(entries, text)).bottomLeft() + QPoint(30, -2);
    }

    // Presses the button on a row and, without moving far enough for a drag, gets going.
    template <typename View> void pickUp(const View *view, const QString &text)
    {
        const QPoint place = centerOf(view, text);
        user.moveTo(view->viewport(), place);
        user.press();
        user.moveTo(view->viewport(), place + QPoint(2, 0));
    }

    void carryTo(const QAbstractItemView *view, const QPoint &place)
    {
        user.moveTo(view->viewport(), place - QPoint(3, 0));
        user.moveTo(view->viewport(), place);
    }

    template <typename View> void addToSelection(const View *view, const QString &text)
    {
        user.moveTo(view->viewport(), centerOf(view, text));
        user.pressKey(Qt::Key_Control);
        user.press();
        user.release();
        user.releaseKey(Qt::Key_Control);
    }

    QString run() { return user.run(); }

    // What the toolbars have after OK.
    QStringList contents()
    {
        dialog->okButton()->click();
        letTheKitFollow();
        return program.contents();
    }

    KitProgram program;
    QPointer<RyCustomizedDialog> dialog;
    std::unique_ptr<EditorViews> editor;
    QListWidget *entries;
    QListWidget *toolBars;
    QTreeWidget *tree;
    UserScript user;
};

const QStringList unchanged{"edit: cut | copy", "file: new open save"};

// Drags all kinds of data, in the type of the kit's drags, too.
class StrangeSource : public QLabel
{
public:
    StrangeSource()
        : QLabel("strange")
    {
        setMinimumSize(60, 20);
    }

    Qt::DropAction result = Qt::LinkAction;
    std::function<void()> ended = [] {};

protected:
    void mousePressEvent(QMouseEvent *) override { }

    void mouseMoveEvent(QMouseEvent *) override
    {
        QMimeData *const payload = new QMimeData;
        payload->setText("Cut");
        payload->setUrls({QUrl("file:///Cut")});
        payload->setData("application/x-rytoolbarkit-drag", "0123456789abcdef");
        payload->setData("application/x-qabstractitemmodeldatalist", "x");
        QDrag *const drag = new QDrag(this);
        drag->setMimeData(payload);
        result = drag->exec(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::MoveAction);
        ended();
    }
};

// Takes whatever is dropped.
class StrangeTarget : public QLabel
{
public:
    StrangeTarget()
        : QLabel("target")
    {
        setMinimumSize(60, 20);
        setAcceptDrops(true);
    }

    int drops = 0;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override { event->acceptProposedAction(); }

    void dropEvent(QDropEvent *event) override
    {
        ++drops;
        event->acceptProposedAction();
    }
};

// This program as another one, whose window has nothing but a source. It says when the window is
// there, and how each drag has ended.
class OtherProgram : public QProcess
{
public:
    OtherProgram() { start(QCoreApplication::applicationFilePath(), {"--source"}); }
    ~OtherProgram() override
    {
        closeWriteChannel();
        waitForFinished();
    }

    static int run(int argc, char *argv[])
    {
        QApplication application(argc, argv);
        StrangeSource source;
        source.setWindowFlags(Qt::X11BypassWindowManagerHint);
        source.setGeometry(0, 0, 60, 20);
        source.show();
        if (!QTest::qWaitForWindowExposed(&source))
            return 1;
        say("ready");
        source.ended = [&source] { say(source.result == Qt::IgnoreAction ? "refused" : "taken"); };
        // Ends with the other side of the pipe.
        QSocketNotifier notifier(0, QSocketNotifier::Read);
        QObject::connect(&notifier, &QSocketNotifier::activated, &application,
                         [] { qApp->quit(); });
        return application.exec();
    }

    bool hasSaid(const QByteArray &what)
    {
        m_output += readAllStandardOutput();
        return m_output.contains(what);
    }

private:
    static void say(const char *what)
    {
        std::puts(what);
        std::fflush(stdout);
    }

    QByteArray m_output;
};

// Counts the drags that come into a widget.
class DragEntries : public QObject
{
public:
    explicit DragEntries(QWidget *widget) { widget->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::DragEnter ? 1 : 0;
        return false;
    }
};

} // namespace

void tst_ActionDrag_Window::noDragAndDrop()
{
    Stage stage;
    QVERIFY(stage.isReady());
    stage.pickUp(stage.tree, "Paste");
    stage.carryTo(stage.entries, stage.above("Open"));
    stage.user.drop();
    stage.pickUp(stage.tree, separator);
    stage.user.act([&] { QCOMPARE(currentOf(stage.tree), separator); });
    QCOMPARE(stage.run(), QString());
    QCOMPARE(stage.editor->currentRows(), words("New Paste Open Save"));
    QCOMPARE(currentOf(stage.entries), QString("Paste"));
    stage.carryTo(stage.entries, stage.below("Save"));
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(stage.contents(), QStringList({"edit: cut | copy", "file: new paste open save |"}));
}

void tst_ActionDrag_Window::withinTheEntries_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isAbove");
    QTest::addColumn<QString>("content");
    QTest::newRow("down") << "New"
                          << "Open" << false << "file: open new save";
    QTest::newRow("to the end") << "New"
                                << "Save" << false << "file: open save new";
    QTest::newRow("up") << "Save"
                        << "Open" << true << "file: new save open";
    QTest::newRow("to the top") << "Save"
                                << "New" << true << "file: save new open";
    QTest::newRow("back") << "Open"
                          << "Open" << false << "file: new open save";
}

void tst_ActionDrag_Window::withinTheEntries()
{
    QFETCH(QString, entry);
    QFETCH(QString, target);
    QFETCH(bool, isAbove);
    QFETCH(QString, content);
    Stage stage;
    QVERIFY(stage.isReady());
    stage.pickUp(stage.entries, entry);
    // Far enough for a drag, also back to the same row.
    stage.carryTo(stage.entries, stage.entries->viewport()->rect().center());
    stage.carryTo(stage.entries, isAbove ? stage.above(target) : stage.below(target));
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(currentOf(stage.entries), entry);
    QCOMPARE(stage.contents(), QStringList({"edit: cut | copy", content}));
}

void tst_ActionDrag_Window::entriesOntoTheActionsAreRemoved()
{
    Stage stage;
    QVERIFY(stage.isReady());
    stage.pickUp(stage.entries, "Open");
    stage.carryTo(stage.tree, stage.tree->viewport()->rect().center());
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(stage.contents(), QStringList({"edit: cut | copy", "file: new save"}));
}

void tst_ActionDrag_Window::entriesOntoAnotherToolBarMoveThere()
{
    Stage stage;
    QVERIFY(stage.isReady());
    stage.pickUp(stage.entries, "Open");
    stage.carryTo(stage.toolBars, stage.centerOf(stage.toolBars, "Edit"));
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(currentOf(stage.toolBars), QString("Edit"));
    QCOMPARE(stage.contents(), QStringList({"edit: cut | copy open", "file: new save"}));
}

void tst_ActionDrag_Window::actionsOntoAnotherToolBarAreAdded()
{
    Stage stage;
    QVERIFY(stage.isReady());
    stage.pickUp(stage.tree, "Save");
    stage.carryTo(stage.toolBars, stage.centerOf(stage.toolBars, "Edit"));
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(stage.contents(), QStringList({"edit: cut | copy save", "file: new open save"}));
}

void tst_ActionDrag_Window::severalEntriesAtOnce()
{
    Stage stage;
    QVERIFY(stage.isReady());
    stage.user.moveTo(stage.entries->viewport(), stage.centerOf(stage.entries, "New"));
    stage.user.press();
    stage.user.release();
    stage.addToSelection(stage.entries, "Save");
    stage.pickUp(stage.entries, "New");
    stage.carryTo(stage.toolBars, stage.centerOf(stage.toolBars, "Edit"));
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(stage.contents(), QStringList({"edit: cut | copy new save", "file: open"}));
}

void tst_ActionDrag_Window::severalActionsAtOnce()
{
    Stage stage;
    QVERIFY(stage.isReady());
    stage.user.moveTo(stage.tree->viewport(), stage.centerOf(stage.tree, "Paste"));
    stage.user.press();
    stage.user.release();
    stage.addToSelection(stage.tree, "Cut");
    stage.pickUp(stage.tree, "Paste");
    stage.carryTo(stage.entries, stage.above("Save"));
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(stage.contents(), QStringList({"edit: cut | copy", "file: new open cut paste save"}));
}

void tst_ActionDrag_Window::theListScrollsNearItsEdge()
{
    Stage stage([](QMainWindow *window) {
        QMenu *const menu = window->menuBar()->addMenu("File");
        for (int i = 0; i < 40; ++i)
            addAction(menu, QString("a%1").arg(i));
        QToolBar *const toolBar = window->addToolBar("File");
        toolBar->setObjectName("file");
        toolBar->addActions(menu->actions());
    });
    QVERIFY(stage.isReady());
    const QScrollBar *const bar = stage.entries->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    const QRect area = stage.entries->viewport()->rect();
    stage.pickUp(stage.entries, "A0");
    stage.carryTo(stage.entries, QPoint(40, area.bottom() - 2));
    stage.user.waitFor("scrolling", [bar] { return bar->value() == bar->maximum(); });
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QVERIFY(stage.entries->row(itemNamed(stage.entries, "A0")) > 37);
}

void tst_ActionDrag_Window::theIndicatorIsShownDuringTheDrag()
{
    Stage stage;
    QVERIFY(stage.isReady());
    QWidget *const indicator = stage.dialog->findChild<QWidget *>("dropIndicator");
    QVERIFY(indicator);
    QStringList shown;
    const auto note = [&] {
        shown << (indicator->isVisible() ? indicator->parentWidget()->parentWidget()->objectName()
                                         : "hidden");
    };
    stage.user.act(note);
    stage.pickUp(stage.entries, "Open");
    stage.carryTo(stage.entries, stage.above("New"));
    stage.user.act(note);
    stage.carryTo(stage.toolBars, stage.centerOf(stage.toolBars, "Edit"));
    stage.user.act(note);
    stage.carryTo(stage.toolBars, stage.centerOf(stage.toolBars, "File"));
    stage.user.act(note);
    stage.carryTo(stage.tree, stage.tree->viewport()->rect().center());
    stage.user.act(note);
    stage.user.dragOut();
    stage.user.act(note);
    stage.user.cancelDrag();
    stage.user.release();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(shown, lines("hidden,currentToolBarList,toolBarList,hidden,actionTree,hidden"));
}

void tst_ActionDrag_Window::escapeCancelsTheDragOnly()
{
    Stage stage;
    QVERIFY(stage.isReady());
    stage.pickUp(stage.entries, "Open");
    stage.carryTo(stage.tree, stage.tree->viewport()->rect().center());
    stage.user.cancelDrag();
    stage.user.release();
    QCOMPARE(stage.run(), QString());
    QVERIFY(stage.dialog->isVisible());
    QVERIFY(!stage.dialog->findChild<QWidget *>("dropIndicator")->isVisible());
    QCOMPARE(stage.contents(), unchanged);
}

void tst_ActionDrag_Window::droppedNowhereNothingChanges_data()
{
    QTest::addColumn<bool>("isOutside");
    QTest::newRow("outside") << true;
    QTest::newRow("on a button") << false;
}

void tst_ActionDrag_Window::droppedNowhereNothingChanges()
{
    QFETCH(bool, isOutside);
    Stage stage;
    QVERIFY(stage.isReady());
    stage.pickUp(stage.entries, "Open");
    stage.carryTo(stage.entries, stage.above("New"));
    if (isOutside)
        stage.user.dragOut();
    else
        stage.user.moveTo(stage.dialog->okButton(), QPoint(5, 5));
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(stage.contents(), unchanged);
}

void tst_ActionDrag_Window::onAStrangeTargetNothingIsLost()
{
    Stage stage;
    StrangeTarget *const target = new StrangeTarget;
    stage.dialog->layout()->addWidget(target);
    QVERIFY(stage.isReady());
    stage.pickUp(stage.entries, "Open");
    stage.carryTo(stage.entries, stage.above("New"));
    stage.user.moveTo(target, QPoint(5, 5));
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(target->drops, 1);
    QCOMPARE(stage.contents(), unchanged);
}

void tst_ActionDrag_Window::strangeDragsDropNothing_data()
{
    QTest::addColumn<QString>("view");
    for (const char *view : {"actionTree", "toolBarList", "currentToolBarList"})
        QTest::newRow(view) << view;
}

void tst_ActionDrag_Window::strangeDragsDropNothing()
{
    QFETCH(QString, view);
    Stage stage;
    StrangeSource *const source = new StrangeSource;
    stage.dialog->layout()->addWidget(source);
    QVERIFY(stage.isReady());
    stage.user.moveTo(source, QPoint(10, 10));
    stage.user.press();
    stage.carryTo(stage.editor->page->findChild<QAbstractItemView *>(view), QPoint(30, 10));
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QCOMPARE(source->result, Qt::IgnoreAction);
    QCOMPARE(stage.contents(), unchanged);
}

void tst_ActionDrag_Window::otherProgramsDropNothing()
{
    QFETCH(QString, view);
    Stage stage;
    QVERIFY(stage.isReady());
    OtherProgram other;
    QTRY_VERIFY_WITH_TIMEOUT(other.hasSaid("ready"), 20000);
    stage.user.act([&] {
        stage.user.input.moveTo(QPoint(20, 10));
        stage.user.input.press();
        stage.user.input.moveTo(QPoint(30, 10));
    });
    QWidget *const viewport = stage.editor->page->findChild<QAbstractItemView *>(view)->viewport();
    DragEntries entries(viewport);
    // Qt leaves out places while another program is to answer.
    int moves = 0;
    stage.user.step(
        "carry", [] {},
        [&] {
            stage.user.input.moveTo(viewport->mapToGlobal(QPoint(30 + ++moves % 2, 10)));
            return entries.count > 0;
        });
    stage.user.act([&] { stage.user.input.release(); });
    stage.user.waitFor("the end of the drag", [&] { return other.hasSaid("refused"); });
    QCOMPARE(stage.run(), QString());
    QCOMPARE(stage.contents(), unchanged);
}

void tst_ActionDrag_Window::theDialogGoesDuringTheDrag_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("closed") << "closed";
    QTest::newRow("deleted") << "deleted";
    QTest::newRow("with the window") << "with the window";
}

void tst_ActionDrag_Window::theDialogGoesDuringTheDrag()
{
    QFETCH(QString, how);
    Stage stage;
    QVERIFY(stage.isReady());
    stage.pickUp(stage.entries, "Open");
    stage.carryTo(stage.entries, stage.above("New"));
    stage.user.act([&] {
        if (how == "closed")
            stage.dialog->close();
        else if (how == "deleted")
            delete stage.dialog;
        else
            stage.program.end();
    });
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    // Qt still sends the end of the drag to the window that is gone. The X server's answer comes
    // before the pointer is in another window.
    QWidget after;
    after.show();
    QVERIFY(waitUntilSettled(&after));
    stage.user.moveTo(&after, after.rect().center());
    QCOMPARE(stage.run(), QString());
    const QStringList warnings = takeWarnings();
    for (const QString &warning : warnings)
        QVERIFY2(warning.startsWith("QXcbConnection: XCB error: 3 (BadWindow)"),
                 qPrintable(warning));
    QVERIFY(!stage.dialog);
    if (how != "with the window")
        QCOMPARE(stage.program.contents(), unchanged);
}

void tst_ActionDrag_Window::clicksWorkAfterADrag()
{
    Stage stage;
    QVERIFY(stage.isReady());
    stage.pickUp(stage.entries, "Open");
    stage.carryTo(stage.entries, stage.below("Save"));
    stage.user.drop();
    stage.user.moveTo(stage.entries->viewport(), stage.centerOf(stage.entries, "New"));
    stage.user.press();
    stage.user.release();
    stage.user.moveTo(stage.tree->viewport(), stage.centerOf(stage.tree, "Cut"));
    stage.user.press();
    stage.user.release();
    stage.user.click(stage.editor->rightButton);
    QCOMPARE(stage.run(), QString());
    QCOMPARE(stage.contents(), QStringList({"edit: cut | copy", "file: new cut save open"}));
}

// The press ends the name.
void tst_ActionDrag_Window::aToolBarIsNamedBeforeTheDrag()
{
    Stage stage;
    QVERIFY(stage.isReady());
    stage.user.click(stage.editor->newButton);
    stage.user.type("first", [&] { return stage.editor->renameEditor(); });
    stage.pickUp(stage.tree, "Paste");
    stage.carryTo(stage.entries, QPoint(30, 10));
    stage.user.drop();
    QCOMPARE(stage.run(), QString());
    QVERIFY(!stage.editor->renameEditor());
    QCOMPARE(rowsOf(stage.toolBars), lines("Edit,File,first"));
    QCOMPARE(stage.contents(),
             QStringList({"_Custom_Toolbar_1: paste", "edit: cut | copy", "file: new open save"}));
}

int main(int argc, char *argv[])
{
    if (argc > 1 && QByteArray(argv[1]) == "--source")
        return OtherProgram::run(argc, argv);
    QApplication application(argc, argv);
    tst_ActionDrag_Window test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_actiondrag_window.moc"
