// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "recordingtranslator.h"
#include "ryctoolbarpage.h"
#include "ryctoolbarwidget.h"
#include "testcase.h"
#include "texts.h"

#include <QtTest>

#include <memory>

namespace {

// A host with one default toolbar, which holds other actions than it did when it was registered.
struct ChangedHost : Host
{
    ChangedHost()
    {
        file = defaultToolBar("file", {"open", "|", "save"}, "File");
        manager.setToolBar(file, list({"save"}));
    }

    QToolBar *file;
};

const QStringList defaultContent{"open", "|", "save"};
const QStringList changedContent{"save"};
const QStringList defaultRows{"Open", "< S E P A R A T O R >", "Save"};
const QStringList changedRows{"Save"};

} // namespace

class tst_RyCToolBarPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itsNameIsLookedUpAtEachCall();
    void beforeCreatePageTheButtonsDoNothing();
    void createPageReturnsAnEditor();
    void applyWritesTheWorkingCopy();
    void finishDoesNothing();
    void restoreDefaultsReachesTheHostWithTheNextApply();
    void applyTwiceWritesTwice();
    void aSecondCreatePageMakesTheEditorThatTheButtonsReach();
    void theFirstEditorOutlivesTheSecond();
    void theEditorWorksWithoutItsPage();
    void onceTheEditorIsGoneTheHostIsLeftAlone();
};

void tst_RyCToolBarPage::itsNameIsLookedUpAtEachCall()
{
    const RyCToolBarPage page(nullptr);
    RecordingTranslator translator;
    QCOMPARE(page.name(), "translated ToolBar");
    QCOMPARE(translator.takeLookUps(), QStringList{"RyCToolBarPage: ToolBar"});
    page.name();
    QCOMPARE(translator.takeLookUps(), QStringList{"RyCToolBarPage: ToolBar"});
}

void tst_RyCToolBarPage::beforeCreatePageTheButtonsDoNothing()
{
    ChangedHost host;
    RyCToolBarPage page(&host.manager);
    page.apply();
    page.RestorDefaults();
    page.finish();
    QCOMPARE(standingOn(host.file), changedContent);
}

void tst_RyCToolBarPage::createPageReturnsAnEditor()
{
    QWidget parent;
    RyCToolBarPage page(nullptr);
    const QWidget *const widget = page.createPage(&parent);
    QCOMPARE(widget->metaObject(), &RyCToolBarWidget::staticMetaObject);
    QCOMPARE(widget->parentWidget(), &parent);
    QCOMPARE(widget->windowFlags(), QWidget(&parent).windowFlags());
    QCOMPARE(parent.findChildren<RyCToolBarWidget *>().size(), 1);
}

void tst_RyCToolBarPage::applyWritesTheWorkingCopy()
{
    ChangedHost host;
    RyCToolBarPage page(&host.manager);
    const std::unique_ptr<QWidget> widget(page.createPage(nullptr));
    widget->show();
    const EditorViews editor(widget.get());
    editor.doubleClick(editor.actionTree, "Open");
    QCOMPARE(standingOn(host.file), changedContent);
    page.apply();
    const QStringList written{"save", "open"};
    QCOMPARE(standingOn(host.file), written);
    QCOMPARE(contentOf(host.manager.toolBarsActions().value(host.file)), written);
}

void tst_RyCToolBarPage::finishDoesNothing()
{
    ChangedHost host;
    RyCToolBarPage page(&host.manager);
    const std::unique_ptr<QWidget> widget(page.createPage(nullptr));
    page.finish();
    widget->show();
    const EditorViews editor(widget.get());
    editor.doubleClick(editor.actionTree, "Open");
    const QStringList rows = rowsOf(editor.currentToolBarList);
    const QStringList buttons = editor.enabledButtons();
    page.finish();
    QCOMPARE(standingOn(host.file), changedContent);
    QCOMPARE(rowsOf(editor.currentToolBarList), rows);
    QCOMPARE(editor.enabledButtons(), buttons);
    QVERIFY(widget->isVisible());
}

void tst_RyCToolBarPage::restoreDefaultsReachesTheHostWithTheNextApply()
{
    ChangedHost host;
    RyCToolBarPage page(&host.manager);
    const std::unique_ptr<QWidget> widget(page.createPage(nullptr));
    widget->show();
    const EditorViews editor(widget.get());
    page.RestorDefaults();
    QCOMPARE(rowsOf(editor.currentToolBarList), defaultRows);
    QCOMPARE(standingOn(host.file), changedContent);
    page.apply();
    QCOMPARE(standingOn(host.file), defaultContent);
}

void tst_RyCToolBarPage::applyTwiceWritesTwice()
{
    ChangedHost host;
    RyCToolBarPage page(&host.manager);
    const std::unique_ptr<QWidget> widget(page.createPage(nullptr));
    widget->show();
    for (int i = 0; i < 2; ++i) {
        host.file->setWindowTitle("Renamed by the host");
        host.manager.setToolBar(host.file, {});
        page.apply();
        QCOMPARE(host.file->windowTitle(), "File");
        QCOMPARE(standingOn(host.file), changedContent);
    }
}

void tst_RyCToolBarPage::aSecondCreatePageMakesTheEditorThatTheButtonsReach()
{
    ChangedHost host;
    RyCToolBarPage page(&host.manager);
    QWidget parent;
    QWidget *const first = page.createPage(&parent);
    QWidget *const second = page.createPage(&parent);
    parent.show();
    page.RestorDefaults();
    QCOMPARE(rowsOf(EditorViews(first).currentToolBarList), changedRows);
    QCOMPARE(rowsOf(EditorViews(second).currentToolBarList), defaultRows);
    page.apply();
    QCOMPARE(standingOn(host.file), defaultContent);
}

void tst_RyCToolBarPage::theFirstEditorOutlivesTheSecond()
{
    ChangedHost host;
    RyCToolBarPage page(&host.manager);
    QWidget parent;
    const QPointer<QWidget> first = page.createPage(&parent);
    QWidget *const second = page.createPage(&parent);
    parent.show();
    delete second;
    QVERIFY(first);
    page.RestorDefaults();
    page.apply();
    QCOMPARE(rowsOf(EditorViews(first).currentToolBarList), changedRows);
    QCOMPARE(standingOn(host.file), changedContent);
}

void tst_RyCToolBarPage::theEditorWorksWithoutItsPage()
{
    ChangedHost host;
    std::unique_ptr<QWidget> widget;
    {
        RyCToolBarPage page(&host.manager);
        widget.reset(page.createPage(nullptr));
        widget->show();
    }
    const EditorViews editor(widget.get());
    editor.doubleClick(editor.actionTree, "Open");
    QVERIFY(QMetaObject::invokeMethod(widget.get(), "applyClicked"));
    const QStringList written{"save", "open"};
    QCOMPARE(standingOn(host.file), written);
}

void tst_RyCToolBarPage::onceTheEditorIsGoneTheHostIsLeftAlone()
{
    ChangedHost host;
    RyCToolBarPage page(&host.manager);
    std::unique_ptr<QWidget> widget(page.createPage(nullptr));
    widget->show();
    page.RestorDefaults();
    widget.reset();
    page.apply();
    page.RestorDefaults();
    page.finish();
    QCOMPARE(standingOn(host.file), changedContent);
}

QTEST_MAIN(tst_RyCToolBarPage)

#include "tst_ryctoolbarpage.moc"
