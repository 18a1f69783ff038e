// SPDX-License-Identifier: MIT

#ifndef GOLDENLAYOUT_H
#define GOLDENLAYOUT_H

#include "host.h"

#include <QList>
#include <QStringList>

#include <memory>

/*
 * A layout in plain words, one line for each toolbar in the order of a saved state, such as
 *
 *     version 3
 *     default toolbar "file", titled "File": "open", separator, "save"
 *     custom toolbar without a name, titled "Mine": the text "Say"
 *
 * Empty lines and lines that begin with "#" say nothing. An entry is the objectName of an action
 * or, for an action without one, its text; "nothing" is an empty toolbar. Quotes, backslashes and
 * line ends inside quotes are written \", \\ and \n.
 */
class GoldenLayout
{
public:
    explicit GoldenLayout(const QString &text);

    // Empty if every line was understood.
    QString error() const { return m_error; }
    int version() const { return m_version; }
    // True if something is only known by its text or title, of which the manager warns.
    bool hasNamelessThings() const;
    // The lines of the toolbars.
    QStringList lines() const;

    // A host with the actions and the default toolbars, which hold something else. Their addresses
    // ascend in the order of the lines.
    std::unique_ptr<Host> host() const;

    // Gives the host the custom toolbars, too: empty, with other titles and ascending addresses.
    void addCustomToolBars(Host &host) const;

    // Gives the toolbars of the host the titles and contents of the layout.
    void apply(Host &host) const;

    // The toolbars of a host as lines, in the order of their addresses, the default ones first. A
    // line says so if other actions are on the widget than the manager has recorded.
    static QStringList linesOf(const Host &host);

private:
    struct Entry
    {
        bool isSeparator;
        QString objectName;
        QString text;
    };

    struct ToolBar
    {
        bool isDefault;
        QString objectName;
        QString title;
        QList<Entry> content;
    };

    void readLine(const QString &line);
    bool readContent(const QString &text, QList<Entry> *content);
    static QString lineOf(const ToolBar &toolBar);
    static ToolBar described(const Host &host, QToolBar *toolBar);
    static Entry described(const QAction *action);
    QList<ToolBar> toolBars(bool defaults) const;
    static QAction *findAction(const Host &host, const Entry &entry);

    QString m_error;
    int m_version = 0;
    QList<ToolBar> m_toolBars;
};

#endif // GOLDENLAYOUT_H
