// SPDX-License-Identifier: MIT

#include "layouts.h"
#include "recordingtranslator.h"
#include "ryctoolbarwidget.h"
#include "rytoolbarmanager.h"
#include "testcase.h"
#include "ui_ctoolbarpage.h"

#include <QProxyStyle>
#include <QtTest>

#include <cstddef>

namespace {

// Metrics that nobody would set.
class LayoutStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_LayoutLeftMargin:
            return 3;
        case PM_LayoutTopMargin:
            return 5;
        case PM_LayoutRightMargin:
            return 7;
        case PM_LayoutBottomMargin:
            return 11;
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return 13;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
};

// A page with slots of the names that connectSlotsByName() looks for.
class ListeningPage : public QWidget
{
    Q_OBJECT

public:
    int newClicks = 0;
    int titleChanges = 0;

public Q_SLOTS:
    void on_newButton_clicked() { ++newClicks; }
    void on_listening_windowTitleChanged(const QString &) { ++titleChanges; }
};

struct Form : Ui_CToolBarPage
{
    explicit Form(QWidget *page) { setupUi(page); }

    QList<QToolButton *> buttons() const
    {
        return {newButton,  removeButton, renameButton, upButton,
                leftButton, rightButton,  downButton};
    }
    QList<QToolButton *> actionButtons() const
    {
        return {upButton, leftButton, rightButton, downButton};
    }
    QStringList texts(const QWidget *page) const
    {
        QStringList all{page->windowTitle(), label->text(), label_2->text()};
        for (const QToolButton *button : {newButton, removeButton, renameButton})
            all << button->toolTip() << button->text();
        all << actionTree->headerItem()->text(0) << label_6->text();
        for (const QToolButton *button : actionButtons())
            all << button->toolTip() << button->text();
        return all;
    }
};

const QStringList sourceTexts{
    "Display",
    "Actions",
    "Toolbars",
    "Add new toolbar",
    "New",
    "Remove selected toolbar",
    "Remove",
    "Rename toolbar",
    "Rename",
    "1",
    "Current Toolbar Actions",
    "Move action up",
    "Up",
    "Remove action from toolbar",
    "<-",
    "Add action to toolbar",
    "->",
    "Move action down",
    "Down",
};

QStringList prefixed(const QString &prefix, const QStringList &texts)
{
    QStringList all;
    for (const QString &text : texts)
        all << prefix + text;
    return all;
}

QImage pixelsOf(const QIcon &icon)
{
    return icon.pixmap(22, 22).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage pixelsOf(const QString &image)
{
    const QImage pixels(QString(":/RyCustomizedDialog/images/%1.png").arg(image));
    return pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// Whether changing the text changes what is seen.
bool showsItsText(QToolButton *button)
{
    const QImage before = button->grab().toImage();
    const QString text = button->text();
    button->setText("M");
    const QImage after = button->grab().toImage();
    button->setText(text);
    return before != after;
}

} // namespace

class tst_Form_CToolBarPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFieldsAreInOrder();
    void isAPlainClass();

    void onlyAnUnnamedPageIsNamed();
    void thePageIsResized();
    void theMembersAreNamedAfterThemselves();
    void theWidgetsAreCreatedInOrder();
    void tabPassesTheWidgetsInOrder();
    void thePageOwnsEverything();

    void theGridHasTheseCells();
    void theCaptionRowHoldsTheseItems();
    void theButtonColumnHoldsTheseItems();
    void theStylesMarginsAndSpacingsApply();
    void noRowOrColumnIsStretched();
    void theActionButtonsHaveAFixedHeight();
    void theActionButtonsStayAtTheTop();
    void nothingElseIsSet();
    void nothingIsFilled();

    void theTextsAreThese();
    void theTextsAreLookedUpInOrder();
    void retranslatingResetsTheTexts();
    void retranslatingTouchesNothingElse();
    void slotsAreConnectedByNameInTheEnd();

    void theEditorHidesTheHeader();
    void theEditorSetsTheIcons_data();
    void theEditorSetsTheIcons();
    void eachEditorMakesItsOwnIcons();
    void onlyRenameShowsItsText();
    void theEditorChangesNothingElseOfTheForm();
};

