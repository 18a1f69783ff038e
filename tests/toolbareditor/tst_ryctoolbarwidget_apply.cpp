// SPDX-License-Identifier: MIT

#include "host.h"
#include "showneditor.h"
#include "testcase.h"
#include "texts.h"
#include "toolbaritem.h"

#include <QActionEvent>
#include <QLineEdit>
#include <QtTest>

#include <algorithm>

namespace {

const QString Separator = QStringLiteral("< S E P A R A T O R >");

// Writes down in order what happens to the toolbars of a host: content, titles, creation, deletion.
class ToolBarRecorder : public QObject
{
public:
    explicit ToolBarRecorder(Host &host)
        : m_window(&host.window)
    {
        host.window.installEventFilter(this);
        const auto toolBars = host.window.findChildren<QToolBar *>();
        for (QToolBar *toolBar : toolBars)
            watch(toolBar, toolBar->windowTitle());
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QString name = m_names.value(watched);
        switch (event->type()) {
        case QEvent::ChildAdded:
        case QEvent::ChildRemoved:
            if (watched == m_window)
                noteChild(static_cast<QChildEvent *>(event));
            break;
        case QEvent::ActionAdded:
            note(QLatin1String("+") + contentOf({static_cast<QActionEvent *>(event)->action()})[0]
                 + QLatin1String(" on ") + name);
            break;
        case QEvent::ActionRemoved:
            note(QLatin1String("content of ") + name);
            break;
        case QEvent::WindowTitleChange:
            note(static_cast<QWidget *>(watched)->windowTitle() + QLatin1String(" titles ") + name);
            break;
        default:
            break;
        }
        return false;
    }

    QStringList events;

private:
    void watch(QObject *toolBar, const QString &name)
    {
        m_names.insert(toolBar, name);
        toolBar->installEventFilter(this);
    }

    void noteChild(const QChildEvent *event)
    {
        if (!event->child()->isWidgetType())
            return;
        if (event->added()) {
            watch(event->child(), QStringLiteral("new"));
            note(QStringLiteral("created"));
        } else if (event->removed()) {
            note(QLatin1String("deleted ") + m_names.value(event->child()));
        }
    }

    // Not every action that goes, but that they do.
    void note(const QString &text)
    {
        if (events.isEmpty() || events.last() != text)
            events << text;
    }

    QObject *const m_window;
    QMap<QObject *, QString> m_names;
};

// A default toolbar, two custom ones and an action that stands on none.
class FilledHost : public Host
{
public:
    FilledHost()
    {
        defaultToolBar(QStringLiteral("file"),
                       {QStringLiteral("open"), QStringLiteral("|"), QStringLiteral("save")},
                       QStringLiteral("Files"));
        for (const char *name : {"copy", "cut", "paste", "zoom"})
            registered(QLatin1String(name), QStringLiteral("Edits"));
        customToolBar(*this, QStringLiteral("Mine"),
                      {QStringLiteral("cut"), QStringLiteral("copy"), QStringLiteral("paste")});
        customToolBar(*this, QStringLiteral("Tools"), {QStringLiteral("|"), QStringLiteral("cut")});
    }
};

QToolBar *toolBarTitled(const RyToolBarManager &manager, const QString &title)
{
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (toolBar->windowTitle() == title)
            return toolBar;
    }
    return nullptr;
}

void makeToolBar(const ShownEditor &editor, const QString &title, const QStringList &actions)
{
    editor.views.click(editor.views.newButton);
    editor.views.typeName(title);
    for (const QString &action : actions)
        editor.views.doubleClick(editor.views.actionTree, action);
}

void removeToolBar(ShownEditor &editor, const QString &title)
{
    editor.selectToolBar(title);
    editor.views.click(editor.views.removeButton);
}

} // namespace

