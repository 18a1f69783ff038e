// SPDX-License-Identifier: MIT

#include "customizing.h"
#include "pluginswindow.h"
#include "testcase.h"
#include "texts.h"

#include <RyToolBarKit>
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
    void theKitHasNothingToReport();
    void actionsComeBackWhereTheUserPutThem();
    void actionsOfOtherPluginsStay();
    void actionsAreGoneFromDialogAndMenusWhenOff();
    void editsMadeWhileAPluginIsOffStay();
    void anActionOnADefaultToolBarComesBackToo();
    void theSwitchesAreKept();
    void aRestartWithThePluginOffKeepsThePlaces();
    void aPluginThatIsMissingForARunKeepsItsPlaces();

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

void tst_Plugins_Places::theKitHasNothingToReport()
{
    Run run;
    QCOMPARE(run.window.findChild<RyToolBarKit *>()->problems(), QStringList());
}

void tst_Plugins_Places::actionsComeBackWhereTheUserPutThem()
{
    Run run;
    run.makeToolBar();
    QTRY_COMPARE(run.shown("Mine"), words(all));
    run.switchPlugin("Lines");
    QTRY_COMPARE(run.shown("Mine"), words(withoutLines));
    run.switchPlugin("Lines");
    QTRY_COMPARE(run.shown("Mine"), words(all));
}

void tst_Plugins_Places::actionsOfOtherPluginsStay()
{
    Run run;
    run.makeToolBar();
    run.switchPlugin("Lines");
    run.switchPlugin("Letter Case");
    QTRY_COMPARE(run.shown("Mine"), words("| edit_copy quotes_brackets"));
    run.switchPlugin("Lines");
    QTRY_COMPARE(run.shown("Mine"), words("lines_sort | edit_copy lines_reverse quotes_brackets"));
    run.switchPlugin("Letter Case");
    QTRY_COMPARE(run.shown("Mine"), words(all));
}

void tst_Plugins_Places::actionsAreGoneFromDialogAndMenusWhenOff()
{
    Run run;
    run.makeToolBar();
    const QPointer<QAction> sort = run.entry("Sort Lines");
    QVERIFY(sort);
    QVERIFY(run.offered().contains("  Sort Lines"));
    run.switchPlugin("Lines");
    QVERIFY(!sort);
    QVERIFY(!run.entry("Sort Lines"));
    QVERIFY(!run.offered().contains("  Sort Lines"));
    run.switchPlugin("Lines");
    QVERIFY(run.offered().contains("  Sort Lines"));
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
    QTRY_COMPARE(run.shown("Mine"),
                 words("lines_sort case_upper | lines_reverse quotes_brackets edit_paste"));
}

void tst_Plugins_Places::anActionOnADefaultToolBarComesBackToo()
{
    Run run;
    run.customize([](const EditorViews &views) {
        views.click(views.toolBarList, "Edit");
        views.doubleClick(views.actionTree, "Sort Lines");
    });
    run.switchPlugin("Lines");
    QTRY_COMPARE(run.shown("Edit"), words("edit_undo edit_redo edit_copy edit_paste"));
    run.switchPlugin("Lines");
    QTRY_COMPARE(run.shown("Edit"), words("edit_undo lines_sort edit_redo edit_copy edit_paste"));
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
    QTRY_COMPARE(run.shown("Mine"), words(withoutLines));
    run.switchPlugin("Lines");
    QTRY_COMPARE(run.shown("Mine"), words(all));
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
        QTRY_COMPARE(run.shown("Mine"), words(withoutLines));
        run.customize([](const EditorViews &) {}); // stores the layout without the plugin
    }
    Run run;
    QTRY_COMPARE(run.shown("Mine"), words(all));
}

QTEST_MAIN(tst_Plugins_Places)

#include "tst_plugins_places.moc"
