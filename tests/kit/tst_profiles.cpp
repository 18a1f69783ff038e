// SPDX-License-Identifier: MIT

#include "editorviews.h"
#include "kitlayout.h"
#include "kitwindow.h"
#include "testcase.h"

#include <QDir>
#include <QPushButton>
#include <QtTest>

class tst_Profiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thereAreNoneAtFirst();
    void aProfileBringsEverythingBack();
    void switchingIsOneStep();
    void switchingIsStored();
    void savingAgainReplacesAProfile();
    void removedProfilesAreGone();
    void unknownProfilesChangeNothing();
    void namesAreSortedAsByAUser();
    void aNameMayBeAnyText_data();
    void aNameMayBeAnyText();
    void aNameMustBeAText_data();
    void aNameMustBeAText();
    void damagedProfilesAreRefused_data();
    void damagedProfilesAreRefused();
    void aProfileKeepsWhatIsNotLoaded();
    void requiredActionsReturn();
    void windowsWithTheSameKeyHaveTheSameProfiles();
    void profilesOfAnotherKeyAreOthers();
    void profilesAreBesideTheLayoutOfTheWindow();
    void withoutAKeyThereAreNone();
    void withoutSettingsNothingHappens();
    void withoutStoreChangesProfilesAreOnlyRead();
    void withoutAWindowNothingHappens();
    void theDialogShowsTheProfile();

    void aFileBringsEverythingBack();
    void importingIsOneStep();
    void aFileIsReplacedAsAWhole();
    void onlyLayoutsAreImported_data();
    void onlyLayoutsAreImported();
    void strangeFilesAreRefused_data();
    void strangeFilesAreRefused();
    void filesUpToTheLimitsAreTaken();
    void aFileThatIsTooLargeIsRefused();
    void floatingToolBarsComeBackOnAScreenOnly();
    void longTitlesAreCut();
    void unknownNamesAreListed();
    void nothingIsUnknownInARefusedFile();
};

namespace {

QString fileOf(const KitProgram &program, const QString &name = "layout.json")
{
    return program.folder.filePath(name);
}

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &name, const QByteArray &content)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void addPlaces(KitLayout *layout, int count)
{
    for (int i = 0; i < count; ++i)
        layout->places.lines["top"].append(QStringList(QString::number(i)));
}

QByteArray valueOf(const std::function<void(KitLayout *)> &change)
{
    KitLayout layout;
    change(&layout);
    return layout.toJson();
}

void addCustomToolBars(KitLayout *layout, int count)
{
    for (int i = 0; i < count; ++i)
        layout->toolBars["_Custom_Toolbar_" + QString::number(i)].custom = true;
}

// Separators, because there may be any number of them.
void addEntries(KitLayout *layout, int count)
{
    for (int i = 0; count > 0; ++i) {
        KitToolBar &toolBar = layout->toolBars["plugin" + QString::number(i)];
        toolBar.customized = true;
        for (; toolBar.entries.size() < 1000 && count > 0; --count)
            toolBar.entries << QString();
    }
}

} // namespace

void tst_Profiles::thereAreNoneAtFirst()
{
    KitProgram program;
    program.start();
    QCOMPARE(program.kit()->profiles(), QStringList());
    program.edit("edit", "paste");
    QCOMPARE(program.kit()->profiles(), QStringList());
}

void tst_Profiles::aProfileBringsEverythingBack()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste | cut");
    program.create("Mine", "open");
    program.toolBar("file")->toggleViewAction()->trigger();
    program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("edit"));
    const QStringList contents = program.contents();
    const QStringList places = program.places();
    QVERIFY(program.kit()->saveProfile("Writing"));
    QCOMPARE(program.kit()->profiles(), QStringList("Writing"));
    QVERIFY(program.kit()->restoreLayout(QByteArray()));
    QVERIFY(program.kit()->saveProfile("Default"));
    program.start();
    QVERIFY(program.kit()->switchToProfile("Writing"));
    QCOMPARE(program.contents(), contents);
    QCOMPARE(program.places(), places);
    QVERIFY(program.toolBar("file")->isHidden());
    QCOMPARE(program.toolBar("_Custom_Toolbar_1")->windowTitle(), QString("Mine"));
    QVERIFY(program.kit()->switchToProfile("Default"));
    QVERIFY(program.kit()->isDefault());
    QVERIFY(program.toolBar("file")->isVisible());
}

