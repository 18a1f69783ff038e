// SPDX-License-Identifier: MIT

#ifndef RYCUSINTERFACE_H
#define RYCUSINTERFACE_H

#include "rycustomizeddialogexport.h"

class QString;
class QWidget;

/*!
 * \brief The contract that every tab page of RyCustomizedDialog fulfils.
 *
 * A page is a plain object that builds one widget for one tab and answers the dialog's buttons.
 * The dialog creates its pages in its constructor, keeps them as long as it lives and deletes them
 * in its destructor, before its widget tree goes. For one dialog a page sees, in this order:
 * createPage() once, name() once, then apply() and RestorDefaults() as often as the user presses
 * the buttons, finish() at most once (not at all after Escape or the window's close button), and
 * the destructor.
 *
 * A page keeps only a guarded pointer (QPointer) to its widget and tests it before every use.
 *
 * The order of the virtual functions is part of the binary contract. The name of RestorDefaults()
 * is spelled as it is on purpose.
 */
class RYCUSTOMIZEDDIALOG_EXPORT RyCusInterface
{
public:
    /*!
     * \brief Constructs a page without a widget.
     */
    RyCusInterface();

    /*!
     * \brief Destroys the page.
     *
     * Must not delete the page's widget: it belongs to the dialog's widget tree and is destroyed
     * with it, after the pages.
     */
    virtual ~RyCusInterface();

    /*!
     * \brief Returns the title of the page's tab, already translated.
     *
     * Called once, right after createPage().
     */
    virtual QString name() const = 0;

    /*!
     * \brief Builds the page's widget and returns it.
     *
     * Called exactly once for each dialog. The widget belongs to its Qt parent; the page keeps a
     * guarded pointer to it.
     *
     * \param parent the widget's parent, passed on as it is, so that null makes a widget that the
     *        caller owns. The dialog passes itself and then inserts the widget as a tab, which
     *        re-parents it into the tab widget.
     */
    virtual QWidget *createPage(QWidget *parent) = 0;

    /*!
     * \brief Commits the page's working state to its manager.
     *
     * Called on OK and on Apply. Must do nothing if the page's widget no longer exists.
     */
    virtual void apply() = 0;

    /*!
     * \brief Called as the last thing before OK (after apply()) or Cancel closes the dialog.
     *
     * Not called for Escape and the window's close button. Both pages of this library do nothing
     * here.
     */
    virtual void finish() = 0;

    /*!
     * \brief Resets the page's working state to the defaults.
     *
     * Called on Restore Defaults. Nothing reaches the manager before the next apply(). Must do
     * nothing if the page's widget no longer exists.
     */
    virtual void RestorDefaults() = 0;
};

#endif // RYCUSINTERFACE_H
