// SPDX-License-Identifier: MIT

#include "openeddialog.h"
#include "testcase.h"
#include "texts.h"
#include "userscript.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QtTest>

/*
 * The kit's dialog in a real window: what a hurried user does with the pointer and the keyboard.
 */
class tst_EditProtection_Window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typingFindsAndReturnAdds();
    void aNameIsTakenByAClickOnOk();
    void theCloseButtonAsksOnce();
    void escapeAsksAndEscapeStays();
    void restoreDefaultsAsks();
    void panesStayAsTheyAreMoved();
};

namespace {

struct Stage
{
    Stage()
        : dialog(opened.dialog)
        , views(opened.dialog)
    {
        user.waitForWindow(dialog);
    }

    // Types into the in-place editor, which has opened with its text selected.
    void typeName(const QString &name)
    {
        user.click(views.newButton);
        user.waitFor("editor", [this] { return editor() && editor()->hasSelectedText(); });
        user.type(name, [this, name] { return editor() && editor()->text() == name; });
    }

    QLineEdit *editor() const { return qobject_cast<QLineEdit *>(views.renameEditor()); }

    // Waits for a box, which then is the active window.
    void waitForBox(const QString &name)
    {
        user.waitFor(name, [this, name] {
            const QMessageBox *const box = opened.box(name);
            return box && box->isActiveWindow();
        });
    }

    void clickInBox(const QString &name, QMessageBox::StandardButton button)
    {
        waitForBox(name);
        const auto wanted = [this, name, button]() -> QWidget * {
            return opened.box(name)->button(button);
        };
        user.moveTo(wanted, [wanted] { return wanted()->rect().center(); });
        user.step(
            "click", [this] { user.input.click(); }, [this, name] { return !hasBox(name); });
    }

    bool hasBox(const QString &name) const { return dialog && opened.box(name); }

    OpenedDialog opened;
    QPointer<RyCustomizedDialog> dialog;
    const EditorViews views;
    UserScript user;
};

} // namespace

void tst_EditProtection_Window::typingFindsAndReturnAdds()
{
    Stage stage;
    QLineEdit *const line = stage.dialog->findChild<QLineEdit *>("actionSearch");
    stage.views.toolBarList->setCurrentItem(itemNamed(stage.views.toolBarList, "File"));
    stage.user.type("pas", [&] { return line->text() == "pas"; });
    stage.user.clickKey(Qt::Key_Return,
                        [&] { return stage.views.currentRows().contains("Paste"); });
    stage.user.clickKey(Qt::Key_Escape, [&] { return line->text().isEmpty(); });
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(stage.views.currentRows(), words("New Paste Open Save"));
    QVERIFY(stage.dialog->isVisible());
}

void tst_EditProtection_Window::aNameIsTakenByAClickOnOk()
{
    Stage stage;
    stage.typeName("Mine");
    stage.user.click(stage.dialog->okButton());
    stage.user.waitFor("OK", [&] { return stage.opened.program.customizations == 1; });
    QCOMPARE(stage.user.run(), QString());
    QVERIFY(toolBarTitlesIn(*stage.opened.program.window()).contains("Mine"));
    QTRY_VERIFY(!stage.dialog);
}

void tst_EditProtection_Window::theCloseButtonAsksOnce()
{
    Stage stage;
    stage.typeName("Mine");
    stage.user.act([&] { stage.user.input.closeByWindowManager(stage.dialog->windowHandle()); });
    stage.clickInBox("unsavedEditsQuestion", QMessageBox::Discard);
    stage.user.waitFor("closed", [&] { return !stage.dialog; });
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(toolBarTitlesIn(*stage.opened.program.window()), words("Edit File"));
}

void tst_EditProtection_Window::escapeAsksAndEscapeStays()
{
    Stage stage;
    stage.typeName("Mine");
    stage.user.clickKey(Qt::Key_Return, [&] { return !stage.editor(); });
    stage.user.clickKey(Qt::Key_Escape, [&] { return stage.hasBox("unsavedEditsQuestion"); });
    stage.waitForBox("unsavedEditsQuestion");
    stage.user.clickKey(Qt::Key_Escape, [&] { return !stage.hasBox("unsavedEditsQuestion"); });
    QCOMPARE(stage.user.run(), QString());
    QVERIFY(stage.dialog->isVisible());
    QCOMPARE(rowsOf(stage.views.toolBarList), words("Edit File Mine"));
}

void tst_EditProtection_Window::restoreDefaultsAsks()
{
    Stage stage;
    stage.typeName("Mine");
    stage.user.click(stage.dialog->RestoreDefaultButton());
    stage.clickInBox("restoreDefaultsQuestion", QMessageBox::RestoreDefaults);
    QCOMPARE(stage.user.run(), QString());
    QCOMPARE(rowsOf(stage.views.toolBarList), words("Edit File"));
}

void tst_EditProtection_Window::panesStayAsTheyAreMoved()
{
    Stage stage;
    const auto splitter = [&] { return stage.dialog->findChild<QSplitter *>("dialogSides"); };
    QWidget *const handle = splitter()->handle(1);
    const int before = splitter()->sizes().constFirst();
    stage.user.moveTo(handle, handle->rect().center());
    stage.user.press();
    stage.user.step(
        "drag", [&] { stage.user.input.moveTo(stage.user.input.position() - QPoint(60, 0)); },
        [&] { return splitter()->sizes().constFirst() == before - 60; });
    stage.user.release();
    QCOMPARE(stage.user.run(), QString());
    stage.dialog->reject();
    QTRY_VERIFY(!stage.dialog);
    stage.opened.open();
    QCOMPARE(stage.opened.dialog->findChild<QSplitter *>("dialogSides")->sizes().constFirst(),
             before - 60);
}

QTEST_MAIN(tst_EditProtection_Window)
#include "tst_editprotection_window.moc"
