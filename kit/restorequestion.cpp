// SPDX-License-Identifier: MIT

#include "restorequestion.h"

#include "dialogedits.h"
#include "plaintextdelegate.h"

#include <RyCToolBarWidget>
#include <RyCustomizedDialog>
#include <RyToolBarManager>

#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

namespace {

const int MostLines = 12;
const int MostActions = 6;

// The program's cannot be renamed.
bool isCustom(const QListWidgetItem *row)
{
    return row->flags().testFlag(Qt::ItemIsEditable);
}

} // namespace

RestoreQuestion::RestoreQuestion(const DialogParts &parts, DialogEdits *edits,
                                 const RyToolBarManager *manager,
                                 const std::function<Defaults()> &defaults)
    : QObject(parts.page)
    , m_parts(parts)
    , m_edits(edits)
    , m_manager(manager)
    , m_defaults(defaults)
{
    QPushButton *const button = m_parts.dialog->RestoreDefaultButton();
    button->disconnect(m_parts.dialog);
    connect(button, SIGNAL(clicked()), this, SLOT(ask()));
    connect(this, SIGNAL(confirmed()), qobject_cast<RyCToolBarWidget *>(m_parts.page),
            SLOT(defaultClicked()));
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
    m_edits->add();
}

QStringList RestoreQuestion::changes() const
{
    if (!m_manager)
        return QStringList();
    const Defaults defaults = m_defaults();
    QHash<QString, Wanted> wanted = byTitle(defaults.toolBars);
    const QHash<int, Entries> others = takeOthers(&wanted);
    QStringList lines;
    for (int row = 0; row < m_parts.toolBarList->count(); ++row) {
        const QListWidgetItem *const item = m_parts.toolBarList->item(row);
        const QString title = PlainTextDelegate::plainText(item->text());
        if (isCustom(item)) {
            lines.append(tr("%1: delete the toolbar").arg(title));
            continue;
        }
        Wanted &ofTitle = wanted[item->text()];
        if (others.contains(row) && !ofTitle.contents.isEmpty())
            lines.append(differences(title, others.value(row), ofTitle.contents.takeFirst()));
        if (ofTitle.looks-- > 0)
            lines.append(tr("%1: restore icon size and text position").arg(title));
    }
    if (defaults.areLocked)
        lines.append(tr("Unlock the toolbars"));
    return lines;
}

// What the rows have that are not as a default toolbar of their title. The others are taken off.
QHash<int, RestoreQuestion::Entries>
RestoreQuestion::takeOthers(QHash<QString, Wanted> *wanted) const
{
    // The editor shows the content of a toolbar only while that is current.
    QListWidget *const toolBars = m_parts.toolBarList;
    const int toolBar = toolBars->currentRow();
    const int entry = m_parts.entryList->currentRow();
    QHash<int, Entries> others;
    for (int row = 0; row < toolBars->count(); ++row) {
        const QListWidgetItem *const item = toolBars->item(row);
        if (isCustom(item))
            continue;
        toolBars->setCurrentRow(row);
        const Entries shown = shownEntries();
        if (!(*wanted)[item->text()].contents.removeOne(shown))
            others.insert(row, shown);
    }
    toolBars->setCurrentRow(toolBar);
    m_parts.entryList->setCurrentRow(entry);
    return others;
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

QHash<QString, RestoreQuestion::Wanted> RestoreQuestion::byTitle(const QList<Default> &defaults)
{
    QHash<QString, Wanted> result;
    for (const Default &toolBar : defaults) {
        Entries entries;
        for (const QAction *action : toolBar.actions) {
            if (action)
                entries.append({action->text(), action->icon().cacheKey()});
            else
                entries.append({DialogParts::separatorText(), 0});
        }
        Wanted &wanted = result[toolBar.title];
        wanted.contents.append(entries);
        wanted.looks += toolBar.hasLook;
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
