// SPDX-License-Identifier: MIT

#include "baredialog.h"

#include <QIcon>

namespace {

const int EntryAlignment = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
const QString SeparatorText = QStringLiteral("< S E P A R A T O R >");

struct ActionItem : QTreeWidgetItem
{
    enum { Type = UserType };

    ActionItem(const QString &text, QAction *shown)
        : QTreeWidgetItem(QStringList(text), Type)
        , action(shown)
    {
    }

    QAction *const action;
};

QAction *actionOf(const QTreeWidgetItem *item)
{
    return static_cast<const ActionItem *>(item)->action;
}

ActionItem *createActionItem(QAction *action)
{
    ActionItem *const item = new ActionItem(action->text(), action);
    item->setIcon(0, action->icon());
    item->setData(0, Qt::TextAlignmentRole, EntryAlignment);
    item->setFlags(item->flags() | Qt::ItemIsDragEnabled);
    return item;
}

void decorate(QListWidgetItem *row, const QAction *action)
{
    row->setIcon(action->icon());
    row->setData(Qt::TextAlignmentRole, EntryAlignment);
}

} // namespace

BareDialog::BareDialog(const QList<Scene::Category> &categories, const QList<BareToolBar> &toolBars,
                       QWidget *parent)
    : QDialog(parent)
    , m_toolBars(toolBars)
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    setUp();
    setIcons();
    makeConnections();
    fillActionTree(categories);
    fillToolBarList();
    updateButtons();
}

void BareDialog::setUp()
{
    m_form.setupUi(this);
    m_form.m_optionTabWidget->clear();
    QWidget *const page = new QWidget(this);
    m_page.setupUi(page);
    m_page.actionTree->setColumnCount(1);
    m_page.actionTree->header()->hide();
    m_form.m_optionTabWidget->addTab(page, QStringLiteral("ToolBar"));
    QWidget *const ribbon = new QWidget(this);
    m_ribbon.setupUi(ribbon);
    m_form.m_optionTabWidget->addTab(ribbon, QStringLiteral("Ribbon"));
}

void BareDialog::setIcons()
{
    const QString icon = QStringLiteral(":/RyCustomizedDialog/images/%1.png");
    m_page.upButton->setIcon(QIcon(icon.arg(QStringLiteral("up"))));
    m_page.downButton->setIcon(QIcon(icon.arg(QStringLiteral("down"))));
    m_page.leftButton->setIcon(QIcon(icon.arg(QStringLiteral("back"))));
    m_page.rightButton->setIcon(QIcon(icon.arg(QStringLiteral("forward"))));
    m_page.newButton->setIcon(QIcon(icon.arg(QStringLiteral("plus"))));
    m_page.removeButton->setIcon(QIcon(icon.arg(QStringLiteral("minus"))));
}

void BareDialog::makeConnections()
{
    connect(m_form.m_dialogButtonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_page.rightButton, &QToolButton::clicked, this, &BareDialog::add);
    connect(m_page.leftButton, &QToolButton::clicked, this, &BareDialog::remove);
    connect(m_page.actionTree, &QTreeWidget::currentItemChanged, this, &BareDialog::updateButtons);
    connect(m_page.toolBarList, &QListWidget::currentItemChanged, this, &BareDialog::showToolBar);
    connect(m_page.currentToolBarList, &QListWidget::currentItemChanged, this,
            &BareDialog::updateButtons);
}

// Creates all items before it adds them to the tree, and sorts once.
void BareDialog::fillActionTree(const QList<Scene::Category> &categories)
{
    QList<QTreeWidgetItem *> items;
    items.reserve(categories.size() + 1);
    ActionItem *const separator = new ActionItem(SeparatorText, nullptr);
    items.append(separator);
    for (const Scene::Category &category : categories) {
        QList<QTreeWidgetItem *> children;
        children.reserve(category.actions.size());
        for (QAction *action : category.actions)
            children.append(createActionItem(action));
        QTreeWidgetItem *const item = new QTreeWidgetItem(QStringList(category.name));
        item->addChildren(children);
        items.append(item);
    }
    m_page.actionTree->addTopLevelItems(items);
    m_page.actionTree->sortItems(0, Qt::AscendingOrder);
    m_page.actionTree->setCurrentItem(separator);
}

