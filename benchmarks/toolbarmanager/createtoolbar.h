// SPDX-License-Identifier: MIT

#ifndef CREATETOOLBAR_H
#define CREATETOOLBAR_H

#include "managedscene.h"
#include "sceneside.h"

/*
 * Calls createToolBar() for the given number of toolbars; there are none before.
 */
class CreateToolBarOurs : public SceneSide<ManagedScene>
{
public:
    explicit CreateToolBarOurs(const Size &size);

    void run() override;
    void finish() override;

private:
    const int m_count;
    const QString m_title = QStringLiteral("Custom Toolbar");
};

/*
 * Bare Qt uses a counter: it creates each toolbar, names it with the next number and adds it to the
 * window.
 */
class CreateToolBarBare : public SceneSide<Scene>
{
public:
    explicit CreateToolBarBare(const Size &size);

    void run() override;
    void finish() override;

private:
    const int m_count;
    const QString m_title = QStringLiteral("Custom Toolbar");
    QList<QToolBar *> m_created;
};

#endif // CREATETOOLBAR_H
