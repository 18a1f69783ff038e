// SPDX-License-Identifier: MIT

#include "kitdialog.h"
#include "testcase.h"

#include <QApplication>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QtTest>

/*
 * The help of the kit's dialog.
 */
class tst_UserGuide : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void helpOpensTheGuide_data();
    void helpOpensTheGuide();
    void theDialogStaysUsableAndSoDoesTheGuide();
    void thereIsOneWindow();
    void escapeClosesTheGuideOnly();
    void theGuideGoesWithTheDialog();
    void theWindowFitsThePictures();
    void theGuideIsInTheLanguageOfTheDialog_data();
    void theGuideIsInTheLanguageOfTheDialog();
    void everyPictureIsThere_data();
    void everyPictureIsThere();
    void everyLinkLeadsToAHeading_data();
    void everyLinkLeadsToAHeading();
    void aProgramSetsItsOwnHelp_data();
    void aProgramSetsItsOwnHelp();
};

namespace {

// As if the kit's translation of that language were loaded.
class Language : public QTranslator
{
public:
    explicit Language(const QString &name)
        : m_name(name)
    {
        QCoreApplication::installTranslator(this);
    }
    ~Language() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isName = QString(context) == "UserGuide" && QString(source) == "English";
        return isName ? m_name : QString();
    }

private:
    QString m_name;
};

QList<QDialog *> guidesOf(const QWidget *dialog)
{
    return dialog->findChildren<QDialog *>("userGuide");
}

// Presses Help and returns what that opens.
QTextBrowser *openGuide(const KitDialog &stage)
{
    QTest::mouseClick(stage.dialog->helpButton(), Qt::LeftButton);
    const auto guides = guidesOf(stage.dialog);
    return guides.size() == 1 ? guides.constFirst()->findChild<QTextBrowser *>() : nullptr;
}

void addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "English";
    QTest::newRow("German") << "Deutsch";
}

// What the formats of the text have of a kind, such as the targets of its links.
QStringList inFormats(const QTextDocument *document,
                      const std::function<QStringList(const QTextCharFormat &)> &from)
{
    QStringList found;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it)
            found << from(it.fragment().charFormat());
    }
    found.removeAll(QString());
    found.removeDuplicates();
    return found;
}

} // namespace

void tst_UserGuide::helpOpensTheGuide_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("F1") << true;
}

void tst_UserGuide::helpOpensTheGuide()
{
    QFETCH(bool, byKey);
    KitDialog stage;
    if (byKey)
        stage.pressKey(stage.views.actionTree, Qt::Key_F1);
    else
        QTest::mouseClick(stage.dialog->helpButton(), Qt::LeftButton);
    QCOMPARE(guidesOf(stage.dialog).size(), 1);
    QDialog *const guide = guidesOf(stage.dialog).constFirst();
    QVERIFY(guide->isVisible());
    QVERIFY(guide->isWindow());
    QCOMPARE(guide->windowTitle(), "Making the toolbars your own");
    const QTextBrowser *const browser = guide->findChild<QTextBrowser *>();
    QVERIFY(browser->toPlainText().startsWith("Making the toolbars your own"));
    QVERIFY(browser->toPlainText().contains("Alt+Up"));
    QCOMPARE(browser->accessibleName(), guide->windowTitle());
}

void tst_UserGuide::theDialogStaysUsableAndSoDoesTheGuide()
{
    KitDialog stage;
    const QTextBrowser *const browser = openGuide(stage);
    QVERIFY(browser);
    QVERIFY(!browser->window()->isModal());
    // Otherwise the modal dialog would block it.
    QCOMPARE(browser->window()->parentWidget(), stage.dialog);
}

void tst_UserGuide::thereIsOneWindow()
{
    KitDialog stage;
    QTextBrowser *const browser = openGuide(stage);
    QVERIFY(browser);
    browser->window()->resize(500, 300);
    QCOMPARE(openGuide(stage), browser);
    browser->window()->close();
    QCOMPARE(openGuide(stage), browser);
    QVERIFY(browser->isVisible());
    QCOMPARE(browser->window()->size(), QSize(500, 300));
}

void tst_UserGuide::escapeClosesTheGuideOnly()
{
    KitDialog stage;
    QTextBrowser *const browser = openGuide(stage);
    QVERIFY(browser);
    QTest::keyClick(browser, Qt::Key_Escape);
    QVERIFY(!browser->isVisible());
    QVERIFY(stage.dialog->isVisible());
}

