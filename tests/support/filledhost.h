// SPDX-License-Identifier: MIT

#ifndef FILLEDHOST_H
#define FILLEDHOST_H

#include "host.h"
#include "texts.h"

#include <QPointer>

/*
 * A host whose default toolbar "file" holds "open | save", and whose custom toolbar "Mine" holds
 * "| open"; "find" is registered, too. All actions are of the category "A".
 */
class FilledHost : public Host
{
public:
    FilledHost()
        : file(defaultToolBar("file", words("open | save"), "A"))
        , mine(manager.createToolBar("Mine"))
    {
        registered("find", "A");
        manager.setToolBar(mine, list(words("| open")));
    }

    // What lines() gives for it.
    static QStringList firstLines()
    {
        return {"_Custom_Toolbar_1 'Mine': | open", "default file 'File': open | save"};
    }

    QToolBar *const file;
    const QPointer<QToolBar> mine;
};

#endif // FILLEDHOST_H
