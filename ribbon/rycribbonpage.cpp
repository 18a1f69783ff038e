// SPDX-License-Identifier: MIT

#include "rycribbonpage.h"

#include "rycribbonwidget.h"

#include <QCoreApplication>

RyCRibbonPage::RyCRibbonPage(RyAbstatcManager *manager)
    : m_manager(manager)
{
}

RyCRibbonPage::~RyCRibbonPage() = default;

QString RyCRibbonPage::name() const
{
    return QCoreApplication::translate("RyCRibbonPage", "Ribbon");
}

QWidget *RyCRibbonPage::createPage(QWidget *parent)
{
    m_widget = new RyCRibbonWidget(parent, m_manager);
    return m_widget;
}

// The page stays a placeholder on purpose: none of the buttons does anything here.
void RyCRibbonPage::apply()
{
}

void RyCRibbonPage::finish()
{
}

void RyCRibbonPage::RestorDefaults()
{
}
