// SPDX-License-Identifier: MIT

#include "findbar.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

FindBar::FindBar(QTextEdit *editor, QWidget *parent)
    : QWidget(parent)
    , m_editor(editor)
    , m_search(editor)
    , m_text(new QLineEdit)
    , m_replacement(new QLineEdit)
    , m_matchCase(new QCheckBox(tr("Match Case")))
    , m_result(new QLabel)
    , m_replaceRow(new QWidget)
{
    QWidget *const findRow = new QWidget;
    createFindRow(findRow);
    createReplaceRow(m_replaceRow);
    QVBoxLayout *const rows = new QVBoxLayout(this);
    rows->setContentsMargins(6, 4, 6, 4);
    rows->addWidget(findRow);
    rows->addWidget(m_replaceRow);
    connect(m_text, &QLineEdit::returnPressed, this, &FindBar::findNext);
    connect(m_text, &QLineEdit::textChanged, m_result, &QLabel::clear);
    connect(m_replacement, &QLineEdit::returnPressed, this, &FindBar::replace);
    hide();
}

void FindBar::createFindRow(QWidget *row)
{
    m_text->setObjectName(QStringLiteral("find_text"));
    m_matchCase->setObjectName(QStringLiteral("find_match_case"));
    m_result->setObjectName(QStringLiteral("find_result"));
    m_result->setMinimumWidth(fontMetrics().averageCharWidth() * 20);
    QLabel *const label = new QLabel(tr("&Find:"));
    label->setBuddy(m_text);
    QHBoxLayout *const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_text, 1);
    layout->addWidget(createButton(tr("Next"), "find_next", &FindBar::findNext));
    layout->addWidget(createButton(tr("Previous"), "find_previous", &FindBar::findPrevious));
    layout->addWidget(m_matchCase);
    layout->addWidget(m_result);
    layout->addWidget(createButton(tr("Close"), "find_close", &FindBar::closeBar));
}

void FindBar::createReplaceRow(QWidget *row)
{
    m_replacement->setObjectName(QStringLiteral("replace_text"));
    QLabel *const label = new QLabel(tr("&Replace with:"));
    label->setBuddy(m_replacement);
    QHBoxLayout *const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_replacement, 1);
    layout->addWidget(createButton(tr("Replace"), "replace_one", &FindBar::replace));
    layout->addWidget(createButton(tr("Replace All"), "replace_all", &FindBar::replaceAll));
}

QPushButton *FindBar::createButton(const QString &text, const char *name, void (FindBar::*slot)())
{
    QPushButton *const button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

void FindBar::openToFind()
{
    m_replaceRow->hide();
    open();
}

void FindBar::openToReplace()
{
    m_replaceRow->show();
    open();
}

void FindBar::open()
{
    const QString selection = m_editor->textCursor().selectedText();
    if (!selection.isEmpty() && !selection.contains(QChar::ParagraphSeparator))
        m_text->setText(selection);
    m_result->clear();
    show();
    m_text->setFocus();
    m_text->selectAll();
}

void FindBar::closeBar()
{
    hide();
    m_editor->setFocus();
}

void FindBar::findNext()
{
    if (prepareSearch())
        report(m_search.findNext());
}

void FindBar::findPrevious()
{
    if (prepareSearch())
        report(m_search.findPrevious());
}

void FindBar::replace()
{
    if (prepareSearch())
        report(m_search.replace(m_replacement->text()));
}

void FindBar::replaceAll()
{
    if (prepareSearch())
        m_result->setText(tr("%n replaced", nullptr, m_search.replaceAll(m_replacement->text())));
}

// Opens the bar instead if there is no text to search for yet.
bool FindBar::prepareSearch()
{
    if (m_text->text().isEmpty()) {
        openToFind();
        return false;
    }
    m_search.setText(m_text->text());
    m_search.setCaseSensitive(m_matchCase->isChecked());
    return true;
}

void FindBar::report(bool found)
{
    m_result->setText(found ? QString() : tr("Not found"));
    if (!found)
        show();
}

void FindBar::setReadOnly(bool readOnly)
{
    m_replaceRow->setEnabled(!readOnly);
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        closeBar();
    else
        QWidget::keyPressEvent(event);
}
