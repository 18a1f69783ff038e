// SPDX-License-Identifier: MIT

#include "textplugin.h"

#include "lettericon.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QStringList>
#include <QTextCursor>

#include <algorithm>

namespace {

void changeText(QPlainTextEdit *editor, const std::function<QString(const QString &)> &change)
{
    QTextCursor cursor = editor->textCursor();
    if (!cursor.hasSelection())
        cursor.select(QTextCursor::Document);
    // Qt ends the lines of a selection with this character.
    const QString text =
        cursor.selectedText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    const int start = cursor.selectionStart();
    cursor.insertText(change(text));
    const int end = cursor.position();
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    editor->setTextCursor(cursor);
}

// Changes the order or the number of lines.
template <typename Function>
std::function<QString(const QString &)> ofLines(const Function &changeLines)
{
    return [changeLines](const QString &text) {
        QStringList lines = text.split(QLatin1Char('\n'));
        changeLines(lines);
        return lines.join(QLatin1Char('\n'));
    };
}

} // namespace

TextPlugin::TextPlugin(const QString &name, const QString &title, const QColor &color,
                       const QList<Command> &commands)
    : m_name(name)
    , m_title(title)
    , m_color(color)
    , m_commands(commands)
{
}

QList<TextPlugin> TextPlugin::all()
{
    return {letterCase(), lines(), quotes()};
}

TextPlugin TextPlugin::letterCase()
{
    return TextPlugin(QStringLiteral("case"), tr("Letter Case"), QColor(0xb0, 0x3a, 0x5b),
                      {{"case_upper", QStringLiteral("AA"), tr("Upper Case"),
                        [](const QString &text) { return text.toUpper(); }},
                       {"case_lower", QStringLiteral("aa"), tr("Lower Case"),
                        [](const QString &text) { return text.toLower(); }}});
}

TextPlugin TextPlugin::lines()
{
    return TextPlugin(
        QStringLiteral("lines"), tr("Lines"), QColor(0x2f, 0x7d, 0x4f),
        {{"lines_sort", QStringLiteral("az"), tr("Sort Lines"),
          ofLines([](QStringList &lines) { lines.sort(); })},
         {"lines_reverse", QStringLiteral("za"), tr("Reverse Lines"),
          ofLines([](QStringList &lines) { std::reverse(lines.begin(), lines.end()); })},
         {"lines_unique", QStringLiteral("1x"), tr("Remove Repeated Lines"),
          ofLines([](QStringList &lines) { lines.removeDuplicates(); })}});
}

TextPlugin TextPlugin::quotes()
{
    return TextPlugin(QStringLiteral("quotes"), tr("Quotes"), QColor(0x3b, 0x6f, 0xb5),
                      {{"quotes_double", QStringLiteral("“”"), tr("Double Quotes"),
                        [](const QString &text) { return QStringLiteral("“%1”").arg(text); }},
                       {"quotes_brackets", QStringLiteral("( )"), tr("Brackets"),
                        [](const QString &text) { return QStringLiteral("(%1)").arg(text); }}});
}

QList<QAction *> TextPlugin::createActions(QPlainTextEdit *editor) const
{
    QList<QAction *> actions;
    for (const Command &command : m_commands) {
        QAction *const action =
            new QAction(letterIcon(command.letters, m_color), command.text, editor);
        action->setObjectName(QLatin1String(command.name));
        QObject::connect(action, &QAction::triggered, editor,
                         [editor, change = command.change] { changeText(editor, change); });
        actions << action;
    }
    return actions;
}
