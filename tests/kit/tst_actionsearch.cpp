// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitwindow.h"
#include "testcase.h"
#include "texts.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QtTest>

/*
 * The line that finds actions in the dialog of the kit.
 */
class tst_ActionSearch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rowsThatMatchStay_data();
    void rowsThatMatchStay();
    void theBestMatchBecomesCurrent_data();
    void theBestMatchBecomesCurrent();
    void equallyGoodMatchesAreTakenAsShown();
    void eachKeystrokeLooksForTheBest();
    void withoutAMatchNothingCanBeAdded();
    void theRestComesBackWhenTheLineIsCleared();
    void theCategoryOfTheCurrentActionStaysExpanded();
    void categoriesThatTheUserHasExpandedStayExpanded();
    void theyStayExpandedAfterAFormerSearchToo();
    void returnAddsTheActionAndKeepsTheDialog_data();
    void returnAddsTheActionAndKeepsTheDialog();
    void downGoesToTheTree();
    void escapeClearsFirstAndThenCloses();
    void theSearchWaitsForNothing();
    void actionsThatAreGoneAreFoundByTheirTexts();
    void theLineIsEmptiedWithTheTree();
    void tipsAreFoundWithoutBeingShown();
    void theLineIsBesideItsCaption();
    void theLineIsReadyToTypeIn();
    void theDialogMayBeDeletedAtAnyTime();
};

namespace {

QAction *add(QMenu *menu, const QString &text, const QString &toolTip = QString(),
             const QString &statusTip = QString(), const QString &shortcut = QString())
{
    QAction *const action = menu->addAction(text);
    action->setObjectName(text);
    action->setToolTip(toolTip);
    action->setStatusTip(statusTip);
    action->setShortcut(QKeySequence(shortcut));
    return action;
}

void buildMenus(QMainWindow *window)
{
    QMenu *const file = window->menuBar()->addMenu("&File");
    add(file, "&Open…", "Opens a <b>document</b>", QString(), "Ctrl+O");
    add(file, "Save &As…");
    add(file, "Überprüfen");
    QMenu *const edit = window->menuBar()->addMenu("&Edit");
    add(edit, "C&opy", QString(), "Puts it into the clipboard", "Ctrl+C");
    add(edit, "&Paste", QString(), "Takes it from the clipboard");
    add(edit, "Usuń łącze");
    add(edit, "Sıralama");
    window->addToolBar("Bar")->setObjectName("bar");
}

// Everything about it as one type, because each test needs all.
struct Opened
{
    explicit Opened(const KitProgram::Build &build = buildMenus)
    {
        program.start(build);
        open();
    }

    void open()
    {
        dialog = program.openDialog();
        views.reset(new EditorViews(dialog));
        line = dialog->findChild<QLineEdit *>("actionSearch");
        QVERIFY(line);
        QApplication::setActiveWindow(dialog);
        QVERIFY(QTest::qWaitForWindowActive(dialog));
    }

    QStringList visibleItems() const
    {
        QStringList texts;
        for (QTreeWidgetItemIterator it(views->actionTree, QTreeWidgetItemIterator::NotHidden); *it;
             ++it) {
            if (!(*it)->parent() || !(*it)->parent()->isHidden())
                texts << (*it)->text(0);
        }
        return texts;
    }

    KitProgram program;
    RyCustomizedDialog *dialog = nullptr;
    std::unique_ptr<EditorViews> views;
    QLineEdit *line = nullptr;
};

} // namespace

