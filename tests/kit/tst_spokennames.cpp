// SPDX-License-Identifier: MIT

#include "kitdialog.h"
#include "testcase.h"
#include "texts.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QtTest>

/*
 * The names and descriptions of the dialog's parts for screen readers.
 */
class tst_SpokenNames : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void viewsAndButtonsHaveNames_data();
    void viewsAndButtonsHaveNames();
    void captionsAreSpokenWithoutMnemonics();
    void theHiddenHeaderIsSpokenAsTheCaption();
    void separatorsAreSpokenAsAWord();
    void actionsAreSpokenWithoutMnemonics();
    void toolBarsOfTheProgramAreDescribed();
    void newToolBarsAreNot();
    void rowsAreDescribedAfterATabBeforeTheyArePainted();
    void describingChangesNothing();
    void theNameOfAToolBarIsCalledSo();
    void theRibbonPageIsLeftAlone();
};

namespace {

QString spoken(QObject *object, QAccessible::Text what)
{
    QAccessibleInterface *const interface = QAccessible::queryAccessibleInterface(object);
    return interface ? interface->text(what) : QString();
}

const char ofProgram[] = "Comes with the program and can be neither renamed nor removed";

} // namespace

void tst_SpokenNames::viewsAndButtonsHaveNames_data()
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
                               << "Insert";
    QTest::newRow("removeButton") << "Remove selected toolbar"
                                  << "Delete";
    QTest::newRow("renameButton") << "Rename toolbar"
                                  << "F2";
    QTest::newRow("upButton") << "Move action up"
                              << "Alt+Up";
    QTest::newRow("downButton") << "Move action down"
                                << "Alt+Down";
    QTest::newRow("leftButton") << "Remove action from toolbar"
                                << "Delete";
    QTest::newRow("rightButton") << "Add action to toolbar"
                                 << "Insert";
}

void tst_SpokenNames::viewsAndButtonsHaveNames()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    const KitDialog stage(RyToolBarKit::DragActions);
    QWidget *const part = stage.views.page->findChild<QWidget *>(QTest::currentDataTag());
    QVERIFY(part);
    QCOMPARE(spoken(part, QAccessible::Name), name);
    QCOMPARE(spoken(part, QAccessible::Description), description);
}

void tst_SpokenNames::captionsAreSpokenWithoutMnemonics()
{
    const KitDialog stage;
    QStringList names;
    for (const char *name : {"label", "label_2", "label_6"})
        names << spoken(stage.views.page->findChild<QLabel *>(name), QAccessible::Name);
    QCOMPARE(names, lines("Actions,Toolbars,Current Toolbar Actions"));
}

void tst_SpokenNames::theHiddenHeaderIsSpokenAsTheCaption()
{
    const KitDialog stage;
    const QAccessibleInterface *const header =
        QAccessible::queryAccessibleInterface(stage.views.actionTree)->child(0);
    QCOMPARE(header->role(), QAccessible::ColumnHeader);
    QCOMPARE(header->text(QAccessible::Name), "Actions");
    QVERIFY(stage.views.actionTree->isHeaderHidden());
}

void tst_SpokenNames::separatorsAreSpokenAsAWord()
{
    KitDialog stage;
    QCOMPARE(stage.views.actionTree->topLevelItem(0)->data(0, Qt::AccessibleTextRole).toString(),
             "Separator");
    QCOMPARE(stage.views.actionTree->topLevelItem(1)->data(0, Qt::AccessibleTextRole).toString(),
             QString());
    stage.choose("Mine");
    QCOMPARE(stage.entries(), words("Cut | Copy"));
    const QAccessibleInterface *const list =
        QAccessible::queryAccessibleInterface(stage.views.currentToolBarList);
    QStringList names;
    for (int i = 0; i < list->childCount(); ++i)
        names << list->child(i)->text(QAccessible::Name);
    QCOMPARE(names, words("Cut Separator Copy"));
}

