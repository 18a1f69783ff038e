// SPDX-License-Identifier: MIT

#include "recordingtranslator.h"

#include <QCoreApplication>

RecordingTranslator::RecordingTranslator()
{
    QCoreApplication::installTranslator(this);
}

RecordingTranslator::~RecordingTranslator()
{
    QCoreApplication::removeTranslator(this);
}

QStringList RecordingTranslator::takeLookUps()
{
    const QStringList lookUps = m_lookUps;
    m_lookUps.clear();
    return lookUps;
}

// An empty translator is not asked.
bool RecordingTranslator::isEmpty() const
{
    return false;
}

QString RecordingTranslator::translate(const char *context, const char *text,
                                       const char *disambiguation, int n) const
{
    Q_UNUSED(n);
    if (context[0] == 'Q')
        return QString();
    QString lookUp = QString::fromUtf8(context) + ": " + QString::fromUtf8(text);
    if (disambiguation)
        lookUp += QString(" (%1)").arg(disambiguation);
    m_lookUps << lookUp;
    return "translated " + QString::fromUtf8(text);
}
