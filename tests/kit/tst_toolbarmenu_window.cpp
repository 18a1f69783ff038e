// SPDX-License-Identifier: MIT

#include "kitwindow.h"
#include "testcase.h"
#include "userscript.h"

#include <QApplication>
#include <QToolButton>
#include <QtTest>

/*
 * The menu of a toolbar, by the pointer and the keyboard of an X server.
 */
class tst_ToolBarMenu_Window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRightClickOpensIt();
    void aLookIsChosenInASubmenu();
    void aRightClickOpensThatOfAFloatingToolBar();
    void theMenuKeyOpensIt();
    void escapeChangesNothing();
};

namespace {

QMenu *openMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QAction *entry(const QString &text)
{
    const auto actions = openMenu()->actions();
    for (QAction *action : actions) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

// A program, and the user before its window.
struct Stage
{
    Stage() { program.start(); }

    bool show()
    {
        program.window()->resize(500, 300);
        return waitUntilSettled(program.window());
    }

    QWidget *button(const QString &action) const
    {
        return program.toolBar("file")->widgetForAction(program.action(action));
    }

    void rightClick(QWidget *widget)
    {
        user.moveTo(widget, widget->rect().center());
        user.press(Qt::RightButton);
        user.release(Qt::RightButton);
        user.waitFor("menu", [] { return openMenu(); });
    }

    void moveToEntry(const QString &text)
    {
        user.moveTo([] { return openMenu(); },
                    [text] { return openMenu()->actionGeometry(entry(text)).center(); });
    }

    void clickEntry(const QString &text)
    {
        moveToEntry(text);
        user.press();
        user.release();
    }

    void choose(const QString &text)
    {
        clickEntry(text);
        user.waitFor("end of the menu", [] { return !openMenu(); });
    }

    // Whether the entry is the current one of the menu.
    static bool isCurrent(const QString &text)
    {
        return openMenu() && openMenu()->activeAction() == entry(text);
    }

    KitProgram program;
    UserScript user;
};

} // namespace

void tst_ToolBarMenu_Window::aRightClickOpensIt()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.rightClick(stage.button("open"));
    stage.choose("Remove from toolbar");
    QCOMPARE(stage.user.run(), QString());
    QTRY_COMPARE(stage.program.content("file"), QString("new save"));
    stage.program.start();
    QCOMPARE(stage.program.content("file"), QString("new save"));
}

void tst_ToolBarMenu_Window::aLookIsChosenInASubmenu()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.rightClick(stage.button("open"));
    stage.clickEntry("Icon size");
    stage.user.waitFor("submenu", [] { return openMenu() && entry("Very large (48)"); });
    stage.choose("Very large (48)");
    QCOMPARE(stage.user.run(), QString());
    QTRY_COMPARE(stage.program.toolBar("file")->iconSize(), QSize(48, 48));
    stage.program.start();
    QCOMPARE(stage.program.toolBar("file")->iconSize(), QSize(48, 48));
}

// Its window does not get the event.
void tst_ToolBarMenu_Window::aRightClickOpensThatOfAFloatingToolBar()
{
    Stage stage;
    QVERIFY(stage.show());
    QToolBar *const toolBar = stage.program.toolBar("file");
    toolBar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
    toolBar->move(stage.program.window()->geometry().bottomLeft() + QPoint(20, 40));
    toolBar->show();
    QVERIFY(QTest::qWaitForWindowExposed(toolBar));
    stage.rightClick(stage.button("open"));
    stage.choose("Remove from toolbar");
    QCOMPARE(stage.user.run(), QString());
    QTRY_COMPARE(stage.program.content("file"), QString("new save"));
}

void tst_ToolBarMenu_Window::theMenuKeyOpensIt()
{
    Stage stage;
    QVERIFY(stage.show());
    QWidget *const button = stage.button("save");
    button->setFocusPolicy(Qt::TabFocus);
    stage.user.step(
        "focus the button", [button] { button->setFocus(); },
        [button] { return button->hasFocus(); });
    stage.user.clickKey(Qt::Key_Menu, [] { return openMenu(); });
    stage.user.clickKey(Qt::Key_Up, [] { return Stage::isCurrent("Customize Toolbars…"); });
    stage.user.clickKey(Qt::Key_Up, [] { return Stage::isCurrent("Remove from toolbar"); });
    stage.user.clickKey(Qt::Key_Return, [] { return !openMenu(); });
    QCOMPARE(stage.user.run(), QString());
    QTRY_COMPARE(stage.program.content("file"), QString("new open"));
}

void tst_ToolBarMenu_Window::escapeChangesNothing()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.rightClick(stage.button("open"));
    stage.moveToEntry("Remove from toolbar");
    stage.user.clickKey(Qt::Key_Escape, [] { return !openMenu(); });
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(stage.program.content("file"), QString("new open save"));
    QVERIFY(stage.program.kit()->isDefault());
}

QTEST_MAIN(tst_ToolBarMenu_Window)
#include "tst_toolbarmenu_window.moc"
