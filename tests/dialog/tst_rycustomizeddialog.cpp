// SPDX-License-Identifier: MIT

#include "connections.h"
#include "editorviews.h"
#include "host.h"
#include "layouts.h"
#include "recordingtranslator.h"
#include "rycribbonpage.h"
#include "rycribbonwidget.h"
#include "rycustomizeddialog.h"
#include "ryctoolbarpage.h"
#include "ryctoolbarwidget.h"
#include "testcase.h"
#include "texts.h"
#include "ui_customizeddialog.h"
#include "virtualslots.h"

#include <QPushButton>
#include <QtTest>

#include <memory>

namespace {

// What the dialog keeps after its base.
struct Fields
{
    Ui_CustomizedDialog *ui;
    QList<RyCusInterface *> pages;
};

const Fields &fieldsOf(const RyCustomizedDialog &dialog)
{
    return *reinterpret_cast<const Fields *>(reinterpret_cast<const char *>(&dialog)
                                             + sizeof(QDialog));
}

// The types show whose function it is that a subclass would override.
struct Access : RyCustomizedDialog
{
    template <typename Event> using Handler = void (QDialog::*)(Event *);

    using Notice = void (QDialog::*)();

    static QList<bool> inherited()
    {
        return {
            std::is_same_v<decltype(&Access::setVisible), void (QDialog::*)(bool)>,
            std::is_same_v<decltype(&Access::sizeHint), QSize (QDialog::*)() const>,
            std::is_same_v<decltype(&Access::minimumSizeHint), QSize (QDialog::*)() const>,
            std::is_same_v<decltype(&Access::exec), int (QDialog::*)()>,
            std::is_same_v<decltype(&Access::open), Notice>,
            std::is_same_v<decltype(&Access::done), void (QDialog::*)(int)>,
            std::is_same_v<decltype(&Access::accept), Notice>,
            std::is_same_v<decltype(&Access::reject), Notice>,
            std::is_same_v<decltype(&Access::keyPressEvent), Handler<QKeyEvent>>,
            std::is_same_v<decltype(&Access::closeEvent), Handler<QCloseEvent>>,
            std::is_same_v<decltype(&Access::showEvent), Handler<QShowEvent>>,
            std::is_same_v<decltype(&Access::resizeEvent), Handler<QResizeEvent>>,
            std::is_same_v<decltype(&Access::contextMenuEvent), Handler<QContextMenuEvent>>,
            std::is_same_v<decltype(&Access::eventFilter), bool (QDialog::*)(QObject *, QEvent *)>,
            std::is_same_v<decltype(&Access::event), bool (QWidget::*)(QEvent *)>,
            std::is_same_v<decltype(&Access::hideEvent), void (QWidget::*)(QHideEvent *)>,
            std::is_same_v<decltype(&Access::changeEvent), void (QWidget::*)(QEvent *)>,
        };
    }
};

// Notes when the form's placeholder is shown.
class PlaceholderWatch : public QObject
{
public:
    PlaceholderWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (object->objectName() == "tab_2" && event->type() == QEvent::Show)
            wasShown = true;
        return false;
    }

    bool wasShown = false;
};

QTabWidget *tabsOf(const RyCustomizedDialog &dialog)
{
    return dialog.findChild<QTabWidget *>("m_optionTabWidget");
}

QDialogButtonBox *boxOf(const RyCustomizedDialog &dialog)
{
    return dialog.findChild<QDialogButtonBox *>("m_dialogButtonBox");
}

template <typename Dialog, typename = void> struct HasCancelButton : std::false_type
{
};

template <typename Dialog>
struct HasCancelButton<Dialog, std::void_t<decltype(std::declval<Dialog>().cancelButton())>>
    : std::true_type
{
};

} // namespace

class tst_RyCustomizedDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void okCreatesTheToolBarThatTheUserMade();

    void hasSixPrivateSlotsInOrder();
    void hasNoOtherMetaObjectMembers();
    void isCastToByItsOwnName();
    void keepsItsFormThenItsPages();
    void keepsTheToolBarPageThenTheRibbonPage();
    void overridesNoVirtualFunctionOfQDialog();
    void addsNoVirtualFunction();
    void theAccessorsReturnTheStandardButtons();
    void thereIsNoAccessorForCancel();

    void belongsToItsParent();
    void onlyTheContextHelpHintIsCleared_data();
    void onlyTheContextHelpHintIsCleared();
    void isModalAndTitledOptions();
    void isSetUpByItsForm();
    void showsTwoTabsAndTheFirstIsCurrent();
    void thePlaceholderStaysAHiddenChild();
    void thePlaceholderIsNeverShown();
    void thePageWidgetsLiveInTheTabs();
    void theFormConnectsNoSlotByName();

    void everyTextIsLookedUpOnceAndInOrder();
    void everyTextPassesThroughTranslation();

    void aNullRibbonManagerIsAccepted();
    void theRibbonManagerIsNeverUsed();
    void furtherManagersAreIgnored();
    void theManagersStayTheHosts();
    void takesTheListByValue();
    void theDialogLeavesTheHostAlone_data();
    void theDialogLeavesTheHostAlone();
    void destroyingAShownDialogLeavesTheHostAlone_data();
    void destroyingAShownDialogLeavesTheHostAlone();
    void theParentDeletesTheDialog();
    void severalDialogsMayShareAManager();
};

