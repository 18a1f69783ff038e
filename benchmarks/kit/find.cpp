// SPDX-License-Identifier: MIT

#include "find.h"

#include <RyCToolBarWidget>
#include <RyCustomizedDialog>

#include <QTreeWidget>

namespace {

const QLatin1String Typed("7");

// Hides what does not contain the text, as a host would write it.
void filter(QTreeWidget *tree, const QString &text)
{
    QTreeWidgetItem *best = nullptr;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const category = tree->topLevelItem(i);
        const bool isFound = category->text(0).contains(text);
        bool hasMatch = isFound;
        for (int j = 0; j < category->childCount(); ++j) {
            QTreeWidgetItem *const item = category->child(j);
            const bool matches = isFound || item->text(0).contains(text);
            item->setHidden(!matches);
            hasMatch = hasMatch || matches;
            if (matches && !best)
                best = item;
        }
        category->setHidden(!hasMatch);
        category->setExpanded(!text.isEmpty());
    }
    if (!text.isEmpty())
        tree->setCurrentItem(best);
}

QStringList visibleRows(const QTreeWidget *tree)
{
    QStringList rows;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *const category = tree->topLevelItem(i);
        for (int j = 0; j < category->childCount(); ++j) {
            if (!category->isHidden() && !category->child(j)->isHidden())
                rows.append(category->child(j)->text(0));
        }
    }
    return rows;
}

} // namespace

FindAction::FindAction(const Size &size)
    : m_scene(size)
{
    m_scene.kit()->customizeAction()->trigger();
    m_dialog = m_scene.window()->findChild<RyCustomizedDialog *>();
    m_line = m_dialog->findChild<QLineEdit *>(QStringLiteral("actionSearch"));
    settle();
    // What the kit prepares when nothing is typed for a moment.
    run();
    finish();
}

void FindAction::run()
{
    m_line->setText(Typed);
    settle();
}

void FindAction::finish()
{
    m_line->clear();
    settle();
}

QStringList FindAction::result()
{
    const QWidget *const page = m_dialog->findChild<RyCToolBarWidget *>();
    return visibleRows(page->findChild<QTreeWidget *>());
}

FindActionBare::FindActionBare(const Size &size)
    : m_scene(size)
    , m_dialog(m_scene.createBare())
    , m_tree(m_dialog->findChild<QTabWidget *>()->widget(0)->findChild<QTreeWidget *>())
{
    m_dialog->show();
    settle();
}

void FindActionBare::run()
{
    filter(m_tree, Typed);
    settle();
}

void FindActionBare::finish()
{
    filter(m_tree, QString());
    settle();
}

QStringList FindActionBare::result()
{
    return visibleRows(m_tree);
}
