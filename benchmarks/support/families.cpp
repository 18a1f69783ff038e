// SPDX-License-Identifier: MIT

#include "family.h"

#include "apply.h"
#include "attach.h"
#include "createtoolbar.h"
#include "entry.h"
#include "find.h"
#include "kitdialog.h"
#include "layout.h"
#include "opendialog.h"
#include "removeaction.h"
#include "settoolbar.h"
#include "state.h"

namespace {

template <typename Ours, typename Bare>
Family family(const char *id, const Size &small, bool idempotent = false)
{
    return {id, &makeSide<Ours>, &makeSide<Bare>, idempotent, small};
}

QString text(const char *latin1)
{
    return QLatin1String(latin1);
}

// One toolbar, and twice as many actions, so that all entries can be exchanged.
Size oneToolBar(int entries)
{
    return {2 * entries, 1, entries, 0};
}

Size toolBarsOfFifty(int toolBars)
{
    return {qMax(100, 50 * toolBars), toolBars, 50, 0};
}

// The same layout of 100 toolbars of 50 entries for any number of actions.
Size registered(int actions)
{
    return {actions, 100, 50, 2000};
}

Size created(int toolBars)
{
    return {0, toolBars, 0, 0};
}

Size removed(int actions)
{
    return {actions, 0, 0, 0};
}

Size dialogOf(int actions)
{
    return {actions, 10, 20, 0};
}

Size dialogOfToolBars(int toolBars)
{
    return {1000, toolBars, 20, 0};
}

// One action more than there are on the toolbar.
Size listOf(int entries)
{
    return {entries + 1, 1, entries, 0};
}

// At least one toolbar, of up to 50 entries.
Size entriesOnToolBars(int entries)
{
    return {qMax(100, 2 * entries), qMax(1, entries / 50), qMin(50, entries), 0};
}

} // namespace

const QList<Family> &families()
{
    using ShownOurs = Shown<SetToolBarOurs>;
    using ShownBare = Shown<SetToolBarBare>;
    static const QList<Family> all{
        family<SetToolBarOurs, SetToolBarBare>("setToolBar", oneToolBar(50)),
        family<ShownOurs, ShownBare>("setToolBar-shown", oneToolBar(50)),
        family<UntilPainted<ShownOurs>, UntilPainted<ShownBare>>("setToolBar-painted",
                                                                 oneToolBar(50)),
        family<SaveOurs, SaveBare>("saveState", toolBarsOfFifty(20), true),
        family<RestoreSameOurs, RestoreSameBare>("restoreState-unchanged", {1000, 20, 50, 0}, true),
        family<RestoreFirstOurs, RestoreSameBare>("restoreState-first", {1000, 20, 50, 0}),
        family<RestoreOtherOurs, SetToolBarBare>("restoreState-changed", {1000, 4, 50, 0}),
        family<CreateToolBarOurs, CreateToolBarBare>("createToolBar", created(50)),
        family<RemoveActionOurs, RemoveActionBare>("removeAction", removed(200)),
        family<OpenDialogOurs, OpenDialogBare>("openDialog", dialogOf(500)),
        family<EntryOurs, EntryBare>("addAndRemoveEntry", listOf(100)),
        family<ApplySameOurs, ApplySameBare>("apply-unchanged", toolBarsOfFifty(20), true),
        family<ApplyOtherOurs, ApplyOtherBare>("apply-changed", toolBarsOfFifty(4)),
        family<UntilPainted<ApplyOtherOurs>, UntilPainted<ApplyOtherBare>>("apply-changed-painted",
                                                                           toolBarsOfFifty(4)),
        family<AttachKit, RegisterByHand>("kit-attach", {200, 4, 20, 0}),
        family<StoreMove, StoreMoveByHand>("kit-store", toolBarsOfFifty(4)),
        family<RestoreLayout, RestoreByHand>("kit-restore", toolBarsOfFifty(4)),
        family<OpenDressed, OpenPlain>("kit-dialog", dialogOf(500)),
        family<FindAction, FindActionBare>("kit-find", dialogOf(500)),
    };
    return all;
}

const Family *familyOf(const QString &id)
{
    for (const Family &candidate : families()) {
        if (id == QLatin1String(candidate.id))
            return &candidate;
    }
    return nullptr;
}