void tst_RyCustomizedDialog::okCreatesTheToolBarThatTheUserMade()
{
    Host host;
    host.defaultToolBar("file", {"open", "|", "save"}, "File");
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    dialog.show();
    const EditorViews editor(&dialog);
    editor.click(editor.newButton);
    editor.typeName("Mine");
    editor.doubleClick(editor.actionTree, "Save");
    QTest::mouseClick(dialog.okButton(), Qt::LeftButton);

    QToolBar *const made = host.manager.toolBarByName("_Custom_Toolbar_1");
    QVERIFY(made);
    QCOMPARE(made->windowTitle(), "Mine");
    QCOMPARE(standingOn(made), QStringList{"save"});
}

void tst_RyCustomizedDialog::hasSixPrivateSlotsInOrder()
{
    const QMetaObject &metaObject = RyCustomizedDialog::staticMetaObject;
    QStringList slotNames;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Private);
        QCOMPARE(method.typeName(), "void");
        slotNames << method.methodSignature();
    }
    const QStringList expected{
        "slotAccepted()",          "slotRejected()", "slotApply()",
        "slotUiModeChanged(bool)", "slotHelp()",     "slotRestorDefault()",
    };
    QCOMPARE(slotNames, expected);
    const int index = metaObject.indexOfSlot("slotUiModeChanged(bool)");
    QCOMPARE(metaObject.method(index).parameterNames(), QList<QByteArray>{"modified"});
}

void tst_RyCustomizedDialog::hasNoOtherMetaObjectMembers()
{
    const QMetaObject &metaObject = RyCustomizedDialog::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
    QCOMPARE(metaObject.enumeratorCount(), metaObject.enumeratorOffset());
    QCOMPARE(metaObject.classInfoCount(), metaObject.classInfoOffset());
    QCOMPARE(metaObject.constructorCount(), 0);
}

void tst_RyCustomizedDialog::isCastToByItsOwnName()
{
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, nullptr);
    QCOMPARE(dialog.metaObject(), &RyCustomizedDialog::staticMetaObject);
    QCOMPARE(dialog.metaObject()->className(), "RyCustomizedDialog");
    QCOMPARE(dialog.qt_metacast("RyCustomizedDialog"), &dialog);
    QCOMPARE(dialog.qt_metacast("QDialog"), static_cast<QDialog *>(&dialog));
    QVERIFY(!dialog.qt_metacast("RyCusInterface"));
    QVERIFY(!dialog.qt_metacast(nullptr));
}

void tst_RyCustomizedDialog::keepsItsFormThenItsPages()
{
    QCOMPARE(sizeof(RyCustomizedDialog), sizeof(QDialog) + sizeof(Fields));
    Host host;
    const RyCustomizedDialog dialog({&host.manager, nullptr}, nullptr);
    const Ui_CustomizedDialog *const ui = fieldsOf(dialog).ui;
    QCOMPARE(ui->verticalLayout, dialog.layout());
    QCOMPARE(ui->m_optionTabWidget, tabsOf(dialog));
    QCOMPARE(ui->tab_2, dialog.findChild<QWidget *>("tab_2"));
    QCOMPARE(ui->m_dialogButtonBox, boxOf(dialog));
}

void tst_RyCustomizedDialog::keepsTheToolBarPageThenTheRibbonPage()
{
    Host host;
    const RyCustomizedDialog dialog({&host.manager, nullptr}, nullptr);
    const QList<RyCusInterface *> pages = fieldsOf(dialog).pages;
    QCOMPARE(pages.size(), 2);
    QVERIFY(dynamic_cast<RyCToolBarPage *>(pages.at(0)));
    QVERIFY(dynamic_cast<RyCRibbonPage *>(pages.at(1)));
}

