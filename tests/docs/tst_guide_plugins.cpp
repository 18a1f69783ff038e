// SPDX-License-Identifier: MIT

#include "host.h"
#include "testcase.h"
#include "texts.h"

#include <QtTest>

namespace {

//! [plugins]
// The state is what the manager has restored or saved last.
void addPlugin(RyToolBarManager *manager, const QList<QAction *> &actions, const QString &category,
               const QByteArray &state)
{
    for (QAction *action : actions)
        manager->addAction(action, category);
    manager->restoreState(state, 1); // now the names of the actions are known
}

// Call this before the plugin deletes its actions.
void removePlugin(RyToolBarManager *manager, const QList<QAction *> &actions)
{
    for (QAction *action : actions)
        manager->removeAction(action);
}
//! [plugins]

const QString category = QStringLiteral("Spelling");

struct PluginHost : Host
{
    PluginHost()
        : edit(defaultToolBar(QStringLiteral("edit"), words("cut copy"), QStringLiteral("Edit")))
    {
    }

    QToolBar *const edit;
};

struct Plugin
{
    Plugin()
    {
        spell.setObjectName(QStringLiteral("spell.check"));
        spell.setText(QStringLiteral("Check Spelling"));
    }

    QAction spell;
};

QByteArray stateWithPlugin()
{
    PluginHost host;
    Plugin plugin;
    host.manager.addAction(&plugin.spell, category);
    host.manager.setToolBar(host.edit,
                            {&plugin.spell, nullptr, host.action(QStringLiteral("copy"))});
    const QByteArray state = host.manager.saveState(1);
    removePlugin(&host.manager, {&plugin.spell});
    return state;
}

} // namespace

class tst_guide_plugins : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anActionThatComesLateFindsItsPlace();
    void aRemovedActionIsOnNoToolBarAndInNoCategory();
    void theLastStateKeepsWhatTheUserEdits();
    void aSaveWithoutThePluginForgetsItsPlaces();
    void aPlaceholderKeepsThem();
};

void tst_guide_plugins::anActionThatComesLateFindsItsPlace()
{
    const QByteArray state = stateWithPlugin();
    PluginHost host;
    QVERIFY(host.manager.restoreState(state, 1));
    QCOMPARE(standingOn(host.edit), words("| copy"));
    QCOMPARE(takeWarnings().size(), 2);
    for (int time = 0; time < 2; ++time) {
        Plugin plugin;
        addPlugin(&host.manager, {&plugin.spell}, category, state);
        QCOMPARE(standingOn(host.edit), words("spell.check | copy"));
        removePlugin(&host.manager, {&plugin.spell});
        QCOMPARE(standingOn(host.edit), words("| copy"));
    }
}

void tst_guide_plugins::aRemovedActionIsOnNoToolBarAndInNoCategory()
{
    PluginHost host;
    Plugin plugin;
    host.manager.addAction(&plugin.spell, category);
    host.manager.setToolBar(host.edit, {&plugin.spell});
    removePlugin(&host.manager, {&plugin.spell});
    QCOMPARE(standingOn(host.edit), QStringList());
    QVERIFY(!host.manager.hasCategory(category));
}

void tst_guide_plugins::theLastStateKeepsWhatTheUserEdits()
{
    PluginHost host;
    QVERIFY(host.manager.restoreState(stateWithPlugin(), 1));
    QCOMPARE(takeWarnings().size(), 2);
    host.manager.setToolBar(host.edit, host.list(words("cut"))); // the user edits
    Plugin plugin;
    addPlugin(&host.manager, {&plugin.spell}, category, host.manager.saveState(1));
    QCOMPARE(standingOn(host.edit), words("cut"));
    removePlugin(&host.manager, {&plugin.spell});
}

void tst_guide_plugins::aSaveWithoutThePluginForgetsItsPlaces()
{
    PluginHost host;
    QVERIFY(host.manager.restoreState(stateWithPlugin(), 1));
    QCOMPARE(takeWarnings().size(), 2);
    const QByteArray without = host.manager.saveState(1);
    Plugin plugin;
    addPlugin(&host.manager, {&plugin.spell}, category, without);
    QCOMPARE(standingOn(host.edit), words("| copy"));
    removePlugin(&host.manager, {&plugin.spell});
}

void tst_guide_plugins::aPlaceholderKeepsThem()
{
    PluginHost host;
    Plugin placeholder;
    placeholder.spell.setVisible(false);
    host.manager.addAction(&placeholder.spell, category);
    QVERIFY(host.manager.restoreState(stateWithPlugin(), 1));
    const QByteArray state = host.manager.saveState(1);
    removePlugin(&host.manager, {&placeholder.spell});
    Plugin plugin;
    addPlugin(&host.manager, {&plugin.spell}, category, state);
    QCOMPARE(standingOn(host.edit), words("spell.check | copy"));
    removePlugin(&host.manager, {&plugin.spell});
}

QTEST_MAIN(tst_guide_plugins)
#include "tst_guide_plugins.moc"
