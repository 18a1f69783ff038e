// SPDX-License-Identifier: MIT

#ifndef REALDIALOG_H
#define REALDIALOG_H

#include "editorfields.h"
#include "editorviews.h"
#include "rycustomizeddialog.h"

#include <QTabWidget>

#include <memory>

class QLineEdit;
class RyToolBarManager;

/*
 * A dialog on a manager and what a user's hand does to it: clicks, double clicks and keys, sent to
 * the widget that would get them.
 */
class RealDialog
{
public:
    explicit RealDialog(RyToolBarManager *manager);

    void show(bool asOpen);
    void click(QWidget *button);
    void clickTab(int index);
    void click(QListWidget *list, int row, bool twice);
    void click(QTreeWidgetItem *item, bool twice);
    void press(QWidget *widget, Qt::Key key);
    void type(const QString &text);

    // Shows and hides the dialog as the window system does.
    void minimizeAndRestore();

    // What Qt has put off: closing an editor after Return, deleting it.
    static void settle();

    EditorFields fields() const;
    QLineEdit *renameEditor() const;
    QToolButton *button(int number) const;

    RyCustomizedDialog dialog;
    EditorViews views;
    QTabWidget *tabs;
};

#endif // REALDIALOG_H
