// SPDX-License-Identifier: MIT

#include "buttonproperties.h"

#include <QAction>
#include <QToolBar>
#include <QWidgetAction>

#include <tuple>

namespace {

QToolButton *buttonOf(const QToolBar *toolBar, QAction *action)
{
    return qobject_cast<QToolButton *>(toolBar->widgetForAction(action));
}

} // namespace

void ButtonProperties::read(const QToolBar *toolBar, QAction *action)
{
    const QToolButton *const widget = buttonOf(toolBar, action);
    // The button of a widget action is the program's own.
    if (widget && !qobject_cast<QWidgetAction *>(action))
        m_ofAction.insert(action, read(widget, toolBar, action));
}

ButtonProperties::Button ButtonProperties::read(const QToolButton *widget, const QToolBar *toolBar,
                                                const QAction *action)
{
    Button button;
    button.objectName = widget->objectName();
    button.accessibleName = widget->accessibleName();
    button.accessibleDescription = widget->accessibleDescription();
    button.styleSheet = widget->styleSheet();
    button.minimumSize = widget->minimumSize();
    button.maximumSize = widget->maximumSize();
    button.sizePolicy = widget->sizePolicy();
    button.focusPolicy = widget->focusPolicy();
    button.contextMenuPolicy = widget->contextMenuPolicy();
    button.arrowType = widget->arrowType();
    button.popupMode = widget->popupMode();
    button.autoRaise = widget->autoRaise();
    button.toolButtonStyle = widget->toolButtonStyle();
    button.hasOwnStyle = button.toolButtonStyle != toolBar->toolButtonStyle();
    button.iconSize = widget->iconSize();
    button.hasOwnIconSize = button.iconSize != toolBar->iconSize();
    const auto dynamicNames = widget->dynamicPropertyNames();
    for (const QByteArray &name : dynamicNames)
        button.dynamicProperties.append({name, widget->property(name.constData())});
    if (widget->menu() != action->menu())
        button.menu = widget->menu();
    return button;
}

void ButtonProperties::putBack(const QToolBar *toolBar, QAction *action) const
{
    QToolButton *const widget = buttonOf(toolBar, action);
    const auto button = m_ofAction.constFind(action);
    if (widget && button != m_ofAction.constEnd()
        && !isSame(read(widget, toolBar, action), button.value()))
        set(widget, button.value());
}

bool ButtonProperties::isSame(const Button &a, const Button &b)
{
    const auto all = [](const Button &button) {
        return std::tie(button.objectName, button.accessibleName, button.accessibleDescription,
                        button.styleSheet, button.minimumSize, button.maximumSize,
                        button.sizePolicy, button.focusPolicy, button.contextMenuPolicy,
                        button.arrowType, button.popupMode, button.autoRaise, button.hasOwnStyle,
                        button.hasOwnIconSize, button.dynamicProperties, button.menu);
    };
    return all(a) == all(b);
}

void ButtonProperties::set(QToolButton *widget, const Button &button)
{
    widget->setObjectName(button.objectName);
    widget->setAccessibleName(button.accessibleName);
    widget->setAccessibleDescription(button.accessibleDescription);
    if (widget->styleSheet() != button.styleSheet) // setting the same would polish it again
        widget->setStyleSheet(button.styleSheet);
    widget->setMinimumSize(button.minimumSize);
    widget->setMaximumSize(button.maximumSize);
    widget->setSizePolicy(button.sizePolicy);
    widget->setFocusPolicy(button.focusPolicy);
    widget->setContextMenuPolicy(button.contextMenuPolicy);
    widget->setArrowType(button.arrowType);
    widget->setPopupMode(button.popupMode);
    widget->setAutoRaise(button.autoRaise);
    if (button.hasOwnStyle)
        widget->setToolButtonStyle(button.toolButtonStyle);
    if (button.hasOwnIconSize)
        widget->setIconSize(button.iconSize);
    for (const auto &property : button.dynamicProperties)
        widget->setProperty(property.first.constData(), property.second);
    if (button.menu)
        widget->setMenu(button.menu);
}
