// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "host.h"
#include "nextmodal.h"
#include "rycustomizeddialog.h"
#include "testcase.h"
#include "texts.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <QtTest>

namespace {

//! [restore]
const int LayoutVersion = 3; // raise it when the objectName of an action or toolbar changes
const int WindowVersion = 1; // raise it when that of a toolbar or dock widget changes

void restoreLayout(QMainWindow *window, RyToolBarManager *manager, const QSettings &settings)
{
    manager->restoreState(settings.value(QStringLiteral("layout/toolBars")).toByteArray(),
                          LayoutVersion);
    window->restoreGeometry(settings.value(QStringLiteral("layout/geometry")).toByteArray());
    window->restoreState(settings.value(QStringLiteral("layout/window")).toByteArray(),
                         WindowVersion);
}
//! [restore]

//! [save]
void showNewToolBars(const RyToolBarManager &manager)
{
    const auto toolBars = manager.toolBars();
    for (QToolBar *toolBar : toolBars) {
        if (!toolBar->testAttribute(Qt::WA_WState_ExplicitShowHide))
            toolBar->show();
    }
}

void saveLayout(const QMainWindow &window, const RyToolBarManager &manager, QSettings *settings)
{
    showNewToolBars(manager);
    settings->setValue(QStringLiteral("layout/toolBars"), manager.saveState(LayoutVersion));
    settings->setValue(QStringLiteral("layout/geometry"), window.saveGeometry());
    settings->setValue(QStringLiteral("layout/window"), window.saveState(WindowVersion));
}
//! [save]

//! [exec]
void customizeToolBars(QMainWindow *window, RyToolBarManager *manager, QSettings *settings)
{
    RyCustomizedDialog dialog({manager, nullptr}, window);
    // After the dialog's own connection, and so after the toolbars have changed.
    QObject::connect(dialog.applyButton(), &QPushButton::clicked, &dialog,
                     [=] { saveLayout(*window, *manager, settings); });
    dialog.exec(); // save no matter what it returns
    saveLayout(*window, *manager, settings);
}
//! [exec]

//! [versions]
struct OldName
{
    int lastVersion; // the last one in which the action had the old name
    const char *before;
    const char *now;
};

// The newest first.
const OldName oldNames[] = {{2, "edit_copy_text", "edit_copy"}, {1, "copy", "edit_copy"}};

bool restoreVersion(RyToolBarManager *manager, const QByteArray &state, int version)
{
    QMap<QAction *, QString> before;
    QMap<QAction *, QString> now;
    for (const OldName &name : oldNames) {
        if (version > name.lastVersion)
            break;
        QAction *const action = manager->findAction(QLatin1String(name.now));
        if (!action)
            continue;
        before.insert(action, QLatin1String(name.before)); // an older name replaces a newer one
        now.insert(action, action->objectName());
    }
    for (auto it = before.cbegin(); it != before.cend(); ++it)
        it.key()->setObjectName(it.value());
    const bool restored = manager->restoreState(state, version);
    for (auto it = now.cbegin(); it != now.cend(); ++it)
        it.key()->setObjectName(it.value());
    return restored;
}

bool restoreAnyVersion(RyToolBarManager *manager, const QByteArray &state)
{
    for (int version = LayoutVersion; version >= 1; --version) {
        if (restoreVersion(manager, state, version))
            return true;
    }
    return false;
}
//! [versions]

//! [new-defaults]
QString placeName(const QToolBar *toolBar, const QAction *action)
{
    return toolBar->objectName() + QLatin1Char('/') + action->objectName();
}

QStringList placesOfDefaults(const RyToolBarManager &manager)
{
    QStringList names;
    const auto defaults = manager.defaultToolBars();
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it) {
        for (const QAction *action : it.value()) {
            if (action)
                names << placeName(it.key(), action);
        }
    }
    return names;
}

