// SPDX-License-Identifier: MIT

#include "toolbarlooks.h"

#include <QAction>
#include <QMainWindow>
#include <QStyle>
#include <QToolBar>

namespace {

// By their numbers in Qt.
QStringList textPositions()
{
    return {QStringLiteral("icons"), QStringLiteral("text"), QStringLiteral("beside"),
            QStringLiteral("under"), QStringLiteral("style")};
}

QList<QToolButton *> buttonsOf(const QToolBar *toolBar)
{
    QList<QToolButton *> buttons;
    const auto actions = toolBar->actions();
    for (QAction *action : actions) {
        if (QToolButton *const button =
                qobject_cast<QToolButton *>(toolBar->widgetForAction(action)))
            buttons.append(button);
    }
    return buttons;
}

} // namespace

ToolBarLooks::ToolBarLooks(QMainWindow *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
    connect(window, SIGNAL(toolButtonStyleChanged(Qt::ToolButtonStyle)), this,
            SLOT(followWindow(Qt::ToolButtonStyle)));
}

// The size that the style has may change with it.
void ToolBarLooks::add(QToolBar *toolBar)
{
    if (m_states.contains(toolBar))
        return;
    State &state = m_states[toolBar];
    const int ofStyle =
        m_window->style()->pixelMetric(QStyle::PM_ToolBarIconSize, nullptr, m_window);
    const int size = toolBar->iconSize().width();
    state.iconSizeByProgram = size == ofStyle ? 0 : size;
    state.textPositionByProgram = textPositions().value(toolBar->toolButtonStyle());
    connect(toolBar, SIGNAL(movableChanged(bool)), this, SLOT(movableChanged(bool)));
}

KitLook ToolBarLooks::withProgram(const QToolBar *toolBar, KitLook look) const
{
    const State state = m_states.value(toolBar);
    look.iconSizeByProgram = look.iconSize == 0 ? 0 : state.iconSizeByProgram;
    look.textPositionByProgram =
        look.textPosition.isEmpty() ? QString() : state.textPositionByProgram;
    return look;
}

KitLook ToolBarLooks::shown(const QToolBar *toolBar, KitLook look) const
{
    const State state = m_states.value(toolBar);
    if (state.iconSize != toolBar->iconSize())
        look.iconSize = 0;
    if (state.style != toolBar->toolButtonStyle())
        look.textPosition.clear();
    return withProgram(toolBar, look);
}

void ToolBarLooks::apply(QToolBar *toolBar, KitLook *look)
{
    const auto state = m_states.find(toolBar);
    if (state == m_states.end())
        return;
    if (look->iconSizeByProgram != state->iconSizeByProgram)
        look->iconSize = 0;
    if (look->textPositionByProgram != state->textPositionByProgram)
        look->textPosition.clear();
    *look = withProgram(toolBar, *look);
    if (look->iconSize == 0)
        takeIconSizeBack(toolBar, &state.value());
    else
        setIconSize(toolBar, &state.value(), look->iconSize);
    const int style = textPositions().indexOf(look->textPosition);
    if (style < 0)
        takeStyleBack(toolBar, &state.value());
    else
        setStyle(toolBar, &state.value(), Qt::ToolButtonStyle(style));
}

// Qt gives all buttons the size of their toolbar when that changes.
void ToolBarLooks::setIconSize(QToolBar *toolBar, State *state, int size) const
{
    const QSize now = toolBar->iconSize();
    if (now != state->iconSize) {
        state->iconSizeBefore = now == m_window->iconSize() ? QSize() : now;
        state->ownIconSizes.clear();
        const auto buttons = buttonsOf(toolBar);
        for (QToolButton *button : buttons) {
            if (button->iconSize() != now)
                state->ownIconSizes.append({button, button->iconSize()});
        }
    }
    state->iconSize = QSize(size, size);
    toolBar->setIconSize(state->iconSize);
}

void ToolBarLooks::takeIconSizeBack(QToolBar *toolBar, State *state) const
{
    if (state->iconSize.isValid() && toolBar->iconSize() == state->iconSize) {
        toolBar->setIconSize(state->iconSizeBefore);
        const auto sizes = state->ownIconSizes;
        for (const auto &size : sizes) {
            if (size.button)
                size.button->setIconSize(size.own);
        }
    }
    state->iconSize = QSize();
}

void ToolBarLooks::setStyle(QToolBar *toolBar, State *state, Qt::ToolButtonStyle style) const
{
    const Qt::ToolButtonStyle now = toolBar->toolButtonStyle();
    if (now != state->style) {
        state->styleBefore = now == m_window->toolButtonStyle() ? -1 : now;
        state->ownStyles.clear();
        const auto buttons = buttonsOf(toolBar);
        for (QToolButton *button : buttons) {
            if (button->toolButtonStyle() != now)
                state->ownStyles.append({button, button->toolButtonStyle()});
        }
    }
    state->style = style;
    state->styleOfWindow = -1;
    toolBar->setToolButtonStyle(style);
}

void ToolBarLooks::takeStyleBack(QToolBar *toolBar, State *state) const
{
    if (state->style == toolBar->toolButtonStyle()) {
        if (state->styleBefore < 0)
            state->styleOfWindow = m_window->toolButtonStyle();
        toolBar->setToolButtonStyle(Qt::ToolButtonStyle(
            state->styleBefore < 0 ? state->styleOfWindow : state->styleBefore));
        const auto styles = state->ownStyles;
        for (const auto &style : styles) {
            if (style.button)
                style.button->setToolButtonStyle(style.own);
        }
    }
    state->style = -1;
}

void ToolBarLooks::followWindow(Qt::ToolButtonStyle style)
{
    const auto toolBars = m_window->findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolBar *toolBar : toolBars) {
        const auto state = m_states.find(toolBar);
        if (state == m_states.end() || state->styleOfWindow != toolBar->toolButtonStyle())
            continue;
        state->styleOfWindow = style;
        toolBar->setToolButtonStyle(style);
    }
}

void ToolBarLooks::setLocked(QToolBar *toolBar, bool locked)
{
    const auto state = m_states.find(toolBar);
    if (state == m_states.end() || locked == state->isLocked || (locked && !toolBar->isMovable()))
        return;
    state->isLocked = locked; // before Qt reports the change
    toolBar->setMovable(!locked);
}

bool ToolBarLooks::isMovable(const QToolBar *toolBar) const
{
    return toolBar->isMovable() || m_states.value(toolBar).isLocked;
}

void ToolBarLooks::movableChanged(bool movable)
{
    if (movable && m_states.value(sender()).isLocked)
        Q_EMIT unlockedByProgram();
}
