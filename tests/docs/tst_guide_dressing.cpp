// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "nextmodal.h"
#include "testcase.h"
#include "texts.h"

//! [includes]
#include <RyCRibbonWidget>
#include <RyCToolBarWidget>
#include <RyCustomizedDialog>
//! [includes]

#include <QAccessible>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QtTest>

#include <functional>

namespace {

//! [find]
struct EditorParts
{
    explicit EditorParts(const QDialog &dialog)
        // The "Ribbon" tab has views with the same names, so search below the page.
        : page(dialog.findChild<RyCToolBarWidget *>())
        , tabs(dialog.findChild<QTabWidget *>(QStringLiteral("m_optionTabWidget")))
        , actionTree(page->findChild<QTreeWidget *>(QStringLiteral("actionTree")))
        , toolBarList(page->findChild<QListWidget *>(QStringLiteral("toolBarList")))
        , currentToolBarList(page->findChild<QListWidget *>(QStringLiteral("currentToolBarList")))
    {
    }

    QToolButton *button(const char *name) const
    {
        return page->findChild<QToolButton *>(QLatin1String(name));
    }

    RyCToolBarWidget *page;
    QTabWidget *tabs;
    QTreeWidget *actionTree;
    QListWidget *toolBarList;
    QListWidget *currentToolBarList;
};
//! [find]

//! [ribbon]
void hideRibbonTab(RyCustomizedDialog *dialog)
{
    QTabWidget *const tabs = EditorParts(*dialog).tabs;
    // The page is not deleted: it stays a hidden child of the dialog.
    tabs->removeTab(tabs->indexOf(dialog->findChild<RyCRibbonWidget *>()));
    tabs->setTabBarAutoHide(true);
}
//! [ribbon]

//! [help]
void useOwnHelp(RyCustomizedDialog *dialog, const std::function<void()> &showHelp)
{
    QPushButton *const button = dialog->helpButton();
    QObject::disconnect(button, nullptr, dialog, nullptr);
    QObject::connect(button, &QPushButton::clicked, dialog, showHelp);
}
//! [help]

//! [filter]
bool filterItem(QTreeWidgetItem *item, const QString &wanted, bool isInMatchingCategory)
{
    const bool matches =
        isInMatchingCategory || item->text(0).contains(wanted, Qt::CaseInsensitive);
    bool hasVisibleChild = false;
    for (int i = 0; i < item->childCount(); ++i)
        hasVisibleChild |= filterItem(item->child(i), wanted, matches);
    item->setHidden(!matches && !hasVisibleChild);
    if (hasVisibleChild && !wanted.isEmpty())
        item->setExpanded(true);
    return !item->isHidden();
}

void filterActions(QTreeWidget *tree, const QString &wanted)
{
    filterItem(tree->invisibleRootItem(), wanted, false);
    // Otherwise "->" would add an action that is not visible.
    if (tree->currentItem() && tree->currentItem()->isHidden())
        tree->setCurrentItem(nullptr);
}

QLineEdit *addFilter(RyCustomizedDialog *dialog)
{
    const EditorParts parts(*dialog);
    QLineEdit *const filter = new QLineEdit(parts.page);
    filter->setPlaceholderText(QCoreApplication::translate("Toolbars", "Search actions"));
    // Below the tree, which takes rows 1 to 3 of the grid.
    qobject_cast<QGridLayout *>(parts.page->layout())->addWidget(filter, 4, 0);
    QObject::connect(filter, &QLineEdit::textChanged, parts.actionTree,
                     [parts](const QString &text) { filterActions(parts.actionTree, text); });
    // The tree is filled again each time its tab is shown.
    QObject::connect(parts.tabs, &QTabWidget::currentChanged, filter, &QLineEdit::clear);
    return filter;
}
//! [filter]

//! [accessible]
void nameForScreenReaders(RyCustomizedDialog *dialog)
{
    const EditorParts parts(*dialog);
    // Their texts are like "->"; their tool tips are already translated sentences.
    const auto buttons = parts.page->findChildren<QToolButton *>();
    for (QToolButton *button : buttons)
        button->setAccessibleName(button->toolTip());
    const struct
    {
        const char *label;
        QWidget *view;
    } labelled[] = {{"label", parts.actionTree},
                    {"label_2", parts.toolBarList},
                    {"label_6", parts.currentToolBarList}};
    for (const auto &each : labelled) {
        QLabel *const label = parts.page->findChild<QLabel *>(QLatin1String(each.label));
        label->setBuddy(each.view);
        each.view->setAccessibleName(label->text());
    }
}
//! [accessible]

//! [shortcuts]
void addShortcuts(RyCustomizedDialog *dialog)
{
    const EditorParts parts(*dialog);
    const struct
    {
        const char *button;
        const char *keys;
    } shortcuts[] = {{"newButton", "Ctrl+N"},       {"removeButton", "Ctrl+Shift+Delete"},
                     {"renameButton", "F2"},        {"rightButton", "Ctrl+Return"},
                     {"leftButton", "Ctrl+Delete"}, {"upButton", "Ctrl+Up"},
                     {"downButton", "Ctrl+Down"}};
    for (const auto &each : shortcuts) {
        QToolButton *const button = parts.button(each.button);
        const QKeySequence keys(QLatin1String(each.keys));
        // Not QToolButton::setShortcut(), which ignores the repeats of a key that is held down.
        QShortcut *const shortcut = new QShortcut(keys, parts.page);
        QObject::connect(shortcut, &QShortcut::activated, button, &QToolButton::click);
        button->setToolTip(QStringLiteral("%1 (%2)").arg(button->toolTip(),
                                                         keys.toString(QKeySequence::NativeText)));
    }
}
//! [shortcuts]

//! [mirror]
void mirrorArrows(RyCustomizedDialog *dialog)
{
    const EditorParts parts(*dialog);
    if (parts.page->layoutDirection() != Qt::RightToLeft)
        return;
    QToolButton *const add = parts.button("rightButton");
    QToolButton *const remove = parts.button("leftButton");
    const QIcon pointingRight = add->icon();
    add->setIcon(remove->icon());
    remove->setIcon(pointingRight);
}
//! [mirror]

//! [plain-texts]
class PlainTextDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        QString text = QStyledItemDelegate::displayText(value, locale);
        for (int i = text.indexOf(QLatin1Char('&')); i >= 0;
             i = text.indexOf(QLatin1Char('&'), i + 1))
            text.remove(i, 1); // keeps the second one of "&&"
        return text;
    }
};