class tst_RyCToolBarWidget_Apply : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void applyWithoutEditsTouchesNoContent();
    void applyWritesToolBarsThatWereNotEdited();
    void applyWritesTheEditedContent();
    void applyAlwaysSetsTheTitle();
    void applyWorksInPhases();
    void applyWritesTheToolBarsInTheOrderOfTheRecords();
    void aToolBarIsFilledBeforeItIsTitled();
    void aCreatedToolBarGetsItsNameAndThenItsContent();
    void aCreatedToolBarIsAnExistingOneFromThenOn();
    void aCreatedToolBarGetsTheNextFreeObjectName();
    void severalToolBarsAreCreatedAndDeleted();
    void aRemovedToolBarIsDeleted();
    void applyingTwiceCreatesAndDeletesNothing();
    void applyLeavesTheViewsAsTheyAre();
    void applyWhileTheNameIsEditedTakesTheOldName();
    void applyIsDoneWhenItReturns();
    void withoutAMainWindowNothingIsCreated();
    void anActionThatTheHostTookAwayIsLeftOut();
    void aToolBarThatTheHostDeletedIsLeftAlone();
    void aRemovedToolBarThatTheHostDeletedIsLeftAlone();
    void aToolBarThatTheManagerForgotStillGetsItsTitle();
    void applyKeepsTheRecordsOfTheFill();
    void anUntitledToolBarIsRenamedAndRemoved();
    void anUntitledDefaultToolBarStaysUntitled();

    void restoreDefaultsChangesTheWorkingCopyOnly();
    void restoreDefaultsResetsTheContentOfDefaultToolBars();
    void restoreDefaultsShowsTheDefaultContent();
    void restoreDefaultsRefreshesTheToolBarThatIsShown();
    void restoreDefaultsShowsNothingWithoutACurrentToolBar();
    void restoreDefaultsRemovesCustomToolBars();
    void restoreDefaultsFreesNewToolBars();
    void restoreDefaultsRemovesToolBarsThatWereCreatedAndApplied();
    void restoreDefaultsLeavesRemovedToolBarsRemoved();
    void restoreDefaultsSelectsTheRowThatTakesThePlace_data();
    void restoreDefaultsSelectsTheRowThatTakesThePlace();
    void restoreDefaultsWithCustomToolBarsOnlyLeavesNone();
    void restoreDefaultsKeepsTheNames();
    void restoreDefaultsDoesNotBringUnregisteredActionsBack();
    void restoreDefaultsThenHidingChangesNothing();
    void restoreDefaultsThenApplyEqualsTheDefaults();
    void restoreDefaultsTwiceIsAsOnce();
    void restoreDefaultsWhileTheNameIsEdited();
    void restoreDefaultsWhileHiddenHasNoEffect();
    void restoreDefaultsAfterToolBarsWereDeleted();
    void aDefaultToolBarRegisteredAfterTheFillIsLeftAlone();
};

void tst_RyCToolBarWidget_Apply::applyWithoutEditsTouchesNoContent()
{
    FilledHost host;
    QToolBar *const file = toolBarTitled(host.manager, QStringLiteral("File"));
    const auto standing = file->actions();
    ShownEditor editor(&host.manager);
    ToolBarRecorder recorder(host);
    editor.widget.applyClicked();
    QCOMPARE(recorder.events, QStringList());
    // Not even the separators are new.
    QCOMPARE(file->actions(), standing);
}

// Each is written whole, which undoes what the host has done to it since the fill.
void tst_RyCToolBarWidget_Apply::applyWritesToolBarsThatWereNotEdited()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    const QStringList before = toolBarsOf(host.manager);
    for (const char *title : {"File", "Mine", "Tools"})
        host.manager.setToolBar(toolBarTitled(host.manager, QLatin1String(title)),
                                host.list({QStringLiteral("zoom"), QStringLiteral("|")}));
    QVERIFY(toolBarsOf(host.manager) != before);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
}

void tst_RyCToolBarWidget_Apply::applyWritesTheEditedContent()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("File"));
    editor.views.doubleClick(editor.views.actionTree, QStringLiteral("Zoom"));
    editor.selectToolBar(QStringLiteral("Mine"));
    editor.views.doubleClick(editor.views.currentToolBarList, 1);
    editor.views.doubleClick(editor.views.actionTree, Separator);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({QStringLiteral("File: open zoom | save"),
                          QStringLiteral("Mine: cut paste |"), QStringLiteral("Tools: | cut")}));
}

void tst_RyCToolBarWidget_Apply::applyAlwaysSetsTheTitle()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    QToolBar *const file = toolBarTitled(host.manager, QStringLiteral("File"));
    QToolBar *const mine = toolBarTitled(host.manager, QStringLiteral("Mine"));
    file->setWindowTitle(QStringLiteral("Changed by the host"));
    mine->setWindowTitle(QString());
    editor.widget.applyClicked();
    QCOMPARE(file->windowTitle(), QStringLiteral("File"));
    QCOMPARE(mine->windowTitle(), QStringLiteral("Mine"));
}

void tst_RyCToolBarWidget_Apply::applyWorksInPhases()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    removeToolBar(editor, QStringLiteral("Tools"));
    makeToolBar(editor, QStringLiteral("Yours"), {QStringLiteral("Zoom"), Separator});
    ToolBarRecorder recorder(host);
    for (const char *title : {"File", "Mine"}) {
        editor.selectToolBar(QLatin1String(title));
        editor.selectEntry(0);
        editor.call("leftClicked");
        toolBarTitled(host.manager, QLatin1String(title))->setWindowTitle(QStringLiteral("Host's"));
    }
    recorder.events.clear();
    QStringList expected;
    const auto records = EditorFields::of(editor.widget).workingActions.keys();
    for (const ToolBarItem *record : records) {
        if (record->toolBarName() == QLatin1String("File"))
            expected << QStringLiteral("content of File") << QStringLiteral("+\"\" on File")
                     << QStringLiteral("+save on File") << QStringLiteral("File titles File");
        else if (record->toolBarName() == QLatin1String("Mine"))
            expected << QStringLiteral("content of Mine") << QStringLiteral("+copy on Mine")
                     << QStringLiteral("+paste on Mine") << QStringLiteral("Mine titles Mine");
    }
    expected << QStringLiteral("content of Tools") << QStringLiteral("deleted Tools")
             << QStringLiteral("created") << QStringLiteral("Yours titles new")
             << QStringLiteral("+zoom on new") << QStringLiteral("+\"\" on new");
    editor.widget.applyClicked();
    QCOMPARE(recorder.events.join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({QStringLiteral("File: | save"), QStringLiteral("Mine: copy paste"),
                          QStringLiteral("Yours: zoom |")}));
}

