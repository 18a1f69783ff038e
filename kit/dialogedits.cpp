// SPDX-License-Identifier: MIT

#include "dialogedits.h"

#include <RyCustomizedDialog>

#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

DialogEdits::DialogEdits(const DialogParts &parts)
    : QObject(parts.page)
    , m_parts(parts)
    , m_any(false)
{
    for (const QToolButton *button : {parts.newButton, parts.removeButton, parts.upButton,
                                      parts.downButton, parts.leftButton, parts.rightButton})
        connect(button, SIGNAL(clicked()), this, SLOT(add()));
    connect(parts.actionTree, SIGNAL(itemDoubleClicked(QTreeWidgetItem *, int)), this,
            SLOT(addByDoubleClick()));
    connect(parts.entryList, SIGNAL(itemDoubleClicked(QListWidgetItem *)), this, SLOT(add()));
    connect(parts.toolBarList, SIGNAL(itemChanged(QListWidgetItem *)), this,
            SLOT(addName(QListWidgetItem *)));
    connect(parts.dialog->applyButton(), SIGNAL(clicked()), this, SLOT(forget()));
    connect(parts.actionTree->model(), SIGNAL(modelReset()), this, SLOT(forget()));
}

void DialogEdits::add()
{
    m_any = true;
}

// On a category it only expands that.
void DialogEdits::addByDoubleClick()
{
    m_any = m_any || m_parts.rightButton->isEnabled();
}

// Only names that the user types.
void DialogEdits::addName(QListWidgetItem *row)
{
    m_any = m_any || m_parts.toolBarList->itemWidget(row);
}

void DialogEdits::forget()
{
    m_any = false;
}
