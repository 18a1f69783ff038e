// SPDX-License-Identifier: MIT

#ifndef RYTOOLBARKITPRIVATE_H
#define RYTOOLBARKITPRIVATE_H

#include "buttonproperties.h"
#include "kitlayout.h"
#include "layouthistory.h"
#include "layoutstore.h"
#include "profiles.h"
#include "restorequestion.h"
#include "rytoolbarkit.h"
#include "stablenames.h"

#include <RyToolBarManager>

#include <QDialog>
#include <QPointer>
#include <QTimer>

class FormerLayout;
class MenuActions;
class QAction;
class QListWidget;
class QModelIndex;
class QToolBar;
class ToolBarLooks;
class ToolBarMenu;

/*!
 * \brief What the kit knows of one window, and the order in which everything happens.
 *
 * The layout is what is to be shown; collect() brings it up to date with what the user has done.
 * Records of toolbars and actions that this run does not have stay in it.
 */
class RyToolBarKitPrivate : public QObject
{
    Q_OBJECT

public:
    RyToolBarKitPrivate(RyToolBarKit *kit, QMainWindow *window, bool printProblems);
    ~RyToolBarKitPrivate() override;

    bool restoreNow();
    bool restoreLayout(const QByteArray &value);
    QByteArray saveLayout();
    bool isDefault();
    void addActions(const QList<QAction *> &actions, const QString &category);
    void setFormerNames(QObject *object, const QStringList &names);
    void setExcluded(QObject *object);
    void setRequired(QAction *action);
    QStringList problems() const;
    void takeOver(const RyToolBarKitPrivate &other);
    Profiles profiles() const;
    bool saveProfile(const QString &name);
    bool switchToProfile(const QString &name);
    bool removeProfile(const QString &name);
    bool exportLayout(const QString &file);
    bool importLayout(const QString &file);
    QStringList unknownNames(const QString &file);

    // For the menu of the toolbars
    bool hasMenu(const QToolBar *toolBar) const;
    void followNow();
    void giveTitles();
    KitToolBar recordOf(const QToolBar *toolBar) const;
    void setLook(QToolBar *toolBar, const KitLook &look);
    bool isLocked() const { return m_layout.locked; }
    bool isAnyMovable() const;
    void setLocked(bool locked);
    bool canRemove(QToolBar *toolBar, int index) const;
    void removeEntry(QToolBar *toolBar, int index);
    bool isRequired(const QAction *action) const;
    bool canReset(const QToolBar *toolBar) const;
    void resetToolBar(QToolBar *toolBar);

    RyToolBarKit::Features features;
    LayoutStore store;
    // Null before everything is found, and after a toolbar of the program was deleted until the
    // event loop runs again.
    QPointer<RyToolBarManager> manager;
    QAction *customizeAction;
    QAction *undoAction;
    QAction *redoAction;
    bool areProfilesShown;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void takeTitlesBack();

private Q_SLOTS:
    void customize();
    void update();
    void storeChanges();
    void storeNow();
    void undo();
    void redo();
    void applied();
    void resetClicked();
    void forgetReset();
    void dialogFinished(int result);
    void dialogDeleted();
    void markRequired(const QModelIndex &parent, int first, int last);
    void actionDestroyed(QObject *object);
    void toolBarDestroyed(QObject *object);
    void excludedDestroyed(QObject *object);
    void visibilityChosen(bool shown);
    void unlock();

private:
    struct Untitled
    {
        QPointer<QToolBar> toolBar;
        // Of the action that shows it.
        QString text;
        QString title;
    };

    // Finding
    bool findEverything();
    void createManager();
    void giveUpManager();
    void startAgain();
    void findMenus();
    bool findToolBars();
    void offer(QAction *action, const QString &category);
    void offerHandedOver();
    void withdrawFormer(QAction *action);
    bool isInUse(const QAction *action) const;
    bool isOnToolBar(QAction *former, QAction *successor) const;
    void keepOutOfDialog(QAction *action);
    void addToolBar(QToolBar *toolBar);
    void prepareAction(QToolBar *toolBar, QAction *action);
    void watchToolBar(QToolBar *toolBar);
    void followLater(const QToolBar *toolBar);
    void followProgram(QToolBar *toolBar);
    bool isManaged(const QObject *object) const;
    bool isOffered(QAction *action) const;
    bool isListEntry(const QAction *action) const;
    void windowEvent(QEvent *event);
    void toolBarEvent(QToolBar *toolBar, QEvent *event);
    void setToDefaults();

