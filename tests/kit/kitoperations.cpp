// SPDX-License-Identifier: MIT

#include "kitmodel.h"
#include "kitwindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QMenuBar>
#include <QRandomGenerator>
#include <QtDebug>

/*
 * usage: kitoperations [--sequences N] [--steps N] [--first-seed N]
 *
 * Random sequences of what programs and users do with a kit, each compared with a simple model
 * after every step. Prints the steps of the first sequence that differs, and fails.
 */

namespace {

const QStringList Actions = {"a", "b", "c", "d", "e", "f", "g", "h"};
const QStringList ToolBars = {"one", "two", "three"};

class Sequence
{
public:
    explicit Sequence(quint32 seed)
        : m_random(seed)
    {
        for (int i = 0; i < 3; ++i)
            m_releases << randomRelease();
        m_release = m_releases.first();
        begin();
    }

    // Whether the program and the model agree after each step.
    bool run(int steps)
    {
        for (int i = 0; i < steps && agree(); ++i)
            step();
        return agree();
    }

    const QStringList &log() const { return m_log; }

private:
    QStringList randomContent(const QStringList &names)
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

    KitModel::Release randomRelease()
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
        return release;
    }

    QString pick(const QStringList &names)
    {
        return names.isEmpty() ? QString() : names.at(m_random.bounded(names.size()));
    }

    QStringList names() const
    {
        QStringList all = m_model.release().actions.values();
        all.sort();
        return all;
    }

    void begin()
    {
        m_program.start([this](QMainWindow *window) { build(window); });
        m_model.start(m_release);
        m_log << "start " + text();
    }

    void build(QMainWindow *window)
    {
        QMenu *const menu = window->menuBar()->addMenu("Menu");
        QStringList all = m_release.actions.values();
        all.sort();
        for (const QString &name : all)
            addAction(menu, name);
        for (auto it = m_release.toolBars.cbegin(); it != m_release.toolBars.cend(); ++it)
            addToolBar(window, it.key(), it.value());
    }

    void addToolBar(QMainWindow *window, const QString &name, const QStringList &content)
    {
        QToolBar *const toolBar = new QToolBar(name, window);
        toolBar->setObjectName(name);
        for (const QString &entry : content) {
            QAction *const action = window->findChild<QAction *>(entry);
            if (entry == "|")
                toolBar->addSeparator();
            else if (action)
                toolBar->addAction(action);
        }
        window->addToolBar(toolBar);
    }

    void step()
    {
        switch (m_random.bounded(12)) {
        case 0:
        case 1:
        case 2:
            edit();
            break;
        case 3:
            create();
            break;
        case 4:
            remove();
            break;
        case 5:
            hide();
            break;
        case 6:
            move();
            break;
        case 7:
            restart(m_release);
            break;
        case 8:
            restart(m_releases.at(m_random.bounded(m_releases.size())));
            break;
        case 9:
            loseOrRegain();
            break;
        case 10:
            m_random.bounded(4) == 0 ? restoreDefaults() : damage();
            break;
        default:
            hideByProgram();
        }
        keepTrackOfStored();
    }

    void edit()
    {
        const QString toolBar = pick(m_model.toolBars());
        const QStringList content = randomContent(names());
        if (toolBar.isEmpty())
            return;
        m_log << "edit " + toolBar + ": " + content.join(" ");
        m_program.edit(toolBar, content.join(" "));
        m_model.edit(toolBar, content);
    }

    void create()
    {
        const QStringList content = randomContent(names());
        const QString title = QString::number(m_random.bounded(10));
        const QString name = m_program.create(title, content.join(" "));
        m_log << "create " + name + ": " + content.join(" ");
        m_model.create(name, title, content);
    }

    void remove()
    {
        const QString toolBar = pick(m_model.toolBars());
        if (!m_model.isCustom(toolBar))
            return;
        m_log << "remove " + toolBar;
        m_program.remove(toolBar);
        m_model.remove(toolBar);
    }

    void restoreDefaults()
    {
        m_log << "restore defaults";
        m_program.restoreDefaults();
        m_model.restoreDefaults();
    }

    void hide()
    {
        const QString toolBar = pick(m_model.toolBars());
        if (toolBar.isEmpty())
            return;
        m_log << "hide or show " + toolBar;
        m_program.toolBar(toolBar)->toggleViewAction()->trigger();
        m_model.hide(toolBar, !m_model.isHidden(toolBar));
    }

