// SPDX-License-Identifier: MIT

#include "showndialog.h"
#include "testcase.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QTabBar>
#include <QtTest>

/*
 * What the dialog reports to a screen reader, and what can be done through it.
 * docs/accessibility.md says the same in words.
 */

namespace {

QString roleOf(const QAccessibleInterface *interface)
{
    return QMetaEnum::fromType<QAccessible::Role>().valueToKey(interface->role());
}

// The states that matter here, by name.
QStringList statesOf(const QAccessibleInterface *interface)
{
    const QAccessible::State state = interface->state();
    const QList<QPair<quint64, const char *>> all = {
        {state.invisible, "invisible"},   {state.disabled, "disabled"},
        {state.focused, "focused"},       {state.selected, "selected"},
        {state.expandable, "expandable"}, {state.expanded, "expanded"},
        {state.editable, "editable"},     {state.defaultButton, "default"}};
    QStringList names;
    for (const auto &entry : all) {
        if (entry.first)
            names << entry.second;
    }
    return names;
}

QStringList actionsOf(QAccessibleInterface *interface)
{
    QAccessibleActionInterface *const actions = interface->actionInterface();
    return actions ? actions->actionNames() : QStringList();
}

QAccessibleInterface *accessible(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

// "Role 'name' states", for views without their items.
QString lineOf(const QAccessibleInterface *interface)
{
    return QString("%1 '%2' %3")
        .arg(roleOf(interface), interface->text(QAccessible::Name), statesOf(interface).join(' '))
        .trimmed();
}

void appendLines(QStringList &lines, const QAccessibleInterface *interface, int depth)
{
    lines << QString(2 * depth, ' ') + lineOf(interface);
    if (interface->role() == QAccessible::Tree || interface->role() == QAccessible::List)
        return;
    for (int i = 0; i < interface->childCount(); ++i)
        appendLines(lines, interface->child(i), depth + 1);
}

// The items of a view: "name states".
QStringList itemsReported(QAbstractItemView *view)
{
    QStringList lines;
    const QAccessibleInterface *const interface = accessible(view);
    for (int i = 0; i < interface->childCount(); ++i) {
        const QAccessibleInterface *const item = interface->child(i);
        if (item->role() != QAccessible::ColumnHeader)
            lines << (item->text(QAccessible::Name) + " " + statesOf(item).join(' ')).trimmed();
    }
    return lines;
}

void press(QObject *object)
{
    QAccessibleActionInterface *const actions = accessible(object)->actionInterface();
    QVERIFY(actions);
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
}

QStringList described(const char *text)
{
    return QString(text).split('\n');
}

// Makes the custom toolbar current, so that every button can be pressed.
struct Stage : ShownDialog
{
    Stage()
    {
        QApplication::setActiveWindow(dialog);
        views.toolBarList->setCurrentItem(itemNamed(views.toolBarList, "Mine"));
        views.currentToolBarList->setCurrentRow(1);
    }
};

} // namespace

class tst_RyCustomizedDialog_Accessibility : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everythingHasARole();
    void toolTipsAreTheDescriptionsOfButtons_data();
    void toolTipsAreTheDescriptionsOfButtons();
    void theActionTreeReportsCategoriesAndActions();
    void theHiddenHeaderIsReported();
    void theToolBarListReportsRowsButNotWhichAreDefault();
    void theCurrentToolBarReportsItsActions_data();
    void theCurrentToolBarReportsItsActions();
    void disabledButtonsOfferNothing();
    void pressingAButtonDoesWhatAClickDoes_data();
    void pressingAButtonDoesWhatAClickDoes();
    void newAndRenameOpenALineWithTheName_data();
    void newAndRenameOpenALineWithTheName();
    void pressingTheButtonsOfTheBox_data();
    void pressingTheButtonsOfTheBox();
    void tabsAreReportedAndPressed();
    void theRibbonPageIsReportedAsInvisible();
    void everyButtonTakesTheFocus();
    void noOtherKeyDoesAnything_data();
    void noOtherKeyDoesAnything();
    void captionsAndButtonsHaveNoAccelerators();
    void mnemonicsAreReportedAsTheyAre();
    void selectingAnItemDoesNotMakeItCurrent_data();
    void selectingAnItemDoesNotMakeItCurrent();
};

