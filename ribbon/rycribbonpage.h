// SPDX-License-Identifier: MIT

#ifndef RYCRIBBONPAGE_H
#define RYCRIBBONPAGE_H

#include "rycusinterface.h"

#include <QPointer>

class RyAbstatcManager;
class RyCRibbonWidget;

/*!
 * \brief The "Ribbon" page of RyCustomizedDialog: a placeholder that edits nothing, on purpose.
 *
 * The page builds a RyCRibbonWidget and ignores every button. The widget belongs to its Qt parent;
 * the page only guards its pointer. The order of the fields and of the virtual functions is part of
 * the binary contract.
 */
class RYCUSTOMIZEDDIALOG_EXPORT RyCRibbonPage : public RyCusInterface
{
public:
    /*!
     * \brief Constructs a page without a widget.
     *
     * \param manager any manager or null; it stays the host's and is never dereferenced.
     */
    explicit RyCRibbonPage(RyAbstatcManager *manager);

    /*!
     * \brief Destroys the page; its widget stays with its parent.
     */
    ~RyCRibbonPage() override;

    /*!
     * \brief Returns "Ribbon", translated in the context "RyCRibbonPage".
     */
    QString name() const override;

    /*!
     * \brief Creates the placeholder widget and returns it.
     *
     * \param parent the widget's parent, which owns it; with null, the caller owns the widget.
     */
    QWidget *createPage(QWidget *parent) override;

    /*!
     * \brief Does nothing, with or without a widget.
     */
    void apply() override;

    /*!
     * \brief Does nothing.
     */
    void finish() override;

    /*!
     * \brief Does nothing.
     */
    void RestorDefaults() override;

private:
    // The widget created last; null before createPage() and after Qt has deleted it.
    QPointer<RyCRibbonWidget> m_widget;
    // The host's manager, not owned; may be null.
    RyAbstatcManager *m_manager;
};

#endif // RYCRIBBONPAGE_H
