// SPDX-License-Identifier: MIT

#include "dressing.h"

#include "actionfilter.h"
#include "plaintextdelegate.h"

#include <RyCustomizedDialog>

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QTreeWidget>

namespace {

// Does not set equal data again, because each change of a row emits a signal to the editor.
void setOnce(QListWidgetItem *item, int role, const QString &text)
{
    if (item->data(role).toString() != text)
        item->setData(role, text);
}

} // namespace

// Searches below the page, because the "Ribbon" page has parts with the same names.
template <typename Widget> Widget *Dressing::part(const char *name) const
{
    return m_page->findChild<Widget *>(QLatin1String(name));
}

Dressing::Dressing(RyCustomizedDialog *dialog)
    : QObject(dialog)
    , m_dialog(dialog)
    , m_page(dialog->findChild<QWidget *>(QStringLiteral("CToolBarPage")))
    , m_actionTree(part<QTreeWidget>("actionTree"))
    , m_toolBarList(part<QListWidget>("toolBarList"))
    , m_currentToolBarList(part<QListWidget>("currentToolBarList"))
    , m_leftButton(part<QToolButton>("leftButton"))
    , m_rightButton(part<QToolButton>("rightButton"))
    , m_back(m_leftButton->icon())
    , m_forward(m_rightButton->icon())
{
    hideMnemonics();
    addFilter();
    addNames();
    addShortcuts();
    replaceHelp();
    pointArrows();
    m_page->installEventFilter(this);
}

// One for each view: a delegate reports the end of an edit to all its views.
void Dressing::hideMnemonics()
{
    for (QAbstractItemView *view : {static_cast<QAbstractItemView *>(m_actionTree),
                                    static_cast<QAbstractItemView *>(m_toolBarList),
                                    static_cast<QAbstractItemView *>(m_currentToolBarList)})
        view->setItemDelegate(new PlainTextDelegate(view));
}

void Dressing::addFilter()
{
    ActionFilter *const filter = new ActionFilter(m_actionTree, m_page);
    filter->setObjectName(QStringLiteral("actionFilter"));
    filter->setPlaceholderText(tr("Filter"));
    filter->setAccessibleName(tr("Filter the actions"));
    filter->setToolTip(tr("Return adds the current action to the toolbar"));
    filter->setClearButtonEnabled(true);
    connect(filter, &ActionFilter::chosen, m_rightButton, &QAbstractButton::click);

    // Beside the caption, in the same cell of the grid.
    QLabel *const caption = part<QLabel>("label");
    QGridLayout *const grid = qobject_cast<QGridLayout *>(m_page->layout());
    QHBoxLayout *const both = new QHBoxLayout;
    both->addWidget(caption);
    both->addWidget(filter);
    grid->addLayout(both, 0, 0);
    QWidget::setTabOrder(part<QToolButton>("renameButton"), filter);
}

void Dressing::addNames()
{
    // Qt takes the name of a view only from here, not even from a caption whose buddy it is.
    m_actionTree->setAccessibleName(part<QLabel>("label")->text());
    m_actionTree->setHeaderLabel(
        part<QLabel>("label")->text()); // hidden, but otherwise spoken as "1"
    m_toolBarList->setAccessibleName(part<QLabel>("label_2")->text());
    m_currentToolBarList->setAccessibleName(part<QLabel>("label_6")->text());
    m_actionTree->setAccessibleDescription(tr("Insert adds the current action to the toolbar"));
    m_toolBarList->setAccessibleDescription(
        tr("Insert makes a toolbar, F2 renames it, Delete removes it"));
    m_currentToolBarList->setAccessibleDescription(
        tr("Alt+Up and Alt+Down move the current action, Delete removes it"));
    // A button with an icon does not show its text, but a screen reader says "less minus" for "<-".
    const auto buttons = m_page->findChildren<QToolButton *>();
    for (QToolButton *button : buttons)
        button->setAccessibleName(button->toolTip());

    // The items are created each time the page is shown, and rows each time a toolbar is chosen.
    for (const QAbstractItemView *view : {static_cast<QAbstractItemView *>(m_actionTree),
                                          static_cast<QAbstractItemView *>(m_toolBarList),
                                          static_cast<QAbstractItemView *>(m_currentToolBarList)})
        connect(view->model(), &QAbstractItemModel::rowsInserted, this, &Dressing::describeItems,
                Qt::QueuedConnection);
}