void tst_RyCustomizedDialog::overridesNoVirtualFunctionOfQDialog()
{
    QVERIFY(!Access::inherited().contains(false));
}

void tst_RyCustomizedDialog::addsNoVirtualFunction()
{
    struct Plain : QDialog
    {
        virtual void next() = 0;
    };
    struct Derived : RyCustomizedDialog
    {
        virtual void next() = 0;
    };
    QCOMPARE(virtualSlot(&Derived::next), virtualSlot(&Plain::next));
}

void tst_RyCustomizedDialog::theAccessorsReturnTheStandardButtons()
{
    using Accessor = QPushButton *(RyCustomizedDialog::*)() const;
    const QList<QPair<Accessor, QDialogButtonBox::StandardButton>> accessors{
        {&RyCustomizedDialog::okButton, QDialogButtonBox::Ok},
        {&RyCustomizedDialog::applyButton, QDialogButtonBox::Apply},
        {&RyCustomizedDialog::RestoreDefaultButton, QDialogButtonBox::RestoreDefaults},
        {&RyCustomizedDialog::helpButton, QDialogButtonBox::Help},
    };
    Host host;
    const RyCustomizedDialog dialog({&host.manager, nullptr}, nullptr);
    for (const auto &pair : accessors) {
        QVERIFY((dialog.*pair.first)());
        QCOMPARE((dialog.*pair.first)(), boxOf(dialog)->button(pair.second));
    }
}

void tst_RyCustomizedDialog::thereIsNoAccessorForCancel()
{
    QVERIFY(!HasCancelButton<const RyCustomizedDialog &>::value);
}

void tst_RyCustomizedDialog::belongsToItsParent()
{
    Host host;
    const RyCustomizedDialog child({&host.manager, nullptr}, &host.window);
    QCOMPARE(child.parentWidget(), &host.window);
    QVERIFY(child.isWindow());
    const RyCustomizedDialog orphan({&host.manager, nullptr}, nullptr);
    QVERIFY(!orphan.parentWidget());
}

void tst_RyCustomizedDialog::onlyTheContextHelpHintIsCleared_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::addColumn<bool>("shown");
    QTest::newRow("with a parent") << true << false;
    QTest::newRow("without a parent") << false << false;
    QTest::newRow("shown") << true << true;
}

void tst_RyCustomizedDialog::onlyTheContextHelpHintIsCleared()
{
    QFETCH(bool, withParent);
    QFETCH(bool, shown);
    Host host;
    QWidget *const parent = withParent ? &host.window : nullptr;
    const QDialog plain(parent);
    RyCustomizedDialog dialog({&host.manager, nullptr}, parent);
    dialog.setVisible(shown);
    QVERIFY(plain.windowFlags() & Qt::WindowContextHelpButtonHint);
    QCOMPARE(dialog.windowFlags(), plain.windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

void tst_RyCustomizedDialog::isModalAndTitledOptions()
{
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    QCOMPARE(dialog.windowTitle(), "Options");
    dialog.show();
    QCOMPARE(QApplication::activeModalWidget(), &dialog);
}

void tst_RyCustomizedDialog::isSetUpByItsForm()
{
    Host host;
    const RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    QCOMPARE(dialog.objectName(), "CustomizedDialog");
    QCOMPARE(dialog.size(), QSize(740, 460));
    QCOMPARE(textOf(dialog.sizePolicy()), "Expanding Minimum");
    const QStringList items{"m_optionTabWidget", "m_dialogButtonBox"};
    QCOMPARE(itemsOf(qobject_cast<QVBoxLayout *>(dialog.layout())), items);
    QCOMPARE(boxOf(dialog)->standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help
                 | QDialogButtonBox::Apply | QDialogButtonBox::RestoreDefaults);
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
}

void tst_RyCustomizedDialog::showsTwoTabsAndTheFirstIsCurrent()
{
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    const QTabWidget *const tabs = tabsOf(dialog);
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->tabText(0), "ToolBar");
    QCOMPARE(tabs->tabText(1), "Ribbon");
    QCOMPARE(tabs->currentIndex(), 0);
    dialog.show();
    QCOMPARE(tabs->currentIndex(), 0);
    QVERIFY(tabs->widget(0)->isVisible());
    QVERIFY(!tabs->widget(1)->isVisible());
}

void tst_RyCustomizedDialog::thePlaceholderStaysAHiddenChild()
{
    Host host;
    QPointer<QWidget> placeholder;
    {
        const RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
        placeholder = dialog.findChild<QWidget *>("tab_2");
        QVERIFY(placeholder);
        QVERIFY(tabsOf(dialog)->isAncestorOf(placeholder));
        QCOMPARE(tabsOf(dialog)->indexOf(placeholder), -1);
        QVERIFY(!placeholder->isVisible());
    }
    QVERIFY(!placeholder);
}

void tst_RyCustomizedDialog::thePlaceholderIsNeverShown()
{
    const PlaceholderWatch watch;
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    const QWidget *const placeholder = dialog.findChild<QWidget *>("tab_2");
    dialog.show();
    for (int tab : {1, 0}) {
        tabsOf(dialog)->setCurrentIndex(tab);
        QVERIFY(!placeholder->isVisible());
        for (int i = 0; i < tabsOf(dialog)->count(); ++i)
            QVERIFY(tabsOf(dialog)->tabText(i) != "Tab 1");
    }
    QVERIFY(!watch.wasShown);
}

void tst_RyCustomizedDialog::thePageWidgetsLiveInTheTabs()
{
    Host host;
    const RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    QCOMPARE(tabsOf(dialog)->widget(0), dialog.findChild<RyCToolBarWidget *>());
    QCOMPARE(tabsOf(dialog)->widget(1), dialog.findChild<RyCRibbonWidget *>());
    QVERIFY(tabsOf(dialog)->isAncestorOf(tabsOf(dialog)->widget(0)));
    QVERIFY(tabsOf(dialog)->isAncestorOf(tabsOf(dialog)->widget(1)));
    QCOMPARE(dialog.findChildren<RyCToolBarWidget *>().size(), 1);
    QCOMPARE(dialog.findChildren<RyCRibbonWidget *>().size(), 1);
}

void tst_RyCustomizedDialog::theFormConnectsNoSlotByName()
{
    const QMetaObject &metaObject = RyCustomizedDialog::staticMetaObject;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i)
        QVERIFY(!metaObject.method(i).name().startsWith("on_"));
}

