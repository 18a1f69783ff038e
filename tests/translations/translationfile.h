// SPDX-License-Identifier: MIT

#ifndef TRANSLATIONFILE_H
#define TRANSLATIONFILE_H

#include <QMap>
#include <QStringList>

/*
 * What a .ts file says, as translators keep it.
 */
struct TranslationFile
{
    struct Message
    {
        QString context;
        QString source;
        QString translation;
        // Empty for a finished one; else "unfinished", "vanished" or "obsolete".
        QString type;
    };

    // Of the language in the sources; fails the test if it cannot be read.
    explicit TranslationFile(const QString &language);

    // "context: source" of each message, in order.
    QStringList keys() const;

    // The translations by source.
    QMap<QString, QString> bySource() const;

    QString language;
    QList<Message> messages;
};

#endif // TRANSLATIONFILE_H