    // A program that hides its toolbars for a while does not change the layout.
    void hideByProgram()
    {
        const QString toolBar = pick(m_model.toolBars());
        if (toolBar.isEmpty())
            return;
        m_log << "hide " + toolBar + " for a while";
        const bool wasHidden = m_program.toolBar(toolBar)->isHidden();
        m_program.toolBar(toolBar)->hide();
        m_program.kit()->saveLayout();
        m_program.toolBar(toolBar)->setVisible(!wasHidden);
    }

    void move()
    {
        const QList<Qt::ToolBarArea> areas = {Qt::LeftToolBarArea, Qt::RightToolBarArea,
                                              Qt::TopToolBarArea, Qt::BottomToolBarArea};
        const QString toolBar = pick(m_model.toolBars());
        const Qt::ToolBarArea area = areas.at(m_random.bounded(4));
        if (toolBar.isEmpty())
            return;
        m_log << "move " + toolBar;
        if (m_random.bounded(2) == 0)
            m_program.window()->addToolBarBreak(area);
        m_program.window()->addToolBar(area, m_program.toolBar(toolBar));
    }

    // Toolbars that are there before and after are in the same places.
    void restart(const KitModel::Release &release)
    {
        const bool isSame = m_release.toolBars == release.toolBars;
        m_program.end();
        keepTrackOfStored();
        m_release = release;
        const QStringList places = m_places;
        begin();
        if (isSame && !places.isEmpty() && m_program.places() != places)
            m_problem = "places: " + places.join("; ") + " became " + m_program.places().join("; ");
    }

    // An action is deleted, or comes back, while the program runs.
    void loseOrRegain()
    {
        const QString name = pick(Actions);
        if (m_release.actions.remove(name)) {
            m_log << "lose " + name;
            delete m_program.action(name);
        } else {
            m_log << "regain " + name;
            m_release.actions.insert(name);
            addAction(m_program.window()->menuBar()->actions().first()->menu(), name);
        }
        letTheKitFollow();
        m_model.change(m_release);
    }

    void damage()
    {
        m_log << "damage";
        m_program.end();
        keepTrackOfStored();
        QString value = m_program.stored();
        if (value.isEmpty())
            value = "x";
        else
            value[m_random.bounded(value.size())] = QChar('~');
        m_program.store(value);
        begin();
    }

    void keepTrackOfStored()
    {
        const QString stored = m_program.settings->value("toolBars.format1").toString();
        if (stored != m_storedBefore)
            m_model.wasStored();
        m_storedBefore = stored;
    }

    QString text() const
    {
        QStringList lines;
        const QStringList toolBars = m_model.toolBars();
        for (const QString &name : toolBars) {
            lines << name + (m_model.isHidden(name) ? " (hidden): " : ": ")
                    + m_model.content(name).join(" ");
        }
        return lines.join("; ");
    }

    QString programText() const
    {
        QStringList lines;
        const QStringList toolBars = m_model.toolBars();
        for (const QString &name : toolBars) {
            const QToolBar *const toolBar = m_program.toolBar(name);
            lines << name
                    + (!toolBar                  ? " is missing"
                           : toolBar->isHidden() ? " (hidden): " + m_program.content(name)
                                                 : ": " + m_program.content(name));
        }
        return lines.join("; ");
    }

    bool agree()
    {
        if (!m_problem.isEmpty()) {
            m_log << m_problem;
            return false;
        }
        m_places = m_program.places();
        const int count = m_program.window()->findChildren<QToolBar *>().size();
        const bool isDefault = m_program.kit()->isDefault();
        if (text() == programText() && count == m_model.toolBars().size()
            && (!isDefault || m_model.isDefault()))
            return true;
        m_log << "expected " + text() << "but      " + programText();
        return false;
    }

    QRandomGenerator m_random;
    QList<KitModel::Release> m_releases;
    KitModel::Release m_release;
    KitModel m_model;
    KitProgram m_program;
    QStringList m_log;
    QString m_storedBefore;
    QString m_problem;
    QStringList m_places;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    parser.addOptions(
        {{"sequences", "", "N", "100"}, {"steps", "", "N", "40"}, {"first-seed", "", "N", "1"}});
    parser.process(application);
    const uint first = parser.value("first-seed").toUInt();
    const uint count = parser.value("sequences").toUInt();
    for (uint seed = first; seed < first + count; ++seed) {
        Sequence sequence(seed);
        if (sequence.run(parser.value("steps").toInt()))
            continue;
        qWarning("Seed %u:", seed);
        for (const QString &line : sequence.log())
            qWarning("  %s", qPrintable(line));
        return 1;
    }
    qInfo("%u sequences, no difference", count);
    return 0;
}