    // The layout
    void collect();
    void collectToolBar(QToolBar *toolBar);
    void forgetRemovedToolBars();
    void collectPlaces();
    void restore(const KitLayout &layout);
    KitLayout readStored(bool *found);
    KitLayout converted(const FormerLayout &former) const;
    void createCustomToolBars();
    void nameCustomToolBar(QToolBar *toolBar, const QString &name);
    void followFormerNames();
    void renameInLayout(const QString &before, const QString &now, bool isToolBar);
    void placeAll();
    void place(QToolBar *toolBar);
    void putBackButtons(QToolBar *toolBar);
    void applyPlaces();
    void applyVisibility(QToolBar *toolBar);
    void undoVisibility(QToolBar *toolBar, const KitToolBar &before);
    void applyLook(QToolBar *toolBar);
    void applyLock();
    void takeLooksBack();
    void bringBackRequired();
    bool storeIfChanged();
    QStringList entriesOf(QToolBar *toolBar) const;
    QStringList namesOf(const QList<QAction *> &actions) const;
    QSet<QString> absentNames(QToolBar *toolBar, const QStringList &names) const;
    QHash<const QToolBar *, QString> toolBarNames(const QList<QToolBar *> &toolBars) const;

    // The steps
    void readSteps();
    void recordSteps();
    void beginStep();
    void changedByProgram();
    bool writeSteps();
    void goTo(void (LayoutHistory::*step)(KitLayout *));
    void showSteps();
    void shareChange();

    // Profiles and files
    bool take(const KitLayout &layout, const QString &reason);
    bool isKnown(const QString &name, const StableNames &names) const;

    // The dialog
    void showLayoutInDialog();
    void rememberNamesInDialog();
    void replaceStored();
    void adoptCreatedToolBars();
    void takeOffStrangeWidgets();
    void completeReset();
    RestoreQuestion::Defaults defaults() const;
    void tellOthers();
    QList<QPointer<RyToolBarKit>> kitsThatFollow() const;

    RyToolBarKit *m_kit;
    // Null if the host passed none. It owns the kit.
    QMainWindow *m_window;
    bool m_printProblems;
    // These are null without a window.
    MenuActions *m_menus;
    ToolBarLooks *m_looks;
    ToolBarMenu *m_toolBarMenu;
    StableNames m_actionNames;
    StableNames m_toolBarNames;

    // What the program has handed over or said, for each time that everything is found again.
    QList<QPair<QPointer<QAction>, QString>> m_handedOver;
    QSet<const QObject *> m_excluded;
    QList<QPointer<QAction>> m_required;
    QHash<QString, QPointer<QObject>> m_formerNames;

    // For each toolbar of the program: its default content, with the names of deleted actions.
    QHash<const QObject *, QStringList> m_defaults;
    // What the program has taken off itself, and may put back.
    QHash<const QObject *, QSet<QString>> m_takenOff;
    // Whether the program had shown it when it was found.
    QHash<const QObject *, bool> m_shownByProgram;
    KitPlaces m_placesByProgram;
    // The actions that the kit has offered. The keys of this and the like may be what an action or
    // a toolbar was before it was deleted.
    QHash<const QObject *, QAction *> m_offered;
    // The actions whose widget exists only once, with the toolbar that it belongs to.
    QHash<const QObject *, const QToolBar *> m_homes;
    ButtonProperties m_buttons;
    // The actions whose buttons Qt has made since the last look.
    QHash<const QObject *, QSet<const QAction *>> m_newButtons;
    QList<QPointer<QToolBar>> m_customToolBars;

    KitLayout m_layout;
    bool m_isRestored;
    // The layout as last stored or restored.
    QByteArray m_value;
    LayoutHistory m_history;

    QSet<const QObject *> m_changedToolBars;
    QTimer m_updateTimer;
    QTimer m_storeTimer;
    // Null while none is open.
    QDialog *m_dialog;
    // The rows of the toolbar that is current in the open dialog.
    QListWidget *m_rowsInDialog;
    // Whether Restore Defaults was pressed since the dialog was opened or changes were applied.
    bool m_isReset;
    // The toolbars without a title that have one while the dialog or a menu is open.
    QList<Untitled> m_untitled;
    // The names of the actions that the open dialog had when it was opened.
    QSet<QString> m_namesInDialog;
};

#endif // RYTOOLBARKITPRIVATE_H
