// SPDX-License-Identifier: MIT

#include "testcase.h"

#include <RyCustomizedDialog>
#include <RyToolBarManager>

#include <QLibraryInfo>
#include <QTranslator>
#include <QtTest>

namespace {

//! [load]
// Both translators must live until the program ends: make them variables of main().
void loadTexts(QTranslator *qtTexts, QTranslator *dialogTexts)
{
    const QLocale locale; // the user's language
    const QString separator = QStringLiteral("_");
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QString folderOfQt = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    const QString folderOfQt = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
    if (qtTexts->load(locale, QStringLiteral("qtbase"), separator, folderOfQt))
        QCoreApplication::installTranslator(qtTexts);
    if (dialogTexts->load(locale, QStringLiteral("rycustomizeddialog"), separator,
                          QStringLiteral(TRANSLATIONS_DIR)))
        QCoreApplication::installTranslator(dialogTexts);
}
//! [load]

} // namespace

class tst_guide_translations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theDialogSpeaksTheUsersLanguage();
};

void tst_guide_translations::theDialogSpeaksTheUsersLanguage()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    {
        QTranslator qtTexts;
        QTranslator dialogTexts;
        loadTexts(&qtTexts, &dialogTexts);
        RyToolBarManager manager;
        const RyCustomizedDialog dialog({&manager, nullptr});
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Optionen"));
    }
    QLocale::setDefault(before);
}

QTEST_MAIN(tst_guide_translations)
#include "tst_guide_translations.moc"
