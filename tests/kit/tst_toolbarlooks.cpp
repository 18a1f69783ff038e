// SPDX-License-Identifier: MIT

#include "kitwindow.h"
#include "openedmenu.h"
#include "testcase.h"

#include <QProxyStyle>
#include <QToolButton>
#include <QtTest>

/*
 * What becomes of the looks and the lock that users choose in the menu of a toolbar.
 */
class tst_ToolBarLooks : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aChosenSizeIsKept_data();
    void aChosenSizeIsKept();
    void aChosenTextPositionIsKept_data();
    void aChosenTextPositionIsKept();
    void eachToolBarHasItsOwnLook();
    void aLookIsStoredSomeTimeLater();
    void theChoiceIsMarked();
    void aChoiceCanBeTakenBack();
    void otherToolBarsFollowTheWindow();
    void aToolBarFollowsTheWindowAgain();
    void aChoiceHoldsEvenIfTheWindowHasTheSame();
    void aToolBarGetsBackWhatTheProgramHadSet();
    void whatTheProgramSetsLaterWins();
    void whatTheProgramSetsLaterIsTakenBackTo();
    void aProgramThatStartsDifferentlyWins_data();
    void aProgramThatStartsDifferentlyWins();
    void theSizeOfTheStyleMayChange();
    void buttonsGetBackWhatTheProgramHadSet();
    void newButtonsHaveTheLook();
    void customToolBarsHaveLooks();
    void toolBarsThatComeLaterHaveTheirLook();
    void looksOfAbsentToolBarsAreKept();
    void everythingIsLocked();
    void aLockIsTakenBack();
    void aToolBarThatTheProgramHasFixedStaysSo();
    void toolBarsThatComeLaterAreLocked();
    void aProgramThatUnlocksWins();
    void aProgramThatLocksAllHasNoEntry();
    void aProgramThatStartsLockedWins();
    void restoreDefaultsTakesLooksBack();
    void anEmptyLayoutTakesLooksBack();
    void resetTakesTheLookBack();
    void windowsWithTheSameKeyFollow();
    void withoutToolBarMenusNothingIsApplied();
};

namespace {

void choose(const KitProgram &program, const QString &toolBar, const QString &text)
{
    QVERIFY2(chooseInMenu(program.toolBar(toolBar), nullptr, text), qPrintable(text));
}

int sizeOf(const KitProgram &program, const QString &toolBar)
{
    return program.toolBar(toolBar)->iconSize().width();
}

Qt::ToolButtonStyle styleOf(const KitProgram &program, const QString &toolBar)
{
    return program.toolBar(toolBar)->toolButtonStyle();
}

QToolButton *button(const KitProgram &program, const QString &toolBar, const QString &action)
{
    return qobject_cast<QToolButton *>(
        program.toolBar(toolBar)->widgetForAction(program.action(action)));
}

QStringList movable(const KitProgram &program)
{
    QStringList names;
    const auto toolBars = program.window()->findChildren<QToolBar *>();
    for (const QToolBar *toolBar : toolBars) {
        if (toolBar->isMovable())
            names << toolBar->objectName();
    }
    return names;
}

// The texts that are checked in a submenu.
QStringList chosen(const KitProgram &program, const QString &submenu)
{
    const OpenedMenu menu(program.toolBar("file"), nullptr);
    return OpenedMenu::texts(menu.submenu(submenu)).filter("[x]");
}

void buildWithPlugin(QMainWindow *window)
{
    KitProgram::buildDefault(window);
    window->addToolBar("Plugin")->setObjectName("plugin");
}

const QStringList AsProgrammed = {"[x] As the program has it"};

} // namespace

void tst_ToolBarLooks::aChosenSizeIsKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("size");
    QTest::newRow("small") << "Small (16)" << 16;
    QTest::newRow("medium") << "Medium (22)" << 22;
    QTest::newRow("large") << "Large (32)" << 32;
    QTest::newRow("very large") << "Very large (48)" << 48;
}

