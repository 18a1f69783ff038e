// SPDX-License-Identifier: MIT

#include "kitlayout.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

namespace {

const int Format = 1;
const int LargestValue = 1000000;
const int MostToolBars = 1000;
const int MostEntries = 1000;
const int SmallestIcon = 8;
const int LargestIcon = 128;

QJsonArray arrayOf(const QStringList &names)
{
    QJsonArray array;
    for (const QString &name : names)
        array.append(name.isNull() ? QJsonValue() : QJsonValue(name));
    return array;
}

// Each name once; null strings only if there may be separators.
QStringList namesIn(const QJsonValue &value, bool separators)
{
    QStringList names;
    QSet<QString> found;
    const QJsonArray array = value.toArray();
    for (const auto &item : array) {
        const QString name = item.toString();
        if (separators && item.isNull()) {
            names.append(QString());
        } else if (!name.isEmpty() && !found.contains(name)) {
            found.insert(name);
            names.append(name);
        }
    }
    return names;
}

QJsonObject without(QJsonObject object, const QStringList &keys)
{
    for (const QString &key : keys)
        object.remove(key);
    return object;
}

QStringList toolBarKeys()
{
    return {QStringLiteral("entries"),
            QStringLiteral("iconSize"),
            QStringLiteral("iconSizeByProgram"),
            QStringLiteral("known"),
            QStringLiteral("shown"),
            QStringLiteral("shownByProgram"),
            QStringLiteral("textPosition"),
            QStringLiteral("textPositionByProgram"),
            QStringLiteral("title")};
}

void write(const KitLook &look, QJsonObject *object)
{
    if (look.iconSize != 0) {
        object->insert(QStringLiteral("iconSize"), look.iconSize);
        object->insert(QStringLiteral("iconSizeByProgram"), look.iconSizeByProgram);
    }
    if (!look.textPosition.isEmpty()) {
        object->insert(QStringLiteral("textPosition"), look.textPosition);
        object->insert(QStringLiteral("textPositionByProgram"), look.textPositionByProgram);
    }
}

KitLook lookOf(const QJsonObject &object)
{
    const QStringList positions = {QStringLiteral("icons"), QStringLiteral("text"),
                                   QStringLiteral("beside"), QStringLiteral("under")};
    KitLook look;
    const int iconSize = object.value(QStringLiteral("iconSize")).toInt();
    if (iconSize >= SmallestIcon && iconSize <= LargestIcon) {
        look.iconSize = iconSize;
        look.iconSizeByProgram = object.value(QStringLiteral("iconSizeByProgram")).toInt();
    }
    const QString position = object.value(QStringLiteral("textPosition")).toString();
    if (positions.contains(position)) {
        look.textPosition = position;
        look.textPositionByProgram =
            object.value(QStringLiteral("textPositionByProgram")).toString(positions.first());
    }
    return look;
}

QJsonObject objectOf(const KitToolBar &toolBar)
{
    QJsonObject object = toolBar.others;
    if (toolBar.custom)
        object.insert(QStringLiteral("title"), toolBar.title);
    if (toolBar.custom || toolBar.customized)
        object.insert(QStringLiteral("entries"), arrayOf(toolBar.entries));
    if (toolBar.customized && !toolBar.custom)
        object.insert(QStringLiteral("known"), arrayOf(toolBar.known));
    if (toolBar.visibility != KitToolBar::AsProgrammed) {
        object.insert(QStringLiteral("shown"), toolBar.visibility == KitToolBar::Shown);
        object.insert(QStringLiteral("shownByProgram"), toolBar.shownByProgram);
    }
    write(toolBar.look, &object);
    return object;
}

KitToolBar toolBarOf(const QJsonObject &object)
{
    KitToolBar toolBar;
    toolBar.custom = object.contains(QStringLiteral("title"));
    toolBar.title = object.value(QStringLiteral("title")).toString();
    toolBar.customized = object.contains(QStringLiteral("entries"));
    toolBar.entries = namesIn(object.value(QStringLiteral("entries")), true);
    toolBar.known = namesIn(object.value(QStringLiteral("known")), false);
    if (object.contains(QStringLiteral("shown"))) {
        toolBar.visibility =
            object.value(QStringLiteral("shown")).toBool() ? KitToolBar::Shown : KitToolBar::Hidden;
    }
    toolBar.shownByProgram = object.value(QStringLiteral("shownByProgram")).toBool(true);
    toolBar.look = lookOf(object);
    toolBar.others = without(object, toolBarKeys());
    return toolBar;
}

// The members of a JSON object as text, by their keys.
using Members = QMap<QString, QByteArray>;

// As they are when they have been read again: text that is not Unicode may differ then.
Members memberOf(const QString &key, const QJsonValue &value)
{
    const QByteArray built =
        QJsonDocument(QJsonObject{{key, value}}).toJson(QJsonDocument::Compact);
    const QJsonDocument read = QJsonDocument::fromJson(built);
    const QByteArray text = read.toJson(QJsonDocument::Compact);
    return {{read.object().keys().constFirst(), text.mid(1, text.size() - 2)}};
}

void add(const Members &member, Members *members)
{
    members->insert(member.firstKey(), member.first());
}

Members membersOf(const QJsonObject &object)
{
    Members members;
    for (auto it = object.constBegin(); it != object.constEnd(); ++it)
        add(memberOf(it.key(), it.value()), &members);
    return members;
}

// In the order of an object that was read, for which Qt sorts some keys differently.
QStringList sorted(const QStringList &keys)
{
    QJsonObject object;
    for (const QString &key : keys)
        object.insert(key, QJsonValue());
    const QByteArray built = QJsonDocument(object).toJson(QJsonDocument::Compact);
    return QJsonDocument::fromJson(built).object().keys();
}

QByteArray joined(const Members &members, const QStringList &keys)
{
    QList<QByteArray> texts;
    for (const QString &key : keys)
        texts.append(members.value(key));
    return '{' + texts.join(',') + '}';
}

QByteArray joined(const Members &members)
{
    return joined(members, sorted(members.keys()));
}

QStringList areaNames()
{
    return {QStringLiteral("bottom"), QStringLiteral("left"), QStringLiteral("right"),
            QStringLiteral("top")};
}

QJsonObject objectOf(const KitPlaces &places)
{
    QJsonObject object;
    for (auto it = places.lines.cbegin(); it != places.lines.cend(); ++it) {
        QJsonArray lines;
        for (const QStringList &line : it.value())
            lines.append(arrayOf(line));
        object.insert(it.key(), lines);
    }
    QJsonObject floating;
    for (auto it = places.floating.cbegin(); it != places.floating.cend(); ++it)
        floating.insert(it.key(), QJsonArray() << it.value().x() << it.value().y());
    if (!floating.isEmpty())
        object.insert(QStringLiteral("floating"), floating);
    return object;
}

KitPlaces placesOf(const QJsonObject &object)
{
    KitPlaces places;
    QSet<QString> found;
    const QStringList areas = areaNames();
    for (const QString &area : areas) {
        const QJsonArray lines = object.value(area).toArray();
        for (const auto &line : lines) {
            QStringList names;
            const QStringList all = namesIn(line, false);
            for (const QString &name : all) {
                if (!found.contains(name))
                    names.append(name);
                found.insert(name);
            }
            if (!names.isEmpty())
                places.lines[area].append(names);
        }
    }
    const QJsonObject floating = object.value(QStringLiteral("floating")).toObject();
    for (auto it = floating.constBegin(); it != floating.constEnd(); ++it) {
        const QJsonArray position = it.value().toArray();
        places.floating.insert(it.key(), QPoint(position.at(0).toInt(), position.at(1).toInt()));
    }
    return places;
}

bool isTooLarge(const QJsonObject &layout)
{
    const QJsonObject toolBars = layout.value(QStringLiteral("toolBars")).toObject();
    for (auto it = toolBars.constBegin(); it != toolBars.constEnd(); ++it) {
        if (it.value().toObject().value(QStringLiteral("entries")).toArray().size() > MostEntries)
            return true;
    }
    return toolBars.size() > MostToolBars;
}

// Why a value is refused, or an empty string.
QString refusal(const QJsonObject &value)
{
    const QJsonValue format = value.value(QStringLiteral("format"));
    const QJsonObject layout = value.value(QStringLiteral("layout")).toObject();
    if (!format.isDouble() || format.toDouble() < 1
        || !value.value(QStringLiteral("layout")).isObject())
        return QStringLiteral("the value is not a layout of toolbars");
    if (format.toDouble() > Format)
        return QStringLiteral("the layout is from a newer version");
    const QByteArray compact = QJsonDocument(layout).toJson(QJsonDocument::Compact);
    if (value.value(QStringLiteral("checksum")).toString()
        != QString::fromLatin1(KitLayout::checksum(compact)))
        return QStringLiteral("the layout is damaged: its checksum is wrong");
    if (isTooLarge(layout))
        return QStringLiteral("the layout has too many toolbars or entries");
    return QString();
}

} // namespace

