// SPDX-License-Identifier: MIT

#include "dialogparts.h"

#include <RyCustomizedDialog>

#include <QCoreApplication>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>

namespace {

template <typename Widget> Widget *part(const QWidget *parent, const char *name)
{
    return parent->findChild<Widget *>(QLatin1String(name));
}

} // namespace

// Searches below the page, because the "Ribbon" page has parts with the same names.
DialogParts::DialogParts(RyCustomizedDialog *customizedDialog)
    : dialog(customizedDialog)
    , tabs(part<QTabWidget>(dialog, "m_optionTabWidget"))
    , page(part<QWidget>(dialog, "CToolBarPage"))
    , actionCaption(part<QLabel>(page, "label"))
    , toolBarCaption(part<QLabel>(page, "label_2"))
    , entryCaption(part<QLabel>(page, "label_6"))
    , actionTree(part<QTreeWidget>(page, "actionTree"))
    , toolBarList(part<QListWidget>(page, "toolBarList"))
    , entryList(part<QListWidget>(page, "currentToolBarList"))
    , newButton(part<QToolButton>(page, "newButton"))
    , removeButton(part<QToolButton>(page, "removeButton"))
    , renameButton(part<QToolButton>(page, "renameButton"))
    , upButton(part<QToolButton>(page, "upButton"))
    , downButton(part<QToolButton>(page, "downButton"))
    , leftButton(part<QToolButton>(page, "leftButton"))
    , rightButton(part<QToolButton>(page, "rightButton"))
{
}

QString DialogParts::separatorText()
{
    return QCoreApplication::translate("RyCToolBarWidget", "< S E P A R A T O R >");
}

void DialogParts::explain(QWidget *view, const QString &sentence)
{
    const auto joined = [&sentence](const QString &text) {
        if (text.isEmpty())
            return sentence;
        const bool hasEnd = text.at(text.size() - 1).isPunct();
        return text + QLatin1String(hasEnd ? " " : ". ") + sentence;
    };
    view->setToolTip(joined(view->toolTip()));
    view->setAccessibleDescription(joined(view->accessibleDescription()));
}

// What is left of a dialog while its children are deleted is no dialog any more.
bool DialogParts::areDeleted() const
{
    return !qobject_cast<QDialog *>(static_cast<QObject *>(dialog));
}
