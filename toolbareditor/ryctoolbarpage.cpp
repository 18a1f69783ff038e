// SPDX-License-Identifier: MIT

#include "ryctoolbarpage.h"

#include "ryctoolbarwidget.h"

#include <QCoreApplication>

RyCToolBarPage::RyCToolBarPage(RyAbstatcManager *manager)
    : m_manager(manager)
{
}

RyCToolBarPage::~RyCToolBarPage() = default;

QString RyCToolBarPage::name() const
{
    return QCoreApplication::translate("RyCToolBarPage", "ToolBar");
}

QWidget *RyCToolBarPage::createPage(QWidget *parent)
{
    m_widget = new RyCToolBarWidget(parent, m_manager, Qt::WindowFlags());
    return m_widget;
}

void RyCToolBarPage::apply()
{
    if (m_widget)
        m_widget->applyClicked();
}

void RyCToolBarPage::finish()
{
}

void RyCToolBarPage::RestorDefaults()
{
    if (m_widget)
        m_widget->defaultClicked();
}
