// SPDX-License-Identifier: MIT

#include "actionfilter.h"
#include "dressedwindow.h"
#include "nextmodal.h"
#include "testcase.h"
#include "texts.h"

#include <RyCustomizedDialog>

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
    void commandsTellTheirNames();
    void iconsKeepTheirColorsInSelectedRows();
    void theDialogIsDressed();
    void helpIsAWindowOfTheDialog();
    void theDirectionIsSwitched();

protected:
    void finish() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

namespace {

void customize(const DressedWindow &window, const std::function<void(RyCustomizedDialog *)> &steps)
{
    const NextModal next([&steps](QWidget *modal) {
        RyCustomizedDialog *const dialog = qobject_cast<RyCustomizedDialog *>(modal);
        QVERIFY(dialog);
        steps(dialog);
        dialog->reject();
    });
    menuEntry(window, QStringLiteral("Customize Toolbars…"))->trigger();
    QVERIFY(next.wasOpened());
}

} // namespace

void tst_Dressed_Window::commandsTellTheirNames()
{
    DressedWindow window;
    window.show();
    menuEntry(window, QStringLiteral("Pause"))->trigger();
    QCOMPARE(window.statusBar()->currentMessage(), QStringLiteral("Pause"));
    QCOMPARE(window.findChildren<QToolBar *>().size(), 3);
}

void tst_Dressed_Window::iconsKeepTheirColorsInSelectedRows()
{
    const DressedWindow window;
    const QIcon icon = menuEntry(window, QStringLiteral("Open"))->icon();
    QVERIFY(!icon.availableSizes().isEmpty());
    for (const int size : {16, 22, 32})
        QCOMPARE(icon.pixmap(size, QIcon::Selected).toImage(), icon.pixmap(size).toImage());
}

void tst_Dressed_Window::theDialogIsDressed()
{
    DressedWindow window;
    window.show();
    bool hasFilter = false;
    customize(window, [&](const RyCustomizedDialog *dialog) {
        hasFilter = dialog->findChild<ActionFilter *>();
    });
    QVERIFY(hasFilter);
}

void tst_Dressed_Window::helpIsAWindowOfTheDialog()
{
    DressedWindow window;
    window.show();
    customize(window, [](RyCustomizedDialog *dialog) {
        for (int i = 0; i < 2; ++i) {
            QTest::mouseClick(dialog->helpButton(), Qt::LeftButton);
            const auto helps = dialog->findChildren<QDialog *>(QStringLiteral("help"));
            QCOMPARE(helps.size(), 1);
            QVERIFY(helps.constFirst()->isVisible());
            QVERIFY(!helps.constFirst()->isModal());
            QVERIFY(helps.constFirst()->findChild<QTextBrowser *>()->toPlainText().contains(
                QLatin1String("Alt+Up")));
            helps.constFirst()->close();
        }
    });
}

void tst_Dressed_Window::theDirectionIsSwitched()
{
    DressedWindow window;
    QAction *const direction = menuEntry(window, QStringLiteral("Right to Left"));
    direction->trigger();
    QVERIFY(window.isRightToLeft());
    direction->trigger();
    QVERIFY(!window.isRightToLeft());
}

QTEST_MAIN(tst_Dressed_Window)

#include "tst_dressed_window.moc"
