// SPDX-License-Identifier: MIT

#ifndef RECENTFILES_H
#define RECENTFILES_H

#include <QObject>
#include <QStringList>

class QMenu;
class QSettings;

/*!
 * \brief The recently opened documents, stored in the settings and shown in a menu.
 */
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    static constexpr int MaximumCount = 8;

    //! \param settings the application's settings, which must outlive the object.
    explicit RecentFiles(QSettings *settings, QObject *parent = nullptr);

    //! Absolute paths, the most recent one first.
    QStringList files() const;

    void add(const QString &path);
    void remove(const QString &path);
    void clear();

    //! Fills \a menu each time it is about to be shown.
    void fill(QMenu *menu);

Q_SIGNALS:
    void openRequested(const QString &path);

private:
    void fillNow(QMenu *menu);
    void store(const QStringList &files);

    QSettings *const m_settings;
};

#endif // RECENTFILES_H
