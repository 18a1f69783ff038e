// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QPushButton>
#include <QtTest>

class tst_RyCustomizedDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void okCreatesTheToolBarThatTheUserMade();
};

void tst_RyCustomizedDialog::okCreatesTheToolBarThatTheUserMade()
{
    Host host;
    host.defaultToolBar(QStringLiteral("file"),
                        {QStringLiteral("open"), QStringLiteral("|"), QStringLiteral("save")},
                        QStringLiteral("File"));
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    dialog.show();
    const EditorViews editor(&dialog);
    editor.click(editor.newButton);
    editor.typeName(QStringLiteral("Mine"));
    editor.doubleClick(editor.actionTree, QStringLiteral("Save"));
    QTest::mouseClick(dialog.okButton(), Qt::LeftButton);

    QToolBar *const made = host.manager.toolBarByName(QStringLiteral("_Custom_Toolbar_1"));
    QVERIFY(made);
    QCOMPARE(made->windowTitle(), QStringLiteral("Mine"));
    QCOMPARE(standingOn(made), QStringList{QStringLiteral("save")});
}

QTEST_MAIN(tst_RyCustomizedDialog)

#include "tst_rycustomizeddialog.moc"
