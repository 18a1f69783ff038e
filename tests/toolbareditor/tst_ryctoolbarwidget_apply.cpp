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

const QString Separator = "< S E P A R A T O R >";

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
            note("+" + contentOf({static_cast<QActionEvent *>(event)->action()})[0] + " on "
                 + name);
            break;
        case QEvent::ActionRemoved:
            note("content of " + name);
            break;
        case QEvent::WindowTitleChange:
            note(static_cast<QWidget *>(watched)->windowTitle() + " titles " + name);
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
        QObject *const child = event->child();
        if (event->added() && child->isWidgetType()) {
            watch(child, "new");
            note("created");
        } else if (event->removed() && m_names.contains(child)) {
            note("deleted " + m_names.value(child));
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
    void applyAlwaysSetsTheTitle();
    void applyWorksInPhases();
    void applyWritesTheToolBarsInTheOrderOfTheRecords();
    void aCreatedToolBarIsAnExistingOneFromThenOn();
    void aCreatedToolBarGetsTheNextFreeObjectName();
    void severalToolBarsAreCreatedAndDeleted();
    void applyingTwiceCreatesAndDeletesNothing();
    void applyLeavesTheViewsAsTheyAre();
    void applyWhileTheNameIsEditedTakesTheOldName();
    void withoutAMainWindowNothingIsCreated();
    void aToolBarThatTheManagerForgotStillGetsItsTitle();
    void applyKeepsTheRecordsOfTheFill();
    void anUntitledToolBarIsRenamedAndRemoved();
    void anUntitledDefaultToolBarStaysUntitled();

    void restoreDefaultsChangesTheWorkingCopyOnly();
    void restoreDefaultsResetsTheContentOfDefaultToolBars();
    void restoreDefaultsShowsTheDefaultContent();
    void restoreDefaultsRefreshesTheToolBarThatIsShown();
    void restoreDefaultsShowsNothingWithoutACurrentToolBar();
    void restoreDefaultsFreesNewToolBars();
    void restoreDefaultsRemovesToolBarsThatWereCreatedAndApplied();
    void restoreDefaultsLeavesRemovedToolBarsRemoved();
    void restoreDefaultsSelectsTheRowThatTakesThePlace_data();
    void restoreDefaultsSelectsTheRowThatTakesThePlace();
    void restoreDefaultsWithCustomToolBarsOnlyLeavesNone();
    void restoreDefaultsKeepsTheNames();
    void restoreDefaultsDoesNotBringUnregisteredActionsBack();
    void restoreDefaultsThenApplyEqualsTheDefaults();
    void restoreDefaultsWhileTheNameIsEdited();
    void restoreDefaultsWhileHiddenHasNoEffect();
    void restoreDefaultsAfterToolBarsWereDeleted();
    void aDefaultToolBarRegisteredAfterTheFillIsLeftAlone();
};

void tst_RyCToolBarWidget_Apply::applyWithoutEditsTouchesNoContent()
{
    EditorHost host;
    QToolBar *const file = toolBarTitled(host.manager, "File");
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
    FilledEditor editor;
    const QStringList before = toolBarsOf(editor.host.manager);
    for (const char *title : {"File", "Mine", "Tools"})
        editor.host.manager.setToolBar(toolBarTitled(editor.host.manager, title),
                                       editor.host.list({"zoom", "|"}));
    QVERIFY(toolBarsOf(editor.host.manager) != before);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), before);
}

void tst_RyCToolBarWidget_Apply::applyAlwaysSetsTheTitle()
{
    FilledEditor editor;
    QToolBar *const file = toolBarTitled(editor.host.manager, "File");
    QToolBar *const mine = toolBarTitled(editor.host.manager, "Mine");
    file->setWindowTitle("Changed by the host");
    mine->setWindowTitle(QString());
    editor.widget.applyClicked();
    QCOMPARE(file->windowTitle(), "File");
    QCOMPARE(mine->windowTitle(), "Mine");
}

