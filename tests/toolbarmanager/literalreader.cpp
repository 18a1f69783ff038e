// SPDX-License-Identifier: MIT

#include "literalreader.h"

#include "layout.h"
#include "rytoolbarmanager.h"
#include "texts.h"

#include <QDataStream>

LiteralReader::LiteralReader(const RyToolBarManager &manager)
    : m_hasWindow(manager.mainWindow())
{
    const auto actions = manager.actions();
    for (QAction *action : actions)
        m_actions << Action{action->objectName(), action->text(), contentOf({action}).constFirst()};
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        m_toolBars << ToolBar{manager.isDefaultToolBar(toolBar), toolBar->objectName(),
                              toolBar->windowTitle(), contentOf(manager.actions(toolBar))};
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
        const QStringList content = readContent(stream);
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
    const QStringList content = readContent(stream);
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
        lines << layoutLine(toolBar.isDefault, toolBar.objectName, toolBar.title, toolBar.content);
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

QStringList LiteralReader::readContent(QDataStream &stream)
{
    QStringList content;
    qint32 count = 0;
    stream >> count;
    repeat(stream, count, [&] {
        QString name;
        stream >> name;
        if (name.isEmpty())
            content << QStringLiteral("|");
        else if (const Action *const action = findAction(name))
            content << action->shown;
    });
    return content;
}

const LiteralReader::Action *LiteralReader::findAction(const QString &name)
{
    for (const Action &action : qAsConst(m_actions)) {
        if (action.objectName == name)
            return &action;
    }
    warn("QAction", "text", name, false);
    for (const Action &action : qAsConst(m_actions)) {
        if (action.text == name)
            return &action;
    }
    warn("QAction", "text", name, true);
    return nullptr;
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
void LiteralReader::setContent(ToolBar *toolBar, const QStringList &content)
{
    toolBar->content.clear();
    for (const QString &entry : content) {
        if (entry == QLatin1String("|") || !toolBar->content.contains(entry))
            toolBar->content << entry;
    }
}
