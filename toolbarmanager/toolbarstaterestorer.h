// SPDX-License-Identifier: MIT

#ifndef TOOLBARSTATERESTORER_H
#define TOOLBARSTATERESTORER_H

#include "customtoolbarnumbers.h"
#include "keptactionnames.h"
#include "namelookup.h"

#include <QHash>
#include <QList>
#include <QScopedPointer>
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
    void readActionNames();
    void updateToolBars();
    void indexToolBars();
    QToolBar *titledToolBar(const QString &objectName, const QString &title);
    QToolBar *createdToolBar(const QString &objectName, const QString &title);

    RyToolBarManager *const m_manager;
    QDataStream &m_stream;
    // Read by an earlier restore, or by this one.
    KeptActionNames m_actionNames;
    bool m_hasReadActionNames;
    // For names that are no objectNames; null until there is one.
    QScopedPointer<NameIndex<QAction>> m_actions;
    NameIndex<QToolBar> m_defaultToolBars;
    // Every managed toolbar by objectName, the lowest address first; kept up to date.
    QHash<QString, QToolBar *> m_toolBars;
    CustomToolBarNumbers m_numbers;
    // What the indexes of toolbars were made from; more means that the host was called and changed
    // it.
    quint64 m_changesOfToolBars;
};

#endif // TOOLBARSTATERESTORER_H
