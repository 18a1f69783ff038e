// SPDX-License-Identifier: MIT

#include "dresseddialog.h"

#include "texts.h"

#include <QApplication>
#include <QtTest>

DressedDialog::DressedDialog()
    : mine(fill())
    , dialog({&host.manager, nullptr}, &host.window)
    , dressing(new Dressing(&dialog))
    , views(&dialog)
    , filter(dialog.findChild<ActionFilter *>())
{
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    // What is described once the items are there.
    QCoreApplication::processEvents();
}

QToolBar *DressedDialog::fill()
{
    host.defaultToolBar("file", words("open | save"), "File");
    for (const QString &name : words("cut copy paste"))
        host.registered(name, "Edit");
    QToolBar *const toolBar = host.manager.createToolBar("Mine");
    host.manager.setToolBar(toolBar, host.list(words("cut | copy")));
    return toolBar;
}

void DressedDialog::pressKey(QWidget *focus, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    focus->setFocus();
    QCOMPARE(QApplication::focusWidget(), focus);
    QTest::keyClick(focus, key, modifiers);
    QCoreApplication::processEvents();
}

QStringList DressedDialog::visibleItems() const
{
    QStringList texts;
    for (QTreeWidgetItemIterator it(views.actionTree, QTreeWidgetItemIterator::NotHidden); *it;
         ++it)
        texts << (*it)->text(0);
    return texts;
}

QStringList DressedDialog::currentRows() const
{
    QStringList rows = rowsOf(views.currentToolBarList);
    rows.replaceInStrings("< S E P A R A T O R >", "|");
    return rows;
}
