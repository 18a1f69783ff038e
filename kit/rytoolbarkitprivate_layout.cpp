// SPDX-License-Identifier: MIT

#include "rytoolbarkitprivate.h"

#include "formerlayout.h"
#include "mergedentries.h"
#include "toolbarlooks.h"
#include "toolbarplaces.h"

#include <QAction>
#include <QMainWindow>
#include <QToolBar>

namespace {

QStringList replaced(QStringList names, const QString &before, const QString &now)
{
    if (names.contains(now))
        names.removeAll(before);
    for (QString &name : names) {
        if (name == before)
            name = now;
    }
    return names;
}

// The places without the toolbars that removed() is true for.
template <typename Predicate> KitPlaces without(const KitPlaces &places, Predicate removed)
{
    KitPlaces rest;
    for (auto it = places.lines.cbegin(); it != places.lines.cend(); ++it) {
        for (const QStringList &line : it.value()) {
            QStringList names;
            for (const QString &name : line) {
                if (!removed(name))
                    names.append(name);
            }
            if (!names.isEmpty())
                rest.lines[it.key()].append(names);
        }
    }
    for (auto it = places.floating.cbegin(); it != places.floating.cend(); ++it) {
        if (!removed(it.key()))
            rest.floating.insert(it.key(), it.value());
    }
    return rest;
}

} // namespace

bool RyToolBarKitPrivate::restoreNow()
{
    if (m_isRestored || !findEverything())
        return false;
    bool found = false;
    readSteps();
    restore(readStored(&found));
    bringBackRequired();
    beginStep();
    return found;
}

bool RyToolBarKitPrivate::restoreLayout(const QByteArray &value)
{
    if (!m_window)
        return false;
    const bool isFirst = !m_isRestored;
    if (isFirst && findEverything())
        restore(KitLayout());
    if (!manager)
        startAgain();
    if (isFirst)
        beginStep();
    else
        recordSteps();
    KitLayout layout;
    FormerLayout former;
    QString reason;
    if (!value.isEmpty() && former.read(value)) {
        collect();
        layout = converted(former);
    } else if (!value.isEmpty()) {
        layout = KitLayout::fromJson(value, &reason);
    }
    if (!reason.isEmpty()) {
        Q_EMIT m_kit->layoutRefused(reason);
        return false;
    }
    const QByteArray before = store.isSet() ? store.value() : m_value;
    restore(layout);
    bringBackRequired();
    if (isFirst)
        beginStep();
    m_value = before.isEmpty() ? KitLayout().toJson() : before;
    showLayoutInDialog();
    storeIfChanged();
    return true;
}

QByteArray RyToolBarKitPrivate::saveLayout()
{
    collect();
    return m_layout.toJson();
}

bool RyToolBarKitPrivate::isDefault()
{
    collect();
    return m_layout.isDefault();
}

// The stored value or, if that is refused, its second copy.
KitLayout RyToolBarKitPrivate::readStored(bool *found)
{
    const QList<QByteArray> values = {store.value(), store.copy()};
    for (const QByteArray &value : values) {
        if (value.isEmpty())
            continue;
        FormerLayout former;
        QString reason;
        *found = true;
        if (former.read(value))
            return converted(former);
        KitLayout layout = KitLayout::fromJson(value, &reason);
        if (reason.isEmpty())
            return layout;
        *found = false;
        Q_EMIT m_kit->layoutRefused(reason);
    }
    return KitLayout();
}

// A manager refers to objects without an objectName by text or title.
KitLayout RyToolBarKitPrivate::converted(const FormerLayout &former) const
{
    QHash<QString, QString> actionNames;
    const auto actions = manager->actions();
    for (const QAction *action : actions) {
        const bool isNamed = !action->objectName().isEmpty();
        actionNames.insert(isNamed ? action->objectName() : action->text(),
                           m_actionNames.nameOf(action));
    }
    QHash<QString, QString> names;
    const auto toolBars = manager->toolBars();
    for (const QToolBar *toolBar : toolBars) {
        const bool isNamed = !toolBar->objectName().isEmpty();
        names.insert(isNamed ? toolBar->objectName() : toolBar->windowTitle(),
                     m_toolBarNames.nameOf(toolBar));
    }

    KitLayout layout = m_layout;
    for (const FormerLayout::ToolBar &saved : former.toolBars) {
        KitToolBar &toolBar = layout.toolBars[names.value(saved.name, saved.name)];
        toolBar.custom = saved.custom;
        toolBar.customized = true;
        toolBar.title = saved.title;
        toolBar.entries.clear();
        for (const QString &entry : saved.entries)
            toolBar.entries.append(entry.isNull() ? entry : actionNames.value(entry, entry));
    }
    // What the program had then is not known, so nothing counts as new.
    for (const QToolBar *toolBar : toolBars) {
        KitToolBar &record = layout.toolBars[m_toolBarNames.nameOf(toolBar)];
        record.known += newNames(m_defaults.value(toolBar), record.known);
        const auto shown = former.shown.constFind(toolBar->objectName());
        const bool shownByProgram = m_shownByProgram.value(toolBar, true);
        if (shown == former.shown.constEnd() || shown.value() == shownByProgram)
            continue;
        record.visibility = shown.value() ? KitToolBar::Shown : KitToolBar::Hidden;
        record.shownByProgram = shownByProgram;
    }
    if (!former.places.isEmpty())
        layout.places = former.places;
    return layout;
}

