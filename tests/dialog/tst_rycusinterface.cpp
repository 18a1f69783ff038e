// SPDX-License-Identifier: MIT

#include "ryabstatcmanager.h"
#include "rycribbonpage.h"
#include "rycusinterface.h"
#include "ryctoolbarpage.h"
#include "rytoolbarmanager.h"
#include "testcase.h"
#include "virtualslots.h"

#include <QtTest>

#include <memory>

namespace {

// What every page of this library keeps after the pointer to its virtual functions.
struct PageFields
{
    void *virtualFunctions;
    QPointer<QWidget> widget;
    RyAbstatcManager *manager;
};

const PageFields &fieldsOf(const RyCusInterface *page)
{
    return *reinterpret_cast<const PageFields *>(page);
}

// Says when it is deleted, and overrides everything but the destructor of the interface.
class SmallPage : public RyCusInterface
{
public:
    explicit SmallPage(bool *deleted)
        : m_guard(deleted)
    {
    }

    QString name() const override { return QString(); }
    QWidget *createPage(QWidget *parent) override { return new QWidget(parent); }
    void apply() override { }
    void finish() override { }
    void RestorDefaults() override { }

private:
    struct Guard
    {
        explicit Guard(bool *flag)
            : deleted(flag)
        {
        }
        ~Guard() { *deleted = true; }
        Q_DISABLE_COPY(Guard)
        bool *deleted;
    };
    Guard m_guard;
};

struct WithoutName : RyCusInterface
{
    QWidget *createPage(QWidget *) override { return nullptr; }
    void apply() override { }
    void finish() override { }
    void RestorDefaults() override { }
};

struct WithoutCreatePage : RyCusInterface
{
    QString name() const override { return QString(); }
    void apply() override { }
    void finish() override { }
    void RestorDefaults() override { }
};

struct WithoutApply : RyCusInterface
{
    QString name() const override { return QString(); }
    QWidget *createPage(QWidget *) override { return nullptr; }
    void finish() override { }
    void RestorDefaults() override { }
};

struct WithoutFinish : RyCusInterface
{
    QString name() const override { return QString(); }
    QWidget *createPage(QWidget *) override { return nullptr; }
    void apply() override { }
    void RestorDefaults() override { }
};

struct WithoutRestorDefaults : RyCusInterface
{
    QString name() const override { return QString(); }
    QWidget *createPage(QWidget *) override { return nullptr; }
    void apply() override { }
    void finish() override { }
};

} // namespace

class tst_RyCusInterface : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoFieldsAndNoBase();
    void everyFunctionButTheDestructorIsPure();
    void theVirtualFunctionsStandInOrder();
    void thePagesAddNoVirtualFunction();
    void isDeletedThroughTheInterface();
    void theSignaturesAreFixed();

    void aPageTakesOneManager();
    void aPageKeepsItsWidgetThenItsManager_data();
    void aPageKeepsItsWidgetThenItsManager();
    void theWidgetGetsTheParentGiven_data();
    void theWidgetGetsTheParentGiven();
    void deletingAPageLeavesItsWidget_data();
    void deletingAPageLeavesItsWidget();
    void aPageOnlyGuardsItsWidget_data();
    void aPageOnlyGuardsItsWidget();
    void nothingHappensBeforeCreatePage_data();
    void nothingHappensBeforeCreatePage();
    void nothingHappensOnceTheWidgetIsGone_data();
    void nothingHappensOnceTheWidgetIsGone();
    void deletingAPageLeavesItsManager_data();
    void deletingAPageLeavesItsManager();

private:
    static void addPages();
    static RyCusInterface *newPage(RyAbstatcManager *manager);
};

void tst_RyCusInterface::addPages()
{
    QTest::addColumn<bool>("ribbon");
    QTest::newRow("toolbar page") << false;
    QTest::newRow("ribbon page") << true;
}

RyCusInterface *tst_RyCusInterface::newPage(RyAbstatcManager *manager)
{
    QFETCH(bool, ribbon);
    if (ribbon)
        return new RyCRibbonPage(manager);
    return new RyCToolBarPage(manager);
}

void tst_RyCusInterface::hasNoFieldsAndNoBase()
{
    QCOMPARE(sizeof(RyCusInterface), sizeof(void *));
    QVERIFY((!std::is_base_of_v<QObject, RyCusInterface>));
    // The first places in the table are the destructor's.
    QCOMPARE(virtualSlot(&RyCusInterface::name), 2);
}

void tst_RyCusInterface::everyFunctionButTheDestructorIsPure()
{
    QVERIFY(!std::is_abstract_v<SmallPage>);
    QVERIFY(std::is_abstract_v<WithoutName>);
    QVERIFY(std::is_abstract_v<WithoutCreatePage>);
    QVERIFY(std::is_abstract_v<WithoutApply>);
    QVERIFY(std::is_abstract_v<WithoutFinish>);
    QVERIFY(std::is_abstract_v<WithoutRestorDefaults>);
}

void tst_RyCusInterface::theVirtualFunctionsStandInOrder()
{
    QCOMPARE(virtualSlot(&RyCusInterface::name), 2);
    QCOMPARE(virtualSlot(&RyCusInterface::createPage), 3);
    QCOMPARE(virtualSlot(&RyCusInterface::apply), 4);
    QCOMPARE(virtualSlot(&RyCusInterface::finish), 5);
    QCOMPARE(virtualSlot(&RyCusInterface::RestorDefaults), 6);
    QCOMPARE(virtualSlotCount<RyCusInterface>(), 7);
}

void tst_RyCusInterface::thePagesAddNoVirtualFunction()
{
    QCOMPARE(virtualSlotCount<RyCToolBarPage>(), 7);
    QCOMPARE(virtualSlotCount<RyCRibbonPage>(), 7);
}

