// SPDX-License-Identifier: MIT

#ifndef ACTIONSEARCH_H
#define ACTIONSEARCH_H

#include "actionrows.h"
#include "dialogparts.h"

#include <QLineEdit>
#include <QPointer>
#include <QStringList>
#include <QTimer>

/*!
 * \brief The line that finds actions in the dialog's tree.
 *
 * It hides all rows that do not have each typed word in what they show, their shortcut, their tool
 * or status tip or their category, and makes the best one current.
 */
class ActionSearch : public QLineEdit
{
    Q_OBJECT

public:
    explicit ActionSearch(const DialogParts &parts);

    //! Returns \a text in the form in which it is searched: accents and case do not matter.
    static QString folded(const QString &text);

    /*!
     * \brief Sets what is searched. It is called for each fill of the tree.
     */
    void setRows(const ActionRows &rows, const RyToolBarManager *manager);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private Q_SLOTS:
    void makeKeys();
    void find(const QString &typed);
    void forget();

private:
    struct Row
    {
        QTreeWidgetItem *item;
        // What is shown, the shortcut and the tips, folded, a line each.
        QString key;
        bool isHidden;
    };
    struct Category
    {
        // Null for rows that are in none.
        QTreeWidgetItem *item;
        QString key;
        QVector<Row> rows;
        bool isHidden;
        bool isExpandedHere;
    };

    static int score(const Category &category, const Row &row, const QStringList &words);
    bool showMatches(Category *category, const QStringList &words);
    static void expand(Category *category, bool isSearched);
    void makeCurrent(QTreeWidgetItem *item);

    const DialogParts m_parts;
    // What has no keys yet.
    ActionRows m_rows;
    QPointer<const RyToolBarManager> m_manager;
    QTimer m_keyTimer;
    QVector<Category> m_categories;
    // The best row so far, and how good it is.
    QTreeWidgetItem *m_best;
    int m_bestScore;
};

#endif // ACTIONSEARCH_H
