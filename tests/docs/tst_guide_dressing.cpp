// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "nextmodal.h"
#include "testcase.h"
#include "texts.h"

#include <RyCRibbonWidget>
#include <RyCToolBarWidget>
#include <RyCustomizedDialog>
#include <RyToolBarKit>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QtTest>

#include <functional>

namespace {

//! [find]
template <typename Widget> Widget *partOf(const QDialog &dialog, const char *name)
{
    // The "Ribbon" tab has views with the same names, so search below the page.
    return dialog.findChild<RyCToolBarWidget *>()->findChild<Widget *>(QLatin1String(name));
}
//! [find]

//! [ribbon]
void hideRibbonTab(RyCustomizedDialog *dialog)
{
    QTabWidget *const tabs = dialog->findChild<QTabWidget *>();
    // The page is not deleted: it stays a hidden child of the dialog.
    tabs->removeTab(tabs->indexOf(dialog->findChild<RyCRibbonWidget *>()));
    tabs->setTabBarAutoHide(true);
}
//! [ribbon]

//! [help]
void useOwnHelp(RyCustomizedDialog *dialog, const std::function<void()> &showHelp)
{
    QPushButton *const button = dialog->helpButton();
    QObject::disconnect(button, nullptr, dialog, nullptr);
    QObject::connect(button, &QPushButton::clicked, dialog, showHelp);
}
//! [help]

//! [plain-texts]
class PlainTextDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        QString text = QStyledItemDelegate::displayText(value, locale);
        for (int i = text.indexOf(QLatin1Char('&')); i >= 0;
             i = text.indexOf(QLatin1Char('&'), i + 1))
            text.remove(i, 1); // keeps the second one of "&&"
        return text;
    }
};

void hideMnemonics(RyCustomizedDialog *dialog)
{
    for (const char *name : {"actionTree", "toolBarList", "currentToolBarList"}) {
        QAbstractItemView *const view = partOf<QAbstractItemView>(*dialog, name);
        view->setItemDelegate(new PlainTextDelegate(view)); // a shared one would disturb renaming
    }
}
//! [plain-texts]

void customizeDressed(RyToolBarManager *manager, QMainWindow *window,
                      const std::function<void()> &showHelp)
{
    RyCustomizedDialog dialog({manager, nullptr}, window);
    hideRibbonTab(&dialog);
    useOwnHelp(&dialog, showHelp);
    hideMnemonics(&dialog);
    dialog.exec();
}

void dressKit(RyToolBarKit *kit, const std::function<void()> &showHelp)
{
    //! [kit]
    QObject::connect(kit, &RyToolBarKit::aboutToCustomize, kit,
                     [=](RyCustomizedDialog *dialog) { useOwnHelp(dialog, showHelp); });
    //! [kit]
}

void dressLess(RyToolBarKit *kit)
{
    //! [less]
    kit->setFeatures(kit->features() & ~(RyToolBarKit::DragActions | RyToolBarKit::UserGuide));
    //! [less]
}

struct EditHost : Host
{
    EditHost()
        : edit(defaultToolBar(QStringLiteral("edit"), words("cut copy | paste"),
                              QStringLiteral("Edit")))
    {
        registered(QStringLiteral("open"), QStringLiteral("File"))
            ->setText(QStringLiteral("&Open && Close"));
        registered(QStringLiteral("save"), QStringLiteral("File"));
    }

    QToolBar *const edit;
};

} // namespace

class tst_guide_dressing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyPartIsFound();
    void everyButtonIsReachedWithTab();
    void theKeyForRenamingWorksByItself();
    void theRibbonTabIsHidden();
    void theOwnHelpIsShown();
    void mnemonicsAreHidden();
    void theTextsOfActionsStay();
    void toolBarsCanStillBeRenamed();
    void featuresCanBeLeftOut();
    void allTogether_data();
    void allTogether();
};

void tst_guide_dressing::everyPartIsFound()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    dialog.show();
    const EditorViews views(&dialog);
    QVERIFY(dialog.findChild<QTabWidget *>(QStringLiteral("m_optionTabWidget")));
    QCOMPARE(partOf<QTreeWidget>(dialog, "actionTree"), views.actionTree);
    QCOMPARE(partOf<QListWidget>(dialog, "toolBarList"), views.toolBarList);
    QCOMPARE(partOf<QListWidget>(dialog, "currentToolBarList"), views.currentToolBarList);
    QCOMPARE(partOf<QToolButton>(dialog, "newButton"), views.newButton);
    QVERIFY(views.actionTree->isVisible());
    QCOMPARE(dialog.objectName(), QStringLiteral("CustomizedDialog"));
    QCOMPARE(views.page->objectName(), QStringLiteral("CToolBarPage"));
    QVERIFY(dialog.findChild<QDialogButtonBox *>(QStringLiteral("m_dialogButtonBox")));
}

void tst_guide_dressing::everyButtonIsReachedWithTab()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    const auto buttons = EditorViews(&dialog).page->findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 7);
    for (const QToolButton *button : buttons)
        QVERIFY2(button->focusPolicy() & Qt::TabFocus, qPrintable(button->objectName()));
}

