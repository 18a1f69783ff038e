// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitwindow.h"
#include "texts.h"

#include <QApplication>
#include <QPushButton>
#include <QTextStream>
#include <QtTest>

/*
 * The drags of the kit's dialog in a session in which another program has the pointer. This one
 * says where to begin and to end each drag, as places in its window, and checks what comes of it.
 */

namespace {

constexpr int patience = 20000;

struct Drag
{
    const QAbstractItemView *from;
    QString text;
    const QAbstractItemView *to;
    QString target;
    // What the current toolbar has afterwards.
    QStringList rows;
};

QPoint placeOf(const QAbstractItemView *view, const QString &text)
{
    QRect rect = view->viewport()->rect();
    if (const auto *const list = qobject_cast<const QListWidget *>(view))
        rect = list->visualItemRect(itemNamed(list, text));
    else if (!text.isEmpty())
        rect = static_cast<const QTreeWidget *>(view)->visualItemRect(
            itemNamed(static_cast<const QTreeWidget *>(view), text));
    // Below the middle of a row, so behind it.
    return view->viewport()->mapTo(view->window(), rect.center() + QPoint(0, rect.height() / 4));
}

void say(const QString &line)
{
    QTextStream(stdout) << line << '\n';
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    KitProgram program;
    program.start();
    RyCustomizedDialog *const dialog = program.openDialog();
    const EditorViews editor(dialog);
    editor.toolBarList->setCurrentItem(itemNamed(editor.toolBarList, "File"));
    editor.actionTree->expandAll();
    // Qt itself waits only until it has painted, which may be before the window is at its place.
    if (!QTest::qWaitFor([&] { return dialog->isActiveWindow(); }, patience))
        return 1;
    const auto *const tree = editor.actionTree;
    const auto *const entries = editor.currentToolBarList;
    const QList<Drag> drags{
        {tree, "Paste", entries, "New", words("New Paste Open Save")},
        {entries, "New", entries, "Save", words("Paste Open Save New")},
        {entries, "Open", tree, QString(), words("Paste Save New")},
        {entries, "Save", editor.toolBarList, "Edit", words("Cut | Copy Save")},
        {tree, "Open", editor.toolBarList, "File", words("Paste New Open")},
    };
    for (const Drag &drag : drags) {
        const QPoint from = placeOf(drag.from, drag.text);
        const QPoint to = placeOf(drag.to, drag.target);
        say(QString("%1 %2 %3 %4").arg(from.x()).arg(from.y()).arg(to.x()).arg(to.y()));
        if (!QTest::qWaitFor([&] { return editor.currentRows() == drag.rows; }, patience)) {
            say(drag.text + " is not dragged: " + editor.currentRows().join(' '));
            return 1;
        }
    }
    dialog->okButton()->click();
    say("done");
    return 0;
}
