// SPDX-License-Identifier: MIT

#include "windowreport.h"

#include <RyToolBarKit>
#include <RyToolBarManager>

#include <QAction>
#include <QDockWidget>
#include <QJsonArray>
#include <QLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMetaProperty>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVariant>
#include <QWidgetAction>

#include <algorithm>

namespace {

// What the user does not see, and what follows from the place.
const char *const ignoredProperties[] = {"frameGeometry",
                                         "geometry",
                                         "normalGeometry",
                                         "pos",
                                         "rect",
                                         "size",
                                         "x",
                                         "y",
                                         "width",
                                         "height",
                                         "childrenRect",
                                         "frameSize",
                                         "cursor",
                                         "font",
                                         "palette",
                                         "locale",
                                         "focus",
                                         "isActiveWindow",
                                         "mouseTracking",
                                         "sizeIncrement",
                                         "down",
                                         "underMouse",
                                         "minimumSizeHint",
                                         "baseSize",
                                         "sizeHint",
                                         "visible",
                                         "windowModality"};

QJsonArray json(const QRect &rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QString nameOf(const QObject *object)
{
    const QString name = object->objectName();
    return name.isEmpty() ? QLatin1String(object->metaObject()->className()) : name;
}

QString nameOf(const QAction *action)
{
    if (action->isSeparator())
        return QStringLiteral("|");
    // The kit gives those a text that have none.
    const QWidgetAction *const widgetAction = qobject_cast<const QWidgetAction *>(action);
    if (widgetAction && widgetAction->defaultWidget() && action->objectName().isEmpty())
        return nameOf(widgetAction->defaultWidget());
    return action->objectName().isEmpty() ? action->text() : action->objectName();
}

QJsonValue json(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QSize:
        return QJsonArray{value.toSize().width(), value.toSize().height()};
    case QMetaType::QIcon:
        return value.value<QIcon>().isNull() ? QString() : value.value<QIcon>().name() + "*";
    case QMetaType::QKeySequence:
        return value.value<QKeySequence>().toString();
    case QMetaType::QSizePolicy: {
        const QSizePolicy policy = value.value<QSizePolicy>();
        return QJsonArray{policy.horizontalPolicy(), policy.verticalPolicy(),
                          policy.horizontalStretch(), policy.verticalStretch()};
    }
    default:
        if (value.canConvert<QObject *>() && value.value<QObject *>())
            return nameOf(value.value<QObject *>());
        return QJsonValue::fromVariant(value);
    }
}

QJsonObject propertiesOf(const QObject *object)
{
    QJsonObject all;
    const QMetaObject *const meta = object->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i)
        all.insert(QLatin1String(meta->property(i).name()), json(meta->property(i).read(object)));
    for (const QByteArray &name : object->dynamicPropertyNames())
        all.insert(QString::fromLatin1(name), json(object->property(name.constData())));
    for (const char *name : ignoredProperties)
        all.remove(QLatin1String(name));
    return all;
}

QJsonObject describe(const QToolBar *toolBar, QAction *action)
{
    QJsonObject entry{{"name", nameOf(action)}};
    const QWidget *const widget = toolBar->widgetForAction(action);
    if (!widget)
        return entry;
    entry["class"] = QLatin1String(widget->metaObject()->className());
    // Before it is first shown, a widget has no place.
    if (toolBar->isVisible()) {
        entry["shown"] = widget->isVisible();
        entry["rect"] = widget->isVisible() ? json(widget->geometry()) : QJsonArray();
    }
    if (action->isSeparator())
        return entry;
    entry["properties"] = propertiesOf(widget);
    if (const QToolButton *const button = qobject_cast<const QToolButton *>(widget)) {
        entry["menu"] = button->menu() ? nameOf(button->menu()) : QString();
        entry["defaultAction"] = button->defaultAction() ? nameOf(button->defaultAction()) : "";
    }
    return entry;
}

QJsonObject describe(const QAction *action)
{
    QJsonObject entry = propertiesOf(action);
    const QObject *const parent = action->parent();
    entry["name"] = nameOf(action);
    entry["parent"] = parent ? nameOf(parent) : QString();
    entry["data"] = json(action->data());
    entry["menu"] = action->menu() ? nameOf(action->menu()) : QString();
    entry["class"] = QLatin1String(action->metaObject()->className());
    return entry;
}

QJsonArray describe(const QList<QAction *> &actions, int depth = 0)
{
    QJsonArray entries;
    for (QAction *action : actions) {
        QJsonObject entry{{"name", nameOf(action)}, {"visible", action->isVisible()}};
        if (action->menu() && depth < 8)
            entry["entries"] = describe(action->menu()->actions(), depth + 1);
        entries.append(entry);
    }
    return entries;
}

void collect(const QList<QAction *> &actions, QList<QAction *> *all)
{
    for (QAction *action : actions) {
        if (all->contains(action))
            continue;
        all->append(action);
        if (action->menu())
            collect(action->menu()->actions(), all);
    }
}

