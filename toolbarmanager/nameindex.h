// SPDX-License-Identifier: MIT

#ifndef NAMELOOKUP_H
#define NAMELOOKUP_H

#include <QAction>
#include <QHash>
#include <QList>
#include <QMessageLogger>
#include <QToolBar>

/*
 * Finding actions and toolbars by name: by objectName first, then by the property that stands in
 * for it, each miss with its warning. The first match in the order of the container counts.
 */

template <typename Object> struct StandInName;

template <> struct StandInName<QAction>
{
    static const char *className() { return "QAction"; }
    static const char *property() { return "text"; }
    static QString of(const QAction *action) { return action->text(); }
};

template <> struct StandInName<QToolBar>
{
    static const char *className() { return "QToolBar"; }
    static const char *property() { return "windowTitle"; }
    static QString of(const QToolBar *toolBar) { return toolBar->windowTitle(); }
};

template <typename Object> void warnAboutObjectName(const QString &name)
{
    QMessageLogger(nullptr, 0, nullptr)
        .warning("RyToolBarManager::restoreState(): cannot find a %s named '%s', "
                 "trying to match using '%s' instead.",
                 StandInName<Object>::className(), qPrintable(name),
                 StandInName<Object>::property());
}

template <typename Object> void warnAboutStandInName(const QString &name)
{
    QMessageLogger(nullptr, 0, nullptr)
        .warning("RyToolBarManager::restoreState(): cannot find a %s with matching "
                 "'%s' (looking for '%s').",
                 StandInName<Object>::className(), StandInName<Object>::property(),
                 qPrintable(name));
}

/*
 * Finds one name by walking the objects.
 */
template <typename Object, typename Objects>
Object *findNamed(const Objects &objects, const QString &name)
{
    for (Object *object : objects) {
        if (object->objectName() == name)
            return object;
    }
    warnAboutObjectName<Object>(name);
    for (Object *object : objects) {
        if (StandInName<Object>::of(object) == name)
            return object;
    }
    warnAboutStandInName<Object>(name);
    return nullptr;
}

/*
 * Finds many names among the same objects, with the same results and warnings as findNamed(), but
 * reads each name only once.
 */
template <typename Object> class NameIndex
{
public:
    explicit NameIndex(const QList<Object *> &objects)
        : m_objects(objects)
    {
        m_byObjectName.reserve(m_objects.size());
        for (Object *object : m_objects)
            insertFirst(m_byObjectName, object->objectName(), object);
    }

    Object *find(const QString &name)
    {
        if (Object *const object = m_byObjectName.value(name))
            return object;
        // Before the warning, whose handler may be the host's and delete objects.
        Object *const object = byStandInName().value(name);
        warnAboutObjectName<Object>(name);
        if (!object)
            warnAboutStandInName<Object>(name);
        return object;
    }

private:
    using Index = QHash<QString, Object *>;

    static void insertFirst(Index &index, const QString &name, Object *object)
    {
        Object *&first = index[name];
        if (!first)
            first = object;
    }

    // Most layouts never need it, so that it is built when it is first asked for.
    const Index &byStandInName()
    {
        if (m_byStandInName.isEmpty()) {
            for (Object *object : m_objects)
                insertFirst(m_byStandInName, StandInName<Object>::of(object), object);
        }
        return m_byStandInName;
    }

    QList<Object *> m_objects;
    Index m_byObjectName;
    Index m_byStandInName;
};

#endif // NAMELOOKUP_H
