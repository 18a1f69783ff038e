// SPDX-License-Identifier: MIT

#include "dialogdressing.h"

#include "actiondrag.h"
#include "actionrows.h"
#include "actionsearch.h"
#include "changeannouncer.h"
#include "dialogedits.h"
#include "dialogkeys.h"
#include "dialogpanes.h"
#include "editprotection.h"
#include "itemfocus.h"
#include "readableviews.h"
#include "spokennames.h"
#include "userguide.h"

#include <RyCustomizedDialog>
#include <RyToolBarManager>

#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

DialogDressing::DialogDressing(RyCustomizedDialog *dialog, const Context &context)
    : QObject(dialog)
    , m_parts(dialog)
    , m_manager(context.manager)
    , m_edits(new DialogEdits(m_parts))
    , m_readableViews(nullptr)
    , m_actionSearch(nullptr)
    , m_isFilled(false)
{
    if (context.features & RyToolBarKit::ReadableLists)
        m_readableViews = new ReadableViews(m_parts, context.categories);
    if (context.features & RyToolBarKit::SearchActions)
        m_actionSearch = new ActionSearch(m_parts);
    if (context.features & RyToolBarKit::ProtectEdits)
        protectEdits(context);
    else
        followRestoreDefaults();
    // What is moved to another parent loses the focus.
    if (m_actionSearch)
        m_actionSearch->setFocus();
    if (context.features & RyToolBarKit::UserGuide)
        new UserGuide(dialog);
    // Last, for the letters and the order of all controls.
    if (context.features & RyToolBarKit::DialogKeys) {
        new SpokenNames(m_parts, this);
        new ItemFocus(m_parts);
        new ChangeAnnouncer(m_parts);
        new DialogKeys(m_parts);
    }
    // After those, which describe the views: it adds a sentence.
    if (context.features & RyToolBarKit::DragActions)
        new ActionDrag(m_parts, this);
    // The last thing that the editor does when it fills its views.
    connect(m_parts.toolBarList->model(), SIGNAL(layoutChanged()), this, SLOT(dressRows()));
    connect(m_parts.actionTree->model(), SIGNAL(modelReset()), this, SLOT(forgetRows()));
}

void DialogDressing::protectEdits(const Context &context)
{
    new EditProtection(m_parts, m_edits);
    const RestoreQuestion *const question =
        new RestoreQuestion(m_parts, m_edits, context.manager, context.defaults);
    connect(question, SIGNAL(confirmed()), this, SIGNAL(defaultsRestored()));
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the page deletes the question
    new DialogPanes(m_parts, context.store, context.features & RyToolBarKit::StoreChanges);
}

// Nobody is asked.
void DialogDressing::followRestoreDefaults()
{
    const QPushButton *const button = m_parts.dialog->RestoreDefaultButton();
    connect(button, SIGNAL(clicked()), this, SIGNAL(defaultsRestored()));
    connect(button, SIGNAL(clicked()), m_edits, SLOT(add()));
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
    Q_EMIT filled();
}

// The editor empties its views when they are hidden.
void DialogDressing::forgetRows()
{
    m_isFilled = false;
}
