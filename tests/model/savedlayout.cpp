// SPDX-License-Identifier: MIT

#include "savedlayout.h"

#include <QStringList>

#include <algorithm>

namespace {

class Writer
{
public:
    void byte(int value) { m_bytes.append(static_cast<char>(value)); }

    void number(quint32 value)
    {
        for (int shift = 24; shift >= 0; shift -= 8)
            byte(static_cast<int>(value >> shift & 0xFF));
    }

    void text(const QString &text)
    {
        number(text.isNull() ? 0xFFFFFFFFu : static_cast<quint32>(text.size()) * 2);
        for (const QChar character : text) {
            byte(character.row());
            byte(character.cell());
        }
    }

    void content(const std::vector<QString> &names)
    {
        number(static_cast<quint32>(names.size()));
        for (const QString &name : names)
            text(name);
    }

    QByteArray m_bytes;
};

class Reader
{
public:
    explicit Reader(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    int byte()
    {
        if (m_place < m_bytes.size())
            return static_cast<unsigned char>(m_bytes.at(m_place++));
        m_short = true;
        return 0;
    }

    quint32 number()
    {
        quint32 value = 0;
        for (int i = 0; i < 4; ++i)
            value = value << 8 | static_cast<quint32>(byte());
        return value;
    }

    QString text()
    {
        const quint32 size = number();
        if (size == 0xFFFFFFFFu)
            return QString();
        QString text = QLatin1String("");
        for (quint32 i = 0; i < size && !m_short; i += 2) {
            const int row = byte();
            text += QChar(row << 8 | byte());
        }
        return text;
    }

    std::vector<QString> content()
    {
        std::vector<QString> names;
        const quint32 count = number();
        for (quint32 i = 0; i < count && !m_short; ++i)
            names.push_back(text());
        return names;
    }

    bool isComplete() const { return !m_short && m_place == m_bytes.size(); }
    bool isShort() const { return m_short; }

private:
    const QByteArray &m_bytes;
    int m_place = 0;
    bool m_short = false;
};

bool matching(const QString &expected, const QString &found)
{
    return expected == found && (!expected.isNull() || found.isNull());
}

bool matching(const std::vector<SavedLayout::ToolBar> &expected,
              const std::vector<SavedLayout::ToolBar> &found)
{
    const auto matchingNames = [](const QString &a, const QString &b) { return matching(a, b); };
    return std::equal(expected.begin(), expected.end(), found.begin(), found.end(),
                      [&](const SavedLayout::ToolBar &a, const SavedLayout::ToolBar &b) {
                          return a.objectName == b.objectName && a.title == b.title
                              && std::equal(a.actions.begin(), a.actions.end(), b.actions.begin(),
                                            b.actions.end(), matchingNames);
                      });
}

QString lineOf(const SavedLayout::ToolBar &toolBar)
{
    QStringList names;
    for (const QString &name : toolBar.actions)
        names << (name.isNull() ? QStringLiteral("|") : QLatin1Char('"') + name + QLatin1Char('"'));
    return QStringLiteral("'%1' '%2': ").arg(toolBar.objectName, toolBar.title)
        + names.join(QLatin1Char(' '));
}

} // namespace

QByteArray SavedLayout::bytes() const
{
    Writer writer;
    writer.number(static_cast<quint32>(marker));
    writer.number(static_cast<quint32>(version));
    writer.byte(defaultMarker);
    writer.number(static_cast<quint32>(defaults.size()));
    for (const ToolBar &toolBar : defaults) {
        writer.text(toolBar.objectName);
        writer.content(toolBar.actions);
    }
    writer.byte(customMarker);
    writer.number(static_cast<quint32>(customs.size()));
    for (const ToolBar &toolBar : customs) {
        writer.text(toolBar.objectName);
        writer.text(toolBar.title);
        writer.content(toolBar.actions);
    }
    return writer.m_bytes;
}

bool SavedLayout::read(const QByteArray &bytes, SavedLayout &layout)
{
    Reader reader(bytes);
    layout.marker = static_cast<int>(reader.number());
    layout.version = static_cast<int>(reader.number());
    layout.defaultMarker = reader.byte();
    const quint32 defaultCount = reader.number();
    for (quint32 i = 0; i < defaultCount && !reader.isShort(); ++i) {
        const QString name = reader.text();
        layout.defaults.push_back({name, QString(), reader.content()});
    }
    layout.customMarker = reader.byte();
    const quint32 customCount = reader.number();
    for (quint32 i = 0; i < customCount && !reader.isShort(); ++i) {
        const QString name = reader.text();
        const QString title = reader.text();
        layout.customs.push_back({name, title, reader.content()});
    }
    return reader.isComplete();
}

QString SavedLayout::text() const
{
    QStringList lines;
    lines << QStringLiteral("marker %1 version %2 sections %3 %4")
                 .arg(marker)
                 .arg(version)
                 .arg(defaultMarker)
                 .arg(customMarker);
    for (const ToolBar &toolBar : defaults)
        lines << QLatin1String("default ") + lineOf(toolBar);
    for (const ToolBar &toolBar : customs)
        lines << QLatin1String("custom ") + lineOf(toolBar);
    return lines.join(QLatin1String("; "));
}

bool SavedLayout::matches(const SavedLayout &other) const
{
    return marker == other.marker && version == other.version
        && defaultMarker == other.defaultMarker && customMarker == other.customMarker
        && matching(defaults, other.defaults) && matching(customs, other.customs);
}
