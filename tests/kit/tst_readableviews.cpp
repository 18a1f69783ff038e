// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitwindow.h"
#include "qtdifferences.h"
#include "readabledelegate.h"
#include "testcase.h"
#include "texts.h"

#include <RyCRibbonWidget>

#include <QHelpEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QToolTip>
#include <QtTest>

/*
 * What the dialog of the kit shows: texts, order, colors, shortcuts and explanations.
 */
class tst_ReadableViews : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreShownWithoutMnemonics_data();
    void textsAreShownWithoutMnemonics();
    void rowsAreSortedAsTheyAreShown();
    void rowsOfASortedMenuStayAsTheyAre();
    void categoriesAreInTheOrderOfTheMenus();
    void theSeparatorIsCurrentAndFirst();
    void rowsAreSortedForTheLanguage();
    void rowsAreArrangedEachTimeTheyAreShown();
    void rowsOfTheSameTextAddTheirOwnActions();
    void shortcutsAreAtTheEndOfTheRow_data();
    void shortcutsAreAtTheEndOfTheRow();
    void aNarrowRowHasNoShortcut();
    void rowsAreExplained_data();
    void rowsAreExplained();
    void actionsThatAreGoneHaveNoExplanation();
    void colorsContrast_data();
    void colorsContrast();
    void colorsThatContrastStay();
    void toolBarsAreReadableInEachPalette_data();
    void toolBarsAreReadableInEachPalette();
    void theTitleSaysWhatTheDialogIs();
    void theRibbonTabIsHidden();
    void anEmptyToolBarSaysWhatToDo();
    void anEmptyDefaultToolBarSaysWhatToDo();
    void arrowsFollowTheDirection();
    void theDialogMayBeDeletedAtAnyTime();

protected:
    void finish() override { QtDifferences::forgetLayoutDirection(); }
};

namespace {

// Menus that are not in alphabetical order, with mnemonics that would change the order of actions.
void buildMenus(QMainWindow *window)
{
    const QMap<QString, QString> texts{{"&Tools", "z&oom,Apple,&banana,Äpfel,Zoo"},
                                       {"&File", "S&ave,&Quit,Open"},
                                       {"Edit", "Copy,&Cut"}};
    for (const char *title : {"&Tools", "&File", "Edit"}) {
        QMenu *const menu = window->menuBar()->addMenu(title);
        const auto names = texts.value(title).split(",");
        for (const QString &name : names)
            menu->addAction(name)->setObjectName(name);
    }
    QMenu *const more = window->menuBar()->actions().constFirst()->menu()->addMenu("More");
    more->addAction("Deep");
    QToolBar *const toolBar = window->addToolBar("Bar");
    toolBar->setObjectName("bar");
    toolBar->addAction("Own")->setObjectName("own");
    window->addToolBar("Area")->addAction("Other")->setObjectName("other");
}

struct Opened
{
    explicit Opened(const KitProgram::Build &build = buildMenus)
    {
        program.start(build);
        dialog = program.openDialog();
        views.reset(new EditorViews(dialog));
    }

    QTreeWidgetItem *item(const QString &text) const { return itemNamed(views->actionTree, text); }

    KitProgram program;
    RyCustomizedDialog *dialog;
    std::unique_ptr<EditorViews> views;
};

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

// The picture of one row of a view.
QImage pictureOf(QAbstractItemView *view, const QRect &row)
{
    return view->viewport()->grab(row).toImage();
}

// How many pixels of the columns differ from the background, which the corner shows.
int inkBetween(const QImage &image, int first, int last)
{
    int ink = 0;
    for (int x = qMax(0, first); x < qMin(last, image.width()); ++x) {
        for (int y = 0; y < image.height(); ++y)
            ink += image.pixel(x, y) != image.pixel(image.width() / 2, 0);
    }
    return ink;
}

QString toolTipOf(const EditorViews &views, QTreeWidgetItem *item)
{
    const auto hide = [] {
        QToolTip::hideText();
        return QTest::qWaitFor([] { return !QToolTip::isVisible(); });
    };
    hide();
    views.actionTree->scrollToItem(item);
    const QPoint position = views.actionTree->visualItemRect(item).center();
    QWidget *const viewport = views.actionTree->viewport();
    QHelpEvent event(QEvent::ToolTip, position, viewport->mapToGlobal(position));
    QCoreApplication::sendEvent(viewport, &event);
    const QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
    hide();
    return text;
}

} // namespace

