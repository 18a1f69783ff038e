// SPDX-License-Identifier: MIT

#include "literalreader.h"

#include "layout.h"
#include "rytoolbarmanager.h"
#include "texts.h"

#include <QDataStream>

namespace {

// Stands for a separator and for an action that is not found.
const int NoAction = -1;

} // namespace

LiteralReader::LiteralReader(const RyToolBarManager &manager)
    : m_hasWindow(manager.mainWindow())
{
    const auto actions = manager.actions().values();
    for (QAction *action : actions)
        m_actions << Action{action->objectName(), action->text(), contentOf({action}).constFirst()};
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        QList<int> content;
        const auto standing = manager.actions(toolBar);
        for (QAction *action : standing)
            content << actions.indexOf(action);
        m_toolBars << ToolBar{manager.isDefaultToolBar(toolBar), toolBar->objectName(),
                              toolBar->windowTitle(), content};
    }
}

bool LiteralReader::restore(const QByteArray &state, int version)
{
    QDataStream stream(state);
    qint32 number = 0;
    qint8 byte = 0;
    stream >> number;
    if (number != 255)
        return false;
    stream >> number;
    if (number != version)
        return false;
    stream >> byte;
    if (byte != -2)
        return false;
    stream >> number;
    repeat(stream, number, [&] {
        QString name;
        stream >> name;
        const QList<int> content = readContent(stream);
        if (ToolBar *const toolBar = findDefaultToolBar(name))
            setContent(toolBar, content);
    });
    stream >> byte;
    if (byte != -3)
        return false;
    stream >> number;
    repeat(stream, number, [&] { restoreCustomToolBar(stream); });
    return true;
}

void LiteralReader::restoreCustomToolBar(QDataStream &stream)
{
    QString objectName;
    QString title;
    stream >> objectName >> title;
    const QList<int> content = readContent(stream);
    ToolBar *toolBar = toolBarByName(objectName);
    if (!toolBar && m_hasWindow) {
        m_toolBars << ToolBar{false, objectName, title, {}};
        toolBar = &m_toolBars.last();
    }
    if (!toolBar)
        return;
    toolBar->title = title;
    setContent(toolBar, content);
}

QStringList LiteralReader::layout() const
{
    QStringList lines;
    for (const ToolBar &toolBar : m_toolBars)
        lines << layoutLine(toolBar.isDefault, toolBar.objectName, toolBar.title,
                            shown(toolBar.content));
    lines.sort();
    return lines;
}

void LiteralReader::repeat(QDataStream &stream, qint32 count, const std::function<void()> &read)
{
    int pastEnd = 0;
    for (qint32 i = 0; i < count; ++i) {
        if (stream.atEnd() && ++pastEnd > 1000)
            return;
        read();
    }
}

QList<int> LiteralReader::readContent(QDataStream &stream)
{
    QList<int> content;
    qint32 count = 0;
    stream >> count;
    repeat(stream, count, [&] {
        QString name;
        stream >> name;
        const int action = name.isEmpty() ? NoAction : findAction(name);
        if (name.isEmpty() || action != NoAction)
            content << action;
    });
    return content;
}

int LiteralReader::findAction(const QString &name)
{
    for (int i = 0; i < m_actions.size(); ++i) {
        if (m_actions.at(i).objectName == name)
            return i;
    }
    warn("QAction", "text", name, false);
    for (int i = 0; i < m_actions.size(); ++i) {
        if (m_actions.at(i).text == name)
            return i;
    }
    warn("QAction", "text", name, true);
    return NoAction;
}

LiteralReader::ToolBar *LiteralReader::findDefaultToolBar(const QString &name)
{
    for (ToolBar &toolBar : m_toolBars) {
        if (toolBar.isDefault && toolBar.objectName == name)
            return &toolBar;
    }
    warn("QToolBar", "windowTitle", name, false);
    for (ToolBar &toolBar : m_toolBars) {
        if (toolBar.isDefault && toolBar.title == name)
            return &toolBar;
    }
    warn("QToolBar", "windowTitle", name, true);
    return nullptr;
}

LiteralReader::ToolBar *LiteralReader::toolBarByName(const QString &objectName)
{
    for (ToolBar &toolBar : m_toolBars) {
        if (toolBar.objectName == objectName)
            return &toolBar;
    }
    return nullptr;
}

void LiteralReader::warn(const char *className, const char *property, const QString &name,
                         bool again)
{
    // A text for %s ends at its first null character.
    const QString shown = QString::fromUtf8(name.toLocal8Bit().constData());
    QString text = QLatin1String("RyToolBarManager::restoreState(): cannot find a ")
        + QLatin1String(className);
    if (again)
        text += QLatin1String(" with matching '") + QLatin1String(property)
            + QLatin1String("' (looking for '") + shown + QLatin1String("').");
    else
        text += QLatin1String(" named '") + shown + QLatin1String("', trying to match using '")
            + QLatin1String(property) + QLatin1String("' instead.");
    warnings << text;
}

// Repeated actions count once, separators each time.
void LiteralReader::setContent(ToolBar *toolBar, const QList<int> &content)
{
    toolBar->content.clear();
    for (const int entry : content) {
        if (entry == NoAction || !toolBar->content.contains(entry))
            toolBar->content << entry;
    }
}

QStringList LiteralReader::shown(const QList<int> &content) const
{
    QStringList texts;
    for (const int entry : content)
        texts << (entry == NoAction ? QStringLiteral("|") : m_actions.at(entry).shown);
    return texts;
}
