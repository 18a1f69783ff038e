// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "qtdifferences.h"
#include "rycustomizeddialog.h"
#include "testcase.h"

#include <QApplication>
#include <QProxyStyle>
#include <QtTest>

namespace {

// Remembers the last pixmap that a widget draws.
class RecordingStyle : public QProxyStyle
{
public:
    void drawItemPixmap(QPainter *painter, const QRect &area, int alignment,
                        const QPixmap &pixmap) const override
    {
        drawn = pixmap;
        QProxyStyle::drawItemPixmap(painter, area, alignment, pixmap);
    }

    mutable QPixmap drawn;
};

} // namespace

// QT_SCALE_FACTOR sets the factor. Each test run has another one.
class tst_Icons_Sharp : public TestCase
{
    Q_OBJECT

public:
    static void initMain() { QtDifferences::useSharpImages(); }

private Q_SLOTS:
    void theScreenHasThisFactor();
    void noIconIsEnlarged_data();
    void noIconIsEnlarged();
};

void tst_Icons_Sharp::theScreenHasThisFactor()
{
    const double factor = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
    QVERIFY(factor >= 1);
    QCOMPARE(qApp->devicePixelRatio(), factor);
}

void tst_Icons_Sharp::noIconIsEnlarged_data()
{
    QTest::addColumn<QString>("button");
    for (const char *name :
         {"newButton", "removeButton", "upButton", "leftButton", "rightButton", "downButton"})
        QTest::newRow(name) << name;
}

// Qt makes an image smaller for a pixmap, but not larger. A pixmap that is too small is enlarged
// when it is drawn.
void tst_Icons_Sharp::noIconIsEnlarged()
{
    QFETCH(QString, button);
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    QToolButton *const shown = EditorViews(&dialog).page->findChild<QToolButton *>(button);
    shown->setIconSize(QSize(22, 22));
    RecordingStyle style;
    shown->setStyle(&style);
    dialog.show();
    shown->grab();
    const double pixels = 22 * qApp->devicePixelRatio();
    QVERIFY2(style.drawn.width() >= pixels, qPrintable(QString::number(style.drawn.width())));
    QVERIFY2(style.drawn.height() >= pixels, qPrintable(QString::number(style.drawn.height())));
}

QTEST_MAIN(tst_Icons_Sharp)

#include "tst_icons_sharp.moc"