void tst_RyCToolBarWidget_Apply::applyWorksInPhases()
{
    FilledEditor editor;
    removeToolBar(editor, "Tools");
    makeToolBar(editor, "Yours", {"Zoom", Separator});
    ToolBarRecorder recorder(editor.host);
    for (const char *title : {"File", "Mine"}) {
        editor.selectToolBar(title);
        editor.selectEntry(0);
        editor.call("leftClicked");
        toolBarTitled(editor.host.manager, title)->setWindowTitle("Host's");
    }
    recorder.events.clear();
    QStringList expected;
    const auto records = EditorFields::of(editor.widget).workingActions.keys();
    for (const ToolBarItem *record : records) {
        if (record->toolBarName() == "File")
            expected << "content of File"
                     << "+\"\" on File"
                     << "+save on File"
                     << "File titles File";
        else if (record->toolBarName() == "Mine")
            expected << "content of Mine"
                     << "+copy on Mine"
                     << "+paste on Mine"
                     << "Mine titles Mine";
    }
    expected << "content of Tools"
             << "deleted Tools"
             << "created"
             << "Yours titles new"
             << "+zoom on new"
             << "+\"\" on new";
    editor.widget.applyClicked();
    QCOMPARE(recorder.events.join('\n'), expected.join('\n'));
    QCOMPARE(toolBarsOf(editor.host.manager),
             QStringList({"File: | save", "Mine: copy paste", "Yours: zoom |"}));
}

void tst_RyCToolBarWidget_Apply::applyWritesTheToolBarsInTheOrderOfTheRecords()
{
    EditorHost host;
    for (int i = 0; i < 8; ++i)
        customToolBar(host, QString("Toolbar %1").arg(i), {});
    ShownEditor editor(&host.manager);
    // Freed records come back in another order.
    editor.widget.hide();
    editor.widget.show();
    QStringList expected;
    const auto records = EditorFields::of(editor.widget).workingActions.keys();
    QVERIFY(std::is_sorted(records.cbegin(), records.cend(), std::less<ToolBarItem *>()));
    for (ToolBarItem *record : records) {
        expected << record->toolBarName() + " titles Host's";
        record->toolBar()->setWindowTitle("Host's");
    }
    ToolBarRecorder recorder(host);
    editor.widget.applyClicked();
    QCOMPARE(recorder.events, expected);
}

void tst_RyCToolBarWidget_Apply::aCreatedToolBarIsAnExistingOneFromThenOn()
{
    FilledEditor editor;
    makeToolBar(editor, "Yours", {"Zoom"});
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    editor.widget.applyClicked();
    QToolBar *const made = toolBarTitled(editor.host.manager, "Yours");
    QVERIFY(made);
    QCOMPARE(record->toolBar(), made);
    EditorFields fields = EditorFields::of(editor.widget);
    QCOMPARE(fields.currentRecord, record);
    QVERIFY(fields.createdRecords.isEmpty());
    QVERIFY(fields.workingActions.contains(record));
    QCOMPARE(editor.inconsistency(), QString());

    // Edited again it is the same toolbar.
    editor.views.doubleClick(editor.views.actionTree, "Cut");
    editor.views.click(editor.views.renameButton);
    editor.views.typeName("Theirs");
    editor.widget.applyClicked();
    QCOMPARE(made->windowTitle(), "Theirs");
    QCOMPARE(standingOn(made), QStringList({"zoom", "cut"}));
    QCOMPARE(editor.host.manager.toolBars().size(), 4);

    // Removed it is deleted from the editor.host.
    const QPointer<QToolBar> guard = made;
    editor.views.click(editor.views.removeButton);
    QCOMPARE(EditorFields::of(editor.widget).removedRecords, QSet<ToolBarItem *>{record});
    editor.widget.applyClicked();
    QVERIFY(!guard);
    QCOMPARE(editor.host.manager.toolBars().size(), 3);
}

