// SPDX-License-Identifier: MIT

#include "rytoolbarkitprivate.h"

#include <QAction>

void RyToolBarKitPrivate::readSteps()
{
    if (features & RyToolBarKit::KeepSteps)
        m_history = LayoutHistory::fromJson(store.steps());
}

// What the user has done since the last step is another one.
void RyToolBarKitPrivate::recordSteps()
{
    collect();
    if (features & RyToolBarKit::KeepSteps)
        m_history.record(m_layout);
    showSteps();
}

// What the program does is no step.
void RyToolBarKitPrivate::changedByProgram()
{
    if (!(features & RyToolBarKit::KeepSteps))
        return;
    collect();
    beginStep();
}

void RyToolBarKitPrivate::beginStep()
{
    m_history.setBase(m_layout);
    showSteps();
}

void RyToolBarKitPrivate::showSteps()
{
    undoAction->setEnabled(m_history.canUndo());
    redoAction->setEnabled(m_history.canRedo());
}

bool RyToolBarKitPrivate::writeSteps()
{
    if (!(features & RyToolBarKit::StoreChanges) || !m_history.isChanged())
        return false;
    store.writeSteps(m_history.toJson());
    return true;
}

// A program may also trigger an action that is disabled.
void RyToolBarKitPrivate::undo()
{
    if (m_history.canUndo())
        goTo(&LayoutHistory::undo);
}

void RyToolBarKitPrivate::redo()
{
    if (m_history.canRedo())
        goTo(&LayoutHistory::redo);
}

void RyToolBarKitPrivate::goTo(void (LayoutHistory::*step)(KitLayout *))
{
    if (!manager)
        startAgain();
    storeIfChanged(); // a step of its own
    KitLayout layout = m_layout;
    (m_history.*step)(&layout);
    const QByteArray before = m_value;
    restore(layout);
    beginStep();
    m_value = before;
    shareChange();
}

// As if the user had pressed OK.
void RyToolBarKitPrivate::shareChange()
{
    showLayoutInDialog();
    storeNow();
    replaceStored();
    tellOthers();
}
