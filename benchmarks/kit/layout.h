// SPDX-License-Identifier: MIT

#ifndef LAYOUT_H
#define LAYOUT_H

#include "menuscene.h"
#include "sceneside.h"

#include <QSettings>
#include <QTemporaryDir>

/*
 * Stores the layout after a toolbar was moved: what the kit does when no toolbar has moved for a
 * while. Qt writes the file later. All toolbars are customized.
 */
class StoreMove : public SceneSide<KitScene>
{
public:
    explicit StoreMove(const Size &size);

    void prepare() override;
    void run() override;
    QStringList result() override;

private:
    QTemporaryDir m_folder;
    QSettings m_settings;
    bool m_isMoved = false;
};

/*
 * The two calls of a program without the kit.
 */
class StoreMoveByHand : public SceneSide<ManagedScene>
{
public:
    explicit StoreMoveByHand(const Size &size);

    void prepare() override;
    void run() override;
    QStringList result() override;

private:
    QTemporaryDir m_folder;
    QSettings m_settings;
    bool m_isMoved = false;
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