void tst_ReadableViews::textsAreShownWithoutMnemonics_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"actionTree", "toolBarList", "currentToolBarList"})
        QTest::newRow(name) << name;
}

void tst_ReadableViews::textsAreShownWithoutMnemonics()
{
    QFETCH(QString, name);
    const Opened opened;
    const auto *const view = opened.views->page->findChild<QAbstractItemView *>(name);
    const auto *const delegate = qobject_cast<QStyledItemDelegate *>(view->itemDelegate());
    QVERIFY(delegate);
    QCOMPARE(delegate->displayText("&Open && Close", QLocale()), "Open & Close");
}

void tst_ReadableViews::rowsAreSortedAsTheyAreShown()
{
    const Opened opened;
    QCOMPARE(
        itemsOf(opened.views->actionTree).mid(1, 14),
        QStringList({"Tools", "  Äpfel", "  Apple", "  &banana", "  More", "  Zoo", "  z&oom",
                     "Tools / More", "  Deep", "File", "  Open", "  &Quit", "  S&ave", "Edit"}));
}

void tst_ReadableViews::rowsOfASortedMenuStayAsTheyAre()
{
    const Opened opened([](QMainWindow *window) {
        QMenu *const menu = window->menuBar()->addMenu("Menu");
        for (const char *text : {"a", "b", "C", "d"})
            menu->addAction(text);
    });
    QCOMPARE(itemsOf(opened.views->actionTree).mid(1),
             QStringList({"Menu", "  a", "  b", "  C", "  d"}));
}

void tst_ReadableViews::categoriesAreInTheOrderOfTheMenus()
{
    const Opened opened;
    QStringList categories;
    for (int i = 1; i < opened.views->actionTree->topLevelItemCount(); ++i)
        categories << opened.views->actionTree->topLevelItem(i)->text(0);
    QCOMPARE(categories, QStringList({"Tools", "Tools / More", "File", "Edit", "Area", "Bar"}));
}

void tst_ReadableViews::theSeparatorIsCurrentAndFirst()
{
    // A category of the same text.
    const Opened opened([](QMainWindow *window) {
        window->menuBar()->addMenu("< S E P A R A T O R >")->addAction("Action");
        window->addToolBar("Bar");
    });
    QTreeWidget *const tree = opened.views->actionTree;
    QCOMPARE(itemsOf(tree),
             QStringList({"< S E P A R A T O R >", "< S E P A R A T O R >", "  Action"}));
    QCOMPARE(tree->indexOfTopLevelItem(tree->currentItem()), 0);
    opened.views->click(opened.views->rightButton);
    QCOMPARE(opened.views->currentRows(), QStringList("|"));
}

void tst_ReadableViews::rowsAreSortedForTheLanguage()
{
    const QLocale before;
    QLocale::setDefault(QLocale("sv"));
    QStringList shown;
    {
        const Opened opened;
        shown = itemsOf(opened.views->actionTree).mid(1, 7);
    }
    QLocale::setDefault(before);
    QCOMPARE(
        shown,
        QStringList({"Tools", "  Apple", "  &banana", "  More", "  Zoo", "  z&oom", "  Äpfel"}));
}

void tst_ReadableViews::rowsAreArrangedEachTimeTheyAreShown()
{
    const Opened opened;
    const QStringList before = itemsOf(opened.views->actionTree);
    opened.dialog->hide();
    QCOMPARE(opened.views->actionTree->topLevelItemCount(), 0);
    opened.dialog->show();
    QCOMPARE(itemsOf(opened.views->actionTree), before);
    // The editor sorts its toolbars when one is renamed.
    opened.views->actionTree->setCurrentItem(opened.item("Open"));
    opened.views->click(opened.views->newButton);
    opened.views->typeName("AAA");
    QCOMPARE(itemsOf(opened.views->actionTree), before);
    QCOMPARE(currentOf(opened.views->actionTree), "Open");
}

