// SPDX-License-Identifier: MIT

#include "kitmodel.h"

namespace {

const QString Separator = "|";
const int MostSteps = 20;

// The place for a name of the model among the entries.
int placeOf(const QString &name, const QStringList &entries, const QStringList &model)
{
    const int index = model.indexOf(name);
    int separators = 0;
    int place = 0;
    int before = index - 1;
    for (; before >= 0; --before) {
        if (model.at(before) == Separator)
            ++separators;
        else if (entries.contains(model.at(before)))
            break;
    }
    if (before >= 0)
        place = entries.indexOf(model.at(before)) + 1;
    for (; separators > 0 && place < entries.size() && entries.at(place) == Separator; --separators)
        ++place;
    if (place > 0)
        return place;
    for (int after = index + 1; after < model.size(); ++after) {
        if (model.at(after) == Separator && entries.value(0) == Separator)
            return 0;
        if (model.at(after) != Separator && entries.contains(model.at(after)))
            return entries.indexOf(model.at(after));
    }
    return 0;
}

QStringList merged(QStringList entries, const QStringList &model, const QSet<QString> &missing)
{
    for (const QString &name : model) {
        if (missing.contains(name) && !entries.contains(name))
            entries.insert(placeOf(name, entries, model), name);
    }
    return entries;
}

// What a program can put on its toolbars.
QMap<QString, QStringList> defaultsOf(const KitModel::Release &release)
{
    QMap<QString, QStringList> defaults;
    for (auto it = release.toolBars.cbegin(); it != release.toolBars.cend(); ++it) {
        defaults[it.key()];
        for (const QString &name : it.value()) {
            if (name == Separator || release.actions.contains(name))
                defaults[it.key()] << name;
        }
    }
    return defaults;
}

} // namespace

bool operator==(const KitModel::ToolBar &a, const KitModel::ToolBar &b)
{
    return a.title == b.title && a.custom == b.custom && a.customized == b.customized
        && a.entries == b.entries && a.known == b.known && a.hidden == b.hidden
        && a.iconSize == b.iconSize && a.textPosition == b.textPosition;
}

void KitModel::start(const Release &release, const Layout &stored, const Steps &steps)
{
    m_release = release;
    m_defaults = defaultsOf(release);
    takeOver(stored, steps);
    bringBackRequired();
}

void KitModel::takeOver(const Layout &layout, const Steps &steps)
{
    m_steps = steps;
    show(layout);
}

void KitModel::restore(const Layout &layout, bool isRequiredThere)
{
    show(layout);
    if (isRequiredThere)
        bringBackRequired();
}

void KitModel::show(const Layout &layout)
{
    m_layout = layout;
    followFormerNames();
    takeNewDefaults();
}

void KitModel::change(const Release &release)
{
    m_release = release;
    const auto defaults = defaultsOf(release);
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it) {
        if (!m_defaults.contains(it.key()))
            m_defaults.insert(it.key(), it.value());
    }
    const QStringList names = m_defaults.keys();
    for (const QString &name : names) {
        if (!release.toolBars.contains(name))
            m_defaults.remove(name);
    }
    followFormerNames();
    takeNewDefaults();
}

void KitModel::takeNewDefaults()
{
    for (auto it = m_layout.begin(); it != m_layout.end(); ++it) {
        const QStringList defaults = m_defaults.value(it.key());
        if (it->custom || !it->customized || !m_defaults.contains(it.key()))
            continue;
        QSet<QString> missing;
        for (const QString &name : defaults) {
            if (name != Separator && !it->known.contains(name))
                missing.insert(name);
        }
        set(it.key(), merged(it->entries, defaults, missing));
    }
}

void KitModel::followFormerNames()
{
    const auto formerNames = m_release.formerNames;
    for (auto it = formerNames.cbegin(); it != formerNames.cend(); ++it) {
        if (m_release.toolBars.contains(it.key()))
            renameToolBar(it.value(), it.key());
        else if (m_release.actions.contains(it.key()))
            renameAction(it.value(), it.key());
    }
}

void KitModel::renameToolBar(const QString &before, const QString &now)
{
    const ToolBar record = m_layout.take(before);
    if (!record.isDefault())
        m_layout[now] = record;
    for (QList<Step> *steps : {&m_steps.undo, &m_steps.redo}) {
        for (Step &step : *steps) {
            if (step.toolBars.contains(before))
                step.toolBars[now] = step.toolBars.take(before);
        }
    }
}

// It keeps the place that it has by its present name.
void KitModel::renameAction(const QString &before, const QString &now)
{
    for (ToolBar &toolBar : m_layout) {
        for (QStringList *names : {&toolBar.entries, &toolBar.known}) {
            if (names->contains(now))
                names->removeAll(before);
            else if (names->contains(before))
                names->replace(names->indexOf(before), now);
        }
    }
}

