// SPDX-License-Identifier: MIT

#include "dresseddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

/*
 * The example of the dressed dialog: names, shortcuts, help and arrows.
 */
class tst_Dressed_Dialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void viewsAndButtonsHaveNames_data();
    void viewsAndButtonsHaveNames();
    void textsAreShownWithoutMnemonics();
    void theHiddenHeaderIsSpokenAsTheCaption();
    void separatorsAreSpokenAsAWord();
    void defaultToolBarsAreDescribed();
    void newToolBarsAreNotDescribedAsDefault();
    void rowsAreDescribedAfterATabToo();
    void shortcutsPressTheButtons_data();
    void shortcutsPressTheButtons();
    void aShortcutDoesOnlyWhatItsButtonMay();
    void shortcutsOfAViewDoNothingInOthers();
    void deleteInTheNameEditorDeletesCharacters();
    void toolTipsTellTheShortcuts();
    void tabGoesFromRenameOverTheFilterToTheTree();
    void helpIsTheHosts_data();
    void helpIsTheHosts();
    void arrowsFollowTheDirection();
    void theRibbonPageIsLeftAlone();

protected:
    void finish() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

namespace {

QString spoken(QObject *object, QAccessible::Text what)
{
    QAccessibleInterface *const interface = QAccessible::queryAccessibleInterface(object);
    return interface ? interface->text(what) : QString();
}

// The picture itself: icons that were copied share it.
qint64 pictureOf(const QAbstractButton *button)
{
    return button->icon().cacheKey();
}

} // namespace

void tst_Dressed_Dialog::viewsAndButtonsHaveNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::newRow("actionTree") << "Actions"
                                << "Insert adds the current action to the toolbar";
    QTest::newRow("toolBarList") << "Toolbars"
                                 << "Insert makes a toolbar, F2 renames it, Delete removes it";
    QTest::newRow("currentToolBarList")
        << "Current Toolbar Actions"
        << "Alt+Up and Alt+Down move the current action, Delete removes it";
    QTest::newRow("newButton") << "Add new toolbar"
                               << "Add new toolbar (Ins)";
    QTest::newRow("removeButton") << "Remove selected toolbar"
                                  << "Remove selected toolbar (Del)";
    QTest::newRow("renameButton") << "Rename toolbar"
                                  << "Rename toolbar (F2)";
    QTest::newRow("upButton") << "Move action up"
                              << "Move action up (Alt+Up)";
    QTest::newRow("downButton") << "Move action down"
                                << "Move action down (Alt+Down)";
    QTest::newRow("leftButton") << "Remove action from toolbar"
                                << "Remove action from toolbar (Del)";
    QTest::newRow("rightButton") << "Add action to toolbar"
                                 << "Add action to toolbar (Ins)";
}

void tst_Dressed_Dialog::viewsAndButtonsHaveNames()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    DressedDialog stage;
    QWidget *const part = stage.views.page->findChild<QWidget *>(QTest::currentDataTag());
    QVERIFY(part);
    QCOMPARE(spoken(part, QAccessible::Name), name);
    QCOMPARE(spoken(part, QAccessible::Description), description);
}

void tst_Dressed_Dialog::textsAreShownWithoutMnemonics()
{
    DressedDialog stage;
    for (const QAbstractItemView *view :
         {static_cast<QAbstractItemView *>(stage.views.actionTree),
          static_cast<QAbstractItemView *>(stage.views.toolBarList),
          static_cast<QAbstractItemView *>(stage.views.currentToolBarList)}) {
        const auto *const delegate = qobject_cast<QStyledItemDelegate *>(view->itemDelegate());
        QVERIFY(delegate);
        QCOMPARE(delegate->displayText("&Open && Close", QLocale()), "Open & Close");
    }
}

void tst_Dressed_Dialog::theHiddenHeaderIsSpokenAsTheCaption()
{
    DressedDialog stage;
    const QAccessibleInterface *const header =
        QAccessible::queryAccessibleInterface(stage.views.actionTree)->child(0);
    QCOMPARE(header->role(), QAccessible::ColumnHeader);
    QCOMPARE(header->text(QAccessible::Name), "Actions");
    QVERIFY(stage.views.actionTree->isHeaderHidden());
}

