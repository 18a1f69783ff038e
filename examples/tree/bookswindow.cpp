// SPDX-License-Identifier: MIT

#include "bookswindow.h"

#include "guardedtree.h"
#include "treehistory.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

BooksWindow::BooksWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_library(new GuardedTree)
    , m_readingList(new GuardedTree)
    , m_history(new TreeHistory({m_library, m_readingList}, this))
{
    createTrees();
    createToolBar();
    fill();
    setWindowTitle(tr("Reading List"));
    resize(680, 460);
    statusBar()->showMessage(
        tr("Drag to move, hold Control and drag to copy. Ctrl+M moves without a mouse."));
    connect(m_history, &TreeHistory::putBack, this, [this] {
        statusBar()->showMessage(tr("Nothing took what you dragged, so it is back in its place."));
    });
}

void BooksWindow::createTrees()
{
    m_library->setObjectName(QStringLiteral("library"));
    m_readingList->setObjectName(QStringLiteral("readingList"));
    QSplitter *const splitter = new QSplitter;
    splitter->addWidget(withCaption(tr("Library"), m_library));
    splitter->addWidget(withCaption(tr("Reading List"), m_readingList));
    setCentralWidget(splitter);
}

QWidget *BooksWindow::withCaption(const QString &caption, GuardedTree *tree)
{
    // The buddy makes Alt with the first letter go to the tree. It does not give the tree a name
    // for screen readers.
    QLabel *const label = new QLabel(QLatin1Char('&') + caption);
    label->setBuddy(tree);
    tree->setAccessibleName(caption);
    tree->header()->hide();
    QWidget *const widget = new QWidget;
    QVBoxLayout *const layout = new QVBoxLayout(widget);
    layout->addWidget(label);
    layout->addWidget(tree);
    return widget;
}

void BooksWindow::createToolBar()
{
    QAction *const undo = m_history->undoStack()->createUndoAction(this, tr("Undo"));
    undo->setObjectName(QStringLiteral("undo"));
    undo->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    undo->setShortcut(QKeySequence::Undo);
    QAction *const redo = m_history->undoStack()->createRedoAction(this, tr("Redo"));
    redo->setObjectName(QStringLiteral("redo"));
    redo->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    redo->setShortcut(QKeySequence::Redo);
    QAction *const move = new QAction(tr("Move Across"), this);
    move->setObjectName(QStringLiteral("moveAcross"));
    move->setIcon(style()->standardIcon(QStyle::SP_BrowserReload));
    move->setToolTip(tr("Move the current item to the other tree (Ctrl+M)"));
    move->setShortcut(Qt::CTRL | Qt::Key_M);
    connect(move, &QAction::triggered, this, &BooksWindow::moveAcross);

    QToolBar *const toolBar = addToolBar(tr("Edit"));
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    toolBar->addActions({undo, redo, move});
}

// For users who cannot drag.
void BooksWindow::moveAcross()
{
    GuardedTree *const from = m_readingList->hasFocus() ? m_readingList : m_library;
    GuardedTree *const to = from == m_library ? m_readingList : m_library;
    QTreeWidgetItem *const item = from->currentItem();
    if (!item)
        return;
    m_history->begin();
    QTreeWidgetItem *const parent = item->parent() ? item->parent() : from->invisibleRootItem();
    parent->removeChild(item);
    to->addTopLevelItem(item);
    m_history->end();
}

void BooksWindow::fill()
{
    addFolder(m_library, tr("Novels"),
              {QStringLiteral("Dracula"), QStringLiteral("Emma"), QStringLiteral("Moby-Dick")});
    addFolder(m_library, tr("Poems"),
              {QStringLiteral("Leaves of Grass"), QStringLiteral("Sonnets")});
    addFolder(m_library, tr("Science"),
              {QStringLiteral("Micrographia"), QStringLiteral("On the Origin of Species"),
               QStringLiteral("Opticks")});
    addFolder(m_readingList, tr("Now"), {QStringLiteral("Frankenstein")});
    addFolder(m_readingList, tr("Later"), {});
}

void BooksWindow::addFolder(GuardedTree *tree, const QString &name, const QStringList &books)
{
    QTreeWidgetItem *const folder = new QTreeWidgetItem(tree, {name});
    folder->setIcon(0, style()->standardIcon(QStyle::SP_DirIcon));
    for (const QString &book : books) {
        QTreeWidgetItem *const item = new QTreeWidgetItem(folder, {book});
        item->setIcon(0, style()->standardIcon(QStyle::SP_FileIcon));
        item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
    }
    folder->setExpanded(true);
}
