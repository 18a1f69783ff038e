// SPDX-License-Identifier: MIT

#include "dialogpanes.h"

#include "layoutstore.h"

#include <RyCustomizedDialog>

#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QSplitter>
#include <QTreeWidget>
#include <QWindow>

namespace {

const int Numbers = 6; // width, height, and two sizes for each of both splitters
const int LargestNumber = 16384;

QSplitter *createSplitter(Qt::Orientation orientation, const char *name, QWidget *parent)
{
    QSplitter *const splitter = new QSplitter(orientation, parent);
    splitter->setObjectName(QLatin1String(name));
    splitter->setChildrenCollapsible(false);
    return splitter;
}

QVBoxLayout *addPane(QSplitter *splitter)
{
    QWidget *const pane = new QWidget(splitter);
    QVBoxLayout *const layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    splitter->setStretchFactor(splitter->indexOf(pane), 1);
    return layout;
}

// Moves a widget or a layout with its widgets.
void move(QGridLayout *grid, int row, int column, QBoxLayout *target)
{
    QLayoutItem *const item = grid->itemAtPosition(row, column);
    grid->removeItem(item);
    if (QLayout *const layout = item->layout()) {
        target->addLayout(layout);
    } else {
        target->addWidget(item->widget());
        delete item;
    }
}

// Empty if they are none.
QList<int> numbersOf(const QStringList &texts)
{
    QList<int> numbers;
    for (const QString &text : texts) {
        const int number = text.toInt();
        if (number > 0 && number <= LargestNumber)
            numbers.append(number);
    }
    return texts.size() == Numbers && numbers.size() == Numbers ? numbers : QList<int>();
}

QSize largestSize(const QWidget *parent)
{
    const QWindow *const window = parent ? parent->window()->windowHandle() : nullptr;
    const QScreen *const screen = window ? window->screen() : QGuiApplication::primaryScreen();
    return screen->availableSize();
}

} // namespace

DialogPanes::DialogPanes(const DialogParts &parts, LayoutStore *store, bool isWritten)
    : QObject(parts.page)
    , m_parts(parts)
    , m_store(store)
    , m_sides(createSplitter(Qt::Horizontal, "dialogSides", parts.page))
    , m_lists(createSplitter(Qt::Vertical, "dialogLists", m_sides))
{
    divide();
    restore();
    if (isWritten)
        connect(m_parts.dialog, SIGNAL(finished(int)), this, SLOT(store()));
}

void DialogPanes::divide()
{
    QGridLayout *const grid = qobject_cast<QGridLayout *>(m_parts.page->layout());
    QVBoxLayout *const actions = addPane(m_sides);
    m_sides->addWidget(m_lists);
    m_sides->setStretchFactor(1, 1);
    QVBoxLayout *const toolBars = addPane(m_lists);
    QVBoxLayout *const entries = addPane(m_lists);
    QHBoxLayout *const entriesAndButtons = new QHBoxLayout;

    move(grid, 0, 0, actions);
    move(grid, 1, 0, actions);
    move(grid, 0, 1, toolBars);
    move(grid, 1, 1, toolBars);
    move(grid, 2, 1, entries);
    entries->addLayout(entriesAndButtons);
    move(grid, 3, 1, entriesAndButtons);
    move(grid, 3, 2, entriesAndButtons);
    grid->addWidget(m_sides, 1, 0, 3, 3);
}

// The dialog is centered by Qt, so its size is enough to keep it on the screen.
void DialogPanes::restore()
{
    const QList<int> numbers = numbersOf(m_store->dialogSizes());
    if (numbers.isEmpty())
        return;
    m_parts.dialog->resize(
        QSize(numbers.at(0), numbers.at(1)).boundedTo(largestSize(m_parts.dialog->parentWidget())));
    m_sides->setSizes(numbers.mid(2, 2));
    m_lists->setSizes(numbers.mid(4, 2));
}

void DialogPanes::store()
{
    QStringList numbers;
    const QList<int> sizes = m_sides->sizes() + m_lists->sizes();
    numbers << QString::number(m_parts.dialog->width())
            << QString::number(m_parts.dialog->height());
    for (const int size : sizes)
        numbers << QString::number(size);
    m_store->setDialogSizes(numbers);
}
