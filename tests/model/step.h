// SPDX-License-Identifier: MIT

#ifndef STEP_H
#define STEP_H

#include <string>
#include <vector>

/*
 * One operation of a host or of a user: its name and numbers. Every number is taken modulo what
 * exists when the step runs, and a missing one is 0, so that any selection of the steps of a script
 * is a script too.
 */
struct Step
{
    enum Kind {
        // The host's objects.
        MainWindow, // 0 none, 1 and 2 a window
        NewAction,
        RecreateAction, // action
        NameAction, // action, name
        TextAction, // action, text
        NewToolBar, // name, title, content...
        DropToolBar, // toolbar
        NameToolBar, // toolbar, name
        TitleToolBar, // toolbar, title
        Place, // toolbar, action: placed behind the manager's back
        TakeOff, // toolbar, place
        Scatter, // so that the next objects get addresses in another order

        // The manager.
        AddAction, // action, category
        RemoveAction, // action
        AddCategory, // category
        AddDefault, // toolbar, category
        RemoveDefault, // toolbar
        Create, // title
        Delete, // toolbar
        Set, // toolbar, 0 to begin with what is there, content...
        SetTwo, // toolbar, toolbar, content of both...
        Reset, // toolbar
        ResetAll,
        Save, // version
        Restore, // state, version to add, damage
        RestoreMade, // version, and what to write
        Find, // name

        // The dialog.
        Open, // 0 show(), 1 open()
        Destroy,
        Hide,
        Close,
        Tab, // which
        Button, // which of the seven
        Row, // row of the toolbars
        RowTwice,
        Entry, // row of the current toolbar
        EntryTwice,
        Item, // item of the action tree
        ItemTwice,
        Key, // 0 toolbars, 1 current toolbar; which key
        Type, // name
        Return,
        Escape,
        Ok,
        Apply,
        Cancel,
        Defaults,
        Minimize, // show and hide events of the window system
        Idle,
        KindCount
    };

    Kind kind;
    std::vector<int> numbers;

    // The number at that place, or 0.
    int number(std::size_t place) const;

    // All numbers from that place on.
    std::vector<int> from(std::size_t place) const;

    // "set 0 1 2".
    std::string text() const;

    // The step of such a line; one of kind KindCount if there is no such step.
    static Step of(const std::string &line);
};

// One step a line; empty lines and those that begin with "#" are comments.
using Script = std::vector<Step>;

std::string textOf(const Script &script);
bool readScript(const std::string &file, Script &script);

#endif // STEP_H
