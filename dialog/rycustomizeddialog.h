// SPDX-License-Identifier: MIT

#ifndef RYCUSTOMIZEDDIALOG_H
#define RYCUSTOMIZEDDIALOG_H

#include "rycustomizeddialogexport.h"

#include <QDialog>
#include <QList>

class QPushButton;
class RyAbstatcManager;
class RyCusInterface;
class Ui_CustomizedDialog;

/*!
 * \brief The modal dialog in which a user makes the toolbars of the host application their own.
 *
 * The dialog is titled "Options" and shows two tabs, "ToolBar" (the editor, RyCToolBarWidget) and
 * "Ribbon" (a fixed placeholder), above the buttons OK, Cancel, Help, Apply and Restore Defaults.
 * It edits nothing itself: it creates the pages and forwards its buttons to them.
 *
 * \code
 * RyCustomizedDialog dialog({&toolBarManager, nullptr}, &mainWindow);
 * dialog.exec();
 * settings.setValue(QStringLiteral("toolBars"), toolBarManager.saveState(1));
 * \endcode
 *
 * exec() returns QDialog::Accepted after OK and QDialog::Rejected after Cancel, Escape or the
 * window's close button. Save the layout whatever it returns: an Apply before a Cancel has changed
 * the toolbars all the same.
 *
 * The host owns the dialog (it does not delete itself on close) and the managers, which must
 * outlive it. The dialog owns its pages; the page widgets belong to its widget tree.
 *
 * The host may close or delete the dialog at any time. If it does so while the dialog applies, in
 * an event filter or a slot that is called then, all edits are written all the same. A second
 * exec() while the first one runs returns -1 at once, as with every QDialog.
 *
 * Quirks a host must know, all deliberate:
 * - Escape and the window's close button go straight to QDialog::reject(); no page is given
 *   RyCusInterface::finish() then.
 * - Switching away from the "ToolBar" tab discards the edits that were not applied.
 * - Restore Defaults edits only the page's working copy, so it does nothing while the "Ribbon" tab
 *   is current: the editor's working copy is empty then.
 * - The private slot slotUiModeChanged(bool) is for signals of the host, connected by signature
 *   string: true disables Apply, false enables it.
 *
 * The order of the fields and of the slots is part of the binary contract.
 */
class RYCUSTOMIZEDDIALOG_EXPORT RyCustomizedDialog : public QDialog
{
    Q_OBJECT

public:
    /*!
     * \brief Constructs the dialog with both of its pages; the "ToolBar" tab is current.
     *
     * \param managers the host's managers, which stay the host's and must outlive the dialog.
     *        Element 0 must be a RyToolBarManager; it is used as one without a check. A null
     *        element 0 gives an editor that stays empty. Element 1 goes to the ribbon page,
     *        which never uses it; it may be null. Further elements are ignored. A shorter list
     *        is a precondition violation that nothing reports.
     * \param parent the parent widget, which owns the dialog if it is not null.
     */
    explicit RyCustomizedDialog(QList<RyAbstatcManager *> managers, QWidget *parent = nullptr);

    /*!
     * \brief Deletes the pages, then the widget tree. The managers are left alone.
     */
    ~RyCustomizedDialog() override;

    /*!
     * \brief Returns the OK button, owned by the dialog; never null.
     */
    QPushButton *okButton() const;

    /*!
     * \brief Returns the Apply button, owned by the dialog; never null.
     */
    QPushButton *applyButton() const;

    /*!
     * \brief Returns the Restore Defaults button, owned by the dialog; never null.
     *
     * The capital first letter is deliberate.
     */
    QPushButton *RestoreDefaultButton() const;

    /*!
     * \brief Returns the Help button, owned by the dialog; never null.
     *
     * A host with help of its own disconnects this button from the dialog and connects it to
     * that; the button box's helpRequested() reaches nothing.
     */
    QPushButton *helpButton() const;

private Q_SLOTS:
    void slotAccepted();
    void slotRejected();
    void slotApply();
    /*!
     * \brief Disables Apply if \a modified is true and enables it if it is false.
     *
     * For the host, which connects a signal of its own to it by signature string; the library
     * connects it to nothing. The inversion is deliberate.
     */
    void slotUiModeChanged(bool modified);
    void slotHelp();
    void slotRestorDefault();

private:
    void closeOptionPages();
    Q_DECL_HIDDEN void callPages(void (RyCusInterface::*operation)());
    Q_DECL_HIDDEN void createPages(const QList<RyAbstatcManager *> &managers);
    Q_DECL_HIDDEN void connectButtons();

    // Points into the widget tree without owning it; the form object itself is owned.
    Ui_CustomizedDialog *ui;
    // Owned. The order of the tabs, and the order in which every button reaches the pages.
    QList<RyCusInterface *> m_optionPages;
};

#endif // RYCUSTOMIZEDDIALOG_H