void tst_Profiles::switchingIsOneStep()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    QVERIFY(program.kit()->saveProfile("One"));
    program.edit("edit", "copy");
    program.edit("file", "save");
    program.layoutChanges = 0;
    QVERIFY(program.kit()->switchToProfile("One"));
    QCOMPARE(program.layoutChanges, 1);
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: new open save"}));
    program.kit()->undoAction()->trigger();
    QCOMPARE(program.contents(), QStringList({"edit: copy", "file: save"}));
    program.start();
    program.kit()->redoAction()->trigger();
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: new open save"}));
    QCOMPARE(program.kit()->profiles(), QStringList("One"));
}

void tst_Profiles::switchingIsStored()
{
    KitProgram program;
    program.start();
    QVERIFY(program.kit()->saveProfile("Default"));
    program.edit("edit", "paste");
    QVERIFY(program.kit()->switchToProfile("Default"));
    QCOMPARE(program.stored().toUtf8(), program.kit()->saveLayout());
    QVERIFY(contentOf(program.settings->fileName()).contains("toolBars.steps"));
    program.start();
    QVERIFY(program.kit()->isDefault());
}

void tst_Profiles::savingAgainReplacesAProfile()
{
    KitProgram program;
    program.start();
    QVERIFY(program.kit()->saveProfile("One"));
    program.edit("edit", "paste");
    QVERIFY(program.kit()->saveProfile("One"));
    QCOMPARE(program.kit()->profiles(), QStringList("One"));
    program.edit("edit", "copy");
    QVERIFY(program.kit()->switchToProfile("One"));
    QCOMPARE(program.content("edit"), QString("paste"));
}

void tst_Profiles::removedProfilesAreGone()
{
    KitProgram program;
    program.start();
    QVERIFY(program.kit()->saveProfile("One"));
    QVERIFY(program.kit()->saveProfile("Two"));
    QVERIFY(program.kit()->removeProfile("One"));
    QVERIFY(!program.kit()->removeProfile("One"));
    QVERIFY(!program.kit()->removeProfile(QString()));
    QCOMPARE(program.kit()->profiles(), QStringList("Two"));
    QVERIFY(!contentOf(program.settings->fileName()).contains("ne="));
}

void tst_Profiles::unknownProfilesChangeNothing()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    QVERIFY(!program.kit()->switchToProfile("One"));
    QVERIFY(!program.kit()->switchToProfile(QString()));
    QCOMPARE(program.content("edit"), QString("paste"));
    QCOMPARE(program.refusals, QStringList());
}

void tst_Profiles::namesAreSortedAsByAUser()
{
    KitProgram program;
    program.start();
    QStringList names({"b", "B", "a", "Z 1", "Z/2", "10"});
    for (const QString &name : std::as_const(names))
        QVERIFY(program.kit()->saveProfile(name));
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
        return QString::localeAwareCompare(a, b) < 0;
    });
    QCOMPARE(program.kit()->profiles(), names);
}

void tst_Profiles::aNameMayBeAnyText_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("slash") << "a/b";
    QTest::newRow("slashes") << "/a//b/";
    QTest::newRow("backslash") << "a\\b";
    QTest::newRow("percent") << "a%2Fb %";
    QTest::newRow("signs of the file") << "[a]=b;#\"c\",@d";
    QTest::newRow("blank") << " ";
    QTest::newRow("lines") << "a\nb\r\n\tc";
    QTest::newRow("null character") << QString("a") + QChar(0) + "b";
    QTest::newRow("letters") << QString::fromUtf8("Überschriften – ü ґ 文 \xf0\x9f\x98\x80");
    QTest::newRow("composed") << QString::fromUtf8("u\xcc\x88");
    QTest::newRow("General") << "General";
    QTest::newRow("dots") << "..";
    QTest::newRow("long") << QString(2000, 'x');
}