bool operator==(const KitPlaces &a, const KitPlaces &b)
{
    return a.lines == b.lines && a.floating == b.floating;
}

bool operator==(const KitLook &a, const KitLook &b)
{
    return a.iconSize == b.iconSize && a.iconSizeByProgram == b.iconSizeByProgram
        && a.textPosition == b.textPosition && a.textPositionByProgram == b.textPositionByProgram;
}

bool operator==(const KitToolBar &a, const KitToolBar &b)
{
    return a.title == b.title && a.custom == b.custom && a.customized == b.customized
        && a.entries == b.entries && a.known == b.known && a.visibility == b.visibility
        && a.shownByProgram == b.shownByProgram && a.look == b.look && a.others == b.others;
}

bool KitLayout::isDefault() const
{
    for (const KitToolBar &toolBar : toolBars) {
        if (!toolBar.isDefault())
            return false;
    }
    return places.isEmpty() && !locked;
}

QByteArray KitLayout::layoutJson() const
{
    Members members;
    for (auto it = toolBars.cbegin(); it != toolBars.cend(); ++it) {
        Written &written = m_written[it.key()];
        if (!(written.toolBar == it.value()))
            written = {it.value(), memberOf(it.key(), objectOf(it.value()))};
        if (!it->isDefault() || !it->others.isEmpty())
            add(written.member, &members);
    }
    const QStringList keys = members.keys();
    if (keys != m_keys) {
        m_keys = keys;
        m_sortedKeys = sorted(m_keys);
    }
    Members all = membersOf(m_layoutOthers);
    all.insert(QStringLiteral("toolBars"), "\"toolBars\":" + joined(members, m_sortedKeys));
    if (!places.isEmpty())
        add(memberOf(QStringLiteral("places"), objectOf(places)), &all);
    if (locked)
        add(memberOf(QStringLiteral("locked"), true), &all);
    return joined(all);
}

