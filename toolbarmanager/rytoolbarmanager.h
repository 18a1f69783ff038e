// SPDX-License-Identifier: MIT

#ifndef RYTOOLBARMANAGER_H
#define RYTOOLBARMANAGER_H

#include "ryabstatcmanager.h"

#include <QAction>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QToolBar>

class ContentChange;
class QByteArray;
class QDataStream;
class QMainWindow;

/*!
 * \brief The model of a host's actions, their categories, and the default and custom toolbars of
 *        its main window.
 *
 * The host registers every action that its users may place on a toolbar, each under a category,
 * and every toolbar that it ships. The toolbar page of RyCustomizedDialog reads the manager and
 * writes the user's changes back through it; the manager changes the real toolbar widgets.
 *
 * \code
 * RyToolBarManager manager;
 * manager.setMainWindow(&window);
 * manager.addAction(openAction, tr("File"));
 * manager.addDefaultToolBar(fileToolBar, tr("File"));
 * manager.restoreState(settings.value(QStringLiteral("toolBars")).toByteArray(), 1);
 * \endcode
 *
 * Call restoreState() after everything is registered and before QMainWindow::restoreState(): only
 * then do the custom toolbars exist that the window is to put in their places.
 *
 * \par Terms
 * A separator entry is a null QAction pointer in a list of actions. A default toolbar is one that
 * the host registered with addDefaultToolBar(); its content at that moment is its default content.
 * A custom toolbar is any other managed toolbar. For persistence an action is known by its
 * objectName() or, if that is empty, by its text(); a toolbar by its objectName() or, if that is
 * empty, by its windowTitle(). Names are compared exactly. Of several toolbars with one name the
 * one with the lowest address is found. Of several actions with one name any may be found, but
 * findAction() and restoreState() find the same one. Give every action and every toolbar a unique
 * objectName.
 *
 * \par Ownership
 * The manager owns no action, no toolbar and no window, with two exceptions: setToolBar() deletes
 * the separator actions of the content that it replaces (those that were on a default toolbar when
 * it was registered included), and deleteToolBar() deletes a custom toolbar. It does not watch for
 * the destruction of anything: take an action out with removeAction() before you delete it, and
 * keep default toolbars alive as long as the manager is used. The host deletes the manager;
 * custom toolbars stay in the main window then.
 *
 * \par Re-entrant calls
 * Every change of a toolbar or window makes Qt call event filters and slots of the host. They may
 * call any operation of the manager: toolbars and actions that they remove are left alone from then
 * on, and records and widgets agree in the end. They must not
 * - delete the manager;
 * - delete a managed toolbar except with deleteToolBar();
 * - delete the action of the event that they filter, as Qt asks;
 * - change the manager from a message handler that the warnings of saveState() reach.
 *
 * An event filter that deletes the toolbar that it filters returns true. It must not do so when the
 * toolbar's title changes: Qt does not survive that.
 *
 * \par Arguments
 * Null, unknown and repeated arguments are ignored without a message. Only restoring, saving,
 * findAction() and findDefaultToolBar() print warnings, through Qt's message logger and without a
 * source location.
 *
 * \par Deliberate quirks
 * - None of the signals is ever emitted by the manager. They are there for other code to raise.
 * - addCategory() empties a category that exists already.
 * - removeDefaultToolBar() does nothing to a default toolbar.
 * - Toolbars are visited in the order of their addresses, not in the order of the main window.
 *
 * The manager is used from the GUI thread only. The order of the fields, virtual functions, signals
 * and slots is part of the binary contract.
 */
class RYCUSTOMIZEDDIALOG_EXPORT RyToolBarManager : public RyAbstatcManager
{
    Q_OBJECT

public:
    /*!
     * \brief Constructs an empty manager without a main window.
     *
     * \param parent ignored on purpose: the manager never has a QObject parent, and whoever creates
     *        it deletes it.
     */
    explicit RyToolBarManager(QObject *parent = nullptr);

    /*!
     * \brief Destroys the manager and nothing else.
     *
     * Actions, toolbars (custom ones included), separators and the main window stay as they are.
     */
    ~RyToolBarManager() override;

