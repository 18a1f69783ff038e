// SPDX-License-Identifier: MIT

#include "savedlayout.h"

#include "statewriter.h"

#include <algorithm>

namespace {

class Reader
{
public:
    explicit Reader(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    SavedLayout read()
    {
        SavedLayout layout;
        layout.marker = number();
        layout.version = number();
        layout.defaultMarker = static_cast<int>(unit(1));
        repeat([&] {
            const QString name = text();
            layout.defaults.push_back({name, QString(), content()});
        });
        layout.customMarker = static_cast<int>(unit(1));
        repeat([&] {
            const QString name = text();
            const QString title = text();
            layout.customs.push_back({name, title, content()});
        });
        layout.isShort = m_isShort;
        layout.surplus = left();
        return layout;
    }

private:
    template <typename Read> void repeat(Read read)
    {
        int pastEnd = 0;
        for (qint32 i = number(); i > 0 && (left() > 0 || ++pastEnd <= 1000); --i)
            read();
    }

    QStringList content()
    {
        QStringList names;
        repeat([&] { names << text(); });
        return names;
    }

    // As in Qt, a text of an odd size is null and leaves its bytes for the next field.
    QString text()
    {
        const quint32 size = unit(4);
        if (size == 0xffffffff || size % 2)
            return QString();
        if (size > static_cast<quint32>(left())) {
            m_isShort = true;
            m_position = m_bytes.size();
            return QString();
        }
        QString characters("");
        for (quint32 i = 0; i < size; i += 2)
            characters += QChar(static_cast<ushort>(unit(2)));
        return characters;
    }

    qint32 number() { return static_cast<qint32>(unit(4)); }

    quint32 unit(int width)
    {
        if (left() < width) {
            m_isShort = true;
            m_position = m_bytes.size();
            return 0;
        }
        quint32 value = 0;
        for (int i = 0; i < width; ++i)
            value = value << 8 | static_cast<uchar>(m_bytes.at(m_position++));
        return value;
    }

    int left() const { return m_bytes.size() - m_position; }

    const QByteArray m_bytes;
    int m_position = 0;
    bool m_isShort = false;
};

QString quoted(const QString &text)
{
    return text.isNull() ? "null" : '\'' + text + '\'';
}

QString markerText(int marker)
{
    return QString::number(marker, 16).toUpper();
}

// Not texts(), for which "|" is a separator.
void writeContent(StateWriter &writer, const QStringList &content)
{
    writer.number(content.size());
    for (const QString &name : content)
        writer.text(name);
}

void appendContent(QStringList &fields, const QStringList &content)
{
    fields << QString::number(content.size());
    for (const QString &name : content)
        fields << quoted(name);
}

bool matching(const QString &expected, const QString &found)
{
    return expected == found && (!expected.isNull() || found.isNull());
}

bool matching(const SavedLayout::ToolBar &expected, const SavedLayout::ToolBar &found)
{
    const auto matchingNames = [](const QString &a, const QString &b) { return matching(a, b); };
    return expected.objectName == found.objectName && expected.title == found.title
        && std::equal(expected.actions.begin(), expected.actions.end(), found.actions.begin(),
                      found.actions.end(), matchingNames);
}

bool matching(const std::vector<SavedLayout::ToolBar> &expected,
              const std::vector<SavedLayout::ToolBar> &found)
{
    return std::equal(expected.begin(), expected.end(), found.begin(), found.end(),
                      [](const SavedLayout::ToolBar &a, const SavedLayout::ToolBar &b) {
                          return matching(a, b);
                      });
}

} // namespace

SavedLayout SavedLayout::of(const QByteArray &bytes)
{
    return Reader(bytes).read();
}

QByteArray SavedLayout::bytes() const
{
    StateWriter writer;
    writer.number(marker).number(version);
    writer.byte(defaultMarker).number(static_cast<qint32>(defaults.size()));
    for (const ToolBar &toolBar : defaults) {
        writer.text(toolBar.objectName);
        writeContent(writer, toolBar.actions);
    }
    writer.byte(customMarker).number(static_cast<qint32>(customs.size()));
    for (const ToolBar &toolBar : customs) {
        writer.text(toolBar.objectName).text(toolBar.title);
        writeContent(writer, toolBar.actions);
    }
    return writer.bytes();
}

QStringList SavedLayout::fields() const
{
    QStringList fields{QString::number(marker), QString::number(version), markerText(defaultMarker),
                       QString::number(static_cast<int>(defaults.size()))};
    for (const ToolBar &toolBar : defaults) {
        fields << quoted(toolBar.objectName);
        appendContent(fields, toolBar.actions);
    }
    fields << markerText(customMarker) << QString::number(static_cast<int>(customs.size()));
    for (const ToolBar &toolBar : customs) {
        fields << quoted(toolBar.objectName) << quoted(toolBar.title);
        appendContent(fields, toolBar.actions);
    }
    if (isShort)
        fields << "too short";
    if (surplus > 0)
        fields << QString("%1 bytes left").arg(surplus);
    return fields;
}

bool SavedLayout::matches(const SavedLayout &other) const
{
    return marker == other.marker && version == other.version
        && defaultMarker == other.defaultMarker && customMarker == other.customMarker
        && isShort == other.isShort && surplus == other.surplus
        && matching(defaults, other.defaults) && matching(customs, other.customs);
}
