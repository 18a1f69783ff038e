// SPDX-License-Identifier: MIT

#include "installedlanguage.h"
#include "qtdifferences.h"
#include "testcase.h"
#include "texts.h"
#include "translateddialog.h"
#include "translationfile.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QtTest>

namespace {

// Everything that the library shows, in the installed language.
QStringList shownTexts()
{
    TranslatedDialog session;
    session.createToolBar();
    return session.texts() + session.help();
}

QStringList buttonTexts(const QDialog &dialog)
{
    QStringList texts;
    const auto buttons = dialog.findChild<QDialogButtonBox *>()->buttons();
    for (const QAbstractButton *button : buttons)
        texts << button->text().remove('&');
    return texts;
}

bool isRightToLeft(const QString &language)
{
    return QLocale(language).textDirection() == Qt::RightToLeft;
}

} // namespace

Q_DECLARE_METATYPE(InstalledLanguage::Whose)

class tst_Translations_Dialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theDialogShowsEachTranslation_data() { addLanguages(); }
    void theDialogShowsEachTranslation();
    void theSeparatorComesFirst_data() { addLanguages(); }
    void theSeparatorComesFirst();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void qtTranslatesTheButtons_data() { addLanguages(); }
    void qtTranslatesTheButtons();
    void qtTurnsTheDialogForRightToLeft_data() { addLanguages(); }
    void qtTurnsTheDialogForRightToLeft();

protected:
    void finish() override { QtDifferences::forgetLayoutDirection(); }

private:
    static void addLanguages();
};

void tst_Translations_Dialog::addLanguages()
{
    QTest::addColumn<QString>("language");
    const auto languages = InstalledLanguage::all();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void tst_Translations_Dialog::theDialogShowsEachTranslation()
{
    QFETCH(QString, language);
    const auto translations = TranslationFile(language).bySource();
    QStringList expected;
    const auto english = shownTexts();
    for (const QString &text : english) {
        QVERIFY2(translations.contains(text), qPrintable(text));
        expected << (language == "en" ? text : translations.value(text));
    }
    const InstalledLanguage installed(language);
    QStringList shown = shownTexts();
    // Rows are in the order of their texts.
    expected.sort();
    shown.sort();
    QCOMPARE(shown, expected);
}

void tst_Translations_Dialog::theSeparatorComesFirst()
{
    QFETCH(QString, language);
    const InstalledLanguage installed(language);
    const TranslatedDialog session;
    QCOMPARE(itemsOf(session.editor.actionTree).constFirst(),
             rowsOf(session.editor.currentToolBarList).constLast());
}

void tst_Translations_Dialog::nothingIsCutOff_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<InstalledLanguage::Whose>("whose");
    const auto languages = InstalledLanguage::all();
    for (const QString &language : languages) {
        QTest::newRow(qPrintable(language)) << language << InstalledLanguage::Library;
        QTest::newRow(qPrintable(language + " with Qt's"))
            << language << InstalledLanguage::LibraryAndQt;
    }
}

void tst_Translations_Dialog::nothingIsCutOff()
{
    QFETCH(QString, language);
    QFETCH(InstalledLanguage::Whose, whose);
    const InstalledLanguage installed(language, whose);
    QVERIFY(installed.isLoaded());
    if (isRightToLeft(language))
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    TranslatedDialog session;
    session.createToolBar();
    // It would grow rather than let a label or a button shrink.
    QCOMPARE(session.dialog.size(), QSize(740, 460));
    QCOMPARE(session.cutOff(), QStringList());
    session.tabs->setCurrentIndex(1);
    QCOMPARE(session.dialog.size(), QSize(740, 460));
    QCOMPARE(session.cutOff(), QStringList());
}

void tst_Translations_Dialog::qtTranslatesTheButtons()
{
    QFETCH(QString, language);
    const QStringList english = buttonTexts(TranslatedDialog().dialog);
    QCOMPARE(english.size(), 5);
    const InstalledLanguage installed(language, InstalledLanguage::LibraryAndQt);
    QVERIFY(installed.isLoaded());
    const QStringList translated = buttonTexts(TranslatedDialog().dialog);
    for (int i = 0; i < english.size(); ++i) {
        if (english.at(i) != "OK") {
            QCOMPARE(translated.at(i) == english.at(i), language == "en");
        }
    }
}

// A host need not set the direction where Qt's own translations are loaded.
void tst_Translations_Dialog::qtTurnsTheDialogForRightToLeft()
{
    QFETCH(QString, language);
    const InstalledLanguage installed(language, InstalledLanguage::LibraryAndQt);
    QCoreApplication::sendPostedEvents();
    const TranslatedDialog session;
    const auto leftOf = [](const QWidget *widget) { return widget->mapToGlobal(QPoint()).x(); };
    QCOMPARE(leftOf(session.editor.actionTree) > leftOf(session.editor.currentToolBarList),
             isRightToLeft(language));
}

QTEST_MAIN(tst_Translations_Dialog)
#include "tst_translations_dialog.moc"
