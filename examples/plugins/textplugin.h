// SPDX-License-Identifier: MIT

#ifndef TEXTPLUGIN_H
#define TEXTPLUGIN_H

#include <QColor>
#include <QCoreApplication>
#include <QList>
#include <QString>

#include <functional>

class QAction;
class QPlainTextEdit;

/*!
 * \brief A plugin of the example: some commands that change text.
 *
 * To keep the example small a plugin is an object of this process. One that QPluginLoader loads
 * differs only in where createActions() comes from.
 */
class TextPlugin
{
    Q_DECLARE_TR_FUNCTIONS(TextPlugin)

public:
    struct Command
    {
        const char *name; // the objectName of its action, for ever
        QString letters;
        QString text;
        std::function<QString(const QString &)> change;
    };

    TextPlugin(const QString &name, const QString &title, const QColor &color,
               const QList<Command> &commands);

    //! The plugins that the example comes with.
    static QList<TextPlugin> all();

    QString name() const { return m_name; }
    QString title() const { return m_title; }

    //! Makes an action for each command. The actions are children of the editor, whose selection
    //! they change, or its whole text without one; the caller deletes them.
    QList<QAction *> createActions(QPlainTextEdit *editor) const;

private:
    static TextPlugin letterCase();
    static TextPlugin lines();
    static TextPlugin quotes();

    QString m_name;
    QString m_title;
    QColor m_color;
    QList<Command> m_commands;
};

#endif // TEXTPLUGIN_H
