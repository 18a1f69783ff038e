// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "installedlanguage.h"
#include "qtdifferences.h"
#include "testcase.h"
#include "texts.h"
#include "translateddialog.h"

#include <RyCustomizedDialog>
#include <RyToolBarKit>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTextBrowser>
#include <QtTest>

namespace {

// A program whose dialog is open.
struct KitSession
{
    KitSession()
    {
        QMenu *const menu = window.menuBar()->addMenu("?1");
        menu->addAction("?2")->setObjectName("second");
        QToolBar *const toolBar = window.addToolBar("?1");
        toolBar->setObjectName("first");
        toolBar->addActions(menu->actions());
        kit.setSettings(nullptr, QString());
        window.show();
        kit.customizeAction()->trigger();
        dialog = window.findChild<RyCustomizedDialog *>();
        QCoreApplication::processEvents();
    }

    QMainWindow window;
    RyToolBarKit kit{&window, false};
    RyCustomizedDialog *dialog;
};

QStringList mnemonicsOf(const QWidget *dialog)
{
    QStringList mnemonics;
    const auto buttons = dialog->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        mnemonics << QKeySequence::mnemonic(button->text()).toString();
    const auto labels = dialog->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy())
            mnemonics << QKeySequence::mnemonic(label->text()).toString();
    }
    mnemonics.removeAll(QString());
    return mnemonics;
}

} // namespace

/*
 * The dialog of the kit in each language, with Qt's own translations.
 */
class tst_Translations_Kit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsCutOff_data() { addLanguages(); }
    void nothingIsCutOff();
    void eachListHasALetterOfItsOwn_data() { addLanguages(); }
    void eachListHasALetterOfItsOwn();
    void theGuideIsThatOfTheLanguage_data() { addLanguages(); }
    void theGuideIsThatOfTheLanguage();
    void theGuideNamesTheButtonsAsTheyAre_data();
    void theGuideNamesTheButtonsAsTheyAre();

protected:
    void finish() override { QtDifferences::forgetLayoutDirection(); }

private:
    static void addLanguages();
};

void tst_Translations_Kit::addLanguages()
{
    QTest::addColumn<QString>("language");
    const auto languages = InstalledLanguage::all();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void tst_Translations_Kit::nothingIsCutOff()
{
    QFETCH(QString, language);
    const InstalledLanguage installed(language, InstalledLanguage::LibraryAndQt);
    QVERIFY(installed.isLoaded());
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
    const KitSession session;
    QCOMPARE(TranslatedDialog::cutOff(session.dialog), QStringList());
}

void tst_Translations_Kit::eachListHasALetterOfItsOwn()
{
    QFETCH(QString, language);
    const InstalledLanguage installed(language, InstalledLanguage::LibraryAndQt);
    const KitSession session;
    const QStringList mnemonics = mnemonicsOf(session.dialog);
    QVERIFY(mnemonics.size() >= 3);
    QStringList unique = mnemonics;
    unique.removeDuplicates();
    QCOMPARE(mnemonics, unique);
}

void tst_Translations_Kit::theGuideIsThatOfTheLanguage()
{
    QFETCH(QString, language);
    const InstalledLanguage installed(language, InstalledLanguage::LibraryAndQt);
    const KitSession session;
    session.dialog->helpButton()->click();
    const auto *const guide = session.dialog->findChild<QTextBrowser *>();
    QVERIFY(guide);
    QCOMPARE(guide->source().fileName(),
             QString(language == "de" ? "Deutsch" : "English") + ".html");
}

void tst_Translations_Kit::theGuideNamesTheButtonsAsTheyAre_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("en") << "en";
    QTest::newRow("de") << "de";
}

void tst_Translations_Kit::theGuideNamesTheButtonsAsTheyAre()
{
    QFETCH(QString, language);
    const InstalledLanguage installed(language, InstalledLanguage::LibraryAndQt);
    KitSession session;
    session.dialog->helpButton()->click();
    const QString text = session.dialog->findChild<QTextBrowser *>()->toPlainText();
    const EditorViews views(session.dialog);
    QStringList names{session.kit.customizeAction()->text(), views.renameButton->text(),
                      session.dialog->okButton()->text(), session.dialog->applyButton()->text(),
                      session.dialog->RestoreDefaultButton()->text()};
    for (const char *caption : {"label", "label_2", "label_6"})
        names << views.page->findChild<QLabel *>(caption)->text();
    for (const QString &name : std::as_const(names))
        QVERIFY2(text.contains(QString(name).remove('&')), qPrintable(name));
    // The name that a new toolbar has at first.
    views.newButton->click();
    QVERIFY(text.contains(currentOf(views.toolBarList)));
}

QTEST_MAIN(tst_Translations_Kit)
#include "tst_translations_kit.moc"
