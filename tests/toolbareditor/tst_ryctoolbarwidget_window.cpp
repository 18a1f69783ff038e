// SPDX-License-Identifier: MIT

#include "host.h"
#include "showneditor.h"
#include "testcase.h"
#include "texts.h"

#include <QLineEdit>
#include <QWindow>
#include <QtTest>

namespace {

// The show and hide events of a widget, in order.
class VisibilityRecorder : public QObject
{
public:
    explicit VisibilityRecorder(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched);
        const QString kind = event->spontaneous() ? "spontaneous " : "own ";
        if (event->type() == QEvent::Show)
            events << kind + "show";
        else if (event->type() == QEvent::Hide)
            events << kind + "hide";
        return false;
    }

    QStringList events;
};

class SmallHost : public Host
{
public:
    SmallHost()
    {
        defaultToolBar("file", {"open", "|", "save"}, "Files");
        registered("cut", "Edits");
        customToolBar(*this, "Mine", {"cut"});
    }
};

using Editor = HostedEditor<SmallHost>;

// Through the window, so that the focus goes where a click takes it.
void clickInWindow(QWidget *widget, const QPoint &position)
{
    QWidget *const window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget->mapTo(window, position));
}

void clickInWindow(QWidget *widget)
{
    clickInWindow(widget, widget->rect().center());
}

void typeInWindow(const QWidget *widget, const QString &text)
{
    for (const QChar &letter : text)
        QTest::keyClick(widget->window()->windowHandle(), letter.toLatin1());
}

} // namespace

class tst_RyCToolBarWidget_Window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theNameOfANewToolBarIsTypedAtOnce();
    void aClickElsewhereEndsTheRenaming_data();
    void aClickElsewhereEndsTheRenaming();
    void theButtonsTakeNoFocusFromTheName();
    void newTwiceTypesTheSecondName();
    void f2RenamesCustomToolBarsOnly();
    void minimizingKeepsTheEdits();
    void minimizingAWindowAroundKeepsTheEdits();
    void closingTheWindowDiscardsTheEdits();

private:
    void activate(ShownEditor &editor);
    void typeNewName(ShownEditor &editor);
};

void tst_RyCToolBarWidget_Window::activate(ShownEditor &editor)
{
    QVERIFY(QTest::qWaitForWindowExposed(&editor.widget));
    editor.widget.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor.widget));
}

// Into the open editor of a toolbar that has another name.
void tst_RyCToolBarWidget_Window::typeNewName(ShownEditor &editor)
{
    editor.selectToolBar("Mine");
    clickInWindow(editor.views.renameButton);
    QTRY_VERIFY(editor.nameEditor() && editor.nameEditor()->hasFocus());
    typeInWindow(&editor.widget, "yours");
    QTRY_COMPARE(editor.nameEditor()->text(), "yours");
}

void tst_RyCToolBarWidget_Window::theNameOfANewToolBarIsTypedAtOnce()
{
    Editor editor;
    activate(editor);
    clickInWindow(editor.views.newButton);
    QTRY_VERIFY(editor.nameEditor() && editor.nameEditor()->hasFocus());
    QCOMPARE(editor.nameEditor()->selectedText(), "Custom Toolbar");
    typeInWindow(&editor.widget, "yours");
    QTRY_COMPARE(editor.nameEditor()->text(), "yours");
    QTest::keyClick(editor.widget.windowHandle(), Qt::Key_Return);
    QTRY_VERIFY(!editor.views.renameEditor());
    QCOMPARE(currentOf(editor.views.toolBarList), "yours");
    QVERIFY(editor.views.toolBarList->hasFocus());
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager),
             QStringList({"File: open | save", "Mine: cut", "yours:"}));
}

void tst_RyCToolBarWidget_Window::aClickElsewhereEndsTheRenaming_data()
{
    QTest::addColumn<QString>("view");
    QTest::newRow("action tree") << "actionTree";
    QTest::newRow("toolbar list") << "toolBarList";
    QTest::newRow("current toolbar's list") << "currentToolBarList";
}

void tst_RyCToolBarWidget_Window::aClickElsewhereEndsTheRenaming()
{
    QFETCH(QString, view);
    Editor editor;
    activate(editor);
    typeNewName(editor);
    QAbstractItemView *const target = editor.widget.findChild<QAbstractItemView *>(view);
    // Below the last row.
    clickInWindow(target->viewport(), target->viewport()->rect().bottomLeft() + QPoint(5, -5));
    QTRY_VERIFY(!editor.views.renameEditor());
    QVERIFY(target->hasFocus());
    QCOMPARE(editor.workingCopy(), QStringList({"File: open | save", "yours: cut"}));
    QCOMPARE(editor.inconsistency(), QString());
}

