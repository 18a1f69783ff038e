// SPDX-License-Identifier: MIT

#include "dialogstage.h"
#include "testcase.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabBar>
#include <QtTest>

#include <memory>

/*
 * Everything in the dialog by keyboard alone: real keys of an X server, and no mouse.
 * docs/accessibility.md says the same in words.
 */

namespace {

QString nameOf(const QWidget *widget)
{
    if (!widget)
        return "nothing";
    if (const auto button = qobject_cast<const QPushButton *>(widget))
        return button->text();
    return widget->objectName();
}

struct Stage : DialogStage
{
    // Presses Tab until the widget has the focus, each time after the focus has moved on.
    void tabTo(QWidget *widget)
    {
        const auto last = std::make_shared<QWidget *>(nullptr);
        user.waitFor("Tab to " + nameOf(widget), [this, widget, last] {
            QWidget *const focus = QApplication::focusWidget();
            if (focus == widget)
                return true;
            if (focus && focus != *last) {
                *last = focus;
                user.input.clickKey(Qt::Key_Tab);
            }
            return false;
        });
    }

    void key(Qt::Key key, const std::function<bool()> &done) { user.clickKey(key, done); }

    void closed(Qt::Key lastKey)
    {
        key(lastKey, [this] { return !dialog.isVisible(); });
    }

    // Tab to a button and Space, after which the current toolbar has these rows.
    void press(QAbstractButton *button, const char *rows)
    {
        tabTo(button);
        key(Qt::Key_Space, [this, rows] { return views.currentRows() == words(rows); });
    }

    void arrowTo(QListWidget *list, Qt::Key arrow, const char *text)
    {
        key(arrow, [list, text] { return currentOf(list) == text; });
    }

    void arrowTo(QTreeWidget *tree, Qt::Key arrow, const char *text)
    {
        key(arrow, [tree, text] { return currentOf(tree) == text; });
    }

    void chooseMine()
    {
        tabTo(views.toolBarList);
        arrowTo(views.toolBarList, Qt::Key_Down, "Mine");
    }

    void giveName(const QString &name)
    {
        typeName(name);
        key(Qt::Key_Return, [this] { return !nameEditor(); });
    }
};

const char *const tabBar = "qt_tabwidget_tabbar";

} // namespace

class tst_RyCustomizedDialog_Keyboard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tabReachesEveryControl();
    void shiftTabGoesTheOtherWay();
    void theFocusBeginsOnTheTabs();
    void aToolBarIsMadeAndNamed();
    void anEmptyNameIsTypedToo();
    void aToolBarIsRenamedByItsButton();
    void aToolBarIsRenamedWithF2();
    void escapeInTheNameEditorKeepsTheDialog();
    void aToolBarIsRemoved();
    void actionsAreMovedUpAndDown();
    void theFocusGoesOnFromAButtonThatIsDisabled();
    void anActionIsAdded();
    void aSeparatorIsAdded();
    void typingFindsAnAction();
    void anActionIsRemoved();
    void returnPressesOkFromEverywhere_data();
    void returnPressesOkFromEverywhere();
    void theButtonsOfTheBoxArePressed_data();
    void theButtonsOfTheBoxArePressed();
    void restoreDefaultsIsPressed();
    void helpIsOpenedAndClosed();
    void arrowsSwitchTheTabs();
    void controlTabSwitchesTheTabsFromThePage();
};

void tst_RyCustomizedDialog_Keyboard::tabReachesEveryControl()
{
    Stage stage;
    QStringList passed;
    stage.chooseMine();
    stage.tabTo(stage.views.currentToolBarList);
    stage.arrowTo(stage.views.currentToolBarList, Qt::Key_Down, "< S E P A R A T O R >");
    for (int i = 0; i < 16; ++i) {
        stage.user.act([&] { passed << nameOf(QApplication::focusWidget()); });
        const auto last = std::make_shared<QWidget *>(nullptr);
        stage.user.step(
            "Tab",
            [&stage, last] {
                *last = QApplication::focusWidget();
                stage.user.input.clickKey(Qt::Key_Tab);
            },
            [last] { return QApplication::focusWidget() != *last; });
    }
    stage.user.act([&] { passed << nameOf(QApplication::focusWidget()); });
    stage.closed(Qt::Key_Escape);
    QCOMPARE(stage.exec(), "rejected");
    QCOMPARE(passed,
             QStringList({"currentToolBarList", tabBar, "Restore Defaults", "OK", "Cancel", "Apply",
                          "Help", "newButton", "removeButton", "renameButton", "actionTree",
                          "toolBarList", "upButton", "leftButton", "rightButton", "downButton",
                          "currentToolBarList"}));
}