void hideMnemonics(RyCustomizedDialog *dialog)
{
    const EditorParts parts(*dialog);
    QStyledItemDelegate *const delegate = new PlainTextDelegate(dialog);
    parts.actionTree->setItemDelegate(delegate);
    parts.currentToolBarList->setItemDelegate(delegate);
}
//! [plain-texts]

void customizeDressed(RyToolBarManager *manager, QMainWindow *window,
                      const std::function<void()> &showHelp)
{
    //! [all]
    RyCustomizedDialog dialog({manager, nullptr}, window);
    hideRibbonTab(&dialog);
    useOwnHelp(&dialog, showHelp);
    hideMnemonics(&dialog);
    addFilter(&dialog);
    nameForScreenReaders(&dialog); // before the shortcuts are added to the tool tips
    addShortcuts(&dialog);
    mirrorArrows(&dialog);
    dialog.exec();
    //! [all]
}

struct EditHost : Host
{
    EditHost()
        : edit(defaultToolBar(QStringLiteral("edit"), words("cut copy | paste"),
                              QStringLiteral("Edit")))
    {
        registered(QStringLiteral("open"), QStringLiteral("File"))
            ->setText(QStringLiteral("&Open && Close"));
        registered(QStringLiteral("save"), QStringLiteral("File"));
    }

    QToolBar *const edit;
};

QStringList visibleItems(const QTreeWidgetItem *parent)
{
    QStringList texts;
    for (int i = 0; i < parent->childCount(); ++i) {
        if (!parent->child(i)->isHidden())
            texts << parent->child(i)->text(0) << visibleItems(parent->child(i));
    }
    return texts;
}

QStringList visibleItems(const QTreeWidget *tree)
{
    return visibleItems(tree->invisibleRootItem());
}

QString spokenName(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

QImage pictureOf(const QIcon &icon)
{
    return icon.pixmap(22).toImage();
}

} // namespace

