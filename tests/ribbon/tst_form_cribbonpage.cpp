// SPDX-License-Identifier: MIT

#include "layouts.h"
#include "recordingtranslator.h"
#include "testcase.h"
#include "ui_cribbonpage.h"
#include "ui_ctoolbarpage.h"

#include <QtTest>

namespace {

struct Form : Ui_CRibbonPage
{
    explicit Form(QWidget *page) { setupUi(page); }

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

// The names of the toolbar editor's form as this form has them.
QStringList renamed(QStringList names)
{
    names.replaceInStrings("CToolBarPage", "CRibbonPage");
    names.replaceInStrings("label_2", "label_3");
    const QRegularExpression button("\\b((?:new|remove|rename|up|left|right|down)Button)\\b");
    return names.replaceInStrings(button, "\\1_4");
}

} // namespace

/*
 * The form is an image of the toolbar editor's, whose tests say what both are like. uic makes the
 * rest.
 */
class tst_Form_CRibbonPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltAsTheToolBarEditorsForm();
    void everyPropertyIsTheToolBarEditorsForms();
    void theTextsAreTranslatedInOrder();
};

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
    // The stretch factors are not in the text of a size policy.
    const auto widgets = page.findChildren<QWidget *>();
    const auto otherWidgets = otherPage.findChildren<QWidget *>();
    QCOMPARE(widgets.size(), otherWidgets.size());
    for (int i = 0; i < widgets.size(); ++i)
        QCOMPARE(widgets.at(i)->sizePolicy(), otherWidgets.at(i)->sizePolicy());
}

void tst_Form_CRibbonPage::theTextsAreTranslatedInOrder()
{
    RecordingTranslator translator;
    QWidget page;
    Form form(&page);
    const QStringList lookUps = prefixed("CRibbonPage: ", sourceTexts);
    QCOMPARE(translator.takeLookUps(), lookUps);
    QCOMPARE(form.texts(&page), prefixed("translated ", sourceTexts));
    form.retranslateUi(&page);
    QCOMPARE(translator.takeLookUps(), lookUps);
}

QTEST_MAIN(tst_Form_CRibbonPage)

#include "tst_form_cribbonpage.moc"