void tst_Form_CToolBarPage::theFieldsAreInOrder()
{
    const QList<size_t> offsets{
        offsetof(Ui_CToolBarPage, gridLayout),         offsetof(Ui_CToolBarPage, label),
        offsetof(Ui_CToolBarPage, horizontalLayout),   offsetof(Ui_CToolBarPage, label_2),
        offsetof(Ui_CToolBarPage, newButton),          offsetof(Ui_CToolBarPage, removeButton),
        offsetof(Ui_CToolBarPage, renameButton),       offsetof(Ui_CToolBarPage, actionTree),
        offsetof(Ui_CToolBarPage, toolBarList),        offsetof(Ui_CToolBarPage, label_6),
        offsetof(Ui_CToolBarPage, verticalLayout),     offsetof(Ui_CToolBarPage, upButton),
        offsetof(Ui_CToolBarPage, leftButton),         offsetof(Ui_CToolBarPage, rightButton),
        offsetof(Ui_CToolBarPage, downButton),         offsetof(Ui_CToolBarPage, verticalSpacer),
        offsetof(Ui_CToolBarPage, currentToolBarList),
    };
    for (int i = 0; i < offsets.size(); ++i)
        QCOMPARE(offsets.at(i), i * sizeof(void *));
    QCOMPARE(sizeof(Ui_CToolBarPage), offsets.size() * sizeof(void *));
}

void tst_Form_CToolBarPage::isAPlainClass()
{
    QVERIFY(std::is_standard_layout_v<Ui_CToolBarPage>);
    QVERIFY(!std::is_polymorphic_v<Ui_CToolBarPage>);
    QVERIFY(std::is_trivially_destructible_v<Ui_CToolBarPage>);
}

void tst_Form_CToolBarPage::onlyAnUnnamedPageIsNamed()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(page.objectName(), "CToolBarPage");
    QWidget named;
    named.setObjectName("mine");
    const Form other(&named);
    QCOMPARE(named.objectName(), "mine");
}

void tst_Form_CToolBarPage::thePageIsResized()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(page.size(), QSize(707, 385));
}

void tst_Form_CToolBarPage::theMembersAreNamedAfterThemselves()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(form.gridLayout->objectName(), "gridLayout");
    QCOMPARE(form.label->objectName(), "label");
    QCOMPARE(form.horizontalLayout->objectName(), "horizontalLayout");
    QCOMPARE(form.label_2->objectName(), "label_2");
    QCOMPARE(form.newButton->objectName(), "newButton");
    QCOMPARE(form.removeButton->objectName(), "removeButton");
    QCOMPARE(form.renameButton->objectName(), "renameButton");
    QCOMPARE(form.actionTree->objectName(), "actionTree");
    QCOMPARE(form.toolBarList->objectName(), "toolBarList");
    QCOMPARE(form.label_6->objectName(), "label_6");
    QCOMPARE(form.verticalLayout->objectName(), "verticalLayout");
    QCOMPARE(form.upButton->objectName(), "upButton");
    QCOMPARE(form.leftButton->objectName(), "leftButton");
    QCOMPARE(form.rightButton->objectName(), "rightButton");
    QCOMPARE(form.downButton->objectName(), "downButton");
    QCOMPARE(form.currentToolBarList->objectName(), "currentToolBarList");
}

// The class names are exact: the tree is a plain one, without drag and drop.
void tst_Form_CToolBarPage::theWidgetsAreCreatedInOrder()
{
    QWidget page;
    const Form form(&page);
    const QStringList expected{
        "QGridLayout gridLayout",   "QLabel label",
        "QLabel label_2",           "QToolButton newButton",
        "QToolButton removeButton", "QToolButton renameButton",
        "QTreeWidget actionTree",   "QListWidget toolBarList",
        "QLabel label_6",           "QToolButton upButton",
        "QToolButton leftButton",   "QToolButton rightButton",
        "QToolButton downButton",   "QListWidget currentToolBarList",
    };
    QCOMPARE(childrenOf(&page), expected);
    const QStringList layouts{"QHBoxLayout horizontalLayout", "QVBoxLayout verticalLayout"};
    QCOMPARE(childrenOf(form.gridLayout), layouts);
}