// So that what they do comes while the name is still open.
void tst_RyCToolBarWidget_Window::theButtonsTakeNoFocusFromTheName()
{
    Editor editor;
    activate(editor);
    typeNewName(editor);
    clickInWindow(editor.views.renameButton);
    clickInWindow(editor.views.rightButton);
    QTRY_COMPARE(editor.views.currentToolBarList->count(), 2);
    QVERIFY(editor.nameEditor()->hasFocus());
    QCOMPARE(editor.nameEditor()->text(), "yours");
    clickInWindow(editor.views.removeButton);
    QTRY_VERIFY(!editor.views.renameEditor());
    QCOMPARE(editor.workingCopy(), QStringList{"File: open | save"});
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Window::newTwiceTypesTheSecondName()
{
    Host host;
    ShownEditor editor(&host.manager);
    activate(editor);
    clickInWindow(editor.views.newButton);
    QTRY_VERIFY(editor.nameEditor() && editor.nameEditor()->hasFocus());
    typeInWindow(&editor.widget, "one");
    QTRY_COMPARE(editor.nameEditor()->text(), "one");
    clickInWindow(editor.views.newButton);
    QTRY_COMPARE(editor.views.toolBarList->viewport()->findChildren<QLineEdit *>().size(), 1);
    QTRY_VERIFY(editor.nameEditor()->hasFocus());
    typeInWindow(&editor.widget, "two");
    QTest::keyClick(editor.widget.windowHandle(), Qt::Key_Return);
    QTRY_VERIFY(!editor.views.renameEditor());
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList({"one", "two"}));
    QCOMPARE(editor.workingCopy(), QStringList({"one:", "two:"}));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_Window::f2RenamesCustomToolBarsOnly()
{
    Editor editor;
    activate(editor);
    editor.views.toolBarList->setFocus();
    editor.selectToolBar("File");
    QTest::keyClick(editor.widget.windowHandle(), Qt::Key_F2);
    QVERIFY(!editor.views.renameEditor());
    editor.selectToolBar("Mine");
    QTest::keyClick(editor.widget.windowHandle(), Qt::Key_F2);
    QTRY_VERIFY(editor.nameEditor() && editor.nameEditor()->hasFocus());
    typeInWindow(&editor.widget, "yours");
    QTest::keyClick(editor.widget.windowHandle(), Qt::Key_Return);
    QTRY_VERIFY(!editor.views.renameEditor());
    QCOMPARE(currentOf(editor.views.toolBarList), "yours");
}

void tst_RyCToolBarWidget_Window::minimizingKeepsTheEdits()
{
    Editor editor;
    const QStringList before = toolBarsOf(editor.host.manager);
    activate(editor);
    editor.selectToolBar("File");
    editor.call("leftClicked");
    editor.call("newClicked");
    editor.views.typeName("Yours");
    const QStringList edited = editor.workingCopy();
    QVERIFY(edited != before);

    VisibilityRecorder recorder(&editor.widget);
    editor.widget.showMinimized();
    QTRY_COMPARE(recorder.events, QStringList{"spontaneous hide"});
    QCOMPARE(editor.workingCopy(), edited);
    editor.widget.showNormal();
    QTRY_COMPARE(recorder.events, QStringList({"spontaneous hide", "spontaneous show"}));
    QVERIFY(QTest::qWaitForWindowExposed(&editor.widget));
    QCOMPARE(editor.workingCopy(), edited);
    QCOMPARE(currentOf(editor.views.toolBarList), "Yours");
    QCOMPARE(editor.inconsistency(), QString());
    QCOMPARE(toolBarsOf(editor.host.manager), before);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), edited);
}

// As the dialog around the page.
void tst_RyCToolBarWidget_Window::minimizingAWindowAroundKeepsTheEdits()
{
    SmallHost host;
    QWidget window;
    RyCToolBarWidget *const widget =
        new RyCToolBarWidget(&window, &host.manager, Qt::WindowFlags());
    const EditorViews views(widget);
    window.resize(widget->size());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    views.click(views.toolBarList, "File");
    views.click(views.leftButton);
    const QStringList content = rowsOf(views.currentToolBarList);
    QCOMPARE(content.size(), 2);

    VisibilityRecorder recorder(widget);
    window.showMinimized();
    QTRY_COMPARE(recorder.events, QStringList{"spontaneous hide"});
    window.showNormal();
    QTRY_COMPARE(recorder.events, QStringList({"spontaneous hide", "spontaneous show"}));
    QCOMPARE(rowsOf(views.currentToolBarList), content);
    widget->applyClicked();
    QCOMPARE(toolBarsOf(host.manager), QStringList({"File: | save", "Mine: cut"}));
}

void tst_RyCToolBarWidget_Window::closingTheWindowDiscardsTheEdits()
{
    Editor editor;
    const QStringList before = toolBarsOf(editor.host.manager);
    activate(editor);
    clickInWindow(editor.views.newButton);
    QTRY_VERIFY(editor.nameEditor() && editor.nameEditor()->hasFocus());
    typeInWindow(&editor.widget, "yours");
    editor.widget.close();
    QVERIFY(EditorFields::of(editor.widget).ownedRecords.isEmpty());
    editor.widget.show();
    QCOMPARE(editor.workingCopy(), before);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(editor.host.manager), before);
}

QTEST_MAIN(tst_RyCToolBarWidget_Window)

#include "tst_ryctoolbarwidget_window.moc"
