// SPDX-License-Identifier: MIT

#ifndef RYTOOLBARKIT_H
#define RYTOOLBARKIT_H

#include "rytoolbarkitexport.h"

#include <QList>
#include <QObject>
#include <QStringList>

/*!
 * \brief Expands to true in debug builds of the host.
 */
#ifdef QT_NO_DEBUG
#define RYTOOLBARKIT_DEBUG_BUILD false
#else
#define RYTOOLBARKIT_DEBUG_BUILD true
#endif

class QAction;
class QByteArray;
class QMainWindow;
class QSettings;
class RyCustomizedDialog;
class RyToolBarKitPrivate;
class RyToolBarManager;

/*!
 * \brief Makes the toolbars of a main window customizable, and keeps what the user makes of them.
 *
 * \code
 * RyToolBarKit *kit = new RyToolBarKit(this); // in the window's constructor, anywhere
 * settingsMenu->addAction(kit->customizeAction());
 * \endcode
 *
 * When the window is shown for the first time, the kit finds the actions of its menus and its
 * toolbars, and restores the layout of the last run. From then on it follows what the program and
 * the user change, and stores the layout. Programs that restore windows in their constructor call
 * restoreNow() there.
 *
 * \par What is found
 * - Each action of the menu bar's menus is offered in a category with the title of its menu, that
 *   of a submenu in one such as "View / Panels". Also the action of a submenu itself.
 * - Each toolbar that is in the window is a default toolbar with the content that it has then. Its
 *   actions that are in no menu are offered in a category with the title of the toolbar.
 * - Invisible actions are not offered until they become visible.
 * - Entries of lists, such as recent files, are not offered. These are actions without a name whose
 *   text, data, tool tip or status tip is a path or URL, whose mnemonic is a digit, or that have no
 *   text.
 * - A widget that exists only once (QToolBar::addWidget(), QWidgetAction::setDefaultWidget()) only
 *   stays on its own toolbar: from others the kit takes it off again. If its action has no text,
 *   the kit gives it one, because the dialog needs it.
 *
 * Menus, actions and toolbars that come later are found when the event loop runs again, and put
 * where the layout has them. Those that are deleted are forgotten, and keep their place in the
 * layout. An action that the program only takes out of its menus and toolbars is still offered,
 * until another action with the same name comes and takes its place.
 *
 * \par Names
 * Layouts refer to actions and toolbars by objectName(). Without one, the kit uses the name of the
 * menu, widget or property that the action belongs to, or that of its icon in the icon theme, and
 * last its text. Texts change with the language: problems() lists what needs a name.
 *
 * \par What the kit leaves alone
 * - A toolbar that the program shows or hides itself: only a choice that the user makes with
 *   QToolBar::toggleViewAction() is kept, and only as long as the program starts with the same
 *   visibility as then.
 * - The geometry of the window, and dock widgets.
 * - Properties that the program has set for a toolbar's buttons, such as the popup mode: they are
 *   put back after the content of the toolbar has changed.
 * - QMainWindow::saveState() and restoreState() of the program.
 *
 * \par The menu of the toolbars
 * A right click on a toolbar, or the Menu key on one of its buttons, shows the menu of
 * QMainWindow::createPopupMenu(), and below it what the user can do with the toolbar: choose an
 * icon size and a text position, lock the toolbars, remove the button, reset the toolbar, and open
 * the dialog. A floating toolbar has it too. The program comes first:
 * - If it takes the event, or the toolbar or the window has another contextMenuPolicy() than
 *   Qt::DefaultContextMenu, the kit adds nothing.
 * - If it reimplements createPopupMenu() and the menu differs from that of QMainWindow, everything
 *   is in a submenu "Toolbars". So it is in any other menu for the event that has the attribute
 *   Qt::WA_DeleteOnClose. If createPopupMenu() makes no menu or an empty one, there is none.
 * - A toolbar follows QMainWindow::setIconSize() and setToolButtonStyle() until the user chooses
 *   something else. What the program sets for a toolbar later wins, and a choice holds only as long
 *   as the program starts with what it had then.
 * - The lock makes all toolbars immovable, without those that setExcluded() names. There is none if
 *   the program has made all of them immovable, and it ends when the program makes one movable.
 *
 * \par Storage
 * The layout is one value of QSettings: a text in JSON with a checksum. It is written when the user
 * presses OK or Apply, some time after toolbars were moved, and when the window is closed or the
 * program quits, but only if it has changed. A second copy has ".format1" after the key. A value
 * that is damaged or from a newer version is refused with layoutRefused(); the second copy or else
 * the default is used, and the value stays until the user changes something. Instead of a layout,
 * the value may be bytes of RyToolBarManager::saveState() or QMainWindow::saveState() that the
 * program stored before. The size of the dialog is kept below the key with ".dialog" after it.
 *
 * \par Steps
 * Each OK, Apply or restored layout, and each time that toolbars were moved, shown or hidden, is a
 * step that the user can undo: the last twenty, also after a restart. A step has only what it has
 * changed. What the program changes is no step, and neither is the first layout of a window. Steps
 * are stored with ".steps" after the key when the user presses OK or Apply, undoes or redoes
 * something, and when the window is closed or the program quits. Those that are damaged are
 * forgotten without a signal.
 *
 * \par Limits
 * The gap that a user leaves in front of a toolbar is not kept.
 *
 * All windows whose kits have the same settings and key get the layout, and the steps, of the one
 * in which the user presses OK or Apply, undoes or redoes something.
 *
 * The kit is used from the GUI thread only.
 */
