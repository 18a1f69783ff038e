// SPDX-License-Identifier: MIT

#include "host.h"
#include "testcase.h"
#include "texts.h"

#include <QtTest>

namespace {

//! [layout]
// The user's layout, with the actions of all plugins.
class Layout
{
public:
    explicit Layout(RyToolBarManager *manager)
        : m_manager(manager)
    {
    }

    // At start, with the bytes from the settings.
    void restore(const QByteArray &state)
    {
        m_state = state;
        m_manager->restoreState(m_state, 1);
    }

    // After each exec(); the result goes to the settings.
    QByteArray save()
    {
        m_state = m_manager->saveState(1);
        return m_state;
    }

    void addPlugin(const QList<QAction *> &actions, const QString &category)
    {
        for (QAction *action : actions)
            m_manager->addAction(action, category);
        m_manager->restoreState(m_state, 1); // now the names of its actions are known
    }

    // Call this before the plugin deletes its actions.
    void removePlugin(const QList<QAction *> &actions)
    {
        for (QAction *action : actions)
            m_manager->removeAction(action);
    }

private:
    RyToolBarManager *m_manager;
    QByteArray m_state;
};
//! [layout]

//! [placeholder]
// Replaces a command of a plugin that is not loaded. Users can place it, but it is invisible.
QAction *createPlaceholder(const QString &objectName, const QString &text, QObject *parent)
{
    QAction *const action = new QAction(text, parent);
    action->setObjectName(objectName);
    action->setVisible(false);
    return action;
}

void connectPlugin(QAction *placeholder, QAction *command)
{
    placeholder->setIcon(command->icon());
    QObject::connect(placeholder, &QAction::triggered, command, &QAction::trigger);
    QObject::connect(command, &QObject::destroyed, placeholder,
                     [placeholder] { placeholder->setVisible(false); });
    placeholder->setVisible(true);
}
//! [placeholder]

//! [toolbar]
QToolBar *toolBarOfPlugin(RyToolBarManager *manager, const QString &objectName,
                          const QString &title, const QList<QAction *> &actions)
{
    QToolBar *toolBar = manager->toolBarByName(objectName); // the user's layout may have it already
    if (!toolBar) {
        toolBar = manager->createToolBar(title);
        toolBar->setObjectName(objectName);
        manager->setToolBar(toolBar, actions);
    }
    return toolBar;
}
//! [toolbar]

struct PluginHost : Host
{
    PluginHost()
        : layout(&manager)
        , edit(defaultToolBar(QStringLiteral("edit"), words("cut copy"), QStringLiteral("Edit")))
    {
    }

    Layout layout;
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

QByteArray layoutWithPlugin()
{
    PluginHost host;
    Plugin plugin;
    host.layout.addPlugin({&plugin.spell}, QStringLiteral("Spelling"));
    host.manager.setToolBar(host.edit,
                            {&plugin.spell, nullptr, host.action(QStringLiteral("copy"))});
    const QByteArray state = host.layout.save();
    host.layout.removePlugin({&plugin.spell});
    return state;
}

} // namespace

class tst_guide_plugins : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anActionThatComesLateFindsItsPlace();
    void anActionThatGoesAndComesFindsItsPlace();
    void aRemovedActionIsOnNoToolBarAndInNoCategory();
    void withoutSavingAnewTheEditsWouldBeUndone();
    void aPlaceholderKeepsItsPlaceWhileThePluginIsAway();
    void aPlaceholderFollowsItsCommand();
    void aToolBarOfAPluginIsCreatedOnce();
    void aToolBarOfAPluginGoesWithIt();
};

void tst_guide_plugins::anActionThatComesLateFindsItsPlace()
{
    PluginHost host;
    host.layout.restore(layoutWithPlugin());
    QCOMPARE(standingOn(host.edit), words("| copy"));
    QCOMPARE(takeWarnings().size(), 2);
    Plugin plugin;
    host.layout.addPlugin({&plugin.spell}, QStringLiteral("Spelling"));
    QCOMPARE(standingOn(host.edit), words("spell.check | copy"));
    host.layout.removePlugin({&plugin.spell});
}

void tst_guide_plugins::anActionThatGoesAndComesFindsItsPlace()
{
    PluginHost host;
    {
        Plugin plugin;
        host.layout.addPlugin({&plugin.spell}, QStringLiteral("Spelling"));
        host.layout.restore(layoutWithPlugin());
        host.layout.removePlugin({&plugin.spell});
    }
    QCOMPARE(standingOn(host.edit), words("| copy"));
    Plugin again;
    host.layout.addPlugin({&again.spell}, QStringLiteral("Spelling"));
    QCOMPARE(standingOn(host.edit), words("spell.check | copy"));
    host.layout.removePlugin({&again.spell});
}

