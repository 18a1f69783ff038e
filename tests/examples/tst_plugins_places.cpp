// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "pluginswindow.h"
#include "nextmodal.h"
#include "testcase.h"
#include "texts.h"

#include <RyCustomizedDialog>

#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolBar>
#include <QtTest>

/*
 * The example of plugins: the places of their actions outlast the plugins.
 */
class tst_Plugins_Places : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void actionsComeBackWhereTheUserPutThem();
    void actionsOfOtherPluginsStay();
    void actionsAreGoneFromManagerAndMenusWhenOff();
    void editsMadeWhileAPluginIsOffStay();
    void theUserMovesAndRemovesStandIns();
    void anActionOnADefaultToolBarComesBackToo();
    void theSwitchesAreKept();
    void aRestartWithThePluginOffKeepsThePlaces();
    void aPluginThatIsMissingForARunKeepsItsPlaces();
    void aStoredLayoutNamesThePlacesOfAbsentPlugins();
    void forgettingDropsThePlacesOfAbsentPluginsOnly();
    void whatIsForgottenStaysForgotten();
    void resettingTakesPluginActionsOffDefaultToolBars();

protected:
    void prepare() override;

private:
    QScopedPointer<QTemporaryDir> m_folder;
};

namespace {

QString settingsFile;

// One run of the example. The first one puts actions of all plugins on a toolbar "Mine".
struct Run
{
    explicit Run(const QList<TextPlugin> &plugins = TextPlugin::all())
        : settings(settingsFile, QSettings::IniFormat)
        , window(&settings, plugins)
    {
        window.show();
    }

    QAction *entry(const QString &text) const { return menuEntry(window, text); }

    void switchPlugin(const char *title) { entry(QLatin1String(title))->trigger(); }

    void customize(const std::function<void(const EditorViews &)> &steps)
    {
        const NextModal next([&](QWidget *modal) {
            RyCustomizedDialog *const dialog = qobject_cast<RyCustomizedDialog *>(modal);
            QVERIFY(dialog);
            steps(EditorViews(dialog));
            QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
        });
        entry(QStringLiteral("Customize Toolbars…"))->trigger();
        QVERIFY(next.wasOpened());
    }

    void makeToolBar()
    {
        customize([](const EditorViews &views) {
            views.click(views.newButton);
            views.typeName(QStringLiteral("Mine"));
            for (const char *text : {"Sort Lines", "Upper Case", "< S E P A R A T O R >", "Copy",
                                     "Reverse Lines", "Brackets"})
                views.doubleClick(views.actionTree, QString::fromLatin1(text));
        });
    }

    QToolBar *toolBar(const char *title) const
    {
        const auto toolBars = window.findChildren<QToolBar *>();
        for (QToolBar *toolBar : toolBars) {
            if (toolBar->windowTitle() == QLatin1String(title))
                return toolBar;
        }
        return nullptr;
    }

    // What the user sees on the toolbar.
    QStringList shown(const char *title) const
    {
        QStringList names;
        const auto actions = toolBar(title)->actions();
        for (const QAction *action : actions) {
            if (action->isVisible())
                names << (action->isSeparator() ? QStringLiteral("|") : action->objectName());
        }
        return names;
    }

    QSettings settings;
    PluginsWindow window;
};

QList<TextPlugin> allButLines()
{
    QList<TextPlugin> plugins = TextPlugin::all();
    plugins.removeAt(1);
    return plugins;
}

const char *const all = "lines_sort case_upper | edit_copy lines_reverse quotes_brackets";
const char *const withoutLines = "case_upper | edit_copy quotes_brackets";

} // namespace

void tst_Plugins_Places::prepare()
{
    m_folder.reset(new QTemporaryDir);
    settingsFile = m_folder->filePath(QStringLiteral("settings.ini"));
}

