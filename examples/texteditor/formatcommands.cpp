// SPDX-License-Identifier: MIT

#include "formatcommands.h"

#include "actioncatalog.h"
#include "editorview.h"

#include <QColorDialog>
#include <QFontDialog>

FormatCommands::FormatCommands(const ActionCatalog &actions, EditorView *editor)
    : QObject(editor)
    , m_actions(actions)
    , m_editor(editor)
{
    connectCharacterActions();
    connectParagraphActions();
    connect(editor, &QTextEdit::currentCharFormatChanged, this,
            &FormatCommands::showCharacterFormat);
    connect(editor, &QTextEdit::cursorPositionChanged, this, &FormatCommands::showAlignment);
    connect(actions.action("tools_read_only"), &QAction::toggled, this,
            &FormatCommands::setReadOnly);
    showCharacterFormat();
    showAlignment();
}

// The slots are connected to triggered(), which checking an action in code does not emit.
void FormatCommands::connectCharacterActions()
{
    connect(m_actions.action("format_bold"), &QAction::triggered, m_editor, &EditorView::setBold);
    connect(m_actions.action("format_italic"), &QAction::triggered, m_editor,
            &QTextEdit::setFontItalic);
    connect(m_actions.action("format_underline"), &QAction::triggered, m_editor,
            &QTextEdit::setFontUnderline);
    connect(m_actions.action("format_strikethrough"), &QAction::triggered, m_editor,
            &EditorView::setStrikethrough);
    connect(m_actions.action("format_font"), &QAction::triggered, this,
            &FormatCommands::chooseFont);
    connect(m_actions.action("format_text_color"), &QAction::triggered, this,
            &FormatCommands::chooseTextColor);
}

void FormatCommands::connectParagraphActions()
{
    const auto connectAlignment = [this](const char *name, Qt::Alignment alignment) {
        connect(m_actions.action(name), &QAction::triggered, m_editor,
                [this, alignment] { m_editor->setAlignment(alignment); });
    };
    connectAlignment("format_align_left", Qt::AlignLeft | Qt::AlignAbsolute);
    connectAlignment("format_align_center", Qt::AlignHCenter);
    connectAlignment("format_align_right", Qt::AlignRight | Qt::AlignAbsolute);
    connectAlignment("format_align_justify", Qt::AlignJustify);
    connect(m_actions.action("format_indent"), &QAction::triggered, m_editor, &EditorView::indent);
    connect(m_actions.action("format_unindent"), &QAction::triggered, m_editor,
            &EditorView::unindent);
}

void FormatCommands::chooseFont()
{
    bool accepted = false;
    const QFont font = QFontDialog::getFont(&accepted, m_editor->currentFont(), m_editor->window());
    if (accepted)
        m_editor->setSelectionFont(font);
}

void FormatCommands::chooseTextColor()
{
    const QColor color = QColorDialog::getColor(m_editor->textColor(), m_editor->window());
    if (color.isValid())
        m_editor->setTextColor(color);
}

void FormatCommands::showCharacterFormat()
{
    const QTextCharFormat format = m_editor->currentCharFormat();
    m_actions.action("format_bold")->setChecked(format.fontWeight() > QFont::Normal);
    m_actions.action("format_italic")->setChecked(format.fontItalic());
    m_actions.action("format_underline")->setChecked(format.fontUnderline());
    m_actions.action("format_strikethrough")->setChecked(format.fontStrikeOut());
}

void FormatCommands::showAlignment()
{
    const Qt::Alignment alignment = m_editor->alignment();
    const char *name = "format_align_left";
    if (alignment & Qt::AlignHCenter)
        name = "format_align_center";
    else if (alignment & Qt::AlignRight)
        name = "format_align_right";
    else if (alignment & Qt::AlignJustify)
        name = "format_align_justify";
    m_actions.action(name)->setChecked(true);
}

void FormatCommands::setReadOnly(bool readOnly)
{
    for (QAction *action : m_actions.all()) {
        if (action->objectName().startsWith(QLatin1String("format_")))
            action->setEnabled(!readOnly);
    }
}
