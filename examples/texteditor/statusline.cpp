// SPDX-License-Identifier: MIT

#include "statusline.h"

#include "editorview.h"

#include <QLabel>
#include <QStatusBar>

StatusLine::StatusLine(QStatusBar *statusBar, EditorView *editor)
    : QObject(statusBar)
    , m_statusBar(statusBar)
    , m_editor(editor)
    , m_notice(addLabel("status_notice"))
    , m_kind(addLabel("status_kind"))
    , m_position(addLabel("status_position"))
{
    // A long notice is cut off rather than making the window wider.
    m_notice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar->addWidget(m_notice, 1);
    statusBar->addPermanentWidget(m_kind);
    statusBar->addPermanentWidget(m_position);
    connect(editor, &QTextEdit::cursorPositionChanged, this, &StatusLine::showPosition);
    showPosition();
}

QLabel *StatusLine::addLabel(const char *name)
{
    QLabel *const label = new QLabel(m_statusBar);
    label->setObjectName(QLatin1String(name));
    label->setMargin(3);
    return label;
}

void StatusLine::setNotice(const QString &text)
{
    m_notice->setText(text);
    m_notice->setToolTip(text);
}

void StatusLine::setDocumentKind(const QString &kind)
{
    m_kind->setText(kind);
}

void StatusLine::showPosition()
{
    m_position->setText(
        tr("Line %1, Column %2").arg(m_editor->currentLine()).arg(m_editor->currentColumn()));
}