// The texts of the two pages' own forms are tested with the forms.
void tst_RyCustomizedDialog::everyTextIsLookedUpOnceAndInOrder()
{
    Host host;
    RecordingTranslator translator;
    const RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    QStringList lookUps = translator.takeLookUps();
    QCOMPARE(lookUps.filter(QRegularExpression("^CToolBarPage: ")).size(), 19);
    QCOMPARE(lookUps.filter(QRegularExpression("^CRibbonPage: ")).size(), 19);
    // One entry is left of each form, so that its place in the order shows.
    const QRegularExpression others("^(CToolBarPage|CRibbonPage): (?!Display)");
    for (const QString &text : lookUps.filter(others))
        lookUps.removeAll(text);
    const QStringList expected{
        "CustomizedDialog: Options", "CToolBarPage: Display", "RyCToolBarPage: ToolBar",
        "CRibbonPage: Display",      "RyCRibbonPage: Ribbon",
    };
    lookUps.removeAll("RyCToolBarWidget: < S E P A R A T O R >");
    QCOMPARE(lookUps, expected);
}

void tst_RyCustomizedDialog::everyTextPassesThroughTranslation()
{
    Host host;
    RecordingTranslator translator;
    const RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    QCOMPARE(dialog.windowTitle(), "translated Options");
    QCOMPARE(tabsOf(dialog)->tabText(0), "translated ToolBar");
    QCOMPARE(tabsOf(dialog)->tabText(1), "translated Ribbon");
}

