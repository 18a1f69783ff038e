// SPDX-License-Identifier: MIT

#ifndef INSTALLEDLANGUAGE_H
#define INSTALLEDLANGUAGE_H

#include <QStringList>
#include <QTranslator>

/*
 * The library's translations of a language while it lives, loaded as a host loads them, and on
 * request Qt's own beside them.
 */
class InstalledLanguage
{
public:
    enum Whose { Library, LibraryAndQt };

    // The languages that there are, English among them.
    static QStringList all();

    explicit InstalledLanguage(const QString &language, Whose whose = Library);
    ~InstalledLanguage();

    // Whether the translations asked for were found.
    bool isLoaded() const;

    const QTranslator &library() const;

private:
    Q_DISABLE_COPY(InstalledLanguage)

    QTranslator m_library;
    QTranslator m_qt;
    bool m_loaded;
};

#endif // INSTALLEDLANGUAGE_H
