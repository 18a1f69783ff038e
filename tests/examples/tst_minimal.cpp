// SPDX-License-Identifier: MIT

// The source of the example is compiled into the test, as it is.
#undef QT_NO_CAST_FROM_ASCII
#define main minimalMain
#include MINIMAL_SOURCE
#undef main

#include "editorviews.h"
#include "nextmodal.h"
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
    QFile source(QStringLiteral(MINIMAL_SOURCE));
    if (!source.open(QIODevice::ReadOnly))
        qFatal("cannot read the source");
    return QString::fromUtf8(source.readAll()).split(QLatin1Char('\n'));
}

QToolBar *toolBarNamed(const Window &window, const QString &title)
{
    const auto toolBars = window.findChildren<QToolBar *>();
    for (QToolBar *toolBar : toolBars) {
        if (toolBar->windowTitle() == title)
            return toolBar;
    }
    return nullptr;
}

// Opens the dialog through the menu and takes the steps in it.
void customize(Window *window,
               const std::function<void(const EditorViews &, RyCustomizedDialog *)> &steps)
{
    const NextModal dialog([&steps](QWidget *modal) {
        RyCustomizedDialog *const opened = qobject_cast<RyCustomizedDialog *>(modal);
        QVERIFY(opened);
        steps(EditorViews(opened), opened);
    });
    QAction *const entry = window->menuBar()->actions().constFirst()->menu()->actions().constLast();
    QCOMPARE(entry->text(), QStringLiteral("Customize Toolbars…"));
    entry->trigger();
    QVERIFY(dialog.wasOpened());
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
    const QString source = sourceLines().join(QLatin1Char('\n'));
    QList<int> places;
    for (const char *step :
         {"m_manager.setMainWindow(", "m_manager.addDefaultToolBar(", "m_manager.restoreState(",
          " restoreState(m_settings", "window.show("}) {
        places << source.indexOf(QLatin1String(step));
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
    QCOMPARE(standingOn(toolBars.constFirst()).join(QLatin1Char(' ')),
             QStringLiteral("undo redo | copy paste"));
    QVERIFY(toolBars.constFirst()->isVisible());
}

void tst_Minimal::aCustomToolBarIsBackInItsPlace()
{
    {
        Window window;
        window.show();
        customize(&window, [](const EditorViews &views, RyCustomizedDialog *dialog) {
            views.click(views.newButton);
            views.typeName(QStringLiteral("Mine"));
            views.doubleClick(views.actionTree, QStringLiteral("Copy"));
            QTest::mouseClick(dialog->applyButton(), Qt::LeftButton);
            dialog->reject();
        });
        QToolBar *const mine = toolBarNamed(window, QStringLiteral("Mine"));
        QVERIFY(mine);
        QTRY_VERIFY(mine->isVisible()); // Qt shows it when the event loop runs next
        window.addToolBar(Qt::LeftToolBarArea, mine);
        QVERIFY(window.close());
    }
    Window window;
    window.show();
    QToolBar *const mine = toolBarNamed(window, QStringLiteral("Mine"));
    QVERIFY(mine);
    QCOMPARE(standingOn(mine), QStringList{QStringLiteral("copy")});
    QCOMPARE(window.toolBarArea(mine), Qt::LeftToolBarArea);
    QVERIFY(mine->isVisible());
}

QTEST_MAIN(tst_Minimal)

#include "tst_minimal.moc"