void tst_RyCustomizedDialog::aNullRibbonManagerIsAccepted()
{
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    dialog.show();
    tabsOf(dialog)->setCurrentIndex(1);
    QVERIFY(dialog.findChild<RyCRibbonWidget *>()->isVisible());
    dialog.applyButton()->click();
    dialog.RestoreDefaultButton()->click();
    dialog.okButton()->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_RyCustomizedDialog::theRibbonManagerIsNeverUsed()
{
    Host host;
    std::unique_ptr<RyAbstatcManager> ribbonManager(new RyAbstatcManager);
    RyCustomizedDialog dialog({&host.manager, ribbonManager.get()}, &host.window);
    QVERIFY(connectedSignals(ribbonManager.get()).isEmpty());
    ribbonManager.reset();
    dialog.show();
    tabsOf(dialog)->setCurrentIndex(1);
    dialog.RestoreDefaultButton()->click();
    dialog.applyButton()->click();
    dialog.okButton()->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_RyCustomizedDialog::furtherManagersAreIgnored()
{
    Host host;
    Host other;
    QToolBar *const others = other.defaultToolBar("other", {"cut"}, "Edit");
    other.manager.setToolBar(others, {});
    std::unique_ptr<RyAbstatcManager> deleted(new RyAbstatcManager);
    const QList<RyAbstatcManager *> managers{&host.manager, nullptr, &other.manager, nullptr,
                                             deleted.get()};
    deleted.reset();
    RyCustomizedDialog dialog(managers, &host.window);
    dialog.show();
    QCOMPARE(tabsOf(dialog)->count(), 2);
    QCOMPARE(rowsOf(EditorViews(&dialog).toolBarList), QStringList());
    dialog.RestoreDefaultButton()->click();
    dialog.okButton()->click();
    QCOMPARE(standingOn(others), QStringList());
}

void tst_RyCustomizedDialog::theManagersStayTheHosts()
{
    Host host;
    RyAbstatcManager ribbonManager;
    const QPointer<QObject> guards[] = {&host.manager, &ribbonManager};
    {
        RyCustomizedDialog dialog({&host.manager, &ribbonManager}, &host.window);
        dialog.show();
        dialog.okButton()->click();
        for (const auto &guard : guards)
            QVERIFY(!guard->parent());
    }
    for (const auto &guard : guards) {
        QVERIFY(guard);
        QVERIFY(!guard->parent());
    }
}

void tst_RyCustomizedDialog::takesTheListByValue()
{
    Host host;
    QList<RyAbstatcManager *> managers{&host.manager, nullptr};
    host.defaultToolBar("file", {"open"}, "File");
    RyCustomizedDialog dialog(managers, &host.window);
    managers.clear();
    dialog.show();
    QCOMPARE(rowsOf(EditorViews(&dialog).toolBarList), QStringList{"File"});
}

void tst_RyCustomizedDialog::theDialogLeavesTheHostAlone_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("never shown") << false;
    QTest::newRow("shown and closed") << true;
}

void tst_RyCustomizedDialog::theDialogLeavesTheHostAlone()
{
    QFETCH(bool, shown);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", {"open", "|"}, "File");
    const QByteArray state = host.manager.saveState(1);
    const QList<QAction *> actions = file->actions();
    {
        RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
        dialog.setVisible(shown);
        dialog.close();
    }
    QCOMPARE(host.manager.saveState(1), state);
    QCOMPARE(file->actions(), actions);
    QCOMPARE(file->windowTitle(), "File");
    QCOMPARE(host.window.findChildren<QDialog *>().size(), 0);
}

void tst_RyCustomizedDialog::destroyingAShownDialogLeavesTheHostAlone_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<bool>("renaming");
    QTest::newRow("on the first tab") << 0 << false;
    QTest::newRow("on the second tab") << 1 << false;
    QTest::newRow("while a name is typed") << 0 << true;
}

void tst_RyCustomizedDialog::destroyingAShownDialogLeavesTheHostAlone()
{
    QFETCH(int, tab);
    QFETCH(bool, renaming);
    Host host;
    QToolBar *const file = host.defaultToolBar("file", {"open", "save"}, "File");
    const QByteArray state = host.manager.saveState(1);
    {
        RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
        dialog.show();
        const EditorViews editor(&dialog);
        editor.click(editor.leftButton);
        if (renaming)
            editor.click(editor.newButton);
        QCOMPARE(editor.renameEditor() != nullptr, renaming);
        tabsOf(dialog)->setCurrentIndex(tab);
    }
    QCOMPARE(host.manager.saveState(1), state);
    const QStringList content{"open", "save"};
    QCOMPARE(standingOn(file), content);
    QCOMPARE(host.window.findChildren<QToolBar *>(), QList<QToolBar *>{file});
}

void tst_RyCustomizedDialog::theParentDeletesTheDialog()
{
    RyToolBarManager manager;
    QPointer<RyCustomizedDialog> dialog;
    {
        QMainWindow window;
        manager.setMainWindow(&window);
        dialog = new RyCustomizedDialog({&manager, nullptr}, &window);
        dialog->show();
    }
    QVERIFY(!dialog);
}

void tst_RyCustomizedDialog::severalDialogsMayShareAManager()
{
    Host host;
    QToolBar *const file = host.defaultToolBar("file", {"open"}, "File");
    for (int i = 0; i < 2; ++i) {
        RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
        dialog.show();
        const EditorViews editor(&dialog);
        QCOMPARE(rowsOf(editor.currentToolBarList).size(), 1 + i);
        editor.doubleClick(editor.actionTree, "< S E P A R A T O R >");
        dialog.okButton()->click();
    }
    const QStringList content{"open", "|", "|"};
    QCOMPARE(standingOn(file), content);
}

QTEST_MAIN(tst_RyCustomizedDialog)

#include "tst_rycustomizeddialog.moc"
