// SPDX-License-Identifier: MIT

#include "layouts.h"
#include "recordingtranslator.h"
#include "testcase.h"
#include "ui_cribbonpage.h"
#include "ui_ctoolbarpage.h"

#include <QtTest>

#include <cstddef>

namespace {

// A page with slots of the names that connectSlotsByName() looks for.
class ListeningPage : public QWidget
{
    Q_OBJECT

public:
    int newClicks = 0;
    int titleChanges = 0;

public Q_SLOTS:
    void on_newButton_4_clicked() { ++newClicks; }
    void on_listening_windowTitleChanged(const QString &) { ++titleChanges; }
};

struct Form : Ui_CRibbonPage
{
    explicit Form(QWidget *page) { setupUi(page); }

    QList<QToolButton *> buttons() const
    {
        return {newButton_4,  removeButton_4, renameButton_4, upButton_4,
                leftButton_4, rightButton_4,  downButton_4};
    }
    QList<QToolButton *> actionButtons() const
    {
        return {upButton_4, leftButton_4, rightButton_4, downButton_4};
    }
    QStringList texts(const QWidget *page) const
    {
        QStringList all{page->windowTitle(), label->text(), label_3->text()};
        for (const QToolButton *button : {newButton_4, removeButton_4, renameButton_4})
            all << button->toolTip() << button->text();
        all << actionTree->headerItem()->text(0) << label_6->text();
        for (const QToolButton *button : actionButtons())
            all << button->toolTip() << button->text();
        return all;
    }
};

// The toolbar editor's form, which this one is an image of.
struct OtherForm : Ui_CToolBarPage
{
    explicit OtherForm(QWidget *page) { setupUi(page); }
};

const QStringList sourceTexts{
    QStringLiteral("Display"),
    QStringLiteral("Actions"),
    QStringLiteral("Toolbars"),
    QStringLiteral("Add new toolbar"),
    QStringLiteral("New"),
    QStringLiteral("Remove selected toolbar"),
    QStringLiteral("Remove"),
    QStringLiteral("Rename toolbar"),
    QStringLiteral("Rename"),
    QStringLiteral("1"),
    QStringLiteral("Current Toolbar Actions"),
    QStringLiteral("Move action up"),
    QStringLiteral("Up"),
    QStringLiteral("Remove action from toolbar"),
    QStringLiteral("<-"),
    QStringLiteral("Add action to toolbar"),
    QStringLiteral("->"),
    QStringLiteral("Move action down"),
    QStringLiteral("Down"),
};

QStringList prefixed(const QString &prefix, const QStringList &texts)
{
    QStringList all;
    for (const QString &text : texts)
        all << prefix + text;
    return all;
}

// The names of the toolbar editor's form as this form has them.
QStringList renamed(QStringList names)
{
    names.replaceInStrings(QStringLiteral("CToolBarPage"), QStringLiteral("CRibbonPage"));
    names.replaceInStrings(QStringLiteral("label_2"), QStringLiteral("label_3"));
    const QRegularExpression button(
        QStringLiteral("\\b((?:new|remove|rename|up|left|right|down)Button)\\b"));
    return names.replaceInStrings(button, QStringLiteral("\\1_4"));
}

} // namespace

class tst_Form_CRibbonPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFieldsStandInOrder();
    void isAPlainClass();
    void anUnnamedPageIsNamed();
    void aNamedPageKeepsItsName();
    void thePageIsResized();
    void theMembersAreNamedAfterThemselves();
    void theWidgetsAreCreatedInOrder();
    void tabPassesTheWidgetsInOrder();
    void thePageOwnsEverything();
    void theGridHasTheseCells();
    void theBoxesHoldTheseItems();
    void theActionButtonsHaveAFixedHeight();
    void isBuiltAsTheToolBarEditorsForm();
    void everyPropertyIsTheToolBarEditorsForms();
    void nothingIsFilled();
    void theTextsAreThese();
    void theTextsAreLookedUpInOrder();
    void everyTextPassesThroughTranslation();
    void retranslatingResetsTheTexts();
    void retranslatingTouchesNothingElse();
    void slotsAreConnectedByNameInTheEnd();
};