void RyToolBarKitPrivate::restore(const KitLayout &layout)
{
    const KitLayout before = m_layout;
    m_layout = layout;
    followFormerNames();
    createCustomToolBars();
    m_isRestored = true;
    placeAll();
    applyPlaces();
    const auto toolBars = manager->toolBars();
    for (QToolBar *toolBar : toolBars) {
        undoVisibility(toolBar, before.toolBars.value(m_toolBarNames.nameOf(toolBar)));
        applyVisibility(toolBar);
        applyLook(toolBar);
    }
    applyLock();
    collect();
    m_value = m_layout.toJson();
}

void RyToolBarKitPrivate::createCustomToolBars()
{
    const auto toolBars = manager->toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (!m_layout.toolBars.value(m_toolBarNames.nameOf(toolBar)).custom)
            manager->deleteToolBar(toolBar); // leaves those of the program alone
    }
    const auto records = m_layout.toolBars;
    for (auto it = records.cbegin(); it != records.cend(); ++it) {
        QObject *const existing = m_toolBarNames.object(it.key());
        if (!it->custom)
            continue;
        if (existing) {
            // Not a toolbar of the program that has been given the name.
            if (manager->isDefaultToolBar(static_cast<QToolBar *>(existing)))
                m_layout.toolBars.remove(it.key());
            else
                static_cast<QToolBar *>(existing)->setWindowTitle(it->title);
            continue;
        }
        nameCustomToolBar(manager->createToolBar(it->title), it.key());
    }
}

void RyToolBarKitPrivate::nameCustomToolBar(QToolBar *toolBar, const QString &name)
{
    if (toolBar->objectName() != name)
        toolBar->setObjectName(name);
    m_toolBarNames.add(toolBar, name);
    m_customToolBars.append(toolBar);
    toolBar->setMovable(isAnyMovable());
    watchToolBar(toolBar);
    m_looks->setLocked(toolBar, m_layout.locked && (features & RyToolBarKit::ToolBarMenus));
}

void RyToolBarKitPrivate::followFormerNames()
{
    for (auto it = m_formerNames.cbegin(); it != m_formerNames.cend(); ++it) {
        QObject *const object = it.value();
        const bool isToolBar = qobject_cast<QToolBar *>(object);
        const StableNames &names = isToolBar ? m_toolBarNames : m_actionNames;
        const QString name = names.nameOf(object);
        if (object && !name.isEmpty() && !names.object(it.key()))
            renameInLayout(it.key(), name, isToolBar);
    }
}

void RyToolBarKitPrivate::renameInLayout(const QString &before, const QString &now, bool isToolBar)
{
    if (!isToolBar) {
        for (KitToolBar &toolBar : m_layout.toolBars) {
            toolBar.entries = replaced(toolBar.entries, before, now);
            toolBar.known = replaced(toolBar.known, before, now);
        }
        return;
    }
    m_history.renameToolBar(before, now);
    if (m_layout.toolBars.contains(before))
        m_layout.toolBars.insert(now, m_layout.toolBars.take(before));
    // The later place is that of the former name, as the program had that when it last ran.
    const KitPlaces places = m_layout.places;
    if (without(places, [&](const QString &name) { return name == before; }) == places)
        return;
    m_layout.places = without(places, [&](const QString &name) { return name == now; });
    for (QList<QStringList> &lines : m_layout.places.lines) {
        for (QStringList &line : lines)
            line = replaced(line, before, now);
    }
    if (m_layout.places.floating.contains(before))
        m_layout.places.floating.insert(now, m_layout.places.floating.take(before));
}

