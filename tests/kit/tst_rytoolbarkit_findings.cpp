// SPDX-License-Identifier: MIT

#include "kitwindow.h"
#include "layoutcheck.h"
#include "testcase.h"

#include <QDirIterator>
#include <QtTest>

/*
 * Replays what the fuzzer keeps, and layouts of each version.
 */
class tst_RyToolBarKit_findings : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyInputKeepsWhatMustHold_data();
    void everyInputKeepsWhatMustHold();
    void everyDamagedLayoutKeepsWhatMustHold_data();
    void everyDamagedLayoutKeepsWhatMustHold();
    void goldenLayoutsAreRestored();
    void goldenLayoutsAreSavedAgain();
};

namespace {

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray golden()
{
    return contentOf(RY_KIT_TESTS "/golden/format1.json").trimmed();
}

} // namespace

void tst_RyToolBarKit_findings::everyInputKeepsWhatMustHold_data()
{
    QTest::addColumn<QString>("fileName");
    for (const char *folder : {"seeds", "findings"}) {
        QDirIterator files(QString(RY_KIT_TESTS "/fuzz/") + folder, QDir::Files);
        while (files.hasNext()) {
            const QString name = files.next();
            if (!name.endsWith(".md"))
                QTest::newRow(qPrintable(files.fileName())) << name;
        }
    }
}

void tst_RyToolBarKit_findings::everyInputKeepsWhatMustHold()
{
    QFETCH(QString, fileName);
    QCOMPARE(breachOf(contentOf(fileName)), QString());
}

void tst_RyToolBarKit_findings::everyDamagedLayoutKeepsWhatMustHold_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("golden") << golden();
    KitProgram program;
    program.start();
    program.edit("edit", "paste | new");
    program.create("Mine", "open");
    program.toolBar("file")->toggleViewAction()->trigger();
    QTest::newRow("manager") << program.kit()->manager()->saveState(3);
    QTest::newRow("window") << program.window()->saveState(3);
}

void tst_RyToolBarKit_findings::everyDamagedLayoutKeepsWhatMustHold()
{
    QFETCH(QByteArray, value);
    QVERIFY(!value.isEmpty());
    for (int i = 0; i < value.size(); ++i) {
        QCOMPARE(breachOf(value.left(i)), QString());
        QByteArray damaged = value;
        damaged[i] = char(damaged.at(i) ^ (1 << (i % 8)));
        QCOMPARE(breachOf(damaged), QString());
    }
}

void tst_RyToolBarKit_findings::goldenLayoutsAreRestored()
{
    KitProgram program;
    program.store(golden());
    program.start();
    QCOMPARE(program.refusals, QStringList());
    QCOMPARE(program.contents(),
             QStringList({"_Custom_Toolbar_1: open", "_Custom_Toolbar_3: ", "edit: paste | cut",
                          "file: new open save"}));
    QCOMPARE(program.toolBar("_Custom_Toolbar_1")->windowTitle(), QString::fromUtf8("Größe"));
    QCOMPARE(program.places(),
             QStringList({"left: file", "top: _Custom_Toolbar_1, edit / _Custom_Toolbar_3"}));
    QVERIFY(!program.toolBar("file")->isVisible());
}

void tst_RyToolBarKit_findings::goldenLayoutsAreSavedAgain()
{
    KitProgram program;
    program.store(golden());
    program.start();
    QCOMPARE(program.kit()->saveLayout(), golden());
}

QTEST_MAIN(tst_RyToolBarKit_findings)
#include "tst_rytoolbarkit_findings.moc"
