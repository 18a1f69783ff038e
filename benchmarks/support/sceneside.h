// SPDX-License-Identifier: MIT

#ifndef SCENESIDE_H
#define SCENESIDE_H

#include "scene.h"

/*
 * A side whose result is the content of the toolbars of its scene.
 */
template <typename SceneType> class SceneSide : public Side
{
public:
    explicit SceneSide(const Size &size)
        : m_scene(size)
    {
    }

    void finish() override { settle(); }
    QStringList result() override { return describeToolBars(m_scene.window()); }

protected:
    // The content of every toolbar.
    QList<QList<QAction *>> contents(int variant) const
    {
        QList<QList<QAction *>> contents;
        for (int i = 0; i < m_scene.toolBars().size(); ++i)
            contents.append(m_scene.content(i, variant));
        return contents;
    }

    SceneType m_scene;
};

#endif // SCENESIDE_H
