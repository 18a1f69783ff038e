// SPDX-License-Identifier: MIT

#include "rytoolbarkitprivate.h"

#include "layoutfile.h"
#include "mergedentries.h"
#include "toolbarplaces.h"

Profiles RyToolBarKitPrivate::profiles() const
{
    return Profiles(store.settings(), store.key());
}

bool RyToolBarKitPrivate::saveProfile(const QString &name)
{
    restoreNow();
    const bool isSaved =
        (features & RyToolBarKit::StoreChanges) && profiles().save(name, saveLayout());
    store.sync();
    return isSaved;
}

bool RyToolBarKitPrivate::switchToProfile(const QString &name)
{
    restoreNow();
    if (!profiles().contains(name))
        return false;
    QString reason;
    const KitLayout layout = KitLayout::fromJson(profiles().value(name), &reason);
    return take(layout, reason);
}

bool RyToolBarKitPrivate::removeProfile(const QString &name)
{
    restoreNow();
    const bool isRemoved = (features & RyToolBarKit::StoreChanges) && profiles().remove(name);
    store.sync();
    return isRemoved;
}

bool RyToolBarKitPrivate::exportLayout(const QString &file)
{
    restoreNow();
    return LayoutFile(file).write(saveLayout());
}

bool RyToolBarKitPrivate::importLayout(const QString &file)
{
    restoreNow();
    QString reason;
    const KitLayout layout = LayoutFile(file).read(&reason);
    return take(layout, reason);
}

bool RyToolBarKitPrivate::take(const KitLayout &layout, const QString &reason)
{
    if (!reason.isEmpty())
        Q_EMIT m_kit->layoutRefused(reason);
    if (!reason.isEmpty() || !restoreLayout(layout.toJson()))
        return false;
    shareChange();
    return true;
}

QStringList RyToolBarKitPrivate::unknownNames(const QString &file)
{
    restoreNow();
    QString reason;
    const KitLayout layout = LayoutFile(file).read(&reason);
    QSet<QString> toolBars = ToolBarPlaces::toolBarsOf(layout.places);
    QSet<QString> actions;
    for (auto it = layout.toolBars.cbegin(); it != layout.toolBars.cend(); ++it) {
        toolBars.insert(it.key());
        actions += namesIn(it.value().entries);
    }
    const QStringList toolBarNames = toolBars.values();
    const QStringList actionNames = actions.values();
    QStringList unknown;
    for (const QString &name : toolBarNames) {
        if (!layout.toolBars.value(name).custom && !isKnown(name, m_toolBarNames))
            unknown.append(name);
    }
    for (const QString &name : actionNames) {
        if (!isKnown(name, m_actionNames))
            unknown.append(name);
    }
    unknown.sort();
    unknown.removeDuplicates();
    return unknown;
}

bool RyToolBarKitPrivate::isKnown(const QString &name, const StableNames &names) const
{
    return names.object(name) || !names.nameOf(m_formerNames.value(name)).isEmpty();
}