void tst_Form_CToolBarPage::tabPassesTheWidgetsInOrder()
{
    QWidget page;
    const Form form(&page);
    const QStringList expected{
        "label",
        "label_2",
        "newButton",
        "removeButton",
        "renameButton",
        "actionTree",
        "toolBarList",
        "label_6",
        "upButton",
        "leftButton",
        "rightButton",
        "downButton",
        "currentToolBarList",
    };
    QCOMPARE(focusChainOf(&page), expected);
}

void tst_Form_CToolBarPage::thePageOwnsEverything()
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

void tst_Form_CToolBarPage::theGridHasTheseCells()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(page.layout(), form.gridLayout);
    const QStringList expected{
        "label 0,0 1x1",
        "horizontalLayout 0,1 1x2",
        "actionTree 1,0 3x1",
        "toolBarList 1,1 1x2",
        "label_6 2,1 1x2",
        "verticalLayout 3,1 1x1",
        "currentToolBarList 3,2 1x1",
    };
    QCOMPARE(cellsOf(form.gridLayout), expected);
}

void tst_Form_CToolBarPage::theCaptionRowHoldsTheseItems()
{
    QWidget page;
    const Form form(&page);
    const QStringList expected{"label_2", "newButton", "removeButton", "renameButton"};
    QCOMPARE(itemsOf(form.horizontalLayout), expected);
    QCOMPARE(form.horizontalLayout->direction(), QBoxLayout::LeftToRight);
}

void tst_Form_CToolBarPage::theButtonColumnHoldsTheseItems()
{
    QWidget page;
    const Form form(&page);
    const QStringList expected{"upButton", "leftButton", "rightButton", "downButton",
                               "spacer 20x28 Minimum Expanding"};
    QCOMPARE(itemsOf(form.verticalLayout), expected);
    QCOMPARE(form.verticalLayout->itemAt(4), form.verticalSpacer);
    QCOMPARE(form.verticalLayout->direction(), QBoxLayout::TopToBottom);
}

void tst_Form_CToolBarPage::theStylesMarginsAndSpacingsApply()
{
    LayoutStyle style;
    QWidget page;
    page.setStyle(&style);
    const Form form(&page);
    QCOMPARE(form.gridLayout->contentsMargins(), QMargins(3, 5, 7, 11));
    QCOMPARE(form.gridLayout->horizontalSpacing(), 13);
    QCOMPARE(form.gridLayout->verticalSpacing(), 13);
    for (const QBoxLayout *layout : {static_cast<QBoxLayout *>(form.horizontalLayout),
                                     static_cast<QBoxLayout *>(form.verticalLayout)}) {
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->spacing(), 13);
    }
}

void tst_Form_CToolBarPage::noRowOrColumnIsStretched()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(form.gridLayout->rowCount(), 4);
    QCOMPARE(form.gridLayout->columnCount(), 3);
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(form.gridLayout->rowStretch(row), 0);
        QCOMPARE(form.gridLayout->rowMinimumHeight(row), 0);
    }
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(form.gridLayout->columnStretch(column), 0);
        QCOMPARE(form.gridLayout->columnMinimumWidth(column), 0);
    }
}

void tst_Form_CToolBarPage::theActionButtonsHaveAFixedHeight()
{
    QWidget page;
    const Form form(&page);
    const bool heightForWidth = QToolButton().sizePolicy().hasHeightForWidth();
    for (const QToolButton *button : form.actionButtons()) {
        QCOMPARE(textOf(button->sizePolicy()), "Minimum Fixed");
        QCOMPARE(button->sizePolicy().hasHeightForWidth(), heightForWidth);
    }
}

