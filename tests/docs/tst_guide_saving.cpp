// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "nextmodal.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

//! [layout]
const int LayoutVersion = 1; // raise it when the objectName of an action or toolbar changes
const int WindowVersion = 1; // raise it when that of a toolbar or dock widget changes
const char *const Key = "layout";

QByteArray checksum(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

// The toolbars of a window, as one value in the settings.
class StoredLayout
{
public:
    StoredLayout(QMainWindow *window, RyToolBarManager *manager, QSettings *settings)
        : m_window(window)
        , m_manager(manager)
        , m_settings(settings)
    {
    }

    // Call it when everything is registered, and before the window is shown.
    void restore()
    {
        QByteArray toolBars, places, sum;
        const QByteArray stored = m_settings->value(QLatin1String(Key)).toByteArray();
        QDataStream stream(stored);
        stream >> toolBars >> places >> sum;
        m_mayReplace = stored.isEmpty()
            || (sum == checksum(toolBars + places)
                && m_manager->restoreState(toolBars, LayoutVersion) // first, see above
                && m_window->restoreState(places, WindowVersion));
    }

    void customize()
    {
        const QByteArray before = m_manager->saveState(LayoutVersion);
        RyCustomizedDialog dialog({m_manager, nullptr}, m_window);
        dialog.exec(); // Apply may have been pressed, no matter what it returns
        if (m_manager->saveState(LayoutVersion) == before)
            return;
        m_mayReplace = true;
        save();
    }

    // Call it when the window closes: users can move toolbars without the dialog.
    void saveAtEnd()
    {
        if (m_mayReplace)
            save();
    }

private:
    void save()
    {
        for (QToolBar *toolBar : m_manager->toolBars()) {
            // Qt shows a new toolbar later, and would save it as hidden.
            if (!toolBar->testAttribute(Qt::WA_WState_ExplicitShowHide))
                toolBar->show();
        }
        const QByteArray toolBars = m_manager->saveState(LayoutVersion);
        const QByteArray places = m_window->saveState(WindowVersion);
        QByteArray stored;
        QDataStream stream(&stored, QIODevice::WriteOnly);
        stream << toolBars << places << checksum(toolBars + places);
        m_settings->setValue(QLatin1String(Key), stored);
    }

    QMainWindow *m_window;
    RyToolBarManager *m_manager;
    QSettings *m_settings;
    bool m_mayReplace = false; // not what this program cannot read
};
//! [layout]

//! [versions]
// Restores version 2, or version 1, in which "edit_copy" was called "copy".
bool restoreToolBars(RyToolBarManager *manager, const QByteArray &toolBars)
{
    if (manager->restoreState(toolBars, 2))
        return true;
    QAction *const copy = manager->findAction(QStringLiteral("edit_copy"));
    copy->setObjectName(QStringLiteral("copy"));
    const bool restored = manager->restoreState(toolBars, 1);
    copy->setObjectName(QStringLiteral("edit_copy"));
    return restored;
}
//! [versions]

// Cut and Copy on a default toolbar.
struct EditHost : Host
{
    explicit EditHost(QSettings *settings)
        : edit(
            defaultToolBar(QStringLiteral("edit"), words("cut edit_copy"), QStringLiteral("Edit")))
        , layout(&window, &manager, settings)
    {
    }

    // What a user does: removes the first entry of the toolbar, presses Apply, and then Escape.
    void removeCut()
    {
        const NextModal modal([](QWidget *shown) {
            const EditorViews editor(shown);
            editor.doubleClick(editor.currentToolBarList, 0);
            QTest::mouseClick(static_cast<RyCustomizedDialog *>(shown)->applyButton(),
                              Qt::LeftButton);
            QTest::keyClick(shown, Qt::Key_Escape);
        });
        layout.customize();
        QVERIFY(modal.wasShown());
    }

    // The same without a change.
    void look()
    {
        const NextModal modal([](QWidget *shown) { QTest::keyClick(shown, Qt::Key_Return); });
        layout.customize();
    }

    QToolBar *custom() const { return manager.toolBarByName(QStringLiteral("_Custom_Toolbar_1")); }

    QToolBar *const edit;
    StoredLayout layout;
};

const char *const shipped = "cut edit_copy";

} // namespace

class tst_guide_saving : public TestCase
{
    Q_OBJECT

protected:
    void prepare() override;

private Q_SLOTS:
    void theFirstStartShowsTheDefaults();
    void theToolBarIsWhereItWas();
    void theOtherWayRoundItsPlaceIsLost();
    void aToolBarOfAMomentAgoIsSavedAsShown();
    void anApplyBeforeACancelIsSaved();
    void everyDamageIsSeen();
    void whatCannotBeReadStaysUntilTheUserChangesSomething();
    void anOldVersionIsReadUnderItsNames();

private:
    QByteArray stored() const { return m_settings->value(QLatin1String(Key)).toByteArray(); }
    void store(const QByteArray &bytes) { m_settings->setValue(QLatin1String(Key), bytes); }

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<QSettings> m_settings;
};

void tst_guide_saving::prepare()
{
    m_folder.reset(new QTemporaryDir);
    m_settings.reset(
        new QSettings(m_folder->filePath(QStringLiteral("layout.ini")), QSettings::IniFormat));
}

