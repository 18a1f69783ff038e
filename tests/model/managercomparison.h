// SPDX-License-Identifier: MIT

#ifndef MANAGERCOMPARISON_H
#define MANAGERCOMPARISON_H

#include "differences.h"
#include "stage.h"

#include <QPointer>

/*
 * Compares everything that a manager and the host's objects report with the models.
 */
class ManagerComparison
{
public:
    ManagerComparison(Stage *stage, Differences *differences);

    void run();

private:
    void compareRegistry();
    void compareToolBars();
    void compareToolBar(QToolBar *toolBar, const ManagerModel::ToolBar &expected);
    void compareState();
    void compareWorld();
    void compareWidget(QToolBar *toolBar, const WorldModel::ToolBar &expected);
    void comparePlaced(QToolBar *toolBar, const WorldModel::ToolBar &expected);
    void compareDeletedSeparators();
    void compareContent(const char *what, const Content &expected, const QList<QAction *> &found);

    Stage *m_stage;
    Differences *m_differences;

    // The separator actions that the model numbers.
    std::map<int, QPointer<QAction>> m_separators;
};

#endif // MANAGERCOMPARISON_H