QByteArray KitLayout::checksum(const QByteArray &json)
{
    return QCryptographicHash::hash(json, QCryptographicHash::Sha1).toHex();
}

QByteArray KitLayout::toJson() const
{
    const QByteArray layout = layoutJson();
    QJsonObject others = m_others;
    others.insert(QStringLiteral("checksum"), QString::fromLatin1(checksum(layout)));
    others.insert(QStringLiteral("format"), Format);
    Members all = membersOf(others);
    all.insert(QStringLiteral("layout"), "\"layout\":" + layout);
    return joined(all);
}

KitLayout KitLayout::fromJson(const QByteArray &json, QString *reason)
{
    KitLayout layout;
    if (json.size() > LargestValue) {
        *reason = QStringLiteral("the value is larger than 1 MB");
        return layout;
    }
    const QJsonObject value = QJsonDocument::fromJson(json).object();
    *reason = refusal(value);
    if (reason->isEmpty())
        layout.read(value);
    return layout;
}

void KitLayout::read(const QJsonObject &object)
{
    m_others = without(
        object, {QStringLiteral("checksum"), QStringLiteral("format"), QStringLiteral("layout")});
    const QJsonObject layout = object.value(QStringLiteral("layout")).toObject();
    m_layoutOthers = without(
        layout, {QStringLiteral("toolBars"), QStringLiteral("places"), QStringLiteral("locked")});
    const QJsonObject toolBarObjects = layout.value(QStringLiteral("toolBars")).toObject();
    for (auto it = toolBarObjects.constBegin(); it != toolBarObjects.constEnd(); ++it)
        toolBars.insert(it.key(), toolBarOf(it.value().toObject()));
    places = placesOf(layout.value(QStringLiteral("places")).toObject());
    locked = layout.value(QStringLiteral("locked")).toBool();
}
