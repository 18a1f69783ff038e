// SPDX-License-Identifier: MIT

#include "recentfiles.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

namespace {

const QLatin1String Key("recentFiles");

} // namespace

RecentFiles::RecentFiles(QSettings *settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
}

QStringList RecentFiles::files() const
{
    // Any other value in the settings gives no paths, or paths that do not exist.
    QStringList files = m_settings->value(Key).toStringList();
    files.removeAll(QString());
    return files.mid(0, MaximumCount);
}

void RecentFiles::add(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList all = files();
    all.removeAll(absolute);
    all.prepend(absolute);
    store(all.mid(0, MaximumCount));
}

void RecentFiles::remove(const QString &path)
{
    QStringList all = files();
    all.removeAll(QFileInfo(path).absoluteFilePath());
    store(all);
}

void RecentFiles::clear()
{
    store(QStringList());
}

void RecentFiles::store(const QStringList &files)
{
    m_settings->setValue(Key, files);
}

void RecentFiles::fill(QMenu *menu)
{
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fillNow(menu); });
}

void RecentFiles::fillNow(QMenu *menu)
{
    menu->clear();
    const QStringList all = files();
    for (const QString &path : all) {
        QString name = QFileInfo(path).fileName();
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction *const action = menu->addAction(name);
        action->setStatusTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { Q_EMIT openRequested(path); });
    }
    menu->addSeparator();
    QAction *const clearAction = menu->addAction(tr("Clear List"), this, &RecentFiles::clear);
    clearAction->setEnabled(!all.isEmpty());
}
