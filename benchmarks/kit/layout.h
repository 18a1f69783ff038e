// SPDX-License-Identifier: MIT

#ifndef LAYOUT_H
#define LAYOUT_H

#include "menuscene.h"
#include "sceneside.h"

#include <QSettings>
#include <QTemporaryDir>

/*
 * A host whose toolbars are all customized, and whose first toolbar moves before each round.
 */
template <typename SceneType> class MovedToolBar : public SceneSide<SceneType>
{
public:
    explicit MovedToolBar(const Size &size)
        : SceneSide<SceneType>(size)
        , m_settings(m_folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat)
    {
        setContents(this->m_scene, *this->m_scene.manager(), 1);
        settle();
    }

    void prepare() override
    {
        m_isMoved = !m_isMoved;
        this->m_scene.window()->addToolBar(m_isMoved ? Qt::LeftToolBarArea : Qt::TopToolBarArea,
                                           this->m_scene.toolBars().first());
        settle();
    }

private:
    QTemporaryDir m_folder;
    bool m_isMoved = false;

protected:
    QSettings m_settings;
};

/*
 * Stores the layout: what the kit does when no toolbar has moved for a while. Qt writes the file
 * later.
 */
class StoreMove : public MovedToolBar<KitScene>
{
public:
    using MovedToolBar::MovedToolBar;

    void run() override;
    QStringList result() override;
};

/*
 * The two calls of a program without the kit.
 */
class StoreMoveByHand : public MovedToolBar<ManagedScene>
{
public:
    using MovedToolBar::MovedToolBar;

    void run() override;
    QStringList result() override;
};

/*
 * Restores a layout that changes every entry of every toolbar.
 */
class RestoreLayout : public SceneSide<KitScene>
{
public:
    explicit RestoreLayout(const Size &size);

    void prepare() override;
    void run() override;

private:
    int m_variant = 0;
    QByteArray m_layouts[2];
};

/*
 * The same with the two calls of a program without the kit.
 */
class RestoreByHand : public SceneSide<ManagedScene>
{
public:
    explicit RestoreByHand(const Size &size);

    void prepare() override;
    void run() override;

private:
    int m_variant = 0;
    QByteArray m_states[2];
    QByteArray m_windowStates[2];
};

#endif // LAYOUT_H
