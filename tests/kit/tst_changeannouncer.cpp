// SPDX-License-Identifier: MIT

#include "kitdialog.h"
#include "testcase.h"
#include "texts.h"

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

/*
 * What the kit's dialog lets screen readers say after a change.
 */
class tst_ChangeAnnouncer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void openingAnnouncesNothing();
    void anAddedActionIsAnnounced_data();
    void anAddedActionIsAnnounced();
    void anActionThatIsThereAlreadyIsMoved();
    void theFirstActionOfAToolBarIsAnnounced();
    void aRemovedEntryIsAnnounced();
    void aMovedEntryIsAnnouncedWithItsPlace_data();
    void aMovedEntryIsAnnouncedWithItsPlace();
    void textsAreSpokenWithoutMnemonics();
    void theSameTextIsAnnouncedAgain();
    void aRemovedToolBarIsAnnounced();
    void anotherToolBarIsNoChange();
    void aNewToolBarIsNot();
    void leavingThePageAnnouncesNothing();
    void closingAnnouncesNothing();
    void severalRemovedEntriesAreAnnouncedTogether();
    void differentChangesAtOnceAreNot();
    void theNotificationIsNotSeen();
    void afterAChangeNothingGoesOn();
};

namespace {

// Records the notifications that appear in the dialog. Without a screen reader, Qt sends no event.
class Announced : public QObject
{
public:
    explicit Announced(const QWidget *dialog)
        : m_notification(dialog->findChild<QWidget *>("changeNotification"))
    {
        letTheKitFollow();
        m_notification->installEventFilter(this);
    }

    QStringList take()
    {
        letTheKitFollow();
        QStringList taken;
        taken.swap(m_texts);
        return taken;
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QAccessibleInterface *const interface =
            QAccessible::queryAccessibleInterface(watched);
        if (event->type() == QEvent::Show && interface->role() == QAccessible::Notification)
            m_texts << interface->text(QAccessible::Name);
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget *const m_notification;
    QStringList m_texts;
};

} // namespace

void tst_ChangeAnnouncer::openingAnnouncesNothing()
{
    const KitDialog stage;
    letTheKitFollow();
    const QWidget *const notification = stage.dialog->findChild<QWidget *>("changeNotification");
    QVERIFY(notification);
    QVERIFY(!notification->isVisible());
}

void tst_ChangeAnnouncer::anAddedActionIsAnnounced_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("text");
    QTest::newRow("action") << "Paste"
                            << "Added: Paste";
    QTest::newRow("separator") << "< S E P A R A T O R >"
                               << "Added: Separator";
}

void tst_ChangeAnnouncer::anAddedActionIsAnnounced()
{
    QFETCH(QString, action);
    QFETCH(QString, text);
    KitDialog stage;
    Announced announced(stage.dialog);
    stage.choose("File", 1);
    stage.views.actionTree->setCurrentItem(itemNamed(stage.views.actionTree, action));
    stage.views.click(stage.views.rightButton);
    QCOMPARE(announced.take(), QStringList(text));
}

void tst_ChangeAnnouncer::anActionThatIsThereAlreadyIsMoved()
{
    KitDialog stage;
    Announced announced(stage.dialog);
    stage.choose("Mine", 2);
    stage.views.actionTree->setCurrentItem(itemNamed(stage.views.actionTree, "Cut"));
    stage.views.click(stage.views.rightButton);
    QCOMPARE(stage.entries(), words("| Copy Cut"));
    QCOMPARE(announced.take(), QStringList("Moved: Cut, 3 of 3"));
}

void tst_ChangeAnnouncer::theFirstActionOfAToolBarIsAnnounced()
{
    KitDialog stage;
    stage.dialog->close();
    letTheKitFollow();
    stage.program.create("Empty", QString());
    RyCustomizedDialog *const dialog = stage.program.openDialog();
    const EditorViews views(dialog);
    Announced announced(dialog);
    views.toolBarList->setCurrentItem(itemNamed(views.toolBarList, "Empty"));
    QCOMPARE(announced.take(), QStringList());
    views.click(views.rightButton);
    QCOMPARE(announced.take(), QStringList("Added: Separator"));
}

void tst_ChangeAnnouncer::aRemovedEntryIsAnnounced()
{
    KitDialog stage;
    Announced announced(stage.dialog);
    stage.choose("Mine", 1);
    stage.views.click(stage.views.leftButton);
    QCOMPARE(announced.take(), QStringList("Removed: Separator"));
    stage.views.click(stage.views.leftButton);
    QCOMPARE(announced.take(), QStringList("Removed: Copy"));
}

void tst_ChangeAnnouncer::aMovedEntryIsAnnouncedWithItsPlace_data()
{
    QTest::addColumn<bool>("up");
    QTest::addColumn<QString>("text");
    QTest::newRow("up") << true << "Moved: Separator, 1 of 3";
    QTest::newRow("down") << false << "Moved: Separator, 3 of 3";
}

void tst_ChangeAnnouncer::aMovedEntryIsAnnouncedWithItsPlace()
{
    QFETCH(bool, up);
    QFETCH(QString, text);
    KitDialog stage;
    Announced announced(stage.dialog);
    stage.choose("Mine", 1);
    stage.views.click(up ? stage.views.upButton : stage.views.downButton);
    QCOMPARE(announced.take(), QStringList(text));
}