void tst_Plugins_Places::actionsComeBackWhereTheUserPutThem()
{
    Run run;
    run.makeToolBar();
    QCOMPARE(run.shown("Mine"), words(all));
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Mine"), words(withoutLines));
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Mine"), words(all));
    QCOMPARE(standingOn(run.toolBar("Mine")), words(all));
}

void tst_Plugins_Places::actionsOfOtherPluginsStay()
{
    Run run;
    run.makeToolBar();
    run.switchPlugin("Lines");
    run.switchPlugin("Letter Case");
    QCOMPARE(run.shown("Mine"), words("| edit_copy quotes_brackets"));
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Mine"), words("lines_sort | edit_copy lines_reverse quotes_brackets"));
    run.switchPlugin("Letter Case");
    QCOMPARE(run.shown("Mine"), words(all));
}

void tst_Plugins_Places::actionsAreGoneFromManagerAndMenusWhenOff()
{
    Run run;
    run.makeToolBar();
    const QPointer<QAction> sort = run.entry(QStringLiteral("Sort Lines"));
    QVERIFY(sort);
    QVERIFY(standingOn(run.toolBar("Mine")).contains(sort->objectName()));
    run.switchPlugin("Lines");
    QVERIFY(!sort);
    QVERIFY(!run.entry(QStringLiteral("Sort Lines")));
    QStringList offered;
    run.customize([&](const EditorViews &views) { offered = itemsOf(views.actionTree); });
    QVERIFY(!offered.contains(QStringLiteral("  Sort Lines")));
    QCOMPARE(offered.filter(QStringLiteral("Sort Lines")),
             QStringList{QStringLiteral("  Sort Lines (plugin is off)")});
    run.switchPlugin("Lines");
    run.customize([&](const EditorViews &views) { offered = itemsOf(views.actionTree); });
    QCOMPARE(offered.filter(QStringLiteral("Sort Lines")),
             QStringList{QStringLiteral("  Sort Lines")});
}

void tst_Plugins_Places::editsMadeWhileAPluginIsOffStay()
{
    Run run;
    run.makeToolBar();
    run.switchPlugin("Lines");
    run.customize([](const EditorViews &views) {
        views.click(views.toolBarList, QStringLiteral("Mine"));
        views.click(views.currentToolBarList, QStringLiteral("Copy"));
        views.click(views.leftButton);
        views.click(views.currentToolBarList, QStringLiteral("Brackets"));
        views.doubleClick(views.actionTree, QStringLiteral("Paste"));
    });
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Mine"),
             words("lines_sort case_upper | lines_reverse quotes_brackets edit_paste"));
}

void tst_Plugins_Places::theUserMovesAndRemovesStandIns()
{
    Run run;
    run.makeToolBar();
    run.switchPlugin("Lines");
    run.customize([](const EditorViews &views) {
        views.click(views.toolBarList, QStringLiteral("Mine"));
        views.click(views.currentToolBarList, QStringLiteral("Sort Lines (plugin is off)"));
        views.click(views.downButton);
        views.click(views.currentToolBarList, QStringLiteral("Reverse Lines (plugin is off)"));
        views.click(views.leftButton);
    });
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Mine"), words("case_upper lines_sort | edit_copy quotes_brackets"));
}

void tst_Plugins_Places::anActionOnADefaultToolBarComesBackToo()
{
    Run run;
    run.customize([](const EditorViews &views) {
        views.click(views.toolBarList, QStringLiteral("Edit"));
        views.doubleClick(views.actionTree, QStringLiteral("Sort Lines"));
    });
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Edit"), words("edit_undo edit_redo edit_copy edit_paste"));
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Edit"), words("edit_undo lines_sort edit_redo edit_copy edit_paste"));
}

