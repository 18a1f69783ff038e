// SPDX-License-Identifier: MIT

#include "spokennames.h"

#include "dialogdressing.h"
#include "plaintextdelegate.h"

#include <RyCustomizedDialog>

#include <QChildEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>

SpokenNames::SpokenNames(const DialogParts &parts, const DialogDressing *dressing)
    : QObject(parts.dialog)
    , m_parts(parts)
{
    nameWidgets();
    // Before the views are painted, or what changes in them would be painted again.
    connect(dressing, SIGNAL(filled()), this, SLOT(describeItems()));
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(describeItems()));
    // The items are made each time the page is shown, and entries each time a toolbar is chosen.
    for (const QAbstractItemView *view : {static_cast<QAbstractItemView *>(m_parts.actionTree),
                                          static_cast<QAbstractItemView *>(m_parts.toolBarList),
                                          static_cast<QAbstractItemView *>(m_parts.entryList)})
        connect(view->model(), SIGNAL(rowsInserted(QModelIndex, int, int)), &m_timer,
                SLOT(start()));
    connect(m_parts.actionTree, SIGNAL(currentItemChanged(QTreeWidgetItem *, QTreeWidgetItem *)),
            this, SLOT(speakPlainly(QTreeWidgetItem *)));
    m_parts.toolBarList->viewport()->installEventFilter(this);
}

QString SpokenNames::spoken(const QString &text)
{
    return text == DialogParts::separatorText() ? tr("Separator")
                                                : PlainTextDelegate::plainText(text);
}

void SpokenNames::nameWidgets()
{
    // Qt takes the name of a view only from here, not even from a caption whose buddy it is.
    m_parts.actionTree->setAccessibleName(m_parts.actionCaption->text());
    m_parts.toolBarList->setAccessibleName(m_parts.toolBarCaption->text());
    m_parts.entryList->setAccessibleName(m_parts.entryCaption->text());
    // It is hidden, but spoken.
    m_parts.actionTree->setHeaderLabel(m_parts.actionCaption->text());
    // Their texts are signs, such as "<-", or too short for a list of all buttons.
    const auto buttons = m_parts.page->findChildren<QToolButton *>();
    for (QToolButton *button : buttons)
        button->setAccessibleName(button->toolTip());
}

void SpokenNames::describeItems()
{
    describeTree();
    describeEntries();
    describeToolBars();
}

void SpokenNames::describeTree()
{
    for (int i = 0; i < m_parts.actionTree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const item = m_parts.actionTree->topLevelItem(i);
        if (item->text(0) == DialogParts::separatorText())
            item->setData(0, Qt::AccessibleTextRole, spoken(item->text(0)));
    }
}

void SpokenNames::describeEntries()
{
    for (int row = 0; row < m_parts.entryList->count(); ++row) {
        QListWidgetItem *const item = m_parts.entryList->item(row);
        const QString text = spoken(item->text());
        if (text != item->text())
            item->setData(Qt::AccessibleTextRole, text);
    }
}

// Toolbars of the program differ from others only in color.
void SpokenNames::describeToolBars()
{
    // The editor takes a changed row for a renamed toolbar.
    const QSignalBlocker blocker(m_parts.toolBarList);
    for (int row = 0; row < m_parts.toolBarList->count(); ++row) {
        QListWidgetItem *const item = m_parts.toolBarList->item(row);
        if (!item->flags().testFlag(Qt::ItemIsEditable))
            item->setData(Qt::AccessibleDescriptionRole,
                          tr("Comes with the program and can be neither renamed nor removed"));
    }
}

// There may be thousands of actions, and a screen reader asks only for the current one.
void SpokenNames::speakPlainly(QTreeWidgetItem *action)
{
    if (action && action->text(0).contains(QLatin1Char('&')))
        action->setData(0, Qt::AccessibleTextRole, PlainTextDelegate::plainText(action->text(0)));
}

bool SpokenNames::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildPolished)
        nameEditor(static_cast<QChildEvent *>(event)->child());
    return QObject::eventFilter(watched, event);
}

// The line in which a toolbar is named.
void SpokenNames::nameEditor(QObject *child)
{
    if (QLineEdit *const line = qobject_cast<QLineEdit *>(child))
        line->setAccessibleName(tr("Name of the toolbar"));
}
