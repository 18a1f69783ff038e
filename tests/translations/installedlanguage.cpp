// SPDX-License-Identifier: MIT

#include "installedlanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

QStringList InstalledLanguage::all()
{
    return QStringLiteral(RY_LANGUAGES).split(QLatin1Char(','));
}

InstalledLanguage::InstalledLanguage(const QString &language, Whose whose)
    : m_loaded(m_library.load(QLocale(language), QStringLiteral("rycustomizeddialog"),
                              QStringLiteral("_"), QStringLiteral(RY_TRANSLATIONS_DIR)))
{
    if (whose == LibraryAndQt) {
        const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
        m_loaded &=
            m_qt.load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"), folder);
        QCoreApplication::installTranslator(&m_qt);
    }
    QCoreApplication::installTranslator(&m_library);
}

InstalledLanguage::~InstalledLanguage()
{
    QCoreApplication::removeTranslator(&m_library);
    QCoreApplication::removeTranslator(&m_qt);
}

bool InstalledLanguage::isLoaded() const
{
    return m_loaded;
}

const QTranslator &InstalledLanguage::library() const
{
    return m_library;
}
