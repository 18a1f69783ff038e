// SPDX-License-Identifier: MIT

#include "toolbaritem.h"

ToolBarItem::ToolBarItem(QToolBar *toolBar, const QString &toolBarName)
    : m_toolBar(toolBar)
    , m_toolBarName(toolBarName)
{
}

ToolBarItem::ToolBarItem(const QString &toolBarName)
    : ToolBarItem(nullptr, toolBarName)
{
}

ToolBarItem::~ToolBarItem() = default;

QToolBar *ToolBarItem::toolBar() const
{
    return m_toolBar;
}

void ToolBarItem::setToolBar(QToolBar *toolBar)
{
    m_toolBar = toolBar;
}

QString ToolBarItem::toolBarName() const
{
    return m_toolBarName;
}

void ToolBarItem::setToolBarName(const QString &toolBarName)
{
    m_toolBarName = toolBarName;
}
