// SPDX-License-Identifier: MIT

#include "installedlanguage.h"
#include "recordingtranslator.h"
#include "rytoolbarkit.h"
#include "testcase.h"
#include "texts.h"
#include "translateddialog.h"
#include "translationfile.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

namespace {

// What a translation may share with its source: signs, and words that the languages share.
const QStringList signs{"->", "1", "<-"};
const QMap<QString, QStringList> sharedWords{
    {"fr", {"Actions", "Options"}},
    {"pl", {"< S E P A R A T O R >", "Separator"}},
};

// Letters that a text of the language must not have: those of another alphabet look alike.
const QMap<QString, QString> foreignLetters{
    {"ar", "[A-Za-z\\p{Cyrillic}\\p{Hebrew}]"},
    {"he", "[A-Za-z\\p{Cyrillic}\\p{Arabic}]"},
    {"ja", "[A-Za-z\\p{Cyrillic}\\p{Hangul}]"},
    {"ko", "[A-Za-z\\p{Cyrillic}\\p{Han}\\p{Katakana}]"},
    {"ru", "[A-Za-zіїєґІЇЄҐ]"},
    {"uk", "[A-Za-zыэёъЫЭЁЪ]"},
    {"zh_CN", "[A-Za-z\\p{Cyrillic}\\p{Hangul}\\p{Katakana}]"},
};

QStringList namesWith(const char *ending)
{
    QStringList names;
    const auto languages = InstalledLanguage::all();
    for (const QString &language : languages)
        names << QString("rycustomizeddialog_%1.%2").arg(language, QString(ending));
    names.sort();
    return names;
}

bool endsLikeEllipsis(const QString &text)
{
    return text.endsWith("...") || text.endsWith(QChar(0x2026));
}

// No stray blanks, and as many accelerators and placeholders as the source, and an ellipsis if it
// has one.
bool hasFormOfSource(const TranslationFile::Message &message)
{
    const QString text = message.translation;
    const auto sameCount = [&message](char sign) {
        return message.translation.count(sign) == message.source.count(sign);
    };
    return text == text.trimmed() && !text.contains("  ") && sameCount('&') && sameCount('%')
        && endsLikeEllipsis(text) == endsLikeEllipsis(message.source);
}

// How a failure shows a translation.
QString described(const TranslationFile::Message &message)
{
    return QString("%1: %2 = %3").arg(message.context, message.source, message.translation);
}

// Its menu makes that of its toolbars a submenu.
class WindowWithMenu : public QMainWindow
{
public:
    QMenu *createPopupMenu() override
    {
        QMenu *const menu = new QMenu(this);
        menu->addAction("?2");
        return menu;
    }
};

QMenu *openMenu(QToolBar *toolBar)
{
    QWidget *const button = toolBar->widgetForAction(toolBar->actions().constLast());
    const QPoint center = button->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, center, button->mapToGlobal(center));
    QCoreApplication::sendEvent(button, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

// Large icons and a lock. The menu of the kit may be a submenu.
void chooseLook(QToolBar *toolBar)
{
    QMenu *menu = openMenu(toolBar);
    QVERIFY(menu);
    if (menu->actions().constLast()->menu())
        menu = menu->actions().constLast()->menu();
    const auto isSubmenu = [](const QAction *entry) { return entry->menu() != nullptr; };
    const auto entries = menu->actions();
    const auto iconSize = std::find_if(entries.begin(), entries.end(), isSubmenu);
    const auto lock = std::find_if_not(iconSize, entries.end(), isSubmenu);
    QVERIFY(lock != entries.end());
    (*iconSize)->menu()->actions().constLast()->trigger();
    (*lock)->trigger();
    QApplication::activePopupWidget()->close();
}

void pressRestoreDefaults(const RyCustomizedDialog *dialog)
{
    dialog->RestoreDefaultButton()->click();
    delete dialog->findChild<QMessageBox *>();
}

void answer(const QDialog *dialog, QMessageBox::StandardButton button)
{
    QMessageBox *const box = dialog->findChild<QMessageBox *>();
    QVERIFY(box);
    box->button(button)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void takeFile(const QDialog *dialog, const QString &button, const QString &file)
{
    dialog->findChild<QPushButton *>(button)->click();
    QFileDialog *const files = dialog->findChild<QFileDialog *>();
    QVERIFY(files);
    Q_EMIT files->fileSelected(file);
    files->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// A layout with a toolbar that other windows do not have.
void exportOther(const QString &file)
{
    QMainWindow window;
    QToolBar *const toolBar = window.addToolBar("Other");
    toolBar->setObjectName("other");
    RyToolBarKit kit(&window, false);
    kit.setSettings(nullptr, QString());
    kit.restoreNow();
    kit.manager()->setToolBar(toolBar, {nullptr});
    QVERIFY(kit.exportLayout(file));
}

// Comes to all questions and messages of the profiles.
void useProfiles(QDialog *dialog, const QString &folder)
{
    for (int i = 0; i < 2; ++i) {
        dialog->findChild<QPushButton *>("saveProfileButton")->click();
        QInputDialog *const input = dialog->findChild<QInputDialog *>();
        input->setTextValue("1");
        input->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    answer(dialog, QMessageBox::No);
    dialog->findChild<QPushButton *>("removeProfileButton")->click();
    answer(dialog, QMessageBox::No);
    exportOther(folder + "/other");
    takeFile(dialog, "importLayoutButton", folder + "/other");
    answer(dialog, QMessageBox::No);
    takeFile(dialog, "importLayoutButton", folder + "/none");
    answer(dialog, QMessageBox::Ok);
    takeFile(dialog, "exportLayoutButton", folder);
    answer(dialog, QMessageBox::Ok);
    EditorViews(dialog).newButton->click();
    Q_EMIT dialog->findChild<QComboBox *>("profileBox")->activated(0);
    answer(dialog, QMessageBox::No);
}

void announceChanges(RyCustomizedDialog *dialog)
{
    const EditorViews views(dialog);
    views.toolBarList->setCurrentRow(0);
    for (QToolButton *button : {views.rightButton, views.upButton, views.leftButton}) {
        QCoreApplication::processEvents();
        button->click();
    }
    QCoreApplication::processEvents();
    views.newButton->click(); // opens the line for the name
    QCoreApplication::processEvents();
}

// As shipped, in another order, then with another action, and last with a new toolbar.
void askAboutDefaults(RyCustomizedDialog *dialog)
{
    const EditorViews views(dialog);
    views.toolBarList->setCurrentRow(0);
    pressRestoreDefaults(dialog);
    views.click(views.downButton);
    pressRestoreDefaults(dialog);
    views.click(views.leftButton);
    views.actionTree->setCurrentItem(itemNamed(views.actionTree, "?3"));
    views.click(views.rightButton);
    views.click(views.newButton);
    pressRestoreDefaults(dialog);
}

// A user of the kit comes to all of its texts.
void customizeWithKit()
{
    QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    WindowWithMenu window;
    QToolBar *const withoutTitle = window.addToolBar(QString());
    withoutTitle->addWidget(new QWidget);
    window.menuBar()->addMenu("?2")->addAction("?3");
    RyToolBarKit kit(&window, false);
    kit.setSettings(&settings, "toolBars");
    kit.setProfilesShown(true);
    kit.setRequired(withoutTitle->addAction("?1"));
    window.show();
    for (const auto &use : {announceChanges, askAboutDefaults}) {
        kit.customizeAction()->trigger();
        const QScopedPointer<RyCustomizedDialog> dialog(window.findChild<RyCustomizedDialog *>());
        use(dialog.data());
        QTest::keyClick(dialog.data(), Qt::Key_Escape);
    }
    chooseLook(withoutTitle);
    kit.customizeAction()->trigger();
    const QScopedPointer<RyCustomizedDialog> dialog(window.findChild<RyCustomizedDialog *>());
    pressRestoreDefaults(dialog.data());
    useProfiles(dialog.data(), folder.path());
    dialog->helpButton()->click();
}

} // namespace

class tst_Translations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsBuilt();
    void theEnglishFileListsWhatTheLibrariesLookUp();
    void theEnglishFileTranslatesNothing();

    void everyMessageIsFinished_data() { addLanguages(); }
    void everyMessageIsFinished();
    void onlyTheListedTextsEqualTheirSource_data() { addLanguages(); }
    void onlyTheListedTextsEqualTheirSource();
    void blanksAcceleratorsAndEllipsesAreThoseOfTheSource_data() { addLanguages(); }
    void blanksAcceleratorsAndEllipsesAreThoseOfTheSource();
    void signsAndNamesAreKept_data() { addLanguages(); }
    void signsAndNamesAreKept();
    void lettersAreThoseOfTheLanguage_data() { addLanguages(); }
    void lettersAreThoseOfTheLanguage();
    void oneSourceHasOneTranslation_data() { addLanguages(); }
    void oneSourceHasOneTranslation();
    void differentTextsOfAPageStayDifferent_data() { addLanguages(); }
    void differentTextsOfAPageStayDifferent();

    void qtLoadsEachByItsLocale_data();
    void qtLoadsEachByItsLocale();
    void qtFindsWhatTheFileSays_data() { addLanguages(); }
    void qtFindsWhatTheFileSays();

private:
    static void addLanguages();
};

// All but English.
void tst_Translations::addLanguages()
{
    QTest::addColumn<QString>("language");
    auto languages = InstalledLanguage::all();
    languages.removeAll("en");
    for (const QString &language : std::as_const(languages))
        QTest::newRow(qPrintable(language)) << language;
}

void tst_Translations::everyFileIsBuilt()
{
    const QDir sources(RY_TRANSLATION_SOURCES_DIR);
    QCOMPARE(sources.entryList({"*.ts"}), namesWith("ts"));
    const auto compiled = namesWith("qm");
    for (const QString &name : compiled)
        QVERIFY2(QDir(RY_TRANSLATIONS_DIR).exists(name), qPrintable(name));
}

void tst_Translations::theEnglishFileListsWhatTheLibrariesLookUp()
{
    RecordingTranslator translator;
    TranslatedDialog session;
    session.createToolBar();
    session.help();
    customizeWithKit();
    QStringList lookedUp = translator.takeLookUps();
    lookedUp.removeDuplicates();
    lookedUp.sort();
    QStringList listed = TranslationFile("en").keys();
    listed.sort();
    QCOMPARE(listed, lookedUp);
}

void tst_Translations::theEnglishFileTranslatesNothing()
{
    const TranslationFile file("en");
    for (const auto &message : file.messages)
        QCOMPARE(message.translation, QString());
    const InstalledLanguage language("en");
    QVERIFY(language.isLoaded());
    QVERIFY(language.library().isEmpty());
}

void tst_Translations::everyMessageIsFinished()
{
    QFETCH(QString, language);
    const TranslationFile file(language);
    QCOMPARE(file.language, language);
    QCOMPARE(file.keys(), TranslationFile("en").keys());
    for (const auto &message : file.messages) {
        const bool finished = message.type.isEmpty() && !message.translation.isEmpty();
        QVERIFY2(finished, qPrintable(described(message)));
    }
}

void tst_Translations::onlyTheListedTextsEqualTheirSource()
{
    QFETCH(QString, language);
    const auto translations = TranslationFile(language).bySource();
    QStringList equal;
    for (auto it = translations.cbegin(); it != translations.cend(); ++it) {
        if (it.key() == it.value())
            equal << it.key();
    }
    QStringList expected = signs + sharedWords.value(language);
    expected.sort();
    QCOMPARE(equal, expected);
}

void tst_Translations::blanksAcceleratorsAndEllipsesAreThoseOfTheSource()
{
    QFETCH(QString, language);
    const TranslationFile file(language);
    for (const auto &message : file.messages)
        QVERIFY2(hasFormOfSource(message), qPrintable(described(message)));
}

// The separator's entry comes first among the categories because of its "<".
void tst_Translations::signsAndNamesAreKept()
{
    QFETCH(QString, language);
    const auto translations = TranslationFile(language).bySource();
    const QString separator = translations.value("< S E P A R A T O R >");
    const bool bracketed = separator.startsWith("< ") && separator.endsWith(" >");
    QVERIFY2(bracketed && separator == separator.toUpper(), qPrintable(separator));
    const QString help = translations.value("KORVA help  doc!");
    QVERIFY2(help.contains("KORVA"), qPrintable(help));
}

void tst_Translations::lettersAreThoseOfTheLanguage()
{
    QFETCH(QString, language);
    QString foreign = "[\\p{Cyrillic}\\p{Greek}\\p{Arabic}\\p{Hebrew}\\p{Han}]";
    if (foreignLetters.contains(language))
        foreign = foreignLetters.value(language);
    const QRegularExpression letters(foreign);
    QVERIFY(letters.isValid());
    const TranslationFile file(language);
    for (const auto &message : file.messages) {
        QString text = message.translation;
        text.remove("KORVA");
        // Some scripts share their full stop.
        text.remove(QRegularExpression("\\p{P}"));
        QVERIFY2(!text.contains(letters), qPrintable(described(message)));
    }
}

void tst_Translations::oneSourceHasOneTranslation()
{
    QFETCH(QString, language);
    const TranslationFile file(language);
    const auto translations = file.bySource();
    for (const auto &message : file.messages)
        QCOMPARE(message.translation, translations.value(message.source));
}

void tst_Translations::differentTextsOfAPageStayDifferent()
{
    QFETCH(QString, language);
    QMap<QString, QString> sources;
    const TranslationFile file(language);
    for (const auto &message : file.messages) {
        const QString key = message.context + ": " + message.translation;
        QVERIFY2(!sources.contains(key), qPrintable(described(message)));
        sources.insert(key, message.source);
    }
}

void tst_Translations::qtLoadsEachByItsLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("language");
    const auto languages = InstalledLanguage::all();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language << language;
    const QMap<QString, QString> others{
        {"ar_EG", "ar"},
        {"de_AT", "de"},
        {"en_US", "en"},
        {"es_MX", "es"},
        {"fr_CA", "fr"},
        {"he_IL", "he"},
        {"ja_JP", "ja"},
        // Brazil's Portuguese and China's characters are not everybody's.
        {"pt_PT", QString()},
        {"zh_TW", QString()},
        {"nl_NL", QString()},
    };
    for (auto it = others.cbegin(); it != others.cend(); ++it)
        QTest::newRow(qPrintable(it.key())) << it.key() << it.value();
}

void tst_Translations::qtLoadsEachByItsLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, language);
    const InstalledLanguage installed(locale);
    QCOMPARE(installed.isLoaded(), !language.isEmpty());
    const QString file = QString("rycustomizeddialog_%1.qm").arg(language);
    QCOMPARE(QFileInfo(installed.library().filePath()).fileName(),
             language.isEmpty() ? QString() : file);
}

void tst_Translations::qtFindsWhatTheFileSays()
{
    QFETCH(QString, language);
    const InstalledLanguage installed(language);
    const TranslationFile file(language);
    for (const auto &message : file.messages) {
        QCOMPARE(QCoreApplication::translate(message.context.toUtf8().constData(),
                                             message.source.toUtf8().constData()),
                 message.translation);
    }
}

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"