void tst_Dressed_Dialog::separatorsAreSpokenAsAWord()
{
    DressedDialog stage;
    QCOMPARE(stage.views.actionTree->topLevelItem(0)->data(0, Qt::AccessibleTextRole).toString(),
             "Separator");
    QCOMPARE(stage.views.actionTree->topLevelItem(1)->data(0, Qt::AccessibleTextRole).toString(),
             QString());
    stage.views.toolBarList->setCurrentItem(itemNamed(stage.views.toolBarList, "Mine"));
    QCOMPARE(stage.currentRows(), words("Cut | Copy"));
    const auto text = [&stage](int row) {
        return stage.views.currentToolBarList->item(row)->data(Qt::AccessibleTextRole).toString();
    };
    QTRY_COMPARE(text(1), "Separator");
    QCOMPARE(text(0), QString());
    QCOMPARE(text(2), QString());
    QAccessibleInterface *const list =
        QAccessible::queryAccessibleInterface(stage.views.currentToolBarList);
    QVERIFY(list);
    QCOMPARE(list->child(1)->text(QAccessible::Name), "Separator");
}

void tst_Dressed_Dialog::defaultToolBarsAreDescribed()
{
    DressedDialog stage;
    const auto description = [&stage](const char *toolBar, int role) {
        return itemNamed(stage.views.toolBarList, toolBar)->data(role).toString();
    };
    QVERIFY(description("File", Qt::AccessibleDescriptionRole)
                .startsWith("Comes with the application"));
    QVERIFY(description("File", Qt::ToolTipRole).startsWith("Comes with the application"));
    QCOMPARE(description("Mine", Qt::AccessibleDescriptionRole), QString());
    QCOMPARE(description("Mine", Qt::ToolTipRole), QString());
}

void tst_Dressed_Dialog::newToolBarsAreNotDescribedAsDefault()
{
    DressedDialog stage;
    stage.views.click(stage.views.newButton);
    stage.views.typeName("Newest");
    QCoreApplication::processEvents();
    const QListWidgetItem *const row = itemNamed(stage.views.toolBarList, "Newest");
    QVERIFY(row);
    QCOMPARE(row->data(Qt::AccessibleDescriptionRole), QVariant());
}

void tst_Dressed_Dialog::rowsAreDescribedAfterATabToo()
{
    DressedDialog stage;
    QTabWidget *const tabs = stage.dialog.findChild<QTabWidget *>();
    tabs->setCurrentIndex(1);
    tabs->setCurrentIndex(0);
    QTRY_VERIFY(!itemNamed(stage.views.toolBarList, "File")
                     ->data(Qt::AccessibleDescriptionRole)
                     .toString()
                     .isEmpty());
    QCOMPARE(stage.views.actionTree->topLevelItem(0)->data(0, Qt::AccessibleTextRole).toString(),
             "Separator");
}

void tst_Dressed_Dialog::shortcutsPressTheButtons_data()
{
    QTest::addColumn<QString>("view");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("alt");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("toolBars");
    QTest::newRow("add") << "actionTree" << int(Qt::Key_Insert) << false << "Cut | Paste Copy"
                         << "File Mine";
    QTest::newRow("up") << "currentToolBarList" << int(Qt::Key_Up) << true << "| Cut Copy"
                        << "File Mine";
    QTest::newRow("down") << "currentToolBarList" << int(Qt::Key_Down) << true << "Cut Copy |"
                          << "File Mine";
    QTest::newRow("remove action")
        << "currentToolBarList" << int(Qt::Key_Delete) << false << "Cut Copy"
        << "File Mine";
    QTest::newRow("remove toolbar")
        << "toolBarList" << int(Qt::Key_Delete) << false << "Open | Save"
        << "File";
}

void tst_Dressed_Dialog::shortcutsPressTheButtons()
{
    QFETCH(QString, view);
    QFETCH(int, key);
    QFETCH(bool, alt);
    QFETCH(QString, rows);
    QFETCH(QString, toolBars);
    DressedDialog stage;
    stage.views.toolBarList->setCurrentItem(itemNamed(stage.views.toolBarList, "Mine"));
    stage.views.currentToolBarList->setCurrentRow(1);
    stage.views.actionTree->setCurrentItem(itemNamed(stage.views.actionTree, "Paste"));
    QWidget *const widget = stage.views.page->findChild<QWidget *>(view);
    stage.pressKey(widget, Qt::Key(key), alt ? Qt::AltModifier : Qt::NoModifier);
    QCOMPARE(stage.currentRows(), words(qPrintable(rows)));
    QCOMPARE(rowsOf(stage.views.toolBarList), words(qPrintable(toolBars)));
    QCOMPARE(QApplication::focusWidget(), widget);
}

void tst_Dressed_Dialog::aShortcutDoesOnlyWhatItsButtonMay()
{
    DressedDialog stage;
    stage.views.toolBarList->setCurrentItem(itemNamed(stage.views.toolBarList, "File"));
    QVERIFY(!stage.views.removeButton->isEnabled());
    stage.pressKey(stage.views.toolBarList, Qt::Key_Delete);
    QCOMPARE(rowsOf(stage.views.toolBarList), words("File Mine"));
}