void tst_ActionSearch::rowsThatMatchStay_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("left");
    const QStringList none;
    QTest::newRow("start") << "pas" << QStringList({"&Edit", "&Paste"});
    QTest::newRow("case") << "PAS" << QStringList({"&Edit", "&Paste"});
    QTest::newRow("mnemonic") << "copy" << QStringList({"&Edit", "C&opy"});
    QTest::newRow("accent typed") << "über" << QStringList({"&File", "Überprüfen"});
    QTest::newRow("accent not typed") << "uberpruf" << QStringList({"&File", "Überprüfen"});
    QTest::newRow("accent in two characters")
        << QString("U") + QChar(0x308) + "ber" << QStringList({"&File", "Überprüfen"});
    QTest::newRow("stroke") << "usun lacze" << QStringList({"&Edit", "Usuń łącze"});
    QTest::newRow("letter without a dot") << "siralama" << QStringList({"&Edit", "Sıralama"});
    QTest::newRow("tool tip") << "document" << QStringList({"&File", "&Open…"});
    QTest::newRow("format of a tool tip") << "<b>" << none;
    QTest::newRow("status tip") << "from the" << QStringList({"&Edit", "&Paste"});
    QTest::newRow("shortcut") << "ctrl+c" << QStringList({"&Edit", "C&opy"});
    QTest::newRow("category") << "file"
                              << QStringList({"&File", "&Open…", "Save &As…", "Überprüfen"});
    QTest::newRow("words in any order") << "as save" << QStringList({"&File", "Save &As…"});
    QTest::newRow("words of the text and category")
        << "edit copy" << QStringList({"&Edit", "C&opy"});
    QTest::newRow("words of the text and tip") << "clip copy" << QStringList({"&Edit", "C&opy"});
    QTest::newRow("a word that is nowhere") << "copy xyz" << none;
    QTest::newRow("blanks") << "  pas   te " << QStringList({"&Edit", "&Paste"});
    QTest::newRow("only blanks") << "  "
                                 << QStringList({"< S E P A R A T O R >", "&File", "&Open…",
                                                 "Save &As…", "Überprüfen", "&Edit", "C&opy",
                                                 "&Paste", "Sıralama", "Usuń łącze"});
    QTest::newRow("separator") << "separ" << QStringList({"< S E P A R A T O R >"});
    QTest::newRow("over two fields") << "copy ctrl" << QStringList({"&Edit", "C&opy"});
}

void tst_ActionSearch::rowsThatMatchStay()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, left);
    for (QString &text : left) {
        // Categories have no mnemonics.
        if (text == "&File" || text == "&Edit")
            text.remove('&');
    }
    const Opened opened;
    for (const QChar letter : std::as_const(typed))
        opened.line->insert(letter); // keys are for ASCII only
    QCOMPARE(opened.visibleItems(), left);
    for (int i = 1; i < opened.views->actionTree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *const item = opened.views->actionTree->topLevelItem(i);
        QVERIFY(item->isHidden() || item->isExpanded() == !typed.trimmed().isEmpty());
    }
}

void tst_ActionSearch::theBestMatchBecomesCurrent_data()
{
    QTest::addColumn<QStringList>("actions"); // with their tool tips after a "|"
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("best");
    QTest::newRow("start before word") << QStringList({"a new copy", "copy it"}) << "copy"
                                       << "copy it";
    QTest::newRow("word before within") << QStringList({"acopy", "b copy"}) << "copy"
                                        << "b copy";
    QTest::newRow("later word before within") << QStringList({"acopy", "bcopy copy"}) << "copy"
                                              << "bcopy copy";
    QTest::newRow("text before tool tip") << QStringList({"a|copy", "bcopy"}) << "copy"
                                          << "bcopy";
    QTest::newRow("tool tip before category") << QStringList({"a", "b|the menu"}) << "menu"
                                              << "b";
    QTest::newRow("whole text before its words")
        << QStringList({"copy all", "b all copy"}) << "all copy"
        << "b all copy";
    QTest::newRow("each word counts") << QStringList({"a b|copy", "xcopy a"}) << "a copy"
                                      << "xcopy a";
    QTest::newRow("each word counts, in another order")
        << QStringList({"a b|copy", "xcopy b a"}) << "copy a"
        << "xcopy b a";
    QTest::newRow("after a sign") << QStringList({"acopy", "b-copy"}) << "copy"
                                  << "b-copy";
}

void tst_ActionSearch::theBestMatchBecomesCurrent()
{
    QFETCH(QStringList, actions);
    QFETCH(QString, typed);
    const Opened opened([&](QMainWindow *window) {
        QMenu *const menu = window->menuBar()->addMenu("Menu");
        for (const QString &action : std::as_const(actions))
            add(menu, action.section('|', 0, 0), action.section('|', 1));
    });
    QTest::keyClicks(opened.line, typed);
    QTEST(currentOf(opened.views->actionTree), "best");
    // It can be seen.
    QTreeWidget *const tree = opened.views->actionTree;
    QVERIFY(tree->viewport()->rect().intersects(tree->visualItemRect(tree->currentItem())));
}

