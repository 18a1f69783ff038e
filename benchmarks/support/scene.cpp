// SPDX-License-Identifier: MIT

#include "scene.h"

#include "baretoolbars.h"

#include <QIcon>
#include <QPixmap>

#include <algorithm>

namespace {

const int ActionsOfCategory = 50;
const int ToolBarsOfRow = 10;
const int EntriesOfSeparator = 10;

QString numbered(const char *text, int number)
{
    return QLatin1String(text) + QString::number(number).rightJustified(5, QLatin1Char('0'));
}

} // namespace

Scene::Scene(const Size &size)
    : m_size(size)
{
    m_window.setObjectName(QStringLiteral("window"));
    createActions();
    createToolBars();
}

Scene::~Scene() = default;

void Scene::createActions()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::darkCyan);
    const QIcon icon(pixmap);
    m_actions.reserve(m_size.actions);
    for (int i = 0; i < m_size.actions; ++i) {
        QAction *const action = new QAction(icon, numbered("Command ", i), &m_window);
        action->setObjectName(numbered("command.", i));
        m_actions.append(action);
    }
}

void Scene::createToolBars()
{
    for (int i = 0; i < m_size.toolBars; ++i)
        m_toolBars.append(new QToolBar(&m_window));
    std::sort(m_toolBars.begin(), m_toolBars.end());
    for (int i = 0; i < m_size.toolBars; ++i) {
        m_toolBars.at(i)->setObjectName(numbered("toolbar.", i));
        m_toolBars.at(i)->setWindowTitle(numbered("Toolbar ", i));
        if (i % ToolBarsOfRow == 0)
            m_window.addToolBarBreak();
        m_window.addToolBar(m_toolBars.at(i));
    }
}

QList<Scene::Category> Scene::categories() const
{
    QList<Category> categories;
    for (int first = 0; first < m_actions.size(); first += ActionsOfCategory) {
        categories.append({numbered("Category ", first / ActionsOfCategory),
                           m_actions.mid(first, ActionsOfCategory)});
    }
    return categories;
}

QList<QAction *> Scene::content(int toolBar, int variant) const
{
    const int placed = m_size.placed ? m_size.placed : m_actions.size();
    int next = (toolBar + variant) * m_size.entries;
    QList<QAction *> content;
    content.reserve(m_size.entries);
    for (int i = 0; i < m_size.entries; ++i) {
        const bool separator = i % EntriesOfSeparator == EntriesOfSeparator - 1;
        content.append(separator ? nullptr : m_actions.at(next++ % placed));
    }
    return content;
}

void Scene::fillToolBars()
{
    for (int i = 0; i < m_toolBars.size(); ++i)
        bare::appendContent(m_toolBars.at(i), content(i, 0));
}

void Scene::show()
{
    m_window.show();
    settle();
}

QStringList describeToolBars(const QMainWindow *window)
{
    QStringList lines;
    const auto toolBars = window->findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QToolBar *toolBar : toolBars) {
        QStringList names;
        int widgets = 0;
        const auto actions = toolBar->actions();
        for (QAction *action : actions) {
            names.append(action->isSeparator() ? QStringLiteral("-") : action->objectName());
            widgets += toolBar->widgetForAction(action) ? 1 : 0;
        }
        lines.append(QStringLiteral("%1 '%2' %3 widgets: %4")
                         .arg(toolBar->objectName(), toolBar->windowTitle())
                         .arg(widgets)
                         .arg(names.join(QLatin1Char(' '))));
    }
    lines.sort();
    return lines;
}
