// SPDX-License-Identifier: MIT

#include "actionsearch.h"

#include "plaintextdelegate.h"

#include <RyToolBarManager>

#include <QAction>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>
#include <limits>

namespace {

const QLatin1Char EndOfField('\n');
const int Fields = 4; // what is shown, shortcut, tool tip, category
const int KeyDelay = 50; // milliseconds
const int NoMatch = std::numeric_limits<int>::max();

// Letters that Unicode does not take apart, but people do.
QChar withoutStroke(QChar letter)
{
    switch (letter.unicode()) {
    case 0x0111:
        return QLatin1Char('d');
    case 0x0131:
        return QLatin1Char('i');
    case 0x0142:
        return QLatin1Char('l');
    case 0x00f8:
        return QLatin1Char('o');
    default:
        return letter;
    }
}

bool isAscii(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar letter) { return letter.unicode() <= 0x7f; });
}

// Where a match begins: with the field, with a word of it, or within a word.
int placeOf(int position, const QString &text)
{
    if (position == 0 || text.at(position - 1) == EndOfField)
        return 0;
    return text.at(position - 1).isLetterOrNumber() ? 2 : 1;
}

// The best of all places at which \a word is, the first field before others; NoMatch without any.
int scoreOf(const QString &word, const QString &text, int firstField)
{
    int best = NoMatch;
    int field = firstField;
    int last = 0;
    for (int at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
        for (; last < at; ++last)
            field += text.at(last) == EndOfField;
        best = qMin(best, 3 * field + placeOf(at, text));
    }
    return best;
}

QString keyOfText(const QString &text)
{
    return ActionSearch::folded(text).simplified();
}

QString visibleText(const QTreeWidgetItem *item)
{
    return PlainTextDelegate::plainText(item->text(0));
}

// Tool tips may be formatted, and by default they repeat the text.
QString keyOfTips(const QAction *action, const QString &text)
{
    QString tips = action->statusTip();
    if (!text.startsWith(action->toolTip()))
        tips += QLatin1Char(' ') + action->toolTip();
    if (tips.contains(QLatin1Char('<')))
        tips.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    return keyOfText(tips);
}

QString keyOf(const QAction *action, const QString &text)
{
    if (!action)
        return keyOfText(text);
    return keyOfText(text) + EndOfField
        + keyOfText(action->shortcut().toString(QKeySequence::NativeText)) + EndOfField
        + keyOfTips(action, text);
}

// The separator's letters are spaced out.
QString keyOfSeparator(const QString &text)
{
    QString letters = text;
    letters.remove(QRegularExpression(QStringLiteral("[\\s<>]")));
    return ActionSearch::folded(letters);
}

} // namespace

ActionSearch::ActionSearch(const DialogParts &parts)
    : QLineEdit(parts.page)
    , m_parts(parts)
    , m_best(nullptr)
    , m_bestScore(NoMatch)
{
    setObjectName(QStringLiteral("actionSearch"));
    setPlaceholderText(tr("Find an action"));
    setAccessibleName(placeholderText());
    setToolTip(tr("The Return key adds the action to the toolbar"));
    setClearButtonEnabled(true);
    QGridLayout *const grid = qobject_cast<QGridLayout *>(m_parts.page->layout());
    QHBoxLayout *const both = new QHBoxLayout;
    both->addWidget(m_parts.actionCaption);
    both->addWidget(this);
    grid->addLayout(both, 0, 0);
    m_keyTimer.setSingleShot(true);
    m_keyTimer.setInterval(KeyDelay);
    connect(&m_keyTimer, SIGNAL(timeout()), this, SLOT(makeKeys()));
    setTabOrder(m_parts.renameButton, this);
    connect(this, SIGNAL(textChanged(QString)), this, SLOT(find(QString)));
    connect(m_parts.actionTree->model(), SIGNAL(modelReset()), this, SLOT(forget()));
}

QString ActionSearch::folded(const QString &text)
{
    if (isAscii(text))
        return text.toCaseFolded();
    const QString parts = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString result;
    result.reserve(parts.size());
    for (const QChar letter : parts) {
        if (letter.category() != QChar::Mark_NonSpacing)
            result.append(withoutStroke(letter));
    }
    return result;
}

// The dialog opens first.
void ActionSearch::setRows(const ActionRows &rows, const RyToolBarManager *manager)
{
    m_rows = rows;
    m_manager = manager;
    m_keyTimer.start();
}