    /*!
     * \brief Sets the main window in which custom toolbars are created.
     *
     * Needed before createToolBar() and before a restoreState() that has to create a toolbar.
     *
     * \param mainWindow the host's window, not owned; null is stored like any other value. Toolbars
     *        that were created in an earlier window stay there.
     */
    void setMainWindow(QMainWindow *mainWindow);

    /*!
     * \brief Returns the main window, or null if none was set.
     */
    QMainWindow *mainWindow() const;

    /*!
     * \brief Registers \a action under \a category and creates the category if needed.
     *
     * No toolbar is touched.
     *
     * \param action the action, which stays the host's and must be taken out with removeAction()
     *        before it is deleted. Null and separator actions are ignored. An action that is
     *        registered already is ignored too: it stays in its first category.
     * \param category any name, the empty one included.
     */
    void addAction(QAction *action, const QString &category);

    /*!
     * \brief Takes \a action off every managed toolbar and out of the registry.
     *
     * Separators next to it stay. The action also leaves the default content of the default
     * toolbars, so that no reset brings it back, and its category goes with its last action, even
     * one that addCategory() created. The action itself is not deleted.
     *
     * \param action a registered action; null and unregistered ones are ignored.
     */
    void removeAction(QAction *action);

    /*!
     * \brief Creates \a category without actions.
     *
     * A category that exists is emptied, deliberately: its actions stay registered, and
     * actionCategory() still names it, but categoryActions() no longer lists them.
     */
    void addCategory(const QString &category);

    /*!
     * \brief Returns true if \a category exists, with or without actions.
     */
    bool hasCategory(const QString &category) const;

    /*!
     * \brief Returns the names of all categories, in ascending order of QString.
     */
    QStringList categories() const;

    /*!
     * \brief Returns the actions of \a category in the order of registration; an empty list for an
     *        unknown category. The actions stay the host's.
     */
    QList<QAction *> categoryActions(const QString &category) const;

    /*!
     * \brief Returns the category of \a action; a null string for null and for an action that is
     *        not registered.
     */
    QString actionCategory(QAction *action) const;

    /*!
     * \brief Returns all registered actions. They stay the host's.
     */
    QSet<QAction *> actions() const;

    /*!
     * \brief Returns the registered action whose objectName() is \a name or, if there is none, the
     *        one whose text() is \a name.
     *
     * An objectName match always wins over a text match. If several actions match, which of them is
     * returned is not defined.
     *
     * Prints a warning when no objectName matches and a second one when no text matches either;
     * both begin with "RyToolBarManager::restoreState(): ".
     *
     * \return the action, which stays the host's, or null.
     */
    QAction *findAction(const QString &name) const;

    /*!
     * \brief Registers \a toolBar as a default toolbar, and its actions under \a category.
     *
     * What stands on the toolbar now becomes its content and its default content. The widget is not
     * changed; its separator actions, however, belong to the manager from now on.
     *
     * \param toolBar the toolbar, which stays the host's and must be kept alive as long as the
     *        manager is used. Null is ignored, and so is a toolbar that is managed already, as a
     *        default or as a custom one. Give it an objectName: without one it is saved under its
     *        title, with a warning.
     * \param category the category of those actions that are not registered yet.
     */
    void addDefaultToolBar(QToolBar *toolBar, const QString &category);

    /*!
     * \brief Empties a custom toolbar and forgets it without deleting it.
     *
     * The test inside is inverted, deliberately: a default toolbar stays a default toolbar, and
     * nothing happens to it.
     *
     * \param toolBar a custom toolbar, which stays in the main window and is the host's from now
     *        on. Null, unmanaged and default toolbars are ignored.
     */
    void removeDefaultToolBar(QToolBar *toolBar);

    /*!
     * \brief Creates an empty custom toolbar in the top area of the main window.
     *
     * Its objectName is "_Custom_Toolbar_%1" with the first number from 1 on that no managed
     * toolbar has, so that the numbers of deleted toolbars are used again. Toolbars of the window
     * that are not managed are not looked at. The toolbar is managed once it is in the window.
     *
     * \param toolBarName the window title; it may be empty and need not be unique.
     * \return the toolbar, owned by the main window and managed until deleteToolBar() or
     *         removeDefaultToolBar(); null, and nothing created, if no main window is set.
     */
    QToolBar *createToolBar(const QString &toolBarName);

