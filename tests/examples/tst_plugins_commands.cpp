// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "textplugin.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QSet>
#include <QTextCursor>
#include <QtTest>

/*
 * The example of plugins: what their commands do to a text.
 */
class tst_Plugins_Commands : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommandHasANameOfItsOwnAndAnIcon();
    void commandsChangeTheWholeText_data();
    void commandsChangeTheWholeText();
    void aSelectionIsChangedAloneAndStaysSelected();
    void aChangeIsUndoneAtOnce();
};

namespace {

QList<QAction *> actionsFor(QPlainTextEdit *editor)
{
    QList<QAction *> actions;
    for (const TextPlugin &plugin : TextPlugin::all())
        actions << plugin.createActions(editor);
    return actions;
}

} // namespace

void tst_Plugins_Commands::everyCommandHasANameOfItsOwnAndAnIcon()
{
    QPlainTextEdit editor;
    QSet<QString> names;
    const auto actions = actionsFor(&editor);
    QCOMPARE(actions.size(), 7);
    for (const QAction *action : actions) {
        QVERIFY(!action->objectName().isEmpty());
        QCOMPARE(action->parent(), &editor);
        QVERIFY(!action->icon().isNull());
        // Not tinted: a selected row in the dialog has the color of the tint.
        QCOMPARE(action->icon().pixmap(22, 22, QIcon::Selected).toImage(),
                 action->icon().pixmap(22, 22).toImage());
        names.insert(action->objectName());
    }
    QCOMPARE(names.size(), actions.size());
}

void tst_Plugins_Commands::commandsChangeTheWholeText_data()
{
    QTest::addColumn<QString>("changed");
    QTest::newRow("case_upper") << "B\nA\nB";
    QTest::newRow("case_lower") << "b\na\nb";
    QTest::newRow("lines_sort") << "A\nB\nb";
    QTest::newRow("lines_reverse") << "b\nA\nB";
    QTest::newRow("lines_unique") << "B\nA\nb";
    QTest::newRow("quotes_double") << "“B\nA\nb”";
    QTest::newRow("quotes_brackets") << "(B\nA\nb)";
}

void tst_Plugins_Commands::commandsChangeTheWholeText()
{
    QFETCH(QString, changed);
    QPlainTextEdit editor("B\nA\nb");
    actionsFor(&editor);
    QAction *const action = editor.findChild<QAction *>(QTest::currentDataTag());
    QVERIFY(action);
    action->trigger();
    QCOMPARE(editor.toPlainText(), changed);
}

void tst_Plugins_Commands::aSelectionIsChangedAloneAndStaysSelected()
{
    QPlainTextEdit editor("one two three");
    actionsFor(&editor);
    QVERIFY(editor.find("two"));
    editor.findChild<QAction *>("quotes_brackets")->trigger();
    QCOMPARE(editor.toPlainText(), "one (two) three");
    QCOMPARE(editor.textCursor().selectedText(), "(two)");
}

void tst_Plugins_Commands::aChangeIsUndoneAtOnce()
{
    QPlainTextEdit editor("b\na");
    actionsFor(&editor);
    editor.findChild<QAction *>("lines_sort")->trigger();
    QCOMPARE(editor.toPlainText(), "a\nb");
    editor.undo();
    QCOMPARE(editor.toPlainText(), "b\na");
}

QTEST_MAIN(tst_Plugins_Commands)

#include "tst_plugins_commands.moc"
