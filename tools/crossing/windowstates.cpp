// SPDX-License-Identifier: MIT

#include "windowstates.h"

#include "host.h"

#include <QApplication>
#include <QDockWidget>

#include <algorithm>

namespace {

const QString State = "window-state";
const QString Geometry = "window-geometry";

// Toolbars of the manager, one of them created by a user, and dock widgets.
class Window : public Host
{
public:
    Window()
    {
        for (const char *name : {"file", "edit", "view", "find"})
            m_toolBars << defaultToolBar(name, {"open", "|", "save"}, "A");
        m_toolBars << manager.createToolBar("Mine");
        m_toolBars.last()->setObjectName("mine");
        manager.setToolBar(m_toolBars.last(), list({"open"}));
        for (const char *name : {"tree", "log", "help", "notes"}) {
            QDockWidget *const dock = new QDockWidget(name, &window);
            dock->setObjectName(name);
            window.addDockWidget(Qt::LeftDockWidgetArea, dock);
            m_docks << dock;
        }
    }

    // As a user may have left it.
    void arrange()
    {
        window.setGeometry(40, 60, 640, 480);
        window.addToolBar(Qt::BottomToolBarArea, m_toolBars.at(0));
        window.insertToolBar(m_toolBars.at(2), m_toolBars.at(1));
        window.addToolBar(Qt::LeftToolBarArea, m_toolBars.at(3));
        m_toolBars.at(2)->hide();
        window.insertToolBarBreak(m_toolBars.at(4));
        window.addDockWidget(Qt::RightDockWidgetArea, m_docks.at(1));
        window.tabifyDockWidget(m_docks.at(1), m_docks.at(2));
        window.addDockWidget(Qt::BottomDockWidgetArea, m_docks.at(3));
        m_docks.at(3)->hide();
        m_docks.at(0)->setFloating(true);
    }

    void show()
    {
        window.show();
        QApplication::processEvents();
    }

    QByteArray described() const
    {
        QStringList lines;
        for (QToolBar *toolBar : m_toolBars) {
            lines << QString("%1: area %2, break %3, hidden %4, x order %5")
                         .arg(toolBar->objectName())
                         .arg(window.toolBarArea(toolBar))
                         .arg(window.toolBarBreak(toolBar))
                         .arg(toolBar->isHidden())
                         .arg(placeOf(toolBar));
        }
        for (QDockWidget *dock : m_docks) {
            const auto tabs = window.tabifiedDockWidgets(dock);
            lines << QString("%1: area %2, floating %3, hidden %4, tabs %5")
                         .arg(dock->objectName())
                         .arg(window.dockWidgetArea(dock))
                         .arg(dock->isFloating())
                         .arg(dock->isHidden())
                         .arg(tabs.size());
        }
        return lines.join('\n').toUtf8();
    }

    QByteArray geometry() const
    {
        const QRect rect = window.geometry();
        return QString("%1,%2 %3x%4")
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height())
            .toUtf8();
    }

private:
    // How many toolbars of its area come before it.
    int placeOf(QToolBar *toolBar) const
    {
        const QPoint own = toolBar->pos();
        return static_cast<int>(
            std::count_if(m_toolBars.begin(), m_toolBars.end(), [&](QToolBar *other) {
                const QPoint pos = other->pos();
                return window.toolBarArea(other) == window.toolBarArea(toolBar)
                    && !other->isHidden() && pos.x() + pos.y() < own.x() + own.y();
            }));
    }

    QList<QToolBar *> m_toolBars;
    QList<QDockWidget *> m_docks;
};

} // namespace

QList<SavedState> windowStates()
{
    Window window;
    window.arrange();
    window.show();
    return {{State, window.window.saveState(1)}, {Geometry, window.window.saveGeometry()}};
}

bool isWindowState(const QString &name)
{
    return name == State || name == Geometry;
}

Restored restoreWindow(const SavedState &state)
{
    Window arranged;
    arranged.arrange();
    arranged.show();
    Window window;
    const bool isState = state.name == State;
    const bool result = isState ? window.window.restoreState(state.bytes, 1)
                                : window.window.restoreGeometry(state.bytes);
    window.show();
    Restored restored;
    restored.described = isState ? window.described() : window.geometry();
    const QByteArray expected = isState ? arranged.described() : arranged.geometry();
    if (!result)
        restored.error = "it was refused";
    else if (restored.described != expected)
        restored.error = "the window is\n" + restored.described + "\nand not\n" + expected;
    return restored;
}
