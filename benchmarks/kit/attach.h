// SPDX-License-Identifier: MIT

#ifndef ATTACH_H
#define ATTACH_H

#include "menuscene.h"
#include "sceneside.h"

/*
 * Attaches a kit, which finds everything.
 */
class AttachKit : public SceneSide<MenuScene>
{
public:
    using SceneSide::SceneSide;

    void run() override;
    void finish() override;
    QStringList result() override;

private:
    std::unique_ptr<RyToolBarKit> m_kit;
};

/*
 * Registers the same by hand.
 */
class RegisterByHand : public SceneSide<MenuScene>
{
public:
    using SceneSide::SceneSide;

    void run() override;
    void finish() override;
    QStringList result() override;

private:
    std::unique_ptr<RyToolBarManager> m_manager;
};

#endif // ATTACH_H
