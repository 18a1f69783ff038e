// SPDX-License-Identifier: MIT
//
// Takes the pictures of the page for users from the real dialog of the text editor. As a test it
// writes them to a scratch folder, and for tools/pictures.sh to the folder in GUIDE_PICTURES.

#include "editorviews.h"
#include "mainwindow.h"
#include "nextmodal.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QDialogButtonBox>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const int Diameter = 22;

// A number in a circle, as the text of the page has it.
void drawNumber(QPainter *painter, const QPoint &center, int number)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(14);
    font.setBold(true);
    painter->setFont(font);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(Qt::white, 2));
    painter->setBrush(QColor(200, 40, 40));
    QRect circle(0, 0, Diameter, Diameter);
    circle.moveCenter(center);
    painter->drawEllipse(circle);
    painter->drawText(circle, Qt::AlignCenter, QString::number(number));
}

void drawFrame(QPainter *painter, const QRect &frame)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QColor(200, 40, 40), 3));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(frame, 5, 5);
}

QRect areaOf(const QWidget *widget, const QWidget *window)
{
    return QRect(widget->mapTo(window, QPoint()), widget->size());
}

void expandCategories(const EditorViews &editor)
{
    editor.actionTree->expandItem(itemNamed(editor.actionTree, QStringLiteral("Edit")));
    editor.actionTree->expandItem(itemNamed(editor.actionTree, QStringLiteral("File")));
}

} // namespace

class tst_guide_pictures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void takesAllPictures();

private:
    void save(const QPixmap &picture, const char *name);
    void takeMenu(MainWindow *window);
    void takeDialog(QWidget *dialog);
    void takeOverview(QWidget *dialog, const EditorViews &editor);
    void takeAdding(QWidget *dialog, const EditorViews &editor);
    void takeNaming(QWidget *dialog, const EditorViews &editor);
    void takeWindow(MainWindow *window);

    QTemporaryDir m_scratch;
    QString m_folder;
};

void tst_guide_pictures::initTestCase()
{
    m_folder = qEnvironmentVariable("GUIDE_PICTURES", m_scratch.path());
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    QApplication::setFont(font);
    // On a dark selection the icons can hardly be seen.
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Highlight, QColor(170, 206, 238));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    QApplication::setPalette(palette);
}

void tst_guide_pictures::takesAllPictures()
{
    QSettings settings(m_scratch.filePath(QStringLiteral("pictures.ini")), QSettings::IniFormat);
    MainWindow window(&settings);
    window.resize(760, 420);
    window.show();
    QVERIFY(window.openFile(QStringLiteral(GUIDE_DOCUMENT)));
    takeMenu(&window);
    const NextModal modal([this](QWidget *dialog) { takeDialog(dialog); });
    window.findChild<QAction *>(QStringLiteral("customizeToolBars"))->trigger();
    QTRY_VERIFY(modal.wasShown());
    takeWindow(&window);
}

void tst_guide_pictures::save(const QPixmap &picture, const char *name)
{
    const QString path = QStringLiteral("%1/user-%2.png").arg(m_folder, QLatin1String(name));
    QVERIFY2(picture.width() > 300, name);
    // A palette keeps the files small.
    const QImage image = picture.toImage().convertToFormat(QImage::Format_RGB888);
    QVERIFY2(image.save(path, "PNG", 0), qPrintable(path));
}

void tst_guide_pictures::takeMenu(MainWindow *window)
{
    QMenu *menu = nullptr;
    const auto actions = window->menuBar()->actions();
    for (const QAction *action : actions) {
        if (action->text() == QStringLiteral("&Settings"))
            menu = action->menu();
    }
    QVERIFY(menu);
    QAction *const customize = window->findChild<QAction *>(QStringLiteral("customizeToolBars"));
    const QPoint corner = window->menuBar()->actionGeometry(menu->menuAction()).bottomLeft();
    menu->popup(window->menuBar()->mapToGlobal(corner));
    menu->setActiveAction(customize);
    QPixmap picture = window->grab();
    {
        QPainter painter(&picture);
        painter.drawPixmap(corner, menu->grab());
        drawFrame(&painter, menu->actionGeometry(customize).translated(corner));
    }
    menu->close();
    save(picture.copy(0, 0, picture.width(), 260), "menu");
}

