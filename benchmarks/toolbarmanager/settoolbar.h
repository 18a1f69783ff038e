// SPDX-License-Identifier: MIT

#ifndef SETTOOLBAR_H
#define SETTOOLBAR_H

#include "managedscene.h"
#include "sceneside.h"

/*
 * Replaces all entries of every toolbar, with the toolbars hidden.
 */
class SetToolBarOurs : public SceneSide<ManagedScene>
{
public:
    explicit SetToolBarOurs(const Size &size);

    void prepare() override;
    void run() override;

private:
    int m_variant = 0;
    QList<QList<QAction *>> m_contents;
};

/*
 * Bare Qt removes the old actions from the front, deletes the old separators and appends the new
 * content.
 */
class SetToolBarBare : public SceneSide<Scene>
{
public:
    explicit SetToolBarBare(const Size &size);

    void prepare() override;
    void run() override;

private:
    int m_variant = 0;
    QList<QList<QAction *>> m_contents;
};

/*
 * The same with the window shown.
 */
template <typename Hidden> class Shown : public Hidden
{
public:
    explicit Shown(const Size &size)
        : Hidden(size)
    {
        this->m_scene.show();
    }
};

#endif // SETTOOLBAR_H