void tst_Dressed_Dialog::shortcutsOfAViewDoNothingInOthers()
{
    DressedDialog stage;
    stage.views.toolBarList->setCurrentItem(itemNamed(stage.views.toolBarList, "Mine"));
    stage.pressKey(stage.views.actionTree, Qt::Key_Delete);
    stage.pressKey(stage.views.toolBarList, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(stage.currentRows(), words("Cut | Copy"));
    QCOMPARE(rowsOf(stage.views.toolBarList), words("File Mine"));
}

void tst_Dressed_Dialog::deleteInTheNameEditorDeletesCharacters()
{
    DressedDialog stage;
    stage.pressKey(stage.views.toolBarList, Qt::Key_Insert);
    QLineEdit *const editor = qobject_cast<QLineEdit *>(stage.views.renameEditor());
    QVERIFY(editor);
    QCOMPARE(QApplication::focusWidget(), editor);
    QCOMPARE(editor->text(), "Custom Toolbar");
    editor->setCursorPosition(0);
    QTest::keyClick(editor, Qt::Key_Delete);
    QCOMPARE(editor->text(), "ustom Toolbar");
    QTest::keyClick(editor, Qt::Key_Insert);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!stage.views.renameEditor());
    QCOMPARE(rowsOf(stage.views.toolBarList), QStringList({"File", "Mine", "ustom Toolbar"}));
    QVERIFY(stage.dialog.isVisible());
}

void tst_Dressed_Dialog::toolTipsTellTheShortcuts()
{
    DressedDialog stage;
    QCOMPARE(stage.views.upButton->toolTip(), "Move action up (Alt+Up)");
    QCOMPARE(stage.views.newButton->toolTip(), "Add new toolbar (Ins)");
}

void tst_Dressed_Dialog::tabGoesFromRenameOverTheFilterToTheTree()
{
    DressedDialog stage;
    stage.views.toolBarList->setCurrentItem(itemNamed(stage.views.toolBarList, "Mine"));
    stage.pressKey(stage.views.renameButton, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), stage.filter);
    stage.pressKey(stage.filter, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), stage.views.actionTree);
    stage.pressKey(stage.views.actionTree, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), stage.views.toolBarList);
}

void tst_Dressed_Dialog::helpIsTheHosts_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("F1") << true;
}

void tst_Dressed_Dialog::helpIsTheHosts()
{
    QFETCH(bool, byKey);
    DressedDialog stage;
    QSignalSpy requested(stage.dressing, &Dressing::helpRequested);
    // The dialog's own message box waits to be closed.
    bool placeholder = false;
    QTimer watch;
    connect(&watch, &QTimer::timeout, &watch, [&] {
        const auto boxes = stage.dialog.findChildren<QMessageBox *>();
        for (QMessageBox *box : boxes) {
            placeholder = true;
            box->close();
        }
    });
    watch.start(0);
    if (byKey)
        stage.pressKey(stage.views.actionTree, Qt::Key_F1);
    else
        QTest::mouseClick(stage.dialog.helpButton(), Qt::LeftButton);
    QCOMPARE(requested.count(), 1);
    QVERIFY(!placeholder);
}

void tst_Dressed_Dialog::arrowsFollowTheDirection()
{
    DressedDialog stage;
    const qint64 back = pictureOf(stage.views.leftButton);
    const qint64 forward = pictureOf(stage.views.rightButton);
    QVERIFY(back != forward);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(pictureOf(stage.views.leftButton), forward);
    QCOMPARE(pictureOf(stage.views.rightButton), back);
    // What the arrows point at.
    QTRY_VERIFY(stage.views.actionTree->x() > stage.views.currentToolBarList->x());
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(pictureOf(stage.views.leftButton), back);
    QCOMPARE(pictureOf(stage.views.rightButton), forward);

    QApplication::setLayoutDirection(Qt::RightToLeft);
    const DressedDialog later;
    QCOMPARE(later.views.leftButton->icon().pixmap(22).toImage(),
             stage.views.leftButton->icon().pixmap(22).toImage());
}

void tst_Dressed_Dialog::theRibbonPageIsLeftAlone()
{
    DressedDialog stage;
    QWidget *const ribbon = stage.dialog.findChild<QWidget *>("CRibbonPage");
    QVERIFY(ribbon);
    QCOMPARE(ribbon->findChild<QToolButton *>("upButton_4")->toolTip(), "Move action up");
    QCOMPARE(spoken(ribbon->findChild<QWidget *>("actionTree"), QAccessible::Name), QString());
}

QTEST_MAIN(tst_Dressed_Dialog)

#include "tst_dressed_dialog.moc"