void tst_Form_CToolBarPage::theActionButtonsStayAtTheTop()
{
    QWidget page;
    const Form form(&page);
    page.show();
    const QRect low = form.downButton->geometry();
    const int height = form.upButton->height();
    const int column = form.verticalLayout->geometry().height();
    page.resize(707, 1500);
    QVERIFY(form.verticalLayout->geometry().height() > column);
    QCOMPARE(form.upButton->y(), form.verticalLayout->geometry().top());
    QCOMPARE(form.upButton->height(), height);
    QCOMPARE(form.downButton->height(), low.height());
    QCOMPARE(form.downButton->y() - form.upButton->y(),
             3 * (height + form.verticalLayout->spacing()));
    QCOMPARE(form.verticalSpacer->geometry().bottom(), form.verticalLayout->geometry().bottom());
}

// Neither sizes nor styles, selections, drags, headers, sorting, status tips or help.
void tst_Form_CToolBarPage::nothingElseIsSet()
{
    QWidget page;
    const Form form(&page);
    QWidget fresh;
    const QStringList labelled{"objectName", "text"};
    const QStringList named{"objectName"};
    for (const QLabel *label : {form.label, form.label_2, form.label_6})
        QCOMPARE(differingProperties(label, new QLabel(&fresh)), labelled);
    for (const QToolButton *button : form.buttons()) {
        QStringList expected{"objectName", "toolTip", "text"};
        if (form.actionButtons().contains(const_cast<QToolButton *>(button)))
            expected.insert(1, "sizePolicy");
        QCOMPARE(differingProperties(button, new QToolButton(&fresh)), expected);
    }
    const QTreeWidget *const tree = new QTreeWidget(&fresh);
    QCOMPARE(differingProperties(form.actionTree, tree), named);
    QCOMPARE(differingProperties(form.actionTree->header(), tree->header()), QStringList());
    for (const QListWidget *list : {form.toolBarList, form.currentToolBarList})
        QCOMPARE(differingProperties(list, new QListWidget(&fresh)), named);
    const QStringList ofPage{"objectName", "windowTitle"};
    QCOMPARE(differingProperties(&page, &fresh), ofPage);
}

void tst_Form_CToolBarPage::nothingIsFilled()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(form.actionTree->topLevelItemCount(), 0);
    QCOMPARE(form.toolBarList->count(), 0);
    QCOMPARE(form.currentToolBarList->count(), 0);
    for (const QToolButton *button : form.buttons())
        QVERIFY(button->icon().isNull());
}

void tst_Form_CToolBarPage::theTextsAreThese()
{
    QWidget page;
    const Form form(&page);
    QCOMPARE(form.texts(&page), sourceTexts);
}

void tst_Form_CToolBarPage::theTextsAreLookedUpInOrder()
{
    RecordingTranslator translator;
    QWidget page;
    Form form(&page);
    QCOMPARE(form.texts(&page), prefixed("translated ", sourceTexts));
    const QStringList expected = prefixed("CToolBarPage: ", sourceTexts);
    QCOMPARE(translator.takeLookUps(), expected);
    form.retranslateUi(&page);
    QCOMPARE(translator.takeLookUps(), expected);
}

void tst_Form_CToolBarPage::retranslatingResetsTheTexts()
{
    QWidget page;
    Form form(&page);
    const QString other = "other";
    page.setWindowTitle(other);
    form.actionTree->headerItem()->setText(0, other);
    for (QLabel *label : {form.label, form.label_2, form.label_6})
        label->setText(other);
    for (QToolButton *button : form.buttons()) {
        button->setText(other);
        button->setToolTip(other);
    }
    form.retranslateUi(&page);
    QCOMPARE(form.texts(&page), sourceTexts);
}

void tst_Form_CToolBarPage::retranslatingTouchesNothingElse()
{
    QWidget page;
    Form form(&page);
    form.toolBarList->addItem("row");
    new QTreeWidgetItem(form.actionTree, QStringList{"item"});
    form.upButton->setIcon(QIcon(":/RyCustomizedDialog/images/up.png"));
    form.upButton->setStatusTip("tip");
    form.upButton->setWhatsThis("help");
    form.upButton->setFixedHeight(40);
    form.newButton->setEnabled(false);
    page.resize(800, 600);
    const qint64 icon = form.upButton->icon().cacheKey();
    const QStringList before = propertiesBelow(&page);
    form.retranslateUi(&page);
    QCOMPARE(propertiesBelow(&page), before);
    QCOMPARE(form.upButton->icon().cacheKey(), icon);
    QCOMPARE(form.toolBarList->count(), 1);
    QCOMPARE(form.actionTree->topLevelItemCount(), 1);
}