void tst_RyCToolBarWidget_Apply::applyWritesTheToolBarsInTheOrderOfTheRecords()
{
    FilledHost host;
    for (int i = 0; i < 8; ++i)
        customToolBar(host, QStringLiteral("Toolbar %1").arg(i), {});
    ShownEditor editor(&host.manager);
    // Freed records come back in another order.
    editor.widget.hide();
    editor.widget.show();
    QStringList expected;
    const auto records = EditorFields::of(editor.widget).workingActions.keys();
    QVERIFY(std::is_sorted(records.cbegin(), records.cend(), std::less<ToolBarItem *>()));
    for (ToolBarItem *record : records) {
        expected << record->toolBarName() + QStringLiteral(" titles Host's");
        record->toolBar()->setWindowTitle(QStringLiteral("Host's"));
    }
    ToolBarRecorder recorder(host);
    editor.widget.applyClicked();
    QCOMPARE(recorder.events, expected);
}

void tst_RyCToolBarWidget_Apply::aToolBarIsFilledBeforeItIsTitled()
{
    Host host;
    host.registered(QStringLiteral("cut"), QStringLiteral("Edits"));
    customToolBar(host, QStringLiteral("Mine"), {});
    ShownEditor editor(&host.manager);
    editor.views.doubleClick(editor.views.actionTree, QStringLiteral("Cut"));
    editor.views.click(editor.views.renameButton);
    editor.views.typeName(QStringLiteral("Yours"));
    ToolBarRecorder recorder(host);
    editor.widget.applyClicked();
    QCOMPARE(recorder.events,
             QStringList({QStringLiteral("+cut on Mine"), QStringLiteral("Yours titles Mine")}));
}

void tst_RyCToolBarWidget_Apply::aCreatedToolBarGetsItsNameAndThenItsContent()
{
    Host host;
    host.registered(QStringLiteral("cut"), QStringLiteral("Edits"));
    host.registered(QStringLiteral("zoom"), QStringLiteral("Edits"));
    ShownEditor editor(&host.manager);
    makeToolBar(editor, QStringLiteral("Yours"), {QStringLiteral("Cut"), QStringLiteral("Zoom")});
    ToolBarRecorder recorder(host);
    editor.widget.applyClicked();
    QCOMPARE(recorder.events,
             QStringList({QStringLiteral("created"), QStringLiteral("Yours titles new"),
                          QStringLiteral("+cut on new"), QStringLiteral("+zoom on new")}));
    QCOMPARE(toolBarsOf(host.manager), QStringList{QStringLiteral("Yours: cut zoom")});
    QVERIFY(!host.manager.isDefaultToolBar(host.manager.toolBars().first()));
}

void tst_RyCToolBarWidget_Apply::aCreatedToolBarIsAnExistingOneFromThenOn()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    makeToolBar(editor, QStringLiteral("Yours"), {QStringLiteral("Zoom")});
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    editor.widget.applyClicked();
    QToolBar *const made = toolBarTitled(host.manager, QStringLiteral("Yours"));
    QVERIFY(made);
    QCOMPARE(record->toolBar(), made);
    EditorFields fields = EditorFields::of(editor.widget);
    QCOMPARE(fields.currentRecord, record);
    QVERIFY(fields.createdRecords.isEmpty());
    QVERIFY(fields.workingActions.contains(record));
    QCOMPARE(editor.inconsistency(), QString());

    // Edited again it is the same toolbar.
    editor.views.doubleClick(editor.views.actionTree, QStringLiteral("Cut"));
    editor.views.click(editor.views.renameButton);
    editor.views.typeName(QStringLiteral("Theirs"));
    editor.widget.applyClicked();
    QCOMPARE(made->windowTitle(), QStringLiteral("Theirs"));
    QCOMPARE(standingOn(made), QStringList({QStringLiteral("zoom"), QStringLiteral("cut")}));
    QCOMPARE(host.manager.toolBars().size(), 4);

    // Removed it is deleted from the host.
    const QPointer<QToolBar> guard = made;
    editor.views.click(editor.views.removeButton);
    QCOMPARE(EditorFields::of(editor.widget).removedRecords, QSet<ToolBarItem *>{record});
    editor.widget.applyClicked();
    QVERIFY(!guard);
    QCOMPARE(host.manager.toolBars().size(), 3);
}

