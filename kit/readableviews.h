// SPDX-License-Identifier: MIT

#ifndef READABLEVIEWS_H
#define READABLEVIEWS_H

#include "actionrows.h"
#include "dialogparts.h"

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QStringList>

class ActionDelegate;
class QCollator;
class QLabel;

/*!
 * \brief Makes the dialog show what a user expects: texts as in menus, in their order, and a title.
 */
class ReadableViews : public QObject
{
    Q_OBJECT

public:
    /*!
     * \param categories those of the menus, in the order of the menus.
     */
    ReadableViews(const DialogParts &parts, const QStringList &categories);

    /*!
     * \brief Sorts the tree and \a rows as they are shown. It is called for each fill.
     */
    void arrange(ActionRows *rows, const RyToolBarManager *manager);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void updateHint();

private:
    static void arrange(ActionRows::Category *category, const QCollator &order);
    void arrangeCategories(QVector<ActionRows::Category> *categories, const QCollator &order) const;
    void addHint();
    void hideRibbonTab();
    void pointArrows();

    const DialogParts m_parts;
    // The place of each category among the menus.
    QHash<QString, int> m_ranks;
    const QIcon m_back;
    const QIcon m_forward;
    ActionDelegate *m_actionDelegate;
    QLabel *m_hint;
};

#endif // READABLEVIEWS_H
