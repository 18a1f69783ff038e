// SPDX-License-Identifier: MIT

#include "openeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QtTest>

/*
 * How the views share the dialog of the kit, and that it stays as the user leaves it.
 */
class tst_DialogPanes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theViewsAreWhereTheyWere();
    void nothingCanBeCollapsed();
    void sizesAreKept_data();
    void sizesAreKept();
    void sizesAreKeptOverRestarts();
    void theLayoutStaysWithoutThem();
    void wrongSizesAreIgnored_data();
    void wrongSizesAreIgnored();
    void theDialogFitsOnTheScreen();
    void nothingIsWrittenWhereTheProgramWantsNone();
    void nothingIsKeptWithoutAKey();
};

namespace {

QSplitter *sides(const OpenedDialog &opened)
{
    return opened.dialog->findChild<QSplitter *>("dialogSides");
}

QSplitter *lists(const OpenedDialog &opened)
{
    return opened.dialog->findChild<QSplitter *>("dialogLists");
}

QRect placeOf(const OpenedDialog &opened, const char *name)
{
    const QWidget *const widget = opened.views->page->findChild<QWidget *>(name);
    return QRect(widget->mapTo(opened.dialog, QPoint()), widget->size());
}

} // namespace

void tst_DialogPanes::theViewsAreWhereTheyWere()
{
    const OpenedDialog opened;
    const auto place = [&](const char *name) { return placeOf(opened, name); };
    QVERIFY(place("label").bottom() < place("actionTree").top());
    QVERIFY(place("actionTree").right() < place("toolBarList").left());
    QVERIFY(place("label_2").bottom() < place("toolBarList").top());
    QVERIFY(place("newButton").bottom() < place("toolBarList").top());
    QVERIFY(place("toolBarList").bottom() < place("label_6").top());
    QVERIFY(place("label_6").bottom() < place("currentToolBarList").top());
    QVERIFY(place("upButton").right() < place("currentToolBarList").left());
    QVERIFY(place("upButton").bottom() < place("leftButton").top());
    QVERIFY(place("actionSearch").bottom() < place("actionTree").top());
    QCOMPARE(opened.dialog->size(), QSize(740, 460));
    QVERIFY(place("actionTree").width() > 250);
    QVERIFY(place("toolBarList").width() > 250);
    QVERIFY(place("toolBarList").height() > 80);
    QVERIFY(place("currentToolBarList").height() > 80);
}

void tst_DialogPanes::nothingCanBeCollapsed()
{
    const OpenedDialog opened;
    sides(opened)->setSizes({0, 1000});
    lists(opened)->setSizes({1000, 0});
    for (const char *name : {"actionTree", "toolBarList", "currentToolBarList"})
        QVERIFY(placeOf(opened, name).width() > 30 && placeOf(opened, name).height() > 30);
}

void tst_DialogPanes::sizesAreKept_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("OK") << "ok";
    QTest::newRow("Cancel") << "cancel";
}

void tst_DialogPanes::sizesAreKept()
{
    QFETCH(QString, end);
    OpenedDialog opened;
    opened.dialog->resize(780, 520);
    QCoreApplication::processEvents();
    sides(opened)->setSizes({300, sides(opened)->width() - 300 - sides(opened)->handleWidth()});
    lists(opened)->setSizes({260, lists(opened)->height() - 260 - lists(opened)->handleWidth()});
    const QList<int> before = sides(opened)->sizes() + lists(opened)->sizes();
    if (end == "ok")
        QTest::mouseClick(opened.dialog->okButton(), Qt::LeftButton);
    else
        opened.dialog->reject();
    letTheKitFollow();
    opened.open();
    QCOMPARE(opened.dialog->size(), QSize(780, 520));
    QCOMPARE(sides(opened)->sizes() + lists(opened)->sizes(), before);
    QCOMPARE(before.at(0), 300);
    QCOMPARE(before.at(2), 260);
}

void tst_DialogPanes::sizesAreKeptOverRestarts()
{
    OpenedDialog opened;
    opened.dialog->resize(780, 520);
    opened.dialog->reject();
    letTheKitFollow();
    opened.program.start();
    opened.open();
    QCOMPARE(opened.dialog->size(), QSize(780, 520));
}

void tst_DialogPanes::theLayoutStaysWithoutThem()
{
    OpenedDialog opened;
    opened.dialog->resize(780, 520);
    opened.dialog->reject();
    letTheKitFollow();
    QVERIFY(opened.program.kit()->isDefault());
    QCOMPARE(opened.program.stored(), QString());
    QCOMPARE(opened.program.settings->allKeys(), QStringList("toolBars.dialog"));
    opened.program.start();
    QVERIFY(opened.program.refusals.isEmpty());
}

void tst_DialogPanes::wrongSizesAreIgnored_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("text") << QVariant("large");
    QTest::newRow("too few") << QVariant(QStringList({"780", "520"}));
    QTest::newRow("too many") << QVariant(words("780 520 1 1 1 1 1"));
    QTest::newRow("no numbers") << QVariant(words("780 520 a b c d"));
    QTest::newRow("negative") << QVariant(words("780 520 -1 100 100 100"));
    QTest::newRow("nothing") << QVariant(words("0 520 100 100 100 100"));
    QTest::newRow("very large") << QVariant(words("780 99999999 100 100 100 100"));
    QTest::newRow("bytes") << QVariant(QByteArray("\0\1\2", 3));
}

void tst_DialogPanes::wrongSizesAreIgnored()
{
    QFETCH(QVariant, stored);
    OpenedDialog opened;
    opened.dialog->reject();
    letTheKitFollow();
    opened.program.settings->setValue("toolBars.dialog", stored);
    opened.open();
    QCOMPARE(opened.dialog->size(), QSize(740, 460));
}

void tst_DialogPanes::theDialogFitsOnTheScreen()
{
    OpenedDialog opened;
    opened.dialog->reject();
    letTheKitFollow();
    opened.program.settings->setValue("toolBars.dialog", words("9000 9000 100 100 100 100"));
    opened.open();
    const QRect screen = opened.dialog->windowHandle()->screen()->availableGeometry();
    QCOMPARE(opened.dialog->size(), screen.size());
}

void tst_DialogPanes::nothingIsWrittenWhereTheProgramWantsNone()
{
    OpenedDialog opened([](QMainWindow *window) {
        KitProgram::buildDefault(window);
        RyToolBarKit *const kit = window->findChild<RyToolBarKit *>();
        kit->setFeatures(kit->features() & ~RyToolBarKit::StoreChanges);
    });
    opened.dialog->reject();
    letTheKitFollow();
    QCOMPARE(opened.program.settings->allKeys(), QStringList());
    opened.program.settings->setValue("toolBars.dialog", words("780 520 300 400 200 200"));
    opened.open();
    QCOMPARE(opened.dialog->size(), QSize(780, 520));
}

void tst_DialogPanes::nothingIsKeptWithoutAKey()
{
    OpenedDialog opened;
    opened.dialog->reject();
    letTheKitFollow();
    opened.program.settings->clear();
    opened.program.key.clear();
    opened.program.start();
    opened.open();
    opened.dialog->reject();
    letTheKitFollow();
    QCOMPARE(opened.program.settings->allKeys(), QStringList());
}

QTEST_MAIN(tst_DialogPanes)
#include "tst_dialogpanes.moc"