void tst_RyCToolBarWidget_Apply::aCreatedToolBarGetsTheNextFreeObjectName()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    removeToolBar(editor, QStringLiteral("Mine"));
    makeToolBar(editor, QStringLiteral("Yours"), {});
    editor.widget.applyClicked();
    // Deletion comes before creation, so that the number is free again.
    QCOMPARE(host.manager.toolBarByName(QStringLiteral("_Custom_Toolbar_1"))->windowTitle(),
             QStringLiteral("Yours"));
}

void tst_RyCToolBarWidget_Apply::severalToolBarsAreCreatedAndDeleted()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    removeToolBar(editor, QStringLiteral("Mine"));
    removeToolBar(editor, QStringLiteral("Tools"));
    makeToolBar(editor, QStringLiteral("One"), {QStringLiteral("Cut")});
    makeToolBar(editor, QStringLiteral("Two"), {QStringLiteral("Cut"), QStringLiteral("Copy")});
    makeToolBar(editor, QStringLiteral("Two"), {});
    const QStringList expected = {QStringLiteral("File: open | save"), QStringLiteral("One: cut"),
                                  QStringLiteral("Two:"), QStringLiteral("Two: cut copy")};
    QCOMPARE(editor.workingCopy(), expected);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), expected);
    QCOMPARE(host.window.findChildren<QToolBar *>().size(), 4);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::aRemovedToolBarIsDeleted()
{
    FilledHost host;
    const QPointer<QToolBar> mine = toolBarTitled(host.manager, QStringLiteral("Mine"));
    ShownEditor editor(&host.manager);
    removeToolBar(editor, QStringLiteral("Mine"));
    QVERIFY(mine);
    editor.widget.applyClicked();
    QVERIFY(!mine);
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({QStringLiteral("File: open | save"), QStringLiteral("Tools: | cut")}));
    const EditorFields fields = EditorFields::of(editor.widget);
    QVERIFY(fields.removedRecords.isEmpty());
    QCOMPARE(fields.ownedRecords.size(), 2);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::applyingTwiceCreatesAndDeletesNothing()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    removeToolBar(editor, QStringLiteral("Mine"));
    makeToolBar(editor, QStringLiteral("Yours"), {QStringLiteral("Zoom"), Separator});
    editor.widget.applyClicked();
    const QStringList applied = toolBarsOf(host.manager);
    const auto toolBars = host.manager.toolBars();

    ToolBarRecorder recorder(host);
    editor.widget.applyClicked();
    QCOMPARE(recorder.events, QStringList());
    QCOMPARE(toolBarsOf(host.manager), applied);
    QCOMPARE(host.manager.toolBars(), toolBars);
    // But the existing ones are written, the created one included.
    for (QToolBar *toolBar : toolBars) {
        toolBar->setWindowTitle(QStringLiteral("Host's"));
        host.manager.setToolBar(toolBar, {});
    }
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), applied);
}

void tst_RyCToolBarWidget_Apply::applyLeavesTheViewsAsTheyAre()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    removeToolBar(editor, QStringLiteral("Tools"));
    makeToolBar(editor, QStringLiteral("Yours"), {QStringLiteral("Zoom")});
    editor.selectToolBar(QStringLiteral("Mine"));
    editor.selectEntry(1);
    editor.selectAction(QStringLiteral("Paste"));
    const QListWidgetItem *const toolBar = editor.views.toolBarList->currentItem();
    const QListWidgetItem *const entry = editor.views.currentToolBarList->currentItem();
    const QTreeWidgetItem *const action = editor.views.actionTree->currentItem();
    const QStringList rows = rowsOf(editor.views.toolBarList);
    const QStringList buttons = editor.views.enabledButtons();
    // Known to the manager, but not shown before the next fill.
    host.registered(QStringLiteral("late"), QStringLiteral("Edits"));

    editor.widget.applyClicked();
    QCOMPARE(editor.views.toolBarList->currentItem(), toolBar);
    QCOMPARE(editor.views.currentToolBarList->currentItem(), entry);
    QCOMPARE(editor.views.actionTree->currentItem(), action);
    QCOMPARE(rowsOf(editor.views.toolBarList), rows);
    QCOMPARE(editor.views.enabledButtons(), buttons);
    QVERIFY(!itemNamed(editor.views.actionTree, QStringLiteral("Late")));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::applyWhileTheNameIsEditedTakesTheOldName()
{
    Host host;
    ShownEditor editor(&host.manager);
    editor.views.click(editor.views.newButton);
    QLineEdit *const name = qobject_cast<QLineEdit *>(editor.views.renameEditor());
    QVERIFY(name);
    name->selectAll();
    QTest::keyClicks(name, QStringLiteral("Yours"));
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList{QStringLiteral("Custom Toolbar:")});
    QCOMPARE(editor.views.renameEditor(), name);
    QTest::keyClick(name, Qt::Key_Return);
    QTRY_VERIFY(!editor.views.renameEditor());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList{QStringLiteral("Yours:")});
}

