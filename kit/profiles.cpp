// SPDX-License-Identifier: MIT

#include "profiles.h"

#include <QSettings>
#include <QUrl>

#include <algorithm>

namespace {

// Without signs that have a meaning in keys, and without letters that some settings do not
// distinguish.
QString encoded(const QString &name)
{
    return QString::fromLatin1(
        QUrl::toPercentEncoding(name, QByteArray(), "ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
}

QString decoded(const QString &key)
{
    return QUrl::fromPercentEncoding(key.toLatin1());
}

bool comesBefore(const QString &a, const QString &b)
{
    const int order = QString::localeAwareCompare(a, b);
    return order < 0 || (order == 0 && a < b);
}

} // namespace

Profiles::Profiles(QSettings *settings, const QString &key)
    : m_settings(settings)
    , m_group(key + QLatin1String(".profiles"))
{
}

QStringList Profiles::names() const
{
    if (!m_settings)
        return QStringList();
    m_settings->beginGroup(m_group);
    const QStringList keys = m_settings->childKeys();
    m_settings->endGroup();
    QStringList all;
    for (const QString &key : keys)
        all.append(decoded(key));
    std::sort(all.begin(), all.end(), comesBefore);
    return all;
}

bool Profiles::contains(const QString &name) const
{
    return m_settings && !name.isEmpty() && m_settings->contains(keyOf(name));
}

QByteArray Profiles::value(const QString &name) const
{
    return m_settings ? m_settings->value(keyOf(name)).toString().toUtf8() : QByteArray();
}

QString Profiles::nameOf(const QByteArray &wanted) const
{
    const QStringList all = names();
    for (const QString &name : all) {
        if (value(name) == wanted)
            return name;
    }
    return QString();
}

bool Profiles::save(const QString &name, const QByteArray &value)
{
    if (!m_settings || name.isEmpty() || decoded(encoded(name)) != name)
        return false;
    m_settings->setValue(keyOf(name), QString::fromUtf8(value));
    return true;
}

bool Profiles::remove(const QString &name)
{
    if (!contains(name))
        return false;
    m_settings->remove(keyOf(name));
    return true;
}

QString Profiles::keyOf(const QString &name) const
{
    return m_group + QLatin1Char('/') + encoded(name);
}
