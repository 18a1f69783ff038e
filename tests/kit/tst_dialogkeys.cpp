// SPDX-License-Identifier: MIT

#include "kitdialog.h"
#include "testcase.h"
#include "texts.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QtTest>

QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void qt_set_sequence_auto_mnemonic(bool enable);
QT_END_NAMESPACE

/*
 * The dialog of the kit without a mouse.
 */
class tst_DialogKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keysPressTheButtons_data();
    void keysPressTheButtons();
    void insertMakesAToolBar();
    void f2RenamesAToolBar();
    void aKeyDoesOnlyWhatItsButtonMay();
    void keysOfAListDoNothingInOthers();
    void deleteInTheNameDeletesCharacters();
    void f1PressesHelp();
    void toolTipsShowTheKeys_data();
    void toolTipsShowTheKeys();
    void captionsLeadToTheirLists_data();
    void captionsLeadToTheirLists();
    void takenLettersAreLeftAlone_data();
    void takenLettersAreLeftAlone();
    void aCaptionWithoutAFreeLetterGetsOne_data();
    void aCaptionWithoutAFreeLetterGetsOne();
    void withoutMnemonicsCaptionsStayAsTheyAre();
    void aMnemonicOfTheTranslationStays();
    void noTwoControlsHaveTheSameKey();
    void theFocusBeginsWithTheActions();
    void tabGoesInReadingOrder();
    void pressingOnDoesNoHarm_data();
    void pressingOnDoesNoHarm();
};

namespace {

QString nameOf(const QWidget *widget)
{
    if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
        return widget->objectName();
    const auto *const button = qobject_cast<const QPushButton *>(widget);
    return button ? button->text().remove('&') : widget->metaObject()->className();
}

QString mnemonicOf(const QString &text)
{
    return QKeySequence::mnemonic(text).toString();
}

// Translates the captions.
class Captions : public QTranslator
{
public:
    explicit Captions(const QMap<QString, QString> &texts)
        : m_texts(texts)
    {
        QCoreApplication::installTranslator(this);
    }
    ~Captions() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool ofRibbon = QString(context).contains("Ribbon");
        return ofRibbon ? QString() : m_texts.value(source);
    }

private:
    QMap<QString, QString> m_texts;
};

} // namespace

void tst_DialogKeys::keysPressTheButtons_data()
{
    QTest::addColumn<QString>("view");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("alt");
    QTest::addColumn<QString>("entries");
    QTest::addColumn<QString>("toolBars");
    const QString all = "Edit File Mine";
    QTest::newRow("add") << "actionTree" << int(Qt::Key_Insert) << false << "Cut | Paste Copy"
                         << all;
    QTest::newRow("up") << "currentToolBarList" << int(Qt::Key_Up) << true << "| Cut Copy" << all;
    QTest::newRow("down") << "currentToolBarList" << int(Qt::Key_Down) << true << "Cut Copy |"
                          << all;
    QTest::newRow("remove action")
        << "currentToolBarList" << int(Qt::Key_Delete) << false << "Cut Copy" << all;
    QTest::newRow("remove toolbar")
        << "toolBarList" << int(Qt::Key_Delete) << false << "New Open Save"
        << "Edit File";
}

void tst_DialogKeys::keysPressTheButtons()
{
    QFETCH(QString, view);
    QFETCH(int, key);
    QFETCH(bool, alt);
    QFETCH(QString, entries);
    QFETCH(QString, toolBars);
    KitDialog stage;
    stage.choose("Mine", 1);
    stage.views.actionTree->setCurrentItem(itemNamed(stage.views.actionTree, "Paste"));
    QWidget *const widget = stage.views.page->findChild<QWidget *>(view);
    stage.pressKey(widget, Qt::Key(key), alt ? Qt::AltModifier : Qt::NoModifier);
    QCOMPARE(stage.entries(), words(qPrintable(entries)));
    QCOMPARE(rowsOf(stage.views.toolBarList), words(qPrintable(toolBars)));
    QCOMPARE(QApplication::focusWidget(), widget);
}

void tst_DialogKeys::insertMakesAToolBar()
{
    KitDialog stage;
    stage.pressKey(stage.views.toolBarList, Qt::Key_Insert);
    QVERIFY(stage.views.renameEditor());
    QCOMPARE(currentOf(stage.views.toolBarList), "Custom Toolbar");
}

void tst_DialogKeys::f2RenamesAToolBar()
{
    KitDialog stage;
    stage.choose("Mine");
    stage.pressKey(stage.views.toolBarList, Qt::Key_F2);
    QVERIFY(stage.views.renameEditor());
}