void tst_RyCustomizedDialog_Accessibility::everythingHasARole()
{
    Stage stage;
    stage.views.newButton->setFocus();
    QStringList found;
    appendLines(found, accessible(stage.dialog), 0);
    // The page that is not shown has a test of its own, and the scroll buttons of tabs belong to
    // Qt. Qt calls the current tab focused, wherever the focus is.
    const int ribbon = found.indexOf("      Client '' invisible");
    QVERIFY(ribbon > 0);
    while (found.at(ribbon).startsWith("      "))
        found.removeAt(ribbon);
    for (const QString &line : found.filter("'Scroll "))
        found.removeAll(line);
    QCOMPARE(found,
             described("Dialog 'Options'\n"
                       "  Client ''\n"
                       "    LayeredPane ''\n"
                       "      Client ''\n"
                       "        StaticText 'Actions'\n"
                       "        StaticText 'Toolbars'\n"
                       "        Button 'New' focused\n"
                       "        Button 'Remove'\n"
                       "        Button 'Rename'\n"
                       "        Tree ''\n"
                       "        List ''\n"
                       "        StaticText 'Current Toolbar Actions'\n"
                       "        Button 'Up'\n"
                       "        Button '<-'\n"
                       "        Button '->'\n"
                       "        Button 'Down'\n"
                       "        List ''\n"
                       "    PageTabList 'ToolBar'\n"
                       "      PageTab 'ToolBar' focused\n"
                       "      PageTab 'Ribbon'\n"
                       "  Grouping ''\n"
                       "    Button 'OK' default\n"
                       "    Button 'Cancel'\n"
                       "    Button 'Help'\n"
                       "    Button 'Apply'\n"
                       "    Button 'Restore Defaults'"));
}

void tst_RyCustomizedDialog_Accessibility::toolTipsAreTheDescriptionsOfButtons_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::newRow("newButton") << "New"
                               << "Add new toolbar";
    QTest::newRow("removeButton") << "Remove"
                                  << "Remove selected toolbar";
    QTest::newRow("renameButton") << "Rename"
                                  << "Rename toolbar";
    QTest::newRow("upButton") << "Up"
                              << "Move action up";
    QTest::newRow("leftButton") << "<-"
                                << "Remove action from toolbar";
    QTest::newRow("rightButton") << "->"
                                 << "Add action to toolbar";
    QTest::newRow("downButton") << "Down"
                                << "Move action down";
}

void tst_RyCustomizedDialog_Accessibility::toolTipsAreTheDescriptionsOfButtons()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    Stage stage;
    QWidget *const button = stage.views.page->findChild<QWidget *>(QTest::currentDataTag());
    QCOMPARE(accessible(button)->role(), QAccessible::Button);
    QCOMPARE(accessible(button)->text(QAccessible::Name), name);
    QCOMPARE(accessible(button)->text(QAccessible::Description), description);
    QCOMPARE(actionsOf(accessible(button)),
             QStringList({QAccessibleActionInterface::pressAction(),
                          QAccessibleActionInterface::setFocusAction()}));
}

void tst_RyCustomizedDialog_Accessibility::theActionTreeReportsCategoriesAndActions()
{
    Stage stage;
    QCOMPARE(itemsReported(stage.views.actionTree),
             described("< S E P A R A T O R > focused selected\nEdit expandable\nFile expandable"));
    stage.views.actionTree->expandItem(itemNamed(stage.views.actionTree, "Edit"));
    stage.views.actionTree->setCurrentItem(itemNamed(stage.views.actionTree, "Cut"));
    QCOMPARE(
        itemsReported(stage.views.actionTree),
        described("< S E P A R A T O R >\nEdit expandable expanded\nCopy\nCut focused selected\n"
                  "Paste\nFile expandable"));
    const QAccessibleInterface *const tree = accessible(stage.views.actionTree);
    for (int i = 1; i < tree->childCount(); ++i)
        QCOMPARE(tree->child(i)->role(), QAccessible::TreeItem);
}

