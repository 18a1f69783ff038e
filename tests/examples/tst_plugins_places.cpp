// SPDX-License-Identifier: MIT

#include "customizing.h"
#include "pluginswindow.h"
#include "testcase.h"
#include "texts.h"

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

    void switchPlugin(const QString &title) { entry(title)->trigger(); }

    void customize(const std::function<void(const EditorViews &)> &steps)
    {
        ::customize(entry("Customize Toolbars…"),
                    [&](const EditorViews &views, RyCustomizedDialog *dialog) {
                        steps(views);
                        QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
                    });
    }

    void makeToolBar()
    {
        customize([](const EditorViews &views) {
            views.click(views.newButton);
            views.typeName("Mine");
            for (const char *text : {"Sort Lines", "Upper Case", "< S E P A R A T O R >", "Copy",
                                     "Reverse Lines", "Brackets"})
                views.doubleClick(views.actionTree, text);
        });
    }

    QStringList offered()
    {
        QStringList items;
        customize([&](const EditorViews &views) { items = itemsOf(views.actionTree); });
        return items;
    }

    QToolBar *toolBar(const QString &title) const { return toolBarTitled(window, title); }

    // What the user sees on the toolbar.
    QStringList shown(const QString &title) const
    {
        QStringList names;
        const auto actions = toolBar(title)->actions();
        for (const QAction *action : actions) {
            if (action->isVisible())
                names << (action->isSeparator() ? "|" : action->objectName());
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
    settingsFile = m_folder->filePath("settings.ini");
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
    const QPointer<QAction> sort = run.entry("Sort Lines");
    QVERIFY(sort);
    QVERIFY(standingOn(run.toolBar("Mine")).contains(sort->objectName()));
    run.switchPlugin("Lines");
    QVERIFY(!sort);
    QVERIFY(!run.entry("Sort Lines"));
    QStringList offered = run.offered();
    QVERIFY(!offered.contains("  Sort Lines"));
    QCOMPARE(offered.filter("Sort Lines"), QStringList{"  Sort Lines (plugin is off)"});
    run.switchPlugin("Lines");
    offered = run.offered();
    QCOMPARE(offered.filter("Sort Lines"), QStringList{"  Sort Lines"});
}

void tst_Plugins_Places::editsMadeWhileAPluginIsOffStay()
{
    Run run;
    run.makeToolBar();
    run.switchPlugin("Lines");
    run.customize([](const EditorViews &views) {
        views.click(views.toolBarList, "Mine");
        views.click(views.currentToolBarList, "Copy");
        views.click(views.leftButton);
        views.click(views.currentToolBarList, "Brackets");
        views.doubleClick(views.actionTree, "Paste");
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
        views.click(views.toolBarList, "Mine");
        views.click(views.currentToolBarList, "Sort Lines (plugin is off)");
        views.click(views.downButton);
        views.click(views.currentToolBarList, "Reverse Lines (plugin is off)");
        views.click(views.leftButton);
    });
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Mine"), words("case_upper lines_sort | edit_copy quotes_brackets"));
}

void tst_Plugins_Places::anActionOnADefaultToolBarComesBackToo()
{
    Run run;
    run.customize([](const EditorViews &views) {
        views.click(views.toolBarList, "Edit");
        views.doubleClick(views.actionTree, "Sort Lines");
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
        QVERIFY(run.entry("Lines")->isChecked());
        run.switchPlugin("Lines");
    }
    {
        Run run;
        QVERIFY(!run.entry("Lines")->isChecked());
        QVERIFY(run.entry("Quotes")->isChecked());
        run.switchPlugin("Lines");
    }
    Run run;
    QVERIFY(run.entry("Lines")->isChecked());
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
    QStringList offered = run.offered();
    const int category = offered.indexOf("Lines");
    QCOMPARE(offered.value(category + 3), "  Sort Lines (plugin is off)");
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
        QVERIFY(!run.entry("Lines"));
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
    const QString key = "layout/toolBars";
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
    run.entry("Forget Plugins That Are Off")->trigger();
    QStringList offered = run.offered();
    QVERIFY(offered.filter("plugin is off").isEmpty());
    run.switchPlugin("Lines");
    QCOMPARE(run.shown("Mine"), words(withoutLines));
    QVERIFY(run.entry("Sort Lines"));
}

void tst_Plugins_Places::whatIsForgottenStaysForgotten()
{
    {
        Run run;
        run.makeToolBar();
        run.switchPlugin("Lines");
        run.entry("Forget Plugins That Are Off")->trigger();
    }
    Run run;
    QStringList offered = run.offered();
    QVERIFY(offered.filter("plugin is off").isEmpty());
    QCOMPARE(standingOn(run.toolBar("Mine")), words(withoutLines));
}

// The page says so: only what stood on a default toolbar when it was registered is its default.
void tst_Plugins_Places::resettingTakesPluginActionsOffDefaultToolBars()
{
    Run run;
    run.makeToolBar();
    run.customize([](const EditorViews &views) {
        views.click(views.toolBarList, "Edit");
        views.doubleClick(views.actionTree, "Sort Lines");
    });
    run.entry("Reset Toolbars")->trigger();
    QCOMPARE(run.shown("Edit"), words("edit_undo edit_redo edit_copy edit_paste"));
    QCOMPARE(run.shown("Mine"), words(all));
}

QTEST_MAIN(tst_Plugins_Places)

#include "tst_plugins_places.moc"