    /*!
     * \brief Takes everything off a custom toolbar and deletes the widget.
     *
     * Registered actions survive, those of QToolBar::addWidget() included, which Qt makes children
     * of the toolbar that they are placed on: they become children of the default toolbar that they
     * came with or else of the toolbar's parent. Lists that the host sets for the toolbar while it
     * is being deleted are ignored.
     *
     * \param toolBar a custom toolbar; the pointer dangles afterwards. Null, unmanaged and default
     *        toolbars are ignored.
     */
    void deleteToolBar(QToolBar *toolBar);

    /*!
     * \brief Replaces the content of \a toolBar, on the widget and in the manager.
     *
     * A list equal to the current content touches nothing. Otherwise all recorded actions are taken
     * off the widget, its separator actions are deleted, and the new content is appended, each
     * separator entry as a fresh separator action. An action may stand on several toolbars.
     *
     * Adding and removing actions makes Qt call event filters and slots of the host, which may call
     * the manager. It reports the old content until this call ends; setting that very list changes
     * nothing. If such a call sets a different list for the same toolbar, the last one wins and is
     * applied once the call returns. That happens at most a hundred times, so that a host that
     * always wants another list comes to an end.
     *
     * \param toolBar a managed toolbar, default or custom; null and unmanaged ones are ignored.
     * \param actions the new content, with null for a separator. Every separator is kept, adjacent
     *        ones included; actions that are not registered and second occurrences are dropped
     *        without a message.
     */
    void setToolBar(QToolBar *toolBar, const QList<QAction *> &actions);

    /*!
     * \brief Calls setToolBar() for each entry of \a toolBars, in the order of the map.
     */
    void setToolBars(const QMap<QToolBar *, QList<QAction *>> &toolBars);

    /*!
     * \brief Returns all managed toolbars in the order of their addresses. Default toolbars stay
     *        the host's, custom ones the main window's.
     */
    QList<QToolBar *> toolBars() const;

    /*!
     * \brief Returns each default toolbar with its default content; null entries are separators.
     */
    QMap<QToolBar *, QList<QAction *>> defaultToolBars() const;

    /*!
     * \brief Returns true if \a toolBar is a default toolbar; false for null and unknown ones.
     *
     * The pointer is only compared, so that it may dangle.
     */
    bool isDefaultToolBar(QToolBar *toolBar) const;

    /*!
     * \brief Returns each managed toolbar with its current content; null entries are separators.
     */
    QMap<QToolBar *, QList<QAction *>> toolBarsActions() const;

    /*!
     * \brief Returns the current content of \a toolBar, with null for a separator; an empty list
     *        for null and for a toolbar that is not managed.
     */
    QList<QAction *> actions(QToolBar *toolBar) const;

    /*!
     * \brief Returns the managed toolbar, default or custom, whose objectName() is \a name.
     *
     * The title is not looked at, and nothing is printed.
     *
     * \return the first match in the order of the addresses, or null.
     */
    QToolBar *toolBarByName(const QString &name) const;

    /*!
     * \brief Returns the default toolbar whose objectName() is \a name or, if there is none, the
     * one whose windowTitle() is \a name.
     *
     * Prints a warning when no objectName matches and a second one when no title matches either;
     * both begin with "RyToolBarManager::restoreState(): ".
     *
     * \return the first match in the order of the addresses, or null.
     */
    QToolBar *findDefaultToolBar(const QString &name) const;

    /*!
     * \brief Returns the content of every managed toolbar as bytes that restoreState() reads.
     *
     * Areas, positions and visibility are not part of it; QMainWindow::saveState() keeps those.
     * Prints a warning for each default toolbar and, each time that it is written, for each action
     * without an objectName.
     *
     * \param version a number of the host's choice that says which set of actions and toolbars the
     *        bytes were made with.
     */
    QByteArray saveState(int version) const;