void tst_RyCustomizedDialog_Keyboard::shiftTabGoesTheOtherWay()
{
    Stage stage;
    QWidget *before = nullptr;
    stage.tabTo(stage.views.actionTree);
    stage.tabTo(stage.views.toolBarList);
    stage.user.pressKey(Qt::Key_Shift);
    stage.user.step(
        "Shift+Tab", [&] { stage.user.input.clickKey(Qt::Key_Tab); },
        [&] { return QApplication::focusWidget() != stage.views.toolBarList; });
    stage.user.act([&] { before = QApplication::focusWidget(); });
    stage.user.releaseKey(Qt::Key_Shift);
    stage.closed(Qt::Key_Escape);
    QCOMPARE(stage.exec(), "rejected");
    QCOMPARE(before, stage.views.actionTree);
}

void tst_RyCustomizedDialog_Keyboard::theFocusBeginsOnTheTabs()
{
    Stage stage;
    QString first;
    stage.user.act([&] { first = nameOf(QApplication::focusWidget()); });
    stage.closed(Qt::Key_Escape);
    QCOMPARE(stage.exec(), "rejected");
    QCOMPARE(first, tabBar);
}

void tst_RyCustomizedDialog_Keyboard::aToolBarIsMadeAndNamed()
{
    Stage stage;
    bool openAfterNaming = false;
    stage.tabTo(stage.views.newButton);
    stage.key(Qt::Key_Space, [&] { return stage.nameEditor(); });
    stage.giveName("Tools");
    stage.user.act([&] { openAfterNaming = stage.dialog.isVisible(); });
    stage.closed(Qt::Key_Return);
    QCOMPARE(stage.exec(), "accepted");
    QVERIFY(openAfterNaming);
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File Mine Tools"));
}

void tst_RyCustomizedDialog_Keyboard::anEmptyNameIsTypedToo()
{
    Stage stage;
    stage.tabTo(stage.views.newButton);
    stage.key(Qt::Key_Space, [&] { return stage.nameEditor(); });
    stage.waitForNameEditor();
    stage.key(Qt::Key_Delete, [&] { return stage.nameEditor()->text().isEmpty(); });
    stage.key(Qt::Key_Return, [&] { return !stage.nameEditor(); });
    stage.closed(Qt::Key_Return);
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(toolBarTitlesIn(stage.host.window), (QStringList{QString(), "File", "Mine"}));
}

void tst_RyCustomizedDialog_Keyboard::aToolBarIsRenamedByItsButton()
{
    Stage stage;
    stage.chooseMine();
    stage.tabTo(stage.views.renameButton);
    stage.key(Qt::Key_Space, [&] { return stage.nameEditor(); });
    stage.giveName("Ours");
    stage.closed(Qt::Key_Return);
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File Ours"));
}

void tst_RyCustomizedDialog_Keyboard::aToolBarIsRenamedWithF2()
{
    Stage stage;
    stage.chooseMine();
    stage.key(Qt::Key_F2, [&] { return stage.nameEditor(); });
    stage.giveName("Ours");
    stage.closed(Qt::Key_Return);
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File Ours"));
}

void tst_RyCustomizedDialog_Keyboard::escapeInTheNameEditorKeepsTheDialog()
{
    Stage stage;
    bool openAfterEscape = false;
    stage.chooseMine();
    stage.key(Qt::Key_F2, [&] { return stage.nameEditor(); });
    stage.waitForNameEditor();
    stage.key(Qt::Key_Escape, [&] { return !stage.nameEditor(); });
    stage.user.act([&] { openAfterEscape = stage.dialog.isVisible(); });
    stage.closed(Qt::Key_Escape);
    QCOMPARE(stage.exec(), "rejected");
    QVERIFY(openAfterEscape);
}

