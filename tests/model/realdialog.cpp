// SPDX-License-Identifier: MIT

#include "realdialog.h"

#include "ryctoolbarwidget.h"
#include "rytoolbarmanager.h"

#include <QApplication>
#include <QHideEvent>
#include <QLineEdit>
#include <QShowEvent>
#include <QTabBar>
#include <QtTest>

namespace {

void clickAt(QWidget *viewport, const QPoint &position, bool twice)
{
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, position);
    if (!twice)
        return;
    QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, position);
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, position);
}

void sendSpontaneous(QWidget *widget, QEvent *event)
{
    QSpontaneKeyEvent::setSpontaneous(event);
    qApp->notify(widget, event);
}

} // namespace

RealDialog::RealDialog(RyToolBarManager *manager)
    : dialog({manager, nullptr}, nullptr)
    , views(&dialog)
    , tabs(dialog.findChild<QTabWidget *>())
{
    // Nobody looks, and painting is dear.
    dialog.setUpdatesEnabled(false);
}

void RealDialog::show(bool asOpen)
{
    if (asOpen)
        dialog.open();
    else
        dialog.show();
    QApplication::setActiveWindow(&dialog);
}

void RealDialog::click(QWidget *button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

void RealDialog::clickTab(int index)
{
    QTabBar *const bar = tabs->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(index).center());
}

void RealDialog::click(QListWidget *list, int row, bool twice)
{
    QListWidgetItem *const item = list->item(row);
    if (!item)
        return;
    list->scrollToItem(item);
    clickAt(list->viewport(), list->visualItemRect(item).center(), twice);
}

void RealDialog::click(QTreeWidgetItem *item, bool twice)
{
    views.actionTree->scrollToItem(item);
    clickAt(views.actionTree->viewport(), views.actionTree->visualItemRect(item).center(), twice);
}

void RealDialog::press(QWidget *widget, Qt::Key key)
{
    QTest::keyClick(widget, key);
}

void RealDialog::type(const QString &text)
{
    QLineEdit *const editor = renameEditor();
    if (!editor)
        return;
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(editor, Qt::Key_Delete);
    // One key event with all of it, as an input method or a fast hand gives it.
    else
        QTest::simulateEvent(editor, true, 0, Qt::NoModifier, text, false);
}

void RealDialog::minimizeAndRestore()
{
    QHideEvent hide;
    sendSpontaneous(views.page, &hide);
    QShowEvent show;
    sendSpontaneous(views.page, &show);
}

void RealDialog::settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

EditorFields RealDialog::fields() const
{
    return EditorFields::of(*static_cast<RyCToolBarWidget *>(views.page));
}

QLineEdit *RealDialog::renameEditor() const
{
    return views.toolBarList->viewport()->findChild<QLineEdit *>();
}

QToolButton *RealDialog::button(int number) const
{
    QToolButton *const buttons[] = {views.newButton, views.removeButton, views.renameButton,
                                    views.upButton,  views.leftButton,   views.rightButton,
                                    views.downButton};
    return buttons[number];
}
