// SPDX-License-Identifier: MIT

#ifndef TOOLBARSTATERESTORER_H
#define TOOLBARSTATERESTORER_H

#include "nameindex.h"

#include <QList>
#include <QString>

class QDataStream;
class RyToolBarManager;

/*
 * Reads the sections of a saved state from a stream and puts their content onto the toolbars of a
 * manager, for one call of RyToolBarManager::restoreStateData().
 */
class ToolBarStateRestorer
{
public:
    ToolBarStateRestorer(RyToolBarManager *manager, QDataStream &stream);

    bool restore();

private:
    bool readMarker(quint8 expected);
    void restoreDefaultToolBars();
    void restoreDefaultToolBar();
    void restoreCustomToolBars();
    void restoreCustomToolBar();
    QList<QAction *> readContent();
    QString readString();
    qint32 readCount();
    QAction *actionNamed(const QString &name);
    void updateToolBars();
    QToolBar *titledToolBar(const QString &objectName, const QString &title);

    RyToolBarManager *const m_manager;
    QDataStream &m_stream;
    NameIndex<QAction> m_actions;
    NameIndex<QToolBar> m_defaultToolBars;
    // Default and custom ones.
    NameIndex<QToolBar> m_toolBars;
    // What the manager had counted when the names were read. If it has counted more since, the host
    // was called and changed the registry.
    quint64 m_changesOfActions;
    quint64 m_changesOfToolBars;
};

#endif // TOOLBARSTATERESTORER_H
