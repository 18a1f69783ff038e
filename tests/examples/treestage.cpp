// SPDX-License-Identifier: MIT

#include "treestage.h"

#include "treehistory.h"

#include <QAction>

TreeStage::TreeStage()
    : library(window.findChild<GuardedTree *>("library"))
    , readingList(window.findChild<GuardedTree *>("readingList"))
    , undo(window.findChild<QAction *>("undo"))
    , redo(window.findChild<QAction *>("redo"))
    , undoStack(window.findChild<TreeHistory *>()->undoStack())
{
}

QStringList libraryAtFirst()
{
    return lines("Novels,  Dracula,  Emma,  Moby-Dick,Poems,  Leaves of Grass,  Sonnets,Science,"
                 "  Micrographia,  On the Origin of Species,  Opticks");
}

QStringList readingListAtFirst()
{
    return lines("Now,  Frankenstein,Later");
}