class tst_guide_dressing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyPartIsFound();
    void everyButtonIsReachedWithTab();
    void theKeyForRenamingWorksByItself();
    void theRibbonTabIsHidden();
    void theOwnHelpIsShown();
    void theFilterShowsWhatMatches_data();
    void theFilterShowsWhatMatches();
    void theFilterStandsBelowTheTree();
    void theFilterOpensTheCategoriesOfWhatItFinds();
    void whatTheFilterHidesCannotBeAdded();
    void theFilterIsClearedWithTheTree();
    void screenReadersHearWhatAButtonDoes();
    void screenReadersHearWhatAListHolds();
    void everyButtonHasAKey();
    void theKeysAreInTheToolTips();
    void arrowsPointToWhereThingsGo_data();
    void arrowsPointToWhereThingsGo();
    void mnemonicsAreHidden();
    void theTextsOfActionsStay();
    void allTogether();
};

void tst_guide_dressing::everyPartIsFound()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    dialog.show();
    const EditorParts parts(dialog);
    const EditorViews views(&dialog);
    QCOMPARE(parts.page, views.page);
    QVERIFY(parts.tabs);
    QCOMPARE(parts.actionTree, views.actionTree);
    QCOMPARE(parts.toolBarList, views.toolBarList);
    QCOMPARE(parts.currentToolBarList, views.currentToolBarList);
    QCOMPARE(parts.button("newButton"), views.newButton);
    QVERIFY(parts.actionTree->isVisible());
    QCOMPARE(dialog.objectName(), QStringLiteral("CustomizedDialog"));
    QCOMPARE(parts.page->objectName(), QStringLiteral("CToolBarPage"));
    QVERIFY(dialog.findChild<QDialogButtonBox *>(QStringLiteral("m_dialogButtonBox")));
}

void tst_guide_dressing::everyButtonIsReachedWithTab()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    const auto buttons = EditorParts(dialog).page->findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 7);
    for (const QToolButton *button : buttons)
        QVERIFY2(button->focusPolicy() & Qt::TabFocus, qPrintable(button->objectName()));
}

void tst_guide_dressing::theKeyForRenamingWorksByItself()
{
    EditHost host;
    host.manager.createToolBar(QStringLiteral("Mine"));
    RyCustomizedDialog dialog({&host.manager, nullptr});
    dialog.show();
    const EditorViews editor(&dialog);
    editor.click(editor.toolBarList, QStringLiteral("Mine"));
    QTest::keyClick(editor.toolBarList, Qt::Key_F2);
    editor.typeName(QStringLiteral("My"));
    QCOMPARE(rowsOf(editor.toolBarList), words("Edit My"));
}

void tst_guide_dressing::theRibbonTabIsHidden()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    hideRibbonTab(&dialog);
    dialog.show();
    const EditorViews editor(&dialog);
    QCOMPARE(dialog.findChild<QTabWidget *>()->count(), 1);
    QVERIFY(!dialog.findChild<QTabBar *>()->isVisible());
    editor.doubleClick(editor.currentToolBarList, 0);
    QTest::mouseClick(dialog.okButton(), Qt::LeftButton);
    QCOMPARE(standingOn(host.edit), words("copy | paste"));
}

void tst_guide_dressing::theOwnHelpIsShown()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    int shown = 0;
    useOwnHelp(&dialog, [&shown] { ++shown; });
    dialog.show();
    QTest::mouseClick(dialog.helpButton(), Qt::LeftButton);
    QCOMPARE(shown, 1);
    QVERIFY(!QApplication::activeModalWidget() || QApplication::activeModalWidget() == &dialog);
}

void tst_guide_dressing::theFilterShowsWhatMatches_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("shown");
    const QString separator = QStringLiteral("< S E P A R A T O R >");
    QTest::newRow("nothing") << QString()
                             << QStringList{separator,
                                            QStringLiteral("Edit"),
                                            QStringLiteral("Copy"),
                                            QStringLiteral("Cut"),
                                            QStringLiteral("Paste"),
                                            QStringLiteral("File"),
                                            QStringLiteral("&Open && Close"),
                                            QStringLiteral("Save")};
    QTest::newRow("in one category")
        << QStringLiteral("C")
        << QStringList{QStringLiteral("Edit"), QStringLiteral("Copy"), QStringLiteral("Cut"),
                       QStringLiteral("File"), QStringLiteral("&Open && Close")};
    QTest::newRow("a category") << QStringLiteral("edit") << words("Edit Copy Cut Paste");
    QTest::newRow("upper case") << QStringLiteral("SAVE") << words("File Save");
    QTest::newRow("no match") << QStringLiteral("xyz") << QStringList();
}

