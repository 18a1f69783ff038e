// SPDX-License-Identifier: MIT

#include "fuzzhost.h"

#include "host.h"
#include "texts.h"

#include <QCoreApplication>
#include <QMenu>

FuzzHost::FuzzHost(int shape)
    : unmanaged(window.addToolBar("x"))
    , m_shape(shape)
{
    const auto count = [this] { ++signalsEmitted; };
    QObject::connect(&manager, &RyToolBarManager::toolBarCreated, count);
    QObject::connect(&manager, &RyToolBarManager::toolBarRemoved, count);
    QObject::connect(&manager, &RyToolBarManager::toolBarChanged, count);
    manager.setMainWindow(&window);
    unmanaged->setObjectName("x");
    for (const char *each : {"a", "b", "c", "d", "ä€"})
        registered(QString(each));
    action("u", "U");
    fill(unmanaged, "a | u");
    switch (shape) {
    case Usual:
        makeUsual();
        break;
    case Nameless:
        makeNameless();
        break;
    case Doubles:
        makeDoubles();
        break;
    case NoMainWindow:
        makeUsual();
        manager.setMainWindow(nullptr);
        break;
    case ManyCustomToolBars:
        makeManyCustomToolBars();
        break;
    case SharedSeparators:
        makeSharedSeparators();
        break;
    case NumbersWithGaps:
        makeNumbersWithGaps();
        break;
    default:
        break;
    }
    rememberToolBars();
}

void FuzzHost::rememberToolBars()
{
    const auto contents = manager.toolBarsActions();
    for (auto it = contents.cbegin(); it != contents.cend(); ++it)
        m_toolBars.insert(it.key(),
                          ToolBar{it.key()->objectName(), it.key()->windowTitle(), it.value()});
}

bool FuzzHost::reset()
{
    // Nobody can bring a separator of the host's own back.
    if (m_shape == SharedSeparators && separators.contains(nullptr))
        return false;
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (!m_toolBars.contains(toolBar))
            manager.deleteToolBar(toolBar);
    }
    for (auto it = m_toolBars.cbegin(); it != m_toolBars.cend(); ++it) {
        it.key()->setObjectName(it->objectName);
        it.key()->setWindowTitle(it->title);
        manager.setToolBar(it.key(), it->content);
    }
    QCoreApplication::sendPostedEvents();
    return true;
}

QAction *FuzzHost::action(const QString &objectName, const QString &text)
{
    QAction *const made = new QAction(text, &window);
    made->setObjectName(objectName);
    return made;
}

QAction *FuzzHost::registered(const QString &objectName)
{
    return registered(objectName, objectName.toUpper());
}

QAction *FuzzHost::registered(const QString &objectName, const QString &text)
{
    QAction *const made = action(objectName, text);
    manager.addAction(made, "A");
    return made;
}

// Puts the actions of these objectNames or texts onto a toolbar; "|" is a separator.
void FuzzHost::fill(QToolBar *toolBar, const char *content)
{
    const auto actions = list(content);
    for (QAction *each : actions) {
        if (each)
            toolBar->addAction(each);
        else
            toolBar->addSeparator();
    }
}

QList<QAction *> FuzzHost::list(const char *content)
{
    QList<QAction *> actions;
    const QStringList names = words(content);
    const auto known = window.findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QString &each : names) {
        QAction *found = nullptr;
        for (QAction *one : known) {
            const QString shown = one->objectName().isEmpty() ? one->text() : one->objectName();
            if (!found && shown == each)
                found = one;
        }
        actions << found;
    }
    return actions;
}

void FuzzHost::addDefaultToolBars(const QStringList &names, const QStringList &titles,
                                  const QList<const char *> &contents)
{
    QList<QToolBar *> made;
    for (int i = 0; i < names.size(); ++i)
        made << window.addToolBar(QString());
    made = byAddress(made);
    for (int i = 0; i < names.size(); ++i) {
        made.at(i)->setObjectName(names.at(i));
        made.at(i)->setWindowTitle(titles.at(i));
        fill(made.at(i), contents.at(i));
    }
    for (QToolBar *toolBar : std::as_const(made)) {
        manager.addDefaultToolBar(toolBar, "B");
        const auto standing = toolBar->actions();
        for (QAction *each : standing) {
            if (each->isSeparator() && !separators.contains(each))
                separators << each;
        }
    }
}

