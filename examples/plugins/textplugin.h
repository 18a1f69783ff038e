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
 * \brief A plugin of the example, with some commands that change text.
 *
 * To keep the example small, a plugin is an object in this process. A plugin from QPluginLoader
 * would differ only in where createActions() comes from.
 */
class TextPlugin
{
    Q_DECLARE_TR_FUNCTIONS(TextPlugin)

public:
    struct Command
    {
        const char *name; // the objectName of its action; never changes
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

    //! Creates an action for each command. The actions are children of the editor. They change its
    //! selection, or its whole text if nothing is selected. The caller deletes them.
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
