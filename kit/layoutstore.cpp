// SPDX-License-Identifier: MIT

#include "layoutstore.h"

#include <QVariant>

void LayoutStore::set(QSettings *settings, const QString &key)
{
    m_own.reset(settings || key.isEmpty() ? nullptr : new QSettings);
    m_settings = settings ? settings : m_own.data();
    m_key = key;
    m_isDecided = true;
    m_isDefault = false;
}

void LayoutStore::setDefault(const QString &name)
{
    if (m_isDecided)
        return;
    set(nullptr, QLatin1String("toolBars/") + name);
    m_isDefault = true;
}

bool LayoutStore::isSameAs(const LayoutStore &other) const
{
    return isSet() && other.isSet() && m_key == other.m_key
        && m_settings->fileName() == other.m_settings->fileName()
        && m_settings->group() == other.m_settings->group();
}

QByteArray LayoutStore::value() const
{
    return read(m_key);
}

QByteArray LayoutStore::copy() const
{
    return read(copyKey());
}

// A layout is stored as text, but a program may have stored bytes before. Anything else is refused
// like other text that is no layout.
QByteArray LayoutStore::read(const QString &key) const
{
    if (!isSet())
        return QByteArray();
    const QVariant value = m_settings->value(key);
    if (value.userType() == QMetaType::QString)
        return value.toString().toUtf8();
    return value.isValid() && !value.canConvert<QByteArray>() ? QByteArray(value.typeName())
                                                              : value.toByteArray();
}

void LayoutStore::write(const QByteArray &value)
{
    if (!isSet())
        return;
    m_settings->setValue(m_key, QString::fromUtf8(value));
    m_settings->setValue(copyKey(), QString::fromUtf8(value));
}

QByteArray LayoutStore::steps() const
{
    return read(stepsKey());
}

void LayoutStore::writeSteps(const QByteArray &steps)
{
    if (isSet())
        m_settings->setValue(stepsKey(), QString::fromUtf8(steps));
}

QStringList LayoutStore::dialogSizes() const
{
    return isSet() ? m_settings->value(sizesKey()).toStringList() : QStringList();
}

void LayoutStore::setDialogSizes(const QStringList &sizes)
{
    if (isSet())
        m_settings->setValue(sizesKey(), sizes);
}

void LayoutStore::sync()
{
    if (isSet())
        m_settings->sync();
}
