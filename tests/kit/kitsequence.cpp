// SPDX-License-Identifier: MIT

#include "kitsequence.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QRegularExpression>

namespace {

const QStringList Actions = {"a", "b", "c", "d", "e", "f", "g", "h"};
const QStringList ToolBars = {"one", "two", "three"};

// Each release renames something to another of two names.
QString otherName(const QString &name)
{
    return name.endsWith("2") ? name.chopped(1) : name + "2";
}

} // namespace

KitSequence::KitSequence(quint32 seed)
    : m_random(seed)
    , m_main(QString(), "toolBars")
    , m_follower(m_main.program.settings->fileName(), "toolBars")
    , m_stranger(m_main.program.settings->fileName(), "others")
    , m_windows({&m_main, &m_follower, &m_stranger})
    , m_window(&m_main)
{
    for (int i = 0; i < 3; ++i)
        m_releases << randomRelease();
    begin(m_releases.first());
}

bool KitSequence::run(int steps)
{
    // One that is here twice is done twice as often.
    static const QList<Step> all = {&KitSequence::customize,
                                    &KitSequence::customize,
                                    &KitSequence::hideOrShow,
                                    &KitSequence::hideOrShow,
                                    &KitSequence::move,
                                    &KitSequence::move,
                                    &KitSequence::useMenu,
                                    &KitSequence::useMenu,
                                    &KitSequence::useMenu,
                                    &KitSequence::undoOrRedo,
                                    &KitSequence::undoOrRedo,
                                    &KitSequence::undoOrRedo,
                                    &KitSequence::undoOrRedo,
                                    &KitSequence::saveProfile,
                                    &KitSequence::switchToProfile,
                                    &KitSequence::hideForAWhile,
                                    &KitSequence::restart,
                                    &KitSequence::startOtherRelease,
                                    &KitSequence::rename,
                                    &KitSequence::loseOrRegain,
                                    &KitSequence::loseOrRegain,
                                    &KitSequence::loadOrUnloadToolBar,
                                    &KitSequence::loadOrUnloadToolBar,
                                    &KitSequence::loadOrUnloadMenu,
                                    &KitSequence::changeWithTheDialogOpen,
                                    &KitSequence::exchange,
                                    &KitSequence::exchange,
                                    &KitSequence::damage,
                                    &KitSequence::openOrCloseOther,
                                    &KitSequence::openOrCloseOther};
    for (int i = 0; i < steps && agree(); ++i) {
        choose();
        (this->*all.at(m_random.bounded(all.size())))();
        keepTrackOfStored();
    }
    return agree();
}

QStringList KitSequence::randomContent(const QStringList &names)
{
    QStringList content;
    for (int i = m_random.bounded(6); i > 0; --i) {
        const QString name =
            m_random.bounded(4) == 0 ? "|" : names.value(m_random.bounded(names.size() + 1));
        if (name == "|" || (!name.isEmpty() && !content.contains(name)))
            content << name;
    }
    return content;
}

KitModel::Release KitSequence::randomRelease()
{
    KitModel::Release release;
    for (const QString &name : Actions) {
        if (m_random.bounded(4) != 0)
            release.actions << name;
    }
    QStringList names = release.actions.values();
    names.sort();
    for (const QString &name : ToolBars) {
        if (m_random.bounded(4) != 0)
            release.toolBars.insert(name, randomContent(names));
    }
    release.required = pick(names);
    return release;
}

QString KitSequence::pick(const QStringList &names)
{
    return names.isEmpty() ? QString() : names.at(m_random.bounded(names.size()));
}

QStringList KitSequence::actions() const
{
    QStringList all = m_release.actions.values();
    all.sort();
    return all;
}

// One that the program has, or one of the others but not by a name that something had formerly.
QString KitSequence::pickPlugin(const QStringList &names, const QStringList &present)
{
    QStringList all = present;
    for (const QString &name : names) {
        if (!all.contains(name) && !m_release.formerNames.values().contains(name))
            all << name;
    }
    return pick(all);
}

void KitSequence::choose()
{
    QList<ComparedWindow *> open;
    for (ComparedWindow *window : m_windows) {
        if (window->isOpen())
            open << window;
    }
    m_window = open.at(m_random.bounded(open.size()));
}

void KitSequence::begin(const KitModel::Release &release)
{
    const QString key = m_main.program.key;
    if (m_isChanged || m_release.toolBars != release.toolBars)
        ++m_changes;
    m_release = release;
    m_isChanged = false;
    m_main.start(release, m_stored.value(key), m_storedSteps.value(key));
    m_main.model.beginStep(placesOf(&m_main));
    m_window = &m_main;
    m_log << "start " + m_main.text();
}

