// SPDX-License-Identifier: MIT

#include "layouts.h"
#include "recordingtranslator.h"
#include "testcase.h"
#include "ui_customizeddialog.h"

#include <QPushButton>
#include <QtTest>

#include <cstddef>

namespace {

// A dialog with slots of the names that connectSlotsByName() looks for.
class ListeningDialog : public QDialog
{
    Q_OBJECT

public:
    int currentChanges = 0;
    int titleChanges = 0;
    int acceptances = 0;

public Q_SLOTS:
    void on_m_optionTabWidget_currentChanged(int) { ++currentChanges; }
    void on_listening_windowTitleChanged(const QString &) { ++titleChanges; }
    void on_m_dialogButtonBox_accepted() { ++acceptances; }
};

struct Form : Ui_CustomizedDialog
{
    explicit Form(QDialog *dialog) { setupUi(dialog); }
};

} // namespace

class tst_Form_CustomizedDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFieldsAreInOrder();
    void isAPlainClass();
    void onlyAnUnnamedDialogIsNamed();
    void theDialogsSizeAndPolicyAreSet();
    void theDialogsHeightForWidthIsTakenOver_data();
    void theDialogsHeightForWidthIsTakenOver();
    void theWidgetsAreCreatedInOrder();
    void theMembersAreNamedAfterThemselves();
    void theLayoutHoldsTheTabsAboveTheButtons();
    void thePlaceholderIsTheOnlyTab();
    void theButtonBoxIsHorizontalWithFiveButtons();
    void theTitleIsTranslated();
    void retranslatingResetsTheTitleOnly();
    void slotsAreConnectedByNameInTheEnd();
    void nothingElseIsSet();
    void theDialogOwnsEverything();
};

void tst_Form_CustomizedDialog::theFieldsAreInOrder()
{
    QCOMPARE(offsetof(Ui_CustomizedDialog, verticalLayout), 0 * sizeof(void *));
    QCOMPARE(offsetof(Ui_CustomizedDialog, m_optionTabWidget), 1 * sizeof(void *));
    QCOMPARE(offsetof(Ui_CustomizedDialog, tab_2), 2 * sizeof(void *));
    QCOMPARE(offsetof(Ui_CustomizedDialog, m_dialogButtonBox), 3 * sizeof(void *));
    QCOMPARE(sizeof(Ui_CustomizedDialog), 4 * sizeof(void *));
}

void tst_Form_CustomizedDialog::isAPlainClass()
{
    QVERIFY(std::is_standard_layout_v<Ui_CustomizedDialog>);
    QVERIFY(!std::is_polymorphic_v<Ui_CustomizedDialog>);
    QVERIFY(std::is_trivially_destructible_v<Ui_CustomizedDialog>);
}

void tst_Form_CustomizedDialog::onlyAnUnnamedDialogIsNamed()
{
    QDialog dialog;
    const Form form(&dialog);
    QCOMPARE(dialog.objectName(), "CustomizedDialog");
    QDialog named;
    named.setObjectName("mine");
    const Form other(&named);
    QCOMPARE(named.objectName(), "mine");
}

void tst_Form_CustomizedDialog::theDialogsSizeAndPolicyAreSet()
{
    QDialog dialog;
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::Frame);
    policy.setHorizontalStretch(2);
    policy.setVerticalStretch(3);
    dialog.setSizePolicy(policy);
    const Form form(&dialog);
    QCOMPARE(textOf(dialog.sizePolicy()), "Expanding Minimum");
    QCOMPARE(dialog.size(), QSize(740, 460));
}

void tst_Form_CustomizedDialog::theDialogsHeightForWidthIsTakenOver_data()
{
    QTest::addColumn<bool>("heightForWidth");
    QTest::newRow("with") << true;
    QTest::newRow("without") << false;
}

void tst_Form_CustomizedDialog::theDialogsHeightForWidthIsTakenOver()
{
    QFETCH(bool, heightForWidth);
    QDialog dialog;
    QSizePolicy policy;
    policy.setHeightForWidth(heightForWidth);
    dialog.setSizePolicy(policy);
    const Form form(&dialog);
    QCOMPARE(dialog.sizePolicy().hasHeightForWidth(), heightForWidth);
}

void tst_Form_CustomizedDialog::theWidgetsAreCreatedInOrder()
{
    QDialog dialog;
    const Form form(&dialog);
    const QStringList expected{"QVBoxLayout verticalLayout", "QTabWidget m_optionTabWidget",
                               "QDialogButtonBox m_dialogButtonBox"};
    QCOMPARE(childrenOf(&dialog), expected);
}

void tst_Form_CustomizedDialog::theMembersAreNamedAfterThemselves()
{
    QDialog dialog;
    const Form form(&dialog);
    QCOMPARE(form.verticalLayout->objectName(), "verticalLayout");
    QCOMPARE(form.m_optionTabWidget->objectName(), "m_optionTabWidget");
    QCOMPARE(form.tab_2->objectName(), "tab_2");
    QCOMPARE(form.m_dialogButtonBox->objectName(), "m_dialogButtonBox");
}