void tst_ActionSearch::equallyGoodMatchesAreTakenAsShown()
{
    const Opened opened([](QMainWindow *window) {
        for (const char *title : {"Second", "First"}) {
            QMenu *const menu = window->menuBar()->addMenu(title);
            for (const char *text : {"copy c", "copy a", "copy b"})
                add(menu, text + QString(" ") + title);
        }
    });
    QTest::keyClicks(opened.line, "copy");
    QCOMPARE(currentOf(opened.views->actionTree), "copy a Second");
    QTest::keyClicks(opened.line, " first");
    QCOMPARE(currentOf(opened.views->actionTree), "copy a First");
}

void tst_ActionSearch::eachKeystrokeLooksForTheBest()
{
    const Opened opened;
    QTest::keyClicks(opened.line, "p");
    QCOMPARE(currentOf(opened.views->actionTree), "&Paste");
    opened.views->actionTree->setCurrentItem(itemNamed(opened.views->actionTree, "C&opy"));
    QTest::keyClick(opened.line, Qt::Key_Backspace);
    QCOMPARE(currentOf(opened.views->actionTree), "C&opy");
    QTest::keyClicks(opened.line, "ope");
    QCOMPARE(currentOf(opened.views->actionTree), "&Open…");
}

void tst_ActionSearch::withoutAMatchNothingCanBeAdded()
{
    const Opened opened;
    QVERIFY(opened.views->rightButton->isEnabled());
    QTest::keyClicks(opened.line, "xyz");
    QVERIFY(!opened.views->actionTree->currentItem());
    QVERIFY(!opened.views->rightButton->isEnabled());
    QTest::keyClick(opened.line, Qt::Key_Return);
    QCOMPARE(opened.views->currentRows(), QStringList());
    QVERIFY(opened.dialog->isVisible());
}

void tst_ActionSearch::theRestComesBackWhenTheLineIsCleared()
{
    const Opened opened;
    const QStringList before = opened.visibleItems();
    for (const char *typed : {"copy", "c", "xyz", "file", "pas"}) {
        opened.line->setText(typed);
        QVERIFY(opened.visibleItems() != before);
        opened.line->clear();
        QCOMPARE(opened.visibleItems(), before);
    }
}

void tst_ActionSearch::theCategoryOfTheCurrentActionStaysExpanded()
{
    const Opened opened;
    QTest::keyClicks(opened.line, "o");
    opened.line->setText("copy");
    opened.line->clear();
    QCOMPARE(currentOf(opened.views->actionTree), "C&opy");
    QVERIFY(itemNamed(opened.views->actionTree, "Edit")->isExpanded());
    QVERIFY(!itemNamed(opened.views->actionTree, "File")->isExpanded());
}

void tst_ActionSearch::categoriesThatTheUserHasExpandedStayExpanded()
{
    const Opened opened;
    itemNamed(opened.views->actionTree, "File")->setExpanded(true);
    QTest::keyClicks(opened.line, "copy");
    opened.line->clear();
    QVERIFY(itemNamed(opened.views->actionTree, "File")->isExpanded());
}

void tst_ActionSearch::theyStayExpandedAfterAFormerSearchToo()
{
    const Opened opened;
    QTreeWidgetItem *const file = itemNamed(opened.views->actionTree, "File");
    QTest::keyClicks(opened.line, "o");
    QVERIFY(file->isExpanded());
    opened.line->setText("copy");
    opened.line->clear();
    QVERIFY(!file->isExpanded());
    file->setExpanded(true);
    QTest::keyClicks(opened.line, "copy");
    opened.line->clear();
    QVERIFY(file->isExpanded());
}

void tst_ActionSearch::returnAddsTheActionAndKeepsTheDialog_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_ActionSearch::returnAddsTheActionAndKeepsTheDialog()
{
    QFETCH(int, key);
    const Opened opened;
    QTest::keyClicks(opened.line, "paste");
    QTest::keyClick(opened.line, Qt::Key(key));
    opened.line->setText("open");
    QTest::keyClick(opened.line, Qt::Key(key));
    QCOMPARE(opened.views->currentRows(), QStringList({"&Paste", "&Open…"}));
    QVERIFY(opened.dialog->isVisible());
    QCOMPARE(opened.program.customizations, 0);
}

