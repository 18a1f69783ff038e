// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

namespace {

class Task : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void runningChanged(bool isRunning);
};

void disableApplyDuring(Task *task, RyCustomizedDialog *dialog)
{
    //! [mode]
    QObject::connect(task, SIGNAL(runningChanged(bool)), dialog, SLOT(slotUiModeChanged(bool)));
    //! [mode]
}

//! [apply-on-leave]
void applyWhenLeaving(RyCustomizedDialog *dialog)
{
    // Emitted before the tab changes, while the changes still exist.
    QTabWidget *const tabs = dialog->findChild<QTabWidget *>();
    QObject::connect(tabs, &QTabWidget::tabBarClicked, dialog, [=](int index) {
        if (index != tabs->currentIndex())
            dialog->applyButton()->click();
    });
}
//! [apply-on-leave]

struct EditHost : Host
{
    EditHost()
        : edit(defaultToolBar(QStringLiteral("edit"), words("cut | copy"), QStringLiteral("Edit")))
    {
    }

    QToolBar *const edit;
};

void clickTab(QWidget *dialog, int index)
{
    QTabBar *const bar = dialog->findChild<QTabBar *>();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(index).center());
}

} // namespace

class tst_guide_surprises : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void equalBytesMeanEqualLayouts();
    void applyIsDisabledWhileSomethingRuns();
    void leavingTheTabDiscards();
    void leavingTheTabMayApply();
    void restoreDefaultsOnTheOtherTabDoesNothing();
    void returnIsOkAlsoOnAnAction();
    void aToolBarOfTheUserHasNoPlaceOfItsOwn();
    void anActionMayStandOnSeveralToolBars();
};

void tst_guide_surprises::equalBytesMeanEqualLayouts()
{
    EditHost host;
    const QByteArray before = host.manager.saveState(1);
    for (const bool isChanged : {false, true}) {
        RyCustomizedDialog dialog({&host.manager, nullptr});
        dialog.show();
        const EditorViews editor(&dialog);
        if (isChanged)
            editor.doubleClick(editor.currentToolBarList, 0);
        QTest::mouseClick(dialog.okButton(), Qt::LeftButton);
        QCOMPARE(host.manager.saveState(1) != before, isChanged);
    }
}

void tst_guide_surprises::applyIsDisabledWhileSomethingRuns()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    Task task;
    disableApplyDuring(&task, &dialog);
    Q_EMIT task.runningChanged(true);
    QVERIFY(!dialog.applyButton()->isEnabled());
    Q_EMIT task.runningChanged(false);
    QVERIFY(dialog.applyButton()->isEnabled());
}

void tst_guide_surprises::leavingTheTabDiscards()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    dialog.show();
    const EditorViews editor(&dialog);
    editor.doubleClick(editor.currentToolBarList, 0);
    clickTab(&dialog, 1);
    clickTab(&dialog, 0);
    QTest::mouseClick(dialog.okButton(), Qt::LeftButton);
    QCOMPARE(standingOn(host.edit), words("cut | copy"));
}

void tst_guide_surprises::leavingTheTabMayApply()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    applyWhenLeaving(&dialog);
    dialog.show();
    const EditorViews editor(&dialog);
    editor.doubleClick(editor.currentToolBarList, 0);
    clickTab(&dialog, 0);
    QCOMPARE(standingOn(host.edit), words("cut | copy"));
    clickTab(&dialog, 1);
    QCOMPARE(standingOn(host.edit), words("| copy"));
}

void tst_guide_surprises::restoreDefaultsOnTheOtherTabDoesNothing()
{
    EditHost host;
    host.manager.setToolBar(host.edit, {});
    RyCustomizedDialog dialog({&host.manager, nullptr});
    dialog.show();
    clickTab(&dialog, 1);
    QTest::mouseClick(dialog.RestoreDefaultButton(), Qt::LeftButton);
    QTest::mouseClick(dialog.okButton(), Qt::LeftButton);
    QCOMPARE(standingOn(host.edit), QStringList());
}

void tst_guide_surprises::returnIsOkAlsoOnAnAction()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    dialog.show();
    const EditorViews editor(&dialog);
    editor.click(editor.actionTree, QStringLiteral("Cut"));
    editor.doubleClick(editor.currentToolBarList, 0);
    QTest::keyClick(editor.actionTree, Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(standingOn(host.edit), words("| copy"));
}

void tst_guide_surprises::aToolBarOfTheUserHasNoPlaceOfItsOwn()
{
    EditHost host;
    QToolBar *const mine = host.manager.createToolBar(QStringLiteral("Mine"));
    host.window.addToolBar(Qt::LeftToolBarArea, mine);
    const QByteArray state = host.manager.saveState(1);
    host.manager.deleteToolBar(mine);
    QVERIFY(host.manager.restoreState(state, 1));
    QToolBar *const restored = host.manager.toolBarByName(QStringLiteral("_Custom_Toolbar_1"));
    QCOMPARE(host.window.toolBarArea(restored), Qt::TopToolBarArea);
}

void tst_guide_surprises::anActionMayStandOnSeveralToolBars()
{
    EditHost host;
    QToolBar *const mine = host.manager.createToolBar(QStringLiteral("Mine"));
    host.manager.setToolBar(mine, host.list(words("cut cut | |")));
    QCOMPARE(standingOn(mine), words("cut | |"));
    QCOMPARE(standingOn(host.edit), words("cut | copy"));
}

QTEST_MAIN(tst_guide_surprises)
#include "tst_guide_surprises.moc"
