// SPDX-License-Identifier: MIT

#ifndef ACTIONCATALOG_H
#define ACTIONCATALOG_H

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QKeySequence>
#include <QList>
#include <QString>

/*!
 * \brief Every command of the application.
 *
 * The menus and the default toolbars take their actions from here. A stored layout identifies an
 * action by its objectName, so names must be unique and must never change. The texts may change.
 * They have no "&", because the toolbar editor would show it.
 */
class ActionCatalog
{
    Q_DECLARE_TR_FUNCTIONS(ActionCatalog)

public:
    //! Creates all actions as children of \a parent.
    explicit ActionCatalog(QObject *parent);

    //! Returns the action called \a name, which must exist.
    QAction *action(const char *name) const;

    const QList<QAction *> &all() const { return m_all; }

    //! Returns the icon called \a name, which must exist.
    static QIcon icon(const char *name);

private:
    void addFileActions();
    void addEditActions();
    void addSearchActions();
    void addViewActions();
    void addFormatActions();
    void addParagraphActions();
    void addToolActions();
    void addHelpActions();
    QAction *add(const char *name, const char *icon, const QString &text, const QString &tip,
                 const QKeySequence &shortcut = QKeySequence());
    QAction *addCheckable(const char *name, const char *icon, const QString &text,
                          const QString &tip, const QKeySequence &shortcut = QKeySequence());

    QObject *const m_parent;
    QList<QAction *> m_all;
};

#endif // ACTIONCATALOG_H