void tst_ReadableViews::rowsOfTheSameTextAddTheirOwnActions()
{
    const Opened opened([](QMainWindow *window) {
        QMenu *const menu = window->menuBar()->addMenu("Menu");
        for (const char *name : {"first", "second", "third"}) {
            QAction *const action = menu->addAction("&Same");
            action->setObjectName(name);
            action->setStatusTip(name);
            menu->addAction(QString("Between ") + name);
        }
        window->addToolBar("Bar")->setObjectName("bar");
    });
    QTreeWidgetItem *const menu = opened.item("Menu");
    QStringList tips;
    for (int i = 0; i < menu->childCount(); ++i) {
        if (menu->child(i)->text(0) != "&Same")
            continue;
        tips << toolTipOf(*opened.views, menu->child(i));
        opened.views->actionTree->setCurrentItem(menu->child(i));
        opened.views->click(opened.views->rightButton);
    }
    QCOMPARE(tips, QStringList({"first", "second", "third"}));
    QTest::mouseClick(opened.dialog->okButton(), Qt::LeftButton);
    QCOMPARE(opened.program.content("bar"), "first second third");
    letTheKitFollow();
}

void tst_ReadableViews::shortcutsAreAtTheEndOfTheRow_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("selected");
    QTest::newRow("left to right") << false << false;
    QTest::newRow("right to left") << true << false;
    QTest::newRow("selected") << false << true;
}

void tst_ReadableViews::shortcutsAreAtTheEndOfTheRow()
{
    QFETCH(bool, mirrored);
    QFETCH(bool, selected);
    if (mirrored)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const Opened opened([](QMainWindow *window) {
        QMenu *const menu = window->menuBar()->addMenu("Menu");
        menu->addAction("With")->setShortcut(QKeySequence("Ctrl+W"));
        menu->addAction("Without");
    });
    QTreeWidget *const tree = opened.views->actionTree;
    tree->expandAll();
    const auto inkAtTheEnd = [&](const QString &text) {
        if (selected)
            tree->setCurrentItem(opened.item(text));
        const QImage row = pictureOf(tree, tree->visualItemRect(opened.item(text)));
        return mirrored ? inkBetween(row, 2, 60)
                        : inkBetween(row, row.width() - 60, row.width() - 2);
    };
    QVERIFY2(inkAtTheEnd("With") > 20, qPrintable(QString::number(inkAtTheEnd("With"))));
    QCOMPARE(inkAtTheEnd("Without"), 0);
}

void tst_ReadableViews::aNarrowRowHasNoShortcut()
{
    const Opened opened([](QMainWindow *window) {
        QMenu *const menu = window->menuBar()->addMenu("Menu");
        menu->addAction("Row");
        menu->addAction("Row")->setShortcut(QKeySequence("Ctrl+W"));
        menu->addAction("Row " + QString(50, 'W'))->setShortcut(QKeySequence("Ctrl+W"));
    });
    const QTreeWidget *const tree = opened.views->actionTree;
    const auto picture = [&](int row, int width) {
        QImage image(width, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.initFrom(tree);
        option.widget = tree;
        option.rect = image.rect();
        const QModelIndex menu = tree->model()->index(1, 0);
        tree->itemDelegate()->paint(&painter, option, tree->model()->index(row, 0, menu));
        return image;
    };
    QCOMPARE(picture(1, 60), picture(0, 60));
    QVERIFY(picture(1, 200) != picture(0, 200));
    // The text makes room.
    const QRect end(140, 0, 60, 20);
    QCOMPARE(picture(2, 200).copy(end), picture(1, 200).copy(end));
}

void tst_ReadableViews::rowsAreExplained_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("statusTip");
    QTest::addColumn<QString>("shown");
    QTest::newRow("neither") << ""
                             << ""
                             << "";
    QTest::newRow("tool tip") << "Opens a file"
                              << ""
                              << "Opens a file";
    QTest::newRow("status tip") << ""
                                << "Opens a document"
                                << "Opens a document";
    QTest::newRow("both") << "Opens a file"
                          << "Opens a document"
                          << "Opens a document";
    QTest::newRow("the text again") << "Open"
                                    << ""
                                    << "";
}

