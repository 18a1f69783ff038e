// SPDX-License-Identifier: MIT

#include "dialogstage.h"
#include "testcase.h"
#include "texts.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

/*
 * The dialog in a real window, which the user works with the pointer and the keyboard of an X
 * server.
 */

namespace {

// The host has one default and one custom toolbar.
struct Stage : DialogStage
{
    Stage()
    {
        host.defaultToolBar("file", words("open | save"), "File");
        host.registered("cut", "Edit");
        host.registered("paste", "Edit");
        mine = host.manager.createToolBar("Mine");
        host.manager.setToolBar(mine, host.list(words("cut")));
        host.window.resize(1000, 800);
    }

    void waitForDialog() { user.waitForWindow(&dialog); }

    void click(QListWidget *list, const QString &text)
    {
        moveTo(list, text);
        user.press();
        user.release();
        user.waitFor("row", [list, text] { return currentOf(list) == text; });
    }

    void clickTab(int index)
    {
        QTabBar *const bar = tabs->tabBar();
        user.moveTo([bar] { return bar; }, [bar, index] { return bar->tabRect(index).center(); });
        user.press();
        user.release();
        user.waitFor("tab", [this, index] { return tabs->currentIndex() == index; });
    }

    template <typename View> void moveTo(View *view, const QString &text)
    {
        user.waitFor("item " + text, [view, text] { return itemNamed(view, text); });
        user.moveTo([view] { return view->viewport(); },
                    [view, text] { return view->visualItemRect(itemNamed(view, text)).center(); });
    }

    // Opens the category; a double click on it adds nothing.
    void openCategory(const QString &category)
    {
        QTreeWidget *const tree = views.actionTree;
        moveTo(tree, category);
        user.doubleClick([=] { return itemNamed(tree, category)->isExpanded(); });
    }

    void addByDoubleClick(const QString &action, const char *rows)
    {
        moveTo(views.actionTree, action);
        user.doubleClick([this, rows] { return views.currentRows() == words(rows); });
    }

    void pressButton(QToolButton *button, const char *rows)
    {
        user.click(button);
        user.waitFor(rows, [this, rows] { return views.currentRows() == words(rows); });
    }

    void newToolBar(const QString &name)
    {
        user.click(views.newButton);
        typeName(name);
        user.clickKey(Qt::Key_Return, [this] { return !nameEditor(); });
    }

    QToolBar *mine;
};

} // namespace

class tst_RyCustomizedDialog_Window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void okAccepts();
    void cancelRejects();
    void escapeRejects();
    void closingTheWindowRejects();
    void returnPressesOk();
    void theWindowHasNoHelpButtonAndIsModal();
    void theHostTakesNoClicksMeanwhile();
    void theUserMakesAToolBar();
    void cancelDropsWhatTheUserMade();
    void closingTheWindowDropsWhatTheUserMade();
    void applyShowsItAndKeepsTheDialog();
    void escapeInTheNameEditorKeepsTheDialogAndTheName();
    void theUserRenamesAToolBar();
    void theUserRemovesAToolBar();
    void theUserReordersAndRemovesActions();
    void switchingTabsDiscardsTheEdits();
    void restoreDefaultsRemovesCustomToolBars();
    void helpShowsItsMessage();
};

void tst_RyCustomizedDialog_Window::okAccepts()
{
    Stage stage;
    stage.waitForDialog();
    stage.user.click(stage.dialog.okButton());
    QCOMPARE(stage.exec(), "accepted");
    QVERIFY(!stage.dialog.isVisible());
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File Mine"));
    QCOMPARE(standingOn(stage.mine), words("cut"));
}

void tst_RyCustomizedDialog_Window::cancelRejects()
{
    Stage stage;
    stage.waitForDialog();
    stage.user.click(stage.cancelButton);
    QCOMPARE(stage.exec(), "rejected");
}

void tst_RyCustomizedDialog_Window::escapeRejects()
{
    Stage stage;
    stage.waitForDialog();
    stage.user.clickKey(Qt::Key_Escape, [&] { return !stage.dialog.isVisible(); });
    QCOMPARE(stage.exec(), "rejected");
}

void tst_RyCustomizedDialog_Window::closingTheWindowRejects()
{
    Stage stage;
    stage.waitForDialog();
    stage.user.step(
        "close", [&] { stage.user.input.closeByWindowManager(stage.dialog.windowHandle()); },
        [&] { return !stage.dialog.isVisible(); });
    QCOMPARE(stage.exec(), "rejected");
}

void tst_RyCustomizedDialog_Window::returnPressesOk()
{
    Stage stage;
    stage.waitForDialog();
    stage.click(stage.views.toolBarList, "Mine");
    stage.user.click(stage.views.leftButton);
    stage.user.clickKey(Qt::Key_Return, [&] { return !stage.dialog.isVisible(); });
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(standingOn(stage.mine), QStringList());
}

