// SPDX-License-Identifier: MIT

#ifndef RYCTOOLBARWIDGET_H
#define RYCTOOLBARWIDGET_H

#include "rycustomizeddialogexport.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QWidget>

class QAction;
class QListWidgetItem;
class QToolBar;
class QTreeWidgetItem;
class RyAbstatcManager;
class RyToolBarManager;
class ToolBarItem;
class Ui_CToolBarPage;

/*!
 * \brief The toolbar editor: the widget of the "ToolBar" tab.
 *
 * When it is shown it copies the manager's categories, actions and toolbars into a private working
 * copy, which is all that the user edits. applyClicked() writes the copy to the manager. When it is
 * hidden, edits that were not applied are thrown away. Show and hide events of the window system
 * (minimising and restoring) change nothing.
 *
 * RyCToolBarPage creates it; use that page rather than this class.
 *
 * Quirks a host must know, all deliberate:
 * - Without a current toolbar the Remove and Rename buttons are enabled; they act on nothing.
 * - Every new toolbar is named "Custom Toolbar".
 * - Any new name is accepted as it is, even an empty one or that of another toolbar.
 * - The texts of actions are shown as they are, with the "&" of a mnemonic.
 * - The separator entry is sorted among the categories by its text.
 *
 * What the host may do while the editor is shown:
 * - Register actions and toolbars; they appear when it is shown next.
 * - Delete custom toolbars with RyToolBarManager::deleteToolBar(). Their rows stay, but are no
 *   longer applied.
 * - Remove actions with RyToolBarManager::removeAction(), then delete them. They are shown as
 *   before, and applyClicked() leaves them out.
 * - Change actions. A row shows the text and icon of the moment when it was made.
 * - Change the style, the palette, the font, the direction or the language. The edits stay, and
 *   so do the texts that are shown.
 * - Change the window flags or the parent. This hides the editor, which discards the edits.
 * - Show a second editor of the same manager. Each applies everything as it shows it; the last
 *   applyClicked() wins.
 *
 * The order of the fields, virtual functions and slots is part of the binary contract.
 */
class RYCUSTOMIZEDDIALOG_EXPORT RyCToolBarWidget : public QWidget
{
    Q_OBJECT

public:
    /*!
     * \brief Constructs an editor that stays empty until it is shown.
     *
     * \param parent the widget's parent, which owns it; with null the caller does.
     * \param manager a RyToolBarManager, which is used as one without a check, stays the host's and
     *        must outlive the editor. With null the editor stays empty.
     * \param flags the window flags of the widget.
     */
    RyCToolBarWidget(QWidget *parent, RyAbstatcManager *manager, Qt::WindowFlags flags);

    /*!
     * \brief Destroys the widget; edits that were not applied are lost.
     */
    ~RyCToolBarWidget() override;

public Q_SLOTS:
    /*!
     * \brief Writes the working copy to the manager.
     *
     * First every existing toolbar is given its content through RyToolBarManager::setToolBar() and
     * its title, changed or not, in the order of the editor's records; then removed toolbars are
     * deleted; then new ones are created and filled. The editor stays as it is. A toolbar that the
     * manager has forgotten gets its title only; one that is gone is left out. Applying twice
     * creates and deletes nothing the second time.
     *
     * Nothing is written while the editor is hidden, because its working copy is empty then, or
     * without a manager.
     *
     * The working copy is read before anything is written. Changing toolbars calls event filters
     * and slots of the host. If these hide or delete the editor, everything is written all the
     * same; if they edit the working copy, the next call writes that.
     */
    void applyClicked();