void tst_ToolBarLooks::aChosenSizeIsKept()
{
    QFETCH(QString, text);
    QFETCH(int, size);
    KitProgram program;
    program.start();
    choose(program, "file", text);
    QCOMPARE(program.toolBar("file")->iconSize(), QSize(size, size));
    program.start();
    QCOMPARE(program.toolBar("file")->iconSize(), QSize(size, size));
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonIconOnly);
    QVERIFY(!program.kit()->isDefault());
}

void tst_ToolBarLooks::aChosenTextPositionIsKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::newRow("icons") << "Icons only" << Qt::ToolButtonIconOnly;
    QTest::newRow("text") << "Text only" << Qt::ToolButtonTextOnly;
    QTest::newRow("beside") << "Text beside icons" << Qt::ToolButtonTextBesideIcon;
    QTest::newRow("under") << "Text under icons" << Qt::ToolButtonTextUnderIcon;
}

void tst_ToolBarLooks::aChosenTextPositionIsKept()
{
    QFETCH(QString, text);
    QFETCH(Qt::ToolButtonStyle, style);
    const auto build = [](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->setToolButtonStyle(Qt::ToolButtonFollowStyle);
    };
    KitProgram program;
    program.start(build);
    const int size = sizeOf(program, "file");
    choose(program, "file", text);
    QCOMPARE(styleOf(program, "file"), style);
    program.start(build);
    QCOMPARE(styleOf(program, "file"), style);
    QCOMPARE(sizeOf(program, "file"), size);
    QVERIFY(!program.kit()->isDefault());
}

void tst_ToolBarLooks::eachToolBarHasItsOwnLook()
{
    KitProgram program;
    program.start();
    const int size = sizeOf(program, "edit");
    choose(program, "file", "Very large (48)");
    choose(program, "edit", "Text only");
    choose(program, "file", "Text under icons");
    program.start();
    QCOMPARE(sizeOf(program, "file"), 48);
    QCOMPARE(sizeOf(program, "edit"), size);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(styleOf(program, "edit"), Qt::ToolButtonTextOnly);
}

void tst_ToolBarLooks::aLookIsStoredSomeTimeLater()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Large (32)");
    QTRY_VERIFY(program.stored().contains(R"("file":{"iconSize":32,"iconSizeByProgram":0})"));
    choose(program, "file", "Text only");
    QTRY_VERIFY(
        program.stored().contains(R"("textPosition":"text","textPositionByProgram":"icons")"));
    choose(program, "file", "Lock toolbars");
    QTRY_VERIFY(program.stored().contains(R"("locked":true)"));
    QCOMPARE(program.layoutChanges, 3);
}

void tst_ToolBarLooks::theChoiceIsMarked()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Small (16)");
    choose(program, "file", "Text only");
    QCOMPARE(chosen(program, "Icon size"), QStringList("[x] Small (16)"));
    QCOMPARE(chosen(program, "Text position"), QStringList("[x] Text only"));
    const OpenedMenu other(program.toolBar("edit"), nullptr);
    QCOMPARE(OpenedMenu::texts(other.submenu("Icon size")).filter("[x]"), AsProgrammed);
}

void tst_ToolBarLooks::aChoiceCanBeTakenBack()
{
    KitProgram program;
    program.start();
    const int size = sizeOf(program, "file");
    const auto takeBack = [&](const QString &submenu) {
        OpenedMenu menu(program.toolBar("file"), nullptr);
        menu.submenu(submenu)->actions().constFirst()->trigger();
    };
    choose(program, "file", "Large (32)");
    choose(program, "file", "Small (16)");
    choose(program, "file", "Text only");
    choose(program, "file", "Text under icons");
    takeBack("Icon size");
    QCOMPARE(sizeOf(program, "file"), size);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextUnderIcon);
    takeBack("Text position");
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonIconOnly);
    QCOMPARE(chosen(program, "Text position"), AsProgrammed);
    QVERIFY(program.kit()->isDefault());
    program.start();
    QCOMPARE(sizeOf(program, "file"), size);
}