void tst_Profiles::aNameMayBeAnyText()
{
    QFETCH(QString, name);
    KitProgram program;
    program.start();
    QVERIFY(program.kit()->saveProfile(name.toUpper() + '+'));
    program.edit("edit", "paste");
    QVERIFY(program.kit()->saveProfile(name));
    program.edit("edit", "cut");
    QVERIFY(program.kit()->saveProfile(name + '+'));
    program.end();
    program.settings.reset(
        new QSettings(program.folder.filePath("settings.ini"), QSettings::IniFormat));
    program.start();
    QVERIFY(program.kit()->profiles().contains(name));
    QVERIFY(program.kit()->switchToProfile(name));
    QCOMPARE(program.content("edit"), QString("paste"));
    QVERIFY(program.kit()->removeProfile(name));
    QVERIFY(!program.kit()->profiles().contains(name));
    QVERIFY(program.kit()->switchToProfile(name + '+'));
}

void tst_Profiles::aNameMustBeAText_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("half a character") << QString(QChar(0xd800));
}

void tst_Profiles::aNameMustBeAText()
{
    QFETCH(QString, name);
    KitProgram program;
    program.start();
    QVERIFY(!program.kit()->saveProfile(name));
    QCOMPARE(program.kit()->profiles(), QStringList());
    QCOMPARE(program.settings->allKeys(), QStringList());
}

void tst_Profiles::damagedProfilesAreRefused_data()
{
    QTest::addColumn<QVariant>("value");
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    QString changed = program.kit()->saveLayout();
    QTest::newRow("changed") << QVariant(changed.replace("paste", "pasta"));
    QTest::newRow("text") << QVariant("x");
    QTest::newRow("bytes of a manager") << QVariant(program.kit()->manager()->saveState(1));
    QTest::newRow("bytes of a window") << QVariant(program.window()->saveState());
}

void tst_Profiles::damagedProfilesAreRefused()
{
    QFETCH(QVariant, value);
    KitProgram program;
    program.start();
    program.edit("edit", "copy");
    program.settings->setValue("toolBars.profiles/one", value);
    QCOMPARE(program.kit()->profiles(), QStringList("one"));
    QVERIFY(!program.kit()->switchToProfile("one"));
    QCOMPARE(program.content("edit"), QString("copy"));
    QCOMPARE(program.refusals.size(), 1);
}

void tst_Profiles::aProfileKeepsWhatIsNotLoaded()
{
    const auto buildWithPlugin = [](QMainWindow *window) {
        KitProgram::buildDefault(window);
        QToolBar *const plugin = window->addToolBar("Plugin");
        plugin->setObjectName("plugin");
        addAction(plugin, "tool");
    };
    KitProgram program;
    program.start(buildWithPlugin);
    program.edit("plugin", "open tool");
    program.edit("edit", "tool cut");
    QVERIFY(program.kit()->saveProfile("One"));
    program.restoreDefaults();
    program.start();
    QVERIFY(program.kit()->switchToProfile("One"));
    QCOMPARE(program.content("edit"), QString("cut"));
    program.start(buildWithPlugin);
    QCOMPARE(program.content("plugin"), QString("open tool"));
    QCOMPARE(program.content("edit"), QString("tool cut"));
}

void tst_Profiles::requiredActionsReturn()
{
    KitProgram program;
    program.start();
    program.edit("edit", "copy");
    QVERIFY(program.kit()->saveProfile("One"));
    program.kit()->setRequired(program.action("cut"));
    QVERIFY(program.kit()->switchToProfile("One"));
    QCOMPARE(program.content("edit"), QString("cut copy"));
}

void tst_Profiles::windowsWithTheSameKeyHaveTheSameProfiles()
{
    KitProgram program;
    KitProgram other;
    other.shareSettings(program);
    program.start();
    other.start();
    QVERIFY(program.kit()->saveProfile("Default"));
    program.edit("edit", "paste");
    QVERIFY(other.kit()->switchToProfile("Default"));
    QCOMPARE(program.content("edit"), QString("cut | copy"));
    program.kit()->undoAction()->trigger();
    QCOMPARE(other.content("edit"), QString("paste"));
}