void tst_Form_CRibbonPage::theFieldsStandInOrder()
{
    const QList<size_t> offsets{
        offsetof(Ui_CRibbonPage, gridLayout),         offsetof(Ui_CRibbonPage, label),
        offsetof(Ui_CRibbonPage, horizontalLayout),   offsetof(Ui_CRibbonPage, label_3),
        offsetof(Ui_CRibbonPage, newButton_4),        offsetof(Ui_CRibbonPage, removeButton_4),
        offsetof(Ui_CRibbonPage, renameButton_4),     offsetof(Ui_CRibbonPage, actionTree),
        offsetof(Ui_CRibbonPage, toolBarList),        offsetof(Ui_CRibbonPage, label_6),
        offsetof(Ui_CRibbonPage, verticalLayout),     offsetof(Ui_CRibbonPage, upButton_4),
        offsetof(Ui_CRibbonPage, leftButton_4),       offsetof(Ui_CRibbonPage, rightButton_4),
        offsetof(Ui_CRibbonPage, downButton_4),       offsetof(Ui_CRibbonPage, verticalSpacer),
        offsetof(Ui_CRibbonPage, currentToolBarList),
    };
    for (int i = 0; i < offsets.size(); ++i)
        QCOMPARE(offsets.at(i), i * sizeof(void *));
    QCOMPARE(sizeof(Ui_CRibbonPage), offsets.size() * sizeof(void *));
}

void tst_Form_CRibbonPage::isAPlainClass()
{
    QVERIFY(std::is_standard_layout_v<Ui_CRibbonPage>);
    QVERIFY(!std::is_polymorphic_v<Ui_CRibbonPage>);
    QVERIFY(std::is_trivially_destructible_v<Ui_CRibbonPage>);
}

void tst_Form_CRibbonPage::anUnnamedPageIsNamed()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(page.objectName(), QStringLiteral("CRibbonPage"));
}

void tst_Form_CRibbonPage::aNamedPageKeepsItsName()
{
    QWidget page;
    page.setObjectName(QStringLiteral("mine"));
    const Form form(&page);
    QCOMPARE(page.objectName(), QStringLiteral("mine"));
}

void tst_Form_CRibbonPage::thePageIsResized()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(page.size(), QSize(707, 385));
}