void tst_guide_plugins::aRemovedActionIsOnNoToolBarAndInNoCategory()
{
    PluginHost host;
    Plugin plugin;
    host.layout.addPlugin({&plugin.spell}, QStringLiteral("Spelling"));
    host.manager.setToolBar(host.edit, {&plugin.spell});
    host.layout.removePlugin({&plugin.spell});
    QCOMPARE(standingOn(host.edit), QStringList());
    QVERIFY(!host.manager.hasCategory(QStringLiteral("Spelling")));
}

void tst_guide_plugins::withoutSavingAnewTheEditsWouldBeUndone()
{
    PluginHost host;
    host.layout.restore(layoutWithPlugin());
    QCOMPARE(takeWarnings().size(), 2);
    host.manager.setToolBar(host.edit, host.list(words("cut"))); // the user edits
    host.layout.save();
    Plugin plugin;
    host.layout.addPlugin({&plugin.spell}, QStringLiteral("Spelling"));
    QCOMPARE(standingOn(host.edit), words("cut"));
    host.layout.removePlugin({&plugin.spell});
}

void tst_guide_plugins::aPlaceholderKeepsItsPlaceWhileThePluginIsAway()
{
    PluginHost host;
    QAction *const placeholder = createPlaceholder(QStringLiteral("spell.check"),
                                                   QStringLiteral("Check Spelling"), &host.window);
    host.manager.addAction(placeholder, QStringLiteral("Spelling"));
    host.layout.restore(layoutWithPlugin());
    host.layout.save();
    QCOMPARE(standingOn(host.edit), words("spell.check | copy"));
    host.window.show();
    QVERIFY(!host.edit->widgetForAction(placeholder)->isVisible());
    Plugin plugin;
    connectPlugin(placeholder, &plugin.spell);
    QTRY_VERIFY(host.edit->widgetForAction(placeholder)->isVisible());
}

void tst_guide_plugins::aPlaceholderFollowsItsCommand()
{
    QAction *const placeholder =
        createPlaceholder(QStringLiteral("spell.check"), QStringLiteral("Check Spelling"), this);
    {
        Plugin plugin;
        QSignalSpy triggered(&plugin.spell, &QAction::triggered);
        connectPlugin(placeholder, &plugin.spell);
        QVERIFY(placeholder->isVisible());
        placeholder->trigger();
        QCOMPARE(triggered.count(), 1);
    }
    QVERIFY(!placeholder->isVisible());
    delete placeholder;
}

void tst_guide_plugins::aToolBarOfAPluginIsCreatedOnce()
{
    const QString name = QStringLiteral("spell.toolbar");
    Plugin plugin;
    QByteArray state;
    {
        PluginHost host;
        host.layout.addPlugin({&plugin.spell}, QStringLiteral("Spelling"));
        QToolBar *const toolBar =
            toolBarOfPlugin(&host.manager, name, QStringLiteral("Spelling"), {&plugin.spell});
        QCOMPARE(standingOn(toolBar), words("spell.check"));
        host.manager.setToolBar(toolBar, {&plugin.spell, host.action(QStringLiteral("copy"))});
        state = host.layout.save();
    }
    PluginHost host;
    host.layout.restore(state);
    QCOMPARE(takeWarnings().size(), 2);
    host.layout.addPlugin({&plugin.spell}, QStringLiteral("Spelling"));
    QToolBar *const toolBar =
        toolBarOfPlugin(&host.manager, name, QStringLiteral("Spelling"), {&plugin.spell});
    QCOMPARE(standingOn(toolBar), words("spell.check copy"));
    QCOMPARE(host.manager.toolBars().size(), 2);
}

void tst_guide_plugins::aToolBarOfAPluginGoesWithIt()
{
    PluginHost host;
    Plugin plugin;
    host.layout.addPlugin({&plugin.spell}, QStringLiteral("Spelling"));
    host.manager.deleteToolBar(toolBarOfPlugin(&host.manager, QStringLiteral("spell.toolbar"),
                                               QStringLiteral("Spelling"), {&plugin.spell}));
    QCOMPARE(host.manager.toolBars(), QList<QToolBar *>{host.edit});
    host.layout.removePlugin({&plugin.spell});
}

QTEST_MAIN(tst_guide_plugins)
#include "tst_guide_plugins.moc"