    /*!
     * \brief Rebuilds the content of the toolbars from \a state.
     *
     * Custom toolbars that do not exist are created if a main window is set and are skipped
     * otherwise. Toolbars that the bytes do not name keep their content, and none is deleted. Names
     * that no action or toolbar has are skipped with the warnings of findAction() and
     * findDefaultToolBar(). All names are read when restoring begins, and again after the host has
     * registered or removed anything while a toolbar was restored; a name that changes in between
     * is not followed.
     *
     * Damaged bytes do no harm, whatever they hold. Where nothing can be read, names are empty and
     * counts are zero, for at most 1,000 entries of one toolbar and 1,000 toolbars of one section.
     *
     * \param state bytes from saveState(), as they were; an empty array is refused like any other
     *        that is not a state.
     * \param version the number that saveState() was given.
     * \return true if both sections were read. False without any change if the bytes are no state,
     *         or have another version: a host can try its older numbers in turn. False with the
     *         default toolbars changed if the section of the custom toolbars does not follow:
     *         restoring is deliberately not atomic.
     */
    bool restoreState(const QByteArray &state, int version);

    /*!
     * \brief Writes the sections that follow marker and version to \a stream, with the warnings of
     *        saveState().
     *
     * For hosts that keep the layout inside a stream of their own. The stream's settings are used
     * as they are, and its status is not looked at.
     */
    void saveStateData(QDataStream &stream) const;

    /*!
     * \brief Reads what saveStateData() wrote from \a stream; see restoreState() for the result.
     *
     * The stream's status is deliberately not looked at.
     */
    bool restoreStateData(QDataStream &stream);

public Q_SLOTS:
    /*!
     * \brief Gives \a toolBar its default content; ignores null, custom and unmanaged toolbars.
     */
    void resetToolBar(QToolBar *toolBar);

    /*!
     * \brief Gives every default toolbar its default content; custom toolbars stay as they are.
     */
    void resetAllToolBars();

Q_SIGNALS:
    /*!
     * \brief For other code to report that \a toolBar was created; the manager never emits it.
     */
    void toolBarCreated(QToolBar *toolBar);

    /*!
     * \brief For other code to report that \a toolBar was removed; the manager never emits it.
     */
    void toolBarRemoved(QToolBar *toolBar);

    /*!
     * \brief For other code to report that \a toolBar now holds \a actions; the manager never emits
     *        it.
     */
    void toolBarChanged(QToolBar *toolBar, const QList<QAction *> &actions);

private:
    friend class ContentChange;
    friend class ToolBarStateRestorer;

    Q_DECL_HIDDEN void takeOffToolBars(QAction *action);
    Q_DECL_HIDDEN void forgetCategory(QAction *action);
    Q_DECL_HIDDEN bool isCustomToolBar(QToolBar *toolBar) const;
    Q_DECL_HIDDEN QList<QAction *> placeableActions(const QList<QAction *> &actions) const;
    Q_DECL_HIDDEN void forgetToolBar(QToolBar *toolBar);
    Q_DECL_HIDDEN void keepActions(QToolBar *toolBar) const;
    Q_DECL_HIDDEN QObject *ownerOf(QAction *action, QObject *otherwise) const;

    // Each category with its actions in the order of registration.
    QMap<QString, QList<QAction *>> m_categoryToActions;
    // The inverse, for every action of m_allActions.
    QMap<QAction *, QString> m_actionToCategory;
    // Every registered action; never null, never a separator at the time of registration.
    QSet<QAction *> m_allActions;
    // The managed toolbars on which each action stands, in the order of placement.
    QMap<QAction *, QList<QToolBar *>> m_actionToToolBars;
    // Every managed toolbar with its content; null is a separator.
    QMap<QToolBar *, QList<QAction *>> m_toolBars;
    // The same toolbars with the actions on the widget; separators as objects, never null.
    QMap<QToolBar *, QList<QAction *>> m_toolBarsWithSeparators;
    // Each default toolbar with its default content; the keys are among those of m_toolBars.
    QMap<QToolBar *, QList<QAction *>> m_defaultToolBars;
    // The host's window, not owned; null until set.
    QMainWindow *m_mainWindow;
    // The innermost change of a toolbar's content that is running now, or null; it leads to those
    // that it interrupts.
    ContentChange *m_innermostChange;
    // How often actions and toolbars were registered and forgotten. Whoever keeps pointers to them
    // while the host may be called sees by it that they may be out of date.
    quint64 m_changesOfActions;
    quint64 m_changesOfToolBars;
};

#endif // RYTOOLBARMANAGER_H
