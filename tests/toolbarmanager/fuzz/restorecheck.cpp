// SPDX-License-Identifier: MIT

#include "restorecheck.h"

#include "fuzzhost.h"
#include "hostsnapshot.h"
#include "managerrecords.h"
#include "processuse.h"
#include "restoremodel.h"
#include "statewriter.h"
#include "texts.h"
#include "toolbarlines.h"

#include <QSet>

#include <memory>

namespace {

const qint64 MostMilliseconds = 1000;
const qint64 MostBytes = 64 * 1024 * 1024;

// Where names are ambiguous, a toolbar may get the content of another one that is saved under its
// name. Each restoring hands a content on to one more toolbar, and no row of them is longer than
// four; titles and texts that become names take a round of their own.
const int MostRounds = 8;

// The low bits of the first byte.
const int ShapeBits = 7;
const int BeginningBit = 8;

std::unique_ptr<FuzzHost> hosts[FuzzHost::ShapeCount];

QStringList warnings;

void recordWarning(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool located = context.file || context.line || context.function;
    const bool ofPlatform = text.startsWith("This plugin does not support");
    if (type == QtWarningMsg && !located && text.startsWith("RyToolBarManager::"))
        warnings << text;
    else if (!ofPlatform)
        warnings << "unknown message: " + text;
}

QStringList takeWarnings()
{
    const QStringList taken = warnings;
    warnings.clear();
    return taken;
}

QByteArray beginning()
{
    return StateWriter::ofVersion(StateVersion).byte(0xfe).bytes();
}

QStringList textsOf(const QList<QPointer<QAction>> &actions)
{
    QStringList texts;
    for (const QPointer<QAction> &action : actions) {
        if (action)
            texts << action->objectName() << action->text()
                  << QString::number(action->isSeparator());
        else
            texts << "deleted";
    }
    return texts;
}

class RestoreCheck
{
public:
    RestoreCheck(FuzzHost &host, const QByteArray &state, MemoryGauge *gauge);

    QString run();
    bool hostIsAsBefore() const { return m_hostIsAsBefore; }

private:
    void restore();
    void restoreMeasured(bool *result);
    void checkWhatMayChange(bool result);
    void checkHost(const char *when);
    void checkRegistry();
    void checkWidgets();
    void checkToolBar(QToolBar *toolBar, const HostSnapshot::ToolBar &known);
    void checkSeparators(const HostSnapshot &now);
    void checkRecordedToolBars(const HostSnapshot &now);
    QByteArray save();
    void checkSaving();
    void checkNextRun(const QByteArray &saved);
    void checkResetting();
    QStringList lines() const;
    void require(bool holds, const char *what, const QString &more = QString());
    void requireSame(const QStringList &actual, const QStringList &expected, const char *what);