void tst_ReadableViews::rowsAreExplained()
{
    QFETCH(QString, toolTip);
    QFETCH(QString, statusTip);
    const Opened opened([&](QMainWindow *window) {
        QAction *const action = window->menuBar()->addMenu("Menu")->addAction("&Open…");
        action->setToolTip(toolTip);
        action->setStatusTip(statusTip);
    });
    QTEST(toolTipOf(*opened.views, opened.item("&Open…")), "shown");
    QCOMPARE(toolTipOf(*opened.views, opened.item("Menu")), opened.views->actionTree->toolTip());
}

void tst_ReadableViews::actionsThatAreGoneHaveNoExplanation()
{
    Opened opened([](QMainWindow *window) {
        QMenu *const menu = window->menuBar()->addMenu("Menu");
        QAction *const action = menu->addAction("Gone");
        action->setObjectName("gone");
        action->setStatusTip("Says more");
        action->setShortcut(QKeySequence("Ctrl+W"));
        menu->addAction("Stays");
    });
    QCOMPARE(toolTipOf(*opened.views, opened.item("Gone")), "Says more");
    delete opened.program.action("gone");
    QCOMPARE(toolTipOf(*opened.views, opened.item("Gone")), opened.views->actionTree->toolTip());
    opened.views->actionTree->grab();
}

void tst_ReadableViews::colorsContrast_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("background");
    for (const QColor &background :
         {QColor(Qt::white), QColor(Qt::black), QColor(0x2b, 0x2b, 0x2b), QColor(0x77, 0x77, 0x77),
          QColor(Qt::yellow), QColor(Qt::blue), QColor(0, 0x80, 0)}) {
        for (const QColor &color : {QColor(Qt::darkGreen), QColor(Qt::red), QColor(Qt::white)})
            QTest::newRow(qPrintable(color.name() + " on " + background.name()))
                << color << background;
    }
}

void tst_ReadableViews::colorsContrast()
{
    QFETCH(QColor, color);
    QFETCH(QColor, background);
    const QColor readable = ReadableDelegate::readable(color, background);
    QVERIFY2(contrast(readable, background) >= 4.5, qPrintable(readable.name()));
}

void tst_ReadableViews::colorsThatContrastStay()
{
    QCOMPARE(ReadableDelegate::readable(QColor(Qt::darkGreen), QColor(Qt::white)),
             QColor(Qt::darkGreen));
    // No farther from the color than needed.
    const QColor lighter = ReadableDelegate::readable(QColor(Qt::darkGreen), QColor(Qt::black));
    QVERIFY(lighter != QColor(Qt::white));
    QVERIFY(lighter.green() > lighter.red());
}

void tst_ReadableViews::toolBarsAreReadableInEachPalette_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("dark") << QColor(0x23, 0x26, 0x29) << QColor(0xfc, 0xfc, 0xfc);
    QTest::newRow("high contrast") << QColor(Qt::black) << QColor(Qt::yellow);
}

// The color of the letters is that with the highest contrast. Their edges are paler.
void tst_ReadableViews::toolBarsAreReadableInEachPalette()
{
    QFETCH(QColor, base);
    QFETCH(QColor, text);
    const QPalette before = QApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    QApplication::setPalette(palette);
    double best = 0;
    {
        const Opened opened;
        QListWidget *const list = opened.views->toolBarList;
        QCOMPARE(list->item(0)->foreground().color(), QColor(Qt::darkGreen));
        list->setCurrentItem(nullptr);
        const QImage row = pictureOf(list, list->visualItemRect(list->item(0)));
        QCOMPARE(row.pixelColor(row.width() / 2, 0), base);
        for (int x = 0; x < row.width(); ++x) {
            for (int y = 0; y < row.height(); ++y)
                best = qMax(best, contrast(row.pixelColor(x, y), base));
        }
    }
    QApplication::setPalette(before);
    QVERIFY2(best >= 4.4, qPrintable(QString::number(best)));
}