void FuzzHost::addCustomToolBars(const QStringList &names, const QStringList &titles,
                                 const QList<const char *> &contents)
{
    QList<QToolBar *> made;
    for (int i = 0; i < names.size(); ++i)
        made << manager.createToolBar(QString());
    made = byAddress(made);
    for (int i = 0; i < names.size(); ++i) {
        made.at(i)->setObjectName(names.at(i));
        made.at(i)->setWindowTitle(titles.at(i));
        manager.setToolBar(made.at(i), list(contents.at(i)));
    }
}

void FuzzHost::makeUsual()
{
    addDefaultToolBars(words("e f v"), words("E F V"), {"| | c", "a | b", ""});
    addCustomToolBars(words("_Custom_Toolbar_1 m"), words("M M2"), {"| a d", ""});
    manager.setToolBar(manager.toolBarByName("e"), list("c a | ä€"));
}

// Without objectNames, so that texts and titles replace them.
void FuzzHost::makeNameless()
{
    registered(QString(), "T");
    registered(QString(), "S");
    addDefaultToolBars({QString(), "f", QString()}, words("N F P"), {"T | a", "S b", "| c"});
    addCustomToolBars(words("m"), {QString()}, {"T b"});
    manager.setToolBar(manager.toolBarByName("f"), list("S | T b"));
}

// Names that several things have, that are empty or that are the titles and texts of others. What
// is saved of the toolbar without name and title goes to the one that has only a title, what is
// saved of that one to the second "o", and what is saved of that one to the first.
void FuzzHost::makeDoubles()
{
    QAction *const second = registered("a", "T");
    QAction *const empty = registered(QString(), QString());
    QAction *const shadowed = registered(QString(), "a");
    registered("g", "T");
    registered(QString(), "T");
    addDefaultToolBars({"o", "o", QString(), QString(), "f", "f"},
                       {"G", "t", "t", QString(), "F", "F"},
                       {"a |", "b | T", "g", "| |", "c", "d"});
    addCustomToolBars({"c", "c", "f", "m", QString(), ""}, {"C", "C2", "F", QString(), "M", "o"},
                      {"a", "b | g", "c", "|", "d T", "a"});
    manager.setToolBar(manager.toolBarByName("m"), list("a |") << second << empty << shadowed);
}

void FuzzHost::makeManyCustomToolBars()
{
    addDefaultToolBars(words("f"), words("F"), {"a |"});
    QStringList names;
    QStringList titles;
    QList<const char *> contents;
    for (int i = 1; i <= 24; ++i) {
        names << "_Custom_Toolbar_" + QString::number(i);
        titles << QString::number(i % 7);
        contents << (i % 3 ? "b" : "| a |");
    }
    addCustomToolBars(names, titles, contents);
}

// Separators of the host on several toolbars and in a menu, and an action that became a separator
// after it was registered.
void FuzzHost::makeSharedSeparators()
{
    QAction *const later = registered("s");
    QAction *const shared = action("h", QString());
    QAction *const elsewhere = action("i", QString());
    for (QAction *each : {shared, elsewhere})
        each->setSeparator(true);
    QMenu *const menu = new QMenu(&window);
    menu->addAction(elsewhere);
    unmanaged->addAction(elsewhere);
    addDefaultToolBars(words("e f v"), words("E F V"), {"a h s | b", "h i c", "i | h"});
    later->setSeparator(true);
    addCustomToolBars(words("m"), words("M"), {"s | a"});
}

void FuzzHost::makeNumbersWithGaps()
{
    addDefaultToolBars(words("_Custom_Toolbar_2 f"), words("F2 F"), {"a |", "b"});
    addCustomToolBars(words("_Custom_Toolbar_1 _Custom_Toolbar_4 _Custom_Toolbar_007 "
                            "_Custom_Toolbar_2147483647 _Custom_Toolbar_ _Custom_Toolbar_6"),
                      words("A B C D E F"), {"a", "| b", "", "c d", "|", "a"});
}