void tst_RyCustomizedDialog_Keyboard::aToolBarIsRemoved()
{
    Stage stage;
    stage.chooseMine();
    stage.press(stage.views.removeButton, "Open | Save");
    stage.closed(Qt::Key_Return);
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File"));
}

void tst_RyCustomizedDialog_Keyboard::actionsAreMovedUpAndDown()
{
    Stage stage;
    stage.chooseMine();
    stage.tabTo(stage.views.currentToolBarList);
    stage.arrowTo(stage.views.currentToolBarList, Qt::Key_End, "Copy");
    stage.press(stage.views.upButton, "Cut Copy |");
    stage.key(Qt::Key_Space, [&] { return stage.views.currentRows() == words("Copy Cut |"); });
    stage.press(stage.views.downButton, "Cut Copy |");
    stage.closed(Qt::Key_Return);
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(standingOn(stage.host.mine), words("cut copy |"));
}

void tst_RyCustomizedDialog_Keyboard::theFocusGoesOnFromAButtonThatIsDisabled()
{
    Stage stage;
    QString after;
    stage.chooseMine();
    stage.tabTo(stage.views.currentToolBarList);
    stage.arrowTo(stage.views.currentToolBarList, Qt::Key_Down, "< S E P A R A T O R >");
    stage.press(stage.views.upButton, "| Cut Copy");
    stage.user.act([&] { after = nameOf(QApplication::focusWidget()); });
    stage.closed(Qt::Key_Escape);
    QCOMPARE(stage.exec(), "rejected");
    QCOMPARE(after, "leftButton");
}

void tst_RyCustomizedDialog_Keyboard::anActionIsAdded()
{
    Stage stage;
    QTreeWidget *const tree = stage.views.actionTree;
    stage.chooseMine();
    stage.tabTo(tree);
    stage.arrowTo(tree, Qt::Key_Down, "Edit");
    stage.key(Qt::Key_Right, [tree] { return tree->currentItem()->isExpanded(); });
    stage.arrowTo(tree, Qt::Key_Down, "Copy");
    stage.arrowTo(tree, Qt::Key_Down, "Cut");
    stage.arrowTo(tree, Qt::Key_Down, "Paste");
    stage.press(stage.views.rightButton, "Cut Paste | Copy");
    stage.closed(Qt::Key_Return);
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(standingOn(stage.host.mine), words("cut paste | copy"));
}

void tst_RyCustomizedDialog_Keyboard::aSeparatorIsAdded()
{
    Stage stage;
    stage.chooseMine();
    stage.press(stage.views.rightButton, "Cut | | Copy");
    stage.closed(Qt::Key_Return);
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(standingOn(stage.host.mine), words("cut | | copy"));
}

void tst_RyCustomizedDialog_Keyboard::typingFindsAnAction()
{
    Stage stage;
    QTreeWidget *const tree = stage.views.actionTree;
    stage.chooseMine();
    stage.tabTo(tree);
    stage.arrowTo(tree, Qt::Key_Down, "Edit");
    stage.key(Qt::Key_Right, [tree] { return tree->currentItem()->isExpanded(); });
    stage.user.type("pas", [tree] { return currentOf(tree) == "Paste"; });
    stage.press(stage.views.rightButton, "Cut Paste | Copy");
    stage.closed(Qt::Key_Escape);
    QCOMPARE(stage.exec(), "rejected");
}

void tst_RyCustomizedDialog_Keyboard::anActionIsRemoved()
{
    Stage stage;
    stage.chooseMine();
    stage.press(stage.views.leftButton, "| Copy");
    stage.closed(Qt::Key_Return);
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(standingOn(stage.host.mine), words("| copy"));
}

void tst_RyCustomizedDialog_Keyboard::returnPressesOkFromEverywhere_data()
{
    QTest::addColumn<QString>("part");
    for (const char *part : {"actionTree", "toolBarList", "currentToolBarList", "newButton",
                             "leftButton", "rightButton", "qt_tabwidget_tabbar"})
        QTest::newRow(part) << part;
}

// Also on a tool button and on an action in the tree, which Return does not add.
void tst_RyCustomizedDialog_Keyboard::returnPressesOkFromEverywhere()
{
    QFETCH(QString, part);
    Stage stage;
    // The other page has parts of the same names.
    QWidget *const inPage = stage.views.page->findChild<QWidget *>(part);
    stage.tabTo(inPage ? inPage : stage.tabs->tabBar());
    stage.closed(Qt::Key_Return);
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File Mine"));
    QCOMPARE(standingOn(stage.host.mine), words("cut | copy"));
}

