// SPDX-License-Identifier: MIT

#include "host.h"
#include "layouts.h"
#include "recordingtranslator.h"
#include "rycribbonpage.h"
#include "rycribbonwidget.h"
#include "testcase.h"
#include "texts.h"

#include <QtTest>

#include <memory>

class tst_RyCRibbonPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedRibbon();
    void itsNameIsLookedUpAtEachCall();
    void createPageReturnsARibbonWidget();
    void worksWithANullManager();
    void neverUsesItsManager();
    void everyButtonChangesNothing_data();
    void everyButtonChangesNothing();
    void nothingReachesTheHost();
};

void tst_RyCRibbonPage::isNamedRibbon()
{
    const RyCRibbonPage page(nullptr);
    QCOMPARE(page.name(), "Ribbon");
}

void tst_RyCRibbonPage::itsNameIsLookedUpAtEachCall()
{
    const RyCRibbonPage page(nullptr);
    RecordingTranslator translator;
    QCOMPARE(page.name(), "translated Ribbon");
    QCOMPARE(translator.takeLookUps(), QStringList{"RyCRibbonPage: Ribbon"});
    page.name();
    QCOMPARE(translator.takeLookUps(), QStringList{"RyCRibbonPage: Ribbon"});
}

void tst_RyCRibbonPage::createPageReturnsARibbonWidget()
{
    QWidget parent;
    RyCRibbonPage page(nullptr);
    const QWidget *const widget = page.createPage(&parent);
    QCOMPARE(widget->metaObject(), &RyCRibbonWidget::staticMetaObject);
    QCOMPARE(widget->parentWidget(), &parent);
    QCOMPARE(parent.findChildren<RyCRibbonWidget *>().size(), 1);
}

void tst_RyCRibbonPage::worksWithANullManager()
{
    RyCRibbonPage page(nullptr);
    const std::unique_ptr<QWidget> widget(page.createPage(nullptr));
    widget->show();
    page.apply();
    page.RestorDefaults();
    page.finish();
    QVERIFY(widget->isVisible());
}

void tst_RyCRibbonPage::neverUsesItsManager()
{
    std::unique_ptr<RyAbstatcManager> manager(new RyAbstatcManager);
    RyCRibbonPage page(manager.get());
    manager.reset();
    const std::unique_ptr<QWidget> widget(page.createPage(nullptr));
    widget->show();
    page.apply();
    page.RestorDefaults();
    page.finish();
    QCOMPARE(page.name(), "Ribbon");
}

void tst_RyCRibbonPage::everyButtonChangesNothing_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("shown") << true;
    QTest::newRow("never shown") << false;
}

void tst_RyCRibbonPage::everyButtonChangesNothing()
{
    QFETCH(bool, shown);
    RyCRibbonPage page(nullptr);
    const std::unique_ptr<QWidget> widget(page.createPage(nullptr));
    widget->setVisible(shown);
    widget->findChild<QListWidget *>()->addItem("row");
    const QStringList before = propertiesBelow(widget.get());
    page.apply();
    page.RestorDefaults();
    page.finish();
    QCOMPARE(propertiesBelow(widget.get()), before);
    QCOMPARE(widget->findChild<QListWidget *>()->count(), 1);
}

void tst_RyCRibbonPage::nothingReachesTheHost()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", {"open"}, QString());
    host.manager.setToolBar(file, {});
    RyCRibbonPage page(&host.manager);
    const std::unique_ptr<QWidget> widget(page.createPage(nullptr));
    widget->show();
    page.RestorDefaults();
    page.apply();
    page.finish();
    QCOMPARE(standingOn(file), QStringList());
    QVERIFY(!host.manager.parent());
}

QTEST_MAIN(tst_RyCRibbonPage)

#include "tst_rycribbonpage.moc"