// Inserts default actions that the saved layout could not know after the action that precedes them
// on the default toolbar, or at the front.
void addNewDefaults(RyToolBarManager *manager, const QStringList &known)
{
    const auto defaults = manager->defaultToolBars();
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it) {
        QList<QAction *> content = manager->actions(it.key());
        int place = 0;
        for (QAction *action : it.value()) {
            if (!action)
                continue;
            if (!content.contains(action) && !known.contains(placeName(it.key(), action)))
                content.insert(place, action);
            if (content.contains(action))
                place = content.indexOf(action) + 1;
        }
        manager->setToolBar(it.key(), content);
    }
}
//! [new-defaults]

void restoreWithNewDefaults(RyToolBarManager *manager, QSettings *settings)
{
    const QByteArray state = settings->value(QStringLiteral("layout/toolBars")).toByteArray();
    //! [new-defaults-at-start]
    restoreAnyVersion(manager, state);
    addNewDefaults(manager, settings->value(QStringLiteral("layout/known")).toStringList());
    //! [new-defaults-at-start]
}

void saveWithNewDefaults(const QMainWindow &window, const RyToolBarManager &manager,
                         QSettings *settings)
{
    //! [new-defaults-at-save]
    saveLayout(window, manager, settings);
    settings->setValue(QStringLiteral("layout/known"), placesOfDefaults(manager));
    //! [new-defaults-at-save]
}

//! [seal]
const QByteArray Magic("My Application's layout");

QByteArray sealed(const QByteArray &bytes)
{
    QByteArray file;
    QDataStream stream(&file, QIODevice::WriteOnly);
    // Each array is written with its length.
    stream << Magic << bytes << QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
    return file;
}

// The bytes that were sealed, or an empty array if a single bit has changed.
QByteArray unsealed(const QByteArray &file)
{
    QByteArray magic;
    QByteArray bytes;
    QByteArray checksum;
    QDataStream stream(file);
    stream >> magic >> bytes >> checksum;
    // A stream that ends early gives empty arrays.
    if (!stream.atEnd() || magic != Magic
        || checksum != QCryptographicHash::hash(bytes, QCryptographicHash::Sha1))
        return QByteArray();
    return bytes;
}
//! [seal]

//! [pack]
QByteArray packedLayout(const QMainWindow &window, const RyToolBarManager &manager)
{
    showNewToolBars(manager);
    QByteArray packed;
    QDataStream stream(&packed, QIODevice::WriteOnly);
    stream << manager.saveState(LayoutVersion) << window.saveState(WindowVersion);
    return packed;
}

bool restorePacked(QMainWindow *window, RyToolBarManager *manager, const QByteArray &packed)
{
    QByteArray toolBars;
    QByteArray places;
    QDataStream stream(packed);
    stream >> toolBars >> places;
    return restoreAnyVersion(manager, toolBars) && window->restoreState(places, WindowVersion);
}
//! [pack]

//! [whole]
QByteArray wholeLayout(const QMainWindow &window, const RyToolBarManager &manager)
{
    QByteArray whole;
    QDataStream stream(&whole, QIODevice::WriteOnly);
    stream << packedLayout(window, manager) << placesOfDefaults(manager) << window.saveGeometry();
    return sealed(whole);
}

bool restoreWhole(QMainWindow *window, RyToolBarManager *manager, const QByteArray &whole)
{
    QByteArray packed;
    QStringList known;
    QByteArray geometry;
    QDataStream stream(unsealed(whole));
    stream >> packed >> known >> geometry;
    window->restoreGeometry(geometry);
    const bool restored = restorePacked(window, manager, packed);
    addNewDefaults(manager, known); // harmless if nothing was restored
    return restored;
}
//! [whole]

//! [trial]
void startWithLayout(QMainWindow *window, RyToolBarManager *manager, QSettings *settings)
{
    const QString key = QStringLiteral("wholeLayout"); // remove() also removes keys below it
    const QByteArray kept = settings->value(key).toByteArray();
    settings->remove(key); // if this start crashes, the next one uses the defaults
    settings->sync();
    restoreWhole(window, manager, kept);
    window->show();
    QTimer::singleShot(0, window, [=] { settings->setValue(key, kept); });
}
//! [trial]