void tst_RyCustomizedDialog_Window::theWindowHasNoHelpButtonAndIsModal()
{
    Stage stage;
    bool modal = false;
    stage.waitForDialog();
    stage.user.act([&] { modal = QApplication::activeModalWidget() == &stage.dialog; });
    stage.user.click(stage.cancelButton);
    QCOMPARE(stage.exec(), "rejected");
    QVERIFY(modal);
    const QDialog plain(&stage.host.window);
    QCOMPARE(stage.dialog.windowFlags(),
             plain.windowFlags() & ~Qt::WindowFlags(Qt::WindowContextHelpButtonHint));
}

void tst_RyCustomizedDialog_Window::theHostTakesNoClicksMeanwhile()
{
    Stage stage;
    QSignalSpy triggered(stage.host.action("cut"), &QAction::triggered);
    QWidget *const button = stage.mine->widgetForAction(stage.host.action("cut"));
    stage.waitForDialog();
    stage.user.act([&] {
        stage.user.input.moveTo(button->mapToGlobal(button->rect().center()));
        stage.user.input.click();
    });
    // The server reports it before it reports this.
    stage.clickTab(1);
    stage.user.click(stage.cancelButton);
    QCOMPARE(stage.exec(), "rejected");
    QCOMPARE(triggered.count(), 0);

    UserScript later;
    later.click(button);
    QCOMPARE(later.run(), QString());
    QCOMPARE(triggered.count(), 1);
}

void tst_RyCustomizedDialog_Window::theUserMakesAToolBar()
{
    Stage stage;
    stage.waitForDialog();
    stage.newToolBar("My Tools");
    stage.openCategory("Edit");
    stage.addByDoubleClick("Cut", "Cut");
    stage.addByDoubleClick("< S E P A R A T O R >", "Cut |");
    stage.addByDoubleClick("Paste", "Cut | Paste");
    stage.pressButton(stage.views.upButton, "Cut Paste |");
    stage.pressButton(stage.views.upButton, "Paste Cut |");
    stage.pressButton(stage.views.downButton, "Cut Paste |");
    stage.user.click(stage.dialog.okButton());
    QCOMPARE(stage.exec(), "accepted");
    QToolBar *const made = stage.host.manager.toolBarByName("_Custom_Toolbar_2");
    QVERIFY(made);
    QCOMPARE(made->windowTitle(), "My Tools");
    QCOMPARE(standingOn(made), words("cut paste |"));
    QVERIFY(made->isVisible());
    QCOMPARE(made->window(), &stage.host.window);

    // It is no picture: its buttons work.
    QAction *const paste = stage.host.action("paste");
    QSignalSpy triggered(paste, &QAction::triggered);
    UserScript later;
    later.click(made->widgetForAction(paste));
    QCOMPARE(later.run(), QString());
    QCOMPARE(triggered.count(), 1);
}

void tst_RyCustomizedDialog_Window::cancelDropsWhatTheUserMade()
{
    Stage stage;
    stage.waitForDialog();
    stage.newToolBar("My Tools");
    stage.user.click(stage.cancelButton);
    QCOMPARE(stage.exec(), "rejected");
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File Mine"));
}

void tst_RyCustomizedDialog_Window::closingTheWindowDropsWhatTheUserMade()
{
    Stage stage;
    stage.waitForDialog();
    stage.newToolBar("My Tools");
    stage.user.step(
        "close", [&] { stage.user.input.closeByWindowManager(stage.dialog.windowHandle()); },
        [&] { return !stage.dialog.isVisible(); });
    QCOMPARE(stage.exec(), "rejected");
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File Mine"));
}

void tst_RyCustomizedDialog_Window::applyShowsItAndKeepsTheDialog()
{
    Stage stage;
    bool openAfterApply = false;
    stage.waitForDialog();
    stage.newToolBar("Tools");
    stage.user.click(stage.dialog.applyButton());
    stage.user.waitFor(
        "toolbar", [&] { return toolBarTitlesIn(stage.host.window) == words("File Mine Tools"); });
    stage.user.act([&] { openAfterApply = stage.dialog.isVisible(); });
    stage.newToolBar("Dropped");
    stage.user.click(stage.cancelButton);
    QCOMPARE(stage.exec(), "rejected");
    QVERIFY(openAfterApply);
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File Mine Tools"));
}