    /*!
     * \brief Gives every default toolbar its default content in the working copy and removes every
     *        custom toolbar from it.
     *
     * The host's toolbars change with the next applyClicked(). Default toolbars that were
     * registered after the editor was shown are left alone. Does nothing while the editor is
     * hidden, and without a manager.
     */
    void defaultClicked();

private Q_SLOTS:
    void newClicked();
    void removeClicked();
    void upClicked();
    void downClicked();
    void rightClicked();
    void leftClicked();
    void renameClicked();
    void toolBarRenamed(QListWidgetItem *item);
    void currentActionChanged(QTreeWidgetItem *current);
    void currentToolBarChanged(QListWidgetItem *current);
    void currentToolBarActionChanged(QListWidgetItem *current);
    void removeToolBar(ToolBarItem *item);
    bool isDefaultToolBar(ToolBarItem *item) const;
    void setButtons();
    void clearOld();
    void fillNew();

protected:
    /*!
     * \brief Reads the manager into the working copy, unless the event is spontaneous.
     */
    void showEvent(QShowEvent *event) override;

    /*!
     * \brief Discards the working copy, unless the event is spontaneous.
     */
    void hideEvent(QHideEvent *event) override;

private:
    ToolBarItem *createItem(QToolBar *toolBar);
    ToolBarItem *createItem(const QString &name);
    void deleteItem(ToolBarItem *item);

    Q_DECL_HIDDEN void makeConnections();
    Q_DECL_HIDDEN void showCurrentToolBar(int reported);
    Q_DECL_HIDDEN void fillActionTree();
    Q_DECL_HIDDEN QTreeWidgetItem *createActionItem(QAction *action);
    Q_DECL_HIDDEN void fillToolBarList();
    Q_DECL_HIDDEN QListWidgetItem *createEntry(QAction *action);
    Q_DECL_HIDDEN void moveCurrentEntry(int distance);
    Q_DECL_HIDDEN QToolBar *toolBarOf(const ToolBarItem *record) const;
    Q_DECL_HIDDEN void setToolBarOf(ToolBarItem *record, QToolBar *toolBar);

    // Points to the child widgets without owning them; the form object itself is owned.
    Ui_CToolBarPage *ui;
    // The host's manager, not owned; null leaves the editor empty.
    RyToolBarManager *m_manager;
    // The working copy: the content of every toolbar that has a row; null is a separator.
    QMap<ToolBarItem *, QList<QAction *>> m_workingActions;
    // The record made for each managed toolbar when the editor was filled; not kept up to date.
    QMap<QToolBar *, ToolBarItem *> m_recordOfToolBar;
    // Records of toolbars created in the editor and not yet applied; they have no QToolBar.
    QSet<ToolBarItem *> m_createdRecords;
    // Records of existing toolbars removed in the editor and not yet applied; no longer keys of
    // m_workingActions.
    QSet<ToolBarItem *> m_removedRecords;
    // Every record that was allocated and not yet freed.
    QSet<ToolBarItem *> m_ownedRecords;
    // The tree item of the current action or separator entry; null for a category and for none.
    QTreeWidgetItem *m_currentActionItem;
    // Each action, and null for the separator entry, to its tree item.
    QMap<QAction *, QTreeWidgetItem *> m_treeItemOfAction;
    // The inverse; category items are absent.
    QMap<QTreeWidgetItem *, QAction *> m_actionOfTreeItem;
    // The record of the current row of the toolbar list, or null.
    ToolBarItem *m_currentRecord;
    // Each record of m_workingActions to its row in the toolbar list.
    QMap<ToolBarItem *, QListWidgetItem *> m_listItemOfRecord;
    // The inverse.
    QMap<QListWidgetItem *, ToolBarItem *> m_recordOfListItem;
    // Each real action of the current toolbar to its row.
    QMap<QAction *, QListWidgetItem *> m_entryOfAction;
    // Every row of the current toolbar to its action; null for a separator.
    QMap<QListWidgetItem *, QAction *> m_actionOfEntry;
    // What a separator is shown as, translated.
    QString m_separatorText;

    // The manager, or null once it is gone: a window that owns manager and dialog may take the
    // manager with it first.
    QPointer<RyAbstatcManager> m_managerGuard;
    // The toolbar of each record that has one, or null once the host has deleted it.
    QHash<const ToolBarItem *, QPointer<QToolBar>> m_toolBarGuards;
};

#endif // RYCTOOLBARWIDGET_H
