// SPDX-License-Identifier: MIT

#include "editorviews.h"

#include "ryctoolbarwidget.h"
#include "texts.h"

#include <QLineEdit>
#include <QtTest>

namespace {

QWidget *pageBelow(QWidget *ancestor)
{
    if (qobject_cast<RyCToolBarWidget *>(ancestor))
        return ancestor;
    return ancestor->findChild<RyCToolBarWidget *>();
}

template <typename Widget> Widget *child(QWidget *page, const char *name)
{
    return page->findChild<Widget *>(name);
}

template <typename View, typename Item> QPoint centerOf(View *view, Item *item)
{
    view->scrollToItem(item);
    return view->visualItemRect(item).center();
}

// A double click is a click and a second press that the window system reports as double.
void doubleClickAt(QWidget *viewport, const QPoint &position)
{
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, position);
    QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, position);
}

} // namespace

EditorViews::EditorViews(QWidget *ancestor)
    : page(pageBelow(ancestor))
    , actionTree(child<QTreeWidget>(page, "actionTree"))
    , toolBarList(child<QListWidget>(page, "toolBarList"))
    , currentToolBarList(child<QListWidget>(page, "currentToolBarList"))
    , newButton(child<QToolButton>(page, "newButton"))
    , removeButton(child<QToolButton>(page, "removeButton"))
    , renameButton(child<QToolButton>(page, "renameButton"))
    , upButton(child<QToolButton>(page, "upButton"))
    , leftButton(child<QToolButton>(page, "leftButton"))
    , rightButton(child<QToolButton>(page, "rightButton"))
    , downButton(child<QToolButton>(page, "downButton"))
{
}

QStringList EditorViews::enabledButtons() const
{
    QStringList names;
    for (const QToolButton *button :
         {newButton, removeButton, renameButton, upButton, leftButton, rightButton, downButton}) {
        if (button->isEnabled())
            names << button->objectName();
    }
    return names;
}

QStringList EditorViews::currentRows() const
{
    QStringList rows = rowsOf(currentToolBarList);
    rows.replaceInStrings("< S E P A R A T O R >", "|");
    return rows;
}

void EditorViews::click(QToolButton *button) const
{
    QTest::mouseClick(button, Qt::LeftButton);
}

void EditorViews::click(QListWidget *list, const QString &text) const
{
    QListWidgetItem *const item = itemNamed(list, text);
    QVERIFY2(item, qPrintable(text));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centerOf(list, item));
}

void EditorViews::click(QTreeWidget *tree, const QString &text) const
{
    QTreeWidgetItem *const item = itemNamed(tree, text);
    QVERIFY2(item, qPrintable(text));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, centerOf(tree, item));
}

void EditorViews::doubleClick(QListWidget *list, int row) const
{
    QVERIFY(list->item(row));
    doubleClickAt(list->viewport(), centerOf(list, list->item(row)));
}

void EditorViews::doubleClick(QTreeWidget *tree, const QString &text) const
{
    QTreeWidgetItem *const item = itemNamed(tree, text);
    QVERIFY2(item, qPrintable(text));
    doubleClickAt(tree->viewport(), centerOf(tree, item));
}

QWidget *EditorViews::renameEditor() const
{
    return toolBarList->viewport()->findChild<QLineEdit *>();
}

void EditorViews::typeName(const QString &name) const
{
    QLineEdit *const editor = toolBarList->viewport()->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->selectAll();
    if (name.isEmpty())
        QTest::keyClick(editor, Qt::Key_Delete);
    else
        QTest::keyClicks(editor, name);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!toolBarList->viewport()->findChild<QLineEdit *>());
}
