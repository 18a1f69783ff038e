// SPDX-License-Identifier: MIT

#ifndef STATE_H
#define STATE_H

#include "managedscene.h"
#include "sceneside.h"

#include <QByteArray>

/*
 * saveState().
 */
class SaveOurs : public SceneSide<ManagedScene>
{
public:
    explicit SaveOurs(const Size &size);

    void run() override;
    QStringList result() override;

private:
    QByteArray m_state;
};

/*
 * Bare Qt knows the content of each toolbar and writes the same fields with QDataStream into an
 * empty QByteArray.
 */
class SaveBare : public SceneSide<Scene>
{
public:
    explicit SaveBare(const Size &size);

    void run() override;
    QStringList result() override;

private:
    QList<QList<QAction *>> m_contents;
    QByteArray m_state;
};

/*
 * restoreState() with the current state.
 */
class RestoreSameOurs : public SceneSide<ManagedScene>
{
public:
    explicit RestoreSameOurs(const Size &size);

    void run() override;
    QStringList result() override;

private:
    QByteArray m_state;
    bool m_restored = false;
};

/*
 * The same with a new manager in each round, as when a host starts.
 */
class RestoreFirstOurs : public SceneSide<Scene>
{
public:
    explicit RestoreFirstOurs(const Size &size);

    void prepare() override;
    void run() override;
    QStringList result() override;

private:
    std::unique_ptr<RyToolBarManager> m_manager;
    QByteArray m_state;
    bool m_restored = false;
};

/*
 * Bare Qt makes one table of the objectNames of all actions and one of those of all toolbars. It
 * reads the same bytes, finds every name, and compares each list with the content of the toolbar.
 */
class RestoreSameBare : public SceneSide<Scene>
{
public:
    explicit RestoreSameBare(const Size &size);

    void run() override;
    QStringList result() override;

private:
    QHash<QToolBar *, QList<QAction *>> m_contents;
    QByteArray m_state;
    bool m_restored = false;
};

/*
 * restoreState() with bytes that change every entry of every toolbar. Bare Qt's side is
 * SetToolBarBare, which does only the work on the widgets.
 */
class RestoreOtherOurs : public SceneSide<ManagedScene>
{
public:
    explicit RestoreOtherOurs(const Size &size);

    void prepare() override;
    void run() override;

private:
    int m_variant = 0;
    QByteArray m_states[2];
};

#endif // STATE_H
