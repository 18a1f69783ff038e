// SPDX-License-Identifier: MIT

#include "dresseddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QApplication>
#include <QLabel>
#include <QTabWidget>
#include <QtTest>

/*
 * The example of the dressed dialog: the filter over the actions.
 */
class tst_Dressed_Filter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typingLeavesWhatMatches_data();
    void typingLeavesWhatMatches();
    void whatIsShownIsFound();
    void theFirstMatchBecomesCurrent();
    void aVisibleCurrentItemStaysCurrent();
    void withoutAMatchNothingCanBeAdded();
    void clearingShowsEverything();
    void returnAddsTheMatchAndKeepsTheDialog();
    void downGoesToTheTree();
    void escapeClearsFirstAndThenCloses();
    void leavingTheTabClears();
    void theCaptionStandsBesideTheFilter();
    void theFilterIsNamed();
};

void tst_Dressed_Filter::typingLeavesWhatMatches_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");
    QTest::newRow("nothing") << QString()
                             << "< S E P A R A T O R >,Edit,Copy,Cut,Paste,File,Open,Save";
    QTest::newRow("start") << "cu"
                           << "Edit,Cut";
    QTest::newRow("other case") << "PASTE"
                                << "Edit,Paste";
    QTest::newRow("middle") << "av"
                            << "File,Save";
    QTest::newRow("several categories") << "p"
                                        << "< S E P A R A T O R >,Edit,Copy,Paste,File,Open";
    QTest::newRow("category") << "edit"
                              << "Edit,Copy,Cut,Paste";
    QTest::newRow("separator by its spoken name") << "separator"
                                                  << "< S E P A R A T O R >";
    QTest::newRow("no match") << "xyz"
                              << "";
}

void tst_Dressed_Filter::typingLeavesWhatMatches()
{
    QFETCH(QString, typed);
    QFETCH(QString, left);
    DressedDialog stage;
    stage.filter->setFocus();
    QTest::keyClicks(stage.filter, typed);
    QCOMPARE(stage.filter->text(), typed);
    QCOMPARE(stage.visibleItems(), left.split(',', Qt::SkipEmptyParts));
    if (!typed.isEmpty() && itemNamed(stage.views.actionTree, "Edit"))
        QVERIFY(itemNamed(stage.views.actionTree, "Edit")->isExpanded());
}

void tst_Dressed_Filter::whatIsShownIsFound()
{
    DressedDialog stage;
    itemNamed(stage.views.actionTree, "Copy")->setText(0, "C&opy && Go");
    stage.filter->setText("copy & g");
    QCOMPARE(stage.visibleItems(), QStringList({"Edit", "C&opy && Go"}));
}

void tst_Dressed_Filter::theFirstMatchBecomesCurrent()
{
    DressedDialog stage;
    QCOMPARE(currentOf(stage.views.actionTree), "< S E P A R A T O R >");
    stage.filter->setText("c");
    QCOMPARE(currentOf(stage.views.actionTree), "Copy");
    // A category cannot be added.
    stage.views.actionTree->setCurrentItem(itemNamed(stage.views.actionTree, "Edit"));
    stage.filter->setText("cut");
    QCOMPARE(currentOf(stage.views.actionTree), "Cut");
    QVERIFY(stage.views.rightButton->isEnabled());
}

void tst_Dressed_Filter::aVisibleCurrentItemStaysCurrent()
{
    DressedDialog stage;
    stage.filter->setText("edit");
    stage.views.actionTree->setCurrentItem(itemNamed(stage.views.actionTree, "Cut"));
    stage.filter->setText("c");
    QCOMPARE(currentOf(stage.views.actionTree), "Cut");
}

void tst_Dressed_Filter::withoutAMatchNothingCanBeAdded()
{
    DressedDialog stage;
    QVERIFY(stage.views.rightButton->isEnabled());
    const QStringList before = stage.currentRows();
    stage.filter->setText("xyz");
    QVERIFY(!stage.views.actionTree->currentItem());
    QVERIFY(!stage.views.rightButton->isEnabled());
    stage.pressKey(stage.filter, Qt::Key_Return);
    QCOMPARE(stage.currentRows(), before);
    QVERIFY(stage.dialog.isVisible());
}

void tst_Dressed_Filter::clearingShowsEverything()
{
    DressedDialog stage;
    const QStringList before = stage.visibleItems();
    stage.filter->setText("xyz");
    QVERIFY(stage.visibleItems().isEmpty());
    stage.filter->clear();
    QCOMPARE(stage.visibleItems(), before);
}

void tst_Dressed_Filter::returnAddsTheMatchAndKeepsTheDialog()
{
    DressedDialog stage;
    stage.views.toolBarList->setCurrentItem(itemNamed(stage.views.toolBarList, "Mine"));
    stage.filter->setText("paste");
    stage.pressKey(stage.filter, Qt::Key_Return);
    QCOMPARE(stage.currentRows(), words("Cut Paste | Copy"));
    stage.filter->setText("open");
    stage.pressKey(stage.filter, Qt::Key_Enter);
    QCOMPARE(stage.currentRows(), words("Cut Paste Open | Copy"));
    QVERIFY(stage.dialog.isVisible());
}

void tst_Dressed_Filter::downGoesToTheTree()
{
    DressedDialog stage;
    stage.pressKey(stage.filter, Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), stage.views.actionTree);
}

void tst_Dressed_Filter::escapeClearsFirstAndThenCloses()
{
    DressedDialog stage;
    stage.filter->setText("cut");
    stage.pressKey(stage.filter, Qt::Key_Escape);
    QCOMPARE(stage.filter->text(), QString());
    QVERIFY(stage.dialog.isVisible());
    stage.pressKey(stage.filter, Qt::Key_Escape);
    QVERIFY(!stage.dialog.isVisible());
}

void tst_Dressed_Filter::leavingTheTabClears()
{
    DressedDialog stage;
    const QStringList before = stage.visibleItems();
    QTabWidget *const tabs = stage.dialog.findChild<QTabWidget *>();
    stage.filter->setText("cut");
    tabs->setCurrentIndex(1);
    QCOMPARE(stage.filter->text(), QString());
    tabs->setCurrentIndex(0);
    QCOMPARE(stage.visibleItems(), before);
}

void tst_Dressed_Filter::theCaptionStandsBesideTheFilter()
{
    DressedDialog stage;
    const QLabel *const caption = stage.views.page->findChild<QLabel *>("label");
    QVERIFY(caption->isVisible());
    QVERIFY(caption->geometry().right() < stage.filter->geometry().left());
    QVERIFY(stage.filter->geometry().bottom() < stage.views.actionTree->geometry().top());
    QCOMPARE(stage.filter->geometry().right(), stage.views.actionTree->geometry().right());
}

void tst_Dressed_Filter::theFilterIsNamed()
{
    DressedDialog stage;
    QCOMPARE(stage.filter->accessibleName(), "Filter the actions");
    QVERIFY(!stage.filter->placeholderText().isEmpty());
}

QTEST_MAIN(tst_Dressed_Filter)

#include "tst_dressed_filter.moc"
