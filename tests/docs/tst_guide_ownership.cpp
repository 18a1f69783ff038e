// SPDX-License-Identifier: MIT

#include "nextmodal.h"
#include "rycustomizeddialog.h"
#include "rytoolbarmanager.h"
#include "testcase.h"
#include "texts.h"

#include <QMainWindow>
#include <QPointer>
#include <QtTest>

namespace {

class Window : public QMainWindow
{
public:
    Window()
    {
        m_manager.setMainWindow(this);
        QToolBar *const toolBar = addToolBar(tr("Edit"));
        toolBar->setObjectName(QStringLiteral("edit"));
        QAction *const undo = toolBar->addAction(tr("Undo"));
        undo->setObjectName(QStringLiteral("undo"));
        m_manager.addDefaultToolBar(toolBar, tr("Edit"));
    }

    void customizeToolBars()
    {
        // The manager outlives the dialog, and the window outlives both.
        RyCustomizedDialog dialog({&m_manager, nullptr}, this);
        dialog.exec();
    }

    RyToolBarManager *manager() { return &m_manager; }

private:
    // Destroyed before the toolbars and actions, which are children of the QMainWindow.
    RyToolBarManager m_manager;
};

//! [remove-action]
void deleteCommand(RyToolBarManager *manager, QAction *action)
{
    manager->removeAction(action); // from all toolbars, and from the default contents
    delete action;
}
//! [remove-action]

void deleteUsersToolBars(RyToolBarManager *manager)
{
    const auto toolBars = manager->toolBars();
    for (QToolBar *toolBar : toolBars)
        manager->deleteToolBar(toolBar); // leaves default toolbars alone
}

} // namespace

class tst_guide_ownership : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowTakesEverythingWithIt();
    void aRemovedActionMayBeDeleted();
    void onlyTheToolBarsOfTheUserAreDeleted();
    void toolBarsOutliveTheManager();
    void theDialogLeavesTheManagerAlone();
};

void tst_guide_ownership::theWindowTakesEverythingWithIt()
{
    QPointer<QToolBar> custom;
    {
        Window window;
        custom = window.manager()->createToolBar(QStringLiteral("Mine"));
        window.manager()->setToolBar(
            custom, {nullptr, window.manager()->findAction(QStringLiteral("undo"))});
        const NextModal dialog([](QWidget *shown) { shown->close(); });
        window.customizeToolBars();
        QVERIFY(dialog.wasShown());
        QVERIFY(custom);
    }
    QVERIFY(!custom);
}

void tst_guide_ownership::aRemovedActionMayBeDeleted()
{
    Window window;
    RyToolBarManager *const manager = window.manager();
    deleteCommand(manager, manager->findAction(QStringLiteral("undo")));
    manager->resetAllToolBars();
    QCOMPARE(standingOn(manager->toolBarByName(QStringLiteral("edit"))), QStringList());
    QVERIFY(manager->actions().isEmpty());
}

void tst_guide_ownership::onlyTheToolBarsOfTheUserAreDeleted()
{
    Window window;
    RyToolBarManager *const manager = window.manager();
    const QPointer<QToolBar> custom = manager->createToolBar(QStringLiteral("Mine"));
    QToolBar *const shipped = manager->toolBarByName(QStringLiteral("edit"));
    deleteUsersToolBars(manager);
    QVERIFY(!custom);
    QCOMPARE(manager->toolBars(), QList<QToolBar *>{shipped});
}

void tst_guide_ownership::toolBarsOutliveTheManager()
{
    QMainWindow window;
    QToolBar *custom = nullptr;
    {
        RyToolBarManager manager;
        manager.setMainWindow(&window);
        custom = manager.createToolBar(QStringLiteral("Mine"));
    }
    QCOMPARE(window.findChildren<QToolBar *>(), QList<QToolBar *>{custom});
}

void tst_guide_ownership::theDialogLeavesTheManagerAlone()
{
    Window window;
    const QPointer<RyToolBarManager> manager = window.manager();
    delete new RyCustomizedDialog({manager, nullptr}, &window);
    QVERIFY(manager);
    QVERIFY(!manager->parent());
}

QTEST_MAIN(tst_guide_ownership)
#include "tst_guide_ownership.moc"
