// SPDX-License-Identifier: MIT

#ifndef TOOLBARITEM_H
#define TOOLBARITEM_H

#include <QString>

class QToolBar;

/*
 * The editor's record for one toolbar: the toolbar of the host, not owned and null until a toolbar
 * that was created in the editor is applied, and its name as edited.
 */
class ToolBarItem
{
public:
    ToolBarItem(QToolBar *toolBar, const QString &toolBarName);
    explicit ToolBarItem(const QString &toolBarName);
    ~ToolBarItem();

    QToolBar *toolBar() const;
    void setToolBar(QToolBar *toolBar);

    QString toolBarName() const;
    void setToolBarName(const QString &toolBarName);

private:
    QToolBar *m_toolBar;
    QString m_toolBarName;
};

#endif // TOOLBARITEM_H