// What each of them stores is known before they are closed.
void KitSequence::end()
{
    for (ComparedWindow *window : m_windows) {
        if (!window->isOpen())
            continue;
        record(window);
        window->end();
        keepTrackOfStored();
    }
}

// Closing the window, or a while without a move, makes a step of what was done.
void KitSequence::record(ComparedWindow *window)
{
    window->storeNow();
    window->model.record(placesOf(window));
    keepTrackOfStored();
    keepTrackOfSteps(window);
}

// What is stored now are the steps of the window that stores them.
void KitSequence::keepTrackOfSteps(const ComparedWindow *window)
{
    const QString key = window->program.key;
    const QString stored = window->program.settings->value(key + ".steps").toString();
    if (stored != m_storedStepsText.value(key))
        m_storedSteps[key] = window->model.steps();
    m_storedStepsText[key] = stored;
}

// Another window of the program may have its toolbars elsewhere. The layout also has the places of
// toolbars that are not there.
QStringList KitSequence::placesOf(const ComparedWindow *window) const
{
    int index = 0;
    while (m_windows.at(index) != window)
        ++index;
    const QString since = QString("%1 in window %2").arg(m_changes).arg(index);
    const QJsonDocument saved = QJsonDocument::fromJson(window->program.kit()->saveLayout());
    const QJsonObject places = saved.object().value("layout").toObject().value("places").toObject();
    return QStringList(since) + window->program.places()
        + QStringList(QJsonDocument(places).toJson(QJsonDocument::Compact));
}

// The places are not those from before, but that is no step.
void KitSequence::beginPlaces()
{
    ++m_changes;
    for (ComparedWindow *window : m_windows) {
        if (window->isOpen())
            window->model.beginStep(placesOf(window));
    }
}

// What is stored is the layout of a window, as it is now or was before this step.
void KitSequence::keepTrackOfStored()
{
    for (const ComparedWindow *keeper : {&m_main, &m_stranger}) {
        const QString key = keeper->program.key;
        const QString stored = m_main.program.settings->value(key + ".format1").toString();
        if (stored == m_storedText.value(key))
            continue;
        bool isKnown = false;
        for (ComparedWindow *window : m_windows) {
            if (!window->isOpen() || window->program.key != key || isKnown)
                continue;
            const bool isSaved = window->program.kit()->saveLayout() == stored.toUtf8();
            isKnown = isSaved || window->saved == stored;
            if (isKnown)
                m_stored[key] = isSaved ? window->model.layout() : window->layout;
        }
        m_storedText[key] = stored;
        if (key == m_main.program.key)
            m_isDamaged = false;
        if (!isKnown)
            m_problem = "no window has what was stored: " + stored;
    }
}

void KitSequence::customize()
{
    if (m_random.bounded(6) == 0)
        restoreDefaults();
    else
        m_window->program.apply([this](RyToolBarManager *manager) { customizeMore(manager); });
    applied();
}

// Several changes before the user presses OK.
void KitSequence::customizeMore(RyToolBarManager *manager)
{
    QStringList toolBars = m_window->model.toolBars();
    for (int i = m_random.bounded(7); i > 0; --i) {
        const QStringList content = randomContent(actions());
        const QString toolBar = pick(toolBars);
        if (m_random.bounded(5) == 0) {
            const QString title = QString::number(m_random.bounded(10));
            m_log << "create " + m_window->create(manager, title, content) + ": "
                    + content.join(" ");
        } else if (m_window->model.isCustom(toolBar) && m_random.bounded(3) == 0) {
            m_log << "remove " + toolBar;
            m_window->remove(manager, toolBar);
        } else if (!toolBar.isEmpty()) {
            m_log << "edit " + toolBar + ": " + content.join(" ");
            m_window->edit(manager, toolBar, content);
        }
        toolBars.removeAll(toolBar);
    }
}

void KitSequence::restoreDefaults()
{
    m_log << "restore defaults";
    m_window->program.restoreDefaults();
    m_window->model.restoreDefaults();
}

void KitSequence::applied()
{
    m_log << "pressed OK in window " + QString::number(m_windows.indexOf(m_window));
    m_window->model.record(placesOf(m_window));
    share();
}

// The other windows with the same key follow.
void KitSequence::share()
{
    for (ComparedWindow *window : m_windows) {
        if (window == m_window || !window->isOpen() || window->program.key != m_window->program.key)
            continue;
        window->model.takeOver(m_window->model.layout(), m_window->model.steps());
        window->model.beginStep(placesOf(window));
    }
    keepTrackOfStored();
    keepTrackOfSteps(m_window);
    const QString stored = m_window->program.stored();
    if (!stored.isEmpty() && !m_isDamaged
        && stored.toUtf8() != m_window->program.kit()->saveLayout())
        m_problem = "something else is stored: " + stored;
}