void tst_Plugins_Places::theSwitchesAreKept()
{
    {
        Run run;
        QVERIFY(run.entry(QStringLiteral("Lines"))->isChecked());
        run.switchPlugin("Lines");
    }
    {
        Run run;
        QVERIFY(!run.entry(QStringLiteral("Lines"))->isChecked());
        QVERIFY(run.entry(QStringLiteral("Quotes"))->isChecked());
        run.switchPlugin("Lines");
    }
    Run run;
    QVERIFY(run.entry(QStringLiteral("Lines"))->isChecked());
}

void tst_Plugins_Places::aRestartWithThePluginOffKeepsThePlaces()
{
    {
        Run run;
        run.makeToolBar();
        run.switchPlugin("Lines");
    }
    Run run;
    QCOMPARE(run.shown("Mine"), words(withoutLines));
    QStringList offered;
    run.customize([&](const EditorViews &views) { offered = itemsOf(views.actionTree); });
    const int category = offered.indexOf(QStringLiteral("Lines"));
    QCOMPARE(offered.value(category + 3), QStringLiteral("  Sort Lines (plugin is off)"));
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Mine"), words(all));
}

void tst_Plugins_Places::aPluginThatIsMissingForARunKeepsItsPlaces()
{
    {
        Run run;
        run.makeToolBar();
    }
    {
        Run run(allButLines());
        QVERIFY(!run.entry(QStringLiteral("Lines")));
        QCOMPARE(run.shown("Mine"), words(withoutLines));
        run.customize([](const EditorViews &) {}); // stores the layout without the plugin
    }
    Run run;
    QCOMPARE(run.shown("Mine"), words(all));
}

void tst_Plugins_Places::aStoredLayoutNamesThePlacesOfAbsentPlugins()
{
    Run run;
    run.makeToolBar();
    const QString key = QStringLiteral("layout/toolBars");
    const QByteArray before = run.settings.value(key).toByteArray();
    QVERIFY(!before.isEmpty());
    run.switchPlugin("Lines");
    run.switchPlugin("Quotes");
    run.customize([](const EditorViews &) {});
    QCOMPARE(run.settings.value(key).toByteArray(), before);
}

void tst_Plugins_Places::forgettingDropsThePlacesOfAbsentPluginsOnly()
{
    Run run;
    run.makeToolBar();
    run.switchPlugin("Lines");
    run.entry(QStringLiteral("Forget Plugins That Are Off"))->trigger();
    QStringList offered;
    run.customize([&](const EditorViews &views) { offered = itemsOf(views.actionTree); });
    QVERIFY(offered.filter(QStringLiteral("plugin is off")).isEmpty());
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Mine"), words(withoutLines));
    QVERIFY(run.entry(QStringLiteral("Sort Lines")));
}

void tst_Plugins_Places::whatIsForgottenStaysForgotten()
{
    {
        Run run;
        run.makeToolBar();
        run.switchPlugin("Lines");
        run.entry(QStringLiteral("Forget Plugins That Are Off"))->trigger();
    }
    Run run;
    QStringList offered;
    run.customize([&](const EditorViews &views) { offered = itemsOf(views.actionTree); });
    QVERIFY(offered.filter(QStringLiteral("plugin is off")).isEmpty());
    QCOMPARE(standingOn(run.toolBar("Mine")), words(withoutLines));
}

// The page says so: only what stood on a default toolbar when it was registered is its default.
void tst_Plugins_Places::resettingTakesPluginActionsOffDefaultToolBars()
{
    Run run;
    run.makeToolBar();
    run.customize([](const EditorViews &views) {
        views.click(views.toolBarList, QStringLiteral("Edit"));
        views.doubleClick(views.actionTree, QStringLiteral("Sort Lines"));
    });
    run.entry(QStringLiteral("Reset Toolbars"))->trigger();
    QCOMPARE(run.shown("Edit"), words("edit_undo edit_redo edit_copy edit_paste"));
    QCOMPARE(run.shown("Mine"), words(all));
}

QTEST_MAIN(tst_Plugins_Places)

#include "tst_plugins_places.moc"
