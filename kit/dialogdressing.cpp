// SPDX-License-Identifier: MIT

#include "dialogdressing.h"

#include "changeannouncer.h"
#include "dialogkeys.h"
#include "itemfocus.h"
#include "plaintextdelegate.h"
#include "spokennames.h"
#include "userguide.h"

#include <RyCustomizedDialog>

#include <QListWidget>
#include <QTreeWidget>

DialogDressing::DialogDressing(RyCustomizedDialog *dialog, RyToolBarKit::Features features)
    : QObject(dialog)
    , m_parts(dialog)
{
    if (features & RyToolBarKit::ReadableLists)
        showPlainTexts();
    if (features & RyToolBarKit::UserGuide)
        new UserGuide(dialog);
    // Last, for the letters and the order of all controls.
    if (features & RyToolBarKit::DialogKeys) {
        new SpokenNames(m_parts);
        new ItemFocus(m_parts);
        new ChangeAnnouncer(m_parts);
        new DialogKeys(m_parts);
    }
}

// One for each view: a delegate reports the end of an edit to all its views.
void DialogDressing::showPlainTexts()
{
    for (QAbstractItemView *view : {static_cast<QAbstractItemView *>(m_parts.actionTree),
                                    static_cast<QAbstractItemView *>(m_parts.toolBarList),
                                    static_cast<QAbstractItemView *>(m_parts.entryList)})
        view->setItemDelegate(new PlainTextDelegate(view));
}
