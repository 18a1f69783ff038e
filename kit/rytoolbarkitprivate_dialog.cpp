// SPDX-License-Identifier: MIT

#include "rytoolbarkitprivate.h"

#include "dialogdressing.h"
#include "menuactions.h"
#include "profilechooser.h"
#include "toolbarplaces.h"

#include <RyCToolBarWidget>
#include <RyCustomizedDialog>
#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QToolBar>

void RyToolBarKitPrivate::customize()
{
    if (!m_window)
        return;
    if (m_dialog) {
        m_dialog->activateWindow();
        return;
    }
    restoreNow();
    update(); // what the program has just added belongs in the dialog
    rememberNamesInDialog();
    giveTitles();
    RyCustomizedDialog *const dialog = new RyCustomizedDialog({manager, nullptr}, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog = dialog;
    // After the dialog's own connection, when the toolbars have changed.
    connect(dialog->applyButton(), SIGNAL(clicked()), this, SLOT(applied()));
    connect(dialog, SIGNAL(finished(int)), this, SLOT(dialogFinished(int)));
    connect(dialog, SIGNAL(destroyed()), this, SLOT(dialogDeleted()));
    // The other page has widgets with the same names.
    const QWidget *const page = dialog->findChild<RyCToolBarWidget *>();
    m_rowsInDialog = page->findChild<QListWidget *>(QStringLiteral("currentToolBarList"));
    connect(m_rowsInDialog->model(), SIGNAL(rowsInserted(QModelIndex, int, int)), this,
            SLOT(markRequired(QModelIndex, int, int)));
    const DialogDressing *const dressing = new DialogDressing(
        dialog, {manager, m_menus->categories(), [this] { return defaults(); }, &store, features});
    connect(dressing, SIGNAL(defaultsRestored()), this, SLOT(resetClicked()));
    connect(dressing, SIGNAL(filled()), this, SLOT(forgetReset()));
    if (areProfilesShown)
        new ProfileChooser(dialog, dressing->edits(), m_kit, profiles().nameOf(saveLayout()));
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the dialog owns the dressing
    Q_EMIT m_kit->aboutToCustomize(dialog);
    if (m_dialog)
        m_dialog->show();
}

void RyToolBarKitPrivate::rememberNamesInDialog()
{
    m_namesInDialog.clear();
    const auto actions = manager->actions();
    for (const QAction *action : actions)
        m_namesInDialog.insert(m_actionNames.nameOf(action));
}

// The page reads the toolbars when it is shown.
void RyToolBarKitPrivate::showLayoutInDialog()
{
    QWidget *const page = m_dialog ? m_dialog->findChild<RyCToolBarWidget *>() : nullptr;
    if (!page)
        return;
    rememberNamesInDialog();
    if (page->isVisible()) {
        page->hide();
        page->show();
    }
}

void RyToolBarKitPrivate::dialogFinished(int result)
{
    if (result == QDialog::Accepted)
        applied();
    m_dialog = nullptr;
    takeTitlesBack();
}

// A program may do that. One that was closed is no longer known.
void RyToolBarKitPrivate::dialogDeleted()
{
    if (sender() != m_dialog)
        return;
    m_dialog = nullptr;
    takeTitlesBack();
}

// The dialog and menus show toolbars by their titles.
void RyToolBarKitPrivate::giveTitles()
{
    int number = 0;
    const auto toolBars = ToolBarPlaces::toolBarsIn(m_window);
    for (QToolBar *toolBar : toolBars) {
        if (!manager->isDefaultToolBar(toolBar) || !toolBar->windowTitle().isEmpty())
            continue;
        const QString name = StableNames::inWords(toolBar->objectName());
        const QString title = name.isEmpty() ? RyToolBarKit::tr("Toolbar %1").arg(++number) : name;
        m_untitled.append({toolBar, toolBar->toggleViewAction()->text(), title});
        toolBar->setWindowTitle(title);
    }
}

void RyToolBarKitPrivate::takeTitlesBack()
{
    if (m_dialog)
        return;
    const auto untitled = m_untitled;
    m_untitled.clear();
    for (const Untitled &item : untitled) {
        if (!item.toolBar || item.toolBar->windowTitle() != item.title)
            continue;
        item.toolBar->setWindowTitle(QString());
        item.toolBar->toggleViewAction()->setText(item.text);
    }
}

void RyToolBarKitPrivate::markRequired(const QModelIndex &, int first, int last)
{
    const auto required = m_required;
    for (int row = first; row <= last; ++row) {
        for (const QPointer<QAction> &action : required) {
            if (action && m_rowsInDialog->item(row)->text() == action->text())
                m_rowsInDialog->item(row)->setToolTip(
                    RyToolBarKit::tr("If you remove it, it returns at the next start."));
        }
    }
}

void RyToolBarKitPrivate::applied()
{
    if (!manager)
        return;
    adoptCreatedToolBars();
    takeOffStrangeWidgets();
    if (m_isReset)
        completeReset();
    m_isReset = false;
    collect();
    placeAll();
    storeNow();
    replaceStored();
    Q_EMIT m_kit->customized();
    tellOthers();
}

// Another window may have stored its own layout since. A refused value stays.
void RyToolBarKitPrivate::replaceStored()
{
    const QByteArray stored = store.value();
    if (!(features & RyToolBarKit::StoreChanges) || stored.isEmpty() || stored == m_value)
        return;
    QString reason;
    KitLayout::fromJson(stored, &reason);
    if (!reason.isEmpty())
        return;
    store.write(m_value);
    if (features & RyToolBarKit::KeepSteps)
        store.writeSteps(m_history.toJson());
    store.sync();
}

void RyToolBarKitPrivate::adoptCreatedToolBars()
{
    const auto toolBars = manager->toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (!m_toolBarNames.nameOf(toolBar).isEmpty())
            continue;
        m_layout.toolBars.remove(toolBar->objectName()); // of one that was deleted just now
        nameCustomToolBar(toolBar, toolBar->objectName());
    }
}