void tst_Form_CustomizedDialog::theLayoutHoldsTheTabsAboveTheButtons()
{
    QDialog dialog;
    const Form form(&dialog);
    QCOMPARE(dialog.layout(), form.verticalLayout);
    const QStringList expected{"m_optionTabWidget", "m_dialogButtonBox"};
    QCOMPARE(itemsOf(form.verticalLayout), expected);
    QCOMPARE(form.verticalLayout->direction(), QBoxLayout::TopToBottom);
}

void tst_Form_CustomizedDialog::thePlaceholderIsTheOnlyTab()
{
    QDialog dialog;
    const Form form(&dialog);
    QCOMPARE(form.m_optionTabWidget->count(), 1);
    QCOMPARE(form.m_optionTabWidget->widget(0), form.tab_2);
    QCOMPARE(form.m_optionTabWidget->tabText(0), "Tab 1");
    QCOMPARE(form.m_optionTabWidget->currentIndex(), 0);
    QCOMPARE(form.tab_2->metaObject(), &QWidget::staticMetaObject);
    QVERIFY(form.m_optionTabWidget->isAncestorOf(form.tab_2));
    QVERIFY(form.tab_2->children().isEmpty());
}

void tst_Form_CustomizedDialog::theButtonBoxIsHorizontalWithFiveButtons()
{
    QDialog dialog;
    const Form form(&dialog);
    QCOMPARE(form.m_dialogButtonBox->orientation(), Qt::Horizontal);
    QCOMPARE(form.m_dialogButtonBox->standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help
                 | QDialogButtonBox::Apply | QDialogButtonBox::RestoreDefaults);
    QCOMPARE(form.m_dialogButtonBox->buttons().size(), 5);
}

void tst_Form_CustomizedDialog::theTitleIsTranslated()
{
    QDialog dialog;
    const Form form(&dialog);
    QCOMPARE(dialog.windowTitle(), "Options");
    RecordingTranslator translator;
    QDialog translated;
    const Form translatedForm(&translated);
    QCOMPARE(translated.windowTitle(), "translated Options");
    QCOMPARE(translatedForm.m_optionTabWidget->tabText(0), "Tab 1");
    QCOMPARE(translator.takeLookUps(), QStringList{"CustomizedDialog: Options"});
}

void tst_Form_CustomizedDialog::retranslatingResetsTheTitleOnly()
{
    QDialog dialog;
    Form form(&dialog);
    form.m_optionTabWidget->setTabText(0, "other");
    form.m_optionTabWidget->addTab(new QWidget, "second");
    form.m_optionTabWidget->setCurrentIndex(1);
    dialog.resize(800, 600);
    const QStringList before = propertiesBelow(&dialog);
    dialog.setWindowTitle("other");
    form.retranslateUi(&dialog);
    QCOMPARE(dialog.windowTitle(), "Options");
    QCOMPARE(propertiesBelow(&dialog), before);
    QCOMPARE(form.m_optionTabWidget->tabText(0), "other");
}

void tst_Form_CustomizedDialog::slotsAreConnectedByNameInTheEnd()
{
    ListeningDialog dialog;
    dialog.setObjectName("listening");
    const Form form(&dialog);
    QCOMPARE(dialog.titleChanges, 0);
    QCOMPARE(dialog.currentChanges, 0);
    dialog.setWindowTitle("other");
    QCOMPARE(dialog.titleChanges, 1);
    form.m_optionTabWidget->clear();
    QCOMPARE(dialog.currentChanges, 1);
    form.m_dialogButtonBox->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog.acceptances, 1);
}

void tst_Form_CustomizedDialog::nothingElseIsSet()
{
    QDialog dialog;
    const Form form(&dialog);
    QDialog fresh;
    // QDialog has the property "modal" of its base once more.
    const QStringList ofDialog{"objectName", "modal",       "windowModality",
                               "sizePolicy", "windowTitle", "modal"};
    QCOMPARE(differingProperties(&dialog, &fresh), ofDialog);
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    const QStringList ofTabs{"objectName", "currentIndex", "count"};
    QCOMPARE(differingProperties(form.m_optionTabWidget, new QTabWidget(&fresh)), ofTabs);
    const QStringList ofBox{"objectName", "standardButtons"};
    QCOMPARE(differingProperties(form.m_dialogButtonBox, new QDialogButtonBox(&fresh)), ofBox);
    const QVBoxLayout layout(&fresh);
    QCOMPARE(form.verticalLayout->contentsMargins(), layout.contentsMargins());
    QCOMPARE(form.verticalLayout->spacing(), layout.spacing());
}

void tst_Form_CustomizedDialog::theDialogOwnsEverything()
{
    QPointer<QWidget> placeholder;
    QPointer<QLayout> layout;
    {
        QDialog dialog;
        {
            const Form form(&dialog);
            placeholder = form.tab_2;
            layout = form.verticalLayout;
        }
        QVERIFY(placeholder);
        QVERIFY(layout);
    }
    QVERIFY(!placeholder);
    QVERIFY(!layout);
}

QTEST_MAIN(tst_Form_CustomizedDialog)

#include "tst_form_customizeddialog.moc"
