// SPDX-License-Identifier: MIT

#include "installedlanguage.h"

#include "qtdifferences.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

QStringList InstalledLanguage::all()
{
    return QString(RY_LANGUAGES).split(',');
}

InstalledLanguage::InstalledLanguage(const QString &language, Whose whose)
    : m_loaded(m_library.load(QLocale(language), "rycustomizeddialog", "_", RY_TRANSLATIONS_DIR))
{
    if (whose == LibraryAndQt) {
        const QString folder = QtDifferences::path(QLibraryInfo::TranslationsPath);
        m_loaded &= m_qt.load(QLocale(language), "qtbase", "_", folder);
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
