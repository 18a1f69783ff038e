// SPDX-License-Identifier: MIT

#include "dialogkeys.h"

#include <RyCustomizedDialog>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>

namespace {

// As numbers: Qt 5 and Qt 6 have other types for a key with Alt.
const int MoveUp = int(Qt::ALT) | int(Qt::Key_Up);
const int MoveDown = int(Qt::ALT) | int(Qt::Key_Down);

QString shown(const QKeySequence &key)
{
    return key.toString(QKeySequence::NativeText);
}

// Where Qt has no other name of a key than its abbreviation, that is hard to understand.
QString spoken(const QKeySequence &key)
{
    QString name = shown(key);
    if (name == QLatin1String("Ins"))
        return QStringLiteral("Insert");
    if (name == QLatin1String("Del"))
        return QStringLiteral("Delete");
    return name;
}

QString withKey(const QString &text, const QString &key)
{
    return QStringLiteral("%1 (%2)").arg(text, key);
}

// What Alt and a letter press in the dialog already.
QSet<QString> mnemonicsIn(const QWidget *dialog)
{
    QStringList texts;
    const auto buttons = dialog->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        texts.append(button->text());
    const auto labels = dialog->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy())
            texts.append(label->text());
    }
    const auto allTabs = dialog->findChildren<QTabWidget *>();
    for (const QTabWidget *tabs : allTabs) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(tabs->tabText(i));
    }
    QSet<QString> mnemonics;
    for (const QString &text : texts)
        mnemonics.insert(QKeySequence::mnemonic(text).toString());
    mnemonics.remove(QString()); // macOS has no mnemonics
    return mnemonics;
}

// Other scripts are typed with several keys for a character.
bool isOnKeyboards(QChar letter)
{
    return letter.toUpper() != letter.toLower() || letter.script() == QChar::Script_Arabic
        || letter.script() == QChar::Script_Hebrew;
}

// Where no letter of a text is free, or the script has none on keyboards, one is appended, as is
// usual in these languages.
QString withFreeMnemonic(const QString &text, const QSet<QString> &taken)
{
    for (int i = 0; i < text.size(); ++i) {
        QString marked = QString(text).insert(i, QLatin1Char('&'));
        if (isOnKeyboards(text.at(i)) && !taken.contains(QKeySequence::mnemonic(marked).toString()))
            return marked;
    }
    for (char letter = 'A';; ++letter) {
        QString marked = text + QStringLiteral(" (&%1)").arg(QLatin1Char(letter));
        if (letter == 'Z' || !taken.contains(QKeySequence::mnemonic(marked).toString()))
            return marked;
    }
}

} // namespace

DialogKeys::DialogKeys(const DialogParts &parts)
    : QObject(parts.dialog)
    , m_parts(parts)
{
    describe();
    addShortcuts();
    addHelpKey();
    // First, because only captions with a list take letters.
    parts.actionCaption->setBuddy(parts.actionTree);
    parts.toolBarCaption->setBuddy(parts.toolBarList);
    parts.entryCaption->setBuddy(parts.entryList);
    giveMnemonic(parts.actionCaption);
    giveMnemonic(parts.toolBarCaption);
    giveMnemonic(parts.entryCaption);
    orderTabs();
}

void DialogKeys::addShortcuts()
{
    addShortcut(m_parts.actionTree, Qt::Key_Insert, m_parts.rightButton);
    addShortcut(m_parts.toolBarList, Qt::Key_Insert, m_parts.newButton);
    addShortcut(m_parts.toolBarList, Qt::Key_Delete, m_parts.removeButton);
    addShortcut(m_parts.entryList, MoveUp, m_parts.upButton);
    addShortcut(m_parts.entryList, MoveDown, m_parts.downButton);
    addShortcut(m_parts.entryList, Qt::Key_Delete, m_parts.leftButton);
    // The list already handles this key.
    m_parts.renameButton->setToolTip(
        withKey(m_parts.renameButton->toolTip(), shown(QKeySequence(Qt::Key_F2))));
}

// Only in the view, so that Delete still deletes characters while a toolbar is named. A disabled
// button ignores click(), so the shortcut does nothing either.
void DialogKeys::addShortcut(QWidget *view, const QKeySequence &key, QToolButton *button)
{
    QShortcut *const shortcut = new QShortcut(key, view);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, SIGNAL(activated()), button, SLOT(click()));
    button->setToolTip(withKey(button->toolTip(), shown(key)));
    button->setAccessibleDescription(spoken(key));
}

// Presses the button whatever the host has connected it to.
void DialogKeys::addHelpKey()
{
    QPushButton *const button = m_parts.dialog->helpButton();
    const QKeySequence key(QKeySequence::HelpContents);
    QShortcut *const shortcut = new QShortcut(key, m_parts.dialog);
    shortcut->setAutoRepeat(false);
    connect(shortcut, SIGNAL(activated()), button, SLOT(click()));
    button->setToolTip(withKey(button->text().remove(QLatin1Char('&')), shown(key)));
    button->setAccessibleDescription(shown(key));
}

// For screen readers, which would say the tool tip of a button after its name.
void DialogKeys::describe()
{
    const QString insertKey = spoken(Qt::Key_Insert);
    const QString deleteKey = spoken(Qt::Key_Delete);
    const QString renameKey = spoken(Qt::Key_F2);
    const QString upKey = spoken(MoveUp);
    const QString downKey = spoken(MoveDown);
    m_parts.renameButton->setAccessibleDescription(renameKey);
    m_parts.actionTree->setAccessibleDescription(
        tr("%1 adds the current action to the toolbar").arg(insertKey));
    m_parts.toolBarList->setAccessibleDescription(
        tr("%1 makes a toolbar, %2 renames it, %3 removes it")
            .arg(insertKey, renameKey, deleteKey));
    m_parts.entryList->setAccessibleDescription(
        tr("%1 and %2 move the current action, %3 removes it").arg(upKey, downKey, deleteKey));
}

void DialogKeys::giveMnemonic(QLabel *caption)
{
    if (QKeySequence::mnemonic(caption->text()).isEmpty())
        caption->setText(withFreeMnemonic(caption->text(), mnemonicsIn(m_parts.dialog)));
}

// As one works. Qt has the dialog's buttons before the page. A button that is disabled passes the
// focus on to the next one, where another press must do no harm: so none comes before Remove.
void DialogKeys::orderTabs()
{
    QList<QWidget *> order;
    order.append(m_parts.tabs->tabBar());
    if (QWidget *const search =
            m_parts.page->findChild<QLineEdit *>(QStringLiteral("actionSearch")))
        order.append(search);
    order << m_parts.actionTree << m_parts.newButton << m_parts.removeButton << m_parts.renameButton
          << m_parts.toolBarList << m_parts.rightButton << m_parts.leftButton << m_parts.upButton
          << m_parts.downButton << m_parts.entryList;
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order.at(i - 1), order.at(i));
    order.at(1)->setFocus(Qt::OtherFocusReason);
}
