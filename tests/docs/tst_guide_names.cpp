// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QTabWidget>
#include <QtTest>

namespace {

//! [audit]
template <typename Object>
void auditName(const Object *object, const QString &shown, QSet<QString> *names,
               QStringList *problems)
{
    const QString what = QString::fromLatin1(object->metaObject()->className())
        + QStringLiteral(" \"") + (object->objectName().isEmpty() ? shown : object->objectName())
        + QStringLiteral("\" ");
    if (object->objectName().isEmpty())
        *problems << what + QStringLiteral("has no objectName");
    else if (names->contains(object->objectName()))
        *problems << what + QStringLiteral("is not the only one of that objectName");
    names->insert(object->objectName());
    if (shown.isEmpty())
        *problems << what + QStringLiteral("shows no text");
    if (shown.contains(QLatin1Char('&')))
        *problems << what + QStringLiteral("shows an \"&\"");
}

QStringList nameProblems(const RyToolBarManager &manager)
{
    QStringList problems;
    QSet<QString> names;
    for (const QAction *action : manager.actions()) {
        auditName(action, action->text(), &names, &problems);
        if (action->isSeparator())
            problems << QStringLiteral("a registered action has become a separator");
    }
    names.clear(); // an action and a toolbar may share a name
    for (const QToolBar *toolBar : manager.toolBars())
        auditName(toolBar, toolBar->windowTitle(), &names, &problems);
    problems.sort();
    return problems;
}
//! [audit]

//! [call]
void auditInDebugBuilds(const RyToolBarManager &manager)
{
#ifdef QT_NO_DEBUG
    Q_UNUSED(manager)
#else
    const QStringList problems = nameProblems(manager);
    for (const QString &problem : problems)
        qWarning("Toolbar layouts: %s", qPrintable(problem));
#endif
}
//! [call]

//! [name]
QAction *createCommand(const char *name, const QString &text, QObject *parent)
{
    QAction *const action = new QAction(text, parent);
    action->setObjectName(QLatin1String(name)); // unique, never translated, never changed
    return action;
}
//! [name]

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
    void theAuditWarnsInDebugBuilds();
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
    host.defaultToolBar(QStringLiteral("edit"), words("cut copy"), QStringLiteral("Edit"));
    host.defaultToolBar(QStringLiteral("twin"), QStringList(), QStringLiteral("Edit"))
        ->setObjectName(QStringLiteral("edit"));
    host.defaultToolBar(QString(), QStringList(), QStringLiteral("Edit"));
    nameless("Find", &host);
    nameless("", &host)->setObjectName(QStringLiteral("empty"));
    nameless("Cut Again", &host)->setObjectName(QStringLiteral("cut"));
    nameless("&Open", &host)->setObjectName(QStringLiteral("open"));
    nameless("Line", &host)->setObjectName(QStringLiteral("line"));
    host.manager.findAction(QStringLiteral("line"))->setSeparator(true);
    const QStringList expected{
        QStringLiteral("QAction \"Find\" has no objectName"),
        QStringLiteral("QAction \"cut\" is not the only one of that objectName"),
        QStringLiteral("QAction \"empty\" shows no text"),
        QStringLiteral("QAction \"open\" shows an \"&\""),
        QStringLiteral("QToolBar \"\" has no objectName"),
        QStringLiteral("QToolBar \"\" shows no text"),
        QStringLiteral("QToolBar \"edit\" is not the only one of that objectName"),
        QStringLiteral("a registered action has become a separator"),
    };
    QCOMPARE(nameProblems(host.manager), expected);
}

void tst_guide_names::theAuditWarnsInDebugBuilds()
{
    Host host;
    nameless("Find", &host);
    auditInDebugBuilds(host.manager);
#ifdef QT_NO_DEBUG
    QCOMPARE(takeWarnings(), QStringList());
#else
    QCOMPARE(takeWarnings(),
             QStringList(QStringLiteral("Toolbar layouts: QAction \"Find\" has no objectName")));
#endif
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
