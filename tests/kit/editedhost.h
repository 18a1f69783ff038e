// SPDX-License-Identifier: MIT

#ifndef EDITEDHOST_H
#define EDITEDHOST_H

#include "dialogparts.h"
#include "editorviews.h"
#include "host.h"

#include <RyCustomizedDialog>

#include <QMap>

/*
 * A host whose shown dialog has the toolbars "Edit": cut copy | paste undo |, "File": open save,
 * "Go": back home and "Mine", which is empty, in this order. All actions but "find" and "about" are
 * on one of them. "undo" and "back" have the same text, and no action has an icon.
 */
class EditedHost : public Host
{
public:
    explicit EditedHost(bool isShown = true);

    void show();
    void makeCurrent(const QString &toolBar) const;

    QListWidgetItem *toolBarRow(const QString &title) const;
    QList<QListWidgetItem *> entries(const QList<int> &rows) const;
    QList<QTreeWidgetItem *> items(const QStringList &texts) const;

    // The objectNames of what Apply puts onto each toolbar, by title.
    QMap<QString, QStringList> applied() const;
    // The same for one toolbar as a text such as "cut | copy".
    QString applied(const QString &toolBar) const;

    static QMap<QString, QStringList> firstContents();

    RyCustomizedDialog dialog;
    const EditorViews editor;
    const DialogParts parts;
};

#endif // EDITEDHOST_H