void tst_RyCToolBarWidget_Apply::applyIsDoneWhenItReturns()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    removeToolBar(editor, QStringLiteral("Mine"));
    makeToolBar(editor, QStringLiteral("Yours"), {QStringLiteral("Zoom")});
    editor.widget.applyClicked();
    const QStringList applied = toolBarsOf(host.manager);
    const int toolBars = host.window.findChildren<QToolBar *>().size();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(toolBarsOf(host.manager), applied);
    QCOMPARE(host.window.findChildren<QToolBar *>().size(), toolBars);
    QCOMPARE(applied, editor.workingCopy());
}

void tst_RyCToolBarWidget_Apply::withoutAMainWindowNothingIsCreated()
{
    FilledHost host;
    host.manager.setMainWindow(nullptr);
    const QStringList before = toolBarsOf(host.manager);
    ShownEditor editor(&host.manager);
    makeToolBar(editor, QStringLiteral("Yours"), {QStringLiteral("Zoom")});
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
    QVERIFY(!record->toolBar());
    QVERIFY(EditorFields::of(editor.widget).createdRecords.isEmpty());
    QVERIFY(itemNamed(editor.views.toolBarList, QStringLiteral("Yours")));

    // It is treated as applied, so that it is not tried again.
    editor.widget.applyClicked();
    host.manager.setMainWindow(&host.window);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
    QCOMPARE(editor.inconsistency(), QString());

    // Without a toolbar it vanishes at once.
    editor.views.click(editor.views.removeButton);
    QVERIFY(EditorFields::of(editor.widget).removedRecords.isEmpty());
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
}

void tst_RyCToolBarWidget_Apply::anActionThatTheHostTookAwayIsLeftOut()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    host.manager.removeAction(host.action(QStringLiteral("cut")));
    editor.selectToolBar(QStringLiteral("Mine"));
    editor.views.doubleClick(editor.views.actionTree, QStringLiteral("Zoom"));
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({QStringLiteral("File: open | save"),
                          QStringLiteral("Mine: zoom copy paste"), QStringLiteral("Tools: |")}));
}

void tst_RyCToolBarWidget_Apply::aToolBarThatTheHostDeletedIsLeftAlone()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("Mine"));
    editor.call("leftClicked");
    editor.views.click(editor.views.renameButton);
    editor.views.typeName(QStringLiteral("Yours"));
    host.manager.deleteToolBar(toolBarTitled(host.manager, QStringLiteral("Mine")));
    editor.widget.applyClicked();
    const QStringList left = {QStringLiteral("File: open | save"), QStringLiteral("Tools: | cut")};
    QCOMPARE(toolBarsOf(host.manager), left);
    // Its row stays until it is removed or the editor is shown again.
    QCOMPARE(currentOf(editor.views.toolBarList), QStringLiteral("Yours"));
    editor.views.click(editor.views.removeButton);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), left);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::aRemovedToolBarThatTheHostDeletedIsLeftAlone()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    removeToolBar(editor, QStringLiteral("Mine"));
    host.manager.deleteToolBar(toolBarTitled(host.manager, QStringLiteral("Mine")));
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({QStringLiteral("File: open | save"), QStringLiteral("Tools: | cut")}));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::aToolBarThatTheManagerForgotStillGetsItsTitle()
{
    FilledHost host;
    QToolBar *const forgotten = toolBarTitled(host.manager, QStringLiteral("Mine"));
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("Mine"));
    editor.views.click(editor.views.renameButton);
    editor.views.typeName(QStringLiteral("Yours"));
    host.manager.removeDefaultToolBar(forgotten);
    editor.widget.applyClicked();
    QCOMPARE(forgotten->windowTitle(), QStringLiteral("Yours"));
    // Its content is the host's alone.
    QCOMPARE(standingOn(forgotten), QStringList());
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({QStringLiteral("File: open | save"), QStringLiteral("Tools: | cut")}));
}

void tst_RyCToolBarWidget_Apply::applyKeepsTheRecordsOfTheFill()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    const auto before = EditorFields::of(editor.widget).recordOfToolBar;
    QCOMPARE(before.size(), 3);
    removeToolBar(editor, QStringLiteral("Mine"));
    makeToolBar(editor, QStringLiteral("Yours"), {});
    editor.widget.applyClicked();
    QCOMPARE(EditorFields::of(editor.widget).recordOfToolBar, before);
}

