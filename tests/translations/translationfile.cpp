// SPDX-License-Identifier: MIT

#include "translationfile.h"

#include <QFile>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

TranslationFile::Message readMessage(QXmlStreamReader &reader, const QString &context)
{
    TranslationFile::Message message;
    message.context = context;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("source")) {
            message.source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            message.type = reader.attributes().value("type").toString();
            message.translation = reader.readElementText();
        } else {
            reader.skipCurrentElement();
        }
    }
    return message;
}

void readContext(QXmlStreamReader &reader, QList<TranslationFile::Message> *messages)
{
    QString context;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("name"))
            context = reader.readElementText();
        else if (reader.name() == QLatin1String("message"))
            *messages << readMessage(reader, context);
        else
            reader.skipCurrentElement();
    }
}

} // namespace

TranslationFile::TranslationFile(const QString &ofLanguage)
{
    QFile file(QString(RY_TRANSLATION_SOURCES_DIR "/rycustomizeddialog_%1.ts").arg(ofLanguage));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    QXmlStreamReader reader(&file);
    QVERIFY(reader.readNextStartElement());
    language = reader.attributes().value("language").toString();
    while (reader.readNextStartElement())
        readContext(reader, &messages);
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
}

QStringList TranslationFile::keys() const
{
    QStringList keys;
    for (const Message &message : messages)
        keys << message.context + ": " + message.source;
    return keys;
}

QMap<QString, QString> TranslationFile::bySource() const
{
    QMap<QString, QString> translations;
    for (const Message &message : messages)
        translations.insert(message.source, message.translation);
    return translations;
}
