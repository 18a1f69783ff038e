// SPDX-License-Identifier: MIT

#ifndef LITERALREADER_H
#define LITERALREADER_H

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>

class QDataStream;
class RyToolBarManager;

/*
 * What restoring a state must do, told in the plainest way: every count is believed and every name
 * is looked up by walking all objects. No widget is touched.
 *
 * The only bound is that of the manager: a list or section ends after 1,000 entries past the end of
 * the bytes. Of objects that share a name the first in the order of manager.actions() or
 * manager.toolBars() is meant.
 */
class LiteralReader
{
public:
    // Learns the actions and toolbars of the manager.
    explicit LiteralReader(const RyToolBarManager &manager);

    bool restore(const QByteArray &state, int version);

    // As layoutOf() gives it.
    QStringList layout() const;

    QStringList warnings;

private:
    struct Action
    {
        QString objectName;
        QString text;
        QString shown;
    };

    struct ToolBar
    {
        bool isDefault;
        QString objectName;
        QString title;
        QList<int> content;
    };

    static void repeat(QDataStream &stream, qint32 count, const std::function<void()> &read);
    QList<int> readContent(QDataStream &stream);
    int findAction(const QString &name);
    ToolBar *findDefaultToolBar(const QString &name);
    ToolBar *toolBarByName(const QString &objectName);
    void restoreCustomToolBar(QDataStream &stream);
    void warn(const char *className, const char *property, const QString &name, bool again);
    static void setContent(ToolBar *toolBar, const QList<int> &content);
    QStringList shown(const QList<int> &content) const;

    bool m_hasWindow;
    // A content holds the indexes of its actions.
    QList<Action> m_actions;
    QList<ToolBar> m_toolBars;
};

#endif // LITERALREADER_H