void tst_ToolBarLooks::otherToolBarsFollowTheWindow()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Large (32)");
    choose(program, "file", "Text only");
    program.window()->setIconSize(QSize(40, 40));
    program.window()->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QCOMPARE(sizeOf(program, "edit"), 40);
    QCOMPARE(styleOf(program, "edit"), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(sizeOf(program, "file"), 32);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextOnly);
}

void tst_ToolBarLooks::aToolBarFollowsTheWindowAgain()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Large (32)");
    choose(program, "file", "Text only");
    program.window()->setIconSize(QSize(40, 40));
    program.window()->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    choose(program, "file", "Reset this toolbar");
    QCOMPARE(sizeOf(program, "file"), 40);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextBesideIcon);
    program.window()->setIconSize(QSize(20, 20));
    for (const auto style : {Qt::ToolButtonTextUnderIcon, Qt::ToolButtonIconOnly}) {
        program.window()->setToolButtonStyle(style);
        QCOMPARE(styleOf(program, "file"), style);
    }
    QCOMPARE(sizeOf(program, "file"), 20);
    program.toolBar("file")->setToolButtonStyle(Qt::ToolButtonTextOnly);
    program.window()->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextOnly);
}

void tst_ToolBarLooks::aChoiceHoldsEvenIfTheWindowHasTheSame()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Text only");
    choose(program, "file", "Reset this toolbar");
    choose(program, "file", "Icons only");
    QCOMPARE(program.window()->toolButtonStyle(), Qt::ToolButtonIconOnly);
    program.window()->setToolButtonStyle(Qt::ToolButtonTextOnly);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonIconOnly);
    QCOMPARE(styleOf(program, "edit"), Qt::ToolButtonTextOnly);
}

void tst_ToolBarLooks::aToolBarGetsBackWhatTheProgramHadSet()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->findChild<QToolBar *>("file")->setIconSize(QSize(50, 40));
        window->findChild<QToolBar *>("file")->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    });
    choose(program, "file", "Large (32)");
    choose(program, "file", "Small (16)");
    choose(program, "file", "Text only");
    choose(program, "file", "Icons only");
    choose(program, "file", "Reset this toolbar");
    QCOMPARE(program.toolBar("file")->iconSize(), QSize(50, 40));
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextUnderIcon);
    program.window()->setIconSize(QSize(20, 20));
    program.window()->setToolButtonStyle(Qt::ToolButtonTextOnly);
    QCOMPARE(program.toolBar("file")->iconSize(), QSize(50, 40));
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextUnderIcon);
}

void tst_ToolBarLooks::whatTheProgramSetsLaterWins()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Large (32)");
    choose(program, "file", "Text only");
    program.toolBar("file")->setIconSize(QSize(40, 40));
    program.toolBar("file")->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    QCOMPARE(chosen(program, "Icon size"), AsProgrammed);
    QCOMPARE(chosen(program, "Text position"), AsProgrammed);
    choose(program, "file", "Small (16)");
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextUnderIcon);
    program.toolBar("file")->setIconSize(QSize(40, 40));
    choose(program, "file", "Text beside icons");
    QCOMPARE(sizeOf(program, "file"), 40);
    QVERIFY(program.kit()->restoreLayout(QByteArray()));
    QCOMPARE(sizeOf(program, "file"), 40);
}