//! [profiles]
void clearToolBars(RyToolBarManager *manager)
{
    manager->resetAllToolBars();
    const auto toolBars = manager->toolBars();
    for (QToolBar *toolBar : toolBars)
        manager->deleteToolBar(toolBar); // leaves default toolbars alone
}

bool switchToProfile(QMainWindow *window, RyToolBarManager *manager, const QByteArray &profile)
{
    const QByteArray before = packedLayout(*window, *manager);
    clearToolBars(manager); // restoring alone deletes nothing
    if (restorePacked(window, manager, profile))
        return true;
    clearToolBars(manager);
    restorePacked(window, manager, before);
    return false;
}

QString profileKey(const QString &name)
{
    // A user may name a profile "a/b".
    return QStringLiteral("profiles/") + QString::fromLatin1(QUrl::toPercentEncoding(name));
}
//! [profiles]

//! [files]
bool exportToolBars(const RyToolBarManager &manager, const QString &fileName)
{
    const QByteArray bytes = sealed(manager.saveState(LayoutVersion));
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

bool importToolBars(RyToolBarManager *manager, const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray state = unsealed(file.read(1000000));
    const QByteArray before = manager->saveState(LayoutVersion);
    clearToolBars(manager);
    if (restoreAnyVersion(manager, state))
        return true;
    clearToolBars(manager);
    manager->restoreState(before, LayoutVersion);
    return false;
}
//! [files]

// Cut and Copy on a default toolbar.
struct EditHost : Host
{
    EditHost()
        : edit(defaultToolBar(QStringLiteral("edit"), words("edit_cut edit_copy"),
                              QStringLiteral("Edit")))
    {
    }

    QToolBar *addCustomToolBar()
    {
        QToolBar *const toolBar = manager.createToolBar(QStringLiteral("Mine"));
        manager.setToolBar(toolBar, list(words("edit_copy")));
        return toolBar;
    }

    QToolBar *custom() const { return manager.toolBarByName(QStringLiteral("_Custom_Toolbar_1")); }

    QToolBar *const edit;
};

// The next release: Paste is new on the default toolbar, between Copy and Find.
struct NextEditHost : Host
{
    NextEditHost()
        : edit(defaultToolBar(QStringLiteral("edit"),
                              words("edit_cut edit_copy edit_paste | edit_find"),
                              QStringLiteral("Edit")))
    {
    }

    QToolBar *const edit;
};

} // namespace

class tst_guide_saving : public TestCase
{
    Q_OBJECT

protected:
    void prepare() override;

private Q_SLOTS:
    void theToolBarIsWhereItWas();
    void theOtherWayRoundItsPlaceIsLost();
    void aToolBarOfAMomentAgoIsSavedAsShown();
    void anApplyIsSavedAtOnce();
    void anApplyBeforeACancelIsSaved();
    void oldVersionsAreReadUnderTheirNames_data();
    void oldVersionsAreReadUnderTheirNames();
    void anOldNameOfAnActionThatIsGoneIsSkipped();
    void unknownVersionsChangeNothing();
    void aNewDefaultAppearsAndARemovedOneDoesNot();
    void aNewDefaultAppearsOnce();
    void aNewDefaultStaysUntilTheLayoutIsSaved();
    void aNewToolBarShowsItsDefaults();
    void theFirstStartShowsTheDefaults();
    void everyDamageIsSeen();
    void whatIsWholeComesBack();
    void theWholeLayoutComesBackWithNewDefaults();
    void aDamagedWholeLayoutShowsTheDefaults();
    void aStartThatEndsWellKeepsTheLayout();
    void aStartThatCrashesDropsTheLayout();
    void profilesReplaceEachOther();
    void aProfileResetsWhatItDoesNotName();
    void aBadProfileChangesNothing();
    void profilesMayBeNamedFreely();
    void whatIsExportedCanBeImported();
    void aBadFileChangesNothing();

private:
    void saveWithoutCut();
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<QSettings> m_settings;
};

void tst_guide_saving::prepare()
{
    m_folder.reset(new QTemporaryDir);
    m_settings.reset(new QSettings(path("layout.ini"), QSettings::IniFormat));
}

