// SPDX-License-Identifier: MIT

#ifndef PROFILES_H
#define PROFILES_H

#include <QByteArray>
#include <QString>
#include <QStringList>

class QSettings;

/*!
 * \brief The layouts that a user has saved by name. Each is a value of the settings like the layout
 *        itself.
 */
class Profiles
{
public:
    /*!
     * \param settings not owned. If it is null, there are no profiles.
     * \param key that of the layout.
     */
    Profiles(QSettings *settings, const QString &key);

    /*!
     * \brief Returns the names, as a user would sort them.
     */
    QStringList names() const;

    bool contains(const QString &name) const;

    /*!
     * \brief Returns a profile, or nothing if there is none with that name.
     */
    QByteArray value(const QString &name) const;

    /*!
     * \brief Returns the name of the first profile that is \a value, or an empty string.
     */
    QString nameOf(const QByteArray &wanted) const;

    /*!
     * \brief Saves or replaces a profile.
     *
     * \return false if the name is empty or no Unicode text, or without settings.
     */
    bool save(const QString &name, const QByteArray &value);

    /*!
     * \brief Returns false if there is no such profile.
     */
    bool remove(const QString &name);

private:
    QString keyOf(const QString &name) const;

    QSettings *m_settings;
    QString m_group;
};

#endif // PROFILES_H
