// SPDX-License-Identifier: MIT

#include "formerlayout.h"

#include <QDataStream>

namespace {

const qint32 StateMarker = 0xff; // of both kinds of bytes
const int HeaderSize = 8; // marker and version
const quint8 DefaultToolBars = 0xfe;
const quint8 CustomToolBars = 0xfd;
const char WindowToolBars = '\xfc'; // in the bytes of a window
const qint32 MostItems = 1000;
const int LargestWindowState = 100000; // bytes

bool isCount(qint32 number)
{
    return number >= 0 && number <= MostItems;
}

bool readSection(QDataStream &stream, bool custom, QList<FormerLayout::ToolBar> *toolBars)
{
    quint8 marker = 0;
    qint32 count = 0;
    stream >> marker >> count;
    if (marker != (custom ? CustomToolBars : DefaultToolBars) || !isCount(count))
        return false;
    for (qint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        FormerLayout::ToolBar toolBar;
        toolBar.custom = custom;
        stream >> toolBar.name;
        if (custom)
            stream >> toolBar.title;
        qint32 entryCount = 0;
        stream >> entryCount;
        if (!isCount(entryCount))
            return false;
        for (qint32 j = 0; j < entryCount && stream.status() == QDataStream::Ok; ++j) {
            QString entry;
            stream >> entry;
            toolBar.entries.append(entry.isEmpty() ? QString() : entry);
        }
        toolBars->append(toolBar);
    }
    return stream.status() == QDataStream::Ok;
}

} // namespace

bool FormerLayout::read(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    qint32 marker = 0;
    qint32 version = 0;
    stream >> marker >> version;
    if (marker != StateMarker)
        return false;
    return readManagerState(stream) || readWindowState(bytes);
}

bool FormerLayout::readManagerState(QDataStream &stream)
{
    QList<ToolBar> read;
    if (!readSection(stream, false, &read) || !readSection(stream, true, &read) || !stream.atEnd())
        return false;
    toolBars = read;
    return true;
}

// The toolbars are the last part. Those before them are not described anywhere, so each byte that
// may begin the last part is tried.
bool FormerLayout::readWindowState(const QByteArray &bytes)
{
    if (bytes.size() > LargestWindowState)
        return false;
    for (auto i = bytes.indexOf(WindowToolBars, HeaderSize); i >= 0;
         i = bytes.indexOf(WindowToolBars, i + 1)) {
        QDataStream stream(
            QByteArray::fromRawData(bytes.constData() + i + 1, int(bytes.size() - i - 1)));
        if (readPlaces(stream) && stream.atEnd())
            return true;
        places = KitPlaces();
        shown.clear();
    }
    return false;
}

bool FormerLayout::readPlaces(QDataStream &stream)
{
    qint32 lineCount = 0;
    stream >> lineCount;
    if (!isCount(lineCount))
        return false;
    for (qint32 i = 0; i < lineCount; ++i) {
        if (!readLine(stream))
            return false;
    }
    return stream.status() == QDataStream::Ok;
}

bool FormerLayout::readLine(QDataStream &stream)
{
    const char *const areas[] = {"left", "right", "top", "bottom"};
    qint32 area = 0;
    qint32 count = 0;
    stream >> area >> count;
    if (area < 0 || area > 3 || !isCount(count))
        return false;
    QStringList line;
    for (qint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QString name;
        quint8 flags = 0;
        quint32 geometry[4];
        stream >> name >> flags;
        for (quint32 &number : geometry)
            stream >> number;
        if (name.isEmpty() || shown.contains(name))
            continue;
        line.append(name);
        shown.insert(name, flags & 1);
    }
    if (!line.isEmpty())
        places.lines[QLatin1String(areas[area])].append(line);
    return stream.status() == QDataStream::Ok;
}