void tst_Profiles::profilesOfAnotherKeyAreOthers()
{
    KitProgram program;
    program.start();
    QVERIFY(program.kit()->saveProfile("One"));
    KitProgram other;
    other.shareSettings(program);
    other.key = "others";
    other.start();
    QCOMPARE(other.kit()->profiles(), QStringList());
}

void tst_Profiles::profilesAreBesideTheLayoutOfTheWindow()
{
    QTemporaryDir folder;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QCoreApplication::setOrganizationName("Tests");
    QMainWindow window;
    window.setObjectName("editor");
    RyToolBarKit kit(&window, false);
    QCOMPARE(kit.profiles(), QStringList());
    KitProgram::buildDefault(&window);
    QVERIFY(kit.saveProfile("Fox"));
    QCOMPARE(kit.profiles(), QStringList("Fox"));
    QCOMPARE(QSettings().allKeys(), QStringList("toolBars/editor.profiles/%46ox"));
    kit.manager()->setToolBar(window.findChild<QToolBar *>("edit"), {});
    QVERIFY(kit.switchToProfile("Fox"));
    QVERIFY(kit.isDefault());
}

void tst_Profiles::withoutAKeyThereAreNone()
{
    KitProgram program;
    program.key = QString();
    program.start();
    QVERIFY(!program.kit()->saveProfile("One"));
    QVERIFY(!program.kit()->removeProfile("One"));
    QVERIFY(!program.kit()->switchToProfile("One"));
    QCOMPARE(program.kit()->profiles(), QStringList());
}

void tst_Profiles::withoutSettingsNothingHappens()
{
    KitProgram program;
    program.start();
    QVERIFY(program.kit()->saveProfile("One"));
    program.settings.reset();
    QCOMPARE(program.kit()->profiles(), QStringList());
    QVERIFY(!program.kit()->saveProfile("One"));
    QVERIFY(!program.kit()->removeProfile("One"));
    QVERIFY(!program.kit()->switchToProfile("One"));
}

void tst_Profiles::withoutStoreChangesProfilesAreOnlyRead()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    QVERIFY(program.kit()->saveProfile("One"));
    program.restoreDefaults();
    program.kit()->setFeatures(program.kit()->features() & ~RyToolBarKit::StoreChanges);
    QVERIFY(!program.kit()->saveProfile("Two"));
    QVERIFY(!program.kit()->removeProfile("One"));
    QCOMPARE(program.kit()->profiles(), QStringList("One"));
    QVERIFY(program.kit()->switchToProfile("One"));
    QCOMPARE(program.content("edit"), QString("paste"));
}

void tst_Profiles::withoutAWindowNothingHappens()
{
    RyToolBarKit kit(nullptr, false);
    QCOMPARE(takeWarnings(), QStringList("RyToolBarKit: there is no window"));
    QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    kit.setSettings(&settings, "toolBars");
    settings.setValue("toolBars.profiles/one", KitLayout().toJson());
    QVERIFY(!kit.switchToProfile("one"));
    write(folder.filePath("layout.json"), KitLayout().toJson());
    QVERIFY(!kit.importLayout(folder.filePath("layout.json")));
    kit.undoAction()->trigger();
    kit.redoAction()->trigger();
}

void tst_Profiles::theDialogShowsTheProfile()
{
    KitProgram program;
    program.start();
    program.edit("file", "save");
    QVERIFY(program.kit()->saveProfile("One"));
    program.restoreDefaults();
    RyCustomizedDialog *const dialog = program.openDialog();
    EditorViews editor(dialog);
    QVERIFY(program.kit()->switchToProfile("One"));
    editor.click(editor.toolBarList, "File");
    QCOMPARE(editor.currentToolBarList->count(), 1);
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    QCOMPARE(program.content("file"), QString("save"));
}