class RYTOOLBARKIT_EXPORT RyToolBarKit : public QObject
{
    Q_OBJECT

public:
    /*!
     * \brief What the kit does by itself. Everything is on by default.
     */
    enum Feature {
        FindActions = 0x1, //!< Offers the actions of the menus. Otherwise only those of toolbars.
        FindToolBars = 0x2, //!< Makes every toolbar customizable. Otherwise none of the program's.
        KeepPlaces = 0x4, //!< Keeps where the toolbars are.
        KeepVisibility = 0x8, //!< Keeps which toolbars the user has shown or hidden.
        KeepButtons = 0x10, //!< Puts back what the program has set for buttons.
        AddNewDefaults = 0x20, //!< Adds the default actions of a new release to a stored layout.
        FollowOthers = 0x40, //!< Takes over what is applied in another window.
        StoreChanges = 0x80, //!< Writes to the settings. Otherwise the value is only read.
        SearchActions = 0x100, //!< Adds a line to the dialog that finds actions.
        DragActions = 0x200, //!< Lets the user drag actions and entries in the dialog.
        ReadableLists = 0x400, //!< Shows texts in the dialog as menus do, and explains rows.
        ProtectEdits = 0x800, //!< Asks before edits in the dialog are lost, and finishes names.
        KeepSteps = 0x1000, //!< Keeps the last layouts for undoAction() and redoAction().
        ToolBarMenus = 0x2000, //!< Adds what users can do with a toolbar to its context menu.
        DialogKeys = 0x4000, //!< Adds keys to the dialog, and names for screen readers.
        UserGuide = 0x8000, //!< Opens a guide for users as the dialog's help.
        AllFeatures = 0xffff //!< Everything above.
    };
    Q_DECLARE_FLAGS(Features, Feature)

    /*!
     * \brief Attaches a kit to a window.
     *
     * \param window the window, which owns the kit. Null is an error: it is printed, and the kit
     *        does nothing. So is a window that has a kit already.
     * \param printProblems whether problems() is printed once, when everything is found. By default
     *        that is so in debug builds of the host.
     */
    explicit RyToolBarKit(QMainWindow *window, bool printProblems = RYTOOLBARKIT_DEBUG_BUILD);

