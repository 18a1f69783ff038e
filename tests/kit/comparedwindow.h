// SPDX-License-Identifier: MIT

#ifndef COMPAREDWINDOW_H
#define COMPAREDWINDOW_H

#include "kitmodel.h"
#include "kitwindow.h"

#include <QPointer>

/*
 * A window of a program beside the model of what it shows. What its program and its user do is done
 * to both.
 */
class ComparedWindow
{
public:
    // The actions of a menu that comes and goes.
    static const QStringList MenuActions;

    // Windows with the same settings and key have the same layout.
    ComparedWindow(const QString &settings, const QString &key);

    bool isOpen() const { return program.window(); }
    void start(const KitModel::Release &release, const KitModel::Layout &stored,
               const KitModel::Steps &steps);
    void end();

    // What the program does while it runs.
    void change(const KitModel::Release &release);
    // Another action with the same name takes the place of one, which lives on.
    void exchange(const QString &action);
    void hideForAWhile(const QString &toolBar);

    // What the user does. The manager has changed when the model has.
    void edit(RyToolBarManager *manager, const QString &toolBar, const QStringList &content);
    QString create(RyToolBarManager *manager, const QString &title, const QStringList &content);
    void remove(RyToolBarManager *manager, const QString &toolBar);
    void hideOrShow(const QString &toolBar);
    // Returns false if there is no such profile.
    bool switchToProfile(const QString &name, const KitModel::Layout &profile);
    // In the menu of a toolbar
    void chooseIconSize(const QString &toolBar, int size);
    void chooseTextPosition(const QString &toolBar, const QString &position);
    void lockOrUnlock(const QString &toolBar);
    void removeEntry(const QString &toolBar, int index);
    void reset(const QString &toolBar);

    // How the window differs from the model, or an empty text.
    QString difference();
    // What the model has.
    QString text() const;
    // Stores what has changed, as when the user is asked whether to close the window.
    void storeNow();

    // The layout as it was saved at the end of the last step, and then.
    QString saved;
    KitModel::Layout layout;

    KitProgram program;
    KitModel model;

private:
    void build(QMainWindow *window);
    void addMenu(QMainWindow *window);
    void addActionOf(QMainWindow *window, const QString &name);
    void addToolBar(QMainWindow *window, const QString &name);
    void setFormerName(const QString &name, QObject *object);
    QString programText() const;
    bool chooseInMenuOf(const QString &toolBar, QAction *entry, const QString &text);
    QString lookOf(const QToolBar *toolBar) const;
    bool hasFormerActions() const;

    KitModel::Release m_release;
    // What the window had when it was started.
    QPointer<QAction> m_required;
    // Owns the actions that others have taken the place of.
    QObject m_formerActions;
};

#endif // COMPAREDWINDOW_H
