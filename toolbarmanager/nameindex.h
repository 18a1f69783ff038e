// SPDX-License-Identifier: MIT

#ifndef NAMEINDEX_H
#define NAMEINDEX_H

#include <QAction>
#include <QHash>
#include <QList>
#include <QMessageLogger>
#include <QToolBar>

#include <algorithm>
#include <functional>

// What the warnings call an object, and the name that stands in for a missing objectName.
template <typename Object> struct NamedObject;

template <> struct NamedObject<QAction>
{
    static const char *className() { return "QAction"; }
    static const char *standInProperty() { return "text"; }
    static QString standInName(const QAction *action) { return action->text(); }
};

template <> struct NamedObject<QToolBar>
{
    static const char *className() { return "QToolBar"; }
    static const char *standInProperty() { return "windowTitle"; }
    static QString standInName(const QToolBar *toolBar) { return toolBar->windowTitle(); }
};

/*
 * Finds actions or toolbars by name.
 *
 * The names are read when the index is made, and are not followed from then on. Of several objects
 * with one name the first of the list is found.
 */
template <typename Object> class NameIndex
{
public:
    explicit NameIndex(const QList<Object *> &objects)
        : m_objects(objects)
    {
        // Thousands of objects are read much faster in the order in which they are in memory.
        QList<Object *> sorted = objects;
        std::sort(sorted.begin(), sorted.end(), std::less<Object *>());
        m_byObjectName.reserve(sorted.size());
        for (Object *object : sorted)
            m_byObjectName.insert(object->objectName(), object);
        if (m_byObjectName.size() < m_objects.size())
            insertBackwards(m_byObjectName,
                            [](const Object *object) { return object->objectName(); });
    }

    // Null if there is none. Prints nothing.
    Object *findByObjectName(const QString &name) const { return m_byObjectName.value(name); }

    // By objectName or else by the name that stands in for it, each miss with its warning.
    Object *find(const QString &name)
    {
        if (Object *const object = findByObjectName(name))
            return object;
        // Before the warning, whose handler may be the host's and delete objects.
        Object *const object = byStandInName().value(name);
        warnAboutObjectName(name);
        if (!object)
            warnAboutStandInName(name);
        return object;
    }

private:
    using Named = NamedObject<Object>;
    using Index = QHash<QString, Object *>;

    // So that of several objects with one name the first remains.
    template <typename NameOf> void insertBackwards(Index &index, NameOf nameOf) const
    {
        for (auto i = m_objects.size() - 1; i >= 0; --i)
            index.insert(nameOf(m_objects.at(i)), m_objects.at(i));
    }

    // Most layouts never need it, so that it is made when it is first asked for.
    const Index &byStandInName()
    {
        if (m_byStandInName.isEmpty())
            insertBackwards(m_byStandInName, Named::standInName);
        return m_byStandInName;
    }

    static void warnAboutObjectName(const QString &name)
    {
        QMessageLogger(nullptr, 0, nullptr)
            .warning("RyToolBarManager::restoreState(): cannot find a %s named '%s', "
                     "trying to match using '%s' instead.",
                     Named::className(), qPrintable(name), Named::standInProperty());
    }

    static void warnAboutStandInName(const QString &name)
    {
        QMessageLogger(nullptr, 0, nullptr)
            .warning("RyToolBarManager::restoreState(): cannot find a %s with matching "
                     "'%s' (looking for '%s').",
                     Named::className(), Named::standInProperty(), qPrintable(name));
    }

    QList<Object *> m_objects;
    Index m_byObjectName;
    Index m_byStandInName;
};

#endif // NAMEINDEX_H