    /*!
     * \brief Stores a changed layout, and leaves the window as it is.
     */
    ~RyToolBarKit() override;

    /*!
     * \brief Sets what the kit does by itself. Call it before the window is shown; later it has
     *        no effect on what has happened already.
     */
    void setFeatures(Features features);

    /*!
     * \brief Returns what the kit does by itself.
     */
    Features features() const;

    /*!
     * \brief Returns the action that opens the dialog, with the text "Customize Toolbars…" and the
     *        objectName "customizeToolBars". The kit owns it. It is never null.
     */
    QAction *customizeAction();

    /*!
     * \brief Returns the action that undoes the last change of the toolbars, with the text "Undo
     *        Toolbar Change" and the objectName "undoToolBars". The kit owns it. It is never null.
     *
     * It is disabled if there is nothing to undo, and always without KeepSteps. It has no shortcut.
     */
    QAction *undoAction();

    /*!
     * \brief Returns the action that redoes what undoAction() has undone, with the text "Redo
     *        Toolbar Change" and the objectName "redoToolBars". Otherwise it is like that one.
     */
    QAction *redoAction();

    /*!
     * \brief Returns the manager, for everything that the kit does not do.
     *
     * The kit owns it. It is null before the window is shown or restoreNow() is called, and
     * another one after a toolbar that the program had made was deleted. So do not keep it.
     */
    RyToolBarManager *manager();

    /*!
     * \brief Sets where the layout is kept. Call it before the window is shown.
     *
     * Without this call it is the program's QSettings and the key "toolBars/" with the objectName
     * of the window, or with its class name if it has none.
     *
     * \param settings not owned; it may be deleted earlier, and nothing is stored then. Null means
     *        the program's QSettings.
     * \param key an empty one means that nothing is read or stored: see saveLayout().
     */
    void setSettings(QSettings *settings, const QString &key);

    /*!
     * \brief Finds everything and restores the stored layout now, not when the window is shown.
     *
     * \return true if a layout was restored; false if there is none, if it was refused, or if this
     *         was done before.
     */
    bool restoreNow();

    /*!
     * \brief Returns the layout as the settings would keep it: text in UTF-8.
     */
    QByteArray saveLayout();

    /*!
     * \brief Restores a layout from saveLayout(), RyToolBarManager::saveState() or
     *        QMainWindow::saveState().
     *
     * Finds everything first, like restoreNow(), but reads no settings. A layout replaces all that
     * the user has customized. The bytes of a manager change only the toolbars that they name, and
     * those of a window only the places. It is a step that the user can undo, unless it is the
     * first layout of the window.
     *
     * \param layout any bytes. Empty ones restore the default.
     * \return false, without any change and after layoutRefused(), if they are none of these.
     */
    bool restoreLayout(const QByteArray &layout);

    /*!
     * \brief Sets whether the dialog has a line with which the user chooses, saves and removes
     *        profiles, and imports and exports layouts. By default it has none.
     */
    void setProfilesShown(bool shown);

    /*!
     * \brief Returns the names of the layouts that the user has saved, as a user would sort them.
     *
     * They are stored below the key with ".profiles" appended. Unless setSettings() was called,
     * there are none before the window is shown or restoreNow() is called. All other functions for
     * profiles and files find everything first, like restoreNow().
     */
    QStringList profiles();

    /*!
     * \brief Saves the layout as a profile, or replaces the one with that name.
     *
     * \param name any text, also with a slash; upper and lower case differ.
     * \return false if the name is empty, without a key, or without StoreChanges.
     */
    bool saveProfile(const QString &name);

    /*!
     * \brief Replaces the layout by that of a profile, in all windows with the same key.
     *
     * That is one step for undoAction(). An open dialog shows the new layout; its edits are lost.
     *
     * \return false, without any change, if there is no such profile, or after layoutRefused().
     */
    bool switchToProfile(const QString &name);

