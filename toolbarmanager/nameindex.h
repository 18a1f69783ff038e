// SPDX-License-Identifier: MIT

#ifndef NAMEINDEX_H
#define NAMEINDEX_H

#include <QAction>
#include <QHash>
#include <QList>
#include <QMessageLogger>
#include <QToolBar>

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
        m_byObjectName.reserve(m_objects.size());
        for (Object *object : m_objects)
            insertFirst(m_byObjectName, object->objectName(), object);
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

    static void insertFirst(Index &index, const QString &name, Object *object)
    {
        Object *&first = index[name];
        if (!first)
            first = object;
    }

    // Most layouts never need it, so that it is made when it is first asked for.
    const Index &byStandInName()
    {
        if (m_byStandInName.isEmpty()) {
            for (Object *object : m_objects)
                insertFirst(m_byStandInName, Named::standInName(object), object);
        }
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
