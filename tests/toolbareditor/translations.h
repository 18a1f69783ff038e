// SPDX-License-Identifier: MIT

#ifndef TRANSLATIONS_H
#define TRANSLATIONS_H

#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QTranslator>

/*
 * Translates the texts of one context while it lives.
 */
class Translations : public QTranslator
{
public:
    Translations(const char *context, const QMap<QString, QString> &texts)
        : m_context(context)
        , m_texts(texts)
    {
        QCoreApplication::installTranslator(this);
    }

    ~Translations() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override
    {
        Q_UNUSED(n);
        if (context != m_context || disambiguation)
            return QString();
        return m_texts.value(QString::fromUtf8(sourceText));
    }

    bool isEmpty() const override { return false; }

private:
    QString m_context;
    QMap<QString, QString> m_texts;
};

#endif // TRANSLATIONS_H