// A widget that exists only once would be missing on one of its toolbars.
void RyToolBarKitPrivate::takeOffStrangeWidgets()
{
    const auto contents = manager->toolBarsActions();
    for (auto it = contents.cbegin(); it != contents.cend(); ++it) {
        QList<QAction *> actions;
        for (QAction *action : it.value()) {
            if (!m_homes.contains(action) || m_homes.value(action) == it.key())
                actions.append(action);
        }
        manager->setToolBar(it.key(), actions);
    }
}

void RyToolBarKitPrivate::resetClicked()
{
    m_isReset = true;
}

// The page does not know of it any more either.
void RyToolBarKitPrivate::forgetReset()
{
    m_isReset = false;
}

// The manager does not know the default actions that have come since it was made.
void RyToolBarKitPrivate::completeReset()
{
    const auto defaults = manager->defaultToolBars();
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it) {
        if (it.value() != manager->actions(it.key()))
            continue;
        m_layout.toolBars[m_toolBarNames.nameOf(it.key())].customized = false;
        place(it.key());
    }
    takeLooksBack();
}

// What Restore Defaults and OK make of the window.
RestoreQuestion::Defaults RyToolBarKitPrivate::defaults() const
{
    RestoreQuestion::Defaults result;
    result.areLocked = (features & RyToolBarKit::ToolBarMenus) && m_layout.locked;
    const auto toolBars = manager->defaultToolBars();
    for (auto it = toolBars.cbegin(); it != toolBars.cend(); ++it) {
        QList<QAction *> actions;
        const QStringList names = m_defaults.value(it.key());
        for (const QString &name : names) {
            QAction *const action = static_cast<QAction *>(m_actionNames.object(name));
            if (name.isNull() || action)
                actions.append(action);
        }
        result.toolBars.append(
            {it.key()->windowTitle(), actions, !recordOf(it.key()).look.isDefault()});
    }
    return result;
}

void RyToolBarKitPrivate::tellOthers()
{
    if (!(features & RyToolBarKit::FollowOthers))
        return;
    // All are found first: taking over may delete floating toolbars, which are windows too.
    const auto kits = kitsThatFollow();
    for (const QPointer<RyToolBarKit> &kit : kits) {
        if (kit)
            kit->d->takeOver(*this);
    }
}

QList<QPointer<RyToolBarKit>> RyToolBarKitPrivate::kitsThatFollow() const
{
    QList<QPointer<RyToolBarKit>> following;
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        const auto kits = widget->findChildren<RyToolBarKit *>();
        for (RyToolBarKit *kit : kits) {
            if (kit != m_kit && kit->d->store.isSameAs(store)
                && (kit->d->features & RyToolBarKit::FollowOthers))
                following.append(kit);
        }
    }
    return following;
}

// Windows with the same layout have the same steps.
void RyToolBarKitPrivate::takeOver(const RyToolBarKitPrivate &other)
{
    if (!manager || !m_isRestored)
        return;
    const bool isSame = other.m_value == saveLayout();
    QString reason;
    if (!isSame)
        restore(KitLayout::fromJson(other.m_value, &reason));
    if (features & other.features & RyToolBarKit::KeepSteps)
        m_history = other.m_history;
    beginStep();
    if (!isSame)
        Q_EMIT m_kit->layoutChanged();
}
