// SPDX-License-Identifier: MIT

#include "buttonproperties.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace {

// All that a program may set for a button, without what the action or the toolbar sets.
const char *const properties[] = {"accessibleDescription",
                                  "accessibleName",
                                  "arrowType",
                                  "autoRaise",
                                  "contextMenuPolicy",
                                  "focusPolicy",
                                  "maximumSize",
                                  "minimumSize",
                                  "objectName",
                                  "popupMode",
                                  "sizePolicy",
                                  "styleSheet"};

QToolButton *buttonOf(const QToolBar *toolBar, QAction *action)
{
    return qobject_cast<QToolButton *>(toolBar->widgetForAction(action));
}

} // namespace

void ButtonProperties::read(const QToolBar *toolBar, QAction *action)
{
    const QToolButton *const widget = buttonOf(toolBar, action);
    // The button of a widget action is the program's own.
    if (!widget || action->inherits("QWidgetAction"))
        return;
    Button button;
    for (const char *name : properties)
        button.properties.append({name, widget->property(name)});
    if (widget->toolButtonStyle() != toolBar->toolButtonStyle())
        button.properties.append({"toolButtonStyle", widget->property("toolButtonStyle")});
    if (widget->iconSize() != toolBar->iconSize())
        button.properties.append({"iconSize", widget->iconSize()});
    const auto dynamicNames = widget->dynamicPropertyNames();
    for (const QByteArray &name : dynamicNames)
        button.properties.append({name, widget->property(name.constData())});
    if (widget->menu() != action->menu())
        button.menu = widget->menu();
    m_ofAction.insert(action, button);
}

void ButtonProperties::putBack(const QToolBar *toolBar, QAction *action) const
{
    QToolButton *const widget = buttonOf(toolBar, action);
    const auto button = m_ofAction.constFind(action);
    if (!widget || button == m_ofAction.constEnd())
        return;
    for (const auto &property : button->properties) {
        if (widget->property(property.first.constData()) != property.second)
            widget->setProperty(property.first.constData(), property.second);
    }
    if (button->menu)
        widget->setMenu(button->menu);
}
