// SPDX-License-Identifier: MIT

#include "actioncatalog.h"

#include <QActionGroup>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>

namespace {

QPixmap inColor(QPixmap pixmap, const QColor &color)
{
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    return pixmap;
}

// The glow around the drawing makes it visible on dark and on light backgrounds.
QPixmap withHalo(const QPixmap &drawing, const QColor &color)
{
    const QPixmap shape = inColor(drawing, color);
    QPixmap result(drawing);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    for (const QPointF offset : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
        painter.drawPixmap(offset, shape);
    painter.drawPixmap(0, 0, drawing);
    return result;
}

} // namespace

ActionCatalog::ActionCatalog(QObject *parent)
    : m_parent(parent)
{
    addFileActions();
    addEditActions();
    addSearchActions();
    addViewActions();
    addFormatActions();
    addParagraphActions();
    addToolActions();
    addHelpActions();
}

QAction *ActionCatalog::action(const char *name) const
{
    QAction *const action =
        m_parent->findChild<QAction *>(QLatin1String(name), Qt::FindDirectChildrenOnly);
    Q_ASSERT_X(action, "ActionCatalog::action", name);
    return action;
}

// A style tints the icons of selected rows with the color of their background, so they can hardly
// be seen in the toolbar editor. These icons have their own pixmaps for selected rows.
QIcon ActionCatalog::icon(const char *name)
{
    const QIcon drawing(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
    const QColor selected = QGuiApplication::palette().color(QPalette::HighlightedText);
    QIcon icon;
    for (const int size : {16, 22, 24, 32}) {
        const QPixmap pixmap = drawing.pixmap(size);
        icon.addPixmap(pixmap);
        icon.addPixmap(withHalo(pixmap, selected), QIcon::Selected);
    }
    return icon;
}

void ActionCatalog::addFileActions()
{
    add("file_new", "new", tr("New"), tr("Start an empty document"), QKeySequence::New);
    add("file_open", "open", tr("Open…"), tr("Open a document"), QKeySequence::Open);
    add("file_reload", "reload", tr("Reload"), tr("Read the document from its file again"),
        QKeySequence::Refresh);
    add("file_save", "save", tr("Save"), tr("Save the document"), QKeySequence::Save);
    add("file_save_as", "save-as", tr("Save As…"), tr("Save the document under another name"),
        Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    add("file_quit", "quit", tr("Quit"), tr("Quit the text editor"), Qt::CTRL | Qt::Key_Q);
}

void ActionCatalog::addEditActions()
{
    add("edit_undo", "undo", tr("Undo"), tr("Undo the last change"), QKeySequence::Undo);
    add("edit_redo", "redo", tr("Redo"), tr("Redo the last undone change"), QKeySequence::Redo);
    add("edit_cut", "cut", tr("Cut"), tr("Move the selection to the clipboard"), QKeySequence::Cut);
    add("edit_copy", "copy", tr("Copy"), tr("Copy the selection to the clipboard"),
        QKeySequence::Copy);
    add("edit_paste", "paste", tr("Paste"), tr("Insert the content of the clipboard"),
        QKeySequence::Paste);
    add("edit_delete", "delete", tr("Delete"), tr("Delete the selection"));
    add("edit_select_all", "select-all", tr("Select All"), tr("Select the whole text"),
        QKeySequence::SelectAll);
    add("edit_duplicate_line", "duplicate-line", tr("Duplicate Line"),
        tr("Duplicate the current line"), Qt::CTRL | Qt::Key_D);
    add("edit_upper_case", "upper-case", tr("Upper Case"),
        tr("Change the selection to capital letters"));
    add("edit_lower_case", "lower-case", tr("Lower Case"),
        tr("Change the selection to small letters"));
}

void ActionCatalog::addSearchActions()
{
    add("edit_find", "find", tr("Find…"), tr("Look for a text"), QKeySequence::Find);
    add("edit_find_next", "find-next", tr("Find Next"), tr("Go to the next match"), Qt::Key_F3);
    add("edit_find_previous", "find-previous", tr("Find Previous"), tr("Go to the previous match"),
        Qt::SHIFT | Qt::Key_F3);
    add("edit_replace", "replace", tr("Replace…"), tr("Find and replace a text"),
        Qt::CTRL | Qt::Key_H);
    add("edit_go_to_line", "go-to-line", tr("Go to Line…"), tr("Go to a line by its number"),
        Qt::CTRL | Qt::Key_G);
}

void ActionCatalog::addViewActions()
{
    add("view_zoom_in", "zoom-in", tr("Zoom In"), tr("Show the text larger"), QKeySequence::ZoomIn);
    add("view_zoom_out", "zoom-out", tr("Zoom Out"), tr("Show the text smaller"),
        QKeySequence::ZoomOut);
    add("view_zoom_reset", "zoom-reset", tr("Reset Zoom"), tr("Show the text in its original size"),
        Qt::CTRL | Qt::Key_0);
    addCheckable("view_word_wrap", "word-wrap", tr("Word Wrap"),
                 tr("Break long lines at the window's edge"));
    addCheckable("view_status_bar", "status-bar", tr("Status Bar"), tr("Show the status bar"));
    addCheckable("view_full_screen", "full-screen", tr("Full Screen"), tr("Fill the whole screen"),
                 Qt::Key_F11);
}

void ActionCatalog::addFormatActions()
{
    addCheckable("format_bold", "bold", tr("Bold"), tr("Make the selection bold"),
                 QKeySequence::Bold);
    addCheckable("format_italic", "italic", tr("Italic"), tr("Make the selection italic"),
                 QKeySequence::Italic);
    addCheckable("format_underline", "underline", tr("Underline"), tr("Underline the selection"),
                 QKeySequence::Underline);
    addCheckable("format_strikethrough", "strikethrough", tr("Strikethrough"),
                 tr("Strike through the selection"));
    add("format_font", "font", tr("Font…"), tr("Choose the font of the selection"));
    add("format_text_color", "text-color", tr("Text Color…"),
        tr("Choose the color of the selection"));
}

void ActionCatalog::addParagraphActions()
{
    QActionGroup *const alignments = new QActionGroup(m_parent);
    alignments->addAction(addCheckable("format_align_left", "align-left", tr("Align Left"),
                                       tr("Align the paragraph to the left"),
                                       Qt::CTRL | Qt::Key_L));
    alignments->addAction(addCheckable("format_align_center", "align-center", tr("Center"),
                                       tr("Center the paragraph"), Qt::CTRL | Qt::Key_E));
    alignments->addAction(addCheckable("format_align_right", "align-right", tr("Align Right"),
                                       tr("Align the paragraph to the right"),
                                       Qt::CTRL | Qt::Key_R));
    alignments->addAction(addCheckable("format_align_justify", "align-justify", tr("Justify"),
                                       tr("Align the paragraph to both sides"),
                                       Qt::CTRL | Qt::Key_J));
    add("format_indent", "indent", tr("Indent"), tr("Move the paragraph to the right"),
        Qt::CTRL | Qt::Key_BracketRight);
    add("format_unindent", "unindent", tr("Unindent"), tr("Move the paragraph to the left"),
        Qt::CTRL | Qt::Key_BracketLeft);
}

void ActionCatalog::addToolActions()
{
    add("tools_date_time", "date-time", tr("Insert Date and Time"),
        tr("Insert the current date and time"), Qt::Key_F9);
    add("tools_sort_lines", "sort-lines", tr("Sort Lines"),
        tr("Sort the selected lines, or all lines if nothing is selected"));
    add("tools_word_count", "word-count", tr("Word Count"),
        tr("Count lines, words and characters"));
    addCheckable("tools_read_only", "read-only", tr("Read Only"), tr("Protect the text"));
    add("tools_reset_toolbars", "reset-toolbars", tr("Reset Toolbars"),
        tr("Restore the original toolbars"));
}

void ActionCatalog::addHelpActions()
{
    add("help_tour", "help", tr("Toolbar Tour"), tr("Open a page about the toolbars"),
        QKeySequence::HelpContents);
    add("help_about", "about", tr("About Text Editor"), tr("Show what this application is"));
}

QAction *ActionCatalog::add(const char *name, const char *icon, const QString &text,
                            const QString &tip, const QKeySequence &shortcut)
{
    QAction *const action = new QAction(m_parent);
    action->setObjectName(QLatin1String(name));
    action->setIcon(ActionCatalog::icon(icon));
    action->setText(text);
    action->setStatusTip(tip);
    action->setToolTip(tip);
    action->setShortcut(shortcut);
    if (!shortcut.isEmpty())
        action->setToolTip(
            tip + QStringLiteral(" (%1)").arg(shortcut.toString(QKeySequence::NativeText)));
    m_all.append(action);
    return action;
}

QAction *ActionCatalog::addCheckable(const char *name, const char *icon, const QString &text,
                                     const QString &tip, const QKeySequence &shortcut)
{
    QAction *const action = add(name, icon, text, tip, shortcut);
    action->setCheckable(true);
    return action;
}