void tst_ChangeAnnouncer::textsAreSpokenWithoutMnemonics()
{
    KitDialog stage;
    stage.dialog->close();
    stage.program.action("paste")->setText("&Paste && Go");
    RyCustomizedDialog *const dialog = stage.program.openDialog();
    const EditorViews views(dialog);
    Announced announced(dialog);
    views.actionTree->setCurrentItem(itemNamed(views.actionTree, "&Paste && Go"));
    views.click(views.rightButton);
    QCOMPARE(announced.take(), QStringList("Added: Paste & Go"));
}

void tst_ChangeAnnouncer::theSameTextIsAnnouncedAgain()
{
    KitDialog stage;
    Announced announced(stage.dialog);
    stage.choose("Mine", 1);
    stage.views.actionTree->setCurrentItem(
        itemNamed(stage.views.actionTree, "< S E P A R A T O R >"));
    stage.views.click(stage.views.rightButton);
    QCOMPARE(announced.take(), QStringList("Added: Separator"));
    stage.views.click(stage.views.rightButton);
    QCOMPARE(announced.take(), QStringList("Added: Separator"));
}

void tst_ChangeAnnouncer::aRemovedToolBarIsAnnounced()
{
    KitDialog stage;
    Announced announced(stage.dialog);
    stage.choose("Mine");
    stage.views.click(stage.views.removeButton);
    QCOMPARE(rowsOf(stage.views.toolBarList), words("Edit File"));
    QCOMPARE(announced.take(), QStringList("Removed: Mine"));
}

void tst_ChangeAnnouncer::anotherToolBarIsNoChange()
{
    KitDialog stage;
    Announced announced(stage.dialog);
    stage.choose("Mine");
    stage.choose("File");
    stage.choose("Edit");
    QCOMPARE(announced.take(), QStringList());
}

void tst_ChangeAnnouncer::aNewToolBarIsNot()
{
    KitDialog stage;
    Announced announced(stage.dialog);
    stage.views.click(stage.views.newButton);
    stage.views.typeName("A");
    QCOMPARE(announced.take(), QStringList());
}

void tst_ChangeAnnouncer::leavingThePageAnnouncesNothing()
{
    KitDialog stage(RyToolBarKit::ReadableLists);
    Announced announced(stage.dialog);
    stage.choose("Mine");
    stage.views.click(stage.views.removeButton);
    stage.choose("File");
    announced.take();
    QTabWidget *const tabs = stage.dialog->findChild<QTabWidget *>();
    tabs->setCurrentIndex(1);
    QCOMPARE(announced.take(), QStringList());
    tabs->setCurrentIndex(0);
    QCOMPARE(announced.take(), QStringList());
}

void tst_ChangeAnnouncer::closingAnnouncesNothing()
{
    KitDialog stage(RyToolBarKit::ProtectEdits);
    Announced announced(stage.dialog);
    stage.choose("Mine", 1);
    stage.views.click(stage.views.leftButton);
    stage.dialog->reject();
    QCOMPARE(announced.take(), QStringList());
}

void tst_ChangeAnnouncer::severalRemovedEntriesAreAnnouncedTogether()
{
    KitDialog stage;
    Announced announced(stage.dialog);
    stage.choose("Mine", 0);
    stage.views.leftButton->click();
    stage.views.leftButton->click();
    QCOMPARE(announced.take(), QStringList("Removed: Cut, Separator"));
    // The last state is what the next change is compared with.
    stage.views.leftButton->click();
    QCOMPARE(announced.take(), QStringList("Removed: Copy"));
}

void tst_ChangeAnnouncer::differentChangesAtOnceAreNot()
{
    KitDialog stage;
    Announced announced(stage.dialog);
    stage.choose("Mine", 0);
    stage.views.leftButton->click();
    stage.views.leftButton->click();
    stage.views.actionTree->setCurrentItem(itemNamed(stage.views.actionTree, "Paste"));
    stage.views.rightButton->click();
    QCOMPARE(stage.entries(), words("Copy Paste"));
    QCOMPARE(announced.take(), QStringList());
}

void tst_ChangeAnnouncer::theNotificationIsNotSeen()
{
    KitDialog stage;
    const QImage before = stage.dialog->grab().toImage();
    QWidget *const notification = stage.dialog->findChild<QWidget *>("changeNotification");
    QVERIFY(notification);
    notification->show();
    QCOMPARE(stage.dialog->grab().toImage(), before);
    QCOMPARE(notification->focusPolicy(), Qt::NoFocus);
    QCOMPARE(notification->size(), QSize(1, 1));
}

void tst_ChangeAnnouncer::afterAChangeNothingGoesOn()
{
    KitDialog stage;
    stage.choose("Mine", 1);
    stage.views.click(stage.views.leftButton);
    QAbstractEventDispatcher *const dispatcher = QAbstractEventDispatcher::instance();
    QTRY_VERIFY(!dispatcher->processEvents(QEventLoop::AllEvents));
}

QTEST_MAIN(tst_ChangeAnnouncer)
#include "tst_changeannouncer.moc"
