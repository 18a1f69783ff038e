// SPDX-License-Identifier: MIT

#ifndef STATEWRITER_H
#define STATEWRITER_H

#include <QByteArray>
#include <QStringList>

/*
 * Writes the bytes of a saved state without the help of QDataStream.
 */
class StateWriter
{
public:
    // Nothing yet, for the sections alone.
    StateWriter() = default;

    // What restoreState() expects first.
    static StateWriter ofVersion(qint32 version);

    // The marker and the count of a section.
    StateWriter &defaults(qint32 count);
    StateWriter &customs(qint32 count);

    // A record with its true count; "|" in the content is a null string.
    StateWriter &defaultToolBar(const QString &name, const QStringList &content);
    StateWriter &customToolBar(const QString &objectName, const QString &title,
                               const QStringList &content);

    // Single fields.
    StateWriter &byte(int value);
    StateWriter &number(qint32 value);
    StateWriter &text(const QString &text);
    StateWriter &texts(const QStringList &texts);

    QByteArray bytes() const;

private:
    QByteArray m_bytes;
};

#endif // STATEWRITER_H
