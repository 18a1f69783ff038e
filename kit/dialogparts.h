// SPDX-License-Identifier: MIT

#ifndef DIALOGPARTS_H
#define DIALOGPARTS_H

class QLabel;
class QListWidget;
class QString;
class QTabWidget;
class QToolButton;
class QTreeWidget;
class QWidget;
class RyCustomizedDialog;

/*!
 * \brief The parts of the dialog that the kit adds to, found by their fixed objectNames.
 *
 * The editor keeps a working copy in addition to its views. So the content is changed by clicks on
 * the buttons only, which do what a user would do, and nothing while they are disabled.
 */
struct DialogParts
{
    explicit DialogParts(RyCustomizedDialog *dialog);

    //! Returns true while the parts are deleted with the dialog. Models then still emit signals.
    bool areDeleted() const;
    // What rows of separators show.
    static QString separatorText();
    // Adds a sentence to the tool tip of a view and to what a screen reader says of it.
    static void explain(QWidget *view, const QString &sentence);

    RyCustomizedDialog *dialog;
    QTabWidget *tabs;
    QWidget *page;
    QLabel *actionCaption;
    QLabel *toolBarCaption;
    QLabel *entryCaption;
    // The actions by category.
    QTreeWidget *actionTree;
    QListWidget *toolBarList;
    // The entries of the current toolbar.
    QListWidget *entryList;
    QToolButton *newButton;
    QToolButton *removeButton;
    QToolButton *renameButton;
    QToolButton *upButton;
    QToolButton *downButton;
    // Takes the current entry off the toolbar.
    QToolButton *leftButton;
    // Adds the current action to the toolbar.
    QToolButton *rightButton;
};

#endif // DIALOGPARTS_H