void RyToolBarKitPrivate::placeAll()
{
    followFormerNames();
    const auto toolBars = manager->toolBars();
    for (QToolBar *toolBar : toolBars)
        place(toolBar);
}

void RyToolBarKitPrivate::place(QToolBar *toolBar)
{
    const QStringList names = entriesOf(toolBar);
    const QSet<QString> takenOff = m_takenOff.value(toolBar);
    QList<QAction *> actions;
    for (const QString &name : names) {
        QObject *const action = m_actionNames.object(name);
        if (name.isNull() || (action && !takenOff.contains(name)))
            actions.append(static_cast<QAction *>(action));
    }
    manager->setToolBar(toolBar, actions);
    putBackButtons(toolBar);
}

void RyToolBarKitPrivate::putBackButtons(QToolBar *toolBar)
{
    const QSet<const QAction *> made = m_newButtons.take(toolBar);
    const auto actions = manager->actions(toolBar);
    for (QAction *action : actions) {
        if (made.contains(action))
            m_buttons.putBack(toolBar, action);
    }
}

// What is to be on a toolbar, with the names that this run does not have.
QStringList RyToolBarKitPrivate::entriesOf(QToolBar *toolBar) const
{
    const KitToolBar record = m_layout.toolBars.value(m_toolBarNames.nameOf(toolBar));
    QStringList defaults = m_defaults.value(toolBar);
    if (record.custom)
        return record.entries;
    if (!record.customized)
        return defaults;
    QSet<QString> missing;
    if (features & RyToolBarKit::AddNewDefaults)
        missing = namesIn(newNames(defaults, record.known));
    return mergedEntries(record.entries, defaults, missing);
}

QStringList RyToolBarKitPrivate::namesOf(const QList<QAction *> &actions) const
{
    QStringList names;
    for (const QAction *action : actions)
        names.append(action ? m_actionNames.nameOf(action) : QString());
    return names;
}

void RyToolBarKitPrivate::applyPlaces()
{
    if (!(features & RyToolBarKit::KeepPlaces))
        return;
    const KitPlaces places = m_layout.places.isEmpty()
        ? m_placesByProgram
        : ToolBarPlaces::merged(m_layout.places, m_placesByProgram);
    ToolBarPlaces::apply(m_window, toolBarNames(manager->toolBars()), places);
}

// The user's choice holds as long as the program starts with what it had then.
void RyToolBarKitPrivate::applyVisibility(QToolBar *toolBar)
{
    const QString name = m_toolBarNames.nameOf(toolBar);
    const auto record = m_layout.toolBars.find(name);
    if (!(features & RyToolBarKit::KeepVisibility) || record == m_layout.toolBars.end()
        || record->visibility == KitToolBar::AsProgrammed)
        return;
    if (record->shownByProgram == m_shownByProgram.value(toolBar, true))
        toolBar->setVisible(record->visibility == KitToolBar::Shown);
    else
        record->visibility = KitToolBar::AsProgrammed;
}

void RyToolBarKitPrivate::undoVisibility(QToolBar *toolBar, const KitToolBar &before)
{
    const bool shown = m_shownByProgram.value(toolBar, true);
    if ((features & RyToolBarKit::KeepVisibility) && before.visibility != KitToolBar::AsProgrammed
        && toolBar->isHidden() == shown)
        toolBar->setVisible(shown);
}

void RyToolBarKitPrivate::visibilityChosen(bool shown)
{
    QToolBar *const toolBar = qobject_cast<QToolBar *>(sender()->parent());
    const QString name = m_toolBarNames.nameOf(toolBar);
    if (name.isEmpty())
        return;
    KitToolBar &record = m_layout.toolBars[name];
    record.shownByProgram = m_shownByProgram.value(toolBar, true);
    if (shown == record.shownByProgram)
        record.visibility = KitToolBar::AsProgrammed;
    else
        record.visibility = shown ? KitToolBar::Shown : KitToolBar::Hidden;
    m_storeTimer.start();
}