// As "1", the text that nobody sees.
void tst_RyCustomizedDialog_Accessibility::theHiddenHeaderIsReported()
{
    Stage stage;
    const QAccessibleInterface *const header = accessible(stage.views.actionTree)->child(0);
    QCOMPARE(header->role(), QAccessible::ColumnHeader);
    QCOMPARE(lineOf(header), "ColumnHeader '1' invisible");
}

// Only their color marks default toolbars, and nothing marks the rows that can be renamed.
void tst_RyCustomizedDialog_Accessibility::theToolBarListReportsRowsButNotWhichAreDefault()
{
    Stage stage;
    QCOMPARE(itemsReported(stage.views.toolBarList), described("File\nMine focused selected"));
    for (int row = 0; row < 2; ++row) {
        const QAccessibleInterface *const item = accessible(stage.views.toolBarList)->child(row);
        QCOMPARE(item->role(), QAccessible::ListItem);
        QCOMPARE(item->text(QAccessible::Description), QString());
    }
}

void tst_RyCustomizedDialog_Accessibility::theCurrentToolBarReportsItsActions_data()
{
    QTest::addColumn<QString>("reported");
    QTest::newRow("Mine") << "Cut\n< S E P A R A T O R > focused selected\nCopy";
    QTest::newRow("File") << "Open focused selected\n< S E P A R A T O R >\nSave";
}

void tst_RyCustomizedDialog_Accessibility::theCurrentToolBarReportsItsActions()
{
    QFETCH(QString, reported);
    Stage stage;
    stage.views.toolBarList->setCurrentItem(
        itemNamed(stage.views.toolBarList, QTest::currentDataTag()));
    QCOMPARE(itemsReported(stage.views.currentToolBarList), reported.split('\n'));
}

void tst_RyCustomizedDialog_Accessibility::disabledButtonsOfferNothing()
{
    Stage stage;
    stage.views.toolBarList->setCurrentRow(0);
    for (QToolButton *button :
         {stage.views.removeButton, stage.views.renameButton, stage.views.upButton}) {
        QVERIFY(!button->isEnabled());
        QVERIFY(accessible(button)->state().disabled);
        QCOMPARE(actionsOf(accessible(button)), QStringList());
    }
}

void tst_RyCustomizedDialog_Accessibility::pressingAButtonDoesWhatAClickDoes_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("toolBars");
    QTest::newRow("removeButton") << "Open | Save"
                                  << "File";
    QTest::newRow("upButton") << "| Cut Copy"
                              << "File Mine";
    QTest::newRow("leftButton") << "Cut Copy"
                                << "File Mine";
    QTest::newRow("rightButton") << "Cut | | Copy"
                                 << "File Mine";
    QTest::newRow("downButton") << "Cut Copy |"
                                << "File Mine";
}

void tst_RyCustomizedDialog_Accessibility::pressingAButtonDoesWhatAClickDoes()
{
    QFETCH(QString, rows);
    QFETCH(QString, toolBars);
    Stage stage;
    press(stage.views.page->findChild<QWidget *>(QTest::currentDataTag()));
    QTRY_COMPARE(stage.views.currentRows(), words(qPrintable(rows)));
    QCOMPARE(rowsOf(stage.views.toolBarList), words(qPrintable(toolBars)));
}

void tst_RyCustomizedDialog_Accessibility::newAndRenameOpenALineWithTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("newButton") << "Custom Toolbar";
    QTest::newRow("renameButton") << "Mine";
}