void tst_SpokenNames::actionsAreSpokenWithoutMnemonics()
{
    KitDialog stage;
    stage.dialog->close();
    stage.program.action("cut")->setText("Cu&t && Go");
    stage.program.openDialog();
    RyCustomizedDialog *const dialog = stage.program.openDialog();
    const EditorViews views(dialog);
    views.toolBarList->setCurrentItem(itemNamed(views.toolBarList, "Mine"));
    QTreeWidgetItem *const action = itemNamed(views.actionTree, "Cu&t && Go");
    views.actionTree->setCurrentItem(action);
    letTheKitFollow();
    QCOMPARE(action->data(0, Qt::AccessibleTextRole), QVariant("Cut & Go"));
    QCOMPARE(views.currentToolBarList->item(0)->data(Qt::AccessibleTextRole), QVariant("Cut & Go"));
    QCOMPARE(views.currentToolBarList->item(2)->data(Qt::AccessibleTextRole), QVariant());
    // The editor keeps what it shows.
    QCOMPARE(action->text(0), "Cu&t && Go");
}

void tst_SpokenNames::toolBarsOfTheProgramAreDescribed()
{
    const KitDialog stage;
    const auto description = [&stage](const char *toolBar) {
        return itemNamed(stage.views.toolBarList, toolBar)
            ->data(Qt::AccessibleDescriptionRole)
            .toString();
    };
    QCOMPARE(description("File"), ofProgram);
    QCOMPARE(description("Edit"), ofProgram);
    QCOMPARE(description("Mine"), QString());
}

void tst_SpokenNames::newToolBarsAreNot()
{
    const KitDialog stage;
    stage.views.click(stage.views.newButton);
    stage.views.typeName("Newest");
    letTheKitFollow();
    const QListWidgetItem *const row = itemNamed(stage.views.toolBarList, "Newest");
    QVERIFY(row);
    QCOMPARE(row->data(Qt::AccessibleDescriptionRole), QVariant());
}

void tst_SpokenNames::rowsAreDescribedAfterATabBeforeTheyArePainted()
{
    const KitDialog stage(RyToolBarKit::ReadableLists);
    QTabWidget *const tabs = stage.dialog->findChild<QTabWidget *>();
    tabs->setCurrentIndex(1);
    tabs->setCurrentIndex(0);
    QCOMPARE(itemNamed(stage.views.toolBarList, "File")->data(Qt::AccessibleDescriptionRole),
             QVariant(ofProgram));
    QCOMPARE(stage.views.actionTree->topLevelItem(0)->data(0, Qt::AccessibleTextRole).toString(),
             "Separator");
}

void tst_SpokenNames::describingChangesNothing()
{
    KitDialog stage;
    stage.choose("Mine");
    int changes = 0;
    connect(stage.views.toolBarList, &QListWidget::itemChanged, this, [&] { ++changes; });
    stage.views.click(stage.views.newButton);
    letTheKitFollow();
    changes = 0;
    stage.views.typeName("A");
    letTheKitFollow();
    // The name itself.
    QCOMPARE(changes, 1);
    QCOMPARE(rowsOf(stage.views.toolBarList), words("A Edit File Mine"));
}

void tst_SpokenNames::theNameOfAToolBarIsCalledSo()
{
    const KitDialog stage;
    stage.views.click(stage.views.newButton);
    QVERIFY(stage.views.renameEditor());
    QCOMPARE(spoken(stage.views.renameEditor(), QAccessible::Name), "Name of the toolbar");
}

void tst_SpokenNames::theRibbonPageIsLeftAlone()
{
    const KitDialog stage;
    QWidget *const ribbon = stage.dialog->findChild<QWidget *>("CRibbonPage");
    QVERIFY(ribbon);
    QCOMPARE(ribbon->findChild<QToolButton *>("upButton_4")->toolTip(), "Move action up");
    QCOMPARE(spoken(ribbon->findChild<QWidget *>("actionTree"), QAccessible::Name), QString());
}

QTEST_MAIN(tst_SpokenNames)
#include "tst_spokennames.moc"