void tst_RyCustomizedDialog_Keyboard::theButtonsOfTheBoxArePressed_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("button");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("content");
    QTest::newRow("OK") << QDialogButtonBox::Ok << Qt::Key_Space << "| copy";
    QTest::newRow("Cancel") << QDialogButtonBox::Cancel << Qt::Key_Space << "cut | copy";
    QTest::newRow("Cancel by Return") << QDialogButtonBox::Cancel << Qt::Key_Return << "cut | copy";
    QTest::newRow("Apply") << QDialogButtonBox::Apply << Qt::Key_Space << "| copy";
}

void tst_RyCustomizedDialog_Keyboard::theButtonsOfTheBoxArePressed()
{
    QFETCH(QDialogButtonBox::StandardButton, button);
    QFETCH(Qt::Key, key);
    QFETCH(QString, content);
    Stage stage;
    stage.chooseMine();
    stage.press(stage.views.leftButton, "| Copy");
    stage.tabTo(stage.box->button(button));
    if (button == QDialogButtonBox::Apply) {
        stage.key(key, [&] { return standingOn(stage.host.mine) == words("| copy"); });
        stage.closed(Qt::Key_Escape);
    } else {
        stage.closed(key);
    }
    QCOMPARE(stage.exec(), button == QDialogButtonBox::Ok ? "accepted" : "rejected");
    QCOMPARE(standingOn(stage.host.mine), words(qPrintable(content)));
}

void tst_RyCustomizedDialog_Keyboard::restoreDefaultsIsPressed()
{
    Stage stage;
    stage.tabTo(stage.dialog.RestoreDefaultButton());
    stage.key(Qt::Key_Space, [&] { return rowsOf(stage.views.toolBarList) == words("File"); });
    stage.tabTo(stage.dialog.okButton());
    stage.closed(Qt::Key_Space);
    QCOMPARE(stage.exec(), "accepted");
    QCOMPARE(toolBarTitlesIn(stage.host.window), words("File"));
}

void tst_RyCustomizedDialog_Keyboard::helpIsOpenedAndClosed()
{
    Stage stage;
    QString text;
    bool openAfterHelp = false;
    const auto box = [] { return qobject_cast<QMessageBox *>(QApplication::activeModalWidget()); };
    stage.tabTo(stage.dialog.helpButton());
    stage.key(Qt::Key_Space, [box] { return box() && box()->isActiveWindow(); });
    stage.user.act([&] { text = box()->text(); });
    stage.key(Qt::Key_Return, [box] { return !box(); });
    stage.user.waitForWindow(&stage.dialog);
    stage.user.act([&] { openAfterHelp = stage.dialog.isVisible(); });
    stage.closed(Qt::Key_Escape);
    QCOMPARE(stage.exec(), "rejected");
    QVERIFY(!text.isEmpty());
    QVERIFY(openAfterHelp);
}

void tst_RyCustomizedDialog_Keyboard::arrowsSwitchTheTabs()
{
    Stage stage;
    stage.tabTo(stage.tabs->tabBar());
    stage.key(Qt::Key_Right, [&] { return stage.tabs->currentIndex() == 1; });
    stage.key(Qt::Key_Left, [&] { return stage.tabs->currentIndex() == 0; });
    stage.closed(Qt::Key_Escape);
    QCOMPARE(stage.exec(), "rejected");
}

void tst_RyCustomizedDialog_Keyboard::controlTabSwitchesTheTabsFromThePage()
{
    Stage stage;
    stage.tabTo(stage.views.toolBarList);
    stage.user.pressKey(Qt::Key_Control);
    stage.key(Qt::Key_Tab, [&] { return stage.tabs->currentIndex() == 1; });
    stage.key(Qt::Key_Tab, [&] { return stage.tabs->currentIndex() == 0; });
    stage.user.releaseKey(Qt::Key_Control);
    stage.closed(Qt::Key_Escape);
    QCOMPARE(stage.exec(), "rejected");
}

QTEST_MAIN(tst_RyCustomizedDialog_Keyboard)

#include "tst_rycustomizeddialog_keyboard.moc"