void tst_ReadableViews::theTitleSaysWhatTheDialogIs()
{
    const Opened opened;
    QCOMPARE(opened.dialog->windowTitle(), "Customize Toolbars");
}

void tst_ReadableViews::theRibbonTabIsHidden()
{
    const Opened opened;
    const QTabWidget *const tabs = opened.dialog->findChild<QTabWidget *>();
    QCOMPARE(tabs->count(), 1);
    QVERIFY(!tabs->tabBar()->isVisible());
    // The dialog still calls its page.
    const QWidget *const ribbon = opened.dialog->findChild<RyCRibbonWidget *>();
    QVERIFY(ribbon);
    QVERIFY(!ribbon->isVisible());
    QTest::mouseClick(opened.dialog->applyButton(), Qt::LeftButton);
    QCOMPARE(opened.program.customizations, 1);
}

void tst_ReadableViews::anEmptyToolBarSaysWhatToDo()
{
    const Opened opened;
    const QLabel *const hint = opened.dialog->findChild<QLabel *>("emptyToolBarHint");
    QVERIFY(hint);
    QVERIFY(!hint->isVisible());
    opened.views->click(opened.views->newButton);
    opened.views->typeName("Empty");
    QVERIFY(hint->isVisible());
    QCOMPARE(hint->text(), "This toolbar is empty. Double-click an action to add it.");
    opened.views->click(opened.views->rightButton);
    QVERIFY(!hint->isVisible());
    opened.views->click(opened.views->leftButton);
    QVERIFY(hint->isVisible());
    opened.views->click(opened.views->toolBarList, "Bar");
    QVERIFY(!hint->isVisible());
    opened.views->click(opened.views->toolBarList, "Empty");
    QVERIFY(hint->isVisible());
    opened.views->toolBarList->setCurrentItem(nullptr);
    QVERIFY(!hint->isVisible());
}

void tst_ReadableViews::anEmptyDefaultToolBarSaysWhatToDo()
{
    const Opened opened([](QMainWindow *window) {
        window->menuBar()->addMenu("Menu")->addAction("Action");
        window->addToolBar("Bar");
    });
    const QLabel *const hint = opened.dialog->findChild<QLabel *>("emptyToolBarHint");
    QVERIFY(hint->isVisible());
    opened.views->click(opened.views->rightButton);
    QVERIFY(!hint->isVisible());
    opened.dialog->RestoreDefaultButton()->click();
    opened.dialog->findChild<QMessageBox *>()->defaultButton()->click();
    QVERIFY(hint->isVisible());
}

void tst_ReadableViews::arrowsFollowTheDirection()
{
    const Opened opened;
    const auto picture = [](const QToolButton *button) { return button->icon().cacheKey(); };
    const qint64 back = picture(opened.views->leftButton);
    const qint64 forward = picture(opened.views->rightButton);
    QVERIFY(back != forward);
    opened.dialog->setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(picture(opened.views->leftButton), forward);
    QCOMPARE(picture(opened.views->rightButton), back);
    opened.dialog->setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(picture(opened.views->leftButton), back);
    QCOMPARE(picture(opened.views->rightButton), forward);
}

void tst_ReadableViews::theDialogMayBeDeletedAtAnyTime()
{
    Opened opened;
    delete opened.dialog;
    opened.dialog = opened.program.openDialog();
    QVERIFY(opened.dialog);
    opened.dialog->hide();
    delete opened.dialog;
    opened.program.end();
}

QTEST_MAIN(tst_ReadableViews)
#include "tst_readableviews.moc"