void tst_RyCustomizedDialog_Accessibility::newAndRenameOpenALineWithTheName()
{
    QFETCH(QString, name);
    Stage stage;
    press(stage.views.page->findChild<QWidget *>(QTest::currentDataTag()));
    QTRY_VERIFY(stage.views.renameEditor());
    QAccessibleInterface *const line = accessible(stage.views.renameEditor());
    QCOMPARE(line->role(), QAccessible::EditableText);
    QCOMPARE(line->text(QAccessible::Name), QString());
    QCOMPARE(line->text(QAccessible::Value), name);
    QVERIFY(line->state().focused);
    line->setText(QAccessible::Value, "Spoken");
    QTest::keyClick(stage.views.renameEditor(), Qt::Key_Return);
    QTRY_VERIFY(!stage.views.renameEditor());
    QVERIFY(itemNamed(stage.views.toolBarList, "Spoken"));
    QVERIFY(stage.dialog->isVisible());
}

void tst_RyCustomizedDialog_Accessibility::pressingTheButtonsOfTheBox_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("staysOpen");
    QTest::addColumn<QString>("inHost");
    QTest::addColumn<QString>("toolBars");
    QTest::newRow("OK") << int(QDialogButtonBox::Ok) << false << "| cut copy"
                        << "";
    QTest::newRow("Apply") << int(QDialogButtonBox::Apply) << true << "| cut copy"
                           << "File Mine";
    QTest::newRow("Cancel") << int(QDialogButtonBox::Cancel) << false << "cut | copy"
                            << "";
    QTest::newRow("Restore Defaults")
        << int(QDialogButtonBox::RestoreDefaults) << true << "cut | copy"
        << "File";
}

void tst_RyCustomizedDialog_Accessibility::pressingTheButtonsOfTheBox()
{
    QFETCH(int, button);
    QFETCH(bool, staysOpen);
    QFETCH(QString, inHost);
    QFETCH(QString, toolBars);
    Stage stage;
    stage.views.click(stage.views.upButton);
    press(stage.box->button(QDialogButtonBox::StandardButton(button)));
    QTRY_COMPARE(rowsOf(stage.views.toolBarList), words(qPrintable(toolBars)));
    QTRY_COMPARE(stage.dialog->isVisible(), staysOpen);
    QTRY_COMPARE(standingOn(stage.host.mine), words(qPrintable(inHost)));
}

void tst_RyCustomizedDialog_Accessibility::tabsAreReportedAndPressed()
{
    Stage stage;
    const QAccessibleInterface *const bar = accessible(stage.tabs->tabBar());
    for (const int index : {1, 0}) {
        QAccessibleInterface *const tab = bar->child(index);
        QCOMPARE(tab->role(), QAccessible::PageTab);
        QCOMPARE(tab->text(QAccessible::Name), stage.tabs->tabText(index));
        tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(stage.tabs->currentIndex(), index);
        // A tab list has the name of its current tab.
        QCOMPARE(bar->text(QAccessible::Name), stage.tabs->tabText(index));
    }
}

void tst_RyCustomizedDialog_Accessibility::theRibbonPageIsReportedAsInvisible()
{
    Stage stage;
    QWidget *const ribbon = stage.dialog->findChild<QWidget *>("CRibbonPage");
    QWidget *const button = ribbon->findChild<QWidget *>("newButton_4");
    QCOMPARE(lineOf(accessible(ribbon)), "Client '' invisible");
    QCOMPARE(lineOf(accessible(button)), "Button 'New' invisible");
    stage.tabs->setCurrentIndex(1);
    QCOMPARE(lineOf(accessible(ribbon)), "Client ''");
    QCOMPARE(lineOf(accessible(button)), "Button 'New'");
    QCOMPARE(lineOf(accessible(stage.views.newButton)), "Button 'New' invisible disabled");
}

