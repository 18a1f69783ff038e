// SPDX-License-Identifier: MIT

#include "connections.h"
#include "layouts.h"
#include "rycribbonwidget.h"
#include "rytoolbarmanager.h"
#include "testcase.h"
#include "texts.h"
#include "ui_cribbonpage.h"

#include <QtTest>

#include <memory>

namespace {

// A form on a widget that nothing else was done to.
struct PlainForm : Ui_CRibbonPage
{
    explicit PlainForm(QWidget *page) { setupUi(page); }
};

const char *const buttonNames[] = {"newButton_4",  "removeButton_4", "renameButton_4", "upButton_4",
                                   "leftButton_4", "rightButton_4",  "downButton_4"};

} // namespace

class tst_RyCRibbonWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesAParentAndNoWindowFlags();
    void ignoresItsManager_data();
    void ignoresItsManager();
    void isTheFormAndNothingElse();
    void isNamedAfterTheForm();
    void noSignalIsConnected();
    void aClickedButtonChangesNothing_data();
    void aClickedButtonChangesNothing();
    void aDoubleClickChangesNothing();
    void showsTheTextsOfItsButtons();
};

void tst_RyCRibbonWidget::takesAParentAndNoWindowFlags()
{
    QWidget parent;
    const RyCRibbonWidget *const child = new RyCRibbonWidget(&parent, nullptr);
    QCOMPARE(child->parentWidget(), &parent);
    QCOMPARE(child->windowFlags(), QWidget(&parent).windowFlags());
    const RyCRibbonWidget orphan(nullptr, nullptr);
    QVERIFY(!orphan.parentWidget());
    QCOMPARE(orphan.windowFlags(), QWidget().windowFlags());
}

void tst_RyCRibbonWidget::ignoresItsManager_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("null") << 0;
    QTest::newRow("plain manager") << 1;
    QTest::newRow("toolbar manager") << 2;
    QTest::newRow("deleted manager") << 3;
}

void tst_RyCRibbonWidget::ignoresItsManager()
{
    QFETCH(int, which);
    RyAbstatcManager plain;
    RyToolBarManager ofToolBars;
    std::unique_ptr<RyAbstatcManager> deleted(new RyAbstatcManager);
    RyAbstatcManager *const managers[] = {nullptr, &plain, &ofToolBars, deleted.get()};
    deleted.reset();
    const RyCRibbonWidget widget(nullptr, managers[which]);
    const RyCRibbonWidget withoutManager(nullptr, nullptr);
    QCOMPARE(propertiesBelow(&widget), propertiesBelow(&withoutManager));
    QVERIFY(connectedSignals(&plain).isEmpty());
    QVERIFY(connectedSignals(&ofToolBars).isEmpty());
}

void tst_RyCRibbonWidget::isTheFormAndNothingElse()
{
    const RyCRibbonWidget widget(nullptr, nullptr);
    QWidget page;
    const PlainForm form(&page);
    QCOMPARE(childrenOf(&widget), childrenOf(&page));
    QCOMPARE(propertiesBelow(&widget), propertiesBelow(&page));
    for (const char *name : buttonNames)
        QVERIFY(widget.findChild<QToolButton *>(name)->icon().isNull());
    QCOMPARE(widget.findChild<QTreeWidget *>()->topLevelItemCount(), 0);
    QCOMPARE(widget.findChild<QTreeWidget *>()->headerItem()->text(0), "1");
    QVERIFY(!widget.findChild<QTreeWidget *>()->isHeaderHidden());
    for (const QListWidget *list : widget.findChildren<QListWidget *>())
        QCOMPARE(list->count(), 0);
}

void tst_RyCRibbonWidget::isNamedAfterTheForm()
{
    const RyCRibbonWidget widget(nullptr, nullptr);
    QCOMPARE(widget.objectName(), "CRibbonPage");
    QCOMPARE(widget.windowTitle(), "Display");
    QCOMPARE(widget.size(), QSize(707, 385));
}

// Qt connects some signals itself, which the plain form shows too.
void tst_RyCRibbonWidget::noSignalIsConnected()
{
    const RyCRibbonWidget widget(nullptr, nullptr);
    QWidget page;
    const PlainForm form(&page);
    const auto children = widget.findChildren<QWidget *>();
    const auto plainChildren = page.findChildren<QWidget *>();
    QCOMPARE(children.size(), plainChildren.size());
    for (int i = 0; i < children.size(); ++i)
        QCOMPARE(connectedSignals(children.at(i)), connectedSignals(plainChildren.at(i)));
    for (const char *name : buttonNames) {
        const auto button = widget.findChild<QToolButton *>(name);
        QCOMPARE(receiversOf(button, SIGNAL(clicked())), 0);
        QCOMPARE(receiversOf(button, SIGNAL(clicked(bool))), 0);
    }
}

void tst_RyCRibbonWidget::aClickedButtonChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : buttonNames)
        QTest::newRow(name) << name;
}

void tst_RyCRibbonWidget::aClickedButtonChangesNothing()
{
    QFETCH(QString, name);
    RyCRibbonWidget widget(nullptr, nullptr);
    widget.show();
    QToolButton *const button = widget.findChild<QToolButton *>(name);
    button->setFocus();
    const QStringList before = propertiesBelow(&widget);
    QSignalSpy clicked(button, &QToolButton::clicked);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(clicked.count(), 2);
    QCOMPARE(propertiesBelow(&widget), before);
    QVERIFY(itemsOf(widget.findChild<QTreeWidget *>()).isEmpty());
}

void tst_RyCRibbonWidget::aDoubleClickChangesNothing()
{
    RyCRibbonWidget widget(nullptr, nullptr);
    QTreeWidget *const tree = widget.findChild<QTreeWidget *>();
    QListWidget *const list = widget.findChild<QListWidget *>("toolBarList");
    QListWidget *const current = widget.findChild<QListWidget *>("currentToolBarList");
    new QTreeWidgetItem(tree, QStringList{"item"});
    list->addItem("row");
    current->addItem("entry");
    widget.show();
    tree->itemDoubleClicked(tree->topLevelItem(0), 0);
    list->setCurrentRow(0);
    current->itemDoubleClicked(current->item(0));
    QCOMPARE(itemsOf(tree), QStringList{"item"});
    QCOMPARE(rowsOf(list), QStringList{"row"});
    QCOMPARE(rowsOf(current), QStringList{"entry"});
}

// Without icons the buttons have nothing else to show.
void tst_RyCRibbonWidget::showsTheTextsOfItsButtons()
{
    RyCRibbonWidget widget(nullptr, nullptr);
    widget.show();
    for (const char *name : buttonNames) {
        QToolButton *const button = widget.findChild<QToolButton *>(name);
        QVERIFY(button->isVisible());
        const QImage before = button->grab().toImage();
        button->setText("M");
        QVERIFY2(button->grab().toImage() != before, name);
    }
}

QTEST_MAIN(tst_RyCRibbonWidget)

#include "tst_rycribbonwidget.moc"
