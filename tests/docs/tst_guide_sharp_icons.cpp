// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "qtdifferences.h"
#include "rycustomizeddialog.h"
#include "testcase.h"

#include <QApplication>
#include <QWindow>
#include <QtTest>

class tst_guide_sharp_icons : public TestCase
{
    Q_OBJECT

public:
    static void initMain();

private Q_SLOTS:
    void theButtonsShowTheSharpIcons();
    void theIconsKeepTheirSize();
};

void tst_guide_sharp_icons::initMain()
{
    qputenv("QT_SCALE_FACTOR", "2");
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    //! [attribute]
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // before the QApplication
    //! [attribute]
#endif
}

void tst_guide_sharp_icons::theButtonsShowTheSharpIcons()
{
    Host host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    dialog.show();
    const EditorViews editor(&dialog);
    const QWindow *const window = dialog.windowHandle();
    QCOMPARE(window->devicePixelRatio(), 2.0);
    const struct
    {
        QToolButton *button;
        const char *file;
    } buttons[] = {{editor.newButton, "plus"},      {editor.removeButton, "minus"},
                   {editor.upButton, "up"},         {editor.downButton, "down"},
                   {editor.rightButton, "forward"}, {editor.leftButton, "back"}};
    for (const auto &each : buttons) {
        const QImage sharp(
            QStringLiteral(":/RyCustomizedDialog/images/%1@2x.png").arg(QLatin1String(each.file)));
        QCOMPARE(sharp.size(), QSize(44, 44));
        const QPixmap shown = QtDifferences::pixmap(each.button->icon(), QSize(22, 22), window);
        QCOMPARE(shown.devicePixelRatio(), 2.0);
        const QImage image = shown.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QImage expected = sharp.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        expected.setDevicePixelRatio(2.0);
        QCOMPARE(image, expected);
    }
}

void tst_guide_sharp_icons::theIconsKeepTheirSize()
{
    const QIcon icon(QStringLiteral(":/RyCustomizedDialog/images/up.png"));
    QVERIFY(icon.availableSizes().contains(QSize(22, 22)));
    const QImage plain(QStringLiteral(":/RyCustomizedDialog/images/up.png"));
    QCOMPARE(plain.size(), QSize(22, 22));
}

QTEST_MAIN(tst_guide_sharp_icons)
#include "tst_guide_sharp_icons.moc"
