// SPDX-License-Identifier: MIT

#ifndef HOST_H
#define HOST_H

#include "rytoolbarmanager.h"

#include <QAction>
#include <QMainWindow>
#include <QSignalSpy>
#include <QToolBar>

/*
 * A host application in small: a main window, a manager that knows it, and makers of actions and
 * toolbars by name. Fails the test if the manager ever emitted one of its signals.
 */
class Host
{
public:
    Host();
    ~Host();

    // An action of that objectName, whose text is the name with a capital first letter.
    QAction *action(const QString &name);

    // The same, registered under the category.
    QAction *registered(const QString &name, const QString &category);

    // A toolbar of the window that the manager does not know, filled with new or known actions of
    // these names; "|" is a separator. Its title is the name with a capital first letter.
    QToolBar *toolBar(const QString &name, const QStringList &content = QStringList());

    // The same, registered as a default toolbar under the category.
    QToolBar *defaultToolBar(const QString &name, const QStringList &content,
                             const QString &category);

    // The actions of these names, with null for "|".
    QList<QAction *> list(const QStringList &content);

    QMainWindow window;
    RyToolBarManager manager;

private:
    QSignalSpy m_created;
    QSignalSpy m_removed;
    QSignalSpy m_changed;
};

// In ascending order of their addresses, as the manager visits them.
QList<QToolBar *> byAddress(QList<QToolBar *> toolBars);

#endif // HOST_H