void tst_guide_saving::theToolBarIsWhereItWas()
{
    EditHost host;
    host.window.resize(300, 200);
    host.window.show();
    host.window.addToolBar(Qt::LeftToolBarArea, host.addCustomToolBar());
    saveLayout(host.window, host.manager, m_settings.data());

    EditHost next;
    restoreLayout(&next.window, &next.manager, *m_settings);
    QCOMPARE(standingOn(next.custom()), words("edit_copy"));
    QCOMPARE(next.window.toolBarArea(next.custom()), Qt::LeftToolBarArea);
    QCOMPARE(next.window.size(), QSize(300, 200));
}

void tst_guide_saving::theOtherWayRoundItsPlaceIsLost()
{
    EditHost host;
    host.window.show();
    host.window.addToolBar(Qt::LeftToolBarArea, host.addCustomToolBar());
    saveLayout(host.window, host.manager, m_settings.data());

    EditHost next;
    QVERIFY(next.window.restoreState(
        m_settings->value(QStringLiteral("layout/window")).toByteArray(), WindowVersion));
    QVERIFY(next.manager.restoreState(
        m_settings->value(QStringLiteral("layout/toolBars")).toByteArray(), LayoutVersion));
    QCOMPARE(next.window.toolBarArea(next.custom()), Qt::TopToolBarArea);
}

void tst_guide_saving::aToolBarOfAMomentAgoIsSavedAsShown()
{
    EditHost host;
    host.window.show();
    host.addCustomToolBar();
    QVERIFY(host.custom()->isHidden()); // so showNewToolBars() is needed
    saveLayout(host.window, host.manager, m_settings.data());

    EditHost next;
    restoreLayout(&next.window, &next.manager, *m_settings);
    next.window.show();
    QVERIFY(next.custom()->isVisible());
}

void tst_guide_saving::anApplyIsSavedAtOnce()
{
    EditHost host;
    host.manager.setToolBar(host.edit, {});
    host.window.show();
    QByteArray saved;
    const NextModal modal([&](QWidget *shown) {
        const EditorViews editor(shown);
        editor.doubleClick(editor.actionTree, QStringLiteral("Edit_cut"));
        QTest::mouseClick(static_cast<RyCustomizedDialog *>(shown)->applyButton(), Qt::LeftButton);
        saved = m_settings->value(QStringLiteral("layout/toolBars")).toByteArray();
        QTest::keyClick(shown, Qt::Key_Escape);
    });
    customizeToolBars(&host.window, &host.manager, m_settings.data());
    QVERIFY(modal.wasShown());
    QCOMPARE(standingOn(host.edit), words("edit_cut"));
    QCOMPARE(saved, host.manager.saveState(LayoutVersion));
}

void tst_guide_saving::anApplyBeforeACancelIsSaved()
{
    EditHost host;
    host.manager.setToolBar(host.edit, {});
    host.window.show();
    const NextModal modal([&](QWidget *shown) {
        const EditorViews editor(shown);
        editor.doubleClick(editor.actionTree, QStringLiteral("Edit_cut"));
        QTest::mouseClick(static_cast<RyCustomizedDialog *>(shown)->applyButton(), Qt::LeftButton);
        m_settings->clear(); // so that only the save after exec() matters
        QTest::mouseClick(shown->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel),
                          Qt::LeftButton);
    });
    customizeToolBars(&host.window, &host.manager, m_settings.data());
    QCOMPARE(m_settings->value(QStringLiteral("layout/toolBars")).toByteArray(),
             host.manager.saveState(LayoutVersion));
}

void tst_guide_saving::oldVersionsAreReadUnderTheirNames_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("name");
    QTest::newRow("1") << 1 << QStringLiteral("copy");
    QTest::newRow("2") << 2 << QStringLiteral("edit_copy_text");
    QTest::newRow("3") << 3 << QStringLiteral("edit_copy");
}

