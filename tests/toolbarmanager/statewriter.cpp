// SPDX-License-Identifier: MIT

#include "statewriter.h"

namespace {

class FieldReader
{
public:
    explicit FieldReader(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    QStringList read()
    {
        number();
        number();
        marker();
        for (qint32 i = number(); i > 0; --i)
            record(1);
        marker();
        for (qint32 i = number(); i > 0; --i)
            record(2);
        if (m_position != m_bytes.size())
            m_fields << QStringLiteral("+%1").arg(m_bytes.size() - m_position);
        return m_fields;
    }

private:
    void record(int names)
    {
        for (int i = 0; i < names; ++i)
            text();
        for (qint32 i = number(); i > 0; --i)
            text();
    }

    void marker() { m_fields << QString::number(unit(1), 16).toUpper(); }

    qint32 number()
    {
        const qint32 value = static_cast<qint32>(unit(4));
        m_fields << QString::number(value);
        return value;
    }

    void text()
    {
        const quint32 size = unit(4);
        if (size == 0xffffffff) {
            m_fields << QStringLiteral("null");
            return;
        }
        QString characters;
        for (quint32 i = 0; i < size && m_position < m_bytes.size(); i += 2)
            characters += QChar(static_cast<ushort>(unit(2)));
        m_fields << QLatin1Char('\'') + characters + QLatin1Char('\'');
    }

    quint32 unit(int width)
    {
        quint32 value = 0;
        for (int i = 0; i < width && m_position < m_bytes.size(); ++i)
            value = value << 8 | static_cast<uchar>(m_bytes.at(m_position++));
        return value;
    }

    const QByteArray m_bytes;
    int m_position = 0;
    QStringList m_fields;
};

} // namespace

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
        text(each == QLatin1String("|") ? QString() : each);
    return *this;
}

QByteArray StateWriter::bytes() const
{
    return m_bytes;
}

QStringList fieldsOf(const QByteArray &state)
{
    return FieldReader(state).read();
}
