// SPDX-License-Identifier: MIT

#ifndef RESTOREMODEL_H
#define RESTOREMODEL_H

#include "managermodel.h"

class RyToolBarManager;

/*
 * A manager's registry and records as a model, for what restoring and saving a state must do. No
 * widget is touched.
 */
class RestoreModel
{
public:
    explicit RestoreModel(const RyToolBarManager &manager);
    RestoreModel(const RestoreModel &) = delete;
    RestoreModel &operator=(const RestoreModel &) = delete;

    bool restore(const QByteArray &state, int version);
    QByteArray save(int version);

    // As lines() gives them.
    QStringList lines() const;

    // What was to be printed since the last call.
    QStringList takeWarnings();

private:
    WorldModel m_world;
    ManagerModel m_model;
    std::map<QAction *, QString> m_shown;
};

#endif // RESTOREMODEL_H