void tst_guide_saving::theFirstStartShowsTheDefaults()
{
    EditHost host(m_settings.data());
    host.layout.restore();
    QCOMPARE(standingOn(host.edit), words(shipped));
    host.look();
    QVERIFY(m_settings->allKeys().isEmpty());
    host.layout.saveAtEnd();
    QVERIFY(!stored().isEmpty());
}

void tst_guide_saving::theToolBarIsWhereItWas()
{
    {
        EditHost host(m_settings.data());
        host.layout.restore();
        host.window.show();
        QToolBar *const mine = host.manager.createToolBar(QStringLiteral("Mine"));
        host.manager.setToolBar(mine, host.list(words("edit_copy")));
        host.window.addToolBar(Qt::LeftToolBarArea, mine);
        host.layout.saveAtEnd();
    }
    EditHost host(m_settings.data());
    host.layout.restore();
    QCOMPARE(standingOn(host.custom()), words("edit_copy"));
    QCOMPARE(host.window.toolBarArea(host.custom()), Qt::LeftToolBarArea);
}

void tst_guide_saving::theOtherWayRoundItsPlaceIsLost()
{
    EditHost host(m_settings.data());
    host.window.show();
    QToolBar *const mine = host.manager.createToolBar(QStringLiteral("Mine"));
    host.window.addToolBar(Qt::LeftToolBarArea, mine);
    const QByteArray places = host.window.saveState(WindowVersion);
    const QByteArray toolBars = host.manager.saveState(LayoutVersion);

    EditHost next(m_settings.data());
    QVERIFY(next.window.restoreState(places, WindowVersion));
    QVERIFY(next.manager.restoreState(toolBars, LayoutVersion));
    QCOMPARE(next.window.toolBarArea(next.custom()), Qt::TopToolBarArea);
}

void tst_guide_saving::aToolBarOfAMomentAgoIsSavedAsShown()
{
    {
        EditHost host(m_settings.data());
        host.layout.restore();
        host.window.show();
        QVERIFY(host.manager.createToolBar(QStringLiteral("Mine"))->isHidden());
        host.layout.saveAtEnd();
    }
    EditHost host(m_settings.data());
    host.layout.restore();
    host.window.show();
    QVERIFY(host.custom()->isVisible());
}

void tst_guide_saving::anApplyBeforeACancelIsSaved()
{
    {
        EditHost host(m_settings.data());
        host.layout.restore();
        host.removeCut();
    }
    EditHost host(m_settings.data());
    host.layout.restore();
    QCOMPARE(standingOn(host.edit), words("edit_copy"));
}

void tst_guide_saving::everyDamageIsSeen()
{
    EditHost host(m_settings.data());
    host.layout.restore();
    host.removeCut();
    const QByteArray whole = stored();
    host.layout.restore();
    QCOMPARE(standingOn(host.edit), words("edit_copy"));
    host.manager.resetAllToolBars();
    for (int i = 1; i < whole.size(); ++i) {
        QByteArray damaged = whole;
        damaged[i] = char(damaged.at(i) ^ (1 << (i % 8)));
        for (const QByteArray &bytes : {whole.left(i), damaged}) {
            store(bytes);
            host.layout.restore();
            QVERIFY2(standingOn(host.edit) == words(shipped), qPrintable(QString::number(i)));
            host.layout.saveAtEnd();
            QCOMPARE(stored(), bytes);
        }
    }
}

void tst_guide_saving::whatCannotBeReadStaysUntilTheUserChangesSomething()
{
    const QByteArray unreadable("of a newer version");
    store(unreadable);
    EditHost host(m_settings.data());
    host.layout.restore();
    QCOMPARE(standingOn(host.edit), words(shipped));
    host.look();
    host.layout.saveAtEnd();
    QCOMPARE(stored(), unreadable);
    host.removeCut();
    QVERIFY(stored() != unreadable);
    store(unreadable);
    host.layout.saveAtEnd();
    QVERIFY(stored() != unreadable);
    host.manager.resetAllToolBars();
    host.layout.restore();
    QCOMPARE(standingOn(host.edit), words("edit_copy"));
}

void tst_guide_saving::anOldVersionIsReadUnderItsNames()
{
    Host old;
    old.defaultToolBar(QStringLiteral("edit"), words("copy cut"), QStringLiteral("Edit"));
    EditHost host(m_settings.data());
    QVERIFY(restoreToolBars(&host.manager, old.manager.saveState(1)));
    QCOMPARE(standingOn(host.edit), words("edit_copy cut"));
    host.manager.setToolBar(host.edit, host.list(words("edit_copy")));
    const QByteArray now = host.manager.saveState(2);
    host.manager.resetAllToolBars();
    QVERIFY(restoreToolBars(&host.manager, now));
    QCOMPARE(standingOn(host.edit), words("edit_copy"));
    QVERIFY(!restoreToolBars(&host.manager, host.manager.saveState(3)));
    QVERIFY(host.manager.findAction(QStringLiteral("edit_copy")));
}

QTEST_MAIN(tst_guide_saving)
#include "tst_guide_saving.moc"