void tst_guide_dressing::theFilterShowsWhatMatches()
{
    QFETCH(QString, text);
    QFETCH(QStringList, shown);
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    QLineEdit *const filter = addFilter(&dialog);
    dialog.show();
    QVERIFY(filter->isVisible());
    const EditorParts parts(dialog);
    QTest::keyClicks(filter, text);
    QCOMPARE(visibleItems(parts.actionTree), shown);
    filter->clear();
    QCOMPARE(visibleItems(parts.actionTree).size(), 8);
}

void tst_guide_dressing::theFilterStandsBelowTheTree()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    const QLineEdit *const filter = addFilter(&dialog);
    dialog.show();
    const QRect tree = EditorParts(dialog).actionTree->geometry();
    QVERIFY(filter->y() > tree.bottom());
    QCOMPARE(filter->x(), tree.x());
    QCOMPARE(filter->width(), tree.width());
}

void tst_guide_dressing::theFilterOpensTheCategoriesOfWhatItFinds()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    QLineEdit *const filter = addFilter(&dialog);
    dialog.show();
    const EditorParts parts(dialog);
    filter->setText(QStringLiteral("save"));
    QVERIFY(itemNamed(parts.actionTree, QStringLiteral("File"))->isExpanded());
    QVERIFY(!itemNamed(parts.actionTree, QStringLiteral("Edit"))->isExpanded());
}

void tst_guide_dressing::whatTheFilterHidesCannotBeAdded()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    QLineEdit *const filter = addFilter(&dialog);
    dialog.show();
    const EditorViews editor(&dialog);
    editor.actionTree->setCurrentItem(itemNamed(editor.actionTree, QStringLiteral("Save")));
    QVERIFY(editor.rightButton->isEnabled());
    QTest::keyClicks(filter, QStringLiteral("cut"));
    QVERIFY(!editor.rightButton->isEnabled());
    editor.click(editor.actionTree, QStringLiteral("Cut"));
    QVERIFY(editor.rightButton->isEnabled());
}

void tst_guide_dressing::theFilterIsClearedWithTheTree()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    QLineEdit *const filter = addFilter(&dialog);
    dialog.show();
    QTest::keyClicks(filter, QStringLiteral("cut"));
    const EditorParts parts(dialog);
    parts.tabs->setCurrentIndex(1);
    parts.tabs->setCurrentIndex(0);
    QCOMPARE(filter->text(), QString());
    QCOMPARE(visibleItems(parts.actionTree).size(), 8);
}

void tst_guide_dressing::screenReadersHearWhatAButtonDoes()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    const EditorViews editor(&dialog);
    QCOMPARE(spokenName(editor.rightButton), QStringLiteral("->"));
    nameForScreenReaders(&dialog);
    QCOMPARE(spokenName(editor.rightButton), QStringLiteral("Add action to toolbar"));
    QCOMPARE(spokenName(editor.leftButton), QStringLiteral("Remove action from toolbar"));
    QCOMPARE(spokenName(editor.newButton), QStringLiteral("Add new toolbar"));
}

void tst_guide_dressing::screenReadersHearWhatAListHolds()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    const EditorViews editor(&dialog);
    QCOMPARE(spokenName(editor.toolBarList), QString());
    nameForScreenReaders(&dialog);
    QCOMPARE(spokenName(editor.actionTree), QStringLiteral("Actions"));
    QCOMPARE(spokenName(editor.toolBarList), QStringLiteral("Toolbars"));
    QCOMPARE(spokenName(editor.currentToolBarList), QStringLiteral("Current Toolbar Actions"));
    QCOMPARE(editor.page->findChild<QLabel *>(QStringLiteral("label_6"))->buddy(),
             editor.currentToolBarList);
}