void RyToolBarKitPrivate::bringBackRequired()
{
    if (m_required.isEmpty())
        return;
    QSet<QString> placed;
    // So that it is the same toolbar at each start.
    QMap<QString, QToolBar *> byName;
    const auto all = manager->toolBars();
    for (QToolBar *toolBar : all) {
        placed += namesIn(namesOf(manager->actions(toolBar)));
        byName.insert(m_toolBarNames.nameOf(toolBar), toolBar);
    }
    const auto toolBars = byName;
    const auto required = m_required;
    for (const QPointer<QAction> &action : required) {
        const QString name = m_actionNames.nameOf(action);
        if (name.isEmpty() || placed.contains(name))
            continue;
        for (QToolBar *toolBar : toolBars) {
            if (!m_defaults.value(toolBar).contains(name))
                continue;
            KitToolBar &record = m_layout.toolBars[m_toolBarNames.nameOf(toolBar)];
            record.entries = mergedEntries(record.entries, m_defaults.value(toolBar), {name});
            place(toolBar);
            break;
        }
    }
    collect();
    m_value = m_layout.toJson();
}

// Brings the layout up to date with what the user has done.
void RyToolBarKitPrivate::collect()
{
    if (!manager || !m_isRestored)
        return;
    adoptCreatedToolBars();
    const auto toolBars = manager->toolBars();
    for (QToolBar *toolBar : toolBars)
        collectToolBar(toolBar);
    forgetRemovedToolBars();
    if (features & RyToolBarKit::KeepPlaces)
        collectPlaces();
}

void RyToolBarKitPrivate::collectToolBar(QToolBar *toolBar)
{
    const QStringList defaults = m_defaults.value(toolBar);
    const QStringList before = entriesOf(toolBar);
    const QStringList entries =
        mergedEntries(namesOf(manager->actions(toolBar)), before, absentNames(toolBar, before));
    KitToolBar &record = m_layout.toolBars[m_toolBarNames.nameOf(toolBar)];
    record.custom = !manager->isDefaultToolBar(toolBar);
    record.title = record.custom ? toolBar->windowTitle() : QString();
    record.customized = record.custom || entries != defaults;
    record.entries = record.customized ? entries : QStringList();
    if (record.customized)
        record.known += newNames(defaults, record.known);
    else
        record.known.clear();
}

// The names that the user cannot have removed, because they were not there to be removed.
QSet<QString> RyToolBarKitPrivate::absentNames(QToolBar *toolBar, const QStringList &names) const
{
    QSet<QString> absent = m_takenOff.value(toolBar);
    for (const QString &name : names) {
        if (!name.isNull()
            && (!m_actionNames.object(name) || (m_dialog && !m_namesInDialog.contains(name))))
            absent.insert(name);
    }
    return absent;
}

void RyToolBarKitPrivate::forgetRemovedToolBars()
{
    QSet<QString> removed;
    for (auto it = m_layout.toolBars.begin(); it != m_layout.toolBars.end();) {
        if (it->custom && !m_toolBarNames.object(it.key())) {
            removed.insert(it.key());
            it = m_layout.toolBars.erase(it);
        } else {
            ++it;
        }
    }
    m_layout.places = without(m_layout.places,
                              [&removed](const QString &name) { return removed.contains(name); });
}

void RyToolBarKitPrivate::collectPlaces()
{
    const KitPlaces now = ToolBarPlaces::read(m_window, toolBarNames(manager->toolBars()));
    const auto isGone = [this](const QString &name) { return !m_toolBarNames.object(name); };
    const bool isAllThere = without(m_layout.places, isGone) == m_layout.places;
    if (isAllThere && now == without(m_placesByProgram, isGone))
        m_layout.places = KitPlaces();
    else
        m_layout.places = ToolBarPlaces::merged(now, m_layout.places);
}

QHash<const QToolBar *, QString>
RyToolBarKitPrivate::toolBarNames(const QList<QToolBar *> &toolBars) const
{
    QHash<const QToolBar *, QString> names;
    for (const QToolBar *toolBar : toolBars)
        names.insert(toolBar, m_toolBarNames.nameOf(toolBar));
    return names;
}

bool RyToolBarKitPrivate::storeIfChanged()
{
    m_storeTimer.stop();
    if (!manager || !m_isRestored)
        return false;
    recordSteps();
    const QByteArray value = m_layout.toJson();
    if (value == m_value)
        return false;
    m_value = value;
    if (features & RyToolBarKit::StoreChanges)
        store.write(value);
    Q_EMIT m_kit->layoutChanged();
    return true;
}

void RyToolBarKitPrivate::storeChanges()
{
    storeIfChanged();
}

void RyToolBarKitPrivate::storeNow()
{
    const bool isStored = storeIfChanged();
    if (writeSteps() || isStored)
        store.sync();
}
