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
    void theSourceHasFewerThanSixtyLines();
    void theSourceRestoresInTheRightOrder();
    void theDefaultsAreShownAtFirst();
    void aCustomToolBarIsBackInItsPlace();

protected:
    void prepare() override;

private:
    QScopedPointer<QTemporaryDir> m_folder;
};

namespace {

QStringList sourceLines()
{
    QFile source(MINIMAL_SOURCE);
    if (!source.open(QIODevice::ReadOnly))
        qFatal("cannot read the source");
    return QString::fromUtf8(source.readAll()).split('\n');
}

} // namespace

void tst_Minimal::prepare()
{
    m_folder.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder->path());
}

void tst_Minimal::theSourceHasFewerThanSixtyLines()
{
    const QStringList lines = sourceLines();
    QCOMPARE(lines.constLast(), QString()); // the last line ends like the others
    QVERIFY2(lines.size() - 1 < 60, qPrintable(QString::number(lines.size() - 1)));
    for (const QString &line : lines)
        QVERIFY2(line.size() <= 100, qPrintable(line));
}

void tst_Minimal::theSourceRestoresInTheRightOrder()
{
    const QString source = sourceLines().join('\n');
    QList<int> places;
    for (const char *step :
         {"m_manager.setMainWindow(", "m_manager.addDefaultToolBar(", "m_manager.restoreState(",
          " restoreState(m_settings", "window.show("}) {
        places << source.indexOf(step);
        QVERIFY2(places.constLast() >= 0, step);
    }
    QVERIFY(std::is_sorted(places.cbegin(), places.cend()));
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