void tst_RyCToolBarWidget_Apply::aCreatedToolBarGetsTheNextFreeObjectName()
{
    FilledEditor editor;
    removeToolBar(editor, "Mine");
    makeToolBar(editor, "Yours", {});
    editor.widget.applyClicked();
    // Deletion comes before creation, so that the number is free again.
    QCOMPARE(editor.host.manager.toolBarByName("_Custom_Toolbar_1")->windowTitle(), "Yours");
}

void tst_RyCToolBarWidget_Apply::severalToolBarsAreCreatedAndDeleted()
{
    FilledEditor editor;
    removeToolBar(editor, "Mine");
    removeToolBar(editor, "Tools");
    makeToolBar(editor, "One", {"Cut"});
    makeToolBar(editor, "Two", {"Cut", "Copy"});
    makeToolBar(editor, "Two", {});
    const QStringList expected = {"File: open | save", "One: cut", "Two:", "Two: cut copy"};
    QCOMPARE(editor.workingCopy(), expected);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), expected);
    QCOMPARE(editor.host.window.findChildren<QToolBar *>().size(), 4);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::applyingTwiceCreatesAndDeletesNothing()
{
    FilledEditor editor;
    removeToolBar(editor, "Mine");
    makeToolBar(editor, "Yours", {"Zoom", Separator});
    editor.widget.applyClicked();
    const QStringList applied = toolBarsOf(editor.host.manager);
    const auto toolBars = editor.host.manager.toolBars();

    ToolBarRecorder recorder(editor.host);
    editor.widget.applyClicked();
    QCOMPARE(recorder.events, QStringList());
    QCOMPARE(toolBarsOf(editor.host.manager), applied);
    QCOMPARE(editor.host.manager.toolBars(), toolBars);
    // But the existing ones are written, the created one included.
    for (QToolBar *toolBar : toolBars) {
        toolBar->setWindowTitle("Host's");
        editor.host.manager.setToolBar(toolBar, {});
    }
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), applied);
}

void tst_RyCToolBarWidget_Apply::applyLeavesTheViewsAsTheyAre()
{
    FilledEditor editor;
    removeToolBar(editor, "Tools");
    makeToolBar(editor, "Yours", {"Zoom"});
    editor.selectToolBar("Mine");
    editor.selectEntry(1);
    editor.selectAction("Paste");
    const QListWidgetItem *const toolBar = editor.views.toolBarList->currentItem();
    const QListWidgetItem *const entry = editor.views.currentToolBarList->currentItem();
    const QTreeWidgetItem *const action = editor.views.actionTree->currentItem();
    const QStringList rows = rowsOf(editor.views.toolBarList);
    const QStringList buttons = editor.views.enabledButtons();
    // Known to the manager, but not shown before the next fill.
    editor.host.registered("late", "Edits");

    editor.widget.applyClicked();
    QCOMPARE(editor.views.toolBarList->currentItem(), toolBar);
    QCOMPARE(editor.views.currentToolBarList->currentItem(), entry);
    QCOMPARE(editor.views.actionTree->currentItem(), action);
    QCOMPARE(rowsOf(editor.views.toolBarList), rows);
    QCOMPARE(editor.views.enabledButtons(), buttons);
    QVERIFY(!itemNamed(editor.views.actionTree, "Late"));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::applyWhileTheNameIsEditedTakesTheOldName()
{
    Host host;
    ShownEditor editor(&host.manager);
    editor.views.click(editor.views.newButton);
    QLineEdit *const name = editor.nameEditor();
    QVERIFY(name);
    name->selectAll();
    QTest::keyClicks(name, "Yours");
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList{"Custom Toolbar:"});
    QCOMPARE(editor.views.renameEditor(), name);
    QTest::keyClick(name, Qt::Key_Return);
    QTRY_VERIFY(!editor.views.renameEditor());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList{"Yours:"});
}

