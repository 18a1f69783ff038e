// SPDX-License-Identifier: MIT

#ifndef RYCTOOLBARPAGE_H
#define RYCTOOLBARPAGE_H

#include "rycusinterface.h"

#include <QPointer>

class RyAbstatcManager;
class RyCToolBarWidget;

/*!
 * \brief The "ToolBar" page of RyCustomizedDialog: the toolbar editor as a tab.
 *
 * It creates a RyCToolBarWidget and passes the dialog's buttons on to it. A host that wants the
 * editor in a dialog of its own uses the page the way RyCustomizedDialog does:
 *
 * \code
 * RyCToolBarPage page(&toolBarManager);
 * layout->addWidget(page.createPage(&dialog));
 * connect(okButton, &QPushButton::clicked, &dialog, [&page] { page.apply(); });
 * \endcode
 *
 * The widget belongs to its Qt parent; the page only guards its pointer and does nothing once the
 * widget is gone. The order of the fields and of the virtual functions is part of the binary
 * contract.
 */
class RYCUSTOMIZEDDIALOG_EXPORT RyCToolBarPage : public RyCusInterface
{
public:
    /*!
     * \brief Constructs a page without a widget.
     *
     * \param manager a RyToolBarManager, which is used as one without a check, stays the host's and
     *        must outlive the page's widget. Null gives an editor that stays empty.
     */
    explicit RyCToolBarPage(RyAbstatcManager *manager);

    /*!
     * \brief Destroys the page; its widget stays with its parent.
     */
    ~RyCToolBarPage() override;

    /*!
     * \brief Returns "ToolBar", translated in the context "RyCToolBarPage".
     */
    QString name() const override;

    /*!
     * \brief Creates the editor and returns it.
     *
     * A second call makes a second editor, which is then the one that the buttons reach; the first
     * is not deleted.
     *
     * \param parent the editor's parent, which owns it; with null the caller does.
     */
    QWidget *createPage(QWidget *parent) override;

    /*!
     * \brief Writes the editor's working copy to the manager; see RyCToolBarWidget::applyClicked().
     *
     * Does nothing before createPage() and once the editor is gone.
     */
    void apply() override;

    /*!
     * \brief Does nothing.
     */
    void finish() override;

    /*!
     * \brief Resets the working copy to the defaults; see RyCToolBarWidget::defaultClicked().
     *
     * Does nothing before createPage() and once the editor is gone.
     */
    void RestorDefaults() override;

private:
    // The editor made last; null before createPage() and once Qt has deleted it.
    QPointer<RyCToolBarWidget> m_widget;
    // The host's manager, not owned.
    RyAbstatcManager *m_manager;
};

#endif // RYCTOOLBARPAGE_H
