// SPDX-License-Identifier: MIT

#include "visiblewidgets.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QToolBar>

namespace {

QJsonArray onScreen(const QWidget *widget, const QRect &rect)
{
    const QPoint corner = widget->mapToGlobal(rect.topLeft());
    return {corner.x(), corner.y(), rect.width(), rect.height()};
}

QString textOf(const QWidget *widget)
{
    for (const char *name : {"text", "currentText", "windowTitle", "title", "toolTip"}) {
        const QString text = widget->property(name).toString();
        if (!text.isEmpty())
            return text;
    }
    return QString();
}

void addRows(const QAbstractItemView *view, const QModelIndex &parent, const QStringList &path,
             QJsonArray *rows)
{
    const QAbstractItemModel *const model = view->model();
    for (int row = 0; model && row < model->rowCount(parent) && rows->size() < 2000; ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        const QStringList ownPath = path + QStringList(index.data().toString());
        const QRect rect = view->visualRect(index);
        const bool isVisible = view->viewport()->rect().contains(rect.center()) && !rect.isEmpty();
        rows->append(QJsonObject{{"path", QJsonArray::fromStringList(ownPath)},
                                 {"rect", onScreen(view->viewport(), rect)},
                                 {"visible", isVisible},
                                 {"current", view->currentIndex() == index}});
        addRows(view, index, ownPath, rows);
    }
}

// The entries of a menu or a menu bar, or the tabs of a tab bar.
QJsonArray partsOf(const QWidget *widget)
{
    QJsonArray parts;
    const QMenu *const menu = qobject_cast<const QMenu *>(widget);
    const QMenuBar *const menuBar = qobject_cast<const QMenuBar *>(widget);
    const QToolBar *const toolBar = qobject_cast<const QToolBar *>(widget);
    for (QAction *action : widget->actions()) {
        QRect rect = menu ? menu->actionGeometry(action) : QRect();
        if (menuBar)
            rect = menuBar->actionGeometry(action);
        const QWidget *const button = toolBar ? toolBar->widgetForAction(action) : nullptr;
        if (button && button->isVisible())
            rect = button->geometry();
        if (!rect.isEmpty())
            parts.append(QJsonObject{{"text", action->text()},
                                     {"name", action->objectName()},
                                     {"enabled", action->isEnabled()},
                                     {"rect", onScreen(widget, rect)}});
    }
    if (const QTabBar *const tabs = qobject_cast<const QTabBar *>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            parts.append(QJsonObject{{"text", tabs->tabText(i)},
                                     {"rect", onScreen(tabs, tabs->tabRect(i))}});
    }
    return parts;
}

QJsonArray classesOf(const QWidget *widget)
{
    QJsonArray classes;
    for (const QMetaObject *meta = widget->metaObject(); meta; meta = meta->superClass())
        classes.append(QLatin1String(meta->className()));
    return classes;
}

QJsonObject describe(const QWidget *widget)
{
    QJsonObject entry{
        {"class", QLatin1String(widget->metaObject()->className())},
        {"kinds", classesOf(widget)},
        {"name", widget->objectName()},
        {"windowClass", QLatin1String(widget->window()->metaObject()->className())},
        {"title", widget->windowTitle()},
        {"active", widget->isActiveWindow()},
        {"focus", widget->hasFocus()},
        {"text", textOf(widget)},
        {"enabled", widget->isEnabled()},
        {"rect", onScreen(widget, widget->rect())},
        {"parts", partsOf(widget)},
    };
    const QAbstractItemView *const view = qobject_cast<const QAbstractItemView *>(widget);
    // Those of the program may load what they show when they are asked.
    if (view && widget->window()->inherits("RyCustomizedDialog")) {
        QJsonArray rows;
        addRows(view, QModelIndex(), QStringList(), &rows);
        entry["rows"] = rows;
    }
    return entry;
}

} // namespace

QJsonArray visibleWidgets()
{
    QJsonArray all;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible())
            continue;
        all.append(describe(window));
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->window() == window)
                all.append(describe(widget));
        }
    }
    return all;
}