void tst_ToolBarLooks::whatTheProgramSetsLaterIsTakenBackTo()
{
    KitProgram program;
    program.start();
    button(program, "file", "new")->setIconSize(QSize(64, 64));
    button(program, "file", "new")->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    choose(program, "file", "Large (32)");
    choose(program, "file", "Text only");
    program.toolBar("file")->setIconSize(QSize(40, 40));
    program.toolBar("file")->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    choose(program, "file", "Large (32)");
    choose(program, "file", "Text only");
    choose(program, "file", "Reset this toolbar");
    QCOMPARE(sizeOf(program, "file"), 40);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button(program, "file", "new")->iconSize(), QSize(40, 40));
    QCOMPARE(button(program, "file", "new")->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

void tst_ToolBarLooks::aProgramThatStartsDifferentlyWins_data()
{
    QTest::addColumn<bool>("ofWindow");
    QTest::newRow("window") << true;
    QTest::newRow("toolbar") << false;
}

void tst_ToolBarLooks::aProgramThatStartsDifferentlyWins()
{
    QFETCH(bool, ofWindow);
    const auto buildWith = [ofWindow](int size, Qt::ToolButtonStyle style) {
        return [=](QMainWindow *window) {
            KitProgram::buildDefault(window);
            QToolBar *const toolBar = window->findChild<QToolBar *>("file");
            if (ofWindow) {
                window->setIconSize(QSize(size, size));
                window->setToolButtonStyle(style);
            } else {
                toolBar->setIconSize(QSize(size, size));
                toolBar->setToolButtonStyle(style);
            }
        };
    };
    KitProgram program;
    program.start(buildWith(40, Qt::ToolButtonTextOnly));
    choose(program, "file", "Small (16)");
    choose(program, "file", "Text beside icons");
    program.start(buildWith(41, Qt::ToolButtonTextOnly));
    QCOMPARE(sizeOf(program, "file"), 41);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextBesideIcon);
    choose(program, "file", "Large (32)");
    program.start(buildWith(41, Qt::ToolButtonTextUnderIcon));
    QCOMPARE(sizeOf(program, "file"), 32);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextUnderIcon);
    program.start(buildWith(40, Qt::ToolButtonTextUnderIcon));
    QVERIFY(program.kit()->isDefault());
}

// Another desktop is not another program.
void tst_ToolBarLooks::theSizeOfTheStyleMayChange()
{
    class LargeStyle : public QProxyStyle
    {
        int pixelMetric(PixelMetric metric, const QStyleOption *option,
                        const QWidget *widget) const override
        {
            return metric == PM_ToolBarIconSize ? 60
                                                : QProxyStyle::pixelMetric(metric, option, widget);
        }
    };
    KitProgram program;
    program.start();
    choose(program, "file", "Large (32)");
    LargeStyle style;
    program.makeWindow = [&] {
        QMainWindow *const window = new QMainWindow;
        window->setStyle(&style);
        window->setIconSize(QSize());
        return window;
    };
    program.start();
    QCOMPARE(sizeOf(program, "edit"), 60);
    QCOMPARE(sizeOf(program, "file"), 32);
    program.end();
}

void tst_ToolBarLooks::buttonsGetBackWhatTheProgramHadSet()
{
    KitProgram program;
    program.start();
    button(program, "file", "new")->setIconSize(QSize(64, 64));
    button(program, "file", "open")->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const char *text : {"Large (32)", "Small (16)", "Text only", "Icons only"})
        choose(program, "file", text);
    QCOMPARE(button(program, "file", "new")->iconSize(), QSize(16, 16));
    delete program.action("save");
    choose(program, "file", "Reset this toolbar");
    QCOMPARE(button(program, "file", "new")->iconSize(), QSize(64, 64));
    QCOMPARE(button(program, "file", "new")->toolButtonStyle(), Qt::ToolButtonIconOnly);
    QCOMPARE(button(program, "file", "open")->iconSize(), program.toolBar("file")->iconSize());
    QCOMPARE(button(program, "file", "open")->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
}

void tst_ToolBarLooks::newButtonsHaveTheLook()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Large (32)");
    choose(program, "file", "Text only");
    program.edit("file", "paste open");
    QCOMPARE(button(program, "file", "paste")->iconSize(), QSize(32, 32));
    QCOMPARE(button(program, "file", "paste")->toolButtonStyle(), Qt::ToolButtonTextOnly);
}

void tst_ToolBarLooks::customToolBarsHaveLooks()
{
    KitProgram program;
    program.start();
    const QString mine = program.create("Mine", "paste");
    const int size = sizeOf(program, mine);
    choose(program, mine, "Very large (48)");
    choose(program, mine, "Text only");
    program.start();
    QCOMPARE(sizeOf(program, mine), 48);
    QCOMPARE(styleOf(program, mine), Qt::ToolButtonTextOnly);
    OpenedMenu menu(program.toolBar(mine), nullptr);
    menu.submenu("Icon size")->actions().constFirst()->trigger();
    QCOMPARE(sizeOf(program, mine), size);
    menu.close();
    // Another one with that name is new.
    program.remove(mine);
    QCOMPARE(program.create("Another", "cut"), mine);
    QCOMPARE(styleOf(program, mine), Qt::ToolButtonIconOnly);
}