void BareDialog::fillToolBarList()
{
    if (m_toolBars.isEmpty())
        return;
    QStringList titles;
    titles.reserve(m_toolBars.size());
    for (const BareToolBar &toolBar : std::as_const(m_toolBars))
        titles.append(toolBar.title);
    m_page.toolBarList->insertItems(0, titles);
    for (int i = 0; i < m_toolBars.size(); ++i) {
        QListWidgetItem *const row = m_page.toolBarList->item(i);
        row->setData(Qt::UserRole, i);
        if (m_toolBars.at(i).isDefault)
            row->setForeground(Qt::darkGreen);
        else
            row->setFlags(row->flags() | Qt::ItemIsEditable);
    }
    QListWidgetItem *const first = m_page.toolBarList->item(0);
    m_page.toolBarList->sortItems(Qt::AscendingOrder);
    m_page.toolBarList->setCurrentItem(first);
}

void BareDialog::showToolBar(QListWidgetItem *row)
{
    m_current = row ? row->data(Qt::UserRole).toInt() : -1;
    m_page.currentToolBarList->clear();
    if (m_current >= 0) {
        const auto content = m_toolBars.at(m_current).content;
        QStringList texts;
        texts.reserve(content.size());
        for (const QAction *action : content)
            texts.append(action ? action->text() : SeparatorText);
        m_page.currentToolBarList->insertItems(0, texts);
        for (int i = 0; i < content.size(); ++i) {
            if (content.at(i))
                decorate(m_page.currentToolBarList->item(i), content.at(i));
        }
        m_page.currentToolBarList->setCurrentRow(content.isEmpty() ? -1 : 0);
    }
    updateButtons();
}

// Inserts after the current entry, unless the action is already on the toolbar.
void BareDialog::add()
{
    const QTreeWidgetItem *const item = m_page.actionTree->currentItem();
    if (!item || item->type() != ActionItem::Type || m_current < 0)
        return;
    QAction *const action = actionOf(item);
    QList<QAction *> &content = m_toolBars[m_current].content;
    if (action && content.contains(action))
        return;
    QListWidgetItem *const entry = new QListWidgetItem(action ? action->text() : SeparatorText);
    if (action)
        decorate(entry, action);
    const int row = m_page.currentToolBarList->currentRow() + 1;
    m_page.currentToolBarList->insertItem(row, entry);
    content.insert(row, action);
    m_page.currentToolBarList->setCurrentItem(entry);
    updateButtons();
}

// Makes the next entry current.
void BareDialog::remove()
{
    const int row = m_page.currentToolBarList->currentRow();
    if (row < 0)
        return;
    QList<QAction *> &content = m_toolBars[m_current].content;
    content.removeAt(row);
    delete m_page.currentToolBarList->item(row);
    if (!content.isEmpty())
        m_page.currentToolBarList->setCurrentRow(qMin(row, content.size() - 1));
    updateButtons();
}

void BareDialog::updateButtons()
{
    const QTreeWidgetItem *const item = m_page.actionTree->currentItem();
    const int row = m_page.currentToolBarList->currentRow();
    const bool removable = m_current < 0 || !m_toolBars.at(m_current).isDefault;
    m_page.removeButton->setEnabled(removable);
    m_page.renameButton->setEnabled(removable);
    m_page.upButton->setEnabled(row > 0);
    m_page.downButton->setEnabled(row >= 0 && row < m_page.currentToolBarList->count() - 1);
    m_page.leftButton->setEnabled(row >= 0);
    m_page.rightButton->setEnabled(item && item->type() == ActionItem::Type && m_current >= 0);
}
