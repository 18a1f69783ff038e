// SPDX-License-Identifier: MIT

#ifndef ACTIONCATALOG_H
#define ACTIONCATALOG_H

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QList>
#include <QString>

/*!
 * \brief Every command of the application: its action and its category.
 *
 * The menus, the default toolbars and the toolbar manager all take their actions from here. An
 * saved toolbar layout identifies an action by its objectName, so names must be unique and must
 * never change. The texts may change. They have no "&", because the toolbar editor would show it.
 */
class ActionCatalog
{
    Q_DECLARE_TR_FUNCTIONS(ActionCatalog)

public:
    struct Category
    {
        QString title;
        QList<QAction *> actions;
    };

    //! Creates all actions as children of \a parent.
    explicit ActionCatalog(QObject *parent);

    //! Returns the action called \a name, which must exist.
    QAction *action(const char *name) const;

    const QList<Category> &categories() const { return m_categories; }

private:
    void addFileActions();
    void addEditActions();
    void addSearchActions();
    void addViewActions();
    void addFormatActions();
    void addParagraphActions();
    void addToolActions();
    void addHelpActions();
    void startCategory(const QString &title);
    QAction *add(const char *name, const char *icon, const QString &text, const QString &tip,
                 const QKeySequence &shortcut = QKeySequence());
    QAction *addCheckable(const char *name, const char *icon, const QString &text,
                          const QString &tip, const QKeySequence &shortcut = QKeySequence());

    QObject *const m_parent;
    QList<Category> m_categories;
};

#endif // ACTIONCATALOG_H