void tst_guide_saving::oldVersionsAreReadUnderTheirNames()
{
    QFETCH(int, version);
    QFETCH(QString, name);
    Host old;
    QToolBar *const edit = old.defaultToolBar(
        QStringLiteral("edit"), {name, QStringLiteral("edit_cut")}, QStringLiteral("Edit"));
    Q_UNUSED(edit)
    const QByteArray state = old.manager.saveState(version);

    EditHost host;
    QAction *const copy = host.action(QStringLiteral("edit_copy"));
    QVERIFY(restoreAnyVersion(&host.manager, state));
    QCOMPARE(standingOn(host.edit), words("edit_copy edit_cut"));
    QCOMPARE(copy->objectName(), QStringLiteral("edit_copy"));
}

void tst_guide_saving::anOldNameOfAnActionThatIsGoneIsSkipped()
{
    Host host;
    const QByteArray state = host.manager.saveState(1);
    QVERIFY(restoreAnyVersion(&host.manager, state));
    QCOMPARE(takeWarnings().size(), 6); // two for each look-up of "edit_copy"
}

void tst_guide_saving::unknownVersionsChangeNothing()
{
    EditHost host;
    host.manager.setToolBar(host.edit, {});
    const QByteArray tooNew = host.manager.saveState(LayoutVersion + 1);
    host.manager.resetAllToolBars();
    for (const QByteArray &state : {tooNew, QByteArray(), QByteArray("no layout")}) {
        QVERIFY(!restoreAnyVersion(&host.manager, state));
        QCOMPARE(standingOn(host.edit), words("edit_cut edit_copy"));
    }
}

void tst_guide_saving::saveWithoutCut()
{
    EditHost host;
    restoreWithNewDefaults(&host.manager, m_settings.data());
    host.manager.setToolBar(host.edit, host.list(words("edit_copy")));
    saveWithNewDefaults(host.window, host.manager, m_settings.data());
}

void tst_guide_saving::aNewDefaultAppearsAndARemovedOneDoesNot()
{
    saveWithoutCut();

    NextEditHost next;
    restoreWithNewDefaults(&next.manager, m_settings.data());
    QCOMPARE(standingOn(next.edit), words("edit_copy edit_paste edit_find"));
}

void tst_guide_saving::aNewDefaultAppearsOnce()
{
    aNewDefaultAppearsAndARemovedOneDoesNot();
    NextEditHost next;
    restoreWithNewDefaults(&next.manager, m_settings.data());
    next.manager.setToolBar(next.edit, next.list(words("edit_find"))); // the user removes Paste
    saveWithNewDefaults(next.window, next.manager, m_settings.data());

    NextEditHost again;
    restoreWithNewDefaults(&again.manager, m_settings.data());
    QCOMPARE(standingOn(again.edit), words("edit_find"));
}

void tst_guide_saving::aNewDefaultStaysUntilTheLayoutIsSaved()
{
    saveWithoutCut();
    for (int start = 1; start <= 2; ++start) {
        NextEditHost next;
        restoreWithNewDefaults(&next.manager, m_settings.data());
        QCOMPARE(standingOn(next.edit), words("edit_copy edit_paste edit_find"));
    }
}

void tst_guide_saving::aNewToolBarShowsItsDefaults()
{
    saveWithoutCut();

    EditHost next;
    QToolBar *const file = next.defaultToolBar(QStringLiteral("file"), words("file_open edit_cut"),
                                               QStringLiteral("File"));
    restoreWithNewDefaults(&next.manager, m_settings.data());
    QCOMPARE(standingOn(file), words("file_open edit_cut"));
    QCOMPARE(standingOn(next.edit), words("edit_copy"));
}

void tst_guide_saving::theFirstStartShowsTheDefaults()
{
    NextEditHost host;
    restoreWithNewDefaults(&host.manager, m_settings.data());
    QCOMPARE(standingOn(host.edit), words("edit_cut edit_copy edit_paste | edit_find"));
    QVERIFY(m_settings->allKeys().isEmpty());
    saveWithNewDefaults(host.window, host.manager, m_settings.data());
    QCOMPARE(m_settings->value(QStringLiteral("layout/known")).toStringList(),
             words("edit/edit_cut edit/edit_copy edit/edit_paste edit/edit_find"));
}

