// SPDX-License-Identifier: MIT

#ifndef BOOKSWINDOW_H
#define BOOKSWINDOW_H

#include <QMainWindow>

class GuardedTree;
class TreeHistory;

/*!
 * \brief Books that the user drags from a library to a reading list, and back.
 */
class BooksWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit BooksWindow(QWidget *parent = nullptr);

private Q_SLOTS:
    void moveAcross();

private:
    void createTrees();
    void createToolBar();
    void fill();
    QWidget *withCaption(const QString &caption, GuardedTree *tree);
    void addFolder(GuardedTree *tree, const QString &name, const QStringList &books);

    // The widget tree owns both.
    GuardedTree *const m_library;
    GuardedTree *const m_readingList;
    TreeHistory *const m_history;
};

#endif // BOOKSWINDOW_H