void KitSequence::hideOrShow()
{
    const QString toolBar = pick(m_window->model.toolBars());
    if (toolBar.isEmpty())
        return;
    m_log << "hide or show " + toolBar;
    m_window->hideOrShow(toolBar);
    record(m_window);
}

void KitSequence::hideForAWhile()
{
    const QString toolBar = pick(m_window->model.toolBars());
    if (toolBar.isEmpty())
        return;
    m_log << "hide " + toolBar + " for a while";
    m_window->hideForAWhile(toolBar);
}

void KitSequence::move()
{
    const QList<Qt::ToolBarArea> areas = {Qt::LeftToolBarArea, Qt::RightToolBarArea,
                                          Qt::TopToolBarArea, Qt::BottomToolBarArea};
    const QString toolBar = pick(m_window->model.toolBars());
    const Qt::ToolBarArea area = areas.at(m_random.bounded(4));
    if (toolBar.isEmpty())
        return;
    m_log << "move " + toolBar;
    if (m_random.bounded(2) == 0)
        m_window->program.window()->addToolBarBreak(area);
    m_window->program.window()->addToolBar(area, m_window->program.toolBar(toolBar));
    record(m_window);
}

void KitSequence::undoOrRedo()
{
    const bool isUndo = m_random.bounded(3) != 0;
    const KitModel::Steps steps = m_window->model.steps();
    const QList<KitModel::Step> possible = isUndo ? steps.undo : steps.redo;
    if (possible.isEmpty())
        return;
    m_log << (isUndo ? "undo in window " : "redo in window ")
            + QString::number(m_windows.indexOf(m_window));
    RyToolBarKit *const kit = m_window->program.kit();
    const QStringList places = placesOf(m_window);
    (isUndo ? kit->undoAction() : kit->redoAction())->trigger();
    if (isUndo)
        m_window->model.undo(places);
    else
        m_window->model.redo(places);
    letTheKitFollow();
    m_window->model.beginStep(placesOf(m_window));
    share();
    const QStringList expected = possible.last().places;
    if (expected.value(0) == places.first() && expected != placesOf(m_window))
        m_problem = "places: " + expected.join("; ") + " became " + placesOf(m_window).join("; ");
}

void KitSequence::saveProfile()
{
    const QString name = QString::number(m_random.bounded(3));
    m_log << "save profile " + name;
    if (!m_window->program.kit()->saveProfile(name))
        m_problem = "it was not saved";
    m_profiles[m_window->program.key][name] = m_window->model.layout();
}

void KitSequence::switchToProfile()
{
    const auto profiles = m_profiles.value(m_window->program.key);
    const QString name = pick(profiles.keys());
    if (profiles.isEmpty())
        return;
    m_log << "switch to profile " + name;
    if (!m_window->switchToProfile(name, profiles.value(name)))
        m_problem = "it was refused";
    letTheKitFollow();
    m_window->model.record(placesOf(m_window));
    share();
}

// The other windows do not follow.
void KitSequence::useMenu()
{
    const QString toolBar = pick(m_window->model.toolBars());
    const int size = m_window->model.content(toolBar).size();
    const int choice = m_random.bounded(5);
    const int index = m_random.bounded(qMax(1, size));
    if (toolBar.isEmpty() || (choice == 3 && size == 0))
        return;
    m_log << QString("use the menu of %1: %2, %3").arg(toolBar).arg(choice).arg(index);
    if (choice == 0)
        m_window->chooseIconSize(toolBar, QList<int>({16, 22, 48}).at(index % 3));
    else if (choice == 1)
        m_window->chooseTextPosition(toolBar,
                                     QStringList({"icons", "text", "under"}).at(index % 3));
    else if (choice == 2)
        m_window->lockOrUnlock(toolBar);
    else if (choice == 3)
        m_window->removeEntry(toolBar, index);
    else
        m_window->reset(toolBar);
    record(m_window);
}

// Toolbars are in the same places again, and a start without any change changes nothing.
void KitSequence::restart()
{
    m_log << "restart";
    const QStringList places = m_places;
    if (m_main.saved != m_main.program.kit()->saveLayout())
        m_problem = "saving it again changes it: " + m_main.saved;
    end();
    begin(m_release);
    comparePlaces(places);
    const QStringList placesNow = m_main.program.places();
    const QString saved = m_main.program.kit()->saveLayout();
    end();
    begin(m_release);
    comparePlaces(placesNow);
    if (saved != m_main.program.kit()->saveLayout())
        m_problem = "not the same again: " + saved;
}

void KitSequence::startOtherRelease()
{
    end();
    begin(m_releases.at(m_random.bounded(m_releases.size())));
}