void tst_RyCToolBarWidget_Apply::anUntitledToolBarIsRenamedAndRemoved()
{
    FilledHost host;
    const QStringList others = toolBarsOf(host.manager);
    const QPointer<QToolBar> untitled = customToolBar(host, QString(), {QStringLiteral("cut")});
    ShownEditor editor(&host.manager);
    QCOMPARE(rowsOf(editor.views.toolBarList),
             QStringList({QString(), QStringLiteral("File"), QStringLiteral("Mine"),
                          QStringLiteral("Tools")}));
    editor.selectToolBar(QString());
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList{QStringLiteral("Cut")});
    editor.views.doubleClick(editor.views.actionTree, QStringLiteral("Zoom"));
    editor.widget.applyClicked();
    QCOMPARE(untitled->windowTitle(), QString());
    QCOMPARE(standingOn(untitled), QStringList({QStringLiteral("cut"), QStringLiteral("zoom")}));

    for (const QString &name : {QStringLiteral("Named"), QString()}) {
        editor.views.click(editor.views.renameButton);
        editor.views.typeName(name);
        QCOMPARE(editor.views.toolBarList->currentItem()->text(), name);
        editor.widget.applyClicked();
        QCOMPARE(untitled->windowTitle(), name);
    }

    editor.views.click(editor.views.removeButton);
    editor.widget.applyClicked();
    QVERIFY(!untitled);
    QCOMPARE(toolBarsOf(host.manager), others);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::anUntitledDefaultToolBarStaysUntitled()
{
    Host host;
    QToolBar *const untitled = host.toolBar(QStringLiteral("file"), {QStringLiteral("open")});
    untitled->setWindowTitle(QString());
    host.manager.addDefaultToolBar(untitled, QStringLiteral("Files"));
    ShownEditor editor(&host.manager);
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{QString()});
    editor.call("renameClicked");
    QVERIFY(!editor.views.renameEditor());
    editor.call("removeClicked");
    editor.call("leftClicked");
    untitled->setWindowTitle(QStringLiteral("Changed by the host"));
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList{QStringLiteral(":")});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsChangesTheWorkingCopyOnly()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("File"));
    editor.call("leftClicked");
    editor.widget.applyClicked();
    const QStringList before = toolBarsOf(host.manager);
    ToolBarRecorder recorder(host);
    editor.widget.defaultClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
    QCOMPARE(recorder.events, QStringList());
    QCOMPARE(editor.workingCopy(), QStringList{QStringLiteral("File: open | save")});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsResetsTheContentOfDefaultToolBars()
{
    FilledHost host;
    host.defaultToolBar(QStringLiteral("view"), {QStringLiteral("zoom")}, QStringLiteral("View"));
    host.defaultToolBar(QStringLiteral("help"), {}, QStringLiteral("Help"));
    // Edited before, edited now, not at all.
    host.manager.setToolBar(toolBarTitled(host.manager, QStringLiteral("View")), {});
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("File"));
    editor.call("downClicked");
    editor.selectToolBar(QStringLiteral("Help"));
    editor.call("rightClicked");
    editor.widget.defaultClicked();
    const QStringList defaults = {QStringLiteral("File: open | save"), QStringLiteral("Help:"),
                                  QStringLiteral("View: zoom")};
    QCOMPARE(editor.workingCopy(), defaults);
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), defaults);
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsShowsTheDefaultContent()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("File"));
    editor.views.doubleClick(editor.views.currentToolBarList, 2);
    editor.views.doubleClick(editor.views.actionTree, QStringLiteral("Zoom"));
    editor.widget.defaultClicked();
    QCOMPARE(currentOf(editor.views.toolBarList), QStringLiteral("File"));
    QCOMPARE(rowsOf(editor.views.currentToolBarList),
             QStringList({QStringLiteral("Open"), Separator, QStringLiteral("Save")}));
    QCOMPARE(editor.views.currentToolBarList->currentRow(), 0);
    QCOMPARE(editor.inconsistency(), QString());
}

