// SPDX-License-Identifier: MIT

#include "host.h"

#include <QtTest>

#include <algorithm>
#include <functional>

namespace {

QString capitalized(const QString &name)
{
    return name.left(1).toUpper() + name.mid(1);
}

} // namespace

Host::Host()
    : m_created(&manager, &RyToolBarManager::toolBarCreated)
    , m_removed(&manager, &RyToolBarManager::toolBarRemoved)
    , m_changed(&manager, &RyToolBarManager::toolBarChanged)
{
    manager.setMainWindow(&window);
}

Host::~Host()
{
    const int emitted = m_created.count() + m_removed.count() + m_changed.count();
    QTest::qCompare(emitted, 0, "emitted signals", "none", __FILE__, __LINE__);
}

QAction *Host::action(const QString &name)
{
    if (QAction *const known = window.findChild<QAction *>(name, Qt::FindDirectChildrenOnly))
        return known;
    QAction *const action = new QAction(capitalized(name), &window);
    action->setObjectName(name);
    return action;
}

QAction *Host::registered(const QString &name, const QString &category)
{
    QAction *const made = action(name);
    manager.addAction(made, category);
    return made;
}

QToolBar *Host::toolBar(const QString &name, const QStringList &content)
{
    QToolBar *const toolBar = window.addToolBar(capitalized(name));
    toolBar->setObjectName(name);
    const auto actions = list(content);
    for (QAction *action : actions) {
        if (action)
            toolBar->addAction(action);
        else
            toolBar->addSeparator();
    }
    return toolBar;
}

QToolBar *Host::defaultToolBar(const QString &name, const QStringList &content,
                               const QString &category)
{
    QToolBar *const made = toolBar(name, content);
    manager.addDefaultToolBar(made, category);
    return made;
}

QList<QAction *> Host::list(const QStringList &content)
{
    QList<QAction *> actions;
    for (const QString &name : content)
        actions << (name == "|" ? nullptr : action(name));
    return actions;
}

QList<QToolBar *> byAddress(QList<QToolBar *> toolBars)
{
    std::sort(toolBars.begin(), toolBars.end(), std::less<QToolBar *>());
    return toolBars;
}