void tst_guide_saving::everyDamageIsSeen()
{
    EditHost host;
    const QByteArray whole = sealed(host.manager.saveState(LayoutVersion));
    QCOMPARE(unsealed(whole), host.manager.saveState(LayoutVersion));
    for (int i = 0; i < whole.size(); ++i) {
        QVERIFY2(unsealed(whole.left(i)).isEmpty(), qPrintable(QString::number(i)));
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray damaged = whole;
            damaged[i] = char(damaged.at(i) ^ (1 << bit));
            QVERIFY2(unsealed(damaged).isEmpty(), qPrintable(QString::number(i)));
        }
    }
    QVERIFY(unsealed(whole + 'x').isEmpty());
}

void tst_guide_saving::whatIsWholeComesBack()
{
    EditHost host;
    host.window.show();
    host.window.addToolBar(Qt::LeftToolBarArea, host.addCustomToolBar());
    const QByteArray packed = packedLayout(host.window, host.manager);
    EditHost next;
    QVERIFY(restorePacked(&next.window, &next.manager, unsealed(sealed(packed))));
    QCOMPARE(standingOn(next.custom()), words("edit_copy"));
    QCOMPARE(next.window.toolBarArea(next.custom()), Qt::LeftToolBarArea);
    QVERIFY(!restorePacked(&next.window, &next.manager, QByteArray()));
}

void tst_guide_saving::theWholeLayoutComesBackWithNewDefaults()
{
    EditHost host;
    host.window.resize(300, 200);
    host.window.show();
    host.window.addToolBar(Qt::LeftToolBarArea, host.addCustomToolBar());
    host.manager.setToolBar(host.edit, host.list(words("edit_copy"))); // without Cut
    const QByteArray whole = wholeLayout(host.window, host.manager);

    NextEditHost next;
    QVERIFY(restoreWhole(&next.window, &next.manager, whole));
    QCOMPARE(standingOn(next.edit), words("edit_copy edit_paste edit_find"));
    QToolBar *const custom = next.manager.toolBarByName(QStringLiteral("_Custom_Toolbar_1"));
    QCOMPARE(standingOn(custom), words("edit_copy"));
    QCOMPARE(next.window.toolBarArea(custom), Qt::LeftToolBarArea);
    QCOMPARE(next.window.size(), QSize(300, 200));
}

void tst_guide_saving::aDamagedWholeLayoutShowsTheDefaults()
{
    EditHost host;
    host.manager.setToolBar(host.edit, {});
    QByteArray whole = wholeLayout(host.window, host.manager);
    whole[whole.size() / 2] = char(whole.at(whole.size() / 2) ^ 1);

    NextEditHost next;
    QVERIFY(!restoreWhole(&next.window, &next.manager, whole));
    QCOMPARE(standingOn(next.edit), words("edit_cut edit_copy edit_paste | edit_find"));
}

void tst_guide_saving::aStartThatEndsWellKeepsTheLayout()
{
    EditHost host;
    host.manager.setToolBar(host.edit, {});
    const QByteArray layout = wholeLayout(host.window, host.manager);
    m_settings->setValue(QStringLiteral("wholeLayout"), layout);

    EditHost next;
    startWithLayout(&next.window, &next.manager, m_settings.data());
    QCOMPARE(standingOn(next.edit), QStringList());
    QTRY_COMPARE(m_settings->value(QStringLiteral("wholeLayout")).toByteArray(), layout);
}

