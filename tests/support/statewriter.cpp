// SPDX-License-Identifier: MIT

#include "statewriter.h"

StateWriter StateWriter::ofVersion(qint32 version)
{
    return StateWriter().number(255).number(version);
}

StateWriter &StateWriter::defaults(qint32 count)
{
    return byte(0xfe).number(count);
}

StateWriter &StateWriter::customs(qint32 count)
{
    return byte(0xfd).number(count);
}

StateWriter &StateWriter::defaultToolBar(const QString &name, const QStringList &content)
{
    return text(name).number(content.size()).texts(content);
}

StateWriter &StateWriter::customToolBar(const QString &objectName, const QString &title,
                                        const QStringList &content)
{
    return text(objectName).text(title).number(content.size()).texts(content);
}

StateWriter &StateWriter::byte(int value)
{
    m_bytes.append(static_cast<char>(value));
    return *this;
}

StateWriter &StateWriter::number(qint32 value)
{
    const quint32 bits = static_cast<quint32>(value);
    for (int shift = 24; shift >= 0; shift -= 8)
        byte(static_cast<int>(bits >> shift & 0xff));
    return *this;
}

StateWriter &StateWriter::text(const QString &text)
{
    if (text.isNull())
        return number(-1);
    number(2 * text.size());
    for (const QChar character : text)
        byte(character.row()).byte(character.cell());
    return *this;
}

StateWriter &StateWriter::texts(const QStringList &texts)
{
    for (const QString &each : texts)
        text(each == "|" ? QString() : each);
    return *this;
}

QByteArray StateWriter::bytes() const
{
    return m_bytes;
}