void tst_guide_dressing::everyButtonHasAKey()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    addShortcuts(&dialog);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const EditorViews editor(&dialog);
    const QString separator = QStringLiteral("< S E P A R A T O R >");
    const auto entries = [&editor] { return rowsOf(editor.currentToolBarList); };
    editor.currentToolBarList->setFocus();
    editor.currentToolBarList->setCurrentRow(1);
    QTest::keyClick(&dialog, Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(entries(),
             QStringList({QStringLiteral("Copy"), QStringLiteral("Cut"), separator,
                          QStringLiteral("Paste")}));
    QTest::keyClick(&dialog, Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(&dialog, Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(entries(), QStringList({QStringLiteral("Cut"), separator, QStringLiteral("Paste")}));
    QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(entries().size(), 4);
    QTest::keyClick(&dialog, Qt::Key_N, Qt::ControlModifier);
    editor.typeName(QStringLiteral("Mine"));
    QCOMPARE(rowsOf(editor.toolBarList), words("Edit Mine"));
    QTest::keyClick(&dialog, Qt::Key_F2);
    editor.typeName(QStringLiteral("My"));
    QCOMPARE(rowsOf(editor.toolBarList), words("Edit My"));
    QTest::keyClick(&dialog, Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(rowsOf(editor.toolBarList), words("Edit"));
    QVERIFY(dialog.isVisible());
}

void tst_guide_dressing::theKeysAreInTheToolTips()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    addShortcuts(&dialog);
    QCOMPARE(EditorViews(&dialog).upButton->toolTip(), QStringLiteral("Move action up (Ctrl+Up)"));
}

void tst_guide_dressing::arrowsPointToWhereThingsGo_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_guide_dressing::arrowsPointToWhereThingsGo()
{
    QFETCH(Qt::LayoutDirection, direction);
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    dialog.setLayoutDirection(direction);
    mirrorArrows(&dialog);
    dialog.show();
    const EditorViews editor(&dialog);
    const QIcon right(QStringLiteral(":/RyCustomizedDialog/images/forward.png"));
    const QIcon left(QStringLiteral(":/RyCustomizedDialog/images/back.png"));
    // Actions go from the tree to the list.
    const bool listIsAtTheRight = editor.currentToolBarList->x() > editor.actionTree->x();
    QCOMPARE(listIsAtTheRight, direction == Qt::LeftToRight);
    QCOMPARE(pictureOf(editor.rightButton->icon()), pictureOf(listIsAtTheRight ? right : left));
    QCOMPARE(pictureOf(editor.leftButton->icon()), pictureOf(listIsAtTheRight ? left : right));
}

// Compares the display with that of an action without an "&".
void tst_guide_dressing::mnemonicsAreHidden()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    hideMnemonics(&dialog);
    dialog.show();
    const EditorViews editor(&dialog);
    editor.doubleClick(editor.actionTree, QStringLiteral("&Open && Close"));
    const auto pictures = [&editor] {
        return QList<QImage>{editor.actionTree->viewport()->grab().toImage(),
                             editor.currentToolBarList->viewport()->grab().toImage()};
    };
    const QList<QImage> shown = pictures();
    QStyledItemDelegate *const plain = new QStyledItemDelegate(&dialog);
    editor.actionTree->setItemDelegate(plain);
    editor.currentToolBarList->setItemDelegate(plain);
    QVERIFY(shown.at(0) != pictures().at(0));
    QVERIFY(shown.at(1) != pictures().at(1));
    editor.actionTree->currentItem()->setText(0, QStringLiteral("Open & Close"));
    editor.currentToolBarList->currentItem()->setText(QStringLiteral("Open & Close"));
    QCOMPARE(shown, pictures());
}

void tst_guide_dressing::theTextsOfActionsStay()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    hideMnemonics(&dialog);
    dialog.show();
    QTest::mouseClick(dialog.okButton(), Qt::LeftButton);
    QCOMPARE(host.action(QStringLiteral("open"))->text(), QStringLiteral("&Open && Close"));
}

void tst_guide_dressing::allTogether()
{
    EditHost host;
    host.window.show();
    int helps = 0;
    const NextModal modal([&helps](QWidget *shown) {
        const EditorViews editor(shown);
        QTest::keyClicks(editor.page->findChild<QLineEdit *>(), QStringLiteral("save"));
        editor.doubleClick(editor.actionTree, QStringLiteral("Save"));
        QTest::mouseClick(static_cast<RyCustomizedDialog *>(shown)->helpButton(), Qt::LeftButton);
        QCOMPARE(helps, 1);
        QCOMPARE(spokenName(editor.upButton), QStringLiteral("Move action up"));
        QCOMPARE(editor.upButton->toolTip(), QStringLiteral("Move action up (Ctrl+Up)"));
        QTest::mouseClick(static_cast<RyCustomizedDialog *>(shown)->okButton(), Qt::LeftButton);
    });
    customizeDressed(&host.manager, &host.window, [&helps] { ++helps; });
    QVERIFY(modal.wasShown());
    QCOMPARE(standingOn(host.edit), words("cut save copy | paste"));
}

QTEST_MAIN(tst_guide_dressing)
#include "tst_guide_dressing.moc"
