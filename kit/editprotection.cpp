// SPDX-License-Identifier: MIT

#include "editprotection.h"

#include "dialogedits.h"
#include "plaintextdelegate.h"

#include <RyCustomizedDialog>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QToolButton>

namespace {

QString shownName(const QListWidgetItem *row)
{
    return PlainTextDelegate::plainText(row->text()).trimmed();
}

} // namespace

EditProtection::EditProtection(const DialogParts &parts, const DialogEdits *edits)
    : QObject(parts.page)
    , m_parts(parts)
    , m_edits(edits)
{
    // Before the buttons are clicked, also by their keys, which leave the focus where it is.
    connect(parts.dialog->okButton(), SIGNAL(pressed()), this, SLOT(takeName()));
    connect(parts.dialog->applyButton(), SIGNAL(pressed()), this, SLOT(takeName()));
    connect(parts.newButton, SIGNAL(clicked()), this, SLOT(nameNewToolBar()));
    connect(parts.toolBarList, SIGNAL(itemChanged(QListWidgetItem *)), this,
            SLOT(checkName(QListWidgetItem *)));
    connect(parts.toolBarList, SIGNAL(currentRowChanged(int)), this, SLOT(updateButtons()));
    connect(parts.toolBarList->model(), SIGNAL(rowsRemoved(QModelIndex, int, int)), this,
            SLOT(updateButtons()));
    parts.removeButton->installEventFilter(this);
    parts.renameButton->installEventFilter(this);
    parts.dialog->installEventFilter(this);
    updateButtons();
}

// Takes the name that is being typed, as when the user goes to another widget.
void EditProtection::takeName()
{
    QListWidget *const list = m_parts.toolBarList;
    QListWidgetItem *const row = list->currentItem();
    QWidget *const editor = row ? list->itemWidget(row) : nullptr;
    if (!editor)
        return;
    QAbstractItemDelegate *const delegate = list->itemDelegate();
    Q_EMIT delegate->commitData(editor);
    Q_EMIT delegate->closeEditor(editor);
}

// The editor gives all of them the same name.
void EditProtection::nameNewToolBar()
{
    QListWidgetItem *const row = m_parts.toolBarList->currentItem();
    if (!row)
        return;
    const QString name = uniqueName(row);
    if (name == row->text())
        return;
    row->setText(name);
    if (QLineEdit *const line = qobject_cast<QLineEdit *>(m_parts.toolBarList->itemWidget(row)))
        line->selectAll();
}

// Only names that the user types.
void EditProtection::checkName(QListWidgetItem *row)
{
    if (!m_parts.toolBarList->itemWidget(row))
        return;
    const QString name = uniqueName(row);
    if (name != row->text())
        row->setText(name);
}

QString EditProtection::uniqueName(const QListWidgetItem *row) const
{
    QSet<QString> others;
    for (int i = 0; i < m_parts.toolBarList->count(); ++i) {
        if (m_parts.toolBarList->item(i) != row)
            others.insert(shownName(m_parts.toolBarList->item(i)));
    }
    QString name = row->text();
    QString shown = shownName(row);
    if (shown.isEmpty())
        shown = name = QCoreApplication::translate("RyCToolBarWidget", "Custom Toolbar");
    if (!others.contains(shown))
        return name;
    int number = 2;
    while (others.contains(QStringLiteral("%1 %2").arg(shown, QString::number(number))))
        ++number;
    return QStringLiteral("%1 %2").arg(name.trimmed(), QString::number(number));
}

// The editor leaves both enabled without a current toolbar.
void EditProtection::updateButtons()
{
    if (m_parts.areDeleted() || m_parts.toolBarList->currentItem())
        return;
    m_parts.removeButton->setEnabled(false);
    m_parts.renameButton->setEnabled(false);
}

bool EditProtection::eventFilter(QObject *watched, QEvent *event)
{
    if (m_parts.areDeleted())
        return false;
    if (event->type() == QEvent::EnabledChange && watched != m_parts.dialog)
        updateButtons();
    if (watched != m_parts.dialog)
        return false;
    // A program that closes the dialog is not asked.
    if (event->type() == QEvent::Close && event->spontaneous() && isKept()) {
        event->ignore();
        return true;
    }
    return event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel) && isKept();
}

// Asks if there is something to lose, and is true then.
bool EditProtection::isKept()
{
    takeName();
    if (!m_edits->any())
        return false;
    QMessageBox *const question = new QMessageBox(
        QMessageBox::Question, m_parts.dialog->windowTitle(),
        tr("Apply your changes to the toolbars?"),
        QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel, m_parts.dialog);
    question->setObjectName(QStringLiteral("unsavedEditsQuestion"));
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setDefaultButton(QMessageBox::Apply);
    question->setEscapeButton(QMessageBox::Cancel);
    connect(question, SIGNAL(finished(int)), this, SLOT(leave(int)));
    question->open();
    return true;
}

void EditProtection::leave(int answer)
{
    if (answer == QMessageBox::Apply)
        m_parts.dialog->okButton()->click();
    else if (answer == QMessageBox::Discard)
        m_parts.dialog->reject();
}