void tst_RyCustomizedDialog_Window::escapeInTheNameEditorKeepsTheDialogAndTheName()
{
    Stage stage;
    bool openAfterEscape = false;
    stage.waitForDialog();
    stage.user.click(stage.views.newButton);
    stage.typeName("Other");
    stage.user.clickKey(Qt::Key_Escape, [&] { return !stage.nameEditor(); });
    stage.user.act([&] { openAfterEscape = stage.dialog.isVisible(); });
    stage.user.click(stage.dialog.okButton());
    QCOMPARE(stage.exec(), "accepted");
    QVERIFY(openAfterEscape);
    QCOMPARE(toolBarTitlesIn(stage.host.window), (QStringList{"Custom Toolbar", "File", "Mine"}));
}

void tst_RyCustomizedDialog_Window::theUserRenamesAToolBar()
{
    Stage stage;
    QStringList rows;
    stage.waitForDialog();
    stage.click(stage.views.toolBarList, "Mine");
    stage.user.click(stage.views.renameButton);
    stage.typeName("Afterwards");
    stage.user.clickKey(Qt::Key_Return, [&] { return !stage.nameEditor(); });
    stage.user.act([&] { rows = rowsOf(stage.views.toolBarList); });
    stage.user.click(stage.dialog.okButton());
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(rows, words("Afterwards File"));
    QCOMPARE(stage.mine->windowTitle(), "Afterwards");
    QCOMPARE(standingOn(stage.mine), words("cut"));
}

void tst_RyCustomizedDialog_Window::theUserRemovesAToolBar()
{
    Stage stage;
    const QPointer<QToolBar> mine = stage.mine;
    stage.waitForDialog();
    stage.click(stage.views.toolBarList, "Mine");
    stage.user.click(stage.views.removeButton);
    stage.user.waitFor("row gone",
                       [&] { return rowsOf(stage.views.toolBarList) == words("File"); });
    stage.user.click(stage.dialog.okButton());
    QCOMPARE(stage.exec(), "accepted");
    QTRY_VERIFY(!mine);
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File"));
}

void tst_RyCustomizedDialog_Window::theUserReordersAndRemovesActions()
{
    Stage stage;
    stage.waitForDialog();
    stage.click(stage.views.toolBarList, "File");
    stage.click(stage.views.currentToolBarList, "Save");
    stage.pressButton(stage.views.upButton, "Open Save |");
    stage.pressButton(stage.views.upButton, "Save Open |");
    stage.moveTo(stage.views.currentToolBarList, "Open");
    stage.user.doubleClick([&] { return stage.views.currentRows() == words("Save |"); });
    stage.user.click(stage.dialog.okButton());
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(standingOn(stage.host.window.findChild<QToolBar *>("file")), words("save |"));
}

void tst_RyCustomizedDialog_Window::switchingTabsDiscardsTheEdits()
{
    Stage stage;
    QStringList rows;
    stage.waitForDialog();
    stage.newToolBar("Lost");
    stage.clickTab(1);
    stage.clickTab(0);
    stage.user.act([&] { rows = rowsOf(stage.views.toolBarList); });
    stage.user.click(stage.dialog.okButton());
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(rows, words("File Mine"));
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File Mine"));
}

void tst_RyCustomizedDialog_Window::restoreDefaultsRemovesCustomToolBars()
{
    Stage stage;
    QStringList titlesBeforeOk;
    stage.waitForDialog();
    stage.user.click(stage.dialog.RestoreDefaultButton());
    stage.user.waitFor("row gone",
                       [&] { return rowsOf(stage.views.toolBarList) == words("File"); });
    stage.user.act([&] { titlesBeforeOk = toolBarTitlesIn(stage.host.window); });
    stage.user.click(stage.dialog.okButton());
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(titlesBeforeOk, words("File Mine"));
    QTRY_COMPARE(toolBarTitlesIn(stage.host.window), words("File"));
}

void tst_RyCustomizedDialog_Window::helpShowsItsMessage()
{
    Stage stage;
    QString title;
    QString text;
    const auto box = [] { return qobject_cast<QMessageBox *>(QApplication::activeWindow()); };
    stage.waitForDialog();
    stage.user.click(stage.dialog.helpButton());
    stage.user.waitFor("message", [=] {
        return box() && box()->windowHandle() == QGuiApplication::focusWindow();
    });
    stage.user.act([&] {
        title = box()->windowTitle();
        text = box()->text();
    });
    // Not until the dialog is active again: with a slow window manager Qt may miss that it is.
    stage.user.clickKey(Qt::Key_Return,
                        [&] { return QApplication::activeModalWidget() == &stage.dialog; });
    stage.user.click(stage.cancelButton);
    QCOMPARE(stage.exec(), "rejected");
    QCOMPARE(title, "help");
    QCOMPARE(text, "KORVA help  doc!");
}

QTEST_MAIN(tst_RyCustomizedDialog_Window)

#include "tst_rycustomizeddialog_window.moc"