void tst_ToolBarLooks::toolBarsThatComeLaterHaveTheirLook()
{
    KitProgram program;
    program.start(buildWithPlugin);
    choose(program, "plugin", "Very large (48)");
    choose(program, "file", "Small (16)");
    program.start();
    program.toolBar("file")->setIconSize(QSize(40, 40));
    program.window()->addToolBar("Plugin")->setObjectName("plugin");
    letTheKitFollow();
    QCOMPARE(sizeOf(program, "plugin"), 48);
    QCOMPARE(sizeOf(program, "file"), 40);
}

void tst_ToolBarLooks::looksOfAbsentToolBarsAreKept()
{
    KitProgram program;
    program.start(buildWithPlugin);
    choose(program, "plugin", "Very large (48)");
    program.start();
    program.edit("file", "open");
    program.start(buildWithPlugin);
    QCOMPARE(sizeOf(program, "plugin"), 48);
}

void tst_ToolBarLooks::everythingIsLocked()
{
    KitProgram program;
    program.start();
    const QString mine = program.create("Mine", "paste");
    choose(program, "file", "Lock toolbars");
    QCOMPARE(movable(program), QStringList());
    const QString other = program.create("Other", "paste");
    QCOMPARE(movable(program), QStringList());
    program.start();
    QCOMPARE(movable(program), QStringList());
    QVERIFY(!program.kit()->isDefault());
    QVERIFY(OpenedMenu(program.toolBar("edit"), nullptr).entry("Lock toolbars")->isChecked());
    choose(program, "edit", "Lock toolbars");
    QCOMPARE(movable(program), QStringList({"file", "edit", mine, other}));
}

void tst_ToolBarLooks::aLockIsTakenBack()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Lock toolbars");
    choose(program, "edit", "Lock toolbars");
    QCOMPARE(movable(program), QStringList({"file", "edit"}));
    QVERIFY(program.kit()->isDefault());
    program.start();
    QCOMPARE(movable(program), QStringList({"file", "edit"}));
}

void tst_ToolBarLooks::aToolBarThatTheProgramHasFixedStaysSo()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        window->findChild<QToolBar *>("edit")->setMovable(false);
    });
    choose(program, "file", "Lock toolbars");
    QCOMPARE(movable(program), QStringList());
    choose(program, "file", "Lock toolbars");
    QCOMPARE(movable(program), QStringList("file"));
}

void tst_ToolBarLooks::toolBarsThatComeLaterAreLocked()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Lock toolbars");
    program.window()->addToolBar("Plugin")->setObjectName("plugin");
    letTheKitFollow();
    QCOMPARE(movable(program), QStringList());
}

void tst_ToolBarLooks::aProgramThatUnlocksWins()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Lock toolbars");
    program.toolBar("edit")->setMovable(true);
    QCOMPARE(movable(program), QStringList({"file", "edit"}));
    QVERIFY(program.kit()->isDefault());
    program.toolBar("edit")->setMovable(false);
    QCOMPARE(movable(program), QStringList("file"));
    program.toolBar("edit")->setMovable(true);
    program.start();
    QCOMPARE(movable(program), QStringList({"file", "edit"}));
}

void tst_ToolBarLooks::aProgramThatLocksAllHasNoEntry()
{
    KitProgram program;
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        for (QToolBar *toolBar : window->findChildren<QToolBar *>())
            toolBar->setMovable(false);
    });
    QVERIFY(!OpenedMenu(program.toolBar("file"), nullptr).entry("Lock toolbars"));
    program.toolBar("file")->setMovable(true);
    QVERIFY(OpenedMenu(program.toolBar("file"), nullptr).entry("Lock toolbars"));
}