void tst_RyCToolBarWidget_Apply::withoutAMainWindowNothingIsCreated()
{
    EditorHost host;
    host.manager.setMainWindow(nullptr);
    const QStringList before = toolBarsOf(host.manager);
    ShownEditor editor(&host.manager);
    makeToolBar(editor, "Yours", {"Zoom"});
    ToolBarItem *const record = EditorFields::of(editor.widget).currentRecord;
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
    QVERIFY(!record->toolBar());
    QVERIFY(EditorFields::of(editor.widget).createdRecords.isEmpty());
    QVERIFY(itemNamed(editor.views.toolBarList, "Yours"));

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

void tst_RyCToolBarWidget_Apply::aToolBarThatTheManagerForgotStillGetsItsTitle()
{
    EditorHost host;
    QToolBar *const forgotten = toolBarTitled(host.manager, "Mine");
    ShownEditor editor(&host.manager);
    editor.selectToolBar("Mine");
    editor.views.click(editor.views.renameButton);
    editor.views.typeName("Yours");
    host.manager.removeDefaultToolBar(forgotten);
    editor.widget.applyClicked();
    QCOMPARE(forgotten->windowTitle(), "Yours");
    // Its content is the host's alone.
    QCOMPARE(standingOn(forgotten), QStringList());
    QCOMPARE(toolBarsOf(host.manager), QStringList({"File: open | save", "Tools: | cut"}));
}

void tst_RyCToolBarWidget_Apply::applyKeepsTheRecordsOfTheFill()
{
    FilledEditor editor;
    const auto before = EditorFields::of(editor.widget).recordOfToolBar;
    QCOMPARE(before.size(), 3);
    removeToolBar(editor, "Mine");
    makeToolBar(editor, "Yours", {});
    editor.widget.applyClicked();
    QCOMPARE(EditorFields::of(editor.widget).recordOfToolBar, before);
}

void tst_RyCToolBarWidget_Apply::anUntitledToolBarIsRenamedAndRemoved()
{
    EditorHost host;
    const QStringList others = toolBarsOf(host.manager);
    const QPointer<QToolBar> untitled = customToolBar(host, QString(), {"cut"});
    ShownEditor editor(&host.manager);
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList({QString(), "File", "Mine", "Tools"}));
    editor.selectToolBar(QString());
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList{"Cut"});
    editor.views.doubleClick(editor.views.actionTree, "Zoom");
    editor.widget.applyClicked();
    QCOMPARE(untitled->windowTitle(), QString());
    QCOMPARE(standingOn(untitled), QStringList({"cut", "zoom"}));

    for (const QString &name : QStringList({"Named", QString()})) {
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
    QToolBar *const untitled = host.toolBar("file", {"open"});
    untitled->setWindowTitle(QString());
    host.manager.addDefaultToolBar(untitled, "Files");
    ShownEditor editor(&host.manager);
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{QString()});
    editor.call("renameClicked");
    QVERIFY(!editor.views.renameEditor());
    editor.call("removeClicked");
    editor.call("leftClicked");
    untitled->setWindowTitle("Changed by the host");
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList{":"});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsChangesTheWorkingCopyOnly()
{
    FilledEditor editor("File");
    editor.call("leftClicked");
    editor.widget.applyClicked();
    const QStringList before = toolBarsOf(editor.host.manager);
    ToolBarRecorder recorder(editor.host);
    editor.widget.defaultClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), before);
    QCOMPARE(recorder.events, QStringList());
    QCOMPARE(editor.workingCopy(), QStringList{"File: open | save"});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsResetsTheContentOfDefaultToolBars()
{
    EditorHost host;
    host.defaultToolBar("view", {"zoom"}, "View");
    host.defaultToolBar("help", {}, "Help");
    // Edited before, edited now, not at all.
    host.manager.setToolBar(toolBarTitled(host.manager, "View"), {});
    ShownEditor editor(&host.manager);
    editor.selectToolBar("File");
    editor.call("downClicked");
    editor.selectToolBar("Help");
    editor.call("rightClicked");
    editor.widget.defaultClicked();
    const QStringList defaults = {"File: open | save", "Help:", "View: zoom"};
    QCOMPARE(editor.workingCopy(), defaults);
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), defaults);
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsShowsTheDefaultContent()
{
    FilledEditor editor("File");
    editor.views.doubleClick(editor.views.currentToolBarList, 2);
    editor.views.doubleClick(editor.views.actionTree, "Zoom");
    editor.widget.defaultClicked();
    QCOMPARE(currentOf(editor.views.toolBarList), "File");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList({"Open", Separator, "Save"}));
    QCOMPARE(editor.views.currentToolBarList->currentRow(), 0);
    QCOMPARE(editor.inconsistency(), QString());
}