    const QByteArray m_state;
    MemoryGauge *const m_gauge;
    FuzzHost &m_host;
    RyToolBarManager &m_manager;
    // The host as it was before anything was restored.
    const HostSnapshot m_before;
    RestoreModel m_model;
    RestoreModel m_modelOfNextRun;
    const QMap<QToolBar *, QList<QAction *>> m_defaults;
    const QSet<QAction *> m_registered;
    QList<QPointer<QAction>> m_actions;
    QStringList m_actionTexts;
    // What is on the unmanaged toolbar.
    QList<QPointer<QAction>> m_elsewhere;
    bool m_hostIsAsBefore = false;
    QStringList m_breaches;
};

RestoreCheck::RestoreCheck(FuzzHost &host, const QByteArray &state, MemoryGauge *gauge)
    : m_state(state)
    , m_gauge(gauge)
    , m_host(host)
    , m_manager(m_host.manager)
    , m_before(host)
    , m_model(m_manager)
    , m_modelOfNextRun(m_manager)
    , m_defaults(m_manager.defaultToolBars())
    , m_registered(m_manager.actions())
{
    for (QAction *action : m_registered)
        m_actions << action;
    m_actionTexts = textsOf(m_actions);
    const auto elsewhere = m_host.unmanaged->actions();
    for (QAction *action : elsewhere)
        m_elsewhere << action;
}

QString RestoreCheck::run()
{
    warnings.clear();
    restore();
    checkHost("after restoring");
    checkSaving();
    checkResetting();
    require(m_host.signalsEmitted == 0, "a signal was emitted");
    return m_breaches.join('\n');
}

// The result, the warnings and the layout are those of the model.
void RestoreCheck::restore()
{
    const bool expected = m_model.restore(m_state, StateVersion);
    bool result = false;
    restoreMeasured(&result);
    require(result == expected, "the result is another one");
    requireSame(takeWarnings(), m_model.takeWarnings(), "other warnings while restoring");
    requireSame(lines(), m_model.lines(), "another layout was restored");
    checkWhatMayChange(result);
}

void RestoreCheck::restoreMeasured(bool *result)
{
    const qint64 start = usedMilliseconds();
    m_gauge->begin();
    *result = m_manager.restoreState(m_state, StateVersion);
    const qint64 growth = m_gauge->growth();
    const qint64 milliseconds = usedMilliseconds() - start;
    require(milliseconds < MostMilliseconds,
            "milliseconds for restoring: ", QString::number(milliseconds));
    require(growth < MostBytes, "bytes for restoring: ", QString::number(growth));
}

// False without any change for what does not begin like a state; false with the default toolbars
// changed for the rest.
void RestoreCheck::checkWhatMayChange(bool result)
{
    const HostSnapshot now(m_host);
    if (!m_state.startsWith(beginning())) {
        require(!result, "what does not begin like a state was restored");
        require(now == m_before, "what does not begin like a state changed something");
    }
    if (!result)
        require(now.toolBars(false) == m_before.toolBars(false),
                "a custom toolbar changed although the result is false");
    for (QToolBar *toolBar : m_before.toolBars().keys()) {
        require(now.toolBars().contains(toolBar), "a toolbar was lost");
        if (m_host.manager.isDefaultToolBar(toolBar))
            require(now.toolBars().value(toolBar).objectName
                        == m_before.toolBars().value(toolBar).objectName,
                    "a default toolbar was renamed");
    }
}

void RestoreCheck::checkHost(const char *when)
{
    const int known = m_breaches.size();
    checkRegistry();
    checkWidgets();
    if (m_breaches.size() > known)
        m_breaches << "  " + QString(when);
}

void RestoreCheck::checkRegistry()
{
    require(m_manager.actions() == m_registered, "the registered actions changed");
    require(textsOf(m_actions) == m_actionTexts, "a registered action changed");
    require(m_manager.defaultToolBars() == m_defaults, "the default contents changed");
    // Only a separator that stood on a default toolbar, too, may be gone.
    QList<QPointer<QAction>> elsewhere = m_elsewhere;
    elsewhere.removeAll(nullptr);
    const auto standing = m_host.unmanaged->actions();
    require(standing.size() == elsewhere.size(), "an unmanaged toolbar has more or fewer actions");
    for (QAction *action : standing)
        require(elsewhere.contains(action), "another action is on an unmanaged toolbar");
}

void RestoreCheck::checkWidgets()
{
    const HostSnapshot now(m_host);
    const auto &toolBars = now.toolBars();
    require(m_manager.toolBars() == toolBars.keys(), "toolBars() and the contents differ");
    require(placedActions(m_manager).keys() == toolBars.keys(),
            "the two contents have different toolbars");
    const auto children =
        m_host.window.findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
    require(children.size() == toolBars.size() + 1, "toolbars without a manager");
    for (auto it = toolBars.cbegin(); it != toolBars.cend(); ++it) {
        require(children.contains(it.key()), "a toolbar is not in the window");
        require(m_host.window.toolBarArea(it.key()) == Qt::TopToolBarArea, "a toolbar has no area");
        checkToolBar(it.key(), it.value());
    }
    for (QToolBar *toolBar : m_defaults.keys())
        require(m_manager.isDefaultToolBar(toolBar) && toolBars.contains(toolBar),
                "a default toolbar was lost");
    checkSeparators(now);
    checkRecordedToolBars(now);
}

// A null entry is a real separator of the manager's, any other entry the registered action itself.
void RestoreCheck::checkToolBar(QToolBar *toolBar, const HostSnapshot::ToolBar &known)
{
    require(known.standing == known.recorded, "other actions are on the widget than recorded");
    require(known.standing.size() == known.content.size(), "the contents have different lengths");
    QSet<QAction *> met;
    for (int i = 0; i < qMin(known.content.size(), known.standing.size()); ++i) {
        QAction *const action = known.standing.at(i);
        require(!met.contains(action), "an action is twice on a toolbar");
        met.insert(action);
        if (known.content.at(i)) {
            require(action == known.content.at(i), "another action is on the widget");
            require(m_registered.contains(action), "an unregistered action is on the widget");
        } else {
            require(action->isSeparator(), "a separator entry is no separator action");
            require(!m_registered.contains(action), "a separator entry is a registered action");
            require(action->parent() == toolBar || m_host.separators.contains(action),
                    "a separator belongs to another toolbar");
        }
    }
}

// Every separator that was made for a toolbar, and every one that the host gave, is on one as long
// as it lives.
void RestoreCheck::checkSeparators(const HostSnapshot &now)
{
    QSet<QAction *> standing;
    for (auto it = now.toolBars().cbegin(); it != now.toolBars().cend(); ++it) {
        for (QAction *action : it.value().standing)
            standing.insert(action);
    }
    for (QToolBar *toolBar : now.toolBars().keys()) {
        const auto children =
            toolBar->findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
        for (QAction *action : children)
            require(!action->isSeparator() || standing.contains(action), "a separator leaked");
    }
    for (const QPointer<QAction> &separator : std::as_const(m_host.separators))
        require(!separator || standing.contains(separator), "a separator of the host's leaked");
}

void RestoreCheck::checkRecordedToolBars(const HostSnapshot &now)
{
    const auto recorded = toolBarsOfActions(m_manager);
    QMap<QAction *, QSet<QToolBar *>> expected;
    for (auto it = now.toolBars().cbegin(); it != now.toolBars().cend(); ++it) {
        for (QAction *action : it.value().content) {
            if (action)
                expected[action].insert(it.key());
        }
    }
    for (QAction *action : recorded.keys())
        require(m_registered.contains(action), "the toolbars of an unregistered action are kept");
    for (QAction *action : m_registered) {
        const QList<QToolBar *> toolBars = recorded.value(action);
        const QSet<QToolBar *> unique(toolBars.cbegin(), toolBars.cend());
        require(unique.size() == toolBars.size(), "an action knows a toolbar twice");
        require(unique == expected.value(action), "an action does not know its toolbars");
    }
}

// Saves, which changes nothing; the bytes and the warnings are those of the model.
QByteArray RestoreCheck::save()
{
    const HostSnapshot before(m_host);
    RestoreModel model(m_manager);
    const QByteArray saved = m_manager.saveState(StateVersion);
    require(HostSnapshot(m_host) == before, "saving changed something");
    require(saved == model.save(StateVersion), "other bytes were saved");
    requireSame(takeWarnings(), model.takeWarnings(), "other warnings while saving");
    return saved;
}

/*
 * A saved state can be restored. If each name that is saved is found again where it came from, then
 * nothing at all changes, and the bytes saved next are the same. Otherwise the host broke the rule
 * that names are unique, and the bytes are the same after a few rounds.
 */
void RestoreCheck::checkSaving()
{
    QByteArray saved = save();
    const HostSnapshot before(m_host);
    const bool unambiguous = before.namesAreUnambiguous();
    if (unambiguous)
        checkNextRun(saved);
    for (int round = 1; round <= MostRounds; ++round) {
        require(m_manager.restoreState(saved, StateVersion), "a saved state was refused");
        takeWarnings();
        const QByteArray again = save();
        if (unambiguous) {
            require(HostSnapshot(m_host) == before, "restoring what was saved changed something");
            require(again == saved, "saving, restoring and saving gave other bytes");
        }
        if (again == saved)
            break;
        require(round < MostRounds, "saving and restoring never comes to rest");
        saved = again;
    }
    checkHost("after saving and restoring");
}

// In a new run of the host, what was saved gives the same layout. Only the titles of default
// toolbars are not saved.
void RestoreCheck::checkNextRun(const QByteArray &saved)
{
    require(m_modelOfNextRun.restore(saved, StateVersion),
            "a saved state was refused in the next run");
    for (QToolBar *toolBar : m_defaults.keys()) {
        if (toolBar->windowTitle() != m_before.toolBars().value(toolBar).title)
            return;
    }
    requireSame(m_modelOfNextRun.lines(), lines(), "the next run begins with another layout");
}

// Both resetting by the manager and giving the host its first layout back, which deletes toolbars.
void RestoreCheck::checkResetting()
{
    const HostSnapshot before(m_host);
    m_manager.resetAllToolBars();
    require(HostSnapshot(m_host).toolBars(false) == before.toolBars(false),
            "resetting changed a custom toolbar");
    for (auto it = m_defaults.cbegin(); it != m_defaults.cend(); ++it)
        require(m_manager.actions(it.key()) == it.value(), "a default content did not come back");
    m_hostIsAsBefore = m_host.reset();
    if (!m_hostIsAsBefore)
        return;
    require(HostSnapshot(m_host).hasLayoutOf(m_before), "the first layout did not come back");
    checkHost("after resetting");
}

// In the form of the model. The widgets are looked at elsewhere.
QStringList RestoreCheck::lines() const
{
    QStringList lines;
    const auto contents = m_manager.toolBarsActions();
    for (auto it = contents.cbegin(); it != contents.cend(); ++it)
        lines << lineOf(m_manager.isDefaultToolBar(it.key()), it.key()->objectName(),
                        it.key()->windowTitle(), contentOf(it.value()));
    lines.sort();
    return lines;
}

void RestoreCheck::require(bool holds, const char *what, const QString &more)
{
    if (holds)
        return;
    const QString breach = what + more;
    if (!m_breaches.contains(breach))
        m_breaches << breach;
}

void RestoreCheck::requireSame(const QStringList &actual, const QStringList &expected,
                               const char *what)
{
    if (actual == expected)
        return;
    const QString joint = "\n    ";
    require(false, what,
            joint + actual.join(joint) + "\n  instead of" + joint + expected.join(joint));
}

} // namespace

MemoryGauge::~MemoryGauge() = default;

QByteArray stateOfInput(const QByteArray &input)
{
    if (input.isEmpty())
        return input;
    return (input.at(0) & BeginningBit ? beginning() : QByteArray()) + input.mid(1);
}

QString breachOf(const QByteArray &input, MemoryGauge *gauge)
{
    const QtMessageHandler previous = qInstallMessageHandler(recordWarning);
    const int shape = input.isEmpty() ? 0 : input.at(0) & ShapeBits;
    std::unique_ptr<FuzzHost> &host = hosts[shape];
    if (!host)
        host = std::make_unique<FuzzHost>(shape);
    RestoreCheck check(*host, stateOfInput(input), gauge);
    const QString breach = check.run();
    if (!breach.isEmpty() || !check.hostIsAsBefore())
        host.reset();
    qInstallMessageHandler(previous);
    return breach;
}

void forgetHosts()
{
    for (std::unique_ptr<FuzzHost> &host : hosts)
        host.reset();
}
