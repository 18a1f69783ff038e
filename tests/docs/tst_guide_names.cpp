// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QMenu>
#include <QTabWidget>
#include <QtTest>

namespace {

//! [audit]
// The actions or the toolbars of a manager that have no name of their own.
template <typename Objects> QStringList nameProblems(const Objects &objects)
{
    QStringList found;
    QSet<QString> names;
    for (const auto *object : objects) {
        const QString name = object->objectName();
        if (name.isEmpty() || names.contains(name))
            found << name + QLatin1Char('/') + object->property("text").toString()
                    + object->property("windowTitle").toString();
        names.insert(name);
    }
    found.sort();
    return found;
}
//! [audit]

QStringList nameProblems(const RyToolBarManager &manager)
{
    return nameProblems(manager.actions()) + nameProblems(manager.toolBars());
}

QAction *createCommand(const char *name, const QString &text, QObject *parent)
{
    QAction *const action = new QAction(text, parent);
    action->setObjectName(QLatin1String(name));
    return action;
}

QAction *nameless(const char *text, Host *host)
{
    QAction *const action = new QAction(QLatin1String(text), &host->window);
    host->manager.addAction(action, QStringLiteral("Edit"));
    return action;
}

} // namespace

class tst_guide_names : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theAuditFindsNothingInAGoodHost();
    void theAuditFindsEveryProblem();
    void theActionOfAMenuNeedsAName();
    void aTranslatedTextLosesTheActionWithoutAName();
    void aTranslatedTextKeepsTheActionWithAName();
    void anActionWithNeitherComesBackAsASeparator();
    void ofTwoActionsOfOneNameOneIsLost();
    void theEditorShowsTheMnemonic();
};

void tst_guide_names::theAuditFindsNothingInAGoodHost()
{
    Host host;
    host.defaultToolBar(QStringLiteral("edit"), words("cut | copy"), QStringLiteral("Edit"));
    // An action may have the same name as a toolbar.
    host.manager.addAction(createCommand("edit", QStringLiteral("Edit"), &host.window),
                           QStringLiteral("Edit"));
    QCOMPARE(nameProblems(host.manager), QStringList());
}

void tst_guide_names::theAuditFindsEveryProblem()
{
    Host host;
    host.defaultToolBar(QStringLiteral("edit"), words("copy"), QStringLiteral("Edit"));
    host.defaultToolBar(QStringLiteral("twin"), QStringList(), QStringLiteral("Edit"))
        ->setObjectName(QStringLiteral("edit"));
    host.defaultToolBar(QString(), QStringList(), QStringLiteral("Edit"));
    nameless("Find", &host);
    nameless("&Copy", &host)->setObjectName(QStringLiteral("copy"));
    host.action(QStringLiteral("copy"))->setText(QStringLiteral("&Copy"));
    const QStringList problems = nameProblems(host.manager);
    QCOMPARE(problems.size(), 4);
    for (const char *problem : {"/Find", "copy/&Copy", "/"})
        QVERIFY2(problems.contains(QLatin1String(problem)), problem);
    QCOMPARE(problems.filter(QStringLiteral("edit/")).size(), 1);
}

// Designer names the menu, and not its action.
void tst_guide_names::theActionOfAMenuNeedsAName()
{
    Host host;
    QMenu menu(QStringLiteral("Panels"));
    menu.setObjectName(QStringLiteral("menuPanels"));
    host.manager.addAction(menu.menuAction(), QStringLiteral("View"));
    QCOMPARE(nameProblems(host.manager), QStringList(QStringLiteral("/Panels")));
    menu.menuAction()->setObjectName(menu.objectName());
    QCOMPARE(nameProblems(host.manager), QStringList());
    host.manager.removeAction(menu.menuAction());
}

void tst_guide_names::aTranslatedTextLosesTheActionWithoutAName()
{
    Host host;
    QAction *const find = nameless("Find", &host);
    QToolBar *const toolBar =
        host.defaultToolBar(QStringLiteral("edit"), words("cut"), QStringLiteral("Edit"));
    host.manager.setToolBar(toolBar, {find});
    const QByteArray state = host.manager.saveState(1);
    QCOMPARE(takeWarnings().size(), 1);

    host.manager.resetAllToolBars();
    find->setText(QStringLiteral("Suchen"));
    QVERIFY(host.manager.restoreState(state, 1));
    QCOMPARE(standingOn(toolBar), QStringList());
    QCOMPARE(takeWarnings().size(), 2);
}

void tst_guide_names::aTranslatedTextKeepsTheActionWithAName()
{
    Host host;
    QAction *const find = createCommand("find", QStringLiteral("Find"), &host.window);
    host.manager.addAction(find, QStringLiteral("Edit"));
    QToolBar *const toolBar =
        host.defaultToolBar(QStringLiteral("edit"), words("cut"), QStringLiteral("Edit"));
    host.manager.setToolBar(toolBar, {find});
    const QByteArray state = host.manager.saveState(1);

    host.manager.resetAllToolBars();
    find->setText(QStringLiteral("Suchen"));
    QVERIFY(host.manager.restoreState(state, 1));
    QCOMPARE(standingOn(toolBar), words("find"));
}

void tst_guide_names::anActionWithNeitherComesBackAsASeparator()
{
    Host host;
    QAction *const icon = nameless("", &host);
    QToolBar *const toolBar =
        host.defaultToolBar(QStringLiteral("edit"), words("cut"), QStringLiteral("Edit"));
    host.manager.setToolBar(toolBar, {icon});
    const QByteArray state = host.manager.saveState(1);
    QCOMPARE(takeWarnings().size(), 1);
    QVERIFY(host.manager.restoreState(state, 1));
    QCOMPARE(standingOn(toolBar), words("|"));
}

void tst_guide_names::ofTwoActionsOfOneNameOneIsLost()
{
    Host host;
    QAction *const first = createCommand("find", QStringLiteral("Find"), &host.window);
    QAction *const second = createCommand("find", QStringLiteral("Find Next"), &host.window);
    QToolBar *const toolBar =
        host.defaultToolBar(QStringLiteral("edit"), words("cut"), QStringLiteral("Edit"));
    host.manager.addAction(first, QStringLiteral("Edit"));
    host.manager.addAction(second, QStringLiteral("Edit"));
    host.manager.setToolBar(toolBar, {first, second});
    QVERIFY(host.manager.restoreState(host.manager.saveState(1), 1));
    QCOMPARE(standingOn(toolBar), words("find"));
}

void tst_guide_names::theEditorShowsTheMnemonic()
{
    Host host;
    host.manager.addAction(createCommand("open", QStringLiteral("&Open"), &host.window),
                           QStringLiteral("File"));
    RyCustomizedDialog dialog({&host.manager, nullptr});
    dialog.show();
    const EditorViews editor(&dialog);
    QVERIFY(itemNamed(editor.actionTree, QStringLiteral("&Open")));
}

QTEST_MAIN(tst_guide_names)
#include "tst_guide_names.moc"
