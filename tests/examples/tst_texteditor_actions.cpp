// SPDX-License-Identifier: MIT

#include "actioncatalog.h"
#include "editorsession.h"
#include "testcase.h"
#include "texts.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolBar>
#include <QtTest>

class tst_TextEditorActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyActionHasAnIconATextAndATip();
    void everyIconStandsOutInSelectedRows();
    void everyActionHasANameOfItsOwn();
    void noTextHasAnAmpersand();
    void noTwoActionsShareAShortcut();
    void everyActionStandsInAMenu();
    void everyMenuTitleHasAMnemonicOfItsOwn();
    void theDefaultToolBarsHaveTheirContent();
    void theDialogOffersEveryAction();
    void theToolBarsMenuShowsAndHidesToolBars();

private:
    QTemporaryDir m_folder;
    QString settingsFile() { return m_folder.filePath("settings.ini"); }
};

namespace {

// Every action of the menu and of the menus in it.
QSet<QAction *> actionsIn(const QWidget *menu)
{
    QSet<QAction *> found;
    const auto actions = menu->actions();
    for (QAction *action : actions) {
        found.insert(action);
        if (action->menu())
            found.unite(actionsIn(action->menu()));
    }
    return found;
}

QStringList textsOf(const QWidget *menu)
{
    QStringList texts;
    const auto actions = menu->actions();
    for (const QAction *action : actions)
        texts << (action->isSeparator() ? "|" : action->text());
    return texts;
}

} // namespace

void tst_TextEditorActions::everyActionHasAnIconATextAndATip()
{
    QObject owner;
    const auto actions = ActionCatalog(&owner).all();
    QVERIFY(actions.size() >= 40);
    for (const QAction *action : actions) {
        // A file that is missing makes an icon that is not null, but that has no pixels.
        const QImage image = action->icon().pixmap(22, 22).toImage();
        QVERIFY2(!image.isNull(), qPrintable(action->objectName()));
        QVERIFY2(!action->text().isEmpty(), qPrintable(action->objectName()));
        QVERIFY2(!action->statusTip().isEmpty(), qPrintable(action->objectName()));
        QVERIFY2(action->toolTip().startsWith(action->statusTip()),
                 qPrintable(action->objectName()));
    }
}

void tst_TextEditorActions::everyIconStandsOutInSelectedRows()
{
    QObject owner;
    const auto actions = ActionCatalog(&owner).all();
    const int halo = qGray(QApplication::palette().color(QPalette::HighlightedText).rgb());
    for (const QAction *action : actions) {
        const QImage image = action->icon().pixmap(32, 32).toImage();
        const QImage selected = action->icon().pixmap(32, 32, QIcon::Selected).toImage();
        int haloPixels = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                // The drawing itself is not tinted, and bright around.
                if (qAlpha(pixel) == 255)
                    QVERIFY2(selected.pixel(x, y) == pixel, qPrintable(action->objectName()));
                else if (qAlpha(pixel) < 64 && qAlpha(selected.pixel(x, y)) > 128)
                    haloPixels += qAbs(qGray(selected.pixel(x, y)) - halo) < 64;
            }
        }
        QVERIFY2(haloPixels > 20, qPrintable(action->objectName()));
    }
}

void tst_TextEditorActions::everyActionHasANameOfItsOwn()
{
    QObject owner;
    const ActionCatalog catalog(&owner);
    QStringList names;
    const auto actions = catalog.all();
    for (const QAction *action : actions) {
        QVERIFY2(!action->objectName().isEmpty(), qPrintable(action->text()));
        QCOMPARE(catalog.action(qPrintable(action->objectName())), action);
        names << action->objectName();
    }
    QCOMPARE(names.removeDuplicates(), 0);
}

void tst_TextEditorActions::noTextHasAnAmpersand()
{
    QObject owner;
    const auto actions = ActionCatalog(&owner).all();
    for (const QAction *action : actions)
        QVERIFY2(!action->text().contains('&'), qPrintable(action->text()));
}

