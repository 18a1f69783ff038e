// SPDX-License-Identifier: MIT

#include "layouthistory.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

const int StepsFormat = 1;
const int MostSteps = 20;
const int LargestText = 1000000;
const int TextAroundSteps = 1000;

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

KitToolBar asWritten(KitToolBar toolBar)
{
    if (toolBar.visibility == KitToolBar::AsProgrammed)
        toolBar.shownByProgram = true;
    return toolBar;
}

// Most are equal.
bool areWrittenAlike(const KitToolBar &a, const KitToolBar &b)
{
    return a == b || asWritten(a) == asWritten(b);
}

} // namespace

void LayoutHistory::setBase(const KitLayout &layout)
{
    m_base.toolBars = layout.toolBars;
    m_base.places = layout.places;
}

void LayoutHistory::record(const KitLayout &layout)
{
    const Step step = difference(m_base, layout);
    if (step.isEmpty())
        return;
    setBase(layout);
    m_undo.append(step);
    if (m_undo.size() > MostSteps)
        m_undo.removeFirst();
    m_redo.clear();
    m_isChanged = true;
}

// What is to be put back to make the one before of the one now.
LayoutHistory::Step LayoutHistory::difference(const KitLayout &before, const KitLayout &now)
{
    const KitToolBar nothing;
    Step step;
    for (auto it = before.toolBars.cbegin(); it != before.toolBars.cend(); ++it) {
        const auto record = now.toolBars.constFind(it.key());
        if (areWrittenAlike(it.value(), record == now.toolBars.cend() ? nothing : record.value()))
            continue;
        step.toolBars.append(it.key());
        step.records.toolBars.insert(it.key(), it.value());
    }
    for (auto it = now.toolBars.cbegin(); it != now.toolBars.cend(); ++it) {
        if (!before.toolBars.contains(it.key()) && !areWrittenAlike(it.value(), nothing))
            step.toolBars.append(it.key());
    }
    step.hasPlaces = !(before.places == now.places);
    if (step.hasPlaces)
        step.records.places = before.places;
    return step;
}

void LayoutHistory::exchange(KitLayout *layout, QList<Step> *from, QList<Step> *to)
{
    if (from->isEmpty())
        return;
    const Step step = from->takeLast();
    Step back;
    back.toolBars = step.toolBars;
    back.hasPlaces = step.hasPlaces;
    for (const QString &name : step.toolBars) {
        if (layout->toolBars.contains(name))
            back.records.toolBars.insert(name, layout->toolBars.take(name));
        if (step.records.toolBars.contains(name))
            layout->toolBars.insert(name, step.records.toolBars.value(name));
    }
    if (step.hasPlaces) {
        back.records.places = layout->places;
        layout->places = step.records.places;
    }
    to->append(back);
    m_isChanged = true;
}

void LayoutHistory::renameToolBar(const QString &before, const QString &now)
{
    for (QList<Step> *steps : {&m_undo, &m_redo}) {
        for (Step &step : *steps) {
            if (!step.toolBars.contains(before))
                continue;
            step.toolBars.removeAll(now);
            step.toolBars.replace(step.toolBars.indexOf(before), now);
            step.records.toolBars.remove(now);
            if (step.records.toolBars.contains(before))
                step.records.toolBars.insert(now, step.records.toolBars.take(before));
            step.json.clear();
            m_isChanged = true;
        }
    }
}

QByteArray LayoutHistory::toJson()
{
    int rest = LargestText - TextAroundSteps;
    const QByteArray undo = joined(&m_undo, &rest);
    const QByteArray redo = joined(&m_redo, &rest);
    const QByteArray steps = "{\"redo\":[" + redo + "],\"undo\":[" + undo + "]}";
    m_isChanged = false;
    return "{\"checksum\":\"" + KitLayout::checksum(steps)
        + "\",\"format\":" + QByteArray::number(StepsFormat) + ",\"steps\":" + steps + '}';
}

// The last ones that are not larger than the rest.
QByteArray LayoutHistory::joined(QList<Step> *steps, int *rest)
{
    QByteArray all;
    for (int i = int(steps->size()) - 1; i >= 0; --i) {
        Step &step = (*steps)[i];
        if (step.json.isEmpty())
            step.json = written(step);
        *rest -= int(step.json.size());
        if (*rest < 0)
            break;
        all.prepend(all.isEmpty() ? step.json : step.json + ',');
    }
    return all;
}

// The records are written as a layout.
QByteArray LayoutHistory::written(const Step &step)
{
    QJsonObject object;
    object.insert(QStringLiteral("hasPlaces"), step.hasPlaces);
    object.insert(QStringLiteral("records"),
                  QJsonDocument::fromJson(step.records.toJson()).object());
    object.insert(QStringLiteral("toolBars"), QJsonArray::fromStringList(step.toolBars));
    return compact(object);
}

LayoutHistory LayoutHistory::fromJson(const QByteArray &json)
{
    LayoutHistory history;
    if (json.size() > LargestText)
        return history;
    const QJsonObject value = QJsonDocument::fromJson(json).object();
    const QJsonObject steps = value.value(QStringLiteral("steps")).toObject();
    if (value.value(QStringLiteral("format")).toInt() != StepsFormat
        || value.value(QStringLiteral("checksum")).toString()
            != QString::fromLatin1(KitLayout::checksum(compact(steps))))
        return history;
    history.m_undo = read(steps.value(QStringLiteral("undo")).toArray());
    history.m_redo = read(steps.value(QStringLiteral("redo")).toArray());
    return history;
}

QList<LayoutHistory::Step> LayoutHistory::read(const QJsonArray &array)
{
    QList<Step> steps;
    for (const auto &item : array) {
        const QJsonObject object = item.toObject();
        QString reason;
        Step step;
        step.records = KitLayout::fromJson(
            compact(object.value(QStringLiteral("records")).toObject()), &reason);
        const QJsonArray names = object.value(QStringLiteral("toolBars")).toArray();
        for (const auto &name : names)
            step.toolBars.append(name.toString());
        step.hasPlaces = object.value(QStringLiteral("hasPlaces")).toBool();
        step.json = compact(object);
        if (reason.isEmpty())
            steps.append(step);
    }
    return steps.mid(qMax(0, int(steps.size()) - MostSteps));
}