void tst_DialogKeys::aKeyDoesOnlyWhatItsButtonMay()
{
    KitDialog stage;
    stage.choose("File");
    QVERIFY(!stage.views.removeButton->isEnabled());
    stage.pressKey(stage.views.toolBarList, Qt::Key_Delete);
    QCOMPARE(rowsOf(stage.views.toolBarList), words("Edit File Mine"));
}

void tst_DialogKeys::keysOfAListDoNothingInOthers()
{
    KitDialog stage;
    stage.choose("Mine");
    stage.pressKey(stage.views.actionTree, Qt::Key_Delete);
    stage.pressKey(stage.views.toolBarList, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(stage.entries(), words("Cut | Copy"));
    QCOMPARE(rowsOf(stage.views.toolBarList), words("Edit File Mine"));
}

void tst_DialogKeys::deleteInTheNameDeletesCharacters()
{
    KitDialog stage;
    stage.pressKey(stage.views.toolBarList, Qt::Key_Insert);
    QLineEdit *const editor = qobject_cast<QLineEdit *>(stage.views.renameEditor());
    QVERIFY(editor);
    QCOMPARE(QApplication::focusWidget(), editor);
    editor->setCursorPosition(0);
    QTest::keyClick(editor, Qt::Key_Delete);
    QCOMPARE(editor->text(), "ustom Toolbar");
    QTest::keyClick(editor, Qt::Key_Insert);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!stage.views.renameEditor());
    QCOMPARE(rowsOf(stage.views.toolBarList), lines("Edit,File,Mine,ustom Toolbar"));
    QVERIFY(stage.dialog->isVisible());
}

void tst_DialogKeys::f1PressesHelp()
{
    KitDialog stage;
    stage.choose("Mine", 1);
    disconnect(stage.dialog->helpButton(), nullptr, stage.dialog, nullptr);
    const QSignalSpy clicked(stage.dialog->helpButton(), &QAbstractButton::clicked);
    stage.pressKey(stage.views.actionTree, Qt::Key_F1);
    stage.pressKey(stage.views.toolBarList, Qt::Key_F1);
    stage.pressKey(stage.views.upButton, Qt::Key_F1);
    QCOMPARE(clicked.count(), 3);
}

void tst_DialogKeys::toolTipsShowTheKeys_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("newButton") << "Add new toolbar (Ins)";
    QTest::newRow("removeButton") << "Remove selected toolbar (Del)";
    QTest::newRow("renameButton") << "Rename toolbar (F2)";
    QTest::newRow("upButton") << "Move action up (Alt+Up)";
    QTest::newRow("downButton") << "Move action down (Alt+Down)";
    QTest::newRow("leftButton") << "Remove action from toolbar (Del)";
    QTest::newRow("rightButton") << "Add action to toolbar (Ins)";
}

void tst_DialogKeys::toolTipsShowTheKeys()
{
    QFETCH(QString, toolTip);
    const KitDialog stage;
    QCOMPARE(stage.views.page->findChild<QWidget *>(QTest::currentDataTag())->toolTip(), toolTip);
    QCOMPARE(stage.dialog->helpButton()->toolTip(), "Help (F1)");
}

void tst_DialogKeys::captionsLeadToTheirLists_data()
{
    QTest::addColumn<QString>("view");
    QTest::newRow("label") << "actionTree";
    QTest::newRow("label_2") << "toolBarList";
    QTest::newRow("label_6") << "currentToolBarList";
}

void tst_DialogKeys::captionsLeadToTheirLists()
{
    QFETCH(QString, view);
    KitDialog stage;
    const QLabel *const caption = stage.views.page->findChild<QLabel *>(QTest::currentDataTag());
    QWidget *const list = stage.views.page->findChild<QWidget *>(view);
    QCOMPARE(caption->buddy(), list);
    const QString letter = mnemonicOf(caption->text()).right(1);
    QVERIFY(!letter.isEmpty());
    stage.dialog->okButton()->setFocus();
    QTest::keyClick(stage.dialog, letter.at(0).toLatin1(), Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), list);
}

void tst_DialogKeys::takenLettersAreLeftAlone_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("by a button") << "Rename";
    QTest::newRow("by another caption") << "Toolbars";
    QTest::newRow("by a tab") << "ToolBar";
}

void tst_DialogKeys::takenLettersAreLeftAlone()
{
    QFETCH(QString, source);
    const Captions captions({{source, "&Actions of all"}});
    const KitDialog stage(RyToolBarKit::ReadableLists);
    QCOMPARE(stage.views.page->findChild<QLabel *>("label")->text(), "A&ctions");
    QCOMPARE(stage.views.page->findChild<QLabel *>("label_6")->text(), "C&urrent Toolbar Actions");
}

