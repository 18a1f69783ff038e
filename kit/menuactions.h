// SPDX-License-Identifier: MIT

#ifndef MENUACTIONS_H
#define MENUACTIONS_H

#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

class QAction;
class QMainWindow;
class QMenu;

/*!
 * \brief Finds the actions of a window's menus, and reports when there are others.
 */
class MenuActions : public QObject
{
    Q_OBJECT

public:
    struct Found
    {
        QAction *action;
        QString category;
    };

    explicit MenuActions(QMainWindow *window, QObject *parent);

    /*!
     * \brief Returns the actions of all menus with their categories, those of a submenu after its
     *        own action. An action that is in several menus is in the list once.
     *
     * \param excluded menus and actions that are left out, with all that is in them.
     */
    QList<Found> find(const QSet<const QObject *> &excluded);

    /*!
     * \brief Returns the categories of the last find(), in the order of the menus.
     */
    QStringList categories() const { return m_categories; }

    /*!
     * \brief Returns true if \a action is in a menu, visible or not.
     */
    bool contains(const QAction *action) const { return m_inMenus.contains(action); }

Q_SIGNALS:
    /*!
     * \brief Emitted when find() may find something else. Many changes may each emit it.
     */
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void findIn(const QList<QAction *> &actions, const QString &category, QList<Found> *found);

    QMainWindow *m_window;
    QStringList m_categories;
    // Compared only: what the last find() has seen and still is in a menu, and the visible of them.
    QSet<const QAction *> m_inMenus;
    QSet<const QAction *> m_found;
    QSet<const QObject *> m_excluded;
    QSet<const QMenu *> m_visited;
};

#endif // MENUACTIONS_H