void tst_RyCustomizedDialog_Accessibility::everyButtonTakesTheFocus()
{
    Stage stage;
    const auto buttons = stage.dialog->findChildren<QAbstractButton *>();
    int count = 0;
    for (QAbstractButton *button : buttons) {
        if (!button->isVisible())
            continue;
        ++count;
        QVERIFY(accessible(button)->state().focusable);
        accessible(button)->actionInterface()->doAction(
            QAccessibleActionInterface::setFocusAction());
        QCOMPARE(QApplication::focusWidget(), button);
        QVERIFY(accessible(button)->state().focused);
    }
    QCOMPARE(count, 12);
}

void tst_RyCustomizedDialog_Accessibility::noOtherKeyDoesAnything_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("alt");
    QTest::newRow("F1") << int(Qt::Key_F1) << false;
    QTest::newRow("Insert") << int(Qt::Key_Insert) << false;
    QTest::newRow("Delete") << int(Qt::Key_Delete) << false;
    QTest::newRow("Alt+Up") << int(Qt::Key_Up) << true;
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << true;
}

void tst_RyCustomizedDialog_Accessibility::noOtherKeyDoesAnything()
{
    QFETCH(int, key);
    QFETCH(bool, alt);
    Stage stage;
    for (QWidget *view : QList<QWidget *>{stage.views.actionTree, stage.views.currentToolBarList,
                                          stage.views.toolBarList}) {
        view->setFocus();
        QTest::keyClick(view, Qt::Key(key), alt ? Qt::AltModifier : Qt::NoModifier);
        // Arrows move the current row, with Alt too; nothing is changed.
        stage.views.toolBarList->setCurrentItem(itemNamed(stage.views.toolBarList, "Mine"));
        QCOMPARE(stage.views.currentRows(), words("Cut | Copy"));
        QCOMPARE(rowsOf(stage.views.toolBarList), words("File Mine"));
        QVERIFY(!stage.views.renameEditor());
    }
    QVERIFY(stage.dialog->isVisible());
}

void tst_RyCustomizedDialog_Accessibility::captionsAndButtonsHaveNoAccelerators()
{
    Stage stage;
    const auto parts =
        stage.views.page->findChildren<QWidget *>(QRegularExpression("^label|Button$"));
    QCOMPARE(parts.size(), 10);
    for (QWidget *part : parts)
        QCOMPARE(accessible(part)->text(QAccessible::Accelerator), QString());
}

void tst_RyCustomizedDialog_Accessibility::mnemonicsAreReportedAsTheyAre()
{
    Stage stage;
    stage.host.action("open")->setText("&Open");
    stage.views.toolBarList->setCurrentRow(0);
    QCOMPARE(itemsReported(stage.views.currentToolBarList),
             described("&Open focused selected\n< S E P A R A T O R >\nSave"));
}

void tst_RyCustomizedDialog_Accessibility::selectingAnItemDoesNotMakeItCurrent_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("current");
    QTest::newRow("toolBarList") << "File"
                                 << "Mine";
    QTest::newRow("currentToolBarList") << "Cut"
                                        << "< S E P A R A T O R >";
}

// All that Qt lets a screen reader do to an item is to select it, and the editor works on current
// items. Arrow keys change both.
void tst_RyCustomizedDialog_Accessibility::selectingAnItemDoesNotMakeItCurrent()
{
    QFETCH(QString, selected);
    QFETCH(QString, current);
    Stage stage;
    QListWidget *const list = stage.views.page->findChild<QListWidget *>(QTest::currentDataTag());
    QAccessibleInterface *const item = accessible(list)->child(0);
    QCOMPARE(item->text(QAccessible::Name), selected);
    QCOMPARE(actionsOf(item), QStringList{QAccessibleActionInterface::toggleAction()});
    item->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(item->state().selected);
    QCOMPARE(currentOf(list), current);

    QTest::keyClick(list, Qt::Key_Up);
    QCOMPARE(currentOf(list), selected);
    QVERIFY(item->state().selected);
}

QTEST_MAIN(tst_RyCustomizedDialog_Accessibility)

#include "tst_rycustomizeddialog_accessibility.moc"
