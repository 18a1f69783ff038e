// SPDX-License-Identifier: MIT

#include "dialogdressing.h"

#include "actiondrag.h"
#include "plaintextdelegate.h"

#include <RyCustomizedDialog>

#include <QListWidget>
#include <QTreeWidget>

DialogDressing::DialogDressing(RyCustomizedDialog *dialog, RyToolBarKit::Features features)
    : QObject(dialog)
    , m_parts(dialog)
{
    if (features & RyToolBarKit::ReadableLists)
        showPlainTexts();
    if (features & RyToolBarKit::DragActions)
        new ActionDrag(m_parts, this);
}

// One for each view: a delegate reports the end of an edit to all its views.
void DialogDressing::showPlainTexts()
{
    for (QAbstractItemView *view : {static_cast<QAbstractItemView *>(m_parts.actionTree),
                                    static_cast<QAbstractItemView *>(m_parts.toolBarList),
                                    static_cast<QAbstractItemView *>(m_parts.entryList)})
        view->setItemDelegate(new PlainTextDelegate(view));
}