void tst_RyCusInterface::isDeletedThroughTheInterface()
{
    bool deleted = false;
    RyCusInterface *const page = new SmallPage(&deleted);
    QVERIFY(std::has_virtual_destructor_v<RyCusInterface>);
    delete page;
    QVERIFY(deleted);
}

void tst_RyCusInterface::theSignaturesAreFixed()
{
    QString (RyCusInterface::*const name)() const = &RyCusInterface::name;
    QWidget *(RyCusInterface::*const createPage)(QWidget *) = &RyCusInterface::createPage;
    for (void (RyCusInterface::*const notice)() :
         {&RyCusInterface::apply, &RyCusInterface::finish, &RyCusInterface::RestorDefaults})
        QVERIFY(notice);
    QVERIFY(name);
    QVERIFY(createPage);
}

void tst_RyCusInterface::aPageTakesOneManager()
{
    QVERIFY((std::is_constructible_v<RyCToolBarPage, RyAbstatcManager *>));
    QVERIFY((std::is_constructible_v<RyCRibbonPage, RyAbstatcManager *>));
    QVERIFY(!std::is_default_constructible_v<RyCToolBarPage>);
    QVERIFY(!std::is_default_constructible_v<RyCRibbonPage>);
}

void tst_RyCusInterface::aPageKeepsItsWidgetThenItsManager_data()
{
    addPages();
}

void tst_RyCusInterface::aPageKeepsItsWidgetThenItsManager()
{
    QCOMPARE(sizeof(RyCToolBarPage), sizeof(PageFields));
    QCOMPARE(sizeof(RyCRibbonPage), sizeof(PageFields));
    RyToolBarManager manager;
    QWidget parent;
    const std::unique_ptr<RyCusInterface> page(newPage(&manager));
    QCOMPARE(fieldsOf(page.get()).manager, &manager);
    QVERIFY(fieldsOf(page.get()).widget.isNull());
    const QWidget *const widget = page->createPage(&parent);
    QCOMPARE(fieldsOf(page.get()).widget.data(), widget);
    QCOMPARE(fieldsOf(page.get()).manager, &manager);
    delete widget;
    QVERIFY(fieldsOf(page.get()).widget.isNull());
}

void tst_RyCusInterface::theWidgetGetsTheParentGiven_data()
{
    addPages();
}

void tst_RyCusInterface::theWidgetGetsTheParentGiven()
{
    RyToolBarManager manager;
    const std::unique_ptr<RyCusInterface> page(newPage(&manager));
    QWidget parent;
    const QWidget *const child = page->createPage(&parent);
    QCOMPARE(child->parentWidget(), &parent);
    QCOMPARE(child->windowFlags(), QWidget(&parent).windowFlags());
    const std::unique_ptr<QWidget> orphan(page->createPage(nullptr));
    QVERIFY(!orphan->parentWidget());
    QCOMPARE(orphan->windowFlags(), QWidget().windowFlags());
}

void tst_RyCusInterface::deletingAPageLeavesItsWidget_data()
{
    addPages();
}

void tst_RyCusInterface::deletingAPageLeavesItsWidget()
{
    RyToolBarManager manager;
    QPointer<QWidget> widget;
    {
        QWidget parent;
        {
            const std::unique_ptr<RyCusInterface> page(newPage(&manager));
            widget = page->createPage(&parent);
        }
        QVERIFY(widget);
        QCOMPARE(widget->parentWidget(), &parent);
    }
    QVERIFY(!widget);
}

void tst_RyCusInterface::aPageOnlyGuardsItsWidget_data()
{
    addPages();
}

// A second widget takes the place of the first, which lives on.
void tst_RyCusInterface::aPageOnlyGuardsItsWidget()
{
    RyToolBarManager manager;
    QWidget parent;
    const std::unique_ptr<RyCusInterface> page(newPage(&manager));
    const QPointer<QWidget> first = page->createPage(&parent);
    const QPointer<QWidget> second = page->createPage(&parent);
    QVERIFY(first);
    QVERIFY(second);
    QVERIFY(first != second);
    QCOMPARE(fieldsOf(page.get()).widget.data(), second.data());
}

void tst_RyCusInterface::nothingHappensBeforeCreatePage_data()
{
    addPages();
}

void tst_RyCusInterface::nothingHappensBeforeCreatePage()
{
    const std::unique_ptr<RyCusInterface> page(newPage(nullptr));
    page->apply();
    page->RestorDefaults();
    page->finish();
    QVERIFY(fieldsOf(page.get()).widget.isNull());
}

void tst_RyCusInterface::nothingHappensOnceTheWidgetIsGone_data()
{
    addPages();
}

void tst_RyCusInterface::nothingHappensOnceTheWidgetIsGone()
{
    const std::unique_ptr<RyCusInterface> page(newPage(nullptr));
    delete page->createPage(nullptr);
    page->apply();
    page->RestorDefaults();
    page->finish();
    QVERIFY(fieldsOf(page.get()).widget.isNull());
}

void tst_RyCusInterface::deletingAPageLeavesItsManager_data()
{
    addPages();
}

void tst_RyCusInterface::deletingAPageLeavesItsManager()
{
    const std::unique_ptr<RyAbstatcManager> owner(new RyToolBarManager);
    const QPointer<RyAbstatcManager> manager(owner.get());
    QWidget parent;
    {
        const std::unique_ptr<RyCusInterface> page(newPage(owner.get()));
        page->createPage(&parent);
        QVERIFY(!owner->parent());
    }
    QVERIFY(manager);
    QVERIFY(!owner->parent());
}

QTEST_MAIN(tst_RyCusInterface)

#include "tst_rycusinterface.moc"
