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

// What the widget keeps after its base.
struct Fields
{
    Ui_CRibbonPage *ui;
};

const Fields &fieldsOf(const RyCRibbonWidget &widget)
{
    return *reinterpret_cast<const Fields *>(reinterpret_cast<const char *>(&widget)
                                             + sizeof(QWidget));
}

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
    void hasAMetaObjectWithoutMembers();
    void isCastToByItsOwnName();
    void keepsOnlyItsForm();
    void overridesNoVirtualFunctionOfQWidget();
    void takesAParentAndNoWindowFlags();
    void ignoresItsManager_data();
    void ignoresItsManager();
    void isTheFormAndNothingElse();
    void isNamedAfterTheForm();
    void itsChildrenGoWithIt();
    void noSignalIsConnected();
    void aClickedButtonChangesNothing_data();
    void aClickedButtonChangesNothing();
    void aDoubleClickChangesNothing();
    void showsTheTextsOfItsButtons();
};

void tst_RyCRibbonWidget::hasAMetaObjectWithoutMembers()
{
    const QMetaObject &metaObject = RyCRibbonWidget::staticMetaObject;
    QCOMPARE(metaObject.className(), "RyCRibbonWidget");
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(metaObject.methodCount(), metaObject.methodOffset());
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
    QCOMPARE(metaObject.enumeratorCount(), metaObject.enumeratorOffset());
    QCOMPARE(metaObject.classInfoCount(), metaObject.classInfoOffset());
    QCOMPARE(metaObject.constructorCount(), 0);
}

void tst_RyCRibbonWidget::isCastToByItsOwnName()
{
    RyCRibbonWidget widget(nullptr, nullptr);
    QCOMPARE(widget.metaObject(), &RyCRibbonWidget::staticMetaObject);
    QCOMPARE(widget.qt_metacast("RyCRibbonWidget"), &widget);
    QCOMPARE(widget.qt_metacast("QWidget"), static_cast<QWidget *>(&widget));
    QVERIFY(!widget.qt_metacast("RyCToolBarWidget"));
    QVERIFY(!widget.qt_metacast(nullptr));
}

void tst_RyCRibbonWidget::keepsOnlyItsForm()
{
    QCOMPARE(sizeof(RyCRibbonWidget), sizeof(QWidget) + sizeof(Fields));
    const RyCRibbonWidget widget(nullptr, nullptr);
    const Ui_CRibbonPage *const ui = fieldsOf(widget).ui;
    QCOMPARE(ui->gridLayout, widget.layout());
    QCOMPARE(ui->actionTree, widget.findChild<QTreeWidget *>());
}

void tst_RyCRibbonWidget::overridesNoVirtualFunctionOfQWidget()
{
    QVERIFY((std::is_same_v<decltype(&RyCRibbonWidget::setVisible), void (QWidget::*)(bool)>));
    QVERIFY((std::is_same_v<decltype(&RyCRibbonWidget::sizeHint), QSize (QWidget::*)() const>));
    QVERIFY(
        (std::is_same_v<decltype(&RyCRibbonWidget::minimumSizeHint), QSize (QWidget::*)() const>));
}

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
        QVERIFY(widget.findChild<QToolButton *>(QLatin1String(name))->icon().isNull());
    QCOMPARE(widget.findChild<QTreeWidget *>()->topLevelItemCount(), 0);
    QCOMPARE(widget.findChild<QTreeWidget *>()->headerItem()->text(0), QStringLiteral("1"));
    QVERIFY(!widget.findChild<QTreeWidget *>()->isHeaderHidden());
    for (const QListWidget *list : widget.findChildren<QListWidget *>())
        QCOMPARE(list->count(), 0);
}

void tst_RyCRibbonWidget::isNamedAfterTheForm()
{
    const RyCRibbonWidget widget(nullptr, nullptr);
    QCOMPARE(widget.objectName(), QStringLiteral("CRibbonPage"));
    QCOMPARE(widget.windowTitle(), QStringLiteral("Display"));
    QCOMPARE(widget.size(), QSize(707, 385));
}

void tst_RyCRibbonWidget::itsChildrenGoWithIt()
{
    QPointer<QTreeWidget> tree;
    {
        const RyCRibbonWidget widget(nullptr, nullptr);
        tree = widget.findChild<QTreeWidget *>();
        QVERIFY(tree);
    }
    QVERIFY(!tree);
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
        const auto button = widget.findChild<QToolButton *>(QLatin1String(name));
        QCOMPARE(receiversOf(button, SIGNAL(clicked())), 0);
        QCOMPARE(receiversOf(button, SIGNAL(clicked(bool))), 0);
    }
}

void tst_RyCRibbonWidget::aClickedButtonChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : buttonNames)
        QTest::newRow(name) << QString::fromLatin1(name);
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
    QListWidget *const list = widget.findChild<QListWidget *>(QStringLiteral("toolBarList"));
    QListWidget *const current =
        widget.findChild<QListWidget *>(QStringLiteral("currentToolBarList"));
    new QTreeWidgetItem(tree, QStringList{QStringLiteral("item")});
    list->addItem(QStringLiteral("row"));
    current->addItem(QStringLiteral("entry"));
    widget.show();
    tree->itemDoubleClicked(tree->topLevelItem(0), 0);
    list->setCurrentRow(0);
    current->itemDoubleClicked(current->item(0));
    QCOMPARE(itemsOf(tree), QStringList{QStringLiteral("item")});
    QCOMPARE(rowsOf(list), QStringList{QStringLiteral("row")});
    QCOMPARE(rowsOf(current), QStringList{QStringLiteral("entry")});
}

// Without icons the buttons have nothing else to show.
void tst_RyCRibbonWidget::showsTheTextsOfItsButtons()
{
    RyCRibbonWidget widget(nullptr, nullptr);
    widget.show();
    for (const char *name : buttonNames) {
        QToolButton *const button = widget.findChild<QToolButton *>(QLatin1String(name));
        QVERIFY(button->isVisible());
        const QImage before = button->grab().toImage();
        button->setText(QStringLiteral("M"));
        QVERIFY2(button->grab().toImage() != before, name);
    }
}

QTEST_MAIN(tst_RyCRibbonWidget)

#include "tst_rycribbonwidget.moc"
