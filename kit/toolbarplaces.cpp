// SPDX-License-Identifier: MIT

#include "toolbarplaces.h"

#include "mergedentries.h"

#include <QLayout>
#include <QMainWindow>
#include <QToolBar>

namespace {

QMap<QString, Qt::ToolBarArea> areas()
{
    return {{QStringLiteral("left"), Qt::LeftToolBarArea},
            {QStringLiteral("right"), Qt::RightToolBarArea},
            {QStringLiteral("top"), Qt::TopToolBarArea},
            {QStringLiteral("bottom"), Qt::BottomToolBarArea}};
}

// The lines without the toolbars that the window does not have.
QList<QStringList> presentLines(const QList<QStringList> &lines, const QSet<QString> &present)
{
    QList<QStringList> result;
    for (const QStringList &line : lines) {
        QStringList names;
        for (const QString &name : line) {
            if (present.contains(name))
                names.append(name);
        }
        if (!names.isEmpty())
            result.append(names);
    }
    return result;
}

// Qt hides a widget whose window flags change.
void setFloating(QToolBar *toolBar, bool floating, const QPoint &position)
{
    // Hidden is also one that Qt has not shown yet.
    const bool hidden =
        toolBar->isHidden() && toolBar->testAttribute(Qt::WA_WState_ExplicitShowHide);
    toolBar->setWindowFlags((floating ? Qt::Tool : Qt::Widget) | Qt::FramelessWindowHint);
    if (floating)
        toolBar->move(position);
    toolBar->setVisible(!hidden);
}

int lineWithAnyOf(const QList<QStringList> &lines, const QStringList &names)
{
    for (int i = 0; i < lines.size(); ++i) {
        for (const QString &name : names) {
            if (lines.at(i).contains(name))
                return i;
        }
    }
    return -1;
}

} // namespace

QList<QToolBar *> ToolBarPlaces::toolBarsIn(const QMainWindow *window)
{
    QList<QToolBar *> toolBars;
    const QLayout *const layout = window->layout();
    for (int i = 0; QLayoutItem *const item = layout ? layout->itemAt(i) : nullptr; ++i) {
        if (QToolBar *const toolBar = qobject_cast<QToolBar *>(item->widget()))
            toolBars.append(toolBar);
    }
    return toolBars;
}

KitPlaces ToolBarPlaces::read(const QMainWindow *window,
                              const QHash<const QToolBar *, QString> &names)
{
    KitPlaces places;
    const auto allAreas = areas();
    QMap<QString, bool> endsLine;
    const auto toolBars = toolBarsIn(window);
    for (QToolBar *toolBar : toolBars) {
        const QString area = allAreas.key(window->toolBarArea(toolBar));
        if (area.isEmpty())
            continue;
        if (window->toolBarBreak(toolBar))
            endsLine[area] = true;
        const QString name = names.value(toolBar);
        if (name.isEmpty())
            continue;
        QList<QStringList> &lines = places.lines[area];
        if (lines.isEmpty() || endsLine.value(area))
            lines.append(QStringList());
        endsLine[area] = false;
        lines.last().append(name);
        if (toolBar->isFloating())
            places.floating.insert(name, toolBar->pos());
    }
    return places;
}

void ToolBarPlaces::apply(QMainWindow *window, const QHash<const QToolBar *, QString> &names,
                          const KitPlaces &places)
{
    const KitPlaces now = read(window, names);
    QHash<QString, QToolBar *> toolBarOf;
    QSet<QString> present;
    const auto toolBars = toolBarsIn(window);
    for (QToolBar *toolBar : toolBars) {
        const QString name = names.value(toolBar);
        toolBarOf.insert(name, toolBar);
        present.insert(name);
    }
    const auto allAreas = areas();
    for (auto it = places.lines.cbegin(); it != places.lines.cend(); ++it) {
        const QList<QStringList> lines = presentLines(it.value(), present);
        if (lines == now.lines.value(it.key()))
            continue;
        const Qt::ToolBarArea area = allAreas.value(it.key());
        bool first = true;
        for (const QStringList &line : lines) {
            if (!first)
                window->addToolBarBreak(area);
            first = false;
            for (const QString &name : line)
                window->addToolBar(area, toolBarOf.value(name));
        }
    }
    for (auto it = toolBarOf.cbegin(); it != toolBarOf.cend(); ++it) {
        QToolBar *const toolBar = it.value();
        const bool floating = toolBar->isFloatable() && places.floating.contains(it.key());
        if (floating || toolBar->isFloating())
            setFloating(toolBar, floating, places.floating.value(it.key()));
    }
}

QSet<QString> ToolBarPlaces::toolBarsOf(const KitPlaces &places)
{
    QSet<QString> names;
    for (const QList<QStringList> &lines : places.lines) {
        for (const QStringList &line : lines) {
            for (const QString &name : line)
                names.insert(name);
        }
    }
    return names;
}

KitPlaces ToolBarPlaces::merged(const KitPlaces &places, const KitPlaces &model)
{
    KitPlaces result = places;
    const QSet<QString> found = toolBarsOf(places);
    for (auto it = model.lines.cbegin(); it != model.lines.cend(); ++it) {
        for (int i = 0; i < it.value().size(); ++i) {
            const QStringList &modelLine = it.value().at(i);
            QSet<QString> missing;
            for (const QString &name : modelLine) {
                if (!found.contains(name))
                    missing.insert(name);
            }
            if (missing.isEmpty())
                continue;
            QList<QStringList> &lines = result.lines[it.key()];
            int index = lineWithAnyOf(lines, modelLine);
            if (index < 0) {
                index = qMin(i, int(lines.size()));
                lines.insert(index, QStringList());
            }
            lines[index] = mergedEntries(lines.at(index), modelLine, missing);
        }
    }
    for (auto it = model.floating.cbegin(); it != model.floating.cend(); ++it) {
        if (!found.contains(it.key()))
            result.floating.insert(it.key(), it.value());
    }
    return result;
}