void tst_TextEditorActions::noTwoActionsShareAShortcut()
{
    QObject owner;
    QStringList shortcuts;
    const auto actions = ActionCatalog(&owner).all();
    for (const QAction *action : actions) {
        if (!action->shortcut().isEmpty())
            shortcuts << action->shortcut().toString();
    }
    QVERIFY(!shortcuts.isEmpty());
    QCOMPARE(shortcuts.removeDuplicates(), 0);
}

void tst_TextEditorActions::everyActionStandsInAMenu()
{
    EditorSession session(settingsFile());
    const QSet<QAction *> inMenus = actionsIn(session.window.menuBar());
    QObject owner;
    const auto actions = ActionCatalog(&owner).all();
    for (const QAction *action : actions) {
        const QString name = action->objectName();
        QVERIFY2(inMenus.contains(session.action(qPrintable(name))), qPrintable(name));
    }
}

void tst_TextEditorActions::everyMenuTitleHasAMnemonicOfItsOwn()
{
    EditorSession session(settingsFile());
    QStringList mnemonics;
    const auto menus = session.window.menuBar()->actions();
    for (const QAction *menu : menus) {
        const int ampersand = menu->text().indexOf('&');
        QVERIFY2(ampersand >= 0, qPrintable(menu->text()));
        mnemonics << menu->text().mid(ampersand + 1, 1).toLower();
    }
    QCOMPARE(mnemonics.size(), 7);
    QCOMPARE(mnemonics.removeDuplicates(), 0);
}

void tst_TextEditorActions::theDefaultToolBarsHaveTheirContent()
{
    EditorSession session(settingsFile());
    const auto contentOfToolBar = [&session](const char *name) {
        return standingOn(session.child<QToolBar>(name)).join(' ');
    };
    QCOMPARE(session.toolBarTitles(), QStringList({"Edit", "File", "Format"}));
    QCOMPARE(contentOfToolBar("toolbar_file"), "file_new file_open file_save | file_reload");
    QCOMPARE(contentOfToolBar("toolbar_edit"),
             "edit_undo edit_redo | edit_cut edit_copy edit_paste | "
             "edit_find edit_replace");
    QCOMPARE(contentOfToolBar("toolbar_format"),
             "format_bold format_italic format_underline | format_align_left "
             "format_align_center format_align_right format_align_justify | "
             "format_font format_text_color");
}

// Each in the category of its menu, but not the entries of menus that are filled when they are
// shown.
void tst_TextEditorActions::theDialogOffersEveryAction()
{
    EditorSession session(settingsFile());
    session.start();
    QStringList offered;
    session.customize([&offered](const EditorViews &views, RyCustomizedDialog *dialog) {
        offered = itemsOf(views.actionTree);
        dialog->reject();
    });
    QStringList categories;
    QSet<QString> texts;
    for (const QString &item : std::as_const(offered)) {
        if (item.startsWith(' '))
            texts.insert(item.trimmed());
        else
            categories << item;
    }
    QCOMPARE(categories,
             QStringList({"< S E P A R A T O R >", "File", "Edit", "View", "Format", "Tools",
                          "Settings", "Help"}));
    QSet<QString> expected{"Customize Toolbars…", "Undo Toolbar Change", "Redo Toolbar Change"};
    QObject owner;
    const auto actions = ActionCatalog(&owner).all();
    for (const QAction *action : actions)
        expected.insert(action->text());
    QCOMPARE(texts, expected);
}

void tst_TextEditorActions::theToolBarsMenuShowsAndHidesToolBars()
{
    EditorSession session(settingsFile());
    session.start();
    QMenu *menu = nullptr;
    const auto all = actionsIn(session.window.menuBar());
    for (const QAction *action : all) {
        if (action->text() == "Toolbars")
            menu = action->menu();
    }
    QVERIFY(menu);
    for (int i = 0; i < 2; ++i) {
        Q_EMIT menu->aboutToShow();
        QCOMPARE(textsOf(menu), QStringList({"File", "Edit", "Format"}));
    }
    menu->actions().at(1)->trigger();
    QVERIFY(!session.toolBar("Edit")->isVisible());
    menu->actions().at(1)->trigger();
    QVERIFY(session.toolBar("Edit")->isVisible());
}

QTEST_MAIN(tst_TextEditorActions)

#include "tst_texteditor_actions.moc"