// Even while another row of the list is current.
void tst_RyCToolBarWidget_Apply::restoreDefaultsRefreshesTheToolBarThatIsShown()
{
    FilledHost host;
    host.defaultToolBar(QStringLiteral("view"), {QStringLiteral("zoom")}, QStringLiteral("View"));
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("File"));
    QListWidgetItem *const view = itemNamed(editor.views.toolBarList, QStringLiteral("View"));
    QVERIFY(QMetaObject::invokeMethod(&editor.widget, "currentToolBarChanged", Qt::DirectConnection,
                                      Q_ARG(QListWidgetItem *, view)));
    editor.call("leftClicked");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList{QStringLiteral("Zoom")});
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsShowsNothingWithoutACurrentToolBar()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.views.toolBarList->setCurrentItem(nullptr);
    editor.widget.defaultClicked();
    QVERIFY(!editor.views.toolBarList->currentItem());
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{QStringLiteral("File")});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsRemovesCustomToolBars()
{
    FilledHost host;
    const QPointer<QToolBar> mine = toolBarTitled(host.manager, QStringLiteral("Mine"));
    const QPointer<QToolBar> tools = toolBarTitled(host.manager, QStringLiteral("Tools"));
    ShownEditor editor(&host.manager);
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{QStringLiteral("File")});
    QVERIFY(mine);
    QVERIFY(tools);
    QCOMPARE(EditorFields::of(editor.widget).removedRecords.size(), 2);
    editor.widget.applyClicked();
    QVERIFY(!mine);
    QVERIFY(!tools);
    QCOMPARE(toolBarsOf(host.manager), QStringList{QStringLiteral("File: open | save")});
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsFreesNewToolBars()
{
    Host host;
    host.defaultToolBar(QStringLiteral("file"), {QStringLiteral("open")}, QStringLiteral("Files"));
    ShownEditor editor(&host.manager);
    makeToolBar(editor, QStringLiteral("Yours"), {QStringLiteral("Open")});
    makeToolBar(editor, QStringLiteral("Theirs"), {});
    editor.widget.defaultClicked();
    const EditorFields fields = EditorFields::of(editor.widget);
    QVERIFY(fields.createdRecords.isEmpty());
    QVERIFY(fields.removedRecords.isEmpty());
    QCOMPARE(fields.ownedRecords.size(), 1);
    ToolBarRecorder recorder(host);
    editor.widget.applyClicked();
    QCOMPARE(recorder.events, QStringList());
    QCOMPARE(toolBarsOf(host.manager), QStringList{QStringLiteral("File: open")});
}

// The editor kept no record of it from the fill.
void tst_RyCToolBarWidget_Apply::restoreDefaultsRemovesToolBarsThatWereCreatedAndApplied()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    makeToolBar(editor, QStringLiteral("Yours"), {QStringLiteral("Zoom")});
    editor.widget.applyClicked();
    const QPointer<QToolBar> made = toolBarTitled(host.manager, QStringLiteral("Yours"));
    QVERIFY(made);
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{QStringLiteral("File")});
    editor.widget.applyClicked();
    QVERIFY(!made);
    QCOMPARE(toolBarsOf(host.manager), QStringList{QStringLiteral("File: open | save")});
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsLeavesRemovedToolBarsRemoved()
{
    FilledHost host;
    const QPointer<QToolBar> mine = toolBarTitled(host.manager, QStringLiteral("Mine"));
    ShownEditor editor(&host.manager);
    removeToolBar(editor, QStringLiteral("Mine"));
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{QStringLiteral("File")});
    QCOMPARE(EditorFields::of(editor.widget).removedRecords.size(), 2);
    editor.widget.applyClicked();
    QVERIFY(!mine);
    QCOMPARE(toolBarsOf(host.manager), QStringList{QStringLiteral("File: open | save")});
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsSelectsTheRowThatTakesThePlace_data()
{
    QTest::addColumn<QString>("custom");
    QTest::addColumn<QString>("current");
    QTest::newRow("above") << "Above"
                           << "File";
    QTest::newRow("between") << "Mine"
                             << "View";
    QTest::newRow("below") << "Zebra"
                           << "View";
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsSelectsTheRowThatTakesThePlace()
{
    QFETCH(QString, custom);
    QFETCH(QString, current);
    Host host;
    host.defaultToolBar(QStringLiteral("file"), {QStringLiteral("open")}, QStringLiteral("Files"));
    host.defaultToolBar(QStringLiteral("view"), {QStringLiteral("zoom")}, QStringLiteral("View"));
    customToolBar(host, custom, {QStringLiteral("zoom"), QStringLiteral("open")});
    ShownEditor editor(&host.manager);
    editor.selectToolBar(custom);
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.toolBarList),
             QStringList({QStringLiteral("File"), QStringLiteral("View")}));
    QCOMPARE(currentOf(editor.views.toolBarList), current);
    const QString content =
        current == QLatin1String("File") ? QStringLiteral("Open") : QStringLiteral("Zoom");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList{content});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsWithCustomToolBarsOnlyLeavesNone()
{
    Host host;
    host.registered(QStringLiteral("cut"), QStringLiteral("Edits"));
    customToolBar(host, QStringLiteral("Mine"), {QStringLiteral("cut")});
    customToolBar(host, QStringLiteral("Yours"), {QStringLiteral("cut")});
    ShownEditor editor(&host.manager);
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList());
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsKeepsTheNames()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    QToolBar *const file = toolBarTitled(host.manager, QStringLiteral("File"));
    file->setWindowTitle(QStringLiteral("Changed by the host"));
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{QStringLiteral("File")});
    QCOMPARE(editor.workingCopy(), QStringList{QStringLiteral("File: open | save")});
    editor.widget.applyClicked();
    QCOMPARE(file->windowTitle(), QStringLiteral("File"));
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsDoesNotBringUnregisteredActionsBack()
{
    FilledHost host;
    host.manager.removeAction(host.action(QStringLiteral("open")));
    ShownEditor editor(&host.manager);
    editor.widget.defaultClicked();
    QCOMPARE(editor.workingCopy(), QStringList{QStringLiteral("File: | save")});
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList{QStringLiteral("File: | save")});
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsThenHidingChangesNothing()
{
    FilledHost host;
    host.manager.setToolBar(toolBarTitled(host.manager, QStringLiteral("File")), {});
    const QStringList before = toolBarsOf(host.manager);
    ShownEditor editor(&host.manager);
    editor.widget.defaultClicked();
    editor.widget.hide();
    QCOMPARE(toolBarsOf(host.manager), before);
    editor.widget.show();
    QCOMPARE(editor.workingCopy(), before);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsThenApplyEqualsTheDefaults()
{
    FilledHost host;
    host.defaultToolBar(QStringLiteral("view"), {QStringLiteral("zoom"), QStringLiteral("|")},
                        QStringLiteral("View"));
    const auto toolBars = host.manager.toolBars();
    for (QToolBar *toolBar : toolBars)
        host.manager.setToolBar(toolBar, host.list({QStringLiteral("paste")}));
    ShownEditor editor(&host.manager);
    editor.widget.defaultClicked();
    editor.widget.applyClicked();
    QCOMPARE(host.manager.toolBarsActions(), host.manager.defaultToolBars());
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({QStringLiteral("File: open | save"), QStringLiteral("View: zoom |")}));
    QCOMPARE(editor.workingCopy(), toolBarsOf(host.manager));
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsTwiceIsAsOnce()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("Mine"));
    editor.widget.defaultClicked();
    editor.widget.defaultClicked();
    QCOMPARE(editor.workingCopy(), QStringList{QStringLiteral("File: open | save")});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsWhileTheNameIsEdited()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.views.click(editor.views.newButton);
    QTest::keyClicks(editor.views.renameEditor(), QStringLiteral("Yours"));
    editor.widget.defaultClicked();
    QTRY_VERIFY(!editor.views.renameEditor());
    QCOMPARE(editor.workingCopy(), QStringList{QStringLiteral("File: open | save")});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsWhileHiddenHasNoEffect()
{
    FilledHost host;
    host.manager.setToolBar(toolBarTitled(host.manager, QStringLiteral("File")), {});
    const QStringList before = toolBarsOf(host.manager);
    ShownEditor editor(&host.manager);
    editor.widget.hide();
    editor.widget.defaultClicked();
    QCOMPARE(editor.workingCopy(), QStringList());
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
    editor.widget.show();
    QCOMPARE(editor.workingCopy(), before);

    // Nor before it was ever shown.
    RyCToolBarWidget other(nullptr, &host.manager, Qt::WindowFlags());
    other.defaultClicked();
    other.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
}