void tst_Form_CRibbonPage::theMembersAreNamedAfterThemselves()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(form.gridLayout->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(form.label->objectName(), QStringLiteral("label"));
    QCOMPARE(form.horizontalLayout->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(form.label_3->objectName(), QStringLiteral("label_3"));
    QCOMPARE(form.newButton_4->objectName(), QStringLiteral("newButton_4"));
    QCOMPARE(form.removeButton_4->objectName(), QStringLiteral("removeButton_4"));
    QCOMPARE(form.renameButton_4->objectName(), QStringLiteral("renameButton_4"));
    QCOMPARE(form.actionTree->objectName(), QStringLiteral("actionTree"));
    QCOMPARE(form.toolBarList->objectName(), QStringLiteral("toolBarList"));
    QCOMPARE(form.label_6->objectName(), QStringLiteral("label_6"));
    QCOMPARE(form.verticalLayout->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(form.upButton_4->objectName(), QStringLiteral("upButton_4"));
    QCOMPARE(form.leftButton_4->objectName(), QStringLiteral("leftButton_4"));
    QCOMPARE(form.rightButton_4->objectName(), QStringLiteral("rightButton_4"));
    QCOMPARE(form.downButton_4->objectName(), QStringLiteral("downButton_4"));
    QCOMPARE(form.currentToolBarList->objectName(), QStringLiteral("currentToolBarList"));
}

// The class names are exact: the tree is a plain one, without drag and drop.
void tst_Form_CRibbonPage::theWidgetsAreCreatedInOrder()
{
    QWidget page;
    const Form form(&page);
    const QStringList expected{
        QStringLiteral("QGridLayout gridLayout"),
        QStringLiteral("QLabel label"),
        QStringLiteral("QLabel label_3"),
        QStringLiteral("QToolButton newButton_4"),
        QStringLiteral("QToolButton removeButton_4"),
        QStringLiteral("QToolButton renameButton_4"),
        QStringLiteral("QTreeWidget actionTree"),
        QStringLiteral("QListWidget toolBarList"),
        QStringLiteral("QLabel label_6"),
        QStringLiteral("QToolButton upButton_4"),
        QStringLiteral("QToolButton leftButton_4"),
        QStringLiteral("QToolButton rightButton_4"),
        QStringLiteral("QToolButton downButton_4"),
        QStringLiteral("QListWidget currentToolBarList"),
    };
    QCOMPARE(childrenOf(&page), expected);
    const QStringList layouts{QStringLiteral("QHBoxLayout horizontalLayout"),
                              QStringLiteral("QVBoxLayout verticalLayout")};
    QCOMPARE(childrenOf(form.gridLayout), layouts);
}

void tst_Form_CRibbonPage::tabPassesTheWidgetsInOrder()
{
    QWidget page;
    const Form form(&page);
    const QStringList expected{
        QStringLiteral("label"),
        QStringLiteral("label_3"),
        QStringLiteral("newButton_4"),
        QStringLiteral("removeButton_4"),
        QStringLiteral("renameButton_4"),
        QStringLiteral("actionTree"),
        QStringLiteral("toolBarList"),
        QStringLiteral("label_6"),
        QStringLiteral("upButton_4"),
        QStringLiteral("leftButton_4"),
        QStringLiteral("rightButton_4"),
        QStringLiteral("downButton_4"),
        QStringLiteral("currentToolBarList"),
    };
    QCOMPARE(focusChainOf(&page), expected);
}

void tst_Form_CRibbonPage::thePageOwnsEverything()
{
    QPointer<QLayout> layout;
    QPointer<QTreeWidget> tree;
    {
        QWidget page;
        {
            const Form form(&page);
            layout = form.verticalLayout;
            tree = form.actionTree;
        }
        QVERIFY(layout);
        QVERIFY(tree);
    }
    QVERIFY(!layout);
    QVERIFY(!tree);
}

void tst_Form_CRibbonPage::theGridHasTheseCells()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(page.layout(), form.gridLayout);
    const QStringList expected{
        QStringLiteral("label 0,0 1x1"),
        QStringLiteral("horizontalLayout 0,1 1x2"),
        QStringLiteral("actionTree 1,0 3x1"),
        QStringLiteral("toolBarList 1,1 1x2"),
        QStringLiteral("label_6 2,1 1x2"),
        QStringLiteral("verticalLayout 3,1 1x1"),
        QStringLiteral("currentToolBarList 3,2 1x1"),
    };
    QCOMPARE(cellsOf(form.gridLayout), expected);
}

void tst_Form_CRibbonPage::theBoxesHoldTheseItems()
{
    QWidget page;
    const Form form(&page);
    const QStringList row{QStringLiteral("label_3"), QStringLiteral("newButton_4"),
                          QStringLiteral("removeButton_4"), QStringLiteral("renameButton_4")};
    QCOMPARE(itemsOf(form.horizontalLayout), row);
    const QStringList column{QStringLiteral("upButton_4"), QStringLiteral("leftButton_4"),
                             QStringLiteral("rightButton_4"), QStringLiteral("downButton_4"),
                             QStringLiteral("spacer 20x28 Minimum Expanding")};
    QCOMPARE(itemsOf(form.verticalLayout), column);
    QCOMPARE(form.verticalLayout->itemAt(4), form.verticalSpacer);
}

void tst_Form_CRibbonPage::theActionButtonsHaveAFixedHeight()
{
    QWidget page;
    const Form form(&page);
    const bool heightForWidth = QToolButton().sizePolicy().hasHeightForWidth();
    for (const QToolButton *button : form.actionButtons()) {
        QCOMPARE(textOf(button->sizePolicy()), QStringLiteral("Minimum Fixed"));
        QCOMPARE(button->sizePolicy().hasHeightForWidth(), heightForWidth);
    }
}

void tst_Form_CRibbonPage::isBuiltAsTheToolBarEditorsForm()
{
    QWidget page;
    const Form form(&page);
    QWidget otherPage;
    const OtherForm other(&otherPage);
    QCOMPARE(childrenOf(&page), renamed(childrenOf(&otherPage)));
    QCOMPARE(childrenOf(form.gridLayout), renamed(childrenOf(other.gridLayout)));
    QCOMPARE(focusChainOf(&page), renamed(focusChainOf(&otherPage)));
    QCOMPARE(cellsOf(form.gridLayout), renamed(cellsOf(other.gridLayout)));
    QCOMPARE(itemsOf(form.horizontalLayout), renamed(itemsOf(other.horizontalLayout)));
    QCOMPARE(itemsOf(form.verticalLayout), renamed(itemsOf(other.verticalLayout)));
    QCOMPARE(form.gridLayout->contentsMargins(), other.gridLayout->contentsMargins());
    QCOMPARE(form.gridLayout->spacing(), other.gridLayout->spacing());
}

void tst_Form_CRibbonPage::everyPropertyIsTheToolBarEditorsForms()
{
    QWidget page;
    const Form form(&page);
    QWidget otherPage;
    const OtherForm other(&otherPage);
    page.ensurePolished();
    otherPage.ensurePolished();
    QCOMPARE(propertiesBelow(&page), renamed(propertiesBelow(&otherPage)));
}

void tst_Form_CRibbonPage::nothingIsFilled()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(form.actionTree->columnCount(), 1);
    QCOMPARE(form.actionTree->topLevelItemCount(), 0);
    QVERIFY(!form.actionTree->header()->isHidden());
    QCOMPARE(form.toolBarList->count(), 0);
    QCOMPARE(form.currentToolBarList->count(), 0);
    for (const QToolButton *button : form.buttons())
        QVERIFY(button->icon().isNull());
}