// The next release has another name for something.
void KitSequence::rename()
{
    KitModel::Release release = m_release;
    const QString before = pick(QStringList(release.toolBars.keys()) + actions());
    if (before.isEmpty() || ComparedWindow::MenuActions.contains(before))
        return;
    const QString now = otherName(before);
    m_log << "rename " + before;
    release.formerNames.remove(before);
    release.formerNames.insert(now, before);
    if (release.toolBars.contains(before))
        release.toolBars.insert(now, release.toolBars.take(before));
    if (release.actions.remove(before))
        release.actions.insert(now);
    if (release.required == before)
        release.required = now;
    for (QStringList &content : release.toolBars)
        content.replaceInStrings(QRegularExpression('^' + before + '$'), now);
    QStringList places = m_places;
    places.replaceInStrings(QRegularExpression("\\b" + before + "\\b"), now);
    end();
    begin(release);
    // Otherwise what the user made of it then may count again.
    if (!m_namesSince.contains(now) && now.endsWith("2"))
        comparePlaces(places);
    m_namesSince.insert(now);
}

void KitSequence::comparePlaces(const QStringList &places)
{
    const QStringList now = m_main.program.places();
    if (!places.isEmpty() && places != now)
        m_problem = "places: " + places.join("; ") + " became " + now.join("; ");
}

// The program changes while it runs, in all its windows.
void KitSequence::change(const KitModel::Release &release)
{
    if (m_release.toolBars.keys() != release.toolBars.keys())
        m_isChanged = true;
    m_release = release;
    for (ComparedWindow *window : m_windows) {
        if (window->isOpen())
            window->change(release);
    }
    beginPlaces();
}

void KitSequence::loseOrRegain()
{
    KitModel::Release release = m_release;
    const QString name = pickPlugin(Actions, actions());
    if (name.isEmpty() || ComparedWindow::MenuActions.contains(name))
        return;
    m_log << "lose or regain " + name;
    if (!release.actions.remove(name))
        release.actions.insert(name);
    change(release);
}

void KitSequence::loadOrUnloadToolBar()
{
    KitModel::Release release = m_release;
    const QString name = pickPlugin(ToolBars, release.toolBars.keys());
    const QStringList content = randomContent(actions());
    if (name.isEmpty())
        return;
    m_log << "load or unload " + name + ": " + content.join(" ");
    if (release.toolBars.remove(name) == 0)
        release.toolBars.insert(name, content);
    change(release);
}

void KitSequence::loadOrUnloadMenu()
{
    KitModel::Release release = m_release;
    m_log << "load or unload a menu";
    for (const QString &name : ComparedWindow::MenuActions) {
        if (!release.actions.remove(name))
            release.actions.insert(name);
    }
    change(release);
}

// The dialog stays open, or opens again, until the user presses OK.
void KitSequence::changeWithTheDialogOpen()
{
    m_log << "open the dialog";
    const QList<Step> changes = {&KitSequence::loseOrRegain, &KitSequence::loadOrUnloadToolBar,
                                 &KitSequence::loadOrUnloadMenu};
    m_window->program.openDialog();
    (this->*changes.at(m_random.bounded(changes.size())))();
    m_window->program.openDialog()->okButton()->click();
    letTheKitFollow();
    applied();
}

// Neither the layout nor what the toolbars show changes.
void KitSequence::exchange()
{
    const QString name = pick(actions());
    if (name.isEmpty())
        return;
    m_log << "exchange " + name;
    const QByteArray saved = m_window->program.kit()->saveLayout();
    m_window->exchange(name);
    if (m_window->program.kit()->saveLayout() != saved)
        m_problem = "the layout has changed";
}

void KitSequence::damage()
{
    m_log << "damage";
    end();
    QString value = m_main.program.stored();
    if (value.isEmpty())
        value = "x";
    else
        value[m_random.bounded(value.size())] = QChar('~');
    m_main.program.store(value);
    m_isDamaged = true;
    begin(m_release);
}

void KitSequence::openOrCloseOther()
{
    ComparedWindow *const window = m_windows.at(1 + m_random.bounded(2));
    m_log << "open or close window " + QString::number(m_windows.indexOf(window));
    m_isChanged = true;
    if (window->isOpen()) {
        record(window);
        window->end();
    } else {
        const QString key = window->program.key;
        window->start(m_release, m_stored.value(key), m_storedSteps.value(key));
    }
    beginPlaces();
}

bool KitSequence::agree()
{
    for (ComparedWindow *window : m_windows) {
        const QString difference =
            window->isOpen() && m_problem.isEmpty() ? window->difference() : QString();
        if (!difference.isEmpty())
            m_problem = "window " + QString::number(m_windows.indexOf(window)) + ' ' + difference;
    }
    m_places = m_isChanged ? QStringList() : m_main.program.places();
    if (!m_problem.isEmpty())
        m_log << m_problem;
    return m_problem.isEmpty();
}
