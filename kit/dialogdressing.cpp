// SPDX-License-Identifier: MIT

#include "dialogdressing.h"

#include "actiondrag.h"
#include "actionrows.h"
#include "actionsearch.h"
#include "changeannouncer.h"
#include "dialogkeys.h"
#include "itemfocus.h"
#include "readableviews.h"
#include "spokennames.h"
#include "userguide.h"

#include <RyCustomizedDialog>
#include <RyToolBarManager>

#include <QListWidget>
#include <QTreeWidget>

DialogDressing::DialogDressing(RyCustomizedDialog *dialog, RyToolBarManager *manager,
                               const QStringList &categories, RyToolBarKit::Features features)
    : QObject(dialog)
    , m_parts(dialog)
    , m_manager(manager)
    , m_readableViews(nullptr)
    , m_actionSearch(nullptr)
    , m_isFilled(false)
{
    if (features & RyToolBarKit::ReadableLists)
        m_readableViews = new ReadableViews(m_parts, categories);
    if (features & RyToolBarKit::SearchActions)
        m_actionSearch = new ActionSearch(m_parts);
    if (features & RyToolBarKit::DragActions)
        new ActionDrag(m_parts, this);
    if (features & RyToolBarKit::UserGuide)
        new UserGuide(dialog);
    // Last, for the letters and the order of all controls.
    if (features & RyToolBarKit::DialogKeys) {
        new SpokenNames(m_parts);
        new ItemFocus(m_parts);
        new ChangeAnnouncer(m_parts);
        new DialogKeys(m_parts);
    }
    // The last thing that the editor does when it fills its views.
    connect(m_parts.toolBarList->model(), SIGNAL(layoutChanged()), this, SLOT(dressRows()));
    connect(m_parts.actionTree->model(), SIGNAL(modelReset()), this, SLOT(forgetRows()));
}

// The editor also sorts its toolbars later, when one is renamed.
void DialogDressing::dressRows()
{
    if (m_isFilled || !m_manager || m_parts.actionTree->topLevelItemCount() == 0)
        return;
    m_isFilled = true;
    ActionRows rows(m_parts.actionTree, m_manager);
    if (m_readableViews)
        m_readableViews->arrange(&rows, m_manager);
    if (m_actionSearch)
        m_actionSearch->setRows(rows, m_manager);
}

// The editor empties its views when they are hidden.
void DialogDressing::forgetRows()
{
    m_isFilled = false;
}