void tst_UserGuide::theGuideGoesWithTheDialog()
{
    KitDialog stage;
    const QPointer<QTextBrowser> browser = openGuide(stage);
    QVERIFY(browser);
    stage.dialog->close();
    QTRY_VERIFY(!browser);
}

void tst_UserGuide::theWindowFitsThePictures()
{
    KitDialog stage;
    const QTextBrowser *const browser = openGuide(stage);
    QVERIFY(browser);
    const QSize screen = browser->screen()->availableSize();
    QVERIFY(browser->window()->width() <= screen.width());
    QVERIFY(browser->window()->height() <= screen.height());
    browser->window()->resize(820, 640);
    QVERIFY(browser->document()->idealWidth() <= browser->viewport()->width());
}

void tst_UserGuide::theGuideIsInTheLanguageOfTheDialog_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::newRow("English") << "English"
                             << "Making the toolbars your own";
    QTest::newRow("German") << "Deutsch"
                            << "Werkzeugleisten nach Ihrem Geschmack";
    QTest::newRow("one without a guide") << "Latina"
                                         << "Making the toolbars your own";
}

void tst_UserGuide::theGuideIsInTheLanguageOfTheDialog()
{
    QFETCH(QString, language);
    QFETCH(QString, title);
    const Language translator(language);
    KitDialog stage;
    const QTextBrowser *const browser = openGuide(stage);
    QVERIFY(browser);
    QCOMPARE(browser->documentTitle(), title);
    QVERIFY(browser->toPlainText().startsWith(title));
}

void tst_UserGuide::everyPictureIsThere_data()
{
    addLanguages();
}

void tst_UserGuide::everyPictureIsThere()
{
    QFETCH(QString, language);
    const Language translator(language);
    KitDialog stage;
    QTextBrowser *const browser = openGuide(stage);
    QVERIFY(browser);
    const QStringList pictures = inFormats(browser->document(), [](const QTextCharFormat &format) {
        return QStringList(format.toImageFormat().name());
    });
    QVERIFY(pictures.size() >= 5);
    for (const QString &picture : pictures) {
        const QVariant found = browser->document()->resource(QTextDocument::ImageResource, picture);
        QVERIFY2(!found.isNull(), qPrintable(picture));
    }
}

void tst_UserGuide::everyLinkLeadsToAHeading_data()
{
    addLanguages();
}

void tst_UserGuide::everyLinkLeadsToAHeading()
{
    QFETCH(QString, language);
    const Language translator(language);
    KitDialog stage;
    QTextBrowser *const browser = openGuide(stage);
    QVERIFY(browser);
    const QStringList links = inFormats(browser->document(), [](const QTextCharFormat &format) {
        return QStringList(format.anchorHref());
    });
    QVERIFY(links.size() >= 10);
    browser->window()->resize(600, 300);
    QList<int> places;
    for (const QString &link : links) {
        browser->verticalScrollBar()->setValue(0);
        browser->setSource(browser->source().resolved(QUrl(link)));
        places << browser->verticalScrollBar()->value();
        QVERIFY2(places.constLast() > 0, qPrintable(link));
    }
    // The last one may be too near to the end to be at the top.
    QCOMPARE(QSet<int>(places.cbegin(), places.cend()).size(), links.size());
}

void tst_UserGuide::aProgramSetsItsOwnHelp_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("F1") << true;
}

void tst_UserGuide::aProgramSetsItsOwnHelp()
{
    QFETCH(bool, byKey);
    KitDialog stage;
    stage.dialog->close();
    letTheKitFollow();
    int helps = 0;
    connect(stage.program.kit(), &RyToolBarKit::aboutToCustomize, this,
            [&](RyCustomizedDialog *dialog) {
                disconnect(dialog->helpButton(), nullptr, dialog, nullptr);
                connect(dialog->helpButton(), &QPushButton::clicked, this, [&] { ++helps; });
            });
    RyCustomizedDialog *const dialog = stage.program.openDialog();
    QApplication::setActiveWindow(dialog);
    if (byKey)
        QTest::keyClick(dialog, Qt::Key_F1);
    else
        QTest::mouseClick(dialog->helpButton(), Qt::LeftButton);
    QCOMPARE(helps, 1);
    QCOMPARE(guidesOf(dialog).size(), 0);
}

QTEST_MAIN(tst_UserGuide)
#include "tst_userguide.moc"