void tst_Form_CToolBarPage::slotsAreConnectedByNameInTheEnd()
{
    ListeningPage page;
    page.setObjectName("listening");
    const Form form(&page);
    QCOMPARE(page.titleChanges, 0);
    form.newButton->click();
    QCOMPARE(page.newClicks, 1);
    page.setWindowTitle("other");
    QCOMPARE(page.titleChanges, 1);
}

void tst_Form_CToolBarPage::theEditorHidesTheHeader()
{
    RyToolBarManager manager;
    RyCToolBarWidget editor(nullptr, &manager, Qt::WindowFlags());
    editor.show();
    const QTreeWidget *const tree = editor.findChild<QTreeWidget *>();
    QCOMPARE(tree->columnCount(), 1);
    QVERIFY(tree->header()->isHidden());
    QVERIFY(!tree->header()->isVisible());
}

void tst_Form_CToolBarPage::theEditorSetsTheIcons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("image");
    const auto row = [](const char *name, const char *button, const char *image) {
        QTest::newRow(name) << button << image;
    };
    row("up", "upButton", "up");
    row("down", "downButton", "down");
    row("left", "leftButton", "back");
    row("right", "rightButton", "forward");
    row("new", "newButton", "plus");
    row("remove", "removeButton", "minus");
}

void tst_Form_CToolBarPage::theEditorSetsTheIcons()
{
    QFETCH(QString, button);
    QFETCH(QString, image);
    const RyCToolBarWidget editor(nullptr, nullptr, Qt::WindowFlags());
    const QIcon icon = editor.findChild<QToolButton *>(button)->icon();
    QCOMPARE(pixelsOf(icon).size(), QSize(22, 22));
    QCOMPARE(pixelsOf(icon), pixelsOf(image));
    QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(22, 22)});
}

void tst_Form_CToolBarPage::eachEditorMakesItsOwnIcons()
{
    const RyCToolBarWidget first(nullptr, nullptr, Qt::WindowFlags());
    const RyCToolBarWidget second(nullptr, nullptr, Qt::WindowFlags());
    const QString name = "upButton";
    QVERIFY(first.findChild<QToolButton *>(name)->icon().cacheKey()
            != second.findChild<QToolButton *>(name)->icon().cacheKey());
}

void tst_Form_CToolBarPage::onlyRenameShowsItsText()
{
    RyCToolBarWidget editor(nullptr, nullptr, Qt::WindowFlags());
    editor.show();
    QStringList showing;
    for (QToolButton *button : editor.findChildren<QToolButton *>()) {
        if (button->parentWidget() == &editor && showsItsText(button))
            showing << button->objectName();
    }
    QCOMPARE(showing, QStringList{"renameButton"});
}

void tst_Form_CToolBarPage::theEditorChangesNothingElseOfTheForm()
{
    QWidget page;
    const Form form(&page);
    const RyCToolBarWidget editor(nullptr, nullptr, Qt::WindowFlags());
    for (const QToolButton *button : form.buttons()) {
        const auto completed = editor.findChild<QToolButton *>(button->objectName());
        // The property of the icon never compares equal.
        const QStringList differing = differingProperties(completed, button);
        QVERIFY2(differing.isEmpty() || differing == QStringList{"icon"},
                 qPrintable(differing.join(' ')));
    }
    const QStringList lists{"toolBarList", "currentToolBarList"};
    for (const QString &name : lists)
        QCOMPARE(differingProperties(editor.findChild<QListWidget *>(name),
                                     page.findChild<QListWidget *>(name)),
                 QStringList());
    QCOMPARE(differingProperties(editor.findChild<QTreeWidget *>(), form.actionTree),
             QStringList{"headerHidden"});
}

QTEST_MAIN(tst_Form_CToolBarPage)

#include "tst_form_ctoolbarpage.moc"