// Qt makes these for buttons that do not fit on their toolbar.
bool isOfExtension(const QObject *object)
{
    while (object && !object->inherits("QToolBarExtension"))
        object = object->parent();
    return object;
}

} // namespace

WindowReport::WindowReport(const QMainWindow *window)
    : m_window(window)
{
}

QJsonObject WindowReport::json() const
{
    QJsonArray actionList;
    for (const QAction *action : actions())
        actionList.append(describe(action));
    QJsonObject report{
        {"class", QLatin1String(m_window->metaObject()->className())},
        {"name", m_window->objectName()},
        {"title", m_window->windowTitle()},
        {"state", int(m_window->windowState())},
        {"visible", m_window->isVisible()},
        {"geometry", ::json(m_window->geometry())},
        {"focus", m_window->focusWidget() ? nameOf(m_window->focusWidget()) : QString()},
        {"toolBars", toolBars()},
        {"order", orderOfToolBars()},
        {"docks", docks()},
        {"actions", actionList},
        {"ownActions", describe(m_window->actions())},
    };
    if (const QMenuBar *const bar = qobject_cast<QMenuBar *>(m_window->menuWidget())) {
        report["menus"] = describe(bar->actions());
        report["menuBarVisible"] = bar->isVisible();
    }
    if (const QStatusBar *const bar = m_window->findChild<QStatusBar *>())
        report["statusBarVisible"] = bar->isVisible();
    if (const QWidget *const central = m_window->centralWidget()) {
        report["central"] = ::json(central->geometry());
        report["centralVisible"] = central->isVisible();
    }
    return report;
}

QList<QAction *> WindowReport::actions() const
{
    QList<QAction *> all = m_window->findChildren<QAction *>();
    for (const QToolBar *toolBar : m_window->findChildren<QToolBar *>())
        collect(toolBar->actions(), &all);
    if (const QMenuBar *const bar = qobject_cast<QMenuBar *>(m_window->menuWidget()))
        collect(bar->actions(), &all);
    QList<QAction *> result;
    for (QAction *action : all) {
        if (!action->isSeparator() && !isOfKit(action) && !isOfExtension(action))
            result.append(action);
    }
    const auto rank = [](const QAction *action) {
        return nameOf(action) + QLatin1Char('\n') + action->text();
    };
    std::stable_sort(result.begin(), result.end(),
                     [&rank](QAction *one, QAction *other) { return rank(one) < rank(other); });
    return result;
}

QJsonArray WindowReport::toolBars() const
{
    QJsonArray all;
    for (QToolBar *toolBar : m_window->findChildren<QToolBar *>()) {
        QJsonArray entries;
        for (QAction *action : toolBar->actions())
            entries.append(describe(toolBar, action));
        const bool isInWindow = toolBar->parent() == m_window;
        all.append(QJsonObject{
            {"name", nameOf(toolBar)},
            {"title", toolBar->windowTitle()},
            {"custom", isOfKit(toolBar)},
            {"inWindow", isInWindow},
            {"area", isInWindow ? m_window->toolBarArea(toolBar) : 0},
            {"break", isInWindow && m_window->toolBarBreak(toolBar)},
            {"floating", toolBar->isFloating()},
            {"hidden", toolBar->isHidden()},
            {"rect", toolBar->isVisible() ? ::json(toolBar->geometry()) : QJsonArray()},
            {"properties", propertiesOf(toolBar)},
            {"shownByToggle", toolBar->toggleViewAction()->isChecked()},
            {"entries", entries},
        });
    }
    return all;
}

// As in the window's lines.
QJsonArray WindowReport::orderOfToolBars() const
{
    QJsonArray order;
    for (int i = 0; QLayoutItem *const item = m_window->layout()->itemAt(i); ++i) {
        if (const QToolBar *const toolBar = qobject_cast<QToolBar *>(item->widget()))
            order.append(nameOf(toolBar));
    }
    return order;
}

QJsonArray WindowReport::docks() const
{
    QJsonArray all;
    for (QDockWidget *dock : m_window->findChildren<QDockWidget *>()) {
        all.append(QJsonObject{
            {"name", nameOf(dock)},
            {"title", dock->windowTitle()},
            {"area", m_window->dockWidgetArea(dock)},
            {"floating", dock->isFloating()},
            {"hidden", dock->isHidden()},
            {"rect", dock->isVisible() ? ::json(dock->geometry()) : QJsonArray()},
        });
    }
    return all;
}

bool WindowReport::isOfKit(const QObject *object) const
{
    RyToolBarKit *const kit =
        m_window->findChild<RyToolBarKit *>(QString(), Qt::FindDirectChildrenOnly);
    RyToolBarManager *const manager = kit ? kit->manager() : nullptr;
    for (; object; object = object->parent()) {
        if (qobject_cast<const RyToolBarKit *>(object))
            return true;
        QToolBar *const toolBar = qobject_cast<QToolBar *>(const_cast<QObject *>(object));
        if (manager && toolBar && manager->toolBars().contains(toolBar)
            && !manager->isDefaultToolBar(toolBar))
            return true;
    }
    return false;
}
