// SPDX-License-Identifier: MIT

#ifndef EDITORCOMPARISON_H
#define EDITORCOMPARISON_H

#include "differences.h"
#include "editormodel.h"
#include "realdialog.h"

/*
 * Compares the views, the buttons and the private fields of a toolbar editor with its model.
 */
class EditorComparison
{
public:
    EditorComparison(const EditorModel &model, const RealDialog &real, Differences *differences);

    void run();

private:
    void compareRecords();
    void compareRows();
    void compareRow(int row);
    void compareEntries();
    void compareEntry(int row);
    void compareTree();
    void compareActionItem(const EditorModel::Item &expected, const QTreeWidgetItem *found);
    void compareCurrentItem();
    void compareButtons();
    void compareEditing();

    const EditorModel &m_model;
    const RealDialog &m_real;
    const EditorFields m_fields;
    Differences *m_differences;
};

#endif // EDITORCOMPARISON_H
