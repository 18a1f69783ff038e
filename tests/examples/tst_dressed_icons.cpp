// SPDX-License-Identifier: MIT

#include "dressing.h"
#include "editorviews.h"
#include "host.h"
#include "qtdifferences.h"
#include "testcase.h"

#include <RyCustomizedDialog>

#include <QApplication>
#include <QtTest>

/*
 * The example of the dressed dialog: its sharp icons, on a screen with two pixels for one.
 */
class tst_Dressed_Icons : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theScreenHasTwoPixelsForOne();
    void iconsAreDrawnFromTheSharpImages_data();
    void iconsAreDrawnFromTheSharpImages();
    void theLibrarysOwnImagesStay();
};

namespace {

QImage imageAt(const QString &path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

} // namespace

void tst_Dressed_Icons::theScreenHasTwoPixelsForOne()
{
    QCOMPARE(qApp->devicePixelRatio(), 2.0);
}

void tst_Dressed_Icons::iconsAreDrawnFromTheSharpImages_data()
{
    QTest::addColumn<QString>("image");
    QTest::newRow("newButton") << "plus";
    QTest::newRow("removeButton") << "minus";
    QTest::newRow("upButton") << "up";
    QTest::newRow("leftButton") << "back";
    QTest::newRow("rightButton") << "forward";
    QTest::newRow("downButton") << "down";
}

void tst_Dressed_Icons::iconsAreDrawnFromTheSharpImages()
{
    QFETCH(QString, image);
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr}, &host.window);
    new Dressing(&dialog);
    const EditorViews views(&dialog);
    const QToolButton *const button = views.page->findChild<QToolButton *>(QTest::currentDataTag());
    dialog.show();
    const QPixmap pixmap =
        QtDifferences::pixmap(button->icon(), QSize(22, 22), dialog.windowHandle());
    QCOMPARE(pixmap.size(), QSize(44, 44));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QImage drawn = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    drawn.setDevicePixelRatio(1);
    QImage sharp = imageAt(QString(":/RyCustomizedDialog/images/%1@2x.png").arg(image));
    sharp.setDevicePixelRatio(1);
    QVERIFY(!sharp.isNull());
    // Through a pixmap and back, some colors of translucent pixels are rounded.
    for (int y = 0; y < sharp.height(); ++y) {
        for (int x = 0; x < sharp.width(); ++x)
            QCOMPARE(qAlpha(drawn.pixel(x, y)), qAlpha(sharp.pixel(x, y)));
    }
}

void tst_Dressed_Icons::theLibrarysOwnImagesStay()
{
    for (const char *name : {"up", "down", "back", "forward", "plus", "minus"}) {
        const QImage image = imageAt(QString(":/RyCustomizedDialog/images/%1.png").arg(name));
        QCOMPARE(image.size(), QSize(22, 22));
    }
}

int main(int argc, char *argv[])
{
    qputenv("QT_SCALE_FACTOR", "2");
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    tst_Dressed_Icons test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dressed_icons.moc"
