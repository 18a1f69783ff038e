// SPDX-License-Identifier: MIT

#include "goldenlayout.h"

#include <QRegularExpression>

namespace {

const char Quoted[] = R"re("((?:[^"\\]|\\.)*)")re";

QString quoted(QString text)
{
    text.replace('\\', "\\\\");
    text.replace('"', "\\\"");
    text.replace('\n', "\\n");
    return '"' + text + '"';
}

QString unquoted(const QString &text)
{
    QString plain;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != '\\')
            plain += text.at(i);
        else if (text.at(++i) == 'n')
            plain += '\n';
        else
            plain += text.at(i);
    }
    return plain;
}

} // namespace

GoldenLayout::GoldenLayout(const QString &text)
{
    const QStringList lines = text.split('\n');
    for (const QString &line : lines) {
        if (!line.isEmpty() && !line.startsWith('#'))
            readLine(line);
    }
}

void GoldenLayout::readLine(const QString &line)
{
    static const QRegularExpression versionLine("^version (-?\\d+)$");
    static const QRegularExpression toolBarLine(
        QString("^(default|custom) toolbar (?:%1|without a name), titled %1: (.+)$").arg(Quoted));
    const auto version = versionLine.match(line);
    const auto match = toolBarLine.match(line);
    QList<Entry> content;
    if (version.hasMatch()) {
        m_version = version.captured(1).toInt();
    } else if (match.hasMatch() && readContent(match.captured(4), &content)) {
        m_toolBars << ToolBar{match.captured(1) == "default", unquoted(match.captured(2)),
                              unquoted(match.captured(3)), content};
    } else {
        m_error += line + '\n';
    }
}

bool GoldenLayout::readContent(const QString &text, QList<Entry> *content)
{
    if (text == "nothing")
        return true;
    static const QRegularExpression entry(
        QString("\\G(?:(separator)|(the text )?%1)(?:, |$)").arg(Quoted));
    int end = 0;
    for (auto it = entry.globalMatch(text); it.hasNext();) {
        const auto match = it.next();
        const QString name = unquoted(match.captured(3));
        const bool byText = !match.captured(2).isEmpty();
        const bool isSeparator = !match.captured(1).isEmpty();
        *content << Entry{isSeparator, byText ? QString() : name, byText ? name : QString()};
        end = match.capturedEnd();
    }
    return end == text.size();
}

bool GoldenLayout::hasNamelessThings() const
{
    for (const ToolBar &toolBar : m_toolBars) {
        if (toolBar.isDefault && toolBar.objectName.isEmpty())
            return true;
        for (const Entry &entry : toolBar.content) {
            if (!entry.isSeparator && entry.objectName.isEmpty())
                return true;
        }
    }
    return false;
}

QStringList GoldenLayout::lines() const
{
    QStringList lines;
    for (const ToolBar &toolBar : m_toolBars)
        lines << lineOf(toolBar);
    return lines;
}

QString GoldenLayout::lineOf(const ToolBar &toolBar)
{
    QStringList entries;
    for (const Entry &entry : toolBar.content) {
        if (entry.isSeparator)
            entries << "separator";
        else if (entry.objectName.isEmpty())
            entries << "the text " + quoted(entry.text);
        else
            entries << quoted(entry.objectName);
    }
    if (entries.isEmpty())
        entries << "nothing";
    const QString name =
        toolBar.objectName.isEmpty() ? "without a name" : quoted(toolBar.objectName);
    return (toolBar.isDefault ? "default toolbar " : "custom toolbar ") + name + ", titled "
        + quoted(toolBar.title) + ": " + entries.join(", ");
}

std::unique_ptr<Host> GoldenLayout::host() const
{
    auto host = std::make_unique<Host>();
    for (const ToolBar &toolBar : m_toolBars) {
        for (const Entry &entry : toolBar.content) {
            if (entry.isSeparator || findAction(*host, entry))
                continue;
            QAction *const action = new QAction(entry.text, &host->window);
            action->setObjectName(entry.objectName);
            host->manager.addAction(action, "A");
        }
    }
    const QList<ToolBar> defaults = toolBars(true);
    QList<QToolBar *> made;
    for (int i = 0; i < defaults.size(); ++i)
        made << host->toolBar(QString(), {"before", "|"});
    made = byAddress(made);
    for (int i = 0; i < defaults.size(); ++i) {
        made.at(i)->setObjectName(defaults.at(i).objectName);
        made.at(i)->setWindowTitle(defaults.at(i).title);
        host->manager.addDefaultToolBar(made.at(i), "A");
    }
    return host;
}

void GoldenLayout::addCustomToolBars(Host &host) const
{
    const QList<ToolBar> customs = toolBars(false);
    QList<QToolBar *> made;
    for (int i = 0; i < customs.size(); ++i)
        made << host.manager.createToolBar("before");
    made = byAddress(made);
    for (int i = 0; i < customs.size(); ++i)
        made.at(i)->setObjectName(customs.at(i).objectName);
}

void GoldenLayout::apply(Host &host) const
{
    QList<QToolBar *> ordered;
    const auto managed = host.manager.toolBars();
    for (const bool defaults : {true, false}) {
        for (QToolBar *toolBar : managed) {
            if (host.manager.isDefaultToolBar(toolBar) == defaults)
                ordered << toolBar;
        }
    }
    for (int i = 0; i < qMin(ordered.size(), m_toolBars.size()); ++i) {
        QList<QAction *> content;
        for (const Entry &entry : m_toolBars.at(i).content)
            content << findAction(host, entry);
        ordered.at(i)->setWindowTitle(m_toolBars.at(i).title);
        host.manager.setToolBar(ordered.at(i), content);
    }
}

QStringList GoldenLayout::linesOf(const Host &host)
{
    QStringList lines;
    const auto managed = host.manager.toolBars();
    for (const bool defaults : {true, false}) {
        for (QToolBar *toolBar : managed) {
            if (host.manager.isDefaultToolBar(toolBar) == defaults)
                lines << lineOf(described(host, toolBar));
        }
    }
    return lines;
}

// Reads the widget, and adds to the title if the manager has recorded something else.
GoldenLayout::ToolBar GoldenLayout::described(const Host &host, QToolBar *toolBar)
{
    ToolBar description{
        host.manager.isDefaultToolBar(toolBar), toolBar->objectName(), toolBar->windowTitle(), {}};
    QList<QAction *> placed;
    const auto actions = toolBar->actions();
    for (QAction *action : actions) {
        description.content << described(action);
        placed << (action->isSeparator() ? nullptr : action);
    }
    if (placed != host.manager.actions(toolBar))
        description.title += " (but the manager has recorded something else)";
    return description;
}

GoldenLayout::Entry GoldenLayout::described(const QAction *action)
{
    if (action->isSeparator())
        return Entry{true, QString(), QString()};
    return Entry{false, action->objectName(), action->text()};
}

QList<GoldenLayout::ToolBar> GoldenLayout::toolBars(bool defaults) const
{
    QList<ToolBar> selected;
    for (const ToolBar &toolBar : m_toolBars) {
        if (toolBar.isDefault == defaults)
            selected << toolBar;
    }
    return selected;
}

// Null for a separator and for an action that the host does not have yet.
QAction *GoldenLayout::findAction(const Host &host, const Entry &entry)
{
    const auto actions = host.window.findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    for (QAction *action : actions) {
        const bool same = action->objectName() == entry.objectName
            && (!entry.objectName.isEmpty() || action->text() == entry.text);
        if (same && !entry.isSeparator)
            return action;
    }
    return nullptr;
}