void tst_guide_saving::aStartThatCrashesDropsTheLayout()
{
    EditHost host;
    m_settings->setValue(QStringLiteral("other"), 1);
    m_settings->setValue(QStringLiteral("wholeLayout"), wholeLayout(host.window, host.manager));
    m_settings->sync();
    {
        EditHost next;
        startWithLayout(&next.window, &next.manager, m_settings.data());
        // The crash: the event loop does not run again.
    }
    // Read from the disk, not from the settings object.
    QFile file(m_settings->fileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY(text.contains("other"));
    QVERIFY(!text.contains("wholeLayout"));
}

void tst_guide_saving::profilesReplaceEachOther()
{
    EditHost host;
    host.window.show();
    const QByteArray plain = packedLayout(host.window, host.manager);
    host.window.addToolBar(Qt::LeftToolBarArea, host.addCustomToolBar());
    host.manager.setToolBar(host.edit, {});
    const QByteArray own = packedLayout(host.window, host.manager);

    QVERIFY(switchToProfile(&host.window, &host.manager, plain));
    QVERIFY(!host.custom());
    QCOMPARE(standingOn(host.edit), words("edit_cut edit_copy"));
    QVERIFY(switchToProfile(&host.window, &host.manager, own));
    QCOMPARE(standingOn(host.custom()), words("edit_copy"));
    QCOMPARE(host.window.toolBarArea(host.custom()), Qt::LeftToolBarArea);
    QVERIFY(host.custom()->isVisible());
    QCOMPARE(standingOn(host.edit), QStringList());
}

void tst_guide_saving::aProfileResetsWhatItDoesNotName()
{
    EditHost old;
    const QByteArray profile = packedLayout(old.window, old.manager);
    EditHost host;
    QToolBar *const file =
        host.defaultToolBar(QStringLiteral("file"), words("open"), QStringLiteral("File"));
    host.manager.setToolBar(file, {});
    QVERIFY(switchToProfile(&host.window, &host.manager, profile));
    QCOMPARE(standingOn(file), words("open"));
}

void tst_guide_saving::aBadProfileChangesNothing()
{
    EditHost host;
    host.window.show();
    host.window.addToolBar(Qt::LeftToolBarArea, host.addCustomToolBar());
    host.manager.setToolBar(host.edit, {});
    QVERIFY(!switchToProfile(&host.window, &host.manager, QByteArray("no profile")));
    QCOMPARE(standingOn(host.custom()), words("edit_copy"));
    QCOMPARE(host.window.toolBarArea(host.custom()), Qt::LeftToolBarArea);
    QCOMPARE(standingOn(host.edit), QStringList());
}

void tst_guide_saving::profilesMayBeNamedFreely()
{
    m_settings->setValue(profileKey(QStringLiteral("a/b")), 1);
    m_settings->setValue(profileKey(QStringLiteral("a b %2F ü")), 2);
    m_settings->beginGroup(QStringLiteral("profiles"));
    QStringList names;
    const auto keys = m_settings->childKeys();
    for (const QString &key : keys)
        names << QUrl::fromPercentEncoding(key.toLatin1());
    names.sort();
    QCOMPARE(names, QStringList({QStringLiteral("a b %2F ü"), QStringLiteral("a/b")}));
}

void tst_guide_saving::whatIsExportedCanBeImported()
{
    EditHost host;
    host.addCustomToolBar();
    host.manager.setToolBar(host.edit, {});
    QVERIFY(exportToolBars(host.manager, path("mine.toolbars")));
    EditHost next;
    next.manager.createToolBar(QStringLiteral("Replaced"));
    QVERIFY(importToolBars(&next.manager, path("mine.toolbars")));
    QCOMPARE(next.manager.toolBars().size(), 2);
    QCOMPARE(next.custom()->windowTitle(), QStringLiteral("Mine"));
    QCOMPARE(standingOn(next.custom()), words("edit_copy"));
    QCOMPARE(standingOn(next.edit), QStringList());
}

void tst_guide_saving::aBadFileChangesNothing()
{
    EditHost host;
    host.addCustomToolBar();
    host.manager.setToolBar(host.edit, {});
    QVERIFY(exportToolBars(host.manager, path("mine.toolbars")));
    QFile file(path("mine.toolbars"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.resize(file.size() - 1));
    file.close();
    for (const char *name : {"mine.toolbars", "none.toolbars"}) {
        QVERIFY(!importToolBars(&host.manager, path(name)));
        QCOMPARE(standingOn(host.custom()), words("edit_copy"));
        QCOMPARE(standingOn(host.edit), QStringList());
    }
}

QTEST_MAIN(tst_guide_saving)
#include "tst_guide_saving.moc"