void tst_guide_dressing::theKeyForRenamingWorksByItself()
{
    EditHost host;
    host.manager.createToolBar(QStringLiteral("Mine"));
    RyCustomizedDialog dialog({&host.manager, nullptr});
    dialog.show();
    const EditorViews editor(&dialog);
    editor.click(editor.toolBarList, QStringLiteral("Mine"));
    QTest::keyClick(editor.toolBarList, Qt::Key_F2);
    editor.typeName(QStringLiteral("My"));
    QCOMPARE(rowsOf(editor.toolBarList), words("Edit My"));
}

void tst_guide_dressing::theRibbonTabIsHidden()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    hideRibbonTab(&dialog);
    dialog.show();
    const EditorViews editor(&dialog);
    QCOMPARE(dialog.findChild<QTabWidget *>()->count(), 1);
    QVERIFY(!dialog.findChild<QTabBar *>()->isVisible());
    editor.doubleClick(editor.currentToolBarList, 0);
    QTest::mouseClick(dialog.okButton(), Qt::LeftButton);
    QCOMPARE(standingOn(host.edit), words("copy | paste"));
}

void tst_guide_dressing::theOwnHelpIsShown()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    int shown = 0;
    useOwnHelp(&dialog, [&shown] { ++shown; });
    dialog.show();
    QTest::mouseClick(dialog.helpButton(), Qt::LeftButton);
    QCOMPARE(shown, 1);
    QVERIFY(!QApplication::activeModalWidget() || QApplication::activeModalWidget() == &dialog);
}

// Compares the display with that of an action without an "&".
void tst_guide_dressing::mnemonicsAreHidden()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    hideMnemonics(&dialog);
    dialog.show();
    const EditorViews editor(&dialog);
    editor.doubleClick(editor.actionTree, QStringLiteral("&Open && Close"));
    const auto pictures = [&editor] {
        return QList<QImage>{editor.actionTree->viewport()->grab().toImage(),
                             editor.currentToolBarList->viewport()->grab().toImage()};
    };
    const QList<QImage> shown = pictures();
    QStyledItemDelegate *const plain = new QStyledItemDelegate(&dialog);
    editor.actionTree->setItemDelegate(plain);
    editor.currentToolBarList->setItemDelegate(plain);
    QVERIFY(shown.at(0) != pictures().at(0));
    QVERIFY(shown.at(1) != pictures().at(1));
    editor.actionTree->currentItem()->setText(0, QStringLiteral("Open & Close"));
    editor.currentToolBarList->currentItem()->setText(QStringLiteral("Open & Close"));
    QCOMPARE(shown, pictures());
}

void tst_guide_dressing::theTextsOfActionsStay()
{
    EditHost host;
    RyCustomizedDialog dialog({&host.manager, nullptr});
    hideMnemonics(&dialog);
    dialog.show();
    QTest::mouseClick(dialog.okButton(), Qt::LeftButton);
    QCOMPARE(host.action(QStringLiteral("open"))->text(), QStringLiteral("&Open && Close"));
}

void tst_guide_dressing::toolBarsCanStillBeRenamed()
{
    EditHost host;
    host.manager.createToolBar(QStringLiteral("Mine"));
    RyCustomizedDialog dialog({&host.manager, nullptr});
    hideMnemonics(&dialog);
    dialog.show();
    const EditorViews editor(&dialog);
    editor.click(editor.toolBarList, QStringLiteral("Mine"));
    editor.click(editor.renameButton);
    editor.typeName(QStringLiteral("R&D"));
    QCOMPARE(rowsOf(editor.toolBarList), words("Edit R&D"));
}

void tst_guide_dressing::featuresCanBeLeftOut()
{
    EditHost host;
    RyToolBarKit kit(&host.window, false);
    dressLess(&kit);
    QCOMPARE(int(RyToolBarKit::AllFeatures) - int(kit.features()),
             int(RyToolBarKit::DragActions | RyToolBarKit::UserGuide));
}

void tst_guide_dressing::allTogether_data()
{
    QTest::addColumn<bool>("hasKit");
    QTest::newRow("with the kit") << true;
    QTest::newRow("without") << false;
}

void tst_guide_dressing::allTogether()
{
    QFETCH(bool, hasKit);
    EditHost host;
    host.window.show();
    int helps = 0;
    const std::function<void()> showHelp = [&helps] { ++helps; };
    const NextModal modal([&helps](QWidget *shown) {
        const EditorViews editor(shown);
        QVERIFY(!shown->findChild<QTabBar *>()->isVisible());
        const auto delegate =
            qobject_cast<QStyledItemDelegate *>(editor.toolBarList->itemDelegate());
        QCOMPARE(delegate->displayText(QStringLiteral("&Open"), QLocale()), QStringLiteral("Open"));
        QTest::mouseClick(static_cast<RyCustomizedDialog *>(shown)->helpButton(), Qt::LeftButton);
        QCOMPARE(helps, 1);
        QTest::mouseClick(static_cast<RyCustomizedDialog *>(shown)->okButton(), Qt::LeftButton);
    });
    if (hasKit) {
        RyToolBarKit *const kit = new RyToolBarKit(&host.window, false);
        kit->setSettings(nullptr, QString());
        dressKit(kit, showHelp);
        kit->customizeAction()->trigger();
    } else {
        customizeDressed(&host.manager, &host.window, showHelp);
    }
    QTRY_VERIFY(modal.wasShown());
    QCOMPARE(helps, 1);
}

QTEST_MAIN(tst_guide_dressing)
#include "tst_guide_dressing.moc"