    /*!
     * \brief Removes a profile. The layout stays.
     *
     * \return false if there is no such profile, or without StoreChanges.
     */
    bool removeProfile(const QString &name);

    /*!
     * \brief Writes the layout to a file. The former file stays if that fails.
     *
     * \return false if the file cannot be written.
     */
    bool exportLayout(const QString &file);

    /*!
     * \brief Replaces the layout by that of a file, like switchToProfile().
     *
     * A file from somebody else does no harm: it is read only up to 1 MB and only if it is from
     * exportLayout(). Files with over 100 custom toolbars, with over 5,000 entries, or with custom
     * toolbars that RyToolBarManager has not named, are refused. Floating toolbars that are on no
     * screen are put into the window, and titles are cut after 200 characters.
     *
     * \return false, without any change and after layoutRefused(), if the file is refused.
     */
    bool importLayout(const QString &file);

    /*!
     * \brief Returns the names in a file that no action or toolbar has now, sorted, to be shown to
     *        the user before importLayout().
     *
     * They would be kept, and used when something with such a name comes.
     *
     * \param file anything; the list is empty if it would be refused.
     */
    QStringList unknownNames(const QString &file);

    /*!
     * \brief Offers \a actions in \a category, and puts them where the layout has them.
     *
     * For actions that are in no menu, or in another category than their menu. Null, separators and
     * those offered already are ignored.
     *
     * \param actions not owned; each is forgotten when it is deleted.
     * \param category any text, in the user's language.
     */
    void addActions(const QList<QAction *> &actions, const QString &category);

    /*!
     * \brief Says that \a object had other names in earlier releases.
     *
     * Layouts that have one of them mean \a object, unless something else has that name now.
     *
     * \param object an action or a toolbar, not owned; null and others are ignored.
     * \param names the former names, in any order. They replace those of an earlier call.
     */
    void setFormerNames(QObject *object, const QStringList &names);

    /*!
     * \brief Keeps \a object out of the dialog. Call it before the window is shown.
     *
     * \param object an action; a menu, with all that is in it; or a toolbar, which stays as the
     *        program made it. Not owned; null and others are ignored. An action on a toolbar stays
     *        there until the user removes it.
     */
    void setExcluded(QObject *object);

    /*!
     * \brief Brings \a action back at the next start if the user has removed it from all toolbars.
     *
     * It returns to the default toolbar that has it. Its row in the dialog has a tool tip that says
     * so.
     *
     * \param action not owned; null is ignored.
     */
    void setRequired(QAction *action);

    /*!
     * \brief Returns what keeps a layout from being stable, a sentence each with its remedy, in
     *        English for developers; an empty list before the window is shown.
     */
    QStringList problems();

    /*!
     * \brief Returns true if the user has customized nothing.
     */
    bool isDefault();

Q_SIGNALS:
    /*!
     * \brief Emitted before \a dialog is shown, for changes to it. The kit deletes the dialog when
     *        it is closed.
     *
     * Help of your own replaces the user guide, also for F1:
     * \code
     * disconnect(dialog->helpButton(), nullptr, dialog, nullptr);
     * connect(dialog->helpButton(), &QPushButton::clicked, this, &Window::showHelp);
     * \endcode
     * A window with it must be a child of the dialog, which is modal.
     */
    void aboutToCustomize(RyCustomizedDialog *dialog);

    /*!
     * \brief Emitted after the user has pressed OK or Apply, and the layout is stored.
     */
    void customized();

    /*!
     * \brief Emitted when the layout that saveLayout() returns has changed.
     */
    void layoutChanged();

    /*!
     * \brief Emitted when a layout is refused. \a reason is in English, for logs.
     */
    void layoutRefused(const QString &reason);

private:
    friend class RyToolBarKitPrivate;

    RyToolBarKitPrivate *d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(RyToolBarKit::Features)

#endif // RYTOOLBARKIT_H