// Even while another row of the list is current.
void tst_RyCToolBarWidget_Apply::restoreDefaultsRefreshesTheToolBarThatIsShown()
{
    EditorHost host;
    host.defaultToolBar("view", {"zoom"}, "View");
    ShownEditor editor(&host.manager);
    editor.selectToolBar("File");
    QListWidgetItem *const view = itemNamed(editor.views.toolBarList, "View");
    editor.call("currentToolBarChanged", Q_ARG(QListWidgetItem *, view));
    editor.call("leftClicked");
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList{"Zoom"});
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsShowsNothingWithoutACurrentToolBar()
{
    FilledEditor editor;
    editor.views.toolBarList->setCurrentItem(nullptr);
    editor.widget.defaultClicked();
    QVERIFY(!editor.views.toolBarList->currentItem());
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{"File"});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsFreesNewToolBars()
{
    Host host;
    host.defaultToolBar("file", {"open"}, "Files");
    ShownEditor editor(&host.manager);
    makeToolBar(editor, "Yours", {"Open"});
    makeToolBar(editor, "Theirs", {});
    editor.widget.defaultClicked();
    const EditorFields fields = EditorFields::of(editor.widget);
    QVERIFY(fields.createdRecords.isEmpty());
    QVERIFY(fields.removedRecords.isEmpty());
    QCOMPARE(fields.ownedRecords.size(), 1);
    ToolBarRecorder recorder(host);
    editor.widget.applyClicked();
    QCOMPARE(recorder.events, QStringList());
    QCOMPARE(toolBarsOf(host.manager), QStringList{"File: open"});
}

