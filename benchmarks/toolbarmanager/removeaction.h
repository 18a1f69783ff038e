// SPDX-License-Identifier: MIT

#ifndef REMOVEACTION_H
#define REMOVEACTION_H

#include "scene.h"

#include "rytoolbarmanager.h"

/*
 * removeAction() for every action of a default toolbar that holds all of them, in their order.
 */
class RemoveActionOurs : public Side
{
public:
    explicit RemoveActionOurs(const Size &size);

    void prepare() override;
    void run() override;
    void finish() override;
    QStringList result() override;

private:
    Scene m_scene;
    // A new one for each round, because a default toolbar cannot be registered twice.
    std::unique_ptr<RyToolBarManager> m_manager;
};

/*
 * Bare Qt takes the same actions off in the same order.
 */
class RemoveActionBare : public Side
{
public:
    explicit RemoveActionBare(const Size &size);

    void prepare() override;
    void run() override;
    void finish() override;
    QStringList result() override;

private:
    Scene m_scene;
};

#endif // REMOVEACTION_H
