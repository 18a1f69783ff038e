// SPDX-License-Identifier: MIT

#ifndef TREESTAGE_H
#define TREESTAGE_H

#include "bookswindow.h"
#include "guardedtree.h"
#include "texts.h"

#include <QStringList>

class QAction;
class QUndoStack;

/*
 * The window of the example of trees, and what is in it at first.
 */
struct TreeStage
{
    TreeStage();

    BooksWindow window;
    GuardedTree *const library;
    GuardedTree *const readingList;
    QAction *const undo;
    QAction *const redo;
    QUndoStack *const undoStack;
};

QStringList libraryAtFirst();
QStringList readingListAtFirst();

#endif // TREESTAGE_H
