// SPDX-License-Identifier: MIT

#include "texts.h"

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

QString nameOf(const QAction *action)
{
    if (!action->objectName().isEmpty())
        return action->objectName();
    return '"' + action->text() + '"';
}

void appendItems(QStringList &texts, const QTreeWidgetItem *parent, int depth)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        texts << QString(2 * depth, ' ') + parent->child(i)->text(0);
        appendItems(texts, parent->child(i), depth + 1);
    }
}

} // namespace

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(' ', Qt::SkipEmptyParts);
}

QStringList lines(const char *text)
{
    return QString(text).split(',');
}

QStringList contentOf(const QList<QAction *> &actions)
{
    QStringList names;
    for (const QAction *action : actions)
        names << (action ? nameOf(action) : "|");
    return names;
}

QStringList standingOn(const QWidget *widget)
{
    QStringList names;
    const auto actions = widget->actions();
    for (const QAction *action : actions)
        names << (action->isSeparator() ? "|" : nameOf(action));
    return names;
}

QStringList rowsOf(const QListWidget *list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts << list->item(row)->text();
    return texts;
}

QStringList itemsOf(const QTreeWidget *tree)
{
    QStringList texts;
    appendItems(texts, tree->invisibleRootItem(), 0);
    return texts;
}

QString currentOf(const QListWidget *list)
{
    return list->currentItem() ? list->currentItem()->text() : QString();
}

QString currentOf(const QTreeWidget *tree)
{
    return tree->currentItem() ? tree->currentItem()->text(0) : QString();
}

QTreeWidgetItem *itemNamed(const QTreeWidget *tree, const QString &text)
{
    return tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}

QListWidgetItem *itemNamed(const QListWidget *list, const QString &text)
{
    return list->findItems(text, Qt::MatchExactly).value(0);
}

QStringList toolBarTitlesIn(const QMainWindow &window)
{
    QStringList titles;
    const auto toolBars = window.findChildren<QToolBar *>();
    for (const QToolBar *toolBar : toolBars)
        titles << toolBar->windowTitle();
    titles.sort();
    return titles;
}

QAction *menuEntry(const QMainWindow &window, const QString &text)
{
    const auto menus = window.menuBar()->actions();
    for (const QAction *menu : menus) {
        const auto entries = menu->menu()->actions();
        for (QAction *entry : entries) {
            if (entry->text() == text)
                return entry;
        }
    }
    return nullptr;
}