void tst_Profiles::aFileBringsEverythingBack()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste | cut");
    program.create("Mine", "open");
    program.window()->addToolBar(Qt::LeftToolBarArea, program.toolBar("edit"));
    QVERIFY(program.kit()->exportLayout(fileOf(program)));
    QCOMPARE(contentOf(fileOf(program)), program.kit()->saveLayout());
    KitProgram other;
    other.start();
    QVERIFY(other.kit()->importLayout(fileOf(program)));
    QCOMPARE(other.contents(), program.contents());
    QCOMPARE(other.places(), program.places());
    QCOMPARE(other.layoutChanges, 1);
    QCOMPARE(other.stored().toUtf8(), program.kit()->saveLayout());
}

void tst_Profiles::importingIsOneStep()
{
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    QVERIFY(program.kit()->exportLayout(fileOf(program)));
    program.edit("edit", "cut");
    program.edit("file", "save");
    QVERIFY(program.kit()->importLayout(fileOf(program)));
    QCOMPARE(program.contents(), QStringList({"edit: paste", "file: new open save"}));
    program.kit()->undoAction()->trigger();
    QCOMPARE(program.contents(), QStringList({"edit: cut", "file: save"}));
}

void tst_Profiles::aFileIsReplacedAsAWhole()
{
    KitProgram program;
    program.start();
    write(fileOf(program), "x");
    QVERIFY(program.kit()->exportLayout(fileOf(program)));
    QCOMPARE(contentOf(fileOf(program)), program.kit()->saveLayout());
    QVERIFY(!program.kit()->exportLayout(fileOf(program, "none/layout.json")));
    QVERIFY(!program.kit()->exportLayout(program.folder.path()));
    QVERIFY(!program.kit()->exportLayout(QString()));
    takeWarnings(); // Qt prints one for a file without a name
    QCOMPARE(QDir(program.folder.path()).entryList(QDir::Files), QStringList("layout.json"));
}

void tst_Profiles::onlyLayoutsAreImported_data()
{
    QTest::addColumn<QByteArray>("content");
    KitProgram program;
    program.start();
    program.edit("edit", "paste");
    QByteArray changed = program.kit()->saveLayout();
    QTest::newRow("changed") << changed.replace("paste", "pasta");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("x");
    QTest::newRow("bytes of a manager") << program.kit()->manager()->saveState(1);
    QTest::newRow("bytes of a window") << program.window()->saveState();
}

void tst_Profiles::onlyLayoutsAreImported()
{
    QFETCH(QByteArray, content);
    KitProgram program;
    program.start();
    program.edit("edit", "copy");
    write(fileOf(program), content);
    QVERIFY(!program.kit()->importLayout(fileOf(program)));
    QCOMPARE(program.content("edit"), QString("copy"));
    QCOMPARE(program.refusals.size(), 1);
    QCOMPARE(program.layoutChanges, 1);
}

void tst_Profiles::strangeFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("name of another kind")
        << valueOf([](KitLayout *layout) { layout->toolBars["centralWidget"].custom = true; })
        << "the layout has a custom toolbar with a name of another kind";
    QTest::newRow("101 toolbars") << valueOf([](KitLayout *layout) {
        addCustomToolBars(layout, 101);
    }) << "the layout has too many toolbars or entries";
    QTest::newRow("5001 entries") << valueOf([](KitLayout *layout) { addEntries(layout, 5001); })
                                  << "the layout has too many toolbars or entries";
    QTest::newRow("1001 places") << valueOf([](KitLayout *layout) { addPlaces(layout, 1001); })
                                 << "the layout has too many toolbars or entries";
}

void tst_Profiles::strangeFilesAreRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    KitProgram program;
    program.start();
    write(fileOf(program), content);
    QVERIFY(!program.kit()->importLayout(fileOf(program)));
    QCOMPARE(program.refusals, QStringList(reason));
    QVERIFY(program.kit()->isDefault());
    program.refusals.clear();
    for (const char *name : {"none.json", ".", ""})
        QVERIFY(!program.kit()->importLayout(fileOf(program, name)));
    QCOMPARE(program.refusals,
             QStringList({"the file cannot be read", "the file cannot be read",
                          "the file cannot be read"}));
}

