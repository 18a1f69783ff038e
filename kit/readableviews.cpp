// SPDX-License-Identifier: MIT

#include "readableviews.h"

#include "actiondelegate.h"

#include <RyCRibbonWidget>
#include <RyCustomizedDialog>

#include <QCollator>
#include <QEvent>
#include <QHash>
#include <QLabel>
#include <QListWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// Without a language, capital letters would come before all others.
QCollator collator()
{
    const QLocale locale;
    return QCollator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
}

QString shown(const QTreeWidgetItem *item)
{
    return PlainTextDelegate::plainText(item->text(0));
}

// Rows of the same text keep their order. Most categories are in order already, and then comparing
// is much faster than making keys.
bool sort(QVector<ActionRows::Row> *rows, const QCollator &collator)
{
    const auto isBefore = [&collator](const ActionRows::Row &a, const ActionRows::Row &b) {
        return collator.compare(shown(a.item), shown(b.item)) < 0;
    };
    if (std::is_sorted(rows->cbegin(), rows->cend(), isBefore))
        return false;
    using Keyed = std::pair<QCollatorSortKey, ActionRows::Row>;
    std::vector<Keyed> keyed;
    keyed.reserve(std::size_t(rows->size()));
    for (const ActionRows::Row &row : *static_cast<const QVector<ActionRows::Row> *>(rows))
        keyed.push_back({collator.sortKey(shown(row.item)), row});
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const Keyed &a, const Keyed &b) { return a.first.compare(b.first) < 0; });
    rows->clear();
    for (const Keyed &row : keyed)
        rows->append(row.second);
    return true;
}

} // namespace

ReadableViews::ReadableViews(const DialogParts &parts, const QStringList &categories)
    : QObject(parts.page)
    , m_parts(parts)
    , m_back(parts.leftButton->icon())
    , m_forward(parts.rightButton->icon())
    , m_actionDelegate(new ActionDelegate(parts.actionTree))
    , m_hint(new QLabel(tr("This toolbar is empty. Double-click an action to add it.")))
{
    for (const QString &category : categories) {
        if (!m_ranks.contains(category))
            m_ranks.insert(category, m_ranks.size());
    }
    // One for each view: a delegate reports the end of an edit to all its views.
    m_parts.actionTree->setItemDelegate(m_actionDelegate);
    for (QListWidget *list : {m_parts.toolBarList, m_parts.entryList})
        list->setItemDelegate(new ReadableDelegate(list));
    m_parts.dialog->setWindowTitle(tr("Customize Toolbars"));
    addHint();
    hideRibbonTab();
    pointArrows();
    m_parts.page->installEventFilter(this);
}

void ReadableViews::addHint()
{
    m_hint->setObjectName(QStringLiteral("emptyToolBarHint"));
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::Text);
    m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_hint->hide();
    QVBoxLayout *const layout = new QVBoxLayout(m_parts.entryList->viewport());
    layout->addWidget(m_hint);

    const QAbstractItemModel *const entries = m_parts.entryList->model();
    connect(entries, SIGNAL(modelReset()), this, SLOT(updateHint()));
    connect(entries, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(updateHint()));
    connect(entries, SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(updateHint()));
    connect(m_parts.toolBarList, SIGNAL(currentRowChanged(int)), this, SLOT(updateHint()));
}

void ReadableViews::updateHint()
{
    if (m_parts.areDeleted())
        return;
    m_hint->setVisible(m_parts.toolBarList->currentItem() && m_parts.entryList->count() == 0);
}

// The page stays: the dialog still calls it.
void ReadableViews::hideRibbonTab()
{
    m_parts.tabs->removeTab(m_parts.tabs->indexOf(m_parts.dialog->findChild<RyCRibbonWidget *>()));
    m_parts.tabs->setTabBarAutoHide(true);
    // Qt would pass the focus to the hidden bar, and Tab would go no further.
    m_parts.tabs->tabBar()->setFocusPolicy(Qt::NoFocus);
}

// The editor knows the items by their addresses, so they may move, but not go.
void ReadableViews::arrange(ActionRows *rows, const RyToolBarManager *manager)
{
    QTreeWidget *const tree = m_parts.actionTree;
    tree->invisibleRootItem()->takeChildren(); // or there would be signals for each row
    const QCollator order = collator();
    for (ActionRows::Category &category : rows->categories)
        arrange(&category, order);
    arrangeCategories(&rows->categories, order);
    QList<QTreeWidgetItem *> items{rows->separator};
    const QVector<ActionRows::Category> categories = rows->categories;
    for (const ActionRows::Category &category : categories)
        items.append(category.item);
    tree->addTopLevelItems(items);
    tree->setCurrentItem(rows->separator);
    m_actionDelegate->setRows(*rows, manager);
}

void ReadableViews::arrange(ActionRows::Category *category, const QCollator &order)
{
    if (category->rows.size() != category->item->childCount() || !sort(&category->rows, order))
        return;
    category->item->takeChildren();
    QList<QTreeWidgetItem *> items;
    const QVector<ActionRows::Row> rows = category->rows;
    items.reserve(rows.size());
    for (const ActionRows::Row &row : rows)
        items.append(row.item);
    category->item->addChildren(items);
}

// Those of the menus, and then all others.
void ReadableViews::arrangeCategories(QVector<ActionRows::Category> *categories,
                                      const QCollator &order) const
{
    QHash<const QTreeWidgetItem *, int> ranks;
    const QVector<ActionRows::Category> unordered = *categories;
    for (const ActionRows::Category &category : unordered)
        ranks.insert(category.item, m_ranks.value(category.item->text(0), m_ranks.size()));
    const auto isBefore = [&](const ActionRows::Category &a, const ActionRows::Category &b) {
        const int rankOfA = ranks.value(a.item);
        const int rankOfB = ranks.value(b.item);
        return rankOfA != rankOfB ? rankOfA < rankOfB
                                  : order.compare(shown(a.item), shown(b.item)) < 0;
    };
    std::stable_sort(categories->begin(), categories->end(), isBefore);
}

// In a right-to-left layout the tree is to the right of the list, so "add" must point left.
void ReadableViews::pointArrows()
{
    const bool mirrored = m_parts.page->isRightToLeft();
    m_parts.leftButton->setIcon(mirrored ? m_forward : m_back);
    m_parts.rightButton->setIcon(mirrored ? m_back : m_forward);
}

bool ReadableViews::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_parts.page && event->type() == QEvent::LayoutDirectionChange)
        pointArrows();
    return QObject::eventFilter(watched, event);
}