QList<Row> rows()
{
    const char *const hidden = "setToolBar";
    const char *const shown = "setToolBar-shown";
    const char *const painted = "setToolBar-painted";
    const char *const same = "restoreState-unchanged";
    const char *const first = "restoreState-first";
    const char *const other = "restoreState-changed";
    const QList<Size> grown{registered(2000), registered(4000)};
    return {
        {hidden,
         text("setToolBar, 50 entries exchanged, hidden"),
         Row::Ratio,
         1.10,
         {oneToolBar(50)}},
        {hidden,
         text("setToolBar, 500 entries exchanged, hidden"),
         Row::Ratio,
         1.10,
         {oneToolBar(500)}},
        {shown,
         text("setToolBar, 50 entries exchanged, shown"),
         Row::Ratio,
         1.10,
         {oneToolBar(50)}},
        {shown,
         text("setToolBar, 500 entries exchanged, shown"),
         Row::Ratio,
         1.10,
         {oneToolBar(500)}},
        {painted,
         text("setToolBar, 50 entries exchanged, shown, until painted"),
         Row::Ratio,
         1.10,
         {oneToolBar(50)}},
        {painted,
         text("setToolBar, 500 entries exchanged, shown, until painted"),
         Row::Ratio,
         1.10,
         {oneToolBar(500)}},
        {"saveState",
         text("saveState, 100 toolbars of 50 entries"),
         Row::Ratio,
         1.15,
         {toolBarsOfFifty(100)}},
        {same,
         text("restoreState, nothing changes, 4,000 actions"),
         Row::Ratio,
         1.50,
         {registered(4000)}},
        {first,
         text("restoreState, nothing changes, 4,000 actions, for the first time"),
         Row::Ratio,
         1.50,
         {registered(4000)}},
        {other,
         text("restoreState, every toolbar changes, 4,000 actions"),
         Row::Ratio,
         1.15,
         {registered(4000)}},
        {same, text("restoreState, nothing changes, from 2,000 to 4,000 actions"), Row::Growth,
         1.40, grown},
        {other, text("restoreState, every toolbar changes, from 2,000 to 4,000 actions"),
         Row::Growth, 1.20, grown},
        {"createToolBar", text("createToolBar, 400 times"), Row::Ratio, 1.30, {created(400)}},
        {"createToolBar",
         text("createToolBar, from 200 to 400, growth by that of bare Qt"),
         Row::GrowthByBare,
         1.05,
         {created(200), created(400)}},
        {"removeAction",
         text("removeAction, 1,000 actions off one toolbar"),
         Row::Ratio,
         1.50,
         {removed(1000)}},
        {"openDialog", text("Open the dialog, 1,000 actions"), Row::Ratio, 1.15, {dialogOf(1000)}},
        {"openDialog", text("Open the dialog, 5,000 actions"), Row::Ratio, 1.15, {dialogOf(5000)}},
        {"openDialog",
         text("Open the dialog, 200 toolbars"),
         Row::Ratio,
         1.60,
         {dialogOfToolBars(200)}},
        {"addAndRemoveEntry",
         text("Add and remove an entry in a list of 1,000"),
         Row::Ratio,
         1.10,
         {listOf(1000)}},
        {"apply-unchanged",
         text("Apply, 100 unchanged toolbars"),
         Row::Milliseconds,
         1.0,
         {toolBarsOfFifty(100)}},
        {"apply-changed",
         text("Apply, changes 100 toolbars of 50 entries, shown"),
         Row::Ratio,
         1.10,
         {toolBarsOfFifty(100)}},
        {"apply-changed-painted",
         text("Apply, changes 100 toolbars of 50 entries, shown, until painted"),
         Row::Ratio,
         1.10,
         {toolBarsOfFifty(100)}},
        {"kit-attach",
         text("Kit: attach to a window with 1,000 actions"),
         Row::Beyond,
         3.0,
         {{1000, 10, 20, 0}}},
        {"kit-store",
         text("Kit: store after a toolbar move, 100 toolbars of 10 entries"),
         Row::Milliseconds,
         1.0,
         {{2000, 100, 10, 0}}},
        {"kit-store",
         text("Kit: store after a toolbar move, 100 toolbars of 50 entries"),
         Row::Figure,
         0,
         {toolBarsOfFifty(100)}},
        {"kit-restore",
         text("Kit: restore, every toolbar changes, 100 toolbars of 50 entries"),
         Row::Ratio,
         1.50,
         {toolBarsOfFifty(100)}},
        {"kit-dialog",
         text("Kit: open the dialog, 100 actions"),
         Row::Ratio,
         1.35,
         {dialogOf(100)}},
        {"kit-dialog",
         text("Kit: open the dialog, 1,000 actions"),
         Row::Ratio,
         1.35,
         {dialogOf(1000)}},
        {"kit-dialog",
         text("Kit: open the dialog, 5,000 actions"),
         Row::Ratio,
         1.35,
         {dialogOf(5000)}},
        {"kit-find",
         text("Kit: a keystroke that finds among 5,000 actions, until painted"),
         Row::Milliseconds,
         8.0,
         {dialogOf(5000)}},
        {"openDialog", text("10,000 actions: open the dialog"), Row::Figure, 0, {dialogOf(10000)}},
        {"saveState",
         text("10,000 actions on 200 toolbars: saveState"),
         Row::Figure,
         0,
         {{10000, 200, 50, 0}}},
        {same,
         text("10,000 actions on 200 toolbars: restoreState, nothing changes"),
         Row::Figure,
         0,
         {{10000, 200, 50, 0}}},
        {first,
         text("10,000 actions on 200 toolbars: restoreState, nothing changes, for the first time"),
         Row::Figure,
         0,
         {{10000, 200, 50, 0}}},
        {other,
         text("10,000 actions on 200 toolbars: restoreState, every toolbar changes"),
         Row::Figure,
         0,
         {{10000, 200, 50, 0}}},
        {hidden,
         text("2,000 entries on one toolbar: setToolBar, hidden"),
         Row::Figure,
         0,
         {oneToolBar(2000)}},
        {painted,
         text("2,000 entries on one toolbar: setToolBar, shown, until painted"),
         Row::Figure,
         0,
         {oneToolBar(2000)}},
    };
}

QList<Curve> curves()
{
    return {
        {"setToolBar", text("setToolBar"), text("entries exchanged"), &oneToolBar, 10000},
        {"saveState", text("saveState"), text("entries"), &entriesOnToolBars, 10000},
        {"restoreState-unchanged", text("restoreState, nothing changes"), text("entries"),
         &entriesOnToolBars, 10000},
        {"restoreState-changed", text("restoreState, all changes"), text("entries"),
         &entriesOnToolBars, 10000},
        {"createToolBar", text("createToolBar"), text("toolbars"), &created, 1000},
        {"removeAction", text("removeAction"), text("actions"), &removed, 10000},
        {"openDialog", text("Open the dialog"), text("actions"), &dialogOf, 10000},
        {"addAndRemoveEntry", text("Add and remove an entry"), text("entries in the list"), &listOf,
         10000},
    };
}
