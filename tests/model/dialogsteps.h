// SPDX-License-Identifier: MIT

#ifndef DIALOGSTEPS_H
#define DIALOGSTEPS_H

#include "differences.h"
#include "realdialog.h"
#include "stage.h"
#include "step.h"

/*
 * Does what a user does, to the real dialog and to the model of its editor; and compares all that
 * the dialog shows, and the editor's private fields, with the model.
 */
class DialogSteps
{
public:
    DialogSteps(Stage *stage, Differences *differences);
    ~DialogSteps();

    void run(const Step &step);

    // Compares what the dialog shows.
    void compare();

private:
    void runOnDialog(const Step &step);
    void runOnPage(const Step &step);

    void open(const Step &step);
    void destroy();
    void leave(int result);
    void changeTab(const Step &step);
    void pressButton(int button);
    void pressNew();
    void clickRow(const Step &step, bool twice);
    void clickEntry(const Step &step, bool twice);
    void clickItem(const Step &step, bool twice);
    void pressKey(const Step &step);
    void moveCurrent(QListWidget *list, int key);
    void type(const Step &step);
    void pressReturn();
    void pressEscape();
    void pressOk();
    void pressApply();
    void pressCancel();
    void pressDefaults();

    bool isPageShown() const { return m_visible && m_tab == 0; }
    void updatePage();
    void apply();
    void learnOrder();
    std::vector<std::pair<ToolBarItem *, QToolBar *>> madeToolBars() const;
    ToolBarItem *recordOf(QToolBar *toolBar, const std::set<ToolBarItem *> &records) const;
    QTreeWidgetItem *itemOf(const EditorModel::Item &item) const;

    Stage *m_stage;
    Differences *m_differences;
    EditorModel &m_model;
    std::unique_ptr<RealDialog> m_real;
    bool m_visible = false;
    int m_tab = 0;
    int m_result = 0;
};

#endif // DIALOGSTEPS_H