void tst_DialogKeys::aCaptionWithoutAFreeLetterGetsOne_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("caption");
    QTest::newRow("Chinese") << "操作"
                             << "操作 (&A)";
    QTest::newRow("Japanese") << "アクション"
                              << "アクション (&A)";
    QTest::newRow("Japanese with a long vowel") << "ツールバー"
                                                << "ツールバー (&A)";
    QTest::newRow("Arabic") << "الإجراءات"
                            << "&الإجراءات";
    QTest::newRow("Korean") << "작업"
                            << "작업 (&A)";
    QTest::newRow("Russian") << "Действия"
                             << "&Действия";
    QTest::newRow("Hebrew") << "פעולות"
                            << "&פעולות";
    QTest::newRow("signs first") << "(x)"
                                 << "(&x)";
    QTest::newRow("nothing but signs") << "1 - 2"
                                       << "1 - 2 (&A)";
    QTest::newRow("only taken letters") << "Xx"
                                        << "Xx (&A)";
}

void tst_DialogKeys::aCaptionWithoutAFreeLetterGetsOne()
{
    QFETCH(QString, text);
    QFETCH(QString, caption);
    const QString taken = QTest::currentDataTag() == QString("only taken letters") ? "&X" : "X";
    const Captions captions({{"Actions", text}, {"Rename", taken}});
    const KitDialog stage;
    QCOMPARE(stage.views.page->findChild<QLabel *>("label")->text(), caption);
}

// As on macOS.
void tst_DialogKeys::withoutMnemonicsCaptionsStayAsTheyAre()
{
    qt_set_sequence_auto_mnemonic(false);
    const KitDialog stage;
    qt_set_sequence_auto_mnemonic(true);
    const auto captions = stage.dialog->findChildren<QLabel *>();
    for (const QLabel *caption : captions)
        QVERIFY2(!caption->text().contains("("), qPrintable(caption->text()));
}

void tst_DialogKeys::aMnemonicOfTheTranslationStays()
{
    const Captions captions({{"Actions", "Act&ions"}});
    const KitDialog stage;
    QCOMPARE(stage.views.page->findChild<QLabel *>("label")->text(), "Act&ions");
}

void tst_DialogKeys::noTwoControlsHaveTheSameKey()
{
    const KitDialog stage;
    QStringList keys;
    const auto buttons = stage.dialog->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        keys << mnemonicOf(button->text());
    const auto labels = stage.dialog->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy())
            keys << mnemonicOf(label->text());
    }
    const auto shortcuts = stage.dialog->findChildren<QShortcut *>();
    for (const QShortcut *shortcut : shortcuts) {
        const bool inViewOnly = shortcut->context() == Qt::WidgetShortcut;
        keys << (inViewOnly ? shortcut->parent()->objectName() + " " : QString())
                + shortcut->key().toString();
    }
    keys.removeAll(QString());
    QVERIFY(keys.size() >= 10);
    QStringList unique = keys;
    unique.removeDuplicates();
    QCOMPARE(keys, unique);
}

void tst_DialogKeys::theFocusBeginsWithTheActions()
{
    // A search line comes first.
    const KitDialog stage(RyToolBarKit::SearchActions);
    QCOMPARE(QApplication::focusWidget(), stage.views.actionTree);
}

void tst_DialogKeys::tabGoesInReadingOrder()
{
    KitDialog stage(RyToolBarKit::SearchActions);
    stage.choose("Mine", 1);
    QStringList found;
    do {
        found << nameOf(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != stage.views.actionTree && found.size() < 30);
    QCOMPARE(found.mid(0, 10),
             words("actionTree newButton removeButton renameButton toolBarList rightButton "
                   "leftButton upButton downButton currentToolBarList"));
    // Their order depends on the platform.
    QStringList buttons = found.mid(10, 5);
    buttons.sort();
    QCOMPARE(buttons, lines("Apply,Cancel,Help,OK,Restore Defaults"));
    found.removeAll("QTabBar"); // it is only there if there are tabs
    QCOMPARE(found.size(), 15);
}

void tst_DialogKeys::pressingOnDoesNoHarm_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("upButton") << 2;
    QTest::newRow("downButton") << 0;
}

// The third press finds the button disabled, which passes the focus on.
void tst_DialogKeys::pressingOnDoesNoHarm()
{
    QFETCH(int, row);
    KitDialog stage;
    stage.choose("Mine", row);
    QWidget *const button = stage.views.page->findChild<QWidget *>(QTest::currentDataTag());
    button->setFocus();
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(QApplication::focusWidget() != button);
    QCOMPARE(stage.entries().size(), 3);
}

QTEST_MAIN(tst_DialogKeys)
#include "tst_dialogkeys.moc"
