// SPDX-License-Identifier: MIT

#ifndef MANAGERMODEL_H
#define MANAGERMODEL_H

#include "savedlayout.h"
#include "worldmodel.h"

#include <QStringList>

#include <deque>

/*
 * What a toolbar manager must do, written in the plainest way. Maps that are keyed by a pointer are
 * ordered by its value, as the manager promises.
 *
 * Which address a new toolbar gets cannot be foretold, so that the model takes what was made.
 */
class ManagerModel
{
public:
    struct ToolBar
    {
        bool isDefault;
        Content content;
        Content defaultContent;
        std::vector<WorldModel::Placed> placed;
    };

    // Changes the world as the manager does.
    explicit ManagerModel(WorldModel *world);

    void addAction(QAction *action, const QString &category);
    void removeAction(QAction *action);
    void addCategory(const QString &category);
    QAction *findAction(const QString &name);

    void addDefaultToolBar(QToolBar *toolBar, const QString &category);
    void removeDefaultToolBar(QToolBar *toolBar);
    QToolBar *createToolBar(const QString &title, std::deque<QToolBar *> &made);
    void deleteToolBar(QToolBar *toolBar);
    void setToolBar(QToolBar *toolBar, const Content &request);
    void setToolBars(const std::map<QToolBar *, Content> &requests);
    void resetToolBar(QToolBar *toolBar);
    void resetAllToolBars();
    // What of a request may be placed on a toolbar.
    Content placeable(const Content &request) const;

    bool isManaged(QToolBar *toolBar) const;
    bool isDefaultToolBar(QToolBar *toolBar) const;
    QToolBar *toolBarByName(const QString &objectName) const;
    QToolBar *findDefaultToolBar(const QString &name);

    SavedLayout save(int version);
    bool restore(const SavedLayout &layout, int version, std::deque<QToolBar *> &made);

    // What was to be printed since the last call.
    QStringList takeWarnings();

    QMainWindow *mainWindow = nullptr;
    // The registered actions in the order in which names are looked up, which the manager chooses.
    // To be set before a name is looked up.
    QList<QAction *> searchOrder;
    std::map<QString, Content> categories;
    std::map<QAction *, QString> registered;
    std::map<QToolBar *, ToolBar> toolBars;

private:
    Content readContent(const QStringList &names);
    void restoreCustom(const SavedLayout::ToolBar &record, std::deque<QToolBar *> &made);
    QStringList savedNames(const Content &content);
    QString savedName(QToolBar *toolBar);
    QString savedName(QAction *action);

    WorldModel *m_world;
    QStringList m_warnings;
};

#endif // MANAGERMODEL_H
