// SPDX-License-Identifier: MIT

#include "changeannouncer.h"

#include "spokennames.h"

#include <RyCustomizedDialog>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QListWidget>
#include <QLocale>

namespace {

QStringList spokenRows(const QListWidget *list)
{
    QStringList rows;
    for (int row = 0; row < list->count(); ++row)
        rows.append(SpokenNames::spoken(list->item(row)->text()));
    return rows;
}

// What is in the longer list only, or empty if they differ in more.
QString missingFrom(const QStringList &shorter, const QStringList &longer)
{
    QStringList missing;
    int found = 0;
    for (const QString &text : longer) {
        if (found < shorter.size() && shorter.at(found) == text)
            ++found;
        else
            missing.append(text);
    }
    return found == shorter.size() ? QLocale().createSeparatedList(missing) : QString();
}

} // namespace

ChangeAnnouncer::ChangeAnnouncer(const DialogParts &parts)
    : QObject(parts.dialog)
    , m_parts(parts)
    , m_notification(new QWidget(parts.dialog))
    , m_toolBar(nullptr)
{
    // First, because each event makes Qt create an interface for a widget that has none.
    QAccessible::registerAccessibleInterface(
        new QAccessibleWidget(m_notification, QAccessible::Notification));
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): Qt owns the interface
    m_notification->setObjectName(QStringLiteral("changeNotification"));
    m_notification->resize(1, 1);
    m_notification->hide();

    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(compare()));
    for (const QListWidget *list : {m_parts.toolBarList, m_parts.entryList}) {
        connect(list->model(), SIGNAL(rowsInserted(QModelIndex, int, int)), &m_timer,
                SLOT(start()));
        connect(list->model(), SIGNAL(rowsRemoved(QModelIndex, int, int)), &m_timer, SLOT(start()));
        connect(list->model(), SIGNAL(modelReset()), &m_timer, SLOT(start()));
    }
}

void ChangeAnnouncer::compare()
{
    const QStringList toolBars = spokenRows(m_parts.toolBarList);
    const QStringList entries = spokenRows(m_parts.entryList);
    const QListWidgetItem *const toolBar = m_parts.toolBarList->currentItem();
    QString text = missingFrom(toolBars, m_toolBars);
    if (!text.isEmpty())
        text = tr("Removed: %1").arg(text);
    else if (toolBar == m_toolBar)
        text = entryChange(entries);
    m_toolBar = toolBar;
    m_toolBars = toolBars;
    m_entries = entries;
    // The lists are emptied when the page is left.
    if (!text.isEmpty() && m_parts.page->isVisible())
        announce(text);
}

QString ChangeAnnouncer::entryChange(const QStringList &entries) const
{
    const QString added = missingFrom(m_entries, entries);
    if (!added.isEmpty())
        return tr("Added: %1").arg(added);
    const QString removed = missingFrom(entries, m_entries);
    if (!removed.isEmpty())
        return tr("Removed: %1").arg(removed);
    const int row = m_parts.entryList->currentRow();
    if (entries == m_entries || row < 0 || entries.size() != m_entries.size())
        return QString();
    return tr("Moved: %1, %2 of %3")
        .arg(entries.at(row), QString::number(row + 1), QString::number(entries.size()));
}

// Screen readers say a notification when it appears.
void ChangeAnnouncer::announce(const QString &text)
{
    m_notification->hide();
    m_notification->setAccessibleName(text);
    m_notification->show();
}
