// SPDX-License-Identifier: MIT

#include "dialogstage.h"
#include "qtdifferences.h"
#include "testcase.h"

#include <QLineEdit>
#include <QProcess>
#include <QTabBar>
#include <QtTest>

/*
 * The dialog in a real window, which the user works with the pointer and the keyboard of an X
 * server.
 */

namespace {

// What the window offers to the window manager, such as a button for context help.
QString protocolsOf(const QWidget *window)
{
    QProcess process;
    process.start("xprop", {"-id", QString::number(window->winId()), "WM_PROTOCOLS"});
    if (!process.waitForFinished() || process.exitCode() != 0)
        QTest::qFail("xprop failed", __FILE__, __LINE__);
    return process.readAllStandardOutput();
}

struct Stage : DialogStage
{
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
};

} // namespace

class tst_RyCustomizedDialog_Window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTitleBarOffersToCloseAndNoContextHelp();
    void theHostTakesNoClicksWhileItIsOpen();
    void theUserMakesAToolBar();
    void closingTheWindowDropsWhatTheUserMade();
};

void tst_RyCustomizedDialog_Window::theTitleBarOffersToCloseAndNoContextHelp()
{
    const ShownDialog shown;
    QVERIFY(QTest::qWaitForWindowExposed(shown.dialog));
    const QString offered = protocolsOf(shown.dialog);
    QVERIFY(offered.contains("WM_DELETE_WINDOW"));
    QVERIFY(!offered.contains("_NET_WM_CONTEXT_HELP"));
    // Other dialogs do, with Qt 5.
    QDialog plain;
    plain.show();
    QVERIFY(QTest::qWaitForWindowExposed(&plain));
    QCOMPARE(protocolsOf(&plain).contains("_NET_WM_CONTEXT_HELP"),
             QtDifferences::DialogsHaveContextHelp);
}

void tst_RyCustomizedDialog_Window::theHostTakesNoClicksWhileItIsOpen()
{
    Stage stage;
    QSignalSpy triggered(stage.host.action("cut"), &QAction::triggered);
    QWidget *const button = stage.host.mine->widgetForAction(stage.host.action("cut"));
    stage.user.act([&] {
        stage.user.input.moveTo(button->mapToGlobal(button->rect().center()));
        stage.user.input.click();
    });
    // The server reports it before it reports this.
    stage.clickTab(1);
    stage.user.click(stage.box->button(QDialogButtonBox::Cancel));
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

void tst_RyCustomizedDialog_Window::closingTheWindowDropsWhatTheUserMade()
{
    Stage stage;
    stage.newToolBar("My Tools");
    stage.user.step(
        "close", [&] { stage.user.input.closeByWindowManager(stage.dialog.windowHandle()); },
        [&] { return !stage.dialog.isVisible(); });
    QCOMPARE(stage.exec(), "rejected");
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File Mine"));
}

QTEST_MAIN(tst_RyCustomizedDialog_Window)

#include "tst_rycustomizeddialog_window.moc"
