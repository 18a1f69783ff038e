// SPDX-License-Identifier: MIT

#include "actionfilter.h"
#include "customizing.h"
#include "dressedwindow.h"
#include "testcase.h"
#include "texts.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QStatusBar>
#include <QTextBrowser>
#include <QToolBar>
#include <QtTest>

/*
 * The example of the dressed dialog: its window.
 */
class tst_Dressed_Window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void commandsShowTheirNames();
    void iconsKeepTheirColorsInSelectedRows();
    void theDialogIsDressed();
    void helpIsAWindowOfTheDialog();
    void theDirectionIsSwitched();

protected:
    void finish() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

void tst_Dressed_Window::commandsShowTheirNames()
{
    DressedWindow window;
    window.show();
    menuEntry(window, "Pause")->trigger();
    QCOMPARE(window.statusBar()->currentMessage(), "Pause");
    QCOMPARE(window.findChildren<QToolBar *>().size(), 3);
}

void tst_Dressed_Window::iconsKeepTheirColorsInSelectedRows()
{
    const DressedWindow window;
    const QIcon icon = menuEntry(window, "Open")->icon();
    QVERIFY(!icon.availableSizes().isEmpty());
    for (const int size : {16, 22, 32})
        QCOMPARE(icon.pixmap(size, QIcon::Selected).toImage(), icon.pixmap(size).toImage());
}

void tst_Dressed_Window::theDialogIsDressed()
{
    DressedWindow window;
    window.show();
    bool hasFilter = false;
    customize(menuEntry(window, "Customize Toolbars…"),
              [&](const EditorViews &, RyCustomizedDialog *dialog) {
                  hasFilter = dialog->findChild<ActionFilter *>();
                  dialog->reject();
              });
    QVERIFY(hasFilter);
}

void tst_Dressed_Window::helpIsAWindowOfTheDialog()
{
    DressedWindow window;
    window.show();
    customize(menuEntry(window, "Customize Toolbars…"),
              [](const EditorViews &, RyCustomizedDialog *dialog) {
                  for (int i = 0; i < 2; ++i) {
                      QTest::mouseClick(dialog->helpButton(), Qt::LeftButton);
                      const auto helps = dialog->findChildren<QDialog *>("help");
                      QCOMPARE(helps.size(), 1);
                      QVERIFY(helps.constFirst()->isVisible());
                      QVERIFY(!helps.constFirst()->isModal());
                      QVERIFY(
                          helps.constFirst()->findChild<QTextBrowser *>()->toPlainText().contains(
                              "Alt+Up"));
                      helps.constFirst()->close();
                  }
                  dialog->reject();
              });
}

void tst_Dressed_Window::theDirectionIsSwitched()
{
    DressedWindow window;
    QAction *const direction = menuEntry(window, "Right to Left");
    direction->trigger();
    QVERIFY(window.isRightToLeft());
    direction->trigger();
    QVERIFY(!window.isRightToLeft());
}

QTEST_MAIN(tst_Dressed_Window)

#include "tst_dressed_window.moc"