void tst_Profiles::filesUpToTheLimitsAreTaken()
{
    KitProgram program;
    program.start();
    write(fileOf(program), valueOf([](KitLayout *layout) {
              addCustomToolBars(layout, 100);
              addEntries(layout, 5000);
          }));
    QVERIFY(program.kit()->importLayout(fileOf(program)));
    QCOMPARE(program.window()->findChildren<QToolBar *>().size(), 102);
    program.kit()->undoAction()->trigger();
    QCOMPARE(program.window()->findChildren<QToolBar *>().size(), 2);
}

void tst_Profiles::aFileThatIsTooLargeIsRefused()
{
    KitProgram program;
    program.start();
    const QByteArray value = program.kit()->saveLayout();
    const QByteArray blanks(1000000 - int(value.size()), ' ');
    write(fileOf(program), value + blanks);
    QVERIFY(program.kit()->importLayout(fileOf(program)));
    write(fileOf(program), value + blanks + ' ');
    QVERIFY(!program.kit()->importLayout(fileOf(program)));
    QCOMPARE(program.refusals, QStringList("the value is larger than 1 MB"));
}

void tst_Profiles::floatingToolBarsComeBackOnAScreenOnly()
{
    KitProgram program;
    program.start();
    write(fileOf(program), valueOf([](KitLayout *layout) {
              layout->places.lines["top"] = {{"file", "edit"}};
              layout->places.floating["file"] = QPoint(100, 100);
              layout->places.floating["edit"] = QPoint(100000, 100);
          }));
    QVERIFY(program.kit()->importLayout(fileOf(program)));
    QVERIFY(program.toolBar("file")->isFloating());
    QVERIFY(!program.toolBar("edit")->isFloating());
}

void tst_Profiles::longTitlesAreCut()
{
    KitProgram program;
    program.start();
    write(fileOf(program), valueOf([](KitLayout *layout) {
              addCustomToolBars(layout, 1);
              layout->toolBars["_Custom_Toolbar_0"].title = QString(201, 'x');
          }));
    QVERIFY(program.kit()->importLayout(fileOf(program)));
    QCOMPARE(program.toolBar("_Custom_Toolbar_0")->windowTitle(), QString(200, 'x'));
}

void tst_Profiles::unknownNamesAreListed()
{
    KitProgram program;
    program.start([&](QMainWindow *window) {
        KitProgram::buildDefault(window);
        program.kit()->setFormerNames(window->findChild<QAction *>("cut"), {"formerCut"});
        program.kit()->setFormerNames(window->findChild<QToolBar *>("file"), {"formerFile"});
    });
    write(fileOf(program), valueOf([](KitLayout *layout) {
              addCustomToolBars(layout, 1);
              layout->toolBars["_Custom_Toolbar_0"].entries =
                  QStringList({"copy", "tool", QString(), "formerCut", "view"});
              layout->toolBars["formerFile"].visibility = KitToolBar::Hidden;
              layout->toolBars["view"].visibility = KitToolBar::Hidden;
              layout->places.lines["left"] = {{"edit", "plugin", "_Custom_Toolbar_0"}};
          }));
    QCOMPARE(program.kit()->unknownNames(fileOf(program)), QStringList({"plugin", "tool", "view"}));
    QVERIFY(program.kit()->isDefault());
    QVERIFY(program.kit()->importLayout(fileOf(program)));
    QCOMPARE(program.content("_Custom_Toolbar_0"), QString("copy | cut"));
}

void tst_Profiles::nothingIsUnknownInARefusedFile()
{
    KitProgram program;
    program.start();
    write(fileOf(program), "x");
    QCOMPARE(program.kit()->unknownNames(fileOf(program)), QStringList());
    QCOMPARE(program.kit()->unknownNames(QString()), QStringList());
    QCOMPARE(program.refusals, QStringList());
}

QTEST_MAIN(tst_Profiles)
#include "tst_profiles.moc"