// To the first toolbar that has it by default, if it is on none.
void KitModel::bringBackRequired()
{
    const QString name = m_release.required;
    const QStringList names = toolBars();
    for (const QString &toolBar : names) {
        if (content(toolBar).contains(name))
            return;
    }
    for (const QString &toolBar : names) {
        const QStringList defaults = m_defaults.value(toolBar);
        if (!defaults.contains(name))
            continue;
        set(toolBar, merged(m_layout.value(toolBar).entries, defaults, {name}));
        return;
    }
}

QStringList KitModel::entries(const QString &toolBar) const
{
    const ToolBar record = m_layout.value(toolBar);
    return record.custom || record.customized ? record.entries : m_defaults.value(toolBar);
}

void KitModel::set(const QString &toolBar, const QStringList &entries)
{
    ToolBar &record = m_layout[toolBar];
    const QStringList defaults = m_defaults.value(toolBar);
    record.customized = record.custom || entries != defaults;
    record.entries = record.customized ? entries : QStringList();
    if (!record.customized)
        record.known.clear();
    for (const QString &name : defaults) {
        if (record.customized && name != Separator && !record.known.contains(name))
            record.known << name;
    }
}

void KitModel::edit(const QString &toolBar, const QStringList &content)
{
    const QStringList before = entries(toolBar);
    QSet<QString> absent;
    for (const QString &name : before) {
        if (name != Separator && !m_release.actions.contains(name))
            absent.insert(name);
    }
    set(toolBar, merged(content, before, absent));
}

void KitModel::create(const QString &toolBar, const QString &title, const QStringList &content)
{
    ToolBar &record = m_layout[toolBar];
    record.custom = true;
    record.title = title;
    set(toolBar, content);
}

void KitModel::remove(const QString &toolBar)
{
    m_layout.remove(toolBar);
}

void KitModel::restoreDefaults()
{
    const QStringList names = toolBars();
    for (const QString &name : names) {
        if (isCustom(name))
            remove(name);
        else
            reset(name);
    }
    m_layout.locked = false;
}

void KitModel::reset(const QString &toolBar)
{
    set(toolBar, m_defaults.value(toolBar));
    m_layout[toolBar].iconSize = 0;
    m_layout[toolBar].textPosition.clear();
}

void KitModel::hide(const QString &toolBar, bool hidden)
{
    m_layout[toolBar].hidden = hidden;
}

void KitModel::chooseIconSize(const QString &toolBar, int size)
{
    m_layout[toolBar].iconSize = size;
}

void KitModel::chooseTextPosition(const QString &toolBar, const QString &position)
{
    m_layout[toolBar].textPosition = position;
}

void KitModel::lock(bool locked)
{
    m_layout.locked = locked;
}

void KitModel::beginStep(const QStringList &places)
{
    m_base = m_layout;
    m_basePlaces = places;
}

void KitModel::record(const QStringList &places)
{
    Step step;
    const QStringList names = m_base.keys() + m_layout.keys();
    for (const QString &name : names) {
        if (!(m_base.value(name) == m_layout.value(name)))
            step.toolBars[name] = m_base.value(name);
    }
    if (places != m_basePlaces)
        step.places = m_basePlaces;
    beginStep(places);
    if (step.toolBars.isEmpty() && step.places.isEmpty())
        return;
    m_steps.undo << step;
    m_steps.undo = m_steps.undo.mid(qMax(0, int(m_steps.undo.size()) - MostSteps));
    m_steps.redo.clear();
}

void KitModel::exchange(QList<Step> *from, QList<Step> *to, const QStringList &places)
{
    const Step step = from->takeLast();
    Step back;
    Layout layout = m_layout;
    for (auto it = step.toolBars.cbegin(); it != step.toolBars.cend(); ++it) {
        back.toolBars[it.key()] = layout.value(it.key());
        layout[it.key()] = it.value();
    }
    if (!step.places.isEmpty())
        back.places = places;
    *to << back;
    show(layout);
}

QStringList KitModel::content(const QString &toolBar) const
{
    QStringList content;
    const QStringList all = entries(toolBar);
    for (const QString &name : all) {
        if (name == Separator || m_release.actions.contains(name))
            content << name;
    }
    return content;
}

QStringList KitModel::toolBars() const
{
    QStringList names = m_defaults.keys();
    for (auto it = m_layout.cbegin(); it != m_layout.cend(); ++it) {
        if (it->custom)
            names << it.key();
    }
    return names;
}

bool KitModel::isDefault() const
{
    for (const ToolBar &toolBar : m_layout) {
        if (!toolBar.isDefault())
            return false;
    }
    return !m_layout.locked;
}
