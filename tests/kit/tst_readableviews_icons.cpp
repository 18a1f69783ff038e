// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitwindow.h"
#include "testcase.h"
#include "texts.h"

#include <QMenuBar>
#include <QtTest>

/*
 * QT_SCALE_FACTOR sets the factor. Each test run has another one. The program does not ask for
 * sharp icons.
 */
class tst_ReadableViews_Icons : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theScreenHasThisFactor();
    void blurredIcons_data();
    void blurredIcons();
};

namespace {

const QList<QColor> colors{Qt::red, Qt::green, Qt::blue};

// Each size has its color: 16, 32 and 48 pixels.
QIcon iconOfSizes(int smallest)
{
    QIcon icon;
    for (int i = 0; i < colors.size(); ++i) {
        QPixmap pixmap(smallest * (i + 1), smallest * (i + 1));
        pixmap.fill(colors.at(i));
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

void tst_ReadableViews_Icons::theScreenHasThisFactor()
{
    QCOMPARE(qApp->devicePixelRatio(), qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
}

void tst_ReadableViews_Icons::blurredIcons_data()
{
    QTest::addColumn<bool>("inTree");
    QTest::newRow("action tree") << true;
    QTest::newRow("current toolbar") << false;
}

void tst_ReadableViews_Icons::blurredIcons()
{
    QFETCH(bool, inTree);
    KitProgram program;
    program.start([](QMainWindow *window) {
        QAction *const action = window->menuBar()->addMenu("Menu")->addAction("Action");
        action->setIcon(iconOfSizes(16));
        window->addToolBar("Bar")->addAction(action);
    });
    const EditorViews views(program.openDialog());
    QAbstractItemView *view = views.actionTree;
    QRect row;
    if (inTree) {
        views.actionTree->expandAll();
        row = views.actionTree->visualItemRect(itemNamed(views.actionTree, "Action"));
    } else {
        view = views.currentToolBarList;
        views.currentToolBarList->setCurrentItem(nullptr);
        row = views.currentToolBarList->visualItemRect(views.currentToolBarList->item(0));
    }
    view->setIconSize(QSize(16, 16));
    const QImage picture = view->viewport()->grab(row).toImage();
    const double factor = qApp->devicePixelRatio();
    QCOMPARE(picture.width(), qRound(row.width() * factor));
    const QColor color = picture.pixelColor(qRound(10 * factor), picture.height() / 2);
    QCOMPARE(color.name(), colors.at(qCeil(factor) - 1).name());
}

QTEST_MAIN(tst_ReadableViews_Icons)
#include "tst_readableviews_icons.moc"