void tst_ToolBarLooks::aProgramThatStartsLockedWins()
{
    KitProgram program;
    program.start();
    choose(program, "file", "Lock toolbars");
    program.start([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        for (QToolBar *toolBar : window->findChildren<QToolBar *>())
            toolBar->setMovable(false);
    });
    QVERIFY(program.kit()->isDefault());
    program.toolBar("file")->setMovable(true);
    QCOMPARE(movable(program), QStringList("file"));
}

void tst_ToolBarLooks::restoreDefaultsTakesLooksBack()
{
    KitProgram program;
    program.start();
    const int size = sizeOf(program, "file");
    for (const char *text : {"Large (32)", "Text only", "Lock toolbars"})
        choose(program, "file", text);
    program.restoreDefaults();
    QCOMPARE(sizeOf(program, "file"), size);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonIconOnly);
    QCOMPARE(movable(program), QStringList({"file", "edit"}));
    QVERIFY(program.kit()->isDefault());
    QVERIFY(!program.stored().contains("iconSize"));
}

void tst_ToolBarLooks::anEmptyLayoutTakesLooksBack()
{
    KitProgram program;
    program.start();
    const int size = sizeOf(program, "file");
    for (const char *text : {"Large (32)", "Text only", "Lock toolbars"})
        choose(program, "file", text);
    const QByteArray layout = program.kit()->saveLayout();
    QVERIFY(program.kit()->restoreLayout(QByteArray()));
    QCOMPARE(sizeOf(program, "file"), size);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonIconOnly);
    QCOMPARE(movable(program), QStringList({"file", "edit"}));
    QVERIFY(program.kit()->isDefault());
    QVERIFY(program.kit()->restoreLayout(layout));
    QCOMPARE(sizeOf(program, "file"), 32);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonTextOnly);
    QCOMPARE(movable(program), QStringList());
}

void tst_ToolBarLooks::resetTakesTheLookBack()
{
    KitProgram program;
    program.start();
    const int size = sizeOf(program, "file");
    choose(program, "edit", "Large (32)");
    choose(program, "file", "Text only");
    choose(program, "file", "Large (32)");
    choose(program, "file", "Lock toolbars");
    choose(program, "file", "Reset this toolbar");
    QCOMPARE(sizeOf(program, "file"), size);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonIconOnly);
    QCOMPARE(sizeOf(program, "edit"), 32);
    QCOMPARE(movable(program), QStringList());
    QVERIFY(!chooseInMenu(program.toolBar("file"), nullptr, "Reset this toolbar"));
}

void tst_ToolBarLooks::windowsWithTheSameKeyFollow()
{
    KitProgram program;
    program.start();
    KitProgram other;
    other.shareSettings(program);
    other.start();
    const int size = sizeOf(other, "edit");
    choose(other, "edit", "Small (16)");
    for (const char *text : {"Large (32)", "Text only", "Lock toolbars"})
        choose(program, "file", text);
    program.edit("file", "open");
    QCOMPARE(sizeOf(other, "file"), 32);
    QCOMPARE(sizeOf(other, "edit"), size);
    QCOMPARE(styleOf(other, "file"), Qt::ToolButtonTextOnly);
    QCOMPARE(movable(other), QStringList());
}

void tst_ToolBarLooks::withoutToolBarMenusNothingIsApplied()
{
    KitProgram program;
    program.start();
    const int size = sizeOf(program, "file");
    for (const char *text : {"Large (32)", "Text only", "Lock toolbars"})
        choose(program, "file", text);
    const QByteArray layout = program.kit()->saveLayout();
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.kit()->setFeatures(program.kit()->features() & ~RyToolBarKit::ToolBarMenus);
    });
    QCOMPARE(sizeOf(program, "file"), size);
    QCOMPARE(styleOf(program, "file"), Qt::ToolButtonIconOnly);
    QCOMPARE(movable(program), QStringList({"file", "edit"}));
    QCOMPARE(program.kit()->saveLayout(), layout);
}

QTEST_MAIN(tst_ToolBarLooks)
#include "tst_toolbarlooks.moc"