// The records of the fill are gone, and what comes next may lie where they were.
void tst_RyCToolBarWidget_Apply::restoreDefaultsAfterToolBarsWereDeleted()
{
    FilledHost host;
    for (int i = 0; i < 8; ++i)
        customToolBar(host, QStringLiteral("Toolbar %1").arg(i), {});
    ShownEditor editor(&host.manager);
    const auto titles = rowsOf(editor.views.toolBarList);
    for (const QString &title : titles) {
        if (title != QLatin1String("File"))
            removeToolBar(editor, title);
    }
    editor.widget.applyClicked();
    for (int i = 0; i < 8; ++i) {
        host.defaultToolBar(QStringLiteral("late%1").arg(i), {QStringLiteral("zoom")},
                            QStringLiteral("View"));
        editor.views.click(editor.views.newButton);
    }
    editor.widget.defaultClicked();
    QCOMPARE(editor.workingCopy(), QStringList{QStringLiteral("File: open | save")});
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(host.manager.toolBarsActions(), host.manager.defaultToolBars());
    QCOMPARE(host.manager.toolBars().size(), 9);
}

void tst_RyCToolBarWidget_Apply::aDefaultToolBarRegisteredAfterTheFillIsLeftAlone()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    QToolBar *const late =
        host.defaultToolBar(QStringLiteral("late"), {QStringLiteral("zoom")}, QString());
    host.manager.setToolBar(late, host.list({QStringLiteral("cut")}));
    editor.widget.defaultClicked();
    QCOMPARE(editor.workingCopy(), QStringList{QStringLiteral("File: open | save")});
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({QStringLiteral("File: open | save"), QStringLiteral("Late: cut")}));
}

QTEST_MAIN(tst_RyCToolBarWidget_Apply)

#include "tst_ryctoolbarwidget_apply.moc"
