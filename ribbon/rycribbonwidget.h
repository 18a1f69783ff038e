// SPDX-License-Identifier: MIT

#ifndef RYCRIBBONWIDGET_H
#define RYCRIBBONWIDGET_H

#include "rycustomizeddialogexport.h"

#include <QWidget>

class RyAbstatcManager;
class Ui_CRibbonPage;

/*!
 * \brief The widget of the "Ribbon" tab: a fixed form that is connected to nothing, on purpose.
 *
 * It shows the arrangement of the toolbar editor with an empty tree, empty lists and buttons that
 * have no effect. RyCRibbonPage creates it; there is no reason to create it elsewhere.
 */
class RYCUSTOMIZEDDIALOG_EXPORT RyCRibbonWidget : public QWidget
{
    Q_OBJECT

public:
    /*!
     * \brief Constructs the placeholder form.
     *
     * \param parent the widget's parent, which owns it; with null, the caller owns the widget.
     * \param manager ignored; it may be null and is not kept.
     */
    RyCRibbonWidget(QWidget *parent, RyAbstatcManager *manager);

    /*!
     * \brief Destroys the widget and its children.
     */
    ~RyCRibbonWidget() override;

private:
    // Points to the child widgets without owning them; the form object itself is owned.
    Ui_CRibbonPage *ui;
};

#endif // RYCRIBBONWIDGET_H
