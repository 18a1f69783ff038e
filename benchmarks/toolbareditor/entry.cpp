// SPDX-License-Identifier: MIT

#include "entry.h"

#include <QAbstractButton>

Entry::Entry(const Size &size, std::unique_ptr<QDialog> (DialogScene::*create)())
    : m_scene(size)
    , m_dialog((m_scene.*create)())
    , m_list(m_dialog->findChild<QListWidget *>(QStringLiteral("currentToolBarList")))
    , m_addButton(m_dialog->findChild<QAbstractButton *>(QStringLiteral("rightButton")))
    , m_removeButton(m_dialog->findChild<QAbstractButton *>(QStringLiteral("leftButton")))
{
    m_dialog->show();
    // The last action is on no toolbar.
    QTreeWidget *const tree = m_dialog->findChild<QTreeWidget *>();
    const auto found =
        tree->findItems(m_scene.actions().last()->text(), Qt::MatchExactly | Qt::MatchRecursive);
    tree->setCurrentItem(found.value(0));
    settle();
}

void Entry::prepare()
{
    m_list->setCurrentRow(m_list->count() / 2);
    settle();
}

void Entry::run()
{
    m_addButton->click();
    m_removeButton->click();
}

void Entry::finish()
{
    settle();
}

QStringList Entry::result()
{
    // Also while the entry is in the list.
    QStringList lines = describeDialog(m_dialog.get());
    m_list->setCurrentRow(m_list->count() / 2);
    m_addButton->click();
    lines += describeDialog(m_dialog.get());
    m_removeButton->click();
    return lines;
}

EntryOurs::EntryOurs(const Size &size)
    : Entry(size, &DialogScene::createOurs)
{
}

EntryBare::EntryBare(const Size &size)
    : Entry(size, &DialogScene::createBare)
{
}
