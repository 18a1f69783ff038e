// SPDX-License-Identifier: MIT

#ifndef RECORDINGTRANSLATOR_H
#define RECORDINGTRANSLATOR_H

#include <QStringList>
#include <QTranslator>

/*
 * Installed while it lives. Records every text that is looked up outside Qt itself, and answers
 * with "translated " and the text, so that a text that bypasses translation shows.
 */
class RecordingTranslator : public QTranslator
{
    Q_OBJECT

public:
    RecordingTranslator();
    ~RecordingTranslator() override;

    // What was looked up since the last call, in order: "context: text", and with a disambiguation
    // "context: text (disambiguation)".
    QStringList takeLookUps();

    bool isEmpty() const override;
    QString translate(const char *context, const char *text, const char *disambiguation,
                      int n) const override;

private:
    mutable QStringList m_lookUps;
};

#endif // RECORDINGTRANSLATOR_H