void Dressing::describeItems()
{
    const QString separator =
        QCoreApplication::translate("RyCToolBarWidget", "< S E P A R A T O R >");
    for (int i = 0; i < m_actionTree->topLevelItemCount(); ++i) {
        if (m_actionTree->topLevelItem(i)->text(0) == separator)
            m_actionTree->topLevelItem(i)->setData(0, Qt::AccessibleTextRole, tr("Separator"));
    }
    for (int row = 0; row < m_currentToolBarList->count(); ++row) {
        if (m_currentToolBarList->item(row)->text() == separator)
            setOnce(m_currentToolBarList->item(row), Qt::AccessibleTextRole, tr("Separator"));
    }
    // Default toolbars differ from others only in color.
    const QString ofApplication =
        tr("Comes with the application and can be neither renamed nor removed");
    for (int row = 0; row < m_toolBarList->count(); ++row) {
        QListWidgetItem *const item = m_toolBarList->item(row);
        if (!item->flags().testFlag(Qt::ItemIsEditable)) {
            setOnce(item, Qt::AccessibleDescriptionRole, ofApplication);
            setOnce(item, Qt::ToolTipRole, ofApplication);
        }
    }
}

void Dressing::addShortcuts()
{
    addShortcut(m_actionTree, Qt::Key_Insert, m_rightButton);
    addShortcut(m_toolBarList, Qt::Key_Insert, part<QToolButton>("newButton"));
    addShortcut(m_toolBarList, Qt::Key_Delete, part<QToolButton>("removeButton"));
    addShortcut(m_currentToolBarList, Qt::ALT | Qt::Key_Up, part<QToolButton>("upButton"));
    addShortcut(m_currentToolBarList, Qt::ALT | Qt::Key_Down, part<QToolButton>("downButton"));
    addShortcut(m_currentToolBarList, Qt::Key_Delete, m_leftButton);
    // The list already handles this key.
    QToolButton *const renameButton = part<QToolButton>("renameButton");
    renameButton->setToolTip(tr("%1 (%2)").arg(renameButton->toolTip(), QStringLiteral("F2")));
}

// Only in the view, so that Delete still deletes characters while a toolbar is named. A disabled
// button ignores click(), so the shortcut does nothing either.
void Dressing::addShortcut(QWidget *view, const QKeySequence &key, QToolButton *button)
{
    QShortcut *const shortcut = new QShortcut(key, view);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, button, &QAbstractButton::click);
    button->setToolTip(
        tr("%1 (%2)").arg(button->toolTip(), key.toString(QKeySequence::NativeText)));
}

void Dressing::replaceHelp()
{
    disconnect(m_dialog->helpButton(), nullptr, m_dialog, nullptr);
    connect(m_dialog->helpButton(), &QAbstractButton::clicked, this, &Dressing::helpRequested);
    QShortcut *const shortcut = new QShortcut(QKeySequence::HelpContents, m_dialog);
    connect(shortcut, &QShortcut::activated, m_dialog->helpButton(), &QAbstractButton::click);
}

// In a right-to-left layout the tree is to the right of the list, so "add" must point left.
void Dressing::pointArrows()
{
    const bool mirrored = m_page->isRightToLeft();
    m_leftButton->setIcon(mirrored ? m_forward : m_back);
    m_rightButton->setIcon(mirrored ? m_back : m_forward);
}

bool Dressing::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_page && event->type() == QEvent::LayoutDirectionChange)
        pointArrows();
    return QObject::eventFilter(object, event);
}
