// SPDX-License-Identifier: MIT

#ifndef LAYOUTSTORE_H
#define LAYOUTSTORE_H

#include <QByteArray>
#include <QPointer>
#include <QScopedPointer>
#include <QSettings>
#include <QStringList>

/*!
 * \brief The stored value of a layout, and its second copy.
 */
class LayoutStore
{
public:
    /*!
     * \brief Uses \a settings, or those of the program if it is null.
     */
    void set(QSettings *settings, const QString &key);

    /*!
     * \brief Uses the settings of the program, and a key made of \a name, if set() was not called.
     */
    void setDefault(const QString &name);

    /*!
     * \brief Returns true if the key is made of the name of the window.
     */
    bool isDefault() const { return m_isDefault; }

    /*!
     * \brief Returns true if there is a key and the settings were not deleted.
     */
    bool isSet() const { return m_settings && !m_key.isEmpty(); }

    /*!
     * \brief Returns true if this is the same value in the same place.
     */
    bool isSameAs(const LayoutStore &other) const;

    /*!
     * \brief Returns the settings, or null if nothing is stored.
     */
    QSettings *settings() const { return isSet() ? m_settings.data() : nullptr; }
    QString key() const { return m_key; }

    QByteArray value() const;
    QByteArray copy() const;

    /*!
     * \brief Stores \a value as both. The settings write it some time later.
     */
    void write(const QByteArray &value);

    /*!
     * \brief Returns the steps that belong to the value.
     */
    QByteArray steps() const;
    void writeSteps(const QByteArray &steps);

    /*!
     * \brief Returns the sizes of the dialog, which are no part of the layout.
     */
    QStringList dialogSizes() const;
    void setDialogSizes(const QStringList &sizes);

    /*!
     * \brief Has the settings write now what was stored.
     */
    void sync();

private:
    QByteArray read(const QString &key) const;
    QString copyKey() const { return m_key + QLatin1String(".format1"); }
    QString stepsKey() const { return m_key + QLatin1String(".steps"); }
    QString sizesKey() const { return m_key + QLatin1String(".dialog"); }

    QScopedPointer<QSettings> m_own;
    QPointer<QSettings> m_settings;
    QString m_key;
    bool m_isDecided = false;
    bool m_isDefault = false;
};

#endif // LAYOUTSTORE_H
