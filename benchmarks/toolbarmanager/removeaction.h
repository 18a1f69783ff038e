// SPDX-License-Identifier: MIT

#ifndef REMOVEACTION_H
#define REMOVEACTION_H

#include "sceneside.h"

#include "rytoolbarmanager.h"

/*
 * Calls removeAction() for every action of a default toolbar with all actions, in their order.
 */
class RemoveActionOurs : public SceneSide<Scene>
{
public:
    explicit RemoveActionOurs(const Size &size);

    void prepare() override;
    void run() override;

private:
    // A new one for each round, because a default toolbar cannot be registered twice.
    std::unique_ptr<RyToolBarManager> m_manager;
};

/*
 * Bare Qt removes the same actions in the same order.
 */
class RemoveActionBare : public SceneSide<Scene>
{
public:
    explicit RemoveActionBare(const Size &size);

    void prepare() override;
    void run() override;
};

#endif // REMOVEACTION_H