// Actions that the program has taken back since are found by what is shown.
void ActionSearch::makeKeys()
{
    m_keyTimer.stop();
    if (!m_rows.separator || !m_manager)
        return;
    const QSet<QAction *> actions = m_manager->actions();
    m_categories.append({nullptr, QString(), {}, false, false});
    m_categories.last().rows.append(
        {m_rows.separator, keyOfSeparator(m_rows.separator->text(0)), false});
    const auto categories = m_rows.categories;
    for (const ActionRows::Category &category : categories) {
        Category made{category.item, keyOfText(visibleText(category.item)), {}, false, false};
        made.rows.reserve(category.rows.size());
        for (const ActionRows::Row &row : category.rows) {
            const QAction *const action = actions.contains(row.action) ? row.action : nullptr;
            made.rows.append({row.item, keyOf(action, visibleText(row.item)), false});
        }
        m_categories.append(made);
    }
    m_rows = ActionRows();
}

void ActionSearch::forget()
{
    m_rows = ActionRows();
    m_categories.clear();
    if (!m_parts.areDeleted())
        clear();
}

// Rows with the whole phrase come before those that only have its words.
int ActionSearch::score(const Category &category, const Row &row, const QStringList &words)
{
    int worst = 0;
    for (const QString &word : words) {
        int best = scoreOf(word, row.key, 0);
        if (best == NoMatch)
            best = scoreOf(word, category.key, Fields - 1);
        if (best == NoMatch)
            return NoMatch;
        worst = qMax(worst, best);
    }
    if (words.size() < 2)
        return worst;
    const int together = scoreOf(words.join(QLatin1Char(' ')), row.key, 0);
    return together == NoMatch ? 3 * Fields + worst : together;
}

void ActionSearch::find(const QString &typed)
{
    makeKeys();
    const QString text = keyOfText(typed);
    const QStringList words = text.isEmpty() ? QStringList() : text.split(QLatin1Char(' '));
    m_best = nullptr;
    m_bestScore = NoMatch;
    for (Category &category : m_categories) {
        if (showMatches(&category, words))
            expand(&category, !words.isEmpty());
    }
    if (!words.isEmpty())
        makeCurrent(m_best);
    else if (QTreeWidgetItem *const current = m_parts.actionTree->currentItem())
        makeCurrent(current);
}

// False if there is none. The rows of a hidden category may stay as they are.
bool ActionSearch::showMatches(Category *category, const QStringList &words)
{
    QVector<int> scores;
    scores.reserve(category->rows.size());
    bool hasMatch = words.isEmpty();
    const QVector<Row> &rows = category->rows;
    for (const Row &row : rows) {
        scores.append(score(*category, row, words));
        hasMatch = hasMatch || scores.constLast() != NoMatch;
        if (scores.constLast() < m_bestScore && !words.isEmpty()) {
            m_bestScore = scores.constLast();
            m_best = row.item;
        }
    }
    if (category->item && category->isHidden == hasMatch) {
        category->isHidden = !hasMatch;
        category->item->setHidden(!hasMatch);
    }
    if (category->item && !hasMatch)
        return false;
    for (int i = 0; i < scores.size(); ++i) {
        Row &row = category->rows[i];
        const bool isHidden = scores.at(i) == NoMatch;
        if (row.isHidden != isHidden)
            row.item->setHidden(isHidden);
        row.isHidden = isHidden;
    }
    return hasMatch;
}

// What the search has expanded is collapsed with its end.
void ActionSearch::expand(Category *category, bool isSearched)
{
    if (!category->item)
        return;
    if (isSearched && !category->item->isExpanded()) {
        category->item->setExpanded(true);
        category->isExpandedHere = true;
    } else if (!isSearched && category->isExpandedHere) {
        const QTreeWidgetItem *const current = category->item->treeWidget()->currentItem();
        category->isExpandedHere = false;
        if (!current || current->parent() != category->item)
            category->item->setExpanded(false);
    }
}

// A hidden row must not stay current, because it could still be added.
void ActionSearch::makeCurrent(QTreeWidgetItem *item)
{
    m_parts.actionTree->setCurrentItem(item);
    if (item)
        m_parts.actionTree->scrollToItem(item);
}

void ActionSearch::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_parts.rightButton->click();
        return; // or the dialog would press OK
    case Qt::Key_Down:
        m_parts.actionTree->setFocus(Qt::OtherFocusReason);
        return;
    case Qt::Key_Escape:
        if (!text().isEmpty()) {
            clear();
            return;
        }
        break;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}