void tst_Form_CRibbonPage::theTextsAreThese()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(form.texts(&page), sourceTexts);
}

void tst_Form_CRibbonPage::theTextsAreLookedUpInOrder()
{
    RecordingTranslator translator;
    QWidget page;
    Form form(&page);
    const QStringList expected = prefixed(QStringLiteral("CRibbonPage: "), sourceTexts);
    QCOMPARE(translator.takeLookUps(), expected);
    form.retranslateUi(&page);
    QCOMPARE(translator.takeLookUps(), expected);
}

void tst_Form_CRibbonPage::everyTextPassesThroughTranslation()
{
    RecordingTranslator translator;
    QWidget page;
    const Form form(&page);
    QCOMPARE(form.texts(&page), prefixed(QStringLiteral("translated "), sourceTexts));
}

void tst_Form_CRibbonPage::retranslatingResetsTheTexts()
{
    QWidget page;
    Form form(&page);
    const QString other = QStringLiteral("other");
    page.setWindowTitle(other);
    form.actionTree->headerItem()->setText(0, other);
    for (QLabel *label : {form.label, form.label_3, form.label_6})
        label->setText(other);
    for (QToolButton *button : form.buttons()) {
        button->setText(other);
        button->setToolTip(other);
    }
    form.retranslateUi(&page);
    QCOMPARE(form.texts(&page), sourceTexts);
}

void tst_Form_CRibbonPage::retranslatingTouchesNothingElse()
{
    QWidget page;
    Form form(&page);
    form.toolBarList->addItem(QStringLiteral("row"));
    form.upButton_4->setStatusTip(QStringLiteral("tip"));
    form.newButton_4->setEnabled(false);
    page.resize(800, 600);
    const QStringList before = propertiesBelow(&page);
    form.retranslateUi(&page);
    QCOMPARE(propertiesBelow(&page), before);
    QCOMPARE(form.toolBarList->count(), 1);
}

void tst_Form_CRibbonPage::slotsAreConnectedByNameInTheEnd()
{
    ListeningPage page;
    page.setObjectName(QStringLiteral("listening"));
    const Form form(&page);
    QCOMPARE(page.titleChanges, 0);
    form.newButton_4->click();
    QCOMPARE(page.newClicks, 1);
    page.setWindowTitle(QStringLiteral("other"));
    QCOMPARE(page.titleChanges, 1);
}

QTEST_MAIN(tst_Form_CRibbonPage)

#include "tst_form_cribbonpage.moc"
