// SPDX-License-Identifier: MIT

#ifndef EDITORMODEL_H
#define EDITORMODEL_H

#include "managermodel.h"

#include <set>

class ToolBarItem;

/*
 * What the toolbar editor must do: its working copy, what its three views show, and its buttons.
 *
 * The records' addresses name the toolbars here, since one command visits them in that order. The
 * order of rows with the same text, and the order in which apply creates toolbars, are nobody's
 * promise: the model takes both from outside.
 */
class EditorModel
{
public:
    // An item of the action tree: a category, or an action or (null) the separator entry.
    struct Item
    {
        bool isCategory = false;
        QString text; // of a category its name; it names the category
        QAction *action = nullptr;
    };

    struct Category
    {
        Item item;
        std::vector<Item> actions;
        bool expanded;
    };

    struct Row
    {
        ToolBarItem *record;
        QString text;
        bool isDefault; // green and not editable
    };

    struct Entry
    {
        QAction *action;
        QString text;
        bool hasIcon;
    };

    struct Record
    {
        QToolBar *toolBar;
        QString name;
    };

    // The enabled state of the buttons, in the order of the form.
    enum Button { New, Remove, Rename, Up, Left, Right, Down, ButtonCount };

    EditorModel(WorldModel *world, ManagerModel *manager);

    // The page is shown; a record for each managed toolbar.
    void fill(const std::map<QToolBar *, ToolBarItem *> &made);
    // The page is hidden.
    void clear();
    // A new page.
    void reset();

    // Set before a command: where rows of equal texts are when it is done.
    void setTieOrder(const std::vector<ToolBarItem *> &rows, const std::vector<QAction *> &items);

    // The seven buttons; nothing happens if it is disabled.
    void newClicked(ToolBarItem *record);
    void removeClicked();
    void renameClicked();
    void upClicked();
    void downClicked();
    void leftClicked();
    void rightClicked();

    // The page's part in the dialog's buttons. Apply takes the toolbars that were made, in order.
    void apply(const std::vector<std::pair<ToolBarItem *, QToolBar *>> &made);
    void restoreDefaults();

    void selectRow(int row);
    void selectEntry(int row);
    void selectItem(const Item &item);

    // The in-place editor.
    void beginEditing();
    void type(const QString &text);
    void commitEditing();
    void cancelEditing();

    bool filled = false;
    // The records of the fill, some of them freed since.
    std::map<QToolBar *, ToolBarItem *> recordOfToolBar;
    std::map<ToolBarItem *, Record> records;
    std::map<ToolBarItem *, Content> working;
    std::set<ToolBarItem *> created;
    std::set<ToolBarItem *> removed;
    std::vector<Row> rows;
    std::vector<Entry> entries;
    std::vector<Category> tree; // the separator entry among them
    bool hasCurrentItem = false;
    Item currentItem;
    ToolBarItem *currentRecord = nullptr;
    int currentEntry = -1;
    bool enabled[ButtonCount];
    ToolBarItem *editing = nullptr;
    QString typed;

    int rowOf(ToolBarItem *record) const;
    int currentRow() const { return rowOf(currentRecord); }

private:
    bool isDefault(ToolBarItem *record) const;
    Entry entryOf(QAction *action) const;
    void setButtons();
    void sortRows();
    void sortTree();
    void fillTree();
    void showCurrent();
    void makeCurrent(int row);
    void removeToolBar(ToolBarItem *record);
    void moveEntry(int distance);
    void applyExisting();
    void applyRemoved();

    WorldModel *m_world;
    ManagerModel *m_manager;
    std::vector<ToolBarItem *> m_rowOrder;
    std::vector<QAction *> m_itemOrder;
};

bool operator==(const EditorModel::Item &a, const EditorModel::Item &b);

#endif // EDITORMODEL_H