void tst_guide_pictures::takeDialog(QWidget *dialog)
{
    dialog->resize(740, 460);
    const EditorViews editor(dialog);
    takeOverview(dialog, editor);
    takeAdding(dialog, editor);
    takeNaming(dialog, editor);
    editor.doubleClick(editor.actionTree, QStringLiteral("New"));
    editor.doubleClick(editor.actionTree, QStringLiteral("< S E P A R A T O R >"));
    editor.doubleClick(editor.actionTree, QStringLiteral("Replace…"));
    editor.doubleClick(editor.actionTree, QStringLiteral("Select All"));
    QTest::mouseClick(static_cast<RyCustomizedDialog *>(dialog)->okButton(), Qt::LeftButton);
}

void tst_guide_pictures::takeOverview(QWidget *dialog, const EditorViews &editor)
{
    editor.click(editor.toolBarList, QStringLiteral("Edit"));
    expandCategories(editor);
    QPixmap picture = dialog->grab();
    {
        QPainter painter(&picture);
        const QPoint inwards(-Diameter, -Diameter);
        drawNumber(&painter, areaOf(editor.actionTree->viewport(), dialog).bottomRight() + inwards,
                   1);
        drawNumber(&painter, areaOf(editor.toolBarList->viewport(), dialog).bottomRight() + inwards,
                   2);
        drawNumber(&painter,
                   areaOf(editor.currentToolBarList->viewport(), dialog).bottomRight() + inwards,
                   3);
        drawNumber(&painter,
                   QPoint(areaOf(editor.downButton, dialog).center().x(),
                          areaOf(editor.downButton, dialog).bottom() + Diameter),
                   4);
        drawNumber(&painter,
                   QPoint(areaOf(editor.newButton, dialog).left() - Diameter,
                          areaOf(editor.newButton, dialog).center().y()),
                   5);
    }
    save(picture, "dialog");
}

void tst_guide_pictures::takeAdding(QWidget *dialog, const EditorViews &editor)
{
    editor.click(editor.currentToolBarList, QStringLiteral("Redo"));
    editor.click(editor.actionTree, QStringLiteral("Delete"));
    QVERIFY(editor.rightButton->isEnabled());
    QPixmap picture = dialog->grab();
    {
        QPainter painter(&picture);
        drawFrame(&painter, areaOf(editor.rightButton, dialog).adjusted(-2, -2, 2, 2));
    }
    save(picture, "adding");
}

void tst_guide_pictures::takeNaming(QWidget *dialog, const EditorViews &editor)
{
    editor.click(editor.newButton);
    QVERIFY(editor.renameEditor());
    QTest::keyClicks(editor.renameEditor(), QStringLiteral("My Tools"));
    QPixmap picture = dialog->grab();
    {
        QPainter painter(&picture);
        drawFrame(&painter, areaOf(editor.newButton, dialog).adjusted(-2, -2, 2, 2));
        drawFrame(&painter, areaOf(editor.renameEditor(), dialog).adjusted(0, -2, 0, 3));
    }
    const QRect list = areaOf(editor.toolBarList, dialog);
    save(picture.copy(list.adjusted(-8, -36, 8, 4)), "naming");
    editor.typeName(QStringLiteral("My Tools"));
    QCOMPARE(currentOf(editor.toolBarList), QStringLiteral("My Tools"));
}

void tst_guide_pictures::takeWindow(MainWindow *window)
{
    QToolBar *mine = nullptr;
    const auto toolBars = window->findChildren<QToolBar *>();
    for (QToolBar *toolBar : toolBars) {
        if (toolBar->windowTitle() == QStringLiteral("My Tools"))
            mine = toolBar;
    }
    QVERIFY(mine);
    QCOMPARE(standingOn(mine), words("file_new | edit_replace edit_select_all"));
    window->addToolBar(Qt::LeftToolBarArea, mine);
    QTRY_VERIFY(mine->isVisible() && mine->height() > mine->width());
    QPixmap picture = window->grab();
    {
        QPainter painter(&picture);
        drawFrame(&painter, areaOf(mine, window).adjusted(2, 2, -2, 2));
    }
    save(picture.copy(0, 0, picture.width(), 320), "window");
}

QTEST_MAIN(tst_guide_pictures)
#include "tst_guide_pictures.moc"