// The editor kept no record of it from the fill.
void tst_RyCToolBarWidget_Apply::restoreDefaultsRemovesToolBarsThatWereCreatedAndApplied()
{
    FilledEditor editor;
    makeToolBar(editor, "Yours", {"Zoom"});
    editor.widget.applyClicked();
    const QPointer<QToolBar> made = toolBarTitled(editor.host.manager, "Yours");
    QVERIFY(made);
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{"File"});
    editor.widget.applyClicked();
    QVERIFY(!made);
    QCOMPARE(toolBarsOf(editor.host.manager), QStringList{"File: open | save"});
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsLeavesRemovedToolBarsRemoved()
{
    EditorHost host;
    const QPointer<QToolBar> mine = toolBarTitled(host.manager, "Mine");
    ShownEditor editor(&host.manager);
    removeToolBar(editor, "Mine");
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{"File"});
    QCOMPARE(EditorFields::of(editor.widget).removedRecords.size(), 2);
    editor.widget.applyClicked();
    QVERIFY(!mine);
    QCOMPARE(toolBarsOf(host.manager), QStringList{"File: open | save"});
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
    host.defaultToolBar("file", {"open"}, "Files");
    host.defaultToolBar("view", {"zoom"}, "View");
    customToolBar(host, custom, {"zoom", "open"});
    ShownEditor editor(&host.manager);
    editor.selectToolBar(custom);
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList({"File", "View"}));
    QCOMPARE(currentOf(editor.views.toolBarList), current);
    const QString content = current == "File" ? "Open" : "Zoom";
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList{content});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsWithCustomToolBarsOnlyLeavesNone()
{
    Host host;
    host.registered("cut", "Edits");
    customToolBar(host, "Mine", {"cut"});
    customToolBar(host, "Yours", {"cut"});
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
    FilledEditor editor;
    QToolBar *const file = toolBarTitled(editor.host.manager, "File");
    file->setWindowTitle("Changed by the host");
    editor.widget.defaultClicked();
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList{"File"});
    QCOMPARE(editor.workingCopy(), QStringList{"File: open | save"});
    editor.widget.applyClicked();
    QCOMPARE(file->windowTitle(), "File");
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsDoesNotBringUnregisteredActionsBack()
{
    EditorHost host;
    host.manager.removeAction(host.action("open"));
    ShownEditor editor(&host.manager);
    editor.widget.defaultClicked();
    QCOMPARE(editor.workingCopy(), QStringList{"File: | save"});
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList{"File: | save"});
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsThenApplyEqualsTheDefaults()
{
    EditorHost host;
    host.defaultToolBar("view", {"zoom", "|"}, "View");
    const auto toolBars = host.manager.toolBars();
    for (QToolBar *toolBar : toolBars)
        host.manager.setToolBar(toolBar, host.list({"paste"}));
    ShownEditor editor(&host.manager);
    editor.widget.defaultClicked();
    editor.widget.applyClicked();
    QCOMPARE(host.manager.toolBarsActions(), host.manager.defaultToolBars());
    QCOMPARE(toolBarsOf(host.manager), QStringList({"File: open | save", "View: zoom |"}));
    QCOMPARE(editor.workingCopy(), toolBarsOf(host.manager));
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsWhileTheNameIsEdited()
{
    FilledEditor editor;
    editor.views.click(editor.views.newButton);
    QTest::keyClicks(editor.views.renameEditor(), "Yours");
    editor.widget.defaultClicked();
    QTRY_VERIFY(!editor.views.renameEditor());
    QCOMPARE(editor.workingCopy(), QStringList{"File: open | save"});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Apply::restoreDefaultsWhileHiddenHasNoEffect()
{
    EditorHost host;
    host.manager.setToolBar(toolBarTitled(host.manager, "File"), {});
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
    EditorHost host;
    for (int i = 0; i < 8; ++i)
        customToolBar(host, QString("Toolbar %1").arg(i), {});
    ShownEditor editor(&host.manager);
    const auto titles = rowsOf(editor.views.toolBarList);
    for (const QString &title : titles) {
        if (title != "File")
            removeToolBar(editor, title);
    }
    editor.widget.applyClicked();
    for (int i = 0; i < 8; ++i) {
        host.defaultToolBar(QString("late%1").arg(i), {"zoom"}, "View");
        editor.views.click(editor.views.newButton);
    }
    editor.widget.defaultClicked();
    QCOMPARE(editor.workingCopy(), QStringList{"File: open | save"});
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(host.manager.toolBarsActions(), host.manager.defaultToolBars());
    QCOMPARE(host.manager.toolBars().size(), 9);
}

void tst_RyCToolBarWidget_Apply::aDefaultToolBarRegisteredAfterTheFillIsLeftAlone()
{
    FilledEditor editor;
    QToolBar *const late = editor.host.defaultToolBar("late", {"zoom"}, QString());
    editor.host.manager.setToolBar(late, editor.host.list({"cut"}));
    editor.widget.defaultClicked();
    QCOMPARE(editor.workingCopy(), QStringList{"File: open | save"});
    QCOMPARE(editor.inconsistency(), QString());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), QStringList({"File: open | save", "Late: cut"}));
}

QTEST_MAIN(tst_RyCToolBarWidget_Apply)

#include "tst_ryctoolbarwidget_apply.moc"
