// SPDX-License-Identifier: MIT

// The source of the example is compiled into the test, as it is.
#define main minimalMain
#include MINIMAL_SOURCE
#undef main

#include "customizing.h"
#include "testcase.h"
#include "texts.h"

#include <QTemporaryDir>
#include <QtTest>

/*
 * The smallest host. The README shows its source, so that it must stay small.
 */
class tst_Minimal : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theReadmeSaysHowShortItIs();
    void threeLinesAreForTheKit();
    void theKitHasNothingToReport();
    void theDefaultsAreShownAtFirst();
    void aCustomToolBarIsBackInItsPlace();

protected:
    void prepare() override;

private:
    QScopedPointer<QTemporaryDir> m_folder;
};

namespace {

QStringList linesOf(const char *path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", path);
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    lines.removeLast(); // the last line ends like the others
    return lines;
}

} // namespace

void tst_Minimal::initTestCase()
{
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QCoreApplication::setOrganizationName("RyCustomizedDialog");
    QCoreApplication::setApplicationName("Minimal");
}

void tst_Minimal::prepare()
{
    m_folder.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
}

void tst_Minimal::theReadmeSaysHowShortItIs()
{
    const QString readme = linesOf(README).join(' ');
    const QStringList source = linesOf(MINIMAL_SOURCE);
    QVERIFY(readme.contains(QString("is %1 lines of C++ and %2 of CMake")
                                .arg(source.size())
                                .arg(linesOf(MINIMAL_CMAKE).size())));
    for (const QString &line : source)
        QVERIFY2(line.size() <= 100, qPrintable(line));
}

void tst_Minimal::threeLinesAreForTheKit()
{
    QStringList lines = linesOf(MINIMAL_SOURCE).filter("kit", Qt::CaseInsensitive);
    for (QString &line : lines)
        line = line.trimmed();
    QCOMPARE(
        lines,
        QStringList({"#include <RyToolBarKit>", "RyToolBarKit *const kit = new RyToolBarKit(this);",
                     "menu->addAction(kit->customizeAction());"}));
}

void tst_Minimal::theKitHasNothingToReport()
{
    Window window;
    window.show();
    QCOMPARE(window.findChild<RyToolBarKit *>()->problems(), QStringList());
}

void tst_Minimal::theDefaultsAreShownAtFirst()
{
    Window window;
    window.show();
    const auto toolBars = window.findChildren<QToolBar *>();
    QCOMPARE(toolBars.size(), 1);
    QCOMPARE(standingOn(toolBars.constFirst()).join(' '), "undo redo | copy paste");
    QVERIFY(toolBars.constFirst()->isVisible());
}

void tst_Minimal::aCustomToolBarIsBackInItsPlace()
{
    {
        Window window;
        window.show();
        customize(menuEntry(window, "Customize Toolbars…"),
                  [](const EditorViews &views, RyCustomizedDialog *dialog) {
                      views.click(views.newButton);
                      views.typeName("Mine");
                      views.doubleClick(views.actionTree, "Copy");
                      QTest::mouseClick(dialog->applyButton(), Qt::LeftButton);
                      dialog->reject();
                  });
        QToolBar *const mine = toolBarTitled(window, "Mine");
        QVERIFY(mine);
        QTRY_VERIFY(mine->isVisible()); // Qt shows it when the event loop runs next
        window.addToolBar(Qt::LeftToolBarArea, mine);
        QVERIFY(window.close());
    }
    Window window;
    window.show();
    QToolBar *const mine = toolBarTitled(window, "Mine");
    QVERIFY(mine);
    QCOMPARE(standingOn(mine), QStringList{"copy"});
    QCOMPARE(window.toolBarArea(mine), Qt::LeftToolBarArea);
    QVERIFY(mine->isVisible());
}

QTEST_MAIN(tst_Minimal)

#include "tst_minimal.moc"
