// SPDX-License-Identifier: MIT

#include "layoutstore.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>
#include <QSettings>

namespace {

const QLatin1String Group("layout");
const QLatin1String VersionKey("layout/version");
const QLatin1String ChecksumKey("layout/checksum");
const QLatin1String ToolBarsKey("layout/toolBars");
const QLatin1String WindowKey("layout/window");
const QLatin1String GeometryKey("layout/geometry");

QString checksum(const LayoutStore::Layout &layout)
{
    // The stream also writes the lengths, so no byte can move from one array to the next.
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << layout.toolBars << layout.window << layout.geometry;
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

} // namespace

LayoutStore::LayoutStore(QSettings *settings)
    : m_settings(settings)
{
}

LayoutStore::Result LayoutStore::read(Layout *layout) const
{
    if (!m_settings->childGroups().contains(Group) && !m_settings->contains(Group))
        return Result::Nothing;
    bool isNumber = false;
    const int version = m_settings->value(VersionKey).toInt(&isNumber);
    if (!isNumber)
        return Result::Damaged;
    if (version != Version)
        return Result::OtherVersion;
    const Layout stored{m_settings->value(ToolBarsKey).toByteArray(),
                        m_settings->value(WindowKey).toByteArray(),
                        m_settings->value(GeometryKey).toByteArray()};
    if (m_settings->value(ChecksumKey).toString() != checksum(stored))
        return Result::Damaged;
    *layout = stored;
    return Result::Read;
}

void LayoutStore::write(const Layout &layout)
{
    m_settings->setValue(VersionKey, Version);
    m_settings->setValue(ToolBarsKey, layout.toolBars);
    m_settings->setValue(WindowKey, layout.window);
    m_settings->setValue(GeometryKey, layout.geometry);
    m_settings->setValue(ChecksumKey, checksum(layout));
}

void LayoutStore::clear()
{
    m_settings->remove(Group);
}
