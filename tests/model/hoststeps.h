// SPDX-License-Identifier: MIT

#ifndef HOSTSTEPS_H
#define HOSTSTEPS_H

#include "differences.h"
#include "stage.h"
#include "step.h"

/*
 * Does what a host does, to the real manager and to its model. What the text of the manager leaves
 * undefined is not done.
 */
class HostSteps
{
public:
    HostSteps(Stage *stage, Differences *differences);
    ~HostSteps();
    HostSteps(const HostSteps &) = delete;
    HostSteps &operator=(const HostSteps &) = delete;

    // False for a step of the dialog.
    bool run(const Step &step);

private:
    bool runForObjects(const Step &step);
    bool runForActions(const Step &step);
    bool runForToolBars(const Step &step);
    bool runForStates(const Step &step);

    void setMainWindow(const Step &step);
    void recreateAction(const Step &step);
    void nameAction(const Step &step);
    void textAction(const Step &step);
    void newToolBar(const Step &step);
    void dropToolBar(const Step &step);
    void nameToolBar(const Step &step);
    void titleToolBar(const Step &step);
    void place(QToolBar *toolBar, QAction *action);
    void takeOff(const Step &step);
    void scatter(int seed);

    void addAction(const Step &step);
    void removeAction(const Step &step);
    void addCategory(const Step &step);
    void addDefault(const Step &step);
    void removeDefault(const Step &step);
    void create(const Step &step);
    void deleteToolBar(const Step &step);
    void set(const Step &step);
    void setTwo(const Step &step);
    void reset(const Step &step);
    void resetAll();
    void find(const Step &step);

    void save(const Step &step);
    void restoreSaved(const Step &step);
    void restoreMade(const Step &step);
    void restore(const QByteArray &bytes, const SavedLayout &layout, int version);

    struct State
    {
        QByteArray bytes;
        SavedLayout layout;
    };

    Stage *m_stage;
    Differences *m_differences;
    std::vector<State> m_states;
    std::vector<void *> m_blocks;
};

#endif // HOSTSTEPS_H
