// SPDX-License-Identifier: MIT

#include "restorequestion.h"

#include "plaintextdelegate.h"

#include <RyCustomizedDialog>
#include <RyToolBarManager>

#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

namespace {

const int MostLines = 12;
const int MostActions = 6;

} // namespace

RestoreQuestion::RestoreQuestion(const DialogParts &parts, const RyToolBarManager *manager,
                                 const Defaults &defaults)
    : QObject(parts.page)
    , m_parts(parts)
    , m_manager(manager)
    , m_defaults(defaults)
{
    QPushButton *const button = m_parts.dialog->RestoreDefaultButton();
    button->disconnect(m_parts.dialog);
    connect(button, SIGNAL(clicked()), this, SLOT(ask()));
    connect(this, SIGNAL(confirmed()), m_parts.page, SLOT(defaultClicked()));
}

void RestoreQuestion::ask()
{
    QStringList lines = changes();
    QMessageBox *const box = new QMessageBox(m_parts.dialog);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(m_parts.dialog->windowTitle());
    box->setTextFormat(Qt::PlainText); // names are no HTML
    if (lines.isEmpty()) {
        box->setObjectName(QStringLiteral("nothingToRestore"));
        box->setIcon(QMessageBox::Information);
        box->setText(tr("All toolbars are as the application made them."));
        // It may be another action that looks the same.
        Q_EMIT confirmed();
    } else {
        box->setObjectName(QStringLiteral("restoreDefaultsQuestion"));
        box->setIcon(QMessageBox::Question);
        box->setText(tr("Restore the toolbars to their defaults?"));
        box->setStandardButtons(QMessageBox::RestoreDefaults | QMessageBox::Cancel);
        box->setDefaultButton(QMessageBox::RestoreDefaults);
        if (lines.size() > MostLines) {
            box->setDetailedText(lines.join(QLatin1Char('\n')));
            lines = lines.mid(0, MostLines - 1) << QStringLiteral("…");
        }
        box->setInformativeText(lines.join(QLatin1Char('\n')));
        connect(box, SIGNAL(finished(int)), this, SLOT(answer(int)));
    }
    box->open();
}

void RestoreQuestion::answer(int button)
{
    if (button != QMessageBox::RestoreDefaults)
        return;
    Q_EMIT confirmed();
    Q_EMIT changed();
}

// The editor shows the content of a toolbar only while that is current.
QStringList RestoreQuestion::changes() const
{
    QListWidget *const toolBars = m_parts.toolBarList;
    const int toolBar = toolBars->currentRow();
    const int entry = m_parts.entryList->currentRow();
    const QHash<QString, QList<Entries>> defaults = defaultEntries();
    QStringList lines;
    for (int row = 0; row < toolBars->count(); ++row) {
        toolBars->setCurrentRow(row);
        const QString name = toolBars->item(row)->text();
        const QString title = PlainTextDelegate::plainText(name);
        const QList<Entries> candidates = defaults.value(name);
        const Entries shown = shownEntries();
        // Only toolbars of the user can be renamed.
        if (toolBars->item(row)->flags().testFlag(Qt::ItemIsEditable))
            lines.append(tr("%1: delete the toolbar").arg(title));
        else if (!candidates.isEmpty() && !candidates.contains(shown))
            lines.append(differences(title, shown, candidates.constFirst()));
    }
    toolBars->setCurrentRow(toolBar);
    m_parts.entryList->setCurrentRow(entry);
    return lines;
}

QStringList RestoreQuestion::differences(const QString &title, const Entries &shown,
                                         const Entries &wanted)
{
    Entries added = wanted;
    Entries removed;
    for (const Entry &entry : shown) {
        if (!added.removeOne(entry))
            removed.append(entry);
    }
    const QString addedNames = names(added);
    const QString removedNames = names(removed);
    QStringList lines;
    if (!addedNames.isEmpty())
        lines.append(tr("%1: add %2").arg(title, addedNames));
    if (!removedNames.isEmpty())
        lines.append(tr("%1: remove %2").arg(title, removedNames));
    if (lines.isEmpty())
        lines.append(tr("%1: restore the order").arg(title));
    return lines;
}

// Without separators, which have no names. Empty if there are no others.
QString RestoreQuestion::names(const Entries &entries)
{
    QStringList names;
    for (const Entry &entry : entries) {
        if (entry.text != DialogParts::separatorText())
            names.append(PlainTextDelegate::plainText(entry.text));
    }
    const bool areAll = names.size() <= MostActions;
    const QString list = QLocale().createSeparatedList(names.mid(0, areAll ? -1 : MostActions - 1));
    return areAll ? list : list + QStringLiteral(" …");
}

// By the titles of the toolbars, because that is all that their rows show.
QHash<QString, QList<RestoreQuestion::Entries>> RestoreQuestion::defaultEntries() const
{
    QHash<QString, QList<Entries>> result;
    if (!m_manager)
        return result;
    const QSet<QAction *> actions = m_manager->actions();
    const auto toolBars = m_manager->toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (!m_defaults.contains(toolBar))
            continue;
        Entries entries;
        const QList<QAction *> wanted = m_defaults.value(toolBar);
        for (const QAction *action : wanted) {
            if (!action)
                entries.append({DialogParts::separatorText(), 0});
            else if (actions.contains(const_cast<QAction *>(action)))
                entries.append({action->text(), action->icon().cacheKey()});
        }
        result[toolBar->windowTitle()].append(entries);
    }
    return result;
}

RestoreQuestion::Entries RestoreQuestion::shownEntries() const
{
    Entries entries;
    for (int row = 0; row < m_parts.entryList->count(); ++row) {
        const QListWidgetItem *const item = m_parts.entryList->item(row);
        entries.append({item->text(), item->icon().cacheKey()});
    }
    return entries;
}
