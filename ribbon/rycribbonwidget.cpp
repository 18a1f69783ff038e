// SPDX-License-Identifier: MIT

#include "rycribbonwidget.h"

#include "ui_cribbonpage.h"

RyCRibbonWidget::RyCRibbonWidget(QWidget *parent, RyAbstatcManager *manager)
    : QWidget(parent)
    , ui(new Ui_CRibbonPage())
{
    Q_UNUSED(manager);
    ui->setupUi(this);
}

RyCRibbonWidget::~RyCRibbonWidget()
{
    delete ui;
}