void tst_ActionSearch::downGoesToTheTree()
{
    const Opened opened;
    QTest::keyClicks(opened.line, "paste");
    QTest::keyClick(opened.line, Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), opened.views->actionTree);
    QCOMPARE(currentOf(opened.views->actionTree), "&Paste");
}

void tst_ActionSearch::escapeClearsFirstAndThenCloses()
{
    const Opened opened;
    QTest::keyClicks(opened.line, "cut");
    QTest::keyClick(opened.line, Qt::Key_Escape);
    QCOMPARE(opened.line->text(), QString());
    QVERIFY(opened.dialog->isVisible());
    QTest::keyClick(opened.line, Qt::Key_Escape);
    QVERIFY(!opened.dialog->isVisible());
    letTheKitFollow();
}

void tst_ActionSearch::theSearchWaitsForNothing()
{
    KitProgram program;
    program.start(buildMenus);
    RyCustomizedDialog *const dialog = program.openDialog();
    dialog->findChild<QLineEdit *>("actionSearch")->setText("paste");
    QCOMPARE(currentOf(EditorViews(dialog).actionTree), "&Paste");
    // What is prepared a moment later changes nothing.
    QTest::qWait(100);
    QCOMPARE(currentOf(EditorViews(dialog).actionTree), "&Paste");
    dialog->findChild<QLineEdit *>("actionSearch")->setText("copy");
    QCOMPARE(currentOf(EditorViews(dialog).actionTree), "C&opy");
}

void tst_ActionSearch::actionsThatAreGoneAreFoundByTheirTexts()
{
    const Opened opened;
    delete opened.program.action("&Paste");
    opened.line->setText("paste");
    QCOMPARE(currentOf(opened.views->actionTree), "&Paste");
    opened.line->setText("clipboard");
    QCOMPARE(opened.visibleItems(), QStringList({"Edit", "C&opy"}));
}

void tst_ActionSearch::theLineIsEmptiedWithTheTree()
{
    const Opened opened;
    const QStringList before = opened.visibleItems();
    opened.line->setText("paste");
    opened.dialog->hide();
    QCOMPARE(opened.line->text(), QString());
    opened.line->setText("open");
    opened.line->clear();
    opened.dialog->show();
    QCOMPARE(opened.visibleItems(), before);
    opened.line->setText("paste");
    QCOMPARE(opened.visibleItems(), QStringList({"Edit", "&Paste"}));
}

void tst_ActionSearch::tipsAreFoundWithoutBeingShown()
{
    KitProgram program;
    program.start([&](QMainWindow *window) {
        buildMenus(window);
        program.kit()->setFeatures(program.kit()->features() & ~RyToolBarKit::ReadableLists);
    });
    RyCustomizedDialog *const dialog = program.openDialog();
    QLineEdit *const line = dialog->findChild<QLineEdit *>("actionSearch");
    line->setText("document");
    QCOMPARE(currentOf(EditorViews(dialog).actionTree), "&Open…");
}

void tst_ActionSearch::theLineIsBesideItsCaption()
{
    const Opened opened;
    const QLabel *const caption = opened.views->page->findChild<QLabel *>("label");
    const auto place = [&](const QWidget *widget) {
        return QRect(widget->mapTo(opened.dialog, QPoint()), widget->size());
    };
    QVERIFY(caption->isVisible());
    QVERIFY(place(caption).right() < place(opened.line).left());
    QVERIFY(place(opened.line).bottom() < place(opened.views->actionTree).top());
    QCOMPARE(place(opened.line).right(), place(opened.views->actionTree).right());
}

void tst_ActionSearch::theLineIsReadyToTypeIn()
{
    const Opened opened;
    QCOMPARE(QApplication::focusWidget(), opened.line);
    QCOMPARE(opened.line->accessibleName(), "Find an action");
    QCOMPARE(opened.line->placeholderText(), "Find an action");
    QVERIFY(opened.line->isClearButtonEnabled());
    QTest::keyClick(opened.line, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), opened.views->actionTree);
}

void tst_ActionSearch::theDialogMayBeDeletedAtAnyTime()
{
    Opened opened;
    opened.line->setText("paste");
    delete opened.dialog;
    opened.open();
    opened.line->setText("paste");
    opened.dialog->hide();
    delete opened.dialog;
}

QTEST_MAIN(tst_ActionSearch)
#include "tst_actionsearch.moc"
